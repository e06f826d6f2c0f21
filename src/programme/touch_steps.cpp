#include "programme/touch_steps.h"

#include "base/number_text.h"
#include "base/version.h"
#include "core/stations.h"
#include "features/longeron.h"
#include "features/trou.h"
#include "programme/rib_trial.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kMmPerInch = 25.4;

double TailleDuPas(PasDeTire pas, const std::string &Unite) {
    const bool inches = Unite == kUniteIn;
    if (pas == PasDeTire::fin) {
        return inches ? 0.01 * kMmPerInch : 0.1;
    }
    return inches ? kMmPerInch / 32 : 1.0;
}

/// The nearest whole number of steps between two bounds, or the nearer bound where there is none.
double Arrondi(double value, double step, double lowest, double highest) {
    const double inside = std::clamp(value, lowest, std::max(lowest, highest));
    double rounded = RoundHalfEven(inside / step) * step;
    if (rounded > highest) {
        rounded -= step;
    }
    if (rounded < lowest) {
        rounded += step;
    }
    return rounded >= lowest && rounded <= highest ? rounded : inside;
}

/// The number without what its computing has left behind the last place that counts.
std::string TexteCourt(double value) {
    constexpr double kPlaces = 1000;
    return NumberText(RoundHalfEven(value * kPlaces) / kPlaces);
}

std::string TextePlace(double mm, const std::string &before, float corde, const Saisie &saisie) {
    if (before.ends_with('%')) {
        return TexteCourt(Quotient(mm * 100.0, Wide(corde))) + "%";
    }
    return saisie.Unite == kUniteIn ? DepuisMm(mm, saisie.Unite) : TexteCourt(mm);
}

/// The place of a spar or hole of that width, as a text that counts from its own edge.
std::string TexteSurCorde(const RibModel &rib, double x, double width, std::uint8_t ref,
                          const std::string &before, double step, const Saisie &saisie) {
    const double corde = Wide(rib.corde);
    // Place 0 ends the list of spars.
    const double least = std::max(width / 2, step);
    const double from_edge = Arrondi(ref != 0 ? corde - x : x, step, least, corde - width / 2);
    return TextePlace(from_edge, before, rib.corde, saisie);
}

/// Heights of the surfaces at a place, mm above the reference line.
struct Hauteurs {
    double dessous, dessus;
};

Hauteurs HauteursA(const RibModel &rib, double x) {
    const double corde = Wide(rib.corde);
    const int k = std::clamp(ToInt(kLastStation * (1 - Quotient(x, corde))), 0, kLastStation);
    return {corde * At(rib.TabIntrados, k), corde * At(rib.TabExtrados, k)};
}

void PlaceLongeron(RibModel &rib, int slot, double x, double step, const Saisie &saisie) {
    Longeron &spar = At(rib.longeron, slot);
    spar.PosLongAfich =
        TexteSurCorde(rib, x, Wide(spar.LargLong), spar.RefLong, spar.PosLongAfich, step, saisie);
    spar.PosLong = PlaceDepuis(spar.PosLongAfich, spar.RefLong, rib.corde, saisie);
}

void PlaceTrou(RibModel &rib, int slot, const LieuRib &place, double step, const Saisie &saisie) {
    Trou &hole = At(rib.trou, slot);
    hole.PosTrouAfich = TexteSurCorde(rib, place.x, Wide(hole.DiaTrou), hole.RefTrou,
                                      hole.PosTrouAfich, step, saisie);
    hole.PosTrou = PlaceDepuis(hole.PosTrouAfich, hole.RefTrou, rib.corde, saisie);
    if (hole.ChkCentre == 1.0F) {
        return;
    }
    const double half = Wide(hole.TypeTrou == kTrouRectangle ? hole.HautTrou : hole.DiaTrou) / 2;
    const Hauteurs wood = HauteursA(rib, Wide(hole.PosTrou));
    const double lowest = wood.dessous + half;
    const double highest = wood.dessus - half;
    const bool fits = lowest <= highest;
    const double y =
        fits ? Arrondi(place.y, step, lowest, highest) : RoundHalfEven(place.y / step) * step;
    StockeLongueur(TextePlace(y, "", rib.corde, saisie), saisie, hole.DecalTrouAfich,
                   hole.DecalTrou);
}

