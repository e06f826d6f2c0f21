// What tells the desktop of the program, tried with the desktop's own tools.

#include "base/whole_file.h"
#include "install/installed.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::Not;

constexpr const char *kMetainfo = "share/metainfo/local.loftwing.loftwing.metainfo.xml";
constexpr const char *kEntry = "share/applications/loftwing.desktop";

/// The line "NAME=..." of the desktop entry.
std::string Entry(const std::string &name) {
    const std::string text = "\n" + ReadWholeFile(Installed::Get().Path(kEntry));
    const std::size_t at = text.find("\n" + name + "=");
    EXPECT_NE(at, std::string::npos) << name;
    const std::size_t from = at + name.size() + 2;
    return text.substr(from, text.find('\n', from) - from);
}

TEST(DesktopFiles, TheEntryIsValid) {
    const Ran ran = RunShell("desktop-file-validate " + ShellWord(Installed::Get().Path(kEntry)));
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.out + ran.err, "");
}

TEST(DesktopFiles, TheEntryStartsTheProgramWithItsIconAndAFile) {
    EXPECT_EQ(Entry("Exec"), "loftwing %f");
    EXPECT_EQ(Entry("Icon"), "loftwing");
    for (const char *language : {"fr", "de", "es"}) {
        for (const std::string name : {"GenericName", "Comment", "Keywords"}) {
            EXPECT_NE(Entry(name + "[" + language + "]"), Entry(name)) << name << language;
        }
    }
}

TEST(DesktopFiles, TheMetainfoIsValid) {
    const Installed &installed = Installed::Get();
    const Ran ran = RunShell("appstreamcli validate --no-net --no-color " +
                             ShellWord(installed.Path(kMetainfo)));
    EXPECT_EQ(ran.status, 0) << ran.out;
    EXPECT_THAT(ran.out, HasSubstr("successful"));
    // With the entry that it names.
    const Ran tree =
        RunShell("appstreamcli validate-tree --no-net --no-color " + ShellWord(installed.Root()));
    EXPECT_EQ(tree.status, 0) << tree.out;
}

TEST(DesktopFiles, TheMetainfoTellsTheReleaseOfTheChangelog) {
    const std::string text = ReadWholeFile(Installed::Get().Path(kMetainfo));
    const Ran version = RunShell(ShellWord(Installed::Get().Program()) + " --version");
    const std::string number =
        version.out.substr(9, version.out.find('-') - 9); // "loftwing 1.0.0-"
    const std::string log = ReadWholeFile(LOFTWING_SOURCE_DIR "/CHANGELOG.md");
    const std::string heading = "\n## " + number + " - ";
    ASSERT_NE(log.find(heading), std::string::npos);
    const std::string day = log.substr(log.find(heading) + heading.size(), 10);
    EXPECT_THAT(text, HasSubstr("<release version=\"" + number + "\" date=\"" + day + "\">"));
    EXPECT_THAT(text, HasSubstr("<project_license>LicenseRef-proprietary<"));
    EXPECT_THAT(text, Not(HasSubstr("http")));
}

/// A PNG names its width and height in bytes 16 to 23.
std::pair<unsigned, unsigned> SizeOf(const std::string &png) {
    const auto number = [&](std::size_t at) {
        unsigned value = 0;
        for (std::size_t i = at; i < at + 4; ++i) {
            value = value * 256 + static_cast<unsigned char>(png.at(i));
        }
        return value;
    };
    return {number(16), number(20)};
}

TEST(DesktopFiles, IconsHaveTheSizeOfTheirFolder) {
    for (const unsigned side : {16U, 22U, 24U, 32U, 48U, 64U, 128U, 256U}) {
        const std::string name = std::to_string(side);
        const std::string png = ReadWholeFile(Installed::Get().Path(
            "share/icons/hicolor/" + name + "x" + name + "/apps/loftwing.png"));
        EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1a\n");
        EXPECT_EQ(SizeOf(png), std::pair(side, side));
    }
    const std::string svg =
        ReadWholeFile(Installed::Get().Path("share/icons/hicolor/scalable/apps/loftwing.svg"));
    EXPECT_THAT(svg, testing::StartsWith("<svg xmlns="));
}

