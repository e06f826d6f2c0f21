/// Pieces for a cutter as the window's files.
#pragma once

#include "programme/cut_steps.h"

namespace loftwing {

/// Asks for a name and a form and writes the pieces in it; a file that is there is replaced whole.
/// `choix` gets the form and is remembered. The file's path, empty where the box was cancelled.
/// Failure 75 where the file can't be written; nothing is left of it or remembered then.
std::string EnregistreDecoupe(const Programme &programme, const std::vector<Piece> &pieces,
                              ChoixDecoupe &choix);

} // namespace loftwing
