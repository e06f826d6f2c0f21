#include "support/naive_wing.h"

#include "support/naive_contour.h"
#include "support/naive_panel_text.h"
#include "support/naive_wing_sheeting.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace loftwing::naive {

namespace {

/// A straight line through two places.
struct Straight {
    double x1 = 0, v1 = 0, x2 = 0, v2 = 0;

    double At(double x) const { return x1 == x2 ? v1 : v1 + (v2 - v1) * (x - x1) / (x2 - x1); }
};

/// Two numbers a line below the title, as the naive panel writes them.
NaiveAirfoil PointsOf(const std::string &bytes) {
    NaiveAirfoil points;
    for (std::size_t at = bytes.find('\n') + 1; at < bytes.size();) {
        const std::size_t end = bytes.find('\r', at);
        const std::size_t first = bytes.find_first_not_of(' ', at);
        const std::size_t blank = bytes.find(' ', first);
        points.Add(PanelNumber(bytes.substr(first, blank - first)),
                   PanelNumber(bytes.substr(blank, end - blank)));
        at = end + 2;
    }
    return points;
}

class Builder {
  public:
    Builder(const WingPanelAsked &asked, int first)
        : asked_(asked), file_ribs_(MakePanel(asked.panel)), first_(first) {}

    WingPanel Make(double x, double y) {
        made_.x = x;
        made_.y = y;
        Middles();
        Ribs();
        Chords();
        for (int slot = 1; slot <= 12; ++slot) {
            Spar(slot);
            Hole(slot);
        }
        Edges();
        Sheeting();
        return made_;
    }

  private:
    const WingPanelAsked &asked_;
    const std::vector<PanelRib> file_ribs_;
    const int first_;
    WingPanel made_;
    std::vector<double> middles_, thicknesses_; ///< from the root's face
    std::vector<NaiveContour> contours_;

    std::size_t Count() const { return file_ribs_.size(); }
    double Mm(const std::string &text) const { return PanelLength(text, asked_.panel.inches); }
    double Nose(double s) const { return made_.y + asked_.sweep * s / made_.length; }
    double Chord(std::size_t rib) const { return file_ribs_[rib].chord; }
    double Value(std::size_t rib, const std::string &key) const {
        return file_ribs_[rib].mm.at(key);
    }

    void Middles() {
        const PanelAsked &panel = asked_.panel;
        const auto count = static_cast<double>(Count());
        if (panel.gaps.empty()) {
            const double t = asked_.thickness.empty() ? 0 : Mm(asked_.thickness);
            const double gap = (asked_.length - count * t) / (count - 1);
            for (std::size_t i = 0; i < Count(); ++i) {
                thicknesses_.push_back(t);
                middles_.push_back(t / 2 + static_cast<double>(i) * (gap + t));
            }
            made_.length = asked_.length;
            return;
        }
        double face = 0;
        for (std::size_t i = 0; i < Count(); ++i) {
            const double t = Mm(panel.thicknesses[i]);
            thicknesses_.push_back(t);
            middles_.push_back(face + t / 2);
            face += t + (i + 1 < Count() ? Mm(panel.gaps[i]) : 0);
        }
        made_.length = face;
    }

    void Ribs() {
        for (std::size_t i = 0; i < Count(); ++i) {
            contours_.push_back(ComputeNaively(PointsOf(file_ribs_[i].airfoil)));
            WingRib rib;
            rib.number = first_ + static_cast<int>(i);
            rib.x = made_.x + middles_[i];
            rib.thickness = thicknesses_[i];
            rib.y = Nose(middles_[i]);
            rib.chord = Chord(i);
            const std::vector<double> &heights = contours_[i].contour.y;
            rib.high = *std::max_element(heights.begin() + 1, heights.end()) * rib.chord;
            rib.low = *std::min_element(heights.begin() + 1, heights.end()) * rib.chord;
            made_.ribs.push_back(rib);
        }
    }

    void Chords() {
        const Straight line{middles_.front(), Chord(0), middles_.back(), Chord(Count() - 1)};
        made_.chords = {line.At(0), line.At(made_.length)};
    }

    /// Height of a surface so far behind the leading edge, between the stations of its table.
    double Surface(std::size_t rib, double behind, bool above) const {
        const std::vector<double> &table =
            above ? contours_[rib].TabExtrados : contours_[rib].TabIntrados;
        const double station = 400 - 400 * behind / Chord(rib);
        const double low = std::min(std::max(std::floor(station), 0.0), 399.0);
        const auto at = static_cast<std::size_t>(low);
        return (table[at] + (table[at + 1] - table[at]) * (station - low)) * Chord(rib);
    }

