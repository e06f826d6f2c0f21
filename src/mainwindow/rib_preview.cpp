#include "mainwindow/rib_preview.h"

#include "platform/qt_plot_device.h"
#include "programme/essai_rib.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

namespace loftwing {

namespace {

constexpr int kRestMs = 40;

} // namespace

RibPreview::RibPreview(Dialogue &dialog, const Programme &programme, PictureArea &picture)
    : dialog_(dialog), programme_(programme), picture_(picture) {
    rest_.setSingleShot(true);
    rest_.setInterval(kRestMs);
    connect(&rest_, &QTimer::timeout, this, &RibPreview::Refait);
    if (dialog_.Essai()) {
        Suit();
    }
}

RibPreview::~RibPreview() {
    picture_.MontreEssai(nullptr);
}

void RibPreview::Suit() {
    const auto again = [this] { rest_.start(); };
    for (const QLineEdit *field : dialog_.findChildren<QLineEdit *>()) {
        connect(field, &QLineEdit::textChanged, this, again);
    }
    for (const QAbstractButton *button : dialog_.findChildren<QAbstractButton *>()) {
        connect(button, &QAbstractButton::toggled, this, again);
    }
    for (const QComboBox *list : dialog_.findChildren<QComboBox *>()) {
        connect(list, &QComboBox::activated, this, again);
    }
}

void RibPreview::Refait() {
    if (!dialog_.isVisible()) {
        return; // it has just closed, and the rib holds what it left
    }
    auto drawing = std::make_unique<Recording>(ScreenAdvance);
    const bool drawn = DessineEssai(programme_, dialog_.Essai(), *drawing);
    const Recording *present = picture_.Image().Dessin();
    const bool other = present == nullptr || present->Operations() != drawing->Operations();
    picture_.MontreEssai(drawn && other ? std::move(drawing) : nullptr);
}

} // namespace loftwing
