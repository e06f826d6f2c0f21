#include "programme/panel_steps.h"

#include "core/stations.h"
#include "programme/panel_fixture.h"
#include "utilities/tool_files.h"

#include <cmath>
#include <numbers>

namespace loftwing {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST_F(PanelSteps, ChordsAndNamesAreThoseOfTheSet) {
    const PanneauFait made = Made();
    ASSERT_EQ(made.nervures.size(), 5U);
    EXPECT_EQ(made.nervures[0].rib.corde, 240);
    EXPECT_EQ(made.nervures[1].rib.corde, 210);
    EXPECT_EQ(made.nervures[4].rib.corde, 120);
    EXPECT_EQ(made.nervures[0].rib.cordeAfich, "240");
    EXPECT_EQ(made.nervures[1].rib.NomProfil, "naca2412&naca0012R02");
    EXPECT_EQ(made.nervures[1].composants, "naca2412&naca0012R02.lfw");
    EXPECT_THAT(made.nervures[1].octets_profil, StartsWith("Rib 2 Chord :  210.00\r\n"));
}

TEST_F(PanelSteps, ValuesLieOnALineByTheRatio) {
    Set("8", panel.bouts[0].EpBAAfich, panel.bouts[0].EpBA);
    Set("5", panel.bouts[1].EpBAAfich, panel.bouts[1].EpBA);
    Set("20", panel.bouts[0].EpBFAfich, panel.bouts[0].EpBF);
    Set("10", panel.bouts[1].EpBFAfich, panel.bouts[1].EpBF);
    Spar(0, 0, "72", "6").DistLongAfich = "0";
    Spar(1, 0, "37", "4", "2");
    const auto ribs = Ribs();
    EXPECT_EQ(ribs[1].EpBAAfich, "7.25");
    EXPECT_EQ(ribs[3].EpBAAfich, "5.75");
    EXPECT_EQ(ribs[2].EpBFAfich, "15");
    EXPECT_EQ(ribs[1].longeron[0].PosLongAfich, "63.25"); // 72 - 35 / 4
    EXPECT_EQ(ribs[1].longeron[0].LargLongAfich, "5.5");
    EXPECT_EQ(ribs[3].longeron[0].HautLongAfich, "2.25");
    EXPECT_EQ(ribs[1].NbLongeron, 1);
    EXPECT_EQ(ribs[1].longeron[1].PosLongAfich, "0");
}

TEST_F(PanelSteps, AThirdIsWrittenToThreeDecimalsInMmAndFiveInInches) {
    panel.jeu.nombre = "2";
    Spar(0, 0, "72", "6");
    Spar(1, 0, "36", "5");
    const PanneauFait made = Made();
    ASSERT_EQ(made.nervures.size(), 4U);
    EXPECT_EQ(made.nervures[1].rib.longeron[0].LargLongAfich, "5.667");
    programme.settings.Unite = kUniteIn;
    Chord(0, "9");
    Chord(1, "6");
    Spar(0, 0, "3", "1/4", "1/8");
    Spar(1, 0, "2", "3/16", "1/8");
    for (PartiesRib &end : panel.bouts) {
        Set("1/16", end.EpCoffrageAfich, end.EpCoffrage);
    }
    const PanneauFait inches = Made();
    ASSERT_EQ(inches.nervures.size(), 4U);
    EXPECT_EQ(inches.nervures[0].rib.longeron[0].LargLongAfich, "1/4");
    EXPECT_EQ(inches.nervures[1].rib.longeron[0].LargLongAfich, "0.22917"); // 0.25 - 0.0625 / 3
    EXPECT_EQ(inches.nervures[1].rib.longeron[0].PosLongAfich, "2.66667");
    EXPECT_EQ(inches.nervures[1].rib.longeron[0].HautLongAfich, "0.125");
    EXPECT_EQ(inches.nervures[1].rib.corde, ToSingle(8 * 25.4));
}

TEST_F(PanelSteps, ASparIsStraightInThePlanWhateverItsTextsAre) {
    Spar(0, 0, "30%", "5"); // 72 mm
    Spar(1, 0, "50%", "5"); // 60 mm
    Spar(0, 1, "25%", "4").RefLong = 1;
    Spar(1, 1, "40", "4").RefLong = 1; // from 60 to 40 mm before the trailing edge
    const auto ribs = Ribs();
    EXPECT_EQ(ribs[0].longeron[0].PosLongAfich, "30%");
    EXPECT_EQ(ribs[1].longeron[0].PosLongAfich, "69");
    EXPECT_EQ(ribs[3].longeron[0].PosLongAfich, "63");
    EXPECT_EQ(ribs[1].longeron[1].PosLongAfich, "55");
    EXPECT_EQ(ribs[4].longeron[0].PosLongAfich, "50%");
}

TEST_F(PanelSteps, TheWashoutKeepsTheTrailingEdgeStraight) {
    panel.bouts[0].TypeGabarit = panel.bouts[1].TypeGabarit = kGabaritTalon;
    for (PartiesRib &end : panel.bouts) {
        end.talon.TalonIntraAfich = "40";
    }
    panel.bouts[1].vrillage = -3;
    const auto ribs = Ribs();
    const double drop = 120 * std::sin(-3 * std::numbers::pi / 180);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_NEAR(Wide(ribs[i].corde) * std::sin(EnRadians(Wide(ribs[i].vrillage))),
                    drop * static_cast<double>(i) / 4, 1e-4)
            << i;
    }
}

