#include "core/units.h"

#include "base/number_text.h"
#include "support/failures.h"
#include "support/words.h"

#include <numeric>

namespace loftwing {
namespace {

const std::string kMm{kUniteMm};
const std::string kIn{kUniteIn};

class Units : public testing::Test {
  protected:
    Words words{"[Message]\n20=Wrong entry\n"};
    Saisie mm{kMm, words.messages};
    Saisie in{kIn, words.messages};

    std::string InInches(const std::string &text) { return VersMm(text, in); }
    static std::string Shown(const std::string &text) { return DepuisMm(text, kIn); }
};

TEST_F(Units, AnyTextPassesUnchangedInMmInBothDirections) {
    for (const char *text : {"", "0", "200", "12.", ".", "/8", "2./8", "abc", " 1 234.5 ", "50%",
                             "3/8", "-.5", "1e400"}) {
        EXPECT_EQ(VersMm(text, mm), text);
        EXPECT_EQ(DepuisMm(text, kMm), text);
    }
}

TEST_F(Units, InchesComeAsDecimalsOrFractions) {
    EXPECT_EQ(InInches("1"), "25.4");
    EXPECT_EQ(InInches("1."), "25.4");
    EXPECT_EQ(InInches("1.5"), "38.1");
    EXPECT_EQ(InInches("3/8"), "9.525");
    EXPECT_EQ(InInches("2.3/8"), "60.325");
    EXPECT_EQ(InInches("8.1/2"), "215.9");
    EXPECT_EQ(InInches("1/64"), "0.396875");
    EXPECT_EQ(InInches("0"), "0");
    EXPECT_EQ(InInches("0.0"), "0");
    EXPECT_EQ(InInches(""), "");
}

TEST_F(Units, ALonePointInInchesIsZero) {
    EXPECT_EQ(InInches("."), "0");
    EXPECT_EQ(NombreMm(".", in), 0.0);
}

TEST_F(Units, SmallInchesGetTheZeroBeforeTheirPoint) {
    EXPECT_EQ(InInches(".01"), "0.254");
    EXPECT_EQ(InInches("1/100"), "0.254");
    EXPECT_EQ(InInches("-.01"), "-.254") << "only a text that begins with the point";
}

TEST_F(Units, AFractionWithoutNumeratorInFrontIsRefused) {
    words.platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(InInches("/8"), "");
    EXPECT_EQ(words.LastBox().text, "Wrong entry\nxx.yy/zz ou xx.yy");
    EXPECT_EQ(words.LastBox().title, "Enter error");
}

TEST_F(Units, APointRightBeforeTheSlashIsRefused) {
    words.platform.Expect(BoxAnswer::ok);
    words.platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(InInches("2./8"), "");
    EXPECT_EQ(words.LastBox().title, "Enter error");
    EXPECT_EQ(NombreMm("2./8", in), 0.0) << "a refused entry reads as 0";
}

TEST_F(Units, ASlashWithNothingBehindStaysAsTyped) {
    EXPECT_EQ(InInches("2.3/"), "2.3/");
    EXPECT_EQ(NombreMm("2.3/", in), 2.3) << "and reads as mm";
    EXPECT_EQ(InInches("3/"), "3/");
    EXPECT_EQ(InInches(".3/"), "0.3/");
}

TEST_F(Units, ADenominatorOfZeroIsAFailure) {
    EXPECT_EQ(FailureOf([&] { InInches("1/0"); }), kDivisionByZero);
    EXPECT_EQ(FailureOf([&] { InInches("2.3/0"); }), kDivisionByZero);
    EXPECT_EQ(FailureOf([&] { InInches("1/x"); }), kDivisionByZero);
}

TEST_F(Units, ANumberBeyondAllNumbersIsAFailure) {
    EXPECT_EQ(FailureOf([&] { InInches("1e308"); }), kOverflow);
    EXPECT_EQ(FailureOf([&] { InInches("1e400"); }), kOverflow);
    EXPECT_EQ(FailureOf([&] { NombreMm("1e400", mm); }), kOverflow);
}

TEST_F(Units, APointBehindTheSlashBelongsToTheWholePart) {
    // Whole part: the text before the point, "3/8", which reads 3; no numerator; denominator 8.5.
    EXPECT_EQ(InInches("3/8.5"), "76.2");
}

TEST_F(Units, ASecondPointEndsTheNumber) {
    EXPECT_EQ(InInches("1.2.3"), "30.48");
    // The numerator "2.1/" reads 2.1: 3 + 2.1/2 inches.
    EXPECT_EQ(InInches("3.2.1/2"), "102.87");
}

TEST_F(Units, TheSignBelongsToTheWholePartAlone) {
    EXPECT_EQ(InInches("-1"), "-25.4");
    EXPECT_EQ(InInches("-3/8"), "-9.525");
    EXPECT_EQ(InInches("-2.3/8"), "-41.275") << "-2 + 3/8";
}

TEST_F(Units, MmShowInInchesAsFractionsOr3Decimals) {
    EXPECT_EQ(Shown("25.4"), "1");
    EXPECT_EQ(Shown("38.1"), "1.1/2");
    EXPECT_EQ(Shown("9.525"), "3/8");
    EXPECT_EQ(Shown("60.325"), "2.3/8");
    EXPECT_EQ(Shown("10"), "0.394");
    EXPECT_EQ(Shown("60.452"), "2.38");
    EXPECT_EQ(Shown("254."), "10");
    EXPECT_EQ(Shown("25400"), "1 000");
    EXPECT_EQ(Shown("30000"), "1 181.102");
    EXPECT_EQ(Shown(""), "");
}

TEST_F(Units, ZeroShowsAsZeroHoweverItIsWritten) {
    for (const char *text : {"0", "0.0", ".0", "0.", ".", "-0", "abc"}) {
        EXPECT_EQ(Shown(text), "0") << text;
    }
}

TEST_F(Units, WhatRoundsToZeroShowsAsZero) {
    EXPECT_EQ(Shown("0.0001"), "0");
    EXPECT_EQ(Shown("0.0126"), "0") << "0.00049606 in";
    EXPECT_EQ(Shown("0.0128"), "0.001") << "0.00050394 in";
}

TEST_F(Units, TheLastDenominatorIs64) {
    EXPECT_EQ(DepuisMm(25.4 / 64, kIn), "1/64");
    EXPECT_EQ(DepuisMm(25.4 / 128, kIn), "0.008") << "0.0078125 in";
    EXPECT_EQ(DepuisMm(25.4 * 3 + 25.4 / 128, kIn), "3.008");
}

TEST_F(Units, NegativeLengthsKeepTheirSignInFront) {
    EXPECT_EQ(Shown("-60.325"), "-2.3/8");
    EXPECT_EQ(Shown("-12.7"), "-.1/2") << "only a text that begins with the point loses it";
    EXPECT_EQ(Shown("-10"), "- .394") << "the picture's blank stands behind the minus";
}

TEST_F(Units, NumbersShowByTheirText) {
    EXPECT_EQ(DepuisMm(0.0, kIn), "0");
    EXPECT_EQ(DepuisMm(0.0F, kMm), "0");
    EXPECT_EQ(DepuisMm(0.375, kMm), "0.375");
    EXPECT_EQ(DepuisMm(200.0 / 3.0, kMm), "66.6666666666667");
    EXPECT_EQ(DepuisMm(200.0F / 3.0F, kMm), "66.66666");
    EXPECT_EQ(DepuisMm(9.525F, kIn), "3/8") << "of its 7 digits, not of what the bits are worth";
    EXPECT_EQ(DepuisMm(static_cast<double>(9.525F), kIn), "0.375");
}

TEST_F(Units, ATextInForceStandsAsTyped) {
    EXPECT_EQ(TexteEnVigueur("12.50", 12.5F, kMm), "12.50");
    EXPECT_EQ(TexteEnVigueur("", 0, kMm), "");
    EXPECT_EQ(TexteEnVigueur("wide", 0, kMm), "wide");
    EXPECT_EQ(TexteEnVigueur("2.3/8", 60.325F, kIn), "2.3/8");
    // A chord from a title has more digits than its text.
    EXPECT_EQ(TexteEnVigueur(" 123.4568", 123.45678F, kMm), " 123.4568");
    EXPECT_EQ(TexteEnVigueur("8.333", 211.6658F, kIn), "8.333");
}

TEST_F(Units, ARefusedTextGivesWayToWhatIsInForce) {
    EXPECT_EQ(TexteEnVigueur("0", 180.5F, kMm), "180.5");
    EXPECT_EQ(TexteEnVigueur("60", 50, kMm), "50");
    EXPECT_EQ(TexteEnVigueur("300", 0, kMm), "0");
    EXPECT_EQ(TexteEnVigueur("1E60", 7, kMm), "7") << "more than 32 bits";
    EXPECT_EQ(TexteEnVigueur("0", 60.325F, kIn), "2.3/8");
    EXPECT_EQ(TexteEnVigueur("2./8", 0, kIn), "0") << "counts as 0, but would be refused again";
    EXPECT_EQ(TexteEnVigueur("1/0", 25.4F, kIn), "1");
}

/// n/64 inch as a builder writes it.
std::string Ruler(int n) {
    const int whole = n / 64;
    const int rest = n % 64;
    if (rest == 0) {
        return std::to_string(whole);
    }
    const int common = std::gcd(rest, 64);
    return (whole > 0 ? std::to_string(whole) + '.' : std::string()) +
           std::to_string(rest / common) + '/' + std::to_string(64 / common);
}

TEST_F(Units, EveryMultipleOf64thsMakesTheRoundTrip) {
    for (int n = 0; n <= 64 * 100; ++n) {
        const double length = n / 64.0 * 25.4;
        const std::string shown = DepuisMm(length, kIn);
        ASSERT_EQ(shown, Ruler(n));
        ASSERT_EQ(NumberText(NombreMm(shown, in)), NumberText(length)) << shown;
    }
}

TEST_F(Units, NoOtherLengthShowsAsAFraction) {
    for (int n = 1; n <= 128 * 50; n += 2) { // odd multiples of 1/128
        const std::string shown = DepuisMm(n / 128.0 * 25.4, kIn);
        ASSERT_EQ(shown.find('/'), std::string::npos) << shown;
    }
}

TEST_F(Units, ALengthIsStoredAsTypedAndAsMm) {
    std::string afich = "200";
    float number = 200;
    StockeLongueur("8.1/2", in, afich, number);
    EXPECT_EQ(afich, "8.1/2");
    EXPECT_EQ(number, 215.9F);
    StockeLongueur(" 1 234.5x", mm, afich, number);
    EXPECT_EQ(afich, " 1 234.5x");
    EXPECT_EQ(number, 1234.5F);
}

TEST_F(Units, ARefusedLengthIsStoredAsZero) {
    std::string afich;
    float number = 7;
    words.platform.Expect(BoxAnswer::ok);
    StockeLongueur("/8", in, afich, number);
    EXPECT_EQ(afich, "/8");
    EXPECT_EQ(number, 0.0F);
}

TEST_F(Units, AFailedLengthIsStoredAsTextAlone) {
    std::string afich = "2";
    float number = 50.8F;
    EXPECT_EQ(FailureOf([&] { StockeLongueur("1/0", in, afich, number); }), kDivisionByZero);
    EXPECT_EQ(afich, "1/0");
    EXPECT_EQ(number, 50.8F);
    EXPECT_EQ(FailureOf([&] { StockeLongueur("1e39", mm, afich, number); }), kOverflow);
}

TEST_F(Units, ComputedLengthsHaveTwoDecimalsInMm) {
    EXPECT_EQ(LongueurCalculee(12.3, kMm), " 12.30");
    EXPECT_EQ(LongueurCalculee(0.0, kMm), " .00");
    EXPECT_EQ(LongueurCalculee(12.7, kIn), "1/2");
    EXPECT_EQ(LongueurCalculee(0.0, kIn), "0");
}

TEST_F(Units, FractionsAndEmptyTextsPassAPictureUnchanged) {
    EXPECT_EQ(FormatAffiche("1.1/2", kPictureTwoFixed), "1.1/2");
    EXPECT_EQ(FormatAffiche("", kPictureTwoFixed), "");
    EXPECT_EQ(FormatAffiche("12.3", kPictureTwoFixed), " 12.30");
    EXPECT_EQ(FormatAffiche("1 181.102", kPictureTwoFixed), "1 181.10");
}

TEST_F(Units, KeySetsAreTheExactCharacters) {
    EXPECT_EQ(kTouchesEntier, "1234567890");
    EXPECT_EQ(kTouchesPositif, "1234567890.");
    EXPECT_EQ(kTouchesFraction, "1234567890./");
    EXPECT_EQ(kTouchesSigne, "1234567890.-");
    EXPECT_EQ(kTouchesFractionSigne, "1234567890./-");
    EXPECT_EQ(kTouchesPourcent, "1234567890.%");
    EXPECT_EQ(kTouchesFractionPourcent, "1234567890./%");
}

TEST_F(Units, OnlyInchesTakeTheSlash) {
    EXPECT_EQ(TouchesSelonUnite(kMm, kTouchesPositif, kTouchesFraction), kTouchesPositif);
    EXPECT_EQ(TouchesSelonUnite(kIn, kTouchesPositif, kTouchesFraction), kTouchesFraction);
}

} // namespace
} // namespace loftwing
