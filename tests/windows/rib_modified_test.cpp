// What changes the rib counts as a change, and what could lose it asks.

#include "persist/LireEcrire.h"
#include "support/qt_window_world.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace loftwing {
namespace {

/// A command, and what its user does in the window that it brings up; some bring none.
struct Change {
    const char *what;
    const char *command;
    User user = {};
    std::optional<BoxAnswer> answer = {}; ///< to the box that it brings
};

/// Types one value and presses a button.
User Types(const char *field, const char *text, const char *button = "cmdok") {
    return [=](Seen &dialog) {
        dialog.Type(field, text);
        dialog.Click(button);
    };
}

/// Types the measures of a spar or hole and presses a button.
User Slot(const char *button) {
    return [button](Seen &dialog) {
        dialog.Type("Text1(0)", "60");
        dialog.Type("Text1(1)", "10");
        dialog.Type("Text1(2)", "5");
        dialog.Click(button);
        if (dialog.IsOpen()) {
            dialog.Close();
        }
    };
}

void Presses(Seen &dialog, const char *button) {
    dialog.Click(button);
}

const std::vector<Change> &Changes() {
    static const std::vector<Change> changes = {
        {"chord", "mnu_profilcorde", Types("infotxt", "210")},
        {"sheeting", "mnu_profilepcoffrage", Types("infotxt", "2")},
        {"leading edge stock", "mnu_profilbaD", Types("infotxt", "8")},
        {"trailing edge stock", "mnu_profilbf", Types("infotxt", "12")},
        {"station lines", "mnu_paramrep", Types("infotxt", "5")},
        {"V-notch, OK", "mnu_profilbaC", Types("infotxt(0)", "6")},
        {"V-notch, Apply", "mnu_profilbaC", Types("infotxt(0)", "6", "CmdApply")},
        {"spar, OK", "mnu_profillongeron", Slot("cmdok")},
        {"spar, Add", "mnu_profillongeron", Slot("cmdajout"), BoxAnswer::ok} /* it has no notch */,
        {"spar, Apply", "mnu_profillongeron", Slot("CmdApply")},
        {"hole, OK", "mnu_profiltrou", Slot("cmdok")},
        {"hole, Add", "mnu_profiltrou", Slot("cmdajout")},
        {"heel, OK", "mnu_profilTalon", [](Seen &dialog) { Presses(dialog, "cmdok"); }},
        {"heel, Apply", "mnu_profilTalon", [](Seen &dialog) { Presses(dialog, "CmdApply"); }},
        {"template, OK", "mnu_parambloc", [](Seen &dialog) { Presses(dialog, "cmdok"); }},
        {"template, Apply", "mnu_parambloc", Types("txt(2)", "30", "CmdApply")},
        {"washout", "mnu_parambloc", Types("txt(5)", "2")},
        {"text, OK", "mnu_affInstxt", Types("infotxt(0)", "left wing")},
        {"text's place, Apply", "mnu_affInstxt", Types("infotxt(1)", "40", "CmdApply")},
        {"inversion", "mnu_affinver"},
        {"defaults", "mnu_affdefaut", Types("txtdef(0)", "180"), BoxAnswer::yes},
    };
    return changes;
}

class RibModified : public testing::Test {
  protected:
    /// A rib without changes, which its file holds.
    void Have() {
        world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
        Rib().Modifie = false;
    }
    void Run(const char *command, const User &user) {
        const bool came = BringsDialog([&] { world.Action(command)->trigger(); },
                                       [&user](Seen &dialog) {
                                           if (user) {
                                               user(dialog);
                                           }
                                       });
        EXPECT_EQ(came, user != nullptr) << command;
    }
    RibModel &Rib() { return world.programme.rib; }

    WindowWorld world;
};

TEST_F(RibModified, EveryChangeOfWhatTheFileHoldsCounts) {
    for (const Change &change : Changes()) {
        SCOPED_TRACE(change.what);
        Have();
        const std::string before = EcritComposants(Rib(), world.programme.settings.Unite);
        if (change.answer) {
            world.platform.Expect(*change.answer);
        }
        Run(change.command, change.user);
        EXPECT_NE(EcritComposants(Rib(), world.programme.settings.Unite), before);
        EXPECT_TRUE(Rib().Modifie);
    }
}

TEST_F(RibModified, AWindowThatIsCancelledChangesNothing) {
    for (const char *command :
         {"mnu_profilcorde", "mnu_profilepcoffrage", "mnu_profilbaD", "mnu_profilbf",
          "mnu_paramrep", "mnu_profillongeron", "mnu_profiltrou", "mnu_parambloc", "mnu_affInstxt",
          "mnu_affdefaut"}) {
        SCOPED_TRACE(command);
        Have();
        const std::string before = EcritComposants(Rib(), world.programme.settings.Unite);
        Run(command, [](Seen &dialog) { dialog.Key(Qt::Key_Escape); });
        EXPECT_EQ(EcritComposants(Rib(), world.programme.settings.Unite), before);
        EXPECT_FALSE(Rib().Modifie);
    }
}

TEST_F(RibModified, WhatTheFileDoesNotHoldIsNoChange) {
    Have();
    for (const char *command : {"mnu_affTrac", "mnu_afflignRef", "mnu_affepr", "mnu_affhautba"}) {
        Run(command, {});
        EXPECT_FALSE(Rib().Modifie) << command;
    }
}

TEST_F(RibModified, TheLanguageIsChosenOnlyWhereNothingIsLostOrTheUserSaysSo) {
    Have();
    Rib().Modifie = true;
    world.platform.Expect(BoxAnswer::no,
                          {.text = "The rib has changes that are not saved. A choice of language "
                                   "clears it. Choose all the same?",
                           .title = "Language",
                           .buttons = BoxButtons::save_yes_no});
    Run("mnu_affLang", {});
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_TRUE(Rib().Modifie);
    world.platform.Expect(BoxAnswer::yes);
    Run("mnu_affLang", [](Seen &) {});
    EXPECT_FALSE(Rib().ProfilCharge);
    Have();
    Run("mnu_affLang", [](Seen &) {}); // and without changes nobody is asked
    EXPECT_FALSE(Rib().ProfilCharge);
}

TEST_F(RibModified, ARibFileThatWasChangedIsAskedAboutBeforeAClear) {
    Have();
    Rib().FichierRibOuvert = true;
    world.Action("mnu_affinver")->trigger();
    world.platform.Expect(BoxAnswer::no, {.title = "Clear all data"});
    world.Action("mnu_affclear")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_TRUE(Rib().AffHaut);
}

} // namespace
} // namespace loftwing
