/// The pages of the help. A page is named by the context number that a window's help button asks
/// for: help/LANGUAGE/CONTEXT.html.
#pragma once

#include "lang/LngIni.h"

#include <array>
#include <span>

namespace loftwing {

/// The help context of a window without a help button.
inline constexpr int kSansAide = 0;

inline constexpr int kAideVisite = 10; ///< the tour, which is the first page
inline constexpr int kAideAile = 15;   ///< the second tour: a wing panel
inline constexpr int kAideFenetre = 20;
inline constexpr int kAideEdition = 21; ///< undo, preview, the mouse on the drawing
inline constexpr int kAidePage = 31;
inline constexpr int kAideFeuilles = 32; ///< the printer's correction, papers of one's own
inline constexpr int kAideExport = 33;
inline constexpr int kAideDecoupe = 34; ///< pieces for a cutter, and on the screen
inline constexpr int kAideValeurs = 40; ///< chord, sheeting, stocks, V-notch, heel
inline constexpr int kAideOuvrir = 41;
inline constexpr int kAideLongerons = 42;
inline constexpr int kAideTrous = 43;
inline constexpr int kAideImport = 44;
inline constexpr int kAideComposants = 45;
inline constexpr int kAideSecours = 46; ///< what is kept for the case of a crash
inline constexpr int kAideGabarit = 50; ///< and station lines
inline constexpr int kAideCalculs = 60; ///< list of a set, thickness and camber, dihedral
inline constexpr int kAideJeu = 61;
inline constexpr int kAideOblique = 62;
inline constexpr int kAideInclinaison = 63;
inline constexpr int kAideVues = 64;    ///< comparison and simple plot
inline constexpr int kAidePanneau = 65; ///< ribs of a wing panel
inline constexpr int kAidePlan = 66;    ///< building plan, list of parts, wing of several panels
inline constexpr int kAideDessin = 70;  ///< colours, defaults, inserted text
inline constexpr int kAideCoord = 80;
inline constexpr int kAideBibliotheque = 90;
inline constexpr int kAideCommandes = 95; ///< the command line
inline constexpr int kAideProgramme = 96; ///< languages, settings, version
inline constexpr int kAideJeuVariable = 610;

/// Pages that stand under one heading in the contents.
struct ChapitreAide {
    LngKey titre;
    std::span<const int> pages;
};

/// The contents, every page once.
std::span<const ChapitreAide> ChapitresAide();

} // namespace loftwing
