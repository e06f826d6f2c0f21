/// The program as `cmake --install` leaves it in an empty root, and a home for who runs it there.
#pragma once

#include "e2e/program.h"
#include "support/temp_folder.h"

#include <map>
#include <string>
#include <vector>

namespace loftwing {

/// What a file system holds below a folder: kind, permissions, time and bytes of each path.
std::map<std::string, std::string> Snapshot(const std::string &folder);

/// The plain files below a folder, relative to it.
std::vector<std::string> FilesBelow(const std::string &folder);

/// An installation below `<root>/usr`, made once for all tests.
class Installed {
  public:
    static const Installed &Get();

    std::string Root() const { return root_.Path(); }
    std::string Path(const std::string &below_usr) const { return root_.Path("usr/" + below_usr); }
    std::string Program() const { return Path("bin/loftwing"); }

  private:
    Installed();
    TempFolder root_;
};

/// The start of a shell line whose program sees nothing of who runs the tests: its home is `home`.
std::string AtHome(const std::string &home);

} // namespace loftwing
