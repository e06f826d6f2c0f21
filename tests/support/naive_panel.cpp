#include "support/naive_panel.h"

#include "support/naive_panel_set.h"
#include "support/naive_panel_text.h"

#include <cmath>
#include <numbers>

namespace loftwing::naive {

namespace {

using Lines = ComponentsText::Lines;

// Lines of a spar and of a hole, in a file's order.
constexpr std::size_t kPlace = 0, kSize = 1;
const std::vector<std::pair<std::size_t, std::string>> kSparLengths = {
    {1, "width"}, {2, "depth"}, {6, "distance"}};
const std::vector<std::pair<std::size_t, std::string>> kHoleLengths = {
    {1, "width"}, {3, "height over line"}, {4, "height"}};

const std::vector<std::pair<std::string, std::string ComponentsText::*>> kLengths = {
    {"text x", &ComponentsText::text_x},       {"text y", &ComponentsText::text_y},
    {"sheeting", &ComponentsText::sheeting},   {"edge", &ComponentsText::edge},
    {"notch", &ComponentsText::notch},         {"notch x", &ComponentsText::notch_x},
    {"notch y", &ComponentsText::notch_y},     {"cut", &ComponentsText::cut},
    {"trailing", &ComponentsText::trailing},   {"below", &ComponentsText::below},
    {"total", &ComponentsText::total},         {"ramp", &ComponentsText::ramp},
    {"tail ramp", &ComponentsText::tail_ramp}, {"intra", &ComponentsText::intra}};

std::string LabelOf(const PanelWords &words, const ComponentsText &file) {
    const std::string name = file.airfoil.substr(0, file.airfoil.size() - 4);
    const auto turn = static_cast<float>(PanelNumber(file.washout));
    const std::string turned = words.label_turn + " " + SevenDigits(turn) + "° ";
    return name + " " + (file.kind != "0" && turn != 0 ? turned : "") + words.label_chord + " : " +
           file.chord;
}

class Panel {
  public:
    explicit Panel(const PanelAsked &asked) : asked_(asked), set_(MakeSet(asked)) {}

    std::vector<PanelRib> Ribs() {
        std::vector<PanelRib> ribs;
        for (int number = 1; number <= Count(); ++number) {
            ribs.push_back(Rib(number));
        }
        return ribs;
    }

  private:
    const PanelAsked &asked_;
    PanelSet set_;

    int Count() const { return static_cast<int>(set_.ribs.size()); }
    double Mm(const std::string &text) const { return PanelLength(text, asked_.inches); }
    double EndChord(std::size_t end) const {
        return static_cast<double>(static_cast<float>(Mm(asked_.ends[end].chord)));
    }
    /// Millimetres from its own edge.
    double Place(const std::string &text, std::size_t end) const {
        if (!text.empty() && text.back() == '%') {
            return PanelNumber(text.substr(0, text.size() - 1)) * EndChord(end) / 100;
        }
        return Mm(text);
    }
    bool InRange(const std::string &element, int number) const {
        const auto range = asked_.ranges.find(element);
        return range == asked_.ranges.end() ||
               (number >= range->second.first && number <= range->second.second);
    }
    static double Between(double root, double tip, double ratio) {
        return root + (tip - root) * ratio;
    }

    PanelRib Rib(int number) const {
        PanelRib rib;
        const SetRib &made = set_.ribs[static_cast<std::size_t>(number) - 1];
        rib.ratio = made.ratio;
        rib.distance = made.distance;
        rib.name = made.name;
        rib.airfoil = made.bytes;
        rib.file = asked_.ends[number == Count() ? 1 : 0];
        rib.file.airfoil = rib.name + ".dat";
        const bool middle = number > 1 && number < Count();
        if (middle) {
            rib.file.chord = made.chord;
        }
        rib.chord = static_cast<double>(static_cast<float>(Mm(rib.file.chord)));
        if (middle) {
            Middle(rib);
        } else {
            for (const auto &[key, field] : kLengths) {
                rib.mm[key] = Mm(rib.file.*field);
            }
        }
        Slots(rib, number, "spar", &ComponentsText::spars, ComponentsText::BlankSpar(),
              kSparLengths, rib.spars);
        Slots(rib, number, "hole", &ComponentsText::holes, ComponentsText::BlankHole(),
              kHoleLengths, rib.holes);
        Ranges(rib, number);
        Label(rib, number == Count() ? 1 : 0);
        return rib;
    }

