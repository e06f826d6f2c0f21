#include "windows/frmdefaut_fixture.h"

#include <QTest>

#include <filesystem>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(FrmdefautTest, ShowsItsWords) {
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Template defaults");
        const char *captions[] = {"Chord",           "Sheeting thickness", "Leading Edge",
                                  "Template height", "Ramp Leading Edge",  "Ramp Trailing Edge"};
        for (int i = 0; i < kChampsDefaut; ++i) {
            EXPECT_EQ(dialog.Label({"Label2", i}), captions[i]);
        }
        EXPECT_EQ(dialog.Frame("Frame5"), "Units");
        EXPECT_EQ(dialog.Word("inches"), "English");
        EXPECT_EQ(dialog.Word("mm"), "Metric");
        EXPECT_EQ(dialog.Frame("Frame3"), "Airfoils Coordinates Path");
        EXPECT_EQ(dialog.Frame("Frame4"), "Set of ribs Coordinates Path");
        EXPECT_EQ(dialog.Word("cmdrecherche"), "Browse...");
        EXPECT_EQ(dialog.Word("cmdrechercheevol"), "Browse...");
        EXPECT_EQ(dialog.Word("cmdok"), "Save");
        EXPECT_EQ(dialog.Word("cmdannuler"), "Cancel");
        EXPECT_EQ(dialog.Word("cmdaide"), "Help");
    });
    Language("French");
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Valeurs par défaut");
        EXPECT_EQ(dialog.Word("mm"), "Métriques");
        EXPECT_EQ(dialog.Word("cmdok"), "Enregistrer");
    });
}

TEST_F(FrmdefautTest, ShowsWhatIsOnFileAndNotTheRib) {
    programme.rib.cordeAfich = "321";
    programme.rib.EpBAAfich = "9";
    Use([](Seen &dialog) {
        EXPECT_EQ(Shown(dialog), kOnFile);
        ExpectUnit(dialog, " mm");
        EXPECT_EQ(dialog.Text("txtdefprof"), "/home/me/airfoils");
        EXPECT_EQ(dialog.Text("txtdefprofevol"), "/home/me/sets");
        EXPECT_TRUE(dialog.Focused("txtdef(0)"));
        EXPECT_EQ(dialog.Selected("txtdef(0)"), "180");
    });
}

TEST_F(FrmdefautTest, ASettingsFileThatCannotBeReadIsTold) {
    std::filesystem::remove(programme.paths.fichier);
    std::filesystem::create_directory(programme.paths.fichier);
    platform.Expect(BoxAnswer::ok);
    Use([](Seen &dialog) { EXPECT_EQ(dialog.Text("txtdef(0)"), ""); });
    EXPECT_EQ(platform.boxes.at(0).title, " GetINIFile");
}

TEST_F(FrmdefautTest, TabGoesFromTheLengthsOverUnitsAndFoldersToTheButtons) {
    Use([](Seen &dialog) {
        dialog.ExpectTabs({"txtdef(1)", "txtdef(2)", "txtdef(3)", "txtdef(4)", "txtdef(5)", "mm",
                           "txtdefprof", "cmdrecherche", "txtdefprofevol", "cmdrechercheevol",
                           "cmdok", "cmdannuler", "cmdaide", "txtdef(0)"});
    });
}

TEST_F(FrmdefautTest, EveryFieldIsSelectedWhenItGetsTheFocus) {
    Use([](Seen &dialog) {
        dialog.GoTo("txtdef(4)");
        EXPECT_EQ(dialog.Selected("txtdef(4)"), "10");
        for (const char *name : {"txtdefprof", "txtdefprofevol"}) {
            dialog.GoTo(name);
            EXPECT_EQ(dialog.Selected(name), dialog.Text(name));
        }
    });
}

TEST_F(FrmdefautTest, SaveTakesTheValuesIntoRibAndFile) {
    const Left left = Use([](Seen &dialog) {
        dialog.Type("txtdef(0)", "190");
        dialog.Type("txtdef(1)", "2.5");
        dialog.Type("txtdef(3)", "40");
        dialog.Key("txtdef(3)", Qt::Key_Return);
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
    Use([](Seen &dialog) {
        dialog.Fill("txtdefprof", "/new/airfoils");
        dialog.Fill("txtdefprofevol", "/new/sets");
        dialog.Click("cmdok");
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
    EXPECT_EQ(Use([](Seen &dialog) {
                  dialog.Type("txtdef(1)", "5");
                  dialog.Type("txtdef(0)", "");
                  dialog.Click("cmdok");
                  EXPECT_TRUE(dialog.IsOpen());
                  EXPECT_TRUE(dialog.Focused("txtdef(0)"));
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
    EXPECT_EQ(Use([](Seen &dialog) {
                  dialog.Click("inches");
                  dialog.Type("txtdef(4)", "1/0");
                  dialog.Click("cmdok");
              }),
              Left::open);
    EXPECT_EQ(platform.boxes.at(1).title, " Defaut/OK");
    EXPECT_EQ(Rib().corde, 200.0F);
}

TEST_F(FrmdefautTest, AChosenFolderCountsAtOnce) {
    platform.folders_expected = {"/chosen/airfoils", "/chosen/sets"};
    Use([](Seen &dialog) {
        dialog.Click("cmdrecherche");
        EXPECT_EQ(dialog.Text("txtdefprof"), "/chosen/airfoils");
        dialog.Click("cmdrechercheevol");
        EXPECT_EQ(dialog.Text("txtdefprofevol"), "/chosen/sets");
        dialog.Click("cmdannuler");
    });
    EXPECT_EQ(programme.settings.repertoires.RepProfil, "/chosen/airfoils");
    EXPECT_EQ(programme.settings.repertoires.RepProfilevol, "/chosen/sets");
    EXPECT_EQ(Stored("Repertoires", "RepProfil"), "");
}

TEST_F(FrmdefautTest, ACancelledChooserChangesNothing) {
    platform.folders_expected = {"", ""};
    Use([](Seen &dialog) {
        dialog.Fill("txtdefprof", "/typed");
        dialog.Click("cmdrecherche");
        dialog.Click("cmdrechercheevol");
        EXPECT_EQ(dialog.Text("txtdefprof"), "/typed");
        EXPECT_EQ(dialog.Text("txtdefprofevol"), "/home/me/sets");
    });
    EXPECT_EQ(programme.settings.repertoires.RepProfil, "/home/me/airfoils");
}

TEST_F(FrmdefautTest, TheChooserOpensWhereTheUserIs) {
    platform.folders_expected = {"", ""};
    Use([this](Seen &dialog) {
        dialog.Fill("txtdefprof", folder.Path());
        dialog.Click("cmdrecherche");
        dialog.Click("cmdrechercheevol"); // whose folder isn't there
    });
    ASSERT_EQ(platform.folder_questions.size(), 2U);
    EXPECT_EQ(platform.folder_questions[0].title, "Choose a folder :");
    EXPECT_EQ(platform.folder_questions[0].folder, folder.Path());
    EXPECT_EQ(platform.folder_questions[1].folder, "");
}

TEST_F(FrmdefautTest, HelpOpensAtItsPlace) {
    Use([](Seen &dialog) {
        dialog.Click("cmdaide");
        dialog.Key("txtdef(0)", Qt::Key_F1);
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
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
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
