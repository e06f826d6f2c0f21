/// A building plan as SVG and as DXF.
#pragma once

#include "core/app_settings.h"
#include "output/plan_dessin.h"
#include "output/plot_device.h"

#include <array>
#include <string>

namespace loftwing {

/// By the number of the layer.
using CouleursPlan = std::array<Colour, kCouchesPlan>;

/// Colours of the elements in the plot: outline and ribs have the contour's, dimensions that of the
/// stations, the title block black.
CouleursPlan CouleursDuPlan(const AppSettings &settings);

/// Centre lines of holes are dash-dotted, all else is solid.
LineStyle StylePlan(CouchePlan couche);

/// White round a plan on one large page and in an SVG, mm.
inline constexpr double kBordPlan = 10;

/// SVG in mm at true scale: a group a layer, whose id is its name, in the order of the layers. The
/// view box leaves kBordPlan round the drawing; coordinates have four decimals. Failure 6
/// for a drawing beyond 1 km.
std::string EcritPlanSvg(const DessinPlan &dessin, const CouleursPlan &couleurs);

/// DXF (R12) in the unit given, y up, coordinates as in the drawing: a layer of every kind. Lines
/// of two points are LINE, all others POLYLINE.
std::string EcritPlanDxf(const DessinPlan &dessin, const std::string &Unite);

} // namespace loftwing
