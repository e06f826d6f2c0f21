#include "persist/frmdefaut.h"

#include "lang/ini_file.h"
#include "support/noted_view.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// How the dialog was left.
enum class Left { accepted, rejected, open };

using Texts = std::vector<std::string>;

const Texts kOnFile = {"180", "2", "3", "", "10", "12"};
const Texts kInches = {"8", "1/16", "0", "0", "0", "0"};
const Texts kMillimetres = {"200", "1.5", "0", "0", "0", "0"};

class FrmdefautTest : public testing::Test {
  protected:
    FrmdefautTest() {
        Language("English");
        folder.File("Loftwing.ini",
                    "[Defaut]\r\nunit= mm\r\ncordeAfich=180\r\nEpCoffrageAfich=2\r\n"
                    "EpBAAfich=3\r\nHTblocAfich=\r\nBAblocAfich=10\r\nBFblocAfich=12\r\n");
        programme.settings.repertoires = {"/home/me/airfoils", "/home/me/sets", "/home/me/other"};
    }

    void Language(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }

    /// Shows the dialog as a command does, lets `act` be the user, and tells how it was left. A
    /// dialog that the user left open is closed behind its back.
    Left Use(const std::function<void(frmdefaut &)> &act) {
        frmdefaut dialog(programme, view, nullptr);
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

    template <class Widget>
    static Widget &Find(frmdefaut &dialog, const char *name) {
        return *dialog.findChild<Widget *>(name);
    }
    static QLineEdit &Box(frmdefaut &dialog, int index) {
        return *dialog.findChild<QLineEdit *>(QString("txtdef(%1)").arg(index));
    }
    static Texts Shown(frmdefaut &dialog) {
        Texts texts;
        for (int i = 0; i < kChampsDefaut; ++i) {
            texts.push_back(S(Box(dialog, i).text()));
        }
        return texts;
    }
    static void ExpectUnit(frmdefaut &dialog, const std::string &unit) {
        for (int i = 0; i < kChampsDefaut; ++i) {
            EXPECT_EQ(S(dialog.findChild<QLabel *>(QString("Label1(%1)").arg(i))->text()), unit);
        }
        EXPECT_EQ(Find<QRadioButton>(dialog, "inches").isChecked(), unit == " in");
        EXPECT_EQ(Find<QRadioButton>(dialog, "mm").isChecked(), unit == " mm");
    }
    static void Click(frmdefaut &dialog, const char *name) {
        auto &button = Find<QAbstractButton>(dialog, name);
        // On a radio button only the mark and its words take clicks.
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
    }
    static void Type(frmdefaut &dialog, int index, const char *text) {
        Box(dialog, index).setFocus();
        Box(dialog, index).selectAll();
        if (*text == '\0') {
            QTest::keyClick(&Box(dialog, index), Qt::Key_Backspace);
        }
        QTest::keyClicks(&Box(dialog, index), text);
    }
    std::string Stored(const char *section, const char *key) const {
        return IniFile::Read(programme.paths.fichier).Value(section, key);
    }
    const RibModel &Rib() const { return programme.rib; }
    const MiseEnPage &Page() const { return programme.settings.page; }

    TempFolder folder;
    ScriptedPlatform platform;
    NotedView view;
    Programme programme{Paths{{}, {}, folder.Path("Loftwing.ini"), {}}, platform};
};

TEST_F(FrmdefautTest, ShowsItsWords) {
    Use([](frmdefaut &dialog) {
        EXPECT_EQ(S(dialog.windowTitle()), "Template defaults");
        const char *captions[] = {"Chord",           "Sheeting thickness", "Leading Edge",
                                  "Template height", "Ramp Leading Edge",  "Ramp Traiding Edge"};
        for (int i = 0; i < kChampsDefaut; ++i) {
            EXPECT_EQ(dialog.findChild<QLabel *>(QString("Label2(%1)").arg(i))->text(),
                      captions[i]);
        }
        EXPECT_EQ(Find<QGroupBox>(dialog, "Frame5").title(), "Units");
        EXPECT_EQ(Find<QRadioButton>(dialog, "inches").text(), "English");
        EXPECT_EQ(Find<QRadioButton>(dialog, "mm").text(), "Metric");
        EXPECT_EQ(Find<QGroupBox>(dialog, "Frame3").title(), "Airfoils Coordinates Path");
        EXPECT_EQ(Find<QGroupBox>(dialog, "Frame4").title(), "Set of ribs Coordinates Path");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdrecherche").text(), "Browse...");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdrechercheevol").text(), "Browse...");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdok").text(), "Save");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdannuler").text(), "Cancel");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdaide").text(), "Help");
    });
    Language("French");
    Use([](frmdefaut &dialog) {
        EXPECT_EQ(S(dialog.windowTitle()), "Valeurs par défaut");
        EXPECT_EQ(S(Find<QRadioButton>(dialog, "mm").text()), "Métriques");
        EXPECT_EQ(S(Find<QPushButton>(dialog, "cmdok").text()), "Enregistrer");
    });
}

