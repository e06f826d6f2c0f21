#include "mainwindow/frmaide.h"

#include "lang/aide.h"
#include "output/frmcorrection.h"
#include "support/qt_nothing_cut.h"
#include "windows/dialog_fixture.h"

#include <QGuiApplication>
#include <QImage>
#include <QScrollBar>
#include <QWindow>

#include <filesystem>

namespace loftwing {
namespace {

std::string PageOf(const std::string &title, const std::string &text) {
    return "<html><head><meta charset=\"utf-8\"><title>" + title + "</title></head><body><h1>" +
           title + "</h1>" + text + "</body></html>";
}

class FrmAideTest : public DialogTest {
  protected:
    FrmAideTest() {
        programme.paths.aide = folder.Path("help");
        for (const char *language : {"English", "French"}) {
            std::filesystem::create_directories(folder.Path("help/") + language);
        }
        Page("English", kAideVisite, "Tour", "<p><a href=\"42.html\">on to spars</a></p>");
        Page("English", kAideLongerons, "Spars", "<p>Width and depth of a notch.</p>");
        Page("English", kAideTrous, "Holes", "<p>A hole lightens a rib; spars are elsewhere.</p>");
        Page("French", kAideLongerons, "Longerons", "<p>Largeur et profondeur de l'entaille</p>");
    }

