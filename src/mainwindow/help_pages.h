/// The pages of the help as texts: for the contents and the search.
#pragma once

#include <QString>

#include <string>
#include <vector>

namespace loftwing {

/// A page of the help.
struct PageAide {
    int contexte = 0;
    QString titre;
    QString texte; ///< what stands on it, without markup
};

/// The file of a page. Where the language has none, that of the English page.
std::string FichierAide(const std::string &dossier, const std::string &langue, int contexte);

/// All pages in the order of the contents; one whose file can't be read has neither title nor text.
std::vector<PageAide> LitPagesAide(const std::string &dossier, const std::string &langue);

/// The pages on which each of the words stands, as a part of a longer one too, without regard to
/// case and accents: first those that have all words in their title. Nothing for no word.
std::vector<PageAide> ChercheAide(const std::vector<PageAide> &pages, const QString &mots);

/// A text as the search compares it: small letters without accents, one for each letter.
QString SansAccents(const QString &texte);

} // namespace loftwing
