#include "programme/import_words.h"

#include "support/words.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

constexpr const char *kImportWords =
    "[Import]\n1=R\n2=L\n3=C\n4=B\n5=T\n6=S\n7=D\n8=A\n10=K\n11=k.\n12=N.\n13=O\n14=X.\n15=o.\n16="
    "W\n"
    "17=w.\n18=E.\n20=No\n21=few\n22=one\n23=more\n24=noise\n25=cross\n26=chord\n27=line\n28="
    "many\n30=Off\n"
    "31=off.\n";

class ImportWords : public testing::Test {
  protected:
    std::string Story() const { return ImportStory(words.messages, airfoil); }

    Words words{kImportWords};
    ImportedAirfoil airfoil;
};

TEST_F(ImportWords, PointsThatAreKeptAreToldWithTheFigure) {
    airfoil.after = 0.000123;
    EXPECT_EQ(Story(), "K 0.012 % k.");
}

TEST_F(ImportWords, PointsThatAreLaidAnewAreToldWithBothFigures) {
    airfoil.laid = 160;
    airfoil.before = 0.0318;
    airfoil.after = 0.0004;
    EXPECT_EQ(Story(), "160 N. O 3.2 % o. W 0.04 % w.");
    airfoil.before.reset();
    airfoil.by_surface = true;
    EXPECT_EQ(Story(), "160 N. X. W 0.04 % w. E.");
}

TEST_F(ImportWords, EverythingThatWasDoneIsTold) {
    airfoil.order = FileOrder::lists;
    airfoil.turned = -1.234;
    airfoil.scaled = true;
    airfoil.dropped = 3;
    airfoil.added = 1;
    EXPECT_EQ(Story(), "L T -1.23\xC2\xB0. S D 3. A 1. K 0 % k.");
    const std::pair<FileOrder, char> orders[] = {
        {FileOrder::reversed, 'R'}, {FileOrder::columns, 'C'}, {FileOrder::rotated, 'B'}};
    for (const auto &[order, letter] : orders) {
        airfoil.order = order;
        EXPECT_EQ(Story().front(), letter);
    }
}

TEST_F(ImportWords, ARefusalNamesReasonAndLine) {
    EXPECT_EQ(ImportRefusalText(words.messages, {ImportReason::noise, 12}), "No noise (line 12).");
    EXPECT_EQ(ImportRefusalText(words.messages, {ImportReason::too_few_points, 0}), "No few.");
    EXPECT_EQ(ImportRefusalText(words.messages, {ImportReason::too_many_points, 0}), "No many.");
    EXPECT_EQ(ImportRefusalText(words.messages, {ImportReason::one_surface, 3}),
              "No one (line 3).");
    EXPECT_EQ(ImportRefusalText(words.messages, {ImportReason::several_curves, 4}),
              "No more (line 4).");
    EXPECT_EQ(ImportRefusalText(words.messages, {ImportReason::crossing, 5}), "No cross (line 5).");
    EXPECT_EQ(ImportRefusalText(words.messages, {ImportReason::no_chord, 6}), "No chord (line 6).");
}

TEST_F(ImportWords, ADeviationIsWarnedOfBeyondTheTolerance) {
    EXPECT_EQ(DeviationWarning(words.messages, 0.0005), "");
    EXPECT_EQ(DeviationWarning(words.messages, 0.0006), "Off 0.06 % off.");
    EXPECT_EQ(DeviationWarning(words.messages, 37.5), "Off 3750 % off.");
}

} // namespace
} // namespace loftwing
