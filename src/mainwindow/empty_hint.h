/// What stands in the main window's picture as long as there is nothing to show.
#pragma once

#include "lang/LngIni.h"
#include "persist/settings.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <array>
#include <string>

namespace loftwing {

/// Says how to come to a first drawing: open, drop, or one of the files that were opened last.
/// It is no paper and so has the desktop's colours. What a click does is not its business.
class EmptyHint : public QWidget {
    Q_OBJECT

  public:
    explicit EmptyHint(QWidget *parent);

    /// Gives it the words of the language in force.
    void PoseTextes(const LngIni &language);
    /// The files that it offers, of each kind the last one first; an empty path is none.
    void MontreRecents(const FichiersRecents &ribs, const FichiersRecents &profils);

  Q_SIGNALS:
    void Ouvre();
    void OuvreRecent(const std::string &path);

  protected:
    void resizeEvent(QResizeEvent *event) override;

  private:
    QLabel titre_;
    QPushButton ouvre_;
    QLabel depose_;
    QWidget recents_; ///< the words and buttons below
    QLabel avant_;
    static constexpr std::size_t kFichiers = std::size_t{2} * kFichiersRecents;
    std::array<QPushButton, kFichiers> fichiers_;
    std::array<std::string, kFichiers> chemins_;

    void NameAll();
    void LayOut();
    void LayOutRecents();
    void MontreCeQuiTient();
};

} // namespace loftwing
