/// The built program, started without waiting for it.
#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace loftwing {

class Started {
  public:
    /// In a home of its own. With a `limit` the system kills it when it writes more than so many
    /// bytes to a file.
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
    pid_t Number() const { return pid_; }

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
        for (const char *name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
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

} // namespace loftwing
