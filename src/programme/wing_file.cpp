#include "programme/wing_file.h"

#include "base/failure.h"
#include "base/file_name.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "lang/ini_file.h"
#include "programme/dossiers.h"
#include "programme/longueur_lue.h"
#include "programme/wing_steps.h"

#include <map>
#include <optional>

namespace loftwing {

namespace {

constexpr const char *kSection = "Wing";
constexpr const char *kPremiere = "First";
constexpr const char *kPanneau = "Panel"; // and its number, from 1

[[noreturn]] void Refuse(const std::string &path, const std::string &what) {
    throw MakeFailure(kInvalidProcedureCall, path + ", " + what);
}

std::string Cle(int numero) {
    return kPanneau + std::to_string(numero);
}

/// The number of a panel's key; nothing for another one.
std::optional<int> NumeroDe(const std::string &section, const std::string &key) {
    const std::string head = LowerAscii(kPanneau);
    if (LowerAscii(section) != LowerAscii(kSection) || !LowerAscii(key).starts_with(head)) {
        return std::nullopt;
    }
    return NombreLu(key.substr(head.size()), kPremierMaxi);
}

/// The keys of panels that have a value, by their numbers.
std::map<int, std::string> PanneauxDe(const IniFile &file) {
    std::map<int, std::string> panels;
    for (const auto &[section, key] : file.Keys()) {
        const auto number = NumeroDe(section, key);
        const std::string value = file.Path(section, key);
        if (number && !value.empty()) {
            panels.emplace(*number, value);
        }
    }
    return panels;
}

} // namespace

bool EstAile(const std::string &path) {
    return LowerAscii(ExtensionOf(path)) == ".lfa";
}

FichierAile LitAile(const std::string &path) {
    if (!IsThere(path)) {
        throw MakeFailure(kFileNotFound, path);
    }
    const IniFile file = IniFile::Read(path);
    FichierAile read;
    const std::string first = file.Value(kSection, kPremiere);
    if (!first.empty()) {
        const auto number = NombreLu(first, kPremierMaxi);
        if (!number) {
            Refuse(path, kPremiere);
        }
        read.premier = *number;
    }
    int expected = 1;
    for (const auto &[number, panel] : PanneauxDe(file)) {
        if (number != expected || read.panneaux.size() == kPanneauxMaxi) {
            Refuse(path, Cle(expected)); // one is missing, or there are too many
        }
        read.panneaux.push_back(TextOf(SeenFrom(PathOf(path).parent_path(), PathOf(panel))));
        ++expected;
    }
    if (read.panneaux.empty()) {
        Refuse(path, Cle(1));
    }
    return read;
}

void EnregistreAile(const std::string &path, const FichierAile &fichier) {
    IniFile file = IniFile::Read(path);
    // A panel that is gone must not come back.
    for (const auto &[number, panel] : PanneauxDe(file)) {
        file.SetValue(kSection, Cle(number), "");
    }
    file.SetValue(kSection, kPremiere, std::to_string(fichier.premier));
    int number = 0;
    for (const std::string &panel : fichier.panneaux) {
        if (!file.SetPath(kSection, Cle(++number), CheminVu(path, panel))) {
            throw MakeFailure(kPathFileAccess, panel);
        }
    }
    file.Write(path, Flush::yes);
}

} // namespace loftwing
