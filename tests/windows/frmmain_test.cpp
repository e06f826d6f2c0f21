#include "base/version.h"
#include "mainwindow/frmmain.h"
#include "output/recording.h"
#include "support/qt_window_world.h"
#include "support/test_printer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>

#include <filesystem>
#include <set>

namespace loftwing {
namespace {

using testing::HasSubstr;

const std::set<std::string> kBornWithARib = {
    "cmdba", "cmdlongeron", "cmdtrou", "cmdbf", "mnu_filesaveas", "Toolbar1(3)", "mnu_filedxf",
    "mnu_filepage", "Toolbar1(5)", "mnu_fileprinterconfig", "mnu_fileprint", "Toolbar1(7)",
    "mnu_affinver", "mnu_affdefaut", "mnu_affhautba", "mnu_affhautbf", "mnu_affepr",
    "mnu_affInstxt", "mnu_affTrac", "mnu_afflignRef", "mnu_profilepcoffrage", "mnu_profilba",
    "mnu_profillongeron", "mnu_profiltrou", "mnu_profilbf", "mnu_profilTalon", "mnu_param",
    "mnu_Outilcoord",
    // Live and die with the DXF entry beside them.
    "mnu_filepdf", "mnu_filesvg",
    // The sheets of a drawing, and the piece.
    "mnu_afffeuilles", "mnu_affpiece", "mnu_filedecoupe"};

const std::set<std::string> kDeadAfterClear = {
    "mnu_filesaveas", "Toolbar1(3)", "mnu_filedxf",     "mnu_filepage", "mnu_fileprinterconfig",
    "mnu_fileprint",  "Toolbar1(7)", "mnu_profilTalon", "mnu_param",    "mnu_affInstxt",
    "mnu_filepdf",    "mnu_filesvg", "mnu_afffeuilles", "mnu_affpiece", "mnu_filedecoupe",
    // Not among those that a clear brings back: still as the airfoil left them.
};

const std::set<std::string> kAlwaysAlive = {
    "mnu_fileopen",   "mnu_fileprofilopen", "mnu_fileexit",     "mnu_affcouleur",
    "mnu_affclear",   "mnu_affLang",        "mnu_profilcorde",  "cmdcorde",
    "cmdprofil",      "mnu_outil",          "mnu_OutilCompare", "mnu_calc",
    "mnu_fileimport", "mnu_help",           "mnu_helpAbout",    "Toolbar1(2)"};

bool Enabled(const WindowWorld &world, const std::string &name) {
    if (name.starts_with("cmd")) {
        return world.Main().Enabled(name);
    }
    return world.Action(name)->isEnabled();
}

void ExpectEnabled(const WindowWorld &world, const std::set<std::string> &names, bool enabled) {
    for (const std::string &name : names) {
        EXPECT_EQ(Enabled(world, name), enabled) << name;
    }
}

TEST(MainWindow, OpensAndSavesWhereTheSettingsCannotBeRead) {
    WindowWorld world;
    const std::string settings = world.programme.paths.fichier;
    std::filesystem::remove(settings);
    std::filesystem::create_directory(settings);
    for (const char *key : {"RepAirfoil", "RepEvol"}) {
        world.platform.store[{"Install", key}] = world.folder.Path();
    }
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr(settings), .title = kTitre});
    frmmain &window = world.Open();
    EXPECT_TRUE(window.isVisible());
    window.OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
    world.platform.files_expected.push_back(world.folder.Path("rib.lfw"));
    world.Action("mnu_filesaveas")->trigger();
    EXPECT_TRUE(std::filesystem::exists(world.folder.Path("rib.lfw")));
    EXPECT_TRUE(std::filesystem::is_empty(settings));
}

TEST(MainWindow, AtTheStartOnlyTheOpenCommandsAreAlive) {
    WindowWorld world;
    world.Open();
    ExpectEnabled(world, kBornWithARib, false);
    ExpectEnabled(world, kAlwaysAlive, true);
    EXPECT_EQ(world.Panel(1), std::string(" V. ") + kVersion);
    EXPECT_EQ(world.Panel(2), "");
    EXPECT_EQ(world.Panel(3), "unit : mm");
}

