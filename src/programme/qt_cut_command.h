/// Pieces for a cutter as the window's files.
#pragma once

#include "programme/cut_steps.h"
#include "programme/panel_sheets.h"

namespace loftwing {

/// Asks for a name and a form and writes the pieces in it; a file that is there is replaced whole.
/// `choix` gets the form and is remembered. The file's path, empty where the box was cancelled.
/// Failures as WriteWholeFile; nothing is left of the file or remembered then.
std::string EnregistreDecoupe(const Programme &programme, const std::vector<Piece> &pieces,
                              ChoixDecoupe &choix);

/// The same for pieces on sheets; `question` has what the box of the name is called, where it opens
/// and what it proposes. All files are written or none. What is there under the names of sheets is
/// asked about first, but for the user's own of just before, `ecrits`. The paths, none where the
/// user gave up. Failures as WriteWholeFiles.
std::vector<std::string> EnregistrePlanches(const Programme &programme, const Imbrication &planches,
                                            FileQuestion question, SaisiePlanches &choix,
                                            FichiersEcritsIci &ecrits);

} // namespace loftwing
