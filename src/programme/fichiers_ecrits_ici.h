/// Files that a window has written, which it may write again without a question.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace loftwing {

/// As long as nobody else has written them since: what somebody has changed is that one's.
class FichiersEcritsIci {
  public:
    /// The files have just been written.
    void Note(const std::vector<std::string> &paths);
    bool Intact(const std::string &path) const;

  private:
    std::map<std::string, std::filesystem::file_time_type> moments_;
};

} // namespace loftwing
