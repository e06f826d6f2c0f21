// The built program, killed or refused something at each call of its saves.

#include "base/whole_file.h"
#include "e2e/laden_files.h"
#include "e2e/program.h"
#include "e2e/started.h"
#include "support/system_calls.h"
#include "support/temp_folder.h"

#include <cerrno>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

constexpr int kMostCalls = 200;

class SaveCalls : public testing::Test {
  protected:
    void SetUp() override {
        if (!CanWatchCalls()) {
            GTEST_SKIP() << "this system lets no process be watched";
        }
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

    /// From the moment on at which there is something beside the file at `path`.
    WatchedRun Run(const std::vector<std::string> &words, std::optional<CallFault> fault) const {
        return WatchCalls(
            [&] {
                const int nowhere = open("/dev/null", O_RDWR);
                const int err =
                    open(folder.Path("err").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
                dup2(nowhere, 0);
                dup2(nowhere, 1);
                dup2(err, 2);
                for (const char *name :
                     {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
                    setenv(name, folder.Path("home").c_str(), 1);
                }
                setenv("QT_QPA_PLATFORM", "offscreen", 1);
                setenv("LC_ALL", "C", 1);
                setenv("ASAN_OPTIONS", "detect_leaks=0", 1); // they can't be looked for meanwhile
                std::vector<std::string> copies = words;
                copies.insert(copies.begin(), LOFTWING_BINARY_DIR "/loftwing");
                std::vector<char *> arguments;
                for (std::string &word : copies) {
                    arguments.push_back(word.data());
                }
                arguments.push_back(nullptr);
                execv(arguments.front(), arguments.data());
                return 127;
            },
            folder.Path("ribs/loftwing-"), fault);
    }
    std::ptrdiff_t InFolder() const {
        return std::distance(fs::directory_iterator(folder.Path("ribs")), {});
    }
    std::string Target() const { return folder.Bytes("ribs/rib.lfw"); }

    static ComponentsText Rib(const std::string &chord) {
        ComponentsText rib;
        rib.chord = chord;
        rib.text = std::string(20000, 't');
        return rib;
    }

    TempFolder folder;
};

TEST_F(SaveCalls, DrawingToAFileSurvivesAKillAndARefusalAtEach) {
    const std::string old = Rib("100").Current();
    const std::string new_one = Rib("150").Current();
    const std::vector<std::string> words = {"draw",       folder.File("from.lfw", new_one),
                                            "-o",         folder.Path("ribs/rib.lfw"),
                                            "--airfoils", folder.Path("airfoils")};
    for (const int error : {0, ENOSPC}) {
        int olds = 0;
        int news = 0;
        bool through = false;
        for (int call = 1; !through && call < kMostCalls; ++call) {
            SCOPED_TRACE("error " + std::to_string(error) + " at call " + std::to_string(call));
            folder.File("ribs/rib.lfw", old);
            const WatchedRun run = Run(words, CallFault{call, error});
            through = !run.faulted;
            ASSERT_TRUE(Target() == old || Target() == new_one);
            (Target() == old ? olds : news) += 1;
            EXPECT_LE(InFolder(), error == 0 ? 2 : 1); // those of earlier kills are gone
            if (error != 0 && Target() == old) {
                EXPECT_TRUE(run.Exited(1));
                EXPECT_EQ(folder.Bytes("err"),
                          "loftwing: Disk full: " + folder.Path("ribs/rib.lfw") + "\n");
            }
        }
        EXPECT_TRUE(through);
        EXPECT_EQ(InFolder(), 1);
        EXPECT_GT(olds, 3);
        EXPECT_GT(news, 1);
    }
}

TEST_F(SaveCalls, TheWindowThatConvertsAFileSurvivesAKillAtEach) {
    const std::string old = Rib("100").Older();
    const std::vector<std::string> words = {"--settings", folder.Path("settings.ini"),
                                            folder.Path("ribs/rib.lfw")};
    // The window goes on after that: some calls more are enough.
    constexpr int kAfter = 3;
    std::string new_one;
    int olds = 0;
    int news = 0;
    for (int call = 1; news < kAfter && call < kMostCalls; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        folder.File("ribs/rib.lfw", old);
        const WatchedRun run = Run(words, CallFault{call, 0});
        EXPECT_TRUE(run.Killed());
        EXPECT_LE(InFolder(), 2);
        if (Target() == old) {
            ++olds;
            continue;
        }
        ++news;
        new_one = new_one.empty() ? Target() : new_one;
        EXPECT_EQ(Target(), new_one);
        EXPECT_TRUE(new_one.ends_with("End of File V 3.0.02 modif 02/10/2002\r\n"));
        const long renamed = run.Place(RenameCalls());
        EXPECT_GE(run.Place(FlushCalls()), 0);
        EXPECT_LT(run.Place(FlushCalls()), renamed);
        EXPECT_EQ(InFolder(), 1);
    }
    EXPECT_EQ(news, kAfter);
    EXPECT_GT(olds, 4);
}

} // namespace
} // namespace loftwing
