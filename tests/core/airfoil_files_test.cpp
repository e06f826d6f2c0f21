// Airfoil files as builders have them: reading and contour compared with second computations. The
// larger collection lies beside the sources on some machines only.

#include "base/whole_file.h"
#include "core/airfoil_reader.h"
#include "support/airfoil_folders.h"
#include "support/contour_check.h"
#include "support/naive_reader.h"
#include "support/words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

constexpr const char *kFileWords = "[TextButton]\n3=Help\n"
                                   "[frmopen]\n1=Open\n11=A\n12=C\n13=C1\n14=C2\n16=D \n17= D \n"
                                   "18=E\n19=E1\n[Erreur]\n1=F\n2=in\n";

/// First letter of the box that belongs to a reading.
char LetterOf(NaiveReading reading) {
    switch (reading) {
    case NaiveReading::no_title:
        return 'A';
    case NaiveReading::first_x:
        return 'C';
    case NaiveReading::double_point:
        return 'D';
    case NaiveReading::last_x:
        return 'E';
    default:
        return 'F';
    }
}

Lecture IssueOf(NaiveReading reading) {
    switch (reading) {
    case NaiveReading::read:
        return Lecture::lu;
    case NaiveReading::failure:
        return Lecture::echec;
    default:
        return Lecture::refuse;
    }
}

void ComparePoints(const RibModel &rib, const NaiveFile &naive) {
    ASSERT_EQ(rib.NbPoints, naive.points.Count());
    ASSERT_EQ(rib.EnteteProfil, naive.title);
    for (long i = 1; i <= rib.NbPoints; ++i) {
        ASSERT_EQ(rib.ProfilX(i), naive.points.x[static_cast<std::size_t>(i)]) << i;
        ASSERT_EQ(rib.ProfilY(i), naive.points.y[static_cast<std::size_t>(i)]) << i;
    }
}

/// Reads and prepares one file; what became of it, in one word.
std::string Sweep(const fs::path &path) {
    const NaiveFile naive = ReadNaively(ReadWholeFile(path.string()));
    Words words(kFileWords);
    RibModel rib;
    NommeProfil(rib, path.string());
    if (naive.reading != NaiveReading::read) {
        words.platform.Expect(BoxAnswer::ok);
    }
    const ResultatLecture result = FichierLecture(rib, words.messages, "Caption");
    EXPECT_EQ(result.issue, IssueOf(naive.reading));
    if (naive.reading != NaiveReading::read) {
        const std::string box = words.platform.boxes.empty() ? "-" : words.LastBox().text;
        EXPECT_EQ(box.front(), LetterOf(naive.reading));
        return std::string("refused ") + LetterOf(naive.reading);
    }
    ComparePoints(rib, naive);
    const NaiveContour contour = PrepareAndCompare(rib);
    return contour.minix_failed ? "impossible" : contour.alocate_failed ? "incomplete" : "complete";
}

std::map<std::string, int> SweepAll(const std::vector<fs::path> &files) {
    std::map<std::string, int> tally;
    for (const fs::path &file : files) {
        SCOPED_TRACE(file.string());
        ++tally[Sweep(file)];
    }
    for (const auto &[what, count] : tally) {
        std::printf("  %s: %d\n", what.c_str(), count);
    }
    return tally;
}

TEST(AirfoilFiles, OfTheBundledLibraryAreAllGood) {
    const std::vector<fs::path> files =
        AirfoilFilesOf(fs::path(LOFTWING_SOURCE_DIR) / "resources" / "airfoils");
    if (files.empty()) {
        GTEST_SKIP() << "no library in the sources";
    }
    EXPECT_EQ(SweepAll(files)["complete"], static_cast<int>(files.size()));
}

TEST(AirfoilFiles, OfTheLargeCollectionAgreeWithSecondComputations) {
    const std::vector<fs::path> files = LargeCollection();
    if (files.empty()) {
        GTEST_SKIP() << kNoCollection;
    }
    EXPECT_GT(SweepAll(files)["complete"], 0);
}

} // namespace
} // namespace loftwing
