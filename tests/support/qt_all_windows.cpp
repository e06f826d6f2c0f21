#include "support/qt_all_windows.h"

#include "base/whole_file.h"
#include "features/frmInstxt.h"
#include "features/frmTalon.h"
#include "features/frmbacarre.h"
#include "features/frmbloc.h"
#include "features/frmlongeron.h"
#include "features/frmtrou.h"
#include "lang/frmlang.h"
#include "mainwindow/frmAbout.h"
#include "mainwindow/frmInput.h"
#include "mainwindow/frmSplash.h"
#include "mainwindow/frmaide.h"
#include "mainwindow/frmaile.h"
#include "mainwindow/frmimport.h"
#include "mainwindow/frmopen.h"
#include "mainwindow/frmpanneau.h"
#include "mainwindow/frmplanches.h"
#include "mainwindow/frmsecours.h"
#include "output/frmPrint.h"
#include "output/frmcorrection.h"
#include "output/frmcoul.h"
#include "output/frmpapier.h"
#include "persist/frmdefaut.h"
#include "platform/qt_platform.h"
#include "programme/import_steps.h"
#include "programme/special_views.h"
#include "support/components_text.h"
#include "utilities/frmCoord.h"
#include "utilities/frmEpCourb.h"
#include "utilities/frmangle.h"
#include "utilities/frmdiedre.h"
#include "utilities/frminclinaison.h"
#include "utilities/frmnervure.h"
#include "utilities/frmribevol.h"
#include "utilities/frmribevol2.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QRadioButton>

#include <filesystem>
#include <type_traits>
#include <utility>