    /// What an element is at its first and last rib: how far behind the leading edge its middle
    /// lies, how high, how wide and deep it is.
    struct Seat {
        double behind = 0, z = 0, width = 0, depth = 0;
        bool round = false;
    };

    void Stick(const std::string &name, std::size_t a, std::size_t b, const Seat &one,
               const Seat &two) {
        WingStick stick;
        stick.name = name;
        stick.from = first_ + static_cast<int>(a);
        stick.to = first_ + static_cast<int>(b);
        stick.round = one.round;
        stick.part_of_panel = a > 0 || b + 1 < Count();
        const double faces[] = {middles_[a] - thicknesses_[a] / 2,
                                middles_[b] + thicknesses_[b] / 2};
        const auto at = [&](double Seat::*value, double s) {
            return Straight{middles_[a], one.*value, middles_[b], two.*value}.At(s);
        };
        for (const std::size_t end : {0U, 1U}) {
            const double s = faces[end];
            stick.ends[end].x = made_.x + s;
            stick.ends[end].y = Nose(s) + at(&Seat::behind, s);
            stick.ends[end].z = at(&Seat::z, s);
            stick.ends[end].width = std::max(at(&Seat::width, s), 0.0); // tapers to nothing
            stick.ends[end].depth = std::max(at(&Seat::depth, s), 0.0);
        }
        const WingPoint &p = stick.ends[0];
        const WingPoint &q = stick.ends[1];
        stick.length = std::hypot(q.x - p.x, q.y - p.y, q.z - p.z);
        made_.sticks.push_back(stick);
    }

    /// Where the text of a spar or hole says that it is.
    double Behind(std::size_t rib, const std::string &text, bool from_rear) const {
        const double own = text.back() == '%'
                               ? PanelNumber(text.substr(0, text.size() - 1)) * Chord(rib) / 100
                               : Mm(text);
        return from_rear ? Chord(rib) - own : own;
    }

    /// Ribs in which a slot of the ends stands, each with its slot there, from 0.
    std::vector<std::pair<std::size_t, std::size_t>>
    Standing(int slot, std::vector<int> PanelRib::*slots) const {
        std::vector<std::pair<std::size_t, std::size_t>> found;
        for (std::size_t i = 0; i < Count(); ++i) {
            const std::vector<int> &all = file_ribs_[i].*slots;
            const auto at = std::find(all.begin(), all.end(), slot);
            if (at != all.end()) {
                found.emplace_back(i, static_cast<std::size_t>(at - all.begin()));
            }
        }
        return found;
    }

    void Spar(int slot) {
        const auto ribs = Standing(slot, &PanelRib::spars);
        for (const bool above : {true, false}) {
            if (ribs.empty() || Lines(ribs[0])[above ? 3 : 4] == "0") {
                continue;
            }
            Stick("spar" + std::to_string(slot) + (above ? " above" : " below"), ribs.front().first,
                  ribs.back().first, SparSeat(ribs.front(), above), SparSeat(ribs.back(), above));
        }
    }

    const ComponentsText::Lines &Lines(const std::pair<std::size_t, std::size_t> &at) const {
        return file_ribs_[at.first].file.spars[at.second];
    }

    Seat SparSeat(const std::pair<std::size_t, std::size_t> &at, bool above) const {
        const auto rib = at.first;
        const ComponentsText::Lines &spar = Lines(at);
        const std::string key = "spar" + std::to_string(at.second + 1) + " ";
        const bool round = spar[5] == "2";
        Seat seat;
        seat.round = round;
        seat.behind = Behind(rib, spar[0], spar[7] == "1");
        seat.width = Value(rib, key + "width");
        seat.depth = round ? seat.width : Value(rib, key + "depth");
        double into = spar[above ? 3 : 4] == "1" ? Value(rib, "sheeting") : 0;
        // A round one is set by its centre.
        into += round            ? Value(rib, key + "distance")
                : spar[5] == "3" ? Value(rib, key + "distance") + seat.depth / 2
                                 : seat.depth / 2;
        seat.z = Surface(rib, seat.behind, above) + (above ? -into : into);
        return seat;
    }

