/// The pieces of the rib in the window: what the user asks of them, and what is said of them.
#pragma once

#include "output/piece.h"
#include "programme/programme.h"

#include <string>
#include <vector>

namespace loftwing {

/// The widest kerf of a field, and the most that a wire melts: no tool that cuts ribs has one, so
/// it is a slip of the keys.
inline constexpr double kSaigneeMaxi = 5.0; // mm

/// What was chosen for cutting. The settings file remembers it.
struct ChoixDecoupe : DemandePiece {
    bool polylignes = false; ///< of DXF
    std::string forme;       ///< extension of the form that was used last

    bool operator==(const ChoixDecoupe &) const = default;
};

/// What the settings file has; a width that can't be is 0. Failures as IniFile::Read.
ChoixDecoupe LitChoixDecoupe(const Programme &programme);
void RetientChoixDecoupe(const Programme &programme, const ChoixDecoupe &choix);

/// That choice with the words of a label, empty for the rib's own.
DemandePiece DemandeDe(const ChoixDecoupe &choix, const std::string &texte);

/// What is taken away by a tool: its kerf, or what a hot wire melts.
enum class Largeur { saignee, fil };

/// Such a width as it was typed.
struct LargeurLue {
    double mm = 0;
    std::string refus; ///< why it is none, empty where it is one
};
/// Shows no box: the text may not be whole yet.
LargeurLue LitLargeur(Largeur largeur, const std::string &text, const Programme &programme);

struct PiecesFaites {
    std::vector<Piece> pieces;
    std::string refus; ///< why there are none
};
/// The pieces of the rib, whose contour has been prepared. Shows no box.
PiecesFaites FaitPiecesDuRib(const Programme &programme, const DemandePiece &demande);

/// All warnings of some pieces, or why there are none; empty where there is nothing to say.
std::string TexteDesAvis(const Messages &messages, const PiecesFaites &faites);
/// "Area : 45.3 cm2, length of cut : 612.5 mm, size : 166.9 x 22.1 mm", a line a piece.
std::string TexteMesures(const Messages &messages, const std::vector<Piece> &pieces,
                         const std::string &Unite);

} // namespace loftwing