TEST(MainWindow, AnAirfoilBringsTheCommandsToLife) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    ExpectEnabled(world, kBornWithARib, true);
    ExpectEnabled(world, kAlwaysAlive, true);
    EXPECT_EQ(world.Panel(1), kVersion);
    EXPECT_EQ(world.Panel(2), "Airfoil : naca2412  Chord : 200 mm <> Information : NACA 2412");
    EXPECT_EQ(world.window->windowTitle().toStdString(), "Loftwing Airfoil : naca2412");
    EXPECT_TRUE(world.programme.rib.Modifie);
    ASSERT_NE(world.Find<PicView>("Pic")->Dessin(), nullptr);
}

TEST(MainWindow, ClearingLeavesTheStateOfTheStartWithTheRibMenusAlive) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.platform.Expect(BoxAnswer::yes, {.text = world.programme.Text({"FrmMainMessage", "5"})});
    world.Action("mnu_affclear")->trigger();
    ExpectEnabled(world, kDeadAfterClear, false);
    std::set<std::string> alive = kBornWithARib;
    for (const std::string &name : kDeadAfterClear) {
        alive.erase(name);
    }
    ExpectEnabled(world, alive, true);
    EXPECT_FALSE(world.programme.rib.ProfilCharge);
    EXPECT_EQ(world.Find<PicView>("Pic")->Dessin(), nullptr);
    EXPECT_EQ(world.Panel(2), "");
    EXPECT_EQ(world.window->windowTitle().toStdString(), "Loftwing");
    EXPECT_EQ(world.Find<QComboBox>("Combo1")->currentIndex(), 3);
}

TEST(MainWindow, ClearingBeforeTheFirstAirfoilLeavesTheStateOfTheStart) {
    WindowWorld world;
    world.Open();
    world.Action("mnu_affclear")->trigger();
    ExpectEnabled(world, kBornWithARib, false);
    ExpectEnabled(world, kAlwaysAlive, true);
}

TEST(MainWindow, TheChoiceOfTheFirstLanguageLeavesTheStateOfTheStart) {
    WindowWorld world;
    world.Open();
    InNextDialog([](Seen &dialog) {
        EXPECT_EQ(dialog.Name(), "lang");
        dialog.Click("ok");
    });
    world.Action("mnu_affLang")->trigger();
    ExpectEnabled(world, kBornWithARib, false);
}

TEST(MainWindow, AFirstFileThatCannotBeReadLeavesTheStateOfTheStart) {
    WindowWorld world;
    world.Open();
    world.platform.Expect(BoxAnswer::ok);
    world.window->OuvreFichier(world.folder.Path("missing.dat"));
    ExpectEnabled(world, kBornWithARib, false);
}

TEST(MainWindow, ClearingStopsAtNo) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.platform.Expect(BoxAnswer::no, {.text = world.programme.Text({"FrmMainMessage", "5"})});
    world.Action("mnu_affclear")->trigger();
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
}

TEST(MainWindow, ClearedRibStartsFromTheUsersDefaults) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.programme.rib.cordeAfich = "321";
    world.programme.rib.corde = 321;
    world.programme.rib.Modifie = false;
    world.Action("mnu_affclear")->trigger();
    EXPECT_EQ(world.programme.rib.cordeAfich, "200");
    EXPECT_EQ(world.programme.rib.corde, 200.0F);
}

TEST(MainWindow, WithoutChangesNothingIsAskedBeforeClearing) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.programme.rib.Modifie = false;
    world.Action("mnu_affclear")->trigger();
    EXPECT_TRUE(world.platform.boxes.empty());
    EXPECT_FALSE(world.programme.rib.ProfilCharge);
}

TEST(MainWindow, ARefusedFileLeavesTheRibAsItWas) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    const std::string state = world.Panel(2);
    world.platform.Expect(BoxAnswer::ok);
    world.window->OuvreFichier(world.folder.File("bad.dat", "Title\n0.5 0.1\n1 0\n"));
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
    world.window->affiche();
    EXPECT_EQ(world.Panel(2), state);
    EXPECT_EQ(world.programme.rib.CheminProfil, WindowWorld::Sample("naca2412.dat"));
}