    void Hole(int slot) {
        WingLine line;
        line.name = "hole" + std::to_string(slot);
        for (const auto &[rib, own] : Standing(slot, &PanelRib::holes)) {
            const ComponentsText::Lines &hole = file_ribs_[rib].file.holes[own];
            line.points.push_back({made_.x + middles_[rib],
                                   Nose(middles_[rib]) + Behind(rib, hole[0], hole[5] == "1"), 0});
        }
        if (!line.points.empty()) {
            made_.holes.push_back(line);
        }
    }

    double Front(std::size_t rib) const {
        return file_ribs_[rib].file.stock == "1" ? Value(rib, "edge") : 0;
    }
    double Rear(std::size_t rib) const { return Value(rib, "trailing"); }
    double NotchSide(std::size_t rib) const {
        return file_ribs_[rib].file.stock == "1" ? 0 : Value(rib, "notch");
    }

    /// A stock that has no width at one end of the panel tapers to it.
    template <class Width, class MakeSeat>
    void Edge(const std::string &name, const Width &width, const MakeSeat &seat) {
        std::size_t a = 0;
        std::size_t b = Count() - 1;
        const auto range = asked_.panel.ranges.find(name);
        if (range != asked_.panel.ranges.end()) {
            a = static_cast<std::size_t>(range->second.first) - 1;
            b = static_cast<std::size_t>(range->second.second) - 1;
        }
        if (width(a) > 0 || width(b) > 0) {
            Stick(name, a, b, seat(a), seat(b));
        }
    }

    void Edges() {
        const auto high = [&](std::size_t rib, double behind) {
            return Surface(rib, behind, true);
        };
        const auto low = [&](std::size_t rib, double behind) {
            return Surface(rib, behind, false);
        };
        const auto stock = [&](std::size_t rib, double middle, double inner, double width) {
            return Seat{middle, (high(rib, inner) + low(rib, inner)) / 2, width,
                        high(rib, inner) - low(rib, inner)};
        };
        Edge(
            "le", [&](std::size_t rib) { return Front(rib); },
            [&](std::size_t rib) { return stock(rib, Front(rib) / 2, Front(rib), Front(rib)); });
        Edge(
            "te", [&](std::size_t rib) { return Rear(rib); },
            [&](std::size_t rib) {
                return stock(rib, Chord(rib) - Rear(rib) / 2, Chord(rib) - Rear(rib), Rear(rib));
            });
        Edge(
            "notch", [&](std::size_t rib) { return NotchSide(rib); },
            [&](std::size_t rib) {
                return Seat{Value(rib, "notch x"), Value(rib, "notch y"), NotchSide(rib),
                            NotchSide(rib)};
            });
    }

    void Sheeting() {
        if (!(Value(0, "sheeting") > 0)) {
            return;
        }
        std::vector<SheetedRib> ribs;
        WingLine front{"front", {}};
        WingLine rear{"rear", {}};
        for (std::size_t i = 0; i < Count(); ++i) {
            const double nose = Nose(middles_[i]);
            ribs.push_back({middles_[i], thicknesses_[i], nose, Chord(i), Front(i),
                            Chord(i) - Rear(i), &contours_[i]});
            front.points.push_back({made_.x + middles_[i], nose + ribs.back().front, 0});
            rear.points.push_back({made_.x + middles_[i], nose + ribs.back().rear, 0});
        }
        made_.edges = {front, rear};
        for (const bool above : {true, false}) {
            made_.sheeting.push_back(SheetingOf(ribs, asked_.sweep / made_.length, above));
            made_.sheeting.back().thickness = Value(0, "sheeting");
        }
    }
};

} // namespace

std::vector<WingPanel> MakeWing(const std::vector<WingPanelAsked> &asked, int first) {
    std::vector<WingPanel> wing;
    double x = 0;
    double y = 0;
    double height = 0;
    double before = 0;
    int number = first;
    for (const WingPanelAsked &each : asked) {
        WingPanel panel = Builder(each, number).Make(x, y);
        x += panel.length;
        y += each.sweep;
        number += static_cast<int>(panel.ribs.size());
        height += panel.length * std::sin(each.dihedral / 180 * std::numbers::pi);
        panel.height = height;
        panel.joint = each.dihedral - before;
        before = each.dihedral;
        wing.push_back(panel);
    }
    return wing;
}

double WingWeight(double area, double thickness, double density) {
    constexpr double kCubicMmOfMetre = 1e9;
    constexpr double kGrams = 1000;
    return area * thickness / kCubicMmOfMetre * density * kGrams;
}

} // namespace loftwing::naive