TEST_F(FrmdefautTest, ShowsWhatIsOnFileAndNotTheRib) {
    programme.rib.cordeAfich = "321";
    programme.rib.EpBAAfich = "9";
    Use([](frmdefaut &dialog) {
        EXPECT_EQ(Shown(dialog), kOnFile);
        ExpectUnit(dialog, " mm");
        EXPECT_EQ(Find<QLineEdit>(dialog, "txtdefprof").text(), "/home/me/airfoils");
        EXPECT_EQ(Find<QLineEdit>(dialog, "txtdefprofevol").text(), "/home/me/sets");
        EXPECT_TRUE(Box(dialog, 0).hasFocus());
        EXPECT_EQ(S(Box(dialog, 0).selectedText()), "180");
    });
}

TEST_F(FrmdefautTest, ASettingsFileThatCannotBeReadIsTold) {
    std::filesystem::remove(programme.paths.fichier);
    std::filesystem::create_directory(programme.paths.fichier);
    platform.Expect(BoxAnswer::ok);
    Use([](frmdefaut &dialog) { EXPECT_EQ(S(Box(dialog, 0).text()), ""); });
    EXPECT_EQ(platform.boxes.at(0).title, " GetINIFile");
}

TEST_F(FrmdefautTest, TabGoesFromTheLengthsOverUnitsAndFoldersToTheButtons) {
    Use([](frmdefaut &dialog) {
        for (const char *name :
             {"txtdef(1)", "txtdef(2)", "txtdef(3)", "txtdef(4)", "txtdef(5)", "mm", "txtdefprof",
              "cmdrecherche", "txtdefprofevol", "cmdrechercheevol", "cmdok", "cmdannuler",
              "cmdaide", "txtdef(0)"}) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(S(dialog.focusWidget()->objectName()), name);
        }
    });
}

TEST_F(FrmdefautTest, EveryFieldIsSelectedWhenItGetsTheFocus) {
    Use([](frmdefaut &dialog) {
        Box(dialog, 4).setFocus();
        EXPECT_EQ(Box(dialog, 4).selectedText(), "10");
        for (const char *name : {"txtdefprof", "txtdefprofevol"}) {
            auto &field = Find<QLineEdit>(dialog, name);
            field.setFocus();
            EXPECT_EQ(field.selectedText(), field.text());
        }
    });
}

TEST_F(FrmdefautTest, FieldsTakeTheKeysOfTheUnit) {
    Use([](frmdefaut &dialog) {
        for (int i = 0; i < kChampsDefaut; ++i) {
            Type(dialog, i, "a-1/2.5%,");
            EXPECT_EQ(Box(dialog, i).text(), "12.5");
        }
        Click(dialog, "inches");
        for (int i = 0; i < kChampsDefaut; ++i) {
            Type(dialog, i, "a-1.1/2%,");
            EXPECT_EQ(Box(dialog, i).text(), "1.1/2");
        }
        Click(dialog, "mm");
        Type(dialog, 0, "1/2");
        EXPECT_EQ(Box(dialog, 0).text(), "12");
        Type(dialog, 0, "");
        QTest::keyClicks(&Find<QLineEdit>(dialog, "txtdefprof"), "/A b");
        EXPECT_EQ(S(Find<QLineEdit>(dialog, "txtdefprof").text()), "/home/me/airfoils/A b");
    });
}

