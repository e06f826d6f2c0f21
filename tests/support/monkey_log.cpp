#include "support/monkey_log.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace loftwing {

void MonkeyLog::Line(const std::string &line) {
    file_ << line << std::endl; // flushed: the next thing may be a crash
    last_.push_back(line);
    if (last_.size() > kKept) {
        last_.pop_front();
    }
}

std::string MonkeyLog::Tail() const {
    std::string text;
    for (const std::string &line : last_) {
        text += line + "\n";
    }
    return text;
}

MonkeyWatch::MonkeyWatch(std::string what, std::chrono::seconds patience)
    : what_(std::move(what)), patience_(patience), thread_([this] { Watch(); }) {}

MonkeyWatch::~MonkeyWatch() {
    {
        const std::lock_guard lock(mutex_);
        over_ = true;
    }
    wake_.notify_all();
    thread_.join();
}

void MonkeyWatch::Beat() {
    const std::lock_guard lock(mutex_);
    const Clock::time_point now = Clock::now();
    longest_ =
        std::max(longest_, std::chrono::duration_cast<std::chrono::milliseconds>(now - beat_));
    beat_ = now;
}

void MonkeyWatch::Watch() {
    std::unique_lock lock(mutex_);
    while (!over_) {
        wake_.wait_for(lock, std::chrono::seconds(1));
        if (!over_ && Clock::now() - beat_ > patience_) {
            std::fprintf(stderr, "no end of an event in %d s: %s\n",
                         static_cast<int>(patience_.count()), what_.c_str());
            std::abort();
        }
    }
}

} // namespace loftwing
