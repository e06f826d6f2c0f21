#include "programme/sans_place.h"

#include "base/number_text.h"
#include "core/contour.h"
#include "persist/LireEcrire.h"
#include "programme/file_steps.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A rib of 220 mm, and airfoils of a set whose titles bring another chord.
class SansPlaceTest : public StepsWorld {
  protected:
    SansPlaceTest() { OuvreFichier(programme, view, Named("rib1.dat", "Rib 1: 220")); }

    void Spar(int slot, const char *place, float width = 10) {
        Longeron &spar = Rib().longeron.at(static_cast<std::size_t>(slot));
        spar.PosLongAfich = place;
        spar.LargLong = width;
        spar.OptLongExt = 1;
        spar.HautLong = 3;
    }
    void Hole(int slot, const char *place) {
        Trou &hole = Rib().trou.at(static_cast<std::size_t>(slot));
        hole.PosTrouAfich = place;
        hole.DiaTrou = 10;
    }
    void Stocks(float ba, float bf) {
        Rib().EpBA = ba;
        Rib().EpBAAfich = NumberText(ba);
        Rib().EpBF = bf;
        Rib().EpBFAfich = NumberText(bf);
    }
    /// Opens the airfoil of the 140 mm rib.
    void OpenNext() {
        view.asked.clear();
        OuvreFichier(programme, view, Named("rib2.dat", "Rib 2: 140"));
    }
    void WillAnswer(BoxAnswer answer, const std::string &elements) {
        platform.Expect(answer,
                        {.text = "Airfoil : rib2   Chord : 140 mm\n\n"
                                 "What does not fit on this chord :\n" +
                                 elements +
                                 "\nOpen the airfoil without it? No leaves the rib as it is.",
                         .title = "Open airfoil file",
                         .buttons = BoxButtons::yes_no});
    }
    /// The next rib comes, and this is what isn't taken over.
    void ExpectOpenedWithout(const std::string &elements) {
        WillAnswer(BoxAnswer::yes, elements);
        OpenNext();
        EXPECT_EQ(Rib().NomProfil, "rib2");
        EXPECT_EQ(Rib().corde, 140.0F);
        EXPECT_TRUE(Rib().Modifie);
        EXPECT_THAT(view.asked,
                    ElementsAre("Titre Loftwing Airfoil : rib2", "AfficheFichiersRecents",
                                "ViewReset", "ActiveCommandes", "affiche"));
        EXPECT_TRUE(ChercheSansPlace(programme).Rien());
    }

    /// All that must be the same after a No.
    struct Kept {
        std::string file, path, header, name;
        float corde;
        std::int16_t points, contour;
        TableStation upper, lower;
        double thickness, washout;
        bool changed, open, loaded, simple;
        FichiersRecents recent;
        bool operator==(const Kept &) const = default;
    };
    Kept All() {
        const RibModel &rib = Rib();
        return {EcritComposants(rib, programme.settings.Unite),
                rib.CheminProfil,
                rib.EnteteProfil,
                rib.NomFichierRib,
                rib.corde,
                rib.NbPoints,
                rib.NbContour,
                rib.TabExtrados,
                rib.TabIntrados,
                rib.EpMaxi,
                rib.vrillage,
                rib.Modifie,
                rib.FichierRibOuvert,
                rib.ProfilCharge,
                rib.ModeCouple,
                LitFichiersRecents(programme.paths.fichier)};
    }
};

TEST_F(SansPlaceTest, WhatFitsIsOpenedWithoutAQuestion) {
    Spar(0, "130");
    Rib().NbLongeron = 1;
    Hole(0, "50%");
    Rib().NbTrou = 1;
    Stocks(40, 100); // together as wide as the chord
    Rib().TypeGabarit = kGabaritMousse;
    Rib().bloc.BFbloc = 140;
    OpenNext();
    EXPECT_EQ(Rib().NomProfil, "rib2");
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "130");
    EXPECT_EQ(Rib().EpBF, 100.0F);
    EXPECT_EQ(Rib().TypeGabarit, kGabaritMousse);
    EXPECT_THAT(platform.boxes, IsEmpty());
}

