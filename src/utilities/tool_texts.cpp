#include "utilities/tool_texts.h"

#include "core/units.h"

namespace loftwing {

std::string LongueurSousImage(double mm, const std::string &Unite, std::string_view picture) {
    std::string text = FormatAffiche(DepuisMm(mm, Unite), picture);
    const bool has_digit = text.find_first_of("0123456789") != std::string::npos;
    return has_digit ? text : "0";
}

} // namespace loftwing
