/// The commands of the command line: one table for running them, their help, the manual page and
/// the shell's completion.
#pragma once

#include "app/arguments.h"

#include <span>
#include <string>
#include <vector>

namespace loftwing {

inline constexpr const char *kWhatItIs = "full-size rib drawings from airfoil files";

/// What the words of a verb that are no options name.
enum class Takes { nothing, airfoils, any_files };

struct Verb {
    const char *name;
    const char *usage;
    const char *summary;
    std::vector<OptionRule> (*options)();
    int (*run)(const Arguments &arguments);
    Takes takes;
    /// Another way to use it, for its own help; null without one.
    const char *other_usage = nullptr;
    const char *other_summary = nullptr;
};

/// In the order of the help.
std::span<const Verb> Verbs();
/// The verb of that name; null without one.
const Verb *FindVerb(const std::string &name);

} // namespace loftwing
