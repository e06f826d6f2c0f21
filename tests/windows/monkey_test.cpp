// Nobody sees to what a window is used for: clicks, keys and drops by chance in all of them.

#include "support/one_locale.h"
#include "support/qt_all_windows.h"
#include "support/qt_monkey.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <random>
#include <set>

namespace loftwing {
namespace {

/// A whole number that the environment sets, or another one.
unsigned Wanted(const char *name, unsigned otherwise) {
    const char *text = std::getenv(name);
    return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
}

std::string WantedText(const char *name, const char *otherwise) {
    const char *text = std::getenv(name);
    return text != nullptr ? text : otherwise;
}

unsigned MonkeySeed() {
    return Wanted("LOFTWING_MONKEY_SEED", std::random_device{}() % 1'000'000);
}

/// The names of all windows that tests know of; boxes are the toolkit's.
std::set<std::string> NamesOfWindows() {
    std::set<std::string> names;
    for (const KnownWindow &window : KnownWindows()) {
        const std::string name = window.name.substr(0, window.name.find('-'));
        names.insert(name == "box" ? "QMessageBox" : name);
    }
    return names;
}

void Tell(const MonkeyTrip &trip) {
    std::cout << trip.events << " events in " << trip.starts << " starts, the longest took "
              << trip.longest.count() << " ms; windows:";
    for (const auto &[name, events] : trip.windows) {
        std::cout << " " << name << " " << events;
    }
    std::cout << "\n";
}

TEST(MonkeyTest, NothingBreaksByWhateverIsDone) {
    MonkeyRun run;
    run.seed = MonkeySeed();
    run.events = static_cast<int>(Wanted("LOFTWING_MONKEY_EVENTS", ManyInOneLocale(2000)));
    run.language = WantedText("LOFTWING_MONKEY_LANGUAGE", "English");
    run.unit = WantedText("LOFTWING_MONKEY_UNIT", "mm");
    const MonkeyTrip trip = LetMonkeyLoose(run);
    Tell(trip);
    constexpr int kLong = 20'000;
    if (run.events < kLong || HasFailure()) {
        return;
    }
    for (const std::string &name : NamesOfWindows()) {
        EXPECT_TRUE(trip.windows.contains(name)) << name;
    }
}

} // namespace
} // namespace loftwing
