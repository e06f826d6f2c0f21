#include "output/frmcoul.h"

#include "support/test_printer.h"
#include "windows/dialog_fixture.h"

#include <QApplication>
#include <QImage>

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class FrmcoulTest : public DialogTest {
  protected:
    FrmcoulTest() { ValeursDefautTraits(programme.settings); }

    /// Shows the dialog as a command does, lets `user` act in it, and tells how it was left.
    Left Use(const User &user) {
        frmcoul dialog(programme, nullptr);
        return UseModal(dialog, user);
    }
    Trait &Of(Element element) { return programme.settings.TraitDe(element); }
};

TEST_F(FrmcoulTest, ShowsItsWordsInEnglish) {
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Print colors and styles");
        const char *rows[] = {"Airfoil",      "Sheeting",      "Axes",     "Spars",
                              "Leading Edge", "Trailing Edge", "Holes",    "Station lines",
                              "Foam",         "Airfoil 1",     "Airfoil 2"};
        for (int i = 0; i < 11; ++i) {
            EXPECT_EQ(dialog.Label({"Label1", i}), rows[i]);
        }
        EXPECT_EQ(dialog.Label("Label2(0)"), "Colors");
        EXPECT_EQ(dialog.Label("Label2(1)"), "Style");
        EXPECT_EQ(dialog.Label("Label2(2)"), "Width");
        EXPECT_EQ(dialog.Label("Label3"), "Compare 2 Airfoils");
        EXPECT_EQ(dialog.Word("cmdImprtest"), "Print Test");
        EXPECT_EQ(dialog.Tip("cmdImprtest"),
                  "Print a page that shows all colors, styles and widths");
        EXPECT_EQ(dialog.Word("cmdannuler"), "Cancel");
    });
}

TEST_F(FrmcoulTest, ShowsItsWordsInFrench) {
    Language("French");
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Couleurs et styles d’impression");
        EXPECT_EQ(dialog.Label("Label1(5)"), "Bord de fuite");
        EXPECT_EQ(dialog.Label("Label2(2)"), "Épaisseur");
        EXPECT_EQ(dialog.Word("cmdImprtest"), "Imprimer un test");
    });
}

TEST_F(FrmcoulTest, ShowsTheNumbersInForce) {
    Of(Element::bloc) = {7, 2, 3};
    Of(Element::profil2) = {4, 1, 1};
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Text({"txtcoul", 2}), "12");
        EXPECT_EQ(dialog.Text({"txtline", 2}), "3");
        EXPECT_EQ(dialog.Text({"txtcoul", 8}), "7");
        EXPECT_EQ(dialog.Text({"txtline", 8}), "2");
        EXPECT_EQ(dialog.Text({"txtEpR", 7}), "3");
        EXPECT_EQ(dialog.Text({"txtcoul", 10}), "4");
        EXPECT_EQ(dialog.Text({"txtline", 10}), "1");
    });
}

/// The colour in the middle of a patch, and off its diagonals.
QColor PatchColour(const Seen &dialog, int index) {
    const QImage patch = dialog.Find({"Swatch", index}).grab().toImage();
    return patch.pixelColor(patch.width() / 2, patch.height() / 4);
}

TEST_F(FrmcoulTest, APatchBesideEachNumberHasItsColour) {
    Of(Element::bloc).couleur = 10;
    Use([](Seen &dialog) {
        for (int i = 0; i < 11; ++i) {
            const int number = dialog.Box({"txtcoul", i}).text().toInt();
            EXPECT_EQ(PatchColour(dialog, i), QColor::fromRgb(PaletteColour(number))) << i;
            EXPECT_EQ(dialog.Find({"Swatch", i}).geometry().center().y(),
                      dialog.Box({"txtcoul", i}).geometry().center().y());
        }
        EXPECT_EQ(PatchColour(dialog, 8), QColor(0, 255, 0));
    });
}

TEST_F(FrmcoulTest, APatchFollowsWhatIsTyped) {
    Use([](Seen &dialog) {
        const QColor none = dialog.Window().palette().color(QPalette::Window);
        dialog.Type({"txtcoul", 3}, "14");
        EXPECT_EQ(PatchColour(dialog, 3), QColor(255, 255, 0));
        for (const char *refused : {"15", "99999"}) {
            dialog.Type({"txtcoul", 3}, refused);
            EXPECT_EQ(PatchColour(dialog, 3), none) << refused;
        }
        dialog.Type({"txtcoul", 3}, "4");
        EXPECT_EQ(PatchColour(dialog, 3), QColor(128, 0, 0));
    });
}

TEST_F(FrmcoulTest, AxesAndComparedAirfoilsHaveNoWidthBox) {
    Use([](Seen &dialog) {
        EXPECT_FALSE(dialog.Has("txtEpR(8)"));
        EXPECT_EQ(dialog.Label("LabelFixe"), "Non Modifiable");
    });
}

TEST_F(FrmcoulTest, BoxesTakeDigitsOnlyAndSelectThemselves) {
    Use([](Seen &dialog) {
        for (const char *list : {"txtcoul", "txtline", "txtEpR"}) {
            dialog.Type({list, 3}, "a-1./2%");
            EXPECT_EQ(dialog.Text({list, 3}), "12") << list;
            EXPECT_EQ(dialog.Tip({list, 3}), " Entre 0 et 3 ") << list;
            dialog.GoTo({list, 4});
            EXPECT_EQ(dialog.Selected({list, 4}), dialog.Text({list, 4})) << list;
        }
    });
}

