/// The line of text on a rib: the label that the program makes, and whether a text still is one.
#pragma once

#include "core/messages.h"
#include "core/rib_model.h"
#include "core/units.h"

#include <string>
#include <vector>

namespace loftwing {

/// The label of the rib as it is now: airfoil, washout where an add-on and a washout are set, chord
/// as typed. "e205 Chord : 200", "e205 Washout 2.5° Chord : 200".
std::string GeneratedLabel(const RibModel &rib, const Messages &messages);

/// Whether InsTexte is empty or still begins like the label of the rib as it is now.
bool EstEtiquette(const RibModel &rib, const Messages &messages);

/// Whether InsTexte is a label of the airfoil that the rib has now, whoever it counts as. An empty
/// text names none.
bool EtiquetteDuProfil(const RibModel &rib, const Messages &messages);

/// What becomes of InsTexte when another airfoil has taken over the rib: `etiquette`, a label of
/// the one before, becomes the label of this one; other words stay and are the user's.
void RepriseTexte(RibModel &rib, bool etiquette, const Messages &messages);

/// Makes InsTexte anew, unless it is the user's own.
void RegenereTexte(RibModel &rib, const Messages &messages);

/// Decides by the text itself whose it is. A text that still begins like the label is made anew
/// with the chord in force and counts as the program's; so does an empty one. A text with a ":"
/// that begins otherwise is marked as the user's. A text without ":" changes nothing.
void ActualiseTexte(RibModel &rib, const Messages &messages);

/// The text and its place as fields hold them.
struct TexteTape {
    std::string texte;
    std::string x; ///< from the leading edge
    std::string y; ///< from the reference line
};

/// What the fields start with: the user's own text as it stands, otherwise the label of the rib as
/// it is now.
TexteTape TexteAffiche(const RibModel &rib, const Messages &messages);

/// Takes what the fields hold. The text goes through ActualiseTexte and counts as the user's from
/// then on; line breaks and other control characters that came by the clipboard become blanks,
/// since a rib carries one line. The rib counts as changed. Failures as VersMm, and 6 for a place
/// beyond 32 bits; the rib is then what it was.
void PrendTexteInsere(RibModel &rib, const TexteTape &typed, const Saisie &saisie);

/// The sizes to choose from, ascending, in points. `taille` is among them even if it isn't a common
/// one, so that a size from a settings file shows.
std::vector<std::string> TaillesProposees(float taille);
/// The size that an entry of that list stands for. Failure 6 when it doesn't fit.
float TailleChoisie(const std::string &entry);

} // namespace loftwing
