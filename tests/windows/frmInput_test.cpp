#include "mainwindow/frmInput.h"

#include "windows/dialog_fixture.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class FrmInputTest : public DialogTest {
  protected:
    FrmInputTest() {
        programme.rib.NomProfil = "e205";
        programme.rib.ProfilCharge = true;
        programme.rib.IntradosMini = -0.03125;
        programme.rib.ExtradosMaxi = 0.0625;
    }

    /// Shows the window as a command does, lets `user` act in it, and tells how it was left.
    Left Use(const char *ModeSaisie, const User &user) {
        frmInput window(programme, ModeSaisie, nullptr);
        return UseModal(window, user);
    }
    /// Types over what the box holds, and Return.
    static void Enter(Seen &window, const char *text) {
        window.Type("infotxt", text);
        window.Key("infotxt", Qt::Key_Return);
    }
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
        frmInput input(programme, row.mode, nullptr);
        const Seen window(input);
        EXPECT_EQ(window.Title(), row.caption);
        EXPECT_EQ(window.Label("msgtxt"), row.message);
        EXPECT_EQ(window.Text("infotxt"), row.value);
        EXPECT_EQ(window.Word("cmdok"), "OK");
        EXPECT_EQ(window.Word("cmdannuler"), "Cancel");
        EXPECT_EQ(window.Word("cmdaide"), "Help");
    }
}

TEST_F(FrmInputTest, SpeaksFrenchAndInches) {
    Language("French");
    programme.settings.Unite = kUniteIn;
    frmInput input(programme, "bf", nullptr);
    const Seen window(input);
    EXPECT_EQ(window.Title(), "Largeur du bord de fuite  in");
    EXPECT_EQ(window.Label("msgtxt"), "Entrez la largeur du bord de fuite\u00a0:");
    EXPECT_EQ(window.Word("cmdannuler"), "Annuler");
    EXPECT_EQ(window.Word("cmdaide"), "Aide");
    frmInput count(programme, "rep", nullptr);
    EXPECT_EQ(Seen(count).Title(), "Lignes de repère");
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
    const Left left = Use("corde", [](Seen &window) {
        EXPECT_TRUE(window.Focused("infotxt"));
        EXPECT_EQ(window.Selected("infotxt"), "200");
        window.Keys("infotxt", "256");
        EXPECT_EQ(window.Text("infotxt"), "256");
        window.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.cordeAfich, "256");
    EXPECT_EQ(programme.rib.corde, 256.0F);
    EXPECT_EQ(programme.rib.talon.TalonIntraAfich, " 6.50"); // 256 / 32 - 1.5
}

TEST_F(FrmInputTest, SelectsTheValueAgainWhenTheBoxGetsTheFocusBack) {
    Use("corde", [](Seen &window) {
        window.Keys("infotxt", "12");
        EXPECT_FALSE(window.Box("infotxt").hasSelectedText());
        window.GoTo("cmdok");
        window.GoTo("infotxt");
        EXPECT_EQ(window.Selected("infotxt"), "12");
    });
}

TEST_F(FrmInputTest, TabGoesFromTheBoxThroughTheButtons) {
    Use("corde", [](Seen &window) {
        window.ExpectTabs({"cmdok", "cmdannuler", "cmdaide", "infotxt"});
    });
}

TEST_F(FrmInputTest, InMmOnlyDigitsAndPointGetIn) {
    for (const char *mode : {"corde", "epcof", "ba", "bf", "rep"}) {
        Use(mode, [](Seen &window) {
            window.Keys("infotxt", "a1-2;3/4%5 6.7e890");
            EXPECT_EQ(window.Text("infotxt"), "123456.7890");
            window.Key("infotxt", Qt::Key_Backspace);
            EXPECT_EQ(window.Text("infotxt"), "123456.789");
        });
    }
}

TEST_F(FrmInputTest, InInchesTheSlashGetsInToo) {
    programme.settings.Unite = kUniteIn;
    for (const char *mode : {"corde", "epcof", "ba", "bf", "rep"}) {
        Use(mode, [](Seen &window) {
            window.Keys("infotxt", "a8-.1;/2%\"");
            EXPECT_EQ(window.Text("infotxt"), "8.1/2");
        });
    }
}

TEST_F(FrmInputTest, AFractionOfInchesIsKeptAsTyped) {
    programme.settings.Unite = kUniteIn;
    EXPECT_EQ(Use("corde", [](Seen &window) { Enter(window, "8.1/2"); }), Left::accepted);
    EXPECT_EQ(programme.rib.cordeAfich, "8.1/2");
    EXPECT_EQ(programme.rib.corde, 215.9F);
    frmInput again(programme, "corde", nullptr);
    EXPECT_EQ(Seen(again).Text("infotxt"), "8.1/2");
}

TEST_F(FrmInputTest, CancelStoresNothing) {
    for (const char *mode : {"corde", "epcof", "ba", "bf", "rep"}) {
        programme.rib.Annule = false;
        const Left left = Use(mode, [](Seen &window) {
            window.Keys("infotxt", "77");
            window.Click("cmdannuler");
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
                  [](Seen &window) {
                      window.Keys("infotxt", "77");
                      window.Key("infotxt", Qt::Key_Escape);
                  }),
              Left::rejected);
    EXPECT_TRUE(programme.rib.Annule);
    EXPECT_EQ(Use("bf", [](Seen &window) { window.Close(); }), Left::rejected);
    EXPECT_TRUE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.EpBFAfich, "0");
}

TEST_F(FrmInputTest, AnEarlierCancelIsForgotten) {
    programme.rib.Annule = true;
    EXPECT_EQ(Use("epcof", [](Seen &window) { Enter(window, "2"); }), Left::accepted);
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.EpCoffrage, 2.0F);
}

