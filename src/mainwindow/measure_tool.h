/// Measuring between two points of the main window's picture.
#pragma once

#include "mainwindow/pic_view.h"
#include "output/touche.h"
#include "programme/programme.h"

#include <QObject>

#include <functional>
#include <optional>

namespace loftwing {

/// While it is on, a click takes the first point and the next one the second; both snap to corners
/// and centres. The line and its length in mm and in inches lie over the drawing until the next
/// click. Escape ends it.
class MeasureTool : public QObject {
    Q_OBJECT

  public:
    /// `fin` is told when the user ends it by the key.
    MeasureTool(const Programme &programme, PicView &picture, std::function<void()> fin);

    void Active(bool active);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    const Programme &programme_;
    PicView &picture_;
    std::function<void()> fin_;
    bool active_ = false;
    // In mm from the drawing's origin, downwards, so that they stay where they are at another zoom.
    std::optional<LieuTrace> from_;
    std::optional<LieuTrace> to_; ///< once the second point is taken

    LieuTrace Lieu(const QPointF &pixel) const;
    LieuTrace DansLeDessin(const LieuTrace &mm) const;
    void Clique(const LieuTrace &place);
    void Montre(const LieuTrace &to) const;
};

} // namespace loftwing
