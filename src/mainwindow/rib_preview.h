/// The rib as it is typed in a dialog, in the main window's picture.
#pragma once

#include "mainwindow/picture_area.h"
#include "programme/qt_dialogue.h"

#include <QObject>
#include <QTimer>

namespace loftwing {

/// Lives as long as the dialog is open. Where what it holds can be drawn the picture shows that,
/// marked as a preview, otherwise what is on the rib, also where both look the same; at the end it
/// shows the rib again.
class RibPreview : public QObject {
    Q_OBJECT

  public:
    RibPreview(Dialogue &dialog, const Programme &programme, PictureArea &picture);
    ~RibPreview() override;
    RibPreview(const RibPreview &) = delete;
    RibPreview &operator=(const RibPreview &) = delete;

  private:
    Dialogue &dialog_;
    const Programme &programme_;
    PictureArea &picture_;
    QTimer rest_; ///< until what is typed rests

    void Suit();
    void Refait();
};

} // namespace loftwing
