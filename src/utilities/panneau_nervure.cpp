// One rib between the ends of a panel.

#include "utilities/panneau.h"

#include "base/number_text.h"
#include "core/stations.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kMmParPouce = 25.4;

/// A text with its number.
template <class Record, class Number>
struct Paire {
    std::string Record::*afich;
    Number Record::*mm;
};

constexpr std::array<Paire<Longeron, float>, 3> kLongeron = {
    {{&Longeron::LargLongAfich, &Longeron::LargLong},
     {&Longeron::HautLongAfich, &Longeron::HautLong},
     {&Longeron::DistLongAfich, &Longeron::DistLong}}};
constexpr std::array<Paire<Trou, float>, 3> kTrou = {{{&Trou::DiaTrouAfich, &Trou::DiaTrou},
                                                      {&Trou::HautTrouAfich, &Trou::HautTrou},
                                                      {&Trou::DecalTrouAfich, &Trou::DecalTrou}}};
constexpr std::array<Paire<CarreBord, float>, 3> kCarre = {
    {{&CarreBord::CarreBAAfich, &CarreBord::CarreBA},
     {&CarreBord::CarreBAXAfich, &CarreBord::CarreBAX},
     {&CarreBord::CarreBAYAfich, &CarreBord::CarreBAY}}};
constexpr std::array<Paire<TexteInsere, float>, 2> kTexte = {
    {{&TexteInsere::InsTextXAfich, &TexteInsere::InsTextX},
     {&TexteInsere::InsTextYAfich, &TexteInsere::InsTextY}}};
constexpr std::array<Paire<Bloc, float>, 5> kBloc = {{{&Bloc::HTbasblocAfich, &Bloc::HTbasbloc},
                                                      {&Bloc::BAblocAfich, &Bloc::BAbloc},
                                                      {&Bloc::BFblocAfich, &Bloc::BFbloc},
                                                      {&Bloc::CoupeBFAfich, &Bloc::CoupeBF},
                                                      {&Bloc::HTblocAfich, &Bloc::HTbloc}}};
constexpr std::array<Paire<PartiesRib, float>, 3> kDimensions = {
    {{&PartiesRib::EpCoffrageAfich, &PartiesRib::EpCoffrage},
     {&PartiesRib::EpBAAfich, &PartiesRib::EpBA},
     {&PartiesRib::EpBFAfich, &PartiesRib::EpBF}}};

class Fondu {
  public:
    Fondu(const Panneau &panneau, const JeuDeNervures &jeu, int numero, const Saisie &saisie)
        : panneau_(panneau), root_(panneau.bouts[0]), tip_(panneau.bouts[1]), numero_(numero),
          count_(static_cast<int>(jeu.nervures.size())),
          ratio_(At(jeu.nervures, numero - 1).rapport), saisie_(saisie),
          rib_(numero == count_ ? tip_ : root_) {}

    PartiesRib Rib(const std::string &nom, const std::string &corde);

  private:
    const Panneau &panneau_;
    const PartiesRib &root_, &tip_;
    int numero_, count_;
    double ratio_;
    const Saisie &saisie_;
    PartiesRib rib_;

    bool Entre() const { return numero_ > 1 && numero_ < count_; }
    double Entre(double root, double tip) const { return root + (tip - root) * ratio_; }
    /// The number of a text in all its digits; of one that was refused, what is in force.
    double Mm(const std::string &afich, float mm) const {
        return NombreMm(TexteEnVigueur(afich, mm, saisie_.Unite), saisie_);
    }
    void Pose(double mm, std::string &afich, float &number) const {
        StockeLongueur(TexteFondu(mm, saisie_.Unite), saisie_, afich, number);
    }

    template <class Record, std::size_t Count>
    void Paires(const Record &root, const Record &tip,
                const std::array<Paire<Record, float>, Count> &pairs, Record &rib) const {
        for (const auto &[afich, mm] : pairs) {
            Pose(Entre(Mm(root.*afich, root.*mm), Mm(tip.*afich, tip.*mm)), rib.*afich, rib.*mm);
        }
    }

