#include "features/qt_slots_dialog.h"

#include <QFocusEvent>

namespace loftwing {

SlotsDialog::SlotsDialog(Programme &programme, MainView &view, QWidget *parent, const Genre &genre)
    : QDialog(parent), programme_(programme), view_(view), genre_(genre) {
    NameAll();
    PoseTextes();
    ConnectAll();
}

void SlotsDialog::PoseTextes() {
    const Mots &mots = genre_.mots;
    Frame2.setTitle(Q(programme_.Text(mots.cadre)));
    Frame6.setTitle(Q(programme_.Text(mots.entree)));
    const bool inches = programme_.settings.Unite == kUniteIn;
    Label1.setText(Q(programme_.Text(inches ? mots.place_in : mots.place_mm)));
    for (QLabel &unit : Label6) {
        unit.setText(Q(programme_.settings.Unite));
    }
    OptDistance[0].setText(Q(programme_.Text(mots.depuis_ba)));
    OptDistance[1].setText(Q(programme_.Text(mots.depuis_bf)));
    LabelListe.setText(Q(programme_.Text(mots.liste)));
    numeros_.SetTip(programme_.Text(mots.liste_tip));
    cmdajout.setText(Q(programme_.Text(mots.ajout)));
    Cmdmodif.setText(Q(programme_.Text(mots.modif)));
    Cmdeffac.setText(Q(programme_.Text(mots.effac)));
    SetButtonWord(CmdApply, programme_.language, SharedWord::apply);
    SetButtonWord(cmdok, programme_.language, SharedWord::ok);
    SetButtonWord(Cmdannuler, programme_.language, SharedWord::close);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
}

void SlotsDialog::ConnectAll() {
    connect(&numeros_, &NumberedList::Clicked, this, &SlotsDialog::Numero_Click);
    connect(&cmdajout, &QPushButton::clicked, this, &SlotsDialog::cmdajout_Click);
    connect(&Cmdmodif, &QPushButton::clicked, this, &SlotsDialog::Cmdmodif_Click);
    connect(&Cmdeffac, &QPushButton::clicked, this, &SlotsDialog::Cmdeffac_Click);
    connect(&CmdApply, &QPushButton::clicked, this, &SlotsDialog::CmdApply_Click);
    connect(&cmdok, &QPushButton::clicked, this, &SlotsDialog::cmdok_Click);
    connect(&Cmdannuler, &QPushButton::clicked, this, &SlotsDialog::Cmdannuler_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, genre_.aide);
}

void SlotsDialog::SuitChamps(const std::array<NumericField *, 4> &champs) {
    champs_ = champs;
    const std::string &Unite = programme_.settings.Unite;
    for (NumericField *field : champs_) {
        field->SetKeys(TouchesSelonUnite(Unite, kTouchesPositif, kTouchesFraction));
        field->installEventFilter(this);
    }
    champs_.front()->SetKeys(TouchesSelonUnite(Unite, kTouchesPourcent, kTouchesFractionPourcent));
    SetTip(*champs_.front(), programme_.Text(genre_.mots.place_tip));
}

bool SlotsDialog::eventFilter(QObject *watched, QEvent *event) {
    // A context menu that closes gives the focus back; what it was opened for is still selected.
    if (event->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
        champ_visite_ = true;
        for (NumericField *field : champs_) {
            if (field->isEnabled()) {
                field->selectAll();
            }
        }
    }
    return QDialog::eventFilter(watched, event);
}

void SlotsDialog::Selectionne(NumericField &field) const {
    field.selectAll();
    if (champ_visite_) {
        field.setFocus();
    }
}

void SlotsDialog::SelectionneTexte() const {
    Selectionne(*champs_.front());
}

void SlotsDialog::Form_Load() {
    MontreTravail();
    SelectField(*champs_.front());
}

void SlotsDialog::Montre(int slot) {
    Affiche(slot);
    AfficheOptions(slot);
}

void SlotsDialog::MontreTravail() {
    Montre(genre_.count);
    numeros_.Numerote(genre_.count);
    numeros_.Marque(genre_.count);
}

void SlotsDialog::FinSelection() {
    selection_ = false;
    choisi_ = 0;
}

Refus SlotsDialog::MessageValeur() {
    return [this](float mm) { DitValeur(DepuisMm(mm, programme_.settings.Unite)); };
}

void SlotsDialog::DitValeur(const std::string &valeur) {
    valeur_ = valeur;
    programme_.messages.Inform(TexteRefus(valeur), S(windowTitle()));
    SelectionneTexte();
}

void SlotsDialog::Informe(LngKey key) const {
    programme_.messages.Inform(programme_.Text(key), S(windowTitle()));
}

bool SlotsDialog::Verifie(bool passes) {
    echec_ = !passes;
    return passes;
}

bool SlotsDialog::StockeEtControle(int slot, const std::function<void()> &montre) {
    refuses_.try_emplace(slot, Retour(slot));
    if (!Verifie(Stocke(slot))) {
        return false;
    }
    montre();
    if (!Verifie(Controle(slot))) {
        return false;
    }
    refuses_.erase(slot);
    return true;
}

void SlotsDialog::RemetRefuses() {
    for (const auto &[slot, retour] : refuses_) {
        retour();
    }
    refuses_.clear();
}

/// Runs a command. A failure ("1/0" inches) is told and counts as a failed check without a value.
void SlotsDialog::Garde(const char *what, const std::function<void()> &action) {
    try {
        action();
    } catch (const Failure &failure) {
        echec_ = true;
        valeur_.clear();
        programme_.messages.Report(failure, std::string(genre_.label) + what);
        SelectionneTexte();
    }
}

void SlotsDialog::Numero_Click(int index) {
    if (index > genre_.count) {
        return;
    }
    etiquette_ = true;
    selection_ = true;
    choisi_ = index;
    numeros_.Marque(index);
    Montre(index);
    SelectionneTexte();
}

void SlotsDialog::cmdajout_Click() {
    Garde("/Add", [this] { Ajoute(); });
}

void SlotsDialog::Ajoute() {
    programme_.rib.Modifie = true;
    // A finished entry is not added a second time. What stands in the fields otherwise is the work
    // slot's, typed but not stored yet, and showing that slot would throw it away.
    if (selection_ && choisi_ != genre_.count) {
        Montre(genre_.count);
    }
    FinSelection();
    numeros_.SansMarque();
    if (!StockeEtControle(genre_.count, [this] { Affiche(genre_.count); })) {
        return;
    }
    etiquette_ = false;
    if (!AvanceTravail(genre_.count)) {
        Informe(genre_.mots.plein);
    }
    MontreTravail();
    SelectField(*champs_.front());
}

void SlotsDialog::Cmdmodif_Click() {
    Garde("/Modify", [this] { Modifie(); });
}

void SlotsDialog::Modifie() {
    if (!selection_) {
        Informe(genre_.mots.sans_choix);
        return;
    }
    programme_.rib.Modifie = true;
    if (!StockeEtControle(choisi_, [] {})) {
        return;
    }
    FinSelection();
    MontreTravail();
    Applique();
}

void SlotsDialog::Cmdeffac_Click() {
    Garde("/Remove", [this] { Efface(); });
}

void SlotsDialog::Efface() {
    if (!selection_) {
        Informe(genre_.mots.sans_choix);
        return;
    }
    RemetRefuses(); // before the slots move
    Retire(choisi_);
    FinSelection();
    MontreTravail();
    Applique();
    SelectField(*champs_.front());
}

void SlotsDialog::CmdApply_Click() {
    Garde("/Apply", [this] { Applique(); });
}

/// Stores and checks the work slot and draws the rib. The drawing can fail, which closes this
/// window and clears the rib, so nothing may be done with the list afterwards.
void SlotsDialog::Applique() {
    programme_.rib.Modifie = true;
    if (selection_ && choisi_ != genre_.count) {
        // It applies the work slot itself; refused, it leaves the fields to the entry that it
        // refused, and those must not get into the work slot.
        Modifie();
        return;
    }
    if (StockeEtControle(genre_.count, [this] { Montre(genre_.count); })) {
        RemetRefuses();
        view_.affiche();
    }
}

void SlotsDialog::cmdok_Click() {
    Garde("/OK", [this] {
        Applique();
        if (!echec_ && isVisible()) {
            accept();
        }
    });
}

void SlotsDialog::Cmdannuler_Click() {
    // The first number lets the user go whatever has been refused.
    if (choisi_ == 0 || !echec_) {
        RemetRefuses();
        QDialog::reject();
        return;
    }
    // The entry that is spoken of is shown.
    if (!refuses_.empty() && choisi_ != refuses_.begin()->first) {
        Numero_Click(refuses_.begin()->first);
    }
    DitValeur(valeur_.empty() ? "?" : valeur_);
}

void SlotsDialog::reject() {
    Cmdannuler_Click();
}

} // namespace loftwing
