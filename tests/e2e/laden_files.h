/// Ribs that carry everything, drawn by the built program into a folder of their own.
#pragma once

#include "e2e/program.h"
#include "support/components_text.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace loftwing {

/// One rib of LadenRib.
struct LadenCase {
    std::string kind; ///< 0 a plain rib, 1 with a foam template, 11 with a heel
    bool inches = false;
    bool inverted = false;
};

class LadenFiles : public testing::Test {
  protected:
    /// Draws a file's rib as DXF and gives the drawing's path.
    std::string Draw(const ComponentsText &rib, bool inches, bool plain) {
        const std::string file = folder.File("rib.lfw", rib.Current());
        const std::string out = folder.Path(plain ? "plain.dxf" : "interchange.dxf");
        std::vector<std::string> words = {"draw",       file,
                                          "-o",         out,
                                          "--unit",     inches ? "in" : "mm",
                                          "--airfoils", LOFTWING_SOURCE_DIR "/resources/airfoils"};
        if (plain) {
            words.insert(words.end(), {"--dxf", "plain"});
        }
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 0);
        // What is told of a heel is a test of its own.
        EXPECT_EQ(ran.err.empty(), rib.kind != "11") << ran.err;
        return out;
    }
    std::string Draw(const LadenCase &which, bool plain) {
        ComponentsText rib = LadenRib(which.kind, which.inches);
        rib.inverted = which.inverted ? "1" : "0";
        return Draw(rib, which.inches, plain);
    }

    TempFolder folder;
};

} // namespace loftwing
