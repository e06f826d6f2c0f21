#include "utilities/frmdiedre.h"

#include "windows/beside_fixture.h"

namespace loftwing {
namespace {

class FrmDiedreTest : public BesideTest<frmdiedre> {
  protected:
    void DoubleClick(const char *name) const { QTest::mouseDClick(&Box(name), Qt::LeftButton); }
};

TEST_F(FrmDiedreTest, OpensEmptyWithItsWords) {
    Open();
    EXPECT_EQ(Title(), "Compute the dihedral  mm");
    EXPECT_EQ(Label("Label1"), "Angle in degrees");
    for (const char *name : {"txt(0)", "txt(1)", "txt(2)"}) {
        EXPECT_EQ(Text(name), "");
        EXPECT_EQ(Tip(name), "Double click for result");
    }
    EXPECT_TRUE(Focused("txt(0)"));
    EXPECT_EQ(Word("cmdcalcul"), "Compute");
    ExpectTabs({"txt(1)", "txt(2)", "cmdcalcul", "cmdok", "cmdaide", "txt(0)"});
}

TEST_F(FrmDiedreTest, ADoubleClickComputesTheFieldThatIsClicked) {
    Open();
    Type("txt(1)", "100");
    Type("txt(2)", "100");
    DoubleClick("txt(0)");
    EXPECT_EQ(Text("txt(0)"), " 45.00");
    Type("txt(0)", "30");
    // Nothing is computed again by itself.
    EXPECT_EQ(Text("txt(2)"), "100");
    DoubleClick("txt(2)");
    EXPECT_EQ(Text("txt(2)"), " 57.735");
    Type("txt(2)", "57.735");
    DoubleClick("txt(1)");
    EXPECT_EQ(Text("txt(1)"), " 100."); // 57.735 * sqrt(3) = 99.99995
    EXPECT_TRUE(FocusedAndSelected("txt(1)"));
}

TEST_F(FrmDiedreTest, ReturnComputesTheFieldThatItIsPressedIn) {
    Open();
    Type("txt(1)", "100");
    Type("txt(2)", "100");
    Key("txt(0)", Qt::Key_Return);
    EXPECT_EQ(Text("txt(0)"), " 45.00");
    Type("txt(2)", "50");
    Key("txt(1)", Qt::Key_Enter);
    EXPECT_EQ(Text("txt(1)"), " 50."); // the tangent of 45 degrees is 1
    EXPECT_TRUE(IsOpen());
    // Where the focus is on no field, Return is OK.
    GoTo("cmdok");
    Key("cmdok", Qt::Key_Return);
    EXPECT_FALSE(IsOpen());
}

TEST_F(FrmDiedreTest, ReturnNeverReplacesWhatWasJustTyped) {
    Open();
    Type("txt(0)", "45");
    Type("txt(1)", "100");
    Key("txt(1)", Qt::Key_Return);
    EXPECT_EQ(Text("txt(1)"), "100");
    EXPECT_EQ(Text("txt(2)"), " 100.") << "the empty one";
    Type("txt(1)", "200");
    Key("txt(1)", Qt::Key_Return);
    EXPECT_EQ(Text("txt(1)"), "200");
    EXPECT_EQ(Text("txt(2)"), " 200.") << "the computed one";
    EXPECT_EQ(Text("txt(0)"), "45");
    Type("txt(2)", "200");
    Key("txt(2)", Qt::Key_Return);
    EXPECT_EQ(Text("txt(0)"), " 45.00") << "the one that was typed longest ago";
    EXPECT_EQ(Text("txt(2)"), "200");
}

TEST_F(FrmDiedreTest, ReturnLeavesWhatAnEmptyFieldIsComputedFrom) {
    Open();
    Type("txt(1)", "100");
    Type("txt(2)", "100");
    Key("txt(1)", Qt::Key_Return);
    EXPECT_EQ(Text("txt(0)"), " 45.00");
    EXPECT_EQ(Text("txt(1)"), "100");
}

TEST_F(FrmDiedreTest, TheButtonComputesTheEmptyOrTheOldestField) {
    Open();
    Type("txt(2)", "100");
    Type("txt(0)", "45");
    Click("cmdcalcul");
    EXPECT_EQ(Text("txt(1)"), " 100.");
    Type("txt(0)", "30");
    Click("cmdcalcul");
    EXPECT_EQ(Text("txt(1)"), " 173.205"); // 100 * sqrt(3)
    EXPECT_EQ(Text("txt(2)"), "100");
    Type("txt(1)", "100");
    Type("txt(0)", "45");
    Click("cmdcalcul");
    EXPECT_EQ(Text("txt(2)"), " 100.");
    EXPECT_TRUE(IsOpen());
}

TEST_F(FrmDiedreTest, AnAngleBeyondTheLimitIsToldAndStillCounts) {
    Open();
    Type("txt(0)", "89.5");
    Type("txt(1)", "100");
    ExpectBox("The angle is limited to   89°", BoxIcon::information);
    DoubleClick("txt(2)");
    EXPECT_EQ(Text("txt(0)"), "89");
    EXPECT_EQ(Text("txt(2)"), "11 458.865");
    DoubleClick("txt(2)");
    EXPECT_EQ(Text("txt(2)"), "5 728.996");
}

TEST_F(FrmDiedreTest, WithoutTheOthersNothingHappens) {
    Open();
    DoubleClick("txt(0)");
    DoubleClick("txt(1)");
    EXPECT_EQ(Text("txt(0)"), "");
    EXPECT_EQ(Text("txt(1)"), "");
    DoubleClick("txt(2)");
    EXPECT_EQ(Text("txt(2)"), "0");
}

TEST_F(FrmDiedreTest, FieldsSwallowWhatIsNoNumber) {
    Open();
    Type("txt(1)", "a-1/2.5%");
    EXPECT_EQ(Text("txt(1)"), "12.5");
    Inches();
    Open();
    EXPECT_EQ(Title(), "Compute the dihedral  in");
    Type("txt(1)", "a-1.1/2%");
    EXPECT_EQ(Text("txt(1)"), "1.1/2");
}

TEST_F(FrmDiedreTest, AZeroDenominatorIsToldAndNothingChanges) {
    Inches();
    Open();
    Type("txt(1)", "1/0");
    Type("txt(2)", "3");
    platform.Expect(BoxAnswer::ok);
    DoubleClick("txt(0)");
    EXPECT_EQ(platform.boxes.front().title, " Diedre/txt");
    EXPECT_EQ(Text("txt(0)"), "");
    EXPECT_EQ(Text("txt(1)"), "1/0");
}

TEST_F(FrmDiedreTest, OkAndEscapeClose) {
    Open();
    Click("cmdok");
    EXPECT_FALSE(IsOpen());
    Open();
    Key(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
}

TEST_F(FrmDiedreTest, HelpOpensItsTopic) {
    Open();
    Click("cmdaide");
    Key(Qt::Key_F1);
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{60, 60}));
}

TEST_F(FrmDiedreTest, SpeaksFrench) {
    Language("French");
    Open();
    EXPECT_EQ(Title(), "Calcul du dièdre  mm");
    EXPECT_EQ(Label("Label1"), "Angle en degrés");
}

TEST_F(FrmDiedreTest, NothingIsCut) {
    ExpectNothingCutAnywhere();
}

} // namespace
} // namespace loftwing
