/// The program with its window.
#pragma once

namespace loftwing {

/// Runs the window until it is closed; the exit status. Words that the toolkit knows are taken by
/// it, `--settings FILE` moves the settings file, and one FILE is opened.
int RunWindow(int argc, char **argv);

} // namespace loftwing
