#include "output/plan_fixture.h"
#include "output/styles.h"
#include "support/failures.h"
#include "support/tiny_svg.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

TEST(PlanSvg, AWholeFile) {
    EXPECT_EQ(EcritPlanSvg(PlanByHand(), kPlanColours),
              R"(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="420mm" height="215.095mm" viewBox="-10 -23.62 420 215.095">
<title>Wing &lt;1&gt;</title>
<g id="OUTLINE">
<path d="M 0 0 L 400 20" fill="none" stroke="#000001" stroke-width="0.18"/>
</g>
<g id="RIBS">
<path d="M 100 5 L 103 5 L 103 155 L 100 155 Z" fill="none" stroke="#000002" stroke-width="0.18"/>
<path d="M 200 10 L 200 150" fill="none" stroke="#000002" stroke-width="0.18"/>
</g>
<g id="SPARS">
</g>
<g id="STOCKS">
</g>
<g id="SHEETING">
</g>
<g id="HOLES">
<path d="M 100 60 L 200 62.5 L 300 64" fill="none" stroke="#000006" stroke-width="0.18" stroke-dasharray="3 1 0.5 1"/>
</g>
<g id="FRONT">
</g>
<g id="DIMENSIONS">
<text x="150" y="-10" text-anchor="middle" font-family="Arial, Liberation Sans, Helvetica, sans-serif" font-size="4" fill="#000008" xml:space="preserve">100 mm</text>
</g>
<g id="TITLE">
<text x="0" y="180" font-family="Arial, Liberation Sans, Helvetica, sans-serif" font-size="5" fill="#000009" xml:space="preserve">Ré &amp; Co</text>
</g>
</svg>
)");
}

TEST(PlanSvg, ElementsAreGroupedWhateverTheirOrder) {
    DessinPlan plan;
    plan.traits = {{CouchePlan::face, {{0, 0}, {1, 0}}, false},
                   {CouchePlan::contour, {{0, 0}, {2, 0}}, false},
                   {CouchePlan::face, {{0, 0}, {3, 0}}, false}};
    plan.textes = {{CouchePlan::face, {4, 0}, 1, "end", AppuiTexte::droite}};
    std::string order;
    for (const SvgElement &element : ReadSvg(EcritPlanSvg(plan, kPlanColours))) {
        if (element.name == "g") {
            order += " " + element["id"];
        } else if (element.name == "path") {
            order += " " + element["d"].substr(element["d"].rfind('L') + 2);
        } else if (element.name == "text") {
            order += " " + element.text + ":" + element["text-anchor"];
        }
    }
    EXPECT_EQ(order, " OUTLINE 2 0 RIBS SPARS STOCKS SHEETING HOLES FRONT 1 0 3 0 end:end "
                     "DIMENSIONS TITLE");
}

TEST(PlanSvg, WhatHasNoExtentInTheFileIsLeftOut) {
    DessinPlan plan = OneLine({5, 5}, {5.00001, 5});
    plan.traits.push_back({CouchePlan::contour, {{1, 1}}, true});
    // A closed run that returns to its start has that once.
    plan.traits.push_back({CouchePlan::contour, {{0, 0}, {4, 0}, {4, 3}, {0, 0.00001}}, true});
    plan.textes = {{CouchePlan::cote, {0, 0}, 0, "flat", AppuiTexte::gauche}};
    const auto elements = ReadSvg(EcritPlanSvg(plan, kPlanColours));
    std::vector<std::string> paths;
    for (const SvgElement &element : elements) {
        EXPECT_NE(element.name, "text");
        if (element.name == "path") {
            paths.push_back(element["d"]);
        }
    }
    EXPECT_EQ(paths, std::vector<std::string>{"M 0 0 L 4 0 L 4 -3 Z"});
}

TEST(PlanSvg, NothingIsFartherThanAKilometre) {
    EXPECT_EQ(FailureOf([] { EcritPlanSvg(OneLine({0, 0}, {1e6 + 1, 0}), kPlanColours); }), 6);
    EXPECT_EQ(FailureOf([] { EcritPlanSvg(OneLine({0, -1e6 - 1}, {0, 0}), kPlanColours); }), 6);
    EXPECT_EQ(FailureOf([] { EcritPlanSvg(OneLine({-1e6, 0}, {0, 1e6}), kPlanColours); }), 0);
}

TEST(PlanSvg, ColoursAreThoseOfTheElementsInThePlot) {
    AppSettings settings;
    ValeursDefautTraits(settings);
    settings.TraitDe(Element::profil).couleur = 4;
    settings.TraitDe(Element::rep).couleur = 10;
    settings.TraitDe(Element::coffrage).couleur = 2;
    const CouleursPlan colours = CouleursDuPlan(settings);
    EXPECT_EQ(colours, (CouleursPlan{0x800000, 0x800000, PaletteColour(13), PaletteColour(9),
                                     0x008000, PaletteColour(5), 0x800000, 0x00FF00, 0}));
}

} // namespace
} // namespace loftwing
