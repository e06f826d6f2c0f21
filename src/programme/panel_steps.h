/// A wing panel as its files: each rib made, looked at as the window would open it, and written
/// only when nothing stands against it.
#pragma once

#include "base/whole_file.h"
#include "output/nesting.h"
#include "output/piece.h"
#include "programme/fichiers_ecrits_ici.h"
#include "programme/programme.h"
#include "utilities/panneau.h"
#include "utilities/rib_set_files.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// A bow above it is a warning.
inline constexpr double kFlecheMaxi = 0.3; // mm

/// What is asked of a panel beside its ends.
struct DemandePanneau {
    DemandePiece piece;      ///< of its labels only the kerf and marks count; words are made here
    int premier = 1;         ///< number of the first rib, for labels
    bool deux_ailes = false; ///< both wings are cut: labels say which

    bool operator==(const DemandePanneau &) const = default;
};

/// One rib, ready to be written.
struct NervureFaite {
    std::string profil;     ///< file name of its airfoil
    std::string composants; ///< and of its rib components
    std::string octets_profil;
    std::string octets_composants;
    PartiesRib rib; ///< as these files open, with its contour
    std::vector<Piece> pieces;
    double aire = 0; ///< of their wood, whatever the kerf, mm2
};

/// How far the spar leaves a straight line over the ribs in which it stands, in height.
struct Fleche {
    ElementPanneau longeron;
    bool dessus = false; ///< its notches in the upper surface, otherwise in the lower one
    double mm = 0;
    int nervure = 0; ///< the number of the rib where that is
};

struct PanneauFait {
    JeuDeNervures jeu;
    std::vector<NervureFaite> nervures;
    std::vector<Fleche> fleches;
    std::vector<AvisPanneau> avis;
    std::vector<AvisPanneau> refus; ///< nothing may be written while there is one
};

/// The making of a panel rib by rib, for those who have other things to do between two ribs. Shows
/// no box; the rib of the programme is worked on in each step and put back.
class OuvragePanneau {
  public:
    OuvragePanneau(Programme &programme, Panneau panneau, const DemandePanneau &demande);
    OuvragePanneau(const OuvragePanneau &) = delete;
    OuvragePanneau &operator=(const OuvragePanneau &) = delete;
    ~OuvragePanneau();

    int Nombre() const; ///< of ribs; 0 where the ends make no panel
    int Faites() const;
    bool Fini() const { return Faites() == Nombre(); }
    /// Makes the next rib.
    void Avance();
    /// What was made. After the last rib that is all of it.
    PanneauFait Rend();

  private:
    class Travail;
    std::unique_ptr<Travail> travail_;
};

/// How far it is; false ends the work, and the ribs so far are what there is.
using AvancePanneau = std::function<bool(int done, int total)>;

/// Makes all ribs of a panel, as OuvragePanneau.
PanneauFait FaitPanneau(Programme &programme, const Panneau &panneau, const DemandePanneau &demande,
                        const AvancePanneau &avance = {});

/// "Rib 3: ", which what is said of one rib begins with.
std::string DeLaNervure(const Messages &messages, int numero);

/// One line of what there is to say: "Rib 3: The piece falls apart.", "spar2: ...", an element
/// being called as files do.
std::string LigneAvis(const Messages &messages, const AvisPanneau &avis);

/// A rib's own label with its number, as pieces and drawings of a panel have it.
std::string EtiquetteNumerotee(const RibModel &rib, int numero, const std::string &Unite);

/// "spar 2 bows by 0.12 mm in the upper surface, at rib 4."
std::string TexteFleche(const Messages &messages, const Fleche &fleche, const std::string &Unite);

/// Every file that the panel is made of, in its folder: airfoils, rib components, the set's
/// summary.
std::vector<FileToWrite> FichiersAEcrire(const PanneauFait &fait);
/// Their paths.
std::vector<std::string> FichiersDuPanneau(const PanneauFait &fait);
/// Writes them, over older ones of their names, all or none, and gives their paths. Failure as
/// WriteWholeFiles.
std::vector<std::string> EcritPanneau(const PanneauFait &fait);
/// Those of some paths at which something is, but for the user's own of just before.
FichiersEcrits FichiersDejaLa(const std::vector<std::string> &paths,
                              const FichiersEcritsIci &ecrits);

/// So many copies of all ribs' pieces, for sheets. With `opposees` every second one is that of the
/// other wing, and where both wings are cut its label says so.
std::vector<PieceNommee> PiecesDuPanneau(const PanneauFait &fait, int copies, bool opposees);

} // namespace loftwing
