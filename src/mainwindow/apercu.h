/// The airfoil picker's white paper.
#pragma once

#include "output/recording.h"

#include <QPainter>
#include <QWidget>

#include <memory>

namespace loftwing {

/// Shows a preview as large as its place allows, always whole and on white paper, also in a dark
/// desktop theme.
class Apercu : public QWidget {
    Q_OBJECT

  public:
    explicit Apercu(QWidget *parent);

    void Montre(std::unique_ptr<Recording> drawing);
    /// Shows words in the drawing's place.
    void Dit(const QString &words);
    /// Clears the paper.
    void Efface() { Montre(nullptr); }
    /// What is shown, null for clear paper.
    const Recording *Dessin() const { return drawing_.get(); }
    /// The words that are shown, empty for a drawing or clear paper.
    const QString &Mots() const { return words_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    std::unique_ptr<Recording> drawing_;
    QString words_;

    void PeintMots(QPainter &painter) const;
};

} // namespace loftwing
