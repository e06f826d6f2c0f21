// What is typed for a panel's sheets.

#include "programme/panel_sheets.h"

#include "lang/ini_file.h"
#include "programme/longueur_lue.h"
#include "support/words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PanelSheets : public testing::Test {
  protected:
    Words words{"[Panel]\r\n178=sizes 100x1000 to\r\n179=length\r\n180=number\r\n"};
    std::string Unite{kUniteMm};
    SaisiePlanches typed{"100x1000", "2", "3", "1", "0"};

    std::variant<VoeuPlanches, RefusSaisie> Read() { return VoeuDe(typed, words.messages, Unite); }
    VoeuPlanches Wish() {
        auto read = Read();
        const auto *why = std::get_if<RefusSaisie>(&read);
        EXPECT_EQ(why, nullptr) << (why == nullptr ? "" : why->texte);
        return why == nullptr ? std::get<VoeuPlanches>(read) : VoeuPlanches{};
    }
    std::string Refused() {
        const auto read = Read();
        const auto *why = std::get_if<RefusSaisie>(&read);
        return why == nullptr ? "" : why->texte;
    }
    std::vector<FormatPlanche> Sizes(const std::string &text) {
        typed.formats = text;
        return Wish().reglage.formats;
    }
};

TEST_F(PanelSheets, WhatIsUsualIsWhatTheCommandLineTakes) {
    EXPECT_EQ(PlanchesUsuelles(kUniteMm), typed);
    const VoeuPlanches wish = Wish();
    EXPECT_EQ(wish.reglage.ecart, ReglageImbrication{}.ecart);
    EXPECT_EQ(wish.reglage.marge, ReglageImbrication{}.marge);
    EXPECT_FALSE(wish.reglage.demi_tour);
    EXPECT_EQ(wish.DemandeDe(1), DemandePanneau{});
    Unite = kUniteIn;
    typed = PlanchesUsuelles(kUniteIn);
    EXPECT_THAT(Wish().reglage.formats, ElementsAre(FormatPlanche{4 * 25.4, 36 * 25.4}));
}

TEST_F(PanelSheets, SizesAreTakenAsPeopleWriteThem) {
    const FormatPlanche large{100, 1000};
    const FormatPlanche small{80.5, 500};
    EXPECT_THAT(Sizes("100x1000 80.5x500"), ElementsAre(large, small));
    EXPECT_THAT(Sizes("100 X 1000, 80,5 x500;"), ElementsAre(large, small));
    EXPECT_THAT(Sizes("100\u00D71000"), ElementsAre(large));
    for (const char *text : {"", "x", "100", "100x", "x100", "100x100x2", "0x5", "1x5001", "ax5"}) {
        typed.formats = text;
        EXPECT_EQ(Refused(), "sizes 100x1000 to 5000 mm.") << text;
    }
    Unite = kUniteIn; // where that would be refused itself
    EXPECT_EQ(Refused(), "sizes 4x36 to 196.85 in.");
}

TEST_F(PanelSheets, BothWingsDoubleTheCopies) {
    typed.copies = "3";
    EXPECT_EQ(Wish().copies, 3);
    typed.deux_ailes = true;
    EXPECT_EQ(Wish().copies, 6);
    EXPECT_TRUE(Wish().opposees);
    EXPECT_TRUE(Wish().DemandeDe(4).deux_ailes);
    EXPECT_EQ(Wish().DemandeDe(4).premier, 4);
    typed.copies = "500";
    EXPECT_EQ(Wish().copies, 1000);
    for (const char *text : {"", "0", "501", "-1", "1.5"}) {
        typed.copies = text;
        EXPECT_EQ(Refused(), "number 500.") << text;
    }
}

TEST_F(PanelSheets, LengthsHaveTheirBounds) {
    typed.ecart = "500";
    typed.marge = "";
    typed.saignee = "0.2";
    typed.marques = false;
    const VoeuPlanches wish = Wish();
    EXPECT_EQ(wish.reglage.ecart, 500);
    EXPECT_EQ(wish.reglage.marge, 0);
    EXPECT_EQ(wish.piece.saignee, 0.2);
    EXPECT_FALSE(wish.piece.etiquette || wish.piece.axes || wish.piece.stations ||
                 wish.piece.reference || wish.piece.talon);
    typed.ecart = "500.1";
    EXPECT_EQ(Refused(), "length 500 mm.");
    typed.ecart = "2";
    typed.saignee = "5.1";
    EXPECT_EQ(Refused(), "length 5 mm.");
}

TEST_F(PanelSheets, AFileKeepsThem) {
    typed.deux_ailes = true;
    typed.marques = false;
    typed.forme = "dxf";
    IniFile file = IniFile::Parse("[Sheets]\r\nMine=1\r\n");
    PosePlanches(file, typed);
    EXPECT_EQ(LitPlanches(file, {}), typed);
    EXPECT_EQ(file.Value("Sheets", "Mine"), "1");
    EXPECT_EQ(LitPlanches(IniFile::Parse(""), typed), typed);
}

TEST_F(PanelSheets, ALengthIsReadWithoutABox) {
    const Saisie saisie{Unite, words.messages};
    EXPECT_EQ(LongueurLue("12.5", saisie), 12.5);
    for (const char *text : {"", ".", "x", "-1", "1/2", "12mm"}) {
        EXPECT_EQ(LongueurLue(text, saisie), std::nullopt) << text;
    }
    Unite = kUniteIn;
    EXPECT_EQ(LongueurLue("2.1/4", saisie), 2.25 * 25.4);
    for (const char *text : {"2./8", "/8", "1/0"}) {
        EXPECT_EQ(LongueurLue(text, saisie), std::nullopt) << text;
    }
    EXPECT_TRUE(words.platform.boxes.empty());
}

TEST(TypedList, IsPartedAsTablesAre) {
    EXPECT_THAT(ListeLue(" 60  60,5\t55;\r\n 50, 3"), ElementsAre("60", "60.5", "55", "50", "3"));
    EXPECT_THAT(ListeLue(" , ;"), IsEmpty());
}

TEST(TypedNumber, HasItsBounds) {
    EXPECT_EQ(NombreLu("12", 12), 12);
    for (const char *text : {"", "0", "13", "1a", " 1", "-1", "99999999999999"}) {
        EXPECT_EQ(NombreLu(text, 12), std::nullopt) << text;
    }
}

} // namespace
} // namespace loftwing
