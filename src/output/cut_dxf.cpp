// Pieces for a cutter as DXF.

#include "output/cut_forms.h"

#include "base/text_encoding.h"
#include "output/dxf_r12.h"

#include <array>

namespace loftwing {

namespace {

constexpr std::string_view kCalqueCoupe = "CUT";
constexpr std::string_view kCalqueMarque = "MARK";
constexpr std::array<CalqueR12, 2> kCalques = {
    {{kCalqueMarque, 5, kTraitPlein}, {kCalqueCoupe, 7, kTraitPlein}}};

class Fichier {
  public:
    Fichier(DxfText &dxf, const std::string &Unite, AnneauxDxf anneaux)
        : dxf_(dxf), anneaux_(anneaux), echelle_(Unite) {}

    void Marques(const Piece &piece) const;
    void Dedans(const Piece &piece) const;
    void Dehors(const Piece &piece) const;

  private:
    DxfText &dxf_;
    AnneauxDxf anneaux_;
    EchelleR12 echelle_;

    void Trace(const Anneau &anneau) const;
    void Cercle(const CerclePiece &cercle) const;
};

void Fichier::Trace(const Anneau &anneau) const {
    const std::vector<PointEcrit> points =
        AnneauEcrit(anneau, [this](const PointMm &point) { return echelle_.Ecrit(point); });
    if (points.empty()) {
        return;
    }
    if (anneaux_ == AnneauxDxf::polylignes) {
        PolyligneR12(dxf_, kCalqueCoupe, points, true);
        return;
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        LigneR12(dxf_, kCalqueCoupe, points[i], points[(i + 1) % points.size()]);
    }
}

void Fichier::Cercle(const CerclePiece &cercle) const {
    const std::string rayon = echelle_.Ecrit(cercle.rayon);
    if (rayon == "0.0") {
        return; // readers reject such a circle
    }
    dxf_.Texte(0, "CIRCLE");
    dxf_.Texte(8, kCalqueCoupe);
    PointR12(dxf_, 10, echelle_.Ecrit(cercle.centre));
    dxf_.Texte(40, rayon);
}

void Fichier::Marques(const Piece &piece) const {
    for (const TraitMarque &trait : piece.traits) {
        for (std::size_t i = 1; i < trait.points.size(); ++i) {
            LigneR12(dxf_, kCalqueMarque, echelle_.Ecrit(trait.points[i - 1]),
                     echelle_.Ecrit(trait.points[i]));
        }
    }
    for (const TexteMarque &texte : piece.textes) {
        TexteR12(
            dxf_, kCalqueMarque,
            {echelle_.Place(texte.place), echelle_.Longueur(texte.hauteur), ToUtf8(texte.texte)});
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
