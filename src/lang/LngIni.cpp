#include "lang/LngIni.h"

#include <algorithm>
#include <filesystem>

namespace loftwing {

namespace fs = std::filesystem;

void LngIni::Charge(const std::string &folder, const std::string &name) {
    const std::string path = (fs::path(folder) / (name + ".lng")).string();
    texts_ = IniFile::Read(path);
    LangueCourante = name;
    FichierLng = path;
}

std::string LngIni::LngText(LngKey key) const {
    return texts_.Value(key.section, key.key);
}

std::vector<std::string> LngIni::Languages(const std::string &folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (entry->path().extension() == ".lng" && entry->is_regular_file(ignored)) {
            names.push_back(entry->path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace loftwing
