#include "core/rib_model.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

TEST(RibModel, StartsWithTheDefaultsOfANewProgram) {
    RibModel rib;
    rib.corde = 1;
    rib.cordeAfich = "1";
    rib.EpCoffrage = 9;
    rib.EpBA = 4;
    rib.EpBFAfich = "7";
    rib.TypeBA = 0;
    rib.vrillage = 3;
    rib.NbRep = 5;
    rib.Zoom = 4;
    rib.DecalX = 12;
    rib.AffTrac = false;
    rib.AffHaut = true;
    rib.ModeCompare = true;
    rib.texte.TailleFont = 20;
    ValeursDefautRib(rib);
    EXPECT_EQ(rib.corde, 200.0F);
    EXPECT_EQ(rib.cordeAfich, "200");
    EXPECT_EQ(rib.EpCoffrage, 1.5F);
    EXPECT_EQ(rib.EpCoffrageAfich, "1.5");
    EXPECT_EQ(rib.EpBA, 0.0F);
    EXPECT_EQ(rib.EpBAAfich, "0");
    EXPECT_EQ(rib.EpBF, 0.0F);
    EXPECT_EQ(rib.EpBFAfich, "0");
    EXPECT_EQ(rib.TypeBA, 1);
    EXPECT_EQ(rib.vrillage, 0.0F);
    EXPECT_EQ(rib.NbRep, 0);
    EXPECT_EQ(rib.texte.TailleFont, 9.0F);
    EXPECT_EQ(rib.Zoom, 1.0F);
    EXPECT_EQ(rib.DecalX, 0);
    EXPECT_EQ(rib.DecalY, 0);
    EXPECT_TRUE(rib.AffTrac);
    EXPECT_TRUE(rib.AffLignRef);
    EXPECT_FALSE(rib.AffHaut);
    EXPECT_FALSE(rib.ModeCompare);
}

TEST(RibModel, APartIsCopiedAndPutBackAsAWhole) {
    RibModel rib;
    rib.longeron[3].PosLongAfich = "33%";
    rib.NbTrou = 2;
    rib.texte.InsTexte = "words";
    rib.corde = 150;
    const Ajouts kept = rib.Partie<Ajouts>();
    rib.longeron[3].PosLongAfich = "0";
    rib.NbTrou = 0;
    rib.texte.InsTexte.clear();
    rib.corde = 80;
    rib.Partie<Ajouts>() = kept;
    EXPECT_EQ(rib.longeron[3].PosLongAfich, "33%");
    EXPECT_EQ(rib.NbTrou, 2);
    EXPECT_EQ(rib.texte.InsTexte, "words");
    EXPECT_EQ(rib.corde, 80.0F) << "another part's";
}

TEST(RibModel, AGuardedPartComesBackHoweverItsScopeIsLeft) {
    RibModel rib;
    rib.Zoom = 3;
    rib.DecalX = 7;
    try {
        const PartieGardee<Vue> view(rib);
        rib.Zoom = 1;
        rib.DecalX = 0;
        rib.corde = 90;
        throw MakeFailure(kOverflow);
    } catch (const Failure &) {
        EXPECT_EQ(rib.Zoom, 3.0F);
        EXPECT_EQ(rib.DecalX, 7);
        EXPECT_EQ(rib.corde, 90.0F);
    }
}

TEST(RibModel, AFreshPartHasTheDefaultsOfANewProgram) {
    const RibModel fresh;
    RibModel rib;
    rib.corde = 1;
    rib.EpCoffrageAfich = "9";
    rib.TypeBA = 0;
    rib.Partie<Dimensions>() = {};
    EXPECT_EQ(rib.corde, fresh.corde);
    EXPECT_EQ(rib.EpCoffrageAfich, fresh.EpCoffrageAfich);
    EXPECT_EQ(rib.TypeBA, 1);
}

TEST(RazRib, ClearsTheFeatures) {
    RibModel rib;
    rib.NbLongeron = 2;
    for (std::size_t slot = 0; slot < 3; ++slot) {
        rib.longeron[slot].PosLongAfich = "33%";
        rib.longeron[slot].LargLong = 5;
        rib.trou[slot].DiaTrouAfich = "8";
        rib.trou[slot].DiaTrou = 8;
    }
    rib.NbTrou = 1;
    rib.EpBF = 10;
    rib.EpBFAfich = "10";
    rib.carre.CarreBA = 4;
    rib.carre.CarreBAAfich = "4";
    rib.TypeBA = 0;
    rib.NbRep = 7;
    rib.vrillage = 2;
    rib.TypeGabarit = kGabaritTalon;
    rib.talon.TalonIntra = 12;
    rib.talon.TalonIntraAfich = "12";
    rib.talon.OptTalon = 1;
    rib.texte.InsTexte = "words";
    rib.texte.InsTextX = 3;
    rib.texte.InsTextXAfich = "3";
    rib.texte.TailleFont = 20;
    rib.jeu.EcartNervAfich[13] = "50";
    RazRib(rib, 0.0F);
    EXPECT_EQ(rib.NbLongeron, 0);
    EXPECT_EQ(rib.NbTrou, 0);
    for (std::size_t slot = 0; slot < 3; ++slot) {
        EXPECT_EQ(rib.longeron[slot].PosLongAfich, "0") << "slot " << slot << ", edited one too";
        EXPECT_EQ(rib.longeron[slot].LargLong, 0.0F);
    }
    EXPECT_EQ(rib.trou[1].DiaTrouAfich, "0");
    EXPECT_EQ(rib.trou[1].DiaTrou, 0.0F);
    EXPECT_EQ(rib.EpBF, 0.0F);
    EXPECT_EQ(rib.EpBFAfich, "0");
    EXPECT_EQ(rib.carre.CarreBA, 0.0F);
    EXPECT_EQ(rib.carre.CarreBAAfich, "0");
    EXPECT_EQ(rib.TypeBA, 1);
    EXPECT_EQ(rib.NbRep, 0);
    EXPECT_EQ(rib.vrillage, 0.0F);
    EXPECT_EQ(rib.TypeGabarit, kSansGabarit);
    EXPECT_EQ(rib.talon.TalonIntra, 0.0);
    EXPECT_EQ(rib.talon.TalonIntraAfich, "0");
    EXPECT_EQ(rib.talon.OptTalon, 0);
    EXPECT_EQ(rib.texte.InsTexte, "");
    EXPECT_EQ(rib.texte.InsTextX, 0.0F);
    EXPECT_EQ(rib.texte.InsTextXAfich, "0");
    EXPECT_EQ(rib.texte.TailleFont, 9.0F);
    EXPECT_EQ(rib.jeu.EcartNervAfich[13], "");
}

