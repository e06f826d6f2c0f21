// The tables of commands, without a window around them.

#include "mainwindow/commands.h"

#include <QString>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace loftwing {
namespace {

/// What a state does to every control of the tables.
struct Changed {
    std::set<std::string> alive;
    std::set<std::string> dead;
};

Changed ChangedBy(EtatCommandes state) {
    Changed changed;
    const auto note = [&](const std::string &name, unsigned groups) {
        if (const auto alive = Vivante(state, groups)) {
            (*alive ? changed.alive : changed.dead).insert(name);
        }
    };
    for (const Command &command : MenuCommands()) {
        note(command.name, command.groups);
    }
    for (const PushButton &button : PushButtons()) {
        note(button.name, button.groups);
    }
    for (const ToolButton &button : ToolButtons()) {
        note("Toolbar1(" + std::to_string(button.index) + ")", button.groups);
    }
    return changed;
}

void ExpectAllIn(const std::set<std::string> &some, const std::set<std::string> &all) {
    for (const std::string &name : some) {
        EXPECT_TRUE(all.contains(name)) << name;
    }
}

/// Dimensions and display of a rib.
const std::set<std::string> kRibsOwn = {
    "cmdba",        "cmdlongeron",        "cmdtrou",        "cmdbf",
    "mnu_affinver", "mnu_affdefaut",      "mnu_affhautba",  "mnu_affhautbf",
    "mnu_affepr",   "mnu_affTrac",        "mnu_afflignRef", "mnu_profilepcoffrage",
    "mnu_profilba", "mnu_profillongeron", "mnu_profiltrou", "mnu_profilbf"};

/// What saves, prints or completes one.
const std::set<std::string> kNeedsARib = {"mnu_filesaveas",        "Toolbar1(3)",   "mnu_filepage",
                                          "mnu_fileprinterconfig", "mnu_fileprint", "Toolbar1(7)",
                                          "mnu_profilTalon",       "mnu_param",     "mnu_affInstxt",
                                          "mnu_filedecoupe",       "mnu_affpiece"};

const std::set<std::string> kPaper = {"mnu_filepage", "Toolbar1(5)", "mnu_fileprinterconfig",
                                      "mnu_fileprint"};

TEST(CommandTables, AtTheStartNothingComesToLife) {
    const Changed changed = ChangedBy(EtatCommandes::depart);
    EXPECT_TRUE(changed.alive.empty());
    ExpectAllIn(kRibsOwn, changed.dead);
    ExpectAllIn(kNeedsARib, changed.dead);
    ExpectAllIn({"Toolbar1(5)", "mnu_Outilcoord"}, changed.dead);
    for (const char *name : {"mnu_fileopen", "mnu_fileprofilopen", "cmdprofil", "cmdcorde",
                             "mnu_profilcorde", "mnu_outil", "mnu_help", "mnu_affclear"}) {
        EXPECT_FALSE(changed.dead.contains(name)) << name;
    }
}

TEST(CommandTables, ARibBringsToLifeWhatTheStartHadDead) {
    const Changed changed = ChangedBy(EtatCommandes::rib);
    EXPECT_TRUE(changed.dead.empty());
    EXPECT_EQ(changed.alive, ChangedBy(EtatCommandes::depart).dead);
}

TEST(CommandTables, AClearedRibKeepsItsOwnCommandsAndThePageButton) {
    const Changed changed = ChangedBy(EtatCommandes::vide);
    EXPECT_EQ(changed.alive, kRibsOwn);
    ExpectAllIn(kNeedsARib, changed.dead);
    EXPECT_FALSE(changed.dead.contains("Toolbar1(5)"));
    EXPECT_EQ(changed.dead, ChangedBy(EtatCommandes::sans).dead);
    EXPECT_TRUE(ChangedBy(EtatCommandes::sans).alive.empty());
}

TEST(CommandTables, AViewHasNoneOfTheRibsOwnCommandsAndIsPrinted) {
    const Changed changed = ChangedBy(EtatCommandes::vue);
    std::set<std::string> dead = kRibsOwn;
    dead.insert({"mnu_param", "mnu_filedecoupe", "mnu_affpiece"});
    EXPECT_EQ(changed.dead, dead);
    ExpectAllIn(kPaper, changed.alive);
    // Its button is left to what the rib before it came to.
    EXPECT_FALSE(changed.alive.contains("Toolbar1(7)"));
}

TEST(CommandTables, TheSimplePlotAddsThreeEntriesToAView) {
    const Changed view = ChangedBy(EtatCommandes::vue);
    const Changed simple = ChangedBy(EtatCommandes::couple);
    std::set<std::string> dead = view.dead;
    dead.erase("mnu_affinver");
    EXPECT_EQ(simple.dead, dead);
    std::set<std::string> alive = view.alive;
    alive.insert({"mnu_affinver", "mnu_affInstxt", "mnu_filedxf"}); // DXF has bare points too
    EXPECT_EQ(simple.alive, alive);
}

TEST(CommandTables, EveryOtherCheckedEntryShowsSomethingOfTheRib) {
    std::set<std::string> checkable;
    for (const Command &command : MenuCommands()) {
        if (command.checkable) {
            checkable.insert(command.name);
        }
    }
    // Of the page, what is made of the rib, and how the window works.
    std::set<std::string> shown = {"mnu_afffeuilles", "mnu_affpiece", "mnu_affessai",
                                   "mnu_affmesure"};
    for (const CocheVue &coche : kCochesVue) {
        shown.insert(coche.name);
    }
    EXPECT_EQ(checkable, shown);
}

/// The letter behind the "&" of a caption, in lower case; none without one.
std::string LetterOf(const std::string &caption) {
    const std::size_t mark = caption.find('&');
    return mark == std::string::npos
               ? std::string()
               : QString::fromStdString(caption.substr(mark + 1)).left(1).toLower().toStdString();
}

TEST(CommandTables, NoAccessLetterStandsTwiceInAMenu) {
    const std::string folder = LOFTWING_SOURCE_DIR "/resources/lng";
    for (const std::string &name : LngIni::Languages(folder)) {
        LngIni language;
        language.Charge(folder, name);
        std::set<std::pair<std::string, std::string>> letters;
        for (const Command &command : MenuCommands()) {
            const std::string letter = LetterOf(language.LngText(command.text));
            const std::string menu = command.menu == nullptr ? "" : command.menu;
            EXPECT_TRUE(letter.empty() || letters.emplace(menu, letter).second)
                << name << ": " << language.LngText(command.text);
        }
        EXPECT_GT(letters.size(), 20U);
    }
}

} // namespace
} // namespace loftwing
