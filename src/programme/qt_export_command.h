/// The window's commands that write a drawing to a file.
#pragma once

#include "programme/qt_export_forms.h"

namespace loftwing {

/// Asks for a name and a form and writes the current view in it; a file that is there is replaced
/// whole. A form that is alone behind its entry is made before the name is asked for, so that a
/// refusal comes first. False after a plot's failure, which has been reported: the caller clears
/// the rib. Failures of folders and files, and of a writing that breaks off, which leaves the file
/// as far as it came.
bool ExporteVue(Programme &programme, const EntreeExport &entree, const ReglagePage &page);

} // namespace loftwing
