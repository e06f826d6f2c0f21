/// Sheets of a building plan read back from a printer.
#pragma once

#include "output/plan_fixture.h"
#include "support/test_printer.h"

#include <cmath>
#include <regex>

namespace loftwing {

/// A line in mm: on its sheet, y down, or in its plan, y up.
struct PlanLine {
    PointMm from, to;
    Pen pen;

    double Length() const { return std::hypot(to.x - from.x, to.y - from.y); }
};

struct PlanSheet {
    std::vector<PlanLine> lines;
    std::vector<DrawnText> texts;

    std::string label; ///< "2/12 B1"
    int column = -1;   ///< from 0
    int row = -1;

    std::vector<PlanLine> OfColour(Colour colour) const {
        std::vector<PlanLine> found;
        for (const PlanLine &line : lines) {
            if (line.pen.colour == colour) {
                found.push_back(line);
            }
        }
        return found;
    }
    bool Says(const std::string &words) const {
        return std::any_of(texts.begin(), texts.end(),
                           [&](const DrawnText &text) { return text.text == words; });
    }
};

inline PlanSheet ReadPlanSheet(const std::vector<Operation> &operations) {
    constexpr double kUnits = 56.7;
    static const std::regex kLabel("\\d+/\\d+ ([A-Z])(\\d+)");
    PlanSheet sheet;
    for (const Operation &each : operations) {
        if (const auto *line = std::get_if<DrawnSegment>(&each)) {
            sheet.lines.push_back({{line->x1 / kUnits, line->y1 / kUnits},
                                   {line->x2 / kUnits, line->y2 / kUnits},
                                   line->pen});
        } else if (const auto *text = std::get_if<DrawnText>(&each)) {
            sheet.texts.push_back(*text);
            std::smatch match;
            if (std::regex_match(text->text, match, kLabel)) {
                sheet.label = text->text;
                sheet.column = match[1].str()[0] - 'A';
                sheet.row = std::stoi(match[2]) - 1;
            }
        }
    }
    return sheet;
}

inline std::vector<PlanSheet> ReadPlanSheets(const TestPrinter &printer) {
    std::vector<PlanSheet> sheets;
    for (const auto &operations : printer.sheets) {
        sheets.push_back(ReadPlanSheet(operations));
    }
    return sheets;
}

/// How far a point is from a line's nearest one.
inline double DistanceTo(const PlanLine &line, const PointMm &point) {
    const double dx = line.to.x - line.from.x;
    const double dy = line.to.y - line.from.y;
    const double along = (point.x - line.from.x) * dx + (point.y - line.from.y) * dy;
    const double share = std::clamp(along / (dx * dx + dy * dy), 0.0, 1.0);
    return std::hypot(line.from.x + share * dx - point.x, line.from.y + share * dy - point.y);
}

} // namespace loftwing
