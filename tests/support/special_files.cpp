#include "support/special_files.h"

#include "base/file_name.h"

#include <filesystem>
#include <system_error>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace loftwing {

namespace fs = std::filesystem;

std::string FromRoot(std::string_view path) {
    return TextOf((fs::current_path().root_path() / PathOf(path)).make_preferred());
}

bool MakeLink(const std::string &to, const std::string &path) {
    std::error_code error;
    if (fs::is_directory(to, error)) {
        fs::create_directory_symlink(to, path, error);
    } else {
        fs::create_symlink(to, path, error);
    }
    return !error;
}

#ifdef _WIN32

bool MakePipe(const std::string &) {
    return false;
}

bool FoldersCanBeClosed() {
    return false;
}

#else

bool MakePipe(const std::string &path) {
    return mkfifo(path.c_str(), 0600) == 0;
}

bool FoldersCanBeClosed() {
    return geteuid() != 0;
}

#endif

} // namespace loftwing
