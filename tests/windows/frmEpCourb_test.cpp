#include "utilities/frmEpCourb.h"

#include "support/qt_nothing_cut.h"
#include "windows/views_fixture.h"

#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

using testing::AllOf;
using testing::HasSubstr;

class FrmEpCourbTest : public Views {
  protected:
    /// Opens the dialog on naca2412 and acts in it.
    void Use(const User &user) {
        Run("mnu_outilEpCourb", {PickSample("naca2412.dat"), [&user](Seen &dialog) {
                                     ASSERT_EQ(dialog.Name(), "frmEpCourb");
                                     user(dialog);
                                 }});
    }
    static void Values(Seen &dialog, const char *thickness, const char *camber) {
        dialog.Type("txtEpR", thickness);
        dialog.Type("txtCourbure", camber);
    }
    void Saves(const std::string &path) { world.platform.files_expected.push_back(path); }
    void ExpectWarning(LngKey key) {
        world.platform.Expect(BoxAnswer::ok, {.text = world.programme.Text(key),
                                              .title = "Modify Airfoil Thickness/Camber naca2412",
                                              .icon = BoxIcon::warning});
    }
};

TEST_F(FrmEpCourbTest, ShowsTheAirfoilAndItsView) {
    Use([this](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Modify Airfoil Thickness/Camber naca2412");
        EXPECT_EQ(dialog.Text("txtEpROr"), "12.00");
        EXPECT_EQ(dialog.Text("txtCourbureOr"), "2.00");
        EXPECT_EQ(dialog.Text("txtEpR"), "0.00");
        EXPECT_EQ(dialog.Text("txtCourbure"), "2.00");
        EXPECT_EQ(dialog.Label("Label5"), "");
        EXPECT_EQ(dialog.Label("Label3(0)"), "Original Airfoil");
        EXPECT_EQ(dialog.Label("Label3(1)"), "New Airfoil");
        EXPECT_TRUE(dialog.Find<QLineEdit>("txtEpROr").isReadOnly());
        EXPECT_EQ(dialog.Focus(), "txtEpR");
        EXPECT_TRUE(dialog.Find<QLineEdit>("txtEpR").hasSelectedText());
        EXPECT_FALSE(Rib().ModeEpCourb);
        EXPECT_EQ(world.Panel(2), "Airfoil : naca2412 + naca2412 thickness : 0% camber : 0% "
                                  "Chord : 200 mm");
    });
}

TEST_F(FrmEpCourbTest, ApplyShowsTheNewSectionOverTheOldOne) {
    Use([this](Seen &dialog) {
        Values(dialog, "a9/", "3.5-");
        dialog.Click("CmdApply");
        EXPECT_EQ(dialog.Text("txtEpR"), "9.00");
        EXPECT_EQ(dialog.Text("txtCourbure"), "3.50");
        EXPECT_EQ(dialog.Label("Label5"), " 18. mm");
        EXPECT_TRUE(Rib().ModeEpCourb);
        EXPECT_EQ(world.Panel(2), "Airfoil : naca2412 + naca2412 thickness : 9% camber : 3.5% "
                                  "Chord : 200 mm");
        EXPECT_THAT(TextsOf(Drawing()->Operations()),
                    testing::ElementsAre("Airfoil : naca2412     ",
                                         "naca2412 thickness : 9% camber : 3.5% "));
        EXPECT_EQ(SegmentsOf(Drawing()->Operations()).size(),
                  1U + 800U + static_cast<std::size_t>(Rib().NbContour - 1));
        const Recording *drawing = Drawing();
        world.Resize(QSize(700, 400));
        EXPECT_NE(Drawing(), drawing);
        EXPECT_THAT(world.Panel(2), HasSubstr("thickness : 9%"));
    });
}

TEST_F(FrmEpCourbTest, TheRibsFeaturesGoWithTheNewAirfoil) {
    OpenRib();
    Rib().NbRep = 5;
    Rib().TypeGabarit = kGabaritTalon;
    Use([this](Seen &) {
        EXPECT_EQ(Rib().NbRep, 0);
        EXPECT_EQ(Rib().TypeGabarit, kSansGabarit);
    });
}

