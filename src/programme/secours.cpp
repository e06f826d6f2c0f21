#include "programme/secours.h"

#include "base/failure.h"
#include "base/file_name.h"
#include "base/whole_file.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <random>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

constexpr const char *kInstantane = ".rib";
constexpr const char *kVerrou = ".lock";
constexpr const char *kAbime = ".damaged";
constexpr const char *kMoitie = ".part"; // what ReplaceFile writes beside a file

/// The lock of a snapshot: "1A2B.rib.lock".
std::string VerrouDe(const std::string &chemin) {
    return chemin + kVerrou;
}

/// A name that no other window has.
std::string NomUnique() {
    constexpr const char *kFigures = "0123456789abcdef";
    std::random_device dice;
    std::string name;
    for (int i = 0; i < 16; ++i) {
        name += kFigures[dice() % 16];
    }
    return name;
}

/// The folder is the user's alone: nobody else is to read what isn't finished.
bool FaitDossier(const std::string &dossier) {
    std::error_code error;
    if (fs::create_directories(PathOf(dossier), error)) {
        fs::permissions(PathOf(dossier), fs::perms::owner_all, error);
    }
    return !error && IsFolder(dossier);
}

void Enleve(const std::string &path) {
    std::error_code ignored;
    fs::remove(PathOf(path), ignored);
}

std::vector<fs::path> Fichiers(const std::string &dossier) {
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator each(PathOf(dossier), error), end; !error && each != end;
         each.increment(error)) {
        files.push_back(each->path());
    }
    return files;
}

fs::file_time_type Ecriture(const fs::path &path) {
    std::error_code error;
    const auto time = fs::last_write_time(path, error);
    return error ? fs::file_time_type::min() : time;
}

/// A file on its way into its place is there for a moment only.
bool MoitieAbandonnee(const fs::path &path) {
    constexpr auto kLongtemps = std::chrono::minutes(10);
    return path.extension() == kMoitie &&
           Ecriture(path) < fs::file_time_type::clock::now() - kLongtemps;
}

enum class Lecture { lue, plus_recente, abimee };

Lecture LitOrphelin(Orphelin &orphelin) {
    try {
        const std::string bytes = ReadWholeFile(orphelin.chemin);
        if (auto read = LitInstantane(bytes)) {
            orphelin.contenu = std::move(*read);
            return Lecture::lue;
        }
        return InstantanePlusRecent(bytes) ? Lecture::plus_recente : Lecture::abimee;
    } catch (const Failure &) {
        return Lecture::abimee;
    }
}

} // namespace

/// Makes name, lock and folder where they aren't there, or not any more.
bool Secours::Tient() {
    if (verrou_ && IsThere(VerrouDe(chemin_))) {
        return true;
    }
    verrou_.reset();
    ecrit_.clear();
    if (!FaitDossier(dossier_)) {
        return false;
    }
    chemin_ = TextOf(PathOf(dossier_) / (NomUnique() + kInstantane));
    verrou_ = platform_.LockFile(VerrouDe(chemin_));
    return verrou_ != nullptr;
}

void Secours::Ecrit(const PartiesRib &parties, const std::string &Unite) {
    if (dossier_.empty()) {
        return;
    }
    std::string bytes = EcritInstantane(parties, Unite);
    if (Tient() && bytes == ecrit_ && IsThere(chemin_)) {
        echoue_ = false;
        return;
    }
    echoue_ = !verrou_ || !ReplaceFile(chemin_, bytes);
    if (!echoue_) {
        ecrit_ = std::move(bytes);
    }
}

void Secours::Retire() {
    if (verrou_) {
        Enleve(chemin_); // before its lock, or another window would take it for an orphan
        verrou_.reset();
    }
    ecrit_.clear();
    echoue_ = false;
}

SecoursTrouves Secours::Cherche() {
    SecoursTrouves found;
    if (dossier_.empty()) {
        return found;
    }
    for (const fs::path &path : Fichiers(dossier_)) {
        if (path.extension() == kVerrou && !IsThere(TextOf(fs::path(path).replace_extension()))) {
            platform_.LockFile(TextOf(path)); // one that nobody holds goes with this
        }
        if (MoitieAbandonnee(path)) {
            Enleve(TextOf(path));
        }
        if (path.extension() != kInstantane) {
            continue;
        }
        Orphelin orphelin{TextOf(path), platform_.LockFile(VerrouDe(TextOf(path))), {}};
        if (!orphelin.verrou || !IsThere(TextOf(path))) {
            continue; // its window lives, or has just taken it away
        }
        const Lecture read = LitOrphelin(orphelin);
        if (read == Lecture::lue) {
            found.ribs.push_back(std::move(orphelin));
        } else if (read == Lecture::abimee) {
            found.abimes.push_back(MetDeCote(std::move(orphelin)));
        }
    }
    std::sort(found.ribs.begin(), found.ribs.end(), [](const Orphelin &a, const Orphelin &b) {
        return Ecriture(PathOf(a.chemin)) > Ecriture(PathOf(b.chemin));
    });
    return found;
}

void Secours::Adopte(Orphelin orphelin) {
    Retire();
    chemin_ = std::move(orphelin.chemin);
    verrou_ = std::move(orphelin.verrou);
}

void Supprime(Orphelin orphelin) {
    Enleve(orphelin.chemin);
}

std::string MetDeCote(Orphelin orphelin) {
    const std::string aside = orphelin.chemin + kAbime;
    std::error_code error;
    fs::rename(PathOf(orphelin.chemin), PathOf(aside), error);
    return error ? orphelin.chemin : aside;
}

} // namespace loftwing
