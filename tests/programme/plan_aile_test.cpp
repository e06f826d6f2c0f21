// The building plan of a wing that was put together by hand.

#include "programme/plan_aile.h"

#include "programme/plan_cotes.h"
#include "support/words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace loftwing {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

NervureAile RibAt(int number, double x, double y, double chord) {
    return {number, x, 2, y, chord, 12, -4, 2000};
}

/// Root at 0, three ribs, tip at 202; the leading edge goes back by 10 mm.
PanneauAile Inner() {
    PanneauAile panel;
    panel.nom = "inner";
    panel.longueur = 202;
    panel.reglage.longueur = 202;
    panel.reglage.recul = 10.1;
    panel.cordes = {150.25, 99.75};
    panel.nervures = {RibAt(1, 1, 0.05, 150), RibAt(2, 101, 5.05, 125), RibAt(3, 201, 10.05, 100)};
    return panel;
}

PanneauAile Outer() {
    PanneauAile panel = Inner();
    panel.nom = "outer";
    panel.x = 202;
    panel.y = 10.1;
    panel.reglage.recul = 0;
    panel.cordes = {100, 100};
    panel.nervures = {RibAt(4, 203, 10.1, 100), RibAt(5, 403, 10.1, 100)};
    return panel;
}

class WingPlan : public testing::Test {
  protected:
    WingPlan() {
        wing.nom = "wing";
        wing.panneaux = {Inner()};
    }

    Words words{"[Plan]\r\n11=Right\r\n12=Left\r\n13=Panel\r\n14=length\r\n15=chords\r\n16=ribs\r\n"
                "17=sweep\r\n18=dihedral\r\n19=scale\r\n20=joint\r\n21=Height under the tip:\r\n"
                "[FrmPrint]\r\n270=Measure\r\n"};
    std::string Unite{kUniteMm};
    Aile wing;

    DessinPlan Drawn(CoteAile side = CoteAile::droite, bool front = false) const {
        return DessinePlan(wing, side, front, words.messages, Unite);
    }
    static std::vector<TraitPlan> On(const DessinPlan &plan, CouchePlan layer) {
        std::vector<TraitPlan> lines;
        std::copy_if(plan.traits.begin(), plan.traits.end(), std::back_inserter(lines),
                     [&](const TraitPlan &line) { return line.couche == layer; });
        return lines;
    }
    static std::vector<std::string> TextsOn(const DessinPlan &plan, CouchePlan layer) {
        std::vector<std::string> texts;
        for (const TextePlan &text : plan.textes) {
            if (text.couche == layer) {
                texts.push_back(text.texte);
            }
        }
        return texts;
    }
    static void ExpectRun(const TraitPlan &line, const std::vector<PointMm> &points) {
        ASSERT_EQ(line.points.size(), points.size());
        for (std::size_t i = 0; i < points.size(); ++i) {
            EXPECT_NEAR(line.points[i].x, points[i].x, 1e-9) << i;
            EXPECT_NEAR(line.points[i].y, points[i].y, 1e-9) << i;
        }
    }
    /// No two texts lie over each other.
    static void ExpectReadable(const DessinPlan &plan) {
        for (std::size_t i = 0; i < plan.textes.size(); ++i) {
            for (std::size_t k = i + 1; k < plan.textes.size(); ++k) {
                const TextePlan &a = plan.textes[i];
                const TextePlan &b = plan.textes[k];
                const double left = DebutTextePlan(a).x;
                const double other = DebutTextePlan(b).x;
                const bool beside = left + LargeurTextePlan(a.texte, a.hauteur) < other ||
                                    other + LargeurTextePlan(b.texte, b.hauteur) < left;
                const bool apart =
                    a.place.y + a.hauteur < b.place.y || b.place.y + b.hauteur < a.place.y;
                EXPECT_TRUE(beside || apart) << a.texte << " and " << b.texte;
            }
        }
    }
};

