/// What holds for the rib and what belongs to it whatever was done to them: the one place where it
/// is written down.
#pragma once

#include "programme/programme.h"

#include <string>
#include <vector>

namespace loftwing {

/// What is broken of what holds at any time, also while a command is at work and asks something; in
/// words, empty where nothing is.
std::vector<std::string> BrokenAtAnyTime(const Programme &programme);

/// The same of what holds as well when no command is at work and no dialog is open.
std::vector<std::string> BrokenAtRest(const Programme &programme);

} // namespace loftwing
