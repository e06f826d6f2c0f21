#include "mainwindow/toolkit_words.h"

#include "platform/qt_text.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace loftwing {

namespace {

QLocale::Language LanguageNamed(const QString &name) {
    for (int i = QLocale::C; i <= QLocale::LastLanguage; ++i) {
        const auto language = static_cast<QLocale::Language>(i);
        if (QLocale::languageToString(language) == name) {
            return language;
        }
    }
    return QLocale::C;
}

} // namespace

QLocale LocaleOf(const std::string &language) {
    const QLocale::Language named = LanguageNamed(Q(language));
    const QLocale desktop;
    return desktop.language() == named ? desktop : QLocale(named);
}

void ToolkitWords::Follow(const std::string &language) {
    QCoreApplication::removeTranslator(&translator_);
    const QLocale locale(LanguageNamed(Q(language)));
    if (translator_.load(locale, "qtbase", "_",
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&translator_);
    }
}

} // namespace loftwing
