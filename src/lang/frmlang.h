/// The window in which the language is chosen.
#pragma once

#include "programme/main_view.h"
#include "programme/qt_dialogue.h"

#include <QComboBox>

#include <string>

namespace loftwing {

/// A list of the language files. Opening it clears the rib, and a new language is applied to the
/// whole program at once. It speaks plain English while no language is loaded.
class lang : public Dialogue {
    Q_OBJECT

  public:
    lang(Programme &programme, MainView &view, QWidget *parent);

  private:
    MainView &view_;
    bool change_ = false; ///< a row was selected since the window opened

    QComboBox Combo1;

    // frmlang_build.cpp
    void NameAll();
    void LayOut();

    void Form_Load();
    void Combo1_Click();
    void cmdok_Click() override;
    /// False, and a report, when the language file can't be read.
    bool Prend(const std::string &name);
};

} // namespace loftwing
