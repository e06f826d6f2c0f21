// Any bytes as the settings file: every value is read or reported, and stays within its field. What
// is written then reads back as it is.

#include "base/whole_file.h"
#include "fuzz_world.h"
#include "output/page_setup.h"
#include "persist/settings.h"
#include "programme/cut_steps.h"
#include "programme/load.h"
#include "programme/panel_sheets.h"

#include <cmath>

namespace loftwing {
namespace {

std::string SettingsPath() {
    return ScratchFolder() + "Loftwing.ini";
}

void CheckFields(const AppSettings &settings) {
    const MiseEnPage &page = settings.page;
    for (const float mm : {page.MargeHaut, page.MargeBas, page.recouvrement, page.Ydprint}) {
        Require(std::isfinite(mm), "margins of numbers");
    }
    for (const PapierPropre &paper : page.papiers) {
        Require(PapierAdmis(paper), "paper that there can be");
    }
    Require(std::isfinite(settings.correction.x) && std::isfinite(settings.correction.y) &&
                settings.correction.x > 0 && settings.correction.y > 0,
            "correction of numbers");
}

/// What the settings say, in the words of their file.
std::string Written(Programme &programme) {
    std::remove(SettingsPath().c_str());
    programme.settings.fichier = {};
    Require(EcritTout(programme.ReglagesEnCours()), "settings that can be written");
    EcritFeuilles(programme.ReglagesEnCours());
    return ReadWholeFile(SettingsPath());
}

void ReadAndWrite(std::string_view bytes) {
    WriteWholeFile(SettingsPath(), bytes);
    FuzzWorld world(false, SettingsPath());
    Programme &programme = world.programme;
    ChargeReglages(programme);
    CheckFields(programme.settings);
    LitFichiersRecents(SettingsPath());
    LitRibsRecents(SettingsPath());
    const ChoixDecoupe cut = LitChoixDecoupe(programme);
    Require(cut.saignee >= 0 && cut.saignee <= kSaigneeMaxi, "kerf in its range");
    PlanchesRetenues(programme);
    const std::string first = Written(programme);
    FuzzWorld other(false, SettingsPath());
    ChargeReglages(other.programme);
    CheckFields(other.programme.settings);
    const std::string second = Written(other.programme);
    FuzzWorld third(false, SettingsPath());
    ChargeReglages(third.programme);
    Require(Written(third.programme) == second, "settings as they were");
    std::remove(SettingsPath().c_str());
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::ReadAndWrite(loftwing::BytesOf(data, size));
    return 0;
}
