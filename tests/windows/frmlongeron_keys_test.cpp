// The spar window without a mouse.

#include "windows/frmlongeron_fixture.h"

#include <vector>

namespace loftwing {
namespace {

class FrmLongeronKeys : public FrmLongeronTest {
  protected:
    static void TypeHere(SeenSlots &window, const char *text) { window.Keys(window.Focus(), text); }
    static void Press(SeenSlots &window, Qt::Key key, int times) {
        for (int i = 0; i < times; ++i) {
            window.Key(key);
        }
    }
    /// How far the arrows go in each group of choices.
    struct Arrows {
        int edge, kind, upper, lower;
    };
    /// Enters a spar from the location on, up to the Add button, which has the focus then. Tab must
    /// come by the first choice of each group.
    static void Enter(SeenSlots &window, const char *place, const char *width, const char *depth,
                      Arrows arrows) {
        TypeHere(window, place);
        window.ExpectTabs({"OptDistance(0)"});
        Press(window, Qt::Key_Right, arrows.edge);
        window.ExpectTabs({"Text1(1)"});
        TypeHere(window, width);
        window.ExpectTabs({"Text1(2)"});
        TypeHere(window, depth);
        window.ExpectTabs({"OptLong(0)"});
        Press(window, Qt::Key_Down, arrows.kind);
        window.ExpectTabs({"Opte(0)"});
        Press(window, Qt::Key_Down, arrows.upper);
        window.ExpectTabs({"Opti(0)"});
        Press(window, Qt::Key_Down, arrows.lower);
        window.ExpectTabs({"cmdajout"});
    }
};

TEST_F(FrmLongeronKeys, TwoSparsInARowAreWhatTheFieldsShow) {
    Use([](SeenSlots &window) {
        Enter(window, "50", "10", "5", {1, 1, 1, 2});
        EXPECT_EQ(window.Texts(3), "50|10|5");
        for (const char *chosen : {"OptDistance(1)", "OptLong(1)", "Opte(1)", "Opti(2)"}) {
            EXPECT_TRUE(window.Chosen(chosen)) << chosen;
        }
        window.Key(Qt::Key_Space);
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_EQ(window.Texts(3), "0|0|0");
        Enter(window, "60", "8", "4", {0, 0, 2, 1});
        EXPECT_EQ(window.Texts(3), "60|8|4");
        for (const char *chosen : {"OptDistance(0)", "OptLong(0)", "Opte(2)", "Opti(1)"}) {
            EXPECT_TRUE(window.Chosen(chosen)) << chosen;
        }
        window.Key(Qt::Key_Space);
        EXPECT_EQ(window.Numbers(), "1 2 [3]");
    });
    ASSERT_EQ(Count(), 2);
    const Longeron &first = Slot(0);
    EXPECT_EQ(first.PosLong, 150.0F); // 50 from the trailing edge of 200
    EXPECT_EQ(first.LargLong, 10.0F);
    EXPECT_EQ(first.HautLong, 5.0F);
    EXPECT_EQ(first.RefLong, 1);
    EXPECT_EQ(first.TypeLong, kLongeronDroit);
    EXPECT_EQ(first.OptLongExt, kEncocheCoffrage);
    EXPECT_EQ(first.OptLongInt, kEncocheContour);
    const Longeron &second = Slot(1);
    EXPECT_EQ(second.PosLong, 60.0F);
    EXPECT_EQ(second.LargLong, 8.0F);
    EXPECT_EQ(second.HautLong, 4.0F);
    EXPECT_EQ(second.RefLong, 0);
    EXPECT_EQ(second.TypeLong, kLongeronSurface);
    EXPECT_EQ(second.OptLongExt, kEncocheContour);
    EXPECT_EQ(second.OptLongInt, kEncocheCoffrage);
}

TEST_F(FrmLongeronKeys, TabComesByWhatANumberShows) {
    Spars(1);
    Longeron &first = programme.rib.longeron[0];
    first.RefLong = 1;
    first.TypeLong = kLongeronDistance;
    first.OptLongExt = 2;
    first.OptLongInt = 1;
    Use([](SeenSlots &window) {
        window.ClickNumber(0);
        window.ExpectTabs({"OptDistance(1)", "Text1(1)", "Text1(2)", "Text1(3)", "OptLong(3)",
                           "Opte(2)", "Opti(1)", "cmdajout"});
        window.ClickNumber(1);
        window.ExpectTabs(
            {"OptDistance(0)", "Text1(1)", "Text1(2)", "OptLong(0)", "Opte(1)", "Opti(0)"});
        window.Key(Qt::Key_Down);
        EXPECT_TRUE(window.Chosen("Opti(1)"));
    });
}

} // namespace
} // namespace loftwing
