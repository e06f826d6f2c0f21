// The clean DXF form: a whole R12 file that every reader takes.

#include "output/dxf.h"

#include "core/stations.h"
#include "output/dxf_r12.h"
#include "output/recording.h"
#include "output/rib_measures.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace loftwing {

namespace {

constexpr std::string_view kCalqueReperes = "STATIONS";
constexpr std::string_view kCalqueTexte = "TEXT";

struct Segment {
    std::string_view calque;
    DxfPoint de, a;
};

struct Texte {
    std::string mots;
    DxfPoint place; ///< start of the base line
    double hauteur; ///< of its capitals
    double largeur;
};

/// Everything on the drawing, in the file's unit.
class Dessin {
  public:
    explicit Dessin(const DxfSource &source) : source_(source) {
        segments_.reserve(SommetsProbables(source.rib));
        EntitesDxf(source, [this](const DxfEntite &entity) {
            std::visit([this](const auto &shape) { Prend(shape); }, entity);
        });
        if (!source.rib.ModeCouple) {
            Reperes();
            TexteInsere();
        }
    }

    std::string Fichier() const;

  private:
    const DxfSource &source_;
    std::vector<Segment> segments_;
    std::vector<DxfCercle> cercles_;
    std::vector<Texte> textes_;
    EtendueDxf etendue_;

    double Mm(double mm) const { return mm / DiviseurDxf(source_.Unite); }
    /// Upside down the drawing is mirrored about the reference line.
    DxfPoint Vu(DxfPoint point) const {
        return source_.rib.AffHaut ? DxfPoint{point.x, -point.y} : point;
    }
    void Ligne(std::string_view calque, DxfPoint de, DxfPoint a);
    void Prend(const DxfPolyligne &line);
    void Prend(const DxfCercle &circle);
    void Reperes();
    void TexteInsere();

