#include "output/qt_cut_pdf.h"

#include "base/failure.h"
#include "base/version.h"
#include "output/rib_measures.h"
#include "platform/qt_text.h"

#include <QBuffer>
#include <QFont>
#include <QPageSize>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>

namespace loftwing {

namespace {

constexpr int kDpi = 1200;
constexpr double kDotsPerMm = kDpi / 25.4;
constexpr double kPointsPerMm = 72 / 25.4;

/// Draws on a page whose upper left corner is `coin` of the drawing.
class Page {
  public:
    Page(QPainter &painter, const PointMm &coin) : painter_(painter), coin_(coin) {
        painter_.setBrush(Qt::NoBrush);
    }

    void Marque(const TraitMarque &trait, Colour couleur) const;
    void Marque(const TexteMarque &texte, Colour couleur) const;
    void Coupe(const Piece &piece, Colour couleur) const;

  private:
    QPainter &painter_;
    PointMm coin_;

    /// In dots, and between them.
    QPointF Sur(const PointMm &point) const {
        return {(point.x - coin_.x) * kDotsPerMm, (coin_.y - point.y) * kDotsPerMm};
    }
    QPolygonF Sur(const std::vector<PointMm> &points) const {
        QPolygonF polygon;
        for (const PointMm &point : points) {
            polygon.append(Sur(point));
        }
        return polygon;
    }
    void Ferme(QPainterPath &path, const Anneau &anneau) const {
        path.addPolygon(Sur(anneau));
        path.closeSubpath();
    }
    void PrendCrayon(Colour couleur) const {
        painter_.setPen(QPen(QColor::fromRgb(0xFF000000U | couleur), kTraitDeCoupe * kDotsPerMm,
                             Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    }
};

void Page::Marque(const TraitMarque &trait, Colour couleur) const {
    PrendCrayon(couleur);
    painter_.drawPolyline(Sur(trait.points));
}

void Page::Marque(const TexteMarque &texte, Colour couleur) const {
    if (!(texte.hauteur > 0)) {
        return;
    }
    QFont face;
    face.setFamilies({"Arial", "Liberation Sans", "Arimo", "Nimbus Sans", "Helvetica"});
    face.setPointSizeF(texte.hauteur / kCapitales * kPointsPerMm);
    face.setHintingPreference(QFont::PreferNoHinting);
    painter_.setFont(face);
    PrendCrayon(couleur);
    painter_.drawText(Sur(texte.place), Q(texte.texte));
}

void Page::Coupe(const Piece &piece, Colour couleur) const {
    QPainterPath path;
    for (const PartiePiece &partie : piece.parties) {
        for (const CerclePiece &cercle : partie.cercles) {
            const double rayon = cercle.rayon * kDotsPerMm;
            path.addEllipse(Sur(cercle.centre), rayon, rayon);
        }
        for (const Anneau &anneau : partie.dedans) {
            Ferme(path, anneau);
        }
    }
    for (const PartiePiece &partie : piece.parties) {
        Ferme(path, partie.dehors);
    }
    PrendCrayon(couleur);
    painter_.drawPath(path);
}

void Dessine(const Page &page, const DessinDecoupe &decoupe, const CouleursDecoupe &couleurs) {
    for (const Piece &piece : decoupe.pieces) {
        for (const TraitMarque &trait : piece.traits) {
            page.Marque(trait, couleurs.De(trait.genre));
        }
        for (const TexteMarque &texte : piece.textes) {
            page.Marque(texte, couleurs.De(texte.genre));
        }
    }
    for (const Piece &piece : decoupe.pieces) {
        page.Coupe(piece, couleurs.coupe);
    }
}

/// A page as it lies, without a rim.
QPageLayout Feuille(const BoitePiece &page) {
    const double largeur = page.haut_droite.x - page.bas_gauche.x;
    const double hauteur = page.haut_droite.y - page.bas_gauche.y;
    const QPageSize size({std::min(largeur, hauteur), std::max(largeur, hauteur)},
                         QPageSize::Millimeter, {}, QPageSize::ExactMatch);
    QPageLayout layout(size, largeur > hauteur ? QPageLayout::Landscape : QPageLayout::Portrait,
                       {});
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

void Verifie(bool done) {
    if (!done) {
        throw MakeFailure(kDeviceError);
    }
}

} // namespace

std::string EcritDecoupePdf(const std::vector<DessinDecoupe> &pages,
                            const CouleursDecoupe &couleurs) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kDpi);
    writer.setCreator(QString::fromLatin1(kTitre));
    QPainter painter;
    for (const DessinDecoupe &decoupe : pages) {
        const BoitePiece page = PageDe(decoupe);
        writer.setPageLayout(Feuille(page));
        if (&decoupe == &pages.front()) {
            writer.setTitle(Q(decoupe.titre));
            Verifie(painter.begin(&writer));
        } else {
            Verifie(writer.newPage());
        }
        Dessine(Page(painter, {page.bas_gauche.x, page.haut_droite.y}), decoupe, couleurs);
    }
    Verifie(painter.end());
    return bytes.toStdString();
}

} // namespace loftwing
