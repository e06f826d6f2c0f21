/// Airfoil files that are for import: refused as they stand, or with a contour that strays.
#pragma once

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "support/synthetic_airfoil.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace loftwing {

inline std::string SampleBytes() {
    return ReadWholeFile(LOFTWING_SOURCE_DIR "/resources/airfoils/naca2412.dat");
}

/// The sample naca2412 as two lists that both begin at the nose.
inline std::string TwoLists() {
    std::vector<std::string> lines = SplitLines(SampleBytes());
    lines.erase(lines.begin());
    const auto nose = lines.begin() + static_cast<std::ptrdiff_t>(lines.size() / 2);
    std::vector<std::string> upper(lines.begin(), nose + 1);
    std::reverse(upper.begin(), upper.end());
    std::string text = "Two lists\n";
    for (const std::string &line : upper) {
        text += line + "\n";
    }
    text += "\n";
    for (auto line = nose; line != lines.end(); ++line) {
        text += *line + "\n";
    }
    return text;
}

/// The sample with semicolons.
inline std::string Semicolons() {
    std::string text = "Semicolons\n";
    std::vector<std::string> lines = SplitLines(SampleBytes());
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const std::size_t begin = lines[i].find_first_not_of(' ');
        if (begin != std::string::npos) {
            std::string line = lines[i].substr(begin);
            const std::size_t gap = line.find_first_of(" \t");
            text +=
                line.substr(0, gap) + ";" + line.substr(line.find_first_not_of(" \t", gap)) + "\n";
        }
    }
    return text;
}

/// The sample with a line of one number in it, at which reading fails.
inline std::string Stray() {
    std::string text = SampleBytes();
    return text.insert(text.find('\n', text.size() / 2) + 1, "0.5\r\n");
}

/// So few points that the contour swings between them.
inline std::string Coarse() {
    const NaiveAirfoil made = MakeAirfoil({0.12, 0.02, 0.4, 10, 9});
    std::string text = "Coarse\n";
    for (std::size_t i = 1; i < made.x.size(); ++i) {
        text += NumberText(made.x[i]) + " " + NumberText(made.y[i]) + "\n";
    }
    return text;
}

} // namespace loftwing
