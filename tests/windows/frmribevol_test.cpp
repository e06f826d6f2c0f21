#include "utilities/frmribevol.h"

#include "windows/rib_set_fixture.h"

#include <QElapsedTimer>
#include <QProgressDialog>

#include <gmock/gmock.h>

#include <cmath>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class FrmribevolTest : public RibSetTest<frmribevol> {
  protected:
    static void TypeAll(frmribevol &window, const char *count, const char *major,
                        const char *minor) {
        Type(window, "txtnervI", count);
        Type(window, "txtcorde(0)", major);
        Type(window, "txtcorde(1)", minor);
    }
    /// Lets a set be written; the milliseconds that it took.
    qint64 Compute(frmribevol &window) {
        platform.Expect(BoxAnswer::ok);
        QElapsedTimer timer;
        timer.start();
        Click(window, "cmdcalcul");
        return timer.elapsed();
    }
};

TEST_F(FrmribevolTest, ShowsItsWordsAndTheFolder) {
    Use([this](frmribevol &window) {
        EXPECT_EQ(S(window.windowTitle()), "Full set of ribs");
        EXPECT_EQ(S(Find<QGroupBox>(window, "Frame1(0)").title()), "Major chord");
        EXPECT_EQ(S(Find<QGroupBox>(window, "Frame1(1)").title()), "Minor chord");
        EXPECT_EQ(S(Find<QGroupBox>(window, "Frame3").title()), "Ribs");
        for (const char *end : {"(0)", "(1)"}) {
            const std::string index = end;
            EXPECT_EQ(Label(window, ("Label1" + index).c_str()), "Airfoil");
            EXPECT_EQ(Label(window, ("Label2" + index).c_str()), "Chord");
            EXPECT_EQ(Label(window, ("Label4" + index).c_str()), " mm");
            EXPECT_EQ(Tip(window, ("cmdouvrir" + index).c_str()), "Look for it on your disk");
        }
        EXPECT_EQ(Label(window, "Label3"), "Number of intermediate ribs");
        EXPECT_EQ(Label(window, "Lblsav"), "Folder of the rib sets");
        EXPECT_EQ(Text(window, "txtdefprofevol"), folder.Path("sets"));
        EXPECT_EQ(Word(window, "cmdcalcul"), "Compute");
        EXPECT_EQ(Tip(window, "cmdcalcul"), "Compute and save on disk");
        EXPECT_EQ(Word(window, "cmdfermer"), "Close");
        EXPECT_EQ(Word(window, "cmdaide"), "Help");
    });
}

TEST_F(FrmribevolTest, FieldsSwallowWhatIsNoNumber) {
    Use([](frmribevol &window) {
        TypeAll(window, "-a1/2.5%", "-a1/2.5%", "-a1/2.5%");
        EXPECT_EQ(Text(window, "txtnervI"), "125");
        EXPECT_EQ(Text(window, "txtcorde(0)"), "12.5");
        EXPECT_EQ(Text(window, "txtcorde(1)"), "12.5");
    });
    Inches();
    Use([](frmribevol &window) {
        TypeAll(window, "1/2.5", "8.1/2", "x8.1/2");
        EXPECT_EQ(Text(window, "txtnervI"), "125");
        EXPECT_EQ(Text(window, "txtcorde(0)"), "8.1/2");
        EXPECT_EQ(Text(window, "txtcorde(1)"), "8.1/2");
        EXPECT_EQ(Label(window, "Label4(1)"), " in");
    });
}

TEST_F(FrmribevolTest, RefusalsComeInOrderAndLeadToTheirFields) {
    Use([this](frmribevol &window) {
        const auto info = BoxIcon::information;
        const auto warning = BoxIcon::warning;
        Refused(window, "Please enter the number of intermediate ribs", info, "txtnervI");
        Type(window, "txtnervI", "91");
        Refused(window, "Too many intermediate ribs, at most 90 Ribs !", warning, "txtnervI");
        Type(window, "txtnervI", "90");
        Refused(window, "Please enter the major chord", info, "txtcorde(0)");
        Type(window, "txtcorde(0)", "1999.01");
        Refused(window, "The chord is too long, at most 1999 mm !", warning, "txtcorde(0)");
        Type(window, "txtcorde(0)", "998");
        Refused(window, "Please enter the minor chord", info, "txtcorde(1)");
        Type(window, "txtcorde(1)", "999.5");
        Refused(window, "The chord is too long, at most 1999 mm !", warning, "txtcorde(1)");
        Type(window, "txtcorde(1)", "999");
        Refused(window, "The major chord is smaller than the minor chord", warning, "txtcorde(0)");
        Type(window, "txtcorde(0)", "1999");
        Refused(window, "Please choose both airfoils", info, "");
        Pick(window, 0, Diamond("root", 0.1));
        Refused(window, "Please choose both airfoils", info, "");
    });
    EXPECT_TRUE(Files().empty());
}

