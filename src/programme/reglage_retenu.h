/// Single values of the settings file, for whom it does no harm when there is none.
#pragma once

#include "lang/ini_file.h"
#include "programme/programme.h"

#include <functional>
#include <string>
#include <string_view>

namespace loftwing {

/// The settings file, an empty one where it can't be read. That was told when the program started,
/// and must stop no command.
IniFile ReglagesRetenus(const Programme &programme);

/// One value of it, empty where there is none.
std::string ReglageRetenu(const Programme &programme, std::string_view section,
                          std::string_view key);

/// Sets values in the file and writes it. One that can't be read stays as it is.
void RetientReglages(const Programme &programme, const std::function<void(IniFile &)> &pose);

} // namespace loftwing
