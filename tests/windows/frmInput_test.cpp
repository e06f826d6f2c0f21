#include "mainwindow/frmInput.h"

#include "support/scripted_platform.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace loftwing {
namespace {

/// How the window was left.
enum class Left { accepted, rejected, open };

class FrmInputTest : public testing::Test {
  protected:
    FrmInputTest() {
        ChooseLanguage("English");
        programme.rib.NomProfil = "e205";
        programme.rib.ProfilCharge = true;
        programme.rib.IntradosMini = -0.03125;
        programme.rib.ExtradosMaxi = 0.0625;
    }

    void ChooseLanguage(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }

    /// Shows the window as a command does, lets `act` be the user, and tells how it was left. A
    /// window that the user left open is closed behind its back.
    Left Use(const char *ModeSaisie, const std::function<void(frmInput &)> &act) {
        frmInput window(programme, ModeSaisie, nullptr);
        Left left = Left::open;
        QObject::connect(&window, &QDialog::accepted, [&] { left = Left::accepted; });
        QObject::connect(&window, &QDialog::rejected, [&] { left = Left::rejected; });
        QTimer::singleShot(0, &window, [&] {
            window.activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
            act(window);
            const bool still_open = window.isVisible();
            EXPECT_EQ(still_open, left == Left::open);
            if (still_open) {
                window.done(2);
                left = Left::open;
            }
        });
        ShowModal(window);
        return left;
    }

    static QLineEdit &Box(frmInput &window) { return *window.findChild<QLineEdit *>("infotxt"); }
    static QPushButton &Button(frmInput &window, const char *name) {
        return *window.findChild<QPushButton *>(name);
    }
    static void Click(frmInput &window, const char *name) {
        QTest::mouseClick(&Button(window, name), Qt::LeftButton);
    }
    /// Types over what the box holds, and Return.
    static void Enter(frmInput &window, const char *text) {
        Box(window).selectAll();
        if (*text == '\0') {
            QTest::keyClick(&Box(window), Qt::Key_Backspace);
        }
        QTest::keyClicks(&Box(window), text);
        QTest::keyClick(&Box(window), Qt::Key_Return);
    }

    ScriptedPlatform platform;
    Programme programme{Paths{}, platform};
};

TEST_F(FrmInputTest, ShowsTheWordsAndTheValueOfEachMode) {
    programme.rib.cordeAfich = "201";
    programme.rib.EpCoffrageAfich = "1.1";
    programme.rib.EpBAAfich = "3";
    programme.rib.EpBFAfich = "4";
    programme.rib.NbRep = 5;
    struct Row {
        const char *mode;
        std::string caption;
        std::string message;
        std::string value;
    };
    const Row rows[] = {
        {"corde", "Chord length  mm", "Enter the chord length :", "201"},
        {"epcof", "Sheeting thickness  mm", "Enter the sheeting thickness :", "1.1"},
        {"ba", "Leading edge width  mm", "Enter the leading edge width :", "3"},
        {"bf", "Trailing edge width  mm", "Enter the trailing edge width :", "4"},
        {"rep", "Station lines", "Enter the number of station lines :", "5"},
    };
    for (const Row &row : rows) {
        frmInput window(programme, row.mode, nullptr);
        EXPECT_EQ(S(window.windowTitle()), row.caption);
        EXPECT_EQ(S(window.findChild<QLabel *>("msgtxt")->text()), row.message);
        EXPECT_EQ(S(Box(window).text()), row.value);
        EXPECT_EQ(S(Button(window, "cmdok").text()), "OK");
        EXPECT_EQ(S(Button(window, "cmdannuler").text()), "Cancel");
        EXPECT_EQ(S(Button(window, "cmdaide").text()), "Help");
    }
}

TEST_F(FrmInputTest, SpeaksFrenchAndInches) {
    ChooseLanguage("French");
    programme.settings.Unite = kUniteIn;
    frmInput window(programme, "bf", nullptr);
    EXPECT_EQ(S(window.windowTitle()), "Largeur du bord de fuite  in");
    EXPECT_EQ(S(window.findChild<QLabel *>("msgtxt")->text()),
              "Entrez la largeur du bord de fuite\u00a0:");
    EXPECT_EQ(S(Button(window, "cmdannuler").text()), "Annuler");
    EXPECT_EQ(S(Button(window, "cmdaide").text()), "Aide");
    frmInput count(programme, "rep", nullptr);
    EXPECT_EQ(S(count.windowTitle()), "Lignes de repère");
}

TEST_F(FrmInputTest, AnUnknownModeIsAFailure) {
    try {
        frmInput window(programme, "chord", nullptr);
        FAIL() << "no failure";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number, 5);
    }
}

