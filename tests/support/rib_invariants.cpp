#include "support/rib_invariants.h"

#include "output/page_setup.h"
#include "persist/LireEcrire.h"
#include "persist/rib_snapshot.h"
#include "support/scripted_platform.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace loftwing {

namespace {

/// Collects what doesn't hold.
class Broken {
  public:
    void Unless(bool holds, const std::string &rule) {
        if (!holds) {
            rules_.push_back(rule);
        }
    }
    void UnlessFinite(double value, const std::string &name) {
        Unless(std::isfinite(value), name + " is a number");
    }
    void UnlessFinite(const std::vector<double> &values, const std::string &name) {
        Unless(std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); }),
               name + " are numbers");
    }
    std::vector<std::string> Rules() { return std::move(rules_); }

  private:
    std::vector<std::string> rules_;
};

// At any time.

// Counts are what loops over lists end at, and a list is as long as its count or longer.
void Counts(const RibModel &rib, const Comparaison &compare, Broken &broken) {
    broken.Unless(rib.NbPoints >= 0 && rib.ProfilX.Count() >= rib.NbPoints &&
                      rib.ProfilY.Count() >= rib.NbPoints,
                  "the airfoil has the points that it counts");
    broken.Unless(rib.NbContour >= 0 && rib.ContourX.Count() == rib.NbContour &&
                      rib.ContourY.Count() == rib.NbContour,
                  "the contour has the points that it counts");
    broken.Unless(compare.CompareNb1 >= 0 && compare.CompareX1.Count() >= compare.CompareNb1 &&
                      compare.CompareY1.Count() >= compare.CompareNb1,
                  "airfoil 1 has the points that it counts");
    broken.Unless(compare.CompareNb2 >= 0 && compare.CompareX2.Count() >= compare.CompareNb2 &&
                      compare.CompareY2.Count() >= compare.CompareNb2,
                  "airfoil 2 has the points that it counts");
}

// Nothing that isn't a number may come into the model: it would pass every comparison with a limit.
void Numbers(const RibModel &rib, Broken &broken) {
    broken.UnlessFinite(rib.ProfilX.Values(), "ProfilX");
    broken.UnlessFinite(rib.ProfilY.Values(), "ProfilY");
    broken.UnlessFinite(rib.ContourX.Values(), "ContourX");
    broken.UnlessFinite(rib.ContourY.Values(), "ContourY");
    for (const auto *table :
         {&rib.TabExtrados, &rib.TabIntrados, &rib.NouvExtrados, &rib.NouvIntrados}) {
        broken.UnlessFinite({table->begin(), table->end()}, "heights at stations");
    }
    const std::vector<std::pair<const char *, double>> values = {
        {"corde", Wide(rib.corde)},
        {"EpCoffrage", Wide(rib.EpCoffrage)},
        {"EpBA", Wide(rib.EpBA)},
        {"EpBF", Wide(rib.EpBF)},
        {"vrillage", Wide(rib.vrillage)},
        {"Zoom", Wide(rib.Zoom)},
        {"EpMaxi", rib.EpMaxi},
        {"CambrureMaxi", rib.CambrureMaxi},
        {"EcartContour", rib.EcartContour},
        {"CarreBA", Wide(rib.carre.CarreBA)},
        {"CarreBAX", Wide(rib.carre.CarreBAX)},
        {"CarreBAY", Wide(rib.carre.CarreBAY)},
        {"TalonIntra", rib.talon.TalonIntra},
        {"TalonExtra", rib.talon.TalonExtra},
        {"TalonBA", rib.talon.TalonBA},
        {"TalonBF", rib.talon.TalonBF},
        {"HTbasbloc", Wide(rib.bloc.HTbasbloc)},
        {"HTbloc", Wide(rib.bloc.HTbloc)},
        {"LongBloc", Wide(rib.bloc.LongBloc)},
        {"TailleFont", Wide(rib.texte.TailleFont)},
        {"InsTextX", Wide(rib.texte.InsTextX)},
        {"InsTextY", Wide(rib.texte.InsTextY)},
    };
    for (const auto &[name, value] : values) {
        broken.UnlessFinite(value, name);
    }
    for (const Longeron &spar : rib.longeron) {
        broken.UnlessFinite(
            {Wide(spar.PosLong), Wide(spar.LargLong), Wide(spar.HautLong), Wide(spar.DistLong)},
            "a spar's lengths");
    }
    for (const Trou &hole : rib.trou) {
        broken.UnlessFinite(
            {Wide(hole.PosTrou), Wide(hole.DiaTrou), Wide(hole.HautTrou), Wide(hole.DecalTrou)},
            "a hole's lengths");
    }
}

