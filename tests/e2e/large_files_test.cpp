// Files of ten megabytes that nobody needs: each is read or refused without costing time that
// somebody would notice, or the machine's memory.

#include "base/whole_file.h"
#include "e2e/program.h"
#include "support/components_text.h"
#include "support/one_locale.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace loftwing {
namespace {

constexpr std::size_t kTenMegabytes = 10'000'000;
/// A second is promised of the program as it is released; builds without optimisation, and machines
/// of all ages, have five.
constexpr double kSeconds = 5;
constexpr long kMegabytes = 500;

/// `part` again and again, as many times as go into ten megabytes.
std::string Filled(const std::string &part, const std::string &head = {},
                   const std::string &tail = {}) {
    std::string text = head;
    text.reserve(kTenMegabytes);
    while (text.size() + part.size() + tail.size() <= kTenMegabytes) {
        text += part;
    }
    return text += tail;
}

/// The same of parts that are numbered.
std::string Numbered(const std::function<std::string(int number)> &part, const std::string &head,
                     const std::string &tail = {}) {
    std::string text = head;
    for (int number = 1;; ++number) {
        const std::string next = part(number);
        if (text.size() + next.size() + tail.size() > kTenMegabytes) {
            return text += tail;
        }
        text += next;
    }
}

/// What a run of the program took.
struct Cost {
    bool ended = false; ///< by itself, done or refused
    double seconds = 0; ///< of the processor
    long megabytes = 0; ///< at its peak
};

Cost CostOf(const std::vector<std::string> &words) {
    std::vector<char *> arguments;
    const std::string program = ProgramTried();
    arguments.push_back(const_cast<char *>(program.c_str()));
    for (const std::string &word : words) {
        arguments.push_back(const_cast<char *>(word.c_str()));
    }
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        const int nowhere = open("/dev/null", O_RDWR);
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
            dup2(nowhere, stream);
        }
        const rlimit patience = {60, 60};
        setrlimit(RLIMIT_CPU, &patience);
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    rusage used{};
    wait4(child, &status, 0, &used);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return {WIFEXITED(status) && WEXITSTATUS(status) <= 1,
            seconds(used.ru_utime) + seconds(used.ru_stime), used.ru_maxrss / 1024};
}

class LargeFiles : public testing::Test {
  protected:
    void SetUp() override {
        if (ManyInOneLocale(2) < 2) {
            GTEST_SKIP() << "what they cost depends on no locale, and sanitizers cost more";
        }
    }

    TempFolder folder;

    void ExpectCheap(const std::vector<std::string> &words) {
        const Cost cost = CostOf(words);
        EXPECT_TRUE(cost.ended);
        EXPECT_LT(cost.seconds, kSeconds);
        EXPECT_LT(cost.megabytes, kMegabytes);
    }
    /// Reads an airfoil as it stands and by the import.
    void ExpectCheapAirfoil(const std::string &what, const std::string &bytes) {
        SCOPED_TRACE(what);
        const std::string file = folder.File("large.dat", bytes);
        ExpectCheap({"info", file});
        ExpectCheap({"info", "--import", file});
    }
    void ExpectCheapComponents(const std::string &what, const std::string &bytes) {
        SCOPED_TRACE(what);
        const std::string file = folder.File("large.lfw", bytes);
        ExpectCheap({"draw", file, "-o", folder.Path("out.lfw")});
    }
    void ExpectCheapSettings(const std::string &what, const std::string &bytes) {
        SCOPED_TRACE(what);
        ExpectCheap({"draw", Sample("naca2412.dat"), "--settings", folder.File("large.ini", bytes),
                     "-o", folder.Path("out.svg")});
    }
    void ExpectCheapPanel(const std::string &what, const std::string &bytes) {
        SCOPED_TRACE(what);
        ExpectCheap({"plan", folder.File("large.lfp", bytes), "-o", folder.Path("out.svg")});
    }
};

TEST_F(LargeFiles, AirfoilsOfEndlessNumbersAreCheap) {
    ExpectCheapAirfoil("pairs", Filled("0.12345 0.01234\n", "Title\n1 0\n"));
    ExpectCheapAirfoil("whole airfoils", Filled("1 0\n0.5 0.1\n0 0\n0.5 -0.1\n1 0\n", "Title\n"));
    ExpectCheapAirfoil("decimal commas", Filled("0,5,0,1\n", "Title\n"));
    ExpectCheapAirfoil("one line", Filled("1 ", "Title\n"));
    ExpectCheapAirfoil("columns", Filled("0.5 0.4 0.3 0.2 0.1 0.9 0.8 0.7 0.6\n"));
}

