#include "utilities/tool_files.h"

#include "base/number_text.h"
#include "base/version.h"

#include <algorithm>

namespace loftwing {

void TermineDossier(std::string &RepProfilevol) {
    if (!Trim(RepProfilevol).ends_with('/')) {
        RepProfilevol += '/';
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
    return text;
}

void RapporteAngle(const Messages &messages, const Failure &failure) {
    const std::string error = messages.Text({"Erreur", "1"});
    messages.Inform(error + " # " + std::to_string(failure.number) + " From  " + kTitre +
                        failure.description,
                    error + " Angle/OK");
}

} // namespace loftwing
