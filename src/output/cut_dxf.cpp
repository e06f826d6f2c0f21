// Pieces for a cutter as DXF.

#include "output/cut_forms.h"

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "output/dxf_r12.h"
#include "output/written_ring.h"

#include <array>

namespace loftwing {

namespace {

constexpr std::string_view kCalqueCoupe = "CUT";
constexpr std::string_view kCalqueMarque = "MARK";
constexpr std::array<CalqueR12, 2> kCalques = {
    {{kCalqueMarque, 5, kTraitPlein}, {kCalqueCoupe, 7, kTraitPlein}}};

// A file in inches has two more decimals: what a piece counts to, a millionth of a millimetre, must
// not be lost in it, or a ring could come to cross itself.
constexpr std::string_view kImageMm = "##0.0#####";
constexpr std::string_view kImagePouces = "##0.0#######";

class Fichier {
  public:
    Fichier(DxfText &dxf, const std::string &Unite, AnneauxDxf anneaux)
        : dxf_(dxf), anneaux_(anneaux), diviseur_(DiviseurDxf(Unite)),
          image_(diviseur_ == 1.0 ? kImageMm : kImagePouces) {}

    void Marques(const Piece &piece) const;
    void Dedans(const Piece &piece) const;
    void Dehors(const Piece &piece) const;

  private:
    DxfText &dxf_;
    AnneauxDxf anneaux_;
    double diviseur_;
    std::string_view image_;

    std::string Nombre(double mm) const {
        std::string text = Format(mm / diviseur_, image_);
        return text == "-0.0" ? "0.0" : text;
    }
    PointEcrit Ecrit(const PointMm &point) const { return {Nombre(point.x), Nombre(point.y)}; }
    void Point(int code, const PointEcrit &point) const;
    void Ligne(std::string_view calque, const PointEcrit &de, const PointEcrit &a) const;
    void Polyligne(const std::vector<PointEcrit> &points) const;
    void Trace(const Anneau &anneau) const;
    void Cercle(const CerclePiece &cercle) const;
};

void Fichier::Point(int code, const PointEcrit &point) const {
    constexpr int kNextAxis = 10;
    dxf_.Texte(code, point.x);
    dxf_.Texte(code + kNextAxis, point.y);
    dxf_.Reel(code + 2 * kNextAxis, 0.0);
}

void Fichier::Ligne(std::string_view calque, const PointEcrit &de, const PointEcrit &a) const {
    if (de == a) {
        return;
    }
    dxf_.Texte(0, "LINE");
    dxf_.Texte(8, calque);
    Point(10, de);
    Point(11, a);
}

void Fichier::Polyligne(const std::vector<PointEcrit> &points) const {
    constexpr int kFermee = 1;
    dxf_.Texte(0, "POLYLINE");
    dxf_.Texte(8, kCalqueCoupe);
    dxf_.Entier(66, 1); // vertices follow
    Point(10, {"0.0", "0.0"});
    dxf_.Entier(70, kFermee);
    for (const PointEcrit &point : points) {
        dxf_.Texte(0, "VERTEX");
        dxf_.Texte(8, kCalqueCoupe);
        Point(10, point);
    }
    dxf_.Texte(0, "SEQEND");
    dxf_.Texte(8, kCalqueCoupe);
}

void Fichier::Trace(const Anneau &anneau) const {
    const std::vector<PointEcrit> points =
        AnneauEcrit(anneau, [this](const PointMm &point) { return Ecrit(point); });
    if (points.empty()) {
        return;
    }
    if (anneaux_ == AnneauxDxf::polylignes) {
        Polyligne(points);
        return;
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        Ligne(kCalqueCoupe, points[i], points[(i + 1) % points.size()]);
    }
}

void Fichier::Cercle(const CerclePiece &cercle) const {
    const std::string rayon = Nombre(cercle.rayon);
    if (rayon == "0.0") {
        return; // readers reject such a circle
    }
    dxf_.Texte(0, "CIRCLE");
    dxf_.Texte(8, kCalqueCoupe);
    Point(10, Ecrit(cercle.centre));
    dxf_.Texte(40, rayon);
}

void Fichier::Marques(const Piece &piece) const {
    for (const TraitMarque &trait : piece.traits) {
        for (std::size_t i = 1; i < trait.points.size(); ++i) {
            Ligne(kCalqueMarque, Ecrit(trait.points[i - 1]), Ecrit(trait.points[i]));
        }
    }
    for (const TexteMarque &texte : piece.textes) {
        TexteR12(dxf_, kCalqueMarque,
                 {{texte.place.x / diviseur_, texte.place.y / diviseur_},
                  texte.hauteur / diviseur_,
                  ToUtf8(texte.texte)});
    }
}

void Fichier::Dedans(const Piece &piece) const {
    for (const PartiePiece &partie : piece.parties) {
        for (const CerclePiece &cercle : partie.cercles) {
            Cercle(cercle);
        }
        for (const Anneau &anneau : partie.dedans) {
            Trace(anneau);
        }
    }
}

void Fichier::Dehors(const Piece &piece) const {
    for (const PartiePiece &partie : piece.parties) {
        Trace(partie.dehors);
    }
}

EtendueDxf Etendue(const std::vector<Piece> &pieces, double diviseur) {
    const BoitePiece boite = EtendueDe(pieces);
    return {{boite.bas_gauche.x / diviseur, boite.bas_gauche.y / diviseur},
            {boite.haut_droite.x / diviseur, boite.haut_droite.y / diviseur}};
}

} // namespace

std::string EcritDecoupeDxf(const DessinDecoupe &decoupe, const std::string &Unite,
                            AnneauxDxf anneaux) {
    const double diviseur = DiviseurDxf(Unite);
    CadreR12 cadre{Unite, Etendue(decoupe.pieces, diviseur), kCalques};
    if (decoupe.planche) {
        cadre.limites = {decoupe.planche->x / diviseur, decoupe.planche->y / diviseur};
    }
    return FichierR12(cadre, [&](DxfText &dxf) {
        const Fichier fichier(dxf, Unite, anneaux);
        for (const auto routine : {&Fichier::Marques, &Fichier::Dedans, &Fichier::Dehors}) {
            for (const Piece &piece : decoupe.pieces) {
                (fichier.*routine)(piece);
            }
        }
    });
}

} // namespace loftwing