TEST_F(FrmInputTest, OpensWithTheValueSelectedSoThatTypingReplacesIt) {
    const Left left = Use("corde", [](frmInput &window) {
        EXPECT_TRUE(Box(window).hasFocus());
        EXPECT_EQ(S(Box(window).selectedText()), "200");
        QTest::keyClicks(&Box(window), "256");
        EXPECT_EQ(S(Box(window).text()), "256");
        Click(window, "cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.cordeAfich, "256");
    EXPECT_EQ(programme.rib.corde, 256.0F);
    EXPECT_EQ(programme.rib.talon.TalonIntraAfich, " 6.50"); // 256 / 32 - 1.5
}

TEST_F(FrmInputTest, SelectsTheValueAgainWhenTheBoxGetsTheFocusBack) {
    Use("corde", [](frmInput &window) {
        QTest::keyClicks(&Box(window), "12");
        EXPECT_FALSE(Box(window).hasSelectedText());
        Button(window, "cmdok").setFocus();
        Box(window).setFocus();
        EXPECT_EQ(S(Box(window).selectedText()), "12");
    });
}

TEST_F(FrmInputTest, TabGoesFromTheBoxThroughTheButtons) {
    Use("corde", [](frmInput &window) {
        for (const char *name : {"cmdok", "cmdannuler", "cmdaide", "infotxt"}) {
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(S(window.focusWidget()->objectName()), name);
        }
    });
}

TEST_F(FrmInputTest, InMmOnlyDigitsAndPointGetIn) {
    for (const char *mode : {"corde", "epcof", "ba", "bf", "rep"}) {
        Use(mode, [](frmInput &window) {
            QTest::keyClicks(&Box(window), "a1-2,3/4%5 6.7e890");
            EXPECT_EQ(S(Box(window).text()), "123456.7890");
            QTest::keyClick(&Box(window), Qt::Key_Backspace);
            EXPECT_EQ(S(Box(window).text()), "123456.789");
        });
    }
}

TEST_F(FrmInputTest, InInchesTheSlashGetsInToo) {
    programme.settings.Unite = kUniteIn;
    for (const char *mode : {"corde", "epcof", "ba", "bf", "rep"}) {
        Use(mode, [](frmInput &window) {
            QTest::keyClicks(&Box(window), "a8-.1,/2%\"");
            EXPECT_EQ(S(Box(window).text()), "8.1/2");
        });
    }
}

TEST_F(FrmInputTest, AFractionOfInchesIsKeptAsTyped) {
    programme.settings.Unite = kUniteIn;
    EXPECT_EQ(Use("corde", [](frmInput &window) { Enter(window, "8.1/2"); }), Left::accepted);
    EXPECT_EQ(programme.rib.cordeAfich, "8.1/2");
    EXPECT_EQ(programme.rib.corde, 215.9F);
    frmInput again(programme, "corde", nullptr);
    EXPECT_EQ(S(Box(again).text()), "8.1/2");
}

TEST_F(FrmInputTest, CancelStoresNothing) {
    for (const char *mode : {"corde", "epcof", "ba", "bf", "rep"}) {
        programme.rib.Annule = false;
        const Left left = Use(mode, [](frmInput &window) {
            QTest::keyClicks(&Box(window), "77");
            Click(window, "cmdannuler");
        });
        EXPECT_EQ(left, Left::rejected) << mode;
        EXPECT_TRUE(programme.rib.Annule) << mode;
    }
    EXPECT_EQ(programme.rib.cordeAfich, "200");
    EXPECT_EQ(programme.rib.corde, 200.0F);
    EXPECT_EQ(programme.rib.EpCoffrageAfich, "1.5");
    EXPECT_EQ(programme.rib.EpBAAfich, "0");
    EXPECT_EQ(programme.rib.EpBFAfich, "0");
    EXPECT_EQ(programme.rib.NbRep, 0);
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmInputTest, EscapeAndTheClosingButtonAreCancels) {
    EXPECT_EQ(Use("bf",
                  [](frmInput &window) {
                      QTest::keyClicks(&Box(window), "77");
                      QTest::keyClick(&Box(window), Qt::Key_Escape);
                  }),
              Left::rejected);
    EXPECT_TRUE(programme.rib.Annule);
    EXPECT_EQ(Use("bf", [](frmInput &window) { window.close(); }), Left::rejected);
    EXPECT_TRUE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.EpBFAfich, "0");
}

TEST_F(FrmInputTest, AnEarlierCancelIsForgotten) {
    programme.rib.Annule = true;
    EXPECT_EQ(Use("epcof", [](frmInput &window) { Enter(window, "2"); }), Left::accepted);
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.EpCoffrage, 2.0F);
}

TEST_F(FrmInputTest, HelpOpensThePageOfTheMode) {
    for (const char *mode : {"corde", "epcof", "ba", "bf", "rep"}) {
        EXPECT_EQ(Use(mode, [](frmInput &window) { Click(window, "cmdaide"); }), Left::open);
    }
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{40, 40, 40, 40, 50}));
    Use("rep", [](frmInput &window) { QTest::keyClick(&Box(window), Qt::Key_F1); });
    EXPECT_EQ(platform.help_contexts.size(), 6U);
    EXPECT_EQ(platform.help_contexts.back(), 50);
}