/// The system's file types and ours.
class FileTypes : public testing::Test {
  protected:
    TempFolder files;

    static void SetUpTestSuite() {
        data = std::make_unique<TempFolder>();
        const fs::path packages = data->Path("mime/packages");
        fs::create_directories(packages);
        fs::copy("/usr/share/mime/packages/freedesktop.org.xml", packages);
        fs::copy(Installed::Get().Path("share/mime/packages/loftwing.xml"), packages);
        const Ran ran = RunShell("update-mime-database -V " + ShellWord(data->Path("mime")));
        EXPECT_EQ(ran.status, 0);
        EXPECT_THAT(ran.err, Not(HasSubstr("loftwing.xml")));
    }
    static void TearDownTestSuite() { data.reset(); }
    static inline std::unique_ptr<TempFolder> data;

    std::string TypeOf(const std::string &file) const {
        const Ran ran = RunShell("XDG_DATA_HOME=" + ShellWord(data->Path()) +
                                 " XDG_DATA_DIRS=/nowhere gio info -a standard::content-type " +
                                 ShellWord(file));
        const std::string mark = "standard::content-type: ";
        const std::size_t at = ran.out.find(mark);
        EXPECT_NE(at, std::string::npos) << ran.out << ran.err;
        const std::size_t from = at + mark.size();
        return ran.out.substr(from, ran.out.find('\n', from) - from);
    }
    std::string TypeOf(const std::string &name, const std::string &bytes) const {
        return TypeOf(files.File(name, bytes));
    }
};

TEST_F(FileTypes, ARibFileIsKnownByNameAndByContent) {
    ASSERT_EQ(RunShell(ShellWord(Installed::Get().Program()) + " draw " +
                       ShellWord(Sample("naca2412.dat")) + " -o " +
                       ShellWord(files.Path("rib.lfw")))
                  .status,
              0);
    const std::string rib = files.Bytes("rib.lfw");
    EXPECT_EQ(TypeOf(files.Path("rib.lfw")), "application/x-loftwing-rib");
    EXPECT_EQ(TypeOf("without_ending", rib), "application/x-loftwing-rib");
    EXPECT_EQ(TypeOf("old.lfw", "LFW V2.0\r\n"), "application/x-loftwing-rib");
}

TEST_F(FileTypes, AnAirfoilIsKnownByItsPoints) {
    const std::string type = "text/x-loftwing-airfoil";
    for (const char *name : {"naca2412.dat", "naca0012.dat", "naca23012.dat", "naca6409.dat"}) {
        EXPECT_EQ(TypeOf(Sample(name)), type) << name;
    }
    EXPECT_EQ(TypeOf("a.dat", "A title\r\n 1.00000  .00126\r\n  .95000  .01\r\n"), type);
    EXPECT_EQ(TypeOf("b.dat", "A title\r\n1.00000 .00126\r\n.95000 .01\r\n"), type);
    EXPECT_EQ(TypeOf("c.DAT", "AG\n     0.999998    0.0024\n     0.985091    0.0049\n"), type);
    EXPECT_EQ(TypeOf("d.cor", "anything\n"), type);
}

TEST_F(FileTypes, OtherPeoplesDatFilesStayTheirs) {
    EXPECT_EQ(TypeOf("log.dat", "time value\n0 1.0\n1 2.0\n2 0.9\n"), "text/plain");
    EXPECT_EQ(TypeOf("up.dat", "A table\n0.0 1.0\n0.5 2.0\n1.0 3.0\n0.2 1\n"), "text/plain");
    const std::string binary = std::string("\0\1\2\3", 4) + std::string(400, '\xFE');
    EXPECT_EQ(TypeOf("video.dat", binary), "application/octet-stream");
    EXPECT_EQ(TypeOf("version.txt", "Versions\n1.0 first\n0.9 before\n"), "text/plain");
}

} // namespace
} // namespace loftwing
