#include "output/frmcoul.h"

#include "lang/ini_file.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/test_printer.h"

#include <QImage>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace loftwing {
namespace {

/// How the dialog was left.
enum class Left { accepted, rejected, open };

class FrmcoulTest : public testing::Test {
  protected:
    FrmcoulTest() {
        Language("English");
        ValeursDefautTraits(programme.settings);
    }

    void Language(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }

    /// Shows the dialog as a command does, lets `act` be the user, and tells how it was left. A
    /// dialog that the user left open is closed behind its back.
    Left Use(const std::function<void(frmcoul &)> &act) {
        frmcoul dialog(programme, nullptr);
        Left left = Left::open;
        QObject::connect(&dialog, &QDialog::accepted, [&] { left = Left::accepted; });
        QObject::connect(&dialog, &QDialog::rejected, [&] { left = Left::rejected; });
        QTimer::singleShot(0, &dialog, [&] {
            dialog.activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
            act(dialog);
            if (dialog.isVisible()) {
                dialog.done(2);
                left = Left::open;
            }
        });
        ShowModal(dialog);
        return left;
    }

    static QLineEdit &Box(frmcoul &dialog, const char *list, int index) {
        return *dialog.findChild<QLineEdit *>(QString("%1(%2)").arg(list).arg(index));
    }
    static void Type(frmcoul &dialog, const char *list, int index, const char *text) {
        QLineEdit &box = Box(dialog, list, index);
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, text);
    }
    static void Click(frmcoul &dialog, const char *name) {
        QTest::mouseClick(dialog.findChild<QPushButton *>(name), Qt::LeftButton);
    }
    static std::string Label(frmcoul &dialog, const char *name) {
        return dialog.findChild<QLabel *>(name)->text().toStdString();
    }
    static std::string Caption(frmcoul &dialog, const char *name) {
        return dialog.findChild<QPushButton *>(name)->text().toStdString();
    }
    std::string Stored(const char *section, const char *key) const {
        return IniFile::Read(programme.paths.fichier).Value(section, key);
    }
    Trait &Of(Element element) { return programme.settings.TraitDe(element); }

    TempFolder folder;
    ScriptedPlatform platform;
    Programme programme{Paths{{}, {}, folder.Path("Loftwing.ini"), {}}, platform};
};

TEST_F(FrmcoulTest, ShowsItsWordsInEnglish) {
    Use([](frmcoul &dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Print colors and styles");
        const char *rows[] = {"Airfoil",      "Sheeting",      "Axes",     "Spars",
                              "Leading Edge", "Trailing Edge", "Holes",    "Station lines",
                              "Foam",         "Airfoil 1",     "Airfoil 2"};
        for (int i = 0; i < 11; ++i) {
            EXPECT_EQ(Label(dialog, ("Label1(" + std::to_string(i) + ")").c_str()), rows[i]);
        }
        EXPECT_EQ(Label(dialog, "Label2(0)"), "Colors");
        EXPECT_EQ(Label(dialog, "Label2(1)"), "Style");
        EXPECT_EQ(Label(dialog, "Label2(2)"), "Width");
        EXPECT_EQ(Label(dialog, "Label3"), "Compare 2 Airfoils");
        EXPECT_EQ(Caption(dialog, "cmdImprtest"), "Print Test");
        EXPECT_EQ(dialog.findChild<QPushButton *>("cmdImprtest")->toolTip(),
                  "Print a page that shows all colors, styles and widths");
        EXPECT_EQ(Caption(dialog, "cmdannuler"), "Cancel");
    });
}

TEST_F(FrmcoulTest, ShowsItsWordsInFrench) {
    Language("French");
    Use([](frmcoul &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Couleurs et styles d’impression");
        EXPECT_EQ(Label(dialog, "Label1(5)"), "Bord de fuite");
        EXPECT_EQ(Label(dialog, "Label2(2)"), "Épaisseur");
        EXPECT_EQ(Caption(dialog, "cmdImprtest"), "Imprimer un test");
    });
}

