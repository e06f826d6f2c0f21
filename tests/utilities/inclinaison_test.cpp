#include "utilities/inclinaison.h"

#include "base/number_text.h"
#include "support/failures.h"
#include "support/words.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

const char *const kInclinedTitle = "Inclined";

class Inclined : public testing::Test {
  protected:
    Inclined() {
        profil.NomProfil = "e205";
        for (const auto &[x, y] : {std::pair(1.0, 0.01), std::pair(0.0, 0.0), std::pair(0.3, -0.05),
                                   std::pair(1.0, -0.01)}) {
            profil.ProfilX.Append(x);
            profil.ProfilY.Append(y);
            ++profil.NbPoints;
        }
    }

    std::optional<float> Angle(const std::string &typed) const {
        return PrendAngleDiedre(typed, words.messages, kInclinedTitle);
    }
    void Expect(const std::string &text) {
        words.platform.Expect(
            BoxAnswer::ok, {.text = text, .title = kInclinedTitle, .icon = BoxIcon::information});
    }

    Words words{"[FrmInclinaisonNervure]\n6=No angle\n7=At most\n"};
    ProfilChoisi profil;
};

TEST_F(Inclined, AnAngleThatIsEmptyOrZeroIsMissing) {
    for (const char *typed : {"", "0", ".", "0.00"}) {
        Expect("No angle");
        EXPECT_EQ(Angle(typed), std::nullopt) << typed;
    }
}

TEST_F(Inclined, NinetyDegreesAreTooMuch) {
    for (const char *typed : {"90", "91", "89.9999999"}) {
        Expect("At most 89° !");
        EXPECT_EQ(Angle(typed), std::nullopt) << typed;
    }
    EXPECT_EQ(Angle("89.99"), 89.99F);
    EXPECT_EQ(Angle("5.5"), 5.5F);
}

TEST_F(Inclined, ANumberBeyond32BitsFails) {
    EXPECT_EQ(FailureOf([this] { Angle("9" + std::string(40, '0')); }), kOverflow);
}

TEST_F(Inclined, TheNameHasTheAngleInWholeDegrees) {
    EXPECT_EQ(NomIncline("e205", 5.5F), "e205_ 6.dat");
    EXPECT_EQ(NomIncline("e205", 30.0F), "e205_ 30.dat");
}

TEST_F(Inclined, HeightsGrowByTheCosine) {
    // The cosine of 60 degrees is a half.
    EXPECT_EQ(TexteIncline(60.0F, profil), "diedre  60.00°\r\n"
                                           "1.00000000  0.02000000\r\n"
                                           "0.00000000  0.00000000\r\n"
                                           "0.30000000  -0.10000000\r\n"
                                           "1.00000000  -0.02000000\r\n");
}

TEST_F(Inclined, NearlyUprightTheyGrowByThousands) {
    // 1 / cos of 89.99 degrees is about 1 / 0.0001745 = 5730.
    const std::string text = TexteIncline(89.99F, profil);
    EXPECT_EQ(text.substr(0, text.find('\n') + 1), "diedre  89.99°\r\n");
    const double grown = LeadingNumber(text.substr(text.find("  ", 20) + 2));
    EXPECT_NEAR(grown, 57.3, 0.1);
}

} // namespace
} // namespace loftwing
