#include "utilities/nervure.h"

#include "output/recording.h"
#include "support/failures.h"
#include "utilities/panel_world.h"

#include <gmock/gmock.h>

#include <charconv>

namespace loftwing {
namespace {

using testing::ElementsAre;

using NervureTest = PanelTest;

TEST_F(NervureTest, ListsTypedEndsAndComputedRibsBetween) {
    typed = {"200", "150", "3", "500", "60", "45", "2"};
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_EQ(panneau.NbInter, 3);
    EXPECT_EQ(panneau.PasCorde, 12.5);    // 50 / 4
    EXPECT_EQ(panneau.PasLongeron, 3.75); // 15 / 4
    EXPECT_EQ(panneau.Ecart, 122.5);      // (500 - 5 * 2) / 4
    EXPECT_EQ(TexteEcart(panneau, Unite), " 122.5");
    EXPECT_THAT(Chords(), ElementsAre("200 ", " 187.5", " 175.", " 162.5", "150 "));
    EXPECT_THAT(Spars(), ElementsAre("60 ", " 56.25", " 52.5", " 48.75", "45 "));
    EXPECT_EQ(RangDe(panneau, 1, Unite).numero, " 1");
    EXPECT_EQ(RangDe(panneau, 5, Unite).numero, " 5");
}

TEST_F(NervureTest, NoRibBetweenGivesTwoRowsAndTheLengthLessTwoThicknesses) {
    typed = {"200", "150", "0", "300", "", "", "2.5"};
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_THAT(Chords(), ElementsAre("200 ", "150 "));
    EXPECT_EQ(RangDe(panneau, 2, Unite).numero, " 2");
    EXPECT_EQ(panneau.Ecart, 295);
}

TEST_F(NervureTest, WithoutLengthTheSpacingReadsZero) {
    typed[kNervEpr] = "2";
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_EQ(panneau.Ecart, 0);
    EXPECT_EQ(TexteEcart(panneau, Unite), "0");
    typed[kNervEpr] = "";
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_EQ(TexteEcart(panneau, Unite), "0");
}

TEST_F(NervureTest, APanelTooShortHasANegativeSpacing) {
    typed[kNervLongPanneau] = "8";
    typed[kNervEpr] = "2";
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_EQ(panneau.Ecart, -0.5); // (8 - 5 * 2) / 4
    EXPECT_TRUE(words.platform.boxes.empty());
}

TEST_F(NervureTest, EqualChordsGiveTheSameValueInAllRows) {
    typed = {"120", "120", "2", "", "", "", ""};
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_EQ(panneau.PasCorde, 0);
    EXPECT_THAT(Chords(), ElementsAre("120 ", " 120.", " 120.", "120 "));
}

TEST_F(NervureTest, OneSparPlaceAloneStepsFromOrToZero) {
    typed[kNervLongeronMin] = "40";
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_FALSE(SansLongeron(panneau));
    EXPECT_THAT(Spars(), ElementsAre(" ", " 10.", " 20.", " 30.", "40 "));
    typed[kNervLongeronMaj] = "40";
    typed[kNervLongeronMin] = "";
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_THAT(Spars(), ElementsAre("40 ", " 30.", " 20.", " 10.", " "));
}

TEST_F(NervureTest, WithoutSparThereIsNoColumn) {
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_TRUE(SansLongeron(panneau));
    EXPECT_THAT(Spars(), ElementsAre("", "", "", "", ""));
    typed[kNervLongeronMaj] = "0";
    typed[kNervLongeronMin] = "0.0";
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_TRUE(SansLongeron(panneau));
}

TEST_F(NervureTest, RefusesWhatMakesNoPanel) {
    typed = {"", "150", "3", "", "", "", ""};
    ExpectRefused(kNervCordeMaj, "Major is 0");
    typed[kNervCordeMaj] = "200";
    typed[kNervCordeMin] = "0";
    ExpectRefused(kNervCordeMin, "Minor is 0");
    typed[kNervCordeMin] = "200.5";
    ExpectRefused(kNervCordeMaj, "Major below minor");
    typed[kNervCordeMin] = "200";
    typed[kNervNbInter] = "";
    ExpectRefused(kNervNbInter, "No count");
}

TEST_F(NervureTest, TheCountLosesItsFraction) {
    typed[kNervNbInter] = "2.99";
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_EQ(panneau.NbInter, 2);
}

TEST_F(NervureTest, ACountBeyondSixteenBitsOverflows) {
    typed[kNervNbInter] = "32767.9";
    EXPECT_EQ(Calcule(), std::nullopt);
    EXPECT_EQ(NombreNervures(panneau), 32769);
    typed[kNervNbInter] = "32768";
    EXPECT_EQ(FailureOf([this] { Calcule(); }), kOverflow);
}

TEST_F(NervureTest, InInchesFractionsStayWhereTheyAreExact) {
    Unite = kUniteIn;
    typed = {"8", "6.1/2", "2", "10", "", "", "1/8"};
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_FLOAT_EQ(panneau.CordeMin, 165.1F);
    // As 32-bit values the chords are 203.199997 and 165.100006, a third of the way is 190.5 to the
    // last place, two thirds are 177.800003, which no fraction is.
    EXPECT_THAT(Chords(), ElementsAre("8 ", "7.1/2", " 7.", "6.1/2 "));
    EXPECT_NEAR(panneau.Ecart / 25.4, (10 - 4 * 0.125) / 3, 1e-6);
    EXPECT_EQ(TexteEcart(panneau, Unite), " 3.167");
}

TEST_F(NervureTest, ARefusedFractionCountsAsNothing) {
    Unite = kUniteIn;
    typed[kNervCordeMaj] = "2./8";
    words.platform.Expect(BoxAnswer::ok); // not a length
    ExpectRefused(kNervCordeMaj, "Major is 0");
}

// A second, naive computation over many panels.
TEST_F(NervureTest, AgreesWithStepsTakenOneByOne) {
    for (int count = 0; count <= 40; ++count) {
        typed = {"312.7", "87.3", std::to_string(count), "1000", "90.1", "33.3", "1.7"};
        ASSERT_EQ(Calcule(), std::nullopt);
        const double major = static_cast<double>(312.7F);
        const double minor = static_cast<double>(87.3F);
        for (int i = 1; i <= count; ++i) {
            const double chord = major - (major - minor) / (count + 1) * i;
            const std::string shown = RangDe(panneau, i + 1, Unite).corde;
            double read = 0;
            std::from_chars(shown.data() + 1, shown.data() + shown.size(), read);
            EXPECT_NEAR(read, chord, 0.00501) << count << " " << i;
        }
    }
}

class ListeTest : public PanelTest {
  protected:
    struct Written {
        double x, y;
        std::string text;
    };
    std::vector<Written> Draw(const PlaceListe &place) {
        Recording device;
        TraceListe(device, panneau, Unite, place);
        std::vector<Written> texts;
        for (const Operation &operation : device.Operations()) {
            const auto &text = std::get<DrawnText>(operation);
            texts.push_back({text.x, text.y, text.text});
        }
        return texts;
    }
};

TEST_F(ListeTest, ColumnsStandUnderEachOther) {
    typed = {"200", "150", "1", "", "60", "40", ""};
    ASSERT_EQ(Calcule(), std::nullopt);
    const auto texts = Draw({});
    const std::vector<Written> expected = {
        {283.5, 113.4, " 1"},   {1134, 113.4, "200 "},   {283.5, 343.4, " 2"},
        {1134, 343.4, " 175."}, {283.5, 573.4, " 3"},    {1134, 573.4, "150 "},
        {2551.5, 113.4, "60 "}, {2551.5, 343.4, " 50."}, {2551.5, 573.4, "40 "}};
    ASSERT_EQ(texts.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(texts[i].text, expected[i].text);
        EXPECT_EQ(texts[i].x, expected[i].x);
        EXPECT_NEAR(texts[i].y, expected[i].y, 1e-9);
    }
}

TEST_F(ListeTest, WithoutSparThereIsOneColumnOfLengths) {
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_EQ(Draw({}).size(), 10U);
}

TEST_F(ListeTest, ScrollsByAFifthOfTheRibs) {
    typed[kNervNbInter] = "10";
    ASSERT_EQ(Calcule(), std::nullopt);
    const auto texts = Draw({-5, 110});
    // 110 mm less 5 * 10 / 5 mm
    EXPECT_NEAR(texts.front().y, 100 * 56.7, 1e-9);
    EXPECT_EQ(texts.size(), 24U);
}

TEST_F(ListeTest, OfThousandsOfRibsOnlyTheSeenOnesAreDrawn) {
    typed[kNervNbInter] = "32767";
    ASSERT_EQ(Calcule(), std::nullopt);
    const double seen = 10 * 230.0;
    auto texts = Draw({0, 2, seen});
    EXPECT_EQ(texts.front().text, " 1");
    // from 113.4 on, the tenth line begins at 2183.4 and the eleventh beyond the end
    EXPECT_EQ(texts.size(), 20U);
    // 20 steps lift the list by 20 * 56.7 * 32767 / 5 units, which are 32310.6 lines with the top.
    texts = Draw({-20, 2, seen});
    EXPECT_EQ(texts.front().text, " 32311");
    EXPECT_GT(texts.front().y, -230.0);
    EXPECT_LE(texts.front().y, 0.0);
    EXPECT_LE(texts.size(), 22U);
}

TEST_F(ListeTest, ScrolledOutOfSightItIsEmpty) {
    ASSERT_EQ(Calcule(), std::nullopt);
    EXPECT_TRUE(Draw({-20000, 2, 1000}).empty());
    EXPECT_TRUE(Draw({0, 200, 1000}).empty());
}

} // namespace
} // namespace loftwing
