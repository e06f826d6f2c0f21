#include "picture_panels.h"

#include "picture_steps.h"
#include "sample_wing.h"

#include "base/whole_file.h"
#include "mainwindow/frmaile.h"
#include "mainwindow/frmpanneau.h"
#include "platform/qt_text.h"

#include <QTabWidget>
#include <QTemporaryDir>

namespace loftwing {

namespace {

/// The tabs of a window, each under its name; they stand behind `first` of the window's own.
void TakeTabs(QDialog &window, int first, const std::string &name, const TakePicture &take) {
    auto *tabs = window.findChild<QTabWidget *>("Onglets");
    for (const char *tab : {"plan", "front", "parts"}) {
        tabs->setCurrentIndex(first++);
        take(window, name + "-" + tab);
    }
}

void TakePanel(Programme &programme, QWidget &main, const TakePicture &take) {
    RibModel &rib = programme.rib;
    const bool inches = programme.settings.Unite == kUniteIn;
    frmpanneau panel(programme, &main);
    const PartieGardee<PartiesRib> kept(rib);
    Panneau kept_panel;
    kept_panel.bouts[0] = rib.Partie<PartiesRib>();
    Press(panel, "cmdfenetre(0)");
    const Saisie typed = programme.SaisieEnCours();
    StockeLongueur(inches ? "5" : "130", typed, rib.cordeAfich, rib.corde);
    StockeLongueur(inches ? "1/4" : "6", typed, rib.EpBAAfich, rib.EpBA);
    Press(panel, "cmdfenetre(1)");
    Fill(panel, "txt(0)", "7");
    Fill(panel, "txt(1)", inches ? "3/32" : "2");
    Fill(panel, "txt(3)", inches ? "24" : "600");
    Fill(panel, "txt(4)", inches ? "1" : "25");
    Fill(panel, "txt(5)", "3.5");
    Fill(panel, "txt(6)", inches ? "9" : "140");
    WaitForReading();
    take(panel, "frmpanneau");
    TakeTabs(panel, 1, "frmpanneau", take);
    kept_panel.bouts[1] = rib.Partie<PartiesRib>();
    kept_panel.jeu.nombre = std::to_string(7);
    take(*SheetsOf(programme, kept_panel, inches ? "3x24 2x12" : "80x600 60x300", &main),
         "frmplanches");
}

/// The sample wing as the tour of it shows it.
void TakeSample(Programme &programme, QWidget &main, const std::string &sample,
                const TakePicture &take) {
    frmpanneau panel(programme, &main);
    OpenSampleWing(panel, programme, sample);
    WaitForReading();
    EndHoleOfSampleWing(panel, programme);
    WaitForReading();
    take(panel, "wing");
    Fill(panel, "txt(5)", "3");
    Fill(panel, "txt(6)", "140");
    WaitForReading();
    TakeTabs(panel, 1, "wing", take);
    Panneau wing = SampleWing(programme, sample);
    take(*SheetsOf(programme, wing, "100x1000", &main), "wing-sheets");
}

/// The sample panel with two outer ones that are bent up.
void TakeWing(Programme &programme, QWidget &main, const std::string &sample,
              const TakePicture &take) {
    const QTemporaryDir folder;
    const std::string home = S(folder.path()) + "/";
    const auto panel = [&](const char *name, const char *root, const char *more) {
        WriteWholeFile(home + name, "[Panel]\nUnit=mm\nThickness=2\nRoot=" + sample + root +
                                        "\nTip=" + sample + "/tip.lfw\n" + more);
    };
    panel("inner.lfp", "/root.lfw", "Count=6\nLength=500\n[Ranges]\nhole2=1-6\n");
    panel("middle.lfp", "/tip.lfw", "Count=4\nLength=300\nDihedral=4\nSweep=10\n");
    panel("tip.lfp", "/tip.lfw", "Count=2\nLength=150\nDihedral=12\nSweep=15\n");
    WriteWholeFile(home + "swift.lfa",
                   "[Wing]\nPanel1=inner.lfp\nPanel2=middle.lfp\nPanel3=tip.lfp\n");
    frmaile wing(programme, &main);
    wing.Ouvre(home + "swift.lfa");
    take(wing, "frmaile");
    TakeTabs(wing, 0, "frmaile", take);
}

} // namespace

void TakePanels(Programme &programme, QWidget &main, const std::string &sample,
                const TakePicture &take) {
    TakePanel(programme, main, take);
    if (programme.settings.Unite == kUniteMm) { // the ribs of the sample wing are
        TakeSample(programme, main, sample, take);
        TakeWing(programme, main, sample, take);
    }
}

} // namespace loftwing