TEST_F(WingPlan, ARibIsAsThickAsItsWoodAndAsLongAsItsChord) {
    const auto ribs = On(Drawn(), CouchePlan::nervure);
    ASSERT_EQ(ribs.size(), 3U);
    EXPECT_TRUE(ribs[1].ferme);
    ExpectRun(ribs[1], {{100, -5.05}, {102, -5.05}, {102, -130.05}, {100, -130.05}});
    EXPECT_THAT(TextsOn(Drawn(), CouchePlan::nervure), ElementsAre("1", "2", "3"));
}

TEST_F(WingPlan, NumbersOfRibsThatStandCloseAreInRows) {
    std::vector<NervureAile> &ribs = wing.panneaux[0].nervures;
    ribs.clear();
    for (int i = 0; i < 9; ++i) {
        ribs.push_back(RibAt(10 + i, 1 + 2.5 * i, 0, 150));
    }
    const DessinPlan plan = Drawn();
    EXPECT_EQ(TextsOn(plan, CouchePlan::nervure).size(), 9U);
    ExpectReadable(plan);
}

TEST_F(WingPlan, ARibWithoutThicknessIsALine) {
    wing.panneaux[0].nervures[1].epaisseur = 0;
    const auto ribs = On(Drawn(), CouchePlan::nervure);
    EXPECT_FALSE(ribs[1].ferme);
    ExpectRun(ribs[1], {{101, -5.05}, {101, -130.05}});
}

TEST_F(WingPlan, TheOutlineRunsFromFaceToFace) {
    const auto outline = On(Drawn(), CouchePlan::contour);
    ASSERT_EQ(outline.size(), 1U);
    EXPECT_TRUE(outline[0].ferme);
    ExpectRun(outline[0], {{0, 0}, {202, -10.1}, {202, -109.85}, {0, -150.25}});
}

TEST_F(WingPlan, TheOtherWingIsItsMirrorWithReadableTexts) {
    const DessinPlan right = Drawn();
    const DessinPlan left = Drawn(CoteAile::gauche);
    for (const CouchePlan layer : {CouchePlan::contour, CouchePlan::nervure}) {
        const auto here = On(right, layer);
        const auto there = On(left, layer);
        ASSERT_EQ(here.size(), there.size());
        for (std::size_t i = 0; i < here.size(); ++i) {
            std::vector<PointMm> mirrored = here[i].points;
            for (PointMm &point : mirrored) {
                point.x = -point.x;
            }
            ExpectRun(there[i], mirrored);
        }
    }
    EXPECT_THAT(TextsOn(right, CouchePlan::cadre), Contains("Right, scale 1:1, mm"));
    EXPECT_THAT(TextsOn(left, CouchePlan::cadre), Contains("Left, scale 1:1, mm"));
    ExpectReadable(right);
    ExpectReadable(left);
}

TEST_F(WingPlan, ASparIsTheStickThatItIs) {
    BatonAile spar;
    spar.bouts = {{{0, 50, 8, 6, 3}, {202, 40, 5, 4, 3}}};
    BatonAile lower = spar; // under it: one outline
    lower.dessus = false;
    wing.panneaux[0].batons = {spar, lower};
    const auto sticks = On(Drawn(), CouchePlan::longeron);
    ASSERT_EQ(sticks.size(), 1U);
    ExpectRun(sticks[0], {{0, -47}, {202, -38}, {202, -42}, {0, -53}});
}

TEST_F(WingPlan, ASquareOnItsCornerIsAsWideAsItsDiagonal) {
    BatonAile square;
    square.genre = GenreBaton::carre;
    square.sur_pointe = true;
    square.bouts = {{{0, 5, 0, 10, 10}, {202, 15, 0, 10, 10}}};
    wing.panneaux[0].batons = {square};
    const auto sticks = On(Drawn(), CouchePlan::baguette);
    ASSERT_EQ(sticks.size(), 1U);
    ExpectRun(sticks[0], {{0, 2.07}, {202, -7.93}, {202, -22.07}, {0, -12.07}});
}

