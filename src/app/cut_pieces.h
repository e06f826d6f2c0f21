/// What `cut` makes of one FILE and tells of it.
#pragma once

#include "app/console_program.h"
#include "app/drawing_target.h"
#include "programme/qt_cut_forms.h"

#include <optional>
#include <string>
#include <vector>

namespace loftwing {

class JsonLine;

/// Extensions of the forms for cutters.
std::vector<std::string> CutExtensions();
/// The form of that extension. Throws UsageError for one that there isn't.
const FormeDecoupe &CutFormOf(const std::string &extension);
AnneauxDxf RingsOf(const Arguments &arguments);

/// What is told of the pieces of one FILE beside their drawing.
class CutReport {
  public:
    CutReport(const Arguments &arguments, const Console &console, bool drawing_on_out,
              std::string file)
        : json_(arguments.Has("--json")), console_(console), drawing_on_out_(drawing_on_out),
          file_(std::move(file)) {}

    void Tell(const Messages &messages, const Piece &piece) const;
    void TellRefused(const std::string &why) const;

  private:
    bool json_;
    Console console_;
    bool drawing_on_out_; ///< standard output has it, so that nothing else may come there
    std::string file_;

    void Print(const JsonLine &line) const;
};

/// Opens a FILE with the options' values and makes its pieces. Nothing when that was refused; a
/// line told why. `complete` says whether nothing was amiss on the way.
std::optional<std::vector<Piece>> CutPiecesOf(const Arguments &arguments, ConsoleProgram &program,
                                              const std::string &file, bool &complete);

} // namespace loftwing