TEST(MainWindow, AFileThatCannotBeReadClearsTheRibAndSaysSo) {
    WindowWorld world;
    world.Open();
    world.platform.Expect(BoxAnswer::ok);
    world.window->OuvreFichier(world.folder.Path("missing.dat"));
    ASSERT_EQ(world.platform.boxes.size(), 1U);
    EXPECT_EQ(world.platform.boxes[0].title, " Open/FichierLecture");
    EXPECT_THAT(world.platform.boxes[0].text, HasSubstr(" # 53 "));
    EXPECT_FALSE(world.programme.rib.ProfilCharge);
}

TEST(MainWindow, AnAirfoilTooShortForAContourLeavesTheRibAndItsPicture) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    const QString title = world.window->windowTitle();
    world.platform.Expect(BoxAnswer::ok, {.title = " Calcul/Alocate"});
    world.platform.Expect(BoxAnswer::ok, {.title = " Calcul/MiniX"});
    world.window->OuvreFichier(
        world.folder.File("five.dat", "Five\n1 0\n0.5 0.1\n0 0\n0.5 -0.1\n1 0\n"));
    EXPECT_THAT(world.platform.boxes[0].text, HasSubstr("five.dat, too few points"));
    EXPECT_EQ(world.window->windowTitle(), title);
    EXPECT_EQ(world.programme.rib.NomProfil, "naca2412");
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
    EXPECT_TRUE(Enabled(world, "mnu_fileprint"));
    const Recording *picture = world.Find<PicView>("Pic")->Dessin();
    ASSERT_NE(picture, nullptr);
    EXPECT_FALSE(picture->Operations().empty());
}

TEST(MainWindow, AnAirfoilTooShortForAContourIsReportedAndMakesNoRib) {
    WindowWorld world;
    world.Open();
    world.platform.Expect(BoxAnswer::ok);
    world.platform.Expect(BoxAnswer::ok);
    world.window->OuvreFichier(
        world.folder.File("five.dat", "Five\n1 0\n0.5 0.1\n0 0\n0.5 -0.1\n1 0\n"));
    ASSERT_EQ(world.platform.boxes.size(), 2U);
    EXPECT_EQ(world.platform.boxes[0].title, " Calcul/Alocate");
    EXPECT_EQ(world.platform.boxes[1].title, " Calcul/MiniX");
    EXPECT_FALSE(world.programme.rib.ProfilCharge);
    EXPECT_FALSE(Enabled(world, "mnu_fileprint"));
}

TEST(MainWindow, RecentFilesAreListedAndOpened) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.window->OuvreFichier(WindowWorld::Sample("naca0012.dat"));
    QAction *first = world.Action("mnuFileMRU(1)");
    QAction *second = world.Action("mnuFileMRU(2)");
    EXPECT_TRUE(first->isVisible());
    EXPECT_FALSE(world.Action("mnuFileMRU(3)")->isVisible());
    EXPECT_EQ(first->data().toString().toStdString(), WindowWorld::Sample("naca0012.dat"));
    second->trigger();
    EXPECT_EQ(world.programme.rib.NomProfil, "naca2412");
    EXPECT_EQ(world.Action("mnuFileMRU(1)")->data().toString().toStdString(),
              WindowWorld::Sample("naca2412.dat"));
}

TEST(MainWindow, ARecentEntryWhoseFileHasGoneDoesNothingVisible) {
    WindowWorld world;
    world.Open();
    const std::string state = world.Panel(2);
    world.window->mnuFileMRU_Click(world.folder.Path("gone.dat"));
    EXPECT_TRUE(world.platform.boxes.empty());
    EXPECT_EQ(world.Panel(2), state);
}

TEST(MainWindow, ARecentPathWithAnAmpersandIsShownWhole) {
    WindowWorld world;
    const std::string path = world.folder.Path("a&b.dat");
    std::filesystem::copy_file(WindowWorld::Sample("naca2412.dat"), path);
    world.Open().OuvreFichier(path);
    EXPECT_THAT(world.Action("mnuFileMRU(1)")->text().toStdString(), HasSubstr("a&&b.dat"));
    EXPECT_EQ(world.Action("mnuFileMRU(1)")->data().toString().toStdString(), path);
}

