/// The toolkit's own words: file choosers, print dialog, context menus of fields.
#pragma once

#include <QLocale>
#include <QTranslator>

#include <string>

namespace loftwing {

/// How dates are written in the language of this name, as the language files have it ("French");
/// where the desktop speaks it, the desktop's own way.
QLocale LocaleOf(const std::string &language);

/// Keeps these words in one language.
class ToolkitWords {
  public:
    /// Takes the language of this name, as the language files have it ("French"). For a name that
    /// isn't a language's, or without a translation, the words are the toolkit's built-in English.
    void Follow(const std::string &language);

  private:
    QTranslator translator_;
};

} // namespace loftwing
