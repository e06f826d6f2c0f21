// The clean DXF form: a whole R12 file that every reader takes.

#include "output/dxf.h"

#include "base/text_encoding.h"
#include "core/stations.h"
#include "output/dxf_text.h"
#include "output/recording.h"
#include "output/rib_measures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace loftwing {

namespace {

constexpr std::string_view kCalqueReperes = "STATIONS";
constexpr std::string_view kCalqueTexte = "TEXT";
constexpr double kCapitales = 0.716; // height of Arial's capitals, parts of the font size

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

struct Etendue {
    DxfPoint bas{1e300, 1e300};
    DxfPoint haut{-1e300, -1e300};

    void Prend(DxfPoint point) {
        bas = {std::min(bas.x, point.x), std::min(bas.y, point.y)};
        haut = {std::max(haut.x, point.x), std::max(haut.y, point.y)};
    }
};

/// Everything on the drawing, in the file's unit.
class Dessin {
  public:
    explicit Dessin(const DxfSource &source) : source_(source) {
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
    Etendue etendue_;

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

    void Entete(DxfText &dxf) const;
    void Tables(DxfText &dxf) const;
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

/// R12 texts are in the code page that the header names: a degree sign has its own code, Latin
/// letters are one byte, the rest is told by its number.
std::string EnPageDeCode(const std::string &text) {
    std::string texte;
    for (const char32_t code : CodePoints(text)) {
        if (code < 0x80) {
            texte += code < ' ' ? ' ' : static_cast<char>(code);
        } else if (code == 0xB0) {
            texte += "%%d";
        } else if (code >= 0xA0 && code <= 0xFF) {
            texte += static_cast<char>(code);
        } else if (code <= 0xFFFF) {
            std::array<char, 8> number{};
            std::snprintf(number.data(), number.size(), "\\U+%04lX",
                          static_cast<unsigned long>(code));
            texte += number.data();
        } else {
            texte += '?';
        }
    }
    return texte;
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
    textes_.push_back({EnPageDeCode(texte.InsTexte), place, height, Mm(width)});
    etendue_.Prend(place);
    etendue_.Prend({place.x + Mm(width), place.y + height});
}

void Dessin::Entete(DxfText &dxf) const {
    const bool inches = DiviseurDxf(source_.Unite) != 1.0;
    constexpr int kPouces = 1;
    constexpr int kMillimetres = 4;
    dxf.Texte(0, "SECTION");
    dxf.Texte(2, "HEADER");
    dxf.Texte(9, "$ACADVER");
    dxf.Texte(1, "AC1009");
    dxf.Texte(9, "$DWGCODEPAGE");
    dxf.Texte(3, "ANSI_1252");
    dxf.Texte(9, "$INSUNITS");
    dxf.Entier(70, inches ? kPouces : kMillimetres);
    dxf.Texte(9, "$MEASUREMENT");
    dxf.Entier(70, inches ? 0 : 1);
    const bool empty = etendue_.bas.x > etendue_.haut.x;
    dxf.Texte(9, "$EXTMIN");
    dxf.Point(10, empty ? 0.0 : etendue_.bas.x, empty ? 0.0 : etendue_.bas.y);
    dxf.Reel(30, 0.0);
    dxf.Texte(9, "$EXTMAX");
    dxf.Point(10, empty ? 0.0 : etendue_.haut.x, empty ? 0.0 : etendue_.haut.y);
    dxf.Reel(30, 0.0);
    dxf.Texte(0, "ENDSEC");
}

void LineType(DxfText &dxf, std::string_view name, std::string_view description,
              const std::vector<double> &dashes, double scale) {
    dxf.Texte(0, "LTYPE");
    dxf.Texte(2, name);
    dxf.Entier(70, 0);
    dxf.Trait(description, dashes, scale);
}

struct Calque {
    std::string_view nom;
    int couleur;
    std::string_view trait;
};

constexpr std::array<Calque, 8> kCalques = {{{kCalqueContour, 7, "CONTINUOUS"},
                                             {kCalqueTalon, 10, "CONTINUOUS"},
                                             {kCalqueAxe, 10, "CENTER"},
                                             {kCalqueCoffrage, 180, "CONTINUOUS"},
                                             {kCalqueLongeron, 210, "CONTINUOUS"},
                                             {kCalqueTrou, 195, "CONTINUOUS"},
                                             {kCalqueReperes, 1, "CONTINUOUS"},
                                             {kCalqueTexte, 7, "CONTINUOUS"}}};

void OuvreTable(DxfText &dxf, std::string_view name, int records) {
    dxf.Texte(0, "TABLE");
    dxf.Texte(2, name);
    dxf.Entier(70, records);
}

void Dessin::Tables(DxfText &dxf) const {
    const double scale = DiviseurDxf(source_.Unite);
    dxf.Texte(0, "SECTION");
    dxf.Texte(2, "TABLES");
    OuvreTable(dxf, "LTYPE", 2);
    LineType(dxf, "CONTINUOUS", "Solid line", {}, scale);
    LineType(dxf, "CENTER", "Center ____ _ ____ _ ____", {31.75, -6.35, 6.35, -6.35}, scale);
    dxf.Texte(0, "ENDTAB");
    OuvreTable(dxf, "LAYER", static_cast<int>(kCalques.size()));
    for (const Calque &layer : kCalques) {
        dxf.Texte(0, "LAYER");
        dxf.Texte(2, layer.nom);
        dxf.Entier(70, 0);
        dxf.Entier(62, layer.couleur);
        dxf.Texte(6, layer.trait);
    }
    dxf.Texte(0, "ENDTAB");
    dxf.Texte(0, "ENDSEC");
}

void Dessin::Entites(DxfText &dxf) const {
    dxf.Texte(0, "SECTION");
    dxf.Texte(2, "ENTITIES");
    for (const Segment &line : segments_) {
        dxf.Texte(0, "LINE");
        dxf.Texte(8, line.calque);
        dxf.Point(10, line.de.x, line.de.y);
        dxf.Reel(30, 0.0);
        dxf.Point(11, line.a.x, line.a.y);
        dxf.Reel(31, 0.0);
    }
    for (const DxfCercle &circle : cercles_) {
        dxf.Texte(0, "CIRCLE");
        dxf.Texte(8, circle.calque);
        dxf.Point(10, circle.centre.x, circle.centre.y);
        dxf.Reel(30, 0.0);
        dxf.Reel(40, circle.rayon);
    }
    for (const Texte &texte : textes_) {
        dxf.Texte(0, "TEXT");
        dxf.Texte(8, kCalqueTexte);
        dxf.Point(10, texte.place.x, texte.place.y);
        dxf.Reel(30, 0.0);
        dxf.Reel(40, texte.hauteur);
        dxf.Texte(1, texte.mots);
    }
    dxf.Texte(0, "ENDSEC");
}

std::string Dessin::Fichier() const {
    std::string out;
    DxfText dxf(out);
    Entete(dxf);
    Tables(dxf);
    dxf.Texte(0, "SECTION");
    dxf.Texte(2, "BLOCKS");
    dxf.Texte(0, "ENDSEC");
    Entites(dxf);
    dxf.Texte(0, "EOF");
    return out;
}

} // namespace

std::string EcritDxfSimple(const DxfSource &source) {
    DxfSource scaled = source;
    scaled.echelle_juste = true;
    return Dessin(scaled).Fichier();
}

} // namespace loftwing
