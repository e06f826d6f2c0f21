#include "output/sheet_marks.h"

#include "base/text_encoding.h"
#include "core/units.h"
#include "output/recording.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>

namespace loftwing {

namespace {

constexpr double kPouce = 25.4;
constexpr double kTrait = 4.0;    // mm, the tick at the end of an arm
constexpr double kTraitPas = 2.0; // those between
constexpr double kRetrait = 6.0;  // from the arms to the note
constexpr double kEcart = 2.0;    // from everything drawn
constexpr double kLigne = 1.2 * kTailleNote * kUnitsPerPoint / kUnitsPerMm; // mm

bool EnPouces(const std::string &Unite) {
    return Unite == kUniteIn;
}

double LargeurTexte(const std::string &text) {
    return MeasuredAdvance(text, {"Arial", kTailleNote}) / kUnitsPerMm;
}

/// Adds a text to the lines of a note, a new line where the width is used up.
void AjouteLignes(std::vector<std::string> &lines, const std::string &text, double width) {
    std::istringstream words(text);
    std::string line;
    for (std::string word; words >> word;) {
        std::string longer = line;
        longer += (line.empty() ? "" : " ") + word;
        if (!line.empty() && LargeurTexte(longer) > width) {
            lines.push_back(line);
            line = word;
        } else {
            line = longer;
        }
    }
    if (!line.empty()) {
        lines.push_back(Raccourci(line, width));
    }
}

std::vector<std::string> LignesNote(const NoteTemoin &note, double length) {
    const double width = length - kRetrait;
    std::vector<std::string> lines;
    AjouteLignes(lines, note.consigne + " : " + DepuisMm(length, note.Unite) + note.Unite, width);
    if (!note.nom.empty()) {
        lines.push_back(Raccourci(note.nom, width));
    }
    AjouteLignes(lines, note.details, width);
    return lines;
}

/// A box in the angle of an L, so far from its arms as `retrait_x` and `retrait_y` say.
struct Angle {
    double retrait_x = 0;
    double retrait_y = 0;
    double largeur = 0;
    double hauteur = 0;
};
Etendue Zone(const PlaceTemoin &place, const Angle &angle) {
    Etendue zone;
    zone.Prend(place.x + place.sens_x * angle.retrait_x, place.y + place.sens_y * angle.retrait_y);
    zone.Prend(place.x + place.sens_x * (angle.retrait_x + angle.largeur),
               place.y + place.sens_y * (angle.retrait_y + angle.hauteur));
    return zone;
}

bool EstLibre(const Etendue &zone, const std::vector<Etendue> &encres) {
    const Etendue wide{zone.gauche - kEcart, zone.haut - kEcart, zone.droite + kEcart,
                       zone.bas + kEcart};
    return std::none_of(encres.begin(), encres.end(),
                        [&wide](const Etendue &ink) { return wide.Touche(ink); });
}

bool BrasLibres(const PlaceTemoin &place, const std::vector<Etendue> &encres) {
    return EstLibre(Zone(place, {0, 0, place.longueur, kTrait}), encres) &&
           EstLibre(Zone(place, {0, 0, kTrait, place.longueur}), encres);
}

/// Lays the note into the angle, or beside the end of the one or the other arm; false where none of
/// these is free.
bool PoseNote(PlaceTemoin &place, const NoteTemoin &note, const std::vector<Etendue> &encres) {
    place.lignes = LignesNote(note, place.longueur);
    double width = 0;
    for (const std::string &line : place.lignes) {
        width = std::max(width, LargeurTexte(line));
    }
    const double height = kLigne * static_cast<double>(place.lignes.size());
    const std::array<Angle, 3> angles = {
        {{kRetrait, kRetrait, width, height},
         {std::max(kRetrait, place.longueur - width), kRetrait, width, height},
         {kRetrait, std::max(kRetrait, place.longueur - height), width, height}}};
    for (const Angle &angle : angles) {
        place.note = Zone(place, angle);
        if (EstLibre(place.note, encres)) {
            return true;
        }
    }
    return false;
}

/// Draws in mm.
class Crayon {
  public:
    explicit Crayon(PlotDevice &device) : device_(device) {}

    void Trait(double x1, double y1, double x2, double y2) {
        device_.Line(x1 * kUnitsPerMm, y1 * kUnitsPerMm, x2 * kUnitsPerMm, y2 * kUnitsPerMm, 0);
    }
    void Ecrit(double x, double y, const std::string &text) {
        device_.CurrentX = x * kUnitsPerMm;
        device_.CurrentY = y * kUnitsPerMm;
        device_.Print(text);
    }

