#include "output/page_setup.h"

#include "support/failures.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

#include <array>

namespace loftwing {
namespace {

LongueurRib Chord(float corde) {
    return {corde, 0, false};
}

TEST(PageSetup, PaperTableHoldsTheTradesSizes) {
    struct Paper {
        const char *name;
        int code;
        double length;
    };
    const std::array<Paper, 8> papers = {{{" A4 210 x 297 mm", 9, 297},
                                          {" Letter 8 1/2 x 11 p", 1, 279.4},
                                          {" Fanfold 8 1/2 x 12 p", 40, 304.8},
                                          {" Legal 8 1/2 x 14 p", 5, 355.6},
                                          {" Executive 7 1/4 x 10 1/2 p", 7, 266.7},
                                          {" B4 257 x 364 mm", 12, 364},
                                          {" US B 11 x 17 p", 17, 431.8},
                                          {" A3 297 x 420 mm", 8, 420}}};
    const RibWorld world;
    for (int i = 0; i < 8; ++i) {
        const Paper &wanted = papers.at(static_cast<std::size_t>(i));
        const Papier &paper = Papiers().at(static_cast<std::size_t>(i));
        EXPECT_EQ(NomFeuille({}, i, world.language), wanted.name);
        EXPECT_EQ(paper.code, wanted.code);
        EXPECT_EQ(paper.tailleFeuille, wanted.length);
        EXPECT_LT(paper.largeur, paper.tailleFeuille);
    }
    EXPECT_EQ(Papiers()[8].code, 256);
    EXPECT_EQ(Papiers()[8].tailleFeuille, 0);
}

TEST(PageSetup, LastPaperHasTheNameWithTheBlankInItsKey) {
    const RibWorld world;
    EXPECT_EQ(NomFeuille({}, 8, world.language), "<FrmPrint tailleFeuille(8) >");
    EXPECT_EQ(FailureOf([&] { NomFeuille({}, 10, world.language); }), 9);
    EXPECT_EQ(FailureOf([&] { NomFeuille({}, -1, world.language); }), 9);
}

TEST(PageSetup, NewProgramHasItsPageInMm) {
    MiseEnPage page;
    page.MargeHaut = 3;
    page.NbPages = 7;
    page.PasPage = 9;
    ValeursDefautPage(page);
    EXPECT_EQ(page.MargeHaut, 10.0F);
    EXPECT_EQ(page.MargeHautAfich, "10");
    EXPECT_EQ(page.MargeBas, 15.0F);
    EXPECT_EQ(page.MargeBasAfich, "15");
    EXPECT_EQ(page.recouvrement, 20.0F);
    EXPECT_EQ(page.recouvrementAfich, "20");
    EXPECT_EQ(page.Ydprint, 50.0F);
    EXPECT_EQ(page.YdprintAfich, "50");
    EXPECT_EQ(page.NumIndex, 0);
    EXPECT_EQ(page.NbPages, 0);
    EXPECT_EQ(page.PasPage, 0.0F);
}

TEST(PageSetup, ReferenceLineIsPutBackInEitherUnit) {
    MiseEnPage page;
    page.Ydprint = 77;
    page.YdprintAfich = "77";
    ReplaceYdprint(page, " in");
    EXPECT_EQ(page.Ydprint, 50.8F);
    EXPECT_EQ(page.YdprintAfich, "2");
    ReplaceYdprint(page, " mm");
    EXPECT_EQ(page.Ydprint, 50.0F);
    EXPECT_EQ(page.YdprintAfich, "50");
}

TEST(PageSetup, LengthThatFillsTheSheetFits) {
    const MiseEnPage page;
    EXPECT_TRUE(TientSurUneFeuille(page, Chord(272)));
    EXPECT_FALSE(TientSurUneFeuille(page, Chord(272.01F)));
}

TEST(PageSetup, SheetsAreWholeStepsAndOneMore) {
    struct Case {
        float corde;
        int sheets;
    };
    // Steps of 252 mm; a length of whole steps has one sheet more than it fills.
    for (const Case &c : {Case{280, 2}, Case{503.9F, 2}, Case{504, 3}, Case{5000, 20}}) {
        MiseEnPage page;
        EXPECT_EQ(CalculPasPage(page, Chord(c.corde)), Feuilles::plusieurs);
        EXPECT_EQ(page.NbPages, c.sheets) << c.corde;
        EXPECT_EQ(page.PasPage, 252.0F);
    }
}

TEST(PageSetup, StepAsLongAsTheRibIsHalfAMillimetreLonger) {
    MiseEnPage page;
    EXPECT_EQ(CalculPasPage(page, Chord(252)), Feuilles::plusieurs);
    EXPECT_EQ(page.PasPage, 252.5F);
    EXPECT_EQ(page.NbPages, 1);
    // The length of a template that isn't in force counts too.
    EXPECT_EQ(CalculPasPage(page, {600, 252, false}), Feuilles::plusieurs);
    EXPECT_EQ(page.PasPage, 252.5F);
    EXPECT_EQ(page.NbPages, 3);
}

TEST(PageSetup, StepBackwardsIsRefusedAndChangesNothing) {
    MiseEnPage page;
    page.recouvrement = 273;
    page.NbPages = 4;
    page.PasPage = 99;
    EXPECT_EQ(CalculPasPage(page, Chord(300)), Feuilles::sans_pas);
    EXPECT_EQ(CalculPages(page, Chord(300)), Feuilles::sans_pas);
    EXPECT_EQ(page.NbPages, 4);
    EXPECT_EQ(page.PasPage, 99.0F);
}

TEST(PageSetup, StepOfNothingIsRefusedAndIsNoTemplateThatIsntThere) {
    MiseEnPage page;
    page.recouvrement = 272;
    EXPECT_EQ(CalculPages(page, Chord(300)), Feuilles::sans_pas);
    EXPECT_EQ(CalculPasPage(page, {300, 310, false}), Feuilles::sans_pas);
    EXPECT_EQ(CalculPasPage(page, Chord(300)), Feuilles::sans_pas);
    EXPECT_EQ(page.NbPages, 0);
}

TEST(PageSetup, MoreThan255SheetsAreAnOverflow) {
    MiseEnPage page;
    page.recouvrement = 271; // steps of 1 mm
    EXPECT_EQ(CalculPasPage(page, Chord(254.5F)), Feuilles::plusieurs);
    EXPECT_EQ(page.NbPages, 255);
    for (const float corde : {255.0F, 3e38F}) {
        EXPECT_EQ(FailureOf([&] { CalculPasPage(page, Chord(corde)); }), 6) << corde;
    }
}

TEST(PageSetup, DialogsCountSetsTheOverlapToNothingWhereOneSheetDoes) {
    MiseEnPage page;
    EXPECT_EQ(CalculPages(page, Chord(300)), Feuilles::plusieurs);
    EXPECT_EQ(page.NbPages, 2);
    EXPECT_EQ(CalculPages(page, Chord(200)), Feuilles::une);
    EXPECT_EQ(page.NbPages, 1);
    EXPECT_EQ(page.recouvrement, 0.0F);
    EXPECT_EQ(page.recouvrementAfich, "0");
    page.NumIndex = 8;
    EXPECT_EQ(CalculPages(page, Chord(300)), Feuilles::imprimante);
    EXPECT_EQ(page.NbPages, 1);
}

} // namespace
} // namespace loftwing
