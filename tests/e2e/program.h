/// Running the built program from tests.
#pragma once

#include <string>
#include <vector>

namespace loftwing {

struct Ran {
    int status = -1;
    std::string out;
    std::string err;
};

/// Runs a shell line and waits for its end.
Ran RunShell(const std::string &line);

/// The program that is tried: the built one, or what LOFTWING_PROGRAM names, such as the one for
/// another system with what runs it here.
std::string ProgramTried();
/// Whether that is another one, which isn't asked for what only this system has.
bool IsForeign();

/// Runs the program with these words.
Ran RunLoftwing(const std::vector<std::string> &words);

/// A word as the shell takes it literally.
std::string ShellWord(const std::string &word);

/// A sample airfoil of the bundled library: "naca2412.dat".
std::string Sample(const std::string &name);

} // namespace loftwing
