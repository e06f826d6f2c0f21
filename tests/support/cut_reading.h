/// Reading files for a cutter back as naively as a cutter's program does.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace loftwing {

/// A record of a DXF file: its kind, and its values as they stand, by group code.
struct DxfRecord {
    std::string kind;
    std::map<int, std::string> values;

    std::string Value(int code) const;
    double Number(int code) const;
};

/// The records between the start and the end of the section of entities, in their order.
std::vector<DxfRecord> DxfEntities(const std::string &file);

struct ReadPoint {
    double x = 0;
    double y = 0;

    auto operator<=>(const ReadPoint &) const = default;
};
using ReadRing = std::vector<ReadPoint>;
struct ReadCircle {
    ReadPoint centre;
    double radius = 0;
};

/// What is cut, in the order of the file; a ring stands where its first line does.
struct ReadCut {
    std::vector<ReadRing> rings;
    std::vector<ReadCircle> circles;
    std::string problem; ///< what a cutter would stumble over; empty when all is well
};

/// Lines on CUT joined where their ends are written alike: two must meet there.
ReadCut JoinedLines(const std::string &dxf);
/// Closed polylines on CUT.
ReadCut Polylines(const std::string &dxf);
/// Subpaths in the group "cut", y turned up again.
ReadCut Subpaths(const std::string &svg);

/// The same ring starting with its lowest point, so that readings can be compared.
ReadRing FromLowest(const ReadRing &ring);
/// How far the corners of the rings, and the circles, of two readings are from each other; a large
/// number where they don't even have as many.
double Difference(const ReadCut &one, const ReadCut &other);

double AreaOf(const ReadRing &ring);

} // namespace loftwing
