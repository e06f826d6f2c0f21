// The commands of the main window that read and write files of the rib.

#include "mainwindow/frmSplash.h"
#include "mainwindow/frmdecoupe.h"
#include "mainwindow/frmmain.h"
#include "mainwindow/frmsecours.h"
#include "output/sheeting.h"
#include "programme/export.h"
#include "programme/file_steps.h"
#include "programme/heel_steps.h"
#include "programme/import_steps.h"
#include "programme/panel_file.h"
#include "programme/qt_export_command.h"
#include "programme/secours_steps.h"
#include "programme/wing_file.h"

#include <filesystem>

namespace loftwing {

void frmmain::OuvreFichier(const std::string &path) {
    Garde(EtiquetteOuverture(path), [&] {
        if (EstPanneau(path)) {
            MontrePanneau(path);
        } else if (EstAile(path)) {
            MontreAile(path);
        } else {
            loftwing::OuvreFichier(programme_, *this, path);
        }
    });
}

bool frmmain::OffreSecours() {
    bool restored = false;
    Garde(" Main/Secours", [this, &restored] {
        std::vector<Orphelin> ribs = ChercheSecours(programme_);
        if (ribs.empty()) {
            return;
        }
        for (frmSplash *splash : findChildren<frmSplash *>()) {
            splash->Ferme(); // both stand in the middle of the screen
        }
        frmsecours dialog(programme_, this, std::move(ribs));
        if (ShowModal(dialog) == QDialog::Accepted) {
            restored = RestaureRib(programme_, *this, dialog.Voulu());
        }
    });
    return restored;
}

void frmmain::mnuFileMRU_Click(const std::string &path) {
    std::error_code error;
    if (std::filesystem::exists(path, error)) {
        OuvreFichier(path);
    }
}

void frmmain::mnuRibMRU_Click(const std::string &path) {
    std::error_code error;
    if ((EstPanneau(path) || EstAile(path)) && std::filesystem::exists(path, error)) {
        OuvreFichier(path);
        return;
    }
    Garde(EtiquetteOuverture(path), [&] { OuvreRibRecent(programme_, *this, path); });
}

void frmmain::mnu_fileprofilopen_Click() {
    OuvreProfil(programme_, *this);
}

void frmmain::mnu_filesuivant_Click() {
    OuvreVoisin(programme_, *this, 1);
}

void frmmain::mnu_fileprecedent_Click() {
    OuvreVoisin(programme_, *this, -1);
}

void frmmain::mnu_fileimport_Click() {
    ImporteProfil(programme_, *this);
}

void frmmain::mnu_fileopen_Click() {
    OuvreRib(programme_, *this);
}

void frmmain::mnu_filesaveas_Click() {
    Garde(kEtiquetteEnregistre, [this] { EnregistreRib(programme_, *this); });
}

void frmmain::Exporte(const EntreeExport &entree) {
    Garde(entree.etiquette, [this, &entree] {
        if (DemandeMarges(programme_, *this) && !ExporteVue(programme_, entree, ReglagePageIci())) {
            affclear();
        }
    });
    sheets_.SuitReglages(); // sheets that were made decide about rows, for one
}

void frmmain::mnu_filedecoupe_Click() {
    if (!DemandeMarges(programme_, *this)) {
        return;
    }
    // A rib that can't be drawn is told so, whatever else may be said of its piece.
    PlotState plot = EtatAmorce(programme_.rib);
    bool failed = false;
    if (DessineVue(programme_, plot, failed)) {
        MontreDecoupe(programme_, picture_->PlaceDuDessin(), this);
    } else if (failed) {
        affclear();
    }
}

} // namespace loftwing
