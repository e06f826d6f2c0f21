// What of the panel's window the building plan and the list of parts are made from.

#include "mainwindow/frmaile.h"
#include "mainwindow/frmpanneau.h"
#include "programme/panel_typed.h"
#include "programme/panel_words.h"
#include "utilities/tool_files.h"

namespace loftwing {

void frmpanneau::PoseTextesPlan() {
    const std::string &Unite = programme_.settings.Unite;
    Label2[kRecul].setText(Mot({"Plan", "129"}));
    Label2[kDiedre].setText(Mot({"Plan", "131"}));
    Label2[kDensite].setText(Mot({"Plan", "133"}));
    Label6[0].setText(Q(Unite).trimmed());
    Label6[1].setText(Q(kDegre));
    Label6[2].setText(Unite == kUniteIn ? "lb/ft\u00B3" : "kg/m\u00B3");
    AdmetLongueurSignee(txt[kRecul]);
    txt[kDiedre].SetKeys(kTouchesSigne);
    txt[kDensite].SetKeys(kTouchesPositif);
    SetTip(txt[kRecul], programme_.Text({"Plan", "130"}));
    SetTip(txt[kDiedre], programme_.Text({"Plan", "132"}));
    SetTip(txt[kDensite], programme_.Text({"Plan", "134"}));
    cmdaile.setText(Mot({"Plan", "165"}));
    SetTip(cmdaile, programme_.Text({"Plan", "166"}));
}

/// The panel's place in its wing, as typed.
void frmpanneau::PrendPlace() {
    FichierPanneau typed;
    typed.recul = S(txt[kRecul].text());
    typed.diedre = S(txt[kDiedre].text());
    typed.densite = S(txt[kDensite].text());
    const auto read = ReglageDe(typed, programme_.SaisieEnCours());
    if (const auto *refused = std::get_if<RefusReglage>(&read)) {
        const int champ = refused->champ == ChampAile::recul    ? kRecul
                          : refused->champ == ChampAile::diedre ? kDiedre
                                                                : kDensite;
        Refuse(At(Label2, champ), At(txt, champ), refused->texte);
        return;
    }
    reglage_ = std::get<ReglageAile>(read);
    reglage_.longueur = longueur_;
}

/// Whether the list has no weights although there is a density.
bool frmpanneau::SansPoids() const {
    return reglage_.densite > 0 && !Variable() && txt[kEpaisseur].text().isEmpty();
}

void frmpanneau::MontreAile() {
    if (!refus_.empty() || fait_.nervures.empty()) {
        Onglets.MontreManque(
            refus_.empty() ? "" : LigneEnMots(programme_.messages, panneau_, refus_.front()));
        return;
    }
    Aile wing;
    wing.nom = NomDesSorties();
    Panneau panel = panneau_;
    if (!Variable() && !txt[kEpaisseur].text().isEmpty()) {
        panel.jeu.epaisseurs = {S(txt[kEpaisseur].text())}; // which the ribs don't ask for
    }
    try {
        const auto why = AjoutePanneau(wing, {wing.nom, panel, fait_, demande_.premier, reglage_},
                                       programme_.SaisieEnCours());
        if (!why) {
            Onglets.Montre(std::move(wing), feuilles_);
        } else {
            Onglets.MontreManque(TexteRefusAile(programme_.messages, *why));
        }
    } catch (const Failure &failure) {
        Onglets.MontreManque(programme_.messages.Description(failure)); // no box while one types
    }
}

/// The wing begins with this panel as its file has it; what that hasn't yet is asked about.
void frmpanneau::cmdaile_Click() {
    if (!ConfirmePerte()) {
        return;
    }
    frmaile dialog(programme_, this);
    if (!chemin_.empty()) {
        dialog.CommencePar(chemin_);
    }
    ShowModal(dialog);
}

} // namespace loftwing
