/// The per-user store, and the folders that stand in it as long as the user has chosen none.
#pragma once

#include <string>

namespace loftwing {

/// A file of its own in the user's configuration folder.
class UserStore {
  public:
    /// `bundled_airfoils` is the airfoil library that comes with the program.
    explicit UserStore(std::string bundled_airfoils) : bundled_(std::move(bundled_airfoils)) {}

    /// The value of a key. Where nothing is stored, ("Install", "RepAirfoil") gives a copy of the
    /// bundled library in the user's documents and ("Install", "RepEvol") a folder for rib sets
    /// beside it, made when first asked for; both are empty when they can't be made. With the
    /// library comes a copy of the samples that are beside the bundled one. All else is the empty
    /// text.
    std::string Value(const std::string &section, const std::string &key) const;
    /// Failure 75 when the store can't be written.
    void SetValue(const std::string &section, const std::string &key, const std::string &value);

  private:
    std::string bundled_;
};

} // namespace loftwing