TEST_F(WingPlan, HolesAndSheetingAreLinesOnLayersOfTheirOwn) {
    wing.panneaux[0].trous = {{1, {{0, 60}, {202, 50}}}};
    wing.panneaux[0].bords_coffrage = {{0, {{0, 8}, {202, 16}}}, {0, {{0, 140}, {202, 100}}}};
    ExpectRun(On(Drawn(), CouchePlan::trou).at(0), {{0, -60}, {202, -50}});
    EXPECT_EQ(On(Drawn(), CouchePlan::coffrage).size(), 2U);
}

TEST_F(WingPlan, DimensionsSayWhatTheirLinesAre) {
    const DessinPlan plan = Drawn();
    // From rib to rib, the panel, the chords of both ends, how far the tip lies back.
    EXPECT_THAT(TextsOn(plan, CouchePlan::cote),
                ElementsAre("100", "100", "202", "150", "100", "10.1"));
    const auto lines = On(plan, CouchePlan::cote);
    const auto has = [&](PointMm a, PointMm b) {
        return std::any_of(lines.begin(), lines.end(), [&](const TraitPlan &line) {
            return line.points.size() == 2 && std::abs(line.points[0].x - a.x) < 1e-9 &&
                   std::abs(line.points[1].x - b.x) < 1e-9 &&
                   std::abs(line.points[1].y - line.points[0].y - (b.y - a.y)) < 1e-9;
        });
    };
    EXPECT_TRUE(has({1, 0}, {101, 0}));
    EXPECT_TRUE(has({101, 0}, {201, 0}));
    EXPECT_TRUE(has({0, 0}, {202, 0}));
    EXPECT_TRUE(has({-12, 0}, {-12, -150}));
    EXPECT_TRUE(has({214, 0}, {214, -100}));
}

TEST_F(WingPlan, InInchesTheTextsAreInInches) {
    Unite = kUniteIn;
    wing.panneaux[0].nervures[1].x = 1 + 2.5 * 25.4;
    const DessinPlan plan = Drawn();
    EXPECT_EQ(TextsOn(plan, CouchePlan::cote).front(), "2.5");
    EXPECT_THAT(TextsOn(plan, CouchePlan::cadre), Contains("Measure : 4 in"));
}

TEST_F(WingPlan, ADimensionWithoutRoomIsWrittenSmallerOrLeftOut) {
    wing.panneaux[0].nervures = {RibAt(1, 1, 0, 100), RibAt(2, 7.11, 0, 100),
                                 RibAt(3, 9.22, 0, 100)};
    const DessinPlan plan = Drawn();
    const auto small = std::find_if(plan.textes.begin(), plan.textes.end(),
                                    [](const TextePlan &text) { return text.texte == "6.11"; });
    ASSERT_NE(small, plan.textes.end());
    EXPECT_LT(small->hauteur, 2.5);
    EXPECT_LE(LargeurTextePlan("6.11", small->hauteur), 6.11);
    EXPECT_THAT(TextsOn(plan, CouchePlan::cote), Not(Contains("2.11")));
}

TEST_F(WingPlan, TheTitleBlockHasACheckLineOfItsLength) {
    const auto frame = On(Drawn(), CouchePlan::cadre);
    double longest = 0;
    for (const TraitPlan &line : frame) {
        if (!line.ferme) {
            longest = std::max(longest, std::abs(line.points[1].x - line.points[0].x));
        }
    }
    EXPECT_NEAR(longest, 100, 1e-9);
    EXPECT_EQ(frame.size(), 1 + 11 + 1U); // the line, its ticks, the frame
    EXPECT_THAT(TextsOn(Drawn(), CouchePlan::cadre),
                ElementsAre("wing", "Right, scale 1:1, mm",
                            "length 202 mm, chords 150 / 100 mm, ribs 1 - 3, "
                            "sweep 10.1 mm",
                            "Measure : 100 mm"));
}

