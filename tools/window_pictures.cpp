// Makes pictures of every window.
//
//     window_pictures FOLDER [--font FACTOR] [--screen FACTOR] [--display WIDTHxHEIGHT] [--dark]
//                            [--language NAME] [--unit mm|in]
//     window_pictures --help-pages FOLDER
//
// The first is to look at windows after a change: in each language and unit, or in those that are
// named, pictures go to FOLDER as WINDOW-LANGUAGE-UNIT.png. --font enlarges the font alone,
// --screen everything, as a screen of many pixels does; --display is the size of that screen. The
// second makes the pictures of the help, in mm: FOLDER/LANGUAGE/pictures/WINDOW.png.

#include "picture_options.h"
#include "picture_panels.h"
#include "picture_platform.h"
#include "picture_ribs.h"
#include "picture_steps.h"

#include "base/whole_file.h"
#include "features/frmInstxt.h"
#include "features/frmTalon.h"
#include "features/frmbacarre.h"
#include "features/frmbloc.h"
#include "features/frmlongeron.h"
#include "features/frmtrou.h"
#include "lang/aide.h"
#include "lang/frmlang.h"
#include "mainwindow/frmAbout.h"
#include "mainwindow/frmInput.h"
#include "mainwindow/frmSplash.h"
#include "mainwindow/frmaide.h"
#include "mainwindow/frmdecoupe.h"
#include "mainwindow/frmimport.h"
#include "mainwindow/frmmain.h"
#include "mainwindow/frmopen.h"
#include "mainwindow/frmsecours.h"
#include "mainwindow/rib_preview.h"
#include "output/frmPrint.h"
#include "output/frmcorrection.h"
#include "output/frmcoul.h"
#include "output/frmpapier.h"
#include "persist/frmdefaut.h"
#include "platform/qt_form.h"
#include "programme/export.h"
#include "programme/programme.h"
#include "programme/special_views.h"
#include "utilities/frmCoord.h"
#include "utilities/frmEpCourb.h"
#include "utilities/frmangle.h"
#include "utilities/frmdiedre.h"
#include "utilities/frminclinaison.h"
#include "utilities/frmnervure.h"
#include "utilities/frmribevol.h"
#include "utilities/frmribevol2.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <iostream>
#include <stdexcept>

namespace {

using namespace loftwing;
const std::string kResources = std::string(LOFTWING_SOURCE_DIR) + "/resources";
const std::string kLanguages = kResources + "/lng";

/// Where pictures go.
struct Target {
    std::string folder;
    std::string suffix; ///< behind a window's name
    std::string help;   ///< the folder of the help that the help window shows
};

class Pictures {
  public:
    Pictures(Target target, const std::string &language, const std::string &unit)
        : platform_(kResources + "/airfoils"),
          programme_(PathsIn(home_.path().toStdString(), target.help), platform_),
          target_(std::move(target)) {
        programme_.language.Charge(programme_.paths.langues, language);
        WriteINIFile("Language", "Langue", language, programme_.paths.fichier);
        window_ = std::make_unique<frmmain>(programme_);
        if (unit == "in") {
            programme_.settings.Unite = kUniteIn;
            programme_.rib.cordeAfich = "8.1/2";
            programme_.rib.corde = 215.9F;
            programme_.rib.EpCoffrageAfich = "1/16";
            programme_.rib.EpCoffrage = 1.5875F;
            EcritDefauts(programme_.ReglagesEnCours());
        }
    }

    void Take() {
        window_->resize(1000, 420);
        window_->show();
        TakeEmpty();
        RibModel &rib = programme_.rib;
        window_->OuvreFichier(programme_.settings.repertoires.RepProfil + "/naca2412.dat");
        rib.EpBA = 8;
        rib.EpBF = 25;
        rib.NbRep = 3;
        AddFeatures(programme_);
        rib.AffEpr = rib.AffHautBA = rib.AffHautBF = true;
        window_->affiche();
        Save(*window_, "frmmain");
        TakeSheets();
        TakePiece();
        TakePanels(programme_, *window_, kResources + "/samples/wing",
                   [this](QWidget &window, const std::string &name) { Save(window, name); });
        if (programme_.settings.Unite == kUniteMm) {
            TakePrint();
        }
        TakePreview();
        TakeNotices();
        for (const char *mode : {"corde", "epcof", "ba", "bf", "rep"}) {
            frmInput entry(programme_, mode, window_.get());
            Save(entry, std::string("frmInput-") + mode);
        }
        TakeDialogs();
    }