// What lengths are read and sheets laid by. A settings file may name any colour, style and width.
void Choices(const AppSettings &settings, Broken &broken) {
    broken.Unless(settings.Unite == kUniteMm || settings.Unite == kUniteIn, "the unit is known");
    const MiseEnPage &page = settings.page;
    broken.UnlessFinite({Wide(page.MargeHaut), Wide(page.MargeBas), Wide(page.recouvrement),
                         Wide(page.Ydprint), Wide(page.PasPage)},
                        "the page's lengths");
    broken.Unless(settings.correction.x > 0 && settings.correction.y > 0,
                  "sheets are stretched by something");
}

// At rest.

// Only one thing can be shown.
void Views(const RibModel &rib, Broken &broken) {
    const int views = (rib.ModeCompare ? 1 : 0) + (rib.ModeEpCourb ? 1 : 0);
    broken.Unless(views <= 1, "one special view at most");
    broken.Unless(rib.Zoom > 0, "the zoom is above 0");
    broken.Unless(!rib.SansApercu, "no reading without its preview is under way");
}

// Drawing, saving and every tool ask ProfilCharge and then work on points and contour.
void Airfoil(const RibModel &rib, Broken &broken) {
    if (!rib.ProfilCharge) {
        return;
    }
    broken.Unless(!rib.NomProfil.empty() || !rib.CheminProfil.empty(), "an airfoil has a name");
    broken.Unless(rib.NbPoints > 0, "an airfoil that is there has points");
    broken.Unless(rib.ProfilX.Count() == rib.ProfilY.Count(), "as many x as y");
    if (rib.ModeCouple) {
        return; // bare points have no contour
    }
    broken.Unless(rib.NbContour > 0, "a rib has a contour");
    broken.Unless(rib.NbExtrados >= 1 && rib.NbExtrados <= rib.NbContour + 1,
                  "the upper run lies on the contour");
    broken.Unless(rib.NbIntrados >= 0 && rib.IntradosX.Count() == rib.NbIntrados &&
                      rib.IntradosY.Count() == rib.NbIntrados,
                  "the lower run has the points that it counts");
    broken.Unless(rib.ExtradosMaxi >= 0 && rib.IntradosMini <= 0,
                  "the extremes reach from the reference line");
    broken.Unless(rib.EpMaxi >= 0 && rib.CambrureMaxi >= 0, "greatest values aren't negative");
}

// Loops over spars and holes end at the work slot. A rib of no length can't be drawn, and entries
// above their bounds are brought back to them.
void Bounds(const RibModel &rib, Broken &broken) {
    broken.Unless(rib.NbLongeron < kSlots - 1, "the spars' work slot is at most the twelfth");
    broken.Unless(rib.NbTrou < kSlots - 1, "the holes' work slot is at most the twelfth");
    broken.Unless(!rib.ProfilCharge || rib.corde != 0, "a rib has a chord");
    broken.Unless(std::abs(rib.vrillage) <= kVrillageMaxi, "the washout is within its limits");
    broken.Unless(rib.TypeBA <= 1, "the leading edge has stock or a square");
    broken.Unless(rib.TypeGabarit == kSansGabarit || rib.TypeGabarit == kGabaritMousse ||
                      rib.TypeGabarit == kGabaritTalon,
                  "the kind of template is known");
    broken.Unless(rib.talon.OptTalon == 0 || rib.talon.OptTalon == 1, "the heel's side is known");
    broken.Unless(rib.texte.InsTexte.find_first_of("\r\n") == std::string::npos,
                  "the text is one line");
}

/// A length's text and its number, and what the number may be instead where the text was refused.
struct Longueur {
    const char *nom;
    const std::string &afich;
    double mm;
    std::vector<double> ramenee = {};
};

/// Whether a number is what its text says. Texts that are no length, or none that can be held, keep
/// the number that was in force.
bool DitSonNombre(const Longueur &longueur, const std::string &Unite) {
    static ScriptedPlatform nobody;
    static const LngIni wordless;
    static const Messages silent{nobody, wordless};
    if (EstRefusee(longueur.afich, Unite)) {
        return true;
    }
    const auto near = [&](double mm) {
        return std::abs(mm - longueur.mm) <= 1e-5 * std::max(1.0, std::abs(longueur.mm));
    };
    try {
        return near(NombreMm(longueur.afich, {Unite, silent})) ||
               std::any_of(longueur.ramenee.begin(), longueur.ramenee.end(), near);
    } catch (const Failure &) {
        return true;
    }
}

