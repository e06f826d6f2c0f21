// The commands of the main window that put something on or around a rib: heel, V-notch, template.

#include "features/bloc.h"
#include "features/carre_bord.h"
#include "features/frmTalon.h"
#include "features/frmbacarre.h"
#include "features/frmbloc.h"
#include "features/inserted_text.h"
#include "features/rib_entry.h"
#include "mainwindow/frmmain.h"

#include <QAction>

namespace loftwing {

namespace {

/// An entry that is dead while something else is open. Afterwards it is what it was before, unless
/// it needs a rib and there is none any more.
class Eteinte {
  public:
    Eteinte(QAction &entry, const RibModel *needed)
        : entry_(entry), needed_(needed), was_enabled_(entry.isEnabled()) {
        entry_.setEnabled(false);
    }
    ~Eteinte() { entry_.setEnabled(was_enabled_ && (needed_ == nullptr || needed_->ProfilCharge)); }
    Eteinte(const Eteinte &) = delete;
    Eteinte &operator=(const Eteinte &) = delete;

  private:
    QAction &entry_;
    const RibModel *needed_;
    bool was_enabled_;
};

} // namespace

void frmmain::mnu_profilTalon_Click() {
    RibModel &rib = programme_.rib;
    {
        const Eteinte layout(commands_.Entree("mnu_param"), &rib);
        frmTalon dialog(programme_, *this, this);
        ShowModal(dialog);
    }
    if (rib.Annule || !rib.ProfilCharge) {
        return;
    }
    // The text alone: the heights are what the user has just given.
    RegenereTexte(rib, programme_.messages);
    affiche();
}

void frmmain::mnu_parambloc_Click() {
    RibModel &rib = programme_.rib;
    {
        const Eteinte heel(commands_.Entree("mnu_profilTalon"), &rib);
        // Its menu is dead without a rib; the entry itself must not stay so.
        const Eteinte itself(commands_.Entree("mnu_parambloc"), nullptr);
        frmbloc dialog(programme_, *this, this);
        ShowModal(dialog);
    }
    if (rib.Annule || !rib.ProfilCharge) {
        return;
    }
    MajGabarit(rib, programme_.SaisieEnCours());
    affiche();
}

void frmmain::mnu_profilbaC_Click() {
    const bool loaded = programme_.rib.ProfilCharge;
    frmbacarre dialog(programme_, *this, this);
    if (ShowModal(dialog) != QDialog::Accepted) {
        return; // the stock stays
    }
    if (loaded && !programme_.rib.ProfilCharge) {
        return; // the rib was cleared meanwhile, and the next one's stock is the default's
    }
    RetireBaguette(programme_.rib);
    affiche();
}

void frmmain::cmdba_Click() {
    if (programme_.rib.TypeBA == 1) {
        mnu_profilbaD_Click();
    } else {
        mnu_profilbaC_Click();
    }
}

} // namespace loftwing