TEST_F(FrmribevolTest, InInchesTheLimitIsThatOfTheLengthInMillimetres) {
    Inches();
    Use([this](frmribevol &window) {
        TypeAll(window, "1", "78.71", "1");
        Refused(window, "The chord is too long, at most 78 1/3 inches !", BoxIcon::warning,
                "txtcorde(0)");
        TypeAll(window, "1", "78.5", "39");
        Refused(window, "Please choose both airfoils", BoxIcon::information, "");
    });
}

TEST_F(FrmribevolTest, AChordThatCannotBeComputedIsToldAndTheWindowStays) {
    Inches();
    const Left left = Use([this](frmribevol &window) {
        TypeAll(window, "1", "1/0", "1");
        ExpectReport("Error # 11 ");
        Click(window, "cmdcalcul");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(Asked("affclear"), 0);
}

TEST_F(FrmribevolTest, ThePickerNamesTheEndAndACancelChangesNothing) {
    Use([this](frmribevol &window) {
        Pick(window, 0, Diamond("root", 0.1));
        EXPECT_EQ(view.asked.back(), "ChoisitProfil Airfoil of the major chord");
        EXPECT_EQ(Text(window, "txtprofil(0)"), "root");
        Pick(window, 1, Diamond("tip", 0.1));
        EXPECT_EQ(view.asked.back(), "ChoisitProfil Airfoil of the minor chord");
        EXPECT_EQ(Text(window, "txtprofil(1)"), "tip");
        view.picked = std::nullopt;
        Click(window, "cmdouvrir(1)");
        EXPECT_EQ(Text(window, "txtprofil(1)"), "tip");
    });
    EXPECT_EQ(programme.rib.NomProfil, "e205");
}

TEST_F(FrmribevolTest, WritesAllRibsAndThenTheSummaryAndStays) {
    const Left left = Use([this](frmribevol &window) {
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        platform.boxes_expected.push_back(
            {BoxAnswer::ok, [this, &window](const MessageBox &box) {
                 EXPECT_EQ(box.title, S(window.windowTitle()));
                 EXPECT_EQ(box.icon, BoxIcon::information);
                 EXPECT_THAT(box.text, StartsWith("Set of rib airfoils\n\rFolder : " +
                                                  folder.Path("sets") + "/\n"));
                 EXPECT_THAT(box.text, HasSubstr("root&tipR02.dat Rib 2 Chord :  150.00\n"));
                 EXPECT_THAT(box.text, HasSubstr("Summary : root&tip_200_100_3.txt"));
                 EXPECT_EQ(platform.pointer, Pointer::normal);
                 EXPECT_EQ(Files().size(), 3U); // the summary comes after the box
             }});
        QTest::keyClick(&Box(window, "txtcorde(1)"), Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_THAT(Files(), ElementsAre("root&tipR01.dat", "root&tipR02.dat", "root&tipR03.dat",
                                     "root&tip_200_100_3.txt"));
    EXPECT_EQ(folder.Bytes("sets/root&tipR02.dat"), "Rib 2 Chord :  150.00\r\n"
                                                    "1.0000000   0.0000000\r\n"
                                                    "0.5000000   0.0750000\r\n"
                                                    "0.0000000   0.0000000\r\n"
                                                    "0.5000000   -0.0750000\r\n"
                                                    "1.0000000   0.0000000\r\n");
    EXPECT_EQ(Asked("affclear"), 0);
}

TEST_F(FrmribevolTest, ASecondRunReplacesTheFilesWithoutAQuestion) {
    Use([this](frmribevol &window) {
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        platform.Expect(BoxAnswer::ok);
        Click(window, "cmdcalcul");
        Pick(window, 0, Diamond("root", 0.2));
        platform.Expect(BoxAnswer::ok);
        Click(window, "cmdcalcul");
    });
    EXPECT_EQ(Files().size(), 4U);
    EXPECT_THAT(folder.Bytes("sets/root&tipR01.dat"), HasSubstr("0.5000000  0.2000000\r\n"));
}

TEST_F(FrmribevolTest, NinetyRibsMakeNinetyTwoFilesAndAShortMessage) {
    Use([this](frmribevol &window) {
        PickBoth(window);
        TypeAll(window, "90", "200", "100");
        ExpectBox("Set of 92 rib airfoils\n\nSummary root&tip.txt");
        Click(window, "cmdcalcul");
    });
    EXPECT_EQ(Files().size(), 93U);
}

/// Notes what a progress display shows of itself.
class ProgressWatch : public QObject {
  public:
    ProgressWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Show) {
            if (const auto *progress = qobject_cast<QProgressDialog *>(watched)) {
                title = S(progress->windowTitle());
                maximum = progress->maximum();
                blocks_only_its_window = progress->windowModality() == Qt::WindowModal;
                ++shown;
            }
        }
        return false;
    }

    int shown = 0;
    std::string title;
    int maximum = 0;
    bool blocks_only_its_window = false;
};

/// An ellipse of 2 * `half` + 1 points.
ProfilChoisi Ellipse(const std::string &name, double height, int half) {
    ProfilChoisi chosen;
    chosen.NomProfil = name;
    for (int i = -half; i <= half; ++i) {
        const double x = std::abs(i) / static_cast<double>(half);
        chosen.ProfilX.Append(x);
        chosen.ProfilY.Append((i < 0 ? 2 : -2) * height * std::sqrt(x - x * x));
        ++chosen.NbPoints;
    }
    return chosen;
}

TEST_F(FrmribevolTest, ASetThatTakesLongShowsItsProgress) {
    const ProgressWatch watch;
    qint64 took = 0;
    Use([this, &took](frmribevol &window) {
        constexpr int kHalf = 16000;
        Pick(window, 0, Ellipse("root", 0.1, kHalf));
        Pick(window, 1, Ellipse("tip", 0.05, kHalf));
        TypeAll(window, "90", "200", "100");
        took = Compute(window);
        EXPECT_TRUE(window.isVisible());
        EXPECT_FALSE(window.findChild<QProgressDialog *>()); // gone with the last file
    });
    EXPECT_EQ(Files().size(), 93U);
    if (took < 700) {
        GTEST_SKIP() << "done in " << took << " ms";
    }
    EXPECT_EQ(watch.shown, 1);
    EXPECT_EQ(watch.title, "Full set of ribs");
    EXPECT_EQ(watch.maximum, 92);
    EXPECT_TRUE(watch.blocks_only_its_window);
}

TEST_F(FrmribevolTest, AQuickSetShowsNoProgress) {
    const ProgressWatch watch;
    qint64 took = 0;
    Use([this, &took](frmribevol &window) {
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        took = Compute(window);
    });
    if (took >= 500) {
        GTEST_SKIP() << "took " << took << " ms";
    }
    EXPECT_EQ(watch.shown, 0);
}

TEST_F(FrmribevolTest, StationsThatFindNoPairAreToldAndTheWindowStays) {
    const Left left = Use([this](frmribevol &window) {
        Pick(window, 0, Diamond("root", 0.1, 0.95));
        ProfilChoisi blunt = Diamond("tip", 0.05);
        blunt.ProfilX(1) = 0.9; // the station at 0.95 lies before its first point
        Pick(window, 1, blunt);
        TypeAll(window, "1", "200", "100");
        platform.boxes_expected.push_back({BoxAnswer::ok, [](const MessageBox &box) {
                                               EXPECT_THAT(box.text, StartsWith("Error # 9 in "));
                                               EXPECT_THAT(box.text, HasSubstr("root"));
                                               EXPECT_THAT(box.text, HasSubstr("tip"));
                                               EXPECT_THAT(box.text, HasSubstr("0.95"));
                                               EXPECT_EQ(box.title, "Error RibEvol/SaveProfil");
                                           }});
        Click(window, "cmdcalcul");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(Asked("affclear"), 0);
    EXPECT_TRUE(Files().empty());
}

TEST_F(FrmribevolTest, AFolderThatIsNotThereIsToldAndClosesTheWindow) {
    programme.settings.repertoires.RepProfilevol = folder.Path("nowhere");
    const Left left = Use([this](frmribevol &window) {
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        ExpectReport("Folder of the rib sets was not found.\n");
        Click(window, "cmdcalcul");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_EQ(Asked("affclear"), 1);
    EXPECT_EQ(Asked("mnu_affclear_Click"), 0);
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(FrmribevolTest, ASummaryThatCannotBeWrittenClosesTheWindowAndTheRibsStay) {
    // A folder stands where the summary should go.
    std::filesystem::create_directories(folder.Path("sets/root&tip_200_100_3.txt"));
    const Left left = Use([this](frmribevol &window) {
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        platform.Expect(BoxAnswer::ok);
        platform.boxes_expected.push_back(
            {BoxAnswer::ok, [](const MessageBox &box) {
                 EXPECT_THAT(box.text, StartsWith("Error # 75 in Loftwing\n"));
                 EXPECT_THAT(box.text, HasSubstr("root&tip_200_100_3.txt"));
             }});
        Click(window, "cmdcalcul");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_EQ(Asked("affclear"), 1);
    EXPECT_EQ(Files().size(), 4U);
}

TEST_F(FrmribevolTest, AnotherFolderHoldsAtOnceAndIsKept) {
    std::filesystem::create_directories(folder.Path("other"));
    Use([this](frmribevol &window) {
        platform.folders_expected.emplace_back("");
        Click(window, "cmdrechercheevol");
        EXPECT_EQ(Text(window, "txtdefprofevol"), folder.Path("sets"));
        EXPECT_TRUE(platform.store.empty());
        platform.folders_expected.push_back(folder.Path("other"));
        Click(window, "cmdrechercheevol");
        EXPECT_EQ(platform.folder_questions.back().title, "Choose a folder :");
        EXPECT_EQ(platform.folder_questions.back().folder, folder.Path("sets"));
        EXPECT_EQ(Text(window, "txtdefprofevol"), folder.Path("other"));
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        platform.Expect(BoxAnswer::ok);
        Click(window, "cmdcalcul");
    });
    EXPECT_TRUE(Files().empty());
    EXPECT_EQ(Files("other").size(), 4U);
    EXPECT_EQ(GetINIFile("Repertoires", "RepProfilevol", programme.paths.fichier),
              folder.Path("other"));
    EXPECT_EQ((platform.store.at({"Install", "RepEvol"})), folder.Path("other"));
}

TEST_F(FrmribevolTest, CloseEscapeAndTheCloseButtonClearAsTheCommandDoes) {
    for (const int way : {0, 1, 2}) {
        view.asked.clear();
        const Left left = Use([way](frmribevol &window) {
            if (way == 0) {
                Click(window, "cmdfermer");
            } else if (way == 1) {
                QTest::keyClick(&Box(window, "txtnervI"), Qt::Key_Escape);
            } else {
                window.close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
        EXPECT_EQ(view.asked, std::vector<std::string>{"mnu_affclear_Click"});
    }
}

TEST_F(FrmribevolTest, TabGoesThroughTheControlsInTheirOrder) {
    Use([](frmribevol &window) {
        EXPECT_EQ(S(window.focusWidget()->objectName()), "cmdouvrir(0)");
        ExpectTabs(window,
                   {"txtcorde(0)", "cmdouvrir(1)", "txtcorde(1)", "txtnervI", "cmdrechercheevol",
                    "cmdcalcul", "cmdfermer", "cmdaide", "cmdouvrir(0)"});
    });
}

TEST_F(FrmribevolTest, HelpOpensItsPage) {
    Use([](frmribevol &window) { Click(window, "cmdaide"); });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{61}));
}

TEST_F(FrmribevolTest, NothingIsCutInAnyLanguageUnitOrSize) {
    ExpectNothingCutAnywhere();
}

// The command.

class EvenSetCommand : public testing::Test {
  protected:
    EvenSetCommand() { world.Open(); }
    /// Whether the window came.
    bool Comes() {
        bool came = false;
        QTimer::singleShot(0, world.window.get(), [&came] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                came = dialog->objectName() == "frmribevol";
                dialog->reject();
            }
        });
        world.Action("mnu_outilevolut")->trigger();
        QApplication::processEvents();
        return came;
    }

    WindowWorld world;
};

TEST_F(EvenSetCommand, OpensAtOnceWithoutARib) {
    EXPECT_TRUE(Comes());
}

TEST_F(EvenSetCommand, AsksBeforeChangesOfTheRibAreLost) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.programme.rib.Modifie = true;
    world.platform.Expect(BoxAnswer::no);
    EXPECT_FALSE(Comes());
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
    EXPECT_EQ(world.platform.boxes.back().title, "Full set of ribs");
    world.platform.Expect(BoxAnswer::yes);
    EXPECT_TRUE(Comes());
    EXPECT_FALSE(world.programme.rib.ProfilCharge);
}

TEST_F(EvenSetCommand, ClearsARibWithoutChangesWithoutAQuestion) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.programme.rib.Modifie = false;
    EXPECT_TRUE(Comes());
    EXPECT_FALSE(world.programme.rib.ProfilCharge);
}

} // namespace
} // namespace loftwing
