#include "programme/rib_avant.h"

#include "features/inserted_text.h"

namespace loftwing {

RibAvant RibAvantLecture(const RibModel &rib, const Messages &messages) {
    return {rib.Partie<PartiesRib>(), EtiquetteDuProfil(rib, messages)};
}

RibAvant RibAvantVide(const RibModel &rib) {
    RibAvant before{rib.Partie<PartiesRib>(), false};
    static_cast<IdentiteProfil &>(before.parties) = {};
    static_cast<PointsLus &>(before.parties) = {};
    return before;
}

} // namespace loftwing
