// The program killed while it saves: a file is the old one or the new one, whole.

#include "base/whole_file.h"
#include "e2e/laden_files.h"
#include "e2e/started.h"

#include <chrono>
#include <filesystem>
#include <random>
#include <thread>

namespace loftwing {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

/// A rib whose file is larger than a block.
ComponentsText LongRib(const std::string &chord) {
    ComponentsText rib;
    rib.chord = chord;
    rib.text = std::string(20000, 't');
    return rib;
}

class Killed : public testing::Test {
  protected:
    Killed() {
        fs::permissions(folder.Path(), fs::perms::owner_all);
        for (const char *name : {"airfoils", "ribs", "home"}) {
            fs::create_directory(folder.Path(name));
        }
        fs::permissions(folder.Path("home"), fs::perms::owner_all);
        folder.File("airfoils/naca2412.dat", ReadWholeFile(Sample("naca2412.dat")));
        folder.File("settings.ini", "[Language]\r\nLangue=English\r\n[Defaut]\r\nunit= mm\r\n"
                                    "cordeAfich=200\r\nEpCoffrageAfich=1.5\r\nEpBAAfich=0\r\n"
                                    "[Repertoires]\r\nInstall=1\r\nRepProfil=" +
                                        folder.Path("airfoils") +
                                        "\r\nRepProfilevol=" + folder.Path("airfoils") + "\r\n");
    }

    std::vector<std::string> SaveWords() const {
        return {"draw",       folder.Path("from.lfw"), "-o", folder.Path("ribs/rib.lfw"),
                "--airfoils", folder.Path("airfoils")};
    }
    std::vector<std::string> WindowWords() const {
        return {"--settings", folder.Path("settings.ini"), folder.Path("ribs/rib.lfw")};
    }
    std::string Home() const { return folder.Path("home"); }
    std::string Target() const { return folder.Bytes("ribs/rib.lfw"); }

    /// Starts the program over a file with the bytes `old` and kills it after a while of at most
    /// `longest`, many times.
    void KillAtRandom(const std::vector<std::string> &words, const std::string &old,
                      const std::string &new_one, microseconds longest, int runs) {
        const unsigned seed = std::random_device{}();
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 dice{seed};
        std::uniform_int_distribution<microseconds::rep> moment(0, longest.count());
        for (int run = 0; run < runs; ++run) {
            folder.File("ribs/rib.lfw", old);
            Started program(words, Home());
            std::this_thread::sleep_for(microseconds(moment(dice)));
            program.Kill();
            const std::string now = Target();
            EXPECT_TRUE(now == old || now == new_one) << "run " << run << ": " << now.size();
        }
    }

    TempFolder folder;
};

TEST_F(Killed, WhileDrawingToAFileTheOldOneOrTheNewOneIsThere) {
    const std::string old = LongRib("100").Current();
    const std::string new_one = LongRib("150").Current();
    folder.File("from.lfw", new_one);
    folder.File("ribs/rib.lfw", old);
    const auto start = Clock::now();
    EXPECT_EQ(Started(SaveWords(), Home()).Wait(), 0);
    const auto taken = std::chrono::duration_cast<microseconds>(Clock::now() - start);
    EXPECT_EQ(Target(), new_one);
    KillAtRandom(SaveWords(), old, new_one, taken * 5 / 4, 60);
}

TEST_F(Killed, InTheMiddleOfWritingTheOldFileIsThere) {
    const std::string old = LongRib("100").Current();
    const std::string new_one = LongRib("150").Current();
    folder.File("from.lfw", new_one);
    for (const rlim_t limit : {1U, 100U, 4096U, 8192U, 20000U}) {
        folder.File("ribs/rib.lfw", old);
        const int status = Started(SaveWords(), Home(), limit).Wait();
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ) << status;
        EXPECT_TRUE(Target() == old) << limit;
    }
}

/// Waits until the file at `path` isn't `old` any more; gives what it is then.
std::string Changed(const std::string &path, const std::string &old) {
    const auto end = Clock::now() + std::chrono::seconds(30);
    while (Clock::now() < end) {
        std::string now = ReadWholeFile(path);
        if (now != old) {
            return now;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    ADD_FAILURE() << path << " stays as it was";
    return old;
}

TEST_F(Killed, WhileConvertingAnOlderFileTheOldOneOrTheNewOneIsThere) {
    const std::string old = LongRib("100").Older();
    const std::string path = folder.File("ribs/rib.lfw", old);
    std::string new_one;
    microseconds taken{};
    {
        const auto start = Clock::now();
        const Started program(WindowWords(), Home());
        new_one = Changed(path, old);
        taken = std::chrono::duration_cast<microseconds>(Clock::now() - start);
    }
    EXPECT_TRUE(new_one.starts_with("LFW V3.0 -02 ")) << new_one.substr(0, 100);
    EXPECT_TRUE(new_one.ends_with("End of File V 3.0.02 modif 02/10/2002\r\n"));
    KillAtRandom(WindowWords(), old, new_one, taken * 5 / 4, 20);
}

TEST_F(Killed, InTheMiddleOfConvertingTheOldFileIsThere) {
    const std::string old = LongRib("100").Older();
    for (const rlim_t limit : {4096U, 8192U, 20000U}) {
        folder.File("ribs/rib.lfw", old);
        const int status = Started(WindowWords(), Home(), limit).Wait();
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ) << status;
        EXPECT_TRUE(Target() == old) << limit;
    }
}

} // namespace
} // namespace loftwing
