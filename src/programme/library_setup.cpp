#include "programme/library_setup.h"

#include "base/file_name.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/version.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

constexpr const char *kArchive = "foilpack.exe";
constexpr const char *kNomArchive = " Foilpack.exe";
constexpr const char *kMotsQuestion = " \"Open Pack Sections\" Foilpack.exe ";
constexpr int kAssezCherche = 20000; // files that are looked at for an airfoil

std::string CheminArchive(const std::string &dossier) {
    return WithSeparator(std::string(Trim(dossier))) + kArchive;
}

/// The archive at `path`, in whatever letters its name is written; empty when it isn't there.
std::string ArchiveLa(const std::string &path) {
    std::error_code error;
    const fs::path folder = PathOf(path).parent_path();
    for (fs::directory_iterator each(folder, error), end; !error && each != end;
         each.increment(error)) {
        std::error_code unknown;
        if (LowerAscii(TextOf(each->path().filename())) == kArchive &&
            each->is_regular_file(unknown)) {
            return TextOf(each->path());
        }
    }
    return {};
}

std::string DemandeDossier(const Programme &programme) {
    Platform &platform = programme.platform;
    const std::string title = programme.Text({"FrmConfig", "5"}) + kNomArchive;
    std::string folder = platform.ChooseFolder(title, programme.settings.repertoires.RepProfil);
    platform.SetPointer(Pointer::busy);
    return folder;
}

/// The archive where the user has it; empty when the user gives up.
std::string ChercheArchive(const Programme &programme) {
    const Messages &messages = programme.messages;
    for (;;) {
        std::string found = ArchiveLa(CheminArchive(DemandeDossier(programme)));
        programme.platform.SetPointer(Pointer::normal);
        if (!found.empty()) {
            return found;
        }
        const MessageBox again = {messages.Text({"FrmConfig", "8"}) + " " + kNomArchive + " !" +
                                      messages.Text({"FrmConfig", "11"}),
                                  kTitre, BoxIcon::question, BoxButtons::yes_no, BoxAnswer::yes};
        if (programme.platform.Show(again) != BoxAnswer::yes) {
            return {};
        }
    }
}

} // namespace

void SetUpAirfoilLibrary(const Programme &programme) {
    const Messages &messages = programme.messages;
    const std::string archive = ChercheArchive(programme);
    if (archive.empty()) {
        messages.Tell(messages.Text({"FrmConfig", "9"}) + " : " +
                          programme.settings.repertoires.RepProfil,
                      kTitre, BoxIcon::stop);
        return;
    }
    programme.platform.OpenPage(archive);
    messages.Inform(messages.Text({"FrmConfig", "10"}), kTitre);
}

void installationProfils(const Programme &programme) {
    const Messages &messages = programme.messages;
    const std::string question =
        messages.Text({"FrmConfig", "1"}) + kMotsQuestion + messages.Text({"FrmConfig", "2"}) +
        "\n" + messages.Text({"FrmConfig", "3"}) + " : " + programme.settings.repertoires.RepProfil;
    if (messages.Confirm(question, kTitre)) {
        SetUpAirfoilLibrary(programme);
        return;
    }
    const std::string place = " '" + messages.Text({"FrmDefaut", "14"}) + "'";
    messages.Tell(messages.Text({"FrmConfig", "4"}) + place + "\n" +
                      messages.Text({"FrmConfig", "41"}) + place,
                  kTitre, BoxIcon::stop);
}

bool SansProfil(const std::string &dossier) {
    constexpr std::array<const char *, 2> kProfils = {".dat", ".cor"};
    std::error_code error;
    int seen = 0;
    for (fs::recursive_directory_iterator
             each(PathOf(dossier), fs::directory_options::skip_permission_denied, error),
         end;
         !error && each != end && seen < kAssezCherche; each.increment(error), ++seen) {
        const std::string extension = LowerAscii(TextOf(each->path().extension()));
        if (std::find(kProfils.begin(), kProfils.end(), extension) != kProfils.end()) {
            return false;
        }
    }
    return true;
}

} // namespace loftwing
