#include "app/stack_command.h"

#include "app/command_line.h"
#include "app/error_line.h"
#include "app/toolkit.h"
#include "base/failure.h"
#include "base/file_name.h"
#include "base/text_encoding.h"
#include "output/sheeting.h"
#include "programme/export.h"
#include "programme/qt_stack_pdf.h"

#include <memory>

namespace loftwing {

namespace {

constexpr const char *kForm = "pdf";

/// All ribs of a stack, each with the program that it belongs to.
using Programs = std::vector<std::unique_ptr<ConsoleProgram>>;

/// Whether a plot can be made of what was opened; what was told says why not.
bool IsDrawn(Programme &programme) {
    PlotState plot = EtatAmorce(programme.rib);
    bool failed = false;
    return DessineVue(programme, plot, failed) != nullptr;
}

bool Open(const FileRun &run, const std::string &file, const PrepareFile &prepare,
          ConsoleProgram &program, bool &complete) {
    try {
        const Preparation prepared = prepare(program, file);
        complete = complete && prepared == Preparation::complete;
        return prepared != Preparation::impossible && IsDrawn(program.Owner());
    } catch (const Failure &failure) {
        TellOnError(run.console.err, file + ": " + run.start.FailureText(failure));
        return false;
    }
}

/// Opens all FILEs, so that each that is refused is told; none at all when one is.
Programs OpenAll(const FileRun &run, const std::vector<std::string> &files,
                 const PrepareFile &prepare, bool &complete) {
    Programs programs;
    programs.reserve(files.size());
    bool all = true;
    complete = true;
    for (const std::string &file : files) {
        programs.push_back(std::make_unique<ConsoleProgram>(run));
        if (!Open(run, file, prepare, *programs.back(), complete)) {
            all = false;
            if (files.size() > 1) {
                NameRefused(run.console, file);
            }
        }
    }
    return all ? std::move(programs) : Programs();
}

DemandePile StackOf(const Programs &programs, const std::string &name) {
    Programme &first = programs.front()->Owner();
    const ReglagePage page = PageAsTyped(first);
    DemandePile demande{{},           first.settings, first.messages, name,
                        DateDuJour(), page.regle,     page.noms};
    for (const auto &program : programs) {
        demande.nervures.push_back({program->Owner().rib});
    }
    return demande;
}

} // namespace

std::vector<OptionRule> StackOptions() {
    return {{kStacked, nullptr,
             "all FILEs in one PDF on as few pages as they need, each with its label and every "
             "page with its number and a line to measure"}};
}

DrawingTarget TargetOfStack(const Arguments &arguments, DrawingVerb verb,
                            const std::vector<std::string> &files) {
    verb.files_each = files.size(); // one drawing of them all
    DrawingTarget target = TargetOf(arguments, verb, files);
    if (target.extension != kForm) {
        throw UsageError(std::string(kStacked) + " writes the form " + kForm);
    }
    if (target.several) {
        target.several = false;
        target.file = target.folder;
    }
    return target;
}

int DrawStacked(const Arguments &arguments, const DrawingVerb &verb,
                const std::vector<std::string> &files, const PrepareFile &prepare) {
    const DrawingTarget target = TargetOfStack(arguments, verb, files);
    const Toolkit toolkit(target.form->needs_toolkit);
    DrawingVerb of_all = verb;
    of_all.files_each = files.size();
    const std::string named = target.IsStandardOutput() ? files.front() : target.file;
    return DeliverAll(arguments, of_all, files, target,
                      [&](const FileRun &run, const std::vector<std::string> &all,
                          bool &complete) -> std::optional<std::string> {
                          const Programs programs = OpenAll(run, all, prepare, complete);
                          if (programs.empty()) {
                              return std::nullopt;
                          }
                          Pile pile(StackOf(programs, ToUtf8(StemOf(named))));
                          return PdfDePile(pile);
                      });
}

} // namespace loftwing
