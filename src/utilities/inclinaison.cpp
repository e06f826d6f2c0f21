#include "utilities/inclinaison.h"

#include "base/number_text.h"
#include "core/stations.h"
#include "utilities/tool_files.h"

#include <cmath>

namespace loftwing {

std::optional<float> PrendAngleDiedre(const std::string &typed, const Messages &messages,
                                      const std::string &titre) {
    if (LeadingNumber(typed) == 0.0) {
        messages.Inform(messages.Text({"FrmInclinaisonNervure", "6"}), titre);
        return std::nullopt;
    }
    const float AngleDiedre = ToSingle(LeadingNumber(typed));
    constexpr float kAngleDroit = 90;
    if (AngleDiedre >= kAngleDroit) {
        messages.Inform(messages.Text({"FrmInclinaisonNervure", "7"}) + " 89° !", titre);
        return std::nullopt;
    }
    return AngleDiedre;
}

std::string NomIncline(const std::string &NomProfil, float AngleDiedre) {
    return NomProfil + "_" + Format(AngleDiedre, kPictureAngleNom) + ".dat";
}

std::string TexteIncline(float AngleDiedre, const ProfilChoisi &profil) {
    // A title of a file, the same in every language.
    const std::string title = "diedre " + Format(AngleDiedre, kPictureTwoWithZero) + kDegre;
    return TexteEtire(title, profil, std::cos(EnRadians(Wide(AngleDiedre))));
}

} // namespace loftwing
