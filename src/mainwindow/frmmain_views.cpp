// The commands of the main window that put a view in the rib's place.

#include "mainwindow/frmmain.h"
#include "programme/view_steps.h"

namespace loftwing {

void frmmain::mnu_OutilCompare_Click() {
    CompareProfils(programme_, *this);
}

void frmmain::mnu_outilEpCourb_Click() {
    ModifieEpCourb(programme_, *this);
}

void frmmain::mnu_Outilcoupl_Click() {
    TraceSimple(programme_, *this);
}

} // namespace loftwing
