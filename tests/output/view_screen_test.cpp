#include "output/view_screen.h"

#include "output/recording.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

/// A rib of 100 mm between 10 % above and 4 % below the line, at half size, scrolled.
class ViewScreen : public testing::Test {
  protected:
    ViewScreen() {
        RibModel &rib = world.rib;
        rib.corde = 100;
        rib.cordeAfich = "100";
        rib.ExtradosMaxi = 0.1;
        rib.IntradosMini = -0.04;
        rib.Zoom = 0.5F;
        rib.DecalX = -4;
        rib.DecalY = 2;
        for (const double x : {1.0, 0.0, 1.0}) {
            for (PointList *list : {&rib.ProfilX, &rib.ContourX, &compare.CompareX1}) {
                list->Append(x);
            }
            for (PointList *list : {&rib.ProfilY, &rib.ContourY, &compare.CompareY1}) {
                list->Append(0);
            }
        }
        rib.NbPoints = rib.NbContour = compare.CompareNb1 = compare.CompareNb2 = 3;
        compare.CompareX2 = compare.CompareX1;
        compare.CompareY2 = compare.CompareY1;
        compare.CompareNom1 = "one";
        compare.CompareNom2 = "two";
    }
    void ExpectPlace(float x, float y) {
        const PlaceEcran place = PlaceVue(world.rib, compare);
        EXPECT_EQ(place.x, x);
        EXPECT_EQ(place.y, y);
        EXPECT_EQ(place.zoom, 0.5);
        EXPECT_EQ(world.plot.CordeEchelle, 2835.0F);
        EXPECT_EQ(world.plot.OrigineX, x);
        EXPECT_EQ(world.plot.OrigineY, y);
        EXPECT_FALSE(device.Operations().empty());
    }

    RibWorld world;
    Comparaison compare;
    Recording device;
};

// Scrolled by -4 and 2 times half of 100 * 0.5.
constexpr float kX = 283.5F - 100.0F;
constexpr float kY = -50.0F + 283.5F + 850.5F;

TEST_F(ViewScreen, AComparisonIsPlacedLikeTheRib) {
    world.rib.ModeCompare = true;
    world.rib.TypeGabarit = kGabaritMousse; // no matter of a view's
    EXPECT_EQ(afficheCompare(world.On(device), compare), Affichage::dessine);
    ExpectPlace(kX, kY);
}

TEST_F(ViewScreen, TheSimplePlotIsPlacedLikeTheRib) {
    world.rib.ModeCouple = true;
    world.rib.TypeGabarit = kGabaritMousse;
    EXPECT_EQ(afficheCouple(world.On(device)), Affichage::dessine);
    ExpectPlace(kX, kY);
}

TEST_F(ViewScreen, TheInvertedSimplePlotHasItsLowerSurfaceOnTop) {
    world.rib.AffHaut = world.rib.ModeCouple = true;
    EXPECT_EQ(afficheCouple(world.On(device)), Affichage::dessine);
    ExpectPlace(kX, 113.4F + 850.5F); // 4 mm at half size, not scrolled
}

TEST_F(ViewScreen, TheNewSectionGetsRoomByStation300) {
    world.rib.NouvExtrados[300] = 0.15;
    world.rib.ModeEpCourb = true;
    EXPECT_EQ(afficheEpcourb(world.On(device)), Affichage::dessine);
    ExpectPlace(kX, static_cast<float>((0.15 - 0.1 + 0.1) * 100 * 56.7 * 0.5 + 850.5));
}

TEST_F(ViewScreen, ARibLiesWhereItsPlotFindsItsOrigin) {
    world.rib.TypeGabarit = kGabaritMousse;
    world.rib.bloc.HTbloc = 20; // half of which the line is lower
    world.rib.bloc.BAbloc = 30; // by which the plot itself moves the rib
    const PlaceEcran place = PlaceVue(world.rib, compare);
    EXPECT_EQ(place.x, kX);
    EXPECT_EQ(place.y, kY + 10 * 28.35F);
    EXPECT_EQ(place.zoom, 0.5);
}

TEST_F(ViewScreen, WithoutAnAirfoilOrASecondOneNothingIsDrawn) {
    compare.CompareNb2 = 0;
    EXPECT_EQ(afficheCompare(world.On(device), compare), Affichage::rien);
    world.rib.ProfilCharge = false;
    EXPECT_EQ(afficheEpcourb(world.On(device)), Affichage::rien);
    EXPECT_EQ(afficheCouple(world.On(device)), Affichage::rien);
    EXPECT_TRUE(device.Operations().empty());
}

TEST_F(ViewScreen, AScaleBeyond32BitsIsReportedUnderTheViewsLabel) {
    world.rib.corde = 3e38F;
    for (const char *label :
         {" Main/PrintRoutine2", " Main/PrintRoutineEpcourb", " Main/PrintRoutineCouple"}) {
        world.platform.Expect(BoxAnswer::ok);
        const Trace trace = world.On(device);
        const Affichage end = std::string(label).ends_with('2')     ? afficheCompare(trace, compare)
                              : std::string(label).ends_with("urb") ? afficheEpcourb(trace)
                                                                    : afficheCouple(trace);
        EXPECT_EQ(end, Affichage::echec) << label;
        EXPECT_EQ(world.platform.boxes.back().title, std::string("<Erreur 1>") + label);
    }
}

TEST_F(ViewScreen, WordsOfTheComparisonStandInTheirOrder) {
    const Saisie saisie{world.settings.Unite, world.messages};
    EXPECT_EQ(TitreCompare(compare, world.messages),
              "Loftwing<OutilCompare 5> one <OutilCompare 6> two");
    EXPECT_EQ(EtatCompare(world.rib, compare, saisie),
              "<MainTolbar 11> #1 :  one<MainTolbar 11> #2 :  two<MainTolbar 13> : 100 mm");
    EXPECT_EQ(EtatProfil1(world.rib, compare, saisie),
              "<MainTolbar 11> #1 :  one <MainTolbar 13>100 mm");
    EXPECT_EQ(EtatNom1(compare, world.messages), "<MainTolbar 11> #1 :  one");
}

TEST_F(ViewScreen, WordsOfTheNewSectionStandInTheirOrder) {
    world.rib.NouvEpaisseur = 0.125;
    world.rib.NouvCambrure = 0.02;
    EXPECT_EQ(EtatEpCourb(world.rib, {world.settings.Unite, world.messages}),
              "<MainTolbar 11> : test + test<FrmEpCourb 17> : 12.5% <FrmEpCourb 18> : 2% "
              "<MainTolbar 13> : 100 mm");
}

TEST_F(ViewScreen, AComparisonIsSavedUnderBothNames) {
    EXPECT_EQ(NomDuDessin(world.rib, compare), "test");
    world.rib.ModeCompare = true;
    EXPECT_EQ(NomDuDessin(world.rib, compare), "one - two");
}

TEST_F(ViewScreen, OnlyViewsWithoutAHeightOfTheirOwnScrollDown) {
    RibModel &rib = world.rib;
    EXPECT_TRUE(DefileEnHauteur(rib));
    rib.AffHaut = true;
    EXPECT_TRUE(DefileEnHauteur(rib));
    rib.ModeCouple = true;
    EXPECT_FALSE(DefileEnHauteur(rib));
    rib.AffHaut = false;
    EXPECT_TRUE(DefileEnHauteur(rib));
    rib.ModeEpCourb = true;
    EXPECT_FALSE(DefileEnHauteur(rib));
    rib.ModeCompare = true;
    EXPECT_TRUE(DefileEnHauteur(rib));
}

} // namespace
} // namespace loftwing
