#include "utilities/EpCourb.h"

#include "base/number_text.h"
#include "support/failures.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <vector>

namespace loftwing {
namespace {

class EpCourb : public testing::Test {
  protected:
    EpCourb() {
        TakeAirfoil(world, Naca(2412, 30));
        world.rib.NomProfil = "naca2412";
    }
    TextesEpCourb Open() { return OuvreEpCourb(world.rib, world.settings.Unite); }
    bool Apply(const std::string &thickness, const std::string &camber) {
        champs = {thickness, camber};
        return AppliqueEpCourb(world.rib, champs, world.messages, "title");
    }
    void ExpectBox(const std::string &text, BoxIcon icon) {
        world.platform.Expect(BoxAnswer::ok, {.text = text, .title = "title", .icon = icon});
    }
    void MakeSymmetrical() {
        RibModel &rib = world.rib;
        for (std::size_t i = 0; i <= 400; ++i) {
            rib.TabIntrados[i] = -rib.TabExtrados[i];
        }
        rib.CambrureMaxi = 0.0009;
        Open();
    }
    std::vector<std::string> Lines() {
        const std::string text = TexteEpCourb(world.rib, champs, world.messages);
        std::vector<std::string> lines;
        std::size_t from = 0;
        for (std::size_t end = text.find("\r\n"); end != std::string::npos;
             end = text.find("\r\n", from)) {
            lines.push_back(text.substr(from, end - from));
            from = end + 2;
        }
        EXPECT_EQ(from, text.size()) << "the last line is ended too";
        return lines;
    }

