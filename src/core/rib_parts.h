/// The parts of which the one rib is put together. A part is a plain record with value semantics
/// and holds its fields' defaults: it may be copied, kept and put back as a whole.
#pragma once

#include "base/failure.h"
#include "core/feature_records.h"

#include <array>
#include <cstdint>
#include <string>

namespace loftwing {

/// Stations divide the chord into 400: station k lies at x = 1 - k/400, so 0 is the trailing and
/// 400 the leading edge.
inline constexpr int kLastStation = 400;
using TableStation = std::array<double, kLastStation + 1>;

/// What TypeGabarit says.
inline constexpr std::uint8_t kSansGabarit = 0;
inline constexpr std::uint8_t kGabaritMousse = 1;
inline constexpr std::uint8_t kGabaritTalon = 11;

/// Largest washout either way, degrees.
inline constexpr float kVrillageMaxi = 20;

/// Which airfoil it is.
struct IdentiteProfil {
    std::string CheminProfil; ///< full path of its file
    std::string NomProfil;    ///< file name without its last four characters
    std::string ExtProfil;    ///< last three characters of the file name
    std::string EnteteProfil; ///< first line of the file, trimmed
    bool ProfilCharge = false;

    bool operator==(const IdentiteProfil &) const = default;
};

/// What ties the rib to a rib components file.
struct FichierRib {
    std::string NomFichierRib; ///< name proposed for the file
    std::string LigneReserve;  ///< spare line of that file; nothing else knows it
    bool Modifie = false;
    bool FichierRibOuvert = false; ///< the rib came from a rib components file

    bool operator==(const FichierRib &) const = default;
};

/// The rib components file that the rib was read from or saved to last.
struct FichierConnu {
    std::string CheminRib;       ///< its full path; empty without such a file
    bool ProfilAilleurs = false; ///< it was saved while its airfoil lay outside the airfoil folders
    bool UniteDouteuse = false;  ///< as it was read its lengths look like those of the other unit

    bool operator==(const FichierConnu &) const = default;
};

/// The airfoil as read, in fractions of the chord, from the trailing edge over the upper surface to
/// the leading edge and back.
struct PointsLus {
    PointList ProfilX;
    PointList ProfilY;
    std::int16_t NbPoints = 0; ///< 0 after a failed reading

    bool operator==(const PointsLus &) const = default;
};

/// Why the making of a contour ended before its end.
enum class CauseContour : std::uint8_t {
    aucune,       ///< it didn't
    meme_place,   ///< two points have the same x where samples are made along x
    meme_hauteur, ///< two points have the same y where samples are made along y
    trop_court,   ///< the file has too few points
    trop_long,    ///< the contour would have more points than its count can tell
    trop_grand    ///< a coordinate is beyond what can be computed with
};

/// The same with the points that are at fault, counted as in the file from 1.
struct FauteContour {
    CauseContour cause = CauseContour::aucune;
    long premier = 0;
    long second = 0; ///< where there are two
    long jusque = 0; ///< the contour comes to this point of the file

    bool operator==(const FauteContour &) const = default;
};

/// What contour preparation makes of the points, in fractions of the chord.
struct ContourPrepare {
    FauteContour faute;
    double EcartContour = 0; ///< how far the contour leaves a smooth curve through the points
    PointList ContourX;
    PointList ContourY;
    std::int16_t NbContour = 0;
    std::int16_t NbExtrados = 0; ///< count of the run from the trailing to the leading edge
    PointList IntradosX;         ///< lower surface, from the trailing to the leading edge
    PointList IntradosY;
    std::int16_t NbIntrados = 0;
    TableStation TabExtrados{}; ///< heights of the upper surface
    TableStation TabIntrados{}; ///< heights of the lower surface
    double EpMaxi = 0;          ///< greatest thickness
    double PosEpMaxi = 0;       ///< count of its new maxima, less one
    double CambrureMaxi = 0;    ///< greatest camber
    std::int16_t PosCambrure = 0;
    double MiniX = 0;
    double ExtradosMaxi = 0; ///< top of the upper surface, never below 0
    double IntradosMini = 0; ///< bottom of the lower surface, never above 0

    bool operator==(const ContourPrepare &) const = default;
};

/// An airfoil with its contour: all that contour preparation reads and makes.
struct Profil : PointsLus, ContourPrepare {};

/// The same section with another thickness and camber, in fractions of the chord.
struct NouvelleSection {
    TableStation NouvExtrados{};
    TableStation NouvIntrados{};
    double NouvEpaisseur = 0; ///< 0 while none has been applied
    double NouvCambrure = 0;

    bool operator==(const NouvelleSection &) const = default;
};

/// What the user gave: lengths in mm with the texts as typed.
struct Dimensions {
    float corde = 200;
    std::string cordeAfich = "200";
    float EpCoffrage = 1.5F; ///< sheeting
    std::string EpCoffrageAfich = "1.5";
    float EpBA = 0; ///< leading edge stock
    std::string EpBAAfich = "0";
    float EpBF = 0; ///< trailing edge stock
    std::string EpBFAfich = "0";
    float vrillage = 0;      ///< washout, degrees
    std::uint8_t NbRep = 0;  ///< inner station lines
    std::uint8_t TypeBA = 1; ///< 1 stock, 0 V-notch square

    bool operator==(const Dimensions &) const = default;
};

/// What is added to the rib.
struct Ajouts {
    std::array<Longeron, kSlots> longeron;
    std::uint8_t NbLongeron = 0;
    std::array<Trou, kSlots> trou;
    std::uint8_t NbTrou = 0;
    CarreBord carre;
    std::uint8_t TypeGabarit = kSansGabarit;
    Talon talon;
    Bloc bloc;
    TexteInsere texte;

    bool operator==(const Ajouts &) const = default;
};

/// How the rib is shown.
struct Vue {
    float Zoom = 1;
    std::int16_t DecalX = 0;
    std::int16_t DecalY = 0;
    bool AffTrac = true;
    bool AffLignRef = true;
    bool AffHaut = false;   ///< shown upside down
    bool AffEpr = false;    ///< thickness text shown (mnu_affepr)
    bool AffHautBA = false; ///< height at the leading edge shown (mnu_affhautba)
    bool AffHautBF = false; ///< height at the trailing edge shown (mnu_affhautbf)
    bool ModeCompare = false;
    bool ModeEpCourb = false;
    bool ModeCouple = false;

    bool operator==(const Vue &) const = default;
};

} // namespace loftwing
