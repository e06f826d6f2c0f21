/// Prints that go into a file instead of a printer.
#pragma once

#include "core/messages.h"
#include "output/printer.h"

#include <string>

namespace loftwing {

/// What the box is called that asks for a file where no printer is installed.
std::string TitreFichierImprime(const Messages &messages);

/// Says where a finished job went; the empty text for one that a printer has.
std::string TexteFichierImprime(const Printer &printer, const Messages &messages);

/// Shows that in a box, with more of the job below it. No box for a printer's job.
void DitFichierImprime(const Printer &printer, const Messages &messages,
                       const std::string &more = {});

} // namespace loftwing
