/// Work on many things at a time: the threads of the command line.
#pragma once

#include <cstddef>
#include <functional>

namespace loftwing {

/// How many threads can work at a time on this machine; 1 where it doesn't tell.
std::size_t Cores();

/// What is left to do with a thing when its turn comes.
struct Turn {
    std::function<void()> take;
    std::size_t bytes = 0; ///< about how much memory it keeps until then
};

/// Makes the turn of one thing. Others are made at the same time, so that it touches what is its
/// own and reads what nobody changes.
using MakeTurn = std::function<Turn(std::size_t index)>;

/// Makes the turns of 0 to `count` - 1 on up to `workers` threads and takes them in the caller's
/// thread, in their order and each as soon as those before it have been taken. Few are made ahead:
/// none while the turns that wait keep more than some MB. What the making or the taking of a turn
/// throws comes out after the turns before it have been taken; no later one is taken then, and no
/// thread works any more. With one worker, or one thing, no thread is started. Where threads can't
/// be had, those there are do it all.
void SideBySide(std::size_t count, std::size_t workers, const MakeTurn &make);

} // namespace loftwing
