#include "persist/rib_snapshot.h"

#include "core/units.h"

#include <array>
#include <bit>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace loftwing {

namespace {

constexpr std::string_view kGenre = "Loftwing recovery ";
constexpr char kVersion = '1';
constexpr std::size_t kTete = kGenre.size() + 2; ///< kind, version, end of line

// A part is taken apart into its fields by a structured binding, which doesn't compile any more
// when a part gets a field that isn't kept here. Where fields are inherited that can't be done, and
// sizes are compared.
struct MargesTalon {
    std::string TalonBAAfich;
    double TalonBA;
    std::string TalonBFAfich;
    double TalonBF;
    double TalonLong;
};
static_assert(sizeof(Talon) == sizeof(HauteursTalon) + sizeof(MargesTalon),
              "every field of the heel must be kept");

struct ToutesLesParties : IdentiteProfil,
                          FichierRib,
                          FichierConnu,
                          Profil,
                          NouvelleSection,
                          Dimensions,
                          Ajouts,
                          Vue {};
static_assert(sizeof(PartiesRib) == sizeof(ToutesLesParties), "every part must be kept");

/// Writer and reader walk the same fields: they are told apart by whether the part is const.
template <class Part, class Kind>
concept Est = std::same_as<std::remove_const_t<Part>, Kind>;

template <class Passe>
void Champs(Passe &passe, Est<IdentiteProfil> auto &part) {
    auto &[CheminProfil, NomProfil, ExtProfil, EnteteProfil, ProfilCharge] = part;
    passe(CheminProfil, NomProfil, ExtProfil, EnteteProfil, ProfilCharge);
}

template <class Passe>
void Champs(Passe &passe, Est<FichierRib> auto &part) {
    auto &[NomFichierRib, LigneReserve, Modifie, FichierRibOuvert] = part;
    passe(NomFichierRib, LigneReserve, Modifie, FichierRibOuvert);
}

template <class Passe>
void Champs(Passe &passe, Est<FichierConnu> auto &part) {
    auto &[CheminRib, ProfilAilleurs, UniteDouteuse] = part;
    passe(CheminRib, ProfilAilleurs, UniteDouteuse);
}

template <class Passe>
void Champs(Passe &passe, Est<PointsLus> auto &part) {
    auto &[ProfilX, ProfilY, NbPoints] = part;
    passe(ProfilX, ProfilY, NbPoints);
}

template <class Passe>
void Champs(Passe &passe, Est<NouvelleSection> auto &part) {
    auto &[NouvExtrados, NouvIntrados, NouvEpaisseur, NouvCambrure] = part;
    passe(NouvExtrados, NouvIntrados, NouvEpaisseur, NouvCambrure);
}

template <class Passe>
void Champs(Passe &passe, Est<Dimensions> auto &part) {
    auto &[corde, cordeAfich, EpCoffrage, EpCoffrageAfich, EpBA, EpBAAfich, EpBF, EpBFAfich,
           vrillage, NbRep, TypeBA] = part;
    passe(corde, cordeAfich, EpCoffrage, EpCoffrageAfich, EpBA, EpBAAfich, EpBF, EpBFAfich,
          vrillage, NbRep, TypeBA);
}

template <class Passe>
void Champs(Passe &passe, Est<Longeron> auto &part) {
    auto &[PosLongAfich, PosLong, LargLongAfich, LargLong, HautLongAfich, HautLong, DistLongAfich,
           DistLong, OptLongExt, OptLongInt, TypeLong, RefLong, ResLong] = part;
    passe(PosLongAfich, PosLong, LargLongAfich, LargLong, HautLongAfich, HautLong, DistLongAfich,
          DistLong, OptLongExt, OptLongInt, TypeLong, RefLong, ResLong);
}

template <class Passe>
void Champs(Passe &passe, Est<Trou> auto &part) {
    auto &[PosTrouAfich, PosTrou, DiaTrouAfich, DiaTrou, HautTrouAfich, HautTrou, DecalTrouAfich,
           DecalTrou, ChkCentre, RefTrou, TypeTrou, ResTrou] = part;
    passe(PosTrouAfich, PosTrou, DiaTrouAfich, DiaTrou, HautTrouAfich, HautTrou, DecalTrouAfich,
          DecalTrou, ChkCentre, RefTrou, TypeTrou, ResTrou);
}

template <class Passe>
void Champs(Passe &passe, Est<CarreBord> auto &part) {
    auto &[CarreBAAfich, CarreBA, CarreBAXAfich, CarreBAX, CarreBAYAfich, CarreBAY] = part;
    passe(CarreBAAfich, CarreBA, CarreBAXAfich, CarreBAX, CarreBAYAfich, CarreBAY);
}

template <class Passe>
void Champs(Passe &passe, Est<HauteursTalon> auto &part) {
    auto &[OptTalon, TalonIntraAfich, TalonIntra, TalonExtraAfich, TalonExtra] = part;
    passe(OptTalon, TalonIntraAfich, TalonIntra, TalonExtraAfich, TalonExtra);
}

template <class Part>
using Hauteurs = std::conditional_t<std::is_const_v<Part>, const HauteursTalon &, HauteursTalon &>;

template <class Passe, Est<Talon> Part>
void Champs(Passe &passe, Part &part) {
    Champs(passe, static_cast<Hauteurs<Part>>(part));
    passe(part.TalonBAAfich, part.TalonBA, part.TalonBFAfich, part.TalonBF, part.TalonLong);
}

template <class Passe>
void Champs(Passe &passe, Est<Bloc> auto &part) {
    auto &[HTbasblocAfich, HTbasbloc, BAblocAfich, BAbloc, BFblocAfich, BFbloc, CoupeBFAfich,
           CoupeBF, HTblocAfich, HTbloc, LongBloc, Optquebf] = part;
    passe(HTbasblocAfich, HTbasbloc, BAblocAfich, BAbloc, BFblocAfich, BFbloc, CoupeBFAfich,
          CoupeBF, HTblocAfich, HTbloc, LongBloc, Optquebf);
}

template <class Passe>
void Champs(Passe &passe, Est<TexteInsere> auto &part) {
    auto &[InsTexte, InsTextXAfich, InsTextX, InsTextYAfich, InsTextY, TailleFont,
           TexteUtilisateur] = part;
    passe(InsTexte, InsTextXAfich, InsTextX, InsTextYAfich, InsTextY, TailleFont, TexteUtilisateur);
}

template <class Passe>
void Champs(Passe &passe, Est<Ajouts> auto &part) {
    auto &[longeron, NbLongeron, trou, NbTrou, carre, TypeGabarit, talon, bloc, texte] = part;
    for (auto &spar : longeron) {
        Champs(passe, spar);
    }
    for (auto &hole : trou) {
        Champs(passe, hole);
    }
    passe(NbLongeron, NbTrou, TypeGabarit);
    Champs(passe, carre);
    Champs(passe, talon);
    Champs(passe, bloc);
    Champs(passe, texte);
}

template <class Passe>
void Champs(Passe &passe, Est<Vue> auto &part) {
    auto &[Zoom, DecalX, DecalY, AffTrac, AffLignRef, AffHaut, AffEpr, AffHautBA, AffHautBF,
           ModeCompare, ModeEpCourb, ModeCouple] = part;
    passe(Zoom, DecalX, DecalY, AffTrac, AffLignRef, AffHaut, AffEpr, AffHautBA, AffHautBF,
          ModeCompare, ModeEpCourb, ModeCouple);
}

template <class Part, class All>
auto &PartieDe(All &all) {
    return static_cast<std::conditional_t<std::is_const_v<All>, const Part &, Part &>>(all);
}

/// All that is kept, but for the contour.
template <class Passe, class All, class Text>
void Tout(Passe &passe, All &parties, Text &Unite) {
    passe(Unite);
    Champs(passe, PartieDe<IdentiteProfil>(parties));
    Champs(passe, PartieDe<FichierRib>(parties));
    Champs(passe, PartieDe<FichierConnu>(parties));
    Champs(passe, PartieDe<PointsLus>(parties));
    Champs(passe, PartieDe<NouvelleSection>(parties));
    Champs(passe, PartieDe<Dimensions>(parties));
    Champs(passe, PartieDe<Ajouts>(parties));
    Champs(passe, PartieDe<Vue>(parties));
}

template <std::size_t kBytes>
using Entier = std::conditional_t<
    kBytes == 8, std::uint64_t,
    std::conditional_t<kBytes == 4, std::uint32_t,
                       std::conditional_t<kBytes == 2, std::uint16_t, std::uint8_t>>>;

/// Numbers, lowest byte first; a length in front of what has one.
class Ecriture {
  public:
    template <class... Values>
    void operator()(const Values &...values) {
        (Prend(values), ...);
    }
    const std::string &Octets() const { return bytes_; }

