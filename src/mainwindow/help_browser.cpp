#include "mainwindow/help_browser.h"

#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QScrollBar>
#include <QTextCursor>

#include <algorithm>

namespace loftwing {

namespace {

constexpr double kMarge = 12;     // around the page's text
constexpr int kPlusEtroite = 240; // of a picture

// Links have the application's colour by themselves; a rule would colour every anchor.
constexpr const char *kStyle = "table { border-color: %1; margin-top: 6px; margin-bottom: 6px; }"
                               "h1 { font-size: xx-large; }"
                               "h2 { font-size: x-large; margin-top: 18px; }"
                               "li { margin-bottom: 3px; }"
                               "code { font-family: monospace; }";

} // namespace

HelpBrowser::HelpBrowser(QWidget *parent) : QTextBrowser(parent) {
    document()->setDocumentMargin(kMarge);
    PoseCouleurs();
}

void HelpBrowser::PoseCouleurs() {
    document()->setDefaultStyleSheet(
        QString::fromLatin1(kStyle).arg(palette().color(QPalette::Mid).name()));
}

void HelpBrowser::changeEvent(QEvent *event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        PoseCouleurs();
        Relit(); // a page has the colours that it was read with
    }
}

void HelpBrowser::resizeEvent(QResizeEvent *event) {
    QTextBrowser::resizeEvent(event);
    const int room = viewport()->width() - static_cast<int>(2 * kMarge);
    const int width = std::clamp(room, kPlusEtroite, kLargeurImage);
    if (width != largeur_) {
        largeur_ = width;
        Relit();
    }
}

/// Reads the page anew, scrolled to where it is.
void HelpBrowser::Relit() {
    const int scrolled = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(scrolled);
}

void HelpBrowser::Souligne(const QStringList &mots) {
    QList<ExtraSelection> marks;
    for (const QString &mot : mots) {
        QTextCursor at(document());
        while (!(at = document()->find(mot, at)).isNull()) {
            ExtraSelection mark;
            mark.cursor = at;
            mark.format.setBackground(palette().brush(QPalette::Highlight));
            mark.format.setForeground(palette().brush(QPalette::HighlightedText));
            marks.append(mark);
        }
    }
    setExtraSelections(marks);
    const auto first = std::min_element(marks.begin(), marks.end(), [](auto &a, auto &b) {
        return a.cursor.position() < b.cursor.position();
    });
    if (first != marks.end()) {
        QTextCursor at = first->cursor;
        at.clearSelection();
        setTextCursor(at);
        ensureCursorVisible();
    }
}

void HelpBrowser::Taille(int points) {
    constexpr double kPlusPetite = 6;
    QFont font = QApplication::font();
    font.setPointSizeF(std::max(kPlusPetite, font.pointSizeF() + points));
    setFont(font);
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name) {
    if (type != QTextDocument::ImageResource) {
        return QTextBrowser::loadResource(type, name);
    }
    const QImage image(source().resolved(name).toLocalFile());
    if (image.width() <= largeur_) {
        return image;
    }
    // As sharp as the screen can show it.
    const qreal dots = devicePixelRatioF();
    const int width = std::min(image.width(), static_cast<int>(largeur_ * dots));
    QImage narrow = image.scaledToWidth(width, Qt::SmoothTransformation);
    narrow.setDevicePixelRatio(static_cast<qreal>(width) / largeur_);
    return narrow;
}

} // namespace loftwing
