// Both wings of panels by chance on sheets.

#include "programme/panel_chance_fixture.h"
#include "support/naive_sheets.h"

namespace loftwing {
namespace {

class PanelWings : public PanelOfChance {
  protected:
    ReglageImbrication wanted;
    void Nest(unsigned seed, int copies) {
        SCOPED_TRACE("panel by seed " + std::to_string(seed));
        ASSERT_NO_FATAL_FAILURE(Take(PanelByChance(seed)));
        DemandePanneau demand;
        demand.deux_ailes = copies > 1;
        demand.piece.saignee = 0.2;
        made = FaitPanneau(programme, panel, demand);
        ASSERT_THAT(made.refus, testing::IsEmpty());
        const auto pieces = PiecesDuPanneau(made, copies, copies > 1);
        const auto laid = Imbrique(pieces, wanted);
        const auto *sheets = std::get_if<Imbrication>(&laid);
        ASSERT_NE(sheets, nullptr);
        EXPECT_EQ(naive::SheetFault(*sheets, pieces, wanted), "");
        Wings(pieces, copies);
    }
    /// Every second copy is the other wing's: mirrored, and labelled so.
    static void Wings(const std::vector<PieceNommee> &pieces, int copies) {
        const std::size_t one = pieces.size() / static_cast<std::size_t>(copies);
        for (std::size_t i = one; i < 2 * one && copies > 1; ++i) {
            const Anneau &left = pieces[i - one].piece.parties[0].dehors;
            const Anneau &right = pieces[i].piece.parties[0].dehors;
            ASSERT_EQ(left.size(), right.size());
            double low = 0, high = 0;
            for (std::size_t k = 0; k < left.size(); ++k) {
                low = std::min(low, right[k].y);
                high = std::max(high, left[k].y);
            }
            EXPECT_DOUBLE_EQ(low, -high);
            EXPECT_THAT(pieces[i].piece.textes.back().texte, testing::HasSubstr(" R"));
        }
    }
};

TEST_F(PanelWings, PiecesOfBothWingsNeverMeetAndKeepGapAndMargin) {
    wanted.formats = {{100, 1000}, {160, 700}};
    wanted.demi_tour = true;
    for (const unsigned seed : {0U, 3U}) {
        Nest(seed, 2);
    }
    wanted.ecart = 0.7;
    wanted.marge = 8;
    wanted.demi_tour = false;
    Nest(1, 1);
}

} // namespace
} // namespace loftwing