  private:
    std::string bytes_;

    template <class Number>
    requires std::is_arithmetic_v<Number>
    void Prend(Number value) {
        auto bits = std::bit_cast<Entier<sizeof value>>(value);
        for (std::size_t i = 0; i < sizeof value; ++i) {
            bytes_.push_back(static_cast<char>(static_cast<std::uint64_t>(bits) >> (8 * i) & 0xFF));
        }
    }
    void Prend(const std::string &text) {
        Prend(std::uint64_t{text.size()});
        bytes_ += text;
    }
    void Prend(const PointList &list) {
        Prend(std::uint64_t{list.Values().size()});
        for (const double value : list.Values()) {
            Prend(value);
        }
    }
    void Prend(const TableStation &table) {
        for (const double value : table) {
            Prend(value);
        }
    }
};

/// Reads them back. After the first thing that can't be, nothing is read any more.
class Relecture {
  public:
    explicit Relecture(std::string_view bytes) : rest_(bytes) {}

    template <class... Values>
    void operator()(Values &...values) {
        (Donne(values), ...);
    }
    /// Whether all was there and nothing is left.
    bool Entiere() const { return good_ && rest_.empty(); }

  private:
    std::string_view rest_;
    bool good_ = true;

    std::string_view Suite(std::uint64_t count) {
        if (!good_ || count > rest_.size()) {
            good_ = false;
            return {};
        }
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }
    template <class Number>
    requires std::is_arithmetic_v<Number>
    void Donne(Number &value) {
        std::uint64_t bits = 0;
        int shift = 0;
        for (const char byte : Suite(sizeof value)) {
            bits |= std::uint64_t{static_cast<unsigned char>(byte)} << shift;
            shift += 8;
        }
        if constexpr (std::same_as<Number, bool>) {
            good_ = good_ && bits <= 1;
            value = bits == 1;
        } else {
            value = std::bit_cast<Number>(static_cast<Entier<sizeof value>>(bits));
        }
        if constexpr (std::floating_point<Number>) {
            good_ = good_ && std::isfinite(value); // no field ever holds anything else
        }
    }
    void Donne(std::string &text) {
        std::uint64_t count = 0;
        Donne(count);
        text = Suite(count);
    }
    void Donne(PointList &list) {
        std::uint64_t count = 0;
        Donne(count);
        good_ = good_ && count <= rest_.size() / sizeof(double);
        list.Clear();
        for (std::uint64_t i = 0; good_ && i < count; ++i) {
            double value = 0;
            Donne(value);
            list.Append(value);
        }
    }
    void Donne(TableStation &table) {
        for (double &value : table) {
            Donne(value);
        }
    }
};

/// Tells any change of a single byte and nearly any other one.
std::uint64_t Somme(std::string_view bytes) {
    std::uint64_t sum = 0xCBF29CE484222325U;
    for (const char byte : bytes) {
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
    }
    return sum;
}

/// Whether what was read can be a rib of this program: all counts are of what is there.
bool Possible(const Instantane &read) {
    const PartiesRib &rib = read.parties;
    return (read.Unite == kUniteMm || read.Unite == kUniteIn) && rib.NbPoints >= 0 &&
           rib.ProfilX.Count() >= rib.NbPoints && rib.ProfilY.Count() >= rib.NbPoints &&
           rib.NbLongeron < kSlots && rib.NbTrou < kSlots;
}

} // namespace

