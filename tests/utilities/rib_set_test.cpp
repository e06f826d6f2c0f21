// Stations, lookups and files that both rib sets share.

#include "utilities/rib_set_files.h"
#include "utilities/rib_set_fixture.h"

#include "support/failures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

PointList List(const std::vector<double> &values) {
    PointList list;
    for (const double value : values) {
        list.Append(value);
    }
    return list;
}

TEST(RibSetIntake, LeadingEdgeIsTheCountOfNewMinima) {
    // 1 isn't below 1; 0.5 and 0 are new minima.
    EXPECT_EQ(ProfilMineur(Diamond("a", 0.1)).IdxBA, 3);
    // A first point below 1 counts too, a repeated x doesn't.
    EXPECT_EQ(ProfilMineur(Chosen("b", {{0.9, 0}, {0, 0}, {1, 0}})).IdxBA, 3);
    EXPECT_EQ(ProfilMineur(Chosen("c", {{1, 0}, {0.5, 0}, {0.5, 1}, {0, 0}, {1, 0}})).IdxBA, 3);
}

TEST(RibSetIntake, OnlyTheRootsListsHaveASpareCell) {
    const ProfilJeu major = ProfilMajeur(Diamond("a", 0.1));
    EXPECT_EQ(major.ProfilX.Count(), 6);
    EXPECT_EQ(major.ProfilX(6), 0.0);
    EXPECT_EQ(major.ProfilY(6), 0.0);
    EXPECT_EQ(major.NbPoint, 5);
    EXPECT_EQ(ProfilMineur(Diamond("a", 0.1)).ProfilX.Count(), 5);
}

TEST(RibSetLookup, UpperHeightLiesOnTheLineBetweenThePointsAroundIt) {
    const PointList xs = List({1, 0.5, 0});
    const PointList ys = List({0, 0.1, 0});
    EXPECT_DOUBLE_EQ(InterpExtra(3, xs, ys, 0.75), 0.05);
    EXPECT_DOUBLE_EQ(InterpExtra(3, xs, ys, 0.25), 0.05);
}

TEST(RibSetLookup, LowerHeightLiesOnTheLineBetweenThePointsAroundIt) {
    const PointList xs = List({1, 0.5, 0, 0.5, 1});
    const PointList ys = List({0, 0.1, 0, -0.1, 0});
    EXPECT_DOUBLE_EQ(InterpIntra(3, 5, xs, ys, 0.25), -0.05);
    EXPECT_DOUBLE_EQ(InterpIntra(3, 5, xs, ys, 0.75), -0.05);
}

TEST(RibSetLookup, StationAtOneTakesTheOuterHeightsWhateverTheirX) {
    const PointList xs = List({0.9, 0.5, 0, 0.5, 0.9});
    const PointList ys = List({0.01, 0.1, 0, -0.1, -0.02});
    EXPECT_EQ(InterpExtra(3, xs, ys, 1.0), 0.01);
    EXPECT_EQ(InterpIntra(3, 5, xs, ys, 1.0), -0.02);
}

TEST(RibSetLookup, XWithinAMillionthTakesThePointsOwnHeight) {
    const PointList xs = List({1, 0.5, 0, 0.5, 1});
    const PointList ys = List({0, 0.1, 0, -0.1, 0});
    EXPECT_EQ(InterpExtra(3, xs, ys, 0.5 + 0.9e-6), 0.1);
    EXPECT_EQ(InterpExtra(3, xs, ys, 0.5 - 0.9e-6), 0.1);
    EXPECT_NE(InterpExtra(3, xs, ys, 0.5 + 1.1e-6), 0.1);
    EXPECT_EQ(InterpIntra(3, 5, xs, ys, 0.5 + 0.9e-6), -0.1);
}

TEST(RibSetLookup, XBeyondTheFirstPointIsABadSubscript) {
    const PointList xs = List({0.9, 0.5, 0});
    const PointList ys = List({0, 0.1, 0});
    EXPECT_EQ(FailureOf([&] { InterpExtra(3, xs, ys, 0.95); }), kSubscriptOutOfRange);
}

