#include "programme/command_states.h"

#include "support/failures.h"

#include <gtest/gtest.h>

#include <optional>

namespace loftwing {
namespace {

using Alive = std::optional<bool>;
constexpr Alive kAsItWas;

// The kinds of controls that there are.
constexpr unsigned kSave = kWithRib | kDiesOnClear;
constexpr unsigned kPrint = kSave | kAliveInView;
constexpr unsigned kDimension = kWithRib | kNotInView | kAliveAfterClear;
constexpr unsigned kLayout = kWithRib | kDiesOnClear | kNotInView;

TEST(CommandStates, AtTheStartWhatNeedsARibIsDead) {
    EXPECT_EQ(Vivante(EtatCommandes::depart, kSave), false);
    EXPECT_EQ(Vivante(EtatCommandes::depart, kDimension), false);
    EXPECT_EQ(Vivante(EtatCommandes::depart, kDiesOnClear), false);
    EXPECT_EQ(Vivante(EtatCommandes::depart, kAlways), kAsItWas);
}

TEST(CommandStates, ARibBringsItsCommandsToLife) {
    for (const unsigned groups : {kSave, kPrint, kDimension, kLayout}) {
        EXPECT_EQ(Vivante(EtatCommandes::rib, groups), true);
    }
    EXPECT_EQ(Vivante(EtatCommandes::rib, kAliveInView), kAsItWas);
}

TEST(CommandStates, WithoutARibWhatSavesOrPrintsItDiesAndTheRestStays) {
    EXPECT_EQ(Vivante(EtatCommandes::sans, kPrint), false);
    EXPECT_EQ(Vivante(EtatCommandes::sans, kLayout), false);
    EXPECT_EQ(Vivante(EtatCommandes::sans, kDimension), kAsItWas);
}

TEST(CommandStates, AClearedRibKeepsItsOwnMenus) {
    EXPECT_EQ(Vivante(EtatCommandes::vide, kSave), false);
    EXPECT_EQ(Vivante(EtatCommandes::vide, kDimension), true);
    EXPECT_EQ(Vivante(EtatCommandes::vide, kWithRib), kAsItWas);
}

TEST(CommandStates, AViewIsPrintedButHasNoDimensions) {
    EXPECT_EQ(Vivante(EtatCommandes::vue, kPrint), true);
    EXPECT_EQ(Vivante(EtatCommandes::vue, kDimension), false);
    EXPECT_EQ(Vivante(EtatCommandes::vue, kLayout), false);
    EXPECT_EQ(Vivante(EtatCommandes::vue, kSave), kAsItWas);
}

TEST(CommandStates, WhatAViewBringsToLifeOverrulesWhatItKills) {
    EXPECT_EQ(Vivante(EtatCommandes::vue, kNotInView | kAliveInView), true);
}

TEST(CommandStates, TheSimplePlotIsAViewWithSomeOfARibsCommands) {
    EXPECT_EQ(Vivante(EtatCommandes::couple, kPrint), true);
    EXPECT_EQ(Vivante(EtatCommandes::couple, kDimension), false);
    EXPECT_EQ(Vivante(EtatCommandes::couple, kDimension | kAliveInSimplePlot), true);
    EXPECT_EQ(Vivante(EtatCommandes::couple, kSave | kAliveInSimplePlot), true);
    EXPECT_EQ(Vivante(EtatCommandes::vue, kDimension | kAliveInSimplePlot), false);
}

TEST(CheckedEntries, EachShowsAValueOfItsOwn) {
    RibModel rib;
    for (const CocheVue &coche : kCochesVue) {
        rib.*coche.shown = false;
    }
    Coche(rib, "mnu_affinver") = true;
    EXPECT_TRUE(rib.AffHaut);
    Coche(rib, "mnu_affhautba") = true;
    EXPECT_TRUE(rib.AffHautBA);
    EXPECT_FALSE(rib.AffHautBF);
    Coche(rib, "mnu_affhautbf") = true;
    EXPECT_TRUE(rib.AffHautBF);
    EXPECT_FALSE(rib.AffEpr);
    Coche(rib, "mnu_affepr") = true;
    EXPECT_TRUE(rib.AffEpr);
    EXPECT_FALSE(rib.AffTrac);
    Coche(rib, "mnu_affTrac") = true;
    EXPECT_TRUE(rib.AffTrac);
    EXPECT_FALSE(rib.AffLignRef);
    Coche(rib, "mnu_afflignRef") = true;
    EXPECT_TRUE(rib.AffLignRef);
}

TEST(CheckedEntries, AnotherNameIsAFailure) {
    RibModel rib;
    EXPECT_EQ(FailureOf([&] { Coche(rib, "mnu_affcouleur"); }), 5);
}

} // namespace
} // namespace loftwing
