#include "mainwindow/piece_picture.h"

#include "mainwindow/piece_look.h"
#include "output/rib_measures.h"
#include "platform/qt_text.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>

namespace loftwing {

namespace {

constexpr QSize kUsualSize(720, 230);
constexpr QSize kLeastSize(320, 110);
constexpr int kMargin = 12; // pixels

/// From mm, y up, to the middle of `place`.
QTransform Fit(const BoitePiece &box, const QRectF &place) {
    const double width = std::max(box.haut_droite.x - box.bas_gauche.x, 1e-3);
    const double height = std::max(box.haut_droite.y - box.bas_gauche.y, 1e-3);
    const double scale = std::min(place.width() / width, place.height() / height);
    QTransform fit;
    fit.translate(place.center().x(), place.center().y());
    fit.scale(scale, -scale);
    fit.translate(-(box.bas_gauche.x + box.haut_droite.x) / 2,
                  -(box.bas_gauche.y + box.haut_droite.y) / 2);
    return fit;
}

/// Letters of a hundred pixels, scaled: in small ones rounding would make the words wider.
void Ecrit(QPainter &painter, const TexteMarque &text, const QTransform &to) {
    constexpr int kPixels = 100;
    QFont face("Arial");
    face.setPixelSize(kPixels);
    painter.save();
    painter.setFont(face);
    painter.translate(to.map(QPointF(text.place.x, text.place.y)));
    const double scale = text.hauteur / kCapitales * to.m11() / kPixels;
    painter.scale(scale, scale);
    painter.drawText(QPointF(0, 0), Q(text.texte));
    painter.restore();
}

} // namespace

PiecePicture::PiecePicture(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PiecePicture::Montre(std::vector<Piece> pieces, const CouleursDecoupe &couleurs,
                          std::optional<PointMm> planche) {
    pieces_ = std::move(pieces);
    planche_ = planche;
    couleurs_ = couleurs;
    update();
}

QSize PiecePicture::sizeHint() const {
    return kUsualSize;
}

QSize PiecePicture::minimumSizeHint() const {
    return kLeastSize;
}

void PiecePicture::PeintMarques(QPainter &painter, const QTransform &to) const {
    for (const Piece &piece : pieces_) {
        for (const TraitMarque &line : piece.traits) {
            QPolygonF points;
            for (const PointMm &point : line.points) {
                points << to.map(QPointF(point.x, point.y));
            }
            painter.setPen(QPen(QColor::fromRgb(couleurs_.De(line.genre)), 1));
            painter.drawPolyline(points);
        }
        for (const TexteMarque &text : piece.textes) {
            painter.setPen(QColor::fromRgb(couleurs_.De(text.genre)));
            Ecrit(painter, text, to);
        }
    }
}

void PiecePicture::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRectF place = QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
    if (pieces_.empty() || place.isEmpty()) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const BoitePiece sheet{{0, 0}, planche_.value_or(PointMm{})};
    const QTransform to = Fit(planche_ ? sheet : EtendueDe(pieces_), place);
    if (planche_) {
        painter.drawRect(to.mapRect(QRectF(0, 0, sheet.haut_droite.x, sheet.haut_droite.y)));
    }
    PeintBois(painter, BoisDe(pieces_, to));
    PeintMarques(painter, to);
}

} // namespace loftwing
