#include "persist/frmdefaut.h"

#include "base/number_text.h"
#include "lang/aide.h"
#include "lang/ini_file.h"
#include "programme/rib_trial.h"

#include <QSignalBlocker>

namespace loftwing {

frmdefaut::frmdefaut(Programme &programme, MainView &view, QWidget *parent)
    : Dialogue(programme, "frmdefaut", kAideDessin, parent), view_(view),
      unite_avant_(programme.settings.Unite), page_avant_(programme.settings.page) {
    NameAll();
    LayOut();
    Form_Load();
    ConnectAll();
}

void frmdefaut::Form_Load() {
    PoseTextes();
    MontreUnite();
    MontreFichier();
    txtdefprof.setText(Q(programme_.settings.repertoires.RepProfil));
    txtdefprofevol.setText(Q(programme_.settings.repertoires.RepProfilevol));
    SelectField(txtdef[kDefautCorde]);
}

void frmdefaut::PoseTextes() {
    setWindowTitle(Mot({"FrmDefaut", "1"}));
    Label2[kDefautCorde].setText(Mot({"FrmDefaut", "2"}));
    Label2[kDefautCoffrage].setText(Mot({"FrmDefaut", "3"}));
    Label2[kDefautBA].setText(Mot({"FrmDefaut", "4"}));
    Label2[kDefautHTbloc].setText(Mot({"FrmDefaut", "5"}));
    Label2[kDefautBAbloc].setText(Mot({"FrmDefaut", "6"}));
    Label2[kDefautBFbloc].setText(Mot({"FrmDefaut", "7"}));
    Frame5.setTitle(Mot({"FrmDefaut", "8"}));
    inches.setText(Mot({"FrmDefaut", "9"}));
    mm.setText(Mot({"FrmDefaut", "10"}));
    Frame3.setTitle(Mot({"FrmDefaut", "11"}));
    Frame4.setTitle(Mot({"FrmDefaut", "12"}));
    Bouton(SharedWord::ok).setText(Mot({"FrmDefaut", "13"}));
    for (QPushButton *browse : {&cmdrecherche, &cmdrechercheevol}) {
        browse->setText(Mot({"FrmDefaut", "14"}));
    }
    txtdefprof.setAccessibleName(Frame3.title());
    txtdefprofevol.setAccessibleName(Frame4.title());
    cmdrecherche.setAccessibleDescription(Frame3.title());
    cmdrechercheevol.setAccessibleDescription(Frame4.title());
}

void frmdefaut::MontreLongueurs(const TextesDefaut &texts) {
    ShowTexts(txtdef, texts);
}

/// The lengths on file, not those of the rib, which has its own by now.
void frmdefaut::MontreFichier() {
    Garde(" GetINIFile", [this] {
        MontreLongueurs(TextesDefautConnus(programme_.settings, programme_.paths.fichier));
    });
}

/// Marks the unit in force, here only.
void frmdefaut::MontreUnite() {
    const std::string &Unite = programme_.settings.Unite;
    const QSignalBlocker english(inches);
    const QSignalBlocker metric(mm);
    QRadioButton &chosen = Unite == kUniteIn ? inches : mm;
    chosen.setChecked(true);
    // Tab leads to the unit in force, not past it to one that a key press would choose.
    inches.setFocusPolicy(Qt::ClickFocus);
    mm.setFocusPolicy(Qt::ClickFocus);
    chosen.setFocusPolicy(Qt::StrongFocus);
    for (QLabel &label : Label1) {
        label.setText(Q(Unite));
    }
    AdmetLongueurs(txtdef);
}

void frmdefaut::PrendUnite(std::string_view Unite) {
    unite_acceptee_ = false;
    MontreLongueurs(ChoisitUnite(programme_.settings, Unite, programme_.messages));
    MontreUnite();
}

void frmdefaut::mm_Click() {
    Garde(" Defaut/mm", [this] { PrendUnite(kUniteMm); });
}

void frmdefaut::inches_Click() {
    Garde(" Defaut/inches", [this] { PrendUnite(kUniteIn); });
}

/// Unit and page as the dialog found them.
void frmdefaut::RemetReglages() {
    programme_.settings.Unite = unite_avant_;
    programme_.settings.page = page_avant_;
    view_.AfficheUnite();
}

/// After a No: the fields too.
void frmdefaut::RemetUnite() {
    RemetReglages();
    MontreUnite();
    MontreFichier();
}

/// Whether the rib may go for another unit; one with changes can be saved in its own before.
bool frmdefaut::ConfirmeUnite() {
    const RibModel &rib = programme_.rib;
    if (!rib.ProfilCharge || !rib.Modifie) {
        return loftwing::ConfirmeUnite(programme_.messages);
    }
    return programme_.messages.ConfirmLoss(
        QuestionUnite(programme_.messages), programme_.Text({"FrmDefaut", "1"}), [this, &rib] {
            const QScopedValueRollback<std::string> unit(programme_.settings.Unite, unite_avant_);
            view_.mnu_filesaveas_Click();
            return !rib.Modifie;
        });
}

/// Whether the unit that is chosen may stay. A Yes holds for as long as that choice stands, so that
/// a chord that has to be typed again doesn't bring the question back.
bool frmdefaut::AccepteUnite() {
    const bool changed = programme_.settings.Unite != unite_avant_;
    if (changed && !unite_acceptee_ && !ConfirmeUnite()) {
        return false;
    }
    unite_acceptee_ = changed;
    return true;
}

/// Whether the settings file has the unit that was chosen: clearing the rib reads it from there.
bool frmdefaut::UniteGardee() const {
    return UniteSurFichier(programme_.paths.fichier) == Trim(programme_.settings.Unite);
}

/// Whether the rib that is there takes the defaults, which are for the next one: only when the user
/// wants it so, and the rib can do with them.
bool frmdefaut::PrendDansLaNervure() {
    const RibModel &rib = programme_.rib;
    const bool something = rib.ProfilCharge || rib.Modifie;
    return (!something || programme_.messages.Confirm(programme_.Text({"FrmDefaut", "100"}) + "\n" +
                                                          programme_.Text({"FrmDefaut", "101"}),
                                                      Titre())) &&
           RibTracable(programme_, Titre());
}

void frmdefaut::Enregistre() {
    if (!AccepteUnite()) {
        RemetUnite();
        return;
    }
    const auto back = RetourDuRib(programme_.rib);
    const FinDefauts fin =
        PrendDefauts(programme_.rib, FieldTexts(txtdef), programme_.SaisieEnCours());
    if (fin == FinDefauts::sans_corde) {
        SelectField(txtdef[kDefautCorde]);
        return;
    }
    EcritDefauts(programme_.ReglagesEnCours());
    EcritMarges(programme_.ReglagesEnCours());
    if (unite_acceptee_ && !UniteGardee()) {
        back();
        RemetUnite();
        throw MakeFailure(kPathFileAccess, programme_.paths.fichier);
    }
    RangeDossiers(programme_.settings.repertoires, S(txtdefprof.text()), S(txtdefprofevol.text()),
                  programme_.paths.fichier, programme_.platform);
    if (unite_acceptee_) {
        view_.affclear();
    } else if (fin == FinDefauts::prise && !PrendDansLaNervure()) {
        back();
    }
    view_.AfficheUnite();
    view_.AfficheCorde();
    accept();
}

void frmdefaut::cmdok_Click() {
    Garde(" Defaut/OK", [this] { Enregistre(); });
}

void frmdefaut::cmdannuler_Click() {
    RemetReglages();
    Renonce();
}

/// Lets the user choose a folder; it counts at once, a cancelled choice changes nothing.
void frmdefaut::ChoisitDossier(NumericField &field, std::string &folder) {
    Garde(" Defaut/Folder", [this, &field, &folder] {
        const std::string chosen = loftwing::ChoisitDossier(S(field.text()), programme_.messages);
        if (!chosen.empty()) {
            field.setText(Q(chosen));
            folder = chosen;
        }
    });
}

void frmdefaut::cmdrecherche_Click() {
    ChoisitDossier(txtdefprof, programme_.settings.repertoires.RepProfil);
}

void frmdefaut::cmdrechercheevol_Click() {
    ChoisitDossier(txtdefprofevol, programme_.settings.repertoires.RepProfilevol);
}

void frmdefaut::ConnectAll() {
    // A unit that is chosen already is no choice: what was typed stays.
    connect(&mm, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) {
            mm_Click();
        }
    });
    connect(&inches, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) {
            inches_Click();
        }
    });
    connect(&cmdrecherche, &QPushButton::clicked, this, &frmdefaut::cmdrecherche_Click);
    connect(&cmdrechercheevol, &QPushButton::clicked, this, &frmdefaut::cmdrechercheevol_Click);
}

} // namespace loftwing
