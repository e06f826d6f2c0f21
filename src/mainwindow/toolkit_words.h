/// The toolkit's own words: file choosers, print dialog, context menus of fields.
#pragma once

#include <QTranslator>

#include <string>

namespace loftwing {

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
