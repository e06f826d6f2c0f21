// The picture of the main window: redraw, zoom, scroll, size and place.

#include "base/version.h"
#include "mainwindow/frmmain.h"
#include "output/scroll_range.h"
#include "output/view_screen.h"
#include "platform/qt_form.h"
#include "platform/qt_plot_device.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

QSettings PlaceStore() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, "loftwing", "window");
}

} // namespace

void frmmain::affiche() {
    // A box of an earlier redraw may still be open; its answer doesn't change the drawing.
    if (drawing_) {
        return;
    }
    if (Dessine([](const Trace &trace) { return afficheRib(trace); })) {
        Panel(2, TexteEtat(programme_.rib, programme_.settings, programme_.messages));
    }
    RegleDefilement();
}

bool frmmain::Dessine(const std::function<Affichage(const Trace &)> &draw) {
    drawing_ = true;
    auto recording = std::make_unique<Recording>(ScreenAdvance);
    const Affichage result = draw(programme_.TraceSur(*recording));
    drawing_ = false;
    if (result == Affichage::echec) {
        affclear();
    }
    if (result != Affichage::dessine) {
        return false;
    }
    Pic->Montre(std::move(recording));
    Panel(1, kVersion);
    return true;
}

/// One unit of a scroll bar: half the chord at the zoom in force, its millimetres taken for device
/// units. The views move their origin by just as much.
double frmmain::UniteDefilement() const {
    return Wide(programme_.rib.corde) * Wide(programme_.rib.Zoom) / 2.0;
}

void frmmain::RegleDefilement() {
    const Recording *drawing = Pic->Dessin();
    const RibModel &rib = programme_.rib;
    const double unit = UniteDefilement();
    ScrollRange across;
    ScrollRange down;
    if (drawing != nullptr && unit > 0.0) {
        const Extent seen = drawing->Bounds();
        const double x = rib.DecalX * unit;
        const double y = -rib.DecalY * unit;
        across = RangeOver(seen.left - x, seen.right - x, Pic->width() * kUnitsPerPixel, unit);
        if (DefileEnHauteur(rib)) {
            down = RangeOver(seen.top - y, seen.bottom - y, Pic->height() * kUnitsPerPixel, unit);
        }
    }
    const auto set = [](QScrollBar *bar, const ScrollRange &range, int lowest, int highest) {
        bar->setRange(lowest, highest);
        bar->setPageStep(range.page);
        bar->setSingleStep(range.step);
        bar->setEnabled(lowest != highest);
    };
    // A value that falls out of the new range comes back through the bar's own change.
    set(Hsbpic, across, across.lowest, across.highest);
    set(Vsbpic, down, -down.highest, -down.lowest);
}

void frmmain::RemetDefilement() {
    const QSignalBlocker across(Hsbpic);
    const QSignalBlocker down(Vsbpic);
    programme_.rib.DecalX = 0;
    programme_.rib.DecalY = 0;
    Hsbpic->setValue(0);
    Vsbpic->setValue(0);
}

void frmmain::ZoomSur(int row) {
    const int wanted = std::clamp(row, 0, Combo1->count() - 1);
    if (wanted != Combo1->currentIndex()) {
        Combo1->setCurrentIndex(wanted);
        Combo1_Click(wanted);
    }
}

void frmmain::Combo1_Click(int row) {
    programme_.rib.Zoom = FacteurZoom(S(Combo1->itemText(row)));
    RemetDefilement();
    RetraceVues();
    affiche();
}

void frmmain::Hsbpic_Change(int value) {
    programme_.rib.DecalX = static_cast<std::int16_t>(-value);
    RetraceVues();
    affiche();
}

void frmmain::Vsbpic_Change(int value) {
    programme_.rib.DecalY = static_cast<std::int16_t>(-value);
    RetraceVues();
    affiche();
}

void frmmain::Pic_Wheel(double across, double down) {
    constexpr double kLinesPerNotch = 3.0;
    const auto lines = [](double notches) {
        return static_cast<int>(std::lround(notches * kLinesPerNotch));
    };
    Hsbpic->setValue(Hsbpic->value() - lines(across) * Hsbpic->singleStep());
    Vsbpic->setValue(Vsbpic->value() + lines(down) * Vsbpic->singleStep());
}

void frmmain::Pic_Drag(const QPoint &pixels) {
    const double unit = UniteDefilement() / kUnitsPerPixel;
    if (!(unit > 0.0)) {
        return;
    }
    drag_rest_ += pixels;
    const int x = static_cast<int>(drag_rest_.x() / unit);
    const int y = static_cast<int>(drag_rest_.y() / unit);
    drag_rest_ -=
        QPoint(static_cast<int>(std::lround(x * unit)), static_cast<int>(std::lround(y * unit)));
    Hsbpic->setValue(Hsbpic->value() - x);
    Vsbpic->setValue(Vsbpic->value() + y);
}

void frmmain::Form_Resize() {
    // A fixed oddity: a change of size leaves the plain caption, as users know it; the status bar
    // has the airfoil's name. Nothing depends on it.
    setWindowTitle(QString::fromUtf8(kTitre));
    // What is typed in a dialog may not fit yet, and a plot that fails costs the rib.
    if (DialogueNervureOuvert()) {
        return;
    }
    RetraceVues();
    affiche();
}

void frmmain::LitPlace() {
    const QSettings store = PlaceStore();
    if (!restoreGeometry(store.value("geometry").toByteArray())) {
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        resize(QSize(1000, 600).boundedTo(screen));
    }
}

void frmmain::EcritPlace() {
    QSettings store = PlaceStore();
    store.setValue("geometry", saveGeometry());
}

} // namespace loftwing