void PlaceTexte(RibModel &rib, const LieuRib &place, double step, const Saisie &saisie) {
    const double corde = Wide(rib.corde);
    // At 0 both ways a text counts as one without a place.
    const double x = Arrondi(place.x, step, step, corde);
    const double y = Arrondi(place.y, step, corde * rib.IntradosMini, corde * rib.ExtradosMaxi);
    StockeLongueur(TextePlace(x, "", rib.corde, saisie), saisie, rib.texte.InsTextXAfich,
                   rib.texte.InsTextX);
    StockeLongueur(TextePlace(y, "", rib.corde, saisie), saisie, rib.texte.InsTextYAfich,
                   rib.texte.InsTextY);
}

std::string AvecUnite(const std::string &text, const std::string &Unite) {
    return text + (text.ends_with('%') ? "" : Unite);
}

/// "33% (66 mm) from the leading edge".
std::string DitPlace(const std::string &afich, float mm, std::uint8_t ref, const RibModel &rib,
                     const Saisie &saisie) {
    std::string text = AvecUnite(afich, saisie.Unite);
    if (afich.ends_with('%')) {
        const double from_edge = ref != 0 ? Wide(rib.corde) - Wide(mm) : Wide(mm);
        text += " (" + DepuisMm(RoundHalfEven(from_edge * 100) / 100, saisie.Unite) + saisie.Unite +
                ")";
    }
    return text + " " +
           saisie.messages.Text(ref != 0 ? LngKey{"Undo", "41"} : LngKey{"Undo", "40"});
}

std::string DitLongeron(const RibModel &rib, const Longeron &spar, const Saisie &saisie) {
    const std::string size = spar.TypeLong == kLongeronRond
                                 ? "Ø " + spar.LargLongAfich
                                 : spar.LargLongAfich + " x " + spar.HautLongAfich;
    return DitPlace(spar.PosLongAfich, spar.PosLong, spar.RefLong, rib, saisie) + ", " + size +
           saisie.Unite;
}

/// "3 mm above the reference line"; nothing on the line.
std::string DitHauteur(const std::string &afich, float mm, const Saisie &saisie) {
    return mm == 0.0F ? ""
                      : ", " + afich + saisie.Unite + " " + saisie.messages.Text({"Undo", "45"});
}

std::string DitTexte(const RibModel &rib, const Saisie &saisie) {
    const TexteInsere &text = rib.texte;
    return DitPlace(text.InsTextXAfich, text.InsTextX, 0, rib, saisie) +
           DitHauteur(text.InsTextYAfich, text.InsTextY, saisie);
}

std::string DitTrou(const RibModel &rib, const Trou &hole, const Saisie &saisie) {
    const std::string size = hole.TypeTrou == kTrouRectangle
                                 ? hole.DiaTrouAfich + " x " + hole.HautTrouAfich
                                 : "Ø " + hole.DiaTrouAfich;
    const bool centred = hole.ChkCentre == 1.0F && hole.DecalTrou == 0.0F;
    return DitPlace(hole.PosTrouAfich, hole.PosTrou, hole.RefTrou, rib, saisie) + ", " + size +
           saisie.Unite + (centred ? "" : DitHauteur(hole.DecalTrouAfich, hole.DecalTrou, saisie));
}

std::string Mesures(const RibModel &rib, const SujetTrace &sujet, const Saisie &saisie) {
    switch (sujet.genre) {
    case GenreSujet::longeron:
        return DitLongeron(rib, At(rib.longeron, sujet.slot), saisie);
    case GenreSujet::trou:
        return DitTrou(rib, At(rib.trou, sujet.slot), saisie);
    case GenreSujet::baguette_ba:
        return rib.EpBAAfich + saisie.Unite;
    case GenreSujet::baguette_bf:
        return rib.EpBFAfich + saisie.Unite;
    case GenreSujet::carre:
        return rib.carre.CarreBAAfich + saisie.Unite;
    case GenreSujet::talon:
        return (rib.talon.OptTalon == 0 ? rib.talon.TalonIntraAfich : rib.talon.TalonExtraAfich) +
               saisie.Unite;
    case GenreSujet::gabarit:
        return rib.bloc.HTbasblocAfich + saisie.Unite;
    case GenreSujet::texte:
        return DitTexte(rib, saisie);
    case GenreSujet::aucun:
        break;
    }
    return {};
}