TEST_F(FrmInputTest, AChordOfZeroKeepsTheWindowOpenAndCancelLeavesItsText) {
    platform.Expect(BoxAnswer::ok);
    const Left left = Use("corde", [this](frmInput &window) {
        Enter(window, "0");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(programme.rib.cordeAfich, "0");
        EXPECT_EQ(S(Box(window).selectedText()), "0");
        EXPECT_TRUE(Box(window).hasFocus());
        Click(window, "cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, "Chord length  mm");
    EXPECT_EQ(platform.boxes[0].text, "Chord length : 0 mm - Please enter a chord");
    EXPECT_TRUE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.cordeAfich, "0");
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmInputTest, AfterARefusedChordAnotherOneIsTaken) {
    platform.Expect(BoxAnswer::ok);
    const Left left = Use("corde", [](frmInput &window) {
        Enter(window, "");
        QTest::keyClicks(&Box(window), "150");
        Click(window, "cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.corde, 150.0F);
}

TEST_F(FrmInputTest, AFractionOfZerothsKeepsTheWindowOpenAndStoresNothing) {
    programme.settings.Unite = kUniteIn;
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use("bf", [](frmInput &window) { Enter(window, "1/0"); }), Left::open);
    EXPECT_EQ(platform.boxes.at(0).title, " Input/OK");
    EXPECT_EQ(programme.rib.EpBFAfich, "0");
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmInputTest, AStockAsWideAsTheChordClosesWithoutABox) {
    EXPECT_EQ(Use("ba", [](frmInput &window) { Enter(window, "200"); }), Left::accepted);
    EXPECT_EQ(programme.rib.EpBA, 200.0F);
}

TEST_F(FrmInputTest, ARefusedStockIsZeroAndShowsItsTextNextTime) {
    for (const char *mode : {"ba", "bf"}) {
        platform.Expect(BoxAnswer::ok);
        EXPECT_EQ(Use(mode, [](frmInput &window) { Enter(window, "201"); }), Left::accepted);
        frmInput again(programme, mode, nullptr);
        EXPECT_EQ(S(Box(again).text()), "201");
    }
    EXPECT_EQ(programme.rib.EpBA, 0.0F);
    EXPECT_EQ(programme.rib.EpBF, 0.0F);
    ASSERT_EQ(platform.boxes.size(), 2U);
    EXPECT_EQ(platform.boxes[0].text, "The leading edge is wider than the chord.");
    EXPECT_EQ(platform.boxes[1].text, "The trailing edge is wider than the chord.");
    EXPECT_EQ(platform.boxes[1].title, "Trailing edge width  mm");
}

TEST_F(FrmInputTest, ThreeHundredStationLinesBecome255) {
    platform.Expect(BoxAnswer::ok);
    const Left left = Use("rep", [](frmInput &window) {
        Enter(window, "300");
        EXPECT_EQ(S(Box(window).text()), "255");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(programme.rib.NbRep, 255);
    EXPECT_EQ(platform.boxes.at(0).title, "Station lines");
}

TEST_F(FrmInputTest, InCompareViewANewChordDoesNotMarkTheRib) {
    programme.rib.ModeCompare = true;
    EXPECT_EQ(Use("corde", [](frmInput &window) { Enter(window, "256"); }), Left::accepted);
    EXPECT_FALSE(programme.rib.Modifie);
    EXPECT_EQ(programme.rib.corde, 256.0F);
}

} // namespace
} // namespace loftwing
