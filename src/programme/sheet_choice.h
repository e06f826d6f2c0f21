/// What is typed and chosen for sheets of stock, as windows and files keep it.
#pragma once

#include <string>
#include <string_view>

namespace loftwing {

class IniFile;

/// Lengths are texts in the unit in force.
struct SaisiePlanches {
    std::string formats; ///< "100x1000", several with blanks between
    std::string ecart;   ///< between two pieces
    std::string marge;   ///< to the edges of a sheet
    std::string copies;  ///< of each piece, for one wing
    std::string saignee; ///< kerf
    bool deux_ailes = false;
    bool demi_tour = false;
    bool marques = true;
    bool polylignes = false; ///< of DXF
    std::string forme = {};  ///< extension of the form that was used last

    bool operator==(const SaisiePlanches &) const = default;
};

/// What a new panel begins with.
SaisiePlanches PlanchesUsuelles(std::string_view Unite);

/// Those of a file; what it doesn't have stays as in `choix`.
SaisiePlanches LitPlanches(const IniFile &file, SaisiePlanches choix);
void PosePlanches(IniFile &file, const SaisiePlanches &choix);

} // namespace loftwing
