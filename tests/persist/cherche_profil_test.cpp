// The search for the airfoil that a rib components file names.

#include "persist/LireEcrire.h"

#include "base/file_name.h"
#include "support/special_files.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

/// Folders with airfoils.
class AirfoilSearch : public testing::Test {
  protected:
    std::string Put(const std::string &path) {
        std::filesystem::create_directories(std::filesystem::path(folder.Path(path)).parent_path());
        return folder.File(path, "airfoil");
    }
    std::string Search(const std::vector<std::string> &below, const std::string &name) {
        std::vector<std::string> folders;
        for (const std::string &each : below) {
            folders.push_back(folder.Path(each));
        }
        return ChercheProfil(folders, name, [this] { ++pauses; });
    }

    TempFolder folder;
    int pauses = 0;
};

TEST_F(AirfoilSearch, LastVisitedOfTwoSubfoldersWins) {
    Put("one/a/e205.dat");
    const std::string last = Put("one/b/e205.dat");
    Put("one/e205.dat");
    EXPECT_EQ(Search({"one"}, "e205.dat"), last);
    EXPECT_EQ(pauses, 3);
}

TEST_F(AirfoilSearch, DeeperFoldersOfAnEarlierOneComeBeforeALaterOne) {
    Put("one/a/z/e205.dat");
    const std::string last = Put("one/b/e205.dat");
    EXPECT_EQ(Search({"one"}, "e205.dat"), last);
}

TEST_F(AirfoilSearch, HitInTheFirstFolderLeavesTheSecondOut) {
    const std::string first = Put("one/e205.dat");
    Put("two/e205.dat");
    EXPECT_EQ(Search({"one", "two"}, "e205.dat"), first);
    EXPECT_EQ(pauses, 1);
    const std::string other = Put("two/mh32.dat");
    EXPECT_EQ(Search({"one", "two"}, "mh32.dat"), other);
}

TEST_F(AirfoilSearch, NothingIsFoundWhereNothingIs) {
    Put("one/e205.dat");
    EXPECT_EQ(Search({"one"}, "E205x.dat"), "");
    EXPECT_EQ(Search({"nowhere"}, "e205.dat"), "");
    EXPECT_EQ(Search({}, "e205.dat"), "");
    Put("one/folder.dat/x");
    EXPECT_EQ(Search({"one"}, "folder.dat"), ""); // a folder is no airfoil
}

TEST_F(AirfoilSearch, AFileIsFoundUnderTheNameThatARibFileCanHold) {
    if (RulesHere() == NameRules::letters) {
        GTEST_SKIP() << "no name has a line end here";
    }
    const std::string broken = Put("one/a/line\nend.dat");
    EXPECT_EQ(Search({"one"}, "line end.dat"), broken);
    EXPECT_EQ(ProfilACote(folder.Path("one/a/rib.lfw"), "line end.dat"), broken);
    const std::string western = Put("one/b\xFC.dat"); // Windows-1252
    EXPECT_EQ(Search({"one"}, "b\xC3\xBC.dat"), western);
    EXPECT_EQ(ProfilACote(folder.Path("one/rib.lfw"), "b\xC3\xBC.dat"), western);
    // A file of that very name comes first.
    const std::string exact = Put("one/line end.dat");
    EXPECT_EQ(Search({"one"}, "line end.dat"), exact);
    Put("one/folder\n.dat/x");
    EXPECT_EQ(Search({"one"}, "folder .dat"), "");
}

TEST_F(AirfoilSearch, NameIsNeverAPath) {
    Put("one/e205.dat");
    Put("one/sub/mh32.dat");
    for (const std::string &name :
         {std::string("sub/mh32.dat"), std::string("../one/e205.dat"), folder.Path("one/e205.dat"),
          std::string("sub\\mh32.dat"), std::string(""), std::string("."), std::string("..")}) {
        EXPECT_EQ(Search({"one"}, name), "") << name;
    }
}

TEST_F(AirfoilSearch, LinksDoNotLeadInACircle) {
    const std::string file = Put("one/a/e205.dat");
    if (!MakeLink(folder.Path("one"), folder.Path("one/a/back"))) {
        GTEST_SKIP() << "this system has no links for everybody";
    }
    ASSERT_TRUE(MakeLink(folder.Path("one/a"), folder.Path("one/b")));
    EXPECT_EQ(Search({"one"}, "e205.dat"), file);
    EXPECT_EQ(pauses, 2);
}

TEST_F(AirfoilSearch, BesideARibFileIsItsFolderAlone) {
    Put("ribs/below/e205.dat");
    const std::string rib = folder.Path("ribs/rib.lfw");
    EXPECT_EQ(ProfilACote(rib, "e205.dat"), "");
    const std::string beside = Put("ribs/e205.dat");
    EXPECT_EQ(ProfilACote(rib, "e205.dat"), beside);
    EXPECT_EQ(ProfilACote(rib, "below/e205.dat"), ""); // a name is no path
    EXPECT_EQ(ProfilACote(rib, ""), "");
    EXPECT_EQ(ProfilACote(rib, "below"), ""); // nor a folder an airfoil
}

} // namespace
} // namespace loftwing
