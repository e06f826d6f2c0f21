/// A wing out of panel files: every panel is made, and they are put in a row.
#pragma once

#include "programme/aile.h"
#include "programme/panel_file.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// Most panels of a wing.
inline constexpr std::size_t kPanneauxMaxi = 20;

/// Opens the rib components file of an end. Nothing where it was refused, which was told.
using LecteurBout = std::function<std::optional<PartiesRib>(const std::string &path)>;

/// A panel as its file has it, and what was made of it.
struct PanneauDeFichier {
    std::string chemin;
    FichierPanneau fichier;
    Panneau panneau;
    PanneauFait fait;
};

struct AileFaite {
    Aile aile;
    std::deque<PanneauDeFichier> panneaux;
    /// What stands against it, each with its file's name; the wing is only whole where there is
    /// nothing.
    std::vector<std::string> refus;
    std::vector<std::string> avis; ///< what should be known all the same
    bool dit = false;              ///< an end was refused, which was told
};

/// What there is to say where the last panel of a wing joins the one before: two ribs that are
/// glued to each other should have one chord.
std::optional<std::string> AvisDuJoint(const Aile &aile, const Messages &messages,
                                       const std::string &Unite);

/// Makes the wing of some panel files, in their order. Ribs are counted from `premier`, or from
/// what the first file says. Lengths of all files are in the unit in force. Shows no box but those
/// of `lit`; the rib of the programme is put back.
AileFaite FaitAile(Programme &programme, const std::vector<std::string> &fichiers,
                   std::optional<int> premier, const LecteurBout &lit);

} // namespace loftwing
