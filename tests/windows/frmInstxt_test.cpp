#include "features/frmInstxt.h"

#include "support/qt_window_world.h"
#include "windows/dialog_fixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FrmInstxtTest : public DialogTest {
  protected:
    FrmInstxtTest() {
        programme.rib.NomProfil = "e205";
        programme.rib.ProfilCharge = true;
    }

    /// Shows the dialog as a command does, lets `user` act in it, and tells how it was left.
    Left Use(const User &user) {
        frmInstxt dialog(programme, view, nullptr);
        return UseModal(dialog, user);
    }

    static QComboBox &Sizes(Seen &dialog) { return dialog.Find<QComboBox>("ComboTaille"); }
    static void Size(Seen &dialog, const char *size) {
        QComboBox &sizes = Sizes(dialog);
        const int wanted = sizes.findText(size);
        ASSERT_GE(wanted, 0) << size;
        sizes.setFocus();
        while (sizes.currentIndex() != wanted) {
            QTest::keyClick(&sizes, sizes.currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
        }
    }
    std::string StoredSize() const { return Stored("InsText", "TailleFont"); }
    TexteInsere &Text() { return programme.rib.texte; }
};

TEST_F(FrmInstxtTest, ShowsItsWordsAndTheRibsLabel) {
    Text().InsTextXAfich = "12";
    Text().InsTextYAfich = "-3.5";
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Insert text mm");
        EXPECT_EQ(dialog.Label("Label1(0)"), "Enter the Text :");
        EXPECT_EQ(dialog.Label("Label1(1)"), "Enter the position of the axis from L.E");
        EXPECT_EQ(dialog.Label("Label1(2)"),
                  "Enter the position of the axis from reference line  + or -");
        EXPECT_EQ(dialog.Label("Label2"), "Size");
        EXPECT_EQ(dialog.Tip("ComboTaille"), "Size of the text in points, font Arial");
        EXPECT_EQ(dialog.Word("CmdApply"), "Apply");
        EXPECT_EQ(dialog.Word("cmdok"), "OK");
        EXPECT_EQ(dialog.Word("cmdannuler"), "Cancel");
        EXPECT_EQ(dialog.Word("cmdaide"), "Help");
        EXPECT_EQ(dialog.Text("infotxt(0)"), "e205 Chord : 200");
        EXPECT_EQ(dialog.Text("infotxt(1)"), "12");
        EXPECT_EQ(dialog.Text("infotxt(2)"), "-3.5");
        EXPECT_EQ(S(Sizes(dialog).currentText()), "9");
        EXPECT_TRUE(dialog.Focused("infotxt(0)"));
        EXPECT_EQ(dialog.Selected("infotxt(0)"), "e205 Chord : 200");
    });
}

TEST_F(FrmInstxtTest, SpeaksFrenchAndInches) {
    Language("French");
    programme.settings.Unite = kUniteIn;
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Insérer un texte in");
        EXPECT_EQ(dialog.Label("Label1(0)"), "Entrez le texte\u00a0:");
        EXPECT_EQ(dialog.Word("cmdannuler"), "Annuler");
        EXPECT_EQ(dialog.Text("infotxt(0)"), "e205 Corde : 200");
    });
}

TEST_F(FrmInstxtTest, AnUntouchedLabelShowsTheNewChord) {
    Text().InsTexte = "e205 Chord : 200";
    programme.rib.cordeAfich = "150";
    Use([](Seen &dialog) { EXPECT_EQ(dialog.Text("infotxt(0)"), "e205 Chord : 150"); });
}

TEST_F(FrmInstxtTest, TheUsersTextShowsAsItStands) {
    Text().InsTexte = "left wing";
    Text().TexteUtilisateur = true;
    Use([](Seen &dialog) { EXPECT_EQ(dialog.Text("infotxt(0)"), "left wing"); });
}

