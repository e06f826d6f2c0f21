#include "windows/frmdefaut_fixture.h"

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(FrmdefautTest, FieldsTakeTheKeysOfTheUnit) {
    Use([](Seen &dialog) {
        for (int i = 0; i < kChampsDefaut; ++i) {
            dialog.Type({"txtdef", i}, "a-1/2.5%;");
            EXPECT_EQ(dialog.Text({"txtdef", i}), "12.5");
        }
        dialog.Click("inches");
        for (int i = 0; i < kChampsDefaut; ++i) {
            dialog.Type({"txtdef", i}, "a-1.1/2%;");
            EXPECT_EQ(dialog.Text({"txtdef", i}), "1.1/2");
        }
        dialog.Click("mm");
        dialog.Type("txtdef(0)", "1/2");
        EXPECT_EQ(dialog.Text("txtdef(0)"), "12");
        dialog.Type("txtdef(0)", "");
        dialog.Keys("txtdefprof", "/A b");
        EXPECT_EQ(dialog.Text("txtdefprof"), "/home/me/airfoils/A b");
    });
}

TEST_F(FrmdefautTest, AUnitBringsItsFixedSetAndNoConversion) {
    programme.rib.cordeAfich = "200";
    Use([this](Seen &dialog) {
        dialog.Click("inches");
        EXPECT_EQ(Shown(dialog), kInches);
        ExpectUnit(dialog, " in");
        EXPECT_EQ(programme.settings.Unite, " in");
        EXPECT_EQ(Page().MargeHautAfich, "1/2");
        EXPECT_EQ(Page().NumIndex, 1);
        EXPECT_EQ(Page().YdprintAfich, "2");
        EXPECT_EQ(Rib().cordeAfich, "200");
        EXPECT_EQ(Rib().corde, 200.0F);
        dialog.Click("mm");
        EXPECT_EQ(Shown(dialog), kMillimetres);
        ExpectUnit(dialog, " mm");
        EXPECT_EQ(Page().MargeBasAfich, "15");
        EXPECT_EQ(Page().recouvrementAfich, "20");
        EXPECT_EQ(Page().NumIndex, 0);
    });
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(FrmdefautTest, AClickOnTheUnitInForceChangesNothing) {
    programme.settings.page.MargeHautAfich = "12";
    Use([this](Seen &dialog) {
        dialog.Type("txtdef(0)", "190");
        dialog.Click("mm");
        EXPECT_EQ(dialog.Text("txtdef(0)"), "190");
        EXPECT_EQ(Page().MargeHautAfich, "12");
    });
}

TEST_F(FrmdefautTest, TheKeyboardChoosesAUnitToo) {
    Use([](Seen &dialog) {
        dialog.GoTo("mm");
        dialog.Key(Qt::Key_Up);
        EXPECT_EQ(Shown(dialog), kInches);
        ExpectUnit(dialog, " in");
    });
}

TEST_F(FrmdefautTest, AnotherUnitWithYesClearsTheRib) {
    platform.Expect(BoxAnswer::yes);
    std::string unit_on_file_at_clear;
    view.on_clear = [&] { unit_on_file_at_clear = Stored("Defaut", "unit"); };
    EXPECT_EQ(Use([](Seen &dialog) {
                  dialog.Click("inches");
                  dialog.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_THAT(view.asked, ElementsAre("affclear", "AfficheUnite", "AfficheCorde"));
    EXPECT_EQ(unit_on_file_at_clear, "in");
    EXPECT_EQ(programme.settings.Unite, " in");
    EXPECT_THAT(folder.Bytes("Loftwing.ini"), HasSubstr("unit= in\r\n"));
    // A fraction is kept as typed.
    EXPECT_EQ(Stored("Defaut", "EpCoffrageAfich"), "1/16");
    EXPECT_EQ(Stored("Marges", "MargeHaut"), "1/2");
    EXPECT_EQ(Stored("Marges", "NumIndex"), "1");
    EXPECT_EQ(Rib().corde, 203.2F);
    EXPECT_EQ(Rib().EpCoffrage, 1.5875F);
}

TEST_F(FrmdefautTest, AnotherUnitWithNoLeavesEverythingAsTheDialogFoundIt) {
    programme.settings.page.MargeHautAfich = "12";
    programme.settings.page.MargeHaut = 12;
    const std::string file = folder.Bytes("Loftwing.ini");
    platform.Expect(BoxAnswer::no);
    const Left left = Use([this](Seen &dialog) {
        dialog.Click("inches");
        dialog.Click("cmdok");
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(Shown(dialog), kOnFile);
        ExpectUnit(dialog, " mm");
        EXPECT_EQ(programme.settings.Unite, " mm");
        EXPECT_THAT(view.asked, ElementsAre("AfficheUnite"));
        dialog.Type("txtdef(0)", "1/2");
        EXPECT_EQ(dialog.Text("txtdef(0)"), "12");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(Page().MargeHautAfich, "12");
    EXPECT_EQ(Page().MargeHaut, 12.0F);
    EXPECT_EQ(Page().MargeBasAfich, "15");
    EXPECT_EQ(Page().NumIndex, 0);
    EXPECT_EQ(Rib().cordeAfich, "200");
    EXPECT_EQ(folder.Bytes("Loftwing.ini"), file);
    EXPECT_EQ(platform.boxes.at(0).fallback, BoxAnswer::no);
}

TEST_F(FrmdefautTest, AfterANoTheOldUnitCanBeSavedWithoutAQuestion) {
    platform.Expect(BoxAnswer::no);
    EXPECT_EQ(Use([](Seen &dialog) {
                  dialog.Click("inches");
                  dialog.Click("cmdok");
                  dialog.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Stored("Defaut", "unit"), "mm");
    EXPECT_EQ(Stored("Defaut", "cordeAfich"), "180");
    EXPECT_THAT(view.asked, ElementsAre("AfficheUnite", "AfficheUnite", "AfficheCorde"));
}

TEST_F(FrmdefautTest, AYesHoldsWhileAChordIsTypedAgain) {
    platform.Expect(BoxAnswer::yes);
    platform.Expect(BoxAnswer::ok); // no chord
    EXPECT_EQ(Use([](Seen &dialog) {
                  dialog.Click("inches");
                  dialog.Type("txtdef(0)", "0");
                  dialog.Click("cmdok");
                  EXPECT_EQ(dialog.Selected("txtdef(0)"), "0");
                  dialog.Keys("txtdef(0)", "9");
                  dialog.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_THAT(view.asked, ElementsAre("affclear", "AfficheUnite", "AfficheCorde"));
    EXPECT_EQ(Rib().cordeAfich, "9");
}

TEST_F(FrmdefautTest, AYesIsForgottenWhenTheUnitIsChosenAnew) {
    platform.Expect(BoxAnswer::yes);
    platform.Expect(BoxAnswer::ok);
    platform.Expect(BoxAnswer::no);
    Use([](Seen &dialog) {
        dialog.Click("inches");
        dialog.Type("txtdef(0)", "0");
        dialog.Click("cmdok");
        dialog.Click("mm");
        dialog.Click("inches");
        dialog.Click("cmdok");
        ExpectUnit(dialog, " mm");
    });
}

TEST_F(FrmdefautTest, ThereAndBackNeedsNoQuestion) {
    EXPECT_EQ(Use([](Seen &dialog) {
                  dialog.Click("inches");
                  dialog.Click("mm");
                  dialog.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Stored("Defaut", "cordeAfich"), "200");
    EXPECT_THAT(view.asked, ElementsAre("AfficheUnite", "AfficheCorde"));
}

TEST_F(FrmdefautTest, CancelEscapeAndTheClosingButtonPutBackUnitPageAndTexts) {
    const User ways[] = {[](Seen &dialog) { dialog.Click("cmdannuler"); },
                         [](Seen &dialog) { dialog.Key(Qt::Key_Escape); },
                         [](Seen &dialog) { dialog.Close(); }};
    const std::string file = folder.Bytes("Loftwing.ini");
    for (const auto &leave : ways) {
        view.asked.clear();
        programme.settings.page.MargeHautAfich = "12";
        programme.settings.page.MargeHaut = 12;
        programme.settings.page.NbPages = 3;
        EXPECT_EQ(Use([&leave](Seen &dialog) {
                      dialog.Click("inches");
                      dialog.Fill("txtdefprof", "/elsewhere");
                      leave(dialog);
                  }),
                  Left::rejected);
        EXPECT_EQ(programme.settings.Unite, " mm");
        EXPECT_THAT(view.asked, ElementsAre("AfficheUnite"));
        EXPECT_EQ(Page().MargeHautAfich, "12");
        EXPECT_EQ(Page().MargeHaut, 12.0F);
        EXPECT_EQ(Page().MargeBasAfich, "15");
        EXPECT_EQ(Page().YdprintAfich, "50");
        EXPECT_EQ(Page().NumIndex, 0);
        EXPECT_EQ(Page().NbPages, 3);
        EXPECT_EQ(Rib().cordeAfich, "200");
        EXPECT_EQ(programme.settings.repertoires.RepProfil, "/home/me/airfoils");
        EXPECT_EQ(folder.Bytes("Loftwing.ini"), file);
    }
}

} // namespace
} // namespace loftwing
