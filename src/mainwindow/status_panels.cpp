#include "mainwindow/status_panels.h"

#include "base/failure.h"
#include "mainwindow/fitted_label.h"
#include "platform/qt_text.h"

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

namespace loftwing {

StatusPanels::StatusPanels(QMainWindow &window) {
    QStatusBar *bar = window.statusBar();
    bar->setObjectName("StatusBar");
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        // The words about the airfoil may be long; they must not widen the window.
        panels_[i] = i == 1 ? new FittedLabel(1, &window) : new QLabel(&window);
        panels_[i]->setObjectName(QStringLiteral("StatusBar(%1)").arg(i + 1));
        panels_[i]->setTextFormat(Qt::PlainText);
        if (i == 1) {
            panels_[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        }
        bar->addWidget(panels_[i], i == 1 ? 1 : 0);
    }
}

void StatusPanels::Montre(int number, const std::string &text) {
    QLabel *panel = At(panels_, number - 1);
    panel->setText(Q(text));
    panel->setToolTip(number == 2 ? Q(text).toHtmlEscaped() : QString());
}

} // namespace loftwing
