#include "core/contour_fault.h"

#include "base/file_name.h"
#include "base/number_text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace loftwing {

namespace {

// The points of the interpolation on either side of its centre.
constexpr long kAvantCentre = 2;
constexpr long kApresCentre = 3;

/// The two points of a run that lie closest to each other in one coordinate.
FauteContour LesPlusProches(const PointList &axis, long from, long to, CauseContour cause) {
    FauteContour closest;
    double least = std::numeric_limits<double>::infinity();
    for (long a = from; a < to; ++a) {
        for (long b = a + 1; b <= to; ++b) {
            const double distance = std::abs(axis(a) - axis(b));
            if (distance < least) {
                least = distance;
                closest = {cause, a, b};
            }
        }
    }
    return closest;
}

double Grandeur(const Profil &rib, long point) {
    return std::max(std::abs(rib.ProfilX(point)), std::abs(rib.ProfilY(point)));
}

long LePlusGrand(const Profil &rib, long from, long to) {
    long largest = from;
    for (long point = from; point <= to; ++point) {
        if (Grandeur(rib, point) > Grandeur(rib, largest)) {
            largest = point;
        }
    }
    return largest;
}

/// Whether a segment is too short for ten steps of 32 bits.
bool SansPas(const PointList &axis, long i) {
    const auto from = static_cast<float>(axis(i));
    const auto step = static_cast<float>((axis(i + 1) - axis(i)) / 10.0);
    return static_cast<float>(Wide(from) + Wide(step)) == from;
}

FauteContour FauteDuSegment(const Profil &rib, const SegmentEchantillonne &segment,
                            const Failure &failure) {
    const CauseContour same =
        segment.selon_y ? CauseContour::meme_hauteur : CauseContour::meme_place;
    const PointList &axis = segment.selon_y ? rib.ProfilY : rib.ProfilX;
    const long from = segment.centre - kAvantCentre;
    const long to = segment.centre + kApresCentre;
    if (failure.number == kSubscriptOutOfRange || !axis.Holds(from) || !axis.Holds(to)) {
        return {CauseContour::trop_court};
    }
    const long largest = LePlusGrand(rib, from, to);
    if (Grandeur(rib, largest) > kTropGrand) {
        return {CauseContour::trop_grand, largest};
    }
    if (failure.number == kOverflow && SansPas(axis, segment.i)) {
        return {same, segment.i, segment.i + 1};
    }
    if (rib.NbContour == std::numeric_limits<std::int16_t>::max()) {
        return {CauseContour::trop_long, segment.i};
    }
    return LesPlusProches(axis, from, to, same);
}

std::string Valeur(const char *name, double value) {
    return std::string(", ") + name + " = " + NumberText(value);
}

/// "points 12 and 13 at the same height, y = 0.02"
std::string TextePaire(const RibModel &rib, const Messages &messages, LngKey where,
                       const PointList &axis, const char *name) {
    const FauteContour &faute = rib.faute;
    const double first = axis(faute.premier);
    const double second = axis(faute.second);
    return messages.Text({"frmopen", "24"}) + " " + std::to_string(faute.premier) + " " +
           messages.Text({"frmopen", "192"}) + " " + std::to_string(faute.second) + " " +
           messages.Text(where) + Valeur(name, first) +
           (second == first ? "" : Valeur(name, second));
}

std::string TexteCause(const RibModel &rib, const Messages &messages) {
    const long point = rib.faute.premier;
    switch (rib.faute.cause) {
    case CauseContour::meme_place:
        return TextePaire(rib, messages, {"frmopen", "193"}, rib.ProfilX, "x");
    case CauseContour::meme_hauteur:
        return TextePaire(rib, messages, {"frmopen", "194"}, rib.ProfilY, "y");
    case CauseContour::trop_court:
        return messages.Text({"frmopen", "195"}) + " " + std::to_string(rib.NbPoints);
    case CauseContour::trop_long:
        return messages.Text({"frmopen", "196"}) + " " + std::to_string(point);
    case CauseContour::trop_grand:
        return messages.Text({"frmopen", "197"}) + " " + std::to_string(point) +
               Valeur("x", rib.ProfilX(point)) + Valeur("y", rib.ProfilY(point));
    case CauseContour::aucune:
        break;
    }
    return {};
}

/// Texts behind each other, commas between those that aren't empty.
std::string Enumere(std::initializer_list<std::string> texts) {
    std::string all;
    for (const std::string &text : texts) {
        all += (all.empty() || text.empty() ? "" : ", ") + text;
    }
    return all;
}

std::string Fichier(const RibModel &rib) {
    return NameIn(rib.CheminProfil);
}

} // namespace

FauteContour ChercheFaute(const Profil &rib, const SegmentEchantillonne &segment,
                          const Failure &failure) {
    FauteContour faute = FauteDuSegment(rib, segment, failure);
    faute.jusque = segment.i;
    return faute;
}

void AccuseLePlusGrand(RibModel &rib) {
    rib.faute = {CauseContour::trop_grand, LePlusGrand(rib, 1, rib.NbPoints)};
}

std::string TexteFaute(const RibModel &rib, const Messages &messages) {
    return Enumere({Fichier(rib), TexteCause(rib, messages)});
}

std::string TexteSansContour(const RibModel &rib, const Messages &messages) {
    return Enumere({Fichier(rib), messages.Text({"frmopen", "198"}), TexteCause(rib, messages)});
}

} // namespace loftwing
