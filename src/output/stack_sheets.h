/// What stands on the sheets of a stack beside its drawings, and where the drawings may.
#pragma once

#include "core/app_settings.h"
#include "output/etendue.h"
#include "output/kept_sheets.h"
#include "output/page_setup.h"
#include "output/sheet_marks.h"

#include <string>
#include <vector>

namespace loftwing {

/// Where drawings may stand on a sheet of the page's paper, mm: within the margins, of which the
/// smaller one counts across the rib.
Etendue PlaceDesDessins(const MiseEnPage &page);

/// The sheet as check line and number see it: its size may be other than the paper's, on a printer
/// that stretches.
FeuilleTemoin FeuilleDePile(const MiseEnPage &page, const SheetSize &size);

/// Writes a sheet's number on it, where nothing is drawn: in a corner of its room, otherwise as
/// near to the lower right one as there is a place.
void EcritNumero(Recording &sheet, const std::string &number, const Etendue &room);
/// Writes "2/5" on every sheet.
void EcritNumeros(KeptSheets &sheets, const FeuilleTemoin &feuille);

} // namespace loftwing
