/// Rib components files as text, made line by line without the program's writer.
#pragma once

#include <string>
#include <vector>

namespace loftwing {

/// The values of a file; as they stand, those of a rib that nobody has touched.
struct ComponentsText {
    using Lines = std::vector<std::string>;

    std::string airfoil = "naca2412.dat";
    std::string text;
    std::string text_x = "0", text_y = "0";
    std::string chord = "200";
    std::string sheeting = "1.5";
    std::string edge = "0"; ///< leading edge stock
    std::string notch = "0", notch_x = "0", notch_y = "0";
    std::string cut = "0"; ///< trailing edge left on a foam template
    std::string stock = "1";
    std::string inverted = "0";
    std::vector<Lines> spars = {BlankSpar()};
    std::vector<Lines> holes = {BlankHole()};
    std::string heel_front = "0", heel_back = "0";
    std::string trailing = "0"; ///< trailing edge stock
    std::string stations = "0";
    std::string washout = "0";
    std::string below = "0", total = "0", ramp = "0", tail_ramp = "0"; ///< foam template
    std::string kind = "0";                                            ///< 1 foam template, 11 heel
    std::string tail = "0";
    std::string intra = "0";
    std::string extra = "0#0";

    static Lines BlankSpar() { return {"0", "0", "0", "0", "0", "0", "0", "0", "0"}; }
    static Lines BlankHole() { return {"0", "0", "0", "0", "0", "0", "0", "0"}; }

    /// The file in the current format.
    std::string Current() const;
    /// The same in the older format, which knows less.
    std::string Older() const;

    Lines CurrentLines() const;
    Lines OlderLines() const;
    /// Lines as a file has them.
    static std::string Bytes(const Lines &lines);
};

/// A rib that carries everything that a drawing can show: notches of all kinds, holes, notch
/// square, stations and a text. With a `kind` of 1 it has a foam template, with 11 a heel. In
/// inches when `inches` is set.
ComponentsText LadenRib(const std::string &kind, bool inches);

} // namespace loftwing
