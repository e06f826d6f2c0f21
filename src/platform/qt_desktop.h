/// Programs of the desktop.
#pragma once

#include <QString>
#include <QStringList>

#include <span>
#include <string>

namespace loftwing {

/// A program of the desktop and what it is started with.
struct DesktopProgram {
    const char *name;
    const char *argument = nullptr;
};

/// Starts the first of `programs` that is installed; false when there is none or it doesn't start.
bool StartFirst(std::span<const DesktopProgram> programs);

/// Starts a program by its name. "calc" stands for whichever calculator the desktop has.
bool StartByName(const std::string &program);

/// Starts the desktop's printer settings; false when there is none of the usual programs for it.
bool StartPrinterSettings();

} // namespace loftwing