    /// A place in mm from its own edge.
    std::string PlaceFondue(const std::string &root, const std::string &tip) const {
        const double from = ValeurPourcent(root.empty() ? "0" : root, root_.corde, saisie_);
        const double to = ValeurPourcent(tip.empty() ? "0" : tip, tip_.corde, saisie_);
        return TexteFondu(Entre(from, to), saisie_.Unite);
    }

    void Dimensionne();
    void PoseTalon();
    void PoseVrillage();
    void SuitPortees();
    const PartiesRib *BoutDe(GenreElement genre) const;

    /// Whether an element of slot `slot` stands in this rib, and which end's record it has.
    enum class Origine { rien, racine, saumon, deux };
    Origine OrigineDe(const ElementPanneau &element) const;
    template <class Record, class Pairs>
    Record ElementDe(const Record &root, const Record &tip, std::string Record::*place,
                     const Pairs &pairs, Origine from) const;
    template <class Record, class Pairs>
    void PoseElements(GenreElement genre, std::array<Record, kSlots> Ajouts::*slots,
                      std::uint8_t Ajouts::*count, std::string Record::*place, const Pairs &pairs);
};

Fondu::Origine Fondu::OrigineDe(const ElementPanneau &element) const {
    if (!DansSaPortee(panneau_, element, numero_)) {
        return Origine::rien;
    }
    const bool root = Present(root_, element, saisie_);
    const bool tip = Present(tip_, element, saisie_);
    return root && tip ? Origine::deux
           : root      ? Origine::racine
           : tip       ? Origine::saumon
                       : Origine::rien;
}

template <class Record, class Pairs>
Record Fondu::ElementDe(const Record &root, const Record &tip, std::string Record::*place,
                        const Pairs &pairs, Origine from) const {
    if (from != Origine::deux || !Entre()) {
        return from == Origine::saumon || (from == Origine::deux && numero_ > 1) ? tip : root;
    }
    Record blended = root;
    blended.*place = PlaceFondue(root.*place, tip.*place);
    Paires(root, tip, pairs, blended);
    return blended;
}

/// Elements close up; the slot being edited, which files hold too, is empty but for a full list.
template <class Record, std::size_t Slots>
void Range(const std::vector<Record> &standing, std::array<Record, Slots> &slots,
           std::uint8_t &count) {
    constexpr std::size_t kDernier = Slots - 2; // the last slot that may be edited
    slots.fill(Record{});
    for (std::size_t i = 0; i < standing.size(); ++i) {
        At(slots, static_cast<long>(i)) = standing[i];
    }
    count = static_cast<std::uint8_t>(std::min(standing.size(), kDernier));
}

template <class Record, class Pairs>
void Fondu::PoseElements(GenreElement genre, std::array<Record, kSlots> Ajouts::*slots,
                         std::uint8_t Ajouts::*count, std::string Record::*place,
                         const Pairs &pairs) {
    std::vector<Record> standing;
    for (int slot = 0; slot < kSlots; ++slot) {
        const Origine from = OrigineDe({genre, slot + 1});
        if (from != Origine::rien) {
            standing.push_back(
                ElementDe(At(root_.*slots, slot), At(tip_.*slots, slot), place, pairs, from));
        }
    }
    Range(standing, rib_.*slots, rib_.*count);
}

void Fondu::Dimensionne() {
    Paires<PartiesRib>(root_, tip_, kDimensions, rib_);
    Paires(root_.carre, tip_.carre, kCarre, rib_.carre);
    Paires<TexteInsere>(root_.texte, tip_.texte, kTexte, rib_.texte);
    Paires(root_.bloc, tip_.bloc, kBloc, rib_.bloc);
    PoseTalon();
    PoseVrillage();
}

void Fondu::PoseTalon() {
    const Talon &a = root_.talon;
    const Talon &b = tip_.talon;
    Talon &heel = rib_.talon;
    const auto height = [this](const std::string &root, const std::string &tip) {
        return TexteFondu(Entre(NombreMm(root, saisie_), NombreMm(tip, saisie_)), saisie_.Unite);
    };
    heel.TalonIntraAfich = height(a.TalonIntraAfich, b.TalonIntraAfich);
    heel.TalonExtraAfich = height(a.TalonExtraAfich, b.TalonExtraAfich);
    heel.TalonBAAfich = PlaceFondue(a.TalonBAAfich, b.TalonBAAfich);
    heel.TalonBFAfich = PlaceFondue(a.TalonBFAfich, b.TalonBFAfich);
}

