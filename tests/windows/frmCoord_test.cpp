#include "utilities/frmCoord.h"

#include "windows/beside_fixture.h"

namespace loftwing {
namespace {

using Lines = std::vector<std::string>;

class FrmCoordTest : public BesideTest<frmCoord> {
  protected:
    QListWidget &List() const { return Find<QListWidget>("Liste_Valeurs"); }
    Lines Shown() const {
        Lines lines;
        for (int row = 0; row < List().count(); ++row) {
            lines.push_back(S(List().item(row)->text()));
        }
        return lines;
    }
    void Enter(const char *x, const char *y) const {
        Type("txtinX", x);
        Type("txtinY", y);
        Click("cmdentre");
    }
    /// An editor with lines "a", "b", "c", "d" and the title "T" from a file.
    void OpenLoaded(const std::string &bytes = "T\na\nb\nc\nd\n") {
        Open();
        Load(folder.File("foil.dat", bytes));
    }
    void Load(const std::string &path) {
        platform.files_expected.push_back(path);
        Click("cmdouvrir");
    }
    void Select(const std::vector<int> &rows) const {
        List().clearSelection();
        for (const int row : rows) {
            List().setCurrentRow(row, QItemSelectionModel::Select);
        }
    }
    void DoubleClickRow(int row) const {
        const QPoint at = List().visualItemRect(List().item(row)).center();
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, at);
    }
    void ExpectQuestion(const std::string &text, BoxAnswer answer) {
        ExpectBox(text, BoxIcon::question, answer);
    }
    /// Whether closing it now asks.
    bool AsksBeforeClosing() {
        ExpectQuestion("The lines are not saved. Close all the same?", BoxAnswer::no);
        Close();
        const bool asked = platform.ForgetExpected() == 0;
        window->show();
        return asked;
    }
};

TEST_F(FrmCoordTest, OpensEmptyWithItsWords) {
    Open();
    EXPECT_EQ(Title(), "Create new coordinates");
    EXPECT_EQ(Label("Label1(0)"), "File name");
    EXPECT_EQ(Label("Label1(1)"), "Title");
    EXPECT_EQ(Label("Label1(2)"), "Divide by");
    EXPECT_EQ(Label("Label2"), "Enter X Y");
    EXPECT_EQ(Word("cmdentre"), "Enter");
    EXPECT_EQ(Word("cmdajouter"), "Add a line");
    EXPECT_EQ(Word("cmdeffaceligne"), "Clear line");
    EXPECT_EQ(Word("cmdeffacetout"), "Clear all lines");
    EXPECT_EQ(Word("cmdouvrir"), "Open...");
    EXPECT_EQ(Word("cmdsave"), "Save as...");
    EXPECT_EQ(Word("cmdfermer"), "Close");
    EXPECT_NE(Tip("txt(1)"), "");
    EXPECT_NE(Tip("txt(2)"), "");
    EXPECT_EQ(Text("txt(2)"), "1");
    EXPECT_TRUE(Shown().empty());
    EXPECT_TRUE(Focused("txt(0)"));
    ExpectTabs({"txt(1)", "txt(2)", "txtinX", "txtinY", "cmdentre"});
}

TEST_F(FrmCoordTest, APointBecomesALine) {
    Open();
    Type("txt(2)", "200");
    Enter("200", "0");
    Enter("100", "-12.5");
    EXPECT_EQ(Shown(), (Lines{"1.000000    0.000000", "0.500000   -0.062500"}));
    EXPECT_TRUE(FocusedAndSelected("txtinX"));
}

TEST_F(FrmCoordTest, WithoutBothValuesNothingHappens) {
    Open();
    Enter("", "1");
    Enter("1", "");
    EXPECT_TRUE(Shown().empty());
    EXPECT_FALSE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, ADivisorOfZeroBecomesOne) {
    Open();
    for (const char *divisor : {"", "0"}) {
        Type("txt(2)", divisor);
        Enter("0.5", "0.25");
        EXPECT_EQ(Text("txt(2)"), "1");
        EXPECT_EQ(Shown().back(), "0.500000    0.250000");
    }
    EXPECT_EQ(Shown().size(), 2U);
}

TEST_F(FrmCoordTest, TheDivisorIsPutIntoItsFormAtEveryChange) {
    Open();
    Type("txt(2)", "1234567");
    EXPECT_EQ(Text("txt(2)"), "1 234 567");
    EXPECT_EQ(Box("txt(2)").cursorPosition(), 9);
    Box("txt(2)").home(false);
    Type("txt(1)", "Some title 1000");
    EXPECT_EQ(Text("txt(2)"), "1 234 567");
    EXPECT_EQ(Box("txt(2)").cursorPosition(), 9);
    EXPECT_EQ(Text("txt(1)"), "Some title 1000");
    Key("txt(2)", Qt::Key_Backspace);
    EXPECT_EQ(Text("txt(2)"), "123 456");
    Enter("1234.56", "0");
    EXPECT_EQ(Shown().front(), "0.010000    0.000000");
}

TEST_F(FrmCoordTest, FieldsSwallowWhatTheyDontTake) {
    Open();
    Type("txtinX", "a-1/2.5");
    EXPECT_EQ(Text("txtinX"), "12.5");
    Type("txtinY", "a-1/2.5");
    EXPECT_EQ(Text("txtinY"), "-12.5");
    Type("txt(2)", "a-1/2.5");
    EXPECT_EQ(Text("txt(2)"), "125");
    Type("txt(0)", "My foil-1");
    EXPECT_EQ(Text("txt(0)"), "My foil-1");
}

TEST_F(FrmCoordTest, ReturnLeadsFromXToYAndIntoTheList) {
    Open();
    Type("txtinX", "1");
    Key("txtinX", Qt::Key_Return);
    EXPECT_TRUE(Focused("txtinY"));
    Keys("txtinY", "0");
    Key("txtinY", Qt::Key_Return);
    EXPECT_EQ(Shown(), Lines{"1.000000    0.000000"});
    EXPECT_TRUE(FocusedAndSelected("txtinX"));
    // Return elsewhere enters nothing.
    Type("txt(1)", "Title");
    Key("txt(1)", Qt::Key_Return);
    EXPECT_EQ(Shown().size(), 1U);
}

TEST_F(FrmCoordTest, ALineIsInsertedBeforeEachSelectedOne) {
    OpenLoaded();
    Select({0, 2, 3});
    platform.texts_expected.push_back("new");
    Click("cmdajouter");
    EXPECT_EQ(Shown(), (Lines{"new", "a", "b", "new", "c", "new", "d"}));
    EXPECT_TRUE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, AnEmptyAnswerOrNoSelectionInsertsNothing) {
    OpenLoaded();
    Select({1});
    platform.texts_expected = {std::nullopt, ""};
    Click("cmdajouter");
    Click("cmdajouter");
    EXPECT_FALSE(AsksBeforeClosing());
    Select({});
    platform.texts_expected = {"new"};
    Click("cmdajouter");
    EXPECT_EQ(Shown(), (Lines{"a", "b", "c", "d"}));
    EXPECT_TRUE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, ADoubleClickChangesALine) {
    OpenLoaded();
    platform.texts_expected = {"better"};
    DoubleClickRow(1);
    EXPECT_EQ(Shown(), (Lines{"a", "better", "c", "d"}));
    EXPECT_TRUE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, ARefusedChangeLeavesAllAsItWas) {
    OpenLoaded();
    platform.texts_expected = {std::nullopt, "", "nowhere"};
    DoubleClickRow(1);
    DoubleClickRow(1);
    const QPoint below(5, List().viewport()->height() - 2);
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, below);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, below);
    EXPECT_TRUE(platform.texts_expected.empty());
    EXPECT_EQ(Shown(), (Lines{"a", "b", "c", "d"}));
    EXPECT_FALSE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, KeysChangeAndDeleteLines) {
    OpenLoaded();
    Select({1});
    platform.texts_expected = {"better"};
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(Shown()[1], "better");
    QTest::keyClick(&List(), Qt::Key_Delete);
    EXPECT_EQ(Shown(), (Lines{"a", "c", "d"}));
}