TEST_F(PanelSteps, AllFeetStandOnOneBoard) {
    panel.bouts[0].TypeGabarit = panel.bouts[1].TypeGabarit = kGabaritTalon;
    panel.bouts[0].talon.TalonIntraAfich = "30";
    panel.bouts[1].talon.TalonIntraAfich = "22";
    panel.bouts[0].talon.TalonBAAfich = "25%"; // 60 mm
    panel.bouts[1].talon.TalonBAAfich = "20";
    const auto ribs = Ribs();
    EXPECT_EQ(ribs[1].talon.TalonIntraAfich, "28");
    EXPECT_EQ(ribs[3].talon.TalonIntra, 24);
    EXPECT_EQ(ribs[1].talon.TalonBAAfich, "50");
}

TEST_F(PanelSteps, AnElementOfOneEndNeedsItsRibsAndKeepsItsValues) {
    Spar(0, 0, "30%", "6");
    EXPECT_THAT(Refused(),
                ElementsAre("spar1: it stands at one end only and needs the range of its ribs."));
    panel.portees[{GenreElement::longeron, 1}] = {1, 3};
    const auto ribs = Ribs();
    EXPECT_EQ(ribs[2].longeron[0].PosLongAfich, "30%");
    EXPECT_EQ(ribs[2].longeron[0].LargLongAfich, "6");
    EXPECT_EQ(ribs[3].NbLongeron, 0);
    EXPECT_EQ(ribs[3].longeron[0].LargLong, 0);
}

TEST_F(PanelSteps, SlotsCloseUpWhereAnElementDoesNotStand) {
    for (const std::size_t end : {0U, 1U}) {
        Spar(end, 0, "20%", "3");
        Spar(end, 1, "40%", "4");
        Spar(end, 2, "60%", "5");
        Hole(end, 0, "30%", "5");
        Hole(end, 1, "50%", "6");
    }
    panel.portees[{GenreElement::longeron, 2}] = {1, 2};
    panel.portees[{GenreElement::trou, 1}] = {3, 5};
    const auto ribs = Ribs();
    EXPECT_EQ(ribs[1].NbLongeron, 3);
    EXPECT_EQ(ribs[2].NbLongeron, 2);
    EXPECT_EQ(ribs[2].longeron[0].LargLongAfich, "3");
    EXPECT_EQ(ribs[2].longeron[1].LargLongAfich, "5");
    EXPECT_EQ(ribs[4].longeron[1].PosLongAfich, "60%");
    EXPECT_EQ(ribs[0].NbTrou, 1);
    EXPECT_EQ(ribs[0].trou[0].DiaTrouAfich, "6");
    EXPECT_EQ(ribs[2].NbTrou, 2);
    const std::vector<ElementPanneau> all = Elements(panel, Typing());
    EXPECT_EQ(SlotDe(panel, all, {GenreElement::longeron, 3}, 3), 1);
    EXPECT_EQ(SlotDe(panel, all, {GenreElement::longeron, 2}, 3), std::nullopt);
}

TEST_F(PanelSteps, TheSlotBeingEditedCountsAndAListMayBeFull) {
    for (const std::size_t end : {0U, 1U}) {
        for (int slot = 0; slot < 12; ++slot) { // the last one is the slot being edited
            Hole(end, slot, std::to_string(10 + 5 * slot) + "%", "2");
        }
    }
    const auto ribs = Ribs();
    EXPECT_EQ(ribs[1].NbTrou, 11);
    EXPECT_EQ(ribs[1].trou[11].DiaTrouAfich, "2");
    EXPECT_EQ(ribs[1].trou[12].DiaTrouAfich, "0");
}

