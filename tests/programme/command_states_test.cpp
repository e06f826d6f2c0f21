#include "programme/command_states.h"

#include "support/failures.h"

#include <gtest/gtest.h>

#include <optional>

namespace loftwing {
namespace {

constexpr const char *kAny = "mnu_any";
using Alive = std::optional<bool>;
constexpr Alive kAsItWas;

// The kinds of controls that there are.
constexpr unsigned kSave = kWithRib | kDiesOnClear;
constexpr unsigned kPrint = kSave | kAliveInView;
constexpr unsigned kDimension = kWithRib | kNotInView | kAliveAfterClear;
constexpr unsigned kLayout = kWithRib | kDiesOnClear | kNotInView;

TEST(CommandStates, AtTheStartWhatNeedsARibIsDead) {
    EXPECT_EQ(Vivante(EtatCommandes::depart, kAny, kSave), false);
    EXPECT_EQ(Vivante(EtatCommandes::depart, kAny, kDimension), false);
    EXPECT_EQ(Vivante(EtatCommandes::depart, kAny, kDiesOnClear), false);
    EXPECT_EQ(Vivante(EtatCommandes::depart, kAny, kAlways), kAsItWas);
}

TEST(CommandStates, ARibBringsItsCommandsToLife) {
    for (const unsigned groups : {kSave, kPrint, kDimension, kLayout}) {
        EXPECT_EQ(Vivante(EtatCommandes::rib, kAny, groups), true);
    }
    EXPECT_EQ(Vivante(EtatCommandes::rib, kAny, kAliveInView), kAsItWas);
}

TEST(CommandStates, WithoutARibWhatSavesOrPrintsItDiesAndTheRestStays) {
    EXPECT_EQ(Vivante(EtatCommandes::sans, kAny, kPrint), false);
    EXPECT_EQ(Vivante(EtatCommandes::sans, kAny, kLayout), false);
    EXPECT_EQ(Vivante(EtatCommandes::sans, kAny, kDimension), kAsItWas);
}

TEST(CommandStates, AClearedRibKeepsItsOwnMenus) {
    EXPECT_EQ(Vivante(EtatCommandes::vide, kAny, kSave), false);
    EXPECT_EQ(Vivante(EtatCommandes::vide, kAny, kDimension), true);
    EXPECT_EQ(Vivante(EtatCommandes::vide, kAny, kWithRib), kAsItWas);
}

TEST(CommandStates, AViewIsPrintedButHasNoDimensions) {
    EXPECT_EQ(Vivante(EtatCommandes::vue, kAny, kPrint), true);
    EXPECT_EQ(Vivante(EtatCommandes::vue, kAny, kDimension), false);
    EXPECT_EQ(Vivante(EtatCommandes::vue, kAny, kLayout), false);
    EXPECT_EQ(Vivante(EtatCommandes::vue, kAny, kSave), kAsItWas);
}

TEST(CommandStates, WhatAViewBringsToLifeOverrulesWhatItKills) {
    EXPECT_EQ(Vivante(EtatCommandes::vue, kAny, kNotInView | kAliveInView), true);
}

TEST(CommandStates, TheSimplePlotIsAViewThatIsInvertedLabelledAndExported) {
    EXPECT_EQ(Vivante(EtatCommandes::couple, kAny, kPrint), true);
    EXPECT_EQ(Vivante(EtatCommandes::couple, kAny, kDimension), false);
    for (const char *name : {"mnu_affinver", "mnu_affInstxt", "mnu_filedxf"}) {
        EXPECT_EQ(Vivante(EtatCommandes::couple, name, kDimension), true) << name;
        EXPECT_EQ(Vivante(EtatCommandes::vue, name, kDimension), false) << name;
    }
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
