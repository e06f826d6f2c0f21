// Whole wings by chance against a second computation: places, lengths, areas and weights.

#include "programme/wing_chance_fixture.h"
#include "support/naive_piece.h"
#include "support/one_locale.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace loftwing {
namespace {

constexpr unsigned kWings = 10;          // their numbers are the seeds; odd ones are in inches
constexpr double kRibPlace = 0.001;      // mm
constexpr double kStickPlace = 0.01;     // mm
constexpr double kStickWidth = 0.005;    // mm
constexpr double kStickLength = 0.02;    // mm
constexpr double kOutline = 0.05;        // mm, of heights that are only seen from the front
constexpr double kBoard = 0.1;           // mm
constexpr double kSheetedPart = 0.001;   // of the area
constexpr double kWoodPart = 0.0005;     // of the area
constexpr double kBowedBoard = 0.005;    // of the area
constexpr double kWidthOnCorner = 1.414; // of a square's side

class AileNaive : public WingOfChanceTest {
  protected:
    std::map<std::string, int> seen; ///< how often each thing was compared

    void Compare(unsigned seed) {
        ASSERT_NO_FATAL_FAILURE(MakeWing(seed));
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            SCOPED_TRACE("panel " + std::to_string(i + 1));
            Panel(wing.panneaux[i], wanted[i]);
            Wood(wing.panneaux[i].nervures, areas[i]);
            EXPECT_NEAR(HauteurSous(wing, i), wanted[i].height, kRibPlace);
            EXPECT_NEAR(AngleDeJoint(wing, i), wanted[i].joint, 1e-9);
        }
        seen["panel"] += static_cast<int>(wanted.size());
    }

    void Panel(const PanneauAile &got, const naive::WingPanel &want) {
        EXPECT_NEAR(got.x, want.x, kRibPlace);
        EXPECT_NEAR(got.y, want.y, kRibPlace);
        EXPECT_NEAR(got.longueur, want.length, kRibPlace);
        for (const std::size_t face : {0U, 1U}) {
            EXPECT_NEAR(got.cordes[face], want.chords[face], kRibPlace);
        }
        Ribs(got, want);
        Sticks(got, want);
        Lines(got.trous, want.holes, got);
        Edges(got, want);
        Sheeting(got, want);
    }

    static void Ribs(const PanneauAile &got, const naive::WingPanel &want) {
        ASSERT_EQ(got.nervures.size(), want.ribs.size());
        for (std::size_t i = 0; i < want.ribs.size(); ++i) {
            SCOPED_TRACE("rib " + std::to_string(i + 1));
            const NervureAile &rib = got.nervures[i];
            const naive::WingRib &one = want.ribs[i];
            EXPECT_EQ(rib.numero, one.number);
            EXPECT_NEAR(rib.x, one.x, kRibPlace);
            EXPECT_NEAR(rib.epaisseur, one.thickness, kRibPlace);
            EXPECT_NEAR(rib.y, one.y, kRibPlace);
            EXPECT_NEAR(rib.corde, one.chord, kRibPlace);
            EXPECT_NEAR(rib.haut, one.high, kOutline);
            EXPECT_NEAR(rib.bas, one.low, kOutline);
        }
    }

    static std::string NameOf(const BatonAile &stick) {
        switch (stick.genre) {
        case GenreBaton::longeron:
            return "spar" + std::to_string(stick.numero) + (stick.dessus ? " above" : " below");
        case GenreBaton::carre:
            return "notch";
        case GenreBaton::ba:
            return "le";
        case GenreBaton::bf:
            return "te";
        }
        return "";
    }

    void Sticks(const PanneauAile &got, const naive::WingPanel &want) {
        std::vector<std::string> names;
        for (const BatonAile &stick : got.batons) {
            names.push_back(NameOf(stick));
        }
        std::vector<std::string> expected;
        for (const naive::WingStick &stick : want.sticks) {
            expected.push_back(stick.name);
        }
        ASSERT_THAT(names, testing::UnorderedElementsAreArray(expected));
        for (const naive::WingStick &stick : want.sticks) {
            SCOPED_TRACE(stick.name);
            const auto at = std::find(names.begin(), names.end(), stick.name) - names.begin();
            Stick(got.batons[static_cast<std::size_t>(at)], stick);
        }
    }

    void Stick(const BatonAile &got, const naive::WingStick &want) {
        EXPECT_EQ(got.de, want.from);
        EXPECT_EQ(got.a, want.to);
        EXPECT_NEAR(got.Longueur(), want.length, kStickLength);
        EXPECT_EQ(got.rond, want.round);
        EXPECT_EQ(got.sur_pointe, want.name == "notch");
        for (const std::size_t end : {0U, 1U}) {
            SCOPED_TRACE(end == 0 ? "inner end" : "outer end");
            EXPECT_NEAR(got.bouts[end].x, want.ends[end].x, kStickPlace);
            EXPECT_NEAR(got.bouts[end].y, want.ends[end].y, kStickPlace);
            if (want.name != "le" && want.name != "te") { // stocks count as seen from above
                EXPECT_NEAR(got.bouts[end].z, want.ends[end].z, kStickPlace);
            }
            EXPECT_NEAR(got.bouts[end].largeur, want.ends[end].width, kStickWidth);
            EXPECT_NEAR(got.bouts[end].hauteur, want.ends[end].depth, kStickPlace);
            EXPECT_NEAR(got.LargeurVue(end),
                        want.ends[end].width * (want.name == "notch" ? kWidthOnCorner : 1),
                        kStickWidth);
        }
        seen[want.name.substr(0, want.name.find_first_of("0123456789"))] += 1;
        seen["round"] += want.round ? 1 : 0;
        seen["short"] += want.part_of_panel ? 1 : 0;
    }

