/// The files of a user who has bad luck: good ones, damaged ones, and places where nothing can be
/// written.
#pragma once

#include "support/monkey_dice.h"
#include "support/temp_folder.h"

#include <string>
#include <vector>

namespace loftwing {

class MonkeyFiles {
  public:
    explicit MonkeyFiles(Dice &dice);

    /// Where everything is.
    const TempFolder &Folder() const { return folder_; }

    /// Writes the settings file of a user whose folders are here, whole or cut off somewhere.
    void Settle(const std::string &language, const std::string &unit);
    void SettleBadly(const std::string &language, const std::string &unit);
    /// There is no settings file any more.
    void Unsettle();
    /// A file of that extension ("dat", "lfw"), mostly there and not seldom damaged; any other file
    /// now and then, or a path at which there is none or a folder.
    std::string ToOpen(const std::string &extension);
    /// A path to write to: new, taken, or one that can't be written.
    std::string ToSave(const std::string &extension);
    std::string AnyFolder();
    /// Somebody else writes, damages or removes one of the files, or puts it back.
    std::string Meddle();
    /// Half-written files that a save left behind.
    std::vector<std::string> Unfinished() const;

  private:
    struct Known {
        std::string name;
        std::string bytes; ///< as they were at first
    };

    Dice &dice_;
    TempFolder folder_;
    std::vector<Known> files_;

    void Keep(const std::string &name, const std::string &bytes);
    void KeepAirfoils();
    void KeepRibs();
    void KeepPanels();
    std::string Settings(const std::string &language, const std::string &unit) const;
    std::string Damaged(std::string bytes);
    const Known &OfKind(const std::string &extension);
};

} // namespace loftwing