namespace loftwing {

namespace {

void ShowAndLook(QWidget &window, const Look &look) {
    window.show();
    window.activateWindow();
    EXPECT_TRUE(Eventually([&] { return window.isActiveWindow(); }));
    QApplication::processEvents();
    look(window);
    window.hide();
}

void LookAtMain(WindowWorld &world, const Look &look) {
    world.window->activateWindow();
    EXPECT_TRUE(Eventually([&] { return world.window->isActiveWindow(); }));
    QApplication::processEvents();
    look(*world.window);
}

/// A dialog as the main window makes it.
template <class Dialog>
KnownWindow Plain(const char *name) {
    return {name, [](WindowWorld &world, const Look &look) {
                if constexpr (std::is_constructible_v<Dialog, Programme &, QWidget *>) {
                    Dialog dialog(world.programme, world.window.get());
                    ShowAndLook(dialog, look);
                } else {
                    Dialog dialog(world.programme, *world.window, world.window.get());
                    ShowAndLook(dialog, look);
                }
            }};
}

/// A dialog that looks otherwise when the rib is otherwise.
template <class Dialog>
KnownWindow With(const char *name, void (*prepare)(RibModel &rib)) {
    return {name, [prepare, plain = Plain<Dialog>(name)](WindowWorld &world, const Look &look) {
                prepare(world.programme.rib);
                plain.show(world, look);
            }};
}

/// The main window after something was done to it.
KnownWindow Main(const char *name, void (*prepare)(WindowWorld &world)) {
    return {name, [prepare](WindowWorld &world, const Look &look) {
                prepare(world);
                LookAtMain(world, look);
            }};
}

KnownWindow Input(const char *mode) {
    return {std::string("frmInput-") + mode, [mode](WindowWorld &world, const Look &look) {
                frmInput entry(world.programme, mode, world.window.get());
                ShowAndLook(entry, look);
            }};
}

/// A box as the desktop shows it, with the words of the language.
KnownWindow Box(const char *name, BoxButtons buttons) {
    return {name, [buttons](WindowWorld &world, const Look &look) {
                QtPlatform platform(LOFTWING_SOURCE_DIR "/resources");
                platform.SetButtonWords(world.platform.button_words);
                InNextDialog([&look](Seen &box) { look(box.Window()); });
                platform.ShowWithTick({world.programme.Text({"FrmMainMessage", "4"}), "Loftwing",
                                       BoxIcon::question, buttons, BoxAnswer::ok},
                                      world.programme.Text({"Message", "141"}));
            }};
}

void ShowEmpty(WindowWorld &world) {
    Programme &programme = world.programme;
    for (const char *airfoil : {"naca0012.dat", "naca2412.dat"}) {
        world.window->OuvreFichier(WindowWorld::Sample(airfoil));
    }
    world.window->affclear();
    programme.rib.ProfilCharge = false;
    world.window->VideImage();
}

void AddFeatures(WindowWorld &world) {
    Programme &programme = world.programme;
    const bool inches = programme.settings.Unite == kUniteIn;
    const std::string width = inches ? "3/8" : "10";
    const std::string depth = inches ? "3/16" : "5";
    RibModel &rib = programme.rib;
    const Saisie typed = programme.SaisieEnCours();
    const Refus nobody = [](Regle, float) {};
    StockeLongeron(rib.longeron[0], {{"12%", width, depth, ""}, 2, 2, kLongeronSurface, 0},
                   rib.corde, typed, nobody);
    StockeLongeron(rib.longeron[1], {{"30%", depth, "0", depth}, 1, 0, kLongeronRond, 0}, rib.corde,
                   typed, nobody);
    rib.NbLongeron = 1;
    StockeTrou(rib.trou[0], {{"50%", width, "0"}, "0", true, 0, kTrouRond}, rib.corde, typed,
               nobody);
    StockeTrou(rib.trou[1], {{"35%", width, depth}, depth, false, 1, kTrouRectangle}, rib.corde,
               typed, nobody);
    rib.NbTrou = 1;
}

void ShowRib(WindowWorld &world) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    RibModel &rib = world.programme.rib;
    rib.EpBA = 8;
    rib.EpBF = 25;
    rib.NbRep = 3;
    AddFeatures(world);
    world.window->affiche();
}

/// Every notice at once.
void LookAtNotices(WindowWorld &world, const Look &look) {
    QApplication::processEvents(); // a redraw that is due would look for faults anew
    RibModel &rib = world.programme.rib;
    const PartieGardee<Ajouts> heel(rib);
    const PartieGardee<FichierConnu> file(rib);
    rib.TypeGabarit = kGabaritTalon;
    rib.talon.TalonBAAfich = "10%";
    rib.talon.TalonBFAfich = world.programme.settings.Unite == kUniteIn ? "1.1/4" : "30";
    rib.CheminRib = "/home/anna/models/swift/wing/ribs/root.lfw";
    rib.ProfilAilleurs = rib.UniteDouteuse = true;
    rib.faute = {CauseContour::meme_hauteur, 30, 31, 28};
    rib.EcartContour = 0.0318;
    const std::string in_the_way = world.folder.File("recovery", "");
    world.programme.secours.Ecrit(rib, world.programme.settings.Unite);
    world.window->MontreAvis();
    LookAtMain(world, look);
    std::filesystem::remove(in_the_way);
    world.programme.secours.Retire();
    rib.faute = {};
    rib.EcartContour = 0;
}

void ShowComparison(WindowWorld &world) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    PrendProfil1(world.programme);
    const double haut1 = world.programme.rib.ExtradosMaxi;
    world.window->OuvreFichier(WindowWorld::Sample("naca6409.dat"));
    PrendProfil2(world.programme, haut1);
    world.programme.rib.ModeCompare = true;
    world.window->RetraceVues();
}

void ShowSimplePlot(WindowWorld &world) {
    world.programme.rib.ModeCompare = false;
    world.programme.rib.ModeCouple = true;
    world.window->RetraceVues();
}

void LookAtImport(WindowWorld &world, const Look &look) {
    const std::string path = world.folder.File(
        "percent.dat", "Wing 12\n100 0\n95 1.2\n80 3.9\n60 6.9\n40 8.8\n25 9\n15 7.9\n7.5 5.9\n"
                       "2.5 3.4\n0 0\n2.5 -1.6\n10 -2.5\n30 -2.6\n60 -1.4\n85 -.5\n100 0\n");
    const auto airfoil = EssaieImport(path);
    ASSERT_TRUE(airfoil);
    frmimport dialog(world.programme, world.window.get(), path, *airfoil);
    ShowAndLook(dialog, look);
}

/// Two ribs that weren't saved.
void LookAtRecovery(WindowWorld &world, const Look &look) {
    std::vector<Orphelin> ribs(2);
    for (Orphelin &rib : ribs) {
        rib.chemin = world.folder.File("1.rib", "");
        rib.contenu = {world.programme.rib, world.programme.settings.Unite};
    }
    ribs[1].contenu.parties.CheminRib = "/ribs/the root of the large wing, left.lfw";
    frmsecours dialog(world.programme, world.window.get(), std::move(ribs));
    ShowAndLook(dialog, look);
}

