// The strips above the main window's picture.

#include "base/text_encoding.h"
#include "support/qt_nothing_cut.h"
#include "windows/frmmain_files_fixture.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFrame>

namespace loftwing {
namespace {

using testing::HasSubstr;

class NoticeBarTest : public RibFiles {
  protected:
    /// Opens a rib of 200 mm with a heel of these margins.
    void OpenHeel(const std::string &front, const std::string &rear) {
        ComponentsText file;
        file.kind = "11";
        file.intra = "20";
        file.heel_front = front;
        file.heel_back = rear;
        OpenBytes("heel.lfw", file.Current());
    }
    bool Shows(const char *notice) const {
        QApplication::processEvents();
        return world.Main().Has(notice) && world.Main().Shown(notice);
    }
    void ExpectMarginsQuestion(BoxAnswer answer) {
        world.platform.Expect(answer, {.text = HasSubstr("Put the margins in force first?"),
                                       .title = "Rib levelling heel"});
    }
    double Margins() { return Rib().talon.TalonLong; }
};

constexpr const char *kHeel = "notice_heel_margins";

TEST_F(NoticeBarTest, TakesNoRoomWithoutANotice) {
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    QApplication::processEvents();
    EXPECT_FALSE(world.Main().Shown("NoticeBar"));
    EXPECT_EQ(world.Find<QWidget>("Pic")->y(), 0);
}

TEST_F(NoticeBarTest, AnOpenedHeelIsConfirmedByItsButton) {
    OpenHeel("20", "30");
    ASSERT_TRUE(Shows(kHeel));
    EXPECT_EQ(world.Main().Label("notice_heel_margins_text"),
              "The heel's margins from the rib file are not in force : 20 mm, 30 mm. The heel is "
              "drawn as if they were 0.");
    EXPECT_GT(world.Find<QWidget>("Pic")->y(), 0); // above the picture, not over it
    EXPECT_EQ(Margins(), 0);
    const Recording *before = Drawing();
    world.Main().Click({"notice_heel_margins_button", 0});
    EXPECT_EQ(Margins(), 50);
    EXPECT_NE(Drawing(), before);
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_FALSE(Shows(kHeel));
}

TEST_F(NoticeBarTest, TheCaptionStaysWhenANoticeComesOrGoes) {
    OpenHeel("20", "30");
    ASSERT_TRUE(Shows(kHeel));
    const std::string caption = "Loftwing Rib : heel.lfw Airfoil : naca2412";
    EXPECT_EQ(Caption(), caption);
    const int height = world.Find<QWidget>("Pic")->height();
    world.Main().Click("notice_heel_margins_close");
    EXPECT_TRUE(Eventually([&] { return world.Find<QWidget>("Pic")->height() > height; }));
    QApplication::processEvents();
    EXPECT_EQ(Caption(), caption);
}

TEST_F(NoticeBarTest, AClosedNoticeStaysClosedUntilTheNextRib) {
    OpenHeel("20", "30");
    ASSERT_TRUE(Shows(kHeel));
    world.Main().Click("notice_heel_margins_close");
    EXPECT_FALSE(Shows(kHeel));
    world.window->affiche();
    EXPECT_FALSE(Shows(kHeel));
    OpenHeel("20", "30");
    EXPECT_TRUE(Shows(kHeel));
    EXPECT_EQ(Margins(), 0);
}

TEST_F(NoticeBarTest, AHeelConfirmedByItsDialogOrTheChordNeedsNoNotice) {
    OpenHeel("20", "30");
    world.Run("mnu_profilTalon", {[](Seen &dialog) { dialog.Click("cmdok"); }});
    EXPECT_EQ(Margins(), 50);
    EXPECT_FALSE(Shows(kHeel));
    Rib().Modifie = false;
    OpenHeel("20", "30");
    ASSERT_TRUE(Shows(kHeel));
    world.Run("mnu_profilcorde", {[](Seen &dialog) {
                  dialog.Type("infotxt", "180");
                  dialog.Key("infotxt", Qt::Key_Return);
              }});
    EXPECT_EQ(Margins(), 50);
    EXPECT_FALSE(Shows(kHeel));
}

TEST_F(NoticeBarTest, AClearedWindowAndAnotherViewHaveNoNotice) {
    OpenHeel("20", "30");
    ASSERT_TRUE(Shows(kHeel));
    world.window->affclear();
    EXPECT_FALSE(Shows(kHeel));
}

TEST_F(NoticeBarTest, PrintAsksForTheMarginsFirst) {
    OpenHeel("20", "30");
    world.platform.Expect(BoxAnswer::yes); // to print at all
    ExpectMarginsQuestion(BoxAnswer::no);
    world.Action("mnu_fileprint")->trigger();
    EXPECT_EQ(Margins(), 0);
    EXPECT_EQ(world.platform.print_questions.size(), 1U); // goes on
    world.platform.Expect(BoxAnswer::yes);
    ExpectMarginsQuestion(BoxAnswer::yes);
    world.Action("mnu_fileprint")->trigger();
    EXPECT_EQ(Margins(), 50);
    EXPECT_EQ(world.platform.print_questions.size(), 2U);
    EXPECT_FALSE(Shows(kHeel));
}

TEST_F(NoticeBarTest, EveryExportAsksForTheMarginsFirst) {
    for (const char *command : {"mnu_filedxf", "mnu_filepdf", "mnu_filesvg"}) {
        OpenHeel("20", "30");
        Rib().Modifie = false;
        ExpectMarginsQuestion(BoxAnswer::yes);
        Choose(command, "");
        EXPECT_EQ(Margins(), 50) << command;
        Rib().Modifie = false;
    }
}

TEST_F(NoticeBarTest, ExportsWithoutMarginsToConfirmAskNothing) {
    OpenHeel("0", "0");
    EXPECT_FALSE(Shows(kHeel));
    Choose("mnu_filesvg", world.folder.Path("heel.svg"));
    EXPECT_TRUE(Exists("heel.svg"));
    EXPECT_TRUE(world.platform.boxes.empty());
}

TEST_F(NoticeBarTest, MarginsThatAreTooLongStopTheExport) {
    OpenHeel("150", "51");
    ExpectMarginsQuestion(BoxAnswer::yes);
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("201 mm > 200 mm")});
    world.Action("mnu_filesvg")->trigger();
    EXPECT_TRUE(world.platform.file_questions.size() == 1U); // the one that opened the rib
    EXPECT_TRUE(Shows(kHeel));
}

