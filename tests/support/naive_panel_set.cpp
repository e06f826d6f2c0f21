#include "support/naive_panel_set.h"

#include "support/naive_panel_text.h"

#include <cmath>

namespace loftwing::naive {

namespace {

/// Lists count from 1 here.
struct Curve {
    std::vector<double> x{0}, y{0};
    std::size_t count = 0;
    std::size_t edge = 1; ///< the leading edge: how often x had a new minimum, and one more
};

Curve Taken(const PanelCurve &airfoil, bool major) {
    Curve curve;
    double least = 1.0;
    for (std::size_t i = 0; i < airfoil.x.size(); ++i) {
        curve.x.push_back(airfoil.x[i]);
        curve.y.push_back(airfoil.y[i]);
        if (least > airfoil.x[i]) {
            least = airfoil.x[i];
            ++curve.edge;
        }
    }
    curve.count = airfoil.x.size();
    if (major) {
        curve.x.push_back(0);
        curve.y.push_back(0);
    }
    return curve;
}

double Line(const Curve &of, std::size_t a, std::size_t b, double x) {
    const double xa = of.x.at(a);
    const double xb = of.x.at(b);
    if (std::abs(x - xa) < 1e-6) {
        return of.y[a];
    }
    if (std::abs(x - xb) < 1e-6) {
        return of.y[b];
    }
    return (of.y[b] - of.y[a]) / std::abs(xb - xa) * std::abs(x - xa) + of.y[a];
}

double Upper(const Curve &of, std::size_t bound, double x) {
    std::size_t a = 0;
    std::size_t b = 0;
    std::size_t r = 1;
    for (std::size_t j = 1; j <= bound; ++j) {
        if (x == 1.0 && j == 1) {
            return of.y[1];
        }
        if (of.x.at(j) <= x) {
            break;
        }
        a = r;
        b = r + 1;
        ++r;
    }
    return Line(of, a, b, x);
}

double Lower(const Curve &of, double x) {
    std::size_t a = 0;
    std::size_t b = 0;
    std::size_t r = of.edge + 1;
    for (std::size_t j = of.edge + 1; j <= of.count; ++j) {
        if (j == of.count && x == 1.0) {
            return of.y[of.count];
        }
        if (of.x.at(j) >= x) {
            a = r - 1;
            b = r;
            break;
        }
        a = r;
        b = r + 1;
        ++r;
    }
    return Line(of, a, b, x);
}

/// The other airfoil at the places of the one with more points.
Curve OnPlacesOf(const Curve &finer, const Curve &other, std::size_t bound) {
    Curve made;
    for (std::size_t i = 1; i <= finer.count; ++i) {
        made.x.push_back(finer.x[i]);
        made.y.push_back(i <= finer.edge ? Upper(other, bound, finer.x[i])
                                         : Lower(other, finer.x[i]));
    }
    return made;
}

/// Ratios, chords in mm, whether these are kept in 32 bits, and distances.
struct Spacing {
    std::vector<double> ratios, chords, distances;
    bool narrow = false;
};

Spacing Even(const PanelAsked &asked, double major, double minor) {
    Spacing spacing;
    const int between = static_cast<int>(PanelNumber(asked.count));
    const double ratio_step = (100.0 / (between + 1)) / 100;
    const double chord_step = (major - minor) / (between + 1);
    for (int i = 0; i <= between + 1; ++i) {
        spacing.ratios.push_back(i <= between ? ratio_step * i : 1);
        spacing.chords.push_back(i <= between ? major - chord_step * i : minor);
        spacing.distances.push_back(i);
    }
    return spacing;
}

Spacing Variable(const PanelAsked &asked, double major, double minor) {
    const auto narrow = [](double value) { return static_cast<double>(static_cast<float>(value)); };
    const auto mm = [&](const std::string &text) {
        return narrow(PanelLength(text, asked.inches));
    };
    Spacing spacing;
    spacing.narrow = true;
    std::vector<double> sums{0};
    spacing.distances = {0};
    double length = 0;
    const std::size_t last = asked.gaps.size(); // the number of gaps and of the last rib
    for (std::size_t i = 1; i <= last; ++i) {
        const double step =
            mm(asked.thicknesses[i - 1]) / 2 + mm(asked.gaps[i - 1]) + mm(asked.thicknesses[i]) / 2;
        spacing.distances.push_back(spacing.distances.back() + step);
        length = i < last ? narrow(length + narrow(step))
                          : narrow(mm(asked.thicknesses[i - 1]) / 2 + length +
                                   mm(asked.gaps[i - 1]) + mm(asked.thicknesses[i]) / 2);
        sums.push_back(narrow(narrow(step) + sums.back()));
    }
    const double slope = (major - minor) / length;
    spacing.ratios = {0};
    spacing.chords = {major};
    for (std::size_t i = 1; i < last; ++i) {
        const double half = (mm(asked.thicknesses[i]) + mm(asked.thicknesses[i - 1])) / 2;
        spacing.chords.push_back(
            narrow(spacing.chords.back() - (half + mm(asked.gaps[i - 1])) * slope));
        spacing.ratios.push_back(sums[i] / length);
    }
    spacing.ratios.push_back(1);
    spacing.chords.push_back(minor);
    return spacing;
}

std::string Points(const Curve &major, const Curve &minor, std::size_t count, double ratio,
                   bool first, bool last) {
    std::string text;
    for (std::size_t k = 1; k <= count; ++k) {
        const double x = first ? major.x[k] : minor.x[k];
        const double y = first  ? major.y[k]
                         : last ? minor.y[k]
                                : major.y[k] - (major.y[k] - minor.y[k]) * ratio;
        text += Decimals(x, 15, 7) + (first || last ? "  " : "   ") + Decimals(y, 15, 7) + "\r\n";
    }
    return text;
}

} // namespace

PanelSet MakeSet(const PanelAsked &asked) {
    const Curve one = Taken(asked.airfoils[0], true);
    const Curve two = Taken(asked.airfoils[1], false);
    const bool first_finer = one.count >= two.count;
    const Curve made =
        first_finer ? OnPlacesOf(one, two, two.edge) : OnPlacesOf(two, one, two.edge);
    const Curve &major = first_finer ? one : made;
    const Curve &minor = first_finer ? made : two;
    const auto chord = [&](std::size_t end) {
        return static_cast<double>(
            static_cast<float>(PanelLength(asked.ends[end].chord, asked.inches)));
    };
    const Spacing spacing =
        asked.gaps.empty() ? Even(asked, chord(0), chord(1)) : Variable(asked, chord(0), chord(1));
    PanelSet set;
    const std::size_t ribs = spacing.ratios.size();
    for (std::size_t i = 0; i < ribs; ++i) {
        const bool first = i == 0;
        const bool last = i + 1 == ribs;
        SetRib rib;
        rib.ratio = spacing.ratios[i];
        rib.distance = spacing.distances[i];
        rib.chord = asked.inches && first  ? asked.ends[0].chord
                    : asked.inches && last ? asked.ends[1].chord
                                           : TitleChord(spacing.chords[i], asked.inches,
                                                        spacing.narrow || first || last);
        const std::string number = std::to_string(i + 1);
        rib.name = asked.airfoils[0].name + "&" + asked.airfoils[1].name + asked.words.rib[0] +
                   (i < 9 ? "0" : "") + number + (asked.inches ? "in" : "");
        rib.bytes = asked.words.rib + " " + number + " " + asked.words.chord + " : " + rib.chord +
                    (asked.inches ? " in" : "") + "\r\n" +
                    Points(major, minor, std::max(one.count, two.count), rib.ratio, first, last);
        set.ribs.push_back(rib);
    }
    return set;
}

} // namespace loftwing::naive
