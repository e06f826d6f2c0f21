#include "programme/qt_stack_pdf.h"

#include "platform/qt_printer.h"

namespace loftwing {

std::optional<std::string> PdfDePile(Pile &pile) {
    if (pile.Prepare()) {
        return std::nullopt;
    }
    std::string bytes;
    const auto printer = MakePdfPrinter(bytes, pile.Question().document);
    if (pile.Imprime(*printer) != FinImpression::imprime) {
        return std::nullopt;
    }
    return bytes;
}

} // namespace loftwing