    void Page(const std::string &language, int context, const std::string &title,
              const std::string &text) {
        folder.File("help/" + language + "/" + std::to_string(context) + ".html",
                    PageOf(title, text));
    }
    static std::string Shown(const frmaide &help) {
        return S(help.findChild<HelpBrowser *>("Page")->toPlainText());
    }
    static QStringList Found(const frmaide &help) {
        QStringList titles;
        const auto *list = help.findChild<QListWidget *>("Trouves");
        for (int row = 0; row < list->count(); ++row) {
            titles += list->item(row)->text();
        }
        return titles;
    }
};

TEST_F(FrmAideTest, ShowsThePageOfAContext) {
    frmaide help(programme);
    help.Montre(kAideLongerons);
    EXPECT_TRUE(help.isVisible());
    EXPECT_EQ(help.windowTitle(), "Loftwing help");
    EXPECT_EQ(help.Contexte(), kAideLongerons);
    EXPECT_EQ(Shown(help), "Spars\nWidth and depth of a notch.");
    const QTreeWidgetItem *chosen = Seen(help).Find<QTreeWidget>("Sommaire").currentItem();
    ASSERT_NE(chosen, nullptr);
    EXPECT_EQ(chosen->text(0), "Spars");
}

TEST_F(FrmAideTest, APageThatIsNotThereIsTold) {
    frmaide help(programme);
    help.Montre(kAideCoord);
    EXPECT_EQ(Shown(help),
              "This page of the help is not there :\n" + folder.Path("help/English/80.html"));
}

TEST_F(FrmAideTest, APageThatTheLanguageLacksIsTheEnglishOne) {
    Language("French");
    frmaide help(programme);
    help.Montre(kAideLongerons);
    EXPECT_EQ(Shown(help).substr(0, 9), "Longerons");
    help.Montre(kAideTrous);
    EXPECT_EQ(Shown(help).substr(0, 5), "Holes");
}

TEST_F(FrmAideTest, FollowsTheLanguageThatIsChosenMeanwhile) {
    frmaide help(programme);
    help.Montre(kAideLongerons);
    Language("French");
    help.Montre(kAideLongerons);
    EXPECT_EQ(help.windowTitle(), "Aide de Loftwing");
    EXPECT_EQ(Shown(help).substr(0, 9), "Longerons");
}

TEST_F(FrmAideTest, ALinkLeadsOnAndBackLeadsBack) {
    frmaide help(programme);
    const Seen window(help);
    help.Montre(kAideVisite);
    EXPECT_FALSE(window.Enabled("cmdprecedent"));
    auto &page = window.Find<HelpBrowser>("Page");
    page.setFocus();
    QTest::keyClick(&page, Qt::Key_Tab); // to the link
    QTest::keyClick(&page, Qt::Key_Return);
    EXPECT_EQ(help.Contexte(), kAideLongerons);
    window.Click("cmdprecedent");
    EXPECT_EQ(help.Contexte(), kAideVisite);
    window.Click("cmdsuivant");
    EXPECT_EQ(help.Contexte(), kAideLongerons);
    window.Click("cmddebut");
    EXPECT_EQ(help.Contexte(), kAideVisite);
}

TEST_F(FrmAideTest, TheContentsLeadToPages) {
    frmaide help(programme);
    help.Montre(kAideVisite);
    auto &contents = Seen(help).Find<QTreeWidget>("Sommaire");
    const auto holes = contents.findItems("Holes", Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(holes.size(), 1);
    contents.setCurrentItem(holes.front());
    EXPECT_EQ(help.Contexte(), kAideTrous);
}

TEST_F(FrmAideTest, SearchFindsPagesByAllTheirWords) {
    frmaide help(programme);
    help.Montre(kAideVisite);
    const Seen window(help);
    window.Type("txtcherche", "spars");
    // Where the title has the word comes first, though the tour stands before it in the contents.
    EXPECT_EQ(Found(help), QStringList({"Spars", "Tour", "Holes"}));
    window.Type("txtcherche", "spars LIGHTENS");
    EXPECT_EQ(Found(help), QStringList({"Holes"}));
    window.Key("txtcherche", Qt::Key_Return);
    EXPECT_EQ(help.Contexte(), kAideTrous);
    EXPECT_EQ(window.Find<HelpBrowser>("Page").extraSelections().size(), 2);
    window.Type("txtcherche", "propeller");
    EXPECT_EQ(Found(help), QStringList({"Nothing was found"}));
    window.Key("txtcherche", Qt::Key_Return);
    EXPECT_EQ(help.Contexte(), kAideTrous);
    window.Fill("txtcherche", "");
    EXPECT_TRUE(window.Shown("Sommaire"));
    EXPECT_TRUE(window.Find<HelpBrowser>("Page").extraSelections().isEmpty());
}

TEST(HelpSearch, GoesByNeitherCaseNorAccents) {
    EXPECT_EQ(SansAccents("Épaisseur DÜNN año"), "epaisseur dunn ano");
    const std::vector<PageAide> pages = {{42, "Longerons", "épaisseur de la nervure"}};
    EXPECT_EQ(ChercheAide(pages, "EPAISSEUR nerv").size(), 1U);
    EXPECT_TRUE(ChercheAide(pages, "epaisseur corde").empty());
    EXPECT_TRUE(ChercheAide(pages, "  ").empty());
}

TEST_F(FrmAideTest, TheSizeOfLettersIsKept) {
    const double usual = QGuiApplication::font().pointSizeF();
    {
        frmaide help(programme);
        help.Montre(kAideVisite);
        const Seen window(help);
        window.Click("cmdplusgrand");
        window.Click("cmdplusgrand");
        window.Click("cmdplusgrand");
        window.Click("cmdpluspetit");
        EXPECT_DOUBLE_EQ(window.Find("Page").font().pointSizeF(), usual + 2);
        window.Click("cmdfermer");
        EXPECT_FALSE(window.IsOpen());
    }
    EXPECT_EQ(Stored("Aide", "Taille"), "2");
    frmaide help(programme);
    EXPECT_DOUBLE_EQ(Seen(help).Find("Page").font().pointSizeF(), usual + 2);
}

TEST_F(FrmAideTest, ASizeThatNobodyCanMeanIsBounded) {
    WriteINIFile("Aide", "Taille", "30000", programme.paths.fichier);
    frmaide help(programme);
    EXPECT_DOUBLE_EQ(Seen(help).Find("Page").font().pointSizeF(),
                     QGuiApplication::font().pointSizeF() + 12);
    EXPECT_FALSE(Seen(help).Enabled("cmdplusgrand"));
}

/// Whether clicks and keys reach a window of the desktop.
bool TakesInput(QWindow &window) {
    class Blocked : public QObject {
      public:
        bool eventFilter(QObject *, QEvent *event) override {
            came = came || event->type() == QEvent::MouseButtonPress;
            return false;
        }
        bool came = false;
    } seen;
    window.installEventFilter(&seen);
    QTest::mouseClick(&window, Qt::LeftButton, {}, {2, 2});
    return seen.came;
}

TEST_F(FrmAideTest, StaysUsableBesideTheDialogThatAskedForIt) {
    frmaide help(programme);
    frmcorrection dialog(programme, nullptr);
    UseModal(dialog, [&](Seen &) {
        help.Montre(kAideFeuilles);
        EXPECT_TRUE(TakesInput(*help.windowHandle()));
    });
    EXPECT_TRUE(help.isVisible());
    EXPECT_TRUE(TakesInput(*help.windowHandle()));
}

TEST_F(FrmAideTest, StaysUsableWhenADialogOpensBesideIt) {
    frmaide help(programme);
    help.Montre(kAideVisite);
    for (int times = 0; times < 2; ++times) {
        frmcorrection dialog(programme, nullptr);
        UseModal(dialog, [&](Seen &) {
            EXPECT_TRUE(Eventually([&] { return TakesInput(*help.windowHandle()); }));
            EXPECT_TRUE(help.isVisible());
        });
    }
    EXPECT_TRUE(help.isVisible());
}

/// The colour of the letters of a word on the page.
QColor ColourOf(const frmaide &help, const QString &word) {
    const auto *page = help.findChild<HelpBrowser *>("Page");
    const QTextCursor at = page->document()->find(word);
    EXPECT_FALSE(at.isNull()) << S(word);
    const QBrush brush = at.charFormat().foreground();
    return brush.style() == Qt::NoBrush ? page->palette().color(QPalette::Text) : brush.color();
}

TEST_F(FrmAideTest, FollowsTheColoursOfTheDesktop) {
    const QPalette before = QApplication::palette();
    Page("English", kAideVisite, "Tour",
         "<h2><a name=\"one\">Heading</a></h2><p>plain <a href=\"42.html\">leads on</a></p>");
    frmaide help(programme);
    help.Montre(kAideVisite);
    QPalette dark(QColor(0x30, 0x30, 0x30));
    dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Link, QColor(0x80, 0xC0, 0xFF));
    QApplication::setPalette(dark);
    QApplication::processEvents();
    EXPECT_EQ(ColourOf(help, "Heading"), QColor(Qt::white));
    EXPECT_EQ(ColourOf(help, "plain"), QColor(Qt::white));
    EXPECT_EQ(ColourOf(help, "leads"), QColor(0x80, 0xC0, 0xFF));
    QApplication::setPalette(before);
}

TEST_F(FrmAideTest, APictureIsNoWiderThanThePage) {
    QImage wide(1000, 100, QImage::Format_RGB32);
    wide.fill(Qt::red);
    ASSERT_TRUE(wide.save(Q(folder.Path("help/English/wide.png"))));
    Page("English", kAideExport, "Export", "<p><img src=\"wide.png\"></p>");
    frmaide help(programme);
    auto &page = Seen(help).Find<HelpBrowser>("Page");
    for (const int width : {1200, 700}) {
        help.resize(width, 600);
        help.Montre(kAideExport);
        QApplication::processEvents();
        EXPECT_EQ(page.horizontalScrollBar()->maximum(), 0) << width;
        EXPECT_GT(page.document()->idealWidth(), 300) << width;
    }
}

TEST_F(FrmAideTest, NothingIsCut) {
    for (const char *language : {"English", "French"}) {
        Language(language);
        for (const double scale : {1.0, 2.0}) {
            const FontScale font(scale);
            frmaide help(programme);
            help.Montre(kAideLongerons);
            ExpectNothingCut(help);
        }
    }
}

} // namespace
} // namespace loftwing
