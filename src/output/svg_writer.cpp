#include "output/svg_writer.h"

#include "base/failure.h"
#include "base/text_encoding.h"
#include "output/line_look.h"
#include "output/rib_measures.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kMargin = 5.0;        // mm
constexpr double kLargest = 1'000'000; // mm

double Mm(double units) {
    return units / kUnitsPerMm;
}

/// Up to four decimals, without zeros at the end.
std::string Number(double mm) {
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), mm,
                                      std::chars_format::fixed, 4);
    std::string text(buffer.data(), result.ptr);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string Point(double x, double y) {
    return Number(Mm(x)) + " " + Number(Mm(y));
}

std::string Hex(Colour colour) {
    constexpr const char *kDigits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) {
        text += kDigits[(colour >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return text;
}

std::string Attribute(const std::string &name, const std::string &value) {
    return " " + name + "=\"" + value + "\"";
}

std::string Stroke(const Pen &pen) {
    const auto width = static_cast<std::size_t>(pen.width - 1);
    std::string text = Attribute("fill", "none") + Attribute("stroke", Hex(pen.colour)) +
                       Attribute("stroke-width", Number(kPenWidthsMm[width]));
    std::string dashes;
    for (const double mm : DashesMm(pen.style)) {
        dashes += (dashes.empty() ? "" : " ") + Number(mm);
    }
    return dashes.empty() ? text : text + Attribute("stroke-dasharray", dashes);
}

/// Text as XML takes it. Control characters have no place in it, and file names may hold bytes that
/// are no UTF-8.
std::string Escaped(const std::string &text) {
    std::string escaped;
    for (const char character : ToUtf8(text)) {
        switch (character) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        default:
            escaped += static_cast<unsigned char>(character) < 0x20U ? ' ' : character;
        }
    }
    return escaped;
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
        body_ += "<circle" + Attribute("cx", Number(Mm(circle.x))) +
                 Attribute("cy", Number(Mm(circle.y))) + Attribute("r", Number(Mm(circle.radius))) +
                 Stroke(circle.pen) + "/>\n";
    }
    void operator()(const DrawnText &text) {
        ClosePath();
        const double size = text.font.size * kUnitsPerPoint;
        body_ += "<text" + Attribute("x", Number(Mm(text.x))) +
                 Attribute("y", Number(Mm(text.y + kAscent * size))) +
                 Attribute("font-family", "Arial, Liberation Sans, Helvetica, sans-serif") +
                 Attribute("font-size", Number(Mm(size))) + Attribute("fill", Hex(text.colour)) +
                 Attribute("xml:space", "preserve") + ">" + Escaped(text.text) + "</text>\n";
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
           Attribute("width", Number(width) + "mm") + Attribute("height", Number(height) + "mm") +
           Attribute("viewBox", "0 0 " + Number(width) + " " + Number(height)) + ">\n<title>" +
           Escaped(title) + "</title>\n" + writer.Body() + "</svg>\n";
}

} // namespace loftwing
