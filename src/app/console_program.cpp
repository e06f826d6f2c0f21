#include "app/console_program.h"

#include "app/error_line.h"
#include "app/resource_paths.h"
#include "base/file_name.h"
#include "output/page_setup.h"
#include "output/screen_plot.h"
#include "programme/import_words.h"
#include "programme/rib_file.h"
#include "utilities/tool_files.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <sstream>

namespace loftwing {

namespace {

constexpr const char *kUsualLanguage = "English";

/// The set of values that a choice of inches brings.
void ValeursPouces(Programme &programme) {
    RibModel &rib = programme.rib;
    const Saisie saisie = programme.SaisieEnCours();
    StockeLongueur("8", saisie, rib.cordeAfich, rib.corde);
    StockeLongueur("1/16", saisie, rib.EpCoffrageAfich, rib.EpCoffrage);
    loftwing::ValeursPouces(programme.settings.page);
}

void ChargeLangue(const Arguments &arguments, Programme &programme) {
    const std::string name = arguments.Value("--language", kUsualLanguage);
    const std::vector<std::string> names = LngIni::Languages(programme.paths.langues);
    if (std::find(names.begin(), names.end(), name) == names.end()) {
        throw UsageError("no language " + name);
    }
    programme.language.Charge(programme.paths.langues, name);
}

void ChargeValeurs(const Arguments &arguments, Programme &programme) {
    const std::string unit = " " + arguments.Value("--unit", "mm");
    if (unit != kUniteMm && unit != kUniteIn) {
        throw UsageError("--unit takes mm or in");
    }
    ValeursDefaut(programme.ReglagesEnCours(), programme.paths.programme);
    programme.settings.Unite = unit;
    if (!arguments.Has("--settings")) {
        if (unit == kUniteIn) {
            ValeursPouces(programme);
        }
        return;
    }
    if (!std::filesystem::exists(programme.paths.fichier)) {
        throw MakeFailure(kFileNotFound, programme.paths.fichier);
    }
    if (!LitTout(programme.ReglagesEnCours())) {
        throw Refused{};
    }
    const std::string &in_file = programme.settings.Unite;
    if (arguments.Has("--unit") || (in_file != kUniteMm && in_file != kUniteIn)) {
        programme.settings.Unite = unit;
        DeriveLongueurs(programme.ReglagesEnCours());
    }
    ReplaceYdprint(programme.settings.page, programme.settings.Unite);
}

} // namespace

std::vector<OptionRule> CommonOptions() {
    return {{"--unit", "mm|in", "unit of all lengths (default mm)"},
            {"--language", "NAME", "language of texts and messages (default English)"},
            {"--settings", "FILE", "colours, styles, widths, margins and defaults from FILE"},
            {"--yes", nullptr, "answer Yes to every question"},
            {"--help", nullptr, "show this help"}};
}

std::vector<OptionRule> ReadingOptions() {
    std::vector<OptionRule> rules = {
        {"--import", nullptr, "read airfoil files in any order and scale, as convert does"}};
    const std::vector<OptionRule> common = CommonOptions();
    rules.insert(rules.end(), common.begin(), common.end());
    return rules;
}

void Deliver(const std::string &path, const std::string &text) {
    if (path == "-") {
        std::cout << text << std::flush;
    } else {
        EcritFichier(path, text);
    }
}

void NameRefused(const std::string &file) {
    NameRefused(StandardConsole(), file);
}

void NameRefused(const Console &console, const std::string &file) {
    TellOnError(console.err, file + " was refused");
}

ConsoleStart::ConsoleStart(const Arguments &arguments)
    : paths_(ConsolePaths(arguments.Value("--settings"))), says_yes_(arguments.Has("--yes")),
      lecture_(arguments.Has("--import") ? ReadingWay::by_import : ReadingWay::as_it_stands) {
    std::ostringstream lines;
    ConsolePlatform platform(lines, says_yes_);
    Programme programme(paths_, platform);
    try {
        ChargeLangue(arguments, programme);
        ChargeValeurs(arguments, programme);
    } catch (const Failure &failure) {
        failure_ = failure;
    } catch (const Refused &) {
        std::cerr << lines.str();
        throw;
    }
    language_ = std::move(programme.language);
    settings_ = std::move(programme.settings);
    rib_ = std::move(programme.rib.Partie<PartiesRib>());
    told_ = {lines.str(), platform.LastText()};
}

std::string ConsoleStart::FailureText(const Failure &failure) const {
    return Description(failure, language_);
}

ConsoleProgram::ConsoleProgram(const Arguments &arguments)
    : ConsoleProgram(FileRun{ConsoleStart(arguments), StandardConsole()}) {}

ConsoleProgram::ConsoleProgram(const FileRun &run)
    : platform_(run.console.err, run.start.says_yes_), programme_(run.start.paths_, platform_),
      lecture_(run.start.lecture_) {
    platform_.TellAgain(run.start.told_);
    if (run.start.failure_) {
        throw Failure(*run.start.failure_);
    }
    programme_.language = run.start.language_;
    programme_.settings = run.start.settings_;
    programme_.rib.Partie<PartiesRib>() = run.start.rib_;
}

std::string FailureText(const Arguments &arguments, const Failure &failure) {
    LngIni language;
    try {
        language.Charge(ConsolePaths({}).langues, arguments.Value("--language", kUsualLanguage));
    } catch (const Failure &) {
        // Without its file the words are the program's own.
    }
    return Description(failure, language);
}

bool ConsoleProgram::Ouvre(const std::string &path, const std::vector<std::string> &dossiers) {
    if (!EstComposants(path)) {
        return OuvreProfil(path);
    }
    DemandeComposants demande{path, dossiers, false};
    demande.lecture = lecture_;
    if (dossiers.empty()) {
        const std::string folder = FolderOf(path);
        demande.dossiers = {folder.empty() ? "." : folder};
    }
    return OuvreComposants(programme_, demande) == OuvertureComposants::ouverte;
}

bool ConsoleProgram::LitProfil(const std::string &path) {
    RibModel &rib = programme_.rib;
    const Messages &messages = programme_.messages;
    NommeProfil(rib, path);
    const std::string title = messages.Text({"frmopen", "1"});
    if (ReadAirfoil(rib, messages, title, lecture_).issue != Lecture::lu) {
        return false;
    }
    if (rib.NbPoints < kPointsMini) {
        messages.Inform(RefusTropCourt(messages), title);
        return false;
    }
    return true;
}

void ConsoleProgram::WarnOfDeviation() const {
    Warn(ContourDeviation(programme_.rib, kImportTolerance));
}

void ConsoleProgram::WarnOfDeviation(Preparation prepared) const {
    if (prepared == Preparation::complete) {
        Warn(MadeContourDeviation(programme_.rib, kImportTolerance));
    }
}

void ConsoleProgram::Warn(std::optional<double> deviation) const {
    const std::string warning = DeviationWarning(programme_.messages, deviation.value_or(0));
    if (!warning.empty()) {
        programme_.messages.Inform(warning, programme_.rib.CheminProfil);
    }
}

std::optional<ProfilChoisi> ConsoleProgram::ChoisitProfil(const std::string &path) {
    return LitProfil(path) ? std::optional(ProfilDuRib(programme_.rib)) : std::nullopt;
}

bool ConsoleProgram::OuvreProfil(const std::string &path) {
    if (!LitProfil(path)) {
        return false;
    }
    RibModel &rib = programme_.rib;
    rib.ProfilCharge = true;
    ReprendProfil(rib);
    CordeDuTitre(rib, programme_.SaisieEnCours());
    return true;
}

} // namespace loftwing
