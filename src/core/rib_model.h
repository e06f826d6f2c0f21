/// The one current rib.
#pragma once

#include "base/failure.h"
#include "core/feature_records.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

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

/// The rib on which the whole program works. There is one for the life of the process; it is passed
/// by reference and never copied. Lengths are in mm, airfoil coordinates in fractions of the chord.
/// Point lists run from the trailing edge over the upper surface to the leading edge and back.
struct RibModel {
    RibModel() = default;
    RibModel(const RibModel &) = delete;
    RibModel &operator=(const RibModel &) = delete;

    // The airfoil's identity.
    std::string CheminProfil;  ///< full path of its file
    std::string NomProfil;     ///< file name without its last four characters
    std::string ExtProfil;     ///< last three characters of the file name
    std::string EnteteProfil;  ///< first line of the file, trimmed
    std::string NomFichierRib; ///< name proposed for the rib components file
    std::string LigneReserve;  ///< spare line of that file; nothing else knows it
    bool ProfilCharge = false;
    bool Modifie = false;
    bool FichierRibOuvert = false; ///< the rib came from a rib components file

    // The airfoil as read.
    PointList ProfilX;
    PointList ProfilY;
    std::int16_t NbPoints = 0; ///< 0 after a failed reading

    // What contour preparation makes of it.
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

    // The same section with another thickness and camber, in fractions of the chord.
    TableStation NouvExtrados{};
    TableStation NouvIntrados{};
    double NouvEpaisseur = 0; ///< 0 while none has been applied
    double NouvCambrure = 0;

    // Dimensions.
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

    // What is added to the rib.
    std::array<Longeron, kSlots> longeron;
    std::uint8_t NbLongeron = 0;
    std::array<Trou, kSlots> trou;
    std::uint8_t NbTrou = 0;
    CarreBord carre;
    std::uint8_t TypeGabarit = kSansGabarit;
    Talon talon;
    Bloc bloc;
    TexteInsere texte;
    JeuNervures jeu;

    // The view.
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

    // What dialogs tell the command that opened them.
    bool Annule = false;
    bool SansApercu = false;
    bool LectureEnCours = false;
    bool MemProfil = false;
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