TEST_F(FrmInstxtTest, TheTextTakesEverythingAndThePlacesTheirKeys) {
    struct Row {
        std::string_view unit;
        const char *x;
        const char *y;
    };
    for (const Row &row : {Row{kUniteMm, "123.4", "-123.4"}, Row{kUniteIn, "12/3.4", "-12/3.4"}}) {
        programme.settings.Unite = row.unit;
        Use([&row](Seen &dialog) {
            dialog.Type("infotxt(0)", "Wing 2/3 -e%,:");
            EXPECT_EQ(dialog.Text("infotxt(0)"), "Wing 2/3 -e%,:");
            dialog.Type("infotxt(1)", "a-12/3.4%;");
            EXPECT_EQ(dialog.Text("infotxt(1)"), row.x);
            dialog.Type("infotxt(2)", "a-12/3.4%;");
            EXPECT_EQ(dialog.Text("infotxt(2)"), row.y);
        });
    }
}

TEST_F(FrmInstxtTest, TabGoesThroughTheFieldsDownToTheButtons) {
    Use([](Seen &dialog) {
        dialog.ExpectTabs({"infotxt(1)", "infotxt(2)", "ComboTaille", "CmdApply", "cmdok",
                           "cmdannuler", "cmdaide", "infotxt(0)"});
    });
}

TEST_F(FrmInstxtTest, AFieldIsSelectedWhenItGetsTheFocus) {
    Text().InsTextYAfich = "-12";
    Use([](Seen &dialog) {
        dialog.GoTo("infotxt(2)");
        EXPECT_EQ(dialog.Selected("infotxt(2)"), "-12");
        dialog.GoTo("infotxt(0)");
        EXPECT_EQ(dialog.Selected("infotxt(0)"), "e205 Chord : 200");
    });
}

