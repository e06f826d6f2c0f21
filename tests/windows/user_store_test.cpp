#include "platform/qt_text.h"
#include "platform/qt_user_store.h"
#include "support/failures.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <QStandardPaths>

#include <filesystem>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

class Variable {
  public:
    Variable(const char *name, const std::string &value) : name_(name), old_(qgetenv(name)) {
        qputenv(name, QByteArray::fromStdString(value));
    }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;
    ~Variable() { qputenv(name_, old_); }

  private:
    const char *name_;
    QByteArray old_;
};

/// A user with a home of his own and a program that brings two airfoils along.
struct StoreUser {
    StoreUser() {
        fs::create_directories(folder.Path("program/airfoils/more"));
        folder.File("program/airfoils/clark é.dat", "Clark Y\n1 0\n");
        folder.File("program/airfoils/more/e374.dat", "E374\n1 0\n");
        fs::permissions(folder.Path("program/airfoils/clark é.dat"), fs::perms::owner_read);
    }

    TempFolder folder;
    Variable home{"HOME", folder.Path("home")};
    Variable config{"XDG_CONFIG_HOME", folder.Path("home/.config")};
    UserStore store{folder.Path("program/airfoils")};

    std::string Documents() const {
        return S(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    }
};

std::ptrdiff_t EntriesOf(const std::string &folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

} // namespace

TEST(UserStore, AnswersWithACopyOfTheLibraryInTheDocuments) {
    const StoreUser user;
    const std::string airfoils = user.store.Value("Install", "RepAirfoil");
    EXPECT_EQ(airfoils, user.folder.Path("home/Documents/Loftwing/airfoils"));
    EXPECT_EQ(user.folder.Bytes("home/Documents/Loftwing/airfoils/clark é.dat"), "Clark Y\n1 0\n");
    EXPECT_EQ(user.folder.Bytes("home/Documents/Loftwing/airfoils/more/e374.dat"), "E374\n1 0\n");
    EXPECT_EQ(EntriesOf(user.Documents() + "/Loftwing"), 1) << "no half copy is left";
}

TEST(UserStore, TheCopyIsTheUsersToChange) {
    const StoreUser user;
    const std::string airfoils = user.store.Value("Install", "RepAirfoil");
    const fs::perms file = fs::status(airfoils + "/clark é.dat").permissions();
    EXPECT_NE(file & fs::perms::owner_write, fs::perms::none);
    const fs::perms parent = fs::status(user.Documents() + "/Loftwing").permissions();
    EXPECT_EQ(fs::status(airfoils).permissions(), parent);
}

TEST(UserStore, RibSetsLieBesideTheLibrary) {
    const StoreUser user;
    const std::string sets = user.store.Value("Install", "RepEvol");
    EXPECT_EQ(sets, user.folder.Path("home/Documents/Loftwing/rib sets"));
    EXPECT_TRUE(fs::is_directory(sets));
}

TEST(UserStore, WhatIsThereStaysAsItIs) {
    const StoreUser user;
    fs::create_directories(user.folder.Path("home/Documents/Loftwing/airfoils"));
    user.folder.File("home/Documents/Loftwing/airfoils/clark é.dat", "mine");
    const std::string airfoils = user.store.Value("Install", "RepAirfoil");
    EXPECT_EQ(airfoils, user.folder.Path("home/Documents/Loftwing/airfoils"));
    EXPECT_EQ(user.folder.Bytes("home/Documents/Loftwing/airfoils/clark é.dat"), "mine");
    EXPECT_EQ(EntriesOf(airfoils), 1);
}

TEST(UserStore, SamplesComeWithTheLibraryAndOnlyThen) {
    const StoreUser user;
    fs::create_directories(user.folder.Path("program/samples/wing"));
    user.folder.File("program/samples/wing/root.lfw", "root");
    user.store.Value("Install", "RepAirfoil");
    const std::string samples = user.Documents() + "/Loftwing/samples";
    EXPECT_EQ(user.folder.Bytes("home/Documents/Loftwing/samples/wing/root.lfw"), "root");
    fs::remove_all(samples);
    user.store.Value("Install", "RepAirfoil");
    EXPECT_FALSE(fs::exists(samples)) << "the user threw them away";
}

TEST(UserStore, IsEmptyWhereTheDocumentsCannotBeMade) {
    const StoreUser user;
    fs::create_directories(user.folder.Path("home"));
    user.folder.File("home/Documents", "a file, no folder");
    EXPECT_EQ(user.store.Value("Install", "RepAirfoil"), "");
    EXPECT_EQ(user.store.Value("Install", "RepEvol"), "");
    EXPECT_EQ(user.folder.Bytes("home/Documents"), "a file, no folder");
}

TEST(UserStore, IsEmptyWhereAFileHasTheLibrarysName) {
    const StoreUser user;
    fs::create_directories(user.folder.Path("home/Documents/Loftwing"));
    user.folder.File("home/Documents/Loftwing/airfoils", "mine");
    EXPECT_EQ(user.store.Value("Install", "RepAirfoil"), "");
    EXPECT_EQ(user.folder.Bytes("home/Documents/Loftwing/airfoils"), "mine");
}

TEST(UserStore, IsEmptyWithoutABundledLibrary) {
    const StoreUser user;
    const UserStore bare(user.folder.Path("nowhere"));
    EXPECT_EQ(bare.Value("Install", "RepAirfoil"), "");
    EXPECT_FALSE(fs::exists(user.Documents() + "/Loftwing"));
}

TEST(UserStore, AChosenFolderWins) {
    StoreUser user;
    user.store.SetValue("Install", "RepAirfoil", "/srv/profils é");
    const UserStore later(user.folder.Path("program/airfoils"));
    EXPECT_EQ(later.Value("Install", "RepAirfoil"), "/srv/profils é");
    EXPECT_FALSE(fs::exists(user.Documents() + "/Loftwing"));
    EXPECT_TRUE(fs::exists(user.folder.Path("home/.config/loftwing/store.ini")));
}

TEST(UserStore, KeepsLongValues) {
    StoreUser user;
    const std::string path = "/" + std::string(1000, 'x') + "; \"quoted\" = \\ ";
    user.store.SetValue("Section", "Key", path);
    EXPECT_EQ(user.store.Value("Section", "Key"), path);
    EXPECT_EQ(user.store.Value("Section", "Other"), "");
    EXPECT_EQ(user.store.Value("Install", "Other"), "");
}

TEST(UserStore, AStoreThatCannotBeWrittenIsAFailure) {
    StoreUser user;
    fs::create_directories(user.folder.Path("home"));
    user.folder.File("home/.config", "a file, no folder");
    EXPECT_EQ(FailureOf([&] { user.store.SetValue("Install", "RepAirfoil", "x"); }),
              kPathFileAccess);
}

} // namespace loftwing