    RibWorld world;
    ChampsEpCourb champs;
};

TEST_F(EpCourb, OpensWithTheAirfoilsValues) {
    RibModel &rib = world.rib;
    rib.corde = 250;
    rib.EpMaxi = 0.1204;
    rib.CambrureMaxi = 0.02;
    rib.TypeGabarit = kGabaritMousse;
    rib.ModeEpCourb = true;
    const TextesEpCourb shown = Open();
    EXPECT_EQ(shown.txtEpROr, "12.04");
    EXPECT_EQ(shown.txtCourbureOr, "2.00");
    EXPECT_EQ(shown.Label4, " 30.1 mm");
    EXPECT_EQ(shown.Label5, "");
    EXPECT_EQ(shown.champs.txtEpR, "0.00");
    EXPECT_EQ(shown.champs.txtCourbure, "2.00") << "the present one";
    EXPECT_EQ(rib.TypeGabarit, kSansGabarit);
    EXPECT_FALSE(rib.ModeEpCourb);
    EXPECT_EQ(TitreEpCourb(rib, world.messages), "<FrmEpCourb 1> naca2412");
}

TEST_F(EpCourb, OpensWithTheThicknessAppliedLastAndThePresentCamber) {
    world.settings.Unite = " in";
    world.rib.corde = 254;
    world.rib.EpMaxi = 0.125; // 1.25 in
    world.rib.NouvEpaisseur = 0.1;
    world.rib.NouvCambrure = 0.035;
    world.rib.CambrureMaxi = 0.02;
    const TextesEpCourb shown = Open();
    EXPECT_EQ(shown.Label4, "1.1/4 in");
    EXPECT_EQ(shown.Label5, " 1. in");
    EXPECT_EQ(shown.champs.txtEpR, "10.00");
    EXPECT_EQ(shown.champs.txtCourbure, "2.00");
}

TEST_F(EpCourb, ACamberBelowAThousandthIsZeroForGood) {
    world.rib.CambrureMaxi = 0.001;
    EXPECT_EQ(Open().txtCourbureOr, "0.10");
    world.rib.CambrureMaxi = 0.00099;
    EXPECT_EQ(Open().txtCourbureOr, "0.00");
    EXPECT_EQ(world.rib.CambrureMaxi, 0.0);
}

TEST_F(EpCourb, AppliesBothFactorsToTheStations) {
    RibModel &rib = world.rib;
    rib.TabExtrados[100] = 0.09;
    rib.TabIntrados[100] = -0.03;
    rib.EpMaxi = 0.12;
    rib.CambrureMaxi = 0.02;
    ASSERT_TRUE(Apply("9", "3"));
    // Mean line 0.03 by 1.5, half the thickness 0.06 by 0.75.
    EXPECT_NEAR(rib.NouvExtrados[100], 0.045 + 0.045, 1e-15);
    EXPECT_NEAR(rib.NouvIntrados[100], 0.045 - 0.045, 1e-15);
    EXPECT_EQ(rib.NouvExtrados[0], 0.0);
    EXPECT_DOUBLE_EQ(rib.NouvEpaisseur, 0.09);
    EXPECT_DOUBLE_EQ(rib.NouvCambrure, 0.03);
    EXPECT_EQ(champs.txtEpR, "9.00");
    EXPECT_EQ(champs.txtCourbure, "3.00");
    EXPECT_TRUE(rib.ModeEpCourb);
}

TEST_F(EpCourb, ACamberOf0MakesASymmetricalAirfoil) {
    ASSERT_TRUE(Apply("10", "0"));
    for (std::size_t i = 0; i <= 400; ++i) {
        EXPECT_EQ(world.rib.NouvExtrados[i], -world.rib.NouvIntrados[i]) << i;
    }
}

TEST_F(EpCourb, ASymmetricalAirfoilKeepsItsCamberAndTakesTheThickness) {
    MakeSymmetrical();
    world.rib.NouvCambrure = 0.5;
    ExpectBox("<FrmEpCourb 10>", BoxIcon::information);
    ASSERT_TRUE(Apply("9", "3"));
    EXPECT_EQ(champs.txtCourbure, "0.00");
    EXPECT_EQ(world.rib.NouvCambrure, 0.0);
    EXPECT_DOUBLE_EQ(world.rib.NouvEpaisseur, 0.09);
    EXPECT_NEAR(world.rib.NouvExtrados[200], world.rib.TabExtrados[200] * 0.09 / world.rib.EpMaxi,
                1e-15);
    ASSERT_TRUE(Apply("9", "0")); // without a box
}

TEST_F(EpCourb, Refuses100ForTheCamberAndTakesItForTheThickness) {
    world.rib.ModeEpCourb = true;
    ExpectBox("<FrmEpCourb 11>100 % ", BoxIcon::information);
    EXPECT_FALSE(Apply("9", "100"));
    EXPECT_FALSE(world.rib.ModeEpCourb);
    EXPECT_EQ(world.rib.NouvCambrure, 0.0);
    EXPECT_TRUE(Apply("100", "99"));
    ExpectBox("<FrmEpCourb 11>100 % ", BoxIcon::warning);
    EXPECT_FALSE(Apply("100.01", "2"));
    EXPECT_DOUBLE_EQ(world.rib.NouvEpaisseur, 1.0) << "the refused value isn't stored";
    EXPECT_FALSE(world.rib.ModeEpCourb);
}

TEST_F(EpCourb, RefusesAThicknessOf0) {
    for (const char *typed : {"0", "", ".", "0.0"}) {
        ExpectBox("<FrmEpCourb 12>", BoxIcon::warning);
        EXPECT_FALSE(Apply(typed, "2")) << typed;
        EXPECT_FALSE(world.rib.ModeEpCourb);
    }
}

TEST_F(EpCourb, AnAirfoilWithoutThicknessIsAFailure) {
    world.rib.EpMaxi = 0;
    EXPECT_EQ(FailureOf([this] { Apply("9", "2"); }), kDivisionByZero);
}

TEST_F(EpCourb, TheCamberCanStayExactly) {
    Open();
    champs = {"6", ""};
    ASSERT_TRUE(AppliqueEpaisseur(world.rib, champs, world.messages, "title"));
    const RibModel &rib = world.rib;
    EXPECT_EQ(champs.txtCourbure, "2.00");
    EXPECT_EQ(rib.NouvCambrure, rib.CambrureMaxi);
    for (std::size_t i = 0; i <= 400; ++i) {
        EXPECT_NEAR(rib.NouvExtrados[i] + rib.NouvIntrados[i],
                    rib.TabExtrados[i] + rib.TabIntrados[i], 1e-15);
    }
}

TEST_F(EpCourb, ProposesANameWithoutASlash) {
    EXPECT_EQ(NomEpCourb(world.rib, {"9.00", "2.50"}), "naca2412_E9.00C2.50.dat");
    world.rib.NomProfil = "a/b";
    EXPECT_EQ(NomEpCourb(world.rib, {"9.00", "2.50"}), "a-b_E9.00C2.50.dat");
}

/// The file worked out anew, with the C library's numbers.
std::vector<std::string> NaiveFile(const RibModel &rib, const std::string &first) {
    std::vector<std::string> lines{first};
    float x = 1;
    const auto put = [&](double y) {
        char text[64];
        std::snprintf(text, sizeof text, "%.3f", static_cast<double>(x));
        std::string line = text;
        for (char &c : line) {
            c = c == ',' ? '.' : c;
        }
        lines.push_back(line + (y < 0 ? " " : "  ") + NumberText(y) + " ");
    };
    for (int i = 0; i <= 380; i += 4) {
        put(rib.NouvExtrados[static_cast<std::size_t>(i)]);
        x = static_cast<float>(static_cast<double>(x) - 0.01);
    }
    for (int i = 384; i <= 400; i += 2) {
        put(rib.NouvExtrados[static_cast<std::size_t>(i)]);
        x = static_cast<float>(static_cast<double>(x) - 0.005);
    }
    for (int i = 400; i >= 384; i -= 2) {
        x = static_cast<float>(static_cast<double>(x) + 0.005);
        const auto k = static_cast<std::size_t>(i);
        if (rib.NouvIntrados[k] != rib.NouvExtrados[k]) {
            put(rib.NouvIntrados[k]);
        }
    }
    for (int i = 380; i >= 0; i -= 4) {
        x = static_cast<float>(static_cast<double>(x) + 0.01);
        put(rib.NouvIntrados[static_cast<std::size_t>(i)]);
    }
    lines.emplace_back("By Loftwing");
    return lines;
}

TEST_F(EpCourb, WritesTheFileThatASecondComputationGives) {
    ASSERT_TRUE(Apply("9", "3"));
    EXPECT_EQ(Lines(),
              NaiveFile(world.rib, "naca2412 <FrmEpCourb 17> 9.00% <FrmEpCourb 18> 3.00%"));
}

TEST_F(EpCourb, WritesNoPointTwiceWhereTheSurfacesMeet) {
    RibModel &rib = world.rib;
    rib.NouvExtrados.fill(0.01);
    rib.NouvIntrados.fill(-0.01);
    EXPECT_EQ(Lines().size(), 2U + 210U);
    rib.NouvExtrados[400] = rib.NouvIntrados[400] = 0;
    EXPECT_EQ(Lines().size(), 2U + 209U);
}

TEST_F(EpCourb, StationsLieWhereTheirLinesSay) {
    RibModel &rib = world.rib;
    for (std::size_t i = 0; i <= 400; ++i) {
        rib.NouvExtrados[i] = 1 - static_cast<double>(i) / 400;
        rib.NouvIntrados[i] = -rib.NouvExtrados[i];
    }
    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(lines.size(), 2U + 209U);
    EXPECT_EQ(lines[1], "1.000  1 ");
    EXPECT_EQ(lines[2], "0.990  0.99 ");
    EXPECT_EQ(lines[97], "0.040  0.04 ");
    EXPECT_EQ(lines[98], "0.035  0.035 ");
    EXPECT_EQ(lines[106], "0.005 -0.005 ");
    EXPECT_EQ(lines[114], "0.050 -0.05 ");
    EXPECT_EQ(lines[209], "1.000 -1 ");
}

TEST_F(EpCourb, TheFirstAndTheLastPointLieOnTheLine) {
    ASSERT_TRUE(Apply("9", "3"));
    const std::vector<std::string> lines = Lines();
    EXPECT_EQ(lines[1], "1.000  0 ");
    EXPECT_EQ(lines[lines.size() - 2], "1.000  0 ");
}

TEST_F(EpCourb, ItsFileOpensAsAnAirfoilOfThoseValues) {
    ASSERT_TRUE(Apply("9", "3"));
    const TempFolder folder;
    RibWorld read;
    ASSERT_TRUE(TakeAirfoilFile(
        read, folder.File("new.dat", TexteEpCourb(world.rib, champs, world.messages))));
    EXPECT_NEAR(read.rib.EpMaxi, 0.09, 1e-4);
    EXPECT_NEAR(read.rib.CambrureMaxi, 0.03, 1e-4);
}

} // namespace
} // namespace loftwing
