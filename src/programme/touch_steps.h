/// What pointing at a part of the rib says and does.
#pragma once

#include "output/sujet.h"
#include "programme/command_view.h"
#include "programme/programme.h"

#include <optional>
#include <string>

namespace loftwing {

/// "spar 2".
std::string NomDuSujet(const SujetTrace &sujet, const Messages &messages);
/// Name, place and measures as the user typed them: "spar 2: 33 % (66 mm) from the leading edge,
/// 5 x 3 mm".
std::string DitSujet(const RibModel &rib, const SujetTrace &sujet, const Saisie &saisie);

/// A place on the rib: mm behind the leading edge and above the reference line.
struct LieuRib {
    double x = 0;
    double y = 0;
};

/// Where a part stands that may be moved; nothing for any other. A spar moves along the chord only,
/// so does a hole in the middle of the thickness.
std::optional<LieuRib> LieuDuSujet(const RibModel &rib, const SujetTrace &sujet);

/// How far apart the places are at which a part that is dragged may stop.
enum class PasDeTire {
    entier, ///< 1 mm or 1/32 in
    fin     ///< 0.1 mm or 0.01 in
};

/// Puts a part that may be moved near `place`: a whole number of steps from the edge that its place
/// counts from, the text from the leading edge, with all of it on the chord and, where it fits
/// there, between the surfaces. A place in percent stays one. Failures as VersMm, and 6 beyond 32
/// bits.
void PlaceSujet(RibModel &rib, const SujetTrace &sujet, const LieuRib &place, PasDeTire pas,
                const Saisie &saisie);

/// The same for the rib on the screen, which is drawn anew. A rib that can't be drawn so is told
/// and stays as it was.
void DeplaceSujet(Programme &programme, CommandView &view, const SujetTrace &sujet,
                  const LieuRib &place, PasDeTire pas);

/// Takes a part off the rib after a question.
void RetireSujet(Programme &programme, CommandView &view, const SujetTrace &sujet);

/// A distance of two points of the drawing, in both units whichever is in force: "12.30 mm =
/// 0.484 in".
std::string DitDistance(double mm);

} // namespace loftwing
