/// A rib and everything that a plot of it needs, with words that no language file has, so that a
/// text which is read from the wrong key shows.
#pragma once

#include "output/print_run.h"
#include "output/rib_plot.h"
#include "output/screen_plot.h"
#include "persist/settings.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <string>
#include <utility>
#include <vector>

namespace loftwing {

/// A scripted world that can be told not to mind boxes.
class WorldPlatform : public ScriptedPlatform {
  public:
    bool lenient = false;
    std::vector<Pointer> pointers; ///< every shape that was set

    BoxAnswer Show(const MessageBox &box) override;
    void SetPointer(Pointer shape) override;
};

/// The word that the tests' language file has for a key: "<SECTION KEY>".
std::string Word(const std::string &section, const std::string &key);

struct RibWorld {
    RibWorld();

    WorldPlatform platform;
    LngIni language;
    Messages messages{platform, language};
    RibModel rib;
    AppSettings settings;
    PlotState plot;

    Trace On(PlotDevice &device) { return {device, rib, settings, plot, messages}; }
    /// A print run whose plot is the rib's.
    Impression Run();
    /// Scale and origin as for the screen at the current zoom, unscrolled, with the reference line
    /// 1000 units below the top.
    void Place(float x = 283.5F, float y = 1000.0F);
};

using Points = std::vector<std::pair<double, double>>;

/// Points of a four-digit airfoil, `count` segments a surface in cosine spacing, from the trailing
/// edge over the upper surface: `digits` such as 2412.
Points Naca(int digits, int count, bool open_trailing_edge = false);

/// Takes points as the airfoil of the rib and prepares its contour, which must succeed.
void TakeAirfoil(RibWorld &world, const Points &points);

/// Reads an airfoil file into the rib and prepares its contour; false when either is refused.
bool TakeAirfoilFile(RibWorld &world, const std::string &path);

/// The airfoil files at hand: the bundled ones and those of the folder that the environment
/// variable LOFTWING_AIRFOILS names. Sorted.
std::vector<std::string> AirfoilFiles();

/// Sets both surfaces to one height at all stations but the last.
void FlatSurfaces(RibModel &rib, double upper, double lower);

} // namespace loftwing
