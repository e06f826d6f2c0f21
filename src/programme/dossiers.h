/// The folders in which files were last chosen.
#pragma once

#include "programme/programme.h"

#include <string>
#include <vector>

namespace loftwing {

/// The folder that the settings file has under `key` of its section of folders, `fallback` when it
/// has none or can't be read.
std::string DossierRetenu(const Programme &programme, const char *key, const std::string &fallback);

/// A path from the root of the file system on.
std::string CheminEntier(const std::string &path);
/// The folder of a file, as such a path.
std::string DossierDe(const std::string &path);
/// The path under which a text file at `fichier` names another file: from its folder on where the
/// other one lies there or below, so that both can move together, otherwise the whole path.
std::string CheminVu(const std::string &fichier, const std::string &autre);
/// Whether a file lies in one of some folders or below it.
bool EstDans(const std::string &path, const std::vector<std::string> &dossiers);

/// Notes the folder of a file that was chosen, where the settings file takes it and can give its
/// name back.
void RetientDossier(const Programme &programme, const char *key, const std::string &path);

} // namespace loftwing
