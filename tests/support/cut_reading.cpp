#include "support/cut_reading.h"

#include "base/text_encoding.h"

#include <algorithm>
#include <cmath>
#include <locale>
#include <sstream>

namespace loftwing {

namespace {

double NumberOf(const std::string &text) {
    std::istringstream words(text);
    words.imbue(std::locale::classic());
    double value = 0;
    words >> value;
    return words ? value : std::nan("");
}

using WrittenPoint = std::pair<std::string, std::string>;
struct WrittenLine {
    WrittenPoint from;
    WrittenPoint to;
    bool used = false;
};

ReadPoint PointOf(const WrittenPoint &point) {
    return {NumberOf(point.first), NumberOf(point.second)};
}

/// Follows the lines from `start` on, at each end by the only one that goes on there.
ReadRing RingFrom(std::vector<WrittenLine> &lines, std::size_t start, std::string &problem) {
    ReadRing ring;
    WrittenLine *line = &lines[start];
    const WrittenPoint first = line->from;
    WrittenPoint at = first;
    while (true) {
        line->used = true;
        ring.push_back(PointOf(at));
        at = at == line->from ? line->to : line->from;
        if (at == first) {
            return ring;
        }
        line = nullptr;
        for (WrittenLine &each : lines) {
            if (!each.used && (each.from == at || each.to == at)) {
                line = &each;
                break;
            }
        }
        if (line == nullptr) {
            problem = "open at " + at.first + " " + at.second;
            return ring;
        }
    }
}

ReadCircle CircleOf(const DxfRecord &record) {
    return {{record.Number(10), record.Number(20)}, record.Number(40)};
}

double Far(const ReadPoint &one, const ReadPoint &other) {
    return std::hypot(one.x - other.x, one.y - other.y);
}

} // namespace

std::string DxfRecord::Value(int code) const {
    const auto found = values.find(code);
    return found == values.end() ? std::string() : found->second;
}

double DxfRecord::Number(int code) const {
    return NumberOf(Value(code));
}

std::vector<DxfRecord> DxfEntities(const std::string &file) {
    const std::vector<std::string> lines = SplitLines(file);
    std::vector<DxfRecord> records;
    bool inside = false;
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
        const int code = std::stoi(lines[i]);
        const std::string &value = lines[i + 1];
        if (code == 2 && value == "ENTITIES") {
            inside = true;
        } else if (inside && code == 0 && value == "ENDSEC") {
            break;
        } else if (inside && code == 0) {
            records.push_back({value, {}});
        } else if (inside) {
            records.back().values[code] = value;
        }
    }
    return records;
}

ReadCut JoinedLines(const std::string &dxf) {
    ReadCut cut;
    std::vector<WrittenLine> lines;
    std::map<WrittenPoint, int> ends;
    for (const DxfRecord &record : DxfEntities(dxf)) {
        if (record.Value(8) != "CUT") {
            continue;
        }
        if (record.kind == "CIRCLE") {
            cut.circles.push_back(CircleOf(record));
        } else if (record.kind == "LINE") {
            lines.push_back(
                {{record.Value(10), record.Value(20)}, {record.Value(11), record.Value(21)}});
            if (lines.back().from == lines.back().to) {
                cut.problem = "a line without length";
            }
            ++ends[lines.back().from];
            ++ends[lines.back().to];
        } else {
            cut.problem = "a " + record.kind;
        }
    }
    for (const auto &[point, count] : ends) {
        if (count != 2) {
            cut.problem = std::to_string(count) + " ends at " + point.first + " " + point.second;
        }
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!lines[i].used) {
            cut.rings.push_back(RingFrom(lines, i, cut.problem));
        }
    }
    return cut;
}

ReadCut Polylines(const std::string &dxf) {
    ReadCut cut;
    bool open = false;
    for (const DxfRecord &record : DxfEntities(dxf)) {
        if (record.Value(8) != "CUT") {
            continue;
        }
        if (record.kind == "CIRCLE") {
            cut.circles.push_back(CircleOf(record));
        } else if (record.kind == "POLYLINE") {
            cut.problem = record.Value(66) == "1" && record.Value(70) == "1" && !open
                              ? cut.problem
                              : "a polyline that isn't closed";
            cut.rings.emplace_back();
            open = true;
        } else if (record.kind == "VERTEX" && open) {
            cut.rings.back().push_back({record.Number(10), record.Number(20)});
        } else if (record.kind == "SEQEND" && open) {
            open = false;
        } else {
            cut.problem = "a " + record.kind;
        }
    }
    return cut;
}

ReadCut Subpaths(const std::string &svg) {
    ReadCut cut;
    const std::string attribute = " d=\"";
    std::size_t at = svg.find("<g id=\"cut\">");
    while ((at = svg.find(attribute, at)) != std::string::npos) {
        at += attribute.size();
        std::istringstream words(svg.substr(at, svg.find('"', at) - at));
        words.imbue(std::locale::classic());
        std::string command;
        std::vector<ReadPoint> points;
        double radius = 0;
        while (words >> command) {
            ReadPoint point;
            if (command == "Z" && radius > 0) {
                // Half-way between the ends of its two arcs.
                cut.circles.push_back({{(points[0].x + points[1].x) / 2, points[0].y}, radius});
                cut.problem =
                    points.size() == 3 && points[0] == points[2] ? cut.problem : "no whole circle";
                points.clear();
                radius = 0;
            } else if (command == "Z") {
                cut.rings.push_back(std::exchange(points, {}));
            } else if (command == "A") {
                double other = 0;
                int turn = 0;
                int large = 0;
                int sweep = 0;
                words >> radius >> other >> turn >> large >> sweep >> point.x >> point.y;
                points.push_back({point.x, -point.y});
            } else if (command == "M" || command == "L") {
                words >> point.x >> point.y;
                cut.problem = (command == "M") == points.empty() ? cut.problem : "an open subpath";
                points.push_back({point.x, -point.y});
            } else {
                cut.problem = "command " + command;
            }
        }
        if (!points.empty()) {
            cut.problem = "an open subpath";
        }
    }
    return cut;
}

ReadRing FromLowest(const ReadRing &ring) {
    ReadRing turned = ring;
    std::rotate(turned.begin(), std::min_element(turned.begin(), turned.end()), turned.end());
    return turned;
}

double Difference(const ReadCut &one, const ReadCut &other) {
    constexpr double kMuch = 1e9;
    if (one.rings.size() != other.rings.size() || one.circles.size() != other.circles.size()) {
        return kMuch;
    }
    double most = 0;
    for (std::size_t i = 0; i < one.rings.size(); ++i) {
        const ReadRing first = FromLowest(one.rings[i]);
        const ReadRing second = FromLowest(other.rings[i]);
        if (first.size() != second.size()) {
            return kMuch;
        }
        for (std::size_t k = 0; k < first.size(); ++k) {
            most = std::max(most, Far(first[k], second[k]));
        }
    }
    for (std::size_t i = 0; i < one.circles.size(); ++i) {
        most = std::max({most, Far(one.circles[i].centre, other.circles[i].centre),
                         std::abs(one.circles[i].radius - other.circles[i].radius)});
    }
    return most;
}

double AreaOf(const ReadRing &ring) {
    double twice = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const ReadPoint &next = ring[(i + 1) % ring.size()];
        twice += ring[i].x * next.y - next.x * ring[i].y;
    }
    return twice / 2;
}

} // namespace loftwing
