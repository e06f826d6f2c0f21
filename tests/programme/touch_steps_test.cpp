#include "programme/touch_steps.h"

#include "output/recording.h"
#include "output/rib_plot.h"
#include "programme/file_steps.h"
#include "programme/undo_steps.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

constexpr SujetTrace kSpar{GenreSujet::longeron, 0};
constexpr SujetTrace kHole{GenreSujet::trou, 0};
constexpr SujetTrace kText{GenreSujet::texte, 0};

class TouchSteps : public StepsWorld {
  protected:
    TouchSteps() {
        OuvreFichier(programme, view, Sample("naca2412.dat")); // a chord of 200 mm
        Longeron &spar = Rib().longeron[0];
        spar.PosLongAfich = "60";
        spar.PosLong = 60;
        spar.LargLongAfich = "6";
        spar.LargLong = 6;
        spar.HautLongAfich = "3";
        spar.HautLong = 3;
        spar.OptLongExt = 1;
        Trou &hole = Rib().trou[0];
        hole.PosTrouAfich = "33%";
        hole.PosTrou = 66;
        hole.DiaTrouAfich = "8";
        hole.DiaTrou = 8;
    }

    Saisie Typing() { return programme.SaisieEnCours(); }
    std::string Spar(double x, PasDeTire pas = PasDeTire::entier) {
        PlaceSujet(Rib(), kSpar, {x, 0}, pas, Typing());
        return Rib().longeron[0].PosLongAfich;
    }
    std::string Hole(double x, double y, PasDeTire pas = PasDeTire::entier) {
        PlaceSujet(Rib(), kHole, {x, y}, pas, Typing());
        return Rib().trou[0].PosTrouAfich;
    }
    void Inches() { programme.settings.Unite = kUniteIn; }
};

TEST_F(TouchSteps, NamesAPartWithItsMeasuresAsTyped) {
    const auto said = [this](const SujetTrace &sujet) { return DitSujet(Rib(), sujet, Typing()); };
    EXPECT_EQ(said(kSpar), "spar 1: 60 mm from the leading edge, 6 x 3 mm");
    EXPECT_EQ(said(kHole), "hole 1: 33% (66 mm) from the leading edge, Ø 8 mm");
    PlaceSujet(Rib(), kHole, {66, 2}, PasDeTire::entier, Typing());
    EXPECT_EQ(said(kHole), "hole 1: 33% (66 mm) from the leading edge, Ø 8 mm, 2 mm above the "
                           "reference line");
    PlaceSujet(Rib(), kText, {50, 3}, PasDeTire::entier, Typing());
    EXPECT_EQ(said(kText), "text: 50 mm from the leading edge, 3 mm above the reference line");
    Rib().longeron[0].TypeLong = 2;
    Rib().longeron[0].RefLong = 1;
    EXPECT_EQ(said(kSpar), "spar 1: 60 mm from the trailing edge, Ø 6 mm");
    Rib().EpBAAfich = "5";
    EXPECT_EQ(said({GenreSujet::baguette_ba, 0}), "leading edge stock: 5 mm");
}

TEST_F(TouchSteps, ASparMovesByWholeMillimetresOrTenths) {
    EXPECT_EQ(Spar(71.4), "71");
    EXPECT_EQ(Rib().longeron[0].PosLong, 71);
    EXPECT_EQ(Spar(71.44, PasDeTire::fin), "71.4");
}

TEST_F(TouchSteps, ASparStaysOnTheChordWithItsWholeWidth) {
    EXPECT_EQ(Spar(-40), "3");
    EXPECT_EQ(Spar(500), "197");
    Rib().longeron[0].LargLong = 5; // half of it is no whole millimetre
    EXPECT_EQ(Spar(-40), "3");
    EXPECT_EQ(Spar(500), "197");
}

TEST_F(TouchSteps, APlaceFromTheTrailingEdgeStaysOne) {
    Rib().longeron[0].RefLong = 1;
    EXPECT_EQ(Spar(150.3), "50"); // 49.7 from there
    EXPECT_EQ(Rib().longeron[0].PosLong, 150);
}

TEST_F(TouchSteps, APercentageStaysOne) {
    EXPECT_EQ(Hole(71.2, 0), "35.5%"); // 71 of 200 mm
    EXPECT_EQ(Rib().trou[0].PosTrou, 71);
}

TEST_F(TouchSteps, InInchesItGoesByThirtySeconds) {
    Inches();
    EXPECT_EQ(Spar(2.5 * 25.4 + 0.9), "2.17/32"); // 0.9 mm are 1.13 of them
    EXPECT_EQ(Spar(2.5 * 25.4 + 0.3, PasDeTire::fin), "2.51");
}

