#include "platform/qt_pointer.h"

#include <QApplication>

namespace loftwing {

namespace {

bool IsBusy() {
    const QCursor *pointer = QApplication::overrideCursor();
    return pointer != nullptr && pointer->shape() == Qt::WaitCursor;
}

} // namespace

void ShowBusyPointer() {
    if (!IsBusy()) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
}

void ShowNormalPointer() {
    while (QApplication::overrideCursor() != nullptr) {
        QApplication::restoreOverrideCursor();
    }
}

PointerPause::PointerPause() : paused_(IsBusy()) {
    if (paused_) {
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
}

PointerPause::~PointerPause() {
    // Nothing left to restore: the work is over, and the pointer stays normal.
    if (paused_ && QApplication::overrideCursor() != nullptr) {
        ShowNormalPointer();
        ShowBusyPointer();
    }
}

} // namespace loftwing