TEST_F(WingPlan, SeveralPanelsShowTheirJointsAndTheWhole) {
    wing.panneaux = {Inner(), Outer()};
    wing.panneaux[0].reglage.diedre = 2;
    wing.panneaux[1].reglage.diedre = 6.5;
    const DessinPlan plan = Drawn(CoteAile::droite, true);
    EXPECT_THAT(TextsOn(plan, CouchePlan::cote), Contains("404"));
    EXPECT_THAT(TextsOn(plan, CouchePlan::cote),
                Contains("joint 4.5\u00b0").Times(2)); // both views
    EXPECT_THAT(TextsOn(plan, CouchePlan::cadre), Contains(HasSubstr("Panel 2: outer")));
    EXPECT_THAT(TextsOn(plan, CouchePlan::cadre),
                Contains("Height under the tip: " +
                         LongueurPlan(202 * (std::sin(2 * std::acos(-1.0) / 180) +
                                             std::sin(6.5 * std::acos(-1.0) / 180)),
                                      Unite) +
                         " mm"));
    EXPECT_THAT(TextsOn(plan, CouchePlan::nervure), ElementsAre("1", "2", "3", "4", "5"));
    ExpectReadable(plan);
}

TEST_F(WingPlan, FromTheFrontAPanelStandsAtItsDihedral) {
    wing.panneaux = {Inner(), Outer()};
    wing.panneaux[0].reglage.diedre = 30;
    wing.panneaux[1].reglage.diedre = 0;
    const DessinPlan front = DessineFace(wing, CoteAile::droite, words.messages, Unite);
    const auto lines = On(front, CouchePlan::face);
    // Three ribs, both surfaces and the reference line, then the same of the second panel.
    ASSERT_EQ(lines.size(), 3 + 3 + 2 + 3U);
    const double c = std::sqrt(3.0) / 2;
    ExpectRun(lines[0],
              {{0 + 2, -4 * c}, {2 * c + 2, 1 - 4 * c}, {2 * c - 6, 1 + 12 * c}, {-6, 12 * c}});
    ExpectRun(lines[5], {{0, 0}, {202 * c, 101}});
    ExpectRun(lines.back(), {{202 * c, 101}, {202 * c + 202, 101}});
    EXPECT_THAT(TextsOn(front, CouchePlan::cote),
                ElementsAre("dihedral 30\u00b0", "joint -30\u00b0", "101"));
    const DessinPlan left = DessineFace(wing, CoteAile::gauche, words.messages, Unite);
    ExpectRun(On(left, CouchePlan::face).back(), {{-202 * c, 101}, {-202 * c - 202, 101}});
}

TEST_F(WingPlan, TheFrontIsBesideThePlanWhereThereIsDihedral) {
    EXPECT_TRUE(
        On(DessinsDeLAile(wing, false, words.messages, Unite).at(0), CouchePlan::face).empty());
    wing.panneaux[0].reglage.diedre = -3;
    const auto both = DessinsDeLAile(wing, true, words.messages, Unite);
    ASSERT_EQ(both.size(), 2U);
    EXPECT_FALSE(On(both[0], CouchePlan::face).empty());
    EXPECT_FALSE(On(both[1], CouchePlan::face).empty());
}

TEST_F(WingPlan, AWingWithoutPanelsIsEmpty) {
    wing.panneaux.clear();
    EXPECT_TRUE(Drawn(CoteAile::droite, true).traits.empty());
    EXPECT_TRUE(DessineFace(wing, CoteAile::droite, words.messages, Unite).traits.empty());
}

TEST(PlanTexts, AnAngleHasTwoDecimalsAtMost) {
    EXPECT_EQ(Degres(3), "3\u00b0");
    EXPECT_EQ(Degres(-4.126), "-4.13\u00b0");
    EXPECT_EQ(Degres(-0.001), "0\u00b0");
}

} // namespace
} // namespace loftwing
