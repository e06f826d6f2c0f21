#include "output/view_screen.h"

#include "base/version.h"
#include "core/stations.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr int kStationHaute = 300; // where a section is about at its thickest

std::string MotProfil(const Messages &messages) {
    return messages.Text({"MainTolbar", "11"});
}

/// "Chord : 200 mm".
std::string MotsCorde(const RibModel &rib, const Saisie &saisie) {
    return saisie.messages.Text({"MainTolbar", "13"}) + " : " + rib.cordeAfich + saisie.Unite;
}

void PlaceEpCourb(const RibModel &rib, PlotState &plot) {
    PlaceSurEcran(rib, plot);
    // The new section may rise over the old one.
    const double above = std::abs(rib.ExtradosMaxi - At(rib.NouvExtrados, kStationHaute));
    plot.OrigineY = ToSingle(
        (above + rib.ExtradosMaxi) * Wide(rib.corde) * kUnitsPerMm * Wide(rib.Zoom) + kMargeHaute);
}

void PlaceCouple(const RibModel &rib, PlotState &plot) {
    PlaceSurEcran(rib, plot);
    if (rib.AffHaut) { // the lower surface is on top
        plot.OrigineY = ToSingle(
            Wide(rib.corde) * -rib.IntradosMini * kUnitsPerMm * Wide(rib.Zoom) + kMargeHaute);
    }
}

/// Sets the place, then draws; a failure of either is told under the routine's label.
template <class Place, class Routine>
Affichage Affiche(const Trace &trace, const char *label, Place place, Routine routine) {
    try {
        place();
    } catch (const Failure &failure) {
        trace.messages.ReportPlot(failure, label);
        return Affichage::echec;
    }
    return routine() ? Affichage::dessine : Affichage::echec;
}

} // namespace

Affichage afficheCompare(const Trace &trace, const Comparaison &compare) {
    if (!compare.Complete()) {
        return Affichage::rien;
    }
    return Affiche(
        trace, " Main/PrintRoutine2", [&] { PlaceSurEcran(trace.rib, trace.plot); },
        [&] { return PrintRoutine2(trace, compare, 1.0); });
}

Affichage afficheEpcourb(const Trace &trace) {
    if (!trace.rib.ProfilCharge) {
        return Affichage::rien;
    }
    return Affiche(
        trace, " Main/PrintRoutineEpcourb", [&] { PlaceEpCourb(trace.rib, trace.plot); },
        [&] { return PrintRoutineEpcourb(trace, 1.0); });
}

Affichage afficheCouple(const Trace &trace) {
    if (!trace.rib.ProfilCharge) {
        return Affichage::rien;
    }
    return Affiche(
        trace, " Main/PrintRoutineCouple", [&] { PlaceCouple(trace.rib, trace.plot); },
        [&] { return PrintRoutineCouple(trace, 1.0); });
}

Affichage afficheVue(const Trace &trace, const Comparaison &compare) {
    const RibModel &rib = trace.rib;
    if (CompareEnVue(rib, compare)) {
        return afficheCompare(trace, compare);
    }
    if (rib.ModeEpCourb) {
        return afficheEpcourb(trace);
    }
    return rib.ModeCouple ? afficheCouple(trace) : afficheRib(trace);
}

PlaceEcran PlaceVue(const RibModel &rib, const Comparaison &compare) {
    PlotState plot;
    if (CompareEnVue(rib, compare)) {
        PlaceSurEcran(rib, plot);
    } else if (rib.ModeEpCourb) {
        PlaceEpCourb(rib, plot);
    } else if (rib.ModeCouple) {
        PlaceCouple(rib, plot);
    } else {
        PlaceRib(rib, plot);
    }
    return {Wide(plot.OrigineX), Wide(plot.OrigineY), Wide(rib.Zoom)};
}

PlaceEcran PlaceProfil(const RibModel &rib, const Comparaison &compare) {
    PlaceEcran place = PlaceVue(rib, compare);
    if (rib.TypeGabarit == kGabaritMousse && RibVisible(rib)) {
        const double leaning = -Wide(rib.bloc.HTbasbloc) * std::sin(EnRadians(Wide(rib.vrillage)));
        place.x += (Wide(rib.bloc.BAbloc) + std::max(leaning, 0.0)) * kUnitsPerMm * Wide(rib.Zoom);
    }
    return place;
}

bool DefileEnHauteur(const RibModel &rib) {
    if (rib.ModeCompare) {
        return true;
    }
    return !rib.ModeEpCourb && !(rib.ModeCouple && rib.AffHaut);
}

std::string TitreCompare(const Comparaison &compare, const Messages &messages) {
    return kTitre + messages.Text({"OutilCompare", "5"}) + " " + compare.CompareNom1 + " " +
           messages.Text({"OutilCompare", "6"}) + " " + compare.CompareNom2;
}

std::string EtatCompare(const RibModel &rib, const Comparaison &compare, const Saisie &saisie) {
    return EtatNom1(compare, saisie.messages) + MotProfil(saisie.messages) +
           " #2 :  " + compare.CompareNom2 + MotsCorde(rib, saisie);
}

std::string EtatEpCourb(const RibModel &rib, const Saisie &saisie) {
    return MotProfil(saisie.messages) + " : " + rib.NomProfil + " + " +
           NomNouveau(rib, saisie.messages) + MotsCorde(rib, saisie);
}

std::string EtatProfil1(const RibModel &rib, const Comparaison &compare, const Saisie &saisie) {
    return EtatNom1(compare, saisie.messages) + " " + saisie.messages.Text({"MainTolbar", "13"}) +
           rib.cordeAfich + saisie.Unite;
}

std::string EtatNom1(const Comparaison &compare, const Messages &messages) {
    return MotProfil(messages) + " #1 :  " + compare.CompareNom1;
}

std::string TitreCouple(const RibModel &rib) {
    return std::string(kTitre) + " : " + rib.NomProfil;
}

std::string NomDuDessin(const RibModel &rib, const Comparaison &compare) {
    return CompareEnVue(rib, compare) ? compare.CompareNom1 + " - " + compare.CompareNom2
                                      : rib.NomProfil;
}

} // namespace loftwing
