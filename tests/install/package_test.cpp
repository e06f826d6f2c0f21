// The Debian package, packed from the build tree.

#include "base/whole_file.h"
#include "install/installed.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <sstream>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

class Package : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder = std::make_unique<TempFolder>();
        const Ran ran = RunShell("cd " + ShellWord(folder->Path()) + " && umask 022 && " +
                                 ShellWord(LOFTWING_CPACK) + " -G DEB --config " +
                                 ShellWord(LOFTWING_BINARY_DIR "/CPackConfig.cmake") + " -B .");
        ASSERT_EQ(ran.status, 0) << ran.out << ran.err;
        for (const auto &entry : fs::directory_iterator(folder->Path())) {
            if (entry.path().extension() == ".deb") {
                file = entry.path().string();
            }
        }
        ASSERT_NE(file, "");
        ASSERT_EQ(RunShell("dpkg-deb -R " + ShellWord(file) + " " + ShellWord(Tree())).status, 0);
    }
    static void TearDownTestSuite() { folder.reset(); }

    static std::string Tree() { return folder->Path("tree"); }
    static std::string Field(const std::string &name) {
        std::string out = RunShell("dpkg-deb -f " + ShellWord(file) + " " + name).out;
        out.erase(out.find_last_not_of('\n') + 1);
        return out;
    }
    /// The packages of a field, without their versions.
    static std::vector<std::string> Names(const std::string &field) {
        std::vector<std::string> names;
        std::istringstream text(Field(field));
        for (std::string each; std::getline(text, each, ',');) {
            each.erase(0, each.find_first_not_of(' '));
            names.push_back(each.substr(0, each.find(' ')));
        }
        return names;
    }

    static inline std::unique_ptr<TempFolder> folder;
    static inline std::string file;
};

TEST_F(Package, IsNamedAfterTheProgramAndItsVersion) {
    const std::string architecture = RunShell("dpkg --print-architecture").out;
    EXPECT_EQ(fs::path(file).filename().string(),
              "loftwing_1.0.0-1_" + architecture.substr(0, architecture.find('\n')) + ".deb");
    EXPECT_EQ(Field("Package"), "loftwing");
    EXPECT_EQ(Field("Version"), "1.0.0-1");
}

TEST_F(Package, BringsAllThatTheProgramNeeds) {
    // The libraries that it is linked with, and what it looks for while it runs.
    for (const char *name : {"libqt6widgets6", "libqt6printsupport6", "libc6", "libstdc++6",
                             "fonts-liberation", "libqt6svg6", "qt6-translations-l10n"}) {
        EXPECT_THAT(Names("Depends"), testing::Contains(name));
    }
    EXPECT_THAT(Names("Recommends"), UnorderedElementsAre("qt6-wayland", "xdg-utils"));
}

TEST_F(Package, HoldsWhatIsInstalledAndItsOwnPapers) {
    std::vector<std::string> wanted = FilesBelow(Installed::Get().Path(""));
    wanted.emplace_back("share/doc/loftwing/changelog.Debian.gz");
    wanted.emplace_back("share/doc/loftwing/copyright");
    EXPECT_THAT(FilesBelow(Tree() + "/usr"), UnorderedElementsAreArray(wanted));
}

TEST_F(Package, EverybodyMayReadItAndNobodyElseChangeIt) {
    // "drwxr-xr-x root/root 0 DATE TIME ./usr/"
    std::istringstream lines(RunShell("dpkg-deb -c " + ShellWord(file)).out);
    std::size_t seen = 0;
    for (std::string line; std::getline(lines, line); ++seen) {
        const bool is_folder = line.front() == 'd';
        const bool program = line.ends_with("/bin/loftwing");
        EXPECT_THAT(line, StartsWith(is_folder ? "drwxr-xr-x root/root "
                                     : program ? "-rwxr-xr-x root/root "
                                               : "-rw-r--r-- root/root "));
    }
    EXPECT_GT(seen, 40U);
}

TEST_F(Package, LeavesNothingBehind) {
    // No script of it runs, nothing lies outside /usr and no file counts as the administrator's:
    // what dpkg unpacks it removes. The caches of menus, icons and file types are their packages'
    // own.
    EXPECT_THAT(FilesBelow(Tree() + "/DEBIAN"), UnorderedElementsAre("control", "md5sums"));
    std::vector<std::string> top;
    for (const auto &entry : fs::directory_iterator(Tree())) {
        top.push_back(entry.path().filename().string());
    }
    EXPECT_THAT(top, UnorderedElementsAre("DEBIAN", "usr"));
}

TEST_F(Package, TellsWhatHasChanged) {
    const std::string log =
        RunShell("zcat " + ShellWord(Tree() + "/usr/share/doc/loftwing/changelog.Debian.gz")).out;
    EXPECT_THAT(log, StartsWith("loftwing (1.0.0-1) unstable; urgency=medium\n\n  * "));
    EXPECT_THAT(log, HasSubstr("\n  * Up to twelve spars and twelve holes, at a length or a "));
    EXPECT_THAT(log,
                HasSubstr("\n  * Zoom by keys: Ctrl++ and Ctrl+- step through the zoom list, "));
    EXPECT_THAT(log, Not(HasSubstr("**")));
    std::istringstream lines(log);
    for (std::string line; std::getline(lines, line);) {
        EXPECT_TRUE(line.size() <= 80 || line.starts_with(" -- ")) << line;
    }
}

TEST_F(Package, IsDrawnFromWhereItIsUnpacked) {
    const TempFolder home;
    const auto before = Snapshot(Tree());
    const std::string usr = Tree() + "/usr";
    const Ran ran = RunShell(AtHome(home.Path()) + ShellWord(usr + "/bin/loftwing") + " draw " +
                             ShellWord(usr + "/share/loftwing/airfoils/naca2412.dat") +
                             " --chord 180 -o rib.svg");
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(home.Bytes("rib.svg"), HasSubstr("<svg"));
    EXPECT_EQ(Snapshot(Tree()) == before, true);
}

TEST_F(Package, HasNoFaultThatDebianKnows) {
    // Of a build of one's own it may warn, for how that was compiled.
    const TempFolder home;
    const Ran ran =
        RunShell(AtHome(home.Path()) + "lintian --allow-root --fail-on error " + ShellWord(file));
    EXPECT_EQ(ran.status, 0) << ran.out << ran.err;
    EXPECT_THAT(ran.out, Not(HasSubstr("E: ")));
}

} // namespace
} // namespace loftwing
