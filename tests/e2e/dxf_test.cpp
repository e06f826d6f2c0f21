// Our DXF files as a program sees them that knows nothing of this one.

#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "e2e/laden_files.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <map>

namespace loftwing {
namespace {

using testing::AllOf;
using testing::Gt;
using testing::IsSupersetOf;
using testing::Lt;
using testing::UnorderedElementsAre;

constexpr const char *kPython = "/usr/bin/python3";
constexpr double kLastDigit = 2e-6; // files have six decimals

/// What the reader says of a file.
class Facts {
  public:
    explicit Facts(const std::string &text) {
        for (const std::string &line : SplitLines(text)) {
            const std::size_t blank = line.find(' ');
            facts_[line.substr(0, blank)].push_back(line.substr(blank + 1));
        }
    }

    std::vector<std::string> All(const std::string &name) const {
        const auto found = facts_.find(name);
        return found == facts_.end() ? std::vector<std::string>{} : found->second;
    }
    std::string One(const std::string &name) const {
        const std::vector<std::string> all = All(name);
        return all.size() == 1 ? all.front() : std::to_string(all.size()) + " facts";
    }
    double Number(const std::string &name) const {
        // Not by the locale, which may have another separator.
        return ParseOrFail(One(name), name);
    }
    /// How many things of a kind there are; 0 when it isn't told of.
    long Count(const std::string &kind) const {
        return All(kind).empty() ? 0 : static_cast<long>(Number(kind));
    }

  private:
    std::map<std::string, std::vector<std::string>> facts_;

    static double ParseOrFail(const std::string &text, const std::string &name) {
        double value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        EXPECT_TRUE(error == std::errc() && end == text.data() + text.size())
            << name << ": " << text;
        return value;
    }
};

/// Records of a kind in the text of a file: pairs of lines, a code and a value.
long RecordsIn(const std::string &path, const std::string &kind) {
    const std::vector<std::string> lines = SplitLines(ReadWholeFile(path));
    long count = 0;
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
        count += lines[i] == "0" && lines[i + 1] == kind ? 1 : 0;
    }
    return count;
}

class DxfRead : public LadenFiles {
  protected:
    void SetUp() override {
        if (RunShell(std::string(kPython) + " -c 'import ezdxf'").status != 0) {
            GTEST_SKIP() << "no ezdxf for " << kPython;
        }
    }

    Facts Run(const std::string &arguments) {
        const Ran ran =
            RunShell("HOME=" + ShellWord(folder.Path()) + " " + kPython + " " +
                     ShellWord(LOFTWING_SOURCE_DIR "/tests/e2e/dxf_facts.py") + " " + arguments);
        EXPECT_EQ(ran.status, 0) << ran.err;
        return Facts(ran.out);
    }
    Facts FactsOf(const std::string &path) { return Run(ShellWord(path)); }

