#include "utilities/angle.h"

#include "base/number_text.h"
#include "base/whole_file.h"
#include "support/failures.h"
#include "support/words.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

const char *const kObliqueTitle = "Oblique";

class Oblique : public testing::Test {
  protected:
    Oblique() {
        profil.NomProfil = "e205";
        for (const auto &[x, y] : {std::pair(1.0, 0.0), std::pair(0.5, 0.1), std::pair(0.0, -0.0),
                                   std::pair(0.25, -0.05), std::pair(1.0, -1E-12)}) {
            profil.ProfilX.Append(x);
            profil.ProfilY.Append(y);
            ++profil.NbPoints;
        }
    }

    Saisie Typing() const { return {unite, words.messages}; }
    /// Computes with the given chord and angle; the field that was refused.
    std::optional<int> Compute(std::uint8_t option, const std::string &chord,
                               const std::string &angle) {
        oblique.OptionCorde = option;
        TextesOblique typed;
        typed[option == kInterneDonnee ? kChampInterne : kChampExterne] = chord;
        typed[kChampAngle] = angle;
        return CalculeOblique(oblique, typed, Typing(), kObliqueTitle);
    }
    void Expect(const std::string &text) {
        words.platform.Expect(BoxAnswer::ok,
                              {.text = text, .title = kObliqueTitle, .icon = BoxIcon::information});
    }
    std::string Name() const { return NomOblique(oblique, profil.NomProfil, Typing()); }
    std::string File() const { return TexteOblique(oblique, profil, Typing()); }

    Words words{"[FrmAngle]\n4=Outside\n5=Inside\n6=angle\n10=No chord\n11=No angle\n12=At most\n"
                "[MainTolbar]\n13=chord\n25=Rib\n[Message]\n20=Wrong\n"};
    std::string unite{kUniteMm};
    NervureOblique oblique;
    ProfilChoisi profil;
};

TEST_F(Oblique, TheInternalChordIsTheTemplateChordTimesTheSine) {
    EXPECT_EQ(Compute(kGabaritDonne, "200", "30"), std::nullopt);
    EXPECT_EQ(oblique.CordeExterneAfich, "200");
    EXPECT_EQ(oblique.CordeExterne, 200.0F);
    EXPECT_EQ(oblique.CordeInterne, 100.0F); // the sine of 30 is a half
    EXPECT_EQ(CordeCalculee(oblique), " 100.");
    EXPECT_EQ(ChampCalcule(oblique), kChampInterne);
}

TEST_F(Oblique, TheTemplateChordIsTheInternalChordOverTheSine) {
    EXPECT_EQ(Compute(kInterneDonnee, "100", "45"), std::nullopt);
    // 100 times the root of 2, in the seven digits of a 32-bit value, then in three decimals.
    EXPECT_EQ(oblique.CordeExterne, 141.42136F);
    EXPECT_EQ(CordeCalculee(oblique), " 141.421");
    EXPECT_EQ(ChampCalcule(oblique), kChampExterne);
}

TEST_F(Oblique, AChordThatIsEmptyOrZeroIsRefusedFirst) {
    for (const char *chord : {"", "0", "0.0", ".", "/"}) {
        Expect("No chord");
        EXPECT_EQ(Compute(kGabaritDonne, chord, ""), kChampExterne) << chord;
        Expect("No chord");
        EXPECT_EQ(Compute(kInterneDonnee, chord, "95"), kChampInterne) << chord;
    }
}

TEST_F(Oblique, AnAngleThatIsEmptyOrZeroIsRefused) {
    for (const char *angle : {"", "0", ".", "0.00"}) {
        Expect("No angle");
        EXPECT_EQ(Compute(kGabaritDonne, "100", angle), kChampAngle) << angle;
    }
    EXPECT_EQ(CordeCalculee(oblique), "");
}

TEST_F(Oblique, NinetyDegreesAreRefusedForATemplateChordOnly) {
    Expect("At most 89° !");
    EXPECT_EQ(Compute(kGabaritDonne, "100", "90"), kChampAngle);
    EXPECT_EQ(Compute(kInterneDonnee, "100", "90"), std::nullopt);
    EXPECT_EQ(oblique.CordeExterne, 100.0F);
    EXPECT_EQ(Compute(kGabaritDonne, "100", "89.9"), std::nullopt);
    Expect("At most 90° !");
    EXPECT_EQ(Compute(kInterneDonnee, "100", "90.1"), kChampAngle);
}

TEST_F(Oblique, TheLimitIsThatOfA32BitAngle) {
    // Both are nearer to 90 than 32 bits can tell.
    Expect("At most 89° !");
    EXPECT_EQ(Compute(kGabaritDonne, "100", "89.9999999"), kChampAngle);
    EXPECT_EQ(Compute(kInterneDonnee, "100", "90.0000001"), std::nullopt);
}

TEST_F(Oblique, AtNinetyDegreesHeightsStayAsTheyAre) {
    Compute(kInterneDonnee, "100", "90");
    EXPECT_EQ(File(), "Rib chord :  100.00mm angle  90.00°\r\n"
                      "1.00000000  0.00000000\r\n"
                      "0.50000000  0.10000000\r\n"
                      "0.00000000  0.00000000\r\n"
                      "0.25000000  -0.05000000\r\n"
                      "1.00000000  -0.00000000\r\n");
}

TEST_F(Oblique, BothOptionsStretchHeightsByTheSine) {
    for (const std::uint8_t option : {kGabaritDonne, kInterneDonnee}) {
        Compute(option, "100", "30");
        EXPECT_NE(File().find("\r\n0.50000000  0.20000000\r\n"), std::string::npos) << File();
        EXPECT_NE(File().find("\r\n0.25000000  -0.10000000\r\n"), std::string::npos) << File();
    }
}

