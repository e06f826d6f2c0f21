// The panel file of the panel's window.

#include "mainwindow/frmpanneau.h"

#include "base/file_name.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "programme/dossiers.h"
#include "programme/load.h"
#include "programme/longueur_lue.h"
#include "programme/panel_ends.h"
#include "programme/panel_sheets.h"
#include "programme/panel_words.h"

namespace loftwing {

namespace {

constexpr const char *kDossier = "LastOpenLfp";

std::string EnLigne(const std::vector<std::string> &words) {
    std::string line;
    for (const std::string &word : words) {
        line += (line.empty() ? "" : " ") + word;
    }
    return line;
}

} // namespace

/// All that is typed and chosen.
std::vector<std::string> frmpanneau::Etat() const {
    std::vector<std::string> state = {Variable() ? "variable" : "even"};
    for (const NumericField &field : txt) {
        state.push_back(S(field.text()));
    }
    for (const QLineEdit &list : txtliste) {
        state.push_back(EnLigne(ListeLue(S(list.text()))));
    }
    for (const PartiesRib &bout : panneau_.bouts) {
        state.push_back(NomDuBout(bout) + " " + bout.CheminRib);
    }
    for (const auto &[element, typed] : portees_) {
        if (typed != PorteeTapee{}) {
            state.insert(state.end(), {NomElement(element), typed[0], typed[1]});
        }
    }
    for (const std::string *text : {&planches_.formats, &planches_.ecart, &planches_.marge,
                                    &planches_.copies, &planches_.saignee}) {
        state.push_back(*text);
    }
    state.push_back({planches_.deux_ailes ? 'b' : '-', planches_.demi_tour ? 't' : '-',
                     planches_.marques ? 'm' : '-', planches_.polylignes ? 'p' : '-'});
    return state;
}

bool frmpanneau::ConfirmePerte() {
    return !Modifie() ||
           programme_.messages.ConfirmLoss(programme_.Text({"Panel", "181"}), Titre(), [this] {
               Garde(" frmpanneau/cmdenregistrer", [this] { cmdenregistrer_Click(); });
               return !Modifie();
           });
}

void frmpanneau::cmdannuler_Click() {
    if (ConfirmePerte()) {
        Renonce();
    }
}

FileQuestion frmpanneau::Question() const {
    FileQuestion question;
    question.folder =
        DossierRetenu(programme_, kDossier, programme_.settings.repertoires.RepProfil);
    question.filter_text = programme_.Text({"Panel", "40"}) + " (*.lfp)";
    question.default_extension = "lfp";
    return question;
}

bool frmpanneau::Ouvre(const std::string &path) {
    FichierPanneau read;
    try {
        read = LitPanneau(path);
    } catch (const Failure &failure) {
        programme_.messages.Inform(programme_.Text({"Panel", "184"}) + "\n" +
                                       (failure.detail.empty() ? path : failure.detail),
                                   Titre());
        return false;
    }
    if (" " + read.unite != programme_.settings.Unite) {
        programme_.messages.Inform(
            path + "\n" + programme_.Text({"Panel", "182"}) + " " + read.unite, Titre());
        return false;
    }
    std::array<PartiesRib, kBouts> bouts;
    for (int i = 0; i < kBouts; ++i) {
        auto bout = LitBout(programme_, At(read.bouts, i));
        if (!bout) {
            return false;
        }
        At(bouts, i) = std::move(*bout);
    }
    panneau_.bouts = std::move(bouts);
    choisis_ = {true, true};
    Prend(read);
    Retient(path);
    return true;
}

/// Shows what a panel file has; its ends are there.
void frmpanneau::Prend(const FichierPanneau &fichier) {
    for (int i = 0; i < kBouts; ++i) {
        At(txtbout, i).setText(Q(NomDuBout(At(panneau_.bouts, i))));
    }
    const bool variable = !fichier.ecarts.empty();
    At(optecart, variable ? kVariable : 0).setChecked(true);
    txt[kNombre].setText(Q(fichier.nombre));
    txt[kEpaisseur].setText(variable || fichier.epaisseurs.empty() ? QString()
                                                                   : Q(fichier.epaisseurs.front()));
    txt[kPremier].setText(QString::number(fichier.premier));
    txt[kLongueur].setText(Q(fichier.longueur));
    txt[kRecul].setText(Q(fichier.recul));
    txt[kDiedre].setText(Q(fichier.diedre));
    txt[kDensite].setText(Q(fichier.densite));
    txtliste[0].setText(Q(EnLigne(fichier.ecarts)));
    txtliste[1].setText(variable ? Q(EnLigne(fichier.epaisseurs)) : QString());
    portees_.clear();
    for (const auto &[element, range] : fichier.portees) {
        portees_[element] = {std::to_string(fichier.premier + range.de - 1),
                             std::to_string(fichier.premier + range.a - 1)};
    }
    if (!fichier.planches.formats.empty()) {
        planches_ = fichier.planches;
    }
    elements_.clear(); // their table shows the ranges anew
    Refait();
}

/// From now on that file has what the window has.
void frmpanneau::Retient(const std::string &path) {
    chemin_ = path;
    etat_ = Etat();
    txtfichier.setText(Q(ToUtf8(NameIn(path))));
    RetientDossier(programme_, kDossier, path);
    NoteRib(programme_, CheminEntier(path));
    MontreAile(); // which has the file's name
}

FichierPanneau frmpanneau::EnFichier() const {
    FichierPanneau fichier;
    for (int i = 0; i < kBouts; ++i) {
        At(fichier.bouts, i) = At(panneau_.bouts, i).CheminRib;
    }
    fichier.unite = Trim(programme_.settings.Unite);
    fichier.nombre = panneau_.jeu.nombre;
    fichier.ecarts = panneau_.jeu.ecarts;
    if (Variable()) {
        fichier.epaisseurs = panneau_.jeu.epaisseurs;
    } else if (!txt[kEpaisseur].text().isEmpty()) {
        fichier.epaisseurs = {S(txt[kEpaisseur].text())};
    }
    fichier.longueur = Variable() ? "" : S(txt[kLongueur].text());
    fichier.recul = S(txt[kRecul].text());
    fichier.diedre = S(txt[kDiedre].text());
    fichier.densite = S(txt[kDensite].text());
    fichier.premier = demande_.premier;
    fichier.portees = panneau_.portees;
    fichier.planches = planches_;
    return fichier;
}

/// Why the panel can't be saved yet; empty where it can.
std::string frmpanneau::EmpecheFichier() const {
    if (!choisis_[0] || !choisis_[1]) {
        return programme_.Text({"Panel", "123"});
    }
    for (int i = 0; i < kBouts; ++i) {
        const PartiesRib &bout = At(panneau_.bouts, i);
        if (bout.CheminRib.empty() || bout.Modifie) {
            return S(At(Label1, i).text()) + ": " + programme_.Text({"Panel", "183"});
        }
    }
    return tapes_ ? "" : LignesDeBoite(EnLignes(refus_));
}

void frmpanneau::cmdouvrir_Click() {
    if (!ConfirmePerte()) {
        return;
    }
    FileQuestion question = Question();
    question.title = programme_.Text({"Panel", "192"});
    const std::string path = programme_.platform.ChooseOpenFile(question);
    if (!path.empty()) {
        Ouvre(path);
    }
}

void frmpanneau::cmdenregistrer_Click() {
    if (attente_.isActive()) {
        Refait();
    }
    const std::string why = EmpecheFichier();
    if (!why.empty()) {
        programme_.messages.Inform(why, Titre());
        return;
    }
    FileQuestion question = Question();
    question.title = programme_.Text({"Panel", "193"});
    question.name = NomDesSorties() + ".lfp";
    const std::string path = programme_.platform.ChooseSaveFile(question);
    if (!path.empty()) {
        EnregistrePanneau(path, EnFichier(), Flush::yes);
        Retient(path);
        MontreEnregistre({"Panel", "187"}, path);
    }
}

} // namespace loftwing
