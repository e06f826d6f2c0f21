/// What the tools that write airfoil files share.
#pragma once

#include "base/whole_file.h"
#include "core/messages.h"

#include <string>
#include <vector>

namespace loftwing {

/// Ends the folder of rib sets in a separator, so that file names can follow it.
void TermineDossier(std::string &RepProfilevol);

/// The words for a rib and for a chord in titles of files.
std::string MotNervure(const Messages &messages);
std::string MotCorde(const Messages &messages);

/// The text of a file: every line ended by CR LF, the last one included.
std::string TexteDeLignes(const std::vector<std::string> &lignes);

/// The degree sign, as titles of files have it.
inline constexpr const char *kDegre = "\u00B0";

/// Writes a file whole; the detail of a failure names it. Failures as WriteWholeFile.
void EcritFichier(const std::string &path, const std::string &text, Flush flush = Flush::no);

/// The box of a tool that couldn't write its files; `label` as Messages::Report has it. A missing
/// folder is told in words of its own. The file at which it stopped is named either way.
void RapporteEcriture(const Messages &messages, const Failure &failure, const std::string &label);

/// A name that may stand as one: the slash of a length such as 7.1/2 would lead to a folder.
std::string NomDeFichier(std::string text);

/// The box that the tools for ribs at an angle show when a file can't be written.
void RapporteAngle(const Messages &messages, const Failure &failure);

} // namespace loftwing
