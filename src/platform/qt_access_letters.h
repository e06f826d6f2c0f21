/// Access letters for words that come without: "Yes" shows its Y underlined, and Alt+Y presses it.
#pragma once

#include <QChar>
#include <QString>
#include <QStringList>

#include <vector>

namespace loftwing {

/// A letter or digit of each word, none of them twice and none of `taken`; a null character for a
/// word that has none left. First letters come first. A word that has an access letter keeps it.
std::vector<QChar> AccessLetters(const QStringList &words, const QString &taken = {});

/// The word with its access letter marked; as it is where it has that letter not or one already.
QString WithAccessLetter(const QString &word, QChar letter);

/// The access letter that is marked in a word, in lower case; a null character for none.
QChar MarkedLetter(const QString &word);

} // namespace loftwing