TEST_F(PanelSteps, AnElementWithoutPlaceOrSizeStandsNowhere) {
    Spar(0, 0, "0", "6");
    Spar(0, 1, "60", "0");
    Spar(0, 2, "0%", "6");
    EXPECT_THAT(Elements(panel, Typing()), IsEmpty());
    EXPECT_EQ(Ribs()[0].NbLongeron, 0);
}

TEST_F(PanelSteps, DifferencesAreRefusedWithSlotAndBothValues) {
    Spar(0, 0, "60", "6");
    Spar(1, 0, "40", "6").TypeLong = 3;
    Hole(0, 0, "60", "6");
    Hole(1, 0, "40", "6").RefTrou = 1;
    panel.bouts[0].NbRep = 4;
    panel.bouts[1].AffHaut = true;
    EXPECT_THAT(
        Refused(),
        ElementsAre("station lines: 4 at the root, 0 at the tip",
                    "upside down: 0 at the root, 1 at the tip",
                    "spar 1, kind: 1 at the root, 3 at the tip",
                    "hole 1, edge that its place counts from: 0 at the root, 1 at the tip"));
}

TEST_F(PanelSteps, RangesThatCannotBeAreRefused) {
    Spar(0, 0, "60", "6");
    Spar(1, 0, "40", "6");
    panel.portees[{GenreElement::trou, 4}] = {1, 2};
    for (const PorteePanneau range :
         {PorteePanneau{0, 2}, PorteePanneau{3, 2}, PorteePanneau{2, 6}}) {
        panel.portees[{GenreElement::longeron, 1}] = range;
        EXPECT_THAT(Refused(),
                    ElementsAre("spar1: its range of ribs must go from a lower to a higher number "
                                "between 1 and 5.",
                                "hole4: no such element stands in the root or the tip rib."));
    }
}

TEST_F(PanelSteps, StocksAndHeelMayStandInSomeRibsOnly) {
    Set("8", panel.bouts[0].EpBAAfich, panel.bouts[0].EpBA);
    for (PartiesRib &end : panel.bouts) {
        Set("20", end.EpBFAfich, end.EpBF);
        end.TypeGabarit = kGabaritTalon;
        end.talon.TalonIntraAfich = "30";
    }
    EXPECT_EQ(Ribs()[2].EpBAAfich, "4"); // tapers to nothing
    panel.portees[{GenreElement::ba, 0}] = {1, 3};
    panel.portees[{GenreElement::bf, 0}] = {2, 5};
    panel.portees[{GenreElement::gabarit, 0}] = {1, 4};
    const auto ribs = Ribs();
    EXPECT_EQ(ribs[2].EpBAAfich, "8");
    EXPECT_EQ(ribs[3].EpBAAfich, "0");
    EXPECT_EQ(ribs[0].EpBFAfich, "0");
    EXPECT_EQ(ribs[4].EpBFAfich, "20");
    EXPECT_EQ(ribs[3].TypeGabarit, kGabaritTalon);
    EXPECT_EQ(ribs[4].TypeGabarit, kSansGabarit);
}

TEST_F(PanelSteps, AnAutomaticTextIsMadeAnewAndTheUsersStays) {
    for (PartiesRib &end : panel.bouts) {
        end.texte.InsTexte = end.NomProfil + " Chord : " + end.cordeAfich;
    }
    auto ribs = Ribs();
    EXPECT_EQ(ribs[0].texte.InsTexte, "naca2412&naca0012R01 Chord : 240");
    EXPECT_EQ(ribs[1].texte.InsTexte, "naca2412&naca0012R02 Chord :  210.00");
    for (PartiesRib &end : panel.bouts) {
        end.texte.InsTexte = "Anna's wing";
        end.texte.TexteUtilisateur = true;
    }
    ribs = Ribs();
    EXPECT_EQ(ribs[1].texte.InsTexte, "Anna's wing");
}

TEST_F(PanelSteps, EveryPieceHasItsNumber) {
    demand.premier = 7;
    const PanneauFait made = Made();
    ASSERT_EQ(made.nervures.size(), 5U);
    ASSERT_EQ(made.nervures[1].pieces.size(), 1U);
    ASSERT_EQ(made.nervures[1].pieces[0].textes.size(), 1U);
    EXPECT_EQ(made.nervures[1].pieces[0].textes[0].texte, "naca2412&naca0012R02  210.00 mm  8");
}

