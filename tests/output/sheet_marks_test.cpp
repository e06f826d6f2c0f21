#include "output/sheet_marks.h"

#include "output/recording.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace loftwing {
namespace {

using testing::EndsWith;
using testing::StartsWith;

/// Landscape A4 with margins of 10 and 15 mm: check lines stand between 10 and 282 along the rib
/// and between 10 and 200 across it. The arms take 4 mm for their ticks, and 2 mm around all are
/// kept clear.
class SheetMarks : public testing::Test {
  protected:
    void Ink(double x, double y) { inks.push_back({x, y, x + 0.5, y + 0.5}); }
    std::optional<PlaceTemoin> Found() const { return PlaceLibre(sheet, note, inks); }
    /// "length at x, y" of the place found, with the ways of its arms.
    std::string Place() const {
        const auto found = Found();
        if (!found) {
            return "none";
        }
        const auto round = [](double mm) { return std::to_string(std::lround(mm * 10)); };
        return round(found->longueur) + " at " + round(found->x) + "," + round(found->y) +
               (found->sens_x > 0 ? " right" : " left") + (found->sens_y > 0 ? " down" : " up");
    }

    FeuilleTemoin sheet = FeuilleAvecMarges(297, 210, 10, 15);
    NoteTemoin note{"Measure this", "Clark Y", "chord 200 mm, sheet 1 of 2, 2031-05-24", " mm"};
    std::vector<Etendue> inks;
};

TEST_F(SheetMarks, AnEmptySheetHasItLowerLeft) {
    EXPECT_EQ(Place(), "1000 at 100,2000 right up");
}

TEST_F(SheetMarks, ACornerThatIsTakenIsLeftAlone) {
    Ink(100, 199); // on the lower left arm along the rib
    EXPECT_EQ(Place(), "1000 at 2820,2000 left up");
    Ink(280, 120); // on the lower right arm across it
    EXPECT_EQ(Place(), "1000 at 100,100 right down");
    Ink(11, 90);
    EXPECT_EQ(Place(), "1000 at 2820,100 left down");
    Ink(200, 11);
    // Of all four corners the outer halves of the arms are taken.
    EXPECT_EQ(Place(), "500 at 100,2000 right up");
    Ink(40, 199);
    EXPECT_EQ(Place(), "500 at 2820,2000 left up");
}

TEST_F(SheetMarks, ASheetWithoutACornerHasNone) {
    Ink(20, 199);
    Ink(270, 199);
    Ink(20, 11);
    Ink(270, 11);
    EXPECT_EQ(Place(), "none");
}

TEST_F(SheetMarks, OnlyArmsAndNoteNeedRoom) {
    Ink(60, 140); // in the square, beside both
    EXPECT_EQ(Place(), "1000 at 100,2000 right up");
    EXPECT_NEAR(Found()->note.gauche, 16, 1e-9);
    EXPECT_NEAR(Found()->note.bas, 194, 1e-9);
    Ink(20, 191); // where the note stands, which goes to the end of the arm along the rib
    EXPECT_EQ(Place(), "1000 at 100,2000 right up");
    EXPECT_NEAR(Found()->note.droite, 110, 1e-9);
    EXPECT_NEAR(Found()->note.bas, 194, 1e-9);
    Ink(100, 191); // there too: to the end of the one across it
    EXPECT_EQ(Place(), "1000 at 100,2000 right up");
    EXPECT_NEAR(Found()->note.gauche, 16, 1e-9);
    EXPECT_NEAR(Found()->note.haut, 100, 1e-9);
    Ink(20, 105);
    EXPECT_EQ(Place(), "1000 at 2820,2000 left up");
}

TEST_F(SheetMarks, TwoMillimetresAreKeptClear) {
    inks = {{16.1, 120, 30, 120}}; // the arm reaches to 14 with its ticks
    EXPECT_EQ(Place(), "1000 at 100,2000 right up");
    inks = {{15.9, 120, 30, 120}};
    EXPECT_EQ(Place(), "1000 at 2820,2000 left up");
}

TEST_F(SheetMarks, InkBeyondTheSheetTakesNoCorner) {
    inks = {{-50, 150, -1, 300}, {0, 211, 297, 260}};
    EXPECT_EQ(Place(), "1000 at 100,2000 right up");
}

TEST_F(SheetMarks, SmallSheetsHaveTheShortLineOrNone) {
    // 10 and 15 mm along the rib leave 95 of 120, 10 and 10 across leave 70 of 90.
    sheet = FeuilleAvecMarges(120, 90, 10, 15);
    EXPECT_EQ(Place(), "500 at 100,800 right up");
    sheet = FeuilleAvecMarges(125, 120, 10, 15); // just enough
    EXPECT_EQ(Place(), "1000 at 100,1100 right up");
    sheet = FeuilleAvecMarges(300, 69, 10, 15);
    EXPECT_EQ(Place(), "none");
}

TEST_F(SheetMarks, EdgesKeepAtLeastEightMillimetres) {
    sheet = FeuilleAvecMarges(297, 210, 0, 3);
    EXPECT_EQ(Place(), "1000 at 80,2020 right up");
    Ink(20, 201);
    EXPECT_EQ(Place(), "1000 at 2890,2020 left up");
    // Across the rib the smaller margin counts.
    sheet = FeuilleAvecMarges(297, 210, 90, 12);
    inks.clear();
    EXPECT_EQ(Place(), "1000 at 900,1980 right up");
}

TEST_F(SheetMarks, InchesHaveFourOrTwo) {
    note.Unite = " in";
    EXPECT_EQ(Place(), "1016 at 100,2000 right up");
    EXPECT_THAT(Found()->lignes.front(), EndsWith(" : 4 in"));
    for (const double x : {100.0, 200.0}) {
        Ink(x, 199);
        Ink(x, 11);
    }
    EXPECT_EQ(Place(), "508 at 100,2000 right up");
    EXPECT_THAT(Found()->lignes.front(), EndsWith(" : 2 in"));
}

TEST_F(SheetMarks, NoteSaysWhatToDoAndWhatItIs) {
    EXPECT_EQ(Found()->lignes,
              (std::vector<std::string>{"Measure this : 100 mm", "Clark Y",
                                        "chord 200 mm, sheet 1 of 2, 2031-05-24"}));
}

TEST_F(SheetMarks, NoteBreaksWhereItsLineIsShort) {
    sheet = FeuilleAvecMarges(120, 90, 10, 15);
    note.consigne = "Print at 100 % and measure this line";
    const auto found = Found();
    ASSERT_GT(found->lignes.size(), 3U);
    std::string all;
    for (const std::string &line : found->lignes) {
        EXPECT_LE(MeasuredAdvance(line, {"Arial", 8}) / 56.7, 50 - 6);
        all += (all.empty() ? "" : " ") + line;
    }
    EXPECT_EQ(all, "Print at 100 % and measure this line : 50 mm Clark Y "
                   "chord 200 mm, sheet 1 of 2, 2031-05-24");
}

TEST_F(SheetMarks, ALongNameIsShortened) {
    std::string name;
    for (int i = 0; i < 100; ++i) {
        name += "é";
    }
    note.nom = name;
    const std::string shown = Found()->lignes.at(1);
    EXPECT_THAT(shown, EndsWith("é..."));
    EXPECT_THAT(name, StartsWith(shown.substr(0, shown.size() - 3)));
    const double width = MeasuredAdvance(shown, {"Arial", 8}) / 56.7;
    EXPECT_LE(width, 94);
    EXPECT_GT(width, 90); // no more than needed is cut off
}

/// Segments of what is drawn, in mm.
struct Stroke {
    double x1, y1, x2, y2;
};
std::vector<Stroke> StrokesOf(const Recording &drawing) {
    std::vector<Stroke> strokes;
    for (const Operation &operation : drawing.Operations()) {
        if (const auto *line = std::get_if<DrawnSegment>(&operation)) {
            EXPECT_EQ(line->pen, (Pen{0, 1, LineStyle::solid}));
            strokes.push_back({line->x1 / 56.7, line->y1 / 56.7, line->x2 / 56.7, line->y2 / 56.7});
        }
    }
    return strokes;
}

TEST_F(SheetMarks, ArmsAndTicksAreExact) {
    Recording drawing;
    TraceTemoin(drawing, *Found(), " mm");
    int along = 0;
    int across = 0;
    for (const Stroke &stroke : StrokesOf(drawing)) {
        if (std::abs(stroke.x1 - stroke.x2) > 50) {
            EXPECT_NEAR(stroke.x1, 10, 1e-9);
            EXPECT_NEAR(stroke.x2, 110, 1e-9);
            EXPECT_NEAR(stroke.y1, 200, 1e-9);
            EXPECT_NEAR(stroke.y2, 200, 1e-9);
        } else if (std::abs(stroke.y1 - stroke.y2) > 50) {
            EXPECT_NEAR(stroke.x1, 10, 1e-9);
            EXPECT_NEAR(stroke.y1, 200, 1e-9);
            EXPECT_NEAR(stroke.y2, 100, 1e-9);
        } else if (stroke.x1 == stroke.x2) {
            ++along; // at 20, 30, ... 110
            EXPECT_NEAR(stroke.x1, 10 + 10 * along, 1e-9);
            EXPECT_NEAR(stroke.y2, along == 10 ? 196 : 198, 1e-9);
        } else {
            ++across;
            EXPECT_NEAR(stroke.y1, 200 - 10 * across, 1e-9);
            EXPECT_NEAR(stroke.x2, across == 10 ? 14 : 12, 1e-9);
        }
    }
    EXPECT_EQ(along, 10);
    EXPECT_EQ(across, 10);
}

TEST_F(SheetMarks, InchesHaveATickAtEveryHalf) {
    note.Unite = " in";
    Recording drawing;
    TraceTemoin(drawing, *Found(), " in");
    const std::vector<Stroke> strokes = StrokesOf(drawing);
    ASSERT_EQ(strokes.size(), 2U + 8U + 8U);
    EXPECT_NEAR(strokes[0].x2 - strokes[0].x1, 101.6, 1e-9);
    EXPECT_NEAR(strokes[2].x1, 10 + 12.7, 1e-9);
}

TEST_F(SheetMarks, AllThatIsDrawnStaysInItsCorner) {
    for (const Etendue &taken : {Etendue{}, Etendue{20, 199, 21, 199}}) {
        inks = {taken};
        Metre metre;
        TraceTemoin(metre, *Found(), " mm");
        const Etendue all = metre.Tout();
        EXPECT_GE(all.gauche, 10 - 1e-9);
        EXPECT_LE(all.droite, 282 + 1e-9);
        EXPECT_NEAR(all.haut, 100, 1e-9);
        EXPECT_NEAR(all.bas, 200, 1e-9);
        EXPECT_LE(all.droite - all.gauche, 100 + 1e-9);
    }
}

TEST_F(SheetMarks, DeviceIsLeftAsItWas) {
    Recording drawing;
    drawing.Font = {"Courier", 13};
    drawing.ForeColor = 0x123456;
    drawing.DrawWidth = 3;
    drawing.DrawStyle = 2;
    drawing.CurrentX = 17;
    drawing.CurrentY = 18;
    TraceTemoin(drawing, *Found(), " mm");
    EXPECT_EQ(drawing.Font, (TextFont{"Courier", 13}));
    EXPECT_EQ(drawing.ForeColor, 0x123456U);
    EXPECT_EQ(drawing.DrawWidth, 3);
    EXPECT_EQ(drawing.DrawStyle, 2);
    EXPECT_EQ(drawing.CurrentX, 17);
    EXPECT_EQ(drawing.CurrentY, 18);
}

} // namespace
} // namespace loftwing
