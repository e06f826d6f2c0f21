// Our DXF files on the paper of a CAD program that knows nothing of this one.

#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "e2e/printed_files.h"

#include <algorithm>
#include <sstream>

namespace loftwing {
namespace {

class DxfPrinted : public PrintedFiles {
  protected:
    void SetUp() override { NeedsPrograms({"librecad", "pdftoppm", "pdfinfo"}); }

    /// What a drawing claims as its extent, mm.
    static Ink Claimed(const std::string &dxf, bool inches) {
        const std::vector<std::string> lines = SplitLines(ReadWholeFile(dxf));
        const auto value = [&](const char *variable, std::ptrdiff_t behind) {
            std::istringstream number(*(std::find(lines.begin(), lines.end(), variable) + behind));
            number.imbue(std::locale::classic());
            double read = 0;
            number >> read;
            return read * (inches ? 25.4 : 1.0);
        };
        // The name, then a code and a value for each axis.
        return {value("$EXTMAX", 2) - value("$EXTMIN", 2),
                value("$EXTMAX", 4) - value("$EXTMIN", 4)};
    }
};

TEST_F(DxfPrinted, ThePlainFormIsAsLargeAsTheRib) {
    for (const char *kind : {"0", "1", "11"}) {
        for (const bool inches : {false, true}) {
            for (const bool inverted : {false, true}) {
                SCOPED_TRACE(std::string(kind) + (inches ? " in" : " mm") +
                             (inverted ? " inverted" : ""));
                const std::string dxf = Draw({kind, inches, inverted}, true);
                const Ink claimed = Claimed(dxf, inches);
                const Ink ink = InkOn(Printed(dxf));
                EXPECT_NEAR(ink.width, claimed.width, 1.0);
                EXPECT_NEAR(ink.height, claimed.height, 1.0);
                EXPECT_GT(ink.width, 160.0); // the chord, less what hides in dashes
            }
        }
    }
}

TEST_F(DxfPrinted, TheInterchangeFormIsAsLargeAsTheRib) {
    for (const char *kind : {"0", "1", "11"}) {
        SCOPED_TRACE(kind);
        ComponentsText rib = LadenRib(kind, false);
        rib.stations = "0"; // only the plain form has them
        const Ink claimed = Claimed(Draw(rib, false, true), false);
        const Ink ink = InkOn(Printed(Draw(rib, false, false)));
        EXPECT_NEAR(ink.width, claimed.width, 1.0);
        EXPECT_NEAR(ink.height, claimed.height, 1.0);
    }
}

TEST_F(DxfPrinted, TheInterchangeFormInInchesHasNoUnitButIsDrawn) {
    const Ink ink = InkOn(Printed(Draw({"11", true}, false)));
    EXPECT_NEAR(ink.width, 6.5, 0.5); // of whatever the reader takes for its unit
}

TEST_F(DxfPrinted, TheWordsAreThere) {
    ComponentsText rib = LadenRib("0", false);
    rib.text = "RIB";
    rib.text_y = "40";
    const Ink ink = InkOn(Printed(Draw(rib, false, true)));
    rib.text = "";
    const Ink without = InkOn(Printed(Draw(rib, false, true)));
    // Nine points of Arial hang down from 3 mm above their place: their capitals reach from 0.905
    // to 0.905 - 0.716 of that below. The rib's own top is at 0.0792 of the chord.
    const double top = 40 + 3 - 9 * 25.4 / 72 * (0.905 - 0.716);
    EXPECT_NEAR(ink.height - without.height, top - 0.0792 * 170, 1.0);
}

} // namespace
} // namespace loftwing