TEST(RibSetLookup, WalkEndsAtItsBoundEvenBehindX) {
    // The bound 2 stops before the segment of x = 0.25; the last pair noted is extended.
    const PointList xs = List({1, 0.5, 0});
    const PointList ys = List({0, 0.1, 0});
    EXPECT_EQ(InterpExtra(2, xs, ys, 0.25), (0.0 - 0.1) / 0.5 * 0.25 + 0.1);
    // With a bound of 1 the pair is the trailing segment.
    EXPECT_EQ(InterpExtra(1, xs, ys, 0.25), 0.1 / 0.5 * 0.75 + 0.0);
}

TEST(RibSetLookup, LowerStationBeyondTheLastPointFailsWithoutASpareCell) {
    const ProfilJeu minor =
        ProfilMineur(Chosen("m", {{1, 0}, {0.5, 0.1}, {0, 0}, {0.5, -0.1}, {0.8, -0.04}}));
    EXPECT_EQ(FailureOf([&] { InterpIntra(3, 5, minor.ProfilX, minor.ProfilY, 0.9); }),
              kSubscriptOutOfRange);
    // The root's list has the cell (0, 0) behind it: from (0.8, -0.04) to there, at 0.9.
    const ProfilJeu major =
        ProfilMajeur(Chosen("m", {{1, 0}, {0.5, 0.1}, {0, 0}, {0.5, -0.1}, {0.8, -0.04}}));
    EXPECT_DOUBLE_EQ(InterpIntra(3, 5, major.ProfilX, major.ProfilY, 0.9), 0.04 / 0.8 * 0.1 - 0.04);
}

TEST(RibSetLookup, PointsAboveEachOtherAreADivisionByZero) {
    const PointList xs = List({1, 0.5, 0.5, 0.2});
    const PointList ys = List({0, 0.1, 0.2, 0});
    // The walk stops at its bound 2 with the pair of equal x.
    EXPECT_EQ(FailureOf([&] { InterpExtra(2, xs, ys, 0.3); }), kDivisionByZero);
}

TEST(RibSetLookup, SecondPointIsNotReadWhenTheFirstIsCloseEnough) {
    // b would lie behind the list.
    const PointList xs = List({1, 0.5});
    const PointList ys = List({0, 0.1});
    EXPECT_EQ(InterpExtra(2, xs, ys, 0.5 - 0.5e-6), 0.1);
}

TEST(RibSetCurves, EqualCountsTakeTheStationsOfTheRoot) {
    const CourbesJeu curves = CalculProfils(
        ProfilMajeur(Diamond("a", 0.1)),
        ProfilMineur(Chosen("b", {{1, 0}, {0.6, 0.04}, {0, 0}, {0.6, -0.04}, {1, 0}})));
    EXPECT_EQ(curves.n, 5);
    EXPECT_EQ(curves.MineurX(2), 0.5);
    EXPECT_DOUBLE_EQ(curves.MineurY(2), 0.04 * 0.5 / 0.6);
    EXPECT_DOUBLE_EQ(curves.MineurY(4), -0.04 * 0.5 / 0.6);
}

TEST(RibSetCurves, FinerTipGivesTheStations) {
    const CourbesJeu curves =
        CalculProfils(ProfilMajeur(Diamond("a", 0.1)), ProfilMineur(FineDiamond("b", 0.05)));
    EXPECT_EQ(curves.n, 7);
    EXPECT_EQ(curves.MajeurX(2), 0.75);
    EXPECT_DOUBLE_EQ(curves.MajeurY(2), 0.05);
    EXPECT_DOUBLE_EQ(curves.MajeurY(6), -0.05);
    EXPECT_EQ(curves.MineurY(2), 0.025);
}

