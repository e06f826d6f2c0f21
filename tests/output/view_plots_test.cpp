#include "output/view_plots.h"

#include "output/rib_plot_fixture.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

constexpr unsigned kProfil1 = 0x800080; // colour 5
constexpr unsigned kProfil2 = 0x0000FF; // colour 9
constexpr double kU = 56.7;

/// Chord 100 mm: 5670 units from x 283.5, reference line at y 1000, which isn't shown.
class ViewPlots : public RibPlot {
  protected:
    ViewPlots() {
        compare.CompareNom1 = "one";
        compare.CompareNom2 = "two";
        for (const double x : {1.0, 0.0, 1.0}) {
            compare.CompareX1.Append(x);
            compare.CompareY1.Append(x == 0.0 ? 0.1 : 0.0);
        }
        compare.CompareNb1 = 3;
        for (const double x : {1.0, 0.5}) {
            compare.CompareX2.Append(x);
            compare.CompareY2.Append(-0.2 * x);
        }
        compare.CompareNb2 = 2;
    }

    bool Compare() { return PrintRoutine2(world.On(device), compare, 1.0); }
    bool EpCourb() { return PrintRoutineEpcourb(world.On(device), 1.0); }
    bool Couple() { return PrintRoutineCouple(world.On(device), 1.0); }

    /// What Compare draws at a zoom of 1.
    static std::vector<naive::Drawn> Compared() {
        const std::string first = "<MainTolbar 11> #1 : one     ";
        const double x = 5 * kU + 283.5;
        const double past = x + MeasuredAdvance(first, {"Arial", 7.2});
        return {TextOf(x, 1000 - 4 * kU, first, 7.2, kProfil1),
                TextOf(past, 1000 - 4 * kU, "<MainTolbar 11> #2 : two", 7.2, kProfil2),
                LineOf(5953.5, 1000, 283.5, 433, kProfil1),
                LineOf(283.5, 433, 5953.5, 1000, kProfil1),
                LineOf(5953.5, 2134, 3118.5, 1567, kProfil2)};
    }

    void TakePoints(const Points &points) {
        for (const auto &[x, y] : points) {
            world.rib.ProfilX.Append(x);
            world.rib.ProfilY.Append(y);
        }
        world.rib.NbPoints = static_cast<std::int16_t>(points.size());
    }
    void ExpectReport(const std::string &label) {
        ASSERT_EQ(world.platform.boxes.size(), 1U);
        EXPECT_EQ(world.platform.boxes[0].title, "<Erreur 1>" + label);
        EXPECT_EQ(world.platform.boxes[0].text.rfind("<Erreur 3> # 9 <Erreur 2>", 0), 0U);
    }

    Comparaison compare;
};

TEST_F(ViewPlots, AComparisonShowsBothContoursUnderTheirNames) {
    ASSERT_TRUE(Compare());
    ExpectDrawn(Drawn(device), Compared());
}

TEST_F(ViewPlots, AComparisonIsNeverInverted) {
    world.rib.AffHaut = true;
    ASSERT_TRUE(Compare());
    ExpectDrawn(Drawn(device), Compared());
}

TEST_F(ViewPlots, TheReferenceLineOvershootsByOneUnitInItsStyle) {
    world.rib.AffLignRef = true;
    ASSERT_TRUE(Compare());
    std::vector<naive::Drawn> wanted = Compared();
    wanted.insert(wanted.begin() + 2, LineOf(282.5, 1000, 5954.5, 1000, kBrightRed, 3));
    ExpectDrawn(Drawn(device), wanted);
}

TEST_F(ViewPlots, ComparedAirfoilsHaveStylesAndColoursOfTheirOwn) {
    world.settings.TraitDe(Element::profil1) = {2, 1, 3};
    world.settings.TraitDe(Element::profil2) = {4, 2, 3};
    ASSERT_TRUE(Compare());
    std::vector<naive::Drawn> wanted = Compared();
    wanted[0].colour = wanted[2].colour = wanted[3].colour = 0x008000;
    wanted[2].style = wanted[3].style = 1;
    wanted[1].colour = wanted[4].colour = 0x800000;
    wanted[4].style = 2; // but the width of every line is 1
    ExpectDrawn(Drawn(device), wanted);
    EXPECT_EQ(device.DrawStyle, 0);
}

TEST_F(ViewPlots, NamesGrowWithTheZoom) {
    world.rib.Zoom = 2;
    ASSERT_TRUE(Compare());
    const naive::Drawn name = Drawn(device).front();
    EXPECT_DOUBLE_EQ(name.x1, 2 * kU * 5 + 283.5);
    EXPECT_DOUBLE_EQ(name.y1, 1000 - 2 * kU * 4);
    EXPECT_DOUBLE_EQ(name.size, 14.4);
}

