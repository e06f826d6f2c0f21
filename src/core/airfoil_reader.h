/// Reading airfoil coordinate files.
#pragma once

#include "core/messages.h"
#include "core/rib_model.h"

#include <string>

namespace loftwing {

/// How a reading ended.
enum class Lecture {
    lu,     ///< the model holds the airfoil
    refuse, ///< the file isn't an airfoil of ours; NbPoints is 0
    echec   ///< a run-time failure; the caller clears the rib
};

/// What a reading leaves for the window that shows it.
struct ResultatLecture {
    Lecture issue = Lecture::lu;
    std::string etiquette; ///< words of a refusal for the picker's label
    std::string boite;     ///< what the box says of a refusal or a failure
    BoxIcon icone = BoxIcon::information;
};

/// Reads the file CheminProfil (Selig order: x from 1 over the upper surface and back to 1) into
/// ProfilX, ProfilY, NbPoints and EnteteProfil. A refusal clears NbPoints and SansApercu. Nothing
/// is shown.
ResultatLecture EssaieLecture(RibModel &rib, const Messages &messages);

/// The same of what would stand in such a file.
ResultatLecture EssaieLecture(RibModel &rib, const std::string &octets, const Messages &messages);

/// Shows the box of a reading that went wrong; that of a refusal has the title `titre`.
void AnnonceLecture(const ResultatLecture &read, const Messages &messages,
                    const std::string &titre);

/// Both of them.
ResultatLecture FichierLecture(RibModel &rib, const Messages &messages, const std::string &titre);

/// Fewer points than this make no rib; whoever lets the user choose a file refuses them.
inline constexpr int kPointsMini = 5;
/// Words of that refusal, and the words that close every refusal.
std::string RefusTropCourt(const Messages &messages);
std::string Cloture(const Messages &messages);

} // namespace loftwing
