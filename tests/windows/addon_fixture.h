/// The windows of heel, V-notch and template in a scripted world, with a user who is a function.
#pragma once

#include "support/qt_nothing_cut.h"
#include "windows/dialog_fixture.h"

namespace loftwing {

template <class Dialog>
class AddonTest : public DialogTest {
  protected:
    AddonTest() {
        RibModel &rib = programme.rib;
        rib.NomProfil = "e205";
        rib.ProfilCharge = true;
        rib.IntradosMini = -0.03125;
        rib.ExtradosMaxi = 0.0625;
        Chord("256", 256);
    }

    void Inches() {
        DialogTest::Inches();
        Chord("8", 203.2F);
    }

    /// Shows the window as a command does, lets `user` act in it, and tells how it was left.
    Left Use(const User &user) {
        Dialog window(programme, view, nullptr);
        return UseModal(window, user);
    }

    /// In both languages and units, at the usual and at the double size of font.
    void ExpectNothingCutAnywhere() {
        for (const double scale : {1.0, 2.0}) {
            const FontScale font(scale);
            for (const char *language : {"English", "French"}) {
                for (const std::string_view unit : {kUniteMm, kUniteIn}) {
                    Language(language);
                    programme.settings.Unite = unit;
                    Use([&](Seen &window) {
                        SCOPED_TRACE(std::string(language) + S(Q(unit)) + std::to_string(scale));
                        ExpectNothingCut(window.Window());
                    });
                }
            }
        }
    }
    int Redraws() const { return Asked("affiche"); }
};

} // namespace loftwing
