// Any bytes as a panel file and as a wing file: read or refused with the file's name. What was read
// and written reads back the same, unless a value can't be written as it was read: each reading
// takes a pair of quotes off, and a value ends at its first line break or where it is cut off.

#include "base/whole_file.h"
#include "fuzz_world.h"
#include "lang/ini_file.h"
#include "programme/panel_file.h"
#include "programme/panel_sheets.h"
#include "programme/panel_typed.h"
#include "programme/wing_file.h"
#include "programme/wing_steps.h"

#include <algorithm>
#include <optional>

namespace loftwing {
namespace {

template <class File, class Read>
std::optional<File> Try(const Read &read) {
    try {
        return read();
    } catch (const Failure &failure) {
        Require(failure.number == kInvalidProcedureCall, "no such file");
        Require(failure.detail.starts_with(ScratchFolder()), "named file");
        return std::nullopt;
    }
}

void CheckTyped(const FichierPanneau &panel) {
    FuzzWorld world(panel.unite == "in");
    const Saisie saisie = world.programme.SaisieEnCours();
    TexteIllisible(panel, saisie);
    EcartsComplets(panel);
    try {
        JeuDe(panel, ScratchFolder());
        ReglageDe(panel, saisie);
        VoeuDe(panel.planches, world.programme.messages, saisie.Unite);
    } catch (const Failure &failure) {
        Require(failure.number == kOverflow || failure.number == kDivisionByZero, "number");
    }
    for (const auto &[element, range] : panel.portees) {
        Require(ElementNomme(NomElement(element)) == element, "name of an element");
        Require(PorteeLue(TextePortee(range)) == range, "text of a range");
    }
}

/// A value that is cut off may end with a blank, which is gone once it has been written and read.
bool EndsWithBlank(const std::string &bytes) {
    const IniFile file = IniFile::Parse(bytes);
    const auto keys = file.Keys();
    return std::any_of(keys.begin(), keys.end(), [&file](const auto &key) {
        const std::string value = file.Value(key.first, key.second);
        return value.ends_with(' ') || value.ends_with('\t');
    });
}

bool CanBeWritten(const std::string &bytes) {
    for (std::size_t at = 0; (at = bytes.find('\r', at)) != std::string::npos; ++at) {
        if (bytes.compare(at, 2, "\r\n") != 0) {
            return false;
        }
    }
    // Zeros may be those of an encoding in pairs of bytes.
    constexpr std::string_view kNeverBack("\"'\0", 3);
    return bytes.find_first_of(kNeverBack) == std::string::npos && !EndsWithBlank(bytes);
}

void AsPanel(const std::string &bytes) {
    const std::string path = ScratchFolder() + "panel.lfp";
    const std::string copy = ScratchFolder() + "copy.lfp";
    WriteWholeFile(path, bytes);
    const auto read = Try<FichierPanneau>([&] { return LitPanneau(path); });
    if (!read) {
        return;
    }
    CheckTyped(*read);
    if (!CanBeWritten(bytes)) {
        return;
    }
    EnregistrePanneau(copy, *read);
    FichierPanneau again = LitPanneau(copy);
    const std::string first = ReadWholeFile(copy);
    EnregistrePanneau(copy, again);
    Require(ReadWholeFile(copy) == first, "same panel file again");
    // Paths come back without detours.
    again.bouts = read->bouts;
    if (read->planches.formats.empty()) { // nothing was chosen for sheets
        again.planches = read->planches;
    }
    Require(again == *read, "panel as it was");
    std::remove(copy.c_str());
}

void AsWing(const std::string &bytes) {
    const std::string path = ScratchFolder() + "wing.lfa";
    const std::string copy = ScratchFolder() + "copy.lfa";
    WriteWholeFile(path, bytes);
    const auto read = Try<FichierAile>([&] { return LitAile(path); });
    if (!read) {
        return;
    }
    Require(!read->panneaux.empty() && read->panneaux.size() <= kPanneauxMaxi, "count of panels");
    if (!CanBeWritten(bytes)) {
        return;
    }
    EnregistreAile(copy, *read);
    const FichierAile again = LitAile(copy);
    Require(again.premier == read->premier, "same first rib");
    Require(again.panneaux.size() == read->panneaux.size(), "as many panels");
    const std::string first = ReadWholeFile(copy);
    EnregistreAile(copy, again);
    Require(ReadWholeFile(copy) == first, "same wing file again");
    std::remove(copy.c_str());
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string bytes(loftwing::BytesOf(data, size));
    loftwing::AsPanel(bytes);
    loftwing::AsWing(bytes);
    return 0;
}
