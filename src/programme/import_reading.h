/// Reading an airfoil file through the import where that is asked for.
#pragma once

#include "core/airfoil_import.h"
#include "core/airfoil_reader.h"

#include <string>

namespace loftwing {

/// Whether an airfoil file is read as it stands or whatever order and scale it has.
enum class ReadingWay { as_it_stands, by_import };

/// Imports the file CheminProfil. Failures as ReadWholeFile and ImportAirfoil.
ImportedAirfoil ImportFile(const std::string &path, const ImportWishes &wishes = {});

/// Takes an import into ProfilX, ProfilY, NbPoints and EnteteProfil, as reading its airfoil file
/// would.
void TakeImport(RibModel &rib, const ImportedAirfoil &airfoil);

/// Reads the file CheminProfil, one way or the other. A refusal or failure is told in a box with
/// the title `titre`.
ResultatLecture ReadAirfoil(RibModel &rib, const Messages &messages, const std::string &titre,
                            ReadingWay way);

} // namespace loftwing
