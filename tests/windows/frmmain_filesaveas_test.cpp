// Saving ribs from the main window.

#include "support/ordinary_user.h"
#include "windows/frmmain_files_fixture.h"

namespace loftwing {
namespace {

namespace fs = std::filesystem;

class SavingRibs : public RibFiles {
  protected:
    void Save(const std::string &path) { Choose("mnu_filesaveas", path); }
};

TEST_F(SavingRibs, ProposesAirfoilAndChordInTheAirfoilFolderAtFirst) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    Save("");
    EXPECT_EQ(LastQuestion().title, "Save as rib components");
    EXPECT_EQ(LastQuestion().filter_text, "Rib components Loftwing (*.lfw)");
    EXPECT_EQ(LastQuestion().default_extension, "lfw");
    EXPECT_EQ(LastQuestion().folder, world.folder.Path("airfoils"));
    EXPECT_EQ(LastQuestion().name, "naca2412 200 mm.lfw");
}

TEST_F(SavingRibs, ProposesTheOpenFileInItsFolder) {
    OpenBytes("root v1.2.lfw", ComponentsText{}.Current());
    Save("");
    EXPECT_EQ(LastQuestion().folder, world.folder.Path("ribs"));
    EXPECT_EQ(LastQuestion().name, "root v1.2.lfw");
}

TEST_F(SavingRibs, ACancelledChooserSavesNothing) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    const std::string caption = Caption();
    Save("");
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_EQ(Caption(), caption);
    EXPECT_EQ(Setting("LastOpenLfw"), "");
    EXPECT_TRUE(fs::is_empty(world.folder.Path("ribs")));
}

TEST_F(SavingRibs, ASavedRibIsUnchangedAndInTheCaption) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    Save(world.folder.Path("ribs/new.lfw"));
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_EQ(Caption(), "Loftwing Rib : new.lfw  Airfoil : naca2412");
    EXPECT_EQ(Setting("LastOpenLfw"), world.folder.Path("ribs"));
    EXPECT_TRUE(world.platform.boxes.empty());
    // Nothing is asked where nothing can be lost.
    Open(world.folder.Path("ribs/new.lfw"));
    EXPECT_TRUE(world.platform.boxes.empty());
}

TEST_F(SavingRibs, ARibWhoseChordWasRefusedCanBeSavedAndOpenedAgain) {
    world.window->OuvreFichier(world.folder.Path("airfoils/naca2412.dat"));
    world.platform.Expect(BoxAnswer::ok);
    InNextDialog([](Seen &dialog) {
        dialog.Type("infotxt", "0");
        dialog.Click("cmdok");
        dialog.Click("cmdannuler");
    });
    world.Action("mnu_profilcorde")->trigger();
    world.platform.Expect(BoxAnswer::ok);
    InNextDialog([](Seen &dialog) {
        dialog.Type("infotxt", "201");
        dialog.Click("cmdok");
    });
    world.Action("mnu_profilbf")->trigger();
    EXPECT_EQ(Rib().EpBFAfich, "201"); // to be met again
    Save(world.folder.Path("ribs/new.lfw"));
    ComponentsText wanted;
    wanted.spars[0][8] = "";
    wanted.holes[0][7] = "";
    wanted.total = Rib().bloc.HTblocAfich;
    wanted.text = Rib().texte.InsTexte;
    EXPECT_EQ(world.folder.Bytes("ribs/new.lfw"), wanted.Current());
    Open(world.folder.Path("ribs/new.lfw"));
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_NE(Drawing(), nullptr);
}

TEST_F(SavingRibs, ANewRibHasOneBlankRecordOfEachKind) {
    world.window->OuvreFichier(world.folder.Path("airfoils/naca2412.dat"));
    Save(world.folder.Path("ribs/new.lfw"));
    ComponentsText wanted;
    wanted.spars[0][8] = "";
    wanted.holes[0][7] = "";
    wanted.total = Rib().bloc.HTblocAfich;
    wanted.text = Rib().texte.InsTexte;
    EXPECT_EQ(world.folder.Bytes("ribs/new.lfw"), wanted.Current());
}

TEST_F(SavingRibs, SavedOpenedAndSavedAgainOnlySpareLinesChange) {
    world.window->OuvreFichier(world.folder.Path("airfoils/naca2412.dat"));
    Save(world.folder.Path("ribs/1.lfw"));
    Open(world.folder.Path("ribs/1.lfw"));
    Save(world.folder.Path("ribs/2.lfw"));
    ComponentsText wanted;
    wanted.total = Rib().bloc.HTblocAfich;
    wanted.text = Rib().texte.InsTexte;
    EXPECT_EQ(world.folder.Bytes("ribs/2.lfw"), wanted.Current()); // 0 where nothing stood
    Open(world.folder.Path("ribs/2.lfw"));
    Save(world.folder.Path("ribs/3.lfw"));
    EXPECT_EQ(world.folder.Bytes("ribs/3.lfw"), world.folder.Bytes("ribs/2.lfw"));
}

TEST_F(SavingRibs, WhatWasOpenedIsSavedByteForByte) {
    for (const char *kind : {"0", "1", "11"}) {
        for (const char *inverted : {"0", "1"}) {
            ComponentsText file = LadenRib(kind, false);
            file.inverted = inverted;
            OpenBytes("laden.lfw", file.Current());
            Save(world.folder.Path("ribs/again.lfw"));
            EXPECT_EQ(world.folder.Bytes("ribs/again.lfw"), file.Current());
        }
    }
}

TEST_F(SavingRibs, SavesOverTheFileThatIsOpen) {
    ComponentsText file;
    const std::string path = OpenBytes("rib.lfw", file.Current());
    Rib().vrillage = -2.5F;
    Rib().Modifie = true;
    Save(path);
    file.washout = "-2.5";
    EXPECT_EQ(world.folder.Bytes("ribs/rib.lfw"), file.Current());
    EXPECT_FALSE(Rib().Modifie);
}

TEST_F(SavingRibs, ARefusedWriteIsReportedAndNothingIsLost) {
    const std::string bytes = ComponentsText{}.Current();
    const std::string path = OpenBytes("rib.lfw", bytes);
    const std::string caption = Caption();
    Rib().Modifie = true;
    fs::permissions(world.folder.Path("ribs"), fs::perms::all);
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    {
        const OrdinaryUser user;
        const std::vector<std::pair<std::string, std::string>> refused = {
            {path, "70 in Loftwing\nPermission denied: "},
            {world.folder.Path("none/rib.lfw"), "76 in Loftwing\nPath not found: "}};
        for (const auto &[where, why] : refused) {
            world.platform.Expect(BoxAnswer::ok,
                                  {.text = "Error # " + why + where, .title = " Main/Mnu_SaveAs"});
            Save(where);
        }
    }
    EXPECT_EQ(world.folder.Bytes("ribs/rib.lfw"), bytes);
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_NE(Drawing(), nullptr);
    EXPECT_EQ(Caption(), caption);
    EXPECT_EQ(Rib().NomFichierRib, "rib.lfw");
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
    Save(world.folder.Path("ribs/other.lfw"));
    EXPECT_TRUE(Exists("ribs/other.lfw"));
}

} // namespace
} // namespace loftwing
