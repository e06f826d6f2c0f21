#include "programme/plan_aile.h"

#include "base/number_text.h"
#include "output/sheet_marks.h"
#include "programme/plan_cotes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace loftwing {

namespace {

constexpr double kMoitie = 0.5;
constexpr double kEntreNumeros = 1;
constexpr double kRangNumeros = 5;  // from one row of them to the next
constexpr double kNumero = 3.5;     // capitals of a rib's number, mm
constexpr double kSousNumero = 6;   // from the trailing edge to its base line
constexpr double kChaine = 12;      // from the leading edges to the dimensions of the ribs
constexpr double kEntreCotes = 9;   // from one row of dimensions to the next
constexpr double kBoutCote = 12;    // from an end of the wing to the dimension of its chord
constexpr double kSousPlan = 25;    // from the plan to what is below it
constexpr double kTitre = 5;        // capitals of the title block
constexpr double kLigneTitre = 3;   // and of its lines
constexpr double kInterligne = 1.9; // of the title block, in capitals
constexpr double kMargeTitre = 5;   // within its frame
constexpr double kCoche = 2;        // ticks of the check line

class Dessinateur {
  public:
    Dessinateur(const Aile &aile, CoteAile cote, const Messages &messages, const std::string &Unite)
        : aile_(aile), droite_(cote == CoteAile::droite), messages_(messages), Unite_(Unite),
          cotes_(dessin) {
        numeros_.fill(-std::numeric_limits<double>::infinity());
    }

    DessinPlan dessin;

    void Panneaux();
    void Chaines();
    void Cordes();
    void Titre();
    void Dessous(const DessinPlan &face);

  private:
    const Aile &aile_;
    const bool droite_;
    const Messages &messages_;
    const std::string &Unite_;
    TraceurCotes cotes_;
    std::array<double, 4> numeros_; ///< how far along the wing a row of numbers is taken

