// One rib's features on several airfoils.

#include "base/whole_file.h"
#include "e2e/program.h"
#include "support/components_text.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class DrawOn : public testing::Test {
  protected:
    /// The bundled airfoil under another name and title.
    std::string Airfoil(const std::string &name, const std::string &title) const {
        std::string text = ReadWholeFile(Sample("naca2412.dat"));
        text.replace(0, text.find_first_of("\r\n"), title);
        return folder.File(name, text);
    }
    std::string Rib() const { return folder.File("model.lfw", rib.Current()); }
    /// Draws the rib, with these words behind its name.
    Ran Draw(const std::vector<std::string> &more) const {
        std::vector<std::string> words = {"draw", Rib()};
        words.insert(words.end(), more.begin(), more.end());
        return RunLoftwing(words);
    }
    bool Made(const std::string &name) const {
        return std::filesystem::exists(folder.Path("out/" + name));
    }
    std::string Read(const std::string &name) const {
        return ReadWholeFile(folder.Path("out/" + name));
    }

    TempFolder folder;
    ComponentsText rib;
};

TEST_F(DrawOn, OnTheRibsOwnAirfoilItIsTheRib) {
    for (const char *kind : {"0", "1", "11"}) {
        rib = LadenRib(kind, false);
        const std::vector<std::string> form = {"--to", "svg", "-o", "-"};
        std::vector<std::string> plain = {"draw", Rib(), "--airfoils",
                                          LOFTWING_SOURCE_DIR "/resources/airfoils"};
        plain.insert(plain.end(), form.begin(), form.end());
        const Ran own = RunLoftwing(plain);
        const Ran on = Draw({"--on", Sample(rib.airfoil), "--to", "svg", "-o", "-"});
        EXPECT_EQ(on.status, 0) << on.err;
        EXPECT_THAT(on.out, HasSubstr("<svg")) << kind;
        EXPECT_EQ(on.out, own.out) << kind;
        EXPECT_EQ(on.err, own.err) << kind;
    }
}

TEST_F(DrawOn, EachAirfoilGivesADrawingOfItsName) {
    rib.text = "naca2412 Chord : 200";
    rib.text_x = "30";
    rib.text_y = "5";
    const Ran ran = Draw({"--on", Airfoil("r1.dat", "Rib 1: 180"), Airfoil("r2.dat", "Rib 2: 160"),
                          "--to", "svg", "-o", folder.Path("out/")});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
    EXPECT_THAT(Read("r1.svg"), HasSubstr("r1 Chord :  180"));
    EXPECT_THAT(Read("r2.svg"), HasSubstr("r2 Chord :  160"));
    EXPECT_FALSE(Made("model.svg"));
}

TEST_F(DrawOn, ChordWinsOverTheTitles) {
    rib.text = "naca2412 Chord : 200";
    rib.text_x = "30";
    rib.text_y = "5";
    const Ran ran = Draw({"--chord", "150", "--to", "svg", "-o", folder.Path("out/"), "--on",
                          Airfoil("r1.dat", "Rib 1: 180"), Airfoil("r2.dat", "Rib 2")});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(Read("r1.svg"), HasSubstr("r1 Chord : 150"));
    EXPECT_THAT(Read("r2.svg"), HasSubstr("r2 Chord : 150"));
}

TEST_F(DrawOn, AnAirfoilWithoutRoomIsRefusedByNameAndTheOthersAreDrawn) {
    rib.spars = {{"150", "6", "3", "1", "1", "0", "0", "0", "0"}, ComponentsText::BlankSpar()};
    const std::string small = Airfoil("r2.dat", "Rib 2: 140");
    const std::vector<std::string> words = {"--on", Airfoil("r1.dat", "Rib 1: 180"),
                                            small,  Airfoil("r3.dat", "Rib 3: 170"),
                                            "--to", "svg",
                                            "-o",   folder.Path("out/")};
    const Ran ran = Draw(words);
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.err, "Open airfoil file: Airfoil : r2   Chord : 140 mm  What does not fit on "
                       "this chord : Spars 1  Open the airfoil without it? No leaves the rib as it "
                       "is.\nloftwing: " +
                           small + " was refused\n");
    EXPECT_TRUE(Made("r1.svg"));
    EXPECT_FALSE(Made("r2.svg"));
    EXPECT_TRUE(Made("r3.svg"));

    std::vector<std::string> without = words;
    without.emplace_back("--yes");
    EXPECT_EQ(Draw(without).status, 0);
    EXPECT_TRUE(Made("r2.svg"));
}

TEST_F(DrawOn, OneAirfoilGoesToTheFileNamed) {
    const std::string out = folder.Path("tip.pdf");
    const Ran ran = Draw({"--on", Sample("naca0009.dat"), "-o", out});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
    EXPECT_THAT(ReadWholeFile(out), StartsWith("%PDF"));
}

TEST_F(DrawOn, RibFilesComeOutWithTheOtherAirfoil) {
    rib.spars = {{"30%", "6", "3", "1", "1", "0", "0", "0", "0"}, ComponentsText::BlankSpar()};
    const Ran ran =
        Draw({"--on", Airfoil("r1.dat", "Rib 1: 180"), "--to", "lfw", "-o", folder.Path("out/")});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(Read("r1.lfw"), HasSubstr("r1.dat\r\n"));
    EXPECT_THAT(Read("r1.lfw"), HasSubstr("180\r\n"));
    EXPECT_THAT(Read("r1.lfw"), HasSubstr("30%\r\n"));
    EXPECT_THAT(Read("r1.lfw"), Not(HasSubstr("naca2412")));
}

TEST_F(DrawOn, ARibThatCannotBeReadIsToldOnce) {
    const Ran ran = RunLoftwing({"draw", folder.Path("none.lfw"), "--on", Sample("naca0009.dat"),
                                 Sample("naca0012.dat"), "--to", "svg", "-o", folder.Path("out/")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(std::count(ran.err.begin(), ran.err.end(), '\n'), 1) << ran.err;
    EXPECT_THAT(ran.err, HasSubstr("none.lfw"));
}

TEST_F(DrawOn, AnythingButOneRibFileIsWrongUsage) {
    const std::string airfoil = Sample("naca0009.dat");
    const std::string out = folder.Path("x.svg");
    const std::vector<std::vector<std::string>> wrong = {
        {"draw", airfoil, "--on", airfoil, "-o", out},
        {"draw", Rib(), Rib(), "--on", airfoil, "-o", out},
        {"draw", "--on", airfoil, "-o", out},
        {"draw", Rib(), "-o", out, "--on"},
        {"draw", Rib(), "--on", airfoil, airfoil, "-o", out},
        {"draw", Rib(), "--on", airfoil, airfoil, "--to", "svg", "-o", "-"},
        {"draw", Rib(), "--on", airfoil},
        {"plot", Rib(), "--on", airfoil, "-o", out},
    };
    for (const auto &words : wrong) {
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 2) << testing::PrintToString(words);
        EXPECT_THAT(ran.err, StartsWith("loftwing: ")) << testing::PrintToString(words);
    }
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(DrawOn, TheHelpOfDrawTellsOfIt) {
    const Ran help = RunLoftwing({"draw", "--help"});
    EXPECT_THAT(help.out, HasSubstr("loftwing draw RIB.lfw --on FILE... -o OUT\n"));
    EXPECT_THAT(help.out, HasSubstr("  --on FILE..."));
}

} // namespace
} // namespace loftwing
