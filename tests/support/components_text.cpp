#include "support/components_text.h"

namespace loftwing {

namespace {

using Lines = ComponentsText::Lines;

Lines &operator+=(Lines &lines, const Lines &more) {
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

std::string LastIndex(const std::vector<Lines> &records) {
    return " " + std::to_string(records.size() - 1) + " ";
}

/// The records' first `count` lines each.
Lines FirstOf(const std::vector<Lines> &records, std::ptrdiff_t count) {
    Lines lines;
    for (const Lines &record : records) {
        lines += Lines(record.begin(), record.begin() + count);
    }
    return lines;
}

} // namespace

Lines ComponentsText::CurrentLines() const {
    Lines lines = {"LFW V3.0 -02 Caution don't delete this file !!",
                   airfoil,
                   airfoil.substr(0, airfoil.size() - 4),
                   text,
                   text_x,
                   text_y,
                   chord,
                   sheeting,
                   edge,
                   notch,
                   notch_x,
                   notch_y,
                   cut,
                   " " + stock + " ",
                   " " + inverted + " ",
                   "",
                   "Spars",
                   LastIndex(spars)};
    lines += FirstOf(spars, 9);
    lines += {"Holes", LastIndex(holes)};
    lines += FirstOf(holes, 8);
    lines += {heel_front, heel_back,
              trailing,   stations,
              washout,    below,
              total,      ramp,
              tail_ramp,  kind,
              tail,       intra,
              extra,      "End of File V 3.0.02 modif 02/10/2002"};
    return lines;
}

Lines ComponentsText::OlderLines() const {
    Lines lines = {"LFW V2",
                   airfoil,
                   airfoil.substr(0, airfoil.size() - 4),
                   text + "§X" + text_x + "§Y" + text_y,
                   chord,
                   sheeting,
                   edge,
                   notch,
                   notch_x,
                   notch_y,
                   cut,
                   stock == "1" ? "True" : "False",
                   LastIndex(spars)};
    lines += FirstOf(spars, 6);
    lines += {LastIndex(holes)};
    lines += FirstOf(holes, 4);
    lines += {trailing, stations, washout, below + "#" + total, ramp, tail_ramp, kind + "#" + tail};
    return lines;
}

std::string ComponentsText::Bytes(const Lines &lines) {
    std::string bytes;
    for (const std::string &line : lines) {
        bytes += line + "\r\n";
    }
    return bytes;
}

std::string ComponentsText::Current() const {
    return Bytes(CurrentLines());
}

std::string ComponentsText::Older() const {
    return Bytes(OlderLines());
}

ComponentsText LadenRib(const std::string &kind, bool inches) {
    const auto length = [inches](const char *mm, const char *in) {
        return std::string(inches ? in : mm);
    };
    ComponentsText rib;
    rib.text = "root rib 2.5° : é";
    rib.text_x = length("60", "2.1/2");
    rib.text_y = length("4", "1/8");
    rib.chord = length("170", "6.1/2");
    rib.edge = "0";
    rib.sheeting = length("1.5", "1/16");
    rib.notch = length("6", "1/4");
    rib.notch_x = length("3", "1/8");
    rib.notch_y = length("0.5", "1/64");
    rib.stock = "0";
    const std::string w = length("6", "1/4");
    const std::string h = length("3", "1/8");
    const std::string d = length("2", "1/16");
    rib.spars = {{length("30", "1.1/4"), w, h, "1", "2", "0", "0", "0", "0"},
                 {"33%", w, h, "2", "1", "1", "0", "0", "0"},
                 {length("100", "4"), w, h, "1", "1", "2", d, "0", "0"},
                 {length("90", "3.1/2"), w, h, "1", "1", "3", d, "1", "0"},
                 ComponentsText::BlankSpar()};
    rib.holes = {
        {length("60", "2.3/8"), length("8", "5/16"), "1", "0", "0", "0", "0", "0"},
        {"50%", length("10", "3/8"), "1", length("1", "1/32"), length("5", "3/16"), "0", "1", "0"},
        ComponentsText::BlankHole()};
    rib.heel_front = length("20", "1");
    rib.heel_back = length("30", "1.1/4");
    rib.trailing = length("25", "1");
    rib.stations = "5";
    rib.washout = "2.5";
    rib.below = length("20", "3/4");
    rib.total = length("60", "2.1/2");
    rib.ramp = length("15", "5/8");
    rib.tail_ramp = length("18", "3/4");
    rib.cut = length("1", "1/16");
    rib.kind = kind;
    rib.intra = length("30", "1.1/4");
    return rib;
}

} // namespace loftwing
