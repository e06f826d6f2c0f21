#include "output/svg_writer.h"

#include "base/failure.h"
#include "output/line_look.h"
#include "output/rib_measures.h"
#include "output/svg_text.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kMargin = 5.0;        // mm
constexpr double kLargest = 1'000'000; // mm

double Mm(double units) {
    return units / kUnitsPerMm;
}

constexpr int kDecimals = 4;

std::string Number(double mm) {
    return SvgNumber(mm, kDecimals);
}

std::string Point(double x, double y) {
    return Number(Mm(x)) + " " + Number(Mm(y));
}

std::string Stroke(const Pen &pen) {
    const auto width = static_cast<std::size_t>(pen.width - 1);
    std::string text = SvgAttribute("fill", "none") +
                       SvgAttribute("stroke", SvgColour(pen.colour)) +
                       SvgAttribute("stroke-width", Number(kPenWidthsMm[width]));
    std::string dashes;
    for (const double mm : DashesMm(pen.style)) {
        dashes += (dashes.empty() ? "" : " ") + Number(mm);
    }
    return dashes.empty() ? text : text + SvgAttribute("stroke-dasharray", dashes);
}

class SvgWriter {
  public:
    void operator()(const DrawnSegment &segment) {
        const bool goes_on =
            open_ && segment.pen == last_.pen && segment.x1 == last_.x2 && segment.y1 == last_.y2;
        if (!goes_on) {
            ClosePath();
            body_ += "<path d=\"M " + Point(segment.x1, segment.y1);
            open_ = true;
        }
        body_ += " L " + Point(segment.x2, segment.y2);
        last_ = segment;
    }
    void operator()(const DrawnCircle &circle) {
        ClosePath();
        body_ += "<circle" + SvgAttribute("cx", Number(Mm(circle.x))) +
                 SvgAttribute("cy", Number(Mm(circle.y))) +
                 SvgAttribute("r", Number(Mm(circle.radius))) + Stroke(circle.pen) + "/>\n";
    }
    void operator()(const DrawnText &text) {
        ClosePath();
        const double size = text.font.size * kUnitsPerPoint;
        body_ += "<text" + SvgAttribute("x", Number(Mm(text.x))) +
                 SvgAttribute("y", Number(Mm(text.y + kAscent * size))) +
                 SvgAttribute("font-family", kSvgFaces) +
                 SvgAttribute("font-size", Number(Mm(size))) +
                 SvgAttribute("fill", SvgColour(text.colour)) +
                 SvgAttribute("xml:space", "preserve") + ">" + SvgText(text.text) + "</text>\n";
    }
    std::string Body() {
        ClosePath();
        return body_;
    }

  private:
    std::string body_;
    DrawnSegment last_{};
    bool open_ = false;

    void ClosePath() {
        if (open_) {
            body_ += "\"" + Stroke(last_.pen) + "/>\n";
            open_ = false;
        }
    }
};

} // namespace

std::string WriteSvg(const Recording &drawing, const std::string &title) {
    const Extent extent = drawing.Bounds();
    const double width = std::max(0.0, Mm(extent.right)) + kMargin;
    const double height = std::max(0.0, Mm(extent.bottom)) + kMargin;
    const double farthest =
        std::max({width, height, std::abs(Mm(extent.left)), std::abs(Mm(extent.top))});
    if (farthest > kLargest) {
        throw MakeFailure(kOverflow);
    }
    SvgWriter writer;
    for (const Operation &operation : drawing.Operations()) {
        std::visit(writer, operation);
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
           SvgAttribute("width", Number(width) + "mm") +
           SvgAttribute("height", Number(height) + "mm") +
           SvgAttribute("viewBox", "0 0 " + Number(width) + " " + Number(height)) + ">\n<title>" +
           SvgText(title) + "</title>\n" + writer.Body() + "</svg>\n";
}

} // namespace loftwing
