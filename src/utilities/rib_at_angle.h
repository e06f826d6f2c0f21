/// What the tools share that stretch an airfoil for a rib at an angle.
#pragma once

#include "core/airfoil_picker.h"
#include "core/messages.h"

#include <functional>
#include <string>

namespace loftwing {

/// How angles stand in names and in titles of files.
inline constexpr std::string_view kPictureAngleNom = "# ###0";

/// Text of an airfoil file: `ligne1`, then the points of `profil` in their order, every y divided
/// by `diviseur`. Failure 11 for a divisor of 0, 6 for a y beyond 64 bits.
std::string TexteEtire(const std::string &ligne1, const ProfilChoisi &profil, double diviseur);

/// What the chooser of such a file asks. `nom` may hold what no file name can.
FileQuestion QuestionProfil(const std::string &titre, const std::string &filtre,
                            const std::string &dossier, const std::string &nom);

/// Asks for the file and writes what `texte` makes. A cancel ends it silently. False after a
/// failure, which a box has told; nothing is written then, and the caller clears the rib.
bool EnregistreProfil(const Messages &messages, const FileQuestion &question,
                      const std::function<std::string()> &texte);

} // namespace loftwing