TEST_F(PanelSteps, APieceWithoutRoomForItsLabelHasItsNumber) {
    demand.deux_ailes = true;
    for (PartiesRib &end : panel.bouts) {
        end.texte.InsTexte = std::string(200, 'm'); // more than any rib is long
        end.texte.TexteUtilisateur = true;
    }
    const auto pieces = PiecesDuPanneau(Made(), 2, true);
    ASSERT_EQ(pieces.size(), 10U);
    const auto label = [&](std::size_t i) { return pieces[i].piece.textes.back().texte; };
    EXPECT_EQ(label(0), "1 L");
    EXPECT_EQ(label(4), "5 L");
    EXPECT_EQ(label(9), "5 R");
}

TEST_F(PanelSteps, LabelsOfBothWingsSayWhich) {
    demand.deux_ailes = true;
    for (PartiesRib &end : panel.bouts) {
        end.TypeGabarit = kGabaritMousse;
        Set("40", end.bloc.HTbasblocAfich, end.bloc.HTbasbloc);
    }
    const auto pieces = PiecesDuPanneau(Made(), 2, true);
    ASSERT_EQ(pieces.size(), 20U); // two templates a rib
    const auto label = [&](std::size_t i) { return pieces[i].piece.textes.back().texte; };
    EXPECT_EQ(label(1), "naca2412&naca0012R01 240 mm  1 L, Lower template");
    EXPECT_EQ(label(11), "naca2412&naca0012R01 240 mm  1 R, Lower template");
    for (PartiesRib &end : panel.bouts) {
        end.TypeGabarit = kSansGabarit;
    }
    const auto ribs = PiecesDuPanneau(Made(), 2, true);
    ASSERT_EQ(ribs.size(), 10U);
    EXPECT_EQ(ribs[5].piece.textes.back().texte, "naca2412&naca0012R01 240 mm  1 R");
}

TEST_F(PanelSteps, SheetingThatDiffersIsTold) {
    Set("2", panel.bouts[0].EpCoffrageAfich, panel.bouts[0].EpCoffrage);
    const PanneauFait made = Made();
    EXPECT_THAT(Lines(made.avis), ElementsAre(HasSubstr("2 at the root, 1.5 at the tip")));
    EXPECT_THAT(made.refus, IsEmpty());
    EXPECT_EQ(made.nervures.at(2).rib.EpCoffrageAfich, "1.75");
}

// Thickness 12 % at both ends, camber height 2 % at 40 % of the root only: the spar at 40 % stands
// at camber(r) chord(r) = 0.02 (1 - r) (240 - 120 r) beside a straight line, at most 0.02 * 120
// / 4.
TEST_F(PanelSteps, TheBowOfASparIsMeasuredFromTheLineBetweenItsEnds) {
    Spar(0, 0, "40%", "4");
    Spar(1, 0, "40%", "4");
    const PanneauFait made = Made();
    ASSERT_EQ(made.fleches.size(), 1U);
    EXPECT_TRUE(made.fleches[0].dessus);
    EXPECT_NEAR(made.fleches[0].mm, 0.02 * 120 / 4, 0.02);
    EXPECT_EQ(made.fleches[0].nervure, 3);
    demand.premier = 11;
    EXPECT_EQ(Made().fleches.at(0).nervure, 13);
    EXPECT_THAT(Lines(made.avis),
                Contains(StartsWith("spar 1 bows by at most 0.6 mm, in the upper")));
    panel.portees[{GenreElement::longeron, 1}] = {1, 2}; // two ribs are always on a line
    EXPECT_EQ(Made().fleches.at(0).mm, 0);
}

