#include "output/nesting.h"

#include "base/failure.h"
#include "output/nesting_sheet.h"
#include "output/piece_place.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <random>

namespace loftwing {

namespace {

/// By what the largest piece comes first.
using Mesure = double (*)(const FormeDePiece &);
constexpr Mesure kMesures[] = {
    [](const FormeDePiece &forme) { return forme.sens[0].Longueur(); },
    [](const FormeDePiece &forme) { return forme.aire; },
    [](const FormeDePiece &forme) { return forme.sens[0].Hauteur(); },
};
/// Above that many pieces one order must do, and above this many none is stirred.
constexpr std::size_t kPeu = 120;
constexpr std::size_t kTresPeu = 60;
constexpr unsigned kMelanges = 3;
/// By how much a stirred order may take a piece for a smaller one.
constexpr double kMelange = 0.2;

/// The pieces of one job, equal ones sharing a form.
struct Lot {
    std::vector<std::size_t> formes; ///< of each piece
    Formes table;
};

bool MemeContour(const Piece &one, const Piece &other) {
    return std::equal(
        one.parties.begin(), one.parties.end(), other.parties.begin(), other.parties.end(),
        [](const PartiePiece &a, const PartiePiece &b) { return a.dehors == b.dehors; });
}

Lot LotDe(const std::vector<PieceNommee> &pieces, const ReglageImbrication &reglage) {
    Lot lot;
    std::vector<const Piece *> seen;
    for (const PieceNommee &named : pieces) {
        const auto same = std::find_if(seen.begin(), seen.end(), [&](const Piece *each) {
            return MemeContour(*each, named.piece);
        });
        lot.formes.push_back(static_cast<std::size_t>(same - seen.begin()));
        if (same == seen.end()) {
            seen.push_back(&named.piece);
            lot.table.Ajoute(named.piece, reglage.ecart);
        }
    }
    return lot;
}

/// Fills sheets in one order.
class Remplissage {
  public:
    Remplissage(Lot &lot, const ReglageImbrication &reglage, bool demi_tour,
                std::function<bool()> poursuit)
        : lot_(lot), reglage_(reglage), demi_tour_(demi_tour), poursuit_(std::move(poursuit)) {}

    /// False when it was called off.
    bool Remplit(const std::vector<std::size_t> &ordre);
    void ReduitDerniere();
    /// What is cut off the stock, mm2: whole sheets, and the used part of the last one.
    double Stock() const;

    const std::vector<PlancheEnCours> &Planches() const { return planches_; }

  private:
    Lot &lot_;
    const ReglageImbrication &reglage_;
    bool demi_tour_;
    std::function<bool()> poursuit_;
    std::vector<PlancheEnCours> planches_;

    void Pose(std::size_t rang);
};

bool Remplissage::Remplit(const std::vector<std::size_t> &ordre) {
    for (const std::size_t rang : ordre) {
        if (!poursuit_()) {
            return false;
        }
        Pose(rang);
    }
    return true;
}

void Remplissage::Pose(std::size_t rang) {
    const std::size_t forme = lot_.formes[rang];
    for (PlancheEnCours &planche : planches_) {
        if (planche.Pose(lot_.table, rang, forme)) {
            return;
        }
    }
    for (const FormatPlanche &format : reglage_.formats) {
        PlancheEnCours planche(format, reglage_.marge, demi_tour_);
        if (planche.Pose(lot_.table, rang, forme)) {
            planches_.push_back(std::move(planche));
            return;
        }
    }
    throw MakeFailure(kInvalidProcedureCall); // Refusee has looked at each piece
}

void Remplissage::ReduitDerniere() {
    if (planches_.empty()) {
        return;
    }
    const auto aire = [](const FormatPlanche &format) { return format.largeur * format.hauteur; };
    std::vector<FormatPlanche> formats = reglage_.formats;
    std::stable_sort(formats.begin(), formats.end(),
                     [&](const auto &a, const auto &b) { return aire(a) < aire(b); });
    for (const FormatPlanche &format : formats) {
        if (aire(format) >= aire(planches_.back().Format())) {
            return;
        }
        PlancheEnCours planche(format, reglage_.marge, demi_tour_);
        const auto &posees = planches_.back().Posees();
        if (std::all_of(posees.begin(), posees.end(), [&](const Posee &posee) {
                return planche.Pose(lot_.table, posee.rang, posee.forme);
            })) {
            planches_.back() = std::move(planche);
            return;
        }
    }
}

double Remplissage::Stock() const {
    double sum = 0;
    for (const PlancheEnCours &planche : planches_) {
        sum +=
            planche.Format().Travers() *
            (&planche == &planches_.back() ? planche.LongueurPrise() : planche.Format().Longueur());
    }
    return sum;
}

using Ordre = std::vector<std::size_t>;

/// The largest first; `taille` gives the size of a piece.
template <class Taille>
Ordre OrdreSelon(const Lot &lot, Taille taille) {
    std::vector<double> sizes;
    for (const std::size_t forme : lot.formes) {
        sizes.push_back(taille(lot.table[forme]));
    }
    Ordre order(sizes.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return sizes[a] > sizes[b]; });
    return order;
}

/// By length, but not quite; the same on every machine.
Ordre OrdreMelange(const Lot &lot, unsigned numero) {
    std::mt19937 dice(numero);
    return OrdreSelon(lot, [&](const FormeDePiece &forme) {
        const double part = static_cast<double>(dice()) / static_cast<double>(std::mt19937::max());
        return kMesures[0](forme) * (1 - kMelange * part);
    });
}

struct Essai {
    Ordre ordre;
    bool demi_tour = false;
};

/// What is tried. Pieces that may be turned now and then lie closer when none is. Orders that
/// differ in equal pieces only are one.
std::vector<Essai> EssaisDe(const Lot &lot, bool demi_tour) {
    std::vector<Essai> tries;
    const auto same = [&](const Essai &one, const Essai &other) {
        const auto form = [&](std::size_t a, std::size_t b) {
            return lot.formes[a] == lot.formes[b];
        };
        return one.demi_tour == other.demi_tour &&
               std::equal(one.ordre.begin(), one.ordre.end(), other.ordre.begin(), form);
    };
    const auto add = [&](const Essai &each) {
        if (std::none_of(tries.begin(), tries.end(),
                         [&](const Essai &other) { return same(each, other); })) {
            tries.push_back(each);
        }
    };
    for (const Mesure mesure : kMesures) {
        add({OrdreSelon(lot, mesure), demi_tour});
    }
    add({tries.front().ordre, false});
    for (unsigned i = 0; i < kMelanges && lot.formes.size() <= kTresPeu; ++i) {
        add({OrdreMelange(lot, i), demi_tour});
    }
    tries.resize(lot.formes.size() > kPeu ? 1 : tries.size());
    return tries;
}

std::optional<RefusPlanche> Refusee(const std::vector<PieceNommee> &pieces, const Lot &lot,
                                    const ReglageImbrication &reglage) {
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const Encombrement &taken = lot.table[lot.formes[i]].sens[0];
        const auto holds = [&](const FormatPlanche &format) {
            return PlancheEnCours(format, reglage.marge, false).Tient(taken);
        };
        if (std::none_of(reglage.formats.begin(), reglage.formats.end(), holds)) {
            return RefusPlanche{RefusDePlanche::trop_grande, pieces[i].nom, taken.Longueur(),
                                taken.Hauteur()};
        }
    }
    return std::nullopt;
}

