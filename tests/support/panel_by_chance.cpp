#include "support/panel_by_chance.h"

#include "support/naive_panel_text.h"

#include <cmath>

namespace loftwing {

namespace {

using Lines = ComponentsText::Lines;

/// How a slot is filled at the two ends.
enum class Ends { both, root, tip };

class Maker {
  public:
    explicit Maker(unsigned seed) : dice_(seed) { asked_.inches = seed % 2 == 1; }

    naive::PanelAsked Panel(bool even) {
        Chords();
        Spacing(even);
        Edges();
        Around();
        Slots(&ComponentsText::spars, "spar", dice_.From(1, 4));
        Slots(&ComponentsText::holes, "hole", dice_.From(0, 4));
        Label();
        return asked_;
    }

  private:
    Dice dice_;
    naive::PanelAsked asked_;
    std::array<double, 2> chords_{}; ///< mm
    int ribs_ = 0;

    ComponentsText &End(std::size_t end) { return asked_.ends[end]; }

    /// A length between two, as typed.
    std::string Length(double least, double most) {
        const double mm = least + (most - least) * dice_.Below(1001) / 1000;
        if (!asked_.inches) {
            return Decimal(mm, dice_.From(1, 2));
        }
        if (dice_.OneIn(3)) {
            return Decimal(mm / 25.4, 3);
        }
        const int parts = dice_.OneOf({16, 32, 64});
        const int count = std::max(1, static_cast<int>(std::round(mm / 25.4 * parts)));
        const std::string below = std::to_string(count % parts) + "/" + std::to_string(parts);
        return count % parts == 0 ? std::to_string(count / parts)
               : count < parts    ? below
                                  : std::to_string(count / parts) + "." + below;
    }
    static std::string Decimal(double value, int places) {
        const std::string text = naive::Decimals(value, 15, std::max(places, 1));
        const double rounded = naive::PanelNumber(text);
        return naive::Blended(places == 0 ? std::round(rounded) : rounded, false);
    }
    std::string Percent(double least, double most) {
        return Decimal(100 * (least + (most - least) * dice_.Below(101) / 100), dice_.From(0, 1)) +
               "%";
    }
    /// A place between two parts of an end's chord. One of an end alone must lie in all ribs, so it
    /// is a percentage unless it is a small one.
    std::string Place(std::size_t end, double least, double most, bool alone = false) {
        constexpr double kInAllRibs = 0.3;
        return dice_.OneIn(2) || (alone && most > kInAllRibs)
                   ? Percent(least, most)
                   : Length(least * chords_[end], most * chords_[end]);
    }

    void Chords() {
        End(0).chord = Length(180, 320);
        chords_[0] = naive::PanelLength(End(0).chord, asked_.inches);
        End(1).chord = dice_.OneIn(6) ? End(0).chord : Length(110, 180);
        chords_[1] = naive::PanelLength(End(1).chord, asked_.inches);
        for (const std::size_t end : {0U, 1U}) {
            End(end).airfoil = dice_.OneOf<std::string>(
                {"naca2412.dat", "naca4409.dat", "naca1408.dat", "coarse.dat", "open.dat"});
        }
    }

    void Spacing(bool even) {
        if (even) {
            const int between = dice_.OneIn(20) ? dice_.From(30, 90) : dice_.From(1, 12);
            asked_.count = std::to_string(between);
            ribs_ = between + 2;
            return;
        }
        const int between = dice_.From(1, 12);
        ribs_ = between + 2;
        for (int i = 0; i < between + 1; ++i) {
            asked_.gaps.push_back(Length(15, 80));
        }
        for (int i = 0; i < ribs_; ++i) {
            asked_.thicknesses.push_back(Length(1.5, 4));
        }
    }

    void Range(const std::string &element) {
        const int from = dice_.From(1, ribs_);
        asked_.ranges[element] = {from, dice_.From(from, ribs_)};
    }

    void Edges() {
        const bool notch = dice_.OneIn(4);
        const bool sheeted = !dice_.OneIn(4);
        const bool tapers = dice_.OneIn(5);
        for (const std::size_t end : {0U, 1U}) {
            ComponentsText &file = End(end);
            file.sheeting = !sheeted             ? "0"
                            : end == 1 && tapers ? Length(0.5, 1)
                            : end == 0           ? Length(0.8, 1.5)
                                                 : End(0).sheeting;
            file.trailing = Length(10, 22);
            if (notch) {
                file.stock = "0";
                file.notch = Length(4, 6);
                file.notch_x = Length(5, 8);
                file.notch_y = Length(0.5, 1);
            } else {
                file.edge = Length(4, 9);
            }
        }
        if (!notch && dice_.OneIn(5)) {
            End(dice_.OneIn(2) ? 1 : 0).edge = "0";
        }
        if (dice_.OneIn(5)) {
            Range(notch ? "notch" : "le");
        }
        if (dice_.OneIn(5)) {
            Range("te");
        }
    }