TEST_F(FrmCoordTest, SelectedLinesAreDeleted) {
    OpenLoaded();
    Select({0, 3, 2});
    Click("cmdeffaceligne");
    EXPECT_EQ(Shown(), Lines{"b"});
    EXPECT_TRUE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, AllIsDeletedOnYesOnly) {
    OpenLoaded();
    Type("txt(2)", "1000");
    Type("txtinX", "1");
    ExpectQuestion("Clear all lines and all boxes?", BoxAnswer::no);
    Click("cmdeffacetout");
    EXPECT_EQ(Shown().size(), 4U);
    ExpectQuestion("Clear all lines and all boxes?", BoxAnswer::yes);
    Click("cmdeffacetout");
    EXPECT_TRUE(Shown().empty());
    for (const char *name : {"txtinX", "txtinY", "txt(0)", "txt(1)"}) {
        EXPECT_EQ(Text(name), "") << name;
    }
    EXPECT_EQ(Text("txt(2)"), "1");
    EXPECT_FALSE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, SavesTitleAndLinesAsTheyStand) {
    programme.settings.repertoires.RepProfil = folder.Path();
    OpenLoaded();
    Enter("1", "-0.5");
    Type("txt(0)", "mine");
    Type("txt(1)", "Flugel 7");
    platform.files_expected.push_back(folder.Path("other.dat"));
    Click("cmdsave");
    EXPECT_EQ(folder.Bytes("other.dat"),
              "Flugel 7\r\na\r\nb\r\nc\r\nd\r\n1.000000   -0.500000\r\n");
    EXPECT_EQ(Text("txt(0)"), "other");
    const FileQuestion &question = platform.file_questions.back();
    EXPECT_EQ(question.title, "Save the coordinates");
    EXPECT_EQ(question.name, "mine.dat");
    EXPECT_EQ(question.folder, folder.Path());
    EXPECT_EQ(question.filter_text, "Files (*.dat)");
    EXPECT_EQ(question.default_extension, "dat");
    EXPECT_FALSE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, ANameAndATitleAreNeededToSave) {
    Open();
    Enter("1", "0");
    ExpectBox("Please enter a file name.", BoxIcon::information);
    Click("cmdsave");
    Type("txt(0)", "mine");
    ExpectBox("Please enter a title.", BoxIcon::information);
    Click("cmdsave");
    Type("txt(1)", "T");
    platform.files_expected.emplace_back(); // cancelled
    Click("cmdsave");
    EXPECT_TRUE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, AFileThatCantBeWrittenIsToldAndNothingIsLost) {
    OpenLoaded();
    Enter("1", "0");
    platform.files_expected.push_back(folder.Path("no/such.dat"));
    platform.Expect(BoxAnswer::ok);
    Click("cmdsave");
    EXPECT_EQ(platform.boxes.back().title, " Coord/Save");
    EXPECT_EQ(Text("txt(0)"), "foil");
    EXPECT_TRUE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, OpensAnyFileWithItsFirstLineAsTitle) {
    programme.settings.repertoires.RepProfil = folder.Path();
    Open();
    Type("txt(2)", "1000");
    Type("txtinX", "5");
    Load(folder.File("points.cor", "1.0 0.0\r\n0.5 0.1\r\n\r\n1 0"));
    EXPECT_EQ(Text("txt(1)"), "1.0 0.0");
    EXPECT_EQ(Shown(), (Lines{"0.5 0.1", "", "1 0"}));
    EXPECT_EQ(Text("txt(0)"), "points");
    EXPECT_EQ(Text("txt(2)"), "");
    EXPECT_EQ(Text("txtinX"), "");
    const FileQuestion &question = platform.file_questions.back();
    EXPECT_EQ(question.title, "Open coordinates");
    EXPECT_EQ(question.folder, folder.Path());
    EXPECT_EQ(question.filter_text, "Files (*.dat)");
    EXPECT_EQ(question.more_filters, std::vector<std::string>{"Files (*.cor)"});
    EXPECT_FALSE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, UnsavedLinesAreAskedForBeforeAnotherFile) {
    Open();
    Enter("1", "0");
    ExpectQuestion("The lines are not saved. Open another file all the same?", BoxAnswer::no);
    Click("cmdouvrir");
    EXPECT_TRUE(platform.file_questions.empty());
    ExpectQuestion("The lines are not saved. Open another file all the same?", BoxAnswer::yes);
    platform.files_expected.emplace_back(); // cancelled
    Click("cmdouvrir");
    EXPECT_EQ(Shown().size(), 1U);
}

