#include "core/airfoil_reader.h"

#include "support/special_files.h"
#include "support/words.h"

#include <gmock/gmock.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

constexpr const char *kReaderWords =
    "[TextButton]\n3=Help\n"
    "[frmopen]\n1=Open an airfoil\n11=No title line\n12=First x\n"
    "13=Wrong point\n14=The first x must be 1\n16=Double point x \n"
    "17= and x \n18=Last x\n19=The last x must be 1\n23=Too short\n"
    "190=Point\n191=Points\n192=and\n"
    "[Erreur]\n1=Error\n2=in\n";
constexpr const char *kClosing = "Help/Open an airfoil";
constexpr const char *kCaption = "Caption";

class Reader : public testing::Test {
  protected:
    Words words{kReaderWords};
    RibModel rib;

    ResultatLecture Read(std::string_view bytes) {
        rib.CheminProfil = words.folder.File("airfoil.dat", bytes);
        return ReadPath();
    }
    ResultatLecture ReadPath() { return FichierLecture(rib, words.messages, kCaption); }

    /// Reads a file that must be good.
    void Good(std::string_view bytes) {
        const ResultatLecture result = Read(bytes);
        EXPECT_EQ(result.issue, Lecture::lu) << bytes;
        EXPECT_EQ(result.etiquette, "");
        EXPECT_EQ(rib.NbPoints, rib.ProfilX.Count());
        EXPECT_EQ(rib.NbPoints, rib.ProfilY.Count());
    }
    /// Reads a file that must be refused with these words.
    void Refused(std::string_view bytes, const std::string &label, const std::string &box,
                 BoxIcon icon = BoxIcon::information) {
        rib.SansApercu = true;
        words.platform.Expect(BoxAnswer::ok);
        const ResultatLecture result = Read(bytes);
        EXPECT_EQ(result.issue, Lecture::refuse) << bytes;
        EXPECT_EQ(result.etiquette, label + "\n" + kClosing);
        ASSERT_FALSE(words.platform.boxes.empty());
        EXPECT_EQ(words.LastBox().text, box + "\n" + kClosing);
        EXPECT_EQ(words.LastBox().title, kCaption);
        EXPECT_EQ(words.LastBox().icon, icon);
        EXPECT_EQ(words.LastBox().buttons, BoxButtons::ok);
        EXPECT_EQ(rib.NbPoints, 0);
        EXPECT_FALSE(rib.SansApercu);
    }
    void RefusedWithoutTitle(std::string_view bytes) {
        Refused(bytes, "No title line", "No title line");
    }
    void RefusedFirstX(std::string_view bytes, const std::string &x) {
        const std::string point = "\nPoint 1, x = " + x;
        Refused(bytes, "First x" + point, "Wrong point\nThe first x must be 1" + point);
    }
    /// The second and the third point are the same.
    void RefusedDouble(std::string_view bytes, const std::string &x, const std::string &y) {
        const std::string text =
            "Double point x= " + x + "and x= " + x + "\nPoints 2 and 3, x = " + x + ", y = " + y;
        Refused(bytes, text, text, BoxIcon::none);
    }
    /// `point` is the line that names the last point, with its line feed before it.
    void RefusedLastX(std::string_view bytes, const std::string &point) {
        Refused(bytes, "Last x" + point, "The last x must be 1\nLast x" + point);
    }
    /// Reads what ends in a run-time failure of that number.
    void Failed(const ResultatLecture &result, const std::string &report) {
        EXPECT_EQ(result.issue, Lecture::echec);
        EXPECT_EQ(result.etiquette, "");
        ASSERT_FALSE(words.platform.boxes.empty());
        EXPECT_EQ(words.LastBox().text.substr(0, report.size()), report);
        EXPECT_EQ(words.LastBox().title, " Open/FichierLecture");
        EXPECT_EQ(rib.NbPoints, 0);
    }
    void FailedBytes(std::string_view bytes, const std::string &report) {
        words.platform.Expect(BoxAnswer::ok);
        Failed(Read(bytes), report);
    }

    const std::vector<double> &X() const { return rib.ProfilX.Values(); }
    const std::vector<double> &Y() const { return rib.ProfilY.Values(); }
};

