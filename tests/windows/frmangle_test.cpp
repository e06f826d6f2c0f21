#include "utilities/frmangle.h"

#include "base/whole_file.h"
#include "support/qt_window_world.h"
#include "windows/addon_fixture.h"

#include <filesystem>

namespace loftwing {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

class FrmangleTest : public AddonTest<frmangle> {
  protected:
    FrmangleTest() {
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

    void ExpectInformation(Seen &window, const std::string &text) {
        platform.Expect(BoxAnswer::ok,
                        {.text = text, .title = window.Title(), .icon = BoxIcon::information});
    }
    static void Refused(Seen &window, const char *field) {
        window.Click("cmdok");
        EXPECT_TRUE(window.FocusedAndSelected(field)) << field;
    }
    int Clears() const { return Asked("affclear"); }
};

TEST_F(FrmangleTest, ShowsItsWordsAndWaitsForATemplateChord) {
    Use([](Seen &window) {
        EXPECT_EQ(window.Title(), "Rib Oblique  mm");
        EXPECT_EQ(window.Word("Option1(0)"), "Internal Chord computing");
        EXPECT_EQ(window.Word("Option1(1)"), "Template Chord computing");
        EXPECT_EQ(window.Label("Label1(0)"), "Template Chord");
        EXPECT_EQ(window.Label("Label1(1)"), "Internal Chord");
        EXPECT_EQ(window.Label("Label1(2)"), "Angle");
        EXPECT_EQ(window.Label("Label1(3)"), "Airfoil");
        EXPECT_EQ(window.Label("Label2(0)"), "L.E.");
        EXPECT_EQ(window.Label("Label2(1)"), "T.E.");
        EXPECT_EQ(window.Word("cmdok"), "Compute");
        EXPECT_EQ(window.Tip("cmdok"), "Compute and save on disk");
        EXPECT_EQ(window.Tip("cmdouvrir"), "Choose the airfoil of the rib");
        EXPECT_EQ(window.Tip("Option1(0)"),
                  "The template chord is given, the internal chord is computed");
        EXPECT_EQ(window.Text("Text1(2)"), "89.90");
        EXPECT_TRUE(window.Chosen("Option1(0)"));
        EXPECT_TRUE(window.FocusedAndSelected("Text1(0)"));
        EXPECT_FALSE(window.Enabled("Text1(1)"));
        EXPECT_EQ(window.Text("txtprofil"), "");
    });
}

TEST_F(FrmangleTest, SpeaksFrenchAndInches) {
    Language("French");
    Inches();
    Use([](Seen &window) {
        EXPECT_EQ(window.Title(), "Nervure oblique  in");
        EXPECT_EQ(window.Label("Label1(0)"), "Corde du gabarit");
        for (const char *name : {"Text1(0)", "Text1(2)"}) {
            window.Type(name, "-a1.1/2%");
            EXPECT_EQ(window.Text(name), "1.1/2") << name;
        }
    });
}

TEST_F(FrmangleTest, FieldsSwallowWhatIsNoLength) {
    Use([](Seen &window) {
        for (const char *name : {"Text1(0)", "Text1(2)"}) {
            window.Type(name, "-a1/2.5%");
            EXPECT_EQ(window.Text(name), "12.5") << name;
        }
    });
}

TEST_F(FrmangleTest, AnOptionClearsTheFieldThatItComputes) {
    Use([](Seen &window) {
        window.Type("Text1(0)", "150");
        window.Click("Option1(1)");
        EXPECT_EQ(window.Text("Text1(0)"), "");
        EXPECT_FALSE(window.Enabled("Text1(0)"));
        EXPECT_TRUE(window.Enabled("Text1(1)"));
        EXPECT_TRUE(window.Focused("Text1(1)"));
        window.Type("Text1(1)", "120");
        window.Click("Option1(0)");
        EXPECT_EQ(window.Text("Text1(1)"), "");
        EXPECT_FALSE(window.Enabled("Text1(1)"));
        EXPECT_TRUE(window.Focused("Text1(0)"));
    });
}

TEST_F(FrmangleTest, RefusalsLeadToTheirFields) {
    Use([this](Seen &window) {
        ExpectInformation(window, "Please enter a chord");
        Refused(window, "Text1(0)");
        window.Type("Text1(0)", "100");
        window.Type("Text1(2)", "0");
        ExpectInformation(window, "Please enter the angle");
        Refused(window, "Text1(2)");
        window.Type("Text1(2)", "90");
        ExpectInformation(window, "The angle must not be more than 89° !");
        Refused(window, "Text1(2)");
        window.Click("Option1(1)");
        ExpectInformation(window, "Please enter a chord");
        Refused(window, "Text1(1)");
        window.Type("Text1(1)", "100");
        window.Type("Text1(2)", "91");
        ExpectInformation(window, "The angle must not be more than 90° !");
        Refused(window, "Text1(2)");
    });
    EXPECT_TRUE(platform.file_questions.empty());
}

TEST_F(FrmangleTest, WithoutAnAirfoilTheChordIsComputedAllTheSame) {
    Use([this](Seen &window) {
        window.Type("Text1(0)", "200");
        window.Type("Text1(2)", "30");
        platform.Expect(BoxAnswer::ok, {.text = "Please choose an airfoil", .meanwhile = [&window] {
                                            EXPECT_EQ(window.Text("Text1(1)"), " 100.");
                                        }});
        window.Click("cmdok");
        EXPECT_TRUE(window.IsOpen());
        // The computed field is overwritten at each run.
        window.Type("Text1(0)", "300");
        platform.Expect(BoxAnswer::ok);
        window.Click("cmdok");
        EXPECT_EQ(window.Text("Text1(1)"), " 150.");
    });
    EXPECT_TRUE(platform.file_questions.empty());
}

TEST_F(FrmangleTest, ThePickerHasTheWindowsTitleAndACancelChangesNothing) {
    Use([this](Seen &window) {
        window.Click("cmdouvrir");
        EXPECT_EQ(view.asked.back(), "ChoisitProfil Rib Oblique");
        EXPECT_EQ(window.Text("txtprofil"), "naca");
        view.picked = std::nullopt;
        window.Click("cmdouvrir");
        EXPECT_EQ(window.Text("txtprofil"), "naca");
    });
    EXPECT_EQ(programme.rib.NomProfil, "e205");
}

TEST_F(FrmangleTest, WritesTheAirfoilWhereTheUserSaysAndStays) {
    const Left left = Use([this](Seen &window) {
        window.Click("cmdouvrir");
        window.Type("Text1(0)", "200");
        window.Type("Text1(2)", "30");
        platform.files_expected.push_back(folder.Path("out.dat"));
        window.Key("Text1(2)", Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::open);
    const FileQuestion &question = platform.file_questions.at(0);
    EXPECT_EQ(question.title, "Save the airfoil of the oblique rib");
    EXPECT_EQ(question.name, "naca_Internal Chord 100.00mm_Angle  30.dat");
    EXPECT_EQ(question.folder, folder.Path());
    EXPECT_EQ(question.filter_text, "Airfoil files (*.dat)");
    EXPECT_EQ(question.default_extension, "dat");
    EXPECT_EQ(folder.Bytes("out.dat"), "Rib Chord :  100.00mm Angle  30.00°\r\n"
                                       "1.00000000  0.00000000\r\n"
                                       "0.00000000  0.20000000\r\n"
                                       "1.00000000  0.00000000\r\n");
    EXPECT_EQ(Clears(), 0);
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(FrmangleTest, ACancelledChooserIsSilent) {
    Use([this](Seen &window) {
        window.Click("cmdouvrir");
        window.Type("Text1(0)", "200");
        platform.files_expected.emplace_back("");
        window.Click("cmdok");
        EXPECT_TRUE(window.IsOpen());
    });
    EXPECT_EQ(Clears(), 0);
    EXPECT_EQ(folder.Entries(), 0);
}

TEST_F(FrmangleTest, AFileThatCannotBeWrittenIsToldAndClearsTheRib) {
    Use([this](Seen &window) {
        window.Click("cmdouvrir");
        window.Type("Text1(0)", "200");
        platform.files_expected.push_back(folder.Path("nowhere/out.dat"));
        platform.Expect(BoxAnswer::ok,
                        {.text = AllOf(StartsWith("Error # 7"), HasSubstr(" From  Loftwing")),
                         .title = "Error Angle/OK"});
        window.Click("cmdok");
        EXPECT_TRUE(window.IsOpen());
    });
    EXPECT_EQ(Clears(), 1);
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(FrmangleTest, AChordThatCannotBeComputedIsToldAndLeavesTheRib) {
    Inches();
    Use([this](Seen &window) {
        window.Click("cmdouvrir");
        window.Type("Text1(0)", "1/0");
        platform.Expect(BoxAnswer::ok,
                        {.text = StartsWith("Error # 11 "), .title = "Error Angle/OK"});
        window.Click("cmdok");
        EXPECT_TRUE(window.IsOpen());
    });
    EXPECT_TRUE(platform.file_questions.empty());
    EXPECT_EQ(Clears(), 0);
}

TEST_F(FrmangleTest, CancelEscapeAndCloseLeaveTheWindow) {
    for (const int way : {0, 1, 2}) {
        const Left left = Use([way](Seen &window) {
            if (way == 0) {
                window.Click("cmdannuler");
            } else if (way == 1) {
                window.Key("Text1(0)", Qt::Key_Escape);
            } else {
                window.Close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
    }
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_TRUE(view.asked.empty());
}

TEST_F(FrmangleTest, TabGoesThroughTheControlsInTheirOrder) {
    Use([](Seen &window) {
        window.ExpectTabs(
            {"Text1(2)", "cmdouvrir", "cmdok", "cmdannuler", "cmdaide", "Option1(0)", "Text1(0)"});
    });
}

TEST_F(FrmangleTest, HelpOpensItsPage) {
    Use([](Seen &window) {
        window.Click("cmdaide");
        window.Key("Text1(0)", Qt::Key_F1);
    });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{62, 62}));
}

TEST_F(FrmangleTest, NothingIsCutInAnyLanguageUnitOrSize) {
    ExpectNothingCutAnywhere();
}

// The command.

TEST(ObliqueCommand, OpensItsWindowAtOnceAndLeavesTheRib) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    bool came = false;
    InNextDialog([&came](Seen &dialog) {
        came = true;
        EXPECT_EQ(dialog.Name(), "frmangle");
        dialog.Key(Qt::Key_Escape);
    });
    world.Action("mnu_outilAngle")->trigger();
    EXPECT_TRUE(came);
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
}

TEST(ObliqueCommand, AWarningOfTheSeparatorCanStopIt) {
    WindowWorld world;
    world.Open();
    world.platform.decimal_separator = ',';
    world.platform.Expect(BoxAnswer::cancel);
    world.Action("mnu_outilAngle")->trigger();
    EXPECT_NE(world.platform.boxes.back().text.find("Command : Rib oblique\n"), std::string::npos);
}

} // namespace
} // namespace loftwing
