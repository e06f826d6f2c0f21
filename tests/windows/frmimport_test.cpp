// The window that shows what an import made, and the ways to it.

#include "mainwindow/frmimport.h"

#include "support/import_files.h"
#include "support/qt_nothing_cut.h"
#include "support/qt_window_world.h"
#include "windows/dialog_fixture.h"

#include <gmock/gmock.h>

#include <QImage>

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class FrmImportTest : public DialogTest {
  protected:
    std::unique_ptr<frmimport> Make(const std::string &name, const std::string &bytes) {
        const std::string path = folder.File(name, bytes);
        return std::make_unique<frmimport>(programme, nullptr, path, *EssaieImport(path));
    }
    /// How many pixels of the picture have that colour.
    static int Pixels(const QImage &image, const QColor &colour) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y) == colour ? 1 : 0;
            }
        }
        return count;
    }
};

TEST_F(FrmImportTest, TellsWhatWasDone) {
    const auto window = Make("lists.txt", TwoLists());
    const Seen seen(*window);
    EXPECT_EQ(seen.Title(), "Import airfoil : lists.txt");
    EXPECT_THAT(seen.Label("lblrecit"),
                StartsWith("Two lists were joined. All points are kept; the contour stays within"));
    EXPECT_EQ(seen.Word("cmdouvrir"), "Open");
    EXPECT_EQ(seen.Word("cmdenregistrer"), "Save as...");
    EXPECT_EQ(seen.Word("cmdannuler"), "Cancel");
    seen.Click("cmdaide");
    EXPECT_EQ(platform.help_contexts, std::vector<int>{44});
}

TEST_F(FrmImportTest, DrawsPointsAndContourInTwoColoursOfTheDesktop) {
    const auto window = Make("coarse.dat", Coarse());
    ImportPicture picture(nullptr);
    picture.Montre(window->Voulu().profil.file, ContourImporte(window->Voulu().profil));
    picture.resize(600, 200);
    for (const auto &[base, text, highlight] :
         {std::array<QColor, 3>{Qt::white, Qt::black, Qt::blue},
          std::array<QColor, 3>{Qt::black, Qt::white, Qt::yellow}}) {
        QPalette palette = picture.palette();
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, text);
        palette.setColor(QPalette::Highlight, highlight);
        picture.setPalette(palette);
        const QImage shown = picture.grab().toImage();
        EXPECT_EQ(shown.pixelColor(300, 5), base);
        EXPECT_GT(Pixels(shown, highlight), 100); // of two lines of about 576 pixels
        EXPECT_GT(Pixels(shown, text), 50);
    }
}

TEST_F(FrmImportTest, TheDrawingFillsItsPlaceWithXAndYAlike) {
    // A flat section: its chord is as long as the place is wide, 12 pixels from either edge.
    const auto window = Make("lists.txt", TwoLists());
    ImportPicture picture(nullptr);
    picture.Montre(window->Voulu().profil.file, ContourImporte(window->Voulu().profil));
    picture.resize(624, 300);
    QPalette palette = picture.palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Mid, Qt::white);
    palette.setColor(QPalette::Text, Qt::red);
    palette.setColor(QPalette::Highlight, Qt::red);
    picture.setPalette(palette);
    const QImage shown = picture.grab().toImage();
    int left = 624;
    int right = 0;
    int top = 300;
    int bottom = 0;
    for (int y = 0; y < 250; ++y) { // the legend is below
        for (int x = 0; x < 624; ++x) {
            if (shown.pixelColor(x, y) != QColor(Qt::white)) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
    }
    // The crosses of the outermost points reach 2.5 pixels further.
    EXPECT_NEAR(left, 12 - 2.5, 1.5);
    EXPECT_NEAR(right, 612 + 2.5, 1.5);
    EXPECT_NEAR(bottom - top, 0.12 * 600 + 5, 4); // twelve percent thick
}

TEST_F(FrmImportTest, OpenGivesTheImportUnderItsFilesName) {
    const auto window = Make("lists.txt", TwoLists());
    EXPECT_EQ(UseModal(*window, [](Seen &dialog) { dialog.Click("cmdouvrir"); }), Left::accepted);
    EXPECT_EQ(window->Voulu().chemin, folder.Path("lists.txt"));
    EXPECT_EQ(window->Voulu().profil.title, "Two lists");
}

TEST_F(FrmImportTest, CancelGivesNothing) {
    const auto window = Make("lists.txt", TwoLists());
    EXPECT_EQ(UseModal(*window, [](Seen &dialog) { dialog.Key(Qt::Key_Escape); }), Left::rejected);
    EXPECT_TRUE(platform.file_questions.empty());
}

