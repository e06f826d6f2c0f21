/// A printed sheet as it was drawn.
#pragma once

#include "output/recording.h"
#include "platform/qt_plot_device.h"

namespace loftwing {

/// A recording with the letters of paper, for a printer that passes on what is drawn on it.
class Sheet : public Recording {
  public:
    Sheet() : Recording(PaperAdvance) {}
    using Recording::CircleOutline;
    using Recording::Segment;
    using Recording::Text;
};

} // namespace loftwing
