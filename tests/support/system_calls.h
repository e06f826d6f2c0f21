/// A process whose system calls are watched, and of which one may be refused or be the last.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// What befalls one of the calls that count.
struct CallFault {
    int call = 1;  ///< counted from 1
    int error = 0; ///< what the call answers instead of being made; 0: the process is killed there
};

struct WatchedRun {
    bool watched = false;    ///< false where the system lets no process be watched
    int status = 0;          ///< as waitpid has it
    std::vector<long> calls; ///< the numbers of the calls that counted, SYS_write and so on
    bool faulted = false;    ///< the call with the fault was reached

    bool Exited(int code) const;
    bool Killed() const;
    /// The place of a call's first occurrence, and of the first one from a place on; -1 where there
    /// is none.
    long Place(const std::vector<long> &numbers, long from = 0) const;
};

/// Whether a process may be watched here; containers may forbid it.
bool CanWatchCalls();

/// Runs `action` in a process of its own, which ends with what it returns or becomes another
/// program. The calls that count are those that have to do with files, from the first on that
/// names `folder`.
WatchedRun WatchCalls(const std::function<int()> &action, const std::string &folder,
                      std::optional<CallFault> fault = std::nullopt);

/// The numbers of a system that are called fsync and rename.
std::vector<long> FlushCalls();
std::vector<long> RenameCalls();

} // namespace loftwing
