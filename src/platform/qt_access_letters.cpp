#include "platform/qt_access_letters.h"

#include <QKeySequence>
#include <QSet>

#include <algorithm>

namespace loftwing {

namespace {

/// What a keyboard of any country types without a dead key.
bool IsPlain(QChar character) {
    return (character >= 'a' && character <= 'z') || (character >= '0' && character <= '9');
}

/// Letters that could stand for a word: those that begin a part of it, then the others.
QString Candidates(const QString &word, const QString &taken) {
    const QString small = word.toLower();
    QString first;
    QString others;
    for (qsizetype i = 0; i < small.size(); ++i) {
        if (IsPlain(small[i])) {
            (i == 0 || !small[i - 1].isLetterOrNumber() ? first : others) += small[i];
        }
    }
    QString candidates;
    for (const QChar letter : first + others) {
        if (!taken.contains(letter, Qt::CaseInsensitive) && !candidates.contains(letter)) {
            candidates += letter;
        }
    }
    return candidates;
}

/// Gives every word a letter as long as that is possible at all: a word whose letters are all in
/// use takes one over from a word that can do with another.
class Choice {
  public:
    explicit Choice(std::vector<QString> candidates)
        : candidates_(std::move(candidates)), chosen_(candidates_.size()) {}

    std::vector<QChar> Made() {
        for (std::size_t word = 0; word < candidates_.size(); ++word) {
            tried_.clear();
            Seek(word);
        }
        return chosen_;
    }

  private:
    std::vector<QString> candidates_;
    std::vector<QChar> chosen_;
    QSet<QChar> tried_; ///< for the word at hand

    auto OwnerOf(QChar letter) { return std::find(chosen_.begin(), chosen_.end(), letter); }

    bool Seek(std::size_t word) {
        for (const QChar letter : candidates_[word]) {
            if (OwnerOf(letter) == chosen_.end()) {
                chosen_[word] = letter;
                return true;
            }
        }
        for (const QChar letter : candidates_[word]) {
            if (!tried_.contains(letter)) {
                tried_.insert(letter);
                if (Seek(static_cast<std::size_t>(OwnerOf(letter) - chosen_.begin()))) {
                    chosen_[word] = letter;
                    return true;
                }
            }
        }
        return false;
    }
};

} // namespace

QChar MarkedLetter(const QString &word) {
    const QKeySequence marked = QKeySequence::mnemonic(word);
    return marked.isEmpty() ? QChar() : QChar(marked[0].key()).toLower();
}

std::vector<QChar> AccessLetters(const QStringList &words, const QString &taken) {
    QString in_use = taken;
    for (const QString &word : words) {
        in_use += MarkedLetter(word);
    }
    std::vector<QString> candidates;
    for (const QString &word : words) {
        const QChar own = MarkedLetter(word);
        candidates.push_back(own.isNull() ? Candidates(word, in_use) : QString(own));
    }
    return Choice(std::move(candidates)).Made();
}

QString WithAccessLetter(const QString &word, QChar letter) {
    if (letter.isNull() || !MarkedLetter(word).isNull()) {
        return word;
    }
    const QString small = word.toLower();
    for (qsizetype i = 0; i < small.size(); ++i) {
        const bool begins = i == 0 || !small[i - 1].isLetterOrNumber();
        if (small[i] == letter && begins) {
            return word.left(i) + '&' + word.mid(i);
        }
    }
    const qsizetype place = small.indexOf(letter);
    return place < 0 ? word : word.left(place) + '&' + word.mid(place);
}

} // namespace loftwing
