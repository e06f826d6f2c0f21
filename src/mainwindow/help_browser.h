/// Shows one page of the help.
#pragma once

#include <QStringList>
#include <QTextBrowser>

namespace loftwing {

/// A browser of the help's pages. It takes the desktop's colours, in dark ones too, and makes its
/// pictures no wider than it is.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

  public:
    static constexpr int kLargeurImage = 640; ///< of the widest picture, logical pixels

    explicit HelpBrowser(QWidget *parent = nullptr);

    /// Marks every place where one of the words stands, and scrolls to the first.
    void Souligne(const QStringList &mots);
    /// Letters larger or smaller by so many points than those of the desktop.
    void Taille(int points);

    QVariant loadResource(int type, const QUrl &name) override;

  protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    int largeur_ = kLargeurImage; ///< of the widest picture as the page is now

    void PoseCouleurs();
    void Relit();
};

} // namespace loftwing
