/// `loftwing plot` and `loftwing compare`: the drawings of the views that stand in the rib's place.
#pragma once

#include "app/arguments.h"

namespace loftwing {

std::vector<OptionRule> PlotOptions();
/// The simple plot of each FILE; the exit status. Nothing half written is left under OUT.
int RunPlot(const Arguments &arguments);

std::vector<OptionRule> CompareOptions();
/// Two FILEs over each other; the exit status. Nothing half written is left under OUT.
int RunCompare(const Arguments &arguments);

} // namespace loftwing
