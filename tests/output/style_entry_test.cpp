#include "output/style_entry.h"

#include "support/failures.h"
#include "support/words.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class StyleEntry : public testing::Test {
  protected:
    StyleEntry() {
        ValeursDefautTraits(settings);
        typed = TextesDe(settings.traits);
    }

    LectureTraits Read() const { return LitTraits(typed, settings.traits); }

    AppSettings settings;
    TextesTraits typed;
};

TEST(TypedColour, IsTheOneThatOkTakes) {
    EXPECT_EQ(CouleurTapee("0"), 0x000000U);
    EXPECT_EQ(CouleurTapee("14"), 0xFFFF00U);
    EXPECT_EQ(CouleurTapee(""), 0x000000U); // no number counts as 0
    EXPECT_EQ(CouleurTapee("15"), std::nullopt);
    EXPECT_EQ(CouleurTapee("99999"), std::nullopt); // no 16-bit number
}

TEST_F(StyleEntry, BoxesShowTheNumbers) {
    settings.TraitDe(Element::bloc) = {7, 2, 3};
    const TextesTraits texts = TextesDe(settings.traits);
    EXPECT_EQ(texts.couleur[0], "0");
    EXPECT_EQ(texts.couleur[2], "12");
    EXPECT_EQ(texts.style[2], "3");
    EXPECT_EQ(texts.couleur[8], "7");
    EXPECT_EQ(texts.style[8], "2");
    EXPECT_EQ(texts.epaisseur[7], "3");
    EXPECT_EQ(texts.epaisseur[6], "1");
}

TEST_F(StyleEntry, WidthBoxesSkipTheAxes) {
    const Element elements[] = {Element::profil, Element::coffrage, Element::longeron,
                                Element::ba,     Element::bf,       Element::trou,
                                Element::rep,    Element::bloc};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(ElementDeEpaisseur(i), elements[i]) << i;
    }
    EXPECT_EQ(FailureOf([] { ElementDeEpaisseur(8); }), 9);
}

TEST_F(StyleEntry, DefaultsAreAccepted) {
    const LectureTraits read = Read();
    EXPECT_FALSE(read.faute);
    EXPECT_FALSE(read.echec);
    EXPECT_EQ(read.traits, settings.traits);
}

TEST_F(StyleEntry, TypedNumbersGoToTheirElements) {
    typed.couleur[10] = "14";
    typed.style[9] = "4";
    typed.epaisseur[2] = "3";
    const LectureTraits read = Read();
    EXPECT_FALSE(read.faute);
    EXPECT_EQ(read.traits[10].couleur, 14);
    EXPECT_EQ(read.traits[9].style, 4);
    EXPECT_EQ(read.traits[3].epaisseur, 3); // spars, behind the axes
    EXPECT_EQ(read.traits[2].epaisseur, 1);
}

TEST_F(StyleEntry, WhiteAndBeyondAreNoColours) {
    for (const char *text : {"15", "16", "32767"}) {
        typed.couleur[4] = text;
        EXPECT_EQ(Read().faute, (ChampTrait{ListeTraits::couleur, 4})) << text;
    }
    typed.couleur[4] = "14";
    EXPECT_FALSE(Read().faute);
}

TEST_F(StyleEntry, StylesEndAtFour) {
    for (int i = 0; i < 11; ++i) {
        typed.style[static_cast<std::size_t>(i)] = "5";
        EXPECT_EQ(Read().faute, (ChampTrait{ListeTraits::style, i}));
        typed.style[static_cast<std::size_t>(i)] = "4";
        EXPECT_FALSE(Read().faute);
    }
}

TEST_F(StyleEntry, WidthsGoFromOneToThree) {
    for (int i = 0; i < 8; ++i) {
        std::string &text = typed.epaisseur[static_cast<std::size_t>(i)];
        for (const char *wrong : {"0", "4", ""}) {
            text = wrong;
            EXPECT_EQ(Read().faute, (ChampTrait{ListeTraits::epaisseur, i})) << wrong;
        }
        for (const char *right : {"1", "2", "3"}) {
            text = right;
            EXPECT_FALSE(Read().faute) << right;
        }
    }
}

TEST_F(StyleEntry, AnEmptyColourOrStyleIsNumberZero) {
    typed.couleur[1] = "";
    typed.style[2] = "";
    const LectureTraits read = Read();
    EXPECT_FALSE(read.faute);
    EXPECT_EQ(read.traits[1].couleur, 0);
    EXPECT_EQ(read.traits[2].style, 0);
}

TEST_F(StyleEntry, ColoursAreCheckedBeforeStylesAndStylesBeforeWidths) {
    typed.epaisseur[0] = "9";
    typed.style[5] = "9";
    typed.couleur[10] = "15";
    EXPECT_EQ(Read().faute, (ChampTrait{ListeTraits::couleur, 10}));
    typed.couleur[10] = "1";
    EXPECT_EQ(Read().faute, (ChampTrait{ListeTraits::style, 5}));
    typed.style[5] = "1";
    EXPECT_EQ(Read().faute, (ChampTrait{ListeTraits::epaisseur, 0}));
}

TEST_F(StyleEntry, RefusedNumbersAreReadAllTheSame) {
    typed.couleur[0] = "15";
    typed.epaisseur[0] = "3";
    const LectureTraits read = Read();
    EXPECT_EQ(read.traits[0].couleur, 15);
    EXPECT_EQ(read.traits[0].epaisseur, 3);
}

TEST_F(StyleEntry, PastedNumbersRoundHalvesToEven) {
    typed.couleur[0] = "14.5";
    typed.couleur[1] = "0.5";
    const LectureTraits read = Read();
    EXPECT_FALSE(read.faute);
    EXPECT_EQ(read.traits[0].couleur, 14);
    EXPECT_EQ(read.traits[1].couleur, 0);
}

TEST_F(StyleEntry, ANumberBeyond16BitsFailsAndNamesItsBox) {
    typed.couleur[0] = "15";
    typed.style[3] = "32768";
    const LectureTraits read = Read();
    ASSERT_TRUE(read.echec);
    EXPECT_EQ(read.echec->number, 6);
    EXPECT_EQ(read.faute, (ChampTrait{ListeTraits::style, 3}));
}

TEST_F(StyleEntry, EachListHasItsOwnWords) {
    const Words words("[FrmLines]\n20=colours\n21=styles\n22=widths\n");
    EXPECT_EQ(TexteFaute(ListeTraits::couleur, words.language), "colours");
    EXPECT_EQ(TexteFaute(ListeTraits::style, words.language), "styles");
    EXPECT_EQ(TexteFaute(ListeTraits::epaisseur, words.language), "widths");
}

} // namespace
} // namespace loftwing
