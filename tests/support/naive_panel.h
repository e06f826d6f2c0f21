/// A second computation of a wing panel: from two rib components files and their airfoils, as
/// texts, to all files of the ribs between them, line by line as the rules read. It shares nothing
/// with the program.
#pragma once

#include "support/components_text.h"

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace loftwing::naive {

/// An airfoil as its file has it.
struct PanelCurve {
    std::string name; ///< of the file, without its extension
    std::vector<double> x, y;
};

/// What the language file says.
struct PanelWords {
    std::string rib, chord;              ///< in titles
    std::string label_chord, label_turn; ///< in labels
};

struct PanelAsked {
    bool inches = false;
    std::array<ComponentsText, 2> ends; ///< root and tip
    std::array<PanelCurve, 2> airfoils;
    std::string count;             ///< ribs between, in equal steps
    std::vector<std::string> gaps; ///< or the gaps
    std::vector<std::string> thicknesses;
    std::map<std::string, std::pair<int, int>> ranges; ///< of "spar2", "hole1", "le", ...
    PanelWords words;
};

struct PanelRib {
    double ratio = 0;
    double distance = 0; ///< from the root, mm; in equal steps their number
    std::string name;    ///< of both files, without extension
    double chord = 0;    ///< mm
    std::string airfoil; ///< bytes of the airfoil file
    ComponentsText file;
    std::vector<int> spars, holes;    ///< slots of the ends, from 1, that stand in its slots
    std::map<std::string, double> mm; ///< values before they were written
};

std::vector<PanelRib> MakePanel(const PanelAsked &asked);

/// The label that the program makes for an end.
std::string PanelLabel(const PanelAsked &asked, std::size_t end);

/// A length as typed, in mm.
double PanelLength(const std::string &text, bool inches);

} // namespace loftwing::naive
