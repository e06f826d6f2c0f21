// What becomes of a rib when another program or the disk has its way with the files that are open.

#include "programme/file_steps.h"

#include "base/whole_file.h"
#include "persist/LireEcrire.h"
#include "programme/cut_steps.h"
#include "programme/panel_sheets.h"
#include "support/components_text.h"
#include "support/steps_world.h"
#include "support/system_calls.h"

namespace loftwing {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;

class FileFaults : public StepsWorld {
  protected:
    FileFaults() {
        fs::create_directories(folder.Path("ribs"));
        fs::copy_file(Sample("naca2412.dat"), Airfoil());
        OuvreFichier(programme, view, folder.File("ribs/rib.lfw", ComponentsText{}.Current()));
        EXPECT_TRUE(Rib().ProfilCharge);
        view.asked.clear();
    }
    std::string Airfoil() const { return folder.Path("airfoils/naca2412.dat"); }
    std::string RibFile() const { return folder.Path("ribs/rib.lfw"); }
    void Save(const std::string &path) {
        platform.files_expected.push_back(path);
        EnregistreRib(programme, view);
    }
    std::string AsFile() { return EcritComposants(Rib(), programme.settings.Unite); }
};

TEST_F(FileFaults, ASavedRibIsOnTheDiskBeforeItCountsAsSaved) {
    if (!CanWatchCalls()) {
        GTEST_SKIP() << "this system lets no process be watched";
    }
    const WatchedRun run = WatchCalls(
        [this] {
            Save(RibFile());
            return Rib().Modifie ? 1 : 0;
        },
        folder.Path("ribs/loftwing-"));
    EXPECT_TRUE(run.Exited(0));
    const long renamed = run.Place(RenameCalls());
    ASSERT_GT(renamed, 0);
    const long flushed = run.Place(FlushCalls());
    EXPECT_GE(flushed, 0);
    EXPECT_LT(flushed, renamed);
    EXPECT_GT(run.Place(FlushCalls(), renamed), renamed);
}

TEST_F(FileFaults, ASaveThatIsRefusedAtAnyCallSaysSoAndTheRibStaysUnsaved) {
    if (!CanWatchCalls()) {
        GTEST_SKIP() << "this system lets no process be watched";
    }
    Rib().Modifie = true;
    const std::string old = folder.Bytes("ribs/rib.lfw");
    Rib().corde = 123;
    Rib().cordeAfich = "123";
    const std::string new_one = AsFile();
    ASSERT_NE(old, new_one);
    const WatchedRun whole = WatchCalls(
        [this] {
            Save(RibFile());
            return 0;
        },
        folder.Path("ribs/loftwing-"));
    const long renamed_at = whole.Place(RenameCalls()) + 1;
    ASSERT_GT(renamed_at, 5);
    int refused = 0;
    for (int call = 1; call <= renamed_at; ++call) { // what comes then concerns the settings
        SCOPED_TRACE("call " + std::to_string(call));
        folder.File("ribs/rib.lfw", old);
        const WatchedRun run = WatchCalls(
            [this] {
                try {
                    Save(RibFile());
                    return Rib().Modifie ? 1 : 0;
                } catch (const Failure &failure) {
                    return Rib().Modifie ? failure.number : 2;
                }
            },
            folder.Path("ribs/loftwing-"), CallFault{call, ENOSPC});
        const bool renamed = run.Exited(0);
        EXPECT_TRUE(renamed || run.Exited(kDiskFull)) << run.status;
        EXPECT_EQ(folder.Bytes("ribs/rib.lfw"), renamed ? new_one : old);
        EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path("ribs")), {}), 1);
        refused += renamed ? 0 : 1;
    }
    EXPECT_GT(refused, 3);
}

TEST_F(FileFaults, AFileThatWasDeletedMeanwhileIsWrittenAnew) {
    const std::string before = AsFile();
    fs::remove(RibFile());
    Save(RibFile());
    EXPECT_EQ(folder.Bytes("ribs/rib.lfw"), before);
}

TEST_F(FileFaults, AnAirfoilThatIsCutShortOrGoneMeanwhileChangesNothingOfTheRib) {
    const std::string before = AsFile();
    const std::vector<double> points = Rib().ProfilX.Values();
    fs::resize_file(Airfoil(), 20);
    Save(folder.Path("ribs/cut.lfw"));
    fs::remove(Airfoil());
    Save(folder.Path("ribs/gone.lfw"));
    EXPECT_EQ(folder.Bytes("ribs/cut.lfw"), before);
    EXPECT_EQ(folder.Bytes("ribs/gone.lfw"), before);
    EXPECT_EQ(Rib().ProfilX.Values(), points);
}

TEST_F(FileFaults, AFileThatWasCutShortMeanwhileDoesNotCostTheRibThatIsOpen) {
    const std::string before = AsFile();
    const std::string bytes = folder.Bytes("ribs/rib.lfw");
    for (const std::size_t left : {std::size_t{0}, std::size_t{1}, bytes.size() / 2}) {
        SCOPED_TRACE(left);
        folder.File("ribs/rib.lfw", bytes.substr(0, left));
        ExpectReport(" LireEcrire/newLfw");
        OuvreAutreUnite(programme, view);
        EXPECT_THAT(view.asked, IsEmpty());
        view.asked.clear();
    }
    fs::remove(RibFile());
    ExpectBox(BoxAnswer::ok, "Error # 53 in Loftwing\nFile not found: " + RibFile(),
              " LireEcrire/newLfw");
    OuvreAutreUnite(programme, view);
    EXPECT_EQ(programme.settings.Unite, " mm");
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(AsFile(), before);
    Save(RibFile());
    EXPECT_EQ(folder.Bytes("ribs/rib.lfw"), before);
}

TEST_F(FileFaults, SettingsThatCannotBeReadAnyMoreAreToldOnceAndWorkGoesOn) {
    fs::remove(programme.paths.fichier);
    fs::create_directory(programme.paths.fichier);
    ExpectReport(" Main/FileMru");
    Save(folder.Path("ribs/one.lfw"));
    Save(folder.Path("ribs/two.lfw"));
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_EQ(folder.Bytes("ribs/one.lfw"), folder.Bytes("ribs/two.lfw"));
    platform.files_expected.push_back(folder.Path("ribs/two.lfw"));
    OuvreRib(programme, view);
    EXPECT_EQ(Rib().NomFichierRib, "two.lfw");
    ChoixDecoupe cut = LitChoixDecoupe(programme);
    EXPECT_EQ(cut.forme, "");
    RetientChoixDecoupe(programme, cut);
    RetientPlanches(programme, PlanchesRetenues(programme));
    EXPECT_TRUE(fs::is_directory(programme.paths.fichier));
    EXPECT_TRUE(fs::is_empty(programme.paths.fichier));
}

TEST_F(FileFaults, AFolderThatIsGoneIsToldAndTheRibIsSavedElsewhere) {
    Rib().Modifie = true;
    fs::remove_all(folder.Path("ribs"));
    platform.files_expected.push_back(RibFile());
    try {
        EnregistreRib(programme, view);
        ADD_FAILURE();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number, kPathNotFound);
        EXPECT_EQ(failure.detail, RibFile());
    }
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_FALSE(fs::exists(folder.Path("ribs")));
    Save(folder.Path("rib.lfw"));
    EXPECT_FALSE(Rib().Modifie);
}

} // namespace
} // namespace loftwing