TEST(MainWindow, TheFitBoxAppearsOnEachRedrawAndTheOldDrawingStays) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    auto *pic = world.Find<PicView>("Pic");
    const Recording *old = pic->Dessin();
    world.programme.rib.EpBA = 100;
    world.programme.rib.EpBF = 100.5F;
    for (int i = 0; i < 2; ++i) {
        world.platform.Expect(BoxAnswer::ok,
                              {.text = world.programme.Text({"FrmMainMessage", "13"})});
        world.window->affiche();
        EXPECT_EQ(pic->Dessin(), old);
    }
    EXPECT_EQ(world.platform.boxes[0].icon, BoxIcon::warning);
    world.programme.rib.EpBF = 100;
    world.window->affiche();
    EXPECT_NE(pic->Dessin(), old);
}

TEST(MainWindow, ExposureReplaysWithoutComputing) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    auto *pic = world.Find<PicView>("Pic");
    const Recording *drawing = pic->Dessin();
    world.programme.rib.corde = 300; // would show if anything were computed
    pic->repaint();
    EXPECT_EQ(pic->Dessin(), drawing);
}

TEST(MainWindow, CheckedEntriesOfTheViewMenuChangeTheRib) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    RibModel &rib = world.programme.rib;
    world.Action("mnu_affinver")->trigger();
    EXPECT_TRUE(rib.AffHaut);
    world.Action("mnu_affTrac")->trigger();
    EXPECT_FALSE(rib.AffTrac);
    world.Action("mnu_afflignRef")->trigger();
    EXPECT_FALSE(rib.AffLignRef);
    world.Action("mnu_affepr")->trigger();
    EXPECT_TRUE(rib.AffEpr);
    world.Action("mnu_affhautba")->trigger();
    EXPECT_TRUE(rib.AffHautBA);
    world.Action("mnu_affhautbf")->trigger();
    EXPECT_TRUE(rib.AffHautBF);
}

/// How many lines of the drawing have a colour.
long LinesIn(const WindowWorld &world, Colour colour) {
    const auto &operations = world.Find<PicView>("Pic")->Dessin()->Operations();
    return std::count_if(operations.begin(), operations.end(), [colour](const Operation &each) {
        const auto *line = std::get_if<DrawnSegment>(&each);
        return line != nullptr && line->pen.colour == colour;
    });
}

TEST(MainWindow, TheEntryThatHidesTheContourSaysSoInEveryLanguage) {
    for (const auto &[language, caption] :
         {std::pair("English", "&Show the outer contour"),
          std::pair("French", "Afficher le &contour extérieur")}) {
        WindowWorld world(language);
        world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
        EXPECT_EQ(world.Action("mnu_affTrac")->text().toStdString(), caption);
        const Colour contour = PaletteColour(0);
        const Colour sheeting = PaletteColour(9);
        const long sheeting_lines = LinesIn(world, sheeting);
        EXPECT_GT(LinesIn(world, contour), 100);
        EXPECT_GT(sheeting_lines, 100);
        world.Action("mnu_affTrac")->trigger();
        EXPECT_EQ(LinesIn(world, contour), 0);
        EXPECT_EQ(LinesIn(world, sheeting), sheeting_lines);
    }
}

TEST(MainWindow, ATypedChordIsDrawn) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    InNextDialog([](Seen &dialog) {
        dialog.Type("infotxt", "250x");
        dialog.Key("infotxt", Qt::Key_Return);
    });
    world.Action("mnu_profilcorde")->trigger();
    EXPECT_EQ(world.programme.rib.corde, 250.0F);
    EXPECT_THAT(world.Panel(2), HasSubstr("Chord : 250 mm"));
}

