#include "programme/nom_propose.h"

#include "base/file_name.h"
#include "base/number_text.h"
#include "output/screen_plot.h"
#include "output/view_screen.h"
#include "programme/rib_file.h"

#include <algorithm>

namespace loftwing {

std::string NomPropose(const Programme &programme) {
    const RibModel &rib = programme.rib;
    if (RibVisible(rib) && EstComposants(rib.NomFichierRib)) {
        return StemOf(rib.NomFichierRib);
    }
    const std::string &Unite = programme.settings.Unite;
    std::string corde(Trim(TexteEnVigueur(rib.cordeAfich, rib.corde, Unite)));
    std::replace(corde.begin(), corde.end(), '/', '-');
    return AsFileName(NomDuDessin(rib, programme.compare) + " " + corde + Unite);
}

} // namespace loftwing