std::string EcritInstantane(const PartiesRib &parties, const std::string &Unite) {
    Ecriture content;
    Tout(content, parties, Unite);
    Ecriture sum;
    sum(Somme(content.Octets()));
    return std::string(kGenre) + kVersion + '\n' + sum.Octets() + content.Octets();
}

std::optional<Instantane> LitInstantane(std::string_view bytes) {
    if (bytes.size() > kInstantaneMaxi || !bytes.starts_with(kGenre) ||
        bytes.substr(kGenre.size(), 2) != std::string{kVersion, '\n'}) {
        return std::nullopt;
    }
    const std::string_view rest = bytes.substr(kTete);
    std::uint64_t sum = 0;
    const std::size_t first = std::min(rest.size(), sizeof sum);
    Relecture head(rest.substr(0, first));
    head(sum);
    const std::string_view content = rest.substr(first);
    if (!head.Entiere() || sum != Somme(content)) {
        return std::nullopt;
    }
    Instantane read;
    Relecture passe(content);
    Tout(passe, read.parties, read.Unite);
    return passe.Entiere() && Possible(read) ? std::optional(std::move(read)) : std::nullopt;
}

bool InstantanePlusRecent(std::string_view bytes) {
    // One figure, as long as there are no more than nine versions.
    return bytes.size() > kTete && bytes.starts_with(kGenre) && bytes[kGenre.size()] > kVersion &&
           bytes[kGenre.size()] <= '9' && bytes[kGenre.size() + 1] == '\n';
}

} // namespace loftwing
