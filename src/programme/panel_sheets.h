/// A panel's pieces on sheets of stock: what was typed for them, and the pieces that are laid.
#pragma once

#include "output/nesting.h"
#include "programme/panel_steps.h"
#include "programme/sheet_choice.h"

#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace loftwing {

/// The two sides of "100x1000" or "100 x 1000", still as texts; nothing for another text.
std::optional<std::array<std::string, 2>> CotesDe(const std::string &format);

/// What pieces and sheets are made with.
struct VoeuPlanches {
    ReglageImbrication reglage;
    int copies = 1;        ///< of each piece, all wings counted
    bool opposees = false; ///< every second one is for the other wing
    DemandePiece piece;    ///< kerf and marks

    /// What the ribs are asked for, numbers from `premier`.
    DemandePanneau DemandeDe(int premier) const { return {piece, premier, opposees}; }
};

enum class ChampPlanches { formats, ecart, marge, copies, saignee };
struct RefusSaisie {
    ChampPlanches champ = ChampPlanches::formats;
    std::string texte; ///< without the field's name
};

/// What was typed; the first fault where there is one. Shows no box.
std::variant<VoeuPlanches, RefusSaisie> VoeuDe(const SaisiePlanches &typed,
                                               const Messages &messages, const std::string &Unite);

/// What was chosen for sheets last, in the unit in force. Failures as IniFile::Read.
SaisiePlanches PlanchesRetenues(const Programme &programme);
void RetientPlanches(const Programme &programme, const SaisiePlanches &choix);

/// All pieces that shall be laid; refused before there are more than may be.
std::variant<std::vector<PieceNommee>, RefusPlanche> PiecesALaPlanche(const PanneauFait &fait,
                                                                      int copies, bool opposees);

} // namespace loftwing