// What is drawn is what the fields show. A default in mm stays where the settings file's, in
// inches, can't be read.
void Texts(const RibModel &rib, const std::string &Unite, Broken &broken) {
    const std::vector<Longueur> lengths = {
        {"sheeting", rib.EpCoffrageAfich, Wide(rib.EpCoffrage), {Wide(Dimensions{}.EpCoffrage)}},
        {"leading edge stock", rib.EpBAAfich, Wide(rib.EpBA), {0}},
        {"trailing edge stock", rib.EpBFAfich, Wide(rib.EpBF), {0}},
        {"text's place along", rib.texte.InsTextXAfich, Wide(rib.texte.InsTextX)},
        {"text's place across", rib.texte.InsTextYAfich, Wide(rib.texte.InsTextY)},
        {"square", rib.carre.CarreBAAfich, Wide(rib.carre.CarreBA), {50, 50.8}},
        {"square's x", rib.carre.CarreBAXAfich, Wide(rib.carre.CarreBAX), {0}},
        {"square's y", rib.carre.CarreBAYAfich, Wide(rib.carre.CarreBAY)},
    };
    for (const Longueur &length : lengths) {
        broken.Unless(DitSonNombre(length, Unite), std::string("the text of the ") + length.nom +
                                                       " (" + length.afich + ") says its number (" +
                                                       std::to_string(length.mm) + ")");
    }
    for (int slot = 0; slot < rib.NbLongeron; ++slot) {
        const Longeron &spar = At(rib.longeron, slot);
        broken.Unless(DitSonNombre({"", spar.LargLongAfich, Wide(spar.LargLong)}, Unite) &&
                          DitSonNombre({"", spar.HautLongAfich, Wide(spar.HautLong)}, Unite) &&
                          DitSonNombre({"", spar.DistLongAfich, Wide(spar.DistLong)}, Unite),
                      "the texts of spar " + std::to_string(slot + 1) + " say its numbers");
    }
    for (int slot = 0; slot < rib.NbTrou; ++slot) {
        const Trou &hole = At(rib.trou, slot);
        broken.Unless(DitSonNombre({"", hole.DiaTrouAfich, Wide(hole.DiaTrou)}, Unite) &&
                          DitSonNombre({"", hole.HautTrouAfich, Wide(hole.HautTrou)}, Unite) &&
                          DitSonNombre({"", hole.DecalTrouAfich, Wide(hole.DecalTrou)}, Unite),
                      "the texts of hole " + std::to_string(slot + 1) + " say its numbers");
    }
}

// Undo gives back what was on the screen, so what is there must have been noted.
void History(const Programme &programme, Broken &broken) {
    const RibHistory &history = programme.histoire;
    const RibModel &rib = programme.rib;
    try {
        const EtatRib &now = history.Present();
        broken.Unless(*now.dimensions == rib.Partie<Dimensions>() &&
                          *now.ajouts == rib.Partie<Ajouts>() &&
                          *now.identite == rib.Partie<IdentiteProfil>() &&
                          *now.points == rib.Partie<PointsLus>(),
                      "the present step is the rib");
        broken.Unless(!history.PeutAnnuler() || history.Precedent().dimensions,
                      "a step back is there");
        broken.Unless(!history.PeutRetablir() || history.Suivant().dimensions,
                      "a step forth is there");
    } catch (const Failure &) {
        broken.Unless(false, "the steps that are offered can be taken");
    }
}

// A crash costs nothing: what a snapshot keeps comes back to the last bit.
void Snapshot(const Programme &programme, Broken &broken) {
    const PartiesRib &parties = programme.rib.Partie<PartiesRib>();
    const std::string bytes = EcritInstantane(parties, programme.settings.Unite);
    const auto read = LitInstantane(bytes);
    broken.Unless(read && EcritInstantane(read->parties, read->Unite) == bytes,
                  "a snapshot keeps the rib");
}

} // namespace

std::vector<std::string> BrokenAtAnyTime(const Programme &programme) {
    Broken broken;
    Counts(programme.rib, programme.compare, broken);
    Numbers(programme.rib, broken);
    Choices(programme.settings, broken);
    return broken.Rules();
}

std::vector<std::string> BrokenAtRest(const Programme &programme) {
    Broken broken;
    Views(programme.rib, broken);
    Airfoil(programme.rib, broken);
    Bounds(programme.rib, broken);
    Texts(programme.rib, programme.settings.Unite, broken);
    History(programme, broken);
    Snapshot(programme, broken);
    return broken.Rules();
}

} // namespace loftwing
