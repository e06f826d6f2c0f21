/// A panel from a root of 240 to a tip of 120 mm with a spar, made by the built program.
#pragma once

#include "e2e/program.h"
#include "support/components_text.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace loftwing {

class TaperedPanel : public testing::Test {
  protected:
    static constexpr const char *kAirfoils = LOFTWING_SOURCE_DIR "/resources/airfoils";

    TaperedPanel() {
        root.chord = "240";
        tip.chord = "120";
        tip.airfoil = root.airfoil = "naca0012.dat";
        root.spars[0] = {"72", "6", "3", "1", "1", "1", "0", "0", "0"};
        tip.spars[0] = {"36", "4", "3", "1", "1", "1", "0", "0", "0"};
    }

    TempFolder folder;
    ComponentsText root, tip;

    Ran Panel(std::vector<std::string> more) {
        std::vector<std::string> words = {"panel", folder.File("root.lfw", root.Current()),
                                          folder.File("tip.lfw", tip.Current()), "--airfoils",
                                          kAirfoils};
        words.insert(words.end(), more.begin(), more.end());
        return RunLoftwing(words);
    }
};

} // namespace loftwing
