#include "windows/frmdefaut_fixture.h"

#include <filesystem>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
    EXPECT_EQ(platform.boxes.at(0).text, "Chord length : Please enter a chord");
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
