#include "utilities/frminclinaison.h"

#include "support/qt_window_world.h"
#include "windows/addon_fixture.h"

namespace loftwing {
namespace {

class FrminclinaisonTest : public AddonTest<frminclinaison> {
  protected:
    FrminclinaisonTest() {
        programme.settings.repertoires.RepProfilevol = folder.Path();
        ProfilChoisi chosen;
        chosen.NomProfil = "naca";
        for (const auto &[x, y] : {std::pair(1.0, 0.0), std::pair(0.0, 0.1), std::pair(1.0, 0.0)}) {
            chosen.ProfilX.Append(x);
            chosen.ProfilY.Append(y);
            ++chosen.NbPoints;
        }
        view.picked = chosen;
    }

    void Refused(Seen &window, const char *typed, const std::string &text) {
        window.Type("Text1", typed);
        platform.Expect(BoxAnswer::ok, {.text = text});
        window.Click("cmdok");
        EXPECT_EQ(platform.boxes.back().title, "Dihedral rib");
        EXPECT_TRUE(window.FocusedAndSelected("Text1"));
    }
    int Clears() const { return Asked("affclear"); }
};

TEST_F(FrminclinaisonTest, ShowsItsWords) {
    Use([](Seen &window) {
        EXPECT_EQ(window.Title(), "Dihedral rib");
        EXPECT_EQ(window.Label("Label1"), "Airfoil");
        EXPECT_EQ(window.Label("Label2"), "Angle");
        EXPECT_EQ(window.Label("Label3"), "Original");
        EXPECT_EQ(window.Label("Label4"), "To compute");
        EXPECT_EQ(window.Word("cmdok"), "Compute");
        EXPECT_EQ(window.Tip("cmdok"), "Compute and save on disk");
        EXPECT_EQ(window.Tip("cmdouvrir"), "Choose the airfoil of the rib");
        EXPECT_EQ(window.Text("Text1"), "");
        EXPECT_TRUE(window.Focused("Text1"));
    });
}

TEST_F(FrminclinaisonTest, TheAngleTakesNoSlashInInchesEither) {
    Inches();
    Use([](Seen &window) {
        window.Type("Text1", "-a1/2.5%");
        EXPECT_EQ(window.Text("Text1"), "12.5");
    });
}

TEST_F(FrminclinaisonTest, RefusesAMissingAngleNinetyDegreesAndAMissingAirfoil) {
    Use([this](Seen &window) {
        Refused(window, "", "Please enter the angle");
        Refused(window, "0", "Please enter the angle");
        Refused(window, "90", "The angle must not be more than 89° !");
        window.Type("Text1", "89.99");
        platform.Expect(BoxAnswer::ok, {.text = "Please choose an airfoil"});
        window.Click("cmdok");
        EXPECT_TRUE(window.IsOpen());
    });
    EXPECT_TRUE(platform.file_questions.empty());
}

TEST_F(FrminclinaisonTest, WritesTheAirfoilWhereTheUserSaysAndStays) {
    const Left left = Use([this](Seen &window) {
        window.Click("cmdouvrir");
        EXPECT_EQ(view.asked.back(), "ChoisitProfil Dihedral rib");
        EXPECT_EQ(window.Text("txtprofil"), "naca");
        window.Type("Text1", "60");
        platform.files_expected.push_back(folder.Path("out.dat"));
        window.Key("Text1", Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::open);
    const FileQuestion &question = platform.file_questions.at(0);
    EXPECT_EQ(question.title, "Save the airfoil of the dihedral rib");
    EXPECT_EQ(question.name, "naca_ 60.dat");
    EXPECT_EQ(question.folder, folder.Path());
    EXPECT_EQ(folder.Bytes("out.dat"), "diedre  60.00°\r\n"
                                       "1.00000000  0.00000000\r\n"
                                       "0.00000000  0.20000000\r\n"
                                       "1.00000000  0.00000000\r\n");
    EXPECT_EQ(programme.rib.NomProfil, "e205");
    EXPECT_EQ(Clears(), 0);
}

TEST_F(FrminclinaisonTest, ACancelIsSilentAndAFailureClearsTheRib) {
    Use([this](Seen &window) {
        window.Click("cmdouvrir");
        window.Type("Text1", "5");
        platform.files_expected.emplace_back("");
        window.Click("cmdok");
        EXPECT_EQ(Clears(), 0);
        platform.files_expected.push_back(folder.Path("nowhere/out.dat"));
        platform.Expect(BoxAnswer::ok);
        window.Click("cmdok");
        EXPECT_EQ(platform.boxes.back().title, "Error Angle/OK");
        EXPECT_TRUE(window.IsOpen());
    });
    EXPECT_EQ(Clears(), 1);
}

TEST_F(FrminclinaisonTest, CancelEscapeAndCloseLeaveTheWindow) {
    for (const int way : {0, 1, 2}) {
        const Left left = Use([way](Seen &window) {
            if (way == 0) {
                window.Click("cmdannuler");
            } else if (way == 1) {
                window.Key("Text1", Qt::Key_Escape);
            } else {
                window.Close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
    }
    EXPECT_TRUE(view.asked.empty());
}

TEST_F(FrminclinaisonTest, TabGoesThroughTheControlsInTheirOrder) {
    Use([](Seen &window) {
        window.ExpectTabs({"cmdok", "cmdannuler", "cmdaide", "cmdouvrir", "Text1"});
    });
}

TEST_F(FrminclinaisonTest, HelpOpensItsPage) {
    Use([](Seen &window) { window.Click("cmdaide"); });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{63}));
}

TEST_F(FrminclinaisonTest, NothingIsCutInAnyLanguageUnitOrSize) {
    ExpectNothingCutAnywhere();
}

// The command.

TEST(InclineCommand, OpensItsWindowAtOnceAndLeavesTheRib) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    bool came = false;
    InNextDialog([&came](Seen &dialog) {
        came = true;
        EXPECT_EQ(dialog.Name(), "frminclinaison");
        dialog.Key(Qt::Key_Escape);
    });
    world.Action("mnu_outilInclinaison")->trigger();
    EXPECT_TRUE(came);
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
}

} // namespace
} // namespace loftwing
