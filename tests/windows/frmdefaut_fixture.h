/// The dialog of the defaults in a scripted world, with a user who is a function.
#pragma once

#include "persist/frmdefaut.h"
#include "windows/dialog_fixture.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace loftwing {

class FrmdefautTest : public DialogTest {
  protected:
    using Texts = std::vector<std::string>;

    inline static const Texts kOnFile = {"180", "2", "3", "", "10", "12"};
    inline static const Texts kInches = {"8", "1/16", "0", "0", "0", "0"};
    inline static const Texts kMillimetres = {"200", "1.5", "0", "0", "0", "0"};

    FrmdefautTest() {
        folder.File("Loftwing.ini",
                    "[Defaut]\r\nunit= mm\r\ncordeAfich=180\r\nEpCoffrageAfich=2\r\n"
                    "EpBAAfich=3\r\nHTblocAfich=\r\nBAblocAfich=10\r\nBFblocAfich=12\r\n");
        programme.settings.repertoires = {"/home/me/airfoils", "/home/me/sets", "/home/me/other"};
    }

    /// Shows the dialog as a command does, lets `user` act in it, and tells how it was left.
    Left Use(const User &user) {
        frmdefaut dialog(programme, view, nullptr);
        return UseModal(dialog, user);
    }
    static Texts Shown(Seen &dialog) {
        Texts texts;
        for (int i = 0; i < kChampsDefaut; ++i) {
            texts.push_back(dialog.Text({"txtdef", i}));
        }
        return texts;
    }
    static void ExpectUnit(Seen &dialog, const std::string &unit) {
        for (int i = 0; i < kChampsDefaut; ++i) {
            EXPECT_EQ(dialog.Label({"Label1", i}), unit);
        }
        EXPECT_EQ(dialog.Chosen("inches"), unit == " in");
        EXPECT_EQ(dialog.Chosen("mm"), unit == " mm");
    }
    const RibModel &Rib() const { return programme.rib; }
    const MiseEnPage &Page() const { return programme.settings.page; }
};

} // namespace loftwing
