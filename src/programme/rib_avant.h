/// The rib as it is before another airfoil takes it over.
#pragma once

#include "core/messages.h"
#include "core/rib_model.h"

namespace loftwing {

/// Reading an airfoil overwrites the one before, so this is made before a file is looked at.
struct RibAvant {
    PartiesRib parties; ///< the way back
    bool etiquette;     ///< the text on the rib is a label of the airfoil
};

RibAvant RibAvantLecture(const RibModel &rib, const Messages &messages);

/// The same for a rib that was cleared after its new airfoil had been asked for: there is no
/// airfoil to go back to.
RibAvant RibAvantVide(const RibModel &rib);

} // namespace loftwing
