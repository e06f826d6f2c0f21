// The commands of what is added to a rib.

#include "features/frmlongeron.h"
#include "features/frmtrou.h"
#include "mainwindow/frmmain.h"
#include "platform/qt_form.h"

namespace loftwing {

void frmmain::mnu_profillongeron_Click() {
    frmlongeron dialog(programme_, *this, this);
    ShowModal(dialog);
    affiche();
}

void frmmain::mnu_profiltrou_Click() {
    frmtrou dialog(programme_, *this, this);
    ShowModal(dialog);
    affiche();
}

} // namespace loftwing