TEST_F(FrmCoordTest, BadFilesAreToldAndLeaveTheList) {
    OpenLoaded();
    std::string many = "T\n";
    for (int i = 0; i < 32768; ++i) {
        many += "1 0\n";
    }
    for (const std::string &path :
         {folder.Path("missing.dat"), folder.Path(), folder.File("empty.dat", ""),
          folder.File("binary.dat", std::string("\0\1\2", 3)), folder.File("many.dat", many)}) {
        platform.Expect(BoxAnswer::ok);
        Load(path);
        EXPECT_EQ(platform.boxes.back().title, " Coord/Open") << path;
        EXPECT_EQ(Shown(), (Lines{"a", "b", "c", "d"})) << path;
        EXPECT_EQ(Text("txt(0)"), "foil");
        EXPECT_EQ(Text("txt(1)"), "T");
    }
}

TEST_F(FrmCoordTest, TheListCountsInSixteenBits) {
    std::string bytes = "T\n";
    for (int i = 0; i < 32767; ++i) {
        bytes += "1 0\n";
    }
    OpenLoaded(bytes);
    EXPECT_EQ(List().count(), 32767);
    platform.Expect(BoxAnswer::ok);
    Enter("1", "0");
    EXPECT_EQ(platform.boxes.back().title, " Coord/Enter");
    EXPECT_EQ(List().count(), 32767);
    EXPECT_FALSE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, EveryWayOutAsksForUnsavedLines) {
    Open();
    Enter("1", "0");
    const char *const question = "The lines are not saved. Close all the same?";
    const std::vector<std::function<void()>> ways = {
        [this] { Close(); }, [this] { Click("cmdfermer"); }, [this] { Key(Qt::Key_Escape); }};
    for (const auto &way : ways) {
        ExpectQuestion(question, BoxAnswer::no);
        way();
        EXPECT_TRUE(IsOpen());
        ExpectQuestion(question, BoxAnswer::yes);
        way();
        EXPECT_FALSE(IsOpen());
        window->show();
    }
}

