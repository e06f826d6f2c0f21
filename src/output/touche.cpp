#include "output/touche.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>

namespace loftwing {

namespace {

constexpr int kBroadest = 3;

struct Rectangle {
    double left, top, right, bottom;

    bool Holds(const LieuTrace &place) const {
        return place.x >= left && place.x <= right && place.y >= top && place.y <= bottom;
    }
    double Area() const { return (right - left) * (bottom - top); }
    void Include(const Rectangle &other) {
        left = std::min(left, other.left);
        top = std::min(top, other.top);
        right = std::max(right, other.right);
        bottom = std::max(bottom, other.bottom);
    }
};

Rectangle Around(const DrawnSegment &line) {
    return {std::min(line.x1, line.x2), std::min(line.y1, line.y2), std::max(line.x1, line.x2),
            std::max(line.y1, line.y2)};
}

Rectangle Around(const DrawnCircle &circle) {
    return {circle.x - circle.radius, circle.y - circle.radius, circle.x + circle.radius,
            circle.y + circle.radius};
}

Rectangle Around(const DrawnText &text) {
    return {text.x, text.y, text.x + text.advance, text.y + text.font.size * kUnitsPerPoint};
}

double Distance(const DrawnSegment &line, const LieuTrace &place) {
    const double dx = line.x2 - line.x1;
    const double dy = line.y2 - line.y1;
    const double square = dx * dx + dy * dy;
    const double along = (place.x - line.x1) * dx + (place.y - line.y1) * dy;
    const double part = square > 0 ? std::clamp(along / square, 0.0, 1.0) : 0.0;
    return std::hypot(place.x - line.x1 - part * dx, place.y - line.y1 - part * dy);
}

double Distance(const DrawnCircle &circle, const LieuTrace &place) {
    return std::abs(std::hypot(place.x - circle.x, place.y - circle.y) - circle.radius);
}

double Distance(const DrawnText &text, const LieuTrace &place) {
    return Around(text).Holds(place) ? 0 : std::numeric_limits<double>::infinity();
}

/// Whether the inside of a part is as good as its lines.
bool SePrendDedans(GenreSujet genre) {
    return genre == GenreSujet::trou || genre == GenreSujet::longeron || genre == GenreSujet::texte;
}

/// Runs `action(operation, subject)` over what belongs to a part of the rib.
template <class Action>
void ForEach(const Recording &drawing, const Action &action) {
    for (std::size_t i = 0; i < drawing.Operations().size(); ++i) {
        if (const SujetTrace &sujet = drawing.Sujets()[i]) {
            std::visit([&](const auto &operation) { action(operation, sujet); },
                       drawing.Operations()[i]);
        }
    }
}

SujetTrace SujetAutour(const Recording &drawing, const LieuTrace &place) {
    std::map<std::pair<GenreSujet, int>, Rectangle> boxes;
    ForEach(drawing, [&](const auto &operation, const SujetTrace &sujet) {
        if (SePrendDedans(sujet.genre)) {
            const Rectangle box = Around(operation);
            boxes.try_emplace({sujet.genre, sujet.slot}, box).first->second.Include(box);
        }
    });
    SujetTrace found;
    double least = std::numeric_limits<double>::infinity();
    for (const auto &[which, box] : boxes) {
        if (box.Holds(place) && box.Area() < least) {
            least = box.Area();
            found = {which.first, which.second};
        }
    }
    return found;
}

struct Ends {
    std::vector<LieuTrace> operator()(const DrawnSegment &line) const {
        return {{line.x1, line.y1}, {line.x2, line.y2}};
    }
    std::vector<LieuTrace> operator()(const DrawnCircle &circle) const {
        return {{circle.x, circle.y}};
    }
    std::vector<LieuTrace> operator()(const DrawnText &) const { return {}; }
};

} // namespace

SujetTrace SujetAu(const Recording &drawing, const LieuTrace &place, double reach) {
    SujetTrace found;
    double least = reach;
    ForEach(drawing, [&](const auto &operation, const SujetTrace &sujet) {
        const double distance = Distance(operation, place);
        if (distance <= least) {
            least = distance;
            found = sujet;
        }
    });
    return found ? found : SujetAutour(drawing, place);
}

std::optional<LieuTrace> Accroche(const Recording &drawing, const LieuTrace &place, double reach) {
    std::optional<LieuTrace> found;
    double least = reach;
    for (const Operation &operation : drawing.Operations()) {
        for (const LieuTrace &end : std::visit(Ends(), operation)) {
            const double distance = std::hypot(end.x - place.x, end.y - place.y);
            if (distance <= least) {
                least = distance;
                found = end;
            }
        }
    }
    return found;
}

std::unique_ptr<Recording> Souligne(const Recording &drawing, const SujetTrace &sujet,
                                    Colour colour) {
    auto lines = std::make_unique<Recording>();
    lines->DrawWidth = kBroadest;
    for (std::size_t i = 0; i < drawing.Operations().size(); ++i) {
        const Operation &operation = drawing.Operations()[i];
        if (drawing.Sujets()[i] != sujet) {
            continue;
        }
        if (const auto *line = std::get_if<DrawnSegment>(&operation)) {
            lines->Line(line->x1, line->y1, line->x2, line->y2, colour);
        } else if (const auto *circle = std::get_if<DrawnCircle>(&operation)) {
            lines->Circle(circle->x, circle->y, circle->radius, colour);
        } else if (const auto *text = std::get_if<DrawnText>(&operation)) {
            const Rectangle box = Around(*text);
            lines->Line(box.left, box.bottom, box.right, box.bottom, colour);
        }
    }
    return lines;
}

} // namespace loftwing
