#include "programme/nom_propose.h"

#include "support/components_text.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

class NomProposeTest : public StepsWorld {
  protected:
    NomProposeTest() {
        Rib().NomProfil = "clark.y";
        Rib().ProfilCharge = true;
    }
};

TEST_F(NomProposeTest, ItIsTheRibFilesWhereTheRibHasOne) {
    for (const char *name : {"root v1.2.lfw", "root v1.2.LFW"}) {
        Rib().NomFichierRib = name;
        EXPECT_EQ(NomPropose(programme), "root v1.2");
    }
}

TEST_F(NomProposeTest, ElseItIsAirfoilAndChord) {
    EXPECT_EQ(NomPropose(programme), "clark.y 200 mm");
    // A new airfoil leaves its name where a rib file's would stand.
    Rib().NomFichierRib = "clark.y";
    Rib().cordeAfich = " 182.5"; // as a title brings it
    Rib().corde = 182.5F;
    EXPECT_EQ(NomPropose(programme), "clark.y 182.5 mm");
}

TEST_F(NomProposeTest, AFractionLeadsToNoFolder) {
    programme.settings.Unite = " in";
    Rib().cordeAfich = "8.1/2";
    Rib().corde = 215.9F;
    EXPECT_EQ(NomPropose(programme), "clark.y 8.1-2 in");
}

TEST_F(NomProposeTest, AChordThatWasRefusedIsNotNamed) {
    Rib().cordeAfich = "0";
    Rib().corde = 150;
    EXPECT_EQ(NomPropose(programme), "clark.y 150 mm");
}

TEST_F(NomProposeTest, AViewInTheRibsPlaceIsNotTheRib) {
    Rib().NomFichierRib = "root.lfw";
    Comparing();
    programme.compare.CompareNom1 = "a18";
    programme.compare.CompareNom2 = "e205";
    EXPECT_EQ(NomPropose(programme), "a18 - e205 200 mm");
    Rib().ModeCompare = false;
    Rib().ModeCouple = true;
    EXPECT_EQ(NomPropose(programme), "clark.y 200 mm");
}

} // namespace
} // namespace loftwing
