// The airfoil that a tool picks for itself, beside the rib on the screen.

#include "persist/LireEcrire.h"
#include "windows/views_fixture.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class ToolPicker : public Views {
  protected:
    ToolPicker() {
        OpenRib();
        Rib().texte.InsTexte = "my own words";
        Rib().texte.TexteUtilisateur = true;
        Rib().Modifie = true;
        before = EcritComposants(Rib(), world.programme.settings.Unite);
        points = Rib().ProfilY.Values();
    }
    void ExpectUntouched() {
        EXPECT_EQ(EcritComposants(Rib(), world.programme.settings.Unite), before);
        EXPECT_EQ(Rib().ProfilY.Values(), points);
        EXPECT_EQ(Rib().CheminProfil, WindowWorld::Sample("naca2412.dat"));
        EXPECT_EQ(Rib().EnteteProfil, "NACA 2412");
        EXPECT_TRUE(Rib().ProfilCharge);
        EXPECT_TRUE(Rib().Modifie);
        EXPECT_TRUE(Rib().texte.TexteUtilisateur);
        EXPECT_NE(Drawing(), nullptr);
    }

    std::string before;
    std::vector<double> points;
};

TEST_F(ToolPicker, GivesTheAirfoilAndLeavesTheRib) {
    InNextDialogs({PickSample("naca6409.dat")});
    const auto chosen = world.window->ChoisitProfil("Title");
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->NomProfil, "naca6409");
    EXPECT_NE(chosen->ProfilY.Values(), points);
    EXPECT_EQ(chosen->ProfilX.Count(), chosen->NbPoints);
    ExpectUntouched();
}

TEST_F(ToolPicker, CancelGivesNothingAndLeavesTheRib) {
    InNextDialogs({[](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Title");
        dialog.Key(Qt::Key_Escape);
    }});
    EXPECT_FALSE(world.window->ChoisitProfil("Title"));
    ExpectUntouched();
}

TEST_F(ToolPicker, FileWhoseReadingFailsLeavesTheRib) {
    const std::string broken =
        world.folder.File("broken.dat", "Broken\n1 0\n0.5 0.1\n\n0.5 0\n1 0\n");
    InNextDialogs({[this, broken](Seen &dialog) {
        world.platform.Expect(BoxAnswer::ok);
        LookAt(dialog, broken);
        ASSERT_EQ(world.platform.boxes.size(), 1U);
        dialog.Key(Qt::Key_Escape);
    }});
    EXPECT_FALSE(world.window->ChoisitProfil("Title"));
    ExpectUntouched();
}

TEST_F(ToolPicker, LeavesASimplePlotToo) {
    Rib().Modifie = false;
    Run("mnu_Outilcoupl", {PickSample("naca0012.dat")});
    const std::vector<double> plotted = Rib().ProfilY.Values();
    InNextDialogs({PickSample("naca6409.dat")});
    EXPECT_TRUE(world.window->ChoisitProfil("Title"));
    EXPECT_EQ(Rib().ProfilY.Values(), plotted);
    EXPECT_EQ(Rib().NomProfil, "naca0012");
    EXPECT_TRUE(Rib().ModeCouple);
}

} // namespace
} // namespace loftwing
