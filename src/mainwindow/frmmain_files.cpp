// The commands of the main window that read and write files of the rib.

#include "base/version.h"
#include "base/whole_file.h"
#include "mainwindow/frmmain.h"
#include "persist/LireEcrire.h"
#include "platform/busy_pointer.h"
#include "platform/qt_text.h"
#include "programme/dossiers.h"
#include "programme/qt_export_command.h"
#include "programme/rib_file.h"

#include <filesystem>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

/// What the choosers of rib components files have in common.
FileQuestion QuestionComposants(const Programme &programme, const std::string &titre) {
    FileQuestion question;
    question.title = titre;
    question.folder =
        DossierRetenu(programme, "LastOpenLfw", programme.settings.repertoires.RepProfil);
    question.name = programme.rib.NomFichierRib;
    question.filter_text = programme.Text({"fileopen", "6"}) + " " + kTitre + " (*.lfw)";
    question.default_extension = "lfw";
    return question;
}

} // namespace

void frmmain::mnu_fileopen_Click() {
    if (programme_.rib.ProfilCharge && !ConfirmePerte({"fileopen", "1"}, {"fileopen", "2"})) {
        return;
    }
    const std::string path = programme_.platform.ChooseOpenFile(
        QuestionComposants(programme_, programme_.Text({"fileopen", "2"})));
    if (!path.empty()) {
        newLfw(path);
    }
}

void frmmain::newLfw(const std::string &path) {
    RetientDossier(programme_, "LastOpenLfw", path);
    affclear();
    const Repertoires &folders = programme_.settings.repertoires;
    OuvertureComposants end{};
    {
        const Sablier sablier(programme_.platform);
        end = OuvreComposants(programme_, {path, {folders.RepProfil, folders.RepProfilevol}});
    }
    if (end == OuvertureComposants::ouverte) {
        setWindowTitle(Q(TitreComposants(programme_, " ")));
        commands_.MontreCoches(programme_.rib);
        RecalculProfil();
    } else if (end != OuvertureComposants::sans_profil) {
        affclear();
    }
}

void frmmain::mnu_filesaveas_Click() {
    Garde(" Main/Mnu_SaveAs", [this] { EnregistreComposants(); });
}

void frmmain::EnregistreComposants() {
    RibModel &rib = programme_.rib;
    FileQuestion question = QuestionComposants(programme_, programme_.Text({"filesaveas", "1"}));
    if (!EstComposants(question.name)) {
        question.name += ".lfw"; // a name with a point in it would count as having an extension
    }
    const std::string path = programme_.platform.ChooseSaveFile(question);
    if (path.empty()) {
        return;
    }
    RetientDossier(programme_, "LastOpenLfw", path);
    WriteWholeFile(path, EcritComposants(rib));
    rib.NomFichierRib = fs::path(path).filename().string();
    rib.Modifie = false;
    setWindowTitle(Q(TitreComposants(programme_, "  ")));
}

void frmmain::Exporte(const EntreeExport &entree) {
    Garde(entree.etiquette, [this, &entree] {
        if (!ExporteVue(programme_, entree, [this] { return RegleMiseEnPage(); })) {
            affclear();
        }
    });
}

} // namespace loftwing
