/// What the windows of spars and of holes have in common.
#pragma once

#include "features/qt_numbered_list.h"
#include "programme/main_view.h"
#include "programme/qt_dialogue.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>
#include <QVBoxLayout>

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace loftwing {

/// Index of the button that is chosen in a group; 0 when none is.
template <class Group>
std::uint8_t Choisi(const Group &group) {
    for (std::size_t i = 0; i < group.size(); ++i) {
        if (group[i].isChecked()) {
            return static_cast<std::uint8_t>(i);
        }
    }
    return 0;
}

/// Chooses a button of a group. An index that there isn't (from a damaged file) is the first, so
/// that it can be put right here.
template <class Group>
void Choisit(Group &group, std::uint8_t index) {
    QRadioButton &chosen = group[index < group.size() ? index : 0];
    chosen.setChecked(true);
    // The toolkit leaves the group's tab stop where the focus was last. From a button that isn't
    // chosen its arrow keys only move the focus.
    for (QRadioButton &button : group) {
        button.setFocusPolicy(&button == &chosen ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

/// A table of up to twelve entries that is edited one entry at a time. A row of numbers says which
/// entry the fields show: a finished one that was clicked (the selection), or else the work slot
/// behind them. A work slot whose fields weren't touched is passed over: it is neither stored nor
/// checked. Whatever the fields say is stored before it is checked, and stays until the rib is
/// drawn or the window closes; what was refused by then gives way to what stood there before.
class SlotsDialog : public Dialogue {
    Q_OBJECT

  public:
    EssaiDuRib Essai() override;
    /// Shows a finished entry, as a click on its number does.
    void MontreNumero(int slot) { Numero_Click(slot); }

  protected:
    /// Where the words come from that both windows have.
    struct Mots {
        LngKey cadre;              ///< the frame of the dimensions, named in refusals
        LngKey place_mm, place_in; ///< label of the location, which names the unit
        LngKey place_tip;
        LngKey depuis_ba, depuis_bf;
        LngKey liste, liste_tip;
        LngKey entree; ///< the frame of the commands
        LngKey ajout, modif, effac;
        LngKey plein, sans_choix; ///< told when the list is full, or nothing is selected
    };
    /// What tells the two windows apart.
    struct Genre {
        const char *fenetre;    ///< name of the window
        const char *etiquettes; ///< name of the numbers
        const char *label;      ///< label of its failures, without what was done
        int aide;               ///< help context
        Mots mots;
        std::uint8_t &count; ///< finished entries
    };

    SlotsDialog(Programme &programme, MainView &view, QWidget *parent, const Genre &genre);

    MainView &view_;

    // The frames stand first, so that they outlive what stands in them: a frame that goes takes
    // along what it still holds.
    QGroupBox Frame2; ///< dimensions
    QGroupBox Frame6; ///< commands of the list
    QLabel LabelListe;
    NumberedList numeros_;
    QLabel Label1;                ///< location
    QLabel Label2;                ///< first size
    QLabel Label3;                ///< second size
    std::array<QLabel, 3> Label6; ///< units behind the fields but the location
    std::array<QRadioButton, 2> OptDistance;
    QPushButton cmdajout;
    QPushButton Cmdmodif;
    QPushButton Cmdeffac;

    /// The rib that an entry is for, and who hears of a value that is refused.
    struct Cible {
        RibModel &rib;
        Saisie saisie;
        Refus refus;
    };
    Cible CibleDuRib() { return {programme_.rib, SaisieEnCours(), MessageValeur()}; }

    // What a window does with one slot. Stocke and Controle tell whether the entry passes.
    virtual bool Stocke(int slot, const Cible &cible) = 0;
    virtual bool Controle(int slot, const Cible &cible) = 0;
    /// Where a rib counts its finished entries.
    virtual std::uint8_t &Compte(RibModel &rib) const = 0;
    /// Whether a slot holds an entry that passes as it is.
    virtual bool EstFini(int slot) const = 0;
    virtual void Affiche(int slot) = 0;
    virtual void AfficheOptions(int slot) = 0;
    virtual void Retire(int slot) = 0;
    virtual std::string TexteRefus(Regle regle, const std::string &valeur) const = 0;
    /// What is told about an entry that was added; mostly nothing.
    virtual std::string Remarques(int slot) const = 0;
    /// What puts a slot back as it is now.
    virtual std::function<void()> Retour(int slot) = 0;

    /// The four fields: the location, the two sizes and one more. They get their keys.
    void SuitChamps(const std::array<NumericField *, 4> &champs);
    /// Shows an empty entry where there is room for one, as the window does when it opens.
    void Form_Load();
    // qt_slots_dialog_build.cpp
    QLayout *LigneListe();
    void PoseBas(QVBoxLayout &rows);
    void LayOutCommandes();
    /// A row each of label, field and unit; `label` is that of the fourth field.
    QGridLayout *LayOutDimensions(QLabel &label);
    /// Tab goes from the list through the location to `order` and on to the buttons.
    void RegleTabulation(const std::vector<QWidget *> &order);

    Saisie SaisieEnCours() const { return programme_.SaisieEnCours(); }
    /// Hears of refused values: a box, and the location is ready to be typed over.
    Refus MessageValeur();
    /// Whether the list has no finished entry and a number has been clicked.
    bool ListeVideChoisie() const { return Travail() == 0 && etiquette_; }
    /// Selects a field's text, with the focus if a field has had it before.
    void Selectionne(NumericField &field) const;
    void SelectionneTexte() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    Genre genre_;
    std::array<NumericField *, 4> champs_{};
    bool champ_visite_ = false; ///< a field has had the focus
    /// The rib's work slot holds a finished entry, and the slot behind it is the one that is
    /// edited. The rib counts it only when something is stored there.
    bool suivant_ = false;
    QStringList montre_; ///< what the fields said when the work slot was shown

    int choisi_ = 0;         ///< the selected entry
    bool selection_ = false; ///< whether there is one
    bool etiquette_ = false; ///< a number was clicked since the last entry was added
    bool echec_ = false;     ///< the last check failed
    std::string valeur_;     ///< on this value
    Regle regle_{};          ///< which breaks this rule
    /// Slots that hold refused values, and the way back to what they held before.
    std::map<int, std::function<void()>> refuses_;

    void NameAll(); // qt_slots_dialog_build.cpp
    void PoseTextes();
    void ConnectAll();

    void Numero_Click(int index);
    void cmdajout_Click();
    void Cmdmodif_Click();
    void Cmdeffac_Click();
    void CmdApply_Click() override;
    void cmdok_Click() override;
    void cmdannuler_Click() override;

    void Commande(const char *what, const std::function<void()> &action);
    void Ajoute();
    void Modifie();
    void Efface();
    void Applique();
    int Travail() const { return genre_.count + (suivant_ ? 1 : 0); }
    /// What the fields say, to be compared.
    QStringList Tape() const;
    /// Stores and checks the work slot, unless its fields say what they were shown with.
    bool TravailPasse();
    void CompteTravail();
    bool Verifie(bool passes);
    /// Stores and checks a slot, which is shown again in between where `montre` says so.
    bool StockeEtControle(int slot, const std::function<void()> &montre);
    /// A drawing with refused values could fail, and the rib would be lost: before one they go.
    void RemetRefuses();
    void FinSelection();
    void Montre(int slot);
    void MontreTravail();
    void DitValeur(Regle regle, const std::string &valeur);
    void Informe(LngKey key) const;
};

} // namespace loftwing