  private:
    QTemporaryDir home_;
    PicturePlatform platform_;
    Programme programme_;
    std::unique_ptr<frmmain> window_;
    Target target_;

    static Paths PathsIn(const std::string &home, const std::string &help) {
        return {kResources, kLanguages, home + "/Loftwing.ini", help};
    }

    /// The sheets around the rib, seen whole.
    void TakeSheets() {
        const auto entry = [this](const char *name) {
            window_->findChild<QAction *>(name)->trigger();
        };
        entry("mnu_afffeuilles");
        entry("mnu_affajuste");
        Save(*window_, "frmmain-sheets");
        entry("mnu_afffeuilles");
        entry("mnu_affzoom100");
    }

    /// The piece under the drawing, and on its way to a cutter.
    void TakePiece() {
        const auto entry = [this] { window_->findChild<QAction *>("mnu_affpiece")->trigger(); };
        entry();
        Save(*window_, "frmmain-piece");
        entry();
        frmdecoupe cut(programme_, window_.get());
        Fill(cut, "txtsaignee", programme_.settings.Unite == kUniteIn ? "0.008" : "0.2");
        Save(cut, "frmdecoupe");
    }

    /// The main window while a trailing edge stock is typed.
    void TakePreview() {
        frmInput stock(programme_, "bf", window_.get());
        stock.show();
        {
            const RibPreview preview(stock, programme_, *window_->findChild<PictureArea *>());
            Fill(stock, "infotxt", programme_.settings.Unite == kUniteIn ? "2.1/2" : "60");
            WaitForReading();
            Save(*window_, "frmmain-preview");
        }
        stock.reject();
        programme_.rib.Annule = false;
    }

    /// The sheet that comes out of the printer: the rib of the tour.
    void TakePrint() {
        RibModel &rib = programme_.rib;
        const PartieGardee<Ajouts> features(rib);
        const PartieGardee<Dimensions> sizes(rib);
        const PartieGardee<Vue> view(rib);
        rib.NbRep = 0;
        rib.AffEpr = rib.AffHautBA = rib.AffHautBF = false;
        DressAsInTheTour(programme_);
        ImprimeSurDemande(programme_, ReglageDeFenetre(programme_.messages, [] { return true; }));
        Write(platform_.FirstSheet(), "sheet");
    }

    /// The window before the first airfoil, and after one.
    void TakeEmpty() {
        Save(*window_, "frmmain-empty");
        for (const char *airfoil : {"/naca0012.dat", "/naca2412.dat"}) {
            window_->OuvreFichier(programme_.settings.repertoires.RepProfil + airfoil);
        }
        window_->affclear();
        Save(*window_, "frmmain-cleared");
    }

    /// Every notice at once.
    void TakeNotices() {
        RibModel &rib = programme_.rib;
        const PartieGardee<Ajouts> heel(rib);
        const PartieGardee<FichierConnu> file(rib);
        rib.TypeGabarit = kGabaritTalon;
        rib.talon.TalonBAAfich = "10%";
        rib.talon.TalonBFAfich = programme_.settings.Unite == kUniteIn ? "1.1/4" : "30";
        rib.CheminRib = "/home/anna/models/swift/wing/ribs/root.lfw";
        rib.ProfilAilleurs = rib.UniteDouteuse = true;
        rib.faute = {CauseContour::meme_hauteur, 30, 31, 28};
        rib.EcartContour = 0.0318;
        window_->MontreAvis();
        Save(*window_, "frmmain-notices");
        rib.TypeGabarit = kSansGabarit;
        rib.Partie<FichierConnu>() = {};
        rib.faute = {};
        rib.EcartContour = 0;
        window_->MontreAvis();
    }

