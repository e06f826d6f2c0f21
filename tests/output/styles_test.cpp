#include "output/styles.h"

#include "output/recording.h"
#include "support/failures.h"

#include <gtest/gtest.h>

#include <string>

namespace loftwing {
namespace {

struct StyleRow {
    const char *colour_key;
    int colour;
    const char *style_key;
    int style;
    const char *width_key;
    const char *label;
};

constexpr StyleRow kStyleRows[] = {
    {"coulprofil", 0, "lineprofil", 0, "profil", "5"},
    {"coulcoffrage", 9, "linecoffrage", 0, "eplinecoffrage", "6"},
    {"coulaxe", 12, "lineaxe", 3, "", "7"},
    {"coulong", 13, "linelong", 0, "eplinelong", "8"},
    {"coulba", 9, "lineba", 0, "eplineba", "9"},
    {"coulbf", 9, "linebf", 0, "eplinebf", "10"},
    {"coultrou", 5, "linetrou", 0, "eplinetrou", "11"},
    {"coulrep", 12, "linerep", 0, "eplinerep", "12"},
    {"coulbloc", 1, "linebloc", 0, "eplinebloc", "13"},
    {"coulprofil1", 5, "lineprofil1", 0, "", "15"},
    {"coulprofil2", 9, "lineprofil2", 0, "", "16"},
};

TEST(Styles, TableHoldsKeysDefaultsAndLabelsInTheOrderOfTheNumbers) {
    ASSERT_EQ(DrawingElements().size(), std::size(kStyleRows));
    for (std::size_t i = 0; i < std::size(kStyleRows); ++i) {
        const DrawingElement &element = DrawingElements().at(i);
        EXPECT_EQ(static_cast<std::size_t>(element.element), i);
        EXPECT_STREQ(element.colour_key, kStyleRows[i].colour_key);
        EXPECT_STREQ(element.style_key, kStyleRows[i].style_key);
        EXPECT_EQ(element.width_key == nullptr ? "" : std::string(element.width_key),
                  kStyleRows[i].width_key);
        EXPECT_STREQ(element.label.section, "FrmLines");
        EXPECT_STREQ(element.label.key, kStyleRows[i].label);
    }
}

TEST(Styles, NewProgramHasThinLinesAndOnlyAxesBroken) {
    AppSettings settings;
    settings.traits.fill({15, 4, 3});
    ValeursDefautTraits(settings);
    for (std::size_t i = 0; i < std::size(kStyleRows); ++i) {
        EXPECT_EQ(settings.traits.at(i).couleur, kStyleRows[i].colour) << i;
        EXPECT_EQ(settings.traits.at(i).style, kStyleRows[i].style) << i;
        EXPECT_EQ(settings.traits.at(i).epaisseur, 1) << i;
    }
}

TEST(Styles, PenTakesStyleAndWidthOfAnElementAndGivesThemBack) {
    AppSettings settings;
    settings.TraitDe(Element::longeron) = {2, 4, 3};
    Recording device;
    PrendStyle(device, settings, Element::longeron);
    EXPECT_EQ(device.DrawStyle, 4);
    EXPECT_EQ(device.DrawWidth, 3);
    RendStyle(device);
    EXPECT_EQ(device.DrawStyle, 0);
    EXPECT_EQ(device.DrawWidth, 1);
}

TEST(Styles, ElementsWithoutAWidthLeaveTheDevicesOwn) {
    AppSettings settings;
    settings.TraitDe(Element::profil1) = {5, 2, 3};
    Recording device;
    device.DrawWidth = 2;
    PrendStyleSeul(device, settings, Element::profil1);
    EXPECT_EQ(device.DrawStyle, 2);
    EXPECT_EQ(device.DrawWidth, 2);
}

TEST(Styles, ColourOfAnElementIsThatOfItsNumber) {
    AppSettings settings;
    settings.TraitDe(Element::bf).couleur = 9;
    EXPECT_EQ(CouleurDe(settings, Element::bf), 0x0000FFU);
    settings.TraitDe(Element::bf).couleur = 15;
    EXPECT_EQ(CouleurDe(settings, Element::bf), 0xFFFFFFU);
    settings.TraitDe(Element::bf).couleur = 16;
    EXPECT_EQ(FailureOf([&] { CouleurDe(settings, Element::bf); }), 5);
}

} // namespace
} // namespace loftwing