    void Middle(PanelRib &rib) const {
        const auto &[root, tip] = asked_.ends;
        for (const auto &[key, field] : kLengths) {
            const double mm = Between(Mm(root.*field), Mm(tip.*field), rib.ratio);
            rib.file.*field = Blended(mm, asked_.inches);
            rib.mm[key] = mm;
        }
        for (const auto field : {&ComponentsText::heel_front, &ComponentsText::heel_back}) {
            rib.file.*field = Blended(
                Between(Place(root.*field, 0), Place(tip.*field, 1), rib.ratio), asked_.inches);
        }
        const std::size_t mark = root.extra.find('#') + 1;
        rib.file.extra = root.extra.substr(0, mark) +
                         Blended(Between(Mm(root.extra.substr(mark)),
                                         Mm(tip.extra.substr(tip.extra.find('#') + 1)), rib.ratio),
                                 asked_.inches);
        const auto drop = [&](std::size_t end) {
            const auto turn = static_cast<float>(PanelNumber(asked_.ends[end].washout));
            return EndChord(end) * std::sin(static_cast<double>(turn) * std::numbers::pi / 180);
        };
        const double sine = Between(drop(0), drop(1), rib.ratio) / rib.chord;
        rib.file.washout = Shortest(static_cast<float>(std::asin(sine) * 180 / std::numbers::pi));
    }

    bool Stands(const std::vector<Lines> &slots, std::size_t slot, std::size_t end) const {
        return slot < slots.size() && Place(slots[slot][kPlace], end) != 0 &&
               Mm(slots[slot][kSize]) > 0;
    }

    void Slots(PanelRib &rib, int number, const std::string &kind,
               std::vector<Lines> ComponentsText::*slots, const Lines &blank,
               const std::vector<std::pair<std::size_t, std::string>> &lengths,
               std::vector<int> &standing) const {
        const std::vector<Lines> &root = asked_.ends[0].*slots;
        const std::vector<Lines> &tip = asked_.ends[1].*slots;
        std::vector<Lines> found;
        for (std::size_t slot = 0; slot < 12; ++slot) {
            const bool at_root = Stands(root, slot, 0);
            const bool at_tip = Stands(tip, slot, 1);
            if ((!at_root && !at_tip) || !InRange(kind + std::to_string(slot + 1), number)) {
                continue;
            }
            Lines lines = at_root ? root[slot] : tip[slot];
            if (at_root && at_tip && number == Count()) {
                lines = tip[slot];
            }
            const std::string key = kind + std::to_string(found.size() + 1) + " ";
            const bool blended = at_root && at_tip && number > 1 && number < Count();
            if (blended) {
                lines[kPlace] = Blended(
                    Between(Place(root[slot][kPlace], 0), Place(tip[slot][kPlace], 1), rib.ratio),
                    asked_.inches);
            }
            for (const auto &[line, word] : lengths) {
                rib.mm[key + word] = Mm(lines[line]);
                if (blended) {
                    rib.mm[key + word] =
                        Between(Mm(root[slot][line]), Mm(tip[slot][line]), rib.ratio);
                    lines[line] = Blended(rib.mm[key + word], asked_.inches);
                }
            }
            found.push_back(lines);
            standing.push_back(static_cast<int>(slot) + 1);
        }
        if (found.size() < 12) {
            found.push_back(blank); // the slot being edited, whose spare line nobody has read yet
            found.back().back().clear();
        }
        rib.file.*slots = found;
    }

    /// What stands in some ribs only, and what one end has alone.
    void Ranges(PanelRib &rib, int number) const {
        const auto has = [&](const std::string &element, std::size_t end) {
            const ComponentsText &file = asked_.ends[end];
            return element == "le"   ? file.stock == "1" && Mm(file.edge) > 0
                   : element == "te" ? Mm(file.trailing) > 0
                                     : file.stock != "1" && Mm(file.notch) > 0;
        };
        const auto follow =
            [&](const std::string &element,
                const std::vector<std::pair<std::string, std::string ComponentsText::*>> &fields) {
                if (!asked_.ranges.contains(element)) {
                    return;
                }
                const bool away = !InRange(element, number);
                const bool alone = has(element, 0) != has(element, 1);
                for (const auto &[key, field] : fields) {
                    if (away) {
                        rib.file.*field = "0";
                    } else if (alone) {
                        rib.file.*field = asked_.ends[has(element, 0) ? 0 : 1].*field;
                    }
                    if (away || alone) {
                        rib.mm[key] = Mm(rib.file.*field);
                    }
                }
            };
        follow("le", {{"edge", &ComponentsText::edge}});
        follow("te", {{"trailing", &ComponentsText::trailing}});
        follow("notch", {{"notch", &ComponentsText::notch},
                         {"notch x", &ComponentsText::notch_x},
                         {"notch y", &ComponentsText::notch_y}});
        if (!InRange("heel", number)) {
            rib.file.kind = "0";
        }
    }

    /// A text that the program made names another airfoil, chord and angle; the user's stays.
    void Label(PanelRib &rib, std::size_t end) const {
        if (asked_.ends[end].text == PanelLabel(asked_, end)) {
            rib.file.text = LabelOf(asked_.words, rib.file);
        }
    }
};

} // namespace

std::string PanelLabel(const PanelAsked &asked, std::size_t end) {
    return LabelOf(asked.words, asked.ends[end]);
}

std::vector<PanelRib> MakePanel(const PanelAsked &asked) {
    return Panel(asked).Ribs();
}

} // namespace loftwing::naive
