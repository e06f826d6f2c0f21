/// Ribs that are stacked, and what stands on the sheets.
#pragma once

#include "output/drawing_stack.h"
#include "output/styles.h"
#include "support/rib_world.h"
#include "support/test_printer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace loftwing {

inline constexpr double kStackMm = 56.7; // device units

using StackOps = std::vector<Operation>;

/// A line in mm.
struct StackLine {
    double x1, y1, x2, y2;

    double Length() const { return std::hypot(x2 - x1, y2 - y1); }
};

inline std::vector<StackLine> StackLinesOf(const StackOps &sheet) {
    std::vector<StackLine> lines;
    for (const Operation &each : sheet) {
        if (const auto *line = std::get_if<DrawnSegment>(&each)) {
            lines.push_back({line->x1 / kStackMm, line->y1 / kStackMm, line->x2 / kStackMm,
                             line->y2 / kStackMm});
        }
    }
    return lines;
}

inline std::vector<std::string> StackTextsOf(const StackOps &sheet) {
    std::vector<std::string> texts;
    for (const Operation &each : sheet) {
        if (const auto *text = std::get_if<DrawnText>(&each)) {
            texts.push_back(text->text);
        }
    }
    return texts;
}

/// The box of an operation in mm: of a text with its line's height of 1.2 sizes.
inline Etendue StackBoxOf(const Operation &each) {
    Etendue box;
    if (const auto *line = std::get_if<DrawnSegment>(&each)) {
        box.Prend(line->x1 / kStackMm, line->y1 / kStackMm);
        box.Prend(line->x2 / kStackMm, line->y2 / kStackMm);
    } else if (const auto *circle = std::get_if<DrawnCircle>(&each)) {
        box.Prend((circle->x - circle->radius) / kStackMm, (circle->y - circle->radius) / kStackMm);
        box.Prend((circle->x + circle->radius) / kStackMm, (circle->y + circle->radius) / kStackMm);
    } else if (const auto *text = std::get_if<DrawnText>(&each)) {
        box.Prend(text->x / kStackMm, text->y / kStackMm);
        box.Prend((text->x + text->advance) / kStackMm,
                  (text->y + 24 * text->font.size) / kStackMm);
    }
    return box;
}

/// How far NACA 2412 reaches above and below its chord line, in parts of it.
struct StackReach {
    double above = 0;
    double below = 0;
};
inline StackReach ReachOf2412() {
    StackReach reach;
    for (const auto &[x, y] : Naca(2412, 2000)) {
        reach.above = std::max(reach.above, y);
        reach.below = std::max(reach.below, -y);
    }
    return reach;
}

/// Ribs of NACA 2412 stacked on A4, whose room is 272 x 190 mm.
class StackOfRibs : public testing::Test {
  protected:
    RibWorld &Add(double chord) {
        worlds.push_back(std::make_unique<RibWorld>());
        RibWorld &world = *worlds.back();
        TakeAirfoil(world, Naca(2412, 30));
        world.rib.NomProfil = "rib" + std::to_string(worlds.size());
        world.rib.corde = static_cast<float>(chord);
        world.rib.cordeAfich = std::to_string(static_cast<int>(chord));
        return world;
    }
    MiseEnPage &Page() { return First().settings.page; }
    RibWorld &First() { return *worlds.front(); }
    DemandePile Demand() {
        DemandePile demand{{},
                           First().settings,
                           First().messages,
                           "panel",
                           "2031-05-24",
                           regle,
                           {"line", "before", "after", "paper", "rows"}};
        for (const auto &world : worlds) {
            demand.nervures.push_back({world->rib});
        }
        return demand;
    }
    /// All sheets of the job.
    std::vector<StackOps> Print() {
        Pile pile(Demand());
        const auto end = pile.Prepare();
        EXPECT_FALSE(end.has_value());
        if (end) {
            return {};
        }
        question = pile.Question();
        feuilles = pile.Feuilles();
        EXPECT_EQ(pile.Imprime(printer), FinImpression::imprime);
        resume = pile.Resume();
        return printer.sheets;
    }
    /// The reference lines of a sheet, from the top.
    static std::vector<StackLine> References(const StackOps &sheet) {
        std::vector<StackLine> lines;
        for (const Operation &each : sheet) {
            const auto *line = std::get_if<DrawnSegment>(&each);
            if (line != nullptr && line->pen.colour == PaletteColour(12) && line->y1 == line->y2 &&
                std::abs(line->x2 - line->x1) > 20 * kStackMm) {
                lines.push_back({line->x1 / kStackMm, line->y1 / kStackMm, line->x2 / kStackMm,
                                 line->y2 / kStackMm});
            }
        }
        return lines;
    }
    /// How many lines of the sheet are the long or the short arm of a check line of that length.
    static std::ptrdiff_t Arms(const StackOps &sheet, double length) {
        const auto lines = StackLinesOf(sheet);
        return std::count_if(lines.begin(), lines.end(), [&](const StackLine &line) {
            const bool straight =
                std::abs(line.x1 - line.x2) < 1E-6 || std::abs(line.y1 - line.y2) < 1E-6;
            return straight && std::abs(line.Length() - length) < 1E-6;
        });
    }
    static bool HasCheckLine(const StackOps &sheet, double length) {
        return Arms(sheet, length) == 2 || Arms(sheet, length / 2) == 2;
    }
    static void ExpectWithin(const StackOps &sheet, const Etendue &room) {
        constexpr double kEdge = 0.1; // mm
        for (const Operation &each : sheet) {
            const Etendue box = StackBoxOf(each);
            EXPECT_GE(box.gauche, room.gauche - kEdge);
            EXPECT_LE(box.droite, room.droite + kEdge);
            EXPECT_GE(box.haut, room.haut - kEdge);
            EXPECT_LE(box.bas, room.bas + kEdge);
        }
    }
    /// A text without a hair's breadth around it: the lines of a note touch.
    static Etendue InnerBox(const Operation &text) {
        constexpr double kHair = 0.01;
        const Etendue box = StackBoxOf(text);
        return {box.gauche + kHair, box.haut + kHair, box.droite - kHair, box.bas - kHair};
    }
    /// No text stands on a line or on another text.
    static void ExpectReadable(const StackOps &sheet) {
        for (const Operation &text : sheet) {
            if (!std::holds_alternative<DrawnText>(text)) {
                continue;
            }
            for (const Operation &other : sheet) {
                EXPECT_TRUE(&text == &other || !InnerBox(text).Touche(StackBoxOf(other)))
                    << std::get<DrawnText>(text).text;
            }
        }
    }

    std::vector<std::unique_ptr<RibWorld>> worlds;
    std::function<bool()> regle = [] { return true; };
    TestPrinter printer;
    PrintQuestion question;
    Empilage feuilles;
    std::string resume;
    const Etendue room{10, 10, 282, 200};
};

} // namespace loftwing
