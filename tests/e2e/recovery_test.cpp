// The window killed at any moment: its unsaved rib is on disk whole, and the next start has it.

#include "base/whole_file.h"
#include "e2e/program.h"
#include "e2e/started.h"
#include "persist/rib_snapshot.h"
#include "support/temp_folder.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <functional>
#include <locale>
#include <memory>
#include <sstream>
#include <thread>

namespace loftwing {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using Moment = std::chrono::steady_clock::time_point;

Moment Now() {
    return std::chrono::steady_clock::now();
}

bool Within(std::chrono::seconds longest, const std::function<bool()> &so) {
    const Moment end = Now() + longest;
    while (!so()) {
        if (Now() > end) {
            return false;
        }
        std::this_thread::sleep_for(milliseconds(5));
    }
    return true;
}

/// A user's home, in which a window can be killed without harm to others.
class RecoveryHome {
  public:
    RecoveryHome() {
        fs::permissions(folder_.Path(), fs::perms::owner_all);
        folder_.File("settings.ini", "[Language]\r\nLangue=English\r\n[Defaut]\r\nunit= mm\r\n"
                                     "cordeAfich=180\r\nEpCoffrageAfich=1.5\r\nEpBAAfich=0\r\n"
                                     "[Repertoires]\r\nInstall=1\r\nRepProfil=" +
                                         folder_.Path() + "\r\nRepProfilevol=" + folder_.Path() +
                                         "\r\n");
    }
    /// Starts the window with an airfoil, which makes a rib that isn't saved.
    std::unique_ptr<Started> Start(rlim_t limit = 0) const {
        const std::vector<std::string> words = {"--settings", folder_.Path("settings.ini"),
                                                Sample("naca2412.dat")};
        return std::make_unique<Started>(words, folder_.Path(), limit);
    }
    /// The files of the recovery folder with that ending.
    std::vector<std::string> Files(const std::string &ending) const {
        std::vector<std::string> names;
        std::error_code error;
        for (const auto &entry : fs::directory_iterator(folder_.Path("loftwing/recovery"), error)) {
            if (entry.path().extension() == ending) {
                names.push_back(entry.path().string());
            }
        }
        return names;
    }
    std::vector<std::string> Ribs() const { return Files(".rib"); }
    /// The process that holds the rib; 0 where none is told.
    long Holder() const {
        for (const std::string &lock : Files(".lock")) {
            try {
                return std::stol(ReadWholeFile(lock));
            } catch (const std::exception &) {
                return 0; // being written
            } catch (const Failure &) {
                return 0;
            }
        }
        return 0;
    }

  private:
    TempFolder folder_;
};

/// The points of the airfoil as anybody reads them.
void ExpectPoints(const PartiesRib &rib) {
    std::istringstream text(ReadWholeFile(Sample("naca2412.dat")));
    text.imbue(std::locale::classic());
    std::string title;
    std::getline(text, title);
    double x = 0;
    double y = 0;
    int count = 0;
    while (text >> x >> y) {
        ++count;
        EXPECT_EQ(rib.ProfilX(count), x);
        EXPECT_EQ(rib.ProfilY(count), y);
    }
    EXPECT_EQ(rib.NbPoints, count);
    EXPECT_GT(count, 20);
}

/// The one rib that was kept, whole; its bytes.
std::string ExpectRib(const RecoveryHome &home) {
    const std::vector<std::string> files = home.Ribs();
    EXPECT_EQ(files.size(), 1U);
    if (files.size() != 1) {
        return {};
    }
    std::string bytes = ReadWholeFile(files.front());
    const auto read = LitInstantane(bytes);
    EXPECT_TRUE(read);
    if (!read) {
        return {};
    }
    EXPECT_EQ(read->Unite, " mm");
    EXPECT_EQ(read->parties.NomProfil, "naca2412");
    EXPECT_EQ(read->parties.CheminProfil, Sample("naca2412.dat"));
    EXPECT_EQ(read->parties.cordeAfich, "180");
    EXPECT_EQ(read->parties.corde, 180);
    EXPECT_TRUE(read->parties.Modifie);
    EXPECT_TRUE(read->parties.ProfilCharge);
    ExpectPoints(read->parties);
    return bytes;
}

TEST(Recovery, KilledAtTenMomentsTheRibIsThereWhole) {
    // Right at the start there may be nothing yet; from the first writing on it is always there.
    constexpr std::array kAfterStart = {0, 60, 250, 700, 1500};
    constexpr std::array kAfterWriting = {0, 1, 30, 200, 700};
    for (const int moment : kAfterStart) {
        SCOPED_TRACE("killed " + std::to_string(moment) + " ms after its start");
        const RecoveryHome home;
        const auto window = home.Start();
        std::this_thread::sleep_for(milliseconds(moment));
        window->Kill();
        if (!home.Ribs().empty()) {
            ExpectRib(home);
        }
    }
    std::array<RecoveryHome, kAfterWriting.size()> homes;
    std::array<std::unique_ptr<Started>, kAfterWriting.size()> windows;
    for (std::size_t i = 0; i < homes.size(); ++i) { // all at once, since they wait
        windows.at(i) = homes.at(i).Start();
    }
    for (std::size_t i = 0; i < homes.size(); ++i) {
        SCOPED_TRACE("killed " + std::to_string(kAfterWriting.at(i)) + " ms after it wrote");
        ASSERT_TRUE(Within(std::chrono::seconds(60), [&] { return !homes.at(i).Ribs().empty(); }));
        std::this_thread::sleep_for(milliseconds(kAfterWriting.at(i)));
        windows.at(i)->Kill();
        ExpectRib(homes.at(i));
    }
}

TEST(Recovery, TheNextStartHoldsTheRibAndKilledTooLosesNothing) {
    const RecoveryHome home;
    auto window = home.Start();
    ASSERT_TRUE(Within(std::chrono::seconds(60), [&] { return !home.Ribs().empty(); }));
    EXPECT_EQ(home.Holder(), window->Number());
    window->Kill();
    const std::string bytes = ExpectRib(home);
    for (int start = 0; start < 2; ++start) {
        window = home.Start();
        // It offers the rib, and waits for an answer before it opens the file.
        ASSERT_TRUE(
            Within(std::chrono::seconds(60), [&] { return home.Holder() == window->Number(); }));
        window->Kill();
        EXPECT_EQ(ExpectRib(home), bytes);
    }
}

TEST(Recovery, KilledInTheMiddleOfWritingItLeavesNothingThatLooksLikeARib) {
    const RecoveryHome home;
    const int status = home.Start(8192)->Wait();
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ) << status;
    EXPECT_TRUE(home.Ribs().empty());
    EXPECT_EQ(home.Files(".part").size(), 1U);
    const auto window = home.Start();
    ASSERT_TRUE(Within(std::chrono::seconds(60), [&] { return !home.Ribs().empty(); }));
    ExpectRib(home);
}

TEST(Recovery, TwoWindowsKeepARibEach) {
    const RecoveryHome home;
    const auto one = home.Start();
    ASSERT_TRUE(Within(std::chrono::seconds(60), [&] { return home.Ribs().size() == 1; }));
    const auto other = home.Start();
    EXPECT_TRUE(Within(std::chrono::seconds(60), [&] { return home.Ribs().size() == 2; }));
}

} // namespace
} // namespace loftwing
