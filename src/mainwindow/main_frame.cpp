#include "mainwindow/main_frame.h"

#include "base/version.h"
#include "mainwindow/beside.h"
#include "mainwindow/frmInput.h"
#include "mainwindow/frmimport.h"
#include "mainwindow/frmopen.h"
#include "mainwindow/pane_keys.h"
#include "mainwindow/rib_preview.h"
#include "platform/qt_form.h"
#include "platform/qt_plot_device.h"
#include "platform/qt_title.h"
#include "programme/load.h"
#include "programme/undo_steps.h"
#include "utilities/frmEpCourb.h"

#include <QMenuBar>
#include <QStatusBar>

#include <memory>

namespace loftwing {

namespace {

constexpr int kPanneauDit = 2; // the panel that says what is shown

} // namespace

MainFrame::MainFrame(Programme &programme, CommandBars::Demandes demandes)
    : programme_(programme), commands_(*this, std::move(demandes)),
      picture_(new PictureArea(programme.rib, this)), sheets_(programme, *picture_),
      piece_(programme, *picture_), secours_(programme, [this] { MontreAvis(); }), panels_(*this) {
    setCentralWidget(picture_);
    ConnectNotices();
    LeadThroughPanes(*this, {&commands_.Barre(), &picture_->Avis(), picture_->focusProxy()});
}

void MainFrame::ConnectNotices() {
    connect(&picture_->Avis(), &NoticeBar::Demande, this, [this](NoticeAct act) {
        Garde(" Main/Notice", [this, act] { DoNotice(programme_, *this, act); });
    });
    connect(&picture_->Avis(), &NoticeBar::Ferme, this, [this](NoticeSubject subject) {
        notices_.Close(subject);
        MontreAvis();
    });
}

void MainFrame::Garde(const std::string &label, const std::function<void()> &action) {
    ++commandes_;
    try {
        action();
    } catch (const Failure &failure) {
        programme_.platform.SetPointer(Pointer::normal);
        programme_.messages.Report(failure, label);
    }
    --commandes_;
    if (commandes_ == 0) {
        NotePas();
    }
}

void MainFrame::NotePas() {
    NoteEtat(programme_);
    MontrePas();
    secours_.Suit();
}

void MainFrame::MontrePas() {
    commands_.MontrePas(programme_.language, PasAnnulable(programme_),
                        PasRetablissable(programme_));
}

void MainFrame::Titre(const std::string &caption) {
    setWindowTitle(TitreDeFenetre(caption));
}

void MainFrame::Panneau(int number, const std::string &text) {
    panels_.Montre(number, text);
    if (number == kPanneauDit) {
        picture_->Decrit(text);
    }
}

void MainFrame::AfficheUnite() {
    Panneau(3, "unit :" + programme_.settings.Unite);
}

void MainFrame::AfficheCorde() {
    Panneau(2, programme_.Text({"FrmPrint", "26"}) + " : " + programme_.rib.cordeAfich);
}

void MainFrame::AfficheFichiersRecents() {
    const FichiersRecents profils = FichiersRecentsConnus(programme_);
    const FichiersRecents ribs = RibsRecentsConnus(programme_);
    commands_.MontreFichiersRecents(profils, ribs);
    picture_->Accueil().MontreRecents(ribs, profils);
}

void MainFrame::AppliqueLangue() {
    commands_.PoseTextes(programme_.language);
    picture_->PoseTextes(programme_.language);
    menuBar()->setAccessibleName(Q(programme_.Text({"MainTolbar", "244"})));
    statusBar()->setAccessibleName(Q(programme_.Text({"MainTolbar", "245"})));
    programme_.messages.PoseMotsDesBoutons();
    MontrePas();
    toolkit_words_.Follow(programme_.language.LangueCourante);
    AppliqueLangueOutils(*this);
    MontreAvis();
}

int MainFrame::ShowModal(QDialog &dialog) const {
    std::optional<RibPreview> preview;
    if (auto *own = qobject_cast<Dialogue *>(&dialog);
        own != nullptr && commands_.Entree("mnu_affessai").isChecked()) {
        preview.emplace(*own, programme_, *picture_);
    }
    return loftwing::ShowModal(dialog, picture_->PlaceDuDessin());
}

void MainFrame::MontreCoches() {
    commands_.MontreCoches(programme_.rib);
}

void MainFrame::PrendCoche(const char *name) {
    Coche(programme_.rib, name) = commands_.Entree(name).isChecked();
}

void MainFrame::Dessine(const std::function<Affichage(const Trace &)> &draw,
                        const std::function<void()> &tell) {
    // A box of an earlier redraw may still be open; its answer doesn't change the drawing.
    if (drawing_) {
        return;
    }
    drawing_ = true;
    auto recording = std::make_unique<Recording>(ScreenAdvance);
    const Affichage result = draw(programme_.TraceSur(*recording));
    drawing_ = false;
    if (result == Affichage::echec) {
        affclear();
    }
    if (result == Affichage::dessine) {
        dessine_ = true;
        picture_->Montre(std::move(recording));
        sheets_.Pose();
        piece_.Pose();
        Panneau(1, kVersion);
        tell();
    }
    picture_->RegleDefilement();
    MontreAvis();
}

void MainFrame::MontreAvis() {
    picture_->Avis().Montre(notices_.Standing(programme_), Q(programme_.Text({"TextButton", "5"})));
}

void MainFrame::VideImage() {
    picture_->Montre(nullptr);
    picture_->RegleDefilement();
    MontreAvis();
}

void MainFrame::RemetZoom() {
    commands_.ListeZoom().setCurrentIndex(kZoomRow100);
}

void MainFrame::FermeDialogues() {
    loftwing::FermeDialogues(*this);
}

bool MainFrame::Saisit(const std::string &ModeSaisie) {
    frmInput dialog(programme_, ModeSaisie, this);
    ShowModal(dialog);
    return !programme_.rib.Annule;
}

bool MainFrame::ChoisitFichier(const ChoixProfil &choix) {
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

std::optional<std::string> MainFrame::SaisitEpCourb() {
    frmEpCourb dialog(programme_, *this, this);
    const bool accepted = ShowModal(dialog) == QDialog::Accepted;
    return accepted ? std::optional(dialog.Fichier()) : std::nullopt;
}

std::optional<ImportVoulu> MainFrame::MontreImport(const std::string &path,
                                                   const ImportedAirfoil &airfoil) {
    return loftwing::MontreImport(programme_, this, path, airfoil);
}

} // namespace loftwing