TEST_F(FrmImportTest, WhatWasSavedIsWhatOpens) {
    programme.settings.repertoires.LastOpenProfil = folder.Path();
    const auto window = Make("lists.txt", TwoLists());
    const std::string saved = folder.Path("saved.dat");
    platform.files_expected = {"", saved};
    EXPECT_EQ(UseModal(*window,
                       [&](Seen &dialog) {
                           dialog.Click("cmdenregistrer");
                           EXPECT_FALSE(dialog.Shown("lblenregistre")); // the chooser was cancelled
                           dialog.Click("cmdenregistrer");
                           EXPECT_EQ(dialog.Label("lblenregistre"), "Saved : " + saved);
                           EXPECT_TRUE(dialog.IsOpen());
                           dialog.Click("cmdouvrir");
                       }),
              Left::accepted);
    EXPECT_EQ(window->Voulu().chemin, saved);
    EXPECT_THAT(folder.Bytes("saved.dat"), StartsWith("Two lists\r\n"));
}

TEST_F(FrmImportTest, APlaceThatCannotBeWrittenIsTold) {
    const auto window = Make("lists.txt", TwoLists());
    platform.files_expected = {folder.Path("none/saved.dat")};
    platform.Expect(BoxAnswer::ok, {.title = " frmimport/cmdenregistrer"});
    UseModal(*window, [](Seen &dialog) { dialog.Click("cmdenregistrer"); });
    EXPECT_EQ(window->Voulu().chemin, folder.Path("lists.txt"));
}

TEST_F(FrmImportTest, NothingIsCutInAnyLanguageOrSize) {
    for (const char *language : {"English", "French"}) {
        for (const double scale : {1.0, 1.5}) {
            const FontScale larger(scale);
            Language(language);
            const auto window = Make("coarse.dat", Coarse());
            window->show();
            QApplication::processEvents();
            ExpectNothingCut(*window);
        }
    }
}

/// The main window's ways to it.
class ImportInWindow : public testing::Test {
  protected:
    ImportInWindow() { world.Open(); }

    RibModel &Rib() { return world.programme.rib; }
    bool Shows(const char *notice) const {
        QApplication::processEvents();
        return world.Main().Has(notice) && world.Main().Shown(notice);
    }
    std::string Caption() const { return S(world.window->windowTitle()); }

    WindowWorld world;
};

constexpr const char *kNotice = "notice_import";

TEST_F(ImportInWindow, TheFileMenuOpensAnImport) {
    const std::string path = world.folder.File("wing.csv", Semicolons());
    world.platform.files_expected = {path};
    world.Run("mnu_fileimport", {[](Seen &dialog) {
                  EXPECT_EQ(dialog.Name(), "frmimport");
                  dialog.Click("cmdouvrir");
              }});
    EXPECT_EQ(Rib().CheminProfil, path);
    EXPECT_EQ(Caption(), "Loftwing Airfoil : wing");
    EXPECT_FALSE(Shows(kNotice));
}

TEST_F(ImportInWindow, ACancelChangesNothing) {
    world.window->OuvreFichier(WindowWorld::Sample("naca0012.dat"));
    world.platform.files_expected = {world.folder.File("wing.csv", Semicolons())};
    world.Run("mnu_fileimport", {[](Seen &dialog) { dialog.Click("cmdannuler"); }});
    EXPECT_EQ(Rib().NomProfil, "naca0012");
    EXPECT_EQ(Caption(), "Loftwing Airfoil : naca0012");
}

TEST_F(ImportInWindow, AContourThatStraysIsPointedOutAndImportedByOneButton) {
    const std::string path = world.folder.File("coarse.dat", Coarse());
    world.window->OuvreFichier(path);
    ASSERT_TRUE(Shows(kNotice));
    EXPECT_THAT(world.Main().Label("notice_import_text"),
                StartsWith("The contour leaves the smooth curve through the airfoil's points by "));
    InNextDialog([](Seen &dialog) {
        EXPECT_THAT(dialog.Label("lblrecit"), HasSubstr("160 points were laid anew"));
        dialog.Click("cmdouvrir");
    });
    world.Main().Click({"notice_import_button", 0});
    EXPECT_EQ(Rib().CheminProfil, path);
    EXPECT_EQ(Rib().NbPoints, 160);
    EXPECT_FALSE(Shows(kNotice));
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    EXPECT_FALSE(Shows(kNotice));
}

TEST_F(ImportInWindow, ADroppedFileThatOpenRefusesIsOfferedForImport) {
    const std::string path = world.folder.File("lists.dat", TwoLists());
    world.platform.Expect(BoxAnswer::yes,
                          {.text = testing::EndsWith("Loftwing can import this file. Import it?")});
    InNextDialog([](Seen &dialog) { dialog.Click("cmdouvrir"); });
    world.window->OuvreFichier(path); // as a drop does
    EXPECT_EQ(Rib().CheminProfil, path);
}

} // namespace
} // namespace loftwing
