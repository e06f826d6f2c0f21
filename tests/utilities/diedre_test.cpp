#include "utilities/diedre.h"

#include "support/failures.h"
#include "support/words.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class DiedreTest : public testing::Test {
  protected:
    Words words{"[FrmDiedre]\r\n3=Limit\r\n[Message]\r\n20=Wrong : \r\n"};
    std::string Unite{kUniteMm};
    TextesDiedre textes = {"", "", ""};

    bool Calcule(int champ) {
        return CalculeDiedre(textes, champ, {Unite, words.messages}, "Dihedral");
    }
    void ExpectLimit() { words.platform.Expect(BoxAnswer::ok); }
};

TEST_F(DiedreTest, TheHeightIsTheTangentTimesTheLength) {
    textes = {"45", "1200", ""};
    EXPECT_TRUE(Calcule(kDiedreHauteur));
    EXPECT_EQ(textes[kDiedreHauteur], "1 200.");
    textes = {"30", "100", "old"};
    EXPECT_TRUE(Calcule(kDiedreHauteur));
    EXPECT_EQ(textes[kDiedreHauteur], " 57.735"); // 100 / sqrt(3)
}

TEST_F(DiedreTest, TheLengthIsTheHeightOverTheTangent) {
    textes = {"30", "", "100"};
    EXPECT_TRUE(Calcule(kDiedreLongueur));
    EXPECT_EQ(textes[kDiedreLongueur], " 173.205"); // 100 * sqrt(3)
}

TEST_F(DiedreTest, TheAngleHasTwoDecimals) {
    textes = {"", "100", "100"};
    EXPECT_TRUE(Calcule(kDiedreAngle));
    EXPECT_EQ(textes[kDiedreAngle], " 45.00");
    textes = {"", "1000", "87.5"};
    EXPECT_TRUE(Calcule(kDiedreAngle));
    EXPECT_EQ(textes[kDiedreAngle], " 5.00"); // atan 0.0875 = 5.0006 degrees
}

TEST_F(DiedreTest, AComputedTextIsReadAgain) {
    textes = {" 45.00", " 1 250.", ""};
    EXPECT_TRUE(Calcule(kDiedreHauteur));
    EXPECT_EQ(textes[kDiedreHauteur], "1 250.");
}

TEST_F(DiedreTest, AnAngleOf89PassesWithoutABox) {
    textes = {"89", "100", ""};
    EXPECT_TRUE(Calcule(kDiedreHauteur));
    EXPECT_TRUE(words.platform.boxes.empty());
    EXPECT_EQ(textes[kDiedreHauteur], "5 728.996"); // tan 89 = 57.28996163
    EXPECT_EQ(textes[kDiedreAngle], "89");
}

TEST_F(DiedreTest, AboveTheLimitTheFieldChangesButTheAngleTypedCounts) {
    ExpectLimit();
    textes = {"89.5", "100", ""};
    EXPECT_TRUE(Calcule(kDiedreHauteur));
    EXPECT_EQ(words.LastBox().text, "Limit   89°");
    EXPECT_EQ(words.LastBox().title, "Dihedral");
    EXPECT_EQ(words.LastBox().icon, BoxIcon::information);
    EXPECT_EQ(textes[kDiedreAngle], "89");
    EXPECT_EQ(textes[kDiedreHauteur], "11 458.865"); // tan 89.5 = 114.5886501
    ExpectLimit();
    textes = {"89.5", "", "100"};
    EXPECT_TRUE(Calcule(kDiedreLongueur));
    EXPECT_EQ(textes[kDiedreAngle], "89");
    EXPECT_EQ(textes[kDiedreLongueur], " .873"); // 100 / 114.5886501
}

TEST_F(DiedreTest, AnEmptyAngleReadsZero) {
    textes = {"", "100", ""};
    EXPECT_TRUE(Calcule(kDiedreHauteur));
    EXPECT_EQ(textes[kDiedreHauteur], "0");
    textes = {"", "kept", "100"};
    EXPECT_FALSE(Calcule(kDiedreLongueur));
    EXPECT_EQ(textes[kDiedreLongueur], "kept");
}

TEST_F(DiedreTest, ZerosGiveNoAngleAndNoLength) {
    textes = {"kept", "0", "5"};
    EXPECT_FALSE(Calcule(kDiedreAngle));
    textes = {"kept", "5", ""};
    EXPECT_FALSE(Calcule(kDiedreAngle));
    EXPECT_EQ(textes[kDiedreAngle], "kept");
    textes = {"95", "kept", "0"};
    EXPECT_FALSE(Calcule(kDiedreLongueur));
    EXPECT_EQ(textes[kDiedreAngle], "95"); // nothing happens, not even the limit
}

TEST_F(DiedreTest, InchesTakeAndShowFractions) {
    Unite = kUniteIn;
    textes = {"", "12.1/2", "12.1/2"};
    EXPECT_TRUE(Calcule(kDiedreAngle));
    EXPECT_EQ(textes[kDiedreAngle], " 45.00");
    textes = {"30", "10", ""};
    EXPECT_TRUE(Calcule(kDiedreHauteur));
    EXPECT_EQ(textes[kDiedreHauteur], " 5.774");
}

TEST_F(DiedreTest, AResultBeyondAllNumbersOverflows) {
    textes = {"89", "1E308", "kept"};
    EXPECT_EQ(FailureOf([this] { Calcule(kDiedreHauteur); }), kOverflow);
    EXPECT_EQ(textes[kDiedreHauteur], "kept");
}

} // namespace
} // namespace loftwing