TEST_F(SansPlaceTest, SparsAndHolesThatDoNotFitGoAndTheOthersMoveUp) {
    Spar(0, "50");
    Spar(1, "150");
    Spar(2, "60%");
    Spar(3, "141");
    Rib().NbLongeron = 4;
    Hole(0, "200");
    Hole(1, "30");
    Rib().NbTrou = 2;
    ExpectOpenedWithout("Spars 2, 4\nHoles 1\n");
    EXPECT_EQ(Rib().NbLongeron, 2);
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "50");
    EXPECT_EQ(Rib().longeron[1].PosLongAfich, "60%");
    EXPECT_EQ(Rib().longeron[2].PosLongAfich, "0");
    EXPECT_EQ(Rib().NbTrou, 1);
    EXPECT_EQ(Rib().trou[0].PosTrouAfich, "30");
}

TEST_F(SansPlaceTest, APlaceThatCountsFromTheTrailingEdgeEndsInFrontOfTheRib) {
    Spar(0, "200");
    Rib().longeron[0].RefLong = 1;
    Rib().NbLongeron = 1;
    ExpectOpenedWithout("Spars 1\n");
}

TEST_F(SansPlaceTest, WhatStandsInTheWorkSlotIsEmptiedThere) {
    Spar(0, "50");
    Spar(1, "150");
    Rib().NbLongeron = 1;
    Hole(0, "150");
    ExpectOpenedWithout("Spars 2\nHoles 1\n");
    EXPECT_EQ(Rib().NbLongeron, 1);
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "50");
    EXPECT_EQ(Rib().longeron[1].PosLongAfich, "0");
    EXPECT_EQ(Rib().NbTrou, 0);
    EXPECT_EQ(Rib().trou[0].DiaTrou, 0.0F);
}

TEST_F(SansPlaceTest, ASparBehindOneAtPlaceZeroIsNotDrawnAndNotSpokenOf) {
    Spar(0, "0");
    Spar(1, "150");
    Rib().NbLongeron = 2;
    OpenNext();
    EXPECT_EQ(Rib().longeron[1].PosLongAfich, "150");
    EXPECT_THAT(platform.boxes, IsEmpty());
}

TEST_F(SansPlaceTest, AHeelWhoseMarginsAreLongerThanTheChordGoesOutOfUse) {
    Rib().TypeGabarit = kGabaritTalon;
    Rib().talon.TalonBFAfich = "160";
    Rib().talon.TalonBF = Rib().talon.TalonLong = 160;
    ExpectOpenedWithout("Levelling heel\n");
    EXPECT_EQ(Rib().TypeGabarit, kSansGabarit);
    EXPECT_EQ(Rib().talon.TalonBFAfich, "160");
}

TEST_F(SansPlaceTest, ATemplateWhoseRampIsLongerThanTheChordGoesOutOfUse) {
    Rib().TypeGabarit = kGabaritMousse;
    Rib().bloc.BFbloc = 150;
    Spar(0, "20");
    Rib().NbLongeron = 1;
    ExpectOpenedWithout("Template for Foam cutting\n");
    EXPECT_EQ(Rib().TypeGabarit, kSansGabarit);
    EXPECT_EQ(Rib().bloc.BFbloc, 150.0F);
    EXPECT_EQ(Rib().NbLongeron, 1);
}

TEST_F(SansPlaceTest, AStockWiderThanTheChordBecomesZeroAndTheOtherStays) {
    Stocks(12, 150);
    ExpectOpenedWithout("Trailing Edge 150 mm\n");
    EXPECT_EQ(Rib().EpBA, 12.0F);
    EXPECT_EQ(Rib().EpBF, 0.0F);
    EXPECT_EQ(Rib().EpBFAfich, "0");
}

TEST_F(SansPlaceTest, StocksThatAreTogetherWiderThanTheChordBothBecomeZero) {
    Stocks(40, 100.5F);
    ExpectOpenedWithout("Leading Edge 40 mm\nTrailing Edge 100.5 mm\n");
    EXPECT_EQ(Rib().EpBA, 0.0F);
    EXPECT_EQ(Rib().EpBAAfich, "0");
    EXPECT_EQ(Rib().EpBF, 0.0F);
}