/// The picker, with a good file and then with one that can be imported only.
void LookAtPicker(WindowWorld &world, const Look &look) {
    frmopen picker(world.programme, *world.window, world.window.get());
    picker.MontreMemoire(true, "naca0012");
    ShowAndLook(picker, look);
}

/// A panel from the rib to itself, with its tables filled; a tab of its plan is up.
void LookAtPanelTab(WindowWorld &world, const Look &look, int tab) {
    frmpanneau dialog(world.programme, world.window.get());
    Seen panel(dialog);
    panel.Fill({"txt", 0}, "3");
    panel.Fill({"txt", 1}, "2");
    panel.Fill({"txt", 3}, world.programme.settings.Unite == kUniteIn ? "24" : "600");
    panel.Fill({"txt", 5}, "3.5");
    panel.Find<QPushButton>({"cmdfenetre", 0}).click();
    panel.Find<QPushButton>({"cmdfenetre", 1}).click();
    panel.Find<PlanTabs>("Onglets").setCurrentIndex(tab);
    ShowAndLook(dialog, look);
}

void LookAtPanel(WindowWorld &world, const Look &look) {
    LookAtPanelTab(world, look, 0);
}
void LookAtBuildingPlan(WindowWorld &world, const Look &look) {
    LookAtPanelTab(world, look, 1);
}
void LookAtFrontView(WindowWorld &world, const Look &look) {
    LookAtPanelTab(world, look, 2);
}
void LookAtParts(WindowWorld &world, const Look &look) {
    LookAtPanelTab(world, look, 3);
}

/// The same with the spacing typed rib by rib.
void LookAtVariablePanel(WindowWorld &world, const Look &look) {
    frmpanneau dialog(world.programme, world.window.get());
    Seen panel(dialog);
    panel.Find<QRadioButton>({"optecart", 1}).setChecked(true);
    panel.Fill({"txtliste", 0}, "60 60 55");
    panel.Fill({"txtliste", 1}, "2");
    panel.Find<QPushButton>({"cmdfenetre", 0}).click();
    panel.Find<QPushButton>({"cmdfenetre", 1}).click();
    ShowAndLook(dialog, look);
}

/// Two panels of a wing, the second of which says that its file has no length.
void LookAtWing(WindowWorld &world, const Look &look) {
    const std::string unit(Trim(world.programme.settings.Unite));
    ComponentsText rib;
    if (world.programme.settings.Unite == kUniteIn) {
        rib.chord = "8";
        rib.sheeting = "1/16";
    }
    world.folder.File("naca2412.dat", ReadWholeFile(WindowWorld::Sample("naca2412.dat")));
    world.folder.File("root.lfw", rib.Current());
    const std::string panel = "[Panel]\nRoot=root.lfw\nTip=root.lfw\nUnit=" + unit + "\nCount=3\n";
    world.folder.File("inner.lfp", panel + "Length=24\n");
    world.folder.File("outer, a long name that a file may well have.lfp", panel);
    const std::string wing = world.folder.File(
        "wing.lfa",
        "[Wing]\nPanel1=inner.lfp\nPanel2=outer, a long name that a file may well have.lfp\n");
    frmaile dialog(world.programme, world.window.get());
    EXPECT_TRUE(dialog.Ouvre(wing));
    ShowAndLook(dialog, look);
}

/// The pieces of both wings, laid on sheets.
void LookAtSheets(WindowWorld &world, const Look &look) {
    Programme &programme = world.programme;
    Panneau panel;
    panel.bouts.fill(programme.rib.Partie<PartiesRib>());
    panel.jeu.nombre = "3";
    panel.jeu.cordes = CordesDesBouts(panel, programme.settings.Unite);
    SaisiePlanches choice = PlanchesUsuelles(programme.settings.Unite);
    choice.deux_ailes = true;
    frmplanches dialog(programme, panel, 1, choice, "wing", world.window.get());
    EXPECT_TRUE(Eventually([&] { return Seen(dialog).Enabled("cmdenregistrer"); }));
    ShowAndLook(dialog, look);
}

