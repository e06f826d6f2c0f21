/// The window in which the language is chosen.
#pragma once

#include "programme/main_view.h"
#include "programme/programme.h"

#include <QComboBox>
#include <QDialog>
#include <QPushButton>

#include <string>

namespace loftwing {

/// A list of the language files. Opening it clears the rib, and a new language is applied to the
/// whole program at once. It speaks plain English while no language is loaded.
class lang : public QDialog {
    Q_OBJECT

  public:
    lang(Programme &programme, MainView &view, QWidget *parent);

  private:
    Programme &programme_;
    MainView &view_;
    bool change_ = false; ///< a row was selected since the window opened

    QComboBox Combo1;
    QPushButton ok;

    void LayOut();
    void Form_Load();
    void Combo1_Click();
    void ok_Click();
    /// False, and a report, when the language file can't be read.
    bool Prend(const std::string &name);
};

} // namespace loftwing