TEST_F(SansPlaceTest, NoLeavesRibAirfoilContourAndChordAsTheyWere) {
    Spar(0, "150");
    Rib().NbLongeron = 1;
    Stocks(5, 216);
    Rib().TypeGabarit = kGabaritTalon;
    Rib().talon.TalonIntraAfich = "12";
    Rib().vrillage = 2;
    Rib().texte.InsTexte = "rib1 Chord :  220";
    Rib().texte.TexteUtilisateur = true;
    Rib().FichierRibOuvert = true;
    Rib().NomFichierRib = "wing.lfw";
    Rib().Modifie = false;
    const Kept before = All();
    WillAnswer(BoxAnswer::no, "Spars 1\nTrailing Edge 216 mm\n");
    OpenNext();
    EXPECT_TRUE(All() == before);
    EXPECT_TRUE(Rib().texte.TexteUtilisateur);
    EXPECT_EQ(Rib().ContourX(Rib().NbContour), 1.0);
    EXPECT_THAT(view.asked, IsEmpty());
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(SansPlaceTest, NoInFrontOfASimplePlotLeavesIt) {
    Stocks(0, 150);
    Rib().ModeCouple = true;
    const Kept before = All();
    WillAnswer(BoxAnswer::no, "Trailing Edge 150 mm\n");
    OpenNext();
    EXPECT_TRUE(All() == before);
}

TEST_F(SansPlaceTest, ThePickerAsksTheSame) {
    Spar(0, "150");
    Rib().NbLongeron = 1;
    Rib().Modifie = false;
    const Kept before = All();
    const std::string next = Named("rib2.dat", "Rib 2: 140");
    WillPick({next});
    WillAnswer(BoxAnswer::no, "Spars 1\n");
    EXPECT_FALSE(OuvreProfil(programme, view));
    EXPECT_TRUE(All() == before);
    WillPick({next});
    WillAnswer(BoxAnswer::yes, "Spars 1\n");
    EXPECT_TRUE(OuvreProfil(programme, view));
    EXPECT_EQ(Rib().NomProfil, "rib2");
    EXPECT_EQ(Rib().NbLongeron, 0);
}

TEST_F(SansPlaceTest, ARibThatThePickerHasClearedDoesNotComeBack) {
    view.on_pick = [this](const ChoixProfil &) {
        VideRib(programme); // a file that couldn't be read was looked at first
        Stocks(0, 150);
        return Read(Named("rib2.dat", "Rib 2: 140"));
    };
    WillAnswer(BoxAnswer::no, "Trailing Edge 150 mm\n");
    EXPECT_FALSE(OuvreProfil(programme, view));
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().NomProfil, "");
    EXPECT_EQ(Rib().EpBF, 150.0F);
}

TEST_F(SansPlaceTest, WhatWasTypedBeforeThereIsAnAirfoilIsTriedToo) {
    VideRib(programme);
    Spar(0, "150");
    Rib().NbLongeron = 1;
    WillAnswer(BoxAnswer::no, "Spars 1\n");
    OpenNext();
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "150");
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(SansPlaceTest, AChordThatNoDrawingCanHoldLeavesTheRib) {
    const Kept before = All();
    platform.Expect(BoxAnswer::ok,
                    {.text = testing::AllOf(HasSubstr("Airfoil : huge"), HasSubstr("Overflow"))});
    OuvreFichier(programme, view, Named("huge.dat", "Rib: " + std::string(38, '9')));
    EXPECT_TRUE(All() == before);
}

TEST_F(SansPlaceTest, AChordThatIsNoNumberOfAnySizeLeavesTheRib) {
    const Kept before = All();
    EXPECT_THROW(OuvreFichier(programme, view, Named("huge.dat", "Rib: 1" + std::string(39, '0'))),
                 Failure);
    EXPECT_TRUE(All() == before);
}

TEST_F(SansPlaceTest, TheQuestionIsInTheUsersLanguageAndUnit) {
    programme.language.Charge(programme.paths.langues, "French");
    Spar(0, "150");
    Rib().NbLongeron = 1;
    Stocks(0, 150);
    platform.Expect(BoxAnswer::no,
                    {.text = "Profil : rib2   Corde : 140 mm\n\n"
                             "Ce qui ne tient pas sur cette corde :\nLongerons 1\n"
                             "Bord de fuite 150 mm\n\n"
                             "Ouvrir le profil sans cela ? Non laisse la nervure comme elle est."});
    OpenNext();
}

} // namespace
} // namespace loftwing
