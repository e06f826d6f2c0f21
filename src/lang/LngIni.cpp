#include "lang/LngIni.h"

#include "base/failure.h"
#include "base/file_name.h"

#include <algorithm>
#include <filesystem>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

constexpr LngKey kCode = {"Language", "Code"};
constexpr const char *kEnglish = "en";

/// The two letters of a language; empty where its file doesn't tell or can't be read.
std::string CodeOf(const std::string &folder, const std::string &name) {
    try {
        const IniFile file = IniFile::Read(LngIni::Fichier(folder, name));
        return file.Value(kCode.section, kCode.key);
    } catch (const Failure &) {
        return {};
    }
}

} // namespace

void LngIni::Charge(const std::string &folder, const std::string &name) {
    const std::string path = Fichier(folder, name);
    texts_ = std::make_shared<const IniFile>(IniFile::Read(path));
    LangueCourante = name;
    FichierLng = path;
}

std::string LngIni::LngText(LngKey key) const {
    return texts_ ? texts_->Value(key.section, key.key) : std::string();
}

std::string LngIni::Fichier(const std::string &folder, const std::string &name) {
    return TextOf(PathOf(folder) / PathOf(name + ".lng"));
}

std::vector<std::string> LngIni::Languages(const std::string &folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(PathOf(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (entry->path().extension() == ".lng" && entry->is_regular_file(ignored)) {
            names.push_back(TextOf(entry->path().stem()));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string LngIni::LanguageOf(const std::string &folder, const std::string &code) {
    const std::vector<std::string> names = Languages(folder);
    const auto named = [&](const std::string &letters) {
        return std::find_if(names.begin(), names.end(), [&](const std::string &name) {
            return CodeOf(folder, name) == letters;
        });
    };
    auto found = code.empty() ? names.end() : named(code);
    if (found == names.end()) {
        found = named(kEnglish);
    }
    if (found == names.end()) {
        found = names.begin();
    }
    return found == names.end() ? std::string() : *found;
}

} // namespace loftwing
