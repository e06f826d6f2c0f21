#include "programme/wing_steps.h"

#include "programme/panel_ends.h"
#include "programme/plan_papier.h"
#include "support/components_text.h"
#include "support/steps_world.h"

#include <cmath>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class WingOfFiles : public StepsWorld {
  protected:
    WingOfFiles() {
        std::filesystem::copy_file(Sample("naca2412.dat"), folder.Path("airfoils/naca2412.dat"));
        for (const auto &[name, chord] :
             {std::pair("a.lfw", "240"), std::pair("b.lfw", "180"), std::pair("c.lfw", "120")}) {
            ComponentsText rib;
            rib.chord = chord;
            folder.File(name, rib.Current());
        }
        inner = Panel("inner.lfp", "a.lfw", "b.lfw", "Count=2\r\nLength=302\r\nThickness=2\r\n");
        outer = Panel("outer.lfp", "b.lfw", "c.lfw",
                      "Gaps=50 60\r\nThickness=2 2 2\r\nDihedral=5\r\nFirst=7\r\n");
    }

    std::string inner, outer;

    std::string Panel(const std::string &name, const std::string &root, const std::string &tip,
                      const std::string &more) const {
        return folder.File(name,
                           "[Panel]\r\nRoot=" + root + "\r\nTip=" + tip + "\r\nUnit=mm\r\n" + more);
    }
    AileFaite Made(const std::vector<std::string> &files, std::optional<int> first = {}) {
        return FaitAile(programme, files, first,
                        [this](const std::string &path) { return LitBout(programme, path); });
    }
};

TEST_F(WingOfFiles, PanelsStandInARowWithNumbersThatGoOn) {
    const AileFaite made = Made({inner, outer});
    EXPECT_THAT(made.refus, IsEmpty());
    EXPECT_THAT(made.avis, IsEmpty());
    ASSERT_THAT(made.aile.panneaux, SizeIs(2));
    EXPECT_EQ(made.aile.panneaux[0].nom, "inner");
    EXPECT_EQ(made.aile.panneaux[0].nervures.back().numero, 4);
    EXPECT_EQ(made.aile.panneaux[1].nervures.front().numero, 5);
    EXPECT_NEAR(made.aile.panneaux[1].x, 302, 1e-9);
    EXPECT_NEAR(made.aile.panneaux[1].longueur, 116, 1e-9);
    EXPECT_NEAR(AngleDeJoint(made.aile, 1), 5, 1e-9);
}

TEST_F(WingOfFiles, TheFirstNumberIsTheOneAskedForOrThatOfTheFirstFile) {
    EXPECT_EQ(Made({outer}).aile.panneaux.at(0).nervures.front().numero, 7);
    EXPECT_EQ(Made({outer, outer}, 20).aile.panneaux.at(1).nervures.front().numero, 23);
}

TEST_F(WingOfFiles, TheRibOfTheWindowStays) {
    ASSERT_TRUE(Read(Sample("naca0012.dat")));
    const std::string name = Rib().NomProfil;
    Rib().corde = 77;
    Made({inner, outer});
    EXPECT_EQ(Rib().NomProfil, name);
    EXPECT_EQ(Rib().corde, 77);
}

TEST_F(WingOfFiles, ChordsThatDoNotMeetAreTold) {
    const AileFaite made = Made({outer, inner});
    EXPECT_THAT(made.refus, IsEmpty());
    EXPECT_THAT(made.avis, ElementsAre(HasSubstr("inner.lfp: its root chord isn't the tip chord of "
                                                 "the panel before: 240 / 120 mm")));
}

TEST_F(WingOfFiles, WhatIsNoPanelIsNamedAndTheOthersAreMade) {
    const std::string missing = folder.Path("none.lfp");
    const std::string inches = folder.File(
        "inch.lfp", "[Panel]\r\nRoot=a.lfw\r\nTip=b.lfw\r\nUnit=in\r\nCount=2\r\nLength=9\r\n");
    const std::string many = Panel("many.lfp", "a.lfw", "b.lfw", "Count=many\r\n");
    const std::string bare = Panel("bare.lfp", "a.lfw", "b.lfw", "Count=2\r\n");
    const std::string gaps = Panel("gaps.lfp", "a.lfw", "b.lfw", "Gaps=50 60\r\nThickness=2\r\n");
    const std::string sweep =
        Panel("sweep.lfp", "a.lfw", "b.lfw", "Count=2\r\nLength=300\r\nSweep=far\r\n");
    const AileFaite made = Made({missing, inches, many, bare, gaps, sweep, inner});
    EXPECT_THAT(made.refus,
                ElementsAre(HasSubstr("none.lfp: "), HasSubstr("inch.lfp: "),
                            HasSubstr("many.lfp: This is no panel file, or a value of it can't be "
                                      ": many"),
                            "bare.lfp: The plan wants the length of the panel.",
                            HasSubstr("gaps.lfp: "),
                            "sweep.lfp: this is no length between -5000 and 5000 mm."));
    ASSERT_THAT(made.aile.panneaux, SizeIs(1));
    EXPECT_EQ(made.aile.panneaux[0].nom, "inner");
}

TEST_F(WingOfFiles, AnEndThatIsRefusedWasTold) {
    platform.Expect(BoxAnswer::ok);
    const AileFaite made = Made({Panel("x.lfp", "a.lfw", "gone.lfw", "Count=2\r\nLength=300\r\n")});
    EXPECT_TRUE(made.dit);
    EXPECT_THAT(made.refus, ElementsAre(HasSubstr("gone.lfw")));
}

DessinPlan PlanOf(double width, double height) {
    DessinPlan plan;
    plan.traits = {{CouchePlan::contour, {{0, 0}, {width, -height}}, false}};
    return plan;
}

TEST(PlanPaper, SheetsAreTurnedTheWayThatTakesFewer) {
    MiseEnPage page; // A4, margins of 10 and 15, overlap of 20
    const auto wide = ReglageFeuillesDe(page, {PlanOf(270, 150)});
    ASSERT_TRUE(wide);
    EXPECT_NEAR(wide->largeur, 297, 0.5);
    EXPECT_EQ(wide->marge, 10);
    EXPECT_EQ(wide->recouvrement, 20);
    const auto high = ReglageFeuillesDe(page, {PlanOf(150, 270)});
    ASSERT_TRUE(high);
    EXPECT_NEAR(high->hauteur, 297, 0.5);
}

TEST(PlanPaper, PapersWithoutASizeCountAsTheFirstOfTheList) {
    for (const int index : {kPapierImprimante, kPapierEntier}) {
        MiseEnPage page;
        page.NumIndex = static_cast<std::uint8_t>(index);
        page.recouvrement = 0;
        EXPECT_EQ(PapierDuPlan(page).nom, Papiers()[0].nom);
        EXPECT_EQ(ReglageFeuillesDe(page, {PlanOf(10, 10)})->recouvrement, 10);
    }
}

TEST(PlanPaper, MarginsWithoutRoomGiveNoSheets) {
    MiseEnPage page;
    page.MargeHaut = page.MargeBas = 150;
    EXPECT_FALSE(ReglageFeuillesDe(page, {PlanOf(100, 100)}));
}

} // namespace
} // namespace loftwing
