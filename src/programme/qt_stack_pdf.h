/// The drawings of several ribs as one PDF.
#pragma once

#include "output/drawing_stack.h"

#include <optional>
#include <string>

namespace loftwing {

/// The bytes of a stack's file: Prepare and the job. Nothing when it was refused; that was told.
std::optional<std::string> PdfDePile(Pile &pile);

} // namespace loftwing
