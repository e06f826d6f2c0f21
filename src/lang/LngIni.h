/// The texts of the program in the user's language.
#pragma once

#include "lang/ini_file.h"

#include <memory>
#include <string>

namespace loftwing {

/// Names one text. Only literals make a key, so that the keys which the program asks for can be
/// counted in its sources and compared with the language files.
struct LngKey {
    const char *section;
    const char *key;

    consteval LngKey(const char *section_name, const char *key_name)
        : section(section_name), key(key_name) {}
};

/// The current language file and what is read from it.
class LngIni {
  public:
    std::string LangueCourante; ///< the language's name, as the language list shows it
    std::string FichierLng;     ///< path of its file
    bool LangueAbsente = true;  ///< no language has been chosen yet

    /// Reads the language file `name`.lng of `folder`. A missing file gives empty texts. Failure as
    /// ReadWholeFile when it is there but can't be read; the old texts are then kept.
    void Charge(const std::string &folder, const std::string &name);

    /// The text of a key, empty when the file hasn't it.
    std::string LngText(LngKey key) const;

    /// The file of a language in `folder`.
    static std::string Fichier(const std::string &folder, const std::string &name);
    /// Names of the languages in `folder`, sorted: its *.lng files without the extension.
    static std::vector<std::string> Languages(const std::string &folder);
    /// The name among these of the language that two letters ("fr") stand for; English where none
    /// has them, the first where English isn't there, empty where none is.
    static std::string LanguageOf(const std::string &folder, const std::string &code);

  private:
    std::shared_ptr<const IniFile> texts_; ///< a copy has the same ones; null before the first
};

} // namespace loftwing