constexpr const char *kInvalidCall = "Error # 5 in Loftwing\nInvalid procedure call";

TEST_F(Reader, ShowsNothingOfATrial) {
    rib.CheminProfil = words.folder.File("airfoil.dat", "Title\n1 0\n0 0\n0.99 0\n");
    const ResultatLecture refused = EssaieLecture(rib, words.messages);
    EXPECT_EQ(refused.issue, Lecture::refuse);
    EXPECT_EQ(refused.boite,
              std::string("The last x must be 1\nLast x\nPoint 3, x = 0.99\n") + kClosing);
    rib.CheminProfil += "x";
    const ResultatLecture failed = EssaieLecture(rib, words.messages);
    EXPECT_EQ(failed.issue, Lecture::echec);
    EXPECT_EQ(failed.boite, "Error # 53 in Loftwing\nFile not found: " + rib.CheminProfil);
    EXPECT_TRUE(words.platform.boxes.empty());
}

TEST_F(Reader, ReadsTitleAndPoints) {
    Good(" Wedge \n1.0 0.0\n0.5 0.1\n0 0\n0.5 -0.1\n1.0 0.0\n");
    EXPECT_EQ(rib.EnteteProfil, "Wedge");
    EXPECT_THAT(X(), ElementsAre(1.0, 0.5, 0.0, 0.5, 1.0));
    EXPECT_THAT(Y(), ElementsAre(0.0, 0.1, 0.0, -0.1, 0.0));
}

TEST_F(Reader, TakesAFirstLineWithoutLettersForDataAndForTheTitle) {
    Good("1.0000 0.0000\n0.5 0.1\n1 -0\n");
    EXPECT_EQ(rib.EnteteProfil, "1.0000 0.0000");
    EXPECT_THAT(X(), ElementsAre(1.0, 0.5, 1.0));
}

TEST_F(Reader, TakesALineOfDigitsSignsAndBlanksForData) {
    Good(" +1.  -0.0 \n0 0\n1 0\n");
    EXPECT_EQ(rib.EnteteProfil, "+1.  -0.0");
    EXPECT_EQ(rib.NbPoints, 3);
}

TEST_F(Reader, TakesAFirstLineWithAnyLetterForTheTitle) {
    for (const char letter : {'A', 'Z', 'a', 'z', 'e'}) {
        Good(std::string("1.0 0") + letter + "\n1 0\n0 0\n1 0\n");
        EXPECT_EQ(rib.NbPoints, 3) << letter;
    }
    // An exponent is a letter too: this first point is lost as title, the next one is not at 1.
    RefusedFirstX("1.0E+00 0.0\n0.5 0.1\n1 0\n", "0.5");
}

TEST_F(Reader, TakesNoOtherCharacterForALetter) {
    // Characters beside the letters in the code table, and letters with accents.
    Good("1 0 @[`{\xC3\xA9\n0 0\n1 0\n");
    EXPECT_EQ(rib.NbPoints, 3);
}

TEST_F(Reader, RefusesAFileThatOpensWithAnEmptyLine) {
    RefusedWithoutTitle("\n1.0 0.0\n0 0\n1 0\n");
    RefusedWithoutTitle("\r\nTitle\r\n1.0 0.0\r\n");
    RefusedWithoutTitle("   \nTitle\n1.0 0.0\n");
}

TEST_F(Reader, RefusesAnEmptyFile) {
    RefusedWithoutTitle("");
    RefusedWithoutTitle("\xEF\xBB\xBF");
}

TEST_F(Reader, RefusesAFirstPointThatIsNotExactlyAtOne) {
    RefusedFirstX("Title\n1.0001 0\n0 0\n1 0\n", "1.0001");
    RefusedFirstX("Title\n0.9999999 0\n0 0\n1 0\n", "0.9999999");
    RefusedFirstX("Title\n0.0 0.0\n0.5 0.1\n1 0\n", "0");
    RefusedFirstX("1.0001 0\n0 0\n1 0\n", "1.0001");
}

TEST_F(Reader, RefusesRisingPointsBehindTwoCounts) {
    RefusedFirstX("Title\n17. 17.\n\n0.0 0.0\n0.5 0.1\n1.0 0.0\n", "17");
}