TEST_F(FrmdefautTest, AUnitBringsItsFixedSetAndNoConversion) {
    programme.rib.cordeAfich = "200";
    Use([this](frmdefaut &dialog) {
        Click(dialog, "inches");
        EXPECT_EQ(Shown(dialog), kInches);
        ExpectUnit(dialog, " in");
        EXPECT_EQ(programme.settings.Unite, " in");
        EXPECT_EQ(Page().MargeHautAfich, "1/2");
        EXPECT_EQ(Page().NumIndex, 1);
        EXPECT_EQ(Page().YdprintAfich, "2");
        EXPECT_EQ(Rib().cordeAfich, "200");
        EXPECT_EQ(Rib().corde, 200.0F);
        Click(dialog, "mm");
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
    Use([this](frmdefaut &dialog) {
        Type(dialog, 0, "190");
        Click(dialog, "mm");
        EXPECT_EQ(S(Box(dialog, 0).text()), "190");
        EXPECT_EQ(Page().MargeHautAfich, "12");
    });
}

TEST_F(FrmdefautTest, TheKeyboardChoosesAUnitToo) {
    Use([](frmdefaut &dialog) {
        Find<QRadioButton>(dialog, "mm").setFocus();
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Up);
        EXPECT_EQ(Shown(dialog), kInches);
        ExpectUnit(dialog, " in");
    });
}

TEST_F(FrmdefautTest, SaveTakesTheValuesIntoRibAndFile) {
    const Left left = Use([](frmdefaut &dialog) {
        Type(dialog, 0, "190");
        Type(dialog, 1, "2.5");
        Type(dialog, 3, "40");
        QTest::keyClick(&Box(dialog, 3), Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Rib().cordeAfich, "190");
    EXPECT_EQ(Rib().corde, 190.0F);
    EXPECT_EQ(Rib().EpCoffrage, 2.5F);
    EXPECT_EQ(Rib().EpBA, 3.0F);
    EXPECT_EQ(Rib().bloc.HTbloc, 40.0F);
    EXPECT_EQ(Rib().bloc.BAbloc, 10.0F);
    EXPECT_EQ(Rib().bloc.BFbloc, 12.0F);
    EXPECT_EQ(Stored("Defaut", "cordeAfich"), "190");
    EXPECT_EQ(Stored("Defaut", "EpCoffrageAfich"), "2.5");
    EXPECT_EQ(Stored("Defaut", "HTblocAfich"), "40");
    EXPECT_EQ(Stored("Defaut", "unit"), "mm");
    EXPECT_EQ(Stored("Marges", "MargeHaut"), "10");
    EXPECT_THAT(view.asked, ElementsAre("AfficheUnite", "AfficheCorde"));
    EXPECT_FALSE(Rib().Annule);
    EXPECT_THAT(platform.boxes, IsEmpty());
}

TEST_F(FrmdefautTest, SaveKeepsTheFoldersEverywhere) {
    Use([](frmdefaut &dialog) {
        Find<QLineEdit>(dialog, "txtdefprof").setText("/new/airfoils");
        Find<QLineEdit>(dialog, "txtdefprofevol").setText("/new/sets");
        Click(dialog, "cmdok");
    });
    const Repertoires &folders = programme.settings.repertoires;
    EXPECT_EQ(folders.RepProfil, "/new/airfoils");
    EXPECT_EQ(folders.LastOpenProfil, "/new/airfoils");
    EXPECT_EQ(folders.RepProfilevol, "/new/sets");
    EXPECT_EQ(Stored("Repertoires", "RepProfil"), "/new/airfoils");
    EXPECT_EQ(Stored("Repertoires", "RepProfilevol"), "/new/sets");
    EXPECT_EQ(platform.StoredValue("Install", "RepAirfoil"), "/new/airfoils");
    EXPECT_EQ(platform.StoredValue("Install", "RepEvol"), "/new/sets");
}

TEST_F(FrmdefautTest, AnotherUnitWithYesClearsTheRib) {
    platform.Expect(BoxAnswer::yes);
    std::string unit_on_file_at_clear;
    view.on_clear = [&] { unit_on_file_at_clear = Stored("Defaut", "unit"); };
    EXPECT_EQ(Use([](frmdefaut &dialog) {
                  Click(dialog, "inches");
                  Click(dialog, "cmdok");
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
    const Left left = Use([this](frmdefaut &dialog) {
        Click(dialog, "inches");
        Click(dialog, "cmdok");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(Shown(dialog), kOnFile);
        ExpectUnit(dialog, " mm");
        EXPECT_EQ(programme.settings.Unite, " mm");
        EXPECT_THAT(view.asked, ElementsAre("AfficheUnite"));
        Type(dialog, 0, "1/2");
        EXPECT_EQ(S(Box(dialog, 0).text()), "12");
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
    EXPECT_EQ(Use([](frmdefaut &dialog) {
                  Click(dialog, "inches");
                  Click(dialog, "cmdok");
                  Click(dialog, "cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Stored("Defaut", "unit"), "mm");
    EXPECT_EQ(Stored("Defaut", "cordeAfich"), "180");
    EXPECT_THAT(view.asked, ElementsAre("AfficheUnite", "AfficheUnite", "AfficheCorde"));
}

TEST_F(FrmdefautTest, AYesHoldsWhileAChordIsTypedAgain) {
    platform.Expect(BoxAnswer::yes);
    platform.Expect(BoxAnswer::ok); // no chord
    EXPECT_EQ(Use([](frmdefaut &dialog) {
                  Click(dialog, "inches");
                  Type(dialog, 0, "0");
                  Click(dialog, "cmdok");
                  EXPECT_EQ(S(Box(dialog, 0).selectedText()), "0");
                  QTest::keyClicks(&Box(dialog, 0), "9");
                  Click(dialog, "cmdok");
              }),
              Left::accepted);
    EXPECT_THAT(view.asked, ElementsAre("affclear", "AfficheUnite", "AfficheCorde"));
    EXPECT_EQ(Rib().cordeAfich, "9");
}

TEST_F(FrmdefautTest, AYesIsForgottenWhenTheUnitIsChosenAnew) {
    platform.Expect(BoxAnswer::yes);
    platform.Expect(BoxAnswer::ok);
    platform.Expect(BoxAnswer::no);
    Use([](frmdefaut &dialog) {
        Click(dialog, "inches");
        Type(dialog, 0, "0");
        Click(dialog, "cmdok");
        Click(dialog, "mm");
        Click(dialog, "inches");
        Click(dialog, "cmdok");
        ExpectUnit(dialog, " mm");
    });
}

TEST_F(FrmdefautTest, ThereAndBackNeedsNoQuestion) {
    EXPECT_EQ(Use([](frmdefaut &dialog) {
                  Click(dialog, "inches");
                  Click(dialog, "mm");
                  Click(dialog, "cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Stored("Defaut", "cordeAfich"), "200");
    EXPECT_THAT(view.asked, ElementsAre("AfficheUnite", "AfficheCorde"));
}

TEST_F(FrmdefautTest, AChordOfZeroKeepsTheDialogOpenAndStoresNothing) {
    platform.Expect(BoxAnswer::ok);
    const std::string file = folder.Bytes("Loftwing.ini");
    EXPECT_EQ(Use([](frmdefaut &dialog) {
                  Type(dialog, 1, "5");
                  Type(dialog, 0, "");
                  Click(dialog, "cmdok");
                  EXPECT_TRUE(dialog.isVisible());
                  EXPECT_TRUE(Box(dialog, 0).hasFocus());
              }),
              Left::open);
    EXPECT_EQ(platform.boxes.at(0).text, "Chord length");
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_EQ(Rib().EpCoffrageAfich, "1.5");
    EXPECT_EQ(folder.Bytes("Loftwing.ini"), file);
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(FrmdefautTest, AFailureIsToldAndTheDialogGoesOn) {
    platform.Expect(BoxAnswer::yes);
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use([](frmdefaut &dialog) {
                  Click(dialog, "inches");
                  Type(dialog, 4, "1/0");
                  Click(dialog, "cmdok");
              }),
              Left::open);
    EXPECT_EQ(platform.boxes.at(1).title, " Defaut/OK");
    EXPECT_EQ(Rib().corde, 200.0F);
}

TEST_F(FrmdefautTest, CancelEscapeAndTheClosingButtonPutBackTheUnitAlone) {
    const std::function<void(frmdefaut &)> ways[] = {
        [](frmdefaut &dialog) { Click(dialog, "cmdannuler"); },
        [](frmdefaut &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
        [](frmdefaut &dialog) { dialog.close(); }};
    const std::string file = folder.Bytes("Loftwing.ini");
    for (const auto &leave : ways) {
        view.asked.clear();
        programme.settings.page = MiseEnPage{};
        EXPECT_EQ(Use([&leave](frmdefaut &dialog) {
                      Click(dialog, "inches");
                      Find<QLineEdit>(dialog, "txtdefprof").setText("/elsewhere");
                      leave(dialog);
                  }),
                  Left::rejected);
        EXPECT_EQ(programme.settings.Unite, " mm");
        EXPECT_THAT(view.asked, ElementsAre("AfficheUnite"));
        EXPECT_TRUE(Rib().Annule);
        // The page that the click has set stays until settings are read again.
        EXPECT_EQ(Page().MargeHautAfich, "1/2");
        EXPECT_EQ(Page().NumIndex, 1);
        EXPECT_EQ(Rib().cordeAfich, "200");
        EXPECT_EQ(programme.settings.repertoires.RepProfil, "/home/me/airfoils");
        EXPECT_EQ(folder.Bytes("Loftwing.ini"), file);
    }
}

TEST_F(FrmdefautTest, AChosenFolderCountsAtOnce) {
    platform.folders_expected = {"/chosen/airfoils", "/chosen/sets"};
    Use([](frmdefaut &dialog) {
        Click(dialog, "cmdrecherche");
        EXPECT_EQ(Find<QLineEdit>(dialog, "txtdefprof").text(), "/chosen/airfoils");
        Click(dialog, "cmdrechercheevol");
        EXPECT_EQ(Find<QLineEdit>(dialog, "txtdefprofevol").text(), "/chosen/sets");
        Click(dialog, "cmdannuler");
    });
    EXPECT_EQ(programme.settings.repertoires.RepProfil, "/chosen/airfoils");
    EXPECT_EQ(programme.settings.repertoires.RepProfilevol, "/chosen/sets");
    EXPECT_EQ(Stored("Repertoires", "RepProfil"), "");
}

TEST_F(FrmdefautTest, ACancelledChooserChangesNothing) {
    platform.folders_expected = {"", ""};
    Use([](frmdefaut &dialog) {
        Find<QLineEdit>(dialog, "txtdefprof").setText("/typed");
        Click(dialog, "cmdrecherche");
        Click(dialog, "cmdrechercheevol");
        EXPECT_EQ(Find<QLineEdit>(dialog, "txtdefprof").text(), "/typed");
        EXPECT_EQ(Find<QLineEdit>(dialog, "txtdefprofevol").text(), "/home/me/sets");
    });
    EXPECT_EQ(programme.settings.repertoires.RepProfil, "/home/me/airfoils");
}

TEST_F(FrmdefautTest, TheChooserOpensWhereTheUserIs) {
    platform.folders_expected = {"", ""};
    Use([this](frmdefaut &dialog) {
        Find<QLineEdit>(dialog, "txtdefprof").setText(Q(folder.Path()));
        Click(dialog, "cmdrecherche");
        Click(dialog, "cmdrechercheevol"); // whose folder isn't there
    });
    ASSERT_EQ(platform.folder_questions.size(), 2U);
    EXPECT_EQ(platform.folder_questions[0].title, "Choose a folder :");
    EXPECT_EQ(platform.folder_questions[0].folder, folder.Path());
    EXPECT_EQ(platform.folder_questions[1].folder, "");
}

TEST_F(FrmdefautTest, HelpOpensAtItsPlace) {
    Use([](frmdefaut &dialog) {
        Click(dialog, "cmdaide");
        QTest::keyClick(&Box(dialog, 0), Qt::Key_F1);
    });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{70, 70}));
}

TEST_F(FrmdefautTest, EverythingHasItsRoomAtDoubleFont) {
    for (const char *language : {"English", "French"}) {
        Language(language);
        frmdefaut dialog(programme, view, nullptr);
        QFont font = dialog.font();
        font.setPointSizeF(font.pointSizeF() * 2.0);
        dialog.setFont(font);
        dialog.show();
        QTest::qWait(0);
        for (const QWidget *child : dialog.findChildren<QWidget *>()) {
            const bool placed = child->parentWidget() == &dialog ||
                                qobject_cast<QGroupBox *>(child->parentWidget()) != nullptr;
            if (placed) {
                EXPECT_GE(child->width(), child->minimumSizeHint().width())
                    << language << S(child->objectName());
                EXPECT_TRUE(child->parentWidget()->rect().contains(child->geometry()))
                    << S(child->objectName());
            }
        }
    }
}

} // namespace
} // namespace loftwing
