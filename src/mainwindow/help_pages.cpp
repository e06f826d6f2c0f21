#include "mainwindow/help_pages.h"

#include "base/failure.h"
#include "base/file_name.h"
#include "base/whole_file.h"
#include "lang/aide.h"
#include "platform/qt_text.h"

#include <QRegularExpression>
#include <QTextDocument>

#include <algorithm>
#include <filesystem>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

constexpr const char *kLangueDeSecours = "English";

PageAide LitPage(const std::string &path, int contexte) {
    PageAide page{contexte, {}, {}};
    try {
        QTextDocument document;
        document.setHtml(Q(ReadWholeFile(path)));
        page.titre = document.metaInformation(QTextDocument::DocumentTitle).simplified();
        page.texte = document.toPlainText();
    } catch (const Failure &) {
        page = {contexte, {}, {}}; // the viewer tells a page that isn't there when it is asked for
    }
    return page;
}

bool Contient(const QString &texte, const QStringList &mots) {
    return std::all_of(mots.begin(), mots.end(),
                       [&](const QString &mot) { return texte.contains(mot); });
}

} // namespace

std::string FichierAide(const std::string &dossier, const std::string &langue, int contexte) {
    const std::string name = std::to_string(contexte) + ".html";
    const fs::path own = PathOf(dossier) / langue / name;
    std::error_code error;
    return TextOf(fs::exists(own, error) ? own : PathOf(dossier) / kLangueDeSecours / name);
}

std::vector<PageAide> LitPagesAide(const std::string &dossier, const std::string &langue) {
    std::vector<PageAide> pages;
    for (const ChapitreAide &chapitre : ChapitresAide()) {
        for (const int contexte : chapitre.pages) {
            pages.push_back(LitPage(FichierAide(dossier, langue, contexte), contexte));
        }
    }
    return pages;
}

QString SansAccents(const QString &texte) {
    QString plain;
    plain.reserve(texte.size());
    for (const QChar letter : texte) {
        const QString parts = letter.decomposition();
        plain += (parts.isEmpty() ? letter : parts.front()).toLower();
    }
    return plain;
}

std::vector<PageAide> ChercheAide(const std::vector<PageAide> &pages, const QString &mots) {
    static const QRegularExpression blanks("\\s+");
    const QStringList words = SansAccents(mots).split(blanks, Qt::SkipEmptyParts);
    std::vector<PageAide> found;
    if (words.isEmpty()) {
        return found;
    }
    for (const PageAide &page : pages) {
        if (Contient(SansAccents(page.titre + ' ' + page.texte), words)) {
            found.push_back(page);
        }
    }
    std::stable_partition(found.begin(), found.end(), [&](const PageAide &page) {
        return Contient(SansAccents(page.titre), words);
    });
    return found;
}

} // namespace loftwing