TEST_F(Reader, RefusesASecondTitleLineAsFirstPoint) {
    RefusedFirstX("Title\nAnother line\n1 0\n0 0\n1 0\n", "0");
    RefusedFirstX("Title\nword\n1 0\n", "0"); // without any blank too
}

TEST_F(Reader, RefusesAnEmptyLineBetweenTitleAndPoints) {
    RefusedFirstX("Title\n\n1 0\n0 0\n1 0\n", "0");
    RefusedFirstX("Title\r\n\r\n1 0\r\n0 0\r\n1 0\r\n", "0");
}

TEST_F(Reader, AcceptsAFirstPointWithBarePoints) {
    Good("Title\n1. 0.\n0. .0\n1. 0.\n");
    EXPECT_THAT(X(), ElementsAre(1.0, 0.0, 1.0));
}

TEST_F(Reader, RefusesTwoEqualPointsInARow) {
    RefusedDouble("Title\n1 0\n0.5 0.1\n0.5 0.1\n0 0\n1 0\n", "0.5", "0.1");
    RefusedDouble("Title\n1 0\n0.25 .1\n.250 0.10\n1 0\n", "0.25", "0.1");
    RefusedDouble("Title\n1 0\n0 0\n0.000 0\n1 0\n", "0", "0");
    RefusedDouble("Title\n1 0\n0.0123456789012345 0\n0.0123456789012345 0\n1 0\n",
                  "1.23456789012345E-02", "0");
}

TEST_F(Reader, LetsARepeatedXPass) {
    Good("Title\n1 0\n0.5 0.1\n0.5 0.2\n0 0\n1 0\n");
    EXPECT_EQ(rib.NbPoints, 5);
}

TEST_F(Reader, LetsEqualPointsPassThatAreNotNeighbours) {
    Good("Title\n1 0\n0.5 0\n0 0\n0.5 0\n1 0\n");
    EXPECT_EQ(rib.NbPoints, 5);
}

TEST_F(Reader, EndsAtALastPointEqualToTheOneBefore) {
    Good("Title\n1 0\n1 0\n0.5 0.1\n");
    EXPECT_EQ(rib.NbPoints, 2) << "the second x of 1 ends the list before points are compared";
}

TEST_F(Reader, ClosesTheListAtOneWhateverTheY) {
    Good("Title\n1 0\n0 0\n1.00000 -0.25\n0.5 0.5\nno more read\n\n");
    EXPECT_THAT(X(), ElementsAre(1.0, 0.0, 1.0));
    EXPECT_EQ(Y().back(), -0.25);
}

TEST_F(Reader, RefusesAListThatEndsShortOfOne) {
    RefusedLastX("Title\n1 0\n0 0\n0.99 0\n", "\nPoint 3, x = 0.99");
    RefusedLastX("Title\n1 0\n0 0\n0.99 0", "\nPoint 3, x = 0.99");
    RefusedLastX("Title\n1 0\n0 0\n0.99 0\n\n", "\nPoint 3, x = 0.99");
    // Without a second point there is none to name.
    RefusedLastX("Title\n1 0\n", "");
    RefusedLastX("Title\n", "");
    RefusedLastX("Title", "");
}

TEST_F(Reader, RefusesAListThatEndsAboveOne) {
    RefusedLastX("Title\n1 0\n0 0\n1.00001 0\n1 0\n", "\nPoint 3, x = 1.00001");
    RefusedLastX("Title\n1 0\n1.5 0\n0 0\n1 0\n", "\nPoint 2, x = 1.5");
}

TEST_F(Reader, NeedsNoLineEndBehindTheLastPoint) {
    Good("Title\n1 0\n0 0\n1 0");
    EXPECT_EQ(rib.NbPoints, 3);
}

TEST_F(Reader, ReadsCrLfAndMixedLineEnds) {
    Good("Title\r\n1 0\n0 0\r\n1 0\r\n");
    EXPECT_EQ(rib.EnteteProfil, "Title");
    EXPECT_EQ(rib.NbPoints, 3);
}

