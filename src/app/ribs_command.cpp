#include "app/ribs_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/typed_value.h"
#include "utilities/ribevol.h"
#include "utilities/ribevol2.h"
#include "utilities/tool_files.h"

#include <array>
#include <filesystem>
#include <iostream>

namespace loftwing {

namespace {

using DeuxTextes = std::array<std::string, 2>;
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

DeuxTextes Noms(const DeuxProfils &profils) {
    return {profils[0].NomProfil, profils[1].NomProfil};
}

/// What the options say, before any file is read.
struct Demande {
    DeuxTextes cordes;
    std::string nombre;                  ///< equal steps
    std::vector<std::string> ecarts;     ///< variable spacing: gaps from root to tip
    std::vector<std::string> epaisseurs; ///< and ribs
    std::string dossier;
};

Demande DemandeDe(const Arguments &arguments, const Programme &programme) {
    const bool variable = arguments.Has("--gaps");
    if (arguments.Files().size() != 2 || !arguments.Has("--chords") ||
        arguments.Value("--output").empty() || arguments.Value("--output") == "-" ||
        variable == arguments.Has("--count") || variable != arguments.Has("--thickness")) {
        throw UsageError("ribs wants ROOT TIP --chords MAJOR MINOR -o DIR and either --count N or "
                         "--gaps G1 ... --thickness T0 ...");
    }
    const std::vector<std::string> cordes = TypedLengths(arguments, "--chords", programme);
    Demande demande{{cordes[0], cordes[1]}, {}, {}, {}, arguments.Value("--output")};
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

JeuDeNervures Regulier(const Demande &demande, const DeuxProfils &profils, const Saisie &saisie) {
    Ribevol set;
    if (const auto refus =
            VerifieRibevol({Noms(profils), demande.cordes, demande.nombre}, saisie, set)) {
        Refuse(saisie.messages, *refus, {"FrmRibevol", "1"});
    }
    return ComposeRibevol(set, profils, demande.dossier, saisie);
}

JeuDeNervures Variable(const Demande &demande, const DeuxProfils &profils, const Saisie &saisie,
                       JeuNervures &jeu) {
    const LngKey titre{"FrmRibevol2", "1"};
    const int N = static_cast<int>(demande.ecarts.size()) - 1;
    if (N > kNervuresVariables) {
        Refuse(saisie.messages, {QuestionNombre(N, saisie.messages)}, titre);
    }
    jeu.NbNervInter = ToInt16(N);
    Ribevol2 set;
    const DeuxTextes ends{demande.epaisseurs.front(), demande.epaisseurs.back()};
    const auto refus = ValideRibevol2({Noms(profils), demande.cordes, ends}, saisie, jeu, set);
    if (refus) {
        Refuse(saisie.messages, *refus, titre);
    }
    for (int gap = 1; gap <= N + 1; ++gap) {
        set.NervCourante = ToInt16(gap);
        AppliqueEcart(At(demande.epaisseurs, gap - 1), At(demande.ecarts, gap - 1), saisie, jeu,
                      set);
    }
    if (const auto gap = VerifieEcarts(jeu, saisie.messages)) {
        Refuse(saisie.messages, *gap, titre);
    }
    CalculeRibevol2(jeu, set);
    return ComposeRibevol2(jeu, set, profils, demande.dossier, saisie);
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
    const Demande demande = DemandeDe(arguments, programme);
    const DeuxProfils profils = LitProfils(program, arguments.Files());
    const Saisie saisie = programme.SaisieEnCours();
    const JeuDeNervures jeu = demande.ecarts.empty()
                                  ? Regulier(demande, profils, saisie)
                                  : Variable(demande, profils, saisie, programme.rib.jeu);
    MakeFolder(demande.dossier);
    for (const std::string &path : SaveProfil(jeu, programme.messages)) {
        std::cout << path << '\n';
    }
    std::cout << EcritResume(jeu) << '\n';
    return kDone;
}

} // namespace loftwing
