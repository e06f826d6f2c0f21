#include "programme/reglage_retenu.h"

namespace loftwing {

IniFile ReglagesRetenus(const Programme &programme) {
    try {
        return IniFile::Read(programme.paths.fichier);
    } catch (const Failure &) {
        return {};
    }
}

std::string ReglageRetenu(const Programme &programme, std::string_view section,
                          std::string_view key) {
    return ReglagesRetenus(programme).Value(section, key);
}

void RetientReglages(const Programme &programme, const std::function<void(IniFile &)> &pose) {
    try {
        IniFile file = IniFile::Read(programme.paths.fichier);
        pose(file);
        file.Save(programme.paths.fichier);
    } catch (const Failure &) {
        return; // what can't be read must not be written over
    }
}

} // namespace loftwing