    static std::vector<LadenCase> Cases(bool with_inverted) {
        std::vector<LadenCase> cases;
        for (const char *kind : {"0", "1", "11"}) {
            for (const bool inches : {false, true}) {
                cases.push_back({kind, inches, false});
                if (with_inverted) {
                    cases.push_back({kind, inches, true});
                }
            }
        }
        return cases;
    }
    static std::string Name(const LadenCase &which) {
        return which.kind + (which.inches ? " in" : " mm") + (which.inverted ? " inverted" : "");
    }
};

TEST_F(DxfRead, ThePlainFormPassesTheAuditWithNothingRepairedAndNothingLost) {
    for (const LadenCase &which : Cases(true)) {
        SCOPED_TRACE(Name(which));
        const std::string path = Draw(which, true);
        const Facts facts = FactsOf(path);
        EXPECT_EQ(facts.One("errors"), "0");
        EXPECT_EQ(facts.One("fixes"), "0");
        EXPECT_EQ(facts.One("$ACADVER"), "AC1009");
        for (const char *kind : {"LINE", "CIRCLE", "TEXT"}) {
            EXPECT_EQ(facts.Count(kind), RecordsIn(path, kind)) << kind;
        }
        EXPECT_EQ(facts.Count("CIRCLE"), 3); // a round spar above and below, a round hole
        EXPECT_EQ(facts.Count("TEXT"), 1);
        EXPECT_GT(facts.Count("LINE"), 800); // contour and sheeting
        EXPECT_EQ(facts.Count("POLYLINE"), 0);
        EXPECT_EQ(RecordsIn(path, "SECTION"), 4);
        EXPECT_THAT(ReadWholeFile(path), testing::HasSubstr("\r\n2\r\nBLOCKS\r\n"));
    }
}

TEST_F(DxfRead, ThePlainFormClosesWhatIsCutOut) {
    for (const LadenCase &which : Cases(true)) {
        SCOPED_TRACE(Name(which));
        const Facts facts = FactsOf(Draw(which, true));
        EXPECT_GE(facts.Count("cut-ends"), 4 + 5); // a notch and a rectangular hole
        EXPECT_EQ(facts.One("open-ends"), "0");
    }
}

TEST_F(DxfRead, ThePlainFormTellsItsUnitAndItsExtent) {
    for (const LadenCase &which : Cases(true)) {
        SCOPED_TRACE(Name(which));
        const Facts facts = FactsOf(Draw(which, true));
        EXPECT_EQ(facts.One("$INSUNITS"), which.inches ? "1" : "4");
        EXPECT_EQ(facts.One("$MEASUREMENT"), which.inches ? "0" : "1");
        // The text lies within the rib.
        EXPECT_NEAR(facts.Number("$EXTMIN-x"), facts.Number("x-low"), kLastDigit);
        EXPECT_NEAR(facts.Number("$EXTMIN-y"), facts.Number("y-low"), kLastDigit);
        EXPECT_NEAR(facts.Number("$EXTMAX-x"), facts.Number("x-high"), kLastDigit);
        EXPECT_NEAR(facts.Number("$EXTMAX-y"), facts.Number("y-high"), kLastDigit);
    }
}

TEST_F(DxfRead, ATextBesideTheRibCountsForTheExtent) {
    ComponentsText rib = LadenRib("0", false);
    rib.text = "ten letter";
    rib.text_x = "400";
    rib.text_y = "90";
    const Facts facts = FactsOf(Draw(rib, false, true));
    const double height = facts.Number("text-height");
    EXPECT_EQ(facts.Number("text-x"), 400.0);
    EXPECT_NEAR(facts.Number("$EXTMAX-y"), facts.Number("text-y") + height, kLastDigit);
    EXPECT_THAT((facts.Number("$EXTMAX-x") - 400.0) / height, AllOf(Gt(4.0), Lt(10.0)));
    EXPECT_NEAR(facts.Number("$EXTMIN-x"), facts.Number("x-low"), kLastDigit);
    EXPECT_NEAR(facts.Number("$EXTMIN-y"), facts.Number("y-low"), kLastDigit);
}

TEST_F(DxfRead, TheTextHasItsPlaceItsHeightAndItsDegreeSign) {
    for (const bool inches : {false, true}) {
        ComponentsText rib = LadenRib("0", inches);
        rib.text = "root rib 2.5° : e";
        const Facts facts = FactsOf(Draw(rib, inches, true));
        EXPECT_EQ(facts.One("text"), "root rib 2.5° : e");
        EXPECT_EQ(facts.One("text-layer"), "TEXT");
        EXPECT_NEAR(facts.Number("text-x"), inches ? 2.5 : 60.0, kLastDigit);
        // Nine points of Arial, whose capitals are 0.716 of that.
        const double points = 9 * 0.716 * 25.4 / 72;
        EXPECT_NEAR(facts.Number("text-height"), points / (inches ? 25.4 : 1.0), 0.002);
    }
}

TEST_F(DxfRead, ThePlainFormHasALayerForEachKindOfThing) {
    const Facts facts = FactsOf(Draw({"11"}, true));
    EXPECT_THAT(facts.All("used-layer"), UnorderedElementsAre("Layer01", "TALON", "AXIS", "COFFR",
                                                              "LONG", "TROU", "STATIONS", "TEXT"));
    EXPECT_THAT(facts.All("layer"), IsSupersetOf(facts.All("used-layer")));
    EXPECT_THAT(facts.All("linetype"), IsSupersetOf({"CONTINUOUS", "CENTER"}));
    for (const std::string &layer : facts.All("used-layer")) {
        EXPECT_EQ(facts.One("linetype-of-" + layer), layer == "AXIS" ? "CENTER" : "CONTINUOUS");
    }
}

TEST_F(DxfRead, TheInterchangeFormLoadsWithEveryRecord) {
    for (const LadenCase &which : Cases(false)) {
        SCOPED_TRACE(Name(which));
        const std::string path = Draw(which, false);
        const Facts facts = FactsOf(path);
        for (const char *kind : {"POLYLINE", "CIRCLE", "VERTEX"}) {
            EXPECT_EQ(facts.Count(std::string("single-pass-") + kind), RecordsIn(path, kind))
                << kind;
        }
        EXPECT_EQ(RecordsIn(path, "CIRCLE"), 4); // with that of the hole being edited
        EXPECT_GT(RecordsIn(path, "POLYLINE"), 20);
        EXPECT_EQ(facts.Count("POLYLINE"), RecordsIn(path, "POLYLINE"));
        EXPECT_THAT(facts.All("layer"),
                    IsSupersetOf({"Layer01", "TALON", "AXIS", "COFFR", "LONG", "TROU"}));
    }
}

TEST_F(DxfRead, BothFormsHaveTheSameLines) {
    for (const char *kind : {"0", "11"}) {
        for (const bool inches : {false, true}) {
            const LadenCase which{kind, inches, false};
            SCOPED_TRACE(Name(which));
            const std::string interchange = Draw(which, false);
            const Facts facts =
                Run("--same-lines " + ShellWord(interchange) + " " + ShellWord(Draw(which, true)));
            EXPECT_GT(facts.Count("segments"), 800);
            EXPECT_EQ(facts.One("missing"), "0");
            EXPECT_EQ(facts.One("more"), "0");
        }
    }
}

TEST_F(DxfRead, UpsideDownThePlainFormIsMirroredAndTheOtherIsRefused) {
    ComponentsText rib = LadenRib("0", false);
    rib.stations = "0"; // their feet are longer upside down
    const Facts upright = FactsOf(Draw(rib, false, true));
    rib.inverted = "1";
    const Facts inverted = FactsOf(Draw(rib, false, true));
    EXPECT_NEAR(inverted.Number("y-low"), -upright.Number("y-high"), kLastDigit);
    EXPECT_NEAR(inverted.Number("y-high"), -upright.Number("y-low"), kLastDigit);
    EXPECT_EQ(inverted.Number("x-high"), upright.Number("x-high"));
    // Words are not for reading in a mirror.
    EXPECT_EQ(inverted.Number("text-y"), upright.Number("text-y"));
    const Ran ran = RunLoftwing({"draw", folder.Path("rib.lfw"), "-o", folder.Path("no.dxf"),
                                 "--airfoils", LOFTWING_SOURCE_DIR "/resources/airfoils"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, testing::StartsWith("Loftwing: An inverted rib"));
    EXPECT_EQ(std::count(ran.err.begin(), ran.err.end(), '\n'), 1);
    EXPECT_FALSE(std::filesystem::exists(folder.Path("no.dxf")));
}

} // namespace
} // namespace loftwing