TEST(RibSetCurves, FailureNamesBothAirfoilsAndTheStation) {
    const ProfilJeu major = ProfilMajeur(FineDiamond("root", 0.1));
    const ProfilJeu minor =
        ProfilMineur(Chosen("tip", {{0.7, 0}, {0.5, 0.1}, {0, 0}, {0.5, -0.1}, {0.7, 0}}));
    try {
        CalculProfils(major, minor);
        FAIL() << "x = 0.75 lies outside the tip's points";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number, kSubscriptOutOfRange);
        EXPECT_THAT(failure.detail, HasSubstr("x = 0.75"));
        EXPECT_THAT(failure.detail, HasSubstr("root, tip"));
    }
}

class RibSetFiles : public testing::Test, public JeuFixture {};

TEST_F(RibSetFiles, RootAndTipHaveTwoBlanksAndBlendsThree) {
    SaveProfil(Even("200", "100", "1"), messages);
    // Half way between 0.1 and 0.05, and the chord half way too.
    EXPECT_THAT(Lines("root&tipR01.dat"),
                ElementsAre("Rib 1 Chord :  200.00", "1.0000000  0.0000000", "0.5000000  0.1000000",
                            "0.0000000  0.0000000", "0.5000000  -0.1000000",
                            "1.0000000  0.0000000"));
    EXPECT_THAT(Lines("root&tipR02.dat"),
                ElementsAre("Rib 2 Chord :  150.00", "1.0000000   0.0000000",
                            "0.5000000   0.0750000", "0.0000000   0.0000000",
                            "0.5000000   -0.0750000", "1.0000000   0.0000000"));
    EXPECT_EQ(Lines("root&tipR03.dat")[2], "0.5000000  0.0500000");
}

TEST_F(RibSetFiles, EveryLineEndsInCrLf) {
    SaveProfil(Even("200", "100", "1"), messages);
    const std::string bytes = folder.Bytes("root&tipR01.dat");
    EXPECT_TRUE(bytes.ends_with("0.0000000\r\n"));
    std::size_t ends = 0;
    for (std::size_t at = bytes.find("\r\n"); at != std::string::npos;
         at = bytes.find("\r\n", at + 1)) {
        ++ends;
    }
    EXPECT_EQ(ends, 6U);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 6);
}

TEST_F(RibSetFiles, NegativeHeightThatRoundsToZeroKeepsItsMinus) {
    profils[0] = ProfilMajeur(
        Chosen("root", {{1, -0.00000001}, {0.5, 0.1}, {0, 0}, {0.5, -0.1}, {1, -0.0}}));
    SaveProfil(Even("200", "100", "1"), messages);
    EXPECT_EQ(Lines("root&tipR01.dat")[1], "1.0000000  -0.0000000");
    EXPECT_EQ(Lines("root&tipR01.dat")[5], "1.0000000  0.0000000");
}

TEST_F(RibSetFiles, NumbersBelowTenHaveALeadingZeroInNamesOnly) {
    const JeuDeNervures jeu = Even("200", "100", "9");
    EXPECT_EQ(NomNervure(jeu, 9, messages), "root&tipR09.dat");
    EXPECT_EQ(NomNervure(jeu, 10, messages), "root&tipR10.dat");
    SaveProfil(jeu, messages);
    EXPECT_THAT(Lines("root&tipR09.dat")[0], HasSubstr("Rib 9 Chord"));
    EXPECT_EQ(Lines("root&tipR11.dat")[0], "Rib 11 Chord :  100.00");
}

TEST_F(RibSetFiles, InchesEndNamesAndTitles) {
    Unite = kUniteIn;
    SaveProfil(Even("12.1/2", "5", "1"), messages);
    EXPECT_EQ(Lines("root&tipR01in.dat")[0], "Rib 1 Chord : 12.1/2 in");
    // Half way between 317.5 and 127 mm: 222.25 mm are 8 3/4 inches.
    EXPECT_EQ(Lines("root&tipR02in.dat")[0], "Rib 2 Chord : 8.3/4 in");
    EXPECT_EQ(Lines("root&tipR03in.dat")[0], "Rib 3 Chord : 5 in");
}

TEST_F(RibSetFiles, SummaryTellsUnitCountAndChords) {
    EcritResume(Even("200", "100", "1"));
    EXPECT_EQ(folder.Bytes("root&tip_200_100_3.txt"),
              "Set of ribs :  mm - between : 1\r\n\r\n"
              "Rib #01 Chord :  200.00\r\nRib #02 Chord :  150.00\r\nRib #03 Chord :  100.00\r\n");
}