TEST_F(NoticeBarTest, ASaveApartFromTheAirfoilSaysWhereThatWillBeSearched) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    Choose("mnu_filesaveas", world.folder.Path("ribs/new.lfw"));
    ASSERT_TRUE(Shows("notice_airfoil_elsewhere"));
    EXPECT_THAT(world.Main().Label("notice_airfoil_elsewhere_text"),
                testing::EndsWith(", then in " + world.folder.Path("ribs") + "."));
    EXPECT_EQ(Caption(), "Loftwing Rib : new.lfw  Airfoil : naca2412");
    EXPECT_TRUE(world.platform.boxes.empty());
    world.window->OuvreFichier(world.folder.Path("airfoils/naca2412.dat"));
    EXPECT_FALSE(Shows("notice_airfoil_elsewhere"));
    Choose("mnu_filesaveas", world.folder.Path("ribs/other.lfw"));
    EXPECT_FALSE(Shows("notice_airfoil_elsewhere"));
}

TEST_F(NoticeBarTest, AnAirfoilThatIsDrawnInPartSaysUpToWhereAndWhy) {
    std::vector<std::string> lines = SplitLines(ReadWholeFile(WindowWorld::Sample("naca2412.dat")));
    lines.at(47) = "0.0015 -0.0125"; // behind the title each line is the point of its number
    lines.at(48) = "0.0075 -0.0125";
    std::string bytes;
    for (const std::string &line : lines) {
        bytes += line + "\n";
    }
    world.platform.Expect(BoxAnswer::ok, {.title = " Calcul/Alocate"});
    world.window->OuvreFichier(world.folder.File("part.dat", bytes));
    ASSERT_TRUE(Shows("notice_contour"));
    // The six points around segment 45 are the first that hold both.
    EXPECT_EQ(
        world.Main().Label("notice_contour_text"),
        "Only a part of this airfoil can be drawn, up to its point 45 of 91. part.dat, points "
        "47 and 48 at the same height, y = -0.0125.");
    EXPECT_NE(Drawing(), nullptr);
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    EXPECT_FALSE(Shows("notice_contour"));
}

TEST_F(NoticeBarTest, SeveralNoticesStandBelowOneAnother) {
    OpenHeel("20", "30");
    Rib().CheminProfil = WindowWorld::Sample("naca2412.dat");
    Choose("mnu_filesaveas", world.folder.Path("ribs/new.lfw"));
    ASSERT_TRUE(Shows(kHeel));
    ASSERT_TRUE(Shows("notice_airfoil_elsewhere"));
    const QRect first = world.Find<QWidget>(kHeel)->geometry();
    const QRect second = world.Find<QWidget>("notice_airfoil_elsewhere")->geometry();
    EXPECT_GT(second.top(), first.bottom());
    world.Main().Click("notice_heel_margins_close");
    EXPECT_FALSE(Shows(kHeel));
    EXPECT_TRUE(Shows("notice_airfoil_elsewhere"));
}

