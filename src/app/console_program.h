/// What the command line's verbs share: options, start-up and opening a file.
#pragma once

#include "app/arguments.h"
#include "app/console.h"
#include "core/airfoil_picker.h"
#include "core/contour.h"
#include "programme/console_platform.h"
#include "programme/import_reading.h"
#include "programme/programme.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// The options that every verb knows.
std::vector<OptionRule> CommonOptions();

/// The same with --import, for verbs that read airfoils.
std::vector<OptionRule> ReadingOptions();

/// Writes the text of an airfoil file to `path`, whole, or to standard output for "-". Failure as
/// EcritFichier.
void Deliver(const std::string &path, const std::string &text);

/// Says on standard error which of several FILEs was refused: the line that told why doesn't.
void NameRefused(const std::string &file);
/// The same for a file among many.
void NameRefused(const Console &console, const std::string &file);

/// The words of a failure in the language that the options name; a verb that failed has no program
/// any more that could say it.
std::string FailureText(const Arguments &arguments, const Failure &failure);

/// What all programs of a command start from: language, settings and unit as the options say, read
/// once. Nothing in it changes any more, so that programs may be made of it in any thread.
class ConsoleStart {
  public:
    /// Throws UsageError for a language or a unit that there isn't, Refused for a settings file
    /// that can't be read, which it tells on standard error. What fails otherwise, such as a
    /// settings file that isn't there, fails for each program that starts from it.
    explicit ConsoleStart(const Arguments &arguments);

    const LngIni &Language() const { return language_; }
    /// The words of a failure in that language.
    std::string FailureText(const Failure &failure) const;

  private:
    friend class ConsoleProgram;

    Paths paths_;
    bool says_yes_;
    ReadingWay lecture_;
    LngIni language_;
    AppSettings settings_;
    PartiesRib rib_;
    ConsoleWords told_; ///< by the settings; each program tells it
    std::optional<Failure> failure_;
};

/// Where the work on one FILE starts, and where it tells.
struct FileRun {
    const ConsoleStart &start;
    Console console;
};

/// One program for one drawing: every file of a command starts from a fresh state.
class ConsoleProgram {
  public:
    /// A program of its own for a command that needs no other one. Throws as ConsoleStart, Failure
    /// for a settings file that isn't there.
    explicit ConsoleProgram(const Arguments &arguments);
    /// One of several. Failure for a start that failed.
    explicit ConsoleProgram(const FileRun &run);

    Programme &Owner() { return programme_; }
    ConsolePlatform &Platform() { return platform_; }

    /// Opens an airfoil as the window's picker does (read, not below 5 points, heel and title's
    /// chord) or a rib components file, which stays as it is on disk whatever its format. The
    /// airfoil of the latter is searched below `dossiers`, without any in the file's folder. False
    /// when it was refused; a line on standard error told why.
    bool Ouvre(const std::string &path, const std::vector<std::string> &dossiers = {});

    /// Reads an airfoil for a tool, which wants its points and nothing of the rib. Nothing when it
    /// was refused; a line on standard error told why.
    std::optional<ProfilChoisi> ChoisitProfil(const std::string &path);

    /// Warns on standard error where the airfoil that was read has a contour that leaves its
    /// points. The contour is made for it alone.
    void WarnOfDeviation() const;
    /// The same where the rib's contour has been made, `prepared` telling how that ended: one that
    /// isn't complete is told of already.
    void WarnOfDeviation(Preparation prepared) const;

  private:
    ConsolePlatform platform_;
    Programme programme_;
    ReadingWay lecture_; ///< of airfoil files

    void Warn(std::optional<double> deviation) const;
    bool LitProfil(const std::string &path);
    bool OuvreProfil(const std::string &path);
};

} // namespace loftwing
