/// `loftwing draw --stacked`: the drawings of all FILEs in one PDF.
#pragma once

#include "app/arguments.h"
#include "app/console_program.h"
#include "app/drawing_target.h"
#include "core/contour.h"

#include <functional>
#include <string>
#include <vector>

namespace loftwing {

inline constexpr const char *kStacked = "--stacked";

std::vector<OptionRule> StackOptions();

/// Where the one file of all `files` goes. Throws UsageError for words that name no place for a
/// PDF.
DrawingTarget TargetOfStack(const Arguments &arguments, DrawingVerb verb,
                            const std::vector<std::string> &files);

/// Opens one FILE in a program of its own, with the options' values. What it tells is told.
using PrepareFile = std::function<Preparation(ConsoleProgram &program, const std::string &file)>;

/// Draws all `files` on as few pages as they need; the exit status. A refused one leaves nothing
/// under the name of OUT.
int DrawStacked(const Arguments &arguments, const DrawingVerb &verb,
                const std::vector<std::string> &files, const PrepareFile &prepare);

} // namespace loftwing
