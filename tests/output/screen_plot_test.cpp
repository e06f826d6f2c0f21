#include "output/screen_plot.h"

#include "output/recording.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

/// A flat rib of 100 mm whose highest point is 10 % of the chord above the line.
class ScreenPlot : public testing::Test {
  protected:
    ScreenPlot() {
        world.rib.corde = 100;
        world.rib.cordeAfich = "100";
        world.rib.ExtradosMaxi = 0.1;
        FlatSurfaces(world.rib, 0.05, -0.05);
        for (const double x : {1.0, 0.0, 1.0}) {
            world.rib.ContourX.Append(x);
            world.rib.ContourY.Append(0);
        }
        world.rib.NbContour = 3;
    }
    Affichage Show() { return afficheRib(world.On(device)); }

    RibWorld world;
    Recording device;
};

TEST_F(ScreenPlot, HighestPointLies15MmBelowTheTop) {
    EXPECT_EQ(Show(), Affichage::dessine);
    EXPECT_EQ(world.plot.CordeEchelle, 5670.0F);
    EXPECT_EQ(world.plot.OrigineX, 283.5F);
    EXPECT_EQ(world.plot.OrigineY, 567.0F + 850.5F);
    EXPECT_FALSE(device.Operations().empty());
}

TEST_F(ScreenPlot, ZoomScalesTheRibAndNotTheMargins) {
    world.rib.Zoom = 0.5F;
    EXPECT_EQ(Show(), Affichage::dessine);
    EXPECT_EQ(world.plot.CordeEchelle, 2835.0F);
    EXPECT_EQ(world.plot.OrigineX, 283.5F);
    EXPECT_EQ(world.plot.OrigineY, 283.5F + 850.5F);
}

TEST_F(ScreenPlot, ScrollMovesTheOriginByHalfChords) {
    world.rib.Zoom = 2;
    world.rib.DecalX = -3; // of 100 * 2 / 2 units
    world.rib.DecalY = 4;
    EXPECT_EQ(Show(), Affichage::dessine);
    EXPECT_EQ(world.plot.OrigineX, 283.5F - 300.0F);
    EXPECT_EQ(world.plot.OrigineY, -400.0F + 1134.0F + 850.5F);
}

TEST_F(ScreenPlot, FoamTemplateLowersTheOriginByHalfItsHeight) {
    world.rib.TypeGabarit = kGabaritMousse;
    world.rib.bloc.HTbloc = -20; // its size counts
    world.rib.Zoom = 2;
    Show();
    EXPECT_EQ(world.plot.OrigineY, 1134.0F + 850.5F + 1134.0F);
}

TEST_F(ScreenPlot, StocksThatFillTheChordStillDraw) {
    world.rib.EpBA = 60;
    world.rib.EpBF = 40;
    EXPECT_EQ(Show(), Affichage::dessine);
}

TEST_F(ScreenPlot, StocksBeyondTheChordAreRefusedOnEachRedraw) {
    world.rib.EpBA = 60;
    world.rib.EpBF = 40.5F;
    world.plot.OrigineY = 77;
    for (const float zoom : {1.0F, 2.0F}) {
        world.rib.Zoom = zoom; // a mere zoom asks again
        world.platform.Expect(BoxAnswer::ok);
        EXPECT_EQ(Show(), Affichage::refuse);
        const MessageBox &box = world.platform.boxes.back();
        EXPECT_EQ(box.text, "<FrmMainMessage 13>");
        EXPECT_EQ(box.title, "<FrmMainMessage 14>");
        EXPECT_EQ(box.icon, BoxIcon::warning);
        EXPECT_EQ(box.buttons, BoxButtons::ok);
        EXPECT_EQ(world.plot.CordeEchelle, 5670.0F * zoom);
    }
    EXPECT_TRUE(device.Operations().empty());
    EXPECT_EQ(world.plot.OrigineY, 77.0F);
    EXPECT_EQ(world.rib.EpBF, 40.5F);
}

