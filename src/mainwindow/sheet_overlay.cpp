#include "mainwindow/sheet_overlay.h"

#include "output/sheet_edges.h"
#include "output/view_screen.h"
#include "platform/qt_plot_device.h"
#include "programme/page_decidee.h"

namespace loftwing {

void SheetOverlay::Montre(bool shown) {
    shown_ = shown;
    Refait();
}

void SheetOverlay::Suit(const MiseEnPage *page) {
    follows_ = true;
    page_ = page == nullptr ? std::nullopt : std::optional(*page);
    if (shown_) {
        Refait();
    }
}

void SheetOverlay::SuitReglages() {
    follows_ = false;
    page_.reset();
    if (shown_) {
        Refait();
    }
}

void SheetOverlay::Pose() {
    // Kept, since a redraw that is refused leaves the drawing but not the rib as they were.
    place_ = PlaceVue(programme_.rib, programme_.compare);
    Retrace();
}

void SheetOverlay::Refait() {
    Retrace();
    picture_.RegleDefilement();
}

std::optional<MiseEnPage> SheetOverlay::Page() const {
    const std::optional<MiseEnPage> page = follows_ ? page_ : programme_.settings.page;
    return page ? PageDecidee(programme_, *page) : std::nullopt;
}

void SheetOverlay::Retrace() {
    const std::optional<MiseEnPage> page = shown_ ? Page() : std::nullopt;
    if (!page) {
        picture_.MontreFeuilles(nullptr);
        return;
    }
    auto sheets = std::make_unique<Recording>(ScreenAdvance);
    TraceFeuilles(FeuillesDe(*page), place_, *sheets);
    picture_.MontreFeuilles(std::move(sheets));
}

} // namespace loftwing
