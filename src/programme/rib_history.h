/// What was on the screen one change after the other, to go back to and forth again.
#pragma once

#include "core/comparaison.h"
#include "core/rib_model.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <string>

namespace loftwing {

/// What the main window shows.
enum class VueMontree {
    vide, ///< nothing: no airfoil is there
    rib,
    compare, ///< two airfoils over each other
    epcourb, ///< an airfoil with another thickness and camber
    couple   ///< the bare points of a file
};

VueMontree VueDe(const RibModel &rib, const Comparaison &compare);

/// Which file a rib is, and whether it holds changes that aren't in it.
struct FichierDuRib : FichierRib, FichierConnu {
    bool operator==(const FichierDuRib &) const = default;
};

/// The rib at one time. What didn't change from one time to the next is the same object in both, so
/// that an airfoil of thousands of points is kept once.
struct EtatRib {
    std::shared_ptr<const IdentiteProfil> identite;
    std::shared_ptr<const FichierDuRib> fichier;
    std::shared_ptr<const PointsLus> points;
    std::shared_ptr<const ContourPrepare> contour;
    std::shared_ptr<const NouvelleSection> section;
    std::shared_ptr<const Dimensions> dimensions;
    std::shared_ptr<const Ajouts> ajouts;
    std::shared_ptr<const Comparaison> compare;
    VueMontree vue = VueMontree::vide;
    bool AffHaut = false;
    Vue coches;        ///< of which the checks of the view menu count
    std::string Unite; ///< in which its texts are
};

/// What else of the view menu was checked: a clear takes that off too.
void PoseCoches(const EtatRib &etat, RibModel &rib);

/// Puts what was there into the rib and the comparison. Zoom, scroll and other checks stay.
void Pose(const EtatRib &etat, RibModel &rib, Comparaison &compare);

/// All states of one run of the program, at most kPas steps back. A step is what the user sees: a
/// save, a zoom or a new section that is only being tried is none, but a state that is returned to
/// has these too as they were.
class RibHistory {
  public:
    static constexpr std::size_t kPas = 200;

    /// Takes in the rib as it is now. Where it isn't what it was, that is a step, and what was
    /// undone before can't be redone any more. Nothing happens between Gele and Degele.
    void Note(const RibModel &rib, const Comparaison &compare, const std::string &Unite);

    /// The rib has been saved as it is: what is undone from here on differs from that file, and all
    /// that was the same file goes by its new name.
    void Enregistre(const RibModel &rib);

    bool PeutAnnuler() const { return present_ > 0; }
    bool PeutRetablir() const { return present_ + 1 < etats_.size(); }
    /// The states before and after the step that Recule or Avance would take. Failure 9 where there
    /// is none.
    const EtatRib &Precedent() const;
    const EtatRib &Present() const;
    const EtatRib &Suivant() const;

    /// Makes another state the present one, and gives it. Failure 9 where there is none.
    const EtatRib &Recule();
    const EtatRib &Avance();

    /// While a state is being put back its redraws are no steps. What drawing has made of the rib
    /// replaces the state then, unless something else is shown than was wanted: that is a step.
    void Gele() { gele_ = true; }
    void Degele(const RibModel &rib, const Comparaison &compare, const std::string &Unite);

  private:
    std::deque<EtatRib> etats_;
    std::size_t present_ = 0;
    bool gele_ = false;

    const EtatRib &Etat(std::size_t index) const;
};

} // namespace loftwing
