// Leafing through the airfoils of a folder.

#include "core/airfoil_picker.h"
#include "programme/file_steps.h"
#include "support/components_text.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::IsEmpty;

class Neighbours : public StepsWorld {
  protected:
    Neighbours() { fs::create_directories(folder.Path("box")); }

    std::string In(const std::string &name) const { return folder.Path("box/" + name); }
    void Put(const std::vector<std::string> &names) const {
        for (const std::string &name : names) {
            fs::copy_file(Sample("naca2412.dat"), In(name));
        }
    }
    void Open(const std::string &name) { OuvreFichier(programme, view, In(name)); }
    void Next() { OuvreVoisin(programme, view, 1); }
    void Previous() { OuvreVoisin(programme, view, -1); }
    void ExpectEnd(const char *text) {
        ExpectBox(BoxAnswer::ok, std::string(text) + "\n" + folder.Path("box"), "Loftwing");
    }
    std::string Shown() { return fs::path(Rib().CheminProfil).filename().string(); }

    static constexpr const char *kNoFurther = "There is no further airfoil in the folder :";
    static constexpr const char *kNoneBefore =
        "There is no airfoil before this one in the folder :";
    static constexpr const char *kRefused = "Title\n0.5 0.1\n1 0\n";
    static constexpr const char *kFailing = "Title\n1 0\nno-blank\n";
};

TEST_F(Neighbours, FollowInTheOrderOfThePickersList) {
    Put({"b.dat", "A.dat", "c.cor", "a10.DAT", "notes.txt", "rib.lfw", ".hidden.dat"});
    fs::create_directories(In("b2.dat"));
    Open("A.dat");
    for (const char *name : {"a10.DAT", "b.dat", "c.cor"}) {
        Next();
        EXPECT_EQ(Shown(), name);
        EXPECT_TRUE(Rib().ProfilCharge);
    }
    for (const char *name : {"b.dat", "a10.DAT", "A.dat"}) {
        Previous();
        EXPECT_EQ(Shown(), name);
    }
}

TEST_F(Neighbours, EndWithAWord) {
    Put({"a.dat", "b.dat"});
    Open("b.dat");
    ExpectEnd(kNoFurther);
    Next();
    EXPECT_EQ(Shown(), "b.dat");
    Previous();
    EXPECT_EQ(Shown(), "a.dat");
    ExpectEnd(kNoneBefore);
    Previous();
    EXPECT_EQ(Shown(), "a.dat");
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(Neighbours, ARefusedOneIsToldAndTheNextGoesOnFromIt) {
    Put({"a.dat", "d.dat"});
    folder.File("box/b.dat", kRefused);
    folder.File("box/c.dat", kFailing);
    Open("a.dat");
    Rib().NbRep = 3; // work on the rib
    platform.Expect(BoxAnswer::ok);
    Next();
    EXPECT_EQ(Shown(), "a.dat");
    EXPECT_EQ(Rib().NomProfil, "a");
    EXPECT_TRUE(Rib().ProfilCharge);
    view.asked.clear();
    ExpectReport(" Open/FichierLecture");
    Next(); // a failure doesn't cost the rib either
    EXPECT_EQ(Shown(), "a.dat");
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_THAT(view.asked, IsEmpty());
    Next();
    EXPECT_EQ(Shown(), "d.dat");
    EXPECT_EQ(Rib().NbRep, 3);
    ExpectReport(" Open/FichierLecture");
    Previous();
    platform.Expect(BoxAnswer::ok);
    Previous();
    Previous();
    EXPECT_EQ(Shown(), "a.dat");
}

TEST_F(Neighbours, AnAirfoilOpenedOtherwiseIsWhereTheNextIsCountedFrom) {
    Put({"a.dat", "c.dat", "d.dat"});
    folder.File("box/b.dat", kRefused);
    Open("a.dat");
    platform.Expect(BoxAnswer::ok);
    Next();
    Open("a.dat"); // the user's own choice
    platform.Expect(BoxAnswer::ok);
    Next();
    Open("c.dat");
    Next();
    EXPECT_EQ(Shown(), "d.dat");
}

TEST_F(Neighbours, ARibFilesAirfoilHasNeighboursToo) {
    fs::copy_file(Sample("naca2412.dat"), folder.Path("airfoils/naca2412.dat"));
    fs::copy_file(Sample("naca0012.dat"), folder.Path("airfoils/naca0012.dat"));
    Put({"a.dat"});
    folder.File("box/b.dat", kRefused);
    Open("a.dat");
    platform.Expect(BoxAnswer::ok);
    Next();
    Rib().Modifie = false;
    OuvreFichier(programme, view, folder.File("root.lfw", ComponentsText{}.Current()));
    Previous();
    EXPECT_EQ(Rib().CheminProfil, folder.Path("airfoils/naca0012.dat"));
}

TEST_F(Neighbours, AskWhereSomethingHasNoRoom) {
    Put({"a.dat"});
    folder.File("box/b.dat", ReadWholeFile(Named("short.dat", "Tip: 60")));
    Open("a.dat");
    Rib().EpBF = 80;
    Rib().EpBFAfich = "80";
    platform.Expect(BoxAnswer::no, {.text = HasSubstr("What does not fit on this chord")});
    Next();
    EXPECT_EQ(Shown(), "a.dat");
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_EQ(Rib().EpBF, 80.0F);
}

TEST_F(Neighbours, AFileThatIsGoneCountsWhereItWouldStand) {
    Put({"a.dat", "b.dat", "c.dat"});
    Open("b.dat");
    fs::remove(In("b.dat"));
    Next();
    EXPECT_EQ(Shown(), "c.dat");
    Open("a.dat");
    Next();
    EXPECT_EQ(Shown(), "c.dat");
}

TEST_F(Neighbours, WithoutAnAirfoilTheyAreThoseOfThePickersFolder) {
    Put({"a.dat", "b.dat", "c.dat"});
    programme.settings.repertoires.LastOpenProfil = folder.Path("box");
    Next();
    EXPECT_EQ(Shown(), "a.dat");
    EXPECT_TRUE(Rib().ProfilCharge);
    Rib().CheminProfil.clear();
    Previous();
    EXPECT_EQ(Shown(), "c.dat");
}

TEST_F(Neighbours, AFolderThatIsGoneIsAFailure) {
    EXPECT_THROW(ProfilVoisin(folder.Path("none/a.dat"), 1), Failure);
}

} // namespace
} // namespace loftwing
