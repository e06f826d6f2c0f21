#include "output/svg_writer.h"

#include "base/failure.h"
#include "base/number_text.h"
#include "output/rib_measures.h"
#include "output/svg_text.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kMargin = 5.0; // mm

double Mm(double units) {
    return units / kUnitsPerMm;
}

constexpr int kDecimals = 4;

std::string Number(double mm) {
    return SvgNumber(mm, kDecimals);
}

class SvgWriter {
  public:
    explicit SvgWriter(std::size_t operations) {
        constexpr std::size_t kBytesEach = 24; // of a segment that goes on, as nearly all do
        body_.reserve(operations * kBytesEach);
    }
    void operator()(const DrawnSegment &segment) {
        const bool goes_on =
            open_ && segment.pen == last_.pen && segment.x1 == last_.x2 && segment.y1 == last_.y2;
        if (!goes_on) {
            ClosePath();
            body_ += "<path d=\"M ";
            Point(segment.x1, segment.y1);
            open_ = true;
        }
        body_ += " L ";
        Point(segment.x2, segment.y2);
        last_ = segment;
    }
    void operator()(const DrawnCircle &circle) {
        ClosePath();
        body_ += "<circle" + SvgAttribute("cx", Number(Mm(circle.x))) +
                 SvgAttribute("cy", Number(Mm(circle.y))) +
                 SvgAttribute("r", Number(Mm(circle.radius))) + SvgStroke(circle.pen) + "/>\n";
    }
    void operator()(const DrawnText &text) {
        ClosePath();
        const double size = text.font.size * kUnitsPerPoint;
        body_ += SvgTexte({Number(Mm(text.x)), Number(Mm(text.y + kAscent * size)),
                           Number(Mm(size)), text.colour, text.text});
    }
    const std::string &Body() {
        ClosePath();
        return body_;
    }

  private:
    std::string body_;
    DrawnSegment last_{};
    bool open_ = false;

    void Point(double x, double y) {
        AppendFixed(body_, Mm(x), kDecimals);
        body_ += ' ';
        AppendFixed(body_, Mm(y), kDecimals);
    }
    void ClosePath() {
        if (open_) {
            body_ += "\"" + SvgStroke(last_.pen) + "/>\n";
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
    if (farthest > kSvgMaxi) {
        throw MakeFailure(kOverflow);
    }
    SvgWriter writer(drawing.Operations().size());
    for (const Operation &operation : drawing.Operations()) {
        std::visit(writer, operation);
    }
    return SvgFichier({"0 0", Number(width), Number(height), title}, writer.Body());
}

} // namespace loftwing
