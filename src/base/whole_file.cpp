#include "base/whole_file.h"

#include "base/disk.h"
#include "base/failure.h"
#include "base/file_name.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <random>
#include <utility>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

struct CloseFile {
    void operator()(std::FILE *file) const {
        std::fclose(file); // NOLINT(cppcoreguidelines-owning-memory): the handle owns it
    }
};
using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

/// The handle is null where the file doesn't open; errno then says why.
FileHandle Open(const fs::path &path, Opening opening) {
    return FileHandle(OpenFile(path, opening));
}

Failure OpenFailure(const std::string &path, int error) {
    if (error == EACCES || error == EPERM) {
        return MakeFailure(kPermissionDenied, path);
    }
    if (error != ENOENT && error != ENOTDIR) {
        return MakeFailure(kPathFileAccess, path);
    }
    const std::string folder = FolderOf(path);
    const bool folder_there = folder.empty() || IsFolder(folder);
    return MakeFailure(folder_there ? kFileNotFound : kPathNotFound, path);
}

/// A name beside `path` that no other copy of the program is likely to take at the same moment.
fs::path NameBeside(const fs::path &path) {
    thread_local std::mt19937 dice{std::random_device{}()}; // each thread has its own
    return path.parent_path() / ("loftwing-" + std::to_string(dice()) + ".part");
}

/// What the system's reason for refusing to write is called.
FailureNumber NumberOfRefusal(int error) {
    switch (error) {
    case ENOSPC:
    case EFBIG: // beyond what the file system or a limit allows
#ifdef EDQUOT
    case EDQUOT:
#endif
        return kDiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
        return kPermissionDenied;
    case ENOENT:
    case ENOTDIR:
        return kPathNotFound;
    case EIO:
        return kDeviceError;
    default:
        return kPathFileAccess;
    }
}

/// Takes the name away that a file has for a moment only.
void Remove(const fs::path &path) {
    std::error_code ignored;
    fs::remove(path, ignored);
}

constexpr std::string_view kPartStart = "loftwing-";
constexpr std::string_view kPartEnd = ".part";

bool IsNameBeside(std::string_view name) {
    if (!name.starts_with(kPartStart) || !name.ends_with(kPartEnd) ||
        name.size() <= kPartStart.size() + kPartEnd.size()) {
        return false;
    }
    name.remove_prefix(kPartStart.size());
    name.remove_suffix(kPartEnd.size());
    return name.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Where nobody can tell whose a file is, its age must: no save takes a day, and clocks of network
/// drives and time zones don't differ by more.
bool IsOld(const fs::path &path) {
    constexpr auto kOld = std::chrono::hours(24);
    std::error_code error;
    const auto written = fs::last_write_time(path, error);
    return !error && written < fs::file_time_type::clock::now() - kOld;
}

void RemoveIfAbandoned(const fs::path &path) {
    std::error_code error;
    if (!fs::is_regular_file(fs::symlink_status(path, error))) {
        return;
    }
    const FileHandle file = Open(path, Opening::change);
    if (!file) {
        return; // not ours, then
    }
    FileClaim claim;
    const Claim whose = claim.Make(file.get());
    if (whose == Claim::made || (whose == Claim::unknown && IsOld(path))) {
        Remove(path);
    }
}

/// As RemoveAbandonedParts, but once for files that go into one folder one after the other: a
/// library's many drawings shall not list it for each.
void RemoveAbandonedOnce(const fs::path &folder) {
    thread_local fs::path last;
    if (folder != last) {
        last = folder;
        RemoveAbandonedParts(TextOf(folder));
    }
}

/// A file on its way: beside its place until it is renamed, and gone if it never is. As long as it
/// is, other copies of the program see that it isn't abandoned.
class NewFile {
  public:
    explicit NewFile(const std::string &path) : path_(path), target_(Target(path)) {}
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;
    NewFile(NewFile &&other) noexcept
        : path_(std::move(other.path_)), target_(std::move(other.target_)),
          beside_(std::exchange(other.beside_, {})), claim_(std::move(other.claim_)) {}
    NewFile &operator=(NewFile &&) = delete;
    ~NewFile() {
        if (!beside_.empty()) {
            Remove(beside_);
        }
    }

    /// Failures as WriteWholeFile.
    void Write(std::string_view bytes, Flush flush) {
        CheckReplaceable();
        if (flush == Flush::yes) {
            RemoveAbandonedParts(TextOf(Folder()));
        } else {
            RemoveAbandonedOnce(Folder());
        }
        FileHandle file = Create();
        KeepPermissions();
        const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
        if (!written || (flush == Flush::yes && !FlushToDisk(file.get()))) {
            throw Refusal(errno);
        }
        // Some file systems tell only here that there was no room.
        if (std::fclose(file.release()) != 0) {
            throw Refusal(errno);
        }
    }
    void Rename(Flush flush) {
        std::error_code error;
        RenameOver(beside_, target_, flush == Flush::yes, error);
        if (error) {
            throw Refusal(ReasonOf(error));
        }
        beside_.clear();
        claim_.Release();
        if (flush == Flush::yes) {
            FlushFolder(Folder());
        }
    }
    /// No longer tells other copies of the program of itself.
    void Release() { claim_.Release(); }

  private:
    std::string path_; ///< as it was asked for
    fs::path target_;
    fs::path beside_; ///< empty where there is none
    FileClaim claim_;

    Failure Refusal(int error) const { return MakeFailure(NumberOfRefusal(error), path_); }

    fs::path Folder() const {
        const fs::path folder = target_.parent_path();
        return folder.empty() ? fs::path(".") : folder;
    }

    /// Renaming over a device would destroy it, and a file that its owner has protected is not ours
    /// to replace, although the folder would allow both.
    void CheckReplaceable() const {
        std::error_code error;
        const fs::file_status status = StateOf(target_, error);
        if (status.type() == fs::file_type::not_found && !path_.empty()) {
            return;
        }
        if (status.type() == fs::file_type::none) {
            throw Refusal(ReasonOf(error));
        }
        if (!fs::is_regular_file(status)) {
            throw MakeFailure(kPathFileAccess, path_);
        }
        if (Open(target_, Opening::change) == nullptr) {
            throw Refusal(errno);
        }
    }

    FileHandle Create() {
        constexpr int kTries = 3;
        for (int left = kTries; true; --left) {
            const fs::path beside = NameBeside(target_);
            // Exclusively: a file that already bears the name is somebody else's.
            FileHandle file = Open(beside, Opening::make);
            if (!file) {
                throw Refusal(errno);
            }
            beside_ = beside;
            // Another copy of the program may have taken it for abandoned before it was claimed.
            if (claim_.Make(file.get()) != Claim::lost || left == 0) {
                return file;
            }
            Remove(beside);
        }
    }

    /// Before the bytes come: what only its owner may read is nobody else's for a moment either.
    void KeepPermissions() const {
        std::error_code error;
        const fs::file_status old = fs::status(target_, error);
        if (fs::exists(old)) {
            fs::permissions(beside_, old.permissions(), error);
        }
    }

    /// A link keeps pointing where it points: the file behind it is the one that is replaced.
    static fs::path Target(const std::string &path) {
        std::error_code error;
        const fs::path named = PathOf(path);
        const fs::path target = RealPlace(named, error);
        return error ? named : target;
    }
};

} // namespace