    /// A line passes through every point over a middle and goes on to the faces.
    void Line(const LigneAile &got, const naive::WingLine &want, const PanneauAile &of) {
        ASSERT_EQ(got.points.size(), want.points.size() + 2);
        for (std::size_t i = 0; i < want.points.size(); ++i) {
            EXPECT_NEAR(got.points[i + 1].x, want.points[i].x, kStickPlace);
            EXPECT_NEAR(got.points[i + 1].y, want.points[i].y, kStickPlace);
        }
        const auto face = [&](const naive::WingPoint &point, double side) {
            const auto rib =
                std::find_if(of.nervures.begin(), of.nervures.end(), [&](const auto &one) {
                    return std::abs(one.x - point.x) < kStickPlace;
                });
            return rib == of.nervures.end() ? 0 : rib->x + side * rib->epaisseur / 2;
        };
        EXPECT_NEAR(got.points.front().x, face(want.points.front(), -1), kStickPlace);
        EXPECT_NEAR(got.points.back().x, face(want.points.back(), 1), kStickPlace);
        seen[want.name.substr(0, want.name.find_first_of("0123456789"))] += 1;
    }

    void Lines(const std::vector<LigneAile> &got, const std::vector<naive::WingLine> &want,
               const PanneauAile &of) {
        ASSERT_EQ(got.size(), want.size());
        for (const naive::WingLine &line : want) {
            SCOPED_TRACE(line.name);
            const auto same = std::find_if(got.begin(), got.end(), [&](const LigneAile &one) {
                return "hole" + std::to_string(one.numero) == line.name;
            });
            ASSERT_NE(same, got.end());
            Line(*same, line, of);
        }
    }

    void Edges(const PanneauAile &got, const naive::WingPanel &want) {
        ASSERT_EQ(got.bords_coffrage.size(), want.edges.size());
        for (std::size_t i = 0; i < want.edges.size(); ++i) {
            SCOPED_TRACE(want.edges[i].name);
            Line(got.bords_coffrage[i], want.edges[i], got);
        }
    }

    void Sheeting(const PanneauAile &got, const naive::WingPanel &want) {
        ASSERT_EQ(got.coffrages.size(), want.sheeting.size());
        for (std::size_t i = 0; i < want.sheeting.size(); ++i) {
            const CoffrageAile &sheet = got.coffrages[i];
            const naive::WingSheeting &one = want.sheeting[i];
            SCOPED_TRACE(i == 0 ? "sheeting above" : "sheeting below");
            EXPECT_EQ(sheet.dessus, i == 0);
            EXPECT_NEAR(sheet.aire, one.area, kSheetedPart * one.area);
            EXPECT_NEAR(sheet.arc_maxi, one.arc, kBoard);
            EXPECT_NEAR(sheet.epaisseur, one.thickness, kStickWidth);
            std::array<double, 2> board = sheet.rectangle;
            std::sort(board.rbegin(), board.rend());
            for (const std::size_t side : {0U, 1U}) {
                EXPECT_NEAR(board[side], one.board[side], kBoard);
            }
            seen["sheeting"] += 1;
            const double least = one.smallest[0] * one.smallest[1];
            EXPECT_NEAR(board[0] * board[1], least, kBowedBoard * least);
        }
    }

    static void Wood(const std::vector<NervureAile> &ribs, const std::vector<double> &own) {
        for (std::size_t i = 0; i < own.size(); ++i) {
            SCOPED_TRACE("wood of rib " + std::to_string(i + 1));
            EXPECT_NEAR(ribs[i].aire, own[i], kWoodPart * own[i]);
        }
    }
    /// Where the surface is the wood's own, it is also counted over the chord.
    void Mounted() override {
        const PartiesRib &root = made.nervures.front().rib;
        if (root.EpCoffrage > 0 || root.TypeGabarit != kSansGabarit) {
            return;
        }
        Rib().Partie<PartiesRib>() = root;
        const double counted = Counted();
        EXPECT_NEAR(wing.panneaux.back().nervures.front().aire, counted, kWoodPart * counted);
        seen["counted"] += 1;
    }
    double Counted() {
        constexpr double kColumn = 0.05; // mm
        // Its places are millimetres from the leading edge.
        for (Longeron &spar : Rib().longeron) {
            spar.PosLongAfich = naive::Decimals(Wide(spar.PosLong), 15, 6);
        }
        for (Trou &hole : Rib().trou) {
            hole.PosTrouAfich = naive::Decimals(Wide(hole.PosTrou), 15, 6);
        }
        Rib().talon.TalonBAAfich = naive::Decimals(Rib().talon.TalonBA, 15, 6);
        Rib().talon.TalonBFAfich = naive::Decimals(Rib().talon.TalonBF, 15, 6);
        const naive::NaivePiece second(Rib());
        double sum = 0;
        for (double x = -1 + kColumn / 2; x < Wide(Rib().corde) + 1; x += kColumn) {
            sum += second.WoodOver(x) * kColumn;
        }
        return sum;
    }
};

TEST_F(AileNaive, EverythingStandsWhereTheSecondComputationHasIt) {
    const unsigned wings = ManyInOneLocale(kWings);
    for (unsigned seed = 0; seed < wings; ++seed) {
        SCOPED_TRACE("wing by seed " + std::to_string(seed));
        Compare(seed);
    }
    if (wings == kWings) { // all of it came up
        for (const char *each : {"panel", "spar", "round", "short", "notch", "le", "te", "hole",
                                 "front", "sheeting", "counted"}) {
            EXPECT_GE(seen[each], 2) << each;
        }
    }
}

} // namespace
} // namespace loftwing
