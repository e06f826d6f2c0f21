// The tables of the list of parts.

#include "programme/liste_pieces_fixture.h"

namespace loftwing {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

TEST_F(ListePiecesTest, ARibHasItsPlaceFromThePanelsOwnRootAndItsWood) {
    aile.panneaux = {DeuxNervures(0)};
    const TableauPieces table = Table("Ribs");
    EXPECT_THAT(table.colonnes, ElementsAre("No.", "Distance (mm)", "Chord (mm)", "Thickness (mm)",
                                            "Area of wood (cm\u00B2)"));
    // 12.345 and 10.04 cm2 are 22.385: the sum isn't that of the rounded areas.
    EXPECT_THAT(table.rangees, ElementsAre(ElementsAre("7", "1.50", "200.00", "3.00", "12.3"),
                                           ElementsAre("8", "101.50", "180.13", "3.00", "10.0"),
                                           ElementsAre("Sum", "", "", "", "22.4")));
    EXPECT_EQ(table.sommes, 1U);
    EXPECT_THAT(table.nombre, testing::AllOf(SizeIs(5), Each(true)));

    PanneauAile outer = DeuxNervures(103);
    outer.nom = "tip";
    aile.panneaux.push_back(outer);
    EXPECT_EQ(Table("Panel 2: tip - Ribs").rangees.at(0).at(1), "1.50");
}

TEST_F(ListePiecesTest, AWeightWantsDensityAndThickness) {
    aile.panneaux = {DeuxNervures(0)};
    aile.panneaux[0].reglage.densite = 160;
    TableauPieces table = Table("Ribs");
    EXPECT_EQ(table.colonnes.back(), "Weight (g)");
    EXPECT_THAT(table.nombre, SizeIs(6));
    // 1234.5 mm2 x 3 mm x 160 kg/m3 = 0.59256 g, 1004 mm2 give 0.48192 g.
    EXPECT_EQ(table.rangees.at(0).back(), "0.6");
    EXPECT_EQ(table.rangees.at(1).back(), "0.5");
    EXPECT_EQ(table.rangees.at(2).back(), "1.1"); // 1.07448

    aile.panneaux[0].nervures[1].epaisseur = 0; // not known: no sum of the rest
    table = Table("Ribs");
    EXPECT_EQ(table.rangees.at(0).back(), "0.6");
    EXPECT_THAT(table.rangees.at(1), ElementsAre("8", "101.50", "180.13", "", "10.0", ""));
    EXPECT_EQ(table.rangees.at(2).back(), "");
    EXPECT_THAT(Table("Totals").rangees, SizeIs(2));

    aile.panneaux[0].nervures[0].epaisseur = 0;
    EXPECT_EQ(Table("Ribs").colonnes.back(), "Area of wood (cm\u00B2)");
}

TEST_F(ListePiecesTest, InchesAreDecimalAndWeightsOunces) {
    Unite = kUniteIn;
    aile.panneaux = {DeuxNervures(0)};
    aile.panneaux[0].reglage.densite = 1600;
    const TableauPieces table = Table("Ribs");
    EXPECT_THAT(table.colonnes, ElementsAre("No.", "Distance (in)", "Chord (in)", "Thickness (in)",
                                            "Area of wood (in\u00B2)", "Weight (oz)"));
    // 200 / 25.4 = 7.8740, 1234.5 / 645.16 = 1.9135, 5.9256 / 28.3495 = 0.2090
    EXPECT_THAT(table.rangees.at(0), ElementsAre("7", "0.059", "7.874", "0.118", "1.91", "0.21"));
}

TEST_F(ListePiecesTest, AStickHasItsNameItsRibsAndItsTrueLength) {
    aile.panneaux = {DeuxNervures(0)};
    BatonAile spar = Baton(GenreBaton::longeron, 300);
    spar.numero = 2;
    spar.dessus = true;
    spar.coupes = {{{5, 3}, {5, 3}}};
    spar.bouts[0].y = 60;
    spar.bouts[1].y = 100; // as long as the diagonal of 300 and 40
    BatonAile lower = Baton(GenreBaton::longeron, 300);
    lower.numero = 1;
    lower.a = 19;
    lower.coupes[1].hauteur = 1.504;
    aile.panneaux[0].batons = {spar, lower, Baton(GenreBaton::ba, 300), Baton(GenreBaton::bf, 300),
                               Baton(GenreBaton::carre, 300)};
    const TableauPieces table = Table("Sticks");
    EXPECT_THAT(table.colonnes, ElementsAre("Element", "From rib", "To rib", "True length (mm)",
                                            "Section (mm)", "Count"));
    EXPECT_THAT(table.nombre, ElementsAre(false, true, true, true, false, true));
    EXPECT_EQ(table.sommes, 0U);
    EXPECT_THAT(table.rangees,
                ElementsAre(ElementsAre("spar 2, upper surface", "7", "8", "302.7", "5 x 3", "1"),
                            ElementsAre("spar 1, lower surface", "7", "19", "300.0",
                                        "4 x 2 ... 4 x 1.5", "1"),
                            ElementsAre("leading edge stock", "7", "8", "300.0", "4 x 2", "1"),
                            ElementsAre("trailing edge stock", "7", "8", "300.0", "4 x 2", "1"),
                            ElementsAre("V-notch", "7", "8", "300.0", "4 x 2", "1")));
}

TEST_F(ListePiecesTest, ASectionIsWrittenAsItIsBought) {
    aile.panneaux = {DeuxNervures(0)};
    BatonAile spar = Baton(GenreBaton::longeron, 254);
    const auto section = [&] {
        aile.panneaux[0].batons = {spar};
        return Table("Sticks").rangees.at(0).at(4);
    };
    spar.coupes[1].largeur = 4.004; // nobody can see that
    EXPECT_EQ(section(), "4 x 2");
    spar.rond = true;
    EXPECT_EQ(section(), "\u00D8 4");
    spar.coupes[1].largeur = 3.25;
    EXPECT_EQ(section(), "\u00D8 4 ... \u00D8 3.25");
    Unite = kUniteIn;
    spar.rond = false;
    spar.coupes = {{{6.35, 2.38125F}, {5, 2.38125F}}};
    spar.bouts[1].x = 254;
    EXPECT_EQ(section(), "1/4 x 3/32 ... 0.197 x 3/32");
    EXPECT_EQ(Table("Sticks").rangees.at(0).at(3), "10.000");
}

TEST_F(ListePiecesTest, SheetingHasItsAreaAndTheRectangleToBuy) {
    aile.panneaux = {DeuxNervures(0)};
    aile.panneaux[0].coffrages = {{true, 1.5, 123456, {700, 182.04}, 180.26},
                                  {false, 1.5, 120000, {700.06, 178.5}, 176}};
    TableauPieces table = Table("Sheeting");
    EXPECT_THAT(table.colonnes,
                ElementsAre("Surface", "Thickness (mm)", "Developed area (cm\u00B2)",
                            "Rectangle (mm)", "Greatest arc (mm)"));
    EXPECT_THAT(table.nombre, ElementsAre(false, true, true, false, true));
    EXPECT_THAT(
        table.rangees,
        ElementsAre(ElementsAre("upper surface", "1.5", "1234.6", "700 x 182", "180.3"),
                    ElementsAre("lower surface", "1.5", "1200.0", "700.1 x 178.5", "176.0")));
    Unite = kUniteIn;
    table = Table("Sheeting");
    // 123456 / 645.16 = 191.357, 700 / 25.4 = 27.5591, 182.04 / 25.4 = 7.1669
    EXPECT_THAT(table.rangees.at(0),
                ElementsAre("upper surface", "0.059", "191.36", "27.559 x 7.167", "7.097"));
}

TEST_F(ListePiecesTest, SheetsOfStockSayHowMuchOfThemIsUsed) {
    aile.panneaux = {DeuxNervures(0)};
    EXPECT_THAT(Titres(), ElementsAre("Ribs", "Totals"));
    Planche whole{{100, 1000}, std::vector<PiecePlacee>(12), 60000, 1000};
    Planche last{{80.5, 1000}, std::vector<PiecePlacee>(1), 2012.5, 100};
    feuilles = {{whole, last}, 2};
    EXPECT_THAT(Titres(), ElementsAre("Ribs", "Sheets of stock: Both wings", "Totals"));
    const TableauPieces table = Table("Sheets of stock: Both wings");
    EXPECT_THAT(table.colonnes, ElementsAre("Sheet", "Size (mm)", "Pieces", "Used (%)"));
    // In all 62012.5 of 100000 + 8050 mm2: 57.392 %.
    EXPECT_THAT(table.rangees, ElementsAre(ElementsAre("1", "100 x 1000", "12", "60.0"),
                                           ElementsAre("2", "80.5 x 1000", "1", "25.0"),
                                           ElementsAre("Sum", "", "13", "57.4")));
    EXPECT_EQ(table.sommes, 1U);
    feuilles.ailes = 1;
    EXPECT_EQ(Titres().at(1), "Sheets of stock: One wing");
    feuilles.ailes = 5;
    EXPECT_EQ(Titres().at(1), "Sheets of stock: 5 wings");
}

TEST_F(ListePiecesTest, TotalsAddUpWhatIsTheSameInAllPanels) {
    PanneauAile inner = DeuxNervures(0);
    inner.reglage.densite = 160;
    BatonAile round = Baton(GenreBaton::longeron, 50);
    round.rond = true;
    inner.batons = {Baton(GenreBaton::ba, 100.04), round};
    inner.coffrages = {{true, 1.5, 1004, {}, 0}, {false, 2, 3000, {}, 0}};
    PanneauAile outer = inner;
    outer.batons = {Baton(GenreBaton::bf, 200.04)};
    outer.coffrages = {{true, 1.5, 1004, {}, 0}};
    aile.panneaux = {inner, outer};
    const TableauPieces table = Table("Totals");
    EXPECT_THAT(table.colonnes, ElementsAre("Element", "Unit", "One wing", "Both wings"));
    EXPECT_THAT(table.nombre, ElementsAre(false, false, true, true));
    // 4 ribs of 2238.5 mm2 a pair, 1.07448 g a pair.
    EXPECT_THAT(table.rangees,
                ElementsAre(ElementsAre("Number of ribs", "", "4", "8"),
                            ElementsAre("Ribs: area", "cm\u00B2", "44.8", "89.5"),
                            ElementsAre("Ribs: weight", "g", "2.1", "4.3"),
                            ElementsAre("Sticks 4 x 2 mm", "mm", "300.1", "600.2"),
                            ElementsAre("Sticks \u00D8 4 mm", "mm", "50.0", "100.0"),
                            ElementsAre("Sheeting 1.5 mm", "cm\u00B2", "20.1", "40.2"),
                            ElementsAre("Sheeting 2 mm", "cm\u00B2", "30.0", "60.0")));
    aile.panneaux[1].reglage.densite = 0; // only one panel could be weighed
    EXPECT_EQ(Table("Totals").rangees.at(2).at(0), "Sticks 4 x 2 mm");
}

TEST_F(ListePiecesTest, EveryPanelOfSeveralStandsInItsTitles) {
    aile.panneaux = {DeuxNervures(0), DeuxNervures(103)};
    aile.panneaux[0].batons = {Baton(GenreBaton::ba, 100)};
    aile.panneaux[1].nom.clear();
    aile.panneaux[1].coffrages = {{true, 1.5, 1000, {}, 0}};
    EXPECT_THAT(Titres(), ElementsAre("Panel 1: root - Ribs", "Panel 1: root - Sticks",
                                      "Panel 2 - Ribs", "Panel 2 - Sheeting", "Totals"));
    aile.panneaux.pop_back();
    EXPECT_THAT(Titres(), ElementsAre("Ribs", "Sticks", "Totals"));
}

} // namespace
} // namespace loftwing
