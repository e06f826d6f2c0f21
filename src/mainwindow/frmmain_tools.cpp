// The tools of the main window.

#include "mainwindow/frmmain.h"
#include "mainwindow/frmopen.h"
#include "platform/qt_form.h"

namespace loftwing {

std::optional<ProfilChoisi> frmmain::ChoisitProfil(const std::string &titre) {
    RibModel &rib = programme_.rib;
    const ProfilPrecedent before(rib);
    const ProfilChoisi points = ProfilDuRib(rib);
    rib.MemProfil = false;
    rib.Annule = false;
    frmopen picker(programme_, *this, this);
    picker.setWindowTitle(Q(titre));
    ShowModal(picker);
    const ProfilChoisi chosen = ProfilDuRib(rib);
    before.Rend(rib);
    RendPoints(rib, points);
    return rib.Annule ? std::nullopt : std::optional(chosen);
}

} // namespace loftwing
