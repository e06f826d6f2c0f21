#include "support/system_calls.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>

#if defined(__linux__) && (defined(__x86_64__) || defined(__aarch64__))
#define LOFTWING_WATCHES_CALLS

#include <elf.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace loftwing {

long WatchedRun::Place(const std::vector<long> &numbers, long from) const {
    for (std::size_t i = static_cast<std::size_t>(from); i < calls.size(); ++i) {
        if (std::count(numbers.begin(), numbers.end(), calls[i]) > 0) {
            return static_cast<long>(i);
        }
    }
    return -1;
}

#ifdef LOFTWING_WATCHES_CALLS

bool WatchedRun::Exited(int code) const {
    return WIFEXITED(status) && WEXITSTATUS(status) == code;
}

bool WatchedRun::Killed() const {
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

namespace {

/// Calls that have to do with files. A process that gets no memory any more is another matter.
const std::vector<long> kFileCalls = {
#ifdef SYS_open
    SYS_open,      SYS_stat,       SYS_lstat,     SYS_access, SYS_rename,     SYS_unlink,
    SYS_chmod,     SYS_readlink,
#endif
    SYS_openat,    SYS_newfstatat, SYS_statx,     SYS_fstat,  SYS_faccessat,  SYS_faccessat2,
#ifdef SYS_renameat
    SYS_renameat,
#endif
    SYS_renameat2, SYS_unlinkat,   SYS_fchmodat,  SYS_fchmod, SYS_readlinkat, SYS_read,
    SYS_write,     SYS_writev,     SYS_lseek,     SYS_close,  SYS_fsync,      SYS_fdatasync,
    SYS_fcntl,     SYS_flock,      SYS_getdents64};

bool Holds(const std::vector<long> &numbers, long number) {
    return std::count(numbers.begin(), numbers.end(), number) > 0;
}

/// The text that stands at a place of another process; empty where it can't be read.
std::string TextAt(pid_t pid, std::uint64_t place) {
    std::array<char, 256> bytes{};
    // In two pieces, for behind the end of the first one's page there may be nothing.
    constexpr std::uint64_t kPage = 4096;
    const std::size_t some = std::min<std::uint64_t>(bytes.size(), kPage - place % kPage);
    const iovec here{bytes.data(), bytes.size()};
    const std::array<iovec, 2> there{{{reinterpret_cast<void *>(place), some}, // NOLINT: its own
                                      {reinterpret_cast<void *>(place + some), // NOLINT: its own
                                       bytes.size() - some}}};
    const ssize_t count = process_vm_readv(pid, &here, 1, there.data(), there.size(), 0);
    const std::string text(bytes.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    return text.substr(0, text.find('\0'));
}

/// Has the call that a process is about to make not made.
void Withhold(pid_t thread) {
#ifdef __x86_64__
    ptrace(PTRACE_POKEUSER, thread, offsetof(user_regs_struct, orig_rax), -1L);
#else
    int none = -1;
    iovec call{&none, sizeof none};
    ptrace(PTRACE_SETREGSET, thread, NT_ARM_SYSTEM_CALL, &call);
#endif
}

/// What a call that was withheld answers.
void Answer(pid_t thread, int error) {
#ifdef __x86_64__
    ptrace(PTRACE_POKEUSER, thread, offsetof(user_regs_struct, rax), -static_cast<long>(error));
#else
    user_regs_struct registers{};
    iovec all{&registers, sizeof registers};
    ptrace(PTRACE_GETREGSET, thread, NT_PRSTATUS, &all);
    registers.regs[0] = static_cast<std::uint64_t>(-static_cast<long>(error));
    ptrace(PTRACE_SETREGSET, thread, NT_PRSTATUS, &all);
#endif
}

/// Follows one process and its threads.
class Watch {
  public:
    Watch(pid_t pid, std::string folder, std::optional<CallFault> fault)
        : pid_(pid), folder_(std::move(folder)), fault_(fault) {}

    WatchedRun Follow() {
        int status = 0;
        waitpid(pid_, &status, __WALL);
        if (!WIFSTOPPED(status)) {
            run_.status = status;
            return run_; // it wasn't allowed
        }
        run_.watched = true;
        ptrace(PTRACE_SETOPTIONS, pid_, 0,
               PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACECLONE | PTRACE_O_EXITKILL);
        ptrace(PTRACE_SYSCALL, pid_, 0, 0);
        while (true) {
            const pid_t thread = waitpid(-1, &status, __WALL);
            if (thread < 0) {
                return run_;
            }
            if (!WIFSTOPPED(status)) {
                if (thread == pid_) {
                    run_.status = status;
                    return run_;
                }
                continue;
            }
            Continue(thread, Stopped(thread, status));
        }
    }

  private:
    pid_t pid_;
    std::string folder_;
    std::optional<CallFault> fault_;
    WatchedRun run_;
    bool counts_ = false;
    std::map<pid_t, bool> withheld_;

    static void Continue(pid_t thread, int signal) { ptrace(PTRACE_SYSCALL, thread, 0, signal); }

    /// Gives the signal that the thread is to have.
    int Stopped(pid_t thread, int status) {
        const int signal = WSTOPSIG(status);
        if (signal == (SIGTRAP | 0x80)) {
            __ptrace_syscall_info call{};
            ptrace(PTRACE_GET_SYSCALL_INFO, thread, sizeof call, &call);
            if (call.op == PTRACE_SYSCALL_INFO_ENTRY) {
                Enters(thread, call);
            } else if (std::exchange(withheld_[thread], false)) {
                Answer(thread, fault_->error);
            }
            return 0;
        }
        return signal == SIGTRAP || signal == SIGSTOP ? 0 : signal; // those are the watch's own
    }

    void Enters(pid_t thread, const __ptrace_syscall_info &call) {
        const long number = static_cast<long>(call.entry.nr);
        if (!Holds(kFileCalls, number)) {
            return;
        }
        counts_ = counts_ || Names(thread, call.entry.args[0]) || Names(thread, call.entry.args[1]);
        if (!counts_) {
            return;
        }
        run_.calls.push_back(number);
        if (!fault_ || fault_->call != static_cast<int>(run_.calls.size())) {
            return;
        }
        run_.faulted = true;
        if (fault_->error == 0) {
            kill(pid_, SIGKILL);
        } else {
            Withhold(thread);
            withheld_[thread] = true;
        }
    }

    bool Names(pid_t thread, std::uint64_t place) const {
        return TextAt(thread, place).starts_with(folder_);
    }
};

} // namespace

bool CanWatchCalls() {
    const WatchedRun run = WatchCalls([] { return 0; }, "/");
    return run.watched && run.Exited(0);
}

WatchedRun WatchCalls(const std::function<int()> &action, const std::string &folder,
                      std::optional<CallFault> fault) {
    const pid_t child = fork();
    if (child == 0) {
        if (ptrace(PTRACE_TRACEME, 0, 0, 0) != 0) {
            _exit(255);
        }
        raise(SIGSTOP);
        _exit(action());
    }
    return Watch(child, folder, fault).Follow();
}

std::vector<long> FlushCalls() {
    return {SYS_fsync, SYS_fdatasync};
}

std::vector<long> RenameCalls() {
    return {
#ifdef SYS_rename
        SYS_rename,
#endif
#ifdef SYS_renameat
        SYS_renameat,
#endif
        SYS_renameat2};
}

#else

bool WatchedRun::Exited(int) const {
    return false;
}

bool WatchedRun::Killed() const {
    return false;
}

bool CanWatchCalls() {
    return false;
}

WatchedRun WatchCalls(const std::function<int()> &, const std::string &, std::optional<CallFault>) {
    return {};
}

std::vector<long> FlushCalls() {
    return {};
}

std::vector<long> RenameCalls() {
    return {};
}

#endif

} // namespace loftwing