TEST_F(TouchSteps, AHoleStaysBetweenTheSurfacesUnlessItIsCentred) {
    Hole(66, 500);
    const double top = 200 * Rib().TabExtrados[268]; // station of 66 mm
    EXPECT_LE(Rib().trou[0].DecalTrou + 4, top);
    EXPECT_GT(Rib().trou[0].DecalTrou + 4, top - 1);
    Rib().trou[0].ChkCentre = 1;
    const std::string before = Rib().trou[0].DecalTrouAfich;
    Hole(66, -500);
    EXPECT_EQ(Rib().trou[0].DecalTrouAfich, before);
}

TEST_F(TouchSteps, TheTextKeepsAPlace) {
    PlaceSujet(Rib(), kText, {-5, 0.2}, PasDeTire::entier, Typing());
    EXPECT_EQ(Rib().texte.InsTextXAfich, "1"); // at 0 and 0 it would not be drawn
    EXPECT_EQ(Rib().texte.InsTextYAfich, "0");
    PlaceSujet(Rib(), kText, {49.6, 3.4}, PasDeTire::entier, Typing());
    EXPECT_EQ(Rib().texte.InsTextX, 50);
    EXPECT_EQ(Rib().texte.InsTextY, 3);
}

TEST_F(TouchSteps, OtherPartsHaveNoPlaceToMoveTo) {
    EXPECT_FALSE(LieuDuSujet(Rib(), {GenreSujet::talon, 0}));
    EXPECT_TRUE(LieuDuSujet(Rib(), kHole));
}

TEST_F(TouchSteps, AMoveIsOneStep) {
    view.on_draw = [this] { NoteEtat(programme); };
    NoteEtat(programme);
    Rib().Modifie = false;
    DeplaceSujet(programme, view, kSpar, {80, 0}, PasDeTire::entier);
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "80");
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_EQ(PasAnnulable(programme), "spar 1");
    AnnulePas(programme, view);
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "60");
}

TEST_F(TouchSteps, APartIsRemovedAfterAQuestionOnly) {
    Rib().NbLongeron = 1;
    ExpectBox(BoxAnswer::no, "Remove spar 1 ?", "Loftwing");
    RetireSujet(programme, view, kSpar);
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "60");
    ExpectBox(BoxAnswer::yes, "Remove spar 1 ?", "Loftwing");
    RetireSujet(programme, view, kSpar);
    EXPECT_EQ(Rib().NbLongeron, 0);
    EXPECT_EQ(Rib().longeron[0].LargLongAfich, "0");
}

TEST_F(TouchSteps, EveryOtherPartCanBeRemovedToo) {
    const auto removed = [this](GenreSujet genre) {
        platform.Expect(BoxAnswer::yes);
        RetireSujet(programme, view, {genre, 0});
    };
    Rib().EpBA = 5;
    removed(GenreSujet::baguette_ba);
    EXPECT_EQ(Rib().EpBA, 0);
    Rib().EpBF = 5;
    removed(GenreSujet::baguette_bf);
    EXPECT_EQ(Rib().EpBF, 0);
    Rib().TypeBA = 0;
    removed(GenreSujet::carre);
    EXPECT_EQ(Rib().TypeBA, 1);
    Rib().TypeGabarit = kGabaritTalon;
    removed(GenreSujet::talon);
    EXPECT_EQ(Rib().TypeGabarit, kSansGabarit);
    Rib().texte.InsTexte = "mine";
    Rib().texte.InsTextX = 3;
    Rib().texte.TailleFont = 14;
    removed(GenreSujet::texte);
    EXPECT_EQ(Rib().texte.InsTexte, "");
    EXPECT_EQ(Rib().texte.TailleFont, 14);
}

TEST_F(TouchSteps, TheDrawingKnowsWhoseItsLinesAre) {
    Rib().EpBA = 5;
    Rib().texte.InsTexte = "mine";
    Rib().texte.InsTextX = 3;
    Recording drawing;
    DrawRib(programme.TraceSur(drawing));
    const auto lines = [&](const SujetTrace &sujet) {
        return std::count(drawing.Sujets().begin(), drawing.Sujets().end(), sujet);
    };
    EXPECT_EQ(lines(kSpar), 5); // axis and the four sides of one notch
    EXPECT_EQ(lines(kHole), 3); // circle and two axes
    EXPECT_EQ(lines({GenreSujet::baguette_ba, 0}), 1);
    EXPECT_EQ(lines({GenreSujet::baguette_bf, 0}), 0); // there is none
    EXPECT_EQ(lines(kText), 1);
    EXPECT_EQ(lines({GenreSujet::trou, 1}), 0);
}

TEST(Distance, IsSaidInBothUnits) {
    EXPECT_EQ(DitDistance(25.4), "25.40 mm = 1.000 in");
    EXPECT_EQ(DitDistance(12.3), "12.30 mm = 0.484 in");
}

} // namespace
} // namespace loftwing