TEST_F(Reader, LetsATrailingEmptyLinePass) {
    Good("Title\n1 0\n0 0\n1 0\n\n\n");
    EXPECT_EQ(rib.NbPoints, 3);
}

TEST_F(Reader, FailsOnAnEmptyLineAmongTheData) {
    FailedBytes("Title\n1 0\n0.5 0.1\n\n0 0\n1 0\n", kInvalidCall);
    EXPECT_THAT(words.LastBox().text, EndsWith(": airfoil.dat, Point 3"));
    FailedBytes("Title\n1 0\n0.5 0.1\n   \n0 0\n1 0\n", kInvalidCall);
    FailedBytes("Title\n1 0\n0.5 0.1\n\n\n", kInvalidCall);
}

TEST_F(Reader, FailsOnALineWithoutABlank) {
    FailedBytes("Title\n1 0\n0.5,0.1\n1 0\n", kInvalidCall);
    EXPECT_THAT(words.LastBox().text, EndsWith(": airfoil.dat, Point 2, 0.5,0.1"));
    FailedBytes("Title\n1 0\n0.5\n1 0\n", kInvalidCall);
    FailedBytes("Title\n1 0\n1\n", kInvalidCall);
}

TEST_F(Reader, TakesAMissingYForZero) {
    Good("Title\n1 0\n0.5 x\n0 -\n1 .\n");
    EXPECT_THAT(Y(), ElementsAre(0.0, 0.0, 0.0, 0.0));
}

TEST_F(Reader, FailsOnNumbersBeyondAllNumbers) {
    FailedBytes("Title\n1 0\n0.5 1e999\n1 0\n",
                "Error # 6 in Loftwing\nOverflow: airfoil.dat, Point 2, 0.5 1e999");
}

TEST_F(Reader, ShowsTheBeginningOfALongLineThatFails) {
    FailedBytes("Title\n1 0\n" + std::string(5000, '5') + "\n1 0\n", kInvalidCall);
    EXPECT_THAT(words.LastBox().text, EndsWith("Point 2, " + std::string(40, '5')));
}

TEST_F(Reader, IgnoresWhatStandsBehindTheNumbersOfALine) {
    Good("Title\n1 0 0.25 words\n0.5x 0.1y 7\n1 0 8\n");
    EXPECT_THAT(X(), ElementsAre(1.0, 0.5, 1.0));
    EXPECT_THAT(Y(), ElementsAre(0.0, 0.1, 0.0)) << "further columns are no more digits of y";
}

TEST_F(Reader, ReadsYWithItsSignApart) {
    Good("Title\n1 0\n0.5 - 0.1 5\n0.25 -  .2\n1 0\n");
    EXPECT_THAT(Y(), ElementsAre(0.0, -0.1, -0.2, 0.0));
}

TEST_F(Reader, ReadsExponents) {
    Good("Title\n1.0000000e+00 0.0000000e+00\n5E-1 -1.25e-02\n1e0 1e-4\n");
    EXPECT_THAT(X(), ElementsAre(1.0, 0.5, 1.0));
    EXPECT_THAT(Y(), ElementsAre(0.0, -0.0125, 0.0001));
}

TEST_F(Reader, ReadsManyBlanksAndTabs) {
    Good("Title\n   1.0      0.0   \n\t0.5\t0.1\t\n0.25 \t 0.2\n1\t0\n");
    EXPECT_THAT(X(), ElementsAre(1.0, 0.5, 0.25, 1.0));
    EXPECT_THAT(Y(), ElementsAre(0.0, 0.1, 0.2, 0.0));
}

TEST_F(Reader, LeavesAllTabsWhenTheFileBeginsWithOne) {
    RefusedFirstX("\tTitle\n1\t0\n0\t0\n1\t0\n", "0");
    EXPECT_EQ(rib.EnteteProfil, "\tTitle");
    Good("\tTitle\n1 0\n0.5 0.1\t9\n1 0\n");
    EXPECT_THAT(Y(), ElementsAre(0.0, 0.1, 0.0));
}

TEST_F(Reader, SkipsAByteOrderMark) {
    Good("\xEF\xBB\xBF"
         "1.0 0.0\n0 0\n1 0\n");
    EXPECT_EQ(rib.EnteteProfil, "1.0 0.0");
}