TEST_F(FrmcoulTest, ShowsTheNumbersInForce) {
    Of(Element::bloc) = {7, 2, 3};
    Of(Element::profil2) = {4, 1, 1};
    Use([](frmcoul &dialog) {
        EXPECT_EQ(Box(dialog, "txtcoul", 2).text(), "12");
        EXPECT_EQ(Box(dialog, "txtline", 2).text(), "3");
        EXPECT_EQ(Box(dialog, "txtcoul", 8).text(), "7");
        EXPECT_EQ(Box(dialog, "txtline", 8).text(), "2");
        EXPECT_EQ(Box(dialog, "txtEpR", 7).text(), "3");
        EXPECT_EQ(Box(dialog, "txtcoul", 10).text(), "4");
        EXPECT_EQ(Box(dialog, "txtline", 10).text(), "1");
    });
}

TEST_F(FrmcoulTest, AxesAndComparedAirfoilsHaveNoWidthBox) {
    Use([](frmcoul &dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit *>("txtEpR(8)"), nullptr);
        EXPECT_EQ(Label(dialog, "LabelFixe"), "Non Modifiable");
    });
}

TEST_F(FrmcoulTest, BoxesTakeDigitsOnlyAndSelectThemselves) {
    Use([](frmcoul &dialog) {
        for (const char *list : {"txtcoul", "txtline", "txtEpR"}) {
            Type(dialog, list, 3, "a-1./2%");
            EXPECT_EQ(Box(dialog, list, 3).text(), "12") << list;
            EXPECT_EQ(Box(dialog, list, 3).toolTip(), " Entre 0 et 3 ") << list;
            Box(dialog, list, 4).setFocus();
            EXPECT_EQ(Box(dialog, list, 4).selectedText(), Box(dialog, list, 4).text()) << list;
        }
    });
}

