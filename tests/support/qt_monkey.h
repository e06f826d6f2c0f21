/// A monkey at the program: it clicks, types, drags, pastes, drops and closes by chance in whatever
/// windows are open, one start of the program after the other.
#pragma once

#include <chrono>
#include <map>
#include <string>

namespace loftwing {

struct MonkeyRun {
    unsigned seed = 1;
    int events = 1000;
    std::string language = "English";
    std::string unit = "mm";
};

/// What a monkey has seen.
struct MonkeyTrip {
    int events = 0;
    int starts = 0;                     ///< of the program
    std::map<std::string, int> windows; ///< events in each, by the window's name
    std::chrono::milliseconds longest{0};
};

/// Lets a monkey do so many things. After each of them the invariants of the rib must hold, and
/// when all windows are closed none may be left over. What is broken fails the test with the log of
/// what led to it, and ends the run. A hang ends the process.
MonkeyTrip LetMonkeyLoose(const MonkeyRun &run);

} // namespace loftwing
