#include "output/cut_forms.h"

#include "output/styles.h"
#include "output/written_ring.h"
#include "support/hand_pieces.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

Piece Carre(double bas, double haut) {
    Piece piece;
    piece.parties = {{{{0, bas}, {10, bas}, {10, haut}, {0, haut}}, {}, {}}};
    return piece;
}

TEST(CutForms, TheExtentHoldsOutlinesMarksAndTexts) {
    Piece piece = Carre(-3, 4);
    BoitePiece box = EtendueDe({piece});
    EXPECT_EQ(box.bas_gauche, (PointMm{0, -3}));
    EXPECT_EQ(box.haut_droite, (PointMm{10, 4}));
    piece.traits = {{GenreMarque::axe, {{5, -6}, {5, 2}}}};
    // Two letters M of 0.833 sizes each; capitals of 0.716 mm belong to a size of 1 mm.
    piece.textes = {{GenreMarque::etiquette, {9, 4}, 0.716, "MM"}};
    box = EtendueDe({piece});
    EXPECT_EQ(box.bas_gauche, (PointMm{0, -6}));
    EXPECT_NEAR(box.haut_droite.x, 9 + 2 * 0.833, 0.001);
    EXPECT_NEAR(box.haut_droite.y, 4.716, 1e-9);
    EXPECT_EQ(EtendueDe({}).haut_droite, (PointMm{0, 0}));
}

TEST(CutForms, FurtherPiecesLieBelowWithAGapOfFiveMillimetres) {
    Piece lower = Carre(-1, 2);
    lower.parties[0].dedans = {{{1, 0}, {1, 1}, {2, 1}}};
    lower.parties[0].cercles = {{{5, 0.5}, 0.25}};
    lower.traits = {{GenreMarque::reference, {{0, 0}, {10, 0}}}};
    lower.textes = {{GenreMarque::etiquette, {3, 0}, 1, "a"}};
    const auto pieces = EnDessous({Carre(-3, 4), lower, Carre(0, 1)});
    EXPECT_EQ(pieces[0].parties[0].dehors, Carre(-3, 4).parties[0].dehors);
    // From 2 down to 5 below -3.
    EXPECT_EQ(pieces[1].parties[0].dehors, Carre(-11, -8).parties[0].dehors);
    EXPECT_EQ(pieces[1].parties[0].dedans[0], (Anneau{{1, -10}, {1, -9}, {2, -9}}));
    EXPECT_EQ(pieces[1].parties[0].cercles[0].centre, (PointMm{5, -9.5}));
    EXPECT_EQ(pieces[1].traits[0].points[1], (PointMm{10, -10}));
    EXPECT_EQ(pieces[1].textes[0].place, (PointMm{3, -10}));
    EXPECT_EQ(pieces[2].parties[0].dehors, Carre(-17, -16).parties[0].dehors);
}

TEST(CutForms, ColoursAreThoseOfTheElements) {
    AppSettings settings;
    ValeursDefautTraits(settings);
    settings.TraitDe(Element::profil).couleur = 2;
    settings.TraitDe(Element::bloc).couleur = 1;
    const CouleursDecoupe colours = CouleursDe(settings);
    EXPECT_EQ(colours.coupe, 0x008000U);
    EXPECT_EQ(colours.De(GenreMarque::talon), 0x000080U);
    EXPECT_EQ(colours.De(GenreMarque::reference), CouleurDe(settings, Element::axe));
    EXPECT_EQ(colours.De(GenreMarque::axe), CouleurDe(settings, Element::axe));
    EXPECT_EQ(colours.De(GenreMarque::station), CouleurDe(settings, Element::rep));
    EXPECT_EQ(colours.De(GenreMarque::etiquette), CouleurDe(settings, Element::rep));
}

TEST(CutForms, APointThatIsWrittenLikeTheOneBeforeIsLeftOut) {
    const PointEcrit a{"0", "0"};
    const PointEcrit b{"1", "0"};
    const PointEcrit c{"1", "1"};
    using Points = std::vector<PointEcrit>;
    EXPECT_EQ(SansRepetition({a, a, b, c, c, a, a}), (Points{a, b, c}));
    EXPECT_EQ(SansRepetition({a, b, a, c}), (Points{a, b, a, c}));
    EXPECT_EQ(SansRepetition({a, b, b, a}), Points{});
    EXPECT_EQ(SansRepetition({}), Points{});
}

} // namespace
} // namespace loftwing
