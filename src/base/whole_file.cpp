#include "base/whole_file.h"

#include "base/failure.h"

#include <cerrno>
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
FileHandle Open(const fs::path &path, const char *mode) {
#ifdef _WIN32
    return FileHandle(_wfopen(path.c_str(), fs::path(mode).c_str())); // paths are wide there
#else
    return FileHandle(std::fopen(path.c_str(), mode));
#endif
}

Failure OpenFailure(const std::string &path, int error) {
    if (error == EACCES || error == EPERM) {
        return MakeFailure(kPermissionDenied, path);
    }
    if (error != ENOENT && error != ENOTDIR) {
        return MakeFailure(kPathFileAccess, path);
    }
    std::error_code ignored;
    const fs::path folder = fs::path(path).parent_path();
    const bool folder_there = folder.empty() || fs::is_directory(folder, ignored);
    return MakeFailure(folder_there ? kFileNotFound : kPathNotFound, path);
}

/// A name beside `path` that no other copy of the program is likely to take at the same moment.
fs::path NameBeside(const fs::path &path) {
    thread_local std::mt19937 dice{std::random_device{}()}; // each thread has its own
    return path.parent_path() / ("loftwing-" + std::to_string(dice()) + ".part");
}

/// Whether the file at `target` may give way to a new one: it isn't there, or it is a plain file
/// that may be written. Renaming over a device would destroy it, and a file that its owner has
/// protected is not ours to replace, although the folder would allow both.
bool MayBeReplaced(const fs::path &target) {
    std::error_code error;
    const fs::file_status status = fs::status(target, error);
    if (status.type() == fs::file_type::not_found) {
        return true;
    }
    if (!fs::is_regular_file(status)) {
        return false;
    }
    return Open(target, "r+b") != nullptr;
}

bool WriteAll(const fs::path &path, std::string_view bytes) {
    // Exclusively: a file that already bears the name is somebody else's.
    FileHandle file = Open(path, "wbx");
    if (!file) {
        return false;
    }
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    const bool closed = std::fclose(file.release()) == 0;
    if (written && closed) {
        return true;
    }
    std::error_code ignored;
    fs::remove(path, ignored);
    return false;
}

/// A file on its way: beside its place until it is renamed, and gone if it never is.
class NewFile {
  public:
    explicit NewFile(const std::string &path) : target_(Target(path)) {}
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;
    NewFile(NewFile &&other) noexcept
        : target_(std::move(other.target_)), beside_(std::exchange(other.beside_, {})) {}
    NewFile &operator=(NewFile &&) = delete;
    ~NewFile() {
        if (!beside_.empty()) {
            std::error_code ignored;
            fs::remove(beside_, ignored);
        }
    }

    bool Write(std::string_view bytes) {
        const fs::path beside = NameBeside(target_);
        if (!MayBeReplaced(target_) || !WriteAll(beside, bytes)) {
            return false;
        }
        beside_ = beside;
        std::error_code error;
        const fs::file_status old = fs::status(target_, error);
        if (fs::exists(old)) {
            fs::permissions(beside_, old.permissions(), error);
        }
        return true;
    }
    bool Rename() {
        std::error_code error;
        fs::rename(beside_, target_, error);
        if (error) {
            return false;
        }
        beside_.clear();
        return true;
    }

  private:
    fs::path target_;
    fs::path beside_; ///< empty where there is none

    /// A link keeps pointing where it points: the file behind it is the one that is replaced.
    static fs::path Target(const std::string &path) {
        std::error_code error;
        const fs::path target = fs::weakly_canonical(path, error);
        return error ? fs::path(path) : target;
    }
};

} // namespace

std::string ReadWholeFile(const std::string &path) {
    errno = 0;
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) {
        throw OpenFailure(path, error ? error.default_error_condition().value() : ENOENT);
    }
    // A pipe or a device could go on for ever; a folder holds no text.
    if (!fs::is_regular_file(status)) {
        throw MakeFailure(kPathFileAccess, path);
    }
    const FileHandle file = Open(path, "rb");
    if (!file) {
        throw OpenFailure(path, errno);
    }
    std::string bytes;
    char block[65536];
    while (const std::size_t count = std::fread(block, 1, sizeof block, file.get())) {
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

bool ReplaceFile(const std::string &path, std::string_view bytes) {
    NewFile file(path);
    return file.Write(bytes) && file.Rename();
}

void WriteWholeFile(const std::string &path, std::string_view bytes) {
    if (!ReplaceFile(path, bytes)) {
        throw MakeFailure(kPathFileAccess, path);
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

void WriteWholeFiles(const std::vector<FileToWrite> &files) {
    std::vector<NewFile> written;
    written.reserve(files.size());
    for (const FileToWrite &file : files) {
        if (!written.emplace_back(file.path).Write(file.bytes)) {
            throw MakeFailure(kPathFileAccess, file.path);
        }
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (!written[i].Rename()) {
            throw MakeFailure(kPathFileAccess, files[i].path);
        }
    }
}

} // namespace loftwing