    /// From the wing to the drawing.
    PointMm Place(double x, double y) const { return {droite_ ? x : -x, -y}; }
    PointMm Place(const PointMm &point) const { return Place(point.x, point.y); }
    void Contour(const PanneauAile &panel);
    void Nervure(const NervureAile &rib);
    void Numero(const NervureAile &rib);
    void Baton(const PanneauAile &panel, std::size_t i);
    void Lignes(CouchePlan layer, const std::vector<LigneAile> &lines);
    double Avant() const;
    std::string Longueur(double mm) const { return LongueurPlan(mm, Unite_); }
    std::string AvecUnite(double mm) const { return Longueur(mm) + Unite_; }
    std::string LignePanneau(std::size_t i) const;
    std::vector<std::string> LignesTitre() const;
    void LigneTemoin(PointMm at, double length);
};

void Dessinateur::Contour(const PanneauAile &panel) {
    dessin.traits.push_back({CouchePlan::contour,
                             {Place(panel.x, panel.y), Place(panel.Fin(), panel.YFin()),
                              Place(panel.Fin(), panel.YFin() + panel.cordes[1]),
                              Place(panel.x, panel.y + panel.cordes[0])},
                             true});
}

void Dessinateur::Nervure(const NervureAile &rib) {
    const double half = rib.epaisseur * kMoitie;
    const double rear = rib.y + rib.corde;
    TraitPlan outline{CouchePlan::nervure, {Place(rib.x - half, rib.y)}, half > 0};
    if (half > 0) {
        outline.points.push_back(Place(rib.x + half, rib.y));
        outline.points.push_back(Place(rib.x + half, rear));
    }
    outline.points.push_back(Place(rib.x - half, rear));
    dessin.traits.push_back(std::move(outline));
    Numero(rib);
}

/// Under the trailing edge; where ribs stand close to each other in a row below.
void Dessinateur::Numero(const NervureAile &rib) {
    const std::string number = std::to_string(rib.numero);
    const double half = LargeurTextePlan(number, kNumero) * kMoitie;
    auto *row = std::find_if(numeros_.begin(), numeros_.end() - 1,
                             [&](double free) { return rib.x - half > free; });
    *row = rib.x + half + kEntreNumeros;
    PointMm at = Place(rib.x, rib.y + rib.corde);
    at.y -= kSousNumero + kRangNumeros * static_cast<double>(row - numeros_.begin());
    dessin.textes.push_back({CouchePlan::nervure, at, kNumero, number, AppuiTexte::milieu});
}

/// Sticks that lie over each other are one in the plan.
void Dessinateur::Baton(const PanneauAile &panel, std::size_t i) {
    const BatonAile &stick = panel.batons[i];
    const std::array<double, 2> half = {stick.LargeurVue(0) * kMoitie,
                                        stick.LargeurVue(1) * kMoitie};
    const BoutBaton &a = stick.bouts[0];
    const BoutBaton &b = stick.bouts[1];
    const TraitPlan outline{stick.genre == GenreBaton::longeron ? CouchePlan::longeron
                                                                : CouchePlan::baguette,
                            {Place(a.x, a.y - half[0]), Place(b.x, b.y - half[1]),
                             Place(b.x, b.y + half[1]), Place(a.x, a.y + half[0])},
                            true};
    if (std::find(dessin.traits.begin(), dessin.traits.end(), outline) == dessin.traits.end()) {
        dessin.traits.push_back(outline);
    }
}

void Dessinateur::Lignes(CouchePlan layer, const std::vector<LigneAile> &lines) {
    for (const LigneAile &line : lines) {
        TraitPlan drawn{layer, {}, false};
        for (const PointMm &point : line.points) {
            drawn.points.push_back(Place(point));
        }
        dessin.traits.push_back(std::move(drawn));
    }
}

void Dessinateur::Panneaux() {
    for (const PanneauAile &panel : aile_.panneaux) {
        Contour(panel);
        for (const NervureAile &rib : panel.nervures) {
            Nervure(rib);
        }
        for (std::size_t i = 0; i < panel.batons.size(); ++i) {
            Baton(panel, i);
        }
        Lignes(CouchePlan::coffrage, panel.bords_coffrage);
        Lignes(CouchePlan::trou, panel.trous);
    }
}

/// The foremost place of the wing.
double Dessinateur::Avant() const {
    double front = 0;
    for (const PanneauAile &panel : aile_.panneaux) {
        front = std::min({front, panel.y, panel.YFin()});
    }
    return front;
}

/// In front of the wing: from rib to rib, then the panels, then the wing and its joints.
void Dessinateur::Chaines() {
    double row = Avant() - kChaine;
    for (const PanneauAile &panel : aile_.panneaux) {
        for (const NervureAile &rib : panel.nervures) {
            cotes_.Rappel(Place(rib.x, rib.y), Place(rib.x, row));
        }
        for (std::size_t i = 1; i < panel.nervures.size(); ++i) {
            const double from = panel.nervures[i - 1].x;
            const double to = panel.nervures[i].x;
            cotes_.EnLong(Place(from, row), Place(to, row), Longueur(to - from));
        }
    }
    row -= kEntreCotes;
    for (const PanneauAile &panel : aile_.panneaux) {
        for (const auto &[x, y] : {PointMm{panel.x, panel.y}, PointMm{panel.Fin(), panel.YFin()}}) {
            cotes_.Rappel(Place(x, y), Place(x, row));
        }
        cotes_.EnLong(Place(panel.x, row), Place(panel.Fin(), row), Longueur(panel.longueur));
    }
    if (aile_.panneaux.size() < 2) {
        return;
    }
    row -= kEntreCotes;
    const double end = aile_.panneaux.back().Fin();
    cotes_.Rappel(Place(0, row + kEntreCotes), Place(0, row));
    cotes_.Rappel(Place(end, row + kEntreCotes), Place(end, row));
    cotes_.EnLong(Place(0, row), Place(end, row), Longueur(end));
    for (std::size_t i = 1; i < aile_.panneaux.size(); ++i) {
        cotes_.Texte(Place(aile_.panneaux[i].x, row - kEntreCotes * kMoitie),
                     messages_.Text({"Plan", "20"}) + " " + Degres(AngleDeJoint(aile_, i)),
                     AppuiTexte::milieu);
    }
}

/// Beside its ends: the chords, and how far the tip lies behind the root.
void Dessinateur::Cordes() {
    const NervureAile &root = aile_.panneaux.front().nervures.front();
    const NervureAile &tip = aile_.panneaux.back().nervures.back();
    const double end = aile_.panneaux.back().Fin();
    const auto chord = [this](const NervureAile &rib, double x) {
        const double rear = rib.y + rib.corde;
        cotes_.Rappel(Place(rib.x, rib.y), Place(x, rib.y));
        cotes_.Rappel(Place(rib.x, rear), Place(x, rear));
        cotes_.EnTravers(Place(x, rib.y), Place(x, rear), Longueur(rib.corde));
    };
    chord(root, -kBoutCote);
    chord(tip, end + kBoutCote);
    const double back = aile_.panneaux.back().YFin() - aile_.panneaux.front().y;
    if (back != 0) {
        const double x = end + kBoutCote + 2 * kEntreCotes;
        cotes_.Rappel(Place(0, 0), Place(x, 0));
        cotes_.Rappel(Place(end, back), Place(x, back));
        cotes_.EnTravers(Place(x, 0), Place(x, back), Longueur(std::abs(back)));
    }
}

/// "Panel 2: tip.lfp, 400 mm, 180 / 120 mm, sweep 20 mm, dihedral 5°, ribs 8 - 12".
std::string Dessinateur::LignePanneau(std::size_t i) const {
    const PanneauAile &panel = aile_.panneaux[i];
    std::string line;
    if (aile_.panneaux.size() > 1) {
        line = messages_.Text({"Plan", "13"}) + " " + std::to_string(i + 1) + ": ";
        line += panel.nom.empty() ? "" : panel.nom + ", ";
    }
    line += messages_.Text({"Plan", "14"}) + " " + AvecUnite(panel.longueur) + ", " +
            messages_.Text({"Plan", "15"}) + " " + Longueur(panel.nervures.front().corde) + " / " +
            AvecUnite(panel.nervures.back().corde) + ", " + messages_.Text({"Plan", "16"}) + " " +
            std::to_string(panel.nervures.front().numero) + " - " +
            std::to_string(panel.nervures.back().numero);
    if (panel.reglage.recul != 0) {
        line += ", " + messages_.Text({"Plan", "17"}) + " " + AvecUnite(panel.reglage.recul);
    }
    if (panel.reglage.diedre != 0) {
        line += ", " + messages_.Text({"Plan", "18"}) + " " + Degres(panel.reglage.diedre);
    }
    return line;
}

std::vector<std::string> Dessinateur::LignesTitre() const {
    std::vector<std::string> lines = {
        messages_.Text(droite_ ? LngKey{"Plan", "11"} : LngKey{"Plan", "12"}) + ", " +
        messages_.Text({"Plan", "19"}) + " 1:1, " + std::string(Trim(Unite_))};
    for (std::size_t i = 0; i < aile_.panneaux.size(); ++i) {
        lines.push_back(LignePanneau(i));
    }
    const double height = HauteurSous(aile_, aile_.panneaux.size() - 1);
    if (height != 0) {
        lines.push_back(messages_.Text({"Plan", "21"}) + " " + AvecUnite(height));
    }
    lines.push_back(messages_.Text({"FrmPrint", "270"}) + " : " + Longueur(LongueurTemoin(Unite_)) +
                    Unite_);
    return lines;
}

void Dessinateur::LigneTemoin(PointMm at, double length) {
    constexpr int kParts = 10;
    const int parts = Unite_ == kUniteIn ? kParts - 2 : kParts; // half inches
    dessin.traits.push_back({CouchePlan::cadre, {at, {at.x + length, at.y}}, false});
    for (int i = 0; i <= parts; ++i) {
        const double x = at.x + length * i / parts;
        dessin.traits.push_back({CouchePlan::cadre, {{x, at.y}, {x, at.y + kCoche}}, false});
    }
}

/// The title block, below all that is drawn so far, its frame as wide as its words.
void Dessinateur::Titre() {
    const BoitePiece box = EtenduePlan(dessin);
    const std::vector<std::string> lines = LignesTitre();
    const double length = LongueurTemoin(Unite_);
    double width = std::max(length, LargeurTextePlan(aile_.nom, kTitre));
    for (const std::string &line : lines) {
        width = std::max(width, LargeurTextePlan(line, kLigneTitre));
    }
    const double left = droite_ ? 0 : -width - 2 * kMargeTitre;
    const double top = box.bas_gauche.y - kMargeTitre;
    PointMm at{left + kMargeTitre, top - kMargeTitre - kTitre};
    dessin.textes.push_back({CouchePlan::cadre, at, kTitre, aile_.nom, AppuiTexte::gauche});
    for (const std::string &line : lines) {
        at.y -= kLigneTitre * kInterligne;
        dessin.textes.push_back({CouchePlan::cadre, at, kLigneTitre, line, AppuiTexte::gauche});
    }
    at.y -= kLigneTitre * kInterligne;
    LigneTemoin(at, length);
    const double bottom = at.y - kMargeTitre;
    const double right = left + width + 2 * kMargeTitre;
    dessin.traits.push_back(
        {CouchePlan::cadre, {{left, top}, {right, top}, {right, bottom}, {left, bottom}}, true});
}

void Dessinateur::Dessous(const DessinPlan &face) {
    const BoitePiece box = EtenduePlan(face);
    const double down = EtenduePlan(dessin).bas_gauche.y - kSousPlan - box.haut_droite.y;
    AjouteAuPlan(dessin, face, {0, down});
}

} // namespace

DessinPlan DessinePlan(const Aile &aile, CoteAile cote, bool face, const Messages &messages,
                       const std::string &Unite) {
    Dessinateur drawer(aile, cote, messages, Unite);
    drawer.dessin.titre = aile.nom;
    if (aile.panneaux.empty()) {
        return std::move(drawer.dessin);
    }
    drawer.Panneaux();
    drawer.Chaines();
    drawer.Cordes();
    if (face) {
        drawer.Dessous(DessineFace(aile, cote, messages, Unite));
    }
    drawer.Titre();
    return std::move(drawer.dessin);
}

std::vector<DessinPlan> DessinsDeLAile(const Aile &aile, bool deux_ailes, const Messages &messages,
                                       const std::string &Unite) {
    const bool face =
        std::any_of(aile.panneaux.begin(), aile.panneaux.end(),
                    [](const PanneauAile &panel) { return panel.reglage.diedre != 0; });
    std::vector<DessinPlan> all = {DessinePlan(aile, CoteAile::droite, face, messages, Unite)};
    if (deux_ailes) {
        all.push_back(DessinePlan(aile, CoteAile::gauche, face, messages, Unite));
    }
    return all;
}

} // namespace loftwing
