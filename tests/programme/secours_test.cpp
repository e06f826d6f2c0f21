// The file that a window keeps of its unsaved work.

#include "programme/secours.h"

#include "base/file_name.h"
#include "core/units.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <optional>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

class SecoursTest : public testing::Test {
  protected:
    /// A rib that is told from others by its chord.
    static PartiesRib Rib(float corde) {
        PartiesRib rib;
        rib.corde = corde;
        rib.Modifie = true;
        return rib;
    }
    /// A window that keeps a rib and then is no more.
    void Crash(float corde) {
        Secours window(Folder(), platform);
        window.Ecrit(Rib(corde), mm);
    }
    std::string Folder() const { return folder.Path("data/recovery"); }
    /// The names in the folder with that ending.
    std::vector<std::string> Files(const std::string &ending) const {
        std::vector<std::string> names;
        if (fs::exists(Folder())) {
            for (const auto &entry : fs::directory_iterator(Folder())) {
                if (entry.path().extension() == ending) {
                    names.push_back(entry.path().string());
                }
            }
        }
        return names;
    }
    /// Makes a file look as if it had been written before that.
    static void Age(const std::string &path, std::chrono::minutes age) {
        fs::last_write_time(path, fs::file_time_type::clock::now() - age);
    }
    static std::vector<float> Chords(const SecoursTrouves &found) {
        std::vector<float> chords;
        for (const Orphelin &rib : found.ribs) {
            chords.push_back(rib.contenu.parties.corde);
        }
        return chords;
    }

    TempFolder folder;
    ScriptedPlatform platform;
    const std::string mm{kUniteMm};
};

using Names = std::vector<std::string>;

TEST_F(SecoursTest, AfterACrashTheNextWindowFindsTheRib) {
    Crash(210);
    Secours next(Folder(), platform);
    const SecoursTrouves found = next.Cherche();
    EXPECT_EQ(Chords(found), (std::vector<float>{210}));
    EXPECT_EQ(found.ribs.front().contenu.Unite, mm);
    EXPECT_EQ(found.abimes, Names());
}

TEST_F(SecoursTest, NothingIsMadeWhereThereIsNothingToKeep) {
    Secours window(Folder(), platform);
    EXPECT_TRUE(window.Cherche().ribs.empty());
    window.Retire();
    EXPECT_FALSE(fs::exists(Folder()));
}

TEST_F(SecoursTest, WithoutAFolderNothingIsKept) {
    Secours window("", platform);
    window.Ecrit(Rib(210), mm);
    EXPECT_FALSE(window.Echoue());
    EXPECT_TRUE(window.Cherche().ribs.empty());
    EXPECT_TRUE(platform.locked.empty());
}

TEST_F(SecoursTest, TheFolderIsTheUsersAlone) {
    if (RulesHere() == NameRules::letters) {
        GTEST_SKIP() << "a folder below the user's own is the user's alone here";
    }
    Crash(210);
    EXPECT_EQ(fs::status(Folder()).permissions(), fs::perms::owner_all);
}

TEST_F(SecoursTest, TheRibOfAWindowThatLivesIsNotOffered) {
    Secours living(Folder(), platform);
    living.Ecrit(Rib(210), mm);
    Crash(220);
    Secours next(Folder(), platform);
    EXPECT_EQ(Chords(next.Cherche()), (std::vector<float>{220}));
    EXPECT_EQ(Chords(living.Cherche()), (std::vector<float>{220})); // nor its own
}

TEST_F(SecoursTest, WindowsDoNotMixTheirs) {
    {
        Secours one(Folder(), platform);
        Secours other(Folder(), platform);
        one.Ecrit(Rib(1), mm);
        other.Ecrit(Rib(2), mm);
        one.Ecrit(Rib(3), mm);
        other.Retire();
        other.Ecrit(Rib(4), mm);
    }
    Secours next(Folder(), platform);
    SecoursTrouves found = next.Cherche();
    std::sort(found.ribs.begin(), found.ribs.end(), [](const Orphelin &a, const Orphelin &b) {
        return a.contenu.parties.corde < b.contenu.parties.corde;
    });
    EXPECT_EQ(Chords(found), (std::vector<float>{3, 4}));
}

TEST_F(SecoursTest, WhatTwoWindowsFindAtOnceOneOfThemOffers) {
    Crash(210);
    Secours first(Folder(), platform);
    Secours second(Folder(), platform);
    {
        const SecoursTrouves found = first.Cherche();
        EXPECT_EQ(found.ribs.size(), 1U);
        EXPECT_TRUE(second.Cherche().ribs.empty());
    }
    EXPECT_EQ(second.Cherche().ribs.size(), 1U); // the first one's user wants it later
}

TEST_F(SecoursTest, TheLastOneComesFirst) {
    Crash(1);
    Age(Files(".rib").front(), std::chrono::minutes(60));
    Crash(2);
    Secours next(Folder(), platform);
    EXPECT_EQ(Chords(next.Cherche()), (std::vector<float>{2, 1}));
}