    void TakeDialogs() {
        TakeAddons();
        TakeCalculators();
        frmPrint page(programme_, window_.get());
        Save(page, "frmPrint");
        frmcorrection correction(programme_, window_.get());
        Save(correction, "frmcorrection");
        frmpapier paper(programme_, window_.get());
        Save(paper, "frmpapier");
        frmcoul colours(programme_, window_.get());
        Save(colours, "frmcoul");
        frmInstxt text(programme_, *window_, window_.get());
        Save(text, "frmInstxt");
        frmdefaut defaults(programme_, *window_, window_.get());
        Save(defaults, "frmdefaut");
        frmlongeron spars(programme_, *window_, window_.get());
        Save(spars, "frmlongeron");
        frmtrou holes(programme_, *window_, window_.get());
        Save(holes, "frmtrou");
        frmangle oblique(programme_, *window_, window_.get());
        Save(oblique, "frmangle");
        frminclinaison inclined(programme_, *window_, window_.get());
        Save(inclined, "frminclinaison");
        TakeSets();
        frmaide help(programme_);
        help.Montre(kAideLongerons);
        Save(help, "frmaide");
        frmAbout about(programme_, window_.get());
        Save(about, "frmAbout");
        frmSplash splash(programme_, window_.get());
        Save(splash, "frmSplash");
        TakeImports();
        TakeRecovery();
        TakePicker();
        TakeViews();
        // Last, since it clears the rib.
        lang language(programme_, *window_, window_.get());
        Save(language, "lang");
    }

    /// The rib of the window and another one, as a crash would have left them.
    void TakeRecovery() {
        std::vector<Orphelin> ribs(2);
        for (Orphelin &rib : ribs) {
            rib.chemin = home_.filePath(Q(rib.chemin + "kept")).toStdString();
            WriteWholeFile(rib.chemin, "");
            QFile file(Q(rib.chemin));
            file.open(QIODevice::ReadWrite);
            file.setFileTime(QDateTime(QDate(2026, 3, 14), QTime(10, 20)),
                             QFileDevice::FileModificationTime);
            rib.contenu = {programme_.rib, programme_.settings.Unite};
        }
        ribs[0].contenu.parties.CheminRib = "/home/anna/models/swift/wing/ribs/root.lfw";
        frmsecours recovery(programme_, window_.get(), std::move(ribs));
        Save(recovery, "frmsecours");
    }

    /// Imports of a coarse file and of one that opening refuses.
    void TakeImports() {
        const std::pair<const char *, const char *> files[] = {
            {"percent", "Wing 12\n100 0\n95 1.2\n80 3.9\n60 6.9\n40 8.8\n25 9\n15 7.9\n7.5 5.9\n"
                        "2.5 3.4\n0 0\n2.5 -1.6\n10 -2.5\n30 -2.6\n60 -1.4\n85 -.5\n100 0\n"},
            {"closed", "Wing\n1 0\n0.5 0.1\n0 0\n0.5 -0.1\n0.99 0\n"}};
        for (const auto &[name, bytes] : files) {
            const std::string path = home_.filePath(Q(name)).toStdString();
            WriteWholeFile(path, bytes);
            if (const auto airfoil = EssaieImport(path)) {
                frmimport import(programme_, window_.get(), path, *airfoil);
                Save(import, std::string("frmimport-") + name);
            }
        }
    }

