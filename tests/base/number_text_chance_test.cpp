// Numbers and texts by chance beside a second computation of them, which goes by texts alone.

#include "base/number_text.h"

#include "base/failure.h"
#include "support/naive_number_text.h"
#include "support/one_locale.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace loftwing {
namespace {

/// Values of many kinds, among them halves of the last place that pictures keep and powers of ten
/// with what lies next to them.
class ValuesByChance {
  public:
    explicit ValuesByChance(unsigned seed) : dice_(seed) {}

    unsigned Below(unsigned end) { return static_cast<unsigned>(dice_() % end); }
    double Next() {
        const double value = Size();
        return Below(2) == 0 ? value : -value;
    }

  private:
    std::mt19937_64 dice_;

    double Size() {
        switch (Below(8)) {
        case 0:
            return AnyBits();
        case 1:
            return std::ldexp(static_cast<double>(dice_() >> 11U),
                              static_cast<int>(Below(140)) - 110);
        case 2: // halves of thousandths
            return Below(2'000'001) / 2000.0;
        case 3: // halves of a decimal place
            return (Below(1'000'000'000) + 0.5) / std::pow(10.0, Below(9));
        case 4:
            return NearAPowerOfTen();
        case 5: // exact halves behind 15 digits
            return static_cast<double>(dice_() % 100'000'000'000'000'000U) /
                   static_cast<double>(std::uint64_t{1} << Below(30));
        case 6: // few bits
            return Below(64) / static_cast<double>(std::uint64_t{1} << Below(63));
        default: // what stands in drawings
            return Below(20'000'000) / 1e4 * 1.0000001;
        }
    }
    double AnyBits() {
        const double value = std::bit_cast<double>(static_cast<std::uint64_t>(dice_()));
        return std::isfinite(value) ? std::abs(value) : 0.0;
    }
    double NearAPowerOfTen() {
        double value = std::pow(10.0, static_cast<int>(Below(40)) - 20);
        const double towards = Below(2) == 0 ? 0.0 : std::numeric_limits<double>::max();
        for (unsigned steps = Below(4); steps > 0; --steps) {
            value = std::nextafter(value, towards);
        }
        return value;
    }
};

std::string PictureByChance(ValuesByChance &chance) {
    static const std::vector<std::string> kKnown = {"##0.0#####",
                                                    "##0.0#######",
                                                    "# ###.###",
                                                    "# ###.00",
                                                    "# ###0.00",
                                                    "0.0000000",
                                                    "#",
                                                    "0",
                                                    ".00",
                                                    "",
                                                    "mm",
                                                    "x#y0z.a#b0c#",
                                                    "0##.##0##",
                                                    ".",
                                                    "..#.#",
                                                    "# ### ###",
                                                    "###.####################"};
    if (chance.Below(4) != 0) {
        return kKnown[chance.Below(static_cast<unsigned>(kKnown.size()))];
    }
    std::string picture;
    for (unsigned left = chance.Below(12); left > 0; --left) {
        picture += "##00. x"[chance.Below(7)];
    }
    return picture;
}

constexpr unsigned kValues = 120000;

TEST(NumberTextByChance, IsThatOfTheSecondComputation) {
    ValuesByChance chance(11);
    for (unsigned i = 0; i < ManyInOneLocale(kValues); ++i) {
        const double value = chance.Next();
        ASSERT_EQ(NumberText(value), naive::NumberText(value, 15, true));
        ASSERT_EQ(NumberText(value, ZeroBeforePoint::no), naive::NumberText(value, 15, false));
        if (std::abs(value) < 1e38) {
            const auto single = static_cast<float>(value);
            ASSERT_EQ(NumberText(single), naive::NumberText(Wide(single), 7, true));
        }
    }
}

TEST(NumberTextByChance, FillsPicturesAsTheSecondComputationDoes) {
    ValuesByChance chance(12);
    for (unsigned i = 0; i < ManyInOneLocale(kValues); ++i) {
        const double value = chance.Next();
        const std::string picture = PictureByChance(chance);
        ASSERT_EQ(Format(value, picture), naive::Formatted(value, 15, picture))
            << value << " under \"" << picture << '"';
        if (std::abs(value) < 1e38) {
            const auto single = static_cast<float>(value);
            ASSERT_EQ(Format(single, picture), naive::Formatted(Wide(single), 7, picture))
                << single << " under \"" << picture << '"';
        }
    }
}

TEST(NumberTextByChance, RoundsDecimalsAsTheSecondComputationDoes) {
    ValuesByChance chance(13);
    for (unsigned i = 0; i < ManyInOneLocale(kValues); ++i) {
        const double value = chance.Next();
        const int decimals = 1 + static_cast<int>(chance.Below(8));
        std::string text = "before ";
        AppendFixed(text, value, decimals);
        ASSERT_EQ(text, "before " + naive::Fixed(value, decimals)) << decimals << " decimals";
    }
}

TEST(NumberTextByChance, ReadsWhatTheSecondComputationReads) {
    constexpr std::string_view kLetters = "0123456789.eE+-  5x";
    ValuesByChance chance(14);
    for (unsigned i = 0; i < ManyInOneLocale(2 * kValues); ++i) {
        std::string text;
        for (unsigned left = chance.Below(14); left > 0; --left) {
            text += kLetters[chance.Below(static_cast<unsigned>(kLetters.size()))];
        }
        const auto wanted = naive::LeadingNumber(text);
        try {
            ASSERT_EQ(std::optional(LeadingNumber(text)), wanted) << '"' << text << '"';
        } catch (const Failure &failure) {
            ASSERT_EQ(failure.number, kOverflow);
            ASSERT_FALSE(wanted) << '"' << text << '"';
        }
    }
}

TEST(AppendFormat, AddsBehindWhatIsThere) {
    std::string text = "x = ";
    AppendFormat(text, -1234.5, "# ###.00");
    EXPECT_EQ(text, "x = -1 234.50");
    AppendFormat(text, 0.25, "#0.0##");
    EXPECT_EQ(text, "x = -1 234.500.25");
}

TEST(AppendFormat, AddsNothingWhereItFails) {
    std::string text = "x = ";
    EXPECT_THROW(AppendFormat(text, std::nan(""), "#0.0"), Failure);
    EXPECT_EQ(text, "x = ");
}

std::string FourDecimals(double value) {
    std::string text;
    AppendFixed(text, value, 4);
    return text;
}

TEST(AppendFixed, LeavesOutZerosAtTheEnd) {
    EXPECT_EQ(FourDecimals(12.5), "12.5");
    EXPECT_EQ(FourDecimals(100.0), "100");
    EXPECT_EQ(FourDecimals(-0.0625), "-0.0625");
    EXPECT_EQ(FourDecimals(0.99996), "1");
    EXPECT_EQ(FourDecimals(1e300).size(), 301U);
}

TEST(AppendFixed, SetsNoMinusBeforeZero) {
    EXPECT_EQ(FourDecimals(-0.0), "0");
    EXPECT_EQ(FourDecimals(-0.00004), "0");
}

TEST(AppendFixed, RoundsHalvesToEven) {
    EXPECT_EQ(FourDecimals(0.03125), "0.0312");
    EXPECT_EQ(FourDecimals(0.09375), "0.0938");
}

TEST(AppendWhole, WritesDigitsAndAMinus) {
    std::string text;
    AppendWhole(text, 0);
    AppendWhole(text, -17);
    AppendWhole(text, 1009);
    EXPECT_EQ(text, "0-171009");
}

} // namespace
} // namespace loftwing