TEST_F(PanelSteps, WarningsAndRefusalsNameTheRib) {
    Hole(0, 0, "30%", "20");
    Hole(1, 0, "30%", "20"); // thicker than the airfoil at the tip
    const PanneauFait made = Made();
    EXPECT_THAT(Lines(made.avis), Contains("Rib 5: Hole 1 leaves the wood and opens its outline."));
    EXPECT_THAT(made.refus, IsEmpty());
    for (PartiesRib &end : panel.bouts) {
        end.TypeGabarit = kGabaritTalon;
        end.talon.TalonIntraAfich = "0"; // a foot in the airfoil
        end.talon.TalonBAAfich = end.talon.TalonBFAfich = "20";
    }
    EXPECT_THAT(Refused(), Contains(StartsWith("Rib 1: No piece can be made: ")));
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(PanelSteps, WhatIsSaidKnowsItsRibAndItsElement) {
    demand.premier = 11;
    Hole(0, 0, "30%", "20");
    Hole(1, 0, "30%", "20"); // thicker than the airfoil at the tip
    const PanneauFait made = Made();
    ASSERT_FALSE(made.avis.empty());
    EXPECT_EQ(made.avis.back().nervure, 15);
    EXPECT_EQ(made.avis.back().element, std::nullopt);
    Spar(0, 3, "60", "6");
    const PanneauFait refused = Made();
    ASSERT_EQ(refused.refus.size(), 1U);
    EXPECT_EQ(refused.refus[0].nervure, 0);
    EXPECT_EQ(refused.refus[0].element, (ElementPanneau{GenreElement::longeron, 4}));
    EXPECT_THAT(refused.refus[0].texte, StartsWith("it stands at one end only"));
}

TEST_F(PanelSteps, APanelIsMadeRibByRibAndTheRibOfTheProgrammeStaysBetween) {
    panel.jeu.cordes = CordesDesBouts(panel, programme.settings.Unite);
    Rib().corde = 77;
    OuvragePanneau work(programme, panel, demand);
    EXPECT_EQ(work.Nombre(), 5);
    for (int done = 1; done <= 5; ++done) {
        EXPECT_FALSE(work.Fini());
        work.Avance();
        EXPECT_EQ(work.Faites(), done);
        EXPECT_EQ(Rib().corde, 77);
    }
    EXPECT_TRUE(work.Fini());
    EXPECT_EQ(work.Rend().nervures.size(), 5U);
    panel.bouts[1].AffHaut = true; // ends that disagree
    OuvragePanneau none(programme, panel, demand);
    EXPECT_TRUE(none.Fini());
    EXPECT_EQ(none.Rend().refus.size(), 1U);
}

TEST_F(PanelSteps, TheRibOfTheProgrammeStaysWhatItWas) {
    Rib().corde = 77;
    const std::string before = Rib().CheminProfil;
    Made();
    EXPECT_EQ(Rib().corde, 77);
    EXPECT_EQ(Rib().CheminProfil, before);
}

TEST_F(PanelSteps, WorkThatIsCancelledEnds) {
    panel.jeu.cordes = CordesDesBouts(panel, programme.settings.Unite);
    int told = 0;
    const PanneauFait made = FaitPanneau(programme, panel, demand, [&](int done, int total) {
        EXPECT_EQ(total, 5);
        told = done;
        return done < 2;
    });
    EXPECT_EQ(told, 2);
    EXPECT_EQ(made.nervures.size(), 2U);
}

TEST_F(PanelSteps, TheFilesAreAsTheSetMakesThemAndOpen) {
    Spar(0, 0, "72", "6");
    Spar(1, 0, "40", "4");
    const PanneauFait made = Made();
    const std::vector<std::string> files = FichiersDuPanneau(made);
    EXPECT_EQ(files.size(), 11U);
    EXPECT_EQ(EcritPanneau(made), files);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(folder.Bytes("sets/" + made.nervures[i].profil), made.nervures[i].octets_profil);
        EXPECT_EQ(folder.Bytes("sets/" + made.nervures[i].composants),
                  made.nervures[i].octets_composants);
    }
    EXPECT_THAT(folder.Bytes("sets/naca2412&naca0012_240_120_5.txt"), HasSubstr("Rib #03"));
}

TEST(PanelElements, WordsNameElements) {
    EXPECT_EQ(ElementNomme("spar2"), (ElementPanneau{GenreElement::longeron, 2}));
    EXPECT_EQ(ElementNomme("hole12"), (ElementPanneau{GenreElement::trou, 12}));
    EXPECT_EQ(ElementNomme("heel"), (ElementPanneau{GenreElement::gabarit, 0}));
    EXPECT_EQ(ElementNomme("te"), (ElementPanneau{GenreElement::bf, 0}));
    for (const char *word : {"", "spar", "spar0", "spar14", "spar2x", "heel1", "rib1"}) {
        EXPECT_EQ(ElementNomme(word), std::nullopt) << word;
    }
}

TEST(PanelElements, ComputedLengthsLoseZerosAtTheirEnd) {
    EXPECT_EQ(TexteFondu(5, std::string(kUniteMm)), "5");
    EXPECT_EQ(TexteFondu(5.0625, std::string(kUniteMm)), "5.062"); // halves to even
    EXPECT_EQ(TexteFondu(-0.0001, std::string(kUniteMm)), "0");
    EXPECT_EQ(TexteFondu(100.1, std::string(kUniteMm)), "100.1");
    EXPECT_EQ(TexteFondu(25.4 / 3, std::string(kUniteIn)), "0.33333");
}

} // namespace
} // namespace loftwing
