#include "persist/settings.h"

#include "base/disk.h"
#include "base/file_name.h"
#include "base/number_text.h"
#include "core/units.h"
#include "output/page_setup.h"
#include "output/styles.h"

#include <filesystem>
#include <functional>
#include <utility>
#include <vector>

namespace loftwing {

namespace {

/// One line of the settings file and the field behind it. Reader and writer walk the same table.
struct Ligne {
    const char *section;
    const char *key;
    std::function<std::string()> ecrit;
    std::function<void(const std::string &)> lit;
};
using Table = std::vector<Ligne>;

Ligne Texte(const char *section, const char *key, std::string &field) {
    return {section, key, [&field] { return field; },
            [&field](const std::string &value) { field = value; }};
}

Ligne Entier(const char *section, const char *key, std::int16_t &field) {
    return {section, key, [&field] { return std::to_string(field); },
            [&field](const std::string &value) { field = ToInt16(LeadingNumber(value)); }};
}

/// A length: the file holds its text as typed, the number is derived from it.
Ligne Longueur(const Reglages &reglages, const char *section, const char *key, std::string &afich,
               float &number) {
    return {section, key, [&afich] { return afich; },
            [reglages, &afich, &number](const std::string &value) {
                // First the number: a text that is none leaves the pair as it was.
                number = ToSingle(NombreMm(value, {reglages.settings.Unite, reglages.messages}));
                afich = value;
            }};
}

Table TableCouleurs(const Reglages &reglages) {
    Table table;
    for (const DrawingElement &row : DrawingElements()) {
        table.push_back(
            Entier("Couleurs", row.colour_key, reglages.settings.TraitDe(row.element).couleur));
    }
    return table;
}

Table TableStyles(const Reglages &reglages) {
    Table table;
    for (const DrawingElement &row : DrawingElements()) {
        table.push_back(
            Entier("StyleLignes", row.style_key, reglages.settings.TraitDe(row.element).style));
    }
    return table;
}

Table TableEpaisseurs(const Reglages &reglages) {
    Table table;
    for (const DrawingElement &row : DrawingElements()) {
        if (row.width_key != nullptr) {
            table.push_back(Entier("Eprlines", row.width_key,
                                   reglages.settings.TraitDe(row.element).epaisseur));
        }
    }
    float &size = reglages.rib.texte.TailleFont;
    table.push_back({"InsText", "TailleFont", [&size] { return NumberText(size); },
                     [&size](const std::string &value) { size = ToSingle(LeadingNumber(value)); }});
    return table;
}

/// The unit stands with its leading blank; reading loses that blank and puts it back. All lengths
/// hang on it, and a rib in a unit that there isn't couldn't be had back after a crash: where the
/// file has none of the two, the one in force stays.
Ligne Unite(std::string &unit) {
    return {"Defaut", "unit", [&unit] { return unit; },
            [&unit](const std::string &value) {
                const std::string read = " " + std::string(Trim(value));
                if (read == kUniteMm || read == kUniteIn) {
                    unit = read;
                }
            }};
}

Table TableDefauts(const Reglages &reglages) {
    RibModel &rib = reglages.rib;
    Bloc &bloc = rib.bloc;
    return {Unite(reglages.settings.Unite),
            Longueur(reglages, "Defaut", "cordeAfich", rib.cordeAfich, rib.corde),
            Longueur(reglages, "Defaut", "EpCoffrageAfich", rib.EpCoffrageAfich, rib.EpCoffrage),
            Longueur(reglages, "Defaut", "EpBAAfich", rib.EpBAAfich, rib.EpBA),
            Longueur(reglages, "Defaut", "HTblocAfich", bloc.HTblocAfich, bloc.HTbloc),
            Longueur(reglages, "Defaut", "BAblocAfich", bloc.BAblocAfich, bloc.BAbloc),
            Longueur(reglages, "Defaut", "BFblocAfich", bloc.BFblocAfich, bloc.BFbloc)};
}

Table TableRepertoires(const Reglages &reglages) {
    Repertoires &folders = reglages.settings.repertoires;
    return {Texte("Repertoires", "RepProfil", folders.RepProfil),
            Texte("Repertoires", "RepProfilevol", folders.RepProfilevol),
            Texte("Repertoires", "LastOpenProfil", folders.LastOpenProfil)};
}

Table TableMarges(const Reglages &reglages) {
    MiseEnPage &page = reglages.settings.page;
    const char *section = "Marges";
    return {Longueur(reglages, section, "MargeHaut", page.MargeHautAfich, page.MargeHaut),
            Longueur(reglages, section, "MargeBas", page.MargeBasAfich, page.MargeBas),
            Longueur(reglages, section, "recouvrement", page.recouvrementAfich, page.recouvrement),
            {section, "NumIndex", [&page] { return std::to_string(page.NumIndex); },
             [&page](const std::string &value) { page.NumIndex = ToByte(LeadingNumber(value)); }},
            Longueur(reglages, section, "Ydprint", page.YdprintAfich, page.Ydprint)};
}

Ligne Coche(const char *section, const char *key, bool &field, bool usual) {
    return {section, key, [&field] { return std::string(field ? "1" : "0"); },
            [&field, usual](const std::string &value) {
                field = value.empty() ? usual : LeadingNumber(value) != 0;
            }};
}

/// A factor; one that isn't there, or that no check line would have been let through for, is 1.
Ligne Facteur(const char *section, const char *key, double &field) {
    return {section, key, [&field] { return NumberText(field); },
            [&field](const std::string &value) {
                field = value.empty() ? 1 : LeadingNumber(value);
                if (!CorrectionAdmise(field)) {
                    field = 1;
                }
            }};
}

/// What the sheets have beside their margins. All lengths are in mm, whatever the unit.
Table TableFeuilles(const Reglages &reglages) {
    MiseEnPage &page = reglages.settings.page;
    CorrectionImprimante &correction = reglages.settings.correction;
    const char *section = "Feuilles";
    return {Coche(section, "Temoin", page.temoin, true),
            Coche(section, "Rangees", page.en_rangees, false),
            {section, "Papiers", [&page] { return TextePapiersPropres(page.papiers); },
             [&page](const std::string &value) { page.papiers = LitPapiersPropres(value); }},
            Facteur(section, "CorrectionX", correction.x),
            Facteur(section, "CorrectionY", correction.y)};
}

bool Ecrit(const Reglages &reglages, const std::vector<Table> &tables) {
    try {
        IniFile file = IniFile::Read(reglages.fichier);
        for (const Table &table : tables) {
            for (const Ligne &line : table) {
                file.SetValue(line.section, line.key, line.ecrit());
            }
        }
        return file.Save(reglages.fichier);
    } catch (const Failure &failure) {
        PerdFichier(reglages.settings, reglages.messages, failure, " WriteINIFile");
        return false;
    }
}

std::vector<Table> ToutesLesTables(const Reglages &reglages) {
    return {TableCouleurs(reglages), TableStyles(reglages),      TableEpaisseurs(reglages),
            TableDefauts(reglages),  TableRepertoires(reglages), TableMarges(reglages)};
}

/// One bad value costs that value alone: a settings file is edited by hand, and the program must
/// start all the same.
bool LitLigne(const Reglages &reglages, const Ligne &line, const std::string &value) {
    try {
        line.lit(value);
        return true;
    } catch (const Failure &failure) {
        reglages.messages.Report(failure, " GetINIFile");
        return false;
    }
}

bool Lit(const Reglages &reglages, const std::vector<Table> &tables) {
    IniFile file;
    try {
        file = IniFile::Read(reglages.fichier);
    } catch (const Failure &failure) {
        PerdFichier(reglages.settings, reglages.messages, failure, " GetINIFile");
        return false;
    }
    bool whole = true;
    for (const Table &table : tables) {
        for (const Ligne &line : table) {
            whole = LitLigne(reglages, line, file.Value(line.section, line.key)) && whole;
        }
    }
    return whole;
}

bool FichierManque(const Reglages &reglages) {
    return reglages.settings.fichier.perdu || !IsThere(reglages.fichier);
}

/// Chord, sheeting and the rest of a new program. They are in mm; in inches, which the file can
/// only have lost on the way, the rib keeps what it has.
void DefautsInternes(const Reglages &reglages) {
    if (reglages.settings.Unite == kUniteMm) {
        reglages.rib.Partie<Dimensions>() = {};
        reglages.rib.bloc = {};
    }
}

void Alerte(const Reglages &reglages, const std::string &folder) {
    const Messages &messages = reglages.messages;
    messages.Tell(" " + messages.Text({"FrmMainMessage", "2"}) + folder +
                      messages.Text({"FrmMainMessage", "3"}),
                  "Alert", BoxIcon::stop);
}

void ControleDossiers(const Reglages &reglages, const std::string &programme) {
    const Repertoires &folders = reglages.settings.repertoires;
    for (const std::string &folder : {folders.RepProfil, folders.RepProfilevol}) {
        if (!IsThere(folder)) {
            Alerte(reglages, folder);
            return;
        }
    }
    for (const std::string &folder : {folders.RepProfil, folders.RepProfilevol}) {
        if (SamePlace(PathOf(folder), PathOf(programme))) {
            Alerte(reglages, "\\airfoils  \\...  ");
            return;
        }
    }
}

/// Whether the unit in force is the one on file; a rib may be shown in the other one. A file that
/// has none takes any.
bool UniteDuFichier(const Reglages &reglages) {
    try {
        const std::string kept = GetINIFile("Defaut", "unit", reglages.fichier);
        return Trim(kept).empty() || Trim(kept) == Trim(reglages.settings.Unite);
    } catch (const Failure &) {
        return true; // the writing tells of it
    }
}

/// Where a list of recent files stands.
struct ListeRecente {
    const char *section;
    const char *cle; ///< of its entries, without their number
};
constexpr ListeRecente kProfilsRecents{"LastFiles", "RecentFile"};
constexpr ListeRecente kRibsRecents{"LastRibs", "RecentRib"};

std::string CleRecente(const ListeRecente &liste, int number) {
    return liste.cle + std::to_string(number);
}

FichiersRecents LitRecents(const ListeRecente &liste, const IniFile &file) {
    FichiersRecents recent;
    for (int i = 1; i <= kFichiersRecents; ++i) {
        At(recent, i - 1) = file.Value(liste.section, CleRecente(liste, i));
    }
    return recent;
}

/// Writes entries 1 to `count` one place lower.
void DescendRecents(const ListeRecente &liste, IniFile &file, const FichiersRecents &recent,
                    int count, bool with_empty) {
    for (int i = 1; i <= count; ++i) {
        const std::string &entry = At(recent, i - 1);
        if (with_empty || !entry.empty()) {
            file.SetValue(liste.section, CleRecente(liste, i + 1), entry);
        }
    }
}

void NoteRecent(const ListeRecente &liste, const std::string &path, const std::string &fichier) {
    if (!IniFile::Keeps(path)) {
        return; // the list would name another file, or none
    }
    IniFile file = IniFile::Read(fichier);
    const FichiersRecents recent = LitRecents(liste, file);
    if (recent.front() == path) {
        return;
    }
    // Where the path is found, what stands above it moves down by one, empty entries included.
    bool found = false;
    for (int i = 2; i <= kFichiersRecents; ++i) {
        if (At(recent, i - 1) == path) {
            DescendRecents(liste, file, recent, i - 1, true);
            found = true;
        }
    }
    if (!found) {
        // All move down and the last one drops out; an empty entry overwrites nothing.
        DescendRecents(liste, file, recent, kFichiersRecents - 1, false);
    }
    file.SetValue(liste.section, CleRecente(liste, 1), path);
    file.Save(fichier);
}

} // namespace

void ValeursDefaut(const Reglages &reglages, const std::string &programme) {
    ValeursDefautRib(reglages.rib);
    ValeursDefautTraits(reglages.settings);
    ValeursDefautPage(reglages.settings.page);
    reglages.settings.repertoires = {programme, programme, programme};
}

void PerdFichier(AppSettings &settings, const Messages &messages, const Failure &failure,
                 const std::string &label) {
    settings.fichier.perdu = true;
    if (!std::exchange(settings.fichier.dit, true)) {
        messages.Report(failure, label);
    }
}

void EcritCouleurs(const Reglages &reglages) {
    Ecrit(reglages, {TableCouleurs(reglages)});
}
void EcritStyles(const Reglages &reglages) {
    Ecrit(reglages, {TableStyles(reglages)});
}
void EcritEpaisseurs(const Reglages &reglages) {
    Ecrit(reglages, {TableEpaisseurs(reglages)});
}
void EcritDefauts(const Reglages &reglages) {
    Ecrit(reglages, {TableDefauts(reglages)});
}
void EcritRepertoires(const Reglages &reglages) {
    Ecrit(reglages, {TableRepertoires(reglages)});
}
void EcritMarges(const Reglages &reglages) {
    if (!UniteDuFichier(reglages)) {
        return; // its texts would be read in the other unit
    }
    Ecrit(reglages, {TableMarges(reglages)});
}

void EcritFeuilles(const Reglages &reglages) {
    Ecrit(reglages, {TableFeuilles(reglages)});
}

bool EcritTout(const Reglages &reglages) {
    return Ecrit(reglages, ToutesLesTables(reglages));
}

bool LitCouleurs(const Reglages &reglages) {
    return Lit(reglages, {TableCouleurs(reglages)});
}
bool LitStyles(const Reglages &reglages) {
    return Lit(reglages, {TableStyles(reglages)});
}
bool LitEpaisseurs(const Reglages &reglages) {
    return Lit(reglages, {TableEpaisseurs(reglages)});
}
bool LitDefauts(const Reglages &reglages) {
    const bool read = !FichierManque(reglages) && Lit(reglages, {TableDefauts(reglages)});
    if (FichierManque(reglages)) {
        DefautsInternes(reglages);
    }
    return read;
}
bool LitRepertoires(const Reglages &reglages) {
    return Lit(reglages, {TableRepertoires(reglages)});
}
bool LitMarges(const Reglages &reglages) {
    return Lit(reglages, {TableMarges(reglages)});
}

bool LitTout(const Reglages &reglages) {
    std::vector<Table> tables = ToutesLesTables(reglages);
    tables.push_back(TableFeuilles(reglages));
    return Lit(reglages, tables);
}

void DeriveLongueurs(const Reglages &reglages) {
    for (const Table &table : {TableDefauts(reglages), TableMarges(reglages)}) {
        for (const Ligne &line : table) {
            line.lit(line.ecrit());
        }
    }
}

void ReadInstallFolders(const Reglages &reglages, const std::string &programme) {
    const auto stored = [&](const char *key) {
        const std::string folder = reglages.messages.platform.StoredValue("Install", key);
        return folder.empty() ? programme : folder;
    };
    Repertoires &folders = reglages.settings.repertoires;
    folders.RepProfil = stored("RepAirfoil");
    folders.RepProfilevol = stored("RepEvol");
    folders.LastOpenProfil = folders.RepProfil;
    WriteINIFile("Repertoires", "RepProfil", folders.RepProfil, reglages.fichier);
    WriteINIFile("Repertoires", "RepProfilevol", folders.RepProfilevol, reglages.fichier);
}

void ControlRep(const Reglages &reglages, const std::string &programme) {
    try {
        ControleDossiers(reglages, programme);
    } catch (const Failure &failure) {
        reglages.messages.Report(failure, "ControlRep");
    }
}

FichiersRecents LitFichiersRecents(const std::string &fichier) {
    return LitRecents(kProfilsRecents, IniFile::Read(fichier));
}

void NoteFichierRecent(const std::string &path, const std::string &fichier) {
    NoteRecent(kProfilsRecents, path, fichier);
}

FichiersRecents LitRibsRecents(const std::string &fichier) {
    return LitRecents(kRibsRecents, IniFile::Read(fichier));
}

void NoteRibRecent(const std::string &path, const std::string &fichier) {
    NoteRecent(kRibsRecents, path, fichier);
}

} // namespace loftwing