TEST_F(FrmInputTest, HelpOpensThePageOfTheMode) {
    for (const char *mode : {"corde", "epcof", "ba", "bf", "rep"}) {
        EXPECT_EQ(Use(mode, [](Seen &window) { window.Click("cmdaide"); }), Left::open);
    }
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{40, 40, 40, 40, 50}));
    Use("rep", [](Seen &window) { window.Key("infotxt", Qt::Key_F1); });
    EXPECT_EQ(platform.help_contexts.size(), 6U);
    EXPECT_EQ(platform.help_contexts.back(), 50);
}

TEST_F(FrmInputTest, AChordOfZeroKeepsTheWindowOpenAndCancelGivesTheOldTextBack) {
    platform.Expect(BoxAnswer::ok);
    const Left left = Use("corde", [this](Seen &window) {
        Enter(window, "0");
        EXPECT_TRUE(window.IsOpen());
        EXPECT_EQ(programme.rib.cordeAfich, "0");
        EXPECT_EQ(window.Selected("infotxt"), "0");
        EXPECT_TRUE(window.Focused("infotxt"));
        window.Click("cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, "Chord length  mm");
    EXPECT_EQ(platform.boxes[0].text, "Chord length : 0 mm - Please enter a chord");
    EXPECT_TRUE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.cordeAfich, "200");
    EXPECT_EQ(programme.rib.corde, 200.0F);
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmInputTest, AfterARefusedChordAnotherOneIsTaken) {
    platform.Expect(BoxAnswer::ok);
    const Left left = Use("corde", [](Seen &window) {
        Enter(window, "");
        window.Keys("infotxt", "150");
        window.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.corde, 150.0F);
}

TEST_F(FrmInputTest, AFractionOfZerothsKeepsTheWindowOpenAndStoresNothing) {
    programme.settings.Unite = kUniteIn;
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use("bf", [](Seen &window) { Enter(window, "1/0"); }), Left::open);
    EXPECT_EQ(platform.boxes.at(0).title, " Input/OK");
    EXPECT_EQ(programme.rib.EpBFAfich, "0");
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmInputTest, AStockAsWideAsTheChordClosesWithoutABox) {
    EXPECT_EQ(Use("ba", [](Seen &window) { Enter(window, "200"); }), Left::accepted);
    EXPECT_EQ(programme.rib.EpBA, 200.0F);
}

TEST_F(FrmInputTest, ARefusedStockIsZeroAndShowsItsTextNextTime) {
    for (const char *mode : {"ba", "bf"}) {
        platform.Expect(BoxAnswer::ok);
        EXPECT_EQ(Use(mode, [](Seen &window) { Enter(window, "201"); }), Left::accepted);
        frmInput again(programme, mode, nullptr);
        EXPECT_EQ(Seen(again).Text("infotxt"), "201");
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
    const Left left = Use("rep", [](Seen &window) {
        Enter(window, "300");
        EXPECT_EQ(window.Text("infotxt"), "255");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(programme.rib.NbRep, 255);
    EXPECT_EQ(platform.boxes.at(0).title, "Station lines");
}

TEST_F(FrmInputTest, InCompareViewANewChordDoesNotMarkTheRib) {
    programme.rib.ModeCompare = true;
    EXPECT_EQ(Use("corde", [](Seen &window) { Enter(window, "256"); }), Left::accepted);
    EXPECT_FALSE(programme.rib.Modifie);
    EXPECT_EQ(programme.rib.corde, 256.0F);
}

} // namespace
} // namespace loftwing
