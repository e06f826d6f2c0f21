// The commands of the main window that read and write files of the rib.

#include "base/version.h"
#include "base/whole_file.h"
#include "lang/ini_file.h"
#include "mainwindow/frmmain.h"
#include "output/view_screen.h"
#include "persist/LireEcrire.h"
#include "platform/busy_pointer.h"
#include "platform/qt_text.h"
#include "programme/export.h"
#include "programme/qt_export_forms.h"
#include "programme/rib_file.h"
#include "programme/startup.h"

#include <filesystem>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

/// What the settings file says of a folder, else `fallback`.
std::string DossierRetenu(const Programme &programme, const char *key,
                          const std::string &fallback) {
    const std::string folder = GetINIFile("Repertoires", key, programme.paths.fichier);
    return folder.empty() ? fallback : folder;
}

void RetientDossier(const Programme &programme, const char *key, const std::string &path) {
    WriteINIFile("Repertoires", key, fs::path(path).parent_path().string(),
                 programme.paths.fichier);
}

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

/// The interchange form. A failure leaves the file as far as it was written.
void EcritEchangeDxf(Programme &programme, const std::string &path) {
    std::string bytes;
    try {
        if (!ExporteDxf(programme, bytes)) {
            return;
        }
    } catch (const Failure &) {
        WriteWholeFile(path, bytes);
        throw;
    }
    WriteWholeFile(path, bytes);
}

/// The rib file's name without its extension where the rib has one, else the airfoil's.
std::string NomPropose(const RibModel &rib) {
    const std::string &file = rib.NomFichierRib;
    return file.ends_with("lfw") ? fs::path(file).stem().string() : rib.NomProfil;
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
        SetChecked("mnu_affinver", programme_.rib.AffHaut);
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

void frmmain::mnu_filedxf_Click() {
    Garde(" Main/Mnu_DXF", [this] { ExporteVersDxf(); });
}

void frmmain::ExporteVersDxf() {
    // A warning only: the export writes points whatever the system has.
    ControleSeparateurCommande(programme_, {"MenuFile", "5t"});
    FileQuestion question;
    question.title = programme_.Text({"filedxf", "2"});
    question.folder =
        DossierRetenu(programme_, "RepDxf", programme_.settings.repertoires.RepProfilevol);
    question.name = NomPropose(programme_.rib) + ".dxf";
    question.filter_text = "DXF " + programme_.Text({"filedxf", "3"}) + " (*.dxf)";
    question.default_extension = "dxf";
    const std::string plain = programme_.Text({"filedxf", "4"}) + " (*.dxf)";
    const FormAnswer answer = programme_.platform.ChooseSaveForm(question, {plain});
    if (answer.path.empty()) {
        return;
    }
    RetientDossier(programme_, "RepDxf", answer.path);
    const Sablier sablier(programme_.platform);
    if (answer.form == 0) {
        EcritEchangeDxf(programme_, answer.path);
    } else {
        WriteWholeFile(answer.path, ExporteDxfSimple(programme_));
    }
}

void frmmain::Exporte(const ExportForm &form) {
    const Exported exported = form.Export(programme_, [this] { mnu_filepage_Click(); });
    if (exported.failed) {
        affclear();
    }
    if (!exported.bytes) {
        return;
    }
    FileQuestion question;
    question.title = form.filter_text;
    question.name = NomDuDessin(programme_.rib, programme_.compare) + "." + form.extension;
    question.filter_text = form.filter_text;
    question.default_extension = form.extension;
    const std::string path = programme_.platform.ChooseSaveFile(question);
    if (!path.empty()) {
        WriteWholeFile(path, *exported.bytes);
    }
}

void frmmain::mnu_filepdf_Click() {
    Exporte(*FindExportForm("pdf"));
}

void frmmain::mnu_filesvg_Click() {
    Exporte(*FindExportForm("svg"));
}

} // namespace loftwing
