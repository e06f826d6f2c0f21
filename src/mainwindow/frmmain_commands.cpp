// The commands of the main window.

#include "base/version.h"
#include "features/frmInstxt.h"
#include "lang/aide.h"
#include "lang/frmlang.h"
#include "mainwindow/frmAbout.h"
#include "mainwindow/frmmain.h"
#include "output/frmPrint.h"
#include "output/frmcoul.h"
#include "output/screen_plot.h"
#include "output/sheeting.h"
#include "output/view_plots.h"
#include "persist/frmdefaut.h"
#include "platform/qt_form.h"
#include "programme/export.h"
#include "programme/heel_steps.h"
#include "programme/library_setup.h"
#include "programme/rib_steps.h"
#include "programme/tool_steps.h"
#include "programme/undo_steps.h"

namespace loftwing {

void frmmain::mnu_filepage_Click() {
    RegleMiseEnPage();
}

bool frmmain::RegleMiseEnPage() {
    frmPrint dialog(programme_, this);
    dialog.SuitPage([this](const MiseEnPage *page) { sheets_.Suit(page); });
    const bool accepted = ShowModal(dialog) == QDialog::Accepted;
    sheets_.SuitReglages();
    return accepted;
}

ReglagePage frmmain::ReglagePageIci() {
    return ReglageDeFenetre(programme_.messages, [this] { return RegleMiseEnPage(); });
}

void frmmain::mnu_fileprinterconfig_Click() {
    programme_.platform.ShowPrinterSettings();
}

void frmmain::mnu_fileprint_Click() {
    const Messages &messages = programme_.messages;
    if (!messages.Confirm(QuestionImpression(programme_.rib, programme_.compare, messages),
                          kTitre)) {
        return;
    }
    if (!DemandeMarges(programme_, *this)) {
        return;
    }
    if (ImprimeSurDemande(programme_, ReglagePageIci()) == FinImpression::trace_echec) {
        affclear();
    }
    sheets_.SuitReglages(); // a run decides about rows, for one
}

void frmmain::mnu_fileexit_Click() {
    close();
}

void frmmain::mnu_editannule_Click() {
    AnnulePas(programme_, *this);
}

void frmmain::mnu_editretablit_Click() {
    RetablitPas(programme_, *this);
}

void frmmain::mnu_affinver_Click() {
    PrendCoche("mnu_affinver");
    // The rib's file holds which way up it is.
    programme_.rib.Modifie = programme_.rib.Modifie || RibVisible(programme_.rib);
    if (programme_.rib.ModeCouple) {
        afficheCouple();
    } else {
        affiche();
    }
}

void frmmain::mnu_affcouleur_Click() {
    frmcoul dialog(programme_, this);
    ShowModal(dialog);
    RetraceVues();
    affiche();
}

void frmmain::mnu_affhautba_Click() {
    PrendCoche("mnu_affhautba");
    affiche();
}

void frmmain::mnu_affhautbf_Click() {
    PrendCoche("mnu_affhautbf");
    affiche();
}

void frmmain::mnu_affepr_Click() {
    PrendCoche("mnu_affepr");
    affiche();
}

void frmmain::mnu_affTrac_Click() {
    PrendCoche("mnu_affTrac");
    affiche();
}

void frmmain::mnu_afflignRef_Click() {
    PrendCoche("mnu_afflignRef");
    affiche();
    // A fixed oddity: the entry is dead in the compare view, and this is what it does there.
    if (programme_.rib.ModeCompare) {
        afficheEpcourb();
    }
}

void frmmain::mnu_affclear_Click() {
    DemandeVide(programme_, *this);
}

void frmmain::mnu_affLang_Click() {
    // The window clears the rib, whose texts are in the language that goes.
    if (!ConfirmePerte(programme_, *this, {"FrmMainMessage", "102"}, {"LANGUAGE", "2"})) {
        return;
    }
    lang dialog(programme_, *this, this);
    ShowModal(dialog);
}

void frmmain::mnu_profilcorde_Click() {
    ChangeCorde(programme_, *this);
}

void frmmain::mnu_profilepcoffrage_Click() {
    if (Saisit("epcof")) {
        affiche();
    }
}

void frmmain::mnu_profilbaD_Click() {
    if (Saisit("ba")) {
        affiche();
    }
}

void frmmain::mnu_profilbf_Click() {
    if (Saisit("bf")) {
        affiche();
    }
}

void frmmain::mnu_paramrep_Click() {
    if (Saisit("rep")) {
        affiche();
    }
}

void frmmain::mnu_helpsearch_Click() {
    programme_.platform.ShowHelp(kAideVisite);
}

void frmmain::mnu_helpVersion_Click() {
    VerifieVersion(programme_);
}

void frmmain::mnu_helpConfig_Click() {
    installationProfils(programme_);
}

void frmmain::mnu_helpAbout_Click() {
    frmAbout dialog(programme_, this);
    ShowModal(dialog);
}

void frmmain::mnu_affdefaut_Click() {
    frmdefaut dialog(programme_, *this, this);
    ShowModal(dialog);
    affiche();
}

void frmmain::mnu_affInstxt_Click() {
    frmInstxt dialog(programme_, *this, this);
    ShowModal(dialog);
    affiche();
}

} // namespace loftwing
