/// The sheets over the main window's picture.
#pragma once

#include "mainwindow/picture_area.h"
#include "output/screen_plot.h"
#include "programme/programme.h"

#include <optional>

namespace loftwing {

/// Knows whether the sheets are shown and of which page, and lays them over the picture.
class SheetOverlay {
  public:
    SheetOverlay(Programme &programme, PictureArea &picture)
        : programme_(programme), picture_(picture) {}

    /// Shows the sheets or takes them away.
    void Montre(bool shown);
    /// From now on the sheets are those of this page, null for none; of that in the settings again
    /// with SuitReglages.
    void Suit(const MiseEnPage *page);
    void SuitReglages();
    /// Lays them over a new drawing, which the picture has taken. The caller gives the bars their
    /// ranges.
    void Pose();

  private:
    Programme &programme_;
    PictureArea &picture_;
    bool shown_ = false;
    bool follows_ = false;           ///< a page that isn't that of the settings
    std::optional<MiseEnPage> page_; ///< that page, where it gives sheets
    PlaceEcran place_;               ///< of the drawing

    std::optional<MiseEnPage> Page() const;
    void Refait();
    void Retrace();
};

} // namespace loftwing
