// Real pieces on sheets, held against distances from edge to edge.

#include "support/naive_sheets.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class NestingOfRibs : public testing::Test {
  protected:
    RibWorld world;

    void Add(std::vector<PieceNommee> &pieces, float chord) {
        world.rib.corde = chord;
        world.rib.cordeAfich = std::to_string(chord);
        const auto made = FaitPieces(world.rib, {}, {world.settings.Unite, world.messages});
        const auto *all = std::get_if<std::vector<Piece>>(&made);
        ASSERT_NE(all, nullptr);
        for (const Piece &piece : *all) {
            pieces.push_back({std::to_string(chord), piece});
        }
    }

    /// A cambered rib with open notches, stocks and holes.
    void Laden() {
        TakeAirfoil(world, Naca(4412, 60));
        RibModel &rib = world.rib;
        rib.EpCoffrage = 1.5F;
        rib.EpBA = 5;
        rib.EpBF = 12;
        rib.NbLongeron = 1;
        for (int slot = 0; slot < 2; ++slot) {
            Longeron &spar = rib.longeron[slot];
            spar.PosLongAfich = slot == 0 ? "30%" : "62%";
            spar.LargLong = slot == 0 ? 5.0F : 20.0F; // the second one is a wide pocket
            spar.HautLong = 3;
            spar.OptLongExt = 1;
        }
    }

    static void Check(const std::vector<PieceNommee> &pieces, const ReglageImbrication &wanted) {
        const auto made = Imbrique(pieces, wanted);
        const auto *sheets = std::get_if<Imbrication>(&made);
        ASSERT_NE(sheets, nullptr);
        EXPECT_EQ(naive::SheetFault(*sheets, pieces, wanted), "");
    }
};

TEST_F(NestingOfRibs, GapAndMarginHoldFromEdgeToEdge) {
    Laden();
    std::vector<PieceNommee> pieces;
    for (int i = 0; i < 10; ++i) {
        Add(pieces, 220.0F - 9.0F * static_cast<float>(i));
    }
    for (const bool turn : {false, true}) {
        for (const double gap : {0.0, 2.0}) {
            ReglageImbrication wanted;
            wanted.formats = {{80, 500}};
            wanted.ecart = gap;
            wanted.demi_tour = turn;
            Check(pieces, wanted);
        }
    }
}

TEST_F(NestingOfRibs, HeelsTemplatesAndBothWingsKeepThemToo) {
    Laden();
    std::vector<PieceNommee> pieces;
    world.rib.TypeGabarit = kGabaritTalon;
    world.rib.talon.TalonIntra = 25;
    world.rib.talon.TalonBAAfich = "20%";
    world.rib.talon.TalonBFAfich = "45%";
    Add(pieces, 200);
    Add(pieces, 170);
    const std::size_t heels = pieces.size();
    std::vector<PieceNommee> wings = EnCopies(pieces, 4, true);
    ASSERT_EQ(wings.size(), 4 * heels);
    ReglageImbrication wanted;
    wanted.formats = {{120, 600}, {100, 300}};
    wanted.ecart = 1.3;
    wanted.marge = 5;
    wanted.demi_tour = true;
    Check(wings, wanted);
}

} // namespace
} // namespace loftwing
