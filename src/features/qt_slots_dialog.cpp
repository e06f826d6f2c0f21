#include "features/qt_slots_dialog.h"

#include <QFocusEvent>

namespace loftwing {

SlotsDialog::SlotsDialog(Programme &programme, MainView &view, QWidget *parent, const Genre &genre)
    : Dialogue(programme, genre.fenetre, genre.aide, parent), view_(view), genre_(genre) {
    NameAll();
    PoseTextes();
    ConnectAll();
}

void SlotsDialog::PoseTextes() {
    const Mots &mots = genre_.mots;
    Frame2.setTitle(Mot(mots.cadre));
    Frame6.setTitle(Mot(mots.entree));
    const bool inches = programme_.settings.Unite == kUniteIn;
    Label1.setText(Mot(inches ? mots.place_in : mots.place_mm));
    for (QLabel &unit : Label6) {
        unit.setText(Q(programme_.settings.Unite));
    }
    OptDistance[0].setText(Mot(mots.depuis_ba));
    OptDistance[1].setText(Mot(mots.depuis_bf));
    LabelListe.setText(Mot(mots.liste));
    numeros_.Nomme(LabelListe.text());
    numeros_.SetTip(programme_.Text(mots.liste_tip));
    cmdajout.setText(Mot(mots.ajout));
    Cmdmodif.setText(Mot(mots.modif));
    Cmdeffac.setText(Mot(mots.effac));
}

void SlotsDialog::ConnectAll() {
    connect(&numeros_, &NumberedList::Clicked, this, &SlotsDialog::Numero_Click);
    connect(&cmdajout, &QPushButton::clicked, this, &SlotsDialog::cmdajout_Click);
    connect(&Cmdmodif, &QPushButton::clicked, this, &SlotsDialog::Cmdmodif_Click);
    connect(&Cmdeffac, &QPushButton::clicked, this, &SlotsDialog::Cmdeffac_Click);
}

void SlotsDialog::SuitChamps(const std::array<NumericField *, 4> &champs) {
    champs_ = champs;
    for (NumericField *field : champs_) {
        AdmetLongueur(*field);
        field->installEventFilter(this);
    }
    AdmetPlace(*champs_.front());
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
    return Dialogue::eventFilter(watched, event);
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
    suivant_ = genre_.count + 1 < kNumeros && EstFini(genre_.count);
    MontreTravail();
    SelectField(*champs_.front());
}

void SlotsDialog::Montre(int slot) {
    Affiche(slot);
    AfficheOptions(slot);
}

void SlotsDialog::MontreTravail() {
    Montre(Travail());
    numeros_.Numerote(Travail());
    numeros_.Marque(Travail());
    if (!refuses_.contains(Travail())) { // what was refused there is to be checked again
        montre_ = Tape();
    }
}

QStringList SlotsDialog::Tape() const {
    QStringList tape;
    for (const NumericField *field : champs_) {
        tape.append(field->text().isEmpty() ? QString('0') : field->text());
    }
    for (const QAbstractButton *button : findChildren<QAbstractButton *>()) {
        tape.append(QString::number(button->isChecked()));
    }
    return tape;
}

void SlotsDialog::FinSelection() {
    selection_ = false;
    choisi_ = 0;
}

Refus SlotsDialog::MessageValeur() {
    return [this](Regle regle, float mm) {
        DitValeur(regle, DepuisMm(mm, programme_.settings.Unite));
    };
}

void SlotsDialog::DitValeur(Regle regle, const std::string &valeur) {
    regle_ = regle;
    valeur_ = valeur;
    programme_.messages.Inform(TexteRefus(regle, valeur), Titre());
    SelectionneTexte();
}

void SlotsDialog::Informe(LngKey key) const {
    programme_.messages.Inform(programme_.Text(key), Titre());
}

bool SlotsDialog::Verifie(bool passes) {
    echec_ = !passes;
    return passes;
}

bool SlotsDialog::StockeEtControle(int slot, const std::function<void()> &montre) {
    refuses_.try_emplace(slot, Retour(slot));
    if (!Verifie(Stocke(slot, CibleDuRib()))) {
        return false;
    }
    montre();
    if (!Verifie(Controle(slot, CibleDuRib()))) {
        return false;
    }
    refuses_.erase(slot);
    return true;
}

EssaiDuRib SlotsDialog::Essai() {
    return [this](RibModel &rib, const Saisie &saisie) {
        const int slot = selection_ ? choisi_ : Travail();
        if (slot == Travail() && Tape() == montre_) {
            return true; // passed over
        }
        bool refused = false;
        const Cible cible{rib, saisie, [&refused](Regle, float) { refused = true; }};
        if (!Stocke(slot, cible) || !Controle(slot, cible) || refused) {
            return false;
        }
        if (slot == Travail()) {
            Compte(rib) = static_cast<std::uint8_t>(slot);
        }
        return true;
    };
}

void SlotsDialog::RemetRefuses() {
    for (const auto &[slot, retour] : refuses_) {
        retour();
    }
    refuses_.clear();
}

/// Runs a command. A failure ("1/0" inches) is told and counts as a failed check without a value.
void SlotsDialog::Commande(const char *what, const std::function<void()> &action) {
    try {
        action();
    } catch (const Failure &failure) {
        echec_ = true;
        valeur_.clear();
        regle_ = Regle::illisible;
        programme_.messages.Report(failure, std::string(genre_.label) + what);
        SelectionneTexte();
    }
}

void SlotsDialog::Numero_Click(int index) {
    if (index > Travail()) {
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
    Commande("/Add", [this] { Ajoute(); });
}

void SlotsDialog::Ajoute() {
    programme_.rib.Modifie = true;
    // A finished entry is not added a second time. What stands in the fields otherwise is the work
    // slot's, typed but not stored yet, and showing that slot would throw it away.
    if (selection_ && choisi_ != Travail()) {
        Montre(Travail());
    }
    FinSelection();
    numeros_.SansMarque();
    if (!StockeEtControle(Travail(), [this] { Affiche(Travail()); })) {
        return;
    }
    etiquette_ = false;
    CompteTravail();
    const int added = genre_.count;
    if (!AvanceTravail(genre_.count)) {
        Informe(genre_.mots.plein);
    }
    MontreTravail();
    SelectField(*champs_.front());
    if (const std::string remarks = Remarques(added); !remarks.empty()) {
        programme_.messages.Inform(remarks, Titre());
    }
}

void SlotsDialog::Cmdmodif_Click() {
    Commande("/Modify", [this] { Modifie(); });
}

void SlotsDialog::Modifie() {
    if (!selection_) {
        Informe(genre_.mots.sans_choix);
        return;
    }
    programme_.rib.Modifie = true;
    if (!(choisi_ == Travail() ? TravailPasse() : StockeEtControle(choisi_, [] {}))) {
        return;
    }
    FinSelection();
    MontreTravail();
    Applique();
}

void SlotsDialog::Cmdeffac_Click() {
    Commande("/Remove", [this] { Efface(); });
}

void SlotsDialog::Efface() {
    if (!selection_) {
        Informe(genre_.mots.sans_choix);
        return;
    }
    RemetRefuses(); // before the slots move
    if (choisi_ > genre_.count) {
        suivant_ = false; // the rib has no such slot yet
    } else {
        suivant_ = suivant_ && genre_.count > 0; // what is left in the work slot is finished
        Retire(choisi_);
    }
    FinSelection();
    MontreTravail();
    Applique();
    SelectField(*champs_.front());
}

void SlotsDialog::CmdApply_Click() {
    Commande("/Apply", [this] { Applique(); });
}

/// What is stored in the work slot is one of the rib's entries.
void SlotsDialog::CompteTravail() {
    genre_.count = static_cast<std::uint8_t>(Travail());
    suivant_ = false;
}

bool SlotsDialog::TravailPasse() {
    if (Tape() == montre_) {
        if (const auto refused = refuses_.find(Travail()); refused != refuses_.end()) {
            refused->second(); // the user has taken back what was refused
            refuses_.erase(refused);
        }
        return Verifie(true);
    }
    if (!StockeEtControle(Travail(), [this] { Montre(Travail()); })) {
        return false;
    }
    CompteTravail();
    montre_ = Tape();
    return true;
}

/// Stores and checks the work slot and draws the rib. The drawing can fail, which closes this
/// window and clears the rib, so nothing may be done with the list afterwards.
void SlotsDialog::Applique() {
    programme_.rib.Modifie = true;
    if (selection_ && choisi_ != Travail()) {
        // It applies the work slot itself; refused, it leaves the fields to the entry that it
        // refused, and those must not get into the work slot.
        Modifie();
        return;
    }
    if (TravailPasse()) {
        RemetRefuses();
        view_.affiche();
    }
}

void SlotsDialog::cmdok_Click() {
    Commande("/OK", [this] {
        Applique();
        if (!echec_ && isVisible()) {
            accept();
        }
    });
}

void SlotsDialog::cmdannuler_Click() {
    // The first number lets the user go whatever has been refused.
    if (choisi_ == 0 || !echec_) {
        RemetRefuses();
        Renonce();
        return;
    }
    // The entry that is spoken of is shown.
    if (!refuses_.empty() && choisi_ != refuses_.begin()->first) {
        Numero_Click(refuses_.begin()->first);
    }
    DitValeur(regle_, valeur_.empty() ? "?" : valeur_);
}

} // namespace loftwing