TEST_F(ScreenPlot, NothingIsShownWithoutAnAirfoilOrInASpecialView) {
    world.rib.EpBA = 1000; // would be refused
    world.rib.ProfilCharge = false;
    EXPECT_EQ(Show(), Affichage::rien);
    world.rib.ProfilCharge = true;
    for (bool RibModel::*view :
         {&RibModel::ModeCompare, &RibModel::ModeEpCourb, &RibModel::ModeCouple}) {
        world.rib.*view = true;
        EXPECT_FALSE(RibVisible(world.rib));
        EXPECT_EQ(Show(), Affichage::rien);
        world.rib.*view = false;
    }
    EXPECT_TRUE(RibVisible(world.rib));
    EXPECT_TRUE(device.Operations().empty());
}

TEST_F(ScreenPlot, FailureIsToldAndGivenBack) {
    world.settings.TraitDe(Element::ba).couleur = 20;
    world.platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Show(), Affichage::echec);
}

TEST_F(ScreenPlot, ChordBeyondAllScalesIsAFailure) {
    world.rib.corde = 3e38F;
    world.platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Show(), Affichage::echec);
    EXPECT_EQ(world.platform.boxes.front().title, "<Erreur 1> Main/PrintSubroutine");
}

TEST_F(ScreenPlot, TextsOfTheZoomListAreItsFactors) {
    const std::array<float, 7> factors = {3, 2, 1.5F, 1, 0.75F, 0.5F, 0.25F};
    ASSERT_EQ(kZoomRows.size(), factors.size());
    for (std::size_t i = 0; i < factors.size(); ++i) {
        EXPECT_EQ(FacteurZoom(kZoomRows.at(i)), factors.at(i)) << kZoomRows.at(i);
    }
    EXPECT_STREQ(kZoomRows.at(0), "Zoom 300 %");
    EXPECT_STREQ(kZoomRows.at(kZoomRow100), "Zoom 100 %");
    EXPECT_STREQ(kZoomRows.at(4), "Zoom  75 %");
    EXPECT_STREQ(kZoomRows.at(6), "Zoom  25 %");
}

TEST_F(ScreenPlot, StatusTellsNameChordAndTitle) {
    world.rib.NomProfil = "clarky";
    world.rib.EnteteProfil = "CLARK Y";
    EXPECT_EQ(TexteEtat(world.rib, world.settings, world.messages),
              "<MainTolbar 11> : clarky  <MainTolbar 13> : 100 mm <> Information : CLARK Y");
    world.settings.Unite = " in";
    world.rib.cordeAfich = "8.1/2";
    world.rib.EnteteProfil = "1.0000 0.0000"; // a file without a title
    EXPECT_EQ(TexteEtat(world.rib, world.settings, world.messages),
              "<MainTolbar 11> : clarky  <MainTolbar 13> : 8.1/2 in");
}

class ChordOfTitle : public testing::Test {
  protected:
    void Read(const std::string &title, const std::string &unit) {
        world.settings.Unite = unit;
        world.rib.corde = 200;
        world.rib.cordeAfich = "200";
        world.rib.EnteteProfil = title;
        CordeDuTitre(world.rib, {world.settings.Unite, world.messages});
    }
    RibWorld world;
};

TEST_F(ChordOfTitle, InMmTheNumberIsWrittenAnewBehindABlank) {
    Read("E205 : 187.50", " mm");
    EXPECT_EQ(world.rib.corde, 187.5F);
    EXPECT_EQ(world.rib.cordeAfich, " 187.5");
    Read("tiny:.5mm", " mm");
    EXPECT_EQ(world.rib.cordeAfich, " .5");
}

TEST_F(ChordOfTitle, InInchesTheLastTwoLettersAreTheUnit) {
    Read("E205 :8.1/2in", " in");
    EXPECT_EQ(world.rib.corde, 215.9F);
    EXPECT_EQ(world.rib.cordeAfich, "8.1/2");
    Read("E205 :125", " in"); // no unit: two digits are lost
    EXPECT_EQ(world.rib.corde, 25.4F);
    EXPECT_EQ(world.rib.cordeAfich, "1");
}

TEST_F(ChordOfTitle, TitleWithoutANumberBehindTheColonChangesNothing) {
    for (const char *title : {"NACA 2412", "Source: UIUC", "chord :", "chord : 0", ""}) {
        for (const char *unit : {" mm", " in"}) {
            Read(title, unit);
            EXPECT_EQ(world.rib.corde, 200.0F) << title;
            EXPECT_EQ(world.rib.cordeAfich, "200") << title;
        }
    }
}

} // namespace
} // namespace loftwing
