#include "utilities/qt_rib_set_dialog.h"

#include "persist/default_entry.h"
#include "platform/busy_pointer.h"
#include "utilities/tool_files.h"

#include <QProgressDialog>

namespace loftwing {

namespace {

constexpr const char *kEtiquette = " RibEvol/SaveProfil";
constexpr int kDelai = 500; // milliseconds before the progress is shown

} // namespace

RibSetDialog::RibSetDialog(Programme &programme, MainView &view, const char *nom, int aide,
                           QWidget *parent)
    : Dialogue(programme, nom, aide, parent), view_(view) {
    NommeCommuns();
    PoseMotsCommuns();
    ConnectEach(cmdouvrir, &QPushButton::clicked, this, &RibSetDialog::cmdouvrir_Click);
    connect(&cmdrechercheevol, &QPushButton::clicked, this, &RibSetDialog::cmdrechercheevol_Click);
    connect(&cmdcalcul, &QPushButton::clicked, this, &RibSetDialog::cmdcalcul_Click);
}

void RibSetDialog::PoseMotsCommuns() {
    for (QPushButton *browse : {&cmdouvrir[0], &cmdouvrir[1], &cmdrechercheevol}) {
        browse->setText(Mot({"FrmDefaut", "14"}));
        SetTip(*browse, programme_.Text({"TextButton", "7"}));
    }
    Lblsav.setText(Mot({"FrmDefaut", "15"}));
    cmdcalcul.setText(Mot({"TextButton", "6"}));
    SetTip(cmdcalcul, programme_.Text({"TextButton", "6T"}));
    AdmetLongueurs(txtcorde);
    txtdefprofevol.setText(Q(programme_.settings.repertoires.RepProfilevol));
}

void RibSetDialog::cmdouvrir_Click(int index) {
    Essaie([this, index] {
        const LngKey titre = index == 0 ? LngKey{"FrmRibevol", "10"} : LngKey{"FrmRibevol", "11"};
        const auto chosen = view_.ChoisitProfil(programme_.Text(titre));
        if (!chosen) {
            return;
        }
        At(profils_, index) = index == 0 ? ProfilMajeur(*chosen) : ProfilMineur(*chosen);
        At(txtprofil, index).setText(Q(chosen->NomProfil));
    });
}

void RibSetDialog::cmdrechercheevol_Click() {
    Essaie([this] {
        const std::string chosen = ChoisitDossier(S(txtdefprofevol.text()), programme_.messages);
        if (!chosen.empty()) {
            txtdefprofevol.setText(Q(chosen));
            RangeDossierJeux(programme_.settings.repertoires, chosen, programme_.paths.fichier,
                             programme_.platform);
        }
    });
}

bool RibSetDialog::Refuse(const std::optional<RefusJeu> &refus) {
    if (!refus) {
        return false;
    }
    programme_.messages.Tell(refus->text, Titre(), refus->icon);
    if (QLineEdit *field = Champ(refus->champ)) {
        SelectField(*field);
    }
    return true;
}

bool RibSetDialog::Essaie(const std::function<void()> &action) {
    try {
        action();
        return true;
    } catch (const Failure &failure) {
        programme_.platform.SetPointer(Pointer::normal);
        RapporteEcriture(programme_.messages, failure, kEtiquette);
        return false;
    }
}

void RibSetDialog::cmdcalcul_Click() {
    Essaie([this] { Calcule(); });
}

const std::string &RibSetDialog::Dossier() {
    std::string &folder = programme_.settings.repertoires.RepProfilevol;
    TermineDossier(folder);
    return folder;
}

bool RibSetDialog::ConfirmeRemplacement(const JeuDeNervures &jeu) const {
    const Messages &messages = programme_.messages;
    const FichiersEcrits replaced = FichiersRemplaces(jeu, ecrits_, messages);
    return replaced.empty() || messages.Confirm(TexteRemplacement(replaced, messages), Titre());
}

/// The rib files, with a progress where they take long.
void RibSetDialog::EcritFichiers(const JeuDeNervures &jeu) {
    const Sablier sablier(programme_.platform);
    QProgressDialog progress(this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setWindowTitle(windowTitle());
    progress.setLabelText(Mot({"FrmRibevol", "21"}) + " " + Mot({"FrmRibevol", "22"}));
    progress.setCancelButton(nullptr);
    progress.setMinimumDuration(kDelai);
    progress.setMaximum(static_cast<int>(jeu.nervures.size()));
    progress.setValue(0);
    SaveProfil(jeu, programme_.messages, [&progress](int done, int) { progress.setValue(done); });
}

/// What writes; a failure there costs the window and the rib. True when it went well.
bool RibSetDialog::EssaieEcrire(const std::function<void()> &action) {
    if (Essaie(action)) {
        return true;
    }
    Renonce();
    view_.affclear();
    return false;
}

void RibSetDialog::Ecrit(const JeuDeNervures &jeu, const std::string &resultat) {
    if (!ConfirmeRemplacement(jeu)) {
        return;
    }
    if (EssaieEcrire([&] { EcritFichiers(jeu); })) {
        programme_.messages.Inform(resultat, Titre());
        EssaieEcrire([&] { EcritResume(jeu); });
        ecrits_.merge(FichiersDuJeu(jeu, programme_.messages));
    }
}

void RibSetDialog::cmdannuler_Click() {
    Garde(" RibEvol/Close", [this] { view_.mnu_affclear_Click(); });
    Renonce();
}

} // namespace loftwing
