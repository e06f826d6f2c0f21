#include "output/print_file.h"

#include "base/version.h"

namespace loftwing {

std::string TitreFichierImprime(const Messages &messages) {
    return messages.Text({"FrmPrint", "241"});
}

std::string TexteFichierImprime(const Printer &printer, const Messages &messages) {
    const std::string file = printer.Fichier();
    return file.empty() ? file : messages.Text({"FrmPrint", "242"}) + "\n" + file;
}

void DitFichierImprime(const Printer &printer, const Messages &messages, const std::string &more) {
    const std::string text = TexteFichierImprime(printer, messages);
    if (!text.empty()) {
        messages.Inform(more.empty() ? text : text + "\n" + more, kTitre);
    }
}

} // namespace loftwing
