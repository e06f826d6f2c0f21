// The pieces of a rib that the bytes behind the last NUL choose, on the airfoil in front of it or
// the usual one. Outlines run anticlockwise and holes in them clockwise, all of finite numbers; the
// three forms for cutters are whole, closed and show the same; a few of them are laid on sheets
// with gap and margin, or refused.

#include "fuzz_world.h"
#include "output/cut_forms.h"
#include "output/nesting.h"
#include "output/piece.h"
#include "support/cut_reading.h"
#include "support/naive_sheets.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace loftwing {
namespace {

bool OfNumbers(const std::vector<PointMm> &points) {
    return std::all_of(points.begin(), points.end(), [](const PointMm &point) {
        return std::isfinite(point.x) && std::isfinite(point.y);
    });
}

void CheckPiece(const Piece &piece) {
    Require(!piece.parties.empty(), "wood");
    for (const PartiePiece &part : piece.parties) {
        Require(part.dehors.size() > 2 && OfNumbers(part.dehors), "outline of numbers");
        Require(Aire(part.dehors) > 0, "outline that runs anticlockwise");
        for (const Anneau &hole : part.dedans) {
            Require(hole.size() > 2 && OfNumbers(hole), "hole of numbers");
            Require(Aire(hole) < 0, "hole that runs clockwise");
        }
        for (const CerclePiece &circle : part.cercles) {
            Require(std::isfinite(circle.centre.x) && std::isfinite(circle.centre.y) &&
                        circle.rayon > 0 && std::isfinite(circle.rayon),
                    "circle");
        }
    }
    for (const TraitMarque &mark : piece.traits) {
        Require(mark.points.size() > 1 && OfNumbers(mark.points), "mark of numbers");
    }
    for (const TexteMarque &text : piece.textes) {
        Require(std::isfinite(text.place.x) && std::isfinite(text.place.y) && text.hauteur > 0,
                "text in its place");
    }
    Require(AirePiece(piece) > 0 && LongueurCoupe(piece) > 0, "measures");
}

std::size_t Corners(const std::vector<Piece> &pieces) {
    std::size_t corners = 0;
    for (const Piece &piece : pieces) {
        for (const PartiePiece &part : piece.parties) {
            corners += part.dehors.size();
            for (const Anneau &hole : part.dedans) {
                corners += hole.size();
            }
        }
    }
    return corners;
}

/// Whether rings meet at a corner, as a hole does that reaches the outline in one point: the lines
/// that end there can be joined in several ways.
bool MeetAtCorners(const ReadCut &cut) {
    std::set<ReadPoint> corners;
    for (const ReadRing &ring : cut.rings) {
        for (const ReadPoint &corner : ring) {
            if (!corners.insert(corner).second) {
                return true;
            }
        }
    }
    return false;
}

void CheckForms(const FuzzWorld &world, const std::vector<Piece> &pieces) {
    constexpr double kDigits = 2e-3;        // mm, of an SVG
    constexpr std::size_t kReadable = 3000; // corners; the reader looks for neighbours plainly
    if (Corners(pieces) > kReadable) {
        return;
    }
    const std::string &Unite = world.programme.settings.Unite;
    const DessinDecoupe drawing{EnDessous(pieces), "title"};
    const ReadCut closed = Polylines(EcritDecoupeDxf(drawing, Unite, AnneauxDxf::polylignes));
    const ReadCut paths = Subpaths(EcritDecoupeSvg(drawing, CouleursDe(world.programme.settings)));
    Require(closed.problem.empty(), closed.problem.c_str());
    Require(paths.problem.empty(), paths.problem.c_str());
    if (!MeetAtCorners(closed)) {
        const ReadCut joined = JoinedLines(EcritDecoupeDxf(drawing, Unite, AnneauxDxf::lignes));
        Require(joined.problem.empty(), joined.problem.c_str());
        Require(Difference(joined, closed) == 0, "lines and polylines show the same");
    }
    if (Unite == kUniteMm) {
        Require(Difference(closed, paths) < kDigits, "DXF and SVG show the same");
    }
}

void CheckSheets(const std::vector<Piece> &pieces, Choices &choices) {
    constexpr std::size_t kPlain = 1500; // corners; distances are taken from each to each
    if (Corners(pieces) > kPlain) {
        return;
    }
    ReglageImbrication wanted;
    wanted.formats = {{100.0 + 4 * choices.Below(256), 50.0 + choices.Below(256)}};
    wanted.ecart = choices.Below(64) / 8.0;
    wanted.marge = choices.Below(64) / 8.0;
    wanted.demi_tour = choices.Yes();
    std::vector<PieceNommee> named;
    for (const Piece &piece : pieces) {
        named.push_back({"rib", piece});
    }
    named = EnCopies(named, 1 + choices.Below(3), choices.Yes());
    const auto made = Imbrique(named, wanted);
    if (const auto *sheets = std::get_if<Imbrication>(&made)) {
        const std::string fault = naive::SheetFault(*sheets, named, wanted, 1e-5);
        if (!fault.empty()) {
            Require(false, fault.c_str());
        }
    } else {
        Require(std::get<RefusPlanche>(made).cause == RefusDePlanche::trop_grande,
                "refused for its size only");
    }
}

void Cut(FuzzWorld &world, Choices &choices) {
    DemandePiece demand;
    demand.saignee = choices.Below(64) / 16.0;
    demand.fil = choices.Below(64) / 16.0;
    demand.texte = choices.Yes() ? "label" : "";
    const auto made = FaitPieces(world.programme.rib, demand, world.programme.SaisieEnCours());
    if (const auto *pieces = std::get_if<std::vector<Piece>>(&made)) {
        Require(!pieces->empty(), "piece or refusal");
        std::for_each(pieces->begin(), pieces->end(), CheckPiece);
        CheckForms(world, *pieces);
        CheckSheets(*pieces, choices);
    }
}

void MakeAndCut(std::string_view bytes) {
    auto [file, choices] = Divide(bytes);
    FuzzWorld world(choices.Yes());
    if (!world.TakeComponents(ChosenRib(choices).Current()) ||
        !world.TakeAirfoil(file.empty() ? UsualAirfoil() : std::string(file))) {
        return;
    }
    try {
        Cut(world, choices);
    } catch (const Failure &failure) {
        Require(!world.programme.messages.Description(failure).empty(), "failure that is told");
    }
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::MakeAndCut(loftwing::BytesOf(data, size));
    return 0;
}
