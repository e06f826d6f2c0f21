#include "utilities/tool_files.h"

#include "base/file_name.h"
#include "base/number_text.h"
#include "base/version.h"

#include <algorithm>

namespace loftwing {

void TermineDossier(std::string &RepProfilevol) {
    if (!EndsInSeparator(Trim(RepProfilevol))) {
        RepProfilevol = WithSeparator(RepProfilevol);
    }
}

std::string MotNervure(const Messages &messages) {
    return messages.Text({"MainTolbar", "25"});
}

std::string MotCorde(const Messages &messages) {
    return messages.Text({"MainTolbar", "13"});
}

std::string TexteDeLignes(const std::vector<std::string> &lignes) {
    std::string text;
    for (const std::string &ligne : lignes) {
        text += ligne + "\r\n";
    }
    return text;
}

std::string NomDeFichier(std::string text) {
    std::replace(text.begin(), text.end(), '/', '-');
    return AsFileName(std::move(text));
}

void EcritFichier(const std::string &path, const std::string &text, Flush flush) {
    WriteWholeFile(path, text, flush);
}

void RapporteEcriture(const Messages &messages, const Failure &failure, const std::string &label) {
    const std::string title = messages.Text({"Erreur", "1"}) + label;
    if (failure.number != kPathNotFound) {
        messages.Inform(messages.TexteEchec(failure), title);
        return;
    }
    messages.Inform(messages.Text({"FrmDefaut", "15"}) + " " + messages.Text({"Message", "2"}) +
                        "\n" + messages.Text({"Message", "3"}) + "\n" +
                        messages.Description(failure),
                    title);
}

void RapporteAngle(const Messages &messages, const Failure &failure) {
    const std::string error = messages.Text({"Erreur", "1"});
    messages.Inform(error + " # " + std::to_string(failure.number) + " From  " + kTitre +
                        messages.Description(failure),
                    error + " Angle/OK");
}

} // namespace loftwing