TEST_F(FrmEpCourbTest, SavesUnderTheProposedName) {
    Saves(world.folder.Path("sets/new.dat"));
    Use([this](Seen &dialog) {
        Values(dialog, "9", "3");
        dialog.Click("CmdApply");
        dialog.Click("cmdsave");
    });
    const FileQuestion &question = world.platform.file_questions.back();
    EXPECT_EQ(question.name, "naca2412_E9.00C3.00.dat");
    EXPECT_EQ(question.folder, world.folder.Path("sets") + "/");
    EXPECT_EQ(question.title, "Save the new airfoil");
    EXPECT_EQ(question.filter_text, "Files (*.dat)");
    EXPECT_EQ(question.default_extension, "dat");
    EXPECT_THAT(world.folder.Bytes("sets/new.dat"),
                testing::StartsWith("naca2412  thickness 9.00% camber 3.00%\r\n1.000  0 \r\n"));
    EXPECT_THAT(world.folder.Bytes("sets/new.dat"), testing::EndsWith("By Loftwing\r\n"));
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(FrmEpCourbTest, ASaveTakesWhatWasTypedSinceApply) {
    Saves(world.folder.Path("sets/new.dat"));
    Use([this](Seen &dialog) {
        Values(dialog, "9", "3");
        dialog.Click("CmdApply");
        Values(dialog, "8", "1");
        dialog.Click("cmdsave");
        EXPECT_EQ(dialog.Text("txtEpR"), "8.00");
        EXPECT_EQ(dialog.Label("Label5"), " 16. mm");
        EXPECT_THAT(world.Panel(2), HasSubstr("thickness : 8% camber : 1% "));
        dialog.Click("cmdok");
    });
    EXPECT_EQ(world.platform.file_questions.back().name, "naca2412_E8.00C1.00.dat");
    EXPECT_THAT(world.folder.Bytes("sets/new.dat"),
                testing::StartsWith("naca2412  thickness 8.00% camber 1.00%\r\n"));
    EXPECT_NEAR(Rib().EpMaxi, 0.08, 1e-4);
    EXPECT_NEAR(Rib().CambrureMaxi, 0.01, 1e-4);
}

TEST_F(FrmEpCourbTest, ASaveOfARefusedValueSavesNothing) {
    Use([this](Seen &dialog) {
        Values(dialog, "9", "3");
        dialog.Click("CmdApply");
        dialog.Type("txtEpR", "101");
        world.platform.Expect(BoxAnswer::ok,
                              {.text = world.programme.Text({"FrmEpCourb", "11"}) + "100 % ",
                               .icon = BoxIcon::warning});
        dialog.Click("cmdsave");
        EXPECT_TRUE(dialog.IsOpen());
    });
    EXPECT_TRUE(world.platform.file_questions.empty());
}

TEST_F(FrmEpCourbTest, ASaveDoesNotApplyTheSameTwice) {
    Saves(world.folder.Path("sets/new.dat"));
    Use([this](Seen &dialog) {
        Values(dialog, "9.126", "3"); // shown as 9.13; a second round would compute with that
        dialog.Click("CmdApply");
        dialog.Click("cmdsave");
        EXPECT_DOUBLE_EQ(Rib().NouvEpaisseur, 0.09126);
    });
}

TEST_F(FrmEpCourbTest, SavingAndPrintingWantAnAppliedThickness) {
    Use([this](Seen &dialog) {
        ExpectWarning({"FrmEpCourb", "15"});
        dialog.Click("cmdsave");
        ExpectWarning({"FrmEpCourb", "15"});
        dialog.Click("cmdprintEC");
        EXPECT_EQ(world.platform.boxes.size(), 2U);
        EXPECT_TRUE(dialog.IsOpen());
    });
}

TEST_F(FrmEpCourbTest, PrintsTheView) {
    std::size_t drawn = 0;
    world.platform.make_printer = [](const PrintQuestion &) {
        return std::make_unique<TestPrinter>();
    };
    Use([&](Seen &dialog) {
        Values(dialog, "9", "3");
        dialog.Click("CmdApply");
        world.platform.Expect(BoxAnswer::yes, {.text = "Print naca2412"});
        dialog.Click("cmdprintEC");
        drawn = world.platform.print_questions.size();
        EXPECT_EQ(world.platform.pointer, Pointer::normal);
    });
    EXPECT_EQ(drawn, 1U);
}

TEST_F(FrmEpCourbTest, OkSavesFirstAndOpensTheNewAirfoil) {
    const std::string path = world.folder.Path("sets/new.dat");
    Saves(path);
    Use([](Seen &dialog) {
        Values(dialog, "9", "3");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(Rib().CheminProfil, path);
    EXPECT_EQ(Rib().NomProfil, "new");
    EXPECT_FALSE(Rib().ModeEpCourb);
    EXPECT_NEAR(Rib().EpMaxi, 0.09, 1e-4);
    EXPECT_EQ(Caption(), "Loftwing Airfoil : new");
    EXPECT_EQ(world.Action("mnuFileMRU(1)")->data().toString().toStdString(), path);
    EXPECT_TRUE(Enabled("mnu_profillongeron"));
}

TEST_F(FrmEpCourbTest, OkAfterASaveAsksForNoNameAgain) {
    Saves(world.folder.Path("sets/new.dat"));
    Use([](Seen &dialog) {
        Values(dialog, "9", "3");
        dialog.Click("CmdApply");
        dialog.Click("cmdsave");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(world.platform.file_questions.size(), 1U);
    EXPECT_EQ(Rib().NomProfil, "new");
}

TEST_F(FrmEpCourbTest, OkAfterASecondSaveThatWasCancelledOpensTheFirstFile) {
    Saves(world.folder.Path("sets/new.dat"));
    Saves("");
    Use([](Seen &dialog) {
        Values(dialog, "9", "3");
        dialog.Click("CmdApply");
        dialog.Click("cmdsave");
        dialog.Click("cmdsave");
        dialog.Click("cmdok");
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(Rib().NomProfil, "new");
    EXPECT_FALSE(Rib().ModeEpCourb);
}

TEST_F(FrmEpCourbTest, OkOnAFileThatHasGoneClearsTheView) {
    const std::string path = world.folder.Path("sets/new.dat");
    Saves(path);
    Use([&path](Seen &dialog) {
        Values(dialog, "9", "3");
        dialog.Click("CmdApply");
        dialog.Click("cmdsave");
        std::filesystem::remove(path);
        dialog.Click("cmdok");
    });
    EXPECT_FALSE(Rib().ModeEpCourb);
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_EQ(Drawing(), nullptr);
}

TEST_F(FrmEpCourbTest, OkWithACancelledSaveStaysOpen) {
    Saves("");
    Use([this](Seen &dialog) {
        Values(dialog, "9", "3");
        ExpectWarning({"FrmEpCourb", "14"});
        dialog.Click("cmdok");
        EXPECT_TRUE(dialog.IsOpen());
    });
}

TEST_F(FrmEpCourbTest, OkWithARefusedValueStaysOpen) {
    Use([this](Seen &dialog) {
        for (const char *key : {"12", "15", "14"}) {
            const std::string text =
                GetINIFile("FrmEpCourb", key, world.programme.paths.langues + "/English.lng");
            world.platform.Expect(BoxAnswer::ok, {.text = text});
        }
        Values(dialog, "0", "3");
        dialog.Click("cmdok");
        EXPECT_TRUE(dialog.IsOpen());
    });
}

TEST_F(FrmEpCourbTest, AFolderThatHasGoneIsToldAndNothingCountsAsSaved) {
    Saves(world.folder.Path("gone/new.dat"));
    Saves("");
    Use([this](Seen &dialog) {
        Values(dialog, "9", "3");
        dialog.Click("CmdApply");
        world.platform.Expect(BoxAnswer::ok,
                              {.text = AllOf(HasSubstr(world.programme.Text({"Message", "3"})),
                                             HasSubstr(world.folder.Path("gone/new.dat"))),
                               .title = "Error EpCourb/Save"});
        dialog.Click("cmdsave");
        EXPECT_EQ(world.platform.pointer, Pointer::normal);
        ExpectWarning({"FrmEpCourb", "14"});
        dialog.Click("cmdok");
        EXPECT_TRUE(dialog.IsOpen());
    });
    EXPECT_FALSE(std::filesystem::exists(world.folder.Path("gone")));
}

TEST_F(FrmEpCourbTest, AFileThatCannotBeWrittenIsToldWithItsNumber) {
    std::filesystem::create_directories(world.folder.Path("sets/new.dat"));
    Saves(world.folder.Path("sets/new.dat"));
    Use([this](Seen &dialog) {
        Values(dialog, "9", "3");
        dialog.Click("CmdApply");
        world.platform.Expect(BoxAnswer::ok,
                              {.text = HasSubstr("Error # 75 in"), .title = "Error EpCourb/Save"});
        dialog.Click("cmdsave");
    });
}

TEST_F(FrmEpCourbTest, CancelEscapeAndCloseClearTheRib) {
    for (const int way : {0, 1, 2}) {
        Use([this, way](Seen &dialog) {
            Values(dialog, "9", "3");
            dialog.Click("CmdApply");
            if (way == 0) {
                dialog.Click("cmdannuler");
            } else if (way == 1) {
                dialog.Key(Qt::Key_Escape);
            } else {
                dialog.Close();
            }
            EXPECT_FALSE(dialog.IsOpen());
        });
        EXPECT_FALSE(Rib().ProfilCharge);
        EXPECT_FALSE(Rib().ModeEpCourb);
        EXPECT_EQ(Rib().NouvEpaisseur, 0.0);
        EXPECT_EQ(Rib().NouvCambrure, 0.0);
        EXPECT_EQ(Drawing(), nullptr);
    }
}

TEST_F(FrmEpCourbTest, ADrawingThatFailsClosesTheDialog) {
    Use([this](Seen &dialog) {
        Values(dialog, "9", "3");
        Rib().NbContour = 32000;
        world.platform.Expect(BoxAnswer::ok);
        dialog.Click("cmdok");
        EXPECT_EQ(world.platform.boxes.back().title, "Error Main/PrintRoutineEpcourb");
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_FALSE(Rib().ProfilCharge);
}

TEST_F(FrmEpCourbTest, TheCommandAsksBeforeChangesAreLost) {
    OpenRib();
    Rib().Modifie = true;
    world.platform.Expect(BoxAnswer::no, {.text = world.programme.Text({"FrmMainMessage", "9"})});
    world.Action("mnu_outilEpCourb")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(world.platform.boxes.back().title, world.programme.Text({"FrmMainMessage", "10"}));
}

TEST_F(FrmEpCourbTest, ACancelledPickerEndsTheCommand) {
    OpenRib();
    Run("mnu_outilEpCourb", {Cancel});
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(world.Panel(2), "Airfoil : naca2412  Chord : 200 mm <> Information : NACA 2412");
}

TEST_F(FrmEpCourbTest, HelpIsAtItsPlace) {
    Use([](Seen &dialog) { dialog.Click("cmdaide"); });
    EXPECT_THAT(world.platform.help_contexts, testing::ElementsAre(60));
}

TEST_F(FrmEpCourbTest, TheKeyboardGoesThroughFieldsAndButtonsInTheirOrder) {
    Use([](Seen &dialog) {
        std::vector<std::string> order;
        for (int i = 0; i < 8; ++i) {
            order.push_back(dialog.Focus());
            dialog.Key(Qt::Key_Tab);
        }
        EXPECT_THAT(order, testing::ElementsAre("txtEpR", "txtCourbure", "CmdApply", "cmdsave",
                                                "cmdprintEC", "cmdok", "cmdannuler", "cmdaide"));
    });
}

TEST(FrmEpCourbLook, NothingIsCutInAnyLanguageUnitOrFont) {
    for (const char *language : {"English", "French"}) {
        for (const char *unit : {"mm", "in"}) {
            for (const double scale : {1.0, 2.0}) {
                const FontScale font(scale);
                WindowWorld world(language, unit);
                world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
                frmEpCourb dialog(world.programme, *world.window, nullptr);
                dialog.show();
                const Seen seen(dialog);
                seen.Fill("txtEpR", "100");
                seen.Fill("txtCourbure", "99");
                seen.Click("CmdApply");
                ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
                ExpectNothingCut(dialog);
            }
        }
    }
}

} // namespace
} // namespace loftwing
