/// Everything that the one process owns.
#pragma once

#include "core/app_settings.h"
#include "core/comparaison.h"
#include "core/messages.h"
#include "core/rib_model.h"
#include "lang/LngIni.h"
#include "output/plot_state.h"
#include "output/trace.h"
#include "persist/settings.h"
#include "platform/platform.h"
#include "programme/rib_history.h"
#include "programme/secours.h"

#include <string>

namespace loftwing {

/// Where the program's files are.
struct Paths {
    std::string programme;    ///< the program's resources
    std::string langues;      ///< language files
    std::string fichier;      ///< settings file
    std::string aide;         ///< help
    std::string secours = {}; ///< snapshots of unsaved work; empty where none are made
};

/// The neighbour of an airfoil that was tried last and not taken; none while it is empty.
struct VoisinEssaye {
    std::string chemin;
    std::string depuis; ///< the airfoil that the rib had then
};

/// Made once in main and passed by reference to windows and to the command line's verbs. A routine
/// below them takes the narrowest part of it that it needs.
struct Programme {
    Programme(Paths where, Platform &world) : paths(std::move(where)), platform(world) {}

    RibModel rib;
    Comparaison compare;
    AppSettings settings;
    PlotState plot;
    LngIni language;
    Paths paths;
    Platform &platform;
    Messages messages{platform, language};
    std::string DernierProfil; ///< the airfoil file that was opened last in this run
    VoisinEssaye voisin;
    RibHistory histoire; ///< of the main window
    Secours secours{paths.secours, platform};
    std::string AvisDePiece;       ///< what there is to say of the piece that the window shows
    bool PremierDemarrage = false; ///< no settings file was there
    bool SeparateurDit = false;    ///< this run has told of a decimal separator that is no point

    std::string Text(LngKey key) const { return language.LngText(key); }
    Saisie SaisieEnCours() const { return {settings.Unite, messages}; }
    Reglages ReglagesEnCours() { return {settings, rib, messages, paths.fichier}; }
    Trace TraceSur(PlotDevice &device) { return {device, rib, settings, plot, messages}; }
};

} // namespace loftwing