std::string ReadWholeFile(const std::string &path) {
    errno = 0;
    std::error_code error;
    const fs::file_status status = StateOf(PathOf(path), error);
    if (!fs::exists(status)) {
        throw OpenFailure(path, error ? ReasonOf(error) : ENOENT);
    }
    // A pipe or a device could go on for ever; a folder holds no text.
    if (!fs::is_regular_file(status)) {
        throw MakeFailure(kPathFileAccess, path);
    }
    const FileHandle file = Open(PathOf(path), Opening::read);
    if (!file) {
        throw OpenFailure(path, errno);
    }
    std::string bytes;
    char block[65536];
    std::size_t count = sizeof block;
    while (count == sizeof block) { // less is the last there is
        count = std::fread(block, 1, sizeof block, file.get());
        bytes.append(block, count);
        if (bytes.size() > kLargestFile) {
            throw MakeFailure(kOutOfMemory, path);
        }
    }
    if (std::ferror(file.get()) != 0) {
        throw MakeFailure(kDeviceError, path);
    }
    return bytes;
}

std::string ReadWholeFileIfThere(const std::string &path) {
    try {
        return ReadWholeFile(path);
    } catch (const Failure &failure) {
        if (failure.number != kFileNotFound && failure.number != kPathNotFound) {
            throw;
        }
        return {};
    }
}

void WriteWholeFile(const std::string &path, std::string_view bytes, Flush flush) {
    NewFile file(path);
    file.Write(bytes, flush);
    file.Rename(flush);
}

bool ReplaceFile(const std::string &path, std::string_view bytes, Flush flush) {
    try {
        WriteWholeFile(path, bytes, flush);
        return true;
    } catch (const Failure &) {
        return false;
    }
}

std::vector<std::string> PathsOf(const std::vector<FileToWrite> &files) {
    std::vector<std::string> paths;
    paths.reserve(files.size());
    for (const FileToWrite &file : files) {
        paths.push_back(file.path);
    }
    return paths;
}

void WriteWholeFiles(const std::vector<FileToWrite> &files, Flush flush) {
    // Each claim costs one of the files that a process may have open at a time.
    constexpr std::size_t kMostClaims = 128;
    std::vector<NewFile> written;
    written.reserve(files.size());
    for (const FileToWrite &file : files) {
        written.emplace_back(file.path).Write(file.bytes, flush);
        if (written.size() > kMostClaims) {
            written.back().Release();
        }
    }
    for (NewFile &file : written) {
        file.Rename(flush);
    }
}

void RemoveAbandonedParts(const std::string &folder) {
    constexpr int kMostEntries = 100000; // more would keep a save waiting
    std::vector<fs::path> parts;
    std::error_code error;
    int left = kMostEntries;
    for (fs::directory_iterator each(PathOf(folder), error), end; !error && each != end && left > 0;
         each.increment(error), --left) {
        if (IsNameBeside(TextOf(each->path().filename()))) {
            parts.push_back(each->path());
        }
    }
    std::for_each(parts.begin(), parts.end(), RemoveIfAbandoned);
}

} // namespace loftwing