TEST_F(RibSetFiles, SummaryInInchesHasTheTypedEndsBehindTwoBlanksAndMmInItsName) {
    Unite = kUniteIn;
    EcritResume(Even("12.1/2", "5", "1"));
    EXPECT_EQ(folder.Bytes("root&tip_317.5_127_3.txt"),
              "Set of ribs :  in - between : 1\r\n\r\n"
              "Rib #01 Chord :  12.1/2\r\nRib #02 Chord : 8.3/4\r\nRib #03 Chord :  5\r\n");
}

TEST_F(RibSetFiles, EqualAirfoilsAndChordsGiveTheSameRibEverywhere) {
    profils[1] = ProfilMineur(Diamond("tip", 0.1));
    SaveProfil(Even("150", "150", "2"), messages);
    for (const char *name : {"root&tipR01.dat", "root&tipR02.dat", "root&tipR03.dat"}) {
        const auto lines = Lines(name);
        EXPECT_THAT(lines[0], HasSubstr("Chord :  150.00")) << name;
        EXPECT_THAT(lines[2], HasSubstr(" 0.1000000")) << name;
    }
}

TEST_F(RibSetFiles, WritingAgainReplacesWithoutAQuestion) {
    SaveProfil(Even("200", "100", "1"), messages);
    SaveProfil(Even("300", "100", "1"), messages);
    EXPECT_EQ(Lines("root&tipR01.dat")[0], "Rib 1 Chord :  300.00");
    EXPECT_TRUE(words.platform.boxes.empty());
}

TEST_F(RibSetFiles, FilesOfAnotherSetAreThoseThatAreThereAndWereNotJustWritten) {
    const JeuDeNervures jeu = Even("200", "100", "1");
    const std::string dir = jeu.dossier;
    EXPECT_EQ(FichiersDuJeu(jeu, messages),
              (FichiersEcrits{dir + "root&tipR01.dat", dir + "root&tipR02.dat",
                              dir + "root&tipR03.dat", dir + "root&tip_200_100_3.txt"}));
    EXPECT_TRUE(FichiersRemplaces(jeu, {}, messages).empty());
    SaveProfil(jeu, messages);
    EXPECT_EQ(FichiersRemplaces(jeu, {dir + "root&tipR02.dat"}, messages),
              (FichiersEcrits{dir + "root&tipR01.dat", dir + "root&tipR03.dat"}));
}

TEST_F(RibSetFiles, TheQuestionNamesTheFirstSixFilesAndTellsHowManyThereAre) {
    FichiersEcrits files;
    for (const char *name : {"a", "b", "c", "d", "e", "f"}) {
        files.insert(std::string("/sets/") + name);
    }
    EXPECT_EQ(TexteRemplacement(files, messages), "there\n/sets\n\na\nb\nc\nd\ne\nf\n\nreplace?");
    files.insert("/sets/g");
    EXPECT_EQ(TexteRemplacement(files, messages),
              "there\n/sets\n\na\nb\nc\nd\ne\nf\n... (7)\n\nreplace?");
}

TEST_F(RibSetFiles, NinetyRibsBetweenGiveNinetyTwoFilesAndTellEachStep) {
    const JeuDeNervures jeu = Even("200", "100", "90");
    std::vector<int> told;
    const auto paths = SaveProfil(jeu, messages, [&](int done, int total) {
        EXPECT_EQ(total, 92);
        told.push_back(done);
    });
    EXPECT_EQ(paths.size(), 92U);
    EXPECT_EQ(folder.Entries(), 92);
    ASSERT_EQ(told.size(), 92U);
    EXPECT_EQ(told.back(), 92);
    EXPECT_EQ(paths.back(), Dossier() + "root&tipR92.dat");
}

