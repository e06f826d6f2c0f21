/// What stands on disk of unsaved work, so that a crash costs none of it.
#pragma once

#include "persist/rib_snapshot.h"
#include "platform/platform.h"

#include <memory>
#include <string>
#include <vector>

namespace loftwing {

/// A snapshot of a window that is no more. As long as this lives no other window offers it.
struct Orphelin {
    std::string chemin; ///< the snapshot's file
    std::unique_ptr<FileLock> verrou;
    Instantane contenu;
};

struct SecoursTrouves {
    std::vector<Orphelin> ribs;      ///< the last one first
    std::vector<std::string> abimes; ///< where those that can't be read were put aside
};

/// The snapshot of this window's work: a file of its own in a folder of the user's, and beside it
/// one that says that the window lives. Windows don't mix theirs. Without a folder nothing is kept.
class Secours {
  public:
    Secours(std::string dossier, Platform &platform)
        : dossier_(std::move(dossier)), platform_(platform) {}
    Secours(const Secours &) = delete;
    Secours &operator=(const Secours &) = delete;
    /// A file that is there stays: only Retire says that it has done its duty.
    ~Secours() = default;

    /// Keeps the rib, unless it is kept already. Where that can't be done the one before stays, and
    /// Echoue says so until one is kept again.
    void Ecrit(const PartiesRib &parties, const std::string &Unite);
    /// There is nothing to keep any more.
    void Retire();
    bool Echoue() const { return echoue_; }

    /// The snapshots of windows that are no more. Those that can't be read are put aside under
    /// another name, so that each is told of once; a later version's own are left alone, and what
    /// such windows left of locks and half-written files goes.
    SecoursTrouves Cherche();
    /// Makes the snapshot this window's own: it goes when this window's work needs it no more.
    void Adopte(Orphelin orphelin);

  private:
    std::string dossier_;
    Platform &platform_;
    std::unique_ptr<FileLock> verrou_; ///< held as long as there may be a file
    std::string chemin_;               ///< of the file
    std::string ecrit_;                ///< what stands in it
    bool echoue_ = false;

    bool Tient();
};

/// Takes a snapshot away that nobody wants.
void Supprime(Orphelin orphelin);
/// Puts one aside that is of no use; gives its new name, or the old one where that can't be done.
std::string MetDeCote(Orphelin orphelin);

} // namespace loftwing