TEST_F(ViewPlots, ACountBeyondTheListIsReportedUnderEachRoutinesLabel) {
    compare.CompareNb2 = 3;
    world.platform.Expect(BoxAnswer::ok);
    EXPECT_FALSE(Compare());
    ExpectReport(" Main/PrintRoutine2");
    world.platform.boxes.clear();
    world.rib.NbContour = 6;
    world.platform.Expect(BoxAnswer::ok);
    EXPECT_FALSE(EpCourb());
    ExpectReport(" Main/PrintRoutineEpcourb");
    world.platform.boxes.clear();
    world.rib.NbPoints = 2;
    world.platform.Expect(BoxAnswer::ok);
    EXPECT_FALSE(Couple());
    ExpectReport(" Main/PrintRoutineCouple");
}

TEST_F(ViewPlots, TheNewSectionIsDrawnThroughAllStationsAndThenTheContour) {
    RibModel &rib = world.rib;
    rib.NouvExtrados.fill(0.1);
    rib.NouvIntrados.fill(-0.2);
    rib.NouvExtrados[400] = 0.3;
    rib.NouvEpaisseur = 0.3;
    rib.NouvCambrure = 0.05;
    world.settings.TraitDe(Element::profil).style = 1;
    world.settings.TraitDe(Element::coffrage).style = 2;
    ASSERT_TRUE(EpCourb());
    const std::vector<naive::Drawn> drawn = Drawn(device);
    ASSERT_EQ(drawn.size(), 2U + 400 + 400 + 4);
    EXPECT_EQ(drawn[0].words, "<MainTolbar 11> : test     ");
    EXPECT_DOUBLE_EQ(drawn[0].x1, 10 * kU + 283.5);
    EXPECT_EQ(drawn[0].colour, kProfil1);
    EXPECT_EQ(drawn[1].words, "test<FrmEpCourb 17> : 30% <FrmEpCourb 18> : 5% ");
    EXPECT_EQ(drawn[1].colour, kProfil2);
    // From the trailing edge in steps of 5670 / 400.
    ExpectDrawn({drawn[2], drawn[401], drawn[402]},
                {LineOf(5953.5, 433, 5939.325, 433, kProfil2, 2),
                 LineOf(297.675, 433, 283.5, -701, kProfil2, 2),
                 LineOf(5953.5, 2134, 5939.325, 2134, kProfil2, 2)});
    // The contour (1, .01) (.5, .05) ...
    ExpectDrawn({drawn[802]}, {LineOf(5953.5, 943.3, 3118.5, 716.5, kProfil1, 2)});
}

TEST_F(ViewPlots, ASimplePlotOfFivePointsHasFourSegments) {
    TakePoints({{1, 0.01}, {0.5, 0.1}, {0, 0}, {0.5, -0.1}, {1, -0.01}});
    ASSERT_TRUE(Couple());
    ExpectDrawn(Drawn(device), {LineOf(5953.5, 943.3, 3118.5, 433, kBlack),
                                LineOf(3118.5, 433, 283.5, 1000, kBlack),
                                LineOf(283.5, 1000, 3118.5, 1567, kBlack),
                                LineOf(3118.5, 1567, 5953.5, 1056.7, kBlack)});
}

TEST_F(ViewPlots, ASimplePlotIsInvertedAndCarriesTheInsertedText) {
    TakePoints({{1, 0}, {0, 0.1}});
    world.rib.AffHaut = true;
    world.rib.texte.InsTexte = "Root";
    world.rib.texte.InsTextX = 10;
    world.rib.texte.InsTextY = 2;
    world.rib.texte.TailleFont = 9;
    ASSERT_TRUE(Couple());
    ExpectDrawn(Drawn(device), {LineOf(5953.5, 1000, 283.5, 1567, kBlack),
                                TextOf(10 * kU + 283.5, 1000 - 5 * kU, "Root", 9)});
}

TEST_F(ViewPlots, TheRoutineIsChosenInTheOrderCompareThicknessRibSimple) {
    RibModel &rib = world.rib;
    TakePoints({{1, 0}, {0, 0.1}});
    const auto first_words = [this] {
        Recording surface;
        EXPECT_TRUE(TraceVue(world.On(surface), compare));
        const std::vector<naive::Drawn> drawn = Drawn(surface);
        return drawn.empty() ? "" : drawn.front().words;
    };
    rib.ModeCompare = rib.ModeEpCourb = rib.ModeCouple = true;
    EXPECT_EQ(first_words(), "<MainTolbar 11> #1 : one     ");
    rib.ModeCompare = false;
    EXPECT_EQ(first_words(), "<MainTolbar 11> : test     ");
    rib.ModeEpCourb = false;
    Recording simple;
    ASSERT_TRUE(TraceVue(world.On(simple), compare));
    EXPECT_EQ(Drawn(simple).size(), 1U);
    rib.ModeCouple = false;
    Recording of_rib;
    ASSERT_TRUE(TraceVue(world.On(of_rib), compare));
    EXPECT_EQ(Drawn(of_rib).size(), 2U); // the two edge lines
}

} // namespace
} // namespace loftwing
