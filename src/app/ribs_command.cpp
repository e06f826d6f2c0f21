#include "app/ribs_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/typed_value.h"
#include "utilities/rib_set_typed.h"
#include "utilities/tool_files.h"

#include <array>
#include <filesystem>
#include <iostream>

namespace loftwing {

namespace {

using DeuxProfils = std::array<ProfilJeu, 2>;

/// Shows a refusal; there is nobody to type again.
[[noreturn]] void Refuse(const Messages &messages, const RefusJeu &refus, LngKey titre) {
    messages.Tell(refus.text, messages.Text(titre), refus.icon);
    throw Refused{};
}

ProfilChoisi LitProfil(ConsoleProgram &program, const std::string &file) {
    auto profil = program.ChoisitProfil(file);
    if (!profil) {
        NameRefused(file);
        throw Refused{};
    }
    program.WarnOfDeviation();
    return *std::move(profil);
}

DeuxProfils LitProfils(ConsoleProgram &program, const std::vector<std::string> &files) {
    return {ProfilMajeur(LitProfil(program, files[0])), ProfilMineur(LitProfil(program, files[1]))};
}

/// What the options say, before any file is read.
SaisieJeu DemandeDe(const Arguments &arguments, const Programme &programme) {
    const bool variable = arguments.Has("--gaps");
    if (arguments.Files().size() != 2 || !arguments.Has("--chords") ||
        arguments.Value("--output").empty() || arguments.Value("--output") == "-" ||
        variable == arguments.Has("--count") || variable != arguments.Has("--thickness")) {
        throw UsageError("ribs wants ROOT TIP --chords MAJOR MINOR -o DIR and either --count N or "
                         "--gaps G1 ... --thickness T0 ...");
    }
    const std::vector<std::string> cordes = TypedLengths(arguments, "--chords", programme);
    SaisieJeu demande{{cordes[0], cordes[1]}, {}, {}, {}, arguments.Value("--output")};
    TermineDossier(demande.dossier);
    if (!variable) {
        demande.nombre = Typed(arguments, "--count", kTouchesPositif);
        return demande;
    }
    demande.ecarts = TypedLengths(arguments, "--gaps", programme);
    demande.epaisseurs = TypedLengths(arguments, "--thickness", programme);
    if (demande.ecarts.size() < 2 || demande.epaisseurs.size() != demande.ecarts.size() + 1) {
        throw UsageError("--gaps wants one more than there are intermediate ribs, two at least; "
                         "--thickness wants one more than gaps");
    }
    return demande;
}

void MakeFolder(const std::string &folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
}

} // namespace

std::vector<OptionRule> RibsOptions() {
    std::vector<OptionRule> rules = {
        {"--output", "DIR", "folder of the files, also -o"},
        {"--chords", "MAJOR MINOR", "chords at the root and at the tip", false, 2},
        {"--count", "N", "number of intermediate ribs in equal steps"},
        {"--gaps", "G1 ...", "clear gaps of a set with variable spacing, from root to tip", false,
         kAllWords},
        {"--thickness", "T0 ...", "thickness of each of its ribs, from root to tip", false,
         kAllWords}};
    const std::vector<OptionRule> common = ReadingOptions();
    rules.insert(rules.end(), common.begin(), common.end());
    return rules;
}

int RunRibs(const Arguments &arguments) {
    ConsoleProgram program(arguments);
    Programme &programme = program.Owner();
    const SaisieJeu demande = DemandeDe(arguments, programme);
    const DeuxProfils profils = LitProfils(program, arguments.Files());
    const auto made = ComposeJeu(demande, profils, programme.SaisieEnCours(), programme.rib.jeu);
    if (const auto *refus = std::get_if<RefusJeu>(&made)) {
        Refuse(programme.messages, *refus, TitreJeu(demande));
    }
    const auto &jeu = std::get<JeuDeNervures>(made);
    MakeFolder(demande.dossier);
    for (const std::string &path : SaveProfil(jeu, programme.messages)) {
        std::cout << path << '\n';
    }
    std::cout << EcritResume(jeu) << '\n';
    return kDone;
}

} // namespace loftwing