    /// The picker with a good file and with one that is refused.
    void TakePicker() {
        const std::string folder = programme_.settings.repertoires.LastOpenProfil;
        programme_.settings.repertoires.LastOpenProfil = programme_.settings.repertoires.RepProfil;
        frmopen picker(programme_, *window_, window_.get());
        picker.show();
        WaitForReading();
        Save(picker, "frmopen");
        WriteRefusedAirfoil(home_.filePath("refused.dat"));
        if (auto *path = picker.findChild<QLineEdit *>("txtchemin")) {
            path->setText(home_.path());
        }
        if (auto *open = picker.findChild<QPushButton *>("cmdouvrir")) {
            open->click();
        }
        if (auto *files = picker.findChild<QListWidget *>("File1")) {
            files->setCurrentRow(0);
        }
        WaitForReading();
        Save(picker, "frmopen-refused");
        picker.reject();
        programme_.settings.repertoires.LastOpenProfil = folder;
    }

    void TakeSets() {
        frmribevol even(programme_, *window_, window_.get());
        Save(even, "frmribevol");
        programme_.rib.jeu.NbNervInter = 12;
        frmribevol2 variable(programme_, *window_, window_.get());
        variable.findChild<QWidget *>("FrameDimensions")->show(); // as after a click on a gap
        Save(variable, "frmribevol2");
    }
    /// The views that stand in the rib's place; what was added to the rib doesn't come back.
    void TakeViews() {
        RibModel &rib = programme_.rib;
        window_->OuvreFichier(programme_.settings.repertoires.RepProfil + "/naca2412.dat");
        rib.NouvEpaisseur = 0;
        frmEpCourb section(programme_, *window_, window_.get());
        Save(section, "frmEpCourb-opened");
        section.findChild<QLineEdit *>("txtEpR")->setText("9");
        section.findChild<QLineEdit *>("txtCourbure")->setText("3.5");
        section.findChild<QPushButton *>("CmdApply")->click();
        Save(section, "frmEpCourb");
        Save(*window_, "frmmain-EpCourb");
        section.hide();
        PrendProfil1(programme_);
        const double haut1 = rib.ExtradosMaxi;
        window_->OuvreFichier(programme_.settings.repertoires.RepProfil + "/naca6409.dat");
        PrendProfil2(programme_, haut1);
        rib.ModeCompare = true;
        window_->RetraceVues();
        Save(*window_, "frmmain-compare");
        rib.ModeCompare = false;
        rib.ModeCouple = true;
        window_->RetraceVues();
        Save(*window_, "frmmain-simple");
    }

    void TakeAddons() {
        for (const bool extra : {false, true}) {
            programme_.rib.talon.OptTalon = extra ? 1 : 0;
            frmTalon heel(programme_, *window_, window_.get());
            Save(heel, extra ? "frmTalon-extra" : "frmTalon-intra");
        }
        frmbacarre square(programme_, *window_, window_.get());
        Save(square, "frmbacarre");
        for (const bool lower : {false, true}) {
            programme_.rib.bloc.Optquebf = lower ? 1 : 0;
            frmbloc foam(programme_, *window_, window_.get());
            Save(foam, lower ? "frmbloc-lower" : "frmbloc-upper");
        }
    }

    void TakeCalculators() {
        const bool inches = programme_.settings.Unite == kUniteIn;
        frmnervure ribs(programme_, window_.get());
        Save(ribs, "frmnervure-empty");
        const char *mm_values[] = {"240", "160", "14", "1200", "72", "48", "2"};
        const char *in_values[] = {"10", "6.1/2", "14", "48", "3", "2", "1/16"};
        for (int i = 0; i < 7; ++i) {
            const std::string field = "txtnerv(" + std::to_string(i) + ")";
            Fill(ribs, field.c_str(), inches ? in_values[i] : mm_values[i]);
        }
        Press(ribs, "cmdcalcul");
        Save(ribs, "frmnervure");
        frmdiedre dihedral(programme_, window_.get());
        Fill(dihedral, "txt(0)", " 5.71");
        Fill(dihedral, "txt(1)", "50");
        Fill(dihedral, "txt(2)", "5");
        Save(dihedral, "frmdiedre");
        frmCoord editor(programme_, window_.get());
        Fill(editor, "txt(0)", "mine");
        Fill(editor, "txt(1)", "My own airfoil");
        Fill(editor, "txt(2)", "1000");
        const char *points[][2] = {
            {"1000", "0"}, {"500", "62.5"}, {"0", "0"}, {"500", "-31.25"}, {"1000", "0"}};
        for (const auto &[x, y] : points) {
            Fill(editor, "txtinX", x);
            Fill(editor, "txtinY", y);
            Press(editor, "cmdentre");
        }
        editor.findChild<QListWidget *>()->setCurrentRow(3);
        Save(editor, "frmCoord");
    }