constexpr const char *kUnit = "notice_unit";
constexpr const char *kUnitButton = "notice_unit_button";

TEST_F(NoticeBarTest, ARibInInchesIsOpenedInInchesByOneClick) {
    OpenBytes("inches.lfw", LadenRib("0", true).Current());
    ASSERT_TRUE(Shows(kUnit));
    EXPECT_EQ(world.Panel(3), "unit : mm");
    EXPECT_EQ(Rib().corde, 6.1F);
    world.Main().Click({kUnitButton, 0});
    EXPECT_EQ(Rib().corde, 165.1F); // 6.1/2 inches
    EXPECT_EQ(Rib().cordeAfich, "6.1/2");
    EXPECT_EQ(Rib().longeron[0].LargLong, 6.35F);
    EXPECT_EQ(world.Panel(3), "unit : in");
    EXPECT_EQ(Caption(), "Loftwing Rib : inches.lfw Airfoil : naca2412");
    EXPECT_FALSE(Shows(kUnit));
    EXPECT_TRUE(world.platform.boxes.empty());
    // The next rib is read in the user's own unit again.
    OpenBytes("mm.lfw", ComponentsText{}.Current());
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_EQ(world.Panel(3), "unit : mm");
    EXPECT_EQ(world.programme.settings.page.MargeHautAfich, "10");
}

TEST_F(NoticeBarTest, NothingIsReadAnewWithoutTheClick) {
    OpenBytes("inches.lfw", LadenRib("0", true).Current());
    ASSERT_TRUE(Shows(kUnit));
    world.Main().Click("notice_unit_close");
    EXPECT_FALSE(Shows(kUnit));
    EXPECT_EQ(Rib().corde, 6.1F);
    Choose("mnu_filesaveas", world.folder.Path("ribs/again.lfw"));
    EXPECT_EQ(world.folder.Bytes("ribs/again.lfw"), LadenRib("0", true).Current());
}

TEST_F(NoticeBarTest, ChangesAreAskedAboutBeforeTheOtherUnit) {
    OpenBytes("inches.lfw", LadenRib("0", true).Current());
    ASSERT_TRUE(Shows(kUnit));
    Rib().Modifie = true;
    world.platform.Expect(BoxAnswer::no, {.text = HasSubstr("Open another rib all the same?")});
    world.Main().Click({kUnitButton, 0});
    EXPECT_EQ(Rib().corde, 6.1F);
    EXPECT_TRUE(Shows(kUnit));
}

TEST_F(NoticeBarTest, ATypedChordBringsNoDoubtOfTheUnit) {
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    world.Run("mnu_profilcorde", {[](Seen &dialog) {
                  dialog.Type("infotxt", "38");
                  dialog.Key("infotxt", Qt::Key_Return);
              }});
    EXPECT_EQ(Rib().corde, 38.0F);
    EXPECT_FALSE(Shows(kUnit));
}

TEST(NoticeBarInInches, ARibInMillimetresIsOfferedInMillimetres) {
    WindowWorld world("English", "in");
    world.folder.File("airfoils/naca2412.dat", ReadWholeFile(WindowWorld::Sample("naca2412.dat")));
    world.Open().OuvreFichier(world.folder.File("rib.lfw", ComponentsText{}.Current()));
    QApplication::processEvents();
    ASSERT_TRUE(world.Main().Shown(kUnit));
    EXPECT_EQ(world.Main().Word({kUnitButton, 0}), "Open it in millimetres");
    world.Main().Click({kUnitButton, 0});
    EXPECT_EQ(world.programme.rib.corde, 200.0F);
    EXPECT_EQ(world.Panel(3), "unit : mm");
    EXPECT_FALSE(world.Main().Has(kUnit) && world.Main().Shown(kUnit));
}

TEST(NoticeBarLooks, NothingIsCutInAnyLanguageUnitOrSize) {
    for (const char *language : {"English", "French"}) {
        for (const char *unit : {"mm", "in"}) {
            for (const double scale : {1.0, 1.5}) {
                const FontScale larger(scale);
                WindowWorld world(language, unit);
                world.folder.File("airfoils/naca2412.dat",
                                  ReadWholeFile(WindowWorld::Sample("naca2412.dat")));
                world.Open().OuvreFichier(world.folder.File(
                    "r.lfw", LadenRib("11", unit == std::string("in")).Current()));
                ASSERT_TRUE(world.Main().Shown(kHeel)) << language;
                QApplication::processEvents();
                ExpectNothingCut(*world.Find<QFrame>(kHeel));
            }
        }
    }
}

} // namespace
} // namespace loftwing
