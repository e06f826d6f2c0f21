// The program killed while it saves: a file is the old one or the new one, whole.

#include "base/whole_file.h"
#include "e2e/laden_files.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <random>
#include <thread>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace loftwing {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

/// The program, started without waiting for it.
class Started {
  public:
    /// With a `limit` the system kills it when it writes more than so many bytes to a file.
    Started(const std::vector<std::string> &words, const std::string &home, rlim_t limit = 0)
        : pid_(fork()) {
        if (pid_ == 0) {
            Become(words, home, limit);
        }
    }
    ~Started() { Kill(); }
    Started(const Started &) = delete;
    Started &operator=(const Started &) = delete;

    void Kill() {
        if (pid_ > 0) {
            kill(pid_, SIGKILL);
            Wait();
        }
    }
    /// Its status as waitpid has it.
    int Wait() {
        int status = 0;
        EXPECT_EQ(waitpid(pid_, &status, 0), pid_);
        pid_ = 0;
        return status;
    }

  private:
    pid_t pid_;

    [[noreturn]] static void Become(const std::vector<std::string> &words, const std::string &home,
                                    rlim_t limit) {
        const rlimit none{0, 0};
        setrlimit(RLIMIT_CORE, &none);
        if (limit != 0) {
            const rlimit bytes{limit, limit};
            setrlimit(RLIMIT_FSIZE, &bytes);
        }
        for (const char *name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"}) {
            setenv(name, home.c_str(), 1);
        }
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        setenv("LC_ALL", "C", 1); // another decimal separator would be asked about
        const int nowhere = open("/dev/null", O_RDWR);
        for (const int stream : {0, 1, 2}) {
            dup2(nowhere, stream);
        }
        std::vector<char *> arguments;
        std::string program = LOFTWING_BINARY_DIR "/loftwing";
        std::vector<std::string> copies = words;
        arguments.push_back(program.data());
        for (std::string &word : copies) {
            arguments.push_back(word.data());
        }
        arguments.push_back(nullptr);
        execv(program.c_str(), arguments.data());
        _exit(127);
    }
};

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
