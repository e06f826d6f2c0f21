/// What all dialogs have in common.
#pragma once

#include "lang/aide.h"
#include "platform/qt_form.h"
#include "programme/essai_rib.h"
#include "programme/programme.h"

#include <QDialog>
#include <QScopedValueRollback>

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

class QBoxLayout;
class QPushButton;

namespace loftwing {

/// A button of a dialog's row: one that windows share, or one of the window's own.
using BoutonDeLigne = std::variant<SharedWord, QPushButton *>;

/// A window with the buttons that windows share: their names, words and handlers stand here. What
/// an event asks for is run so that no failure passes into the toolkit's event loop. exec() tells
/// how it ended: accepted, or rejected where the user gave up.
class Dialogue : public QDialog {
    Q_OBJECT

  public:
    /// What the rib would be with what is typed, for a preview; nothing for a window that changes
    /// no rib. Called anew whenever something was typed.
    virtual EssaiDuRib Essai() { return {}; }
    /// Escape and the window's own close button do what Cancel or Close does.
    void reject() override;

  protected:
    /// `nom` is the window's object name, `aide` the context of its help button.
    Dialogue(Programme &programme, const char *nom, int aide, QWidget *parent);

    Programme &programme_;

    // What the shared buttons do. Close is the Cancel of a window that has nothing to take back.
    virtual void CmdApply_Click() {}
    virtual void cmdok_Click() { accept(); }
    virtual void cmdannuler_Click() { Renonce(); }
    /// Closes the window as one that was given up; there is nothing left to take back.
    void Renonce() { QDialog::reject(); }

    /// A shared button, made when it is first asked for.
    QPushButton &Bouton(SharedWord word);
    /// Puts the row of buttons below what stands in `rows`, at the right end and one, where there
    /// is one, at the left. Return presses OK unless the window says otherwise.
    void PoseBoutons(QBoxLayout &rows, std::initializer_list<BoutonDeLigne> buttons,
                     QPushButton *left = nullptr);
    /// Gives the shared buttons the words of the language in force. They have them from the start;
    /// this is for windows that stay open while the language changes.
    void PoseMotsPartages();

    QString Mot(LngKey key) const { return Q(programme_.Text(key)); }
    /// Names the sketch of a window's measures for those who can't see it.
    void NommeEsquisse(QWidget &sketch) const;
    /// The window's caption, which titles its boxes.
    std::string Titre() const { return S(windowTitle()); }

    /// Lets a field take lengths in the unit in force. In inches its tool tip tells the notation.
    void AdmetLongueur(NumericField &field) const;
    void AdmetLongueurSignee(NumericField &field) const;
    /// A length, or a percentage of the chord.
    void AdmetPlace(NumericField &field) const;
    template <class Fields>
    void AdmetLongueurs(Fields &fields) const {
        for (NumericField &field : fields) {
            AdmetLongueur(field);
        }
    }

    /// Runs what an event asks for. A failure is told under `label`; the window goes on.
    template <class Action>
    void Garde(const char *label, Action action) const {
        programme_.messages.Garde(label, action);
    }
    /// The same unless another such action is at work: a text that changes while a box is open, or
    /// by the window's own hand, starts nothing.
    template <class Action>
    void Seul(const char *label, Action action) {
        if (EnCours) {
            return;
        }
        const QScopedValueRollback<bool> busy(EnCours, true);
        Garde(label, action);
    }

  private:
    static constexpr std::size_t kPartages = 5;

    int aide_;
    bool EnCours = false; ///< an action of Seul is at work, perhaps waiting in a box
    std::array<QPushButton *, kPartages> partages_{}; ///< by SharedWord; null: not asked for

    void AdmetTouches(NumericField &field, std::string_view mm, std::string_view in) const;
    QPushButton *MakeBouton(SharedWord word);
    /// Runs the handler of a shared button; a failure that it lets pass is told under both names.
    void Repond(SharedWord word, void (Dialogue::*handler)());
};

} // namespace loftwing
