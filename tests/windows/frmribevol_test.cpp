#include "utilities/frmribevol.h"

#include "windows/rib_set_fixture.h"

#include <QElapsedTimer>
#include <QProgressDialog>

#include <gmock/gmock.h>

#include <cmath>

namespace loftwing {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class FrmribevolTest : public RibSetTest<frmribevol> {
  protected:
    static void TypeAll(Seen &window, const char *count, const char *major, const char *minor) {
        window.Type("txtnervI", count);
        window.Type("txtcorde(0)", major);
        window.Type("txtcorde(1)", minor);
    }
    /// Lets a set be written; the milliseconds that it took.
    qint64 Compute(Seen &window) {
        platform.Expect(BoxAnswer::ok);
        QElapsedTimer timer;
        timer.start();
        window.Click("cmdcalcul");
        return timer.elapsed();
    }
};

TEST_F(FrmribevolTest, ShowsItsWordsAndTheFolder) {
    Use([this](Seen &window) {
        EXPECT_EQ(window.Title(), "Full set of ribs");
        EXPECT_EQ(window.Frame("Frame1(0)"), "Major chord");
        EXPECT_EQ(window.Frame("Frame1(1)"), "Minor chord");
        EXPECT_EQ(window.Frame("Frame3"), "Ribs");
        for (const char *end : {"(0)", "(1)"}) {
            const std::string index = end;
            EXPECT_EQ(window.Label("Label1" + index), "Airfoil");
            EXPECT_EQ(window.Label("Label2" + index), "Chord");
            EXPECT_EQ(window.Label("Label4" + index), " mm");
            EXPECT_EQ(window.Tip("cmdouvrir" + index), "Look for it on your disk");
        }
        EXPECT_EQ(window.Label("Label3"), "Number of intermediate ribs");
        EXPECT_EQ(window.Label("Lblsav"), "Folder of the rib sets");
        EXPECT_EQ(window.Text("txtdefprofevol"), folder.Path("sets"));
        EXPECT_EQ(window.Word("cmdcalcul"), "Compute");
        EXPECT_EQ(window.Tip("cmdcalcul"), "Compute and save on disk");
        EXPECT_EQ(window.Word("cmdfermer"), "Close");
        EXPECT_EQ(window.Word("cmdaide"), "Help");
    });
}

TEST_F(FrmribevolTest, FieldsSwallowWhatIsNoNumber) {
    Use([](Seen &window) {
        TypeAll(window, "-a1/2.5%", "-a1/2.5%", "-a1/2.5%");
        EXPECT_EQ(window.Text("txtnervI"), "125");
        EXPECT_EQ(window.Text("txtcorde(0)"), "12.5");
        EXPECT_EQ(window.Text("txtcorde(1)"), "12.5");
    });
    Inches();
    Use([](Seen &window) {
        TypeAll(window, "1/2.5", "8.1/2", "x8.1/2");
        EXPECT_EQ(window.Text("txtnervI"), "125");
        EXPECT_EQ(window.Text("txtcorde(0)"), "8.1/2");
        EXPECT_EQ(window.Text("txtcorde(1)"), "8.1/2");
        EXPECT_EQ(window.Label("Label4(1)"), " in");
    });
}

TEST_F(FrmribevolTest, RefusalsComeInOrderAndLeadToTheirFields) {
    Use([this](Seen &window) {
        const auto info = BoxIcon::information;
        const auto warning = BoxIcon::warning;
        Refused(window, "Please enter the number of intermediate ribs", info, "txtnervI");
        window.Type("txtnervI", "91");
        Refused(window, "Too many intermediate ribs, at most 90 Ribs !", warning, "txtnervI");
        window.Type("txtnervI", "90");
        Refused(window, "Please enter the major chord", info, "txtcorde(0)");
        window.Type("txtcorde(0)", "1999.01");
        Refused(window, "The chord is too long, at most 1999 mm !", warning, "txtcorde(0)");
        window.Type("txtcorde(0)", "998");
        Refused(window, "Please enter the minor chord", info, "txtcorde(1)");
        window.Type("txtcorde(1)", "999.5");
        Refused(window, "The chord is too long, at most 1999 mm !", warning, "txtcorde(1)");
        window.Type("txtcorde(1)", "999");
        Refused(window, "The major chord is smaller than the minor chord", warning, "txtcorde(0)");
        window.Type("txtcorde(0)", "1999");
        Refused(window, "Please choose both airfoils", info, "");
        Pick(window, 0, Diamond("root", 0.1));
        Refused(window, "Please choose both airfoils", info, "");
    });
    EXPECT_TRUE(Files().empty());
}

TEST_F(FrmribevolTest, InInchesTheLimitIsThatOfTheLengthInMillimetres) {
    Inches();
    Use([this](Seen &window) {
        TypeAll(window, "1", "78.71", "1");
        Refused(window, "The chord is too long, at most 78 1/3 inches !", BoxIcon::warning,
                "txtcorde(0)");
        TypeAll(window, "1", "78.5", "39");
        Refused(window, "Please choose both airfoils", BoxIcon::information, "");
    });
}

TEST_F(FrmribevolTest, AChordThatCannotBeComputedIsToldAndTheWindowStays) {
    Inches();
    const Left left = Use([this](Seen &window) {
        TypeAll(window, "1", "1/0", "1");
        ExpectReport("Error # 11 ");
        window.Click("cmdcalcul");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(Asked("affclear"), 0);
}

TEST_F(FrmribevolTest, ThePickerNamesTheEndAndACancelChangesNothing) {
    Use([this](Seen &window) {
        Pick(window, 0, Diamond("root", 0.1));
        EXPECT_EQ(view.asked.back(), "ChoisitProfil Airfoil of the major chord");
        EXPECT_EQ(window.Text("txtprofil(0)"), "root");
        Pick(window, 1, Diamond("tip", 0.1));
        EXPECT_EQ(view.asked.back(), "ChoisitProfil Airfoil of the minor chord");
        EXPECT_EQ(window.Text("txtprofil(1)"), "tip");
        view.picked = std::nullopt;
        window.Click("cmdouvrir(1)");
        EXPECT_EQ(window.Text("txtprofil(1)"), "tip");
    });
    EXPECT_EQ(programme.rib.NomProfil, "e205");
}

TEST_F(FrmribevolTest, WritesAllRibsAndThenTheSummaryAndStays) {
    const Left left = Use([this](Seen &window) {
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        platform.Expect(
            BoxAnswer::ok,
            {.text =
                 AllOf(StartsWith("Set of rib airfoils\n\rFolder : " + folder.Path("sets") + "/\n"),
                       HasSubstr("root&tipR02.dat Rib 2 Chord :  150.00\n"),
                       HasSubstr("Summary : root&tip_200_100_3.txt")),
             .title = window.Title(),
             .icon = BoxIcon::information,
             .meanwhile = [this] {
                 EXPECT_EQ(platform.pointer, Pointer::normal);
                 EXPECT_EQ(Files().size(), 3U); // the summary comes after the box
             }});
        window.Key("txtcorde(1)", Qt::Key_Return);
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
    Use([this](Seen &window) {
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        platform.Expect(BoxAnswer::ok);
        window.Click("cmdcalcul");
        Pick(window, 0, Diamond("root", 0.2));
        platform.Expect(BoxAnswer::ok);
        window.Click("cmdcalcul");
    });
    EXPECT_EQ(Files().size(), 4U);
    EXPECT_THAT(folder.Bytes("sets/root&tipR01.dat"), HasSubstr("0.5000000  0.2000000\r\n"));
}

TEST_F(FrmribevolTest, FilesOfAnotherSetAreReplacedOnlyAfterAQuestion) {
    folder.File("sets/root&tipR02.dat", "another rib");
    folder.File("sets/root&tipR04.dat", "not of this set's names");
    const BoxLook question = {.text = "These files of another set are in the folder:\n" +
                                      folder.Path("sets") +
                                      "\n\nroot&tipR02.dat\n\nDo you want to replace them?",
                              .title = "Full set of ribs",
                              .buttons = BoxButtons::yes_no};
    const Left left = Use([&](Seen &window) {
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        platform.Expect(BoxAnswer::no, question);
        window.Click("cmdcalcul");
        EXPECT_EQ(folder.Bytes("sets/root&tipR02.dat"), "another rib");
        EXPECT_EQ(Files().size(), 2U) << "nothing is written after No";
        EXPECT_EQ(platform.boxes.back().fallback, BoxAnswer::no);
        platform.Expect(BoxAnswer::yes, question);
        platform.Expect(BoxAnswer::ok);
        window.Click("cmdcalcul");
        EXPECT_THAT(folder.Bytes("sets/root&tipR02.dat"), StartsWith("Rib 2 Chord"));
        // What this window wrote it may write again.
        platform.Expect(BoxAnswer::ok);
        window.Click("cmdcalcul");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(folder.Bytes("sets/root&tipR04.dat"), "not of this set's names");
    // Another window knows nothing of it.
    Use([&](Seen &window) {
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        platform.Expect(BoxAnswer::no, {.text = HasSubstr("root&tip_200_100_3.txt\n")});
        window.Click("cmdcalcul");
    });
}

TEST_F(FrmribevolTest, NinetyRibsMakeNinetyTwoFilesAndAShortMessage) {
    Use([this](Seen &window) {
        PickBoth(window);
        TypeAll(window, "90", "200", "100");
        platform.Expect(BoxAnswer::ok, {.text = "Set of 92 rib airfoils\n\nSummary root&tip.txt"});
        window.Click("cmdcalcul");
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
    Use([this, &took](Seen &window) {
        constexpr int kHalf = 16000;
        Pick(window, 0, Ellipse("root", 0.1, kHalf));
        Pick(window, 1, Ellipse("tip", 0.05, kHalf));
        TypeAll(window, "90", "200", "100");
        took = Compute(window);
        EXPECT_TRUE(window.IsOpen());
        EXPECT_FALSE(window.Window().findChild<QProgressDialog *>()); // gone with the last file
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
    Use([this, &took](Seen &window) {
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
    const Left left = Use([this](Seen &window) {
        Pick(window, 0, Diamond("root", 0.1, 0.95));
        ProfilChoisi blunt = Diamond("tip", 0.05);
        blunt.ProfilX(1) = 0.9; // the station at 0.95 lies before its first point
        Pick(window, 1, blunt);
        TypeAll(window, "1", "200", "100");
        platform.Expect(BoxAnswer::ok,
                        {.text = AllOf(StartsWith("Error # 9 in "), HasSubstr("root"),
                                       HasSubstr("tip"), HasSubstr("0.95")),
                         .title = "Error RibEvol/SaveProfil"});
        window.Click("cmdcalcul");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(Asked("affclear"), 0);
    EXPECT_TRUE(Files().empty());
}

TEST_F(FrmribevolTest, AFolderThatIsNotThereIsToldAndClosesTheWindow) {
    programme.settings.repertoires.RepProfilevol = folder.Path("nowhere");
    const Left left = Use([this](Seen &window) {
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        ExpectReport("Folder of the rib sets was not found.\n");
        window.Click("cmdcalcul");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_EQ(Asked("affclear"), 1);
    EXPECT_EQ(Asked("mnu_affclear_Click"), 0);
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(FrmribevolTest, ASummaryThatCannotBeWrittenClosesTheWindowAndTheRibsStay) {
    // A folder stands where the summary should go.
    std::filesystem::create_directories(folder.Path("sets/root&tip_200_100_3.txt"));
    const Left left = Use([this](Seen &window) {
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        platform.Expect(BoxAnswer::ok);
        platform.Expect(BoxAnswer::ok, {.text = AllOf(StartsWith("Error # 75 in Loftwing\n"),
                                                      HasSubstr("root&tip_200_100_3.txt"))});
        window.Click("cmdcalcul");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_EQ(Asked("affclear"), 1);
    EXPECT_EQ(Files().size(), 4U);
}

TEST_F(FrmribevolTest, AnotherFolderHoldsAtOnceAndIsKept) {
    std::filesystem::create_directories(folder.Path("other"));
    Use([this](Seen &window) {
        platform.folders_expected.emplace_back("");
        window.Click("cmdrechercheevol");
        EXPECT_EQ(window.Text("txtdefprofevol"), folder.Path("sets"));
        EXPECT_TRUE(platform.store.empty());
        platform.folders_expected.push_back(folder.Path("other"));
        window.Click("cmdrechercheevol");
        EXPECT_EQ(platform.folder_questions.back().title, "Choose a folder :");
        EXPECT_EQ(platform.folder_questions.back().folder, folder.Path("sets"));
        EXPECT_EQ(window.Text("txtdefprofevol"), folder.Path("other"));
        PickBoth(window);
        TypeAll(window, "1", "200", "100");
        platform.Expect(BoxAnswer::ok);
        window.Click("cmdcalcul");
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
        const Left left = Use([way](Seen &window) {
            if (way == 0) {
                window.Click("cmdfermer");
            } else if (way == 1) {
                window.Key("txtnervI", Qt::Key_Escape);
            } else {
                window.Close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
        EXPECT_EQ(view.asked, std::vector<std::string>{"mnu_affclear_Click"});
    }
}

TEST_F(FrmribevolTest, TabGoesThroughTheControlsInTheirOrder) {
    Use([](Seen &window) {
        EXPECT_EQ(window.Focus(), "cmdouvrir(0)");
        window.ExpectTabs({"txtcorde(0)", "cmdouvrir(1)", "txtcorde(1)", "txtnervI",
                           "cmdrechercheevol", "cmdcalcul", "cmdfermer", "cmdaide",
                           "cmdouvrir(0)"});
    });
}

TEST_F(FrmribevolTest, HelpOpensItsPage) {
    Use([](Seen &window) { window.Click("cmdaide"); });
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
        return BringsDialog([this] { world.Action("mnu_outilevolut")->trigger(); },
                            [](Seen &dialog) { EXPECT_EQ(dialog.Name(), "frmribevol"); });
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
