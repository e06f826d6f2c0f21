/// The one current rib.
#pragma once

#include "core/rib_parts.h"

#include <string>

namespace loftwing {

/// All parts of a rib together. A copy of them is the whole rib as it was at that time.
struct PartiesRib : IdentiteProfil,
                    FichierRib,
                    FichierConnu,
                    Profil,
                    NouvelleSection,
                    Dimensions,
                    Ajouts,
                    Vue {};

/// The rib on which the whole program works. There is one for the life of the process; it is passed
/// by reference and never copied. Its parts are: a trial, a snapshot or a view that is put back
/// keeps the parts concerned and nothing else.
struct RibModel : PartiesRib {
    RibModel() = default;
    RibModel(const RibModel &) = delete;
    RibModel &operator=(const RibModel &) = delete;

    /// One of the parts, or all of them as PartiesRib, to be copied or replaced as a whole.
    template <class Part>
    Part &Partie() {
        return *this;
    }
    template <class Part>
    const Part &Partie() const {
        return *this;
    }

    JeuNervures jeu; ///< of a tool; it isn't the rib's

    // What dialogs tell the command that opened them.
    bool Annule = false; ///< the last picker, entry, page, heel or template dialog was cancelled
    bool Efface = false; ///< the rib was cleared while the picker was open
    bool SansApercu = false;
    bool MemProfil = false;
};

/// Puts a part of the rib back, when its scope is left, as it was at the start.
template <class Part>
class PartieGardee {
  public:
    explicit PartieGardee(RibModel &rib) : rib_(rib), avant_(rib.Partie<Part>()) {}
    PartieGardee(const PartieGardee &) = delete;
    PartieGardee &operator=(const PartieGardee &) = delete;
    ~PartieGardee() { rib_.Partie<Part>() = avant_; }

  private:
    RibModel &rib_;
    const Part avant_;
};

/// The rib's values of a newly made program: dimensions of 200 mm chord and 1.5 mm sheeting, and
/// the plain view. The airfoil stays.
void ValeursDefautRib(RibModel &rib);

/// Clears the feature records without touching the airfoil. The leading edge stock is made anew
/// from its text by `epba_mm`, the number of EpBAAfich in mm, so it survives.
void RazRib(RibModel &rib, float epba_mm);

/// What a new airfoil changes on the rib it takes over: heel heights and washout go, the rib counts
/// as changed and takes the airfoil's name for its file.
void ReprendProfil(RibModel &rib);

/// Sets CheminProfil, NomProfil and ExtProfil from the path of an airfoil file. Extensions have
/// three letters, so the name is the file's less four characters.
void NommeProfil(RibModel &rib, const std::string &path);

/// What a new airfoil resets in the view: scroll offsets and special views.
void RemetVue(RibModel &rib);

/// Length of a foam template for a rib of that chord: chord and both ramps, mm. Failure 6 when it
/// doesn't fit.
float LongueurBloc(const Bloc &bloc, float corde);
/// The same of the rib's own template.
float LongueurBloc(const RibModel &rib, float corde);

} // namespace loftwing
