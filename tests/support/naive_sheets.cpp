#include "support/naive_sheets.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <map>

namespace loftwing::naive {

namespace {

double ToEdge(const PointMm &point, const PointMm &a, const PointMm &b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double along = square > 0 ? ((point.x - a.x) * dx + (point.y - a.y) * dy) / square : 0;
    const double part = std::clamp(along, 0.0, 1.0);
    return std::hypot(point.x - a.x - part * dx, point.y - a.y - part * dy);
}

/// Twice the area of the triangle, positive when c lies to the left.
double Turn(const PointMm &a, const PointMm &b, const PointMm &c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

/// By how much two edges would have to move so that they don't cross; 0 where they don't.
double Crossing(const PointMm &a, const PointMm &b, const PointMm &c, const PointMm &d) {
    if (Turn(a, b, c) * Turn(a, b, d) >= 0 || Turn(c, d, a) * Turn(c, d, b) >= 0) {
        return 0;
    }
    return std::min({ToEdge(a, c, d), ToEdge(b, c, d), ToEdge(c, a, b), ToEdge(d, a, b)});
}

/// How deep a point lies in a ring, where it does.
bool Holds(const Anneau &ring, const PointMm &point, double &depth) {
    bool inside = false;
    double edge = std::numeric_limits<double>::max();
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const PointMm &a = ring[i];
        const PointMm &b = Suivant(ring, i);
        edge = std::min(edge, ToEdge(point, a, b));
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) {
            inside = !inside;
        }
    }
    depth = edge;
    return inside;
}

/// From corners to edges, less than 0 by what lies in the other one or crosses it.
double FromCorners(const Anneau &one, const Anneau &other) {
    double least = std::numeric_limits<double>::max();
    double common = 0;
    for (std::size_t i = 0; i < one.size(); ++i) {
        double depth = 0;
        if (Holds(other, one[i], depth)) {
            common = std::max(common, depth);
        }
        for (std::size_t k = 0; k < other.size(); ++k) {
            const PointMm &a = other[k];
            const PointMm &b = Suivant(other, k);
            common = std::max(common, Crossing(one[i], Suivant(one, i), a, b));
            least = std::min(least, ToEdge(one[i], a, b));
        }
    }
    return common > 0 ? -common : least;
}

double PieceDistance(const Piece &one, const Piece &other) {
    double least = std::numeric_limits<double>::max();
    for (const PartiePiece &a : one.parties) {
        for (const PartiePiece &b : other.parties) {
            least = std::min(least, RingDistance(a.dehors, b.dehors));
        }
    }
    return least;
}

bool FarFrom(const BoitePiece &a, const BoitePiece &b, double gap) {
    return a.haut_droite.x + gap < b.bas_gauche.x || b.haut_droite.x + gap < a.bas_gauche.x ||
           a.haut_droite.y + gap < b.bas_gauche.y || b.haut_droite.y + gap < a.bas_gauche.y;
}

bool SameRing(const Anneau &given, const Anneau &laid, double sign, const PointMm &shift) {
    constexpr double kMoved = 1e-9; // mm
    if (given.size() != laid.size()) {
        return false;
    }
    for (std::size_t i = 0; i < given.size(); ++i) {
        if (std::hypot(laid[i].x - sign * given[i].x - shift.x,
                       laid[i].y - sign * given[i].y - shift.y) > kMoved) {
            return false;
        }
    }
    return true;
}

bool SamePiece(const Piece &given, const PiecePlacee &placed) {
    const Piece &laid = placed.piece;
    if (given.parties.size() != laid.parties.size()) {
        return false;
    }
    const double sign = placed.tournee ? -1 : 1;
    const PointMm &from = given.parties[0].dehors[0];
    const PointMm &to = laid.parties[0].dehors[0];
    const PointMm shift{to.x - sign * from.x, to.y - sign * from.y};
    for (std::size_t i = 0; i < given.parties.size(); ++i) {
        const PartiePiece &a = given.parties[i];
        const PartiePiece &b = laid.parties[i];
        if (!SameRing(a.dehors, b.dehors, sign, shift) || a.dedans.size() != b.dedans.size()) {
            return false;
        }
        for (std::size_t k = 0; k < a.dedans.size(); ++k) {
            if (!SameRing(a.dedans[k], b.dedans[k], sign, shift)) {
                return false;
            }
        }
    }
    return true;
}

std::string PlaceFault(const Planche &sheet, const PiecePlacee &placed,
                       const ReglageImbrication &wanted, double digits) {
    const BoitePiece box = BoiteDe(placed.piece);
    const double least = wanted.marge - digits;
    if (box.bas_gauche.x < least || box.bas_gauche.y < least ||
        box.haut_droite.x > sheet.format.Longueur() - least ||
        box.haut_droite.y > sheet.format.Travers() - least) {
        return "in the margin";
    }
    return placed.tournee && !wanted.demi_tour ? "turned" : "";
}

std::string Apart(double mm) {
    std::array<char, 40> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), mm).ptr;
    return std::string(text.data(), end) + " mm apart";
}

std::string GapFault(const Planche &sheet, double gap, double digits) {
    for (std::size_t i = 0; i < sheet.pieces.size(); ++i) {
        const Piece &one = sheet.pieces[i].piece;
        for (std::size_t k = 0; k < i; ++k) {
            const Piece &other = sheet.pieces[k].piece;
            if (FarFrom(BoiteDe(one), BoiteDe(other), gap)) {
                continue;
            }
            const double distance = PieceDistance(one, other);
            if (distance < gap - digits) {
                return std::to_string(sheet.pieces[i].rang) + " and " +
                       std::to_string(sheet.pieces[k].rang) + " are " + Apart(distance);
            }
        }
    }
    return "";
}

} // namespace

double RingDistance(const Anneau &one, const Anneau &other) {
    return std::min(FromCorners(one, other), FromCorners(other, one));
}

std::string SheetFault(const Imbrication &sheets, const std::vector<PieceNommee> &pieces,
                       const ReglageImbrication &wanted, double digits) {
    std::map<std::size_t, int> laid;
    for (const Planche &sheet : sheets) {
        if (std::find(wanted.formats.begin(), wanted.formats.end(), sheet.format) ==
            wanted.formats.end()) {
            return "a sheet that wasn't asked for";
        }
        for (const PiecePlacee &placed : sheet.pieces) {
            laid[placed.rang] += 1;
            const std::string who = "piece " + std::to_string(placed.rang) + " ";
            if (placed.rang >= pieces.size() || !SamePiece(pieces[placed.rang].piece, placed)) {
                return who + "is another one";
            }
            if (const std::string fault = PlaceFault(sheet, placed, wanted, digits);
                !fault.empty()) {
                return who + fault;
            }
        }
        if (const std::string fault = GapFault(sheet, wanted.ecart, digits); !fault.empty()) {
            return fault;
        }
    }
    const bool once =
        std::all_of(laid.begin(), laid.end(), [](const auto &each) { return each.second == 1; });
    return once && laid.size() == pieces.size() ? "" : "not all pieces once";
}

} // namespace loftwing::naive
