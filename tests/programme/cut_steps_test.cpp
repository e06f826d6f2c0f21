#include "programme/cut_steps.h"

#include "lang/ini_file.h"
#include "support/hand_pieces.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

class CutSteps : public StepsWorld {
  protected:
    std::string Measures(const std::vector<Piece> &pieces) {
        return TexteMesures(programme.messages, pieces, programme.settings.Unite);
    }
    LargeurLue Kerf(const std::string &text) {
        return LitLargeur(Largeur::saignee, text, programme);
    }
};

// A board of 40 by 20 mm without a square of 5 by 4 and a circle of 7: 800 - 20 - 38.48 mm2, and
// 120 + 18 + 21.99 mm to be cut.
TEST_F(CutSteps, MeasuresAreAreaCutAndSize) {
    EXPECT_EQ(Measures({Planchette()}),
              "Area 7.4 cm\xC2\xB2, length of cut 160 mm, size 40 \xC3\x97 20 mm");
    programme.settings.Unite = kUniteIn;
    EXPECT_EQ(Measures({Planchette()}),
              "Area 1.15 in\xC2\xB2, length of cut 6.299 in, size 1.575 \xC3\x97 0.787 in");
}

TEST_F(CutSteps, EachPieceOfATemplateHasItsLine) {
    Piece upper = Planchette();
    upper.genre = GenrePiece::gabarit_extrados;
    Piece lower = Planchette();
    lower.genre = GenrePiece::gabarit_intrados;
    const std::string rest = " Area 7.4 cm\xC2\xB2, length of cut 160 mm, size 40 \xC3\x97 20 mm";
    EXPECT_EQ(Measures({upper, lower}), "Upper template." + rest + "\nLower template." + rest);
    EXPECT_EQ(Measures({}), "");
}

TEST_F(CutSteps, WarningsFollowEachOther) {
    Piece piece = Planchette();
    piece.avis = {{AvisPiece::bois_mince, 0}, {AvisPiece::talon_vide, 0}};
    EXPECT_EQ(TexteDesAvis(programme.messages, {{piece}, {}}),
              "The wood is thinner than 1 mm in places. The heel has no length and is left out.");
    EXPECT_EQ(TexteDesAvis(programme.messages, {{}, "No wood."}), "No wood.");
    EXPECT_EQ(TexteDesAvis(programme.messages, {{Planchette()}, {}}), "");
}

