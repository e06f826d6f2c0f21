#include "mainwindow/piece_look.h"

#include <QPainter>

namespace loftwing {

namespace {

// Light, so that every line of a drawing can be read on it; none is in the palette of drawings.
const QColor kBois(0xF7, 0xE6, 0xBE);
const QColor kTranche(0x8A, 0x6A, 0x35);

void Prend(QPainterPath &path, const Anneau &ring) {
    QPolygonF polygon;
    for (const PointMm &point : ring) {
        polygon << QPointF(point.x, point.y);
    }
    path.addPolygon(polygon);
    path.closeSubpath();
}

QPainterPath BoisDe(const Piece &piece) {
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    for (const PartiePiece &part : piece.parties) {
        Prend(path, part.dehors);
        for (const Anneau &ring : part.dedans) {
            Prend(path, ring);
        }
        for (const CerclePiece &circle : part.cercles) {
            path.addEllipse(QPointF(circle.centre.x, circle.centre.y), circle.rayon, circle.rayon);
        }
    }
    return path;
}

} // namespace

std::vector<QPainterPath> BoisDe(const std::vector<Piece> &pieces, const QTransform &to) {
    std::vector<QPainterPath> wood;
    wood.reserve(pieces.size());
    for (const Piece &piece : pieces) {
        wood.push_back(to.map(BoisDe(piece)));
    }
    return wood;
}

void PeintBois(QPainter &painter, const std::vector<QPainterPath> &wood) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kTranche, 1));
    painter.setBrush(kBois);
    for (const QPainterPath &path : wood) {
        painter.drawPath(path);
    }
    painter.restore();
}

} // namespace loftwing