/// The height by which the washout turns a trailing edge is linear, so that the edge stays
/// straight.
void Fondu::PoseVrillage() {
    const auto drop = [](const PartiesRib &end) {
        return Wide(end.corde) * std::sin(EnRadians(Wide(end.vrillage)));
    };
    const double sine = Quotient(Entre(drop(root_), drop(tip_)), Wide(rib_.corde));
    if (std::abs(sine) > 1) {
        throw MakeFailure(kInvalidProcedureCall);
    }
    rib_.vrillage = ToSingle(std::asin(sine) * 180 / Pi());
}

/// The end from which an element with a range has its values as they are; none where it lies
/// between both.
const PartiesRib *Fondu::BoutDe(GenreElement genre) const {
    const ElementPanneau element{genre, 0};
    const bool root = Present(root_, element, saisie_);
    if (!panneau_.portees.contains(element) || root == Present(tip_, element, saisie_)) {
        return nullptr;
    }
    return root ? &root_ : &tip_;
}

/// Takes off what doesn't stand in this rib, and gives it what stands at one end only.
void Fondu::SuitPortees() {
    const auto away = [this](GenreElement genre) {
        return !DansSaPortee(panneau_, {genre, 0}, numero_);
    };
    const auto follow = [&](GenreElement genre, const auto &copy, const auto &clear) {
        if (away(genre)) {
            clear();
        } else if (const PartiesRib *end = BoutDe(genre)) {
            copy(*end);
        }
    };
    const auto pair = [&](GenreElement genre, std::string PartiesRib::*afich,
                          float PartiesRib::*mm) {
        follow(
            genre,
            [&](const PartiesRib &end) {
                rib_.*afich = end.*afich;
                rib_.*mm = end.*mm;
            },
            [&] { Pose(0, rib_.*afich, rib_.*mm); });
    };
    pair(GenreElement::ba, &PartiesRib::EpBAAfich, &PartiesRib::EpBA);
    pair(GenreElement::bf, &PartiesRib::EpBFAfich, &PartiesRib::EpBF);
    follow(
        GenreElement::carre, [&](const PartiesRib &end) { rib_.carre = end.carre; },
        [&] { rib_.carre = {}; });
    if (away(GenreElement::gabarit)) {
        rib_.TypeGabarit = kSansGabarit;
    }
}

PartiesRib Fondu::Rib(const std::string &nom, const std::string &corde) {
    rib_.CheminProfil = nom;
    rib_.NomProfil = nom.substr(0, nom.rfind('.'));
    rib_.ExtProfil = "dat";
    if (Entre()) {
        StockeLongueur(corde, saisie_, rib_.cordeAfich, rib_.corde);
        Dimensionne();
    }
    PoseElements(GenreElement::longeron, &Ajouts::longeron, &Ajouts::NbLongeron,
                 &Longeron::PosLongAfich, kLongeron);
    PoseElements(GenreElement::trou, &Ajouts::trou, &Ajouts::NbTrou, &Trou::PosTrouAfich, kTrou);
    SuitPortees();
    return rib_;
}

} // namespace

std::string TexteFondu(double mm, const std::string &Unite) {
    const bool inches = Unite == kUniteIn;
    std::array<char, 400> digits{};
    const auto written =
        std::to_chars(digits.data(), digits.data() + digits.size(), inches ? mm / kMmParPouce : mm,
                      std::chars_format::fixed, inches ? 5 : 3);
    std::string text(digits.data(), written.ptr);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) {
        text.pop_back();
    }
    return text == "-0" || text.empty() ? "0" : text;
}

PartiesRib NervureDuPanneau(const Panneau &panneau, const JeuDeNervures &jeu, int numero,
                            const Saisie &saisie) {
    return Fondu(panneau, jeu, numero, saisie)
        .Rib(NomNervure(jeu, numero, saisie.messages), At(jeu.nervures, numero - 1).corde);
}

} // namespace loftwing