Imbrication Faite(const std::vector<PieceNommee> &pieces,
                  const std::vector<PlancheEnCours> &planches) {
    Imbrication made;
    for (const PlancheEnCours &planche : planches) {
        Planche next{planche.Format(), {}, 0, planche.Format().Longueur()};
        std::vector<Posee> posees = planche.Posees();
        std::sort(posees.begin(), posees.end(),
                  [](const Posee &a, const Posee &b) { return a.rang < b.rang; });
        for (const Posee &posee : posees) {
            const Piece &piece = pieces[posee.rang].piece;
            next.aire += AirePiece(piece);
            next.pieces.push_back({posee.rang, posee.sens == 1,
                                   Deplacee(posee.sens == 1 ? DemiTour(piece) : piece, posee.de)});
        }
        made.push_back(std::move(next));
    }
    if (!made.empty()) {
        made.back().longueur = planches.back().LongueurPrise();
    }
    return made;
}

} // namespace

bool EstFormat(const FormatPlanche &format) {
    return format.Travers() > 0 && format.Longueur() <= kPlancheMaxi;
}

std::vector<PieceNommee> EnCopies(const std::vector<PieceNommee> &pieces, int copies,
                                  bool opposees) {
    std::vector<PieceNommee> all;
    for (int copy = 0; copy < copies; ++copy) {
        for (PieceNommee piece : pieces) {
            if (opposees && copy % 2 == 1) {
                piece.piece = Opposee(std::move(piece.piece));
            }
            all.push_back(std::move(piece));
        }
    }
    return all;
}

std::variant<Imbrication, RefusPlanche> Imbrique(const std::vector<PieceNommee> &pieces,
                                                 const ReglageImbrication &reglage) {
    if (reglage.formats.empty() ||
        !std::all_of(reglage.formats.begin(), reglage.formats.end(), EstFormat)) {
        return RefusPlanche{RefusDePlanche::sans_format};
    }
    if (pieces.size() > kPiecesMaxi) {
        return RefusPlanche{RefusDePlanche::trop_de_pieces};
    }
    Lot lot = LotDe(pieces, reglage);
    if (const auto refusal = Refusee(pieces, lot, reglage)) {
        return *refusal;
    }
    const std::vector<Essai> tries = EssaisDe(lot, reglage.demi_tour);
    std::size_t done = 0;
    const auto go_on = [&] {
        const auto all = static_cast<double>(tries.size() * pieces.size());
        return !reglage.avance || reglage.avance(static_cast<double>(done++) / all);
    };
    std::vector<PlancheEnCours> best;
    double least = std::numeric_limits<double>::max();
    for (const Essai &essai : tries) {
        Remplissage filling(lot, reglage, essai.demi_tour, go_on);
        if (!filling.Remplit(essai.ordre)) {
            return RefusPlanche{RefusDePlanche::abandonnee};
        }
        filling.ReduitDerniere();
        if (filling.Stock() < least) {
            least = filling.Stock();
            best = filling.Planches();
        }
    }
    return Faite(pieces, best);
}

} // namespace loftwing
