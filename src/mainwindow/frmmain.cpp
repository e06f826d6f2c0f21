#include "mainwindow/frmmain.h"

#include "base/version.h"
#include "mainwindow/beside.h"
#include "mainwindow/frmInput.h"
#include "mainwindow/frmopen.h"
#include "mainwindow/window_place.h"
#include "platform/qt_form.h"
#include "programme/load.h"
#include "programme/rib_steps.h"
#include "utilities/frmEpCourb.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace loftwing {

namespace {

/// The one file that is dragged or dropped, nothing for anything else.
std::optional<std::string> FileOf(const QMimeData &data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) {
        return std::nullopt;
    }
    return S(urls.front().toLocalFile());
}

} // namespace

frmmain::frmmain(Programme &programme)
    : programme_(programme),
      commands_(*this, {[this](const char *name, CommandHandler handler) {
                            Garde(std::string(" Main/") + name,
                                  [this, handler] { (this->*handler)(); });
                        },
                        [this](const EntreeExport &entree) { Exporte(entree); },
                        [this](const std::string &path) { mnuFileMRU_Click(path); },
                        [this](int row) { Combo1_Click(row); }}),
      picture_(new PictureArea(programme.rib, this)), panels_(*this) {
    setObjectName("frmmain");
    setAcceptDrops(true);
    ConnectPicture();
    LitPlace(*this);
    Form_Load();
}

void frmmain::Form_Load() {
    programme_.platform.SetPointer(Pointer::normal);
    ChargeReglages(programme_);
    Panneau(1, std::string(" V. ") + kVersion);
    Panneau(2, "");
    AfficheUnite();
    Titre(kTitre);
    MontreCoches();
    AppliqueLangue();
    AfficheFichiersRecents();
    commands_.Met(EtatCommandes::depart);
}

void frmmain::Garde(const std::string &label, const std::function<void()> &action) {
    try {
        action();
    } catch (const Failure &failure) {
        programme_.platform.SetPointer(Pointer::normal);
        programme_.messages.Report(failure, label);
    }
}

void frmmain::Titre(const std::string &caption) {
    setWindowTitle(Q(caption));
}

void frmmain::Panneau(int number, const std::string &text) {
    panels_.Montre(number, text);
}

void frmmain::AfficheUnite() {
    Panneau(3, "unit :" + programme_.settings.Unite);
}

void frmmain::AfficheCorde() {
    Panneau(2, programme_.Text({"FrmPrint", "26"}) + " : " + programme_.rib.cordeAfich);
}

void frmmain::AfficheFichiersRecents() {
    commands_.MontreFichiersRecents(FichiersRecentsConnus(programme_));
}

void frmmain::ActiveCommandes() {
    FermeDialogues();
    commands_.Met(EtatCommandes::rib);
}

void frmmain::DesactiveCommandes() {
    commands_.Met(EtatCommandes::sans);
}

void frmmain::ActiveCommandesVue() {
    commands_.Met(EtatCommandes::vue);
}

void frmmain::ActiveCommandesCouple() {
    commands_.Met(EtatCommandes::couple);
}

void frmmain::ActiveCommandesVides() {
    commands_.Met(EtatCommandes::vide);
}

void frmmain::MontreCoches() {
    commands_.MontreCoches(programme_.rib);
}

void frmmain::PrendCoche(const char *name) {
    Coche(programme_.rib, name) = commands_.Entree(name).isChecked();
}

bool frmmain::Saisit(const std::string &ModeSaisie) {
    frmInput dialog(programme_, ModeSaisie, this);
    ShowModal(dialog);
    return !programme_.rib.Annule;
}

bool frmmain::ChoisitFichier(const ChoixProfil &choix) {
    programme_.rib.Annule = false;
    frmopen picker(programme_, *this, this);
    picker.setWindowTitle(Q(choix.titre));
    picker.MontreMemoire(choix.case_memoire, choix.memoire);
    if (choix.laisse_rib) {
        picker.LaisseLeRib();
    }
    ShowModal(picker);
    return !programme_.rib.Annule;
}

std::optional<std::string> frmmain::SaisitEpCourb() {
    frmEpCourb dialog(programme_, *this, this);
    const bool accepted = ShowModal(dialog) == QDialog::Accepted;
    return accepted ? std::optional(dialog.Fichier()) : std::nullopt;
}

void frmmain::FermeDialogues() {
    loftwing::FermeDialogues(*this);
}

void frmmain::AppliqueLangue() {
    commands_.PoseTextes(programme_.language);
    programme_.platform.SetButtonWords(
        {programme_.Text({"TextButton", "1"}), programme_.Text({"TextButton", "2"}),
         programme_.Text({"TextButton", "30"}), programme_.Text({"TextButton", "31"}),
         programme_.Text({"TextButton", "32"})});
    toolkit_words_.Follow(programme_.language.LangueCourante);
    AppliqueLangueOutils(*this);
}

void frmmain::closeEvent(QCloseEvent *event) {
    // The program's own question first: a No to it leaves everything open.
    if (!ConfirmeFin(programme_) || !FermeCoordonnees(*this)) {
        event->ignore();
        return;
    }
    EcritPlace(*this);
    programme_.platform.CloseHelp();
    FermeDialogues();
    event->accept();
}

void frmmain::dragEnterEvent(QDragEnterEvent *event) {
    if (FileOf(*event->mimeData())) {
        event->acceptProposedAction();
    }
}

void frmmain::dropEvent(QDropEvent *event) {
    if (const auto path = FileOf(*event->mimeData())) {
        event->acceptProposedAction();
        // After the drop is over: a box must not hold up the program that the file comes from.
        QTimer::singleShot(0, this, [this, path] { OuvreFichier(*path); });
    }
}

} // namespace loftwing
