#include "programme/piece_words.h"

#include "support/words.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

constexpr const char *kPieceWords =
    "[Piece]\n1=Falls into\n2=bits.\n3=Hole\n4=opens.\n5=Spar\n6=meets.\n7=Thin.\n8=No heel.\n"
    "10=At spar\n11=nothing.\n12=Foot.\n13=No wood.\n14=Foam.\n15=Up\n16=Down\n";

class PieceWords : public testing::Test {
  protected:
    std::string Warning(AvisPiece kind, int number = 0) const {
        return TexteAvis(words.messages, {kind, number});
    }
    std::string Refusal(RefusDePiece cause, int number = 0) const {
        return TexteRefus(words.messages, {cause, number});
    }

    Words words{kPieceWords};
};

TEST_F(PieceWords, AWarningNamesItsSparItsHoleOrItsParts) {
    EXPECT_EQ(Warning(AvisPiece::en_morceaux, 3), "Falls into 3 bits.");
    EXPECT_EQ(Warning(AvisPiece::trou_ouvert, 2), "Hole 2 opens.");
    EXPECT_EQ(Warning(AvisPiece::encoches, 12), "Spar 12 meets.");
    EXPECT_EQ(Warning(AvisPiece::bois_mince), "Thin.");
    EXPECT_EQ(Warning(AvisPiece::talon_vide), "No heel.");
}

TEST_F(PieceWords, ARefusalNamesItsSpar) {
    EXPECT_EQ(Refusal(RefusDePiece::longeron_sans_surface, 4), "At spar 4 nothing.");
    EXPECT_EQ(Refusal(RefusDePiece::talon_dans_profil), "Foot.");
    EXPECT_EQ(Refusal(RefusDePiece::sans_bois), "No wood.");
    EXPECT_EQ(Refusal(RefusDePiece::hors_bloc), "Foam.");
}

TEST_F(PieceWords, WarningsOfATemplateSayWhichOne) {
    Piece piece;
    piece.avis = {{AvisPiece::bois_mince, 0}, {AvisPiece::en_morceaux, 2}};
    using Texts = std::vector<std::string>;
    EXPECT_EQ(TextesAvis(words.messages, piece), (Texts{"Thin.", "Falls into 2 bits."}));
    piece.genre = GenrePiece::gabarit_extrados;
    EXPECT_EQ(TextesAvis(words.messages, piece), (Texts{"Up: Thin.", "Up: Falls into 2 bits."}));
    piece.genre = GenrePiece::gabarit_intrados;
    EXPECT_EQ(TextesAvis(words.messages, piece).front(), "Down: Thin.");
}

} // namespace
} // namespace loftwing
