"""Tells what ezdxf finds in a DXF file, a fact a line: its name, a blank, its value.

    dxf_facts.py FILE
    dxf_facts.py --same-lines INTERCHANGE PLAIN
"""

import collections
import sys

import ezdxf
from ezdxf.addons import iterdxf


def say(name, value):
    print(name, value)


def points_of(entity):
    """The corners of the rectangle around a line or a circle."""
    if entity.dxftype() == "LINE":
        return [entity.dxf.start, entity.dxf.end]
    centre, radius = entity.dxf.center, entity.dxf.radius
    return [centre - (radius, radius), centre + (radius, radius)]


def say_extent(entities):
    points = [point for entity in entities for point in points_of(entity)]
    for axis in (0, 1):
        values = [point[axis] for point in points]
        say("xy"[axis] + "-low", min(values))
        say("xy"[axis] + "-high", max(values))


def say_header(header):
    for name in ("$ACADVER", "$INSUNITS", "$MEASUREMENT"):
        say(name, header.get(name, "none"))
    for name in ("$EXTMIN", "$EXTMAX"):
        for axis in (0, 1):
            say(name + "-" + "xy"[axis], header[name][axis])


def say_entities(space):
    for kind, count in collections.Counter(e.dxftype() for e in space).items():
        say(kind, count)
    for layer in sorted({e.dxf.layer for e in space}):
        say("used-layer", layer)
    for text in space.query("TEXT"):
        say("text", text.plain_text())
        say("text-layer", text.dxf.layer)
        say("text-x", text.dxf.insert.x)
        say("text-y", text.dxf.insert.y)
        say("text-height", text.dxf.height)


def say_single_pass(path):
    """Counts without a data base of handles, which are not unique in the interchange form."""
    counts = collections.Counter()
    with open(path, "rb") as stream:
        for entity in iterdxf.single_pass_modelspace(stream):
            counts[entity.dxftype()] += 1
            if entity.dxftype() == "POLYLINE":
                counts["VERTEX"] += len(entity.vertices)
    for kind, count in counts.items():
        say("single-pass-" + kind, count)


def say_facts(path):
    document = ezdxf.readfile(path)
    say_header(document.header)
    for layer in document.layers:
        say("layer", layer.dxf.name)
        say("linetype-of-" + layer.dxf.name, layer.dxf.linetype)
    for line_type in document.linetypes:
        say("linetype", line_type.dxf.name)
    space = document.modelspace()
    say_entities(space)
    flat = space.query("LINE CIRCLE")
    if len(space.query("LINE")):
        say_extent(flat)
        say_open_ends(space)
    say_single_pass(path)
    # Last, for an audit repairs what it finds.
    auditor = document.audit()
    say("errors", len(auditor.errors))
    say("fixes", len(auditor.fixes))


def rounded(point):
    return (round(point[0], 6), round(point[1], 6))


def segment(layer, start, end):
    return (layer,) + tuple(sorted((rounded(start), rounded(end))))


def segments_of_polylines(path):
    found = collections.Counter()
    with open(path, "rb") as stream:
        for line in iterdxf.single_pass_modelspace(stream):
            if line.dxftype() != "POLYLINE":
                continue
            points = [vertex.dxf.location for vertex in line.vertices]
            # The plain form makes notches and rectangular holes whole.
            if line.is_closed or line.dxf.layer in ("LONG", "TROU"):
                points.append(points[0])
            for start, end in zip(points, points[1:]):
                found[segment(line.dxf.layer, start, end)] += 1
    return found


def segments_of_lines(path):
    found = collections.Counter()
    for line in ezdxf.readfile(path).modelspace().query("LINE"):
        if line.dxf.layer != "STATIONS":
            found[segment(line.dxf.layer, line.dxf.start, line.dxf.end)] += 1
    return found


def say_open_ends(space):
    """Counts the ends of lines to be cut at which no other line goes on."""
    ends = collections.Counter()
    for line in space.query("LINE"):
        if line.dxf.layer in ("LONG", "TROU"):
            for point in (line.dxf.start, line.dxf.end):
                ends[rounded(point)] += 1
    say("cut-ends", len(ends))
    say("open-ends", sum(1 for count in ends.values() if count % 2))


def say_same_lines(interchange, plain):
    wanted, found = segments_of_polylines(interchange), segments_of_lines(plain)
    for counter in (wanted, found):
        for key in [key for key in counter if key[1] == key[2]]:
            del counter[key]  # a point is nothing to cut
    say("segments", sum(wanted.values()))
    say("missing", sum((wanted - found).values()))
    say("more", sum((found - wanted).values()))


if sys.argv[1] == "--same-lines":
    say_same_lines(sys.argv[2], sys.argv[3])
else:
    say_facts(sys.argv[1])