TEST_F(FrmcoulTest, OkStoresAndWritesTheThreeSections) {
    programme.rib.texte.TailleFont = 8;
    const Left left = Use([](Seen &dialog) {
        dialog.Type({"txtcoul", 0}, "14");
        dialog.Type({"txtcoul", 10}, "3");
        dialog.Type({"txtline", 9}, "4");
        dialog.Type({"txtEpR", 2}, "3");
        dialog.Click("cmdok");
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

struct RefusedEntry {
    const char *list;
    int index;
    const char *text;
    const char *box;
};

class FrmcoulRefuses : public FrmcoulTest, public testing::WithParamInterface<RefusedEntry> {};

TEST_P(FrmcoulRefuses, AtOkAndAtCancelWithTheFocusOnTheFault) {
    const RefusedEntry &refused = GetParam();
    for (const char *button : {"cmdok", "cmdannuler"}) {
        const Left left = Use([&](Seen &dialog) {
            dialog.Type({refused.list, refused.index}, refused.text);
            dialog.GoTo(button);
            platform.Expect(BoxAnswer::ok);
            dialog.Click(button);
            EXPECT_EQ(platform.boxes.back().text, refused.box);
            EXPECT_EQ(platform.boxes.back().title, "Loftwing");
            EXPECT_EQ(platform.boxes.back().icon, BoxIcon::warning);
            QLineEdit &box = dialog.Box({refused.list, refused.index});
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

INSTANTIATE_TEST_SUITE_P(Ranges, FrmcoulRefuses,
                         testing::Values(RefusedEntry{"txtcoul", 0, "15", kColours},
                                         RefusedEntry{"txtcoul", 10, "16", kColours},
                                         RefusedEntry{"txtline", 0, "5", kStyles},
                                         RefusedEntry{"txtline", 10, "9", kStyles},
                                         RefusedEntry{"txtEpR", 0, "0", kWidths},
                                         RefusedEntry{"txtEpR", 7, "4", kWidths}));

TEST_F(FrmcoulTest, OnlyTheFirstFaultIsTold) {
    Use([this](Seen &dialog) {
        dialog.Type({"txtEpR", 0}, "4");
        dialog.Type({"txtline", 2}, "5");
        dialog.Type({"txtline", 1}, "5");
        platform.Expect(BoxAnswer::ok);
        dialog.Click("cmdok");
        EXPECT_EQ(platform.boxes.back().text, kStyles);
        EXPECT_TRUE(dialog.Focused({"txtline", 1}));
    });
}

TEST_F(FrmcoulTest, RefusedNumbersAreInForceUntilCancel) {
    const Left left = Use([this](Seen &dialog) {
        dialog.Type({"txtcoul", 0}, "15");
        platform.Expect(BoxAnswer::ok);
        dialog.Click("cmdok");
        EXPECT_EQ(Of(Element::profil).couleur, 15);
        dialog.Type({"txtcoul", 0}, "7");
        dialog.Click("cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_EQ(Of(Element::profil).couleur, 0);
    EXPECT_EQ(Stored("Couleurs", "coulprofil"), "");
}

TEST_F(FrmcoulTest, ANumberBeyond16BitsFailsAndChangesNothing) {
    for (const char *button : {"cmdok", "cmdannuler"}) {
        const Left left = Use([&](Seen &dialog) {
            dialog.Type({"txtcoul", 0}, "7");
            dialog.Type({"txtcoul", 1}, "40000");
            platform.Expect(BoxAnswer::ok);
            dialog.Click(button);
            EXPECT_TRUE(platform.boxes.back().text.starts_with("Error # 6 in Loftwing\n"));
            EXPECT_TRUE(dialog.Focused({"txtcoul", 1}));
        });
        EXPECT_EQ(left, Left::open) << button;
        EXPECT_EQ(Of(Element::profil).couleur, 0) << button;
    }
}

TEST_F(FrmcoulTest, CancelWritesNothing) {
    for (const bool by_key : {false, true}) {
        const Left left = Use([&](Seen &dialog) {
            dialog.Type({"txtcoul", 0}, "7");
            if (by_key) {
                dialog.Key(Qt::Key_Escape);
            } else {
                dialog.Click("cmdannuler");
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
    const Left left = Use([](Seen &dialog) { dialog.Click("cmdImprtest"); });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(platform.boxes.back().text, "The test page has been sent to the printer.");
    ASSERT_EQ(platform.print_questions.size(), 1U);
    EXPECT_FALSE(platform.print_questions[0].landscape);
}

TEST_F(FrmcoulTest, HelpOpensAtItsPlace) {
    Use([](Seen &dialog) { dialog.Click("cmdaide"); });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{70}));
}

TEST_F(FrmcoulTest, LegendKeepsItsWhitePaperAndShowsTheColoursInADarkTheme) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    Use([](Seen &dialog) {
        const QImage picture = dialog.Find("Picture1").grab().toImage();
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
