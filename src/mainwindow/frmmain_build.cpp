// How the main window is put together: picture and status bar.

#include "mainwindow/frmmain.h"

#include <QStatusBar>

namespace loftwing {

void frmmain::BuildPicture() {
    picture_ = new PictureArea(programme_.rib, this);
    setCentralWidget(picture_);
    connect(picture_, &PictureArea::Defile, this, [this] {
        RetraceVues();
        affiche();
    });
    connect(picture_, &PictureArea::MenuDemande, this,
            [this](const QPoint &place) { commands_.OuvreMenu("mnuprofil", place); });
    connect(picture_, &PictureArea::ZoomDemande, this, &frmmain::ZoomSur);
    connect(picture_, &PictureArea::Redimensionne, this, &frmmain::Form_Resize);
}

void frmmain::BuildStatusBar() {
    statusBar()->setObjectName("StatusBar");
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        panels_[i] = new QLabel(this);
        panels_[i]->setObjectName(QStringLiteral("StatusBar(%1)").arg(i + 1));
        panels_[i]->setTextFormat(Qt::PlainText);
        // The words about the airfoil may be long; they must not widen the window.
        if (i == 1) {
            panels_[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        }
        statusBar()->addWidget(panels_[i], i == 1 ? 1 : 0);
    }
}

} // namespace loftwing