TEST_F(FrmCoordTest, UnsavedLinesCanBeSavedBeforeTheyGo) {
    Open();
    Enter("1", "0");
    // Without a name there is nothing to save to, and the window stays.
    ExpectQuestion("The lines are not saved. Close all the same?", BoxAnswer::save);
    platform.Expect(BoxAnswer::ok, {.text = "Please enter a file name."});
    Close();
    EXPECT_TRUE(IsOpen());
    Type("txt(0)", "mine");
    Type("txt(1)", "Title");
    ExpectQuestion("The lines are not saved. Close all the same?", BoxAnswer::save);
    platform.files_expected.push_back(folder.Path("mine.dat"));
    Close();
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(std::filesystem::exists(folder.Path("mine.dat")));
}

// The count is that of the last entry: whoever has deleted all lines by hand is still asked.
TEST_F(FrmCoordTest, LinesDeletedOneByOneAreStillAskedFor) {
    Open();
    Enter("1", "0");
    Select({0});
    Click("cmdeffaceligne");
    EXPECT_TRUE(Shown().empty());
    EXPECT_TRUE(AsksBeforeClosing());
}

TEST_F(FrmCoordTest, HelpOpensItsTopic) {
    Open();
    Click("cmdaide");
    EXPECT_EQ(platform.help_contexts, std::vector<int>{80});
}

TEST_F(FrmCoordTest, SpeaksFrench) {
    Language("French");
    Open();
    EXPECT_EQ(Title(), "Créer de nouvelles coordonnées");
    EXPECT_EQ(Word("cmdeffacetout"), "Tout effacer");
}

TEST_F(FrmCoordTest, NothingIsCut) {
    ExpectNothingCutAnywhere();
}

} // namespace
} // namespace loftwing
