#include "features/frmInstxt.h"

#include "lang/ini_file.h"
#include "support/noted_view.h"
#include "support/qt_window_world.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// How the dialog was left.
enum class Left { accepted, rejected, open };

class FrmInstxtTest : public testing::Test {
  protected:
    FrmInstxtTest() {
        Language("English");
        programme.rib.NomProfil = "e205";
        programme.rib.ProfilCharge = true;
    }

    void Language(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }

    /// Shows the dialog as a command does, lets `act` be the user, and tells how it was left. A
    /// dialog that the user left open is closed behind its back.
    Left Use(const std::function<void(frmInstxt &)> &act) {
        frmInstxt dialog(programme, view, nullptr);
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

    static QLineEdit &Box(frmInstxt &dialog, int index) {
        return *dialog.findChild<QLineEdit *>(QString("infotxt(%1)").arg(index));
    }
    static QComboBox &Sizes(frmInstxt &dialog) {
        return *dialog.findChild<QComboBox *>("ComboTaille");
    }
    static QPushButton &Button(frmInstxt &dialog, const char *name) {
        return *dialog.findChild<QPushButton *>(name);
    }
    static std::string Label(frmInstxt &dialog, const char *name) {
        return S(dialog.findChild<QLabel *>(name)->text());
    }
    static void Click(frmInstxt &dialog, const char *name) {
        QTest::mouseClick(&Button(dialog, name), Qt::LeftButton);
    }
    /// Goes to a box and types over what it holds, key by key.
    static void Type(frmInstxt &dialog, int index, const char *text) {
        Box(dialog, index).setFocus();
        Box(dialog, index).selectAll();
        QTest::keyClicks(&Box(dialog, index), text);
    }
    static void Size(frmInstxt &dialog, const char *size) {
        QComboBox &sizes = Sizes(dialog);
        const int wanted = sizes.findText(size);
        ASSERT_GE(wanted, 0) << size;
        sizes.setFocus();
        while (sizes.currentIndex() != wanted) {
            QTest::keyClick(&sizes, sizes.currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
        }
    }
    std::string StoredSize() const {
        return IniFile::Read(programme.paths.fichier).Value("InsText", "TailleFont");
    }
    TexteInsere &Text() { return programme.rib.texte; }

    TempFolder folder;
    ScriptedPlatform platform;
    NotedView view;
    Programme programme{Paths{{}, {}, folder.Path("Loftwing.ini"), {}}, platform};
};

TEST_F(FrmInstxtTest, ShowsItsWordsAndTheRibsLabel) {
    Text().InsTextXAfich = "12";
    Text().InsTextYAfich = "-3.5";
    Use([](frmInstxt &dialog) {
        EXPECT_EQ(S(dialog.windowTitle()), "Insert text mm");
        EXPECT_EQ(Label(dialog, "Label1(0)"), "Enter the Text :");
        EXPECT_EQ(Label(dialog, "Label1(1)"), "Enter the position of the axe from L.E");
        EXPECT_EQ(Label(dialog, "Label1(2)"),
                  "Enter the position of the axe from reference line  + ou -");
        EXPECT_EQ(Label(dialog, "Label2"), "Size");
        EXPECT_EQ(S(Sizes(dialog).toolTip()), "Size of the text in points, font Arial");
        EXPECT_EQ(S(Button(dialog, "CmdApply").text()), "Apply");
        EXPECT_EQ(S(Button(dialog, "cmdok").text()), "OK");
        EXPECT_EQ(S(Button(dialog, "cmdannuler").text()), "Cancel");
        EXPECT_EQ(S(Button(dialog, "cmdaide").text()), "Help");
        EXPECT_EQ(S(Box(dialog, 0).text()), "e205 Chord : 200");
        EXPECT_EQ(S(Box(dialog, 1).text()), "12");
        EXPECT_EQ(S(Box(dialog, 2).text()), "-3.5");
        EXPECT_EQ(S(Sizes(dialog).currentText()), "9");
        EXPECT_TRUE(Box(dialog, 0).hasFocus());
        EXPECT_EQ(S(Box(dialog, 0).selectedText()), "e205 Chord : 200");
    });
}

TEST_F(FrmInstxtTest, SpeaksFrenchAndInches) {
    Language("French");
    programme.settings.Unite = kUniteIn;
    Use([](frmInstxt &dialog) {
        EXPECT_EQ(S(dialog.windowTitle()), "Insérer un texte in");
        EXPECT_EQ(Label(dialog, "Label1(0)"), "Entrez le texte\u00a0:");
        EXPECT_EQ(S(Button(dialog, "cmdannuler").text()), "Annuler");
        EXPECT_EQ(S(Box(dialog, 0).text()), "e205 Corde : 200");
    });
}

TEST_F(FrmInstxtTest, AnUntouchedLabelShowsTheNewChord) {
    Text().InsTexte = "e205 Chord : 200";
    programme.rib.cordeAfich = "150";
    Use([](frmInstxt &dialog) { EXPECT_EQ(S(Box(dialog, 0).text()), "e205 Chord : 150"); });
}

TEST_F(FrmInstxtTest, TheUsersTextShowsAsItStands) {
    Text().InsTexte = "left wing";
    Text().TexteUtilisateur = true;
    Use([](frmInstxt &dialog) { EXPECT_EQ(S(Box(dialog, 0).text()), "left wing"); });
}

TEST_F(FrmInstxtTest, TheTextTakesEverythingAndThePlacesTheirKeys) {
    struct Row {
        std::string_view unit;
        const char *x;
        const char *y;
    };
    for (const Row &row : {Row{kUniteMm, "123.4", "-123.4"}, Row{kUniteIn, "12/3.4", "-12/3.4"}}) {
        programme.settings.Unite = row.unit;
        Use([&row](frmInstxt &dialog) {
            Type(dialog, 0, "Wing 2/3 -e%,:");
            EXPECT_EQ(S(Box(dialog, 0).text()), "Wing 2/3 -e%,:");
            Type(dialog, 1, "a-12/3.4%,");
            EXPECT_EQ(S(Box(dialog, 1).text()), row.x);
            Type(dialog, 2, "a-12/3.4%,");
            EXPECT_EQ(S(Box(dialog, 2).text()), row.y);
        });
    }
}

TEST_F(FrmInstxtTest, TabGoesThroughTheFieldsDownToTheButtons) {
    Use([](frmInstxt &dialog) {
        for (const char *name : {"infotxt(1)", "infotxt(2)", "ComboTaille", "CmdApply", "cmdok",
                                 "cmdannuler", "cmdaide", "infotxt(0)"}) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(S(dialog.focusWidget()->objectName()), name);
        }
    });
}

TEST_F(FrmInstxtTest, AFieldIsSelectedWhenItGetsTheFocus) {
    Text().InsTextYAfich = "-12";
    Use([](frmInstxt &dialog) {
        Box(dialog, 2).setFocus();
        EXPECT_EQ(S(Box(dialog, 2).selectedText()), "-12");
        Box(dialog, 0).setFocus();
        EXPECT_EQ(S(Box(dialog, 0).selectedText()), "e205 Chord : 200");
    });
}

TEST_F(FrmInstxtTest, ApplyStoresRedrawsAndStaysOpen) {
    const Left left = Use([this](frmInstxt &dialog) {
        Type(dialog, 0, "left wing");
        Type(dialog, 1, "60");
        Type(dialog, 2, "-4.5");
        Click(dialog, "CmdApply");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(Text().InsTexte, "left wing");
        EXPECT_EQ(Text().InsTextX, 60.0F);
        EXPECT_EQ(Text().InsTextY, -4.5F);
        EXPECT_TRUE(Text().TexteUtilisateur);
        EXPECT_TRUE(programme.rib.Modifie);
        EXPECT_THAT(view.asked, ElementsAre("RetraceVues", "affiche"));
        EXPECT_EQ(StoredSize(), "");
        Click(dialog, "cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    // Cancel takes back nothing that was applied, and redraws once more.
    EXPECT_EQ(Text().InsTexte, "left wing");
    EXPECT_EQ(Text().InsTextX, 60.0F);
    EXPECT_THAT(view.asked, ElementsAre("RetraceVues", "affiche", "RetraceVues", "affiche"));
}

TEST_F(FrmInstxtTest, ApplyShowsTheRefreshedLabel) {
    Use([](frmInstxt &dialog) {
        Type(dialog, 0, "e205 Chord : 150");
        Click(dialog, "CmdApply");
        EXPECT_EQ(S(Box(dialog, 0).text()), "e205 Chord : 200");
        Type(dialog, 0, "e205 tip Chord : 150");
        Click(dialog, "CmdApply");
        EXPECT_EQ(S(Box(dialog, 0).text()), "e205 tip Chord : 150");
    });
}

TEST_F(FrmInstxtTest, AnEmptiedTextBecomesTheLabelAgain) {
    Text().InsTexte = "left wing";
    Text().TexteUtilisateur = true;
    Use([](frmInstxt &dialog) {
        Type(dialog, 0, "");
        QTest::keyClick(&Box(dialog, 0), Qt::Key_Backspace);
        Click(dialog, "CmdApply");
        EXPECT_EQ(S(Box(dialog, 0).text()), "e205 Chord : 200");
    });
}

TEST_F(FrmInstxtTest, OkByReturnStoresAndKeepsTheSize) {
    const Left left = Use([](frmInstxt &dialog) {
        Size(dialog, "14");
        Type(dialog, 0, "left");
        QTest::keyClick(&Box(dialog, 0), Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Text().InsTexte, "left");
    EXPECT_EQ(Text().TailleFont, 14.0F);
    EXPECT_EQ(StoredSize(), "14");
    EXPECT_THAT(view.asked, ElementsAre("RetraceVues", "affiche"));
}

TEST_F(FrmInstxtTest, ASizeCountsAtOnceButCancelPutsTheOldOneBack) {
    Text().TailleFont = 9;
    Use([this](frmInstxt &dialog) {
        Size(dialog, "20");
        EXPECT_EQ(Text().TailleFont, 20.0F);
        EXPECT_THAT(view.asked, IsEmpty());
        Click(dialog, "cmdannuler");
    });
    EXPECT_EQ(Text().TailleFont, 9.0F);
    EXPECT_EQ(StoredSize(), "");
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmInstxtTest, AnAppliedSizeStaysButOnlyOkKeepsItForTheNextRun) {
    Use([](frmInstxt &dialog) {
        Size(dialog, "20");
        Click(dialog, "CmdApply");
        Size(dialog, "6");
        Click(dialog, "cmdannuler");
    });
    EXPECT_EQ(Text().TailleFont, 20.0F);
    EXPECT_EQ(StoredSize(), "");
}

TEST_F(FrmInstxtTest, ASizeOutsideTheListShowsAndSurvives) {
    Text().TailleFont = 9.5F;
    EXPECT_EQ(Use([](frmInstxt &dialog) {
                  EXPECT_EQ(S(Sizes(dialog).currentText()), "9.5");
                  EXPECT_EQ(Sizes(dialog).count(), 12);
                  Click(dialog, "cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Text().TailleFont, 9.5F);
    EXPECT_EQ(StoredSize(), "9.5");
}

TEST_F(FrmInstxtTest, InInchesAPlaceIsKeptAsTyped) {
    programme.settings.Unite = kUniteIn;
    Use([](frmInstxt &dialog) {
        Type(dialog, 1, "2.1/2");
        Type(dialog, 2, "-1/4");
        Click(dialog, "cmdok");
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
    const Left left = Use([this](frmInstxt &dialog) {
        Type(dialog, 0, "left");
        Type(dialog, 1, "1/0");
        Click(dialog, "CmdApply");
        Click(dialog, "cmdok");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(S(Box(dialog, 1).text()), "1/0");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(platform.boxes.at(0).title, " InsText/Apply");
    EXPECT_EQ(platform.boxes.at(1).title, " InsText/OK");
    EXPECT_EQ(Text().InsTexte, "");
    EXPECT_FALSE(programme.rib.Modifie);
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(FrmInstxtTest, CancelEscapeAndTheClosingButtonStoreNothing) {
    const std::function<void(frmInstxt &)> ways[] = {
        [](frmInstxt &dialog) { Click(dialog, "cmdannuler"); },
        [](frmInstxt &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
        [](frmInstxt &dialog) { dialog.close(); }};
    for (const auto &leave : ways) {
        view.asked.clear();
        EXPECT_EQ(Use([&leave](frmInstxt &dialog) {
                      Type(dialog, 0, "left");
                      Type(dialog, 1, "9");
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
    Use([](frmInstxt &dialog) {
        Click(dialog, "cmdaide");
        QTest::keyClick(&Box(dialog, 0), Qt::Key_F1);
    });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{70, 70}));
}

TEST_F(FrmInstxtTest, PastedLinesBecomeOne) {
    QGuiApplication::clipboard()->setText("left\nwing");
    Use([](frmInstxt &dialog) {
        Box(dialog, 0).selectAll();
        QTest::keySequence(&Box(dialog, 0), QKeySequence::Paste);
        Click(dialog, "CmdApply");
    });
    EXPECT_EQ(Text().InsTexte, "left wing");
}

TEST_F(FrmInstxtTest, ARedrawThatClosesTheDialogEndsItsOk) {
    // As the main window does when the plot fails: the rib is cleared and the dialog closed.
    struct ClearingView : NotedView {
        std::function<void()> on_draw;
        void affiche() override { on_draw(); }
    } clearing;
    frmInstxt dialog(programme, clearing, nullptr);
    int accepted = 0;
    QObject::connect(&dialog, &QDialog::accepted, [&accepted] { ++accepted; });
    clearing.on_draw = [&dialog] { dialog.done(QDialog::Rejected); };
    QTimer::singleShot(0, &dialog, [&dialog] { Click(dialog, "cmdok"); });
    EXPECT_EQ(ShowModal(dialog), QDialog::Rejected);
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
        QTest::qWait(0);
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
    InNextDialog([](QDialog &dialog) {
        EXPECT_EQ(S(dialog.objectName()), "frmInstxt");
        auto *box = dialog.findChild<QLineEdit *>("infotxt(0)");
        EXPECT_EQ(S(box->text()), "naca2412 Chord : 200");
        box->selectAll();
        QTest::keyClicks(box, "left wing");
        QTest::keyClick(box, Qt::Key_Return);
    });
    world.Action("mnu_affInstxt")->trigger();
    EXPECT_EQ(world.programme.rib.texte.InsTexte, "left wing");
    EXPECT_TRUE(world.programme.rib.Modifie);
}

TEST(InsertText, TheSizeIsThereAtTheNextStartAndAResetPutsItBack) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    InNextDialog([](QDialog &dialog) {
        auto *sizes = dialog.findChild<QComboBox *>("ComboTaille");
        QTest::keyClick(sizes, Qt::Key_End);
        QTest::mouseClick(dialog.findChild<QPushButton *>("cmdok"), Qt::LeftButton);
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
