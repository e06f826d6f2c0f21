#include "programme/import_steps.h"

#include "base/file_name.h"
#include "base/whole_file.h"
#include "core/contour.h"
#include "platform/busy_pointer.h"
#include "programme/dossiers.h"
#include "programme/import_words.h"
#include "programme/rib_steps.h"

namespace loftwing {

namespace {

/// The folder of the airfoils: the one in which an airfoil was opened last, or the library's.
std::string DossierProfils(const Programme &programme) {
    const Repertoires &folders = programme.settings.repertoires;
    return folders.LastOpenProfil.empty() ? folders.RepProfil : folders.LastOpenProfil;
}

} // namespace

std::optional<ImportedAirfoil> EssaieImport(const std::string &path) {
    try {
        return ImportFile(path);
    } catch (const ImportRefusal &) {
        return std::nullopt;
    } catch (const Failure &) {
        return std::nullopt;
    }
}

std::optional<ImportedAirfoil> LitImport(const Messages &messages, const std::string &path) {
    const std::string title = messages.Text({"Import", "41"});
    try {
        return ImportFile(path);
    } catch (const ImportRefusal &refusal) {
        messages.Inform(path + "\n" + ImportRefusalText(messages, refusal), title);
    } catch (const Failure &failure) {
        messages.Inform(path + "\n" + messages.Description(failure), title);
    }
    return std::nullopt;
}

Curve ContourImporte(const ImportedAirfoil &airfoil) {
    Profil profil;
    for (const ImportPoint &point : airfoil.points) {
        profil.ProfilX.Append(point.at.x);
        profil.ProfilY.Append(point.at.y);
    }
    profil.NbPoints = ToInt16(static_cast<double>(airfoil.points.size()));
    Alocate(profil);
    Curve contour;
    for (long i = 1; i <= profil.NbContour; ++i) {
        contour.push_back({profil.ContourX(i), profil.ContourY(i)});
    }
    return contour;
}

void PrendImport(RibModel &rib, const ImportVoulu &wanted) {
    NommeProfil(rib, wanted.chemin);
    TakeImport(rib, wanted.profil);
}

void MontreEtOuvreImport(Programme &programme, CommandView &view, const std::string &path,
                         const ImportedAirfoil &airfoil) {
    const std::optional<ImportVoulu> wanted = view.MontreImport(path, airfoil);
    if (!wanted) {
        return;
    }
    RibModel &rib = programme.rib;
    const RibAvant before = RibAvantLecture(rib, programme.messages);
    rib.ModeCouple = false;
    PrendImport(rib, *wanted);
    rib.ProfilCharge = true;
    RepriseProfil(programme, view, before);
}

void ImporteFichier(Programme &programme, CommandView &view, const std::string &path) {
    std::optional<ImportedAirfoil> airfoil;
    {
        const Sablier sablier(programme.platform);
        airfoil = LitImport(programme.messages, path);
    }
    if (airfoil) {
        MontreEtOuvreImport(programme, view, path, *airfoil);
    }
}

void ImporteProfil(Programme &programme, CommandView &view) {
    FileQuestion question;
    question.title = programme.Text({"Import", "41"});
    question.folder = DossierProfils(programme);
    question.filter_text = programme.Text({"Import", "55"}) + " (*)";
    const std::string path = programme.platform.ChooseOpenFile(question);
    if (!path.empty()) {
        ImporteFichier(programme, view, path);
    }
}

std::string EnregistreImport(const Programme &programme, const std::string &path,
                             const ImportedAirfoil &airfoil) {
    FileQuestion question;
    question.title = programme.Text({"Import", "41"});
    question.folder = DossierProfils(programme);
    question.name = StemOf(path) + ".dat";
    question.filter_text = programme.Text({"MainTolbar", "26"}) + " (*.dat)";
    question.default_extension = "dat";
    std::string saved = programme.platform.ChooseSaveFile(question);
    if (!saved.empty()) {
        WriteWholeFile(saved, AirfoilFile(airfoil, StemOf(saved)), Flush::yes);
    }
    return saved;
}

} // namespace loftwing
