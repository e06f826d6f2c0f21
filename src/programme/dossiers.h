/// The folders in which files were last chosen.
#pragma once

#include "programme/programme.h"

#include <string>

namespace loftwing {

/// The folder that the settings file has under `key` of its section of folders, `fallback` when it
/// has none. Failures as GetINIFile.
std::string DossierRetenu(const Programme &programme, const char *key, const std::string &fallback);

/// Notes the folder of a file that was chosen. Failures as WriteINIFile.
void RetientDossier(const Programme &programme, const char *key, const std::string &path);

} // namespace loftwing