TEST_F(FrmcoulTest, OkStoresAndWritesTheThreeSections) {
    programme.rib.texte.TailleFont = 8;
    const Left left = Use([](frmcoul &dialog) {
        Type(dialog, "txtcoul", 0, "14");
        Type(dialog, "txtcoul", 10, "3");
        Type(dialog, "txtline", 9, "4");
        Type(dialog, "txtEpR", 2, "3");
        Click(dialog, "cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Of(Element::profil).couleur, 14);
    EXPECT_EQ(Of(Element::longeron).epaisseur, 3);
    EXPECT_EQ(Of(Element::axe).epaisseur, 1);
    EXPECT_EQ(Stored("Couleurs", "coulprofil"), "14");
    EXPECT_EQ(Stored("Couleurs", "coulprofil2"), "3");
    EXPECT_EQ(Stored("StyleLignes", "lineprofil1"), "4");
    EXPECT_EQ(Stored("StyleLignes", "lineaxe"), "3");
    EXPECT_EQ(Stored("Eprlines", "eplinelong"), "3");
    EXPECT_EQ(Stored("Eprlines", "profil"), "1");
    EXPECT_EQ(Stored("InsText", "TailleFont"), "8");
}

struct Refused {
    const char *list;
    int index;
    const char *text;
    const char *box;
};

class FrmcoulRefuses : public FrmcoulTest, public testing::WithParamInterface<Refused> {};

TEST_P(FrmcoulRefuses, AtOkAndAtCancelWithTheFocusOnTheFault) {
    const Refused &refused = GetParam();
    for (const char *button : {"cmdok", "cmdannuler"}) {
        const Left left = Use([&](frmcoul &dialog) {
            Type(dialog, refused.list, refused.index, refused.text);
            dialog.findChild<QPushButton *>(button)->setFocus();
            platform.Expect(BoxAnswer::ok);
            Click(dialog, button);
            EXPECT_EQ(platform.boxes.back().text, refused.box);
            EXPECT_EQ(platform.boxes.back().title, "Loftwing");
            EXPECT_EQ(platform.boxes.back().icon, BoxIcon::warning);
            QLineEdit &box = Box(dialog, refused.list, refused.index);
            EXPECT_TRUE(box.hasFocus());
            EXPECT_EQ(box.selectedText(), refused.text);
        });
        EXPECT_EQ(left, Left::open) << button;
        EXPECT_EQ(Stored("Couleurs", "coulprofil"), "") << button;
    }
}

constexpr const char *kColours = "A color is a number from 0 to 14.";
constexpr const char *kStyles = "A line style is a number from 0 to 4.";
constexpr const char *kWidths = "A line width is a number from 1 to 3.";

INSTANTIATE_TEST_SUITE_P(
    Ranges, FrmcoulRefuses,
    testing::Values(Refused{"txtcoul", 0, "15", kColours}, Refused{"txtcoul", 10, "16", kColours},
                    Refused{"txtline", 0, "5", kStyles}, Refused{"txtline", 10, "9", kStyles},
                    Refused{"txtEpR", 0, "0", kWidths}, Refused{"txtEpR", 7, "4", kWidths}));

TEST_F(FrmcoulTest, OnlyTheFirstFaultIsTold) {
    Use([this](frmcoul &dialog) {
        Type(dialog, "txtEpR", 0, "4");
        Type(dialog, "txtline", 2, "5");
        Type(dialog, "txtline", 1, "5");
        platform.Expect(BoxAnswer::ok);
        Click(dialog, "cmdok");
        EXPECT_EQ(platform.boxes.back().text, kStyles);
        EXPECT_TRUE(Box(dialog, "txtline", 1).hasFocus());
    });
}

TEST_F(FrmcoulTest, RefusedNumbersAreInForceUntilCancel) {
    const Left left = Use([this](frmcoul &dialog) {
        Type(dialog, "txtcoul", 0, "15");
        platform.Expect(BoxAnswer::ok);
        Click(dialog, "cmdok");
        EXPECT_EQ(Of(Element::profil).couleur, 15);
        Type(dialog, "txtcoul", 0, "7");
        Click(dialog, "cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_EQ(Of(Element::profil).couleur, 0);
    EXPECT_EQ(Stored("Couleurs", "coulprofil"), "");
}

TEST_F(FrmcoulTest, ANumberBeyond16BitsFailsAndChangesNothing) {
    for (const char *button : {"cmdok", "cmdannuler"}) {
        const Left left = Use([&](frmcoul &dialog) {
            Type(dialog, "txtcoul", 0, "7");
            Type(dialog, "txtcoul", 1, "40000");
            platform.Expect(BoxAnswer::ok);
            Click(dialog, button);
            EXPECT_TRUE(platform.boxes.back().text.starts_with("Error # 6 in Loftwing\n"));
            EXPECT_TRUE(Box(dialog, "txtcoul", 1).hasFocus());
        });
        EXPECT_EQ(left, Left::open) << button;
        EXPECT_EQ(Of(Element::profil).couleur, 0) << button;
    }
}

TEST_F(FrmcoulTest, CancelWritesNothing) {
    for (const bool by_key : {false, true}) {
        const Left left = Use([&](frmcoul &dialog) {
            Type(dialog, "txtcoul", 0, "7");
            if (by_key) {
                QTest::keyClick(&dialog, Qt::Key_Escape);
            } else {
                Click(dialog, "cmdannuler");
            }
        });
        EXPECT_EQ(left, Left::rejected);
        EXPECT_EQ(Of(Element::profil).couleur, 0);
        EXPECT_EQ(Stored("Couleurs", "coulprofil"), "");
    }
}

TEST_F(FrmcoulTest, TestPageIsPrinted) {
    platform.make_printer = [](const PrintQuestion &) { return std::make_unique<TestPrinter>(); };
    platform.Expect(BoxAnswer::ok);
    const Left left = Use([](frmcoul &dialog) { Click(dialog, "cmdImprtest"); });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(platform.boxes.back().text, "The test page has been sent to the printer.");
    ASSERT_EQ(platform.print_questions.size(), 1U);
    EXPECT_FALSE(platform.print_questions[0].landscape);
}

TEST_F(FrmcoulTest, HelpOpensAtItsPlace) {
    Use([](frmcoul &dialog) { Click(dialog, "cmdaide"); });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{70}));
}

TEST_F(FrmcoulTest, LegendKeepsItsWhitePaperAndShowsTheColoursInADarkTheme) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    Use([](frmcoul &dialog) {
        const QImage picture = dialog.findChild<QWidget *>("Picture1")->grab().toImage();
        EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white));
        for (int number = 0; number <= 14; ++number) {
            const QRgb wanted = 0xFF000000U | PaletteColour(number);
            int found = 0;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    found += picture.pixel(x, y) == wanted ? 1 : 0;
                }
            }
            EXPECT_GT(found, 20) << number;
        }
    });
    QApplication::setPalette(before);
}

} // namespace
} // namespace loftwing
