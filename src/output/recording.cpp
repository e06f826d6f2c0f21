#include "output/recording.h"

#include "output/rib_measures.h"

#include <algorithm>
#include <array>

namespace loftwing {

namespace {

/// Advance widths of the face in thousandths of its size, characters 32 to 126.
constexpr std::array<short, 95> kAdvance = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr short kOtherAdvance = 556;

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

void Include(Extent &extent, bool &first, double x, double y) {
    if (first) {
        extent = {x, y, x, y};
        first = false;
        return;
    }
    extent.left = std::min(extent.left, x);
    extent.right = std::max(extent.right, x);
    extent.top = std::min(extent.top, y);
    extent.bottom = std::max(extent.bottom, y);
}

} // namespace

double MeasuredAdvance(const std::string &text, const TextFont &font) {
    double thousandths = 0;
    for (const char byte : text) {
        if (IsContinuation(byte)) {
            continue;
        }
        const int index = static_cast<unsigned char>(byte) - 32;
        const bool known = index >= 0 && index < static_cast<int>(kAdvance.size());
        thousandths += known ? kAdvance[static_cast<std::size_t>(index)] : kOtherAdvance;
    }
    return thousandths / 1000.0 * font.size * kUnitsPerPoint;
}

void Recording::Clear() {
    operations_.clear();
    sujets_.clear();
    sujet = {};
    Font = TextFont{};
    ForeColor = 0;
    DrawWidth = 1;
    DrawStyle = 0;
    CurrentX = 0;
    CurrentY = 0;
}

Extent Recording::Bounds() const {
    Extent extent;
    bool first = true;
    for (const Operation &operation : operations_) {
        if (const auto *segment = std::get_if<DrawnSegment>(&operation)) {
            Include(extent, first, segment->x1, segment->y1);
            Include(extent, first, segment->x2, segment->y2);
        } else if (const auto *circle = std::get_if<DrawnCircle>(&operation)) {
            Include(extent, first, circle->x - circle->radius, circle->y - circle->radius);
            Include(extent, first, circle->x + circle->radius, circle->y + circle->radius);
        } else if (const auto *text = std::get_if<DrawnText>(&operation)) {
            Include(extent, first, text->x, text->y);
            Include(extent, first, text->x + text->advance,
                    text->y + kLigneDeTexte * text->font.size * kUnitsPerPoint);
        }
    }
    return extent;
}

void Recording::Add(const Operation &operation) {
    operations_.push_back(operation);
    sujets_.push_back(sujet);
}

void Recording::Segment(double x1, double y1, double x2, double y2, const Pen &pen) {
    Add(DrawnSegment{x1, y1, x2, y2, pen});
}

void Recording::CircleOutline(double x, double y, double radius, const Pen &pen) {
    Add(DrawnCircle{x, y, radius, pen});
}

double Recording::Text(double x, double y, const std::string &text, const TextFont &font,
                       Colour colour) {
    const double advance = measure_(text, font);
    Add(DrawnText{x, y, text, font, colour, advance});
    return advance;
}

namespace {

/// Puts operations on a device, each with its own pen or font.
struct Redrawing {
    PlotDevice &device;
    double dx, dy;

    void Take(const Pen &pen) const {
        device.DrawWidth = pen.width;
        device.DrawStyle = static_cast<int>(pen.style);
    }
    void operator()(const DrawnSegment &line) const {
        Take(line.pen);
        device.Line(line.x1 + dx, line.y1 + dy, line.x2 + dx, line.y2 + dy, line.pen.colour);
    }
    void operator()(const DrawnCircle &circle) const {
        Take(circle.pen);
        device.Circle(circle.x + dx, circle.y + dy, circle.radius, circle.pen.colour);
    }
    void operator()(const DrawnText &text) const {
        device.Font = text.font;
        device.ForeColor = text.colour;
        device.CurrentX = text.x + dx;
        device.CurrentY = text.y + dy;
        device.Print(text.text);
    }
};

} // namespace

void Redraw(const Recording &recording, PlotDevice &device, double dx, double dy) {
    for (const Operation &operation : recording.Operations()) {
        std::visit(Redrawing{device, dx, dy}, operation);
    }
}

} // namespace loftwing