    void Save(QWidget &window, const std::string &name) {
        window.show();
        QApplication::processEvents();
        Write(window.grab().toImage(), name);
    }

    void Write(const QImage &picture, const std::string &name) const {
        const QString path = Q(target_.folder + "/" + name + target_.suffix + ".png");
        if (!picture.save(path)) {
            throw std::runtime_error("can't write " + S(path));
        }
    }
};

} // namespace

namespace {

void TakeAll(const PictureOptions &options) {
    QDir().mkpath(Q(options.folder));
    bool taken = false;
    for (const std::string &language : LngIni::Languages(kLanguages)) {
        for (const char *unit : {"mm", "in"}) {
            if ((options.language.empty() || options.language == language) &&
                (options.unit.empty() || options.unit == unit)) {
                Pictures({options.folder, "-" + language + "-" + unit, kResources + "/help"},
                         language, unit)
                    .Take();
                taken = true;
            }
        }
    }
    if (!taken) {
        throw std::runtime_error("there is no language " + options.language);
    }
}

void TakeForHelp(const std::string &folder) {
    for (const std::string &language : LngIni::Languages(kLanguages)) {
        std::string pictures = folder;
        pictures.append("/").append(language).append("/pictures");
        QDir().mkpath(Q(pictures));
        Pictures({pictures, "", folder}, language, "mm").Take();
    }
}

/// The colours of a dark desktop.
QPalette DarkColours() {
    const QColor window("#353535");
    const QColor white(Qt::white);
    QPalette colours(white, window, window.lighter(), QColor("#1e1e1e"), QColor("#292929"), white,
                     white, QColor("#2a2a2a"), window);
    colours.setColor(QPalette::Highlight, QColor("#1f6fbf"));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    colours.setColor(QPalette::AlternateBase, QColor("#313131"));
    colours.setColor(QPalette::ToolTipBase, QColor("#2a2a2a"));
    colours.setColor(QPalette::ToolTipText, Qt::white);
    colours.setColor(QPalette::PlaceholderText, QColor("#959595"));
    colours.setColor(QPalette::Link, QColor("#5aa9f0"));
    colours.setColor(QPalette::LinkVisited, QColor("#b48ede"));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        colours.setColor(QPalette::Disabled, role, QColor("#808080"));
    }
    colours.setColor(QPalette::Disabled, QPalette::Highlight, QColor("#505050"));
    return colours;
}

/// Has the toolkit take a screen of the wanted size, which it reads from a file.
void Unfold(const PictureOptions &options, QTemporaryFile &description) {
    qputenv("QT_SCALE_FACTOR", QByteArray::number(options.screen));
    description.open();
    description.write(QString(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": %1,
                                "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                          .arg(options.width)
                          .arg(options.height)
                          .toUtf8());
    description.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + description.fileName().toUtf8());
}

void Dress(const PictureOptions &options) {
    QApplication::setStyle("Fusion"); // the same on every desktop
    if (options.dark) {
        QApplication::setPalette(DarkColours());
    }
    if (options.font != 1) {
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * options.font);
        QApplication::setFont(font);
    }
}

} // namespace

int main(int argc, char **argv) {
    const auto options = ReadPictureOptions({argv + 1, argv + argc});
    if (!options) {
        std::cerr << kPictureUsage;
        return 2;
    }
    QTemporaryFile screen;
    Unfold(*options, screen);
    const QApplication application(argc, argv);
    Dress(*options);
    try {
        if (options->for_help) {
            TakeForHelp(options->folder);
        } else {
            TakeAll(*options);
        }
    } catch (const std::exception &error) {
        std::cerr << "window_pictures: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
