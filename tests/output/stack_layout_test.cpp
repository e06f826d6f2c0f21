#include "output/stack_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

bool AdmitsAll(const FeuilleEmpilee & /*feuille*/) {
    return true;
}

using StackedSheet = FeuilleEmpilee;

constexpr TailleDessin kStackRoom = {272, 100};

TEST(StackLayout, DrawingsShareASheetFiveMillimetresApart) {
    const Empilage stack = Empile({{200, 40}, {200, 30}}, kStackRoom, AdmitsAll);
    EXPECT_THAT(stack.feuilles, ElementsAre(StackedSheet{{0, 0, 0}, {1, 0, 45}}));
    EXPECT_THAT(stack.hors, IsEmpty());
}

TEST(StackLayout, OneWithoutRoomOpensASheet) {
    // 40 + 5 + 40 leave 10 of 100, after the next gap.
    const Empilage stack = Empile({{200, 40}, {200, 40}, {200, 11}}, kStackRoom, AdmitsAll);
    EXPECT_THAT(stack.feuilles,
                ElementsAre(StackedSheet{{0, 0, 0}, {1, 0, 45}}, StackedSheet{{2, 0, 0}}));
    const Empilage full = Empile({{200, 40}, {200, 40}, {200, 10}}, kStackRoom, AdmitsAll);
    EXPECT_THAT(full.feuilles, ElementsAre(StackedSheet{{0, 0, 0}, {1, 0, 45}, {2, 0, 90}}));
}

TEST(StackLayout, ShortOnesStandBesideEachOtherWhereThatSavesASheet) {
    const Empilage saves = Empile({{150, 50}, {117, 40}, {100, 40}}, kStackRoom, AdmitsAll);
    EXPECT_THAT(saves.feuilles, ElementsAre(StackedSheet{{0, 0, 0}, {1, 155, 0}, {2, 0, 55}}));
    const Empilage in_a_column = Empile({{150, 30}, {117, 20}, {100, 10}}, kStackRoom, AdmitsAll);
    EXPECT_THAT(in_a_column.feuilles, ElementsAre(StackedSheet{{0, 0, 0}, {1, 0, 35}, {2, 0, 60}}));
}

TEST(StackLayout, OnlyTheLastRowBecomesHigher) {
    const Empilage stack =
        Empile({{200, 40}, {200, 20}, {60, 45}, {200, 5}}, kStackRoom, AdmitsAll);
    EXPECT_THAT(stack.feuilles,
                ElementsAre(StackedSheet{{0, 0, 0}, {1, 0, 45}, {2, 205, 45}, {3, 0, 95}}));
}

TEST(StackLayout, ALaterOneFillsTheSheetBeforeWhereThatSavesASheet) {
    const Empilage saves =
        Empile({{200, 60}, {200, 60}, {200, 35}, {200, 35}}, kStackRoom, AdmitsAll);
    EXPECT_THAT(saves.feuilles, ElementsAre(StackedSheet{{0, 0, 0}, {2, 0, 65}},
                                            StackedSheet{{1, 0, 0}, {3, 0, 65}}));
    const Empilage in_order = Empile({{200, 60}, {200, 60}, {200, 30}}, kStackRoom, AdmitsAll);
    EXPECT_THAT(in_order.feuilles,
                ElementsAre(StackedSheet{{0, 0, 0}}, StackedSheet{{1, 0, 0}, {2, 0, 65}}));
}

TEST(StackLayout, TheHighestComeFirstOnlyWhereThatSavesASheet) {
    // In their order 45 + 45, 50, 50; otherwise 50 + 45 twice.
    const Empilage fewer =
        Empile({{200, 45}, {200, 45}, {200, 50}, {200, 50}}, kStackRoom, AdmitsAll);
    EXPECT_THAT(fewer.feuilles, ElementsAre(StackedSheet{{2, 0, 0}, {0, 0, 55}},
                                            StackedSheet{{3, 0, 0}, {1, 0, 55}}));
    const Empilage as_many =
        Empile({{200, 30}, {200, 60}, {200, 30}, {200, 60}}, kStackRoom, AdmitsAll);
    EXPECT_THAT(as_many.feuilles, ElementsAre(StackedSheet{{0, 0, 0}, {1, 0, 35}},
                                              StackedSheet{{2, 0, 0}, {3, 0, 35}}));
}

TEST(StackLayout, WhatIsLargerThanASheetIsLeftOut) {
    const Empilage stack =
        Empile({{272.2, 30}, {272.05, 30}, {100, 100.2}, {100, 50}}, kStackRoom, AdmitsAll);
    EXPECT_THAT(stack.feuilles, ElementsAre(StackedSheet{{1, 0, 0}, {3, 0, 35}}));
    EXPECT_THAT(stack.hors, ElementsAre(0, 2));
}

TEST(StackLayout, ASheetIsNoFullerThanIsAdmitted) {
    const auto pairs = [](const FeuilleEmpilee &feuille) { return feuille.size() <= 2; };
    const Empilage stack = Empile({{200, 10}, {200, 10}, {200, 10}}, kStackRoom, pairs);
    EXPECT_THAT(stack.feuilles,
                ElementsAre(StackedSheet{{0, 0, 0}, {1, 0, 15}}, StackedSheet{{2, 0, 0}}));
    // One drawing is admitted always: it must stand somewhere.
    const auto never = [](const FeuilleEmpilee &) { return false; };
    EXPECT_THAT(Empile({{200, 10}, {200, 10}}, kStackRoom, never).feuilles,
                ElementsAre(StackedSheet{{0, 0, 0}}, StackedSheet{{1, 0, 0}}));
}

TEST(StackLayout, NothingTakesNoSheet) {
    EXPECT_THAT(Empile({}, kStackRoom, AdmitsAll).feuilles, IsEmpty());
}

TEST(StackLayout, ASheetIsFilledDownToItsLowestDrawing) {
    const std::vector<TailleDessin> sizes = {{100, 20}, {100, 45}, {100, 10}};
    EXPECT_DOUBLE_EQ(HauteurPrise({{0, 0, 0}, {1, 105, 0}, {2, 0, 30}}, sizes), 45);
    EXPECT_DOUBLE_EQ(HauteurPrise({{2, 0, 30}}, sizes), 40);
    EXPECT_DOUBLE_EQ(HauteurPrise({}, sizes), 0);
}

} // namespace
} // namespace loftwing