TEST(RazRib, KeepsTheAirfoilTheChordAndTheLeadingEdgeStock) {
    RibModel rib;
    rib.NbPoints = 1;
    rib.ProfilX.Append(1.0);
    rib.NomProfil = "clarky";
    rib.corde = 150;
    rib.cordeAfich = "150";
    rib.EpBA = 1;
    rib.EpBAAfich = "6";
    RazRib(rib, 6.0F);
    EXPECT_EQ(rib.NbPoints, 1);
    EXPECT_EQ(rib.ProfilX.Count(), 1);
    EXPECT_EQ(rib.NomProfil, "clarky");
    EXPECT_EQ(rib.corde, 150.0F);
    EXPECT_EQ(rib.EpBA, 6.0F);
    EXPECT_EQ(rib.EpBAAfich, "6");
}

TEST(RazRib, ClearsTheLastSlotWhenAllAreTaken) {
    RibModel rib;
    rib.NbTrou = 13;
    rib.trou[12].DiaTrou = 8;
    RazRib(rib, 0.0F);
    EXPECT_EQ(rib.trou[12].DiaTrou, 0.0F);
}

TEST(NommeProfil, SplitsThePathOfAnAirfoilFile) {
    RibModel rib;
    NommeProfil(rib, "/home/builder/airfoils/clark y.dat");
    EXPECT_EQ(rib.CheminProfil, "/home/builder/airfoils/clark y.dat");
    EXPECT_EQ(rib.NomProfil, "clark y");
    EXPECT_EQ(rib.ExtProfil, "dat");
}

TEST(NommeProfil, TakesFourCharactersForTheExtensionWhateverTheyAre) {
    RibModel rib;
    NommeProfil(rib, "mh32");
    EXPECT_EQ(rib.NomProfil, "");
    EXPECT_EQ(rib.ExtProfil, "h32");
    NommeProfil(rib, "/a.b/x");
    EXPECT_EQ(rib.NomProfil, "");
    EXPECT_EQ(rib.ExtProfil, "x");
    NommeProfil(rib, "profil-\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(rib.NomProfil, "profil") << "characters, not bytes";
    EXPECT_EQ(rib.ExtProfil, "\xC3\xA9t\xC3\xA9");
}

TEST(ReprendProfil, TakesTheAirfoilsNameAndDropsHeelAndWashout) {
    RibModel rib;
    rib.NomProfil = "clarky";
    rib.talon.TalonIntra = 5;
    rib.talon.TalonIntraAfich = "5";
    rib.talon.TalonExtra = -6;
    rib.talon.TalonExtraAfich = "6";
    rib.talon.TalonBAAfich = "3";
    rib.talon.OptTalon = 1;
    rib.vrillage = 2;
    ReprendProfil(rib);
    EXPECT_EQ(rib.talon.TalonIntra, 0.0);
    EXPECT_EQ(rib.talon.TalonIntraAfich, "0");
    EXPECT_EQ(rib.talon.TalonExtra, 0.0);
    EXPECT_EQ(rib.talon.TalonExtraAfich, "0");
    EXPECT_EQ(rib.talon.TalonBAAfich, "3") << "the margins stay";
    EXPECT_EQ(rib.talon.OptTalon, 0);
    EXPECT_EQ(rib.vrillage, 0.0F);
    EXPECT_TRUE(rib.Modifie);
    EXPECT_EQ(rib.NomFichierRib, "clarky");
}

TEST(RemetVue, LeavesTheZoom) {
    RibModel rib;
    rib.Zoom = 2;
    rib.DecalX = 5;
    rib.DecalY = -5;
    rib.ModeEpCourb = true;
    rib.ModeCompare = true;
    RemetVue(rib);
    EXPECT_EQ(rib.Zoom, 2.0F);
    EXPECT_EQ(rib.DecalX, 0);
    EXPECT_EQ(rib.DecalY, 0);
    EXPECT_FALSE(rib.ModeEpCourb);
    EXPECT_FALSE(rib.ModeCompare);
}

} // namespace
} // namespace loftwing