void Retire(RibModel &rib, const SujetTrace &sujet) {
    switch (sujet.genre) {
    case GenreSujet::longeron:
        RetireLongeron(rib, sujet.slot);
        break;
    case GenreSujet::trou:
        RetireTrou(rib, sujet.slot);
        break;
    case GenreSujet::baguette_ba:
        rib.EpBA = 0;
        rib.EpBAAfich = "0";
        break;
    case GenreSujet::baguette_bf:
        rib.EpBF = 0;
        rib.EpBFAfich = "0";
        break;
    case GenreSujet::carre:
        rib.carre = {};
        rib.TypeBA = 1;
        break;
    case GenreSujet::talon:
    case GenreSujet::gabarit:
        rib.TypeGabarit = kSansGabarit;
        break;
    case GenreSujet::texte: {
        const float size = rib.texte.TailleFont;
        rib.texte = {};
        rib.texte.TailleFont = size;
        break;
    }
    case GenreSujet::aucun:
        break;
    }
}

/// Draws the rib with what was changed, or puts it back where it can't be drawn.
void Montre(Programme &programme, CommandView &view, const std::function<void()> &back) {
    if (!RibTracable(programme, kTitre)) {
        back();
        return;
    }
    programme.rib.Modifie = true;
    view.affiche();
}

} // namespace

std::string NomDuSujet(const SujetTrace &sujet, const Messages &messages) {
    switch (sujet.genre) {
    case GenreSujet::longeron:
        return messages.Text({"Panel", "9"}) + " " + std::to_string(sujet.slot + 1);
    case GenreSujet::trou:
        return messages.Text({"Panel", "14"}) + " " + std::to_string(sujet.slot + 1);
    case GenreSujet::baguette_ba:
        return messages.Text({"Panel", "116"});
    case GenreSujet::baguette_bf:
        return messages.Text({"Panel", "117"});
    case GenreSujet::carre:
        return messages.Text({"Panel", "118"});
    case GenreSujet::talon:
        return messages.Text({"Panel", "119"});
    case GenreSujet::gabarit:
        return messages.Text({"Panel", "120"});
    case GenreSujet::texte:
        return messages.Text({"Undo", "17"});
    case GenreSujet::aucun:
        break;
    }
    return {};
}

std::string DitSujet(const RibModel &rib, const SujetTrace &sujet, const Saisie &saisie) {
    return NomDuSujet(sujet, saisie.messages) + ": " + Mesures(rib, sujet, saisie);
}

std::optional<LieuRib> LieuDuSujet(const RibModel &rib, const SujetTrace &sujet) {
    switch (sujet.genre) {
    case GenreSujet::longeron:
        return LieuRib{Wide(At(rib.longeron, sujet.slot).PosLong), 0};
    case GenreSujet::trou: {
        const Trou &hole = At(rib.trou, sujet.slot);
        return LieuRib{Wide(hole.PosTrou), Wide(hole.DecalTrou)};
    }
    case GenreSujet::texte:
        return LieuRib{Wide(rib.texte.InsTextX), Wide(rib.texte.InsTextY)};
    default:
        return std::nullopt;
    }
}

void PlaceSujet(RibModel &rib, const SujetTrace &sujet, const LieuRib &place, PasDeTire pas,
                const Saisie &saisie) {
    const double step = TailleDuPas(pas, saisie.Unite);
    if (sujet.genre == GenreSujet::longeron) {
        PlaceLongeron(rib, sujet.slot, place.x, step, saisie);
    } else if (sujet.genre == GenreSujet::trou) {
        PlaceTrou(rib, sujet.slot, place, step, saisie);
    } else if (sujet.genre == GenreSujet::texte) {
        PlaceTexte(rib, place, step, saisie);
    }
}

void DeplaceSujet(Programme &programme, CommandView &view, const SujetTrace &sujet,
                  const LieuRib &place, PasDeTire pas) {
    const auto back = RetourDuRib(programme.rib);
    try {
        PlaceSujet(programme.rib, sujet, place, pas, programme.SaisieEnCours());
    } catch (const Failure &) {
        back();
        throw;
    }
    Montre(programme, view, back);
}

void RetireSujet(Programme &programme, CommandView &view, const SujetTrace &sujet) {
    const Messages &messages = programme.messages;
    if (!sujet ||
        !messages.Confirm(messages.Text({"Undo", "42"}) + " " + NomDuSujet(sujet, messages) + " ?",
                          kTitre)) {
        return;
    }
    const auto back = RetourDuRib(programme.rib);
    Retire(programme.rib, sujet);
    Montre(programme, view, back);
}

std::string DitDistance(double mm) {
    return Format(mm, "0.00") + " mm = " + Format(mm / kMmPerInch, "0.000") + " in";
}

} // namespace loftwing
