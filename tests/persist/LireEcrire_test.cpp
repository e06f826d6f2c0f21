#include "persist/LireEcrire.h"

#include "base/text_encoding.h"
#include "features/carre_bord.h"
#include "features/rib_entry.h"
#include "support/failures.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace loftwing {
namespace {

constexpr const char *kMagic = "LFW V3.0 -02 Caution don't delete this file !!";
constexpr const char *kFooter = "End of File V 3.0.02 modif 02/10/2002";

/// Lines as a file has them.
std::string File(const std::vector<std::string> &lines) {
    std::string bytes;
    for (const std::string &line : lines) {
        bytes += line + "\r\n";
    }
    return bytes;
}

using Lines = std::vector<std::string>;

Lines operator+(Lines one, const Lines &other) {
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

/// One spar and one hole that nobody has touched.
const Lines kBlankSpar = {"0", "0", "0", "0", "0", "0", "0", "0", ""};
const Lines kBlankHole = {"0", "0", "0", "0", "0", "0", "0", ""};

class Components : public testing::Test {
  protected:
    FormatComposants Read(const Lines &lines) { return ReadBytes(File(lines)); }
    FormatComposants ReadBytes(const std::string &bytes) {
        return LitComposants(bytes, world.rib, Saisie{world.settings.Unite, world.messages}, name);
    }
    std::string Written() const { return EcritComposants(world.rib, world.settings.Unite); }

    /// A file whose every value is another one.
    static Lines Full() {
        return Lines{kMagic,  "e205.dat", "e205", "my rib : 1", "10",    "-3.5",
                     "180.5", "1/16",     "5",    "8",          "4",     "-1.25",
                     "2",     " 0 ",      " 1 ",  "spare",      "Spars", " 1 "} +
               Lines{"33%", "5", "3", "2", "1", "3", "1.5", "1", "7"} +
               Lines{"0", "0", "0", "0", "0", "0", "", "0", "0"} + Lines{"Holes", " 1 "} +
               Lines{"50%", "12", "1", "-2", "6", "1", "1", "0"} +
               Lines{"0", "0", "0.5", "0", "0", "0", "0", "0"} +
               Lines{"20",   "10%", "25", "3", "-2.5",  "15",      "40",
                     "12.5", "30",  "11", "1", " 9.50", "1#12.25", kFooter};
    }

    RibWorld world;
    std::string name;
};

TEST_F(Components, NewRibHasOneBlankRecordOfEachKind) {
    world.rib.NomProfil = "e205";
    world.rib.ExtProfil = "dat";
    world.rib.bloc.HTblocAfich = "";
    const Lines wanted =
        Lines{kMagic, "e205.dat", "e205", "",  "0",   "0",   "200", "1.5",   "0",
              "0",    "0",        "0",    "0", " 1 ", " 0 ", "",    "Spars", " 0 "} +
        kBlankSpar + Lines{"Holes", " 0 "} + kBlankHole +
        Lines{"0", "0", "0", "0", "0", "0", "", "0", "0", "0", "0", "0", "0#0", kFooter};
    EXPECT_EQ(Written(), File(wanted));
}

TEST_F(Components, ReadAndWrittenAgainOnlySpareLinesChange) {
    world.rib.NomProfil = "e205";
    world.rib.ExtProfil = "dat";
    const std::string first = Written();
    EXPECT_EQ(ReadBytes(first), FormatComposants::courant);
    const std::string second = Written();
    EXPECT_NE(second, first);
    Lines wanted = SplitLines(ToUtf8(first));
    wanted.at(18 + 8) = "0";         // behind the spar
    wanted.at(18 + 9 + 2 + 7) = "0"; // behind the hole
    EXPECT_EQ(second, File(wanted));
    EXPECT_EQ(ReadBytes(second), FormatComposants::courant);
    EXPECT_EQ(Written(), second);
}

TEST_F(Components, EveryValueComesBackAsItWasWritten) {
    EXPECT_EQ(Read(Full()), FormatComposants::courant);
    EXPECT_EQ(name, "e205.dat");
    // The second slot's missing distance stays an empty line; the heel's height is a number's text.
    Lines wanted = Full();
    wanted.at(wanted.size() - 2) = "1#12.25";
    EXPECT_EQ(Written(), File(wanted));
}

TEST_F(Components, ANameOfAnySystemSpoilsNoOtherText) {
    world.rib.NomProfil = "b\xFC\nend"; // Windows-1252, and a line end
    world.rib.ExtProfil = "dat";
    world.rib.texte.InsTexte = "Fl\xC3\xBCgel";
    const std::string written = Written();
    EXPECT_TRUE(IsUtf8(written));
    EXPECT_EQ(ReadBytes(written), FormatComposants::courant);
    EXPECT_EQ(name, "b\xC3\xBC end.dat");
    EXPECT_EQ(world.rib.texte.InsTexte, "Fl\xC3\xBCgel");
}

TEST_F(Components, ValuesGoToTheirFields) {
    Read(Full());
    const RibModel &rib = world.rib;
    EXPECT_EQ(rib.NomProfil, "e205");
    EXPECT_EQ(rib.ExtProfil, "dat");
    EXPECT_EQ(rib.texte.InsTexte, "my rib : 1");
    EXPECT_EQ(rib.texte.InsTextX, 10.0F);
    EXPECT_EQ(rib.texte.InsTextY, -3.5F);
    EXPECT_EQ(rib.corde, 180.5F);
    EXPECT_EQ(rib.EpCoffrageAfich, "1/16");
    EXPECT_EQ(rib.EpCoffrage, 1.0F); // in mm a fraction is its leading number
    EXPECT_EQ(rib.EpBA, 5.0F);
    EXPECT_EQ(rib.carre.CarreBA, 8.0F);
    EXPECT_EQ(rib.carre.CarreBAX, 4.0F);
    EXPECT_EQ(rib.carre.CarreBAY, -1.25F);
    EXPECT_EQ(rib.bloc.CoupeBF, 2.0F);
    EXPECT_EQ(rib.TypeBA, 0);
    EXPECT_TRUE(rib.AffHaut);
    EXPECT_EQ(rib.LigneReserve, "spare");
    EXPECT_EQ(rib.NbLongeron, 1);
    const Longeron &spar = rib.longeron[0];
    EXPECT_EQ(spar.PosLongAfich, "33%");
    EXPECT_EQ(spar.PosLong, 0.0F); // the plot derives it
    EXPECT_EQ(spar.LargLong, 5.0F);
    EXPECT_EQ(spar.HautLong, 3.0F);
    EXPECT_EQ(spar.OptLongExt, 2);
    EXPECT_EQ(spar.OptLongInt, 1);
    EXPECT_EQ(spar.TypeLong, 3);
    EXPECT_EQ(spar.DistLong, 1.5F);
    EXPECT_EQ(spar.RefLong, 1);
    EXPECT_EQ(rib.longeron[1].DistLongAfich, "");
    EXPECT_EQ(rib.NbTrou, 1);
    const Trou &hole = rib.trou[0];
    EXPECT_EQ(hole.PosTrouAfich, "50%");
    EXPECT_EQ(hole.DiaTrou, 12.0F);
    EXPECT_EQ(hole.ChkCentre, 1.0F);
    EXPECT_EQ(hole.DecalTrou, -2.0F);
    EXPECT_EQ(hole.HautTrou, 6.0F);
    EXPECT_EQ(hole.RefTrou, 1);
    EXPECT_EQ(hole.TypeTrou, 1);
    EXPECT_EQ(rib.trou[1].ChkCentre, 0.5F);
    EXPECT_EQ(rib.EpBF, 25.0F);
    EXPECT_EQ(rib.NbRep, 3);
    EXPECT_EQ(rib.vrillage, -2.5F);
    EXPECT_EQ(rib.bloc.HTbasbloc, 15.0F);
    EXPECT_EQ(rib.bloc.HTbloc, 40.0F);
    EXPECT_EQ(rib.bloc.BAbloc, 12.5F);
    EXPECT_EQ(rib.bloc.BFbloc, 30.0F);
    EXPECT_EQ(rib.TypeGabarit, kGabaritTalon);
    EXPECT_EQ(rib.bloc.Optquebf, 1);
    EXPECT_EQ(rib.talon.TalonIntraAfich, " 9.50");
    EXPECT_EQ(rib.talon.TalonIntra, 9.5);
    EXPECT_EQ(rib.talon.OptTalon, 1);
    EXPECT_EQ(rib.talon.TalonExtraAfich, "12.25");
    EXPECT_EQ(rib.talon.TalonExtra, 12.25); // with the sign of its text
}

TEST_F(Components, HeelMarginsKeepTheirTextAndNoNumber) {
    world.rib.talon.TalonBA = 7;
    Read(Full());
    EXPECT_EQ(world.rib.talon.TalonBAAfich, "20");
    EXPECT_EQ(world.rib.talon.TalonBA, 7.0);
    EXPECT_EQ(world.rib.talon.TalonBFAfich, "10%");
    EXPECT_EQ(world.rib.talon.TalonBF, 0.0);
    EXPECT_EQ(world.rib.talon.TalonLong, 0.0);
    Lines lines = Full();
    const auto margin = std::find(lines.begin(), lines.end(), "20");
    *margin = "";
    Read(lines);
    EXPECT_EQ(world.rib.talon.TalonBAAfich, "0");
    EXPECT_EQ(world.rib.talon.TalonBA, 0.0);
}

TEST_F(Components, SpareLinesAndTheExtraHeightCollapseToTheirNumber) {
    Lines lines = Full();
    lines.at(18 + 8) = "3/4 of an inch";
    lines.at(lines.size() - 2) = "-1#1/16";
    Read(lines);
    EXPECT_EQ(world.rib.longeron[0].ResLong, "3");
    EXPECT_EQ(world.rib.talon.OptTalon, -1);
    EXPECT_EQ(world.rib.talon.TalonExtraAfich, "1");
    EXPECT_EQ(world.rib.talon.TalonExtra, 1.0);
    lines.at(lines.size() - 2) = "0#-0.75";
    Read(lines);
    EXPECT_EQ(world.rib.talon.TalonExtraAfich, "-.75");
    EXPECT_EQ(world.rib.talon.TalonExtra, -0.75);
}

TEST_F(Components, WithoutAMarkTheHeelsKindAndExtraHeightStay) {
    world.rib.talon.OptTalon = 1;
    world.rib.talon.TalonExtraAfich = "6";
    world.rib.talon.TalonExtra = -6;
    Lines lines = Full();
    lines.at(lines.size() - 2) = "0";
    Read(lines);
    EXPECT_EQ(world.rib.talon.OptTalon, 1);
    EXPECT_EQ(world.rib.talon.TalonExtraAfich, "6");
    EXPECT_EQ(world.rib.talon.TalonExtra, -6.0);
}

TEST_F(Components, LengthsAreReadInTheUnitInForce) {
    world.settings.Unite = " in";
    Lines lines = Full();
    lines.at(lines.size() - 2) = "0#1.5";
    Read(lines);
    EXPECT_EQ(world.rib.EpCoffrageAfich, "1/16");
    EXPECT_EQ(world.rib.EpCoffrage, 1.5875F);
    EXPECT_EQ(world.rib.carre.CarreBA, 203.2F);
    EXPECT_EQ(world.rib.talon.TalonExtra, 38.1);
    EXPECT_EQ(world.rib.vrillage, -2.5F); // degrees have no unit
}

/// A rib in plain millimetres.
Lines InMm() {
    return Lines{kMagic, "e205.dat", "e205", "1/2 wing", "0",   "0",   "200", "1.5",   "0",
                 "0",    "0",        "0",    "0",        " 1 ", " 0 ", "a/b", "Spars", " 0 "} +
           kBlankSpar + Lines{"Holes", " 0 "} + kBlankHole +
           Lines{"0", "0", "0", "0", "0", "0", "", "0", "0", "11", "0", "0", "0#0", kFooter};
}

TEST_F(Components, ChordsOfTheOtherUnitAreDoubted) {
    constexpr std::size_t kChord = 6;
    struct Case {
        const char *Unite;
        const char *chord;
        bool doubted;
    };
    for (const Case &each :
         {Case{" mm", "200", false}, Case{" mm", "40", false}, Case{" mm", "39.9", true},
          Case{" mm", "8", true}, Case{" in", "8.1/2", false}, Case{" in", "40", false},
          Case{" in", "40.1/8", true}, Case{" in", "200", true}}) {
        Lines lines = InMm();
        lines[kChord] = each.chord;
        world.settings.Unite = each.Unite;
        Read(lines);
        EXPECT_EQ(world.rib.UniteDouteuse, each.doubted) << each.chord << each.Unite;
    }
}

TEST_F(Components, AFractionInAnyLengthIsDoubtedInMillimetres) {
    // Text along and across, chord, sheeting, stock, notch, cut; place, width, depth, distance of
    // the spar; place, diameter, offset, height of the hole; margins, stock, template, heel.
    for (const std::size_t line : {4U,  5U,  6U,  7U,  8U,  9U,  10U, 11U, 12U, 18U, 19U, 20U, 24U,
                                   29U, 30U, 32U, 33U, 37U, 38U, 39U, 42U, 43U, 44U, 45U, 48U}) {
        Lines lines = InMm();
        lines[line] = "100.1/16";
        Read(lines);
        EXPECT_TRUE(world.rib.UniteDouteuse) << line;
        Read(InMm()); // words and spare lines may have a stroke
        EXPECT_FALSE(world.rib.UniteDouteuse) << line;
    }
    Lines lines = InMm();
    lines[49] = "1#1/16"; // of which the reading leaves the 1
    Read(lines);
    EXPECT_EQ(world.rib.talon.TalonExtraAfich, "1");
    EXPECT_TRUE(world.rib.UniteDouteuse);
    world.settings.Unite = " in";
    Read(lines);
    EXPECT_TRUE(world.rib.UniteDouteuse); // 200 inches
    lines[6] = "8";
    Read(lines);
    EXPECT_FALSE(world.rib.UniteDouteuse);
}

TEST_F(Components, PaddedAndBareNumbersAreReadAlike) {
    Lines lines = Full();
    lines.at(13) = "0";
    lines.at(14) = "1";
    lines.at(17) = "1";
    lines.at(18 + 3) = " 2 ";
    EXPECT_EQ(Read(lines), FormatComposants::courant);
    EXPECT_EQ(Written(), File(Full()));
}

TEST_F(Components, InvertedIsExactlyOne) {
    Lines lines = Full();
    lines.at(14) = " 2 ";
    Read(lines);
    EXPECT_FALSE(world.rib.AffHaut);
}

TEST_F(Components, BytesAreRoundedAndMustFit) {
    Lines lines = Full();
    lines.at(18 + 3) = "1.6";
    Read(lines);
    EXPECT_EQ(world.rib.longeron[0].OptLongExt, 2);
    lines.at(18 + 3) = "256";
    EXPECT_EQ(FailureOf([&] { Read(lines); }), kOverflow);
    lines.at(18 + 3) = "-1";
    EXPECT_EQ(FailureOf([&] { Read(lines); }), kOverflow);
}

TEST_F(Components, WhatIsNoNumberCountsAsZero) {
    Lines lines = Full();
    lines.at(6) = "wide";
    lines.at(18 + 3) = "no";
    Read(lines);
    EXPECT_EQ(world.rib.cordeAfich, "wide");
    EXPECT_EQ(world.rib.corde, 0.0F);
    EXPECT_EQ(world.rib.longeron[0].OptLongExt, 0);
}

TEST_F(Components, CountsAboveTwelveAreASubscriptOutOfRange) {
    for (const char *count : {" 13 ", " 200 "}) {
        Lines lines(18 + 300 * 9, "1");
        const Lines head = Full();
        std::copy(head.begin(), head.begin() + 18, lines.begin());
        lines.at(17) = count;
        EXPECT_EQ(FailureOf([&] { Read(lines); }), kSubscriptOutOfRange);
    }
    Lines holes = Full();
    *std::prev(std::find(holes.begin(), holes.end(), "50%")) = "13";
    EXPECT_NE(FailureOf([&] { Read(holes); }), 0);
}

TEST_F(Components, ThirteenRecordsFillAllSlots) {
    world.rib.NbLongeron = 12;
    world.rib.NbTrou = 12;
    world.rib.longeron[12].PosLongAfich = "77";
    world.rib.trou[12].PosTrouAfich = "88";
    const std::string bytes = Written();
    world.rib.longeron[12].PosLongAfich = "";
    world.rib.trou[12].PosTrouAfich = "";
    ReadBytes(bytes);
    EXPECT_EQ(world.rib.longeron[12].PosLongAfich, "77");
    EXPECT_EQ(world.rib.trou[12].PosTrouAfich, "88");
    world.rib.NbTrou = 13;
    EXPECT_EQ(FailureOf([&] { Written(); }), kSubscriptOutOfRange);
}

TEST_F(Components, ShortFileIsReadPastItsEnd) {
    const Lines whole = Full();
    for (std::size_t count = 1; count < whole.size(); ++count) {
        const Lines part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(count));
        EXPECT_EQ(FailureOf([&] { Read(part); }), kInputPastEnd) << count;
    }
}

TEST_F(Components, EmptyFileHoldsNothing) {
    EXPECT_EQ(ReadBytes(""), FormatComposants::courant);
    EXPECT_EQ(name, "");
    EXPECT_EQ(world.rib.NomProfil, "test"); // as the world has it
}

TEST_F(Components, SecondRecordBehindTheFooterReplacesTheFirst) {
    Lines second = Full();
    second.at(1) = "mh32.dat";
    second.at(6) = "150";
    second.at(17) = " 0 ";
    second.erase(second.begin() + 18 + 9, second.begin() + 18 + 18);
    EXPECT_EQ(Read(Full() + second), FormatComposants::courant);
    EXPECT_EQ(name, "mh32.dat");
    EXPECT_EQ(world.rib.corde, 150.0F);
    EXPECT_EQ(world.rib.NbLongeron, 0);
}

TEST_F(Components, OtherLinesBehindTheFooterMakeItAnOlderFile) {
    // Its text line then lacks the older format's marks.
    EXPECT_EQ(FailureOf([&] { Read(Full() + Lines{"more"}); }), kInvalidProcedureCall);
    EXPECT_EQ(world.rib.NomProfil, "e205"); // both formats have it in the third line
}

TEST_F(Components, AnyFirstLineThatBeginsWithTheMarkIsCurrent) {
    Lines lines = Full();
    lines.front() = "LFW V3.0x whatever";
    lines.back() = "no footer";
    EXPECT_EQ(Read(lines), FormatComposants::courant);
    EXPECT_EQ(Written(), File(Full()));
}

TEST_F(Components, LineEndsMayBeBareAndTheLastOneMissing) {
    std::string bytes = File(Full());
    std::erase(bytes, '\r');
    bytes.pop_back();
    EXPECT_EQ(ReadBytes(bytes), FormatComposants::courant);
    EXPECT_EQ(Written(), File(Full()));
}

TEST_F(Components, TextsOfOldSystemsBecomeUtf8) {
    Lines lines = Full();
    lines.at(3) = "Vrillage 2\xB0";
    Read(lines);
    EXPECT_EQ(world.rib.texte.InsTexte, "Vrillage 2°");
    lines.at(3) = "Vrillage 2°";
    EXPECT_EQ(Written(), File(lines));
}

TEST_F(Components, LineEndInATextDoesNotShiftWhatFollows) {
    Read(Full());
    world.rib.texte.InsTexte = "two\nlines";
    Lines wanted = Full();
    wanted.at(3) = "two lines";
    EXPECT_EQ(Written(), File(wanted));
}

// What is in force.

constexpr std::size_t kChordLine = 6;
constexpr std::size_t kStockLine = 8;
constexpr std::size_t kNotchLine = 9; // and the two behind it

TEST_F(Components, AChordThatWasRefusedIsWrittenAsTheOneInForce) {
    Read(Full());
    world.platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(ValideSaisie(ModeDe("corde"), world.rib, "0", {world.settings.Unite, world.messages}),
              FinSaisie::refusee);
    ASSERT_EQ(world.rib.cordeAfich, "0");
    EXPECT_EQ(Written(), File(Full())); // 180.5
}

TEST_F(Components, StocksThatWereRefusedAreWrittenAsTheZeroInForce) {
    Read(Full());
    world.platform.ExpectBoxes(2);
    for (const char *mode : {"ba", "bf"}) {
        EXPECT_EQ(
            ValideSaisie(ModeDe(mode), world.rib, "300", {world.settings.Unite, world.messages}),
            FinSaisie::ramenee);
    }
    Lines wanted = Full();
    wanted.at(kStockLine) = "0";
    wanted.at(13) = " 1 "; // the stock takes the square's place
    *std::find(wanted.begin(), wanted.end(), "25") = "0";
    EXPECT_EQ(Written(), File(wanted));
}

TEST_F(Components, ANotchThatWasCutBackIsWrittenAsItIsInForce) {
    Read(Full());
    world.platform.ExpectBoxes(2);
    TextesCarre typed{"60", "181", "-1.250"};
    ValideCarre(world.rib, typed, {world.settings.Unite, world.messages}, "");
    Lines wanted = Full();
    wanted.at(kNotchLine) = "50";
    wanted.at(kNotchLine + 1) = "0";
    wanted.at(kNotchLine + 2) = "-1.250"; // was taken, so it stands as typed
    EXPECT_EQ(Written(), File(wanted));
}

TEST_F(Components, WhatIsInForceIsWrittenInTheUnitOfTheFile) {
    world.settings.Unite = " in";
    Read(Full());
    RibModel &rib = world.rib;
    rib.corde = 209.55F; // 8 1/4 in
    rib.cordeAfich = "0";
    rib.EpBA = 9.525F;
    rib.EpBAAfich = "3/8"; // the ruler's text stays
    rib.EpBF = 0;
    rib.EpBFAfich = "1./0"; // no length at all
    rib.carre.CarreBA = 50.8F;
    rib.carre.CarreBAAfich = "3";
    rib.carre.CarreBAX = 0;
    rib.carre.CarreBAXAfich = "1/0";
    const Lines written = SplitLines(ToUtf8(Written()));
    EXPECT_EQ(written.at(kChordLine), "8.1/4");
    EXPECT_EQ(written.at(kStockLine), "3/8");
    EXPECT_EQ(written.at(kNotchLine), "2");
    EXPECT_EQ(written.at(kNotchLine + 1), "0");
    EXPECT_EQ(written.at(written.size() - 12), "0");
    EXPECT_TRUE(world.platform.boxes.empty());
}

TEST_F(Components, HeelMarginsAndSheetingAreWrittenAsTheyStand) {
    Read(Full()); // without the margins' numbers
    world.rib.talon.TalonBAAfich = "999";
    world.rib.EpCoffrage = 7;
    const Lines written = SplitLines(ToUtf8(Written()));
    EXPECT_EQ(written.at(written.size() - 14), "999");
    EXPECT_EQ(written.at(7), "1/16");
}

/// The older format: fewer fields and no headings.
class OlderComponents : public Components {
  protected:
    static Lines Old() {
        return Lines{"Loftwing 1", "e205.dat", "e205", "rib§X10§Y-2", "180", "1.5",
                     "5",          "8",        "4",    "-1",          "2.5", "False"} +
               Lines{"1", "33%", "5", "3", "2", "1", "0"} + Lines{"0", "0", "0", "0", "0", "0"} +
               Lines{"0", "50%", "12", "1", "-2"} +
               Lines{"25", "3", "-2.5", "15#40", "12", "30", "1#1"};
    }
};

TEST_F(OlderComponents, IsReadIntoTheSameFields) {
    EXPECT_EQ(Read(Old()), FormatComposants::ancien);
    const RibModel &rib = world.rib;
    EXPECT_EQ(name, "e205.dat");
    EXPECT_EQ(rib.texte.InsTexte, "rib");
    EXPECT_EQ(rib.texte.InsTextXAfich, "10");
    EXPECT_EQ(rib.texte.InsTextX, 10.0F);
    EXPECT_EQ(rib.texte.InsTextY, -2.0F);
    EXPECT_EQ(rib.corde, 180.0F);
    EXPECT_EQ(rib.EpBA, 5.0F);
    EXPECT_EQ(rib.carre.CarreBAYAfich, "-1");
    EXPECT_EQ(rib.bloc.CoupeBF, 2.5F);
    EXPECT_EQ(rib.bloc.CoupeBFAfich, "0"); // only the number is in the file
    EXPECT_EQ(rib.TypeBA, 0);
    EXPECT_EQ(rib.NbLongeron, 1);
    EXPECT_EQ(rib.longeron[0].OptLongExt, 2);
    EXPECT_EQ(rib.longeron[0].TypeLong, 0);
    EXPECT_EQ(rib.NbTrou, 0);
    EXPECT_EQ(rib.trou[0].DecalTrou, -2.0F);
    EXPECT_EQ(rib.EpBF, 25.0F);
    EXPECT_EQ(rib.NbRep, 3);
    EXPECT_EQ(rib.vrillage, -2.5F);
    EXPECT_EQ(rib.bloc.HTbasbloc, 15.0F);
    EXPECT_EQ(rib.bloc.HTblocAfich, "40");
    EXPECT_EQ(rib.bloc.BFbloc, 30.0F);
    EXPECT_EQ(rib.TypeGabarit, kGabaritMousse);
    EXPECT_EQ(rib.bloc.Optquebf, 1);
}

TEST_F(OlderComponents, ItsUnitIsDoubtedInTheSameWay) {
    Read(Old());
    EXPECT_FALSE(world.rib.UniteDouteuse);
    constexpr std::size_t kChord = 4;
    constexpr std::size_t kSparLine = 13; // its place
    for (const auto &[line, text] : {std::pair(kChord, "8"), std::pair(kSparLine, "100.1/2")}) {
        Lines lines = Old();
        lines[line] = text;
        Read(lines);
        EXPECT_TRUE(world.rib.UniteDouteuse) << line;
    }
}

TEST_F(OlderComponents, WhatItDoesNotHoldStaysAsItWas) {
    world.rib.longeron[0].DistLongAfich = "9";
    world.rib.trou[0].HautTrouAfich = "8";
    world.rib.talon.TalonIntraAfich = "7";
    world.rib.LigneReserve = "kept";
    Read(Old());
    EXPECT_EQ(world.rib.longeron[0].DistLongAfich, "9");
    EXPECT_EQ(world.rib.trou[0].HautTrouAfich, "8");
    EXPECT_EQ(world.rib.talon.TalonIntraAfich, "7");
    EXPECT_EQ(world.rib.LigneReserve, "kept");
}

TEST_F(OlderComponents, WrittenAnewItIsCurrent) {
    Read(Old());
    const std::string bytes = Written();
    EXPECT_EQ(ReadBytes(bytes), FormatComposants::courant);
    EXPECT_EQ(world.rib.corde, 180.0F);
    EXPECT_EQ(world.rib.bloc.CoupeBF, 0.0F); // its text had stayed "0"
}

TEST_F(OlderComponents, LineOfThreeCharactersSetsNoText) {
    world.rib.texte.InsTexte = "before";
    Lines lines = Old();
    for (const char *three : {"abc", "§X§"}) {
        lines.at(3) = three;
        Read(lines);
        EXPECT_EQ(world.rib.texte.InsTexte, "before");
    }
}

TEST_F(OlderComponents, TextLineWithoutBothMarksIsAFailure) {
    Lines lines = Old();
    for (const char *line : {"", "ribs", "rib§X1", "rib§Y1", "rib§Y1§X2"}) {
        lines.at(3) = line;
        EXPECT_EQ(FailureOf([&] { Read(lines); }), kInvalidProcedureCall) << line;
    }
}

TEST_F(OlderComponents, EdgeIsTrueFalseOrLeftAlone) {
    Lines lines = Old();
    lines.at(11) = "True";
    Read(lines);
    EXPECT_EQ(world.rib.TypeBA, 1);
    lines.at(11) = "true";
    world.rib.TypeBA = 0;
    Read(lines);
    EXPECT_EQ(world.rib.TypeBA, 0);
}

TEST_F(OlderComponents, WithoutMarksTheSecondValuesStay) {
    world.rib.bloc.HTblocAfich = "33";
    world.rib.bloc.HTbloc = 33;
    world.rib.bloc.Optquebf = 1;
    Lines lines = Old();
    *std::find(lines.begin(), lines.end(), "15#40") = "16";
    lines.back() = "11";
    Read(lines);
    EXPECT_EQ(world.rib.bloc.HTbasblocAfich, "16");
    EXPECT_EQ(world.rib.bloc.HTbloc, 33.0F);
    EXPECT_EQ(world.rib.TypeGabarit, kGabaritTalon);
    EXPECT_EQ(world.rib.bloc.Optquebf, 1);
}

TEST_F(OlderComponents, OldSystemsMarksAreRead) {
    Lines lines = Old();
    lines.at(3) = "rib\xA7X10\xA7Y-2"; // the marks in one byte each
    Read(lines);
    EXPECT_EQ(world.rib.texte.InsTexte, "rib");
    EXPECT_EQ(world.rib.texte.InsTextY, -2.0F);
}

TEST_F(OlderComponents, AnyOtherTextIsTakenForOneAndFails) {
    for (const std::string &bytes :
         {std::string("x"), std::string(1000, '\0'), std::string(100000, 'a'),
          std::string("\xFF\xFE\x00\x01\n\x80", 6)}) {
        EXPECT_EQ(FailureOf([&] { ReadBytes(bytes); }), kInputPastEnd);
    }
    std::string million;
    for (int i = 0; i < 1000000; ++i) {
        million += "5\n";
    }
    EXPECT_NE(FailureOf([&] { ReadBytes(million); }), 0);
}

} // namespace
} // namespace loftwing
