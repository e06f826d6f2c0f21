// The wing file of the wing's window.

#include "mainwindow/frmaile.h"

#include "base/file_name.h"
#include "base/text_encoding.h"
#include "programme/dossiers.h"
#include "programme/load.h"
#include "programme/wing_file.h"

namespace loftwing {

namespace {

constexpr const char *kDossier = "LastOpenLfa";
constexpr const char *kDossierPanneau = "LastOpenLfp";

} // namespace

/// All that is typed and chosen.
std::vector<std::string> frmaile::Etat() const {
    std::vector<std::string> state = {S(txtpremier.text())};
    for (const PanneauPose &panel : panneaux_) {
        state.push_back(panel.lu.chemin);
    }
    return state;
}

bool frmaile::ConfirmePerte() {
    return !Modifie() ||
           programme_.messages.ConfirmLoss(programme_.Text({"Plan", "161"}), Titre(), [this] {
               Garde(" frmaile/cmdenregistrer", [this] { cmdenregistrer_Click(); });
               return !Modifie();
           });
}

FileQuestion frmaile::Question() const {
    FileQuestion question;
    question.folder =
        DossierRetenu(programme_, kDossier, programme_.settings.repertoires.RepProfil);
    question.filter_text = programme_.Text({"Plan", "141"}) + " (*.lfa)";
    question.default_extension = "lfa";
    return question;
}

FileQuestion frmaile::QuestionPanneau() const {
    FileQuestion question;
    question.title = programme_.Text({"Panel", "192"});
    question.folder =
        DossierRetenu(programme_, kDossierPanneau, programme_.settings.repertoires.RepProfil);
    question.filter_text = programme_.Text({"Panel", "40"}) + " (*.lfp)";
    question.default_extension = "lfp";
    return question;
}

bool frmaile::Ouvre(const std::string &path) {
    FichierAile read;
    try {
        read = LitAile(path);
    } catch (const Failure &failure) {
        programme_.messages.Inform(programme_.Text({"Plan", "162"}) + "\n" +
                                       ToUtf8(failure.detail.empty() ? path : failure.detail),
                                   Titre());
        return false;
    }
    std::vector<PanneauPose> panels;
    for (const std::string &panel : read.panneaux) {
        bool told = false;
        panels.push_back(LitTel(panel, told));
    }
    panneaux_ = std::move(panels);
    txtpremier.setText(QString::number(read.premier));
    Retient(path);
    return true;
}

/// From now on that file has what the window has.
void frmaile::Retient(const std::string &path) {
    chemin_ = path;
    etat_ = Etat();
    txtfichier.setText(Q(ToUtf8(NameIn(path))));
    RetientDossier(programme_, kDossier, path);
    NoteRib(programme_, CheminEntier(path));
    Refait(); // plan and list have the file's name
}

/// What files of the wing are proposed to be called, without extension.
std::string frmaile::NomDesSorties() const {
    const std::string &path =
        chemin_.empty() && !panneaux_.empty() ? panneaux_.front().lu.chemin : chemin_;
    return ToUtf8(StemOf(path));
}

void frmaile::cmdouvrir_Click() {
    if (!ConfirmePerte()) {
        return;
    }
    FileQuestion question = Question();
    question.title = programme_.Text({"Plan", "159"});
    const std::string path = programme_.platform.ChooseOpenFile(question);
    if (!path.empty()) {
        Ouvre(path);
    }
}

/// Panels whose plan can't be drawn yet are kept all the same.
void frmaile::cmdenregistrer_Click() {
    if (attente_.isActive()) {
        Refait();
    }
    const std::string typed = S(txtpremier.text());
    if (panneaux_.empty() || (!typed.empty() && std::to_string(premier_) != typed)) {
        programme_.messages.Inform(refus_, Titre());
        return;
    }
    FileQuestion question = Question();
    question.title = programme_.Text({"Plan", "160"});
    question.name = NomDesSorties() + ".lfa";
    const std::string path = programme_.platform.ChooseSaveFile(question);
    if (path.empty()) {
        return;
    }
    FichierAile file;
    file.premier = premier_;
    for (const PanneauPose &panel : panneaux_) {
        file.panneaux.push_back(panel.lu.chemin);
    }
    EnregistreAile(path, file);
    Retient(path);
    lblenregistre.setText(Mot({"Plan", "164"}) + " " + Q(ToUtf8(path)));
    lblenregistre.show();
}

} // namespace loftwing
