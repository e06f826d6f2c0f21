#include "base/disk.h"

#include "base/file_name.h"

#include <cerrno>
#include <utility>

#ifdef _WIN32
#include <array>
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace loftwing {

namespace fs = std::filesystem;

FileClaim::FileClaim(FileClaim &&other) noexcept : held_(std::exchange(other.held_, kNone)) {}

#ifdef _WIN32

namespace {

std::error_code LastError() {
    return {static_cast<int>(GetLastError()), std::system_category()};
}

struct OpeningWords {
    DWORD access;
    DWORD disposition;
    int flags;
    const char *mode;
};

OpeningWords WordsOf(Opening opening) {
    switch (opening) {
    case Opening::read:
        return {GENERIC_READ, OPEN_EXISTING, _O_RDONLY | _O_BINARY, "rb"};
    case Opening::change:
        return {GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING, _O_RDWR | _O_BINARY, "r+b"};
    default:
        return {GENERIC_WRITE, CREATE_NEW, _O_WRONLY | _O_BINARY, "wb"};
    }
}

constexpr DWORD kLeftToOthers = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A path without the marks that the system sets in front of one that it gives.
std::wstring WithoutMarks(std::wstring path) {
    constexpr std::wstring_view kNetwork = LR"(\\?\UNC\)";
    constexpr std::wstring_view kMarks = LR"(\\?\)";
    if (path.starts_with(kNetwork)) {
        return LR"(\\)" + path.substr(kNetwork.size());
    }
    return path.starts_with(kMarks) ? path.substr(kMarks.size()) : path;
}

/// A file or a folder, to be asked about and no more.
HANDLE Look(const fs::path &path) {
    return CreateFileW(path.c_str(), 0, kLeftToOthers, nullptr, OPEN_EXISTING,
                       FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

bool IsReadOnly(const fs::path &path) {
    const DWORD about = GetFileAttributesW(path.c_str());
    return about != INVALID_FILE_ATTRIBUTES && (about & FILE_ATTRIBUTE_READONLY) != 0;
}

/// One byte far behind the end of any file, which nobody reads or writes.
OVERLAPPED ClaimedByte() {
    OVERLAPPED byte{};
    byte.Offset = 0xFFFFFFFE;
    byte.OffsetHigh = 0x7FFFFFFF;
    return byte;
}

HANDLE HandleOf(std::intptr_t number) {
    return reinterpret_cast<HANDLE>(number); // NOLINT: the system's own way
}

} // namespace

// Neither "x" for a name that must not be there nor leave to rename an open file can be had from
// the library there.
std::FILE *OpenFile(const fs::path &path, Opening opening) {
    // Not every server and emulator refuses a protected file to everybody.
    if (opening == Opening::change && IsReadOnly(path)) {
        errno = EACCES;
        return nullptr;
    }
    const OpeningWords words = WordsOf(opening);
    const HANDLE handle = CreateFileW(path.c_str(), words.access, kLeftToOthers, nullptr,
                                      words.disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        errno = ReasonOf(LastError());
        return nullptr;
    }
    const int number = _open_osfhandle(reinterpret_cast<intptr_t>(handle), words.flags);
    if (number < 0) {
        CloseHandle(handle);
        return nullptr;
    }
    std::FILE *file = _fdopen(number, words.mode);
    if (file == nullptr) {
        _close(number);
    }
    return file;
}

int ReasonOf(const std::error_code &error) {
    if (error.category() == std::system_category() &&
        (error.value() == ERROR_SHARING_VIOLATION || error.value() == ERROR_LOCK_VIOLATION ||
         error.value() == ERROR_USER_MAPPED_FILE)) {
        return EACCES;
    }
    return error.default_error_condition().value();
}

void RenameOver(const fs::path &from, const fs::path &to, bool lasting, std::error_code &error) {
    error.clear();
    const DWORD how = MOVEFILE_REPLACE_EXISTING | (lasting ? MOVEFILE_WRITE_THROUGH : 0U);
    if (MoveFileExW(from.c_str(), to.c_str(), how) == 0) {
        error = LastError();
    }
    if (ReasonOf(error) == ENOENT) { // the folder is there: it is the name that won't do
        error = std::make_error_code(std::errc::invalid_argument);
    }
}

bool FlushToDisk(std::FILE *file) {
    return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
}

void FlushFolder(const fs::path &) {} // renaming does it there

fs::file_status StateOf(const fs::path &path, std::error_code &error) {
    error.clear();
    const HANDLE handle = Look(path);
    if (handle == INVALID_HANDLE_VALUE) {
        error = LastError();
        const int reason = ReasonOf(error);
        return fs::file_status(reason == ENOENT || reason == ENOTDIR ? fs::file_type::not_found
                                                                     : fs::file_type::none);
    }
    BY_HANDLE_FILE_INFORMATION about{};
    fs::file_type type = fs::file_type::unknown; // a device has no such thing to tell
    if (GetFileType(handle) == FILE_TYPE_DISK && GetFileInformationByHandle(handle, &about) != 0) {
        type = (about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? fs::file_type::directory
                                                                        : fs::file_type::regular;
    }
    CloseHandle(handle);
    return fs::file_status(type);
}

fs::path RealPath(const fs::path &path, std::error_code &error) {
    error.clear();
    const HANDLE handle = Look(path);
    if (handle == INVALID_HANDLE_VALUE) {
        error = LastError();
        return {};
    }
    std::wstring real(32768, L'\0'); // the longest that the system has
    const DWORD length =
        GetFinalPathNameByHandleW(handle, real.data(), static_cast<DWORD>(real.size()), 0);
    if (length == 0 || length >= real.size()) {
        error = LastError();
    }
    CloseHandle(handle);
    real.resize(error ? 0 : length);
    return WithoutMarks(real);
}

bool SamePlace(const fs::path &one, const fs::path &other) {
    std::error_code first;
    std::error_code second;
    return RealPath(one, first) == RealPath(other, second) && !first && !second;
}

fs::path RealPlace(const fs::path &path, std::error_code &error) {
    const fs::path whole = path.empty() ? path : WholePath(path, error);
    fs::path below;
    fs::path here = whole;
    while (!here.empty() && here.has_relative_path()) {
        const fs::path real = RealPath(here, error);
        if (!error) {
            return below.empty() ? real : real / below;
        }
        below = below.empty() ? here.filename() : here.filename() / below;
        here = here.parent_path();
    }
    error.clear();
    return whole;
}

Claim FileClaim::Make(std::FILE *file) {
    const HANDLE handle = HandleOf(_get_osfhandle(_fileno(file)));
    OVERLAPPED byte = ClaimedByte();
    if (LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &byte) ==
        0) {
        const DWORD why = GetLastError();
        return why == ERROR_LOCK_VIOLATION || why == ERROR_IO_PENDING ? Claim::lost
                                                                      : Claim::unknown;
    }
    FILE_STANDARD_INFO state{};
    if (GetFileInformationByHandleEx(handle, FileStandardInfo, &state, sizeof state) != 0 &&
        (state.DeletePending != 0 || state.NumberOfLinks == 0)) {
        return Claim::lost; // whoever had it before has taken it away
    }
    Release();
    HANDLE held = nullptr;
    if (DuplicateHandle(GetCurrentProcess(), handle, GetCurrentProcess(), &held, 0, FALSE,
                        DUPLICATE_SAME_ACCESS) == 0) {
        return Claim::unknown;
    }
    held_ = reinterpret_cast<std::intptr_t>(held);
    return Claim::made;
}

void FileClaim::Release() {
    if (held_ != kNone) {
        // Unlocked in so many words: the system may take its time for it at the closing.
        OVERLAPPED byte = ClaimedByte();
        const HANDLE held = HandleOf(std::exchange(held_, kNone));
        UnlockFileEx(held, 0, 1, 0, &byte);
        CloseHandle(held);
    }
}

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

std::FILE *OpenFile(const fs::path &path, Opening opening) {
    const char *mode = opening == Opening::read ? "rb" : opening == Opening::change ? "r+b" : "wbx";
    return std::fopen(path.c_str(), mode);
}

int ReasonOf(const std::error_code &error) {
    return error.default_error_condition().value();
}

void RenameOver(const fs::path &from, const fs::path &to, bool, std::error_code &error) {
    fs::rename(from, to, error);
}

bool FlushToDisk(std::FILE *file) {
    return std::fflush(file) == 0 && Flush(fileno(file));
}

void FlushFolder(const fs::path &folder) {
    const int number = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (number >= 0) {
        Flush(number);
        close(number);
    }
}

fs::file_status StateOf(const fs::path &path, std::error_code &error) {
    return fs::status(path, error);
}

bool SamePlace(const fs::path &one, const fs::path &other) {
    std::error_code error;
    return fs::equivalent(one, other, error) && !error;
}

fs::path RealPath(const fs::path &path, std::error_code &error) {
    return fs::canonical(path, error);
}

fs::path RealPlace(const fs::path &path, std::error_code &error) {
    return fs::weakly_canonical(path, error);
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
        close(static_cast<int>(std::exchange(held_, kNone)));
    }
}

#endif

} // namespace loftwing
