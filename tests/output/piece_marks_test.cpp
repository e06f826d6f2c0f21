#include "output/piece_fixture.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace loftwing {
namespace {

class PieceMarks : public PieceTest {
  protected:
    /// The stretches of vertical marks at `x`, from the lowest.
    std::vector<std::pair<double, double>> Verticales(const Piece &piece, GenreMarque genre,
                                                      double x) const {
        std::vector<std::pair<double, double>> stretches;
        for (const TraitMarque &mark : Traits(piece, genre)) {
            const BoitePiece box = Autour(mark.points);
            if (box.bas_gauche.x > x - 1e-6 && box.haut_droite.x < x + 1e-6) {
                stretches.emplace_back(box.bas_gauche.y, box.haut_droite.y);
            }
        }
        std::sort(stretches.begin(), stretches.end());
        return stretches;
    }
    static void Expect(const std::vector<std::pair<double, double>> &found,
                       const std::vector<std::pair<double, double>> &wanted) {
        ASSERT_EQ(found.size(), wanted.size());
        for (std::size_t i = 0; i < found.size(); ++i) {
            EXPECT_NEAR(found[i].first, wanted[i].first, 1e-3);
            EXPECT_NEAR(found[i].second, wanted[i].second, 1e-3);
        }
    }
    /// Whether the words lie in the wood with nothing cut out under them, by points.
    static bool SurBois(const Piece &piece, const TexteMarque &text, double letters) {
        for (int i = 0; i <= 200; ++i) {
            for (int j = 0; j <= 20; ++j) {
                const PointMm at{text.place.x + letters * text.hauteur * i / 200,
                                 text.place.y - 0.3 * text.hauteur + 1.3 * text.hauteur * j / 20};
                const PartiePiece &part = piece.parties.at(0);
                bool wood = Contient({part.dehors}, at) && !Contient(part.dedans, at);
                for (const CerclePiece &circle : part.cercles) {
                    wood = wood && std::hypot(at.x - circle.centre.x, at.y - circle.centre.y) >
                                       circle.rayon;
                }
                if (!wood) {
                    return false;
                }
            }
        }
        return true;
    }
};

TEST_F(PieceMarks, TheReferenceLineLeavesHolesOut) {
    Hole("50", 10);
    Hole("80", 4, 6);
    const auto marks = Traits(Nervure(), GenreMarque::reference);
    std::vector<std::pair<double, double>> runs;
    for (const TraitMarque &mark : marks) {
        EXPECT_EQ(mark.points.front().y, 0);
        runs.emplace_back(mark.points.front().x, mark.points.back().x);
    }
    Expect(runs, {{0, 45}, {55, 78}, {82, 100}});
    demande.reference = false;
    EXPECT_TRUE(Traits(Nervure(), GenreMarque::reference).empty());
}

TEST_F(PieceMarks, TheReferenceLineLeavesOutWhatIsNoWood) {
    Contour({{1, 0.3}, {0, 0.3}, {0, 0.1}, {1, 0.1}});
    EXPECT_TRUE(Traits(Nervure(), GenreMarque::reference).empty());
}

TEST_F(PieceMarks, StationsDivideTheChordAndStayInTheWood) {
    rib.EpCoffrage = 1;
    rib.NbRep = 3;
    Hole("50", 10);
    const Piece piece = Nervure();
    Expect(Verticales(piece, GenreMarque::station, 25), {{-9, 9}});
    Expect(Verticales(piece, GenreMarque::station, 50), {{-9, -5}, {5, 9}});
    Expect(Verticales(piece, GenreMarque::station, 75), {{-9, 9}});
    EXPECT_EQ(Traits(piece, GenreMarque::station).size(), 4U); // both ends are outside
    demande.stations = false;
    EXPECT_TRUE(Traits(Nervure(), GenreMarque::station).empty());
}

TEST_F(PieceMarks, WithoutStationsThereAreNone) {
    EXPECT_TRUE(Traits(Nervure(), GenreMarque::station).empty());
}

TEST_F(PieceMarks, ALineAlongAnEdgeIsNone) {
    rib.NbRep = 1;
    EXPECT_EQ(Traits(Nervure(), GenreMarque::station).size(), 1U);
}

TEST_F(PieceMarks, EverySparHasItsAxis) {
    Spar("30", 4, 5, 1).OptLongExt = 2;
    Spar("60", 4, 5, 1); // no notch
    Spar("0", 4, 5, 1);
    Spar("80", 4, 5, 1);
    const Piece piece = Nervure();
    Expect(Verticales(piece, GenreMarque::axe, 30), {{-10, 5}});
    Expect(Verticales(piece, GenreMarque::axe, 60), {{-10, 10}});
    EXPECT_EQ(Traits(piece, GenreMarque::axe).size(), 2U);
    demande.axes = false;
    EXPECT_TRUE(Traits(Nervure(), GenreMarque::axe).empty());
}

TEST_F(PieceMarks, TheLabelNamesAirfoilAndChord) {
    demande.etiquette = true;
    const Piece piece = Nervure();
    ASSERT_EQ(piece.textes.size(), 1U);
    EXPECT_EQ(piece.textes[0].texte, "test 100 mm");
    EXPECT_NEAR(piece.textes[0].hauteur, 9 * 25.4 / 72 * 0.716, 1e-6); // Arial of 9 points
    EXPECT_TRUE(SurBois(piece, piece.textes[0], 11));
    demande.etiquette = false;
    EXPECT_TRUE(Nervure().textes.empty());
}

TEST_F(PieceMarks, TheInsertedTextIsTheLabelAndAWishGoesBefore) {
    demande.etiquette = true;
    rib.texte.InsTexte = "R 3";
    EXPECT_EQ(Nervure().textes.at(0).texte, "R 3");
    demande.texte = "Rib 7";
    EXPECT_EQ(Nervure().textes.at(0).texte, "Rib 7");
}

TEST_F(PieceMarks, TheLabelKeepsItsPlaceWhereThatIsWood) {
    demande.etiquette = true;
    rib.texte.InsTexte = "R 3";
    rib.texte.InsTextX = 40;
    rib.texte.InsTextY = 1;
    // The plot hangs it from 3 mm above; Arial's line is 0.905 sizes lower.
    const TexteMarque text = Nervure().textes.at(0);
    EXPECT_DOUBLE_EQ(text.place.x, 40);
    EXPECT_NEAR(text.place.y, 4 - 0.905 * 9 * 25.4 / 72, 1e-6);
    Hole("42", 6);
    const Piece piece = Nervure();
    ASSERT_EQ(piece.textes.size(), 1U);
    EXPECT_TRUE(SurBois(piece, piece.textes[0], 3));
}

TEST_F(PieceMarks, TheLabelKeepsOffHolesAndSpars) {
    demande.etiquette = true;
    rib.EpCoffrage = 1;
    rib.texte.InsTexte = "eleven char";
    for (const char *place : {"15", "33", "51", "69", "87"}) {
        Hole(place, 12);
    }
    Spar("42", 3, 6, 1).OptLongExt = 1;
    const Piece piece = Nervure();
    ASSERT_EQ(piece.textes.size(), 1U);
    EXPECT_TRUE(SurBois(piece, piece.textes[0], 11));
    rib.AffHaut = true;
    const Piece turned = Nervure();
    ASSERT_EQ(turned.textes.size(), 1U);
    EXPECT_TRUE(SurBois(turned, turned.textes[0], 11));
}

TEST_F(PieceMarks, ALabelThatIsTooLongGetsSmallerOrIsLeftOut) {
    demande.etiquette = true;
    demande.texte = std::string(50, 'x'); // 50 letters of 2.27 mm are longer than the plank
    const Piece piece = Nervure();
    ASSERT_EQ(piece.textes.size(), 1U);
    EXPECT_LT(piece.textes[0].hauteur, 2);
    EXPECT_GE(piece.textes[0].hauteur, 1.5);
    EXPECT_TRUE(SurBois(piece, piece.textes[0], 50));
    demande.texte = std::string(70, 'x');
    EXPECT_TRUE(Nervure().textes.empty());
}

} // namespace
} // namespace loftwing
