#include "programme/panel_file.h"

#include "base/file_name.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "lang/ini_file.h"
#include "programme/dossiers.h"

#include <charconv>

namespace loftwing {

namespace {

constexpr const char *kSectionPanneau = "Panel";
constexpr const char *kSectionPortees = "Ranges";

std::vector<std::string> Mots(const std::string &line) {
    std::vector<std::string> words;
    std::size_t at = 0;
    while ((at = line.find_first_not_of(' ', at)) != std::string::npos) {
        const std::size_t end = std::min(line.find(' ', at), line.size());
        words.push_back(line.substr(at, end - at));
        at = end;
    }
    return words;
}

std::string EnLigne(const std::vector<std::string> &words) {
    std::string line;
    for (const std::string &word : words) {
        line += (line.empty() ? "" : " ") + word;
    }
    return line;
}

std::optional<int> NombreEntier(const std::string &text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && number >= 1 &&
                   number <= kPremierMaxi
               ? std::optional(number)
               : std::nullopt;
}

[[noreturn]] void Refuse(const std::string &path, const std::string &what) {
    throw MakeFailure(kInvalidProcedureCall, path + ", " + what);
}

void LitPortees(const IniFile &file, const std::string &path, PorteesPanneau &ranges) {
    for (const auto &[section, key] : file.Keys()) {
        if (LowerAscii(section) != LowerAscii(kSectionPortees)) {
            continue;
        }
        const auto element = ElementNomme(LowerAscii(key));
        const std::string value = file.Value(section, key);
        if (!element || value.empty()) {
            continue;
        }
        const auto range = PorteeLue(value);
        if (!range) {
            Refuse(path, key);
        }
        ranges.insert_or_assign(*element, *range);
    }
}

} // namespace

bool EstPanneau(const std::string &path) {
    return LowerAscii(ExtensionOf(path)) == ".lfp";
}

std::string TextePortee(const PorteePanneau &portee) {
    return std::to_string(portee.de) + "-" + std::to_string(portee.a);
}

std::optional<PorteePanneau> PorteeLue(const std::string &texte) {
    const std::size_t dash = texte.find('-');
    if (dash == std::string::npos) {
        return std::nullopt;
    }
    const auto from = NombreEntier(texte.substr(0, dash));
    const auto to = NombreEntier(texte.substr(dash + 1));
    return from && to ? std::optional(PorteePanneau{*from, *to}) : std::nullopt;
}

FichierPanneau LitPanneau(const std::string &path) {
    if (!IsThere(path)) {
        throw MakeFailure(kFileNotFound, path);
    }
    const IniFile file = IniFile::Read(path);
    const auto value = [&file](const char *key) { return file.Value(kSectionPanneau, key); };
    FichierPanneau read;
    const std::array<const char *, 2> ends = {"Root", "Tip"};
    for (const std::size_t end : {0U, 1U}) {
        const std::string rib = file.Path(kSectionPanneau, ends[end]);
        if (rib.empty()) {
            Refuse(path, ends[end]);
        }
        read.bouts[end] = TextOf(SeenFrom(PathOf(path).parent_path(), PathOf(rib)));
    }
    read.unite = value("Unit");
    if (read.unite != "mm" && read.unite != "in") {
        Refuse(path, "Unit");
    }
    read.nombre = value("Count");
    read.ecarts = Mots(value("Gaps"));
    read.epaisseurs = Mots(value("Thickness"));
    read.longueur = value("Length");
    read.recul = value("Sweep");
    read.diedre = value("Dihedral");
    read.densite = value("Density");
    const std::string first = value("First");
    if (!first.empty()) {
        const auto number = NombreEntier(first);
        if (!number) {
            Refuse(path, "First");
        }
        read.premier = *number;
    }
    LitPortees(file, path, read.portees);
    read.planches = LitPlanches(file, read.planches);
    return read;
}

void EnregistrePanneau(const std::string &path, const FichierPanneau &fichier, Flush flush) {
    IniFile file = IniFile::Read(path);
    const auto set = [&file](const char *key, const std::string &value) {
        file.SetValue(kSectionPanneau, key, value);
    };
    const std::array<const char *, 2> ends = {"Root", "Tip"};
    for (const std::size_t end : {0U, 1U}) {
        if (!file.SetPath(kSectionPanneau, ends[end], CheminVu(path, fichier.bouts[end]))) {
            throw MakeFailure(kPathFileAccess, fichier.bouts[end]);
        }
    }
    set("Unit", fichier.unite);
    set("Count", fichier.nombre);
    set("Gaps", EnLigne(fichier.ecarts));
    set("Thickness", EnLigne(fichier.epaisseurs));
    set("Length", fichier.longueur);
    // What only a plan asks for isn't in the file of a panel without one.
    const auto set_where_used = [&](const char *key, const std::string &value) {
        if (!value.empty() || !file.Value(kSectionPanneau, key).empty()) {
            set(key, value);
        }
    };
    set_where_used("Sweep", fichier.recul);
    set_where_used("Dihedral", fichier.diedre);
    set_where_used("Density", fichier.densite);
    set("First", std::to_string(fichier.premier));
    // A range that is gone must not come back.
    for (const auto &[section, key] : file.Keys()) {
        const auto element = ElementNomme(LowerAscii(key));
        if (LowerAscii(section) == LowerAscii(kSectionPortees) && element &&
            !fichier.portees.contains(*element)) {
            file.SetValue(section, key, "");
        }
    }
    for (const auto &[element, range] : fichier.portees) {
        file.SetValue(kSectionPortees, NomElement(element), TextePortee(range));
    }
    if (!fichier.planches.formats.empty()) {
        PosePlanches(file, fichier.planches);
    }
    file.Write(path, flush);
}

} // namespace loftwing