    void Entites(DxfText &dxf) const;
};

void Dessin::Ligne(std::string_view calque, DxfPoint de, DxfPoint a) {
    if (de.x == a.x && de.y == a.y) {
        return; // a cutter has nothing to do there
    }
    segments_.push_back({calque, de, a});
    etendue_.Prend(de);
    etendue_.Prend(a);
}

/// The interchange form leaves a notch open at the surface and a rectangular hole half a side
/// short; what a cutter takes out must be a whole outline. Nothing but such shapes lies on these
/// layers.
bool Decoupe(const DxfPolyligne &line) {
    return line.calque == kCalqueLongeron || line.calque == kCalqueTrou;
}

void Dessin::Prend(const DxfPolyligne &line) {
    for (std::size_t i = 1; i < line.points.size(); ++i) {
        Ligne(line.calque, Vu(line.points[i - 1]), Vu(line.points[i]));
    }
    if ((line.fermee || Decoupe(line)) && !line.points.empty()) {
        Ligne(line.calque, Vu(line.points.back()), Vu(line.points.front()));
    }
}

void Dessin::Prend(const DxfCercle &circle) {
    if (circle.rayon <= 0.0) {
        return; // readers reject such a circle, the slot being edited has one
    }
    cercles_.push_back({circle.handle, circle.calque, Vu(circle.centre), circle.rayon});
    const DxfPoint centre = cercles_.back().centre;
    etendue_.Prend({centre.x - circle.rayon, centre.y - circle.rayon});
    etendue_.Prend({centre.x + circle.rayon, centre.y + circle.rayon});
}

/// The station lines where the plot has them.
void Dessin::Reperes() {
    const RibModel &rib = source_.rib;
    if (rib.NbRep == 0) {
        return;
    }
    const double corde = Wide(rib.corde);
    const bool bloc = rib.TypeGabarit == kGabaritMousse;
    const double ramp = bloc ? source_.plot.BlocBA : 0.0;
    const double below = bloc ? source_.plot.BlocEp : 0.0;
    const int parts = rib.NbRep + 1;
    const float part = ToSingle(corde / parts);
    for (int i = 0; i <= parts; ++i) {
        const double x = Wide(ToSingle(Wide(part) * i));
        const auto k = Wide(StationDepuisBA(x, rib.corde));
        const double up = Hauteur(rib.TabExtrados, k) * corde;
        double foot = (Hauteur(rib.TabIntrados, k) - kSousLeProfil -
                       (rib.AffHaut ? kSousLeProfilInverse : 0.0)) *
                      corde;
        if (below != 0.0) {
            foot = -below;
        }
        const double at = Mm((kLastStation - k) / kLastStation * corde + ramp);
        Ligne(kCalqueReperes, Vu({at, Mm(up)}), Vu({at, Mm(foot)}));
    }
}

/// The inserted text as high as on paper; it stands upright whichever way up the rib is.
void Dessin::TexteInsere() {
    const auto &texte = source_.rib.texte;
    const double size = Wide(texte.TailleFont) * kUnitsPerPoint / kUnitsPerMm;
    const bool placed = texte.InsTextX != 0.0F || texte.InsTextY != 0.0F;
    if (texte.InsTexte.empty() || !placed || !(size > 0.0)) {
        return;
    }
    const bool bloc = source_.rib.TypeGabarit == kGabaritMousse;
    const double ramp = bloc ? source_.plot.BlocBA : 0.0;
    const double top = Wide(texte.InsTextY) + kTexteAuDessus;
    const double x = Wide(texte.InsTextX) + ramp;
    const double width =
        MeasuredAdvance(texte.InsTexte, {"Arial", Wide(texte.TailleFont)}) / kUnitsPerMm;
    const DxfPoint place{Mm(x), Mm(top - size * kAscent)};
    const double height = Mm(size * kCapitales);
    textes_.push_back({texte.InsTexte, place, height, Mm(width)});
    etendue_.Prend(place);
    etendue_.Prend({place.x + Mm(width), place.y + height});
}

constexpr std::array<CalqueR12, 8> kCalques = {{{kCalqueContour, 7, kTraitPlein},
                                                {kCalqueTalon, 10, kTraitPlein},
                                                {kCalqueAxe, 10, kTraitAxe},
                                                {kCalqueCoffrage, 180, kTraitPlein},
                                                {kCalqueLongeron, 210, kTraitPlein},
                                                {kCalqueTrou, 195, kTraitPlein},
                                                {kCalqueReperes, 1, kTraitPlein},
                                                {kCalqueTexte, 7, kTraitPlein}}};

void Dessin::Entites(DxfText &dxf) const {
    const auto ecrit = [](DxfPoint point) {
        return PointEcrit{ReelDxf(point.x), ReelDxf(point.y)};
    };
    const Segment *avant = nullptr;
    PointEcrit fin; // of the line before, where the next one mostly begins
    for (const Segment &line : segments_) {
        const bool suit = avant != nullptr && avant->a.x == line.de.x && avant->a.y == line.de.y;
        const PointEcrit debut = suit ? std::move(fin) : ecrit(line.de);
        fin = ecrit(line.a);
        LigneR12(dxf, line.calque, debut, fin); // points may agree in all that is written
        avant = &line;
    }
    for (const DxfCercle &circle : cercles_) {
        dxf.Texte(0, "CIRCLE");
        dxf.Texte(8, circle.calque);
        dxf.Point(10, circle.centre.x, circle.centre.y);
        dxf.Reel(30, 0.0);
        dxf.Reel(40, circle.rayon);
    }
    for (const Texte &texte : textes_) {
        TexteR12(dxf, kCalqueTexte, {texte.place, texte.hauteur, texte.mots});
    }
}

std::string Dessin::Fichier() const {
    CadreR12 cadre{source_.Unite, etendue_, kCalques};
    cadre.lignes = segments_.size();
    return FichierR12(cadre, [this](DxfText &dxf) { Entites(dxf); });
}

} // namespace

std::string EcritDxfSimple(const DxfSource &source) {
    DxfSource scaled = source;
    scaled.echelle_juste = true;
    return Dessin(scaled).Fichier();
}

} // namespace loftwing
