// That what is to hold whatever is done can be seen broken.

#include "support/rib_invariants.h"

#include "core/contour.h"
#include "programme/undo_steps.h"
#include "support/rib_world.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

namespace loftwing {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

class RibInvariantsTest : public testing::Test {
  protected:
    RibInvariantsTest() {
        RibModel &rib = programme.rib;
        rib.NomProfil = "naca2412";
        for (const auto &[x, y] : Naca(2412, 20)) {
            rib.ProfilX.Append(x);
            rib.ProfilY.Append(y);
        }
        rib.NbPoints = static_cast<std::int16_t>(rib.ProfilX.Count());
        FaitContour(rib);
        rib.ProfilCharge = true;
        NoteEtat(programme);
    }

    /// What is broken of both kinds.
    std::vector<std::string> AllBroken() const {
        std::vector<std::string> all = BrokenAtAnyTime(programme);
        for (const std::string &rule : BrokenAtRest(programme)) {
            all.push_back(rule);
        }
        return all;
    }

    ScriptedPlatform platform;
    Programme programme{{}, platform};
};

TEST_F(RibInvariantsTest, HoldForAPlainRibAndForNone) {
    EXPECT_THAT(AllBroken(), IsEmpty());
    programme.rib.Partie<PartiesRib>() = {};
    NoteEtat(programme);
    EXPECT_THAT(AllBroken(), IsEmpty());
}

TEST_F(RibInvariantsTest, EachOfThemIsSeenBroken) {
    struct Defect {
        const char *rule;
        std::function<void(RibModel &rib)> plant;
    };
    const std::vector<Defect> defects = {
        {"airfoil has the points", [](RibModel &rib) { ++rib.NbPoints; }},
        {"contour has the points", [](RibModel &rib) { --rib.NbContour; }},
        {"corde is a number",
         [](RibModel &rib) { rib.corde = std::numeric_limits<float>::infinity(); }},
        {"ContourY are numbers", [](RibModel &rib) { rib.ContourY(3) = std::nan(""); }},
        {"a hole's lengths",
         [](RibModel &rib) { rib.trou[12].DiaTrou = std::numeric_limits<float>::quiet_NaN(); }},
        {"spars' work slot", [](RibModel &rib) { rib.NbLongeron = 12; }},
        {"holes' work slot", [](RibModel &rib) { rib.NbTrou = 12; }},
        {"one special view", [](RibModel &rib) { rib.ModeCompare = rib.ModeEpCourb = true; }},
        {"zoom is above 0", [](RibModel &rib) { rib.Zoom = 0; }},
        {"has points", [](RibModel &rib) { rib.NbPoints = 0; }},
        {"lower run", [](RibModel &rib) { rib.NbIntrados = 1; }},
        {"a rib has a chord", [](RibModel &rib) { rib.corde = 0; }},
        {"washout", [](RibModel &rib) { rib.vrillage = -20.5F; }},
        {"kind of template", [](RibModel &rib) { rib.TypeGabarit = 2; }},
        {"one line", [](RibModel &rib) { rib.texte.InsTexte = "two\nlines"; }},
        {"text of the sheeting", [](RibModel &rib) { rib.EpCoffrage = 2.5F; }},
        {"present step is the rib", [](RibModel &rib) { rib.EpBF = 0.5F; }},
    };
    for (const Defect &defect : defects) {
        const PartieGardee<PartiesRib> sound(programme.rib);
        defect.plant(programme.rib);
        EXPECT_THAT(AllBroken(), Contains(HasSubstr(defect.rule)));
    }
    programme.settings.Unite = " ft";
    EXPECT_THAT(AllBroken(), Contains("the unit is known"));
}

TEST_F(RibInvariantsTest, NumbersMayStayWhereTheirTextIsRefused) {
    programme.settings.Unite = " in";
    programme.rib.EpCoffrageAfich = "2./8"; // no length in inches
    programme.rib.EpBF = 0;
    programme.rib.EpBFAfich = "300"; // above the chord, which counts as none
    NoteEtat(programme);
    EXPECT_THAT(AllBroken(), IsEmpty());
}

} // namespace
} // namespace loftwing
