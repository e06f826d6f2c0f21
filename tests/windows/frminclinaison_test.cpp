#include "utilities/frminclinaison.h"

#include "support/qt_window_world.h"
#include "support/temp_folder.h"
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

    void Refused(frminclinaison &window, const char *typed, const std::string &text) {
        Type(window, "Text1", typed);
        ExpectBox(text);
        Click(window, "cmdok");
        EXPECT_EQ(platform.boxes.back().title, "Dihedral rib");
        EXPECT_TRUE(FocusedAndSelected(Box(window, "Text1")));
    }
    int Clears() const {
        return static_cast<int>(std::count(view.asked.begin(), view.asked.end(), "affclear"));
    }

    TempFolder folder;
};

TEST_F(FrminclinaisonTest, ShowsItsWords) {
    Use([](frminclinaison &window) {
        EXPECT_EQ(S(window.windowTitle()), "Dihedral rib");
        EXPECT_EQ(Label(window, "Label1"), "Airfoil");
        EXPECT_EQ(Label(window, "Label2"), "Angle");
        EXPECT_EQ(Label(window, "Label3"), "Original");
        EXPECT_EQ(Label(window, "Label4"), "To compute");
        EXPECT_EQ(Word(window, "cmdok"), "Compute");
        EXPECT_EQ(Tip(window, "cmdok"), "Compute and save on disk");
        EXPECT_EQ(Tip(window, "cmdouvrir"), "Choose the airfoil of the rib");
        EXPECT_EQ(Text(window, "Text1"), "");
        EXPECT_TRUE(Box(window, "Text1").hasFocus());
    });
}

TEST_F(FrminclinaisonTest, TheAngleTakesNoSlashInInchesEither) {
    Inches();
    Use([](frminclinaison &window) {
        Type(window, "Text1", "-a1/2.5%");
        EXPECT_EQ(Text(window, "Text1"), "12.5");
    });
}

TEST_F(FrminclinaisonTest, RefusesAMissingAngleNinetyDegreesAndAMissingAirfoil) {
    Use([this](frminclinaison &window) {
        Refused(window, "", "Please enter the angle");
        Refused(window, "0", "Please enter the angle");
        Refused(window, "90", "The angle must not be more than 89° !");
        Type(window, "Text1", "89.99");
        ExpectBox("Please choose an airfoil");
        Click(window, "cmdok");
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_TRUE(platform.file_questions.empty());
}

TEST_F(FrminclinaisonTest, WritesTheAirfoilWhereTheUserSaysAndStays) {
    const Left left = Use([this](frminclinaison &window) {
        Click(window, "cmdouvrir");
        EXPECT_EQ(view.asked.back(), "ChoisitProfil Dihedral rib");
        EXPECT_EQ(Text(window, "txtprofil"), "naca");
        Type(window, "Text1", "60");
        platform.files_expected.push_back(folder.Path("out.dat"));
        QTest::keyClick(&Box(window, "Text1"), Qt::Key_Return);
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
    Use([this](frminclinaison &window) {
        Click(window, "cmdouvrir");
        Type(window, "Text1", "5");
        platform.files_expected.emplace_back("");
        Click(window, "cmdok");
        EXPECT_EQ(Clears(), 0);
        platform.files_expected.push_back(folder.Path("nowhere/out.dat"));
        platform.Expect(BoxAnswer::ok);
        Click(window, "cmdok");
        EXPECT_EQ(platform.boxes.back().title, "Error Angle/OK");
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_EQ(Clears(), 1);
}

TEST_F(FrminclinaisonTest, CancelEscapeAndCloseLeaveTheWindow) {
    for (const int way : {0, 1, 2}) {
        const Left left = Use([way](frminclinaison &window) {
            if (way == 0) {
                Click(window, "cmdannuler");
            } else if (way == 1) {
                QTest::keyClick(&Box(window, "Text1"), Qt::Key_Escape);
            } else {
                window.close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
    }
    EXPECT_TRUE(view.asked.empty());
}

TEST_F(FrminclinaisonTest, TabGoesThroughTheControlsInTheirOrder) {
    Use([](frminclinaison &window) {
        ExpectTabs(window, {"cmdok", "cmdannuler", "cmdaide", "cmdouvrir", "Text1"});
    });
}

TEST_F(FrminclinaisonTest, HelpOpensItsPage) {
    Use([](frminclinaison &window) { Click(window, "cmdaide"); });
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
    InNextDialog([&came](QDialog &dialog) {
        came = true;
        EXPECT_EQ(dialog.objectName(), "frminclinaison");
        dialog.reject();
    });
    world.Action("mnu_outilInclinaison")->trigger();
    EXPECT_TRUE(came);
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
}

} // namespace
} // namespace loftwing
