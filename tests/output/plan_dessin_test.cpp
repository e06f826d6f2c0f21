#include "output/plan_fixture.h"
#include "support/failures.h"

#include <gtest/gtest.h>

#include <limits>

namespace loftwing {
namespace {

TEST(PlanDrawing, LayersHaveTheirNames) {
    EXPECT_EQ(NomCouche(CouchePlan::contour), "OUTLINE");
    EXPECT_EQ(NomCouche(CouchePlan::trou), "HOLES");
    EXPECT_EQ(NomCouche(CouchePlan::cadre), "TITLE");
    EXPECT_EQ(FailureOf([] { NomCouche(static_cast<CouchePlan>(kCouchesPlan)); }), 9);
}

// Arial: digits 556, blank 278, m 833 thousandths of a size, which is capitals / 0.716.
TEST(PlanDrawing, TextsAreAsWideAsArialMakesThem) {
    EXPECT_NEAR(LargeurTextePlan("100 mm", 2.864), (3 * 556 + 278 + 2 * 833) * 4 / 1000.0, 1e-9);
    EXPECT_EQ(LargeurTextePlan("", 2.864), 0);
}

TEST(PlanDrawing, TextsHoldByTheirStartMiddleOrEnd) {
    TextePlan text{CouchePlan::cote, {150, 10}, 2.864, "100 mm", AppuiTexte::gauche};
    EXPECT_EQ(DebutTextePlan(text), (PointMm{150, 10}));
    text.appui = AppuiTexte::milieu;
    EXPECT_NEAR(DebutTextePlan(text).x, 150 - 7.224, 1e-9);
    text.appui = AppuiTexte::droite;
    EXPECT_NEAR(DebutTextePlan(text).x, 150 - 14.448, 1e-9);
    EXPECT_EQ(DebutTextePlan(text).y, 10);
}

TEST(PlanDrawing, ExtentTakesLinesAndLettersIn) {
    const BoitePiece box = EtenduePlan(PlanByHand());
    EXPECT_NEAR(box.bas_gauche.x, 0, 1e-9);
    EXPECT_NEAR(box.haut_droite.x, 400, 1e-9);
    EXPECT_NEAR(box.haut_droite.y, 10 + 0.905 * 4, 1e-9);
    EXPECT_NEAR(box.bas_gauche.y, -180 + 0.905 * 5 - 1.2 * 5, 1e-9);
    DessinPlan wide = PlanByHand();
    wide.textes[0].place.x = 395;
    EXPECT_NEAR(EtenduePlan(wide).haut_droite.x, 395 + 7.224, 1e-9);
}

TEST(PlanDrawing, NothingHasNoExtent) {
    DessinPlan plan;
    plan.traits = {{CouchePlan::contour, {}, false}};
    plan.textes = {{CouchePlan::cote, {50, 50}, 3, "", AppuiTexte::gauche},
                   {CouchePlan::cote, {50, 50}, 0, "flat", AppuiTexte::gauche}};
    EXPECT_TRUE(EstVide(plan));
    EXPECT_EQ(EtenduePlan(plan).haut_droite, (PointMm{0, 0}));
    EXPECT_FALSE(EstVide(PlanByHand()));
    EXPECT_EQ(EtenduePlan(OneLine({5, 6}, {7, 8})).bas_gauche, (PointMm{5, 6}));
}

TEST(PlanDrawing, WhatIsNotFiniteIsRefused) {
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(FailureOf([&] { EtenduePlan(OneLine({0, 0}, {inf, 0})); }), 6);
    EXPECT_EQ(FailureOf([&] { EtenduePlan(OneLine({0, nan}, {1, 0})); }), 6);
    DessinPlan plan = PlanByHand();
    plan.textes[0].hauteur = nan;
    EXPECT_EQ(FailureOf([&] { EtenduePlan(plan); }), 6);
}

TEST(PlanDrawing, DrawingsStandBelowEachOtherTenMillimetresApart) {
    const DessinPlan empty{"", {}, {}};
    DessinPlan second = OneLine({-20, 7}, {30, 3});
    second.titre = "second";
    second.textes = {{CouchePlan::face, {1, 2}, 0.716, "A", AppuiTexte::gauche}}; // 2.905 to 1.705
    const DessinPlan all = EnDessousPlan(
        {empty, OneLine({0, 0}, {50, -40}), second, empty, OneLine({5, 100}, {6, 90})});
    EXPECT_EQ(all.titre, "second");
    ASSERT_EQ(all.traits.size(), 3U);
    EXPECT_EQ(all.traits[0].points, (std::vector<PointMm>{{0, 0}, {50, -40}}));
    // 7 comes to lie at -50, and -20 under 0.
    EXPECT_EQ(all.traits[1].points, (std::vector<PointMm>{{0, -50}, {50, -54}}));
    ASSERT_EQ(all.textes.size(), 1U);
    EXPECT_EQ(all.textes[0].place, (PointMm{21, -55}));
    // Below that letters end at -55.295, so 100 comes to lie at -65.295.
    EXPECT_NEAR(all.traits[2].points[0].y, -65.295, 1e-9);
    EXPECT_NEAR(all.traits[2].points[1].y, -75.295, 1e-9);
    EXPECT_EQ(all.traits[2].points[0].x, 0);
}

} // namespace
} // namespace loftwing
