#include "utilities/frmnervure.h"

#include "support/test_printer.h"
#include "windows/beside_fixture.h"

namespace loftwing {
namespace {

class FrmNervureTest : public BesideTest<frmnervure> {
  protected:
    void Fill(const std::vector<const char *> &values) const {
        for (std::size_t i = 0; i < values.size(); ++i) {
            Type({"txtnerv", static_cast<int>(i)}, values[i]);
        }
    }
    PicNervures &Paper() const { return Find<PicNervures>("PicNervures"); }
    QScrollBar &Bar() const { return Find<QScrollBar>("Vbar"); }
    /// The texts on the paper that begin at `x`, from top to bottom.
    std::vector<std::string> Column(double x) const {
        std::vector<std::string> texts;
        if (const Recording *drawing = Paper().Dessin()) {
            for (const Operation &operation : drawing->Operations()) {
                const auto &text = std::get<DrawnText>(operation);
                if (text.x == x) {
                    texts.push_back(text.text);
                }
            }
        }
        return texts;
    }
    double Top() const { return std::get<DrawnText>(Paper().Dessin()->Operations().front()).y; }
    bool CanPrint() const { return Enabled("cmdprintnerv"); }
    bool SparHeading() const { return Shown("Label12"); }
    void ExpectRefused(const std::string &text, const char *field) {
        ExpectBox(text, BoxIcon::warning);
        Click("cmdcalcul");
        EXPECT_TRUE(FocusedAndSelected(field)) << field;
        EXPECT_FALSE(CanPrint());
        EXPECT_EQ(Paper().Dessin(), nullptr);
    }
};

using Texts = std::vector<std::string>;

TEST_F(FrmNervureTest, OpensEmptyWithItsWords) {
    Open();
    EXPECT_EQ(Title(), "Compute set of ribs  mm");
    const std::vector<std::pair<const char *, const char *>> words = {
        {"Label1", "Number of intermediate ribs"},
        {"Label2", "Major chord"},
        {"Label3", "Minor chord"},
        {"Label4(0)", "Location spar"},
        {"Label4(1)", "Location spar"},
        {"Label5", "Rib spacing"},
        {"Label6", "Panel length"},
        {"Label7", "Rib thickness"},
        {"Label10", "No."},
        {"Label11", "Chord"},
        {"Label12", "Location spar"},
        {"Lblecart", ""}};
    for (const auto &[name, text] : words) {
        EXPECT_EQ(Label(name), text) << name;
    }
    EXPECT_EQ(Word("cmdcalcul"), "Compute");
    EXPECT_EQ(Word("cmdprintnerv"), "Print");
    EXPECT_EQ(Word("cmdfermer"), "Close");
    EXPECT_EQ(Word("cmdaide"), "Help");
    EXPECT_FALSE(CanPrint());
    EXPECT_EQ(Paper().Dessin(), nullptr);
    EXPECT_EQ(Bar().minimum(), 0);
    EXPECT_EQ(Bar().maximum(), 20);
    EXPECT_TRUE(Focused("txtnerv(0)"));
    ExpectTabs(
        {"txtnerv(1)", "txtnerv(2)", "txtnerv(3)", "txtnerv(4)", "txtnerv(5)", "txtnerv(6)"});
}

TEST_F(FrmNervureTest, ListsChordsAndSparPlaces) {
    Open();
    Fill({"200", "150", "1.9", "500", "60", "45", "2"});
    Click("cmdcalcul");
    EXPECT_EQ(Text("txtnerv(2)"), "1");
    EXPECT_EQ(Label("Lblecart"), " 247."); // (500 - 3 * 2) / 2
    EXPECT_EQ(Column(283.5), (Texts{" 1", " 2", " 3"}));
    EXPECT_EQ(Column(1134), (Texts{"200 ", " 175.", "150 "}));
    EXPECT_EQ(Column(2551.5), (Texts{"60 ", " 52.5", "45 "}));
    EXPECT_TRUE(SparHeading());
    EXPECT_TRUE(CanPrint());
}

TEST_F(FrmNervureTest, TheSparHeadingGoesAndComes) {
    Open();
    Fill({"200", "150", "1"});
    Key("txtnerv(2)", Qt::Key_Return);
    EXPECT_FALSE(SparHeading());
    EXPECT_TRUE(Column(2551.5).empty());
    EXPECT_EQ(Label("Lblecart"), "0");
    Type("txtnerv(5)", "30");
    Click("cmdcalcul");
    EXPECT_TRUE(SparHeading());
    EXPECT_EQ(Column(2551.5), (Texts{" ", " 15.", "30 "}));
}

TEST_F(FrmNervureTest, ARefusalClearsTheListAndStopsPrinting) {
    Open();
    Fill({"200", "150", "3"});
    Click("cmdcalcul");
    EXPECT_TRUE(CanPrint());
    EXPECT_NE(Label("Lblecart"), "");
    Type("txtnerv(0)", "");
    ExpectRefused("The major chord must be more than 0", "txtnerv(0)");
    EXPECT_EQ(Label("Lblecart"), "");
    Type("txtnerv(0)", "100");
    ExpectRefused("The major chord is smaller than the minor chord.", "txtnerv(0)");
    Type("txtnerv(1)", "0");
    ExpectRefused("The minor chord must be more than 0", "txtnerv(1)");
    Type("txtnerv(1)", "90");
    Type("txtnerv(2)", "");
    ExpectRefused("Please enter the number of intermediate ribs. It may be 0.", "txtnerv(2)");
    EXPECT_TRUE(SparHeading()); // it was shown again at the start
}

TEST_F(FrmNervureTest, TooManyRibsAreToldAndTheWindowStays) {
    Open();
    Fill({"200", "150", "32768"});
    platform.Expect(BoxAnswer::ok);
    Click("cmdcalcul");
    EXPECT_EQ(platform.boxes.front().title, " cmdcalcul");
    EXPECT_TRUE(IsOpen());
    EXPECT_FALSE(CanPrint());
}

TEST_F(FrmNervureTest, TheLongestListIsThereAtOnce) {
    Open();
    Fill({"200", "150", "32767"});
    Click("cmdcalcul");
    EXPECT_LT(Column(283.5).size(), 100U);
    Bar().setValue(20);
    EXPECT_LT(Column(283.5).size(), 100U);
    EXPECT_EQ(Column(283.5).front(), " 32311");
}

TEST_F(FrmNervureTest, TheBarAndTheWheelScrollTheList) {
    Open();
    Fill({"200", "150", "10"});
    Click("cmdcalcul");
    EXPECT_NEAR(Top(), 2 * 56.7, 1e-9);
    Bar().setValue(1);
    EXPECT_NEAR(Top(), (2 - 10 / 5.0) * 56.7, 1e-9);
    QWheelEvent down(QPointF(5, 5), Paper().mapToGlobal(QPointF(5, 5)), {}, {0, -240}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Paper(), &down);
    EXPECT_EQ(Bar().value(), 3);
    EXPECT_NEAR(Top(), (2 - 3 * 10 / 5.0) * 56.7, 1e-9);
}

TEST_F(FrmNervureTest, ANewListStartsAtItsFirstRib) {
    Open();
    Fill({"200", "150", "120"});
    Click("cmdcalcul");
    Bar().setValue(20);
    Fill({"200", "150", "20"});
    Click("cmdcalcul");
    EXPECT_EQ(Bar().value(), 0);
    EXPECT_NEAR(Top(), 2 * 56.7, 1e-9);
}

TEST_F(FrmNervureTest, ALargerWindowShowsMoreOfALongList) {
    Open();
    Fill({"200", "150", "500"});
    Click("cmdcalcul");
    const std::size_t before = Column(283.5).size();
    window->resize(window->width(), window->height() + 400);
    QApplication::processEvents();
    EXPECT_GT(Column(283.5).size(), before + 10);
}

TEST_F(FrmNervureTest, PrintsUnderTheNameThatIsGiven) {
    Open();
    Fill({"200", "150", "3"});
    Click("cmdcalcul");
    Bar().setValue(2);
    const Texts shown = Column(1134);
    platform.make_printer = [](const PrintQuestion &) { return std::make_unique<TestPrinter>(); };
    platform.texts_expected.push_back("Left wing");
    Click("cmdprintnerv");
    ASSERT_EQ(platform.print_questions.size(), 1U);
    EXPECT_EQ(platform.print_questions.front().document, "Left wing");
    EXPECT_EQ(Column(1134), shown); // the list on the screen stays where it was
}

TEST_F(FrmNervureTest, FieldsSwallowWhatIsNoNumber) {
    Open();
    Type("txtnerv(3)", "a-1/2.5%");
    EXPECT_EQ(Text("txtnerv(3)"), "12.5");
    Inches();
    Open();
    EXPECT_EQ(Title(), "Compute set of ribs  in");
    Type("txtnerv(3)", "a-1.1/2%");
    EXPECT_EQ(Text("txtnerv(3)"), "1.1/2");
}

TEST_F(FrmNervureTest, CloseAndEscapeClose) {
    Open();
    Click("cmdfermer");
    EXPECT_FALSE(IsOpen());
    Open();
    Key(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
}

TEST_F(FrmNervureTest, HelpOpensItsTopic) {
    Open();
    Click("cmdaide");
    EXPECT_EQ(platform.help_contexts, std::vector<int>{60});
}

TEST_F(FrmNervureTest, SpeaksFrench) {
    Language("French");
    Open();
    EXPECT_EQ(Title(), "Calcul d’un jeu de nervures  mm");
    EXPECT_EQ(Label("Label2"), "Corde maxi");
    EXPECT_EQ(Word("cmdcalcul"), "Calculer");
}

TEST_F(FrmNervureTest, NothingIsCut) {
    ExpectNothingCutAnywhere();
}

TEST_F(FrmNervureTest, ThePaperIsWhiteInADarkTheme) {
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Window, QColor(30, 30, 30));
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    QApplication::setPalette(dark);
    Open();
    const QImage seen = Paper().grab().toImage();
    QApplication::setPalette(before);
    EXPECT_EQ(seen.pixelColor(seen.width() / 2, seen.height() / 2), QColor(Qt::white));
}

} // namespace
} // namespace loftwing
