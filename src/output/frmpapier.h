/// A paper of the user's own for the page set-up.
#pragma once

#include "output/page_setup.h"
#include "programme/qt_dialogue.h"

#include <QLabel>
#include <QLineEdit>

#include <array>

namespace loftwing {

/// Name and measures of a roll or a plotter's sheet. OK refuses measures that no page can have.
class frmpapier : public Dialogue {
    Q_OBJECT

  public:
    frmpapier(Programme &programme, QWidget *parent);

    /// What OK took.
    const PapierPropre &Papier() const { return papier_; }

  private:
    PapierPropre papier_;

    QLabel Label1;
    QLabel Label2;
    QLabel Label3;
    QLineEdit txtnom;
    std::array<NumericField, 2> Text1; ///< along the rib, across
    QLabel Label4;                     ///< the units
    QLabel Label5;

    // frmpapier_build.cpp
    void NameAll();
    void LayOut();

    void Form_Load();
    void cmdok_Click() override;
};

} // namespace loftwing
