#include "utilities/coord.h"

#include "support/failures.h"
#include "support/words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Coord, APointIsDividedAndHasSixDecimals) {
    EXPECT_EQ(LigneDePoint("200", "12.5", "200"), "1.000000    0.062500");
    EXPECT_EQ(LigneDePoint("1", "2", "3"), "0.333333    0.666667");
    EXPECT_EQ(LigneDePoint("5000", "0", "1"), "5000.000000    0.000000");
}

TEST(Coord, ANegativeLineIsAsLongAsAPositiveOne) {
    const std::string up = LigneDePoint("0.5", "0.03", "1");
    const std::string down = LigneDePoint("0.5", "-0.03", "1");
    EXPECT_EQ(down, "0.500000   -0.030000");
    EXPECT_EQ(up.size(), down.size());
    // So is one that rounds to zero and keeps its minus.
    EXPECT_EQ(LigneDePoint("0.5", "-0.0000001", "1"), "0.500000   -0.000000");
    EXPECT_EQ(LigneDePoint("0.5", "-0", "1"), "0.500000    0.000000");
}

TEST(Coord, TheBlanksOfTheDivisorDontCount) {
    EXPECT_EQ(LigneDePoint("1000", "10", "1 000"), "1.000000    0.010000");
    EXPECT_EQ(LigneDePoint("1000000", "0", "1 000 000"), "1.000000    0.000000");
}

TEST(Coord, ADivisorOfZeroIsAFailure) {
    EXPECT_EQ(FailureOf([] { LigneDePoint("1", "1", "0"); }), kDivisionByZero);
    EXPECT_TRUE(EstNul(""));
    EXPECT_TRUE(EstNul("0"));
    EXPECT_TRUE(EstNul(" "));
    EXPECT_FALSE(EstNul("1 000"));
}

TEST(Coord, TheDivisorHasBlanksBetweenThousands) {
    EXPECT_EQ(TexteDiviseur("1"), "1");
    EXPECT_EQ(TexteDiviseur("999"), "999");
    EXPECT_EQ(TexteDiviseur("1000"), "1 000");
    EXPECT_EQ(TexteDiviseur("1 0000"), "10 000");
    EXPECT_EQ(TexteDiviseur("1234567"), "1 234 567");
    EXPECT_EQ(TexteDiviseur("12345678"), "12 345 678");
    EXPECT_EQ(TexteDiviseur(""), "");
    EXPECT_EQ(TexteDiviseur("0"), "");
}

TEST(Coord, ItsFormStaysWhenItIsFormedAgain) {
    for (const char *typed : {"", "1", "12", "1000", "1234567", "123456789"}) {
        const std::string once = TexteDiviseur(typed);
        EXPECT_EQ(TexteDiviseur(once), once);
    }
}

TEST(Coord, NamesComeFromTheFileAndGoIntoIt) {
    EXPECT_EQ(NomPropose("mine"), "mine.dat");
    EXPECT_EQ(NomDuFichier("/home/me/air foils/e205.dat"), "e205");
    EXPECT_EQ(NomDuFichier("v1.2.cor"), "v1.2");
    EXPECT_EQ(NomDuFichier("noname"), "noname");
}

TEST(Coord, QuestionsTellOfTheLine) {
    const Words words("[TextButton]\r\n19=Add\r\n[Frmcoord]\r\n6=a\r\n7=b\r\n8=c\r\n9=d\r\n"
                      "15=\"Change \"\r\n");
    EXPECT_EQ(QuestionInsertion(words.messages), "Add\na\nb\nc\nd");
    EXPECT_EQ(QuestionLigne(words.messages, "1 0"), "Change 1 0 ?");
}

TEST(Coord, TheFirstLineOfAFileIsItsTitle) {
    const TempFolder folder;
    FichierCoord read = LitCoord(folder.File("a.dat", "My foil\r\n1 0\r\n\r\n0 0\r\n"));
    EXPECT_EQ(read.titre, "My foil");
    EXPECT_THAT(read.lignes, ElementsAre("1 0", "", "0 0"));
    // Also when it is a point.
    read = LitCoord(folder.File("b.dat", "1.0 0.0\n0.5 0.1"));
    EXPECT_EQ(read.titre, "1.0 0.0");
    EXPECT_THAT(read.lignes, ElementsAre("0.5 0.1"));
    read = LitCoord(folder.File("c.dat", "\n"));
    EXPECT_EQ(read.titre, "");
    EXPECT_THAT(read.lignes, IsEmpty());
}

TEST(Coord, OldFilesAreReadInTheirEncoding) {
    const TempFolder folder;
    EXPECT_EQ(LitCoord(folder.File("old.dat", "Fl\xFCgel\n1 0\n")).titre, "Flügel");
    EXPECT_EQ(LitCoord(folder.File("new.dat", "\xEF\xBB\xBF"
                                              "Flügel\n1 0\n"))
                  .titre,
              "Flügel");
}

TEST(Coord, WhatIsNoTextFileFails) {
    const TempFolder folder;
    const auto failure = [](const std::string &path) { return FailureOf([&] { LitCoord(path); }); };
    EXPECT_EQ(failure(folder.Path("missing.dat")), kFileNotFound);
    EXPECT_EQ(failure(folder.Path()), kPathFileAccess);
    EXPECT_EQ(failure(folder.File("empty.dat", "")), kInputPastEnd);
    EXPECT_EQ(failure(folder.File("binary.dat", std::string("\x7F"
                                                            "ELF\0\0\1",
                                                            7))),
              kTypeMismatch);
}

TEST(Coord, LinesAreCountedInSixteenBits) {
    const TempFolder folder;
    std::string bytes = "Title\n";
    for (int i = 0; i < 32767; ++i) {
        bytes += "1 0\n";
    }
    EXPECT_EQ(LitCoord(folder.File("full.dat", bytes)).lignes.size(), 32767U);
    EXPECT_EQ(FailureOf([&] { LitCoord(folder.File("more.dat", bytes + "1 0")); }), kOverflow);
    EXPECT_EQ(FailureOf([&] { LitCoord(folder.File("much.dat", bytes + bytes)); }), kOverflow);
    EXPECT_EQ(CompteLignes(32767), 32767);
    EXPECT_EQ(FailureOf([] { CompteLignes(32768); }), kOverflow);
}

TEST(Coord, IsWrittenAsItStands) {
    const TempFolder folder;
    EcritCoord(folder.Path("a.dat"), {"Flügel", {"1.0    0.0", "anything", ""}});
    EXPECT_EQ(folder.Bytes("a.dat"), "Flügel\r\n1.0    0.0\r\nanything\r\n\r\n");
    EcritCoord(folder.Path("a.dat"), {"Empty", {}});
    EXPECT_EQ(folder.Bytes("a.dat"), "Empty\r\n");
    EXPECT_EQ(FailureOf([&] { EcritCoord(folder.Path("no/a.dat"), {"x", {}}); }), kPathNotFound);
}

} // namespace
} // namespace loftwing