/// The help of the picker.
void LookAtHelp(WindowWorld &world, const Look &look) {
    frmaide help(world.programme);
    help.Montre(41);
    ShowAndLook(help, look);
}

/// With a gap chosen, as after a click on its number.
void LookAtGaps(WindowWorld &world, const Look &look) {
    world.programme.rib.jeu.NbNervInter = 12;
    frmribevol2 dialog(world.programme, *world.window, world.window.get());
    Seen(dialog).Find("FrameDimensions").show();
    ShowAndLook(dialog, look);
}

void UpperTail(RibModel &rib) {
    rib.bloc.Optquebf = 0;
}
void LowerTail(RibModel &rib) {
    rib.bloc.Optquebf = 1;
}
void HeelBelow(RibModel &rib) {
    rib.talon.OptTalon = 0;
}
void HeelAbove(RibModel &rib) {
    rib.talon.OptTalon = 1;
}

} // namespace

const std::vector<KnownWindow> &KnownWindows() {
    static const std::vector<KnownWindow> windows = {
        Main("frmmain-empty", &ShowEmpty),
        Main("frmmain", &ShowRib),
        {"frmmain-notices", &LookAtNotices},
        Input("corde"),
        Input("epcof"),
        Input("ba"),
        Input("bf"),
        Input("rep"),
        Plain<frmlongeron>("frmlongeron"),
        Plain<frmtrou>("frmtrou"),
        With<frmTalon>("frmTalon-intra", &HeelBelow),
        With<frmTalon>("frmTalon-extra", &HeelAbove),
        Plain<frmbacarre>("frmbacarre"),
        With<frmbloc>("frmbloc-upper", &UpperTail),
        With<frmbloc>("frmbloc-lower", &LowerTail),
        Plain<frmInstxt>("frmInstxt"),
        Plain<frmPrint>("frmPrint"),
        Plain<frmcorrection>("frmcorrection"),
        Plain<frmpapier>("frmpapier"),
        Plain<frmcoul>("frmcoul"),
        Plain<frmdefaut>("frmdefaut"),
        Plain<frmangle>("frmangle"),
        Plain<frminclinaison>("frminclinaison"),
        Plain<frmnervure>("frmnervure"),
        Plain<frmdiedre>("frmdiedre"),
        Plain<frmCoord>("frmCoord"),
        Plain<frmribevol>("frmribevol"),
        {"frmribevol2", &LookAtGaps},
        Plain<frmpanneau>("frmpanneau-empty"),
        {"frmpanneau", &LookAtPanel},
        {"frmpanneau-variable", &LookAtVariablePanel},
        {"frmpanneau-plan", &LookAtBuildingPlan},
        {"frmpanneau-front", &LookAtFrontView},
        {"frmpanneau-parts", &LookAtParts},
        Plain<frmaile>("frmaile-empty"),
        {"frmaile", &LookAtWing},
        {"frmplanches", &LookAtSheets},
        {"frmimport", &LookAtImport},
        {"frmsecours", &LookAtRecovery},
        {"frmopen", &LookAtPicker},
        Plain<frmAbout>("frmAbout"),
        Plain<frmSplash>("frmSplash"),
        {"frmaide", &LookAtHelp},
        Box("box-ok", BoxButtons::ok_cancel),
        Box("box-yes", BoxButtons::yes_no),
        Box("box-retry", BoxButtons::retry_cancel),
        Box("box-locate", BoxButtons::locate_cancel),
        // These take the rib's place or clear it.
        Plain<frmEpCourb>("frmEpCourb"),
        Main("frmmain-compare", &ShowComparison),
        Main("frmmain-simple", &ShowSimplePlot),
        Plain<lang>("lang"),
    };
    return windows;
}

std::vector<std::string> LanguagesHeld() {
    return LngIni::Languages(LOFTWING_SOURCE_DIR "/resources/lng");
}

void LookAtAllWindows(const std::string &language, const std::string &unit, const Look &look) {
    WindowWorld world(language, unit);
    world.Open();
    for (const KnownWindow &known : KnownWindows()) {
        SCOPED_TRACE(known.name + ", " + language + ", " + unit);
        known.show(world, look);
    }
}

void LookAtAllWindows(const Look &look) {
    for (const std::string &language : LanguagesHeld()) {
        LookAtAllWindows(language, "mm", look);
    }
}

} // namespace loftwing
