#include "programme/aile.h"

#include "core/stations.h"
#include "programme/developpe.h"
#include "programme/panel_fixture.h"

#include <cmath>

namespace loftwing {
namespace {

constexpr double kExact = 1e-9;
constexpr double kSingle = 1e-4; // what 32-bit lengths leave

/// Five ribs of 2 mm on 402 mm: middles at 1, 101, 201, 301 and 401.
class WingOfOnePanel : public PanelSteps {
  protected:
    WingOfOnePanel() {
        panel.jeu.epaisseurs = {"2"};
        place.longueur = 402;
    }

    ReglageAile place;
    Aile wing;

    std::optional<RefusAile> Add(int first = 1) {
        made_ = Made();
        EXPECT_TRUE(made_.refus.empty()) << LigneAvis(programme.messages, made_.refus.front());
        return AjoutePanneau(wing, {"one", panel, made_, first, place}, Typing());
    }
    const PanneauAile &Panel() {
        EXPECT_FALSE(Add());
        return wing.panneaux.front();
    }
    const PartiesRib &Rib(std::size_t i) const { return made_.nervures.at(i).rib; }

  private:
    PanneauFait made_;
};

TEST_F(WingOfOnePanel, RibsStandInEqualStepsBetweenTheOuterFaces) {
    const PanneauAile &made = Panel();
    ASSERT_EQ(made.nervures.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i) {
        const NervureAile &rib = made.nervures[i];
        EXPECT_EQ(rib.numero, static_cast<int>(i) + 1);
        EXPECT_NEAR(rib.x, 1 + 100.0 * static_cast<double>(i), kExact);
        EXPECT_NEAR(rib.epaisseur, 2, kExact);
        EXPECT_NEAR(rib.corde, 240 - 30.0 * static_cast<double>(i), kSingle);
        EXPECT_NEAR(rib.y, 0, kExact);
    }
    EXPECT_EQ(made.longueur, 402);
    // A chord goes on straight from the middles of the end ribs to their faces.
    EXPECT_NEAR(made.cordes[0], 240 + 120.0 / 400, kSingle);
    EXPECT_NEAR(made.cordes[1], 120 - 120.0 / 400, kSingle);
}

TEST_F(WingOfOnePanel, RibsWithGapsOfTheirOwnStandBehindEachOther) {
    panel.jeu.nombre = "";
    panel.jeu.ecarts = {"50", "70", "60"};
    panel.jeu.epaisseurs = {"3", "2", "2", "4"};
    place.longueur = 0;
    const PanneauAile &made = Panel();
    ASSERT_EQ(made.nervures.size(), 4U);
    EXPECT_NEAR(made.nervures[0].x, 1.5, kExact);
    EXPECT_NEAR(made.nervures[1].x, 3 + 50 + 1, kExact);
    EXPECT_NEAR(made.nervures[2].x, 3 + 50 + 2 + 70 + 1, kExact);
    EXPECT_NEAR(made.nervures[3].x, 3 + 50 + 2 + 70 + 2 + 60 + 2, kExact);
    EXPECT_NEAR(made.longueur, 3 + 50 + 2 + 70 + 2 + 60 + 4, kExact);
}

TEST_F(WingOfOnePanel, EqualStepsWantALengthThatHoldsTheRibs) {
    place.longueur = 0;
    EXPECT_EQ(Add(), RefusAile::sans_longueur);
    place.longueur = 9.9;
    EXPECT_EQ(Add(), RefusAile::trop_epais);
    EXPECT_TRUE(wing.panneaux.empty());
    place.longueur = 10; // the ribs touch each other
    EXPECT_FALSE(Add());
}

TEST_F(WingOfOnePanel, SweepRunsFromFaceToFace) {
    place.recul = 40.2;
    const PanneauAile &made = Panel();
    EXPECT_NEAR(made.nervures.front().y, 0.1, kExact);
    EXPECT_NEAR(made.nervures.back().y, 40.1, kExact);
    EXPECT_NEAR(made.YFin(), 40.2, kExact);
}

TEST_F(WingOfOnePanel, ASparIsAStraightStickFromFaceToFace) {
    Spar(0, 0, "72", "6");
    Spar(1, 0, "36", "4");
    const PanneauAile &made = Panel();
    ASSERT_EQ(made.batons.size(), 1U);
    const BatonAile &spar = made.batons.front();
    EXPECT_EQ(spar.genre, GenreBaton::longeron);
    EXPECT_EQ(spar.numero, 1);
    EXPECT_TRUE(spar.dessus);
    EXPECT_EQ(spar.de, 1);
    EXPECT_EQ(spar.a, 5);
    EXPECT_NEAR(spar.bouts[0].x, 0, kExact);
    EXPECT_NEAR(spar.bouts[1].x, 402, kExact);
    EXPECT_NEAR(spar.bouts[0].y, 72 + 0.09, kSingle); // 36 mm on 400
    EXPECT_NEAR(spar.bouts[1].y, 36 - 0.09, kSingle);
    EXPECT_NEAR(spar.LargeurVue(0), 6 + 0.005, kSingle);
    EXPECT_NEAR(spar.LargeurVue(1), 4 - 0.005, kSingle);
}

TEST_F(WingOfOnePanel, TheTrueLengthCountsSweepTaperAndHeight) {
    // Both at 30 % of their chords: the stick lies under the same place of a surface that is half
    // as high at the tip, but for the two airfoils.
    Spar(0, 0, "72", "6");
    Spar(1, 0, "36", "6");
    place.recul = 60;
    const PanneauAile &made = Panel();
    const auto height = [](const PartiesRib &rib, double x) {
        return Hauteur(rib.TabExtrados, std::round(400 * (1 - x / Wide(rib.corde)))) *
               Wide(rib.corde);
    };
    const double rise = (height(Rib(4), 36) - height(Rib(0), 72)) * 402 / 400;
    const double aside = 60 - 36.0 * 402 / 400;
    EXPECT_LT(rise, -5);
    EXPECT_NEAR(made.batons.front().Longueur(),
                std::sqrt(402.0 * 402 + aside * aside + rise * rise), 0.001);
}

TEST_F(WingOfOnePanel, DihedralMakesNoStickLonger) {
    Spar(0, 0, "72", "6");
    Spar(1, 0, "36", "4");
    const double flat = Panel().batons.front().Longueur();
    wing = {};
    place.diedre = 12;
    EXPECT_EQ(Panel().batons.front().Longueur(), flat);
    EXPECT_NEAR(HauteurSous(wing, 0), 402 * std::sin(12 * std::acos(-1.0) / 180), 1e-9);
}

TEST_F(WingOfOnePanel, NotchesInBothSurfacesHoldTwoSticks) {
    for (const std::size_t end : {0U, 1U}) {
        Spar(end, 0, end == 0 ? "72" : "36", "6").OptLongInt = 2;
    }
    const PanneauAile &made = Panel();
    ASSERT_EQ(made.batons.size(), 2U);
    EXPECT_TRUE(made.batons[0].dessus);
    EXPECT_FALSE(made.batons[1].dessus);
    EXPECT_GT(made.batons[0].bouts[0].z, made.batons[1].bouts[0].z + 10);
    // The one counts from under the sheeting of 1.5 mm, the other from the contour.
    const double upper = Hauteur(Rib(0).TabExtrados, 400 * (1 - 0.3)) * 240;
    const double lower = Hauteur(Rib(0).TabIntrados, 400 * (1 - 0.3)) * 240;
    const double upper_tip = Hauteur(Rib(4).TabExtrados, 400 * (1 - 0.3)) * 120;
    const double at_middle = upper - 1.5 - 1.5;
    EXPECT_NEAR(made.batons[0].bouts[0].z, at_middle - (upper_tip - upper) / 400, 0.001);
    EXPECT_LT(made.batons[1].bouts[0].z, lower + 1.51);
}

TEST_F(WingOfOnePanel, ASparStandsInTheRibsOfItsRange) {
    Spar(0, 0, "72", "6");
    panel.portees[{GenreElement::longeron, 1}] = {2, 3};
    const PanneauAile &made = Panel();
    const BatonAile &spar = made.batons.front();
    EXPECT_EQ(spar.de, 2);
    EXPECT_EQ(spar.a, 3);
    EXPECT_NEAR(spar.bouts[0].x, 100, kExact);
    EXPECT_NEAR(spar.bouts[1].x, 202, kExact);
    EXPECT_NEAR(spar.bouts[0].y, 72, kSingle);
}

TEST_F(WingOfOnePanel, ASparInOneRibIsAsLongAsThatIsThick) {
    Spar(0, 0, "72", "6");
    panel.portees[{GenreElement::longeron, 1}] = {4, 4};
    place.recul = 402;
    const BatonAile &spar = Panel().batons.front();
    EXPECT_NEAR(spar.bouts[1].x - spar.bouts[0].x, 2, kExact);
    EXPECT_NEAR(spar.bouts[0].y, 300 + 72, kSingle);
    EXPECT_NEAR(spar.bouts[1].y, 302 + 72, kSingle);
}

TEST_F(WingOfOnePanel, StocksLieAlongTheEdges) {
    for (const std::size_t end : {0U, 1U}) {
        PartiesRib &bout = panel.bouts[end];
        Set(end == 0 ? "8" : "4", bout.EpBAAfich, bout.EpBA);
        Set(end == 0 ? "30" : "20", bout.EpBFAfich, bout.EpBF);
    }
    const PanneauAile &made = Panel();
    ASSERT_EQ(made.batons.size(), 2U);
    const BatonAile &nose = made.batons[0];
    EXPECT_EQ(nose.genre, GenreBaton::ba);
    EXPECT_NEAR(nose.bouts[0].y, 4 + 0.005, kSingle);
    EXPECT_NEAR(nose.LargeurVue(0), 8.01, kSingle);
    const double upper = HauteurEntre(Rib(0).TabExtrados, 400 * (1 - 8.0 / 240)) * 240;
    const double lower = HauteurEntre(Rib(0).TabIntrados, 400 * (1 - 8.0 / 240)) * 240;
    EXPECT_NEAR(nose.bouts[0].hauteur, upper - lower, 0.05);
    const BatonAile &tail = made.batons[1];
    EXPECT_EQ(tail.genre, GenreBaton::bf);
    // From the front of the stock to the trailing edge, at the root's face.
    EXPECT_NEAR(tail.bouts[0].y + tail.LargeurVue(0) / 2, 240 + 0.3, kSingle);
    EXPECT_NEAR(tail.LargeurVue(0), 30.025, kSingle);
    EXPECT_NEAR(tail.Longueur(), std::hypot(402, 402.0 / 400 * 115), 0.001);
}

TEST_F(WingOfOnePanel, AHoleHasItsCentreLineOverItsRibs) {
    Hole(0, 0, "100", "20");
    Hole(1, 0, "50", "10");
    const PanneauAile &made = Panel();
    ASSERT_EQ(made.trous.size(), 1U);
    const LigneAile &line = made.trous.front();
    EXPECT_EQ(line.numero, 1);
    ASSERT_EQ(line.points.size(), 7U);
    EXPECT_NEAR(line.points.front().x, 0, kExact);
    EXPECT_NEAR(line.points.front().y, 100 + 0.125, 0.001);
    EXPECT_NEAR(line.points[3].y, 75, 0.001);
    EXPECT_NEAR(line.points.back().y, 50 - 0.125, 0.001);
}

TEST_F(WingOfOnePanel, SheetingIsUnrolledFromStockToStock) {
    panel.bouts[1].cordeAfich = panel.bouts[0].cordeAfich;
    panel.bouts[1].corde = panel.bouts[0].corde;
    static_cast<PointsLus &>(panel.bouts[1]) = panel.bouts[0];
    for (PartiesRib &bout : panel.bouts) {
        Set("24", bout.EpBAAfich, bout.EpBA);
        Set("60", bout.EpBFAfich, bout.EpBF);
    }
    const PanneauAile &made = Panel();
    ASSERT_EQ(made.coffrages.size(), 2U);
    // A panel of one chord unrolls into a rectangle: its arc is counted station by station.
    double arc = 0;
    for (int k = 100; k < 360; ++k) {
        arc += 240 * std::hypot(1.0 / 400, Rib(0).TabExtrados.at(static_cast<std::size_t>(k) + 1) -
                                               Rib(0).TabExtrados.at(static_cast<std::size_t>(k)));
    }
    const CoffrageAile &upper = made.coffrages[0];
    EXPECT_TRUE(upper.dessus);
    EXPECT_NEAR(upper.arc_maxi, arc, 0.02);
    EXPECT_NEAR(upper.aire, arc * 402, arc * 402 * 1e-4);
    EXPECT_NEAR(upper.rectangle[0], 402, kExact);
    EXPECT_NEAR(upper.rectangle[1], arc, 0.02);
    EXPECT_NEAR(made.bords_coffrage[0].points.front().y, 24, kSingle);
    EXPECT_NEAR(made.bords_coffrage[1].points.back().y, 180, kSingle);
}

TEST_F(WingOfOnePanel, ThereIsNoSheetingWithoutThickness) {
    for (PartiesRib &bout : panel.bouts) {
        Set("0", bout.EpCoffrageAfich, bout.EpCoffrage);
    }
    const PanneauAile &made = Panel();
    EXPECT_TRUE(made.coffrages.empty());
    EXPECT_TRUE(made.bords_coffrage.empty());
}

TEST_F(WingOfOnePanel, TheWoodIsCountedWithoutTheKerf) {
    const double bare = Panel().nervures.front().aire;
    wing = {};
    demand.piece.saignee = 0.5;
    EXPECT_NEAR(Panel().nervures.front().aire, bare, 1e-9);
    EXPECT_GT(bare, 240 * 240 * 0.05);
}

TEST_F(WingOfOnePanel, TheNextPanelBeginsWhereTheLastOneEnds) {
    place.recul = 30;
    place.diedre = 3;
    ASSERT_FALSE(Add(4));
    EXPECT_EQ(NumeroSuivant(wing), 9);
    place.recul = -10;
    place.diedre = 7.5;
    ASSERT_FALSE(Add(NumeroSuivant(wing)));
    const PanneauAile &outer = wing.panneaux.back();
    EXPECT_NEAR(outer.x, 402, kExact);
    EXPECT_NEAR(outer.y, 30, kExact);
    EXPECT_NEAR(outer.Fin(), 804, kExact);
    EXPECT_NEAR(outer.YFin(), 20, kExact);
    EXPECT_EQ(outer.nervures.front().numero, 9);
    EXPECT_NEAR(outer.nervures.front().x, 403, kExact);
    EXPECT_NEAR(outer.nervures.front().y, 30 - 10.0 / 402, kExact);
    EXPECT_NEAR(AngleDeJoint(wing, 1), 4.5, kExact);
    EXPECT_NEAR(HauteurSous(wing, 1), 402 * (std::sin(EnRadians(3)) + std::sin(EnRadians(7.5))),
                kExact);
}

TEST(Unrolling, AFlatStripHasItsOwnArea) {
    const CourseCoffrage root = {{0, 0, 0}, {0, 30, 40}};
    const CourseCoffrage tip = {{100, 0, 0}, {100, 30, 40}};
    EXPECT_NEAR(LongueurDe(root), 50, kExact);
    EXPECT_NEAR(AireReglee(root, tip), 5000, 1e-6);
    EXPECT_EQ(AireReglee(root, {}), 0);
}

TEST(Unrolling, TheSmallestRectangleLiesAlongOneOfTheWays) {
    // A strip of 10 by 100 that leans by 45 degrees.
    const double s = std::sqrt(0.5);
    const std::vector<PointMm> strip = {
        {0, 0}, {100 * s, 100 * s}, {110 * s, 90 * s}, {10 * s, -10 * s}};
    const auto rectangle = RectangleAutour(strip, {{1, 0}, {1, 1}, {0, 0}});
    EXPECT_NEAR(rectangle[0], 100, kExact);
    EXPECT_NEAR(rectangle[1], 10, kExact);
    EXPECT_EQ(RectangleAutour({}, {{1, 0}})[0], 0);
}

} // namespace
} // namespace loftwing
