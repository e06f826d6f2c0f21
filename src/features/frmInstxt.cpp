#include "features/frmInstxt.h"

#include "base/number_text.h"
#include "lang/aide.h"
#include "lang/ini_file.h"

namespace loftwing {

frmInstxt::frmInstxt(Programme &programme, MainView &view, QWidget *parent)
    : Dialogue(programme, "frmInstxt", kAideDessin, parent), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    connect(&ComboTaille, &QComboBox::activated, this, &frmInstxt::ComboTaille_Click);
}

void frmInstxt::Form_Load() {
    PoseTextes();
    const TexteTape shown = TexteAffiche(programme_.rib, programme_.messages);
    infotxt[kTexte].setText(Q(shown.texte));
    infotxt[kTexte].setCursorPosition(0);
    infotxt[kPositionX].setText(Q(shown.x));
    infotxt[kPositionY].setText(Q(shown.y));
    const float size = programme_.rib.texte.TailleFont;
    taille_avant_ = size;
    for (const std::string &entry : TaillesProposees(size)) {
        ComboTaille.addItem(Q(entry));
    }
    ComboTaille.setCurrentIndex(ComboTaille.findText(Q(NumberText(size))));
    SelectField(infotxt[kTexte]);
}

void frmInstxt::PoseTextes() {
    setWindowTitle(Q(programme_.Text({"FrmInsText", "1"}) + programme_.settings.Unite));
    Label1[kTexte].setText(Mot({"FrmInsText", "2"}));
    Label1[kPositionX].setText(Mot({"FrmInsText", "3"}));
    Label1[kPositionY].setText(Mot({"FrmInsText", "4"}));
    Label2.setText(Mot({"FrmInsText", "5"}));
    SetTip(ComboTaille, programme_.Text({"FrmInsText", "3T"}));
    // The text takes every character.
    infotxt[kTexte].setInputMethodHints(Qt::ImhNone);
    AdmetLongueur(infotxt[kPositionX]);
    AdmetLongueurSignee(infotxt[kPositionY]);
}

TexteTape frmInstxt::Tape() const {
    return {S(infotxt[kTexte].text()), S(infotxt[kPositionX].text()),
            S(infotxt[kPositionY].text())};
}

EssaiDuRib frmInstxt::Essai() {
    return [this](RibModel &rib, const Saisie &saisie) {
        PrendTexteInsere(rib, Tape(), saisie);
        return true;
    };
}

void frmInstxt::Applique() {
    PrendTexteInsere(programme_.rib, Tape(), programme_.SaisieEnCours());
    infotxt[kTexte].setText(Q(programme_.rib.texte.InsTexte));
    taille_avant_ = programme_.rib.texte.TailleFont;
    Redessine();
}

/// By the route of the view that is up: only one of the two draws.
void frmInstxt::Redessine() {
    view_.RetraceVues();
    view_.affiche();
}

void frmInstxt::CmdApply_Click() {
    Garde(" InsText/Apply", [this] { Applique(); });
}

void frmInstxt::cmdok_Click() {
    Garde(" InsText/OK", [this] {
        Applique();
        // A redraw that failed has cleared the rib and closed this dialog with it.
        if (!isVisible()) {
            return;
        }
        WriteINIFile("InsText", "TailleFont", NumberText(programme_.rib.texte.TailleFont),
                     programme_.paths.fichier);
        accept();
    });
}

void frmInstxt::cmdannuler_Click() {
    // A size counts as soon as it is chosen; only Apply and OK make it stay.
    programme_.rib.texte.TailleFont = taille_avant_;
    Garde(" InsText/Cancel", [this] { Redessine(); });
    Renonce();
}

void frmInstxt::ComboTaille_Click() {
    Garde(" InsText/ComboTaille", [this] {
        programme_.rib.texte.TailleFont = TailleChoisie(S(ComboTaille.currentText()));
    });
}

} // namespace loftwing
