#include "output/page_entry.h"

#include "support/failures.h"
#include "support/words.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

constexpr const char *kPageWords = "[FrmPrint]\n1=Page\n2=Landscape\n4=Own paper\n5=Long side\n"
                                   "8=Template,\n9=Chord,\n10=Sheets\n22=No room\n"
                                   "24=\" sheets, mind the overlap\"\n25=Template length\n"
                                   "26=Chord length\n27=One sheet\n"
                                   "tailleFeuille(8) =\" in the list\"\n"
                                   "tailleFeuille(8)=\" compared\"\n"
                                   "[Erreur]\n1=Error\n[Message]\n20=No length\n";

class PageEntry : public testing::Test {
  protected:
    Words words{kPageWords};
    std::string Unite{kUniteMm};
    RibModel rib;
    MiseEnPage page;

    Saisie Typing() const { return {Unite, words.messages}; }
    void Template(float length) {
        rib.TypeGabarit = 1;
        rib.bloc.LongBloc = length;
    }
    FinPage Ok(float corde) { return ValidePage(page, {corde, 0, false}); }
};

TEST_F(PageEntry, EachTextBoxHasItsOwnPair) {
    page.YdprintAfich = "51";
    page.MargeHautAfich = "11";
    page.MargeBasAfich = "16";
    page.recouvrementAfich = "21";
    EXPECT_EQ(TextesDe(page), (TextesPage{"51", "11", "16", "21"}));
    PrendTextes(page, {"52", "12.5", "17", "22"}, Typing());
    EXPECT_EQ(TextesDe(page), (TextesPage{"52", "12.5", "17", "22"}));
    EXPECT_EQ(page.Ydprint, 52.0F);
    EXPECT_EQ(page.MargeHaut, 12.5F);
    EXPECT_EQ(page.MargeBas, 17.0F);
    EXPECT_EQ(page.recouvrement, 22.0F);
    EXPECT_EQ(FailureOf([&] { PrendTexte(page, 4, "1", Typing()); }), 9);
}

TEST_F(PageEntry, CountsWithTheTextsNotWithWhatAPrintLeftBehind) {
    page.recouvrement = 0; // a rib of one sheet was printed; the text still says 20
    ReprendTextes(page, Typing());
    EXPECT_EQ(page.recouvrement, 20.0F);
    EXPECT_EQ(page.MargeHaut, 10.0F);
    EXPECT_EQ(TextesDe(page), (TextesPage{"50", "10", "15", "20"}));
    // A text that is no length isn't told before somebody touches it.
    Unite = kUniteIn;
    page.MargeHautAfich = "/8";
    page.MargeHaut = 12.7F;
    page.recouvrementAfich = "1/2";
    ReprendTextes(page, Typing());
    EXPECT_EQ(page.MargeHaut, 12.7F);
    EXPECT_EQ(page.recouvrement, 12.7F);
}

TEST_F(PageEntry, InchesAreTypedAsFractions) {
    Unite = kUniteIn;
    PrendTextes(page, {"2.3/8", "1/2", "1.5", ""}, Typing());
    EXPECT_EQ(page.Ydprint, 60.325F);
    EXPECT_EQ(page.MargeHaut, 12.7F);
    EXPECT_EQ(page.MargeBas, 38.1F);
    EXPECT_EQ(page.recouvrement, 0.0F);
}

TEST_F(PageEntry, ATextThatIsNoLengthInInchesIsToldAndReadsAsNothing) {
    Unite = kUniteIn;
    words.platform.Expect(BoxAnswer::ok);
    PrendTexte(page, kChampMargeHaut, "/8", Typing());
    EXPECT_EQ(words.LastBox().title, "Enter error");
    EXPECT_EQ(page.MargeHaut, 0.0F);
    EXPECT_EQ(page.MargeHautAfich, "/8");
}

TEST_F(PageEntry, AFractionOverNothingChangesNoneOfTheFour) {
    Unite = kUniteIn;
    EXPECT_EQ(FailureOf([&] { PrendTextes(page, {"3", "3", "3", "1/0"}, Typing()); }), 11);
    EXPECT_EQ(TextesDe(page), (TextesPage{"50", "10", "15", "20"}));
    EXPECT_EQ(page.Ydprint, 50.0F);
}

TEST_F(PageEntry, OkTakesAPageThatTilesWithOverlap) {
    EXPECT_EQ(Ok(300), FinPage::prise);
    EXPECT_EQ(page.PasPage, 252.0F);
    EXPECT_EQ(page.NbPages, 2);
}

TEST_F(PageEntry, OkRefusesSeveralSheetsWithoutOverlap) {
    page.recouvrement = 0;
    EXPECT_EQ(Ok(300), FinPage::sans_recouvrement);
    EXPECT_EQ(page.NbPages, 2);
    EXPECT_TRUE(ManqueRecouvrement(page));
}

TEST_F(PageEntry, OkNeedsNoOverlapForOneSheet) {
    page.recouvrement = 0;
    EXPECT_EQ(Ok(200), FinPage::prise);
    EXPECT_EQ(page.NbPages, 1);
    EXPECT_FALSE(ManqueRecouvrement(page));
}

TEST_F(PageEntry, OkLengthensAStepThatEqualsTheChord) {
    page.recouvrement = 0;
    EXPECT_EQ(Ok(272), FinPage::prise);
    EXPECT_EQ(page.PasPage, 272.5F);
    EXPECT_EQ(page.NbPages, 1);
}

