#include "platform/system.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>

#ifdef _WIN32
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <memory>
#include <string_view>
#include <windows.h>

// Stands on the one above.
#include <shellapi.h>
#elif defined(__APPLE__)
#include <cstdint>
#include <mach-o/dyld.h>
#include <string>
#endif

namespace loftwing {

namespace {

namespace fs = std::filesystem;

/// An empty variable counts as none.
fs::path Variable(const char *name) {
#ifdef _WIN32
    // The narrow ones there lack what the system's old code page has no letter for.
    const wchar_t *value = _wgetenv(fs::path(name).c_str());
#else
    const char *value = std::getenv(name);
#endif
    return value == nullptr ? fs::path() : fs::path(value);
}

#if !defined(_WIN32) && !defined(__APPLE__)
/// One of them is set wherever a window can be shown.
constexpr std::array kDisplays = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
#endif

#ifdef _WIN32
/// Half a pair of a character beyond 65,535, which no UTF-8 can tell, becomes U+FFFD.
std::string Utf8(std::wstring_view wide) {
    const auto length = static_cast<int>(wide.size());
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, text.data(), size, nullptr, nullptr);
    return text;
}

/// The files that "folder\\*.dat" means, by name; none where it means none.
std::vector<std::wstring> FilesMeant(const std::wstring &pattern) {
    std::vector<std::wstring> files;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return files;
    }
    const std::size_t name = pattern.find_last_of(L"\\/:") + 1;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            files.push_back(pattern.substr(0, name) + found.cFileName);
        }
    } while (FindNextFileW(search, &found) != 0);
    FindClose(search);
    std::sort(files.begin(), files.end());
    return files;
}

/// An option is what it is; beyond them '*' and '?' stand in no file's name.
bool IsPattern(std::wstring_view word) {
    return !word.starts_with(L'-') && word.find_first_of(L"*?") != std::wstring_view::npos;
}

UINT console_pages_before = 0;

void GiveConsoleBack() {
    SetConsoleOutputCP(console_pages_before);
}
#else
std::vector<std::string> WordsAsTheyAre(int argc, char **argv) {
    return {argv, argv + argc};
}

std::tm LocalTimeHere(std::time_t moment) {
    std::tm local{};
    localtime_r(&moment, &local);
    return local;
}
#endif

} // namespace

#ifdef _WIN32

std::vector<std::string> ProgramWords(int, char **) {
    // What main is given has lost the letters that the system's old code page lacks.
    struct Free {
        void operator()(wchar_t **words) const { LocalFree(words); }
    };
    int count = 0;
    const std::unique_ptr<wchar_t *, Free> words(CommandLineToArgvW(GetCommandLineW(), &count));
    std::vector<std::string> texts;
    for (int i = 0; i < count; ++i) {
        const std::wstring word = words.get()[i];
        std::vector<std::wstring> files;
        if (i > 0 && IsPattern(word)) {
            files = FilesMeant(word);
        }
        if (files.empty()) {
            files.push_back(word);
        }
        std::transform(files.begin(), files.end(), std::back_inserter(texts), Utf8);
    }
    return texts;
}

fs::path ProgramFile() {
    std::array<wchar_t, 32768> path{}; // the longest that the system has
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return {path.data(), path.data() + length};
}

fs::path HomeFolder() {
    return Variable("USERPROFILE");
}

fs::path ConfigFolder() {
    const fs::path own = Variable("APPDATA");
    return own.empty() ? HomeFolder() / "AppData" / "Roaming" : own;
}

fs::path DataFolder() {
    const fs::path own = Variable("LOCALAPPDATA");
    return own.empty() ? HomeFolder() / "AppData" / "Local" : own;
}

std::tm LocalTime(std::time_t moment) {
    std::tm local{};
    localtime_s(&local, &moment);
    return local;
}

const char *WindowlessPlatform() {
    return "windows"; // the one without windows finds no fonts there
}

bool HasDisplay() {
    return true;
}

void PrepareConsole() {
    // A program with windows isn't given the console that it was started from. What has been led
    // into a file or another program stays there.
    const auto attached = [](DWORD stream) {
        const HANDLE handle = GetStdHandle(stream);
        return handle != nullptr && handle != INVALID_HANDLE_VALUE;
    };
    const bool out = attached(STD_OUTPUT_HANDLE);
    const bool err = attached(STD_ERROR_HANDLE);
    if ((!out || !err) && AttachConsole(ATTACH_PARENT_PROCESS) != 0) {
        if (!out) {
            std::freopen("CONOUT$", "w", stdout);
        }
        if (!err) {
            std::freopen("CONOUT$", "w", stderr);
        }
    }
    // The code page is the console's, which goes on living when the program has ended.
    console_pages_before = GetConsoleOutputCP();
    if (console_pages_before != 0 && SetConsoleOutputCP(CP_UTF8) != 0) {
        std::atexit(GiveConsoleBack);
    }
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

#elif defined(__APPLE__)

std::vector<std::string> ProgramWords(int argc, char **argv) {
    return WordsAsTheyAre(argc, argv);
}

fs::path ProgramFile() {
    std::uint32_t size = 0;
    _NSGetExecutablePath(nullptr, &size);
    std::string path(size, '\0');
    if (_NSGetExecutablePath(path.data(), &size) != 0) {
        return {};
    }
    std::error_code error;
    return fs::canonical(path.c_str(), error);
}

fs::path HomeFolder() {
    return Variable("HOME");
}

fs::path ConfigFolder() {
    return HomeFolder() / "Library" / "Preferences";
}

fs::path DataFolder() {
    return HomeFolder() / "Library" / "Application Support";
}

std::tm LocalTime(std::time_t moment) {
    return LocalTimeHere(moment);
}

const char *WindowlessPlatform() {
    return "offscreen";
}

bool HasDisplay() {
    return true;
}

void PrepareConsole() {}

#else

std::vector<std::string> ProgramWords(int argc, char **argv) {
    return WordsAsTheyAre(argc, argv);
}

fs::path ProgramFile() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error);
}

fs::path HomeFolder() {
    return Variable("HOME");
}

fs::path ConfigFolder() {
    const fs::path config = Variable("XDG_CONFIG_HOME");
    return config.empty() ? HomeFolder() / ".config" : config;
}

fs::path DataFolder() {
    const fs::path data = Variable("XDG_DATA_HOME");
    return data.empty() ? HomeFolder() / ".local" / "share" : data;
}

std::tm LocalTime(std::time_t moment) {
    return LocalTimeHere(moment);
}

const char *WindowlessPlatform() {
    return "offscreen";
}

bool HasDisplay() {
    return std::any_of(kDisplays.begin(), kDisplays.end(),
                       [](const char *name) { return !Variable(name).empty(); });
}

void PrepareConsole() {}

#endif

} // namespace loftwing
