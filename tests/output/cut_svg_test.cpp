#include "output/cut_forms.h"
#include "support/cut_reading.h"
#include "support/hand_pieces.h"

#include <gtest/gtest.h>

#include <cmath>

namespace loftwing {
namespace {

const CouleursDecoupe kColours = {0xFF0000, 0x00FF00, 1, 2, 0x0000FF, 3};

TEST(CutSvg, MarksComeFirstThenOneClosedPathWithItsHolesInFront) {
    EXPECT_EQ(EcritDecoupeSvg({{Planchette()}, "board <1>"}, kColours),
              R"(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="50mm" height="30mm" viewBox="-5 -15 50 30">
<title>board &lt;1&gt;</title>
<g id="marks">
<path d="M 0 0 L 40 0" fill="none" stroke="#00ff00" stroke-width="0.01"/>
<text x="12" y="5" font-family="Arial, Liberation Sans, Helvetica, sans-serif" font-size="4" fill="#0000ff" xml:space="preserve">A &amp; é</text>
</g>
<g id="cut">
<path fill-rule="evenodd" d="M 21.5 0 A 3.5 3.5 0 1 0 28.5 0 A 3.5 3.5 0 1 0 21.5 0 Z M 5 2 L 5 -2 L 10 -2 L 10 2 Z M 0 10 L 40 10 L 40 -10 L 0 -10 Z" fill="none" stroke="#ff0000" stroke-width="0.01"/>
</g>
</svg>
)");
}

TEST(CutSvg, EachPieceIsOnePathWhateverItsParts) {
    Piece split = Planchette();
    split.parties.push_back({{{50, 0}, {60, 0}, {60, 5}}, {{{54, 1}, {55, 2}, {56, 1}}}, {}});
    const std::string svg = EcritDecoupeSvg({EnDessous({split, Planchette()}), ""}, kColours);
    std::size_t paths = 0;
    for (std::size_t at = svg.find("<path fill-rule"); at != std::string::npos;
         at = svg.find("<path fill-rule", at + 1)) {
        ++paths;
    }
    EXPECT_EQ(paths, 2U);
    const ReadCut cut = Subpaths(svg);
    EXPECT_EQ(cut.problem, "");
    ASSERT_EQ(cut.rings.size(), 6U);
    // The holes of all parts, then their outlines.
    const double areas[] = {20, 1, 800, 25, 20, 800};
    for (std::size_t i = 0; i < cut.rings.size(); ++i) {
        EXPECT_NEAR(std::abs(AreaOf(cut.rings[i])), areas[i], 1e-9) << i;
    }
}

TEST(CutSvg, WhatHasNoExtentInTheFileIsLeftOut) {
    Piece piece = Planchette();
    piece.parties[0].cercles = {{{25, 0}, 4e-7}};
    piece.parties[0].dedans = {{{5, 0}, {5 + 1e-7, 0}, {5, 1e-7}}};
    piece.parties[0].dehors.insert(piece.parties[0].dehors.begin() + 1, {-1e-8, -10 + 1e-8});
    const ReadCut cut = Subpaths(EcritDecoupeSvg({{piece}, ""}, kColours));
    EXPECT_EQ(cut.problem, "");
    EXPECT_TRUE(cut.circles.empty());
    ASSERT_EQ(cut.rings.size(), 1U);
    EXPECT_EQ(cut.rings[0].size(), 4U);
}

} // namespace
} // namespace loftwing
