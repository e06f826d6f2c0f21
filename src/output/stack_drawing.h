/// A rib's drawing as a stack of drawings has it: recorded, measured and with its label.
#pragma once

#include "core/app_settings.h"
#include "core/messages.h"
#include "core/rib_model.h"
#include "output/etendue.h"
#include "output/recording.h"
#include "output/stack_layout.h"

#include <memory>
#include <string>
#include <vector>

namespace loftwing {

/// A drawing at true scale, whose leading edge end of the reference line is at the origin.
struct DessinEmpile {
    Recording trace;
    Etendue boite;               ///< all that is drawn, mm
    std::vector<Etendue> encres; ///< boxes of what is drawn, mm

    TailleDessin Taille() const {
        return boite.Vide() ? TailleDessin{}
                            : TailleDessin{boite.droite - boite.gauche, boite.bas - boite.haut};
    }
};

/// Draws a rib from a primed plot state, as its switches say. Where its inserted text isn't drawn
/// the label stands in a corner that the drawing leaves free, otherwise under it; it is shortened
/// where it is longer than the drawing. A failure of the plot passes on with the label.
std::unique_ptr<DessinEmpile> EnregistreDessin(RibModel &rib, const AppSettings &settings,
                                               const Messages &messages,
                                               const std::string &etiquette);

} // namespace loftwing