TEST_F(Oblique, TheUsualAngleStretchesALittle) {
    profil.ProfilY(2) = 0.5;
    Compute(kGabaritDonne, "100", kAngleUsuel);
    // 0.1 degrees off the square: 1 / cos is 1 + 0.0017453^2 / 2 = 1.00000152.
    EXPECT_NE(File().find("\r\n0.50000000  0.50000076\r\n"), std::string::npos) << File();
}

TEST_F(Oblique, ASmallAngleStretchesWithoutLimit) {
    Compute(kGabaritDonne, "100", "0.001");
    // 0.1 / 0.0000174533
    EXPECT_NE(File().find("\r\n0.50000000  5729.57"), std::string::npos) << File();
    EXPECT_EQ(Format(oblique.CordeInterne, "0.000000"), "0.001745");
}

TEST_F(Oblique, TheNameAndTheTitleHaveTheComputedChordInTwoDecimals) {
    Compute(kGabaritDonne, "200", "44.6");
    // 200 times the sine of 44.6 degrees, 0.702153
    EXPECT_EQ(Name(), "e205_Inside 140.43mm_angle  45.dat");
    EXPECT_EQ(File().substr(0, File().find('\r')), "Rib chord :  140.43mm angle  44.60°");
    Compute(kInterneDonnee, "1000", "30");
    EXPECT_EQ(Name(), "e205_Outside 2000.00mm_angle  30.dat");
}

TEST_F(Oblique, InInchesTheyHaveItAsItIsShown) {
    unite = kUniteIn;
    Compute(kGabaritDonne, "15", "30");
    EXPECT_EQ(oblique.CordeExterne, 381.0F);
    EXPECT_EQ(CordeCalculee(oblique), "7.1/2");
    EXPECT_EQ(Name(), "e205_Inside7.1/2in_angle  30.dat");
    EXPECT_EQ(File().substr(0, File().find('\r')), "Rib chord : 7.1/2in angle  30.00°");
    Compute(kInterneDonnee, "5", "45");
    EXPECT_EQ(CordeCalculee(oblique), " 7.071");
    EXPECT_EQ(Name(), "e205_Outside 7.071in_angle  45.dat");
}

TEST_F(Oblique, ATextThatIsNoLengthIsRefusedOnce) {
    unite = kUniteIn;
    words.platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Compute(kGabaritDonne, "5./8", "45"), kChampExterne);
    EXPECT_EQ(words.LastBox().title, "Enter error");
}

TEST_F(Oblique, WhatCannotBeComputedFails) {
    unite = kUniteIn;
    EXPECT_EQ(FailureOf([this] { Compute(kGabaritDonne, "1/0", "45"); }), kDivisionByZero);
    unite = kUniteMm;
    const std::string huge = "3" + std::string(38, '0');
    EXPECT_EQ(FailureOf([&] { Compute(kInterneDonnee, huge, "1"); }), kOverflow);
    // An angle too small for 32 bits has a sine of 0.
    EXPECT_EQ(FailureOf([&] { Compute(kInterneDonnee, "1", "0." + std::string(50, '0') + "1"); }),
              kDivisionByZero);
}

TEST(AirfoilQuestion, AsksForAnAirfoilFileInTheFolderOfSets) {
    const FileQuestion question = QuestionProfil("Save", "Airfoils", "/sets", "a7.1/2in.dat");
    EXPECT_EQ(question.title, "Save");
    EXPECT_EQ(question.folder, "/sets");
    EXPECT_EQ(question.name, "a7.1-2in.dat");
    EXPECT_EQ(question.filter_text, "Airfoils (*.dat)");
    EXPECT_EQ(question.default_extension, "dat");
}

class SaveAirfoil : public testing::Test {
  protected:
    bool Save(const std::string &path, const std::function<std::string()> &text) {
        words.platform.files_expected.push_back(path);
        return EnregistreProfil(words.messages, QuestionProfil("", "", "", ""), text);
    }

    Words words{"[Erreur]\n1=Error\n"};
    TempFolder folder;
};

TEST_F(SaveAirfoil, WritesTheTextUnderABusyPointer) {
    Pointer pointer = Pointer::normal;
    EXPECT_TRUE(Save(folder.Path("a.dat"), [&] {
        pointer = words.platform.pointer;
        return std::string("text");
    }));
    EXPECT_EQ(ReadWholeFile(folder.Path("a.dat")), "text");
    EXPECT_EQ(pointer, Pointer::busy);
    EXPECT_EQ(words.platform.pointer, Pointer::normal);
}

TEST_F(SaveAirfoil, ACancelIsSilent) {
    bool asked = false;
    EXPECT_TRUE(Save("", [&] {
        asked = true;
        return std::string();
    }));
    EXPECT_FALSE(asked);
}

TEST_F(SaveAirfoil, AFailureIsToldAndNothingIsWritten) {
    words.platform.Expect(BoxAnswer::ok);
    EXPECT_FALSE(
        Save(folder.Path("a.dat"), []() -> std::string { throw MakeFailure(kDivisionByZero); }));
    EXPECT_EQ(words.LastBox().title, "Error Angle/OK");
    EXPECT_EQ(words.LastBox().text, "Error # 11 From  LoftwingDivision by zero");
    EXPECT_FALSE(std::filesystem::exists(folder.Path("a.dat")));
    EXPECT_EQ(words.platform.pointer, Pointer::normal);

    words.platform.Expect(BoxAnswer::ok);
    EXPECT_FALSE(Save(folder.Path("nowhere/a.dat"), [] { return std::string("text"); }));
}

} // namespace
} // namespace loftwing