TEST_F(RibSetFiles, MissingFolderIsTheFailureThatNamesTheFile) {
    JeuDeNervures jeu = Even("200", "100", "1");
    jeu.dossier = folder.Path("nowhere") + "/";
    try {
        SaveProfil(jeu, messages);
        FAIL() << "there is no such folder";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number, kPathNotFound);
        EXPECT_THAT(failure.detail, HasSubstr("root&tipR01.dat"));
    }
}

TEST_F(RibSetFiles, FileThatIsRefusedStopsTheSetAndLeavesTheOnesBefore) {
    std::filesystem::create_directory(folder.Path("root&tipR02.dat"));
    EXPECT_EQ(FailureOf([&] { SaveProfil(Even("200", "100", "1"), messages); }), kPathFileAccess);
    EXPECT_EQ(Lines("root&tipR01.dat").size(), 6U);
    EXPECT_FALSE(std::filesystem::exists(folder.Path("root&tipR03.dat")));
}

TEST_F(RibSetFiles, ResultListsEveryFileUpToTwelveRibsBetween) {
    const std::string text = ResultatRibevol(Even("200", "100", "12"), messages);
    EXPECT_TRUE(text.starts_with("Set of ribs\n\rFolder : " + Dossier() +
                                 "\n\r\rroot&tipR01.dat Rib 1 Chord :  200.00\n\r"))
        << text;
    EXPECT_TRUE(text.ends_with("root&tipR14.dat Rib 14 Chord :  100.00\n\r\n\n"
                               "Summary : root&tip_200_100_14.txt"))
        << text;
    std::size_t ribs = 0;
    for (std::size_t at = text.find(".dat"); at != std::string::npos;
         at = text.find(".dat", at + 1)) {
        ++ribs;
    }
    EXPECT_EQ(ribs, 14U);
}

TEST_F(RibSetFiles, ResultIsShortFromThirteenRibsBetween) {
    EXPECT_EQ(ResultatRibevol(Even("200", "100", "13"), messages),
              "Set of 15 ribs\n\nSummary root&tip.txt");
    EXPECT_EQ(ResultatRibevol(Even("200", "100", "90"), messages),
              "Set of 92 ribs\n\nSummary root&tip.txt");
}

TEST(ToolFiles, FolderEndsInOneSeparator) {
    std::string folder = "/home/user/ribs";
    TermineDossier(folder);
    EXPECT_EQ(folder, "/home/user/ribs/");
    TermineDossier(folder);
    EXPECT_EQ(folder, "/home/user/ribs/");
}

TEST(ToolFiles, MissingFolderIsToldInWordsOfItsOwn) {
    Words words("[FrmDefaut]\n15=The folder\n[Message]\n2=is gone.\n3=Choose one.\n"
                "[Erreur]\n1=Error\n2=in\n");
    words.platform.Expect(BoxAnswer::ok);
    RapporteEcriture(words.messages, MakeFailure(kPathNotFound, "/x/r01.dat"),
                     " RibEvol/SaveProfil");
    EXPECT_THAT(words.LastBox().text, testing::StartsWith("The folder is gone.\nChoose one.\n"));
    EXPECT_THAT(words.LastBox().text, HasSubstr("/x/r01.dat"));
    EXPECT_EQ(words.LastBox().title, "Error RibEvol/SaveProfil");
    words.platform.Expect(BoxAnswer::ok);
    RapporteEcriture(words.messages, MakeFailure(kDeviceError, "/x/r01.dat"),
                     " RibEvol/SaveProfil");
    EXPECT_EQ(words.LastBox().text,
              "Error # 57 in Loftwing\nDevice input/output error: /x/r01.dat");
}

TEST(ToolFiles, FailureOfARibAtAnAngleIsToldWithItsProgram) {
    Words words("[Erreur]\n1=Error\n");
    words.platform.Expect(BoxAnswer::ok);
    RapporteAngle(words.messages, MakeFailure(kPathFileAccess));
    EXPECT_EQ(words.LastBox().text, "Error # 75 From  LoftwingPath/file access error");
    EXPECT_EQ(words.LastBox().title, "Error Angle/OK");
}

} // namespace
} // namespace loftwing
