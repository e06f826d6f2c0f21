/// Scale, origin and words of the special views on the screen.
#pragma once

#include "output/screen_plot.h"
#include "output/view_plots.h"

#include <string>

namespace loftwing {

/// Each sets scale and origin for the screen and draws its view on trace.device, which the caller
/// has cleared. Nothing is drawn while there is nothing to show: no second airfoil yet, or none at
/// all.
Affichage afficheCompare(const Trace &trace, const Comparaison &compare);
Affichage afficheEpcourb(const Trace &trace);
Affichage afficheCouple(const Trace &trace);

/// The view that is up, or the rib where there is none.
Affichage afficheVue(const Trace &trace, const Comparaison &compare);

/// Where that lies on the screen. Failure 6 beyond 32 bits.
PlaceEcran PlaceVue(const RibModel &rib, const Comparaison &compare);
/// Where its leading edge stands on the reference line: behind the ramp of a foam template.
PlaceEcran PlaceProfil(const RibModel &rib, const Comparaison &compare);

/// Whether a view moves with the vertical scroll bar. Views whose height is fixed start at the top.
bool DefileEnHauteur(const RibModel &rib);

/// The window's caption, and the status bar's second panel.
std::string TitreCompare(const Comparaison &compare, const Messages &messages);
std::string EtatCompare(const RibModel &rib, const Comparaison &compare, const Saisie &saisie);
std::string EtatEpCourb(const RibModel &rib, const Saisie &saisie);
/// The panel while a comparison is in the making: airfoil 1 with the chord, and its name alone.
std::string EtatProfil1(const RibModel &rib, const Comparaison &compare, const Saisie &saisie);
std::string EtatNom1(const Comparaison &compare, const Messages &messages);
std::string TitreCouple(const RibModel &rib);

/// The name under which the current view is printed and saved.
std::string NomDuDessin(const RibModel &rib, const Comparaison &compare);

} // namespace loftwing
