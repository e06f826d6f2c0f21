#include "programme/sheet_choice.h"

#include "core/units.h"
#include "lang/ini_file.h"

#include <array>
#include <utility>

namespace loftwing {

namespace {

constexpr const char *kSection = "Sheets";

constexpr std::array<std::pair<const char *, std::string SaisiePlanches::*>, 6> kTextes = {
    {{"Sizes", &SaisiePlanches::formats},
     {"Gap", &SaisiePlanches::ecart},
     {"Margin", &SaisiePlanches::marge},
     {"Copies", &SaisiePlanches::copies},
     {"Kerf", &SaisiePlanches::saignee},
     {"Form", &SaisiePlanches::forme}}};

constexpr std::array<std::pair<const char *, bool SaisiePlanches::*>, 4> kCases = {
    {{"BothWings", &SaisiePlanches::deux_ailes},
     {"Turn", &SaisiePlanches::demi_tour},
     {"Marks", &SaisiePlanches::marques},
     {"Polylines", &SaisiePlanches::polylignes}}};

} // namespace

SaisiePlanches PlanchesUsuelles(std::string_view Unite) {
    // Sheets of balsa as shops have them.
    return Unite == kUniteIn ? SaisiePlanches{"4x36", "0.08", "0.12", "1", "0"}
                             : SaisiePlanches{"100x1000", "2", "3", "1", "0"};
}

SaisiePlanches LitPlanches(const IniFile &file, SaisiePlanches choix) {
    for (const auto &[key, text] : kTextes) {
        const std::string value = file.Value(kSection, key);
        choix.*text = value.empty() ? choix.*text : value;
    }
    for (const auto &[key, ticked] : kCases) {
        const std::string value = file.Value(kSection, key);
        choix.*ticked = value.empty() ? choix.*ticked : value == "1";
    }
    return choix;
}

void PosePlanches(IniFile &file, const SaisiePlanches &choix) {
    for (const auto &[key, text] : kTextes) {
        file.SetValue(kSection, key, choix.*text);
    }
    for (const auto &[key, ticked] : kCases) {
        file.SetValue(kSection, key, choix.*ticked ? "1" : "0");
    }
}

} // namespace loftwing
