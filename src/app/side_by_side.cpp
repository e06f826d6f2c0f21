#include "app/side_by_side.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace loftwing {

namespace {

/// Turns that each worker may be ahead: enough for an expensive one to hold nobody up.
constexpr std::size_t kAhead = 16;
/// Bytes that may wait for their turn before no other one is begun.
constexpr std::size_t kBytesAhead = std::size_t{16} * 1024 * 1024;

/// A turn that was made, or what its making threw.
struct Made {
    Turn turn;
    std::exception_ptr thrown;
    bool there = false;
};

Made MakeOne(const MakeTurn &make, std::size_t index) {
    Made made;
    try {
        made.turn = make(index);
    } catch (...) {
        made.thrown = std::current_exception();
    }
    made.there = true;
    return made;
}

void Take(const Made &made) {
    if (made.thrown) {
        std::rethrow_exception(made.thrown);
    }
    made.turn.take();
}

/// Threads that make turns, and the turns that wait. The threads end with it.
class Workshop {
  public:
    Workshop(std::size_t count, std::size_t workers, const MakeTurn &make)
        : count_(count), make_(make), waiting_(std::min(count, workers * kAhead)) {
        threads_.reserve(workers);
        Start(workers);
    }
    Workshop(const Workshop &) = delete;
    Workshop &operator=(const Workshop &) = delete;
    ~Workshop() {
        {
            const std::lock_guard lock(mutex_);
            stopped_ = true;
        }
        room_.notify_all();
        for (std::thread &thread : threads_) {
            thread.join();
        }
    }

    bool HasWorkers() const { return !threads_.empty(); }

    /// The next turn, when it is made.
    Made Next() {
        std::unique_lock lock(mutex_);
        Made &place = PlaceOf(taken_);
        done_.wait(lock, [&place] { return place.there; });
        return std::exchange(place, {});
    }

    /// The turn that Next gave is over.
    void Taken(const Made &made) {
        {
            const std::lock_guard lock(mutex_);
            bytes_ -= made.turn.bytes;
            ++taken_;
        }
        room_.notify_all();
    }

  private:
    const std::size_t count_;
    const MakeTurn &make_;
    std::mutex mutex_; // of all that follows but the threads
    std::condition_variable done_;
    std::condition_variable room_;
    std::vector<Made> waiting_; ///< a ring: each turn has the place of its number
    std::size_t begun_ = 0;
    std::size_t taken_ = 0;
    std::size_t bytes_ = 0; ///< that the turns which wait keep
    bool stopped_ = false;
    std::vector<std::thread> threads_;

    Made &PlaceOf(std::size_t index) { return waiting_[index % waiting_.size()]; }

    void Start(std::size_t workers) {
        try {
            while (threads_.size() < workers) {
                threads_.emplace_back([this] { Work(); });
            }
        } catch (const std::system_error &) {
            // The system has no more threads for this process.
        }
    }

    /// Whether the next turn may be begun. The one that everybody waits for always may.
    bool HasRoom() const {
        return begun_ == taken_ || (begun_ < taken_ + waiting_.size() && bytes_ <= kBytesAhead);
    }

    void Work() {
        std::unique_lock lock(mutex_);
        while (true) {
            room_.wait(lock, [this] { return stopped_ || begun_ == count_ || HasRoom(); });
            if (stopped_ || begun_ == count_) {
                return;
            }
            const std::size_t index = begun_++;
            lock.unlock();
            Made made = MakeOne(make_, index);
            lock.lock();
            bytes_ += made.turn.bytes;
            PlaceOf(index) = std::move(made);
            if (index == taken_) {
                done_.notify_one();
            }
        }
    }
};

void OneByOne(std::size_t count, const MakeTurn &make) {
    for (std::size_t index = 0; index < count; ++index) {
        make(index).take();
    }
}

} // namespace

std::size_t Cores() {
    return std::max(1U, std::thread::hardware_concurrency());
}

void SideBySide(std::size_t count, std::size_t workers, const MakeTurn &make) {
    const std::size_t useful = std::min(workers, count);
    if (useful <= 1) {
        OneByOne(count, make);
        return;
    }
    Workshop workshop(count, useful, make);
    if (!workshop.HasWorkers()) {
        OneByOne(count, make);
        return;
    }
    for (std::size_t index = 0; index < count; ++index) {
        const Made made = workshop.Next();
        Take(made);
        workshop.Taken(made);
    }
}

} // namespace loftwing
