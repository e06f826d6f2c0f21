/// What a monkey did, on disk before it does it, so that a crash can be replayed too; and somebody
/// who watches that it goes on.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <fstream>
#include <mutex>
#include <string>
#include <thread>

namespace loftwing {

class MonkeyLog {
  public:
    explicit MonkeyLog(const std::string &path) : file_(path) {}

    void Line(const std::string &line);
    /// The last lines, oldest first.
    std::string Tail() const;

  private:
    static constexpr std::size_t kKept = 300;

    std::ofstream file_;
    std::deque<std::string> last_;
};

/// Ends the process with a word on standard error where no beat came for too long: a hang can't be
/// left from inside, and a test run that only stands still tells nobody where.
class MonkeyWatch {
  public:
    MonkeyWatch(std::string what, std::chrono::seconds patience);
    MonkeyWatch(const MonkeyWatch &) = delete;
    MonkeyWatch &operator=(const MonkeyWatch &) = delete;
    ~MonkeyWatch();

    void Beat();
    /// The longest time that passed between two beats.
    std::chrono::milliseconds Longest() const { return longest_; }

  private:
    using Clock = std::chrono::steady_clock;

    const std::string what_;
    const std::chrono::seconds patience_;
    std::mutex mutex_;
    std::condition_variable wake_;
    Clock::time_point beat_ = Clock::now();
    std::chrono::milliseconds longest_{0};
    bool over_ = false;
    std::thread thread_;

    void Watch();
};

} // namespace loftwing