TEST_F(CutSteps, AKerfIsALengthUpToFiveMillimetres) {
    EXPECT_EQ(Kerf("0.15").mm, 0.15);
    EXPECT_EQ(Kerf("5").mm, 5);
    EXPECT_EQ(Kerf("").mm, 0);
    for (const char *text : {"", "0", ".", "0.15", "5"}) {
        EXPECT_EQ(Kerf(text).refus, "") << text;
    }
    for (const char *text : {"5.001", "-0.1", "99999999999999999999"}) {
        EXPECT_EQ(Kerf(text).refus, "The kerf must not be wider than 5 mm.") << text;
    }
    programme.settings.Unite = kUniteIn;
    EXPECT_EQ(Kerf("1/8").mm, 3.175);
    EXPECT_EQ(Kerf("1/4").refus, "The kerf must not be wider than 0.197 in.");
    for (const char *text : {"2./8", "/8", "1/0"}) {
        EXPECT_EQ(Kerf(text).refus, "The kerf is no length.") << text;
    }
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(CutSteps, WhatAWireMeltsIsHeldToTheSameLimitInItsOwnWords) {
    const auto wire = [this](const char *text) {
        return LitLargeur(Largeur::fil, text, programme);
    };
    EXPECT_EQ(wire("0.8").mm, 0.8);
    EXPECT_EQ(wire("5.001").refus, "What the wire melts must not be wider than 5 mm.");
    programme.settings.Unite = kUniteIn;
    EXPECT_EQ(wire("1/0").refus, "What the wire melts is no length.");
}

TEST_F(CutSteps, BothPiecesOfATemplateAreMadeWithTheirNames) {
    Rib().TypeGabarit = kGabaritMousse;
    Rib().bloc.HTbasbloc = 40;
    Rib().corde = 100;
    for (const auto &[x, y] : {std::pair{1.0, 0.1}, {0.0, 0.1}, {0.0, -0.1}, {1.0, -0.1}}) {
        Rib().ContourX.Append(x);
        Rib().ContourY.Append(y);
        ++Rib().NbContour;
    }
    const PiecesFaites made = FaitPiecesDuRib(programme, DemandeDe({}, "root"));
    ASSERT_EQ(made.refus, "");
    ASSERT_EQ(made.pieces.size(), 2U);
    ASSERT_EQ(made.pieces[1].textes.size(), 1U);
    EXPECT_EQ(made.pieces[1].textes[0].texte, "root, Lower template");
    Rib().bloc.HTbasbloc = 0;
    EXPECT_EQ(FaitPiecesDuRib(programme, {}).refus,
              "No template can be made: the wire's path leaves the block. Give the template more "
              "height under the reference line, or longer ramps.");
}

TEST_F(CutSteps, TheFirstChoiceIsAllMarksAndNoKerf) {
    EXPECT_EQ(LitChoixDecoupe(programme), ChoixDecoupe{});
    const DemandePiece demande = DemandeDe({}, "");
    EXPECT_EQ(demande.saignee, 0);
    EXPECT_TRUE(demande.reference && demande.stations && demande.axes && demande.etiquette &&
                demande.talon);
}

TEST_F(CutSteps, WhatIsRememberedComesBack) {
    constexpr std::array<bool ChoixDecoupe::*, 6> ticks = {
        &ChoixDecoupe::reference, &ChoixDecoupe::stations, &ChoixDecoupe::axes,
        &ChoixDecoupe::etiquette, &ChoixDecoupe::talon,    &ChoixDecoupe::polylignes};
    for (const auto tick : ticks) {
        ChoixDecoupe choix;
        choix.saignee = 0.1984375; // a 128th of an inch
        choix.*tick = !(choix.*tick);
        choix.forme = "pdf";
        RetientChoixDecoupe(programme, choix);
        EXPECT_EQ(LitChoixDecoupe(programme), choix);
    }
}

TEST_F(CutSteps, EachTickLeavesOutItsMarks) {
    constexpr std::array<std::pair<bool ChoixDecoupe::*, bool DemandePiece::*>, 5> kinds = {
        {{&ChoixDecoupe::reference, &DemandePiece::reference},
         {&ChoixDecoupe::stations, &DemandePiece::stations},
         {&ChoixDecoupe::axes, &DemandePiece::axes},
         {&ChoixDecoupe::etiquette, &DemandePiece::etiquette},
         {&ChoixDecoupe::talon, &DemandePiece::talon}}};
    for (const auto &[tick, mark] : kinds) {
        ChoixDecoupe choix;
        choix.*tick = false;
        const DemandePiece demande = DemandeDe(choix, "R 7");
        for (const auto &[other, other_mark] : kinds) {
            EXPECT_EQ(demande.*other_mark, other_mark != mark);
        }
        EXPECT_EQ(demande.texte, "R 7");
    }
}

TEST_F(CutSteps, OtherSettingsStayAsTheyAre) {
    WriteINIFile("Mine", "Key", "kept", programme.paths.fichier);
    RetientChoixDecoupe(programme, {});
    EXPECT_EQ(GetINIFile("Mine", "Key", programme.paths.fichier), "kept");
    EXPECT_EQ(GetINIFile("Decoupe", "Reference", programme.paths.fichier), "1");
}

TEST_F(CutSteps, TheRibsOwnLabelIsItsTextOrAirfoilAndChord) {
    Rib().NomProfil = "e205";
    Rib().cordeAfich = "180";
    Rib().texte.InsTexte = "";
    EXPECT_EQ(EtiquetteDuRib(programme.rib, programme.settings.Unite), "e205 180 mm");
    Rib().texte.InsTexte = "Root left";
    EXPECT_EQ(EtiquetteDuRib(programme.rib, programme.settings.Unite), "Root left");
}

} // namespace
} // namespace loftwing
