#include "app/side_by_side.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <numeric>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::chrono::seconds kPatience{60};

/// 0 to `count` - 1.
std::vector<std::size_t> Numbers(std::size_t count) {
    std::vector<std::size_t> numbers(count);
    std::iota(numbers.begin(), numbers.end(), std::size_t{0});
    return numbers;
}

/// Something that one thread waits for and another one brings about.
class Signal {
  public:
    void Give() {
        {
            const std::lock_guard lock(mutex_);
            given_ = true;
        }
        changed_.notify_all();
    }
    /// False when nobody gave it in time.
    bool Wait() {
        std::unique_lock lock(mutex_);
        return changed_.wait_for(lock, kPatience, [this] { return given_; });
    }

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    bool given_ = false;
};

/// The order in which turns are taken.
std::vector<std::size_t> TakenOf(std::size_t count, std::size_t workers) {
    std::vector<std::size_t> taken;
    SideBySide(count, workers, [&taken](std::size_t index) -> Turn {
        return {[&taken, index] { taken.push_back(index); }};
    });
    return taken;
}

TEST(SideBySide, TakesAllTurnsInTheirOrder) {
    for (const std::size_t workers : {1U, 2U, 3U, 16U}) {
        for (const std::size_t count : {2U, 3U, 31U, 1000U}) {
            EXPECT_EQ(TakenOf(count, workers), Numbers(count)) << workers << " workers";
        }
    }
}

TEST(SideBySide, OfNothingTakesNothing) {
    EXPECT_THAT(TakenOf(0, 4), IsEmpty());
    EXPECT_THAT(TakenOf(0, 0), IsEmpty());
}

TEST(SideBySide, OneThingIsDoneInTheCallersThread) {
    std::thread::id maker;
    SideBySide(1, 4, [&maker](std::size_t) -> Turn {
        maker = std::this_thread::get_id();
        return {[] {}};
    });
    EXPECT_EQ(maker, std::this_thread::get_id());
    EXPECT_THAT(TakenOf(1, 4), ElementsAre(0U));
}

TEST(SideBySide, OneWorkerDoesOneThingAfterAnother) {
    std::vector<std::string> done;
    SideBySide(3, 1, [&done](std::size_t index) -> Turn {
        done.push_back("make " + std::to_string(index));
        return {[&done, index] { done.push_back("take " + std::to_string(index)); }};
    });
    EXPECT_THAT(done, ElementsAre("make 0", "take 0", "make 1", "take 1", "make 2", "take 2"));
}

TEST(SideBySide, TurnsAreTakenInTheCallersThread) {
    std::set<std::thread::id> takers;
    SideBySide(50, 3, [&takers](std::size_t) -> Turn {
        return {[&takers] { takers.insert(std::this_thread::get_id()); }};
    });
    EXPECT_THAT(takers, ElementsAre(std::this_thread::get_id()));
}

TEST(SideBySide, TwoThingsAreMadeAtTheSameTime) {
    Signal first;
    Signal second;
    std::atomic<bool> met = true;
    SideBySide(2, 2, [&](std::size_t index) -> Turn {
        (index == 0 ? first : second).Give();
        met = (index == 0 ? second : first).Wait() && met; // each waits until the other has begun
        return {[] {}};
    });
    EXPECT_TRUE(met);
}

TEST(SideBySide, ATurnIsTakenAsSoonAsThoseBeforeItAreMade) {
    Signal taken;
    std::atomic<bool> in_time = false;
    SideBySide(2, 2, [&](std::size_t index) -> Turn {
        if (index == 0) {
            return {[&taken] { taken.Give(); }};
        }
        in_time = taken.Wait(); // the last one isn't made before the first one is taken
        return {[] {}};
    });
    EXPECT_TRUE(in_time);
}

TEST(SideBySide, ASlowOneLetsTheOthersGoAheadButNotForEver) {
    Signal ahead;
    std::atomic<std::size_t> begun = 0;
    std::size_t while_waiting = 0;
    constexpr std::size_t kMany = 5000;
    SideBySide(kMany, 2, [&](std::size_t index) -> Turn {
        ++begun;
        if (index == 10) {
            ahead.Give();
        }
        if (index == 0) {
            EXPECT_TRUE(ahead.Wait()); // others go on meanwhile
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        return {[&, index] {
            if (index == 0) {
                while_waiting = begun;
            }
        }};
    });
    EXPECT_EQ(begun, kMany);
    EXPECT_GT(while_waiting, 10U);
    EXPECT_LT(while_waiting, 200U);
}

TEST(SideBySide, NoneIsBegunWhileMuchWaits) {
    Signal ahead;
    std::atomic<std::size_t> begun = 0;
    std::size_t while_waiting = 0;
    constexpr std::size_t kHeavy = std::size_t{10} * 1024 * 1024;
    SideBySide(100, 2, [&](std::size_t index) -> Turn {
        if (++begun == 2) {
            ahead.Give();
        }
        if (index == 0) {
            EXPECT_TRUE(ahead.Wait());
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        return {[&, index] {
                    if (index == 0) {
                        while_waiting = begun;
                    }
                },
                kHeavy};
    });
    EXPECT_EQ(begun, 100U) << "each has its turn, however heavy";
    EXPECT_EQ(while_waiting, 3U) << "the slow one, and two that are too heavy together";
}

/// What was taken before something was thrown.
template <class Throws>
std::vector<std::size_t> TakenUntilThrown(std::size_t workers, Throws throws) {
    std::vector<std::size_t> taken;
    EXPECT_THROW(SideBySide(100, workers,
                            [&](std::size_t index) -> Turn {
                                throws(index, true);
                                return {[&taken, &throws, index] {
                                    throws(index, false);
                                    taken.push_back(index);
                                }};
                            }),
                 std::runtime_error);
    return taken;
}

TEST(SideBySide, WhatMakingThrowsComesOutAtItsTurn) {
    for (const std::size_t workers : {1U, 2U, 5U}) {
        EXPECT_EQ(TakenUntilThrown(workers,
                                   [](std::size_t index, bool making) {
                                       if (making && (index == 40 || index == 41)) {
                                           throw std::runtime_error("made");
                                       }
                                   }),
                  Numbers(40));
    }
}

TEST(SideBySide, WhatTakingThrowsEndsAll) {
    for (const std::size_t workers : {1U, 2U, 5U}) {
        EXPECT_EQ(TakenUntilThrown(workers,
                                   [](std::size_t index, bool making) {
                                       if (!making && index == 40) {
                                           throw std::runtime_error("taken");
                                       }
                                   }),
                  Numbers(40));
    }
}

TEST(SideBySide, NobodyWorksAnyMoreAfterItHasThrown) {
    std::atomic<int> at_work = 0;
    std::atomic<std::size_t> begun = 0;
    EXPECT_THROW(SideBySide(100000, 3,
                            [&](std::size_t index) -> Turn {
                                ++at_work;
                                ++begun;
                                std::this_thread::yield();
                                --at_work;
                                return {[index] {
                                    if (index == 5) {
                                        throw std::runtime_error("taken");
                                    }
                                }};
                            }),
                 std::runtime_error);
    EXPECT_EQ(at_work, 0);
    EXPECT_LT(begun, 1000U);
}

TEST(SideBySide, ThereIsACoreToWorkOn) {
    EXPECT_GE(Cores(), 1U);
}

} // namespace
} // namespace loftwing
