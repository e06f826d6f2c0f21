// What comes out of the panel's window: rib files, sheets, drawings.

#include "mainwindow/frmpanneau.h"

#include "base/file_name.h"
#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "mainwindow/frmplanches.h"
#include "output/frmPrint.h"
#include "persist/default_entry.h"
#include "platform/busy_pointer.h"
#include "programme/panel_words.h"
#include "programme/qt_stack_pdf.h"
#include "utilities/tool_files.h"

#include <QProgressDialog>

namespace loftwing {

namespace {

constexpr const char *kEtiquette = " frmpanneau/cmdnervures";
constexpr int kDelai = 500; // milliseconds before the progress is shown

} // namespace

/// Makes what is typed to its end. False where the user called that off.
bool frmpanneau::Acheve() {
    if (attente_.isActive()) {
        Refait(); // what was typed last hasn't rested yet
    }
    if (!travail_.EnCours()) {
        return true;
    }
    QProgressDialog progress(this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setWindowTitle(windowTitle());
    progress.setLabelText(Mot({"Panel", "186"}));
    progress.setCancelButtonText(Q(ButtonWord(programme_.language, SharedWord::cancel)));
    progress.setMinimumDuration(kDelai);
    return travail_.Acheve([&progress](int done, int total) {
        progress.setMaximum(total);
        progress.setValue(done);
        return !progress.wasCanceled();
    });
}

/// Whether there is a panel of which something can be written; why not is told.
bool frmpanneau::Pret() {
    if (!Acheve()) {
        return false;
    }
    if (refus_.empty()) {
        return true;
    }
    programme_.messages.Inform(LignesDeBoite(EnLignes(refus_)), Titre());
    if (fautif_ != nullptr) {
        SelectField(*fautif_);
    }
    return false;
}

bool frmpanneau::ConfirmeAvis(const std::vector<AvisPanneau> &avis) const {
    return avis.empty() || programme_.messages.Confirm(programme_.Text({"Panel", "127"}) + "\n\n" +
                                                           LignesDeBoite(EnLignes(avis)) + "\n" +
                                                           programme_.Text({"Panel", "128"}),
                                                       Titre());
}

bool frmpanneau::ConfirmeRemplacement() const {
    const FichiersEcrits there = FichiersDejaLa(FichiersDuPanneau(fait_), ecrits_);
    return there.empty() ||
           programme_.messages.Confirm(TexteRemplacement(there, programme_.messages), Titre());
}

void frmpanneau::EcritFichiers() {
    try {
        const Sablier sablier(programme_.platform);
        ecrits_.Note(EcritPanneau(fait_));
    } catch (const Failure &failure) {
        programme_.platform.SetPointer(Pointer::normal);
        // Not the words for the folder of rib sets: this one was chosen here.
        programme_.messages.Inform(programme_.messages.TexteEchec(failure),
                                   programme_.Text({"Erreur", "1"}) + kEtiquette);
        return;
    }
    MontreEnregistre({"Panel", "129"}, dossier_);
}

void frmpanneau::cmdnervures_Click() {
    if (!Pret() || !ConfirmeAvis(avis_)) {
        return;
    }
    const std::string chosen = ChoisitDossier(dossier_, programme_.messages);
    if (chosen.empty()) {
        return;
    }
    dossier_ = chosen;
    Refait();
    if (Pret() && ConfirmeRemplacement()) {
        EcritFichiers();
    }
}

/// What files of the panel are proposed to be called, without extension.
std::string frmpanneau::NomDesSorties() const {
    return chemin_.empty() ? panneau_.bouts[0].NomProfil : StemOf(chemin_);
}

void frmpanneau::cmdplanches_Click() {
    if (!Pret()) {
        return;
    }
    frmplanches dialog(programme_, panneau_, demande_.premier, planches_, NomDesSorties(), this);
    dialog.DemandeAvant([this](const PanneauFait &fait) { return ConfirmeAvis(fait.avis); });
    ShowModal(dialog);
    planches_ = dialog.Choix();
    feuilles_ = dialog.Feuilles();
    MontreAile();
}

/// Where a drawing needs several pages and they have no overlap, the user is asked to set one up.
DessinsPanneau frmpanneau::Dessins(const std::string &nom) {
    const auto regle = [this] {
        frmPrint dialog(programme_, this);
        return ShowModal(dialog) == Accepted;
    };
    return {programme_, fait_, demande_.premier, ReglageDeFenetre(programme_.messages, regle), nom};
}

void frmpanneau::cmddessins_Click() {
    if (!Pret() || !ConfirmeAvis(avis_)) {
        return;
    }
    FileQuestion question;
    question.title = programme_.Text({"Panel", "154"});
    question.name = NomDesSorties() + ".pdf";
    question.filter_text = "PDF (*.pdf)";
    question.default_extension = "pdf";
    const std::string path = programme_.platform.ChooseSaveFile(question);
    if (path.empty()) {
        return;
    }
    const Sablier sablier(programme_.platform);
    DessinsPanneau drawings = Dessins(ToUtf8(StemOf(path)));
    if (const auto bytes = PdfDePile(drawings.EnPile())) {
        WriteWholeFile(path, *bytes, Flush::yes);
        MontreEnregistre({"Panel", "153"}, path);
    }
}

void frmpanneau::cmdimprimer_Click() {
    if (!Pret() || !ConfirmeAvis(avis_)) {
        return;
    }
    DessinsPanneau drawings = Dessins(NomDesSorties());
    ImprimePileSurDemande(drawings.EnPile(), programme_.messages);
}

} // namespace loftwing
