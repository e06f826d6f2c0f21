#include "platform/system.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#ifdef _WIN32
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <windows.h>
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
    const char *value = std::getenv(name);
    return value == nullptr ? fs::path() : fs::path(value);
}

#if !defined(_WIN32) && !defined(__APPLE__)
/// One of them is set wherever a window can be shown.
constexpr std::array kDisplays = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
#endif

#ifndef _WIN32
std::tm LocalTimeHere(std::time_t moment) {
    std::tm local{};
    localtime_r(&moment, &local);
    return local;
}
#endif

} // namespace

#ifdef _WIN32

fs::path ProgramFile() {
    std::array<wchar_t, 32768> path{}; // the longest that the system has
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return {path.data(), path.data() + length};
}

fs::path HomeFolder() {
    return Variable("USERPROFILE");
}

fs::path ConfigFolder() {
    const fs::path own = Variable("LOCALAPPDATA");
    return own.empty() ? HomeFolder() / "AppData" / "Local" : own;
}

fs::path DataFolder() {
    return ConfigFolder();
}

std::tm LocalTime(std::time_t moment) {
    std::tm local{};
    localtime_s(&local, &moment);
    return local;
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
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
}

#elif defined(__APPLE__)

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

bool HasDisplay() {
    return true;
}

void PrepareConsole() {}

#else

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

bool HasDisplay() {
    return std::any_of(kDisplays.begin(), kDisplays.end(),
                       [](const char *name) { return !Variable(name).empty(); });
}

void PrepareConsole() {}

#endif

} // namespace loftwing