TEST_F(SecoursTest, WhatIsSavedOrThrownAwayLeavesNothing) {
    {
        Secours window(Folder(), platform);
        window.Ecrit(Rib(210), mm);
        EXPECT_EQ(Files(".rib").size(), 1U);
        window.Retire();
        EXPECT_EQ(Files(".rib"), Names());
        EXPECT_TRUE(platform.locked.empty());
    }
    Secours next(Folder(), platform);
    EXPECT_TRUE(next.Cherche().ribs.empty());
}

TEST_F(SecoursTest, TheSameRibIsWrittenOnce) {
    Secours window(Folder(), platform);
    window.Ecrit(Rib(210), mm);
    const std::string file = Files(".rib").front();
    Age(file, std::chrono::minutes(60));
    const auto written = fs::last_write_time(file);
    window.Ecrit(Rib(210), mm);
    EXPECT_EQ(fs::last_write_time(file), written);
    window.Ecrit(Rib(211), mm);
    EXPECT_GT(fs::last_write_time(file), written);
    EXPECT_EQ(Files(".rib"), Names{file});
}

TEST_F(SecoursTest, ADamagedOneIsPutAsideAndToldOnce) {
    Crash(210);
    const std::string file = Files(".rib").front();
    fs::resize_file(file, 100);
    Secours next(Folder(), platform);
    const SecoursTrouves found = next.Cherche();
    EXPECT_TRUE(found.ribs.empty());
    EXPECT_EQ(found.abimes, Names{file + ".damaged"});
    EXPECT_EQ(fs::file_size(file + ".damaged"), 100U);
    EXPECT_TRUE(next.Cherche().abimes.empty());
    EXPECT_TRUE(platform.locked.empty());
}

TEST_F(SecoursTest, OneOfALaterVersionIsLeftToThat) {
    Crash(210);
    const std::string file = Files(".rib").front();
    const std::string name = "data/recovery/" + fs::path(file).filename().string();
    std::string bytes = folder.Bytes(name);
    bytes[bytes.find('1')] = '2';
    folder.File(name, bytes);
    Secours next(Folder(), platform);
    const SecoursTrouves found = next.Cherche();
    EXPECT_TRUE(found.ribs.empty());
    EXPECT_TRUE(found.abimes.empty());
    EXPECT_EQ(folder.Bytes(name), bytes);
}

TEST_F(SecoursTest, WhatCannotBeWrittenIsSaidAndWrittenWhenItCan) {
    const std::string in_the_way = folder.File("data", "");
    Secours window(Folder(), platform);
    window.Ecrit(Rib(210), mm);
    EXPECT_TRUE(window.Echoue());
    fs::remove(in_the_way);
    window.Ecrit(Rib(210), mm);
    EXPECT_FALSE(window.Echoue());
    EXPECT_EQ(Files(".rib").size(), 1U);
}

TEST_F(SecoursTest, AFolderThatGoesAwayIsMadeAgain) {
    Secours window(Folder(), platform);
    window.Ecrit(Rib(210), mm);
    fs::remove_all(folder.Path("data"));
    window.Ecrit(Rib(210), mm);
    EXPECT_FALSE(window.Echoue());
    EXPECT_EQ(Files(".rib").size(), 1U);
}

TEST_F(SecoursTest, ATakenOverRibStaysOnDiskUntilItsNewWindowNeedsItNoMore) {
    Crash(210);
    const std::string file = Files(".rib").front();
    Secours next(Folder(), platform);
    next.Adopte(std::move(next.Cherche().ribs.front()));
    EXPECT_EQ(Files(".rib"), Names{file});
    Secours third(Folder(), platform);
    EXPECT_TRUE(third.Cherche().ribs.empty()); // it has a window again
    next.Ecrit(Rib(211), mm);
    EXPECT_EQ(Files(".rib"), Names{file});
    next.Retire();
    EXPECT_EQ(Files(".rib"), Names());
}

TEST_F(SecoursTest, ATakenOverRibIsFoundAgainAfterAnotherCrash) {
    Crash(210);
    {
        Secours next(Folder(), platform);
        next.Adopte(std::move(next.Cherche().ribs.front()));
    }
    Secours third(Folder(), platform);
    EXPECT_EQ(Chords(third.Cherche()), (std::vector<float>{210}));
}

TEST_F(SecoursTest, OneThatNobodyWantsGoes) {
    Crash(1);
    Crash(2);
    Secours next(Folder(), platform);
    SecoursTrouves found = next.Cherche();
    ASSERT_EQ(found.ribs.size(), 2U);
    const float other = found.ribs[1].contenu.parties.corde;
    Supprime(std::move(found.ribs[0]));
    found.ribs.clear();
    EXPECT_EQ(Chords(next.Cherche()), std::vector<float>{other});
}

TEST_F(SecoursTest, AHalfWrittenFileGoesWhenItIsSurelyNobodys) {
    Crash(210);
    const std::string old = folder.File("data/recovery/loftwing-1.part", "half");
    folder.File("data/recovery/loftwing-2.part", "half");
    Age(old, std::chrono::minutes(60));
    Secours next(Folder(), platform);
    EXPECT_EQ(next.Cherche().ribs.size(), 1U);
    EXPECT_EQ(Files(".part"), Names{folder.Path("data/recovery/loftwing-2.part")});
}

} // namespace
} // namespace loftwing
