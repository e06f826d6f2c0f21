/// What an import did, in the user's words.
#pragma once

#include "core/airfoil_import.h"
#include "core/messages.h"

#include <string>

namespace loftwing {

/// A deviation in percent of the chord: "0.12 %".
std::string DeviationPercent(double deviation);

/// What was done to the points of a file, sentence by sentence.
std::string ImportStory(const Messages &messages, const ImportedAirfoil &airfoil);

/// Why a file can't be imported, with its line where one is to blame.
std::string ImportRefusalText(const Messages &messages, const ImportRefusal &refusal);

/// Warns that the contour of an airfoil as read leaves the curve through its points; empty while
/// the deviation, in chords, is within the import's tolerance.
std::string DeviationWarning(const Messages &messages, double deviation);

} // namespace loftwing