TEST(MainWindow, ACancelledEntryChangesNothing) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    InNextDialog([](Seen &dialog) {
        dialog.Fill("infotxt", "90");
        dialog.Click("cmdannuler");
    });
    world.Main().Click("cmdcorde");
    EXPECT_EQ(world.programme.rib.corde, 200.0F);
}

TEST(MainWindow, ClosingAsksAndNoRefuses) {
    WindowWorld world;
    world.Open();
    world.platform.Expect(BoxAnswer::no, {.text = "Do you want to quit Loftwing ? "});
    EXPECT_FALSE(world.window->close());
    EXPECT_TRUE(world.window->isVisible());
    EXPECT_EQ(world.platform.boxes[0].fallback, BoxAnswer::no);
    world.platform.Expect(BoxAnswer::yes, {.text = "Do you want to quit Loftwing ? "});
    EXPECT_TRUE(world.window->close());
    EXPECT_EQ(world.platform.help_closed, 1);
}

TEST(MainWindow, ClosingWithChangesOffersToSaveThem) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.platform.Expect(BoxAnswer::cancel, {.buttons = BoxButtons::save_discard_cancel});
    world.Action("mnu_fileexit")->trigger();
    EXPECT_TRUE(world.window->isVisible());
    world.platform.Expect(BoxAnswer::save, {.buttons = BoxButtons::save_discard_cancel});
    const std::string file = world.folder.Path("kept.lfw");
    world.platform.files_expected.push_back(file);
    world.Action("mnu_fileexit")->trigger();
    EXPECT_FALSE(world.window->isVisible());
    EXPECT_TRUE(std::filesystem::exists(file));
}

TEST(MainWindow, SeparatorsOfTheToolBarAndThePrintPreviewDoNothing) {
    WindowWorld world;
    world.Open();
    for (const char *name : {"Toolbar1(1)", "Toolbar1(4)", "Toolbar1(6)", "mnu_fileprintpreview"}) {
        world.Action(name)->trigger();
    }
    EXPECT_TRUE(world.platform.boxes.empty());
}

/// What became of a print job; the run's printer is gone when the command is over.
struct Job {
    std::vector<std::string> calls;
    std::size_t pages = 0;
};

class WatchedPrinter : public TestPrinter {
  public:
    explicit WatchedPrinter(Job &job) : job_(job) {}
    WatchedPrinter(const WatchedPrinter &) = delete;
    WatchedPrinter &operator=(const WatchedPrinter &) = delete;
    ~WatchedPrinter() override { job_ = {calls, sheets.size()}; }

  private:
    Job &job_;
};

void PrintInto(WindowWorld &world, Job &job) {
    world.platform.make_printer = [&job](const PrintQuestion &) {
        return std::make_unique<WatchedPrinter>(job);
    };
}

TEST(MainWindow, PrintingAsksFirstAndKeepsTheZoomOfTheScreen) {
    WindowWorld world;
    Job job;
    PrintInto(world, job);
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    Q_EMIT world.Find<QComboBox>("Combo1")->activated(0);
    world.platform.Expect(BoxAnswer::no,
                          {.text = world.programme.Text({"TextButton", "14"}) + " naca2412"});
    world.Action("mnu_fileprint")->trigger();
    EXPECT_TRUE(job.calls.empty());
    world.platform.Expect(BoxAnswer::yes,
                          {.text = world.programme.Text({"TextButton", "14"}) + " naca2412"});
    world.Action("mnu_fileprint")->trigger();
    ASSERT_FALSE(job.calls.empty());
    EXPECT_EQ(job.calls.back(), "end");
    EXPECT_EQ(job.pages, 1U);
    EXPECT_EQ(world.programme.rib.Zoom, 3.0F);
    EXPECT_EQ(world.programme.settings.page.recouvrement, 0.0F);
}

TEST(MainWindow, APdfThatIsCalledOffKeepsTheZoomOfTheScreen) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    Q_EMIT world.Find<QComboBox>("Combo1")->activated(0);
    world.platform.files_expected = {""};
    world.Action("mnu_filepdf")->trigger();
    EXPECT_EQ(world.programme.rib.Zoom, 3.0F);
}

