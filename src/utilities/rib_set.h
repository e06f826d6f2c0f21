/// Full sets of rib airfoils between a root and a tip: what the even and the variable set share.
/// Both airfoils are brought onto common stations, blended, and written one file a rib with a
/// summary. Points stay in fractions of the chord; each file's title states its rib's chord.
#pragma once

#include "base/number_text.h"
#include "core/airfoil_picker.h"
#include "core/units.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// Limits of the chords, mm. The refusal names the first one for both.
inline constexpr float kCordeMaxLimite = 1999;
inline constexpr float kCordeMinLimite = 999;

/// One of the two airfoils of a set.
struct ProfilJeu {
    std::string NomProfil; ///< empty: none was chosen yet
    PointList ProfilX;
    PointList ProfilY;
    std::int16_t NbPoint = 0;
    /// Count of new minima of x along the points, from 1: the leading edge's place in a list that
    /// starts at 1 and falls strictly to its minimum.
    long IdxBA = 1;
};

/// The airfoil at the root. Its lists end in a spare cell (0, 0), which lookups may reach.
ProfilJeu ProfilMajeur(const ProfilChoisi &chosen);
/// The airfoil at the tip.
ProfilJeu ProfilMineur(const ProfilChoisi &chosen);

/// Height of an upper surface at x by linear interpolation between the points that enclose it. The
/// walk goes as far as `bound`, which is the leading edge of the tip's airfoil for either airfoil.
/// Failure 9 when x lies outside the points, 11 for two points above each other.
double InterpExtra(long bound, const PointList &xs, const PointList &ys, double x);
/// The same for a lower surface, whose points are IdxBA + 1 to Nb.
double InterpIntra(long IdxBA, long Nb, const PointList &xs, const PointList &ys, double x);

/// Both airfoils on the stations of the one with more points; index k is the same x in both.
struct CourbesJeu {
    long n = 0;
    PointList MajeurX, MajeurY;
    PointList MineurX, MineurY;
};

/// Equal counts take the stations of the root's airfoil. A failure of the lookups passes on with
/// both names and the station in its detail.
CourbesJeu CalculProfils(const ProfilJeu &major, const ProfilJeu &minor);

/// One rib of a set.
struct NervureJeu {
    std::string corde;  ///< chord as titles and summary show it, without unit
    double rapport = 0; ///< 0 at the root, 1 at the tip; not read for these two
};

/// Everything that goes into the files of a set.
struct JeuDeNervures {
    std::string dossier; ///< ends in a separator
    std::string Unite;
    std::string NomProfil1, NomProfil2;
    float CordeMax = 0; ///< mm, in either unit
    float CordeMin = 0;
    CourbesJeu courbes;
    std::vector<NervureJeu> nervures; ///< from the root to the tip, both included
    std::vector<std::string> resume;  ///< lines of the summary
};

/// File name of rib `number`, from 1, without its folder.
std::string NomNervure(const JeuDeNervures &jeu, int number, const Messages &messages);
/// File name of the summary, without its folder.
std::string NomResume(const JeuDeNervures &jeu);

/// The bytes of all airfoil files, from the root to the tip.
std::vector<std::string> TextesNervures(const JeuDeNervures &jeu, const Messages &messages);

/// Told after each file: how many are written, and of how many.
using Avance = std::function<void(int done, int total)>;

/// Writes the rib files, each whole, over older ones of their names. Gives their paths. A failure
/// names the file at which it stopped; those before it stay.
std::vector<std::string> SaveProfil(const JeuDeNervures &jeu, const Messages &messages,
                                    const Avance &avance = {});
/// Writes the summary and gives its path. Failure as EcritFichier.
std::string EcritResume(const JeuDeNervures &jeu);

/// A set of the two end ribs, whose curves are made; the others go between them. `afich` are the
/// chords as typed, `cordes` their values in mm, root first. Failures as CalculProfils.
JeuDeNervures JeuVide(const std::array<std::string, 2> &afich, const std::array<float, 2> &cordes,
                      const std::array<ProfilJeu, 2> &profils, const std::string &dossier,
                      const std::string &Unite);

/// A chord in titles, 32 or 64 bits wide: two decimals in mm, as DepuisMm shows it in inches.
template <class Real>
std::string CordeNervure(Real mm, const std::string &Unite) {
    return Unite == kUniteIn ? DepuisMm(mm, Unite) : Format(mm, kPictureTwoWithZero);
}

/// The opening line of a summary: `mot` is the word of the ribs' number.
std::string TitreResume(const std::string &Unite, const std::string &mot, int count,
                        const Messages &messages);
/// The line of rib `number` of `count`. In inches the chords of the first and the last rib stand
/// one blank apart, as typed.
std::string LigneResume(const JeuDeNervures &jeu, int number, const Messages &messages);

/// What the user reads after a run: every file with its chord. `mot_resume` follows the words in
/// front of the summary's name.
std::string ResultatComplet(const JeuDeNervures &jeu, const std::string &avant_resume,
                            const Messages &messages);
/// The same for many ribs, which would fill the screen. It names the summary without its chords.
std::string ResultatCourt(const JeuDeNervures &jeu, const Messages &messages);

/// The field that a refusal leads to.
enum class ChampJeu { aucun, nombre, corde_max, corde_min, epaisseur_max, epaisseur_min };

/// Why a set isn't computed.
struct RefusJeu {
    std::string text;
    BoxIcon icon = BoxIcon::information;
    ChampJeu champ = ChampJeu::aucun;
};

/// Whether a field counts as left empty.
bool SansValeur(const std::string &typed);

/// How a chord is asked for: words for a missing and for a too long one.
struct RegleCorde {
    LngKey manque;
    LngKey trop;
    ChampJeu champ;
    float limite; ///< mm; whatever it is, the refusal names that of the root
};

/// Takes a chord as typed into its pair. The fault, or nothing; a chord that is too long has been
/// stored all the same.
std::optional<RefusJeu> PrendCorde(const std::string &typed, const Saisie &saisie,
                                   const RegleCorde &regle, std::string &afich, float &corde);

} // namespace loftwing
