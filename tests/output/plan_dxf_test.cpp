#include "output/plan_fixture.h"
#include "support/cut_reading.h"
#include "support/failures.h"

#include <gtest/gtest.h>

#include <limits>

namespace loftwing {
namespace {

/// Items as a file has them, a line each: "8 RIBS".
std::string PlanItems(const std::vector<std::string> &items) {
    std::string text;
    for (const std::string &item : items) {
        const std::size_t blank = item.find(' ');
        text += item.substr(0, blank) + "\r\n" + item.substr(blank + 1) + "\r\n";
    }
    return text;
}

bool HasItems(const std::string &dxf, const std::vector<std::string> &items) {
    return dxf.find(PlanItems(items)) != std::string::npos;
}

/// Kind and layer of every entity; vertices are counted in.
std::vector<std::string> KindsOf(const std::vector<DxfRecord> &records) {
    std::vector<std::string> kinds;
    for (const DxfRecord &record : records) {
        kinds.push_back(record.kind + " " + record.Value(8));
    }
    return kinds;
}

TEST(PlanDxf, EveryRunIsOneEntityOnItsLayer) {
    const auto records = DxfEntities(EcritPlanDxf(PlanByHand(), " mm"));
    EXPECT_EQ(
        KindsOf(records),
        (std::vector<std::string>{"LINE OUTLINE", "POLYLINE RIBS", "VERTEX RIBS", "VERTEX RIBS",
                                  "VERTEX RIBS", "VERTEX RIBS", "SEQEND RIBS", "LINE RIBS",
                                  "POLYLINE HOLES", "VERTEX HOLES", "VERTEX HOLES", "VERTEX HOLES",
                                  "SEQEND HOLES", "TEXT DIMENSIONS", "TEXT TITLE"}));
    EXPECT_EQ(records[0].Number(10), 0);
    EXPECT_EQ(records[0].Number(11), 400);
    EXPECT_EQ(records[0].Number(21), -20);
    EXPECT_EQ(records[1].Value(70), "1"); // closed
    EXPECT_EQ(records[4].Number(10), 103);
    EXPECT_EQ(records[4].Number(20), -155);
    EXPECT_EQ(records[7].Number(20), -10);
    EXPECT_EQ(records[7].Number(21), -150);
    EXPECT_EQ(records[8].Value(70), "0"); // open
    EXPECT_EQ(records[11].Number(20), -64.00004);
}

TEST(PlanDxf, TextsHoldByTheirMiddleInEveryFace) {
    const auto records = DxfEntities(EcritPlanDxf(PlanByHand(), " mm"));
    const DxfRecord &middle = records[13];
    EXPECT_EQ(middle.Value(1), "100 mm");
    EXPECT_NEAR(middle.Number(10), 142.776, 1e-6);
    EXPECT_EQ(middle.Number(40), 2.864);
    EXPECT_EQ(middle.Value(72), "1");
    EXPECT_EQ(middle.Number(11), 150);
    EXPECT_EQ(middle.Number(21), 10);
    const DxfRecord &left = records[14];
    EXPECT_EQ(left.Value(1), "R\xE9 & Co");
    EXPECT_EQ(left.Number(20), -180);
    EXPECT_FALSE(left.values.contains(72));
    DessinPlan plan = PlanByHand();
    plan.textes = {{CouchePlan::cote, {150, 10}, 2.864, "3\xC2\xB0", AppuiTexte::droite}};
    const DxfRecord right = DxfEntities(EcritPlanDxf(plan, " mm")).back();
    EXPECT_EQ(right.Value(1), "3%%d");
    EXPECT_EQ(right.Value(72), "2");
    EXPECT_EQ(right.Number(11), 150);
}

TEST(PlanDxf, HeaderHasExtentAndSheetAndTablesHaveAllLayers) {
    const std::string dxf = EcritPlanDxf(PlanByHand(), " mm");
    EXPECT_TRUE(HasItems(dxf, {"9 $INSUNITS", "70 4"}));
    EXPECT_TRUE(HasItems(dxf, {"9 $EXTMIN", "10 0.0", "20 -181.475", "30 0.0", "9 $EXTMAX",
                               "10 400.0", "20 13.62", "30 0.0", "9 $LIMMIN", "10 -10.0",
                               "20 -191.475", "9 $LIMMAX", "10 410.0", "20 23.62", "0 ENDSEC"}));
    EXPECT_TRUE(HasItems(dxf, {"2 LAYER", "70 9"}));
    for (int i = 0; i < kCouchesPlan; ++i) {
        const std::string name(NomCouche(static_cast<CouchePlan>(i)));
        EXPECT_TRUE(HasItems(dxf, {"0 LAYER", "2 " + name, "70 0"})) << name;
    }
    EXPECT_TRUE(HasItems(dxf, {"2 HOLES", "70 0", "62 195", "6 CENTER"}));
    EXPECT_TRUE(HasItems(dxf, {"2 RIBS", "70 0", "62 7", "6 CONTINUOUS"}));
}

TEST(PlanDxf, InchesAreExactToAThousandthOfAMillimetre) {
    const std::string dxf = EcritPlanDxf(PlanByHand(), " in");
    EXPECT_TRUE(HasItems(dxf, {"9 $INSUNITS", "70 1"}));
    const auto records = DxfEntities(dxf);
    EXPECT_NEAR(records[0].Number(11) * 25.4, 400, 1e-6);
    EXPECT_NEAR(records[4].Number(20) * 25.4, -155, 1e-6);
    EXPECT_NEAR(records[11].Number(20) * 25.4, -64.00004, 1e-6);
    EXPECT_NEAR(records[13].Number(11) * 25.4, 150, 1e-4);
    EXPECT_NEAR(records[13].Number(40) * 25.4, 2.864, 1e-4);
    EXPECT_TRUE(HasItems(dxf, {"9 $LIMMAX", "10 16.141732", "20 0.929921"}));
}

TEST(PlanDxf, NothingWithoutLengthIsWritten) {
    DessinPlan plan = OneLine({5, 5}, {5 + 1e-7, 5});
    plan.textes = {{CouchePlan::cote, {0, 0}, 0, "flat", AppuiTexte::gauche}};
    EXPECT_TRUE(DxfEntities(EcritPlanDxf(plan, " mm")).empty());
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(FailureOf([&] { EcritPlanDxf(OneLine({nan, 0}, {1, 1}), " mm"); }), 6);
}

} // namespace
} // namespace loftwing
