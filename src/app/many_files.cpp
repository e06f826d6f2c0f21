#include "app/many_files.h"

#include "app/side_by_side.h"
#include "base/disk.h"
#include "base/file_name.h"

#include <exception>
#include <filesystem>
#include <memory>
#include <unordered_map>
#include <utility>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

/// The work on one file up to its turn, and what came of it.
struct Worked {
    Transcript told;
    FileTurn turn;
    std::exception_ptr thrown;
};

std::shared_ptr<Worked> WorkOn(const WorkOnFile &work, std::size_t index) {
    auto worked = std::make_shared<Worked>();
    try {
        worked->turn = work(index, worked->told.Streams());
    } catch (...) {
        worked->thrown = std::current_exception();
    }
    return worked;
}

/// What was told counts even if the work then broke off.
bool TellAndFinish(const Worked &worked) {
    worked.told.TellOn(StandardConsole());
    if (worked.thrown) {
        std::rethrow_exception(worked.thrown);
    }
    return worked.turn.finish();
}

/// Tells which paths lead to one file. Folders are looked up once.
class RealPaths {
  public:
    std::string Of(const fs::path &path) {
        std::error_code error;
        if (fs::is_symlink(fs::symlink_status(path, error))) {
            return TextOf(RealPlace(path, error));
        }
        return TextOf(RealFolder(path.parent_path()) / path.filename());
    }

  private:
    std::unordered_map<std::string, fs::path> folders_;

    const fs::path &RealFolder(const fs::path &folder) {
        const auto [known, is_new] = folders_.try_emplace(TextOf(folder));
        if (is_new) {
            std::error_code error;
            known->second = RealPlace(folder.empty() ? "." : folder, error);
        }
        return known->second;
    }
};

} // namespace

bool WorkOnFiles(std::size_t count, AtATime at_a_time, const WorkOnFile &work) {
    bool all = true;
    SideBySide(count, at_a_time == AtATime::one ? 1 : Cores(), [&](std::size_t index) -> Turn {
        std::shared_ptr<Worked> worked = WorkOn(work, index);
        const std::size_t bytes = worked->told.Size() + worked->turn.bytes;
        return {[worked = std::move(worked), &all] { all = TellAndFinish(*worked) && all; }, bytes};
    });
    return all;
}

AtATime AtATimeOf(const std::vector<std::string> &files, const std::vector<std::string> &written) {
    RealPaths real;
    std::unordered_map<std::string, std::size_t> first; ///< of those that write a file
    for (std::size_t i = 0; i < written.size(); ++i) {
        first.try_emplace(real.Of(written[i]), i);
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        const auto writer = first.find(real.Of(files[i]));
        if (writer != first.end() && writer->second < i) {
            return AtATime::one;
        }
    }
    return AtATime::many;
}

} // namespace loftwing