TEST_F(FrmInstxtTest, ApplyStoresRedrawsAndStaysOpen) {
    const Left left = Use([this](Seen &dialog) {
        dialog.Type("infotxt(0)", "left wing");
        dialog.Type("infotxt(1)", "60");
        dialog.Type("infotxt(2)", "-4.5");
        dialog.Click("CmdApply");
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(Text().InsTexte, "left wing");
        EXPECT_EQ(Text().InsTextX, 60.0F);
        EXPECT_EQ(Text().InsTextY, -4.5F);
        EXPECT_TRUE(Text().TexteUtilisateur);
        EXPECT_TRUE(programme.rib.Modifie);
        EXPECT_THAT(view.asked, ElementsAre("RetraceVues", "affiche"));
        EXPECT_EQ(StoredSize(), "");
        dialog.Click("cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    // Cancel takes back nothing that was applied, and redraws once more.
    EXPECT_EQ(Text().InsTexte, "left wing");
    EXPECT_EQ(Text().InsTextX, 60.0F);
    EXPECT_THAT(view.asked, ElementsAre("RetraceVues", "affiche", "RetraceVues", "affiche"));
}

TEST_F(FrmInstxtTest, ApplyShowsTheRefreshedLabel) {
    Use([](Seen &dialog) {
        dialog.Type("infotxt(0)", "e205 Chord : 150");
        dialog.Click("CmdApply");
        EXPECT_EQ(dialog.Text("infotxt(0)"), "e205 Chord : 200");
        dialog.Type("infotxt(0)", "e205 tip Chord : 150");
        dialog.Click("CmdApply");
        EXPECT_EQ(dialog.Text("infotxt(0)"), "e205 tip Chord : 150");
    });
}

TEST_F(FrmInstxtTest, AnEmptiedTextBecomesTheLabelAgain) {
    Text().InsTexte = "left wing";
    Text().TexteUtilisateur = true;
    Use([](Seen &dialog) {
        dialog.Type("infotxt(0)", "");
        dialog.Key("infotxt(0)", Qt::Key_Backspace);
        dialog.Click("CmdApply");
        EXPECT_EQ(dialog.Text("infotxt(0)"), "e205 Chord : 200");
    });
}

TEST_F(FrmInstxtTest, OkByReturnStoresAndKeepsTheSize) {
    const Left left = Use([](Seen &dialog) {
        Size(dialog, "14");
        dialog.Type("infotxt(0)", "left");
        dialog.Key("infotxt(0)", Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Text().InsTexte, "left");
    EXPECT_EQ(Text().TailleFont, 14.0F);
    EXPECT_EQ(StoredSize(), "14");
    EXPECT_THAT(view.asked, ElementsAre("RetraceVues", "affiche"));
}

TEST_F(FrmInstxtTest, ASizeCountsAtOnceButCancelPutsTheOldOneBack) {
    Text().TailleFont = 9;
    Use([this](Seen &dialog) {
        Size(dialog, "20");
        EXPECT_EQ(Text().TailleFont, 20.0F);
        EXPECT_THAT(view.asked, IsEmpty());
        dialog.Click("cmdannuler");
    });
    EXPECT_EQ(Text().TailleFont, 9.0F);
    EXPECT_EQ(StoredSize(), "");
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmInstxtTest, AnAppliedSizeStaysButOnlyOkKeepsItForTheNextRun) {
    Use([](Seen &dialog) {
        Size(dialog, "20");
        dialog.Click("CmdApply");
        Size(dialog, "6");
        dialog.Click("cmdannuler");
    });
    EXPECT_EQ(Text().TailleFont, 20.0F);
    EXPECT_EQ(StoredSize(), "");
}

TEST_F(FrmInstxtTest, ASizeOutsideTheListShowsAndSurvives) {
    Text().TailleFont = 9.5F;
    EXPECT_EQ(Use([](Seen &dialog) {
                  EXPECT_EQ(S(Sizes(dialog).currentText()), "9.5");
                  EXPECT_EQ(Sizes(dialog).count(), 12);
                  dialog.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Text().TailleFont, 9.5F);
    EXPECT_EQ(StoredSize(), "9.5");
}

TEST_F(FrmInstxtTest, InInchesAPlaceIsKeptAsTyped) {
    programme.settings.Unite = kUniteIn;
    Use([](Seen &dialog) {
        dialog.Type("infotxt(1)", "2.1/2");
        dialog.Type("infotxt(2)", "-1/4");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(Text().InsTextXAfich, "2.1/2");
    EXPECT_EQ(Text().InsTextX, 63.5F);
    EXPECT_EQ(Text().InsTextYAfich, "-1/4");
    EXPECT_EQ(Text().InsTextY, -6.35F);
}

TEST_F(FrmInstxtTest, AFractionOfZerothsIsToldAndStoresNothing) {
    programme.settings.Unite = kUniteIn;
    platform.Expect(BoxAnswer::ok);
    platform.Expect(BoxAnswer::ok);
    const Left left = Use([this](Seen &dialog) {
        dialog.Type("infotxt(0)", "left");
        dialog.Type("infotxt(1)", "1/0");
        dialog.Click("CmdApply");
        dialog.Click("cmdok");
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(dialog.Text("infotxt(1)"), "1/0");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(platform.boxes.at(0).title, " InsText/Apply");
    EXPECT_EQ(platform.boxes.at(1).title, " InsText/OK");
    EXPECT_EQ(Text().InsTexte, "");
    EXPECT_FALSE(programme.rib.Modifie);
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(FrmInstxtTest, CancelEscapeAndTheClosingButtonStoreNothing) {
    const User ways[] = {[](Seen &dialog) { dialog.Click("cmdannuler"); },
                         [](Seen &dialog) { dialog.Key(Qt::Key_Escape); },
                         [](Seen &dialog) { dialog.Close(); }};
    for (const auto &leave : ways) {
        view.asked.clear();
        EXPECT_EQ(Use([&leave](Seen &dialog) {
                      dialog.Type("infotxt(0)", "left");
                      dialog.Type("infotxt(1)", "9");
                      leave(dialog);
                  }),
                  Left::rejected);
        EXPECT_EQ(Text().InsTexte, "");
        EXPECT_EQ(Text().InsTextXAfich, "0");
        EXPECT_FALSE(Text().TexteUtilisateur);
        EXPECT_FALSE(programme.rib.Modifie);
        EXPECT_THAT(view.asked, ElementsAre("RetraceVues", "affiche"));
    }
}

TEST_F(FrmInstxtTest, HelpOpensAtItsPlace) {
    Use([](Seen &dialog) {
        dialog.Click("cmdaide");
        dialog.Key("infotxt(0)", Qt::Key_F1);
    });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{70, 70}));
}

TEST_F(FrmInstxtTest, PastedLinesBecomeOne) {
    QGuiApplication::clipboard()->setText("left\nwing");
    Use([](Seen &dialog) {
        dialog.Box("infotxt(0)").selectAll();
        QTest::keySequence(&dialog.Box("infotxt(0)"), QKeySequence::Paste);
        dialog.Click("CmdApply");
    });
    EXPECT_EQ(Text().InsTexte, "left wing");
}

TEST_F(FrmInstxtTest, ARedrawThatClosesTheDialogEndsItsOk) {
    frmInstxt dialog(programme, view, nullptr);
    int accepted = 0;
    QObject::connect(&dialog, &QDialog::accepted, [&accepted] { ++accepted; });
    // As the main window does when the plot fails: the rib is cleared and the dialog closed.
    view.on_draw = [&dialog] { dialog.done(QDialog::Rejected); };
    EXPECT_EQ(UseModal(dialog, [](Seen &window) { window.Click("cmdok"); }), Left::rejected);
    EXPECT_EQ(accepted, 0);
    EXPECT_EQ(StoredSize(), "");
}

TEST_F(FrmInstxtTest, EverythingHasItsRoomAtDoubleFont) {
    for (const char *language : {"English", "French"}) {
        Language(language);
        frmInstxt dialog(programme, view, nullptr);
        QFont font = dialog.font();
        font.setPointSizeF(font.pointSizeF() * 2.0);
        dialog.setFont(font);
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
        for (const QWidget *child : dialog.findChildren<QWidget *>()) {
            if (child->parentWidget() == &dialog) {
                EXPECT_GE(child->width(), child->minimumSizeHint().width())
                    << language << S(child->objectName());
                EXPECT_TRUE(dialog.rect().contains(child->geometry())) << S(child->objectName());
            }
        }
    }
}

// The command.

TEST(InsertText, TheCommandChangesTheLabelOfTheRib) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    InNextDialog([](Seen &dialog) {
        EXPECT_EQ(dialog.Name(), "frmInstxt");
        EXPECT_EQ(dialog.Text("infotxt(0)"), "naca2412 Chord : 200");
        dialog.Type("infotxt(0)", "left wing");
        dialog.Key("infotxt(0)", Qt::Key_Return);
    });
    world.Action("mnu_affInstxt")->trigger();
    EXPECT_EQ(world.programme.rib.texte.InsTexte, "left wing");
    EXPECT_TRUE(world.programme.rib.Modifie);
}

TEST(InsertText, ALabelThatWasPlacedNamesTheNextAirfoil) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    InNextDialog([](Seen &dialog) {
        dialog.Type("infotxt(1)", "60");
        dialog.Key("infotxt(1)", Qt::Key_Return);
    });
    world.Action("mnu_affInstxt")->trigger();
    world.window->OuvreFichier(WindowWorld::Sample("naca0012.dat"));
    EXPECT_EQ(world.programme.rib.texte.InsTexte, "naca0012 Chord : 200");
    EXPECT_EQ(world.programme.rib.texte.InsTextX, 60.0F);
}

TEST(InsertText, TheSizeIsThereAtTheNextStartAndAResetPutsItBack) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    InNextDialog([](Seen &dialog) {
        dialog.Key("ComboTaille", Qt::Key_End);
        dialog.Click("cmdok");
    });
    world.Action("mnu_affInstxt")->trigger();
    world.programme.rib.texte.TailleFont = 9;
    world.Open();
    EXPECT_EQ(world.programme.rib.texte.TailleFont, 20.0F);
    world.Action("mnu_affclear")->trigger();
    EXPECT_EQ(world.programme.rib.texte.TailleFont, 9.0F);
    world.programme.rib.texte.TailleFont = 20;
    world.Open();
    EXPECT_EQ(world.programme.rib.texte.TailleFont, 9.0F);
}

} // namespace
} // namespace loftwing