TEST_F(Reader, ReadsTitlesInWindows1252) {
    Good("Profil \xE9pais \x80\n1 0\n0 0\n1 0\n");
    EXPECT_EQ(rib.EnteteProfil, "Profil \xC3\xA9pais \xE2\x82\xAC");
}

TEST_F(Reader, KeepsCoordinatesAsTheyStand) {
    Good("Title\n1 0.02\n0.7 0.3\n0.9 0.1\n-0.01 0\n1 -0.02\n");
    EXPECT_THAT(X(), ElementsAre(1.0, 0.7, 0.9, -0.01, 1.0));
    EXPECT_EQ(Y().front(), 0.02);
}

TEST_F(Reader, ReadsFewerPointsThanARibNeeds) {
    Good("Title\n1 0\n1 0\n");
    EXPECT_EQ(rib.NbPoints, 2) << "whoever lets the user choose refuses those";
    EXPECT_EQ(RefusTropCourt(words.messages), std::string("Too short\n") + kClosing);
}

TEST_F(Reader, KeepsTheFlagOfNoPreviewOnSuccess) {
    rib.SansApercu = true;
    Good("Title\n1 0\n0 0\n1 0\n");
    EXPECT_TRUE(rib.SansApercu);
}

TEST_F(Reader, MakesTheInsertedTextAutomatic) {
    rib.texte.TexteUtilisateur = true;
    RefusedWithoutTitle("\n");
    EXPECT_FALSE(rib.texte.TexteUtilisateur);
}

TEST_F(Reader, ForgetsTheAirfoilBefore) {
    Good("Title\n1 0\n0.5 0.1\n0 0\n1 0\n");
    Good("Other\n1 0\n0 0\n1 0\n");
    EXPECT_THAT(X(), ElementsAre(1.0, 0.0, 1.0));
    rib.NbPoints = 3;
    RefusedWithoutTitle("\n1 0\n");
    EXPECT_THAT(X(), IsEmpty());
}

std::string ManyPoints(int count) {
    std::string text = "Title\n1 0\n";
    for (int i = 2; i < count; ++i) {
        text += "0.5 " + std::to_string(i) + "\n";
    }
    return text + "1 0\n";
}

TEST_F(Reader, ReadsAsManyPointsAs16BitsCount) {
    Good(ManyPoints(32767));
    EXPECT_EQ(rib.NbPoints, 32767);
}

TEST_F(Reader, FailsAtThe32768thPoint) {
    FailedBytes(ManyPoints(32768), "Error # 6 in Loftwing\nOverflow");
}

TEST_F(Reader, ReadsALargeFileOfLineEnds) {
    RefusedWithoutTitle(std::string(10'000'000, '\n'));
}

TEST_F(Reader, ReportsAMissingFile) {
    rib.CheminProfil = words.folder.Path("none.dat");
    words.platform.Expect(BoxAnswer::ok);
    Failed(ReadPath(), "Error # 53 in Loftwing\nFile not found: " + rib.CheminProfil);
}

TEST_F(Reader, ReportsAMissingFolder) {
    rib.CheminProfil = words.folder.Path("none/x.dat");
    words.platform.Expect(BoxAnswer::ok);
    Failed(ReadPath(), "Error # 76 in Loftwing\nPath not found: " + rib.CheminProfil);
}

TEST_F(Reader, ReportsAFolderInPlaceOfAFile) {
    rib.CheminProfil = words.folder.Path();
    words.platform.Expect(BoxAnswer::ok);
    Failed(ReadPath(), "Error # 75 in Loftwing\nPath/file access error: ");
}

TEST_F(Reader, ReportsAPipeAndDoesNotWaitForIt) {
    rib.CheminProfil = words.folder.Path("pipe");
    if (!MakePipe(rib.CheminProfil)) {
        GTEST_SKIP() << "no pipes among the files of this system";
    }
    words.platform.Expect(BoxAnswer::ok);
    Failed(ReadPath(), "Error # 75 in Loftwing\nPath/file access error: ");
}

} // namespace
} // namespace loftwing
