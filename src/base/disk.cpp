#include "base/disk.h"

#include <utility>

#ifdef _WIN32
#include <io.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace loftwing {

FileClaim::FileClaim(FileClaim &&other) noexcept : held_(std::exchange(other.held_, kNone)) {}

#ifdef _WIN32

bool FlushToDisk(std::FILE *file) {
    return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
}

void FlushFolder(const std::filesystem::path &) {} // renaming does it there

Claim FileClaim::Make(std::FILE *) {
    return Claim::unknown; // an open file can't be removed there, which protects it as well
}

void FileClaim::Release() {}

#else

namespace {

bool HasNoFlush(int error) {
    return error == EINVAL || error == ENOTSUP || error == ENOSYS;
}

bool Flush(int number) {
#ifdef __APPLE__
    // The plain call stops at the drive's own memory there.
    if (fcntl(number, F_FULLFSYNC) == 0) {
        return true;
    }
#endif
    return fsync(number) == 0 || HasNoFlush(errno);
}

} // namespace

bool FlushToDisk(std::FILE *file) {
    return std::fflush(file) == 0 && Flush(fileno(file));
}

void FlushFolder(const std::filesystem::path &folder) {
    const int number = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (number >= 0) {
        Flush(number);
        close(number);
    }
}

Claim FileClaim::Make(std::FILE *file) {
    const int number = fileno(file);
    if (flock(number, LOCK_EX | LOCK_NB) != 0) {
        return errno == EWOULDBLOCK ? Claim::lost : Claim::unknown;
    }
    struct stat status {};
    if (fstat(number, &status) == 0 && status.st_nlink == 0) {
        return Claim::lost; // whoever had it before has taken it away
    }
    Release();
    held_ = fcntl(number, F_DUPFD_CLOEXEC, 0);
    return held_ == kNone ? Claim::unknown : Claim::made;
}

void FileClaim::Release() {
    if (held_ != kNone) {
        close(std::exchange(held_, kNone));
    }
}

#endif

} // namespace loftwing