  private:
    PlotDevice &device_;
};

/// Puts a device back to what it was.
class StyleGarde {
  public:
    explicit StyleGarde(PlotDevice &device)
        : device_(device), font_(device.Font), colour_(device.ForeColor), width_(device.DrawWidth),
          style_(device.DrawStyle), x_(device.CurrentX), y_(device.CurrentY) {}
    StyleGarde(const StyleGarde &) = delete;
    StyleGarde &operator=(const StyleGarde &) = delete;
    ~StyleGarde() {
        device_.Font = font_;
        device_.ForeColor = colour_;
        device_.DrawWidth = width_;
        device_.DrawStyle = style_;
        device_.CurrentX = x_;
        device_.CurrentY = y_;
    }

  private:
    PlotDevice &device_;
    TextFont font_;
    Colour colour_;
    int width_, style_;
    double x_, y_;
};

void TraceBras(Crayon &pen, const PlaceTemoin &place, double step) {
    const double x = place.x;
    const double y = place.y;
    pen.Trait(x, y, x + place.sens_x * place.longueur, y);
    pen.Trait(x, y, x, y + place.sens_y * place.longueur);
    const long steps = std::lround(place.longueur / step);
    // At the corner either arm is the tick of the other.
    for (long i = 1; i <= steps; ++i) {
        const double at = place.longueur * static_cast<double>(i) / static_cast<double>(steps);
        const double tick = i == steps ? kTrait : kTraitPas;
        const double along = x + place.sens_x * at;
        const double across = y + place.sens_y * at;
        pen.Trait(along, y, along, y + place.sens_y * tick);
        pen.Trait(x, across, x + place.sens_x * tick, across);
    }
}

} // namespace

void TraceCroisee(PlotDevice &device, double x, double y, Colour colour) {
    const double arm = kBras * kUnitsPerMm;
    device.Line(x, y - arm, x, y + arm, colour);
    device.Line(x - arm, y, x + arm, y, colour);
}

std::string Raccourci(const std::string &text, double width) {
    if (LargeurTexte(text) <= width) {
        return text;
    }
    std::string start = text;
    while (!start.empty() && LargeurTexte(start + "...") > width) {
        start = FirstCharacters(start, CharacterCount(start) - 1);
    }
    return start + "...";
}

FeuilleTemoin FeuilleAvecMarges(double longueur, double hauteur, double avant, double apres) {
    const double left = std::max(kBordTemoin, avant);
    const double right = std::max(kBordTemoin, apres);
    const double across = std::min(left, right);
    return {longueur, hauteur, {left, across, longueur - right, hauteur - across}};
}

double LongueurTemoin(const std::string &Unite) {
    return EnPouces(Unite) ? 4 * kPouce : 100.0;
}

double LongueurPetitTemoin(const std::string &Unite) {
    return LongueurTemoin(Unite) / 2;
}

double HauteurPourTemoin(double bord, const std::string &Unite) {
    constexpr double kJeu = 1.0; // pens have a width
    return LongueurTemoin(Unite) + kEcart + kJeu + std::max(kBordTemoin - bord, 0.0);
}

double LongueurPourTemoin(double avant, double apres, const std::string &Unite) {
    return LongueurTemoin(Unite) + std::max(kBordTemoin, avant) + std::max(kBordTemoin, apres);
}

std::optional<PlaceTemoin> PlaceLibre(const FeuilleTemoin &feuille, const NoteTemoin &note,
                                      const std::vector<Etendue> &encres) {
    constexpr double kBruit = 1E-6; // a page that was made just large enough is
    struct Sens {
        int x, y;
    };
    constexpr std::array<Sens, 4> corners = {{{1, -1}, {-1, -1}, {1, 1}, {-1, 1}}};
    const Etendue &room = feuille.utile;
    for (const double length : {LongueurTemoin(note.Unite), LongueurPetitTemoin(note.Unite)}) {
        if (std::min(room.droite - room.gauche, room.bas - room.haut) < length - kBruit) {
            continue;
        }
        for (const Sens &corner : corners) {
            PlaceTemoin place{corner.x > 0 ? room.gauche : room.droite,
                              corner.y > 0 ? room.haut : room.bas,
                              corner.x,
                              corner.y,
                              length,
                              {},
                              {}};
            if (BrasLibres(place, encres) && PoseNote(place, note, encres)) {
                return place;
            }
        }
    }
    return std::nullopt;
}

void TraceTemoin(PlotDevice &device, const PlaceTemoin &place, const std::string &Unite) {
    const StyleGarde kept(device);
    device.DrawWidth = 1;
    device.DrawStyle = 0;
    device.ForeColor = 0;
    device.Font = {"Arial", kTailleNote};
    Crayon pen(device);
    TraceBras(pen, place, EnPouces(Unite) ? kPouce / 2 : 10.0);
    double y = place.note.haut;
    for (const std::string &line : place.lignes) {
        pen.Ecrit(place.note.gauche, y, line);
        y += kLigne;
    }
}

} // namespace loftwing
