#include "support/qt_modal.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>

namespace loftwing {

void InNextDialog(const std::function<void(QDialog &)> &act) {
    QTimer::singleShot(0, [act] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            ADD_FAILURE() << "no dialog came up";
            return;
        }
        act(*dialog);
        if (dialog->isVisible()) {
            dialog->reject();
        }
    });
}

} // namespace loftwing
