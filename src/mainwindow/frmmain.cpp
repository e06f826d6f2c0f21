#include "mainwindow/frmmain.h"

#include "base/version.h"
#include "core/airfoil_reader.h"
#include "features/rib_entry.h"
#include "mainwindow/beside.h"
#include "mainwindow/frmInput.h"
#include "mainwindow/window_place.h"
#include "output/screen_plot.h"
#include "output/view_plots.h"
#include "platform/busy_pointer.h"
#include "platform/qt_form.h"
#include "programme/export.h"
#include "programme/load.h"
#include "programme/rib_file.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

namespace loftwing {

frmmain::frmmain(Programme &programme)
    : programme_(programme),
      commands_(*this,
                {[this](const char *name, CommandHandler handler) { Execute(name, handler); },
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
    panels_.Montre(1, std::string(" V. ") + kVersion);
    panels_.Montre(2, "");
    AfficheUnite();
    setWindowTitle(QString::fromUtf8(kTitre));
    commands_.MontreCoches(programme_.rib);
    AppliqueLangue();
    AfficheFichiersRecents();
    commands_.Met(EtatCommandes::depart);
}

void frmmain::Execute(const char *name, CommandHandler handler) {
    if (handler != nullptr) {
        Garde(std::string(" Main/") + name, [this, handler] { (this->*handler)(); });
    }
}

void frmmain::Garde(const std::string &label, const std::function<void()> &action) {
    try {
        action();
    } catch (const Failure &failure) {
        programme_.platform.SetPointer(Pointer::normal);
        programme_.messages.Report(failure, label);
    }
}

void frmmain::AfficheUnite() {
    panels_.Montre(3, "unit :" + programme_.settings.Unite);
}

void frmmain::AfficheCorde() {
    panels_.Montre(2, programme_.Text({"FrmPrint", "26"}) + " : " + programme_.rib.cordeAfich);
}

void frmmain::PrendCoche(const char *name) {
    Coche(programme_.rib, name) = commands_.Entree(name).isChecked();
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

void frmmain::FermeDialogues() {
    loftwing::FermeDialogues(*this);
}

void frmmain::ViewReset() {
    RemetVue(programme_.rib);
    programme_.plot.BlocBA = 0;
    programme_.plot.BlocEp = 0;
    picture_->RemetDefilement();
}

bool frmmain::ConfirmePerte(LngKey text, LngKey title) {
    if (!programme_.rib.Modifie || CompareEnVue(programme_.rib, programme_.compare)) {
        return true;
    }
    return programme_.messages.Confirm(programme_.Text(text), programme_.Text(title));
}

void frmmain::affclear() {
    const Sablier sablier(programme_.platform);
    programme_.messages.Garde(" Main/AffichClear", [this] { ClearRib(); });
}

void frmmain::ClearRib() {
    FermeDialogues();
    VideRib(programme_);
    ViewReset();
    commands_.Met(EtatCommandes::vide);
    commands_.MontreCoches(programme_.rib);
    ControlRep(programme_.ReglagesEnCours(), programme_.paths.programme);
    panels_.Montre(2, "");
    setWindowTitle(QString::fromUtf8(kTitre));
    picture_->Montre(nullptr);
    commands_.ListeZoom().setCurrentIndex(kZoomRow100);
    programme_.rib.Zoom = FacteurZoom(kZoomRows[kZoomRow100]);
    picture_->RegleDefilement();
    LitDefauts(programme_.ReglagesEnCours());
}

void frmmain::RepriseProfil() {
    setWindowTitle(Q(TitreFenetre(programme_.rib, programme_.messages)));
    const Sablier sablier(programme_.platform);
    EntreProfil(programme_);
    AfficheFichiersRecents();
    CordeDuTitre(programme_.rib, programme_.SaisieEnCours());
    RecalculProfil();
}

void frmmain::RecalculProfil() {
    if (PrepareContour(programme_.rib, programme_.messages) == Preparation::impossible) {
        affclear();
        return;
    }
    ViewReset();
    ActiveCommandes();
    affiche();
}

void frmmain::OuvreFichier(const std::string &path) {
    if (EstComposants(path)) {
        Garde(" LireEcrire/newLfw", [this, &path] {
            if (ConfirmePerte({"fileopen", "1"}, {"fileopen", "2"})) {
                newLfw(path);
            }
        });
        return;
    }
    Garde(" Main/FileMru", [this, &path] { LitEtReprend(path); });
}

void frmmain::LitEtReprend(const std::string &path) {
    RibModel &rib = programme_.rib;
    const ProfilPrecedent before(rib);
    const bool was_simple = rib.ModeCouple;
    rib.ModeCouple = false;
    rib.SansApercu = true;
    rib.CheminProfil = path;
    const ResultatLecture read =
        FichierLecture(rib, programme_.messages, programme_.Text({"frmopen", "1"}));
    rib.SansApercu = false;
    if (read.issue == Lecture::echec) {
        affclear();
        return;
    }
    if (read.issue == Lecture::refuse) {
        // The rib on the screen is still the one that was there.
        before.Rend(rib);
        rib.ModeCouple = was_simple;
        return;
    }
    NommeProfil(rib, path);
    rib.ProfilCharge = true;
    RepriseProfil();
}

void frmmain::AfficheFichiersRecents() {
    commands_.MontreFichiersRecents(FichiersRecentsConnus(programme_));
}

bool frmmain::Saisit(const std::string &ModeSaisie) {
    frmInput dialog(programme_, ModeSaisie, this);
    ShowModal(dialog);
    return !programme_.rib.Annule;
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

bool frmmain::QuestionFin() {
    const Messages &messages = programme_.messages;
    std::string text = messages.Text({"TextButton", "17"}) + " " + kTitre + " ? ";
    if (programme_.rib.Modifie && !CompareEnVue(programme_.rib, programme_.compare)) {
        text = messages.Text({"FrmMainMessage", "4"});
    }
    return messages.Confirm(text, kTitre);
}

void frmmain::closeEvent(QCloseEvent *event) {
    // The program's own question first: a No to it leaves everything open.
    if (!QuestionFin() || !FermeCoordonnees(*this)) {
        event->ignore();
        return;
    }
    EcritPlace(*this);
    programme_.platform.CloseHelp();
    FermeDialogues();
    event->accept();
}

void frmmain::dragEnterEvent(QDragEnterEvent *event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.front().isLocalFile()) {
        event->acceptProposedAction();
    }
}

void frmmain::dropEvent(QDropEvent *event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) {
        return;
    }
    event->acceptProposedAction();
    const std::string path = S(urls.front().toLocalFile());
    // After the drop is over: a box must not hold up the program that the file comes from.
    QTimer::singleShot(0, this, [this, path] { OuvreFichier(path); });
}

} // namespace loftwing