TEST_F(LargeFiles, AnAirfoilOfMorePointsThanCanBeSeenIsCheap) {
    constexpr int kEach = 200'000; // of a surface
    std::string text = "Dense\n";
    for (int i = -kEach; i <= kEach; ++i) {
        const double x = static_cast<double>(i < 0 ? -i : i) / kEach;
        text += std::to_string(x) + (i < 0 ? " 0.05\n" : " -0.05\n");
    }
    ExpectCheapAirfoil("400,001 points", text);
    // As many as an import takes.
    constexpr int kTaken = 49'990;
    text = "Dense\n";
    for (int i = -kTaken; i <= kTaken; ++i) {
        const double x = static_cast<double>(i < 0 ? -i : i) / kTaken;
        const double y = (i < 0 ? 0.5 : -0.3) * x * (1 - x);
        text += std::to_string(x) + " " + std::to_string(y) + "\n";
    }
    ExpectCheapAirfoil("99,981 points", text);
}

TEST_F(LargeFiles, AirfoilsOfNothingMuchAreCheap) {
    ExpectCheapAirfoil("blanks", Filled(" ", "Title\n"));
    ExpectCheapAirfoil("line ends", Filled("\n"));
    ExpectCheapAirfoil("carriage returns", Filled("\r"));
    ExpectCheapAirfoil("minus signs", Filled("-", "Title\n1 "));
    ExpectCheapAirfoil("NULs", std::string(kTenMegabytes, '\0'));
    ExpectCheapAirfoil("exponents", Filled("e1", "Title\n1 0\n0.5 "));
    ExpectCheapAirfoil("digits", Filled("3", "Title\n1 0\n0.5 0.", "\n1 0\n"));
    ExpectCheapAirfoil("accents", Filled("\xE9"));
    ExpectCheapAirfoil("halves of UTF-16 pairs", Filled(std::string("\0\xD8", 2), "\xFF\xFE"));
}

TEST_F(LargeFiles, RibComponentsAreCheap) {
    folder.File("naca2412.dat", ReadWholeFile(Sample("naca2412.dat")));
    ExpectCheapComponents("records", Filled(ComponentsText{}.Current()));
    ExpectCheapComponents("older records", Filled(ComponentsText{}.Older()));
    ExpectCheapComponents("line ends", Filled("\n"));
    ExpectCheapComponents("lengths that are none", Filled("2./8\r\n"));
    ComponentsText rib;
    rib.text = Filled("W", "", ComponentsText{}.Current());
    ExpectCheapComponents("a text", rib.Current());
}

TEST_F(LargeFiles, SettingsAreCheap) {
    const std::string values = "[Defaut]\r\nunit= mm\r\ncordeAfich=200\r\n";
    const auto section = [](int number) {
        return "[section " + std::to_string(number) + "]\r\nkey=1\r\n";
    };
    ExpectCheapSettings("one section", Filled("k=v\r\n", "[k]\r\n", values));
    ExpectCheapSettings("one key", Filled("v", "[k]\r\nk=", "\r\n" + values));
    ExpectCheapSettings("sections", Numbered(section, "", values));
    ExpectCheapSettings("line ends", Filled("\n", "", values));
    ExpectCheapSettings("papers", Filled("A|100|200;", values + "[Feuilles]\r\nPapiers="));
}

TEST_F(LargeFiles, PanelsAndWingsAreCheap) {
    const std::string panel = "[Panel]\r\nRoot=root.lfw\r\nTip=tip.lfw\r\nUnit=mm\r\nLength=300\r\n"
                              "Thickness=2\r\n";
    folder.File("naca2412.dat", ReadWholeFile(Sample("naca2412.dat")));
    for (const char *end : {"root.lfw", "tip.lfw"}) {
        folder.File(end, ComponentsText{}.Current());
    }
    const auto range = [](int number) { return "spar" + std::to_string(number) + "=1-3\r\n"; };
    ExpectCheapPanel("ranges", Numbered(range, panel + "Count=3\r\n[Ranges]\r\n"));
    ExpectCheapPanel("one range", Filled("spar1=1-3\r\n", panel + "Count=3\r\n[Ranges]\r\n"));
    ExpectCheapPanel("near ranges", Filled("spar1 =1-3\r\n", panel + "[Ranges]\r\n", "spar1=1-2"));
    ExpectCheapPanel("a hundred thousand ribs", panel + "Count=100000\r\n");
    ExpectCheapPanel("gaps", Filled("1 ", panel + "Gaps="));
    const auto name = [](int number) { return "Panel" + std::to_string(number) + "=a.lfp\r\n"; };
    ExpectCheap({"plan", folder.File("wing.lfa", Numbered(name, "[Wing]\r\n")), "-o",
                 folder.Path("out.svg")});
}

} // namespace
} // namespace loftwing
