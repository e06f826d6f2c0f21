/// Scale, origin and status words of the rib on the screen.
#pragma once

#include "output/trace.h"

#include <array>
#include <string>
#include <string_view>

namespace loftwing {

/// The zoom list; its texts are the only table of zoom factors.
inline constexpr std::array<const char *, 7> kZoomRows = {"Zoom 300 %", "Zoom 200 %", "Zoom 150 %",
                                                          "Zoom 100 %", "Zoom  75 %", "Zoom  50 %",
                                                          "Zoom  25 %"};
inline constexpr int kZoomRow100 = 3;

/// The factor that a row's text names: 3 for "Zoom 300 %".
float FacteurZoom(const std::string &row);

/// From the left and the upper edge of the picture to the drawing: 5 and 15 mm.
inline constexpr double kMargeGauche = 283.5;
inline constexpr double kMargeHaute = 850.5;

/// Sets CordeEchelle, and OrigineX and OrigineY so that the upper surface's highest point keeps the
/// margin before scrolling. Failure 6 beyond 32 bits.
void PlaceSurEcran(const RibModel &rib, PlotState &plot);

/// The same for the rib: a foam template reaches beyond it.
void PlaceRib(const RibModel &rib, PlotState &plot);

/// Where a drawing lies on the screen: what its plot found for origin, in device units from the
/// picture's upper left corner, and the zoom.
struct PlaceEcran {
    double x = 0;
    double y = 0;
    double zoom = 1;
};

/// How a redraw ended.
enum class Affichage {
    rien,   ///< no rib is shown, or a special view is up
    refuse, ///< the stocks don't fit into the chord; a box told so, the old drawing stands
    dessine,
    echec ///< reported; the caller clears the rib
};

/// Whether `affiche` draws at all: an airfoil is loaded and no special view is up.
bool RibVisible(const RibModel &rib);

/// Whether both stocks fit into the chord; a box says so if they don't.
bool StocksTiennent(const RibModel &rib, const Messages &messages);

/// Whether the contour's places can be told in 32 bits at every zoom of the list. A chord that is
/// too long for that is another matter.
bool ContourTracable(const RibModel &rib);

/// Sets scale and origin for the screen and draws the rib on trace.device, which the caller has
/// cleared.
Affichage afficheRib(const Trace &trace);

/// The texts of the status bar's second panel and of the window's caption.
std::string TexteEtat(const RibModel &rib, const AppSettings &settings, const Messages &messages);
std::string TitreFenetre(const RibModel &rib, const Messages &messages);

/// The chord that an airfoil's title carries behind its ":". A title without one, or without a
/// number behind it, changes nothing.
void CordeDuTitre(RibModel &rib, const Saisie &saisie);

} // namespace loftwing
