#include "app/many_files.h"

#include "support/special_files.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::internal::CaptureStderr;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStderr;
using testing::internal::GetCapturedStdout;

/// Three files of which the second is refused and the last throws where it is told to.
class ManyFiles : public testing::TestWithParam<AtATime> {
  protected:
    bool throws_ = false;
    bool all_ = false;
    std::vector<std::size_t> finished_;

    void Run() {
        CaptureStdout();
        CaptureStderr();
        try {
            all_ = WorkOnFiles(3, GetParam(), [this](std::size_t index, const Console &console) {
                return Work(index, console);
            });
        } catch (const std::runtime_error &) {
            finished_.push_back(99);
        }
        out_ = GetCapturedStdout();
        err_ = GetCapturedStderr();
    }
    const std::string &Out() const { return out_; }
    const std::string &Err() const { return err_; }

  private:
    std::string out_;
    std::string err_;

    FileTurn Work(std::size_t index, const Console &console) {
        console.out << "facts " << index << '\n';
        console.err << "warning " << index << '\n';
        if (throws_ && index == 1) {
            throw std::runtime_error("broken off");
        }
        return {[this, index] {
            finished_.push_back(index);
            return index != 1;
        }};
    }
};

TEST_P(ManyFiles, AreToldOfAndFinishedInTheirOrder) {
    Run();
    EXPECT_EQ(Out(), "facts 0\nfacts 1\nfacts 2\n");
    EXPECT_EQ(Err(), "warning 0\nwarning 1\nwarning 2\n");
    EXPECT_THAT(finished_, ElementsAre(0U, 1U, 2U));
    EXPECT_FALSE(all_) << "one was refused, and the next one came all the same";
}

TEST_P(ManyFiles, EndWhereTheWorkOnOneThrowsAfterItsWords) {
    throws_ = true;
    Run();
    EXPECT_EQ(Out(), "facts 0\nfacts 1\n");
    EXPECT_EQ(Err(), "warning 0\nwarning 1\n");
    EXPECT_THAT(finished_, ElementsAre(0U, 99U));
}

INSTANTIATE_TEST_SUITE_P(AtATime, ManyFiles, testing::Values(AtATime::many, AtATime::one));

TEST(WorkOnFiles, OfNoneRefusesNothing) {
    EXPECT_TRUE(WorkOnFiles(0, AtATime::many, [](std::size_t, const Console &) -> FileTurn {
        throw std::runtime_error("there is none");
    }));
}

class FilesReadAndWritten : public testing::Test {
  protected:
    TempFolder folder;
    const std::string a_ = folder.File("a.txt", "");
    const std::string b_ = folder.File("b.dat", "");
};

TEST_F(FilesReadAndWritten, AreWorkedOnTogetherWhereNoneIsBoth) {
    EXPECT_EQ(AtATimeOf({a_, b_}, {folder.Path("x.dat"), folder.Path("y.dat")}), AtATime::many);
    EXPECT_EQ(AtATimeOf({"a.dat", "b.dat"}, {"out/a.dat", "out/b.dat"}), AtATime::many);
}

TEST_F(FilesReadAndWritten, MayBeTheirOwnOutput) {
    EXPECT_EQ(AtATimeOf({a_, b_}, {a_, b_}), AtATime::many);
}

TEST_F(FilesReadAndWritten, MayBeReadBeforeTheyAreWritten) {
    EXPECT_EQ(AtATimeOf({b_, a_}, {folder.Path("x.dat"), b_}), AtATime::many);
}

TEST_F(FilesReadAndWritten, ComeOneByOneWhereALaterOneReadsWhatIsWritten) {
    EXPECT_EQ(AtATimeOf({a_, b_}, {b_, folder.Path("x.dat")}), AtATime::one);
    EXPECT_EQ(AtATimeOf({a_, a_}, {a_, a_}), AtATime::one);
    EXPECT_EQ(AtATimeOf({"a.txt", "b.dat"}, {"b.dat", "c.dat"}), AtATime::one);
}

TEST_F(FilesReadAndWritten, AreTheSameByWhateverWay) {
    const std::string other_way = folder.Path("sub/../b.dat");
    fs::create_directory(folder.Path("sub"));
    EXPECT_EQ(AtATimeOf({a_, b_}, {other_way, folder.Path("x")}), AtATime::one);
    EXPECT_EQ(AtATimeOf({"a.txt", "./b.dat"}, {"b.dat", "x"}), AtATime::one);
}

TEST_F(FilesReadAndWritten, AreTheSameByWhateverLink) {
    fs::create_directory(folder.Path("sub"));
    if (!MakeLink(b_, folder.Path("link.dat"))) {
        GTEST_SKIP() << "this system has no links for everybody";
    }
    EXPECT_EQ(AtATimeOf({a_, folder.Path("link.dat")}, {b_, "x"}), AtATime::one);
    EXPECT_EQ(AtATimeOf({a_, b_}, {folder.Path("link.dat"), "x"}), AtATime::one);
    ASSERT_TRUE(MakeLink(folder.Path(), folder.Path("sub/all")));
    EXPECT_EQ(AtATimeOf({a_, folder.Path("sub/all/b.dat")}, {b_, "x"}), AtATime::one);
}

TEST_F(FilesReadAndWritten, AFolderThatIsNotThereYetHasNothingToRead) {
    EXPECT_EQ(AtATimeOf({a_, b_}, {folder.Path("new/b.dat"), folder.Path("new/c.dat")}),
              AtATime::many);
}

} // namespace
} // namespace loftwing
