/// What a panel file has as texts, taken as numbers: a file may come out of an editor.
#pragma once

#include "programme/aile.h"
#include "programme/panel_file.h"

#include <optional>
#include <string>
#include <variant>

namespace loftwing {

/// The first text that should count or measure and doesn't; nothing where all do.
std::optional<std::string> TexteIllisible(const FichierPanneau &fichier, const Saisie &saisie);

/// Whether there are as many gaps and thicknesses as go together.
bool EcartsComplets(const FichierPanneau &fichier);

/// Its spacing, without the chords; `dossier` is that of the ribs' files.
SaisieJeu JeuDe(const FichierPanneau &fichier, const std::string &dossier);

/// Which of the texts of a panel's place in its wing is none.
enum class ChampAile { longueur, recul, diedre, densite };
struct RefusReglage {
    ChampAile champ = ChampAile::longueur;
    std::string texte; ///< why, without the field's name
};

/// The panel's place in its wing. Texts may be empty, which is 0; the sweep may have a minus, and
/// so may the dihedral. A density is in kg/m3, with lengths in inches in lb/ft3. Shows no box.
std::variant<ReglageAile, RefusReglage> ReglageDe(const FichierPanneau &fichier,
                                                  const Saisie &saisie);

/// Why a panel has no plan, in the user's words.
std::string TexteRefusAile(const Messages &messages, RefusAile refus);

} // namespace loftwing
