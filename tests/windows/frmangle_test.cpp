#include "utilities/frmangle.h"

#include "base/whole_file.h"
#include "support/qt_window_world.h"
#include "support/temp_folder.h"
#include "windows/addon_fixture.h"

#include <filesystem>

namespace loftwing {
namespace {

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

    void ExpectInformation(frmangle &window, const std::string &text) {
        const std::string title = S(window.windowTitle());
        platform.boxes_expected.push_back({BoxAnswer::ok, [text, title](const MessageBox &box) {
                                               EXPECT_EQ(box.text, text);
                                               EXPECT_EQ(box.title, title);
                                               EXPECT_EQ(box.icon, BoxIcon::information);
                                           }});
    }
    static void Refused(frmangle &window, const char *field) {
        Click(window, "cmdok");
        EXPECT_TRUE(FocusedAndSelected(Box(window, field))) << field;
    }
    int Clears() const {
        return static_cast<int>(std::count(view.asked.begin(), view.asked.end(), "affclear"));
    }

    TempFolder folder;
};

TEST_F(FrmangleTest, ShowsItsWordsAndWaitsForATemplateChord) {
    Use([](frmangle &window) {
        EXPECT_EQ(S(window.windowTitle()), "Rib Oblique  mm");
        EXPECT_EQ(Word(window, "Option1(0)"), "Internal Chord computing");
        EXPECT_EQ(Word(window, "Option1(1)"), "Template Chord computing");
        EXPECT_EQ(Label(window, "Label1(0)"), "Template Chord");
        EXPECT_EQ(Label(window, "Label1(1)"), "Internal Chord");
        EXPECT_EQ(Label(window, "Label1(2)"), "Angle");
        EXPECT_EQ(Label(window, "Label1(3)"), "Airfoil");
        EXPECT_EQ(Label(window, "Label2(0)"), "L.E.");
        EXPECT_EQ(Label(window, "Label2(1)"), "T.E.");
        EXPECT_EQ(Word(window, "cmdok"), "Compute");
        EXPECT_EQ(Tip(window, "cmdok"), "Compute and save on disk");
        EXPECT_EQ(Tip(window, "cmdouvrir"), "Choose the airfoil of the rib");
        EXPECT_EQ(Tip(window, "Option1(0)"),
                  "The template chord is given, the internal chord is computed");
        EXPECT_EQ(Text(window, "Text1(2)"), "89.90");
        EXPECT_TRUE(Chosen(window, "Option1(0)"));
        EXPECT_TRUE(FocusedAndSelected(Box(window, "Text1(0)")));
        EXPECT_FALSE(Box(window, "Text1(1)").isEnabled());
        EXPECT_EQ(Text(window, "txtprofil"), "");
    });
}

TEST_F(FrmangleTest, SpeaksFrenchAndInches) {
    Language("French");
    Inches();
    Use([](frmangle &window) {
        EXPECT_EQ(S(window.windowTitle()), "Nervure oblique  in");
        EXPECT_EQ(Label(window, "Label1(0)"), "Corde du gabarit");
        for (const char *name : {"Text1(0)", "Text1(2)"}) {
            Type(window, name, "-a1.1/2%");
            EXPECT_EQ(Text(window, name), "1.1/2") << name;
        }
    });
}

TEST_F(FrmangleTest, FieldsSwallowWhatIsNoLength) {
    Use([](frmangle &window) {
        for (const char *name : {"Text1(0)", "Text1(2)"}) {
            Type(window, name, "-a1/2.5%");
            EXPECT_EQ(Text(window, name), "12.5") << name;
        }
    });
}

TEST_F(FrmangleTest, AnOptionClearsTheFieldThatItComputes) {
    Use([](frmangle &window) {
        Type(window, "Text1(0)", "150");
        Click(window, "Option1(1)");
        EXPECT_EQ(Text(window, "Text1(0)"), "");
        EXPECT_FALSE(Box(window, "Text1(0)").isEnabled());
        EXPECT_TRUE(Box(window, "Text1(1)").isEnabled());
        EXPECT_TRUE(Box(window, "Text1(1)").hasFocus());
        Type(window, "Text1(1)", "120");
        Click(window, "Option1(0)");
        EXPECT_EQ(Text(window, "Text1(1)"), "");
        EXPECT_FALSE(Box(window, "Text1(1)").isEnabled());
        EXPECT_TRUE(Box(window, "Text1(0)").hasFocus());
    });
}

TEST_F(FrmangleTest, RefusalsLeadToTheirFields) {
    Use([this](frmangle &window) {
        ExpectInformation(window, "Please enter a chord");
        Refused(window, "Text1(0)");
        Type(window, "Text1(0)", "100");
        Type(window, "Text1(2)", "0");
        ExpectInformation(window, "Please enter the angle");
        Refused(window, "Text1(2)");
        Type(window, "Text1(2)", "90");
        ExpectInformation(window, "The angle must not be more than 89° !");
        Refused(window, "Text1(2)");
        Click(window, "Option1(1)");
        ExpectInformation(window, "Please enter a chord");
        Refused(window, "Text1(1)");
        Type(window, "Text1(1)", "100");
        Type(window, "Text1(2)", "91");
        ExpectInformation(window, "The angle must not be more than 90° !");
        Refused(window, "Text1(2)");
    });
    EXPECT_TRUE(platform.file_questions.empty());
}

TEST_F(FrmangleTest, WithoutAnAirfoilTheChordIsComputedAllTheSame) {
    Use([this](frmangle &window) {
        Type(window, "Text1(0)", "200");
        Type(window, "Text1(2)", "30");
        platform.boxes_expected.push_back({BoxAnswer::ok, [&window](const MessageBox &box) {
                                               EXPECT_EQ(box.text, "Please choose an airfoil");
                                               EXPECT_EQ(Text(window, "Text1(1)"), " 100.");
                                           }});
        Click(window, "cmdok");
        EXPECT_TRUE(window.isVisible());
        // The computed field is overwritten at each run.
        Type(window, "Text1(0)", "300");
        platform.Expect(BoxAnswer::ok);
        Click(window, "cmdok");
        EXPECT_EQ(Text(window, "Text1(1)"), " 150.");
    });
    EXPECT_TRUE(platform.file_questions.empty());
}

TEST_F(FrmangleTest, ThePickerHasTheWindowsTitleAndACancelChangesNothing) {
    Use([this](frmangle &window) {
        Click(window, "cmdouvrir");
        EXPECT_EQ(view.asked.back(), "ChoisitProfil Rib Oblique");
        EXPECT_EQ(Text(window, "txtprofil"), "naca");
        view.picked = std::nullopt;
        Click(window, "cmdouvrir");
        EXPECT_EQ(Text(window, "txtprofil"), "naca");
    });
    EXPECT_EQ(programme.rib.NomProfil, "e205");
}

TEST_F(FrmangleTest, WritesTheAirfoilWhereTheUserSaysAndStays) {
    const Left left = Use([this](frmangle &window) {
        Click(window, "cmdouvrir");
        Type(window, "Text1(0)", "200");
        Type(window, "Text1(2)", "30");
        platform.files_expected.push_back(folder.Path("out.dat"));
        QTest::keyClick(&Box(window, "Text1(2)"), Qt::Key_Return);
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
    Use([this](frmangle &window) {
        Click(window, "cmdouvrir");
        Type(window, "Text1(0)", "200");
        platform.files_expected.emplace_back("");
        Click(window, "cmdok");
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_EQ(Clears(), 0);
    EXPECT_EQ(folder.Entries(), 0);
}

TEST_F(FrmangleTest, AFileThatCannotBeWrittenIsToldAndClearsTheRib) {
    Use([this](frmangle &window) {
        Click(window, "cmdouvrir");
        Type(window, "Text1(0)", "200");
        platform.files_expected.push_back(folder.Path("nowhere/out.dat"));
        platform.boxes_expected.push_back({BoxAnswer::ok, [](const MessageBox &box) {
                                               EXPECT_EQ(box.title, "Error Angle/OK");
                                               EXPECT_TRUE(box.text.starts_with("Error # 7"));
                                               EXPECT_NE(box.text.find(" From  Loftwing"),
                                                         std::string::npos);
                                           }});
        Click(window, "cmdok");
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_EQ(Clears(), 1);
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(FrmangleTest, AChordThatCannotBeComputedIsToldAndLeavesTheRib) {
    Inches();
    Use([this](frmangle &window) {
        Click(window, "cmdouvrir");
        Type(window, "Text1(0)", "1/0");
        platform.boxes_expected.push_back({BoxAnswer::ok, [](const MessageBox &box) {
                                               EXPECT_EQ(box.title, "Error Angle/OK");
                                               EXPECT_TRUE(box.text.starts_with("Error # 11 "));
                                           }});
        Click(window, "cmdok");
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_TRUE(platform.file_questions.empty());
    EXPECT_EQ(Clears(), 0);
}

TEST_F(FrmangleTest, CancelEscapeAndCloseLeaveTheWindow) {
    for (const int way : {0, 1, 2}) {
        const Left left = Use([way](frmangle &window) {
            if (way == 0) {
                Click(window, "cmdannuler");
            } else if (way == 1) {
                QTest::keyClick(&Box(window, "Text1(0)"), Qt::Key_Escape);
            } else {
                window.close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
    }
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_TRUE(view.asked.empty());
}

TEST_F(FrmangleTest, TabGoesThroughTheControlsInTheirOrder) {
    Use([](frmangle &window) {
        ExpectTabs(window, {"Text1(2)", "cmdouvrir", "cmdok", "cmdannuler", "cmdaide", "Option1(0)",
                            "Text1(0)"});
    });
}

TEST_F(FrmangleTest, HelpOpensItsPage) {
    Use([](frmangle &window) {
        Click(window, "cmdaide");
        QTest::keyClick(&Box(window, "Text1(0)"), Qt::Key_F1);
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
    InNextDialog([&came](QDialog &dialog) {
        came = true;
        EXPECT_EQ(dialog.objectName(), "frmangle");
        dialog.reject();
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
