// The program in a root of its own, as all users of a machine share it.

#include "base/whole_file.h"
#include "e2e/svg_lines.h"
#include "install/installed.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSubsetOf;
using testing::Not;
using testing::StartsWith;

TEST(InstalledProgram, FilesStandWhereTheSystemLooksForThem) {
    std::vector<std::string> wanted = {"bin/loftwing",
                                       "share/applications/loftwing.desktop",
                                       "share/bash-completion/completions/loftwing",
                                       "share/icons/hicolor/scalable/apps/loftwing.svg",
                                       "share/loftwing/airfoils/naca2412.dat",
                                       "share/loftwing/lng/English.lng",
                                       "share/loftwing/help/German/10.html",
                                       "share/loftwing/lng/French.lng",
                                       "share/man/man1/loftwing.1.gz",
                                       "share/metainfo/local.loftwing.loftwing.metainfo.xml",
                                       "share/mime/packages/loftwing.xml"};
    for (const char *side : {"16", "22", "24", "32", "48", "64", "128", "256"}) {
        wanted.push_back("share/icons/hicolor/" + std::string(side) + "x" + side +
                         "/apps/loftwing.png");
    }
    std::vector<std::string> files = FilesBelow(Installed::Get().Path(""));
    EXPECT_THAT(wanted, IsSubsetOf(files));
    // And nothing else but the program's own resources.
    std::erase_if(files,
                  [](const std::string &file) { return file.starts_with("share/loftwing/"); });
    std::erase_if(wanted,
                  [](const std::string &file) { return file.starts_with("share/loftwing/"); });
    EXPECT_THAT(files, testing::UnorderedElementsAreArray(wanted));
}

TEST(InstalledProgram, AllResourcesOfTheSourcesAreThere) {
    for (const std::string folder : {"airfoils", "lng", "help", "samples"}) {
        const std::string source = LOFTWING_SOURCE_DIR "/resources/" + folder;
        if (!fs::exists(source)) {
            continue;
        }
        for (const std::string &file : FilesBelow(source)) {
            const std::string there =
                Installed::Get().Path("share/loftwing/" + folder + "/" + file);
            ASSERT_TRUE(fs::exists(there)) << there;
            EXPECT_EQ(ReadWholeFile(there), ReadWholeFile(source + "/" + file));
        }
    }
}

TEST(InstalledProgram, EveryPictureOfTheHelpIsThere) {
    const std::string help = Installed::Get().Path("share/loftwing/help");
    std::size_t pictures = 0;
    for (const std::string &page : FilesBelow(help)) {
        if (!page.ends_with(".html")) {
            continue;
        }
        const std::string text = ReadWholeFile(help + "/" + page);
        const std::string mark = "src=\"";
        for (std::size_t at = text.find(mark); at != std::string::npos;
             at = text.find(mark, at + 1)) {
            const std::size_t from = at + mark.size();
            const std::string name = text.substr(from, text.find('"', from) - from);
            EXPECT_TRUE(fs::exists(fs::path(help) / fs::path(page).parent_path() / name))
                << page << " " << name;
            ++pictures;
        }
    }
    EXPECT_GT(pictures, 100U);
}

TEST(InstalledProgram, EverybodyMayReadItAndNobodyElseChangeIt) {
    std::size_t seen = 0;
    for (const auto &entry : fs::recursive_directory_iterator(Installed::Get().Path(""))) {
        const bool runs = entry.is_directory() || entry.path().filename() == "loftwing";
        const bool completion = entry.path().parent_path().filename() == "completions";
        const unsigned wanted = runs && !completion ? 0755 : 0644;
        EXPECT_EQ(static_cast<unsigned>(entry.status().permissions()), wanted) << entry.path();
        ++seen;
    }
    EXPECT_GT(seen, 40U);
}

/// A home, and proof that the root is as it was.
class InARoot : public testing::Test {
  protected:
    const Installed &installed = Installed::Get();
    TempFolder home;
    std::map<std::string, std::string> before = Snapshot(installed.Root());

    InARoot() { fs::permissions(home.Path(), fs::perms::owner_all); }
    ~InARoot() override { EXPECT_EQ(Snapshot(installed.Root()) == before, true); }

    Ran Run(const std::string &words) const {
        return RunShell(AtHome(home.Path()) + ShellWord(installed.Program()) + " " + words);
    }
};

TEST_F(InARoot, DrawsARibOfTheLibrary) {
    const std::string airfoil = installed.Path("share/loftwing/airfoils/naca2412.dat");
    const Ran ran =
        Run("draw " + ShellWord(airfoil) + " -o rib.svg --chord 180 --sheeting 1.5 --le 8 --te 25");
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
    double longest = 0;
    for (const SvgPath &path : PathsOf(home.Bytes("rib.svg"))) {
        longest = std::max(longest, path.points.back().x - path.points.front().x);
    }
    EXPECT_NEAR(longest, 180 + 2 / 56.7,
                0.0002); // the reference line, a device unit over at each end
    EXPECT_EQ(home.Entries(), 1);
}

TEST_F(InARoot, DrawsWithTheToolkitToo) {
    const std::string airfoil = installed.Path("share/loftwing/airfoils/naca0012.dat");
    const Ran ran = Run("draw " + ShellWord(airfoil) + " -o rib.pdf --chord 180");
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(home.Bytes("rib.pdf"), StartsWith("%PDF"));
}

TEST_F(InARoot, FindsItsLanguages) {
    // French words come from the installed file: the built-in ones are English.
    home.File("short.dat", "short\n1 0\n0 0\n1 0\n");
    const Ran english = Run("info short.dat");
    const Ran french = Run("info short.dat --language French");
    EXPECT_EQ(english.status, 1);
    EXPECT_EQ(french.status, 1);
    EXPECT_THAT(french.err, Not(IsEmpty()));
    EXPECT_NE(english.err, french.err);
    EXPECT_THAT(Run("info short.dat --language Klingon").err, HasSubstr("no language"));
}

TEST_F(InARoot, TheWindowWritesInTheUsersFoldersOnly) {
    // At its first start it asks for the language, and waits.
    const Ran ran =
        RunShell(AtHome(home.Path()) + "timeout --signal=KILL 2 " + ShellWord(installed.Program()));
    EXPECT_EQ(ran.status, 137) << ran.err; // it ran until it was ended
    EXPECT_THAT(FilesBelow(home.Path()), Not(Contains(HasSubstr("share/loftwing/"))));
    EXPECT_TRUE(fs::is_directory(home.Path(".config/loftwing")));
}

TEST_F(InARoot, LoadsForWhoeverMovesIt) {
    // No path of the build or of the root may be built in.
    const TempFolder elsewhere;
    fs::copy(installed.Path(""), elsewhere.Path("opt"), fs::copy_options::recursive);
    const Ran ran = RunShell(AtHome(home.Path()) + ShellWord(elsewhere.Path("opt/bin/loftwing")) +
                             " info --language French " +
                             ShellWord(elsewhere.Path("opt/share/loftwing/airfoils/naca2412.dat")));
    EXPECT_EQ(ran.status, 0) << ran.err;
}

} // namespace
} // namespace loftwing