    /// Heel, foam template, washout, station lines, view.
    void Around() {
        const int kind = dice_.OneOf({0, 1, 11, 11});
        const bool above = dice_.OneIn(3);
        const std::string stations = std::to_string(dice_.OneOf({0, 0, 3, 7}));
        const std::string inverted = dice_.OneIn(4) ? "1" : "0";
        const std::string tail = std::to_string(dice_.Below(2));
        for (const std::size_t end : {0U, 1U}) {
            ComponentsText &file = End(end);
            file.kind = std::to_string(kind);
            file.stations = stations;
            file.inverted = inverted;
            file.tail = tail;
            if (kind != 0 && dice_.OneIn(2)) {
                file.washout = Decimal(dice_.From(-300, 300) / 100.0, 2);
            }
            if (kind == 1) {
                file.below = Length(45, 60);
                file.total = Length(100, 120);
                file.ramp = Length(15, 30);
                file.tail_ramp = Length(15, 30);
                file.cut = Length(0.2, 0.8);
            }
            if (kind == 11) {
                file.intra = Length(48, 60);
                file.extra = above ? "1#-" + Decimal(asked_.inches ? dice_.From(190, 220) / 100.0
                                                                   : dice_.From(480, 600) / 10.0,
                                                     2)
                                   : "0#0";
                file.heel_front = Place(end, 0.1, 0.3);
                file.heel_back = Place(end, 0.1, 0.3);
            }
        }
        if (kind != 0 && dice_.OneIn(4)) {
            Range("heel");
        }
    }

    Lines Spar(std::size_t end, const Lines &kinds, double part, bool alone) {
        Lines spar = ComponentsText::BlankSpar();
        spar[3] = kinds[0];
        spar[4] = kinds[1];
        spar[5] = kinds[2];
        spar[7] = kinds[3];
        const double own = kinds[3] == "1" ? 1 - part : part;
        spar[0] = Place(end, own - 0.02, own + 0.02, alone);
        spar[1] = Length(2.5, 5);
        spar[2] = kinds[2] == "2" ? "0" : Length(1.5, 3);
        spar[6] = kinds[2] == "0" ? "" : kinds[2] == "1" ? "0" : Length(2, 4);
        return spar;
    }
    Lines Hole(std::size_t end, const Lines &kinds, double part, bool alone) {
        Lines hole = ComponentsText::BlankHole();
        hole[2] = kinds[0];
        hole[5] = kinds[1];
        hole[6] = kinds[2];
        const double own = kinds[1] == "1" ? 1 - part : part;
        hole[0] = Place(end, own - 0.01, own + 0.01, alone);
        hole[1] = Length(2, 4);
        hole[4] = kinds[2] == "1" ? Length(2, 3) : "0";
        hole[3] = kinds[0] == "1" ? "0" : Length(0.5, 2);
        return hole;
    }

    void Slots(std::vector<Lines> ComponentsText::*slots, const std::string &name, int count) {
        const bool spars = name == "spar";
        const Lines blank = spars ? ComponentsText::BlankSpar() : ComponentsText::BlankHole();
        for (const std::size_t end : {0U, 1U}) {
            (End(end).*slots).clear();
        }
        for (int slot = 0; slot < count; ++slot) {
            const std::string element = name + std::to_string(slot + 1);
            const Ends ends =
                dice_.OneOf({Ends::both, Ends::both, Ends::both, Ends::root, Ends::tip});
            const std::string bottom = dice_.OneOf<std::string>({"0", "1", "2"});
            const Lines kinds =
                spars ? Lines{bottom == "0" ? "1" : dice_.OneOf<std::string>({"0", "1", "2"}),
                              bottom, dice_.OneOf<std::string>({"0", "1", "2", "3"}),
                              dice_.OneOf<std::string>({"0", "1"})}
                      : Lines{dice_.OneOf<std::string>({"0", "1"}),
                              dice_.OneOf<std::string>({"0", "1"}),
                              dice_.OneOf<std::string>({"0", "1"})};
            const double part = 0.17 * (slot + 1) - (spars ? 0 : 0.085);
            for (const std::size_t end : {0U, 1U}) {
                const bool stands = ends == Ends::both || (ends == Ends::root) == (end == 0);
                (End(end).*slots)
                    .push_back(!stands ? blank
                               : spars ? Spar(end, kinds, part + 0.03, ends != Ends::both)
                                       : Hole(end, kinds, part + 0.03, ends != Ends::both));
            }
            if (ends != Ends::both || dice_.OneIn(4)) {
                Range(element);
            }
        }
        for (const std::size_t end : {0U, 1U}) {
            if (count == 0 || dice_.OneIn(2)) { // else the last one is still being edited
                (End(end).*slots).push_back(blank);
            }
        }
    }

    void Label() {
        const int kind = dice_.Below(4);
        for (const std::size_t end : {0U, 1U}) {
            ComponentsText &file = End(end);
            if (kind == 1) {
                file.text = "?"; // the program's own, for whom the words are at hand
            } else if (kind > 1) {
                file.text = kind == 2 ? "Anna's wing" : "Wing: left";
            }
            if (kind != 0) {
                file.text_x = Length(40, 60);
                file.text_y = Length(1, 3);
            }
        }
    }
};

} // namespace

naive::PanelAsked PanelByChance(unsigned seed) {
    return Maker(seed).Panel(seed / 2 % 2 == 0);
}

} // namespace loftwing
