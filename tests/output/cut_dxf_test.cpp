#include "output/cut_forms.h"
#include "support/cut_reading.h"
#include "support/hand_pieces.h"

#include <gtest/gtest.h>

#include <cmath>

namespace loftwing {
namespace {

constexpr const char *kMm = " mm";
constexpr const char *kIn = " in";

std::string Lines(const Piece &piece, const char *unit = kMm) {
    return EcritDecoupeDxf({{piece}, ""}, unit, AnneauxDxf::lignes);
}

/// Items as a file has them: "0 LINE" is a code and its value.
std::string Items(const std::vector<std::string> &items) {
    std::string text;
    for (const std::string &item : items) {
        const std::size_t blank = item.find(' ');
        text += item.substr(0, blank) + "\r\n" + item.substr(blank + 1) + "\r\n";
    }
    return text;
}

std::vector<std::string> operator+(std::vector<std::string> all,
                                   const std::vector<std::string> &more) {
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

std::vector<std::string> Line(const std::string &layer, const std::string &x1,
                              const std::string &y1, const std::string &x2, const std::string &y2) {
    return {"0 LINE", "8 " + layer, "10 " + x1, "20 " + y1,
            "30 0.0", "11 " + x2,   "21 " + y2, "31 0.0"};
}

TEST(CutDxf, AWholeFileOfMarksHolesAndOutline) {
    const std::vector<std::string> head = {"0 SECTION",
                                           "2 HEADER",
                                           "9 $ACADVER",
                                           "1 AC1009",
                                           "9 $DWGCODEPAGE",
                                           "3 ANSI_1252",
                                           "9 $INSUNITS",
                                           "70 4",
                                           "9 $MEASUREMENT",
                                           "70 1",
                                           "9 $EXTMIN",
                                           "10 0.0",
                                           "20 -10.0",
                                           "30 0.0",
                                           "9 $EXTMAX",
                                           "10 40.0",
                                           "20 10.0",
                                           "30 0.0",
                                           "0 ENDSEC",
                                           "0 SECTION",
                                           "2 TABLES",
                                           "0 TABLE",
                                           "2 LTYPE",
                                           "70 2",
                                           "0 LTYPE",
                                           "2 CONTINUOUS",
                                           "70 0",
                                           "3 Solid line",
                                           "72 65",
                                           "73 0",
                                           "40 0.0",
                                           "0 LTYPE",
                                           "2 CENTER",
                                           "70 0",
                                           "3 Center ____ _ ____ _ ____",
                                           "72 65",
                                           "73 4",
                                           "40 50.8",
                                           "49 31.75",
                                           "49 -6.35",
                                           "49 6.35",
                                           "49 -6.35",
                                           "0 ENDTAB",
                                           "0 TABLE",
                                           "2 LAYER",
                                           "70 2",
                                           "0 LAYER",
                                           "2 MARK",
                                           "70 0",
                                           "62 5",
                                           "6 CONTINUOUS",
                                           "0 LAYER",
                                           "2 CUT",
                                           "70 0",
                                           "62 7",
                                           "6 CONTINUOUS",
                                           "0 ENDTAB",
                                           "0 ENDSEC",
                                           "0 SECTION",
                                           "2 BLOCKS",
                                           "0 ENDSEC",
                                           "0 SECTION",
                                           "2 ENTITIES"};
    const auto marks = Line("MARK", "0.0", "0.0", "40.0", "0.0") +
                       std::vector<std::string>{"0 TEXT", "8 MARK",   "10 12.0",   "20 -5.0",
                                                "30 0.0", "40 2.864", "1 A & \xE9"};
    const auto cut =
        std::vector<std::string>{"0 CIRCLE", "8 CUT", "10 25.0", "20 0.0", "30 0.0", "40 3.5"} +
        Line("CUT", "5.0", "-2.0", "5.0", "2.0") + Line("CUT", "5.0", "2.0", "10.0", "2.0") +
        Line("CUT", "10.0", "2.0", "10.0", "-2.0") + Line("CUT", "10.0", "-2.0", "5.0", "-2.0") +
        Line("CUT", "0.0", "-10.0", "40.0", "-10.0") +
        Line("CUT", "40.0", "-10.0", "40.0", "10.0") + Line("CUT", "40.0", "10.0", "0.0", "10.0") +
        Line("CUT", "0.0", "10.0", "0.0", "-10.0");
    const std::vector<std::string> tail = {"0 ENDSEC", "0 EOF"};
    EXPECT_EQ(Lines(Planchette()), Items(head + marks + cut + tail));
}

TEST(CutDxf, PolylinesAreClosedAndHaveTheSamePoints) {
    const std::string dxf = EcritDecoupeDxf({{Planchette()}, ""}, kMm, AnneauxDxf::polylignes);
    const ReadCut read = Polylines(dxf);
    EXPECT_EQ(read.problem, "");
    EXPECT_EQ(Difference(read, JoinedLines(Lines(Planchette()))), 0.0);
    ASSERT_EQ(read.rings.size(), 2U);
    EXPECT_EQ(read.rings[1], (ReadRing{{0, -10}, {40, -10}, {40, 10}, {0, 10}}));
    for (const DxfRecord &record : DxfEntities(dxf)) {
        EXPECT_TRUE(record.kind != "LINE" || record.Value(8) == "MARK");
    }
}

TEST(CutDxf, InchesHaveDigitsForAMillionthOfAMillimetre) {
    Piece piece;
    piece.parties = {
        {{{0, 0}, {25.4, 0}, {25.4, 0.000001}, {12.7, 2.54}}, {}, {{{12.7, 1.27}, 0.127}}}};
    const std::string dxf = Lines(piece, kIn);
    EXPECT_NE(dxf.find("$INSUNITS\r\n70\r\n1\r\n"), std::string::npos);
    const ReadCut read = JoinedLines(dxf);
    EXPECT_EQ(read.problem, "");
    ASSERT_EQ(read.rings.size(), 1U);
    EXPECT_EQ(read.rings[0], (ReadRing{{0, 0}, {1, 0}, {1, 0.00000004}, {0.5, 0.1}}));
    ASSERT_EQ(read.circles.size(), 1U);
    EXPECT_EQ(read.circles[0].radius, 0.005);
    EXPECT_EQ(read.circles[0].centre, (ReadPoint{0.5, 0.05}));
}

TEST(CutDxf, LinesMeetToTheLastDigitAndNoneIsWithoutLength) {
    // A ring of thirds, whose digits go on for ever, with points that are written alike, and one
    // that comes back to 0 from below.
    Piece piece;
    Anneau ring;
    for (int i = 0; i < 30; ++i) {
        const double x = i / 3.0;
        ring.push_back({x, -i * (30 - i) / 7.0});
        ring.push_back({x + 1e-10, -i * (30 - i) / 7.0});
    }
    ring.push_back({10, 5});
    ring.push_back({-1e-9, -1e-9});
    piece.parties = {{ring, {}, {}}};
    for (const char *unit : {kMm, kIn}) {
        const ReadCut read = JoinedLines(Lines(piece, unit));
        EXPECT_EQ(read.problem, "");
        ASSERT_EQ(read.rings.size(), 1U);
        EXPECT_EQ(read.rings[0].size(), 31U);
    }
}

TEST(CutDxf, WhatHasNoExtentInTheFileIsLeftOut) {
    Piece piece = Planchette();
    piece.traits = {{GenreMarque::station, {{3, 1}, {3, 1}}}};
    piece.parties[0].cercles = {{{25, 0}, 4e-7}};
    piece.parties[0].dedans = {{{5, 0}, {6, 0}, {5, 1e-7}}};
    const std::string dxf = Lines(piece);
    const ReadCut read = JoinedLines(dxf);
    EXPECT_EQ(read.problem, "");
    EXPECT_TRUE(read.circles.empty());
    EXPECT_EQ(read.rings.size(), 1U);
    EXPECT_EQ(dxf.find("LINE\r\n8\r\nMARK"), std::string::npos);
}

TEST(CutDxf, WhatIsCutOutOfAnyPieceComesBeforeEveryOutline) {
    const std::string dxf =
        EcritDecoupeDxf({EnDessous({Planchette(), Planchette()}), ""}, kMm, AnneauxDxf::lignes);
    std::vector<std::string> order;
    for (const DxfRecord &record : DxfEntities(dxf)) {
        if (record.Value(8) == "MARK") {
            order.emplace_back("mark");
        } else if (record.kind == "CIRCLE") {
            order.emplace_back("hole");
        } else if (std::abs(record.Number(10) - record.Number(11)) > 30) {
            order.emplace_back("outline"); // its two long sides
        }
    }
    const std::vector<std::string> wanted = {"mark", "mark",    "mark",    "mark",    "hole",
                                             "hole", "outline", "outline", "outline", "outline"};
    EXPECT_EQ(order, wanted);
}

} // namespace
} // namespace loftwing
