/// What a run-time failure is called in the user's language.
#pragma once

#include "base/failure.h"
#include "lang/LngIni.h"

#include <string>

namespace loftwing {

/// The meaning of the failure's number and what the failure concerns: "File not found: /x.dat". In
/// English where the language has no words, as before one is loaded.
std::string Description(const Failure &failure, const LngIni &language);

} // namespace loftwing