TEST(MainWindow, ALongRibOpensThePageSetupOnceAndIsTiled) {
    WindowWorld world;
    Job job;
    PrintInto(world, job);
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.programme.rib.corde = 300;
    world.platform.Expect(BoxAnswer::yes);
    bool opened = false;
    InNextDialog([&](Seen &dialog) {
        opened = true;
        dialog.Click("cmdok");
    });
    world.Action("mnu_fileprint")->trigger();
    EXPECT_TRUE(opened);
    ASSERT_FALSE(job.calls.empty());
    EXPECT_EQ(job.calls.back(), "end");
    // 297 - 10 - 15 - 20 = 252 mm a sheet.
    EXPECT_EQ(job.pages, 2U);
    world.programme.rib.corde = 600;
    world.platform.Expect(BoxAnswer::yes);
    job = {};
    world.Action("mnu_fileprint")->trigger();
    EXPECT_EQ(job.pages, 3U);
}

TEST(MainWindow, ACancelledPageSetupPrintsNothing) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.programme.rib.corde = 300;
    world.platform.Expect(BoxAnswer::yes);
    InNextDialog([](Seen &dialog) { dialog.Click("cmdannuler"); });
    world.Action("mnu_fileprint")->trigger();
    EXPECT_TRUE(world.platform.print_questions.empty());
}

TEST(MainWindow, ExportsGoToTheFileThatIsChosen) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.platform.files_expected = {world.folder.Path("rib.svg"), world.folder.Path("rib.pdf"),
                                     ""};
    world.Action("mnu_filesvg")->trigger();
    world.Action("mnu_filepdf")->trigger();
    world.Action("mnu_filesvg")->trigger();
    EXPECT_EQ(world.platform.file_questions[0].name, "naca2412 200 mm.svg");
    EXPECT_GT(std::filesystem::file_size(world.folder.Path("rib.svg")), 1000U);
    EXPECT_GT(std::filesystem::file_size(world.folder.Path("rib.pdf")), 1000U);
}

TEST(MainWindow, AMissingCalculatorIsSaid) {
    WindowWorld world;
    world.Open();
    world.platform.programs_start = false;
    world.platform.Expect(BoxAnswer::ok, {.text = world.programme.Text({"Erreur", "6"})});
    world.Action("mnu_calc")->trigger();
    EXPECT_EQ(world.platform.boxes[0].title, "Loftwing No-Calc");
}

TEST(MainWindow, HelpAndPrinterSettingsGoThroughTheirSeams) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.Action("mnu_helpsearch")->trigger();
    EXPECT_EQ(world.platform.help_contexts, std::vector<int>{10});
    world.Action("mnu_fileprinterconfig")->trigger();
    EXPECT_EQ(world.platform.printer_settings_shown, 1);
}

TEST(MainWindow, SpeaksFrench) {
    WindowWorld world("French");
    world.Open();
    for (const Command &command : MenuCommands()) {
        const std::string shown = world.Action(command.name)->text().toStdString();
        EXPECT_NE(shown, "") << command.name;
        if (command.name != std::string("mnu_helpVersion")) {
            EXPECT_EQ(shown, world.programme.Text(command.text)) << command.name;
        }
    }
    EXPECT_EQ(world.platform.button_words.yes, "Oui");
    EXPECT_EQ(world.Main().Word("cmdcorde"), "&" + world.programme.Text({"MainTolbar", "13"}));
}

TEST(MainWindow, AFileDroppedOnItOpens) {
    WindowWorld world;
    world.Open();
    const RibModel &rib = world.programme.rib;
    world.Drop(WindowWorld::Sample("naca4412.dat"), [&rib] { return rib.ProfilCharge; });
    EXPECT_EQ(rib.NomProfil, "naca4412");
}

TEST(MainWindow, ShowsTheUnitInInches) {
    WindowWorld world("English", "in");
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    EXPECT_EQ(world.Panel(3), "unit : in");
    EXPECT_EQ(world.Panel(2), "Airfoil : naca2412  Chord : 8 in <> Information : NACA 2412");
    EXPECT_EQ(world.programme.settings.page.YdprintAfich, "2");
}

} // namespace
} // namespace loftwing
