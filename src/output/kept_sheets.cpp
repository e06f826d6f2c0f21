#include "output/kept_sheets.h"

namespace loftwing {

PlotDevice &KeptSheets::Last(const Pen &pen) {
    Recording &last = sheets.back();
    last.DrawWidth = pen.width;
    last.DrawStyle = static_cast<int>(pen.style);
    return last;
}

void KeptSheets::Segment(double x1, double y1, double x2, double y2, const Pen &pen) {
    Last(pen).Line(x1, y1, x2, y2, pen.colour);
}

void KeptSheets::CircleOutline(double x, double y, double radius, const Pen &pen) {
    Last(pen).Circle(x, y, radius, pen.colour);
}

double KeptSheets::Text(double x, double y, const std::string &text, const TextFont &font,
                        Colour colour) {
    Recording &last = sheets.back();
    last.Font = font;
    last.ForeColor = colour;
    last.CurrentX = x;
    last.CurrentY = y;
    last.Print(text);
    return last.CurrentX - x;
}

void KeptSheets::SendTo(Printer &printer) const {
    for (const Recording &sheet : sheets) {
        if (&sheet != &sheets.front()) {
            printer.NewPage();
        }
        Redraw(sheet, printer);
    }
}

} // namespace loftwing
