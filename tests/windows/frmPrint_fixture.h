/// The page dialog in a scripted world, with a user who is a function.
#pragma once

#include "output/frmPrint.h"
#include "windows/dialog_fixture.h"

namespace loftwing {

inline constexpr const char *kNoRoom = "The margins and the overlap leave no room on the sheet.";

class FrmPrintTest : public DialogTest {
  protected:
    using DialogTest::Chord;
    void Chord(int mm) { Chord(std::to_string(mm), static_cast<float>(mm)); }
    void Inches() {
        DialogTest::Inches();
        ValeursPouces(programme.settings.page);
    }
    void Template(float ramp) {
        programme.rib.TypeGabarit = 1;
        programme.rib.bloc.BAbloc = ramp;
    }
    void NoOverlap() {
        programme.settings.page.recouvrement = 0;
        programme.settings.page.recouvrementAfich = "0";
    }

    /// Shows the dialog as a command does, lets `user` act in it, and tells how it was left.
    Left Use(const User &user) {
        frmPrint dialog(programme, nullptr);
        return UseModal(dialog, user);
    }
    static void Paper(Seen &dialog, int index) {
        dialog.Find<QComboBox>("Combo1").setCurrentIndex(index);
    }
    std::string Stored(const char *key) const { return DialogTest::Stored("Marges", key); }
    const MiseEnPage &Page() const { return programme.settings.page; }
};

} // namespace loftwing