TEST_F(PageEntry, OkLengthensAStepThatEqualsTheTemplate) {
    page.recouvrement = 0;
    EXPECT_EQ(ValidePage(page, {200, 272, true}), FinPage::prise);
    EXPECT_EQ(page.PasPage, 272.5F);
    EXPECT_EQ(page.NbPages, 1);
}

TEST_F(PageEntry, OkCountsTheTemplateNotTheChord) {
    EXPECT_EQ(ValidePage(page, {200, 600, true}), FinPage::prise);
    EXPECT_EQ(page.NbPages, 3); // 600 / 252 = 2.38
}

TEST_F(PageEntry, OkRefusesMarginsThatLeaveNoRoom) {
    page.MargeHaut = 262; // 297 - 262 - 15 - 20 = 0
    EXPECT_EQ(Ok(300), FinPage::sans_pas);
    page.MargeHaut = 300;
    EXPECT_EQ(Ok(300), FinPage::sans_pas);
}

TEST_F(PageEntry, OkNeverRefusesThePrintersOwnPaper) {
    page.NumIndex = 8;
    page.recouvrement = 0;
    page.NbPages = 1;
    EXPECT_EQ(Ok(30000), FinPage::prise);
    EXPECT_EQ(page.NbPages, 1);
}

TEST_F(PageEntry, OkFailsBeyond255Sheets) {
    page.recouvrement = 271;
    EXPECT_EQ(FailureOf([&] { Ok(255); }), 6);
}

TEST_F(PageEntry, CaptionNamesThePrinter) {
    EXPECT_EQ(TitrePage(words.language, "Laser"), "Page : Laser - Landscape");
    EXPECT_EQ(TitrePage(words.language, ""), "Page - Landscape");
}

TEST_F(PageEntry, SheetIsToldInMillimetres) {
    page.NumIndex = 1;
    EXPECT_EQ(TexteFeuille(page, words.language), "Long side : 279.4 mm");
    page.NumIndex = 8;
    EXPECT_EQ(TexteFeuille(page, words.language), "Own paper");
}

TEST_F(PageEntry, ChordIsToldAsTyped) {
    rib.cordeAfich = "13.1/4";
    Unite = kUniteIn;
    EXPECT_EQ(TexteLongueur(rib, Typing()), "Chord, in : 13.1/4");
}

TEST_F(PageEntry, TemplateIsToldInTheUnitInForce) {
    Template(38.1F);
    EXPECT_EQ(TexteLongueur(rib, Typing()), "Template, mm : 38.1");
    Unite = kUniteIn;
    EXPECT_EQ(TexteLongueur(rib, Typing()), "Template, in : 1.1/2");
}

TEST_F(PageEntry, TemplatesLengthIsMadeAnewFromItsParts) {
    rib.corde = 200;
    rib.bloc.BAbloc = 30;
    rib.bloc.BFbloc = 12.5F;
    rib.bloc.LongBloc = 7;
    EXPECT_EQ(ReprendLongueur(rib).EnJeu(), 200.0F);
    EXPECT_EQ(rib.bloc.LongBloc, 7.0F);
    rib.TypeGabarit = 1;
    EXPECT_EQ(ReprendLongueur(rib).EnJeu(), 242.5F);
    EXPECT_EQ(rib.bloc.LongBloc, 242.5F);
}

TEST_F(PageEntry, CountIsTold) {
    page.NbPages = 3;
    EXPECT_EQ(TextePages(page, words.language), "Sheets : 3");
    EXPECT_EQ(TexteSansPages(words.language), "Sheets : -");
}

TEST_F(PageEntry, PrintersPaperIsRecognisedByTheKeyWithoutTheBlank) {
    EXPECT_TRUE(NommePapierImprimante(" compared", words.language));
    EXPECT_FALSE(NommePapierImprimante(" in the list", words.language));
}

TEST_F(PageEntry, PrintersPaperIsAnnouncedWithTheLengthInForce) {
    rib.cordeAfich = "300";
    words.platform.Expect(BoxAnswer::ok);
    AnnoncePapierImprimante(rib, Typing());
    EXPECT_EQ(words.LastBox().text, "Chord length : 300 mm\nOne sheet");
    EXPECT_EQ(words.LastBox().icon, BoxIcon::information);
    Template(320);
    words.platform.Expect(BoxAnswer::ok);
    AnnoncePapierImprimante(rib, Typing());
    EXPECT_EQ(words.LastBox().text, "Template length : 320 mm\nOne sheet");
}

TEST_F(PageEntry, RefusalAndWarningHaveTheirOwnBoxes) {
    words.platform.Expect(BoxAnswer::ok);
    RefuseSansPas(words.messages);
    EXPECT_EQ(words.LastBox().text, "No room");
    EXPECT_EQ(words.LastBox().title, "Error");
    EXPECT_EQ(words.LastBox().icon, BoxIcon::stop);
    page.NbPages = 2;
    words.platform.Expect(BoxAnswer::ok);
    AlerteRecouvrement(page, words.messages);
    EXPECT_EQ(words.LastBox().text, "2 sheets, mind the overlap");
    EXPECT_EQ(words.LastBox().title, " sheets, mind the overlap");
    EXPECT_EQ(words.LastBox().icon, BoxIcon::information);
}

} // namespace
} // namespace loftwing
