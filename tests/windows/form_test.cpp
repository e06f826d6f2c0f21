#include "core/units.h"
#include "platform/qt_form.h"
#include "support/qt_modal.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <array>

namespace loftwing {

namespace {

/// A dialog of two fields and two buttons, shown and active.
struct Form : QDialog {
    Form() {
        auto *rows = new QVBoxLayout(this);
        for (QWidget *widget : {static_cast<QWidget *>(&first), static_cast<QWidget *>(&second),
                                static_cast<QWidget *>(&cmdok), static_cast<QWidget *>(&cmdaide)}) {
            rows->addWidget(widget);
        }
        first.setText("12.5");
        second.setText("200");
        cmdok.setDefault(true);
        connect(&cmdok, &QPushButton::clicked, this, &QDialog::accept);
    }
    void Open() {
        show();
        QApplication::setActiveWindow(this);
        cmdok.setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(this));
    }

    NumericField first{kTouchesPositif, nullptr};
    NumericField second{kTouchesPositif, nullptr};
    QPushButton cmdok;
    QPushButton cmdaide;
};

std::string Typed(NumericField &field, const QString &keys) {
    field.setFocus();
    QTest::keyClicks(&field, keys);
    return S(field.text());
}

} // namespace

TEST(NumericField, SwallowsWhatItsKeySetLacks) {
    Form form;
    form.Open();
    EXPECT_EQ(Typed(form.first, "1a2b3./-% 4Q.5"), "123.4.5");
    QTest::sendKeyEvent(QTest::Press, &form.first, Qt::Key_unknown, QString("é"), Qt::NoModifier);
    EXPECT_EQ(form.first.text(), "123.4.5");
    EXPECT_TRUE(form.isVisible());
}

TEST(NumericField, TakesAnotherKeySetWithTheUnit) {
    Form form;
    form.Open();
    form.first.SetKeys(kTouchesFraction);
    EXPECT_EQ(Typed(form.first, "1.3/8%"), "1.3/8");
    form.first.SetKeys(kTouchesPourcent);
    EXPECT_EQ(form.first.text(), "1.3/8") << "what it holds stays";
    QTest::keyClick(&form.first, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Typed(form.first, "3/3%"), "33%");
    form.first.SetKeys({});
    QTest::keyClick(&form.first, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Typed(form.first, "x/y"), "x/y");
}

TEST(NumericField, LetsEditingKeysPass) {
    Form form;
    form.Open();
    EXPECT_EQ(Typed(form.first, "1234"), "1234");
    QTest::keyClick(&form.first, Qt::Key_Backspace);
    EXPECT_EQ(form.first.text(), "123");
    QTest::keyClick(&form.first, Qt::Key_Home);
    QTest::keyClick(&form.first, Qt::Key_Delete);
    EXPECT_EQ(form.first.text(), "23");
    QTest::keyClick(&form.first, Qt::Key_Right);
    QTest::keyClick(&form.first, Qt::Key_9);
    EXPECT_EQ(form.first.text(), "293");
    QTest::keyClick(&form.first, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.first.text(), "23") << "undo";
    QTest::keyClick(&form.first, Qt::Key_Tab);
    EXPECT_TRUE(form.second.hasFocus());
}

TEST(NumericField, ReturnAndEscapeReachTheDialog) {
    Form form;
    form.Open();
    form.first.setFocus();
    QTest::keyClick(&form.first, Qt::Key_Return);
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_FALSE(form.isVisible());
    form.Open();
    form.first.setFocus();
    QTest::keyClick(&form.first, Qt::Key_Escape);
    EXPECT_EQ(form.result(), QDialog::Rejected);
    EXPECT_FALSE(form.isVisible());
}

TEST(NumericField, CopiesAndPastesWhatItAdmits) {
    Form form;
    form.Open();
    form.first.setFocus();
    QTest::keyClick(&form.first, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "12.5");
    QApplication::clipboard()->setText(" 1 234,5 mm");
    form.second.setFocus();
    QTest::keyClick(&form.second, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.second.text(), "1234.5");
}

TEST(NumericField, TheCommaTypesAPoint) {
    Form form;
    form.Open();
    EXPECT_EQ(Typed(form.first, "8,25"), "8.25");
    form.second.SetKeys(kTouchesSigne);
    EXPECT_EQ(Typed(form.second, "-,5"), "-.5");
    QTest::keyClick(&form.second, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(form.second.text(), "-.5") << "undone as typed characters are";
    form.second.SetKeys(kTouchesEntier);
    form.second.clear();
    EXPECT_EQ(Typed(form.second, "8,25"), "825") << "a count has no point";
    form.second.SetKeys({});
    form.second.clear();
    EXPECT_EQ(Typed(form.second, "a, b"), "a, b") << "a text keeps its commas";
}

TEST(NumericField, ABlankTypesThePointBeforeAFractionOfAnInch) {
    Form form;
    form.Open();
    form.first.SetKeys(kTouchesFraction);
    EXPECT_EQ(Typed(form.first, "8 1/2"), "8.1/2");
    EXPECT_EQ(Typed(form.first, " 3"), "8.1/23") << "one point is enough";
    form.first.selectAll();
    EXPECT_EQ(Typed(form.first, " 3/8"), "3/8") << "there is no whole to set off";
    form.first.SetKeys(kTouchesFractionSigne);
    form.first.selectAll();
    EXPECT_EQ(Typed(form.first, "-2  3/4"), "-2.3/4");
    form.first.setText("8/2");
    form.first.setCursorPosition(1);
    EXPECT_EQ(Typed(form.first, " "), "8/2") << "a point in front of the stroke is no length";
    EXPECT_EQ(Typed(form.second, "8 1"), "81") << "millimetres have no fractions";
}

struct Copied {
    const char *text;
    const char *in_mm;
    const char *in_inches;
};

TEST(NumericField, PastesNumbersAsPeopleWriteThem) {
    constexpr Copied kCopied[] = {
        {"8,25", "8.25", "8.25"},
        {"8.25", "8.25", "8.25"},
        {"8 1/2", "812", "8.1/2"},
        {" 8  1 / 2 in\n", "812", "8.1/2"},
        {"8\u00a01/2", "812", "8.1/2"},
        {"12 345", "12345", "12345"},
        {"1.234,5", "1234.5", "1234.5"},
        {"1,234.5", "1234.5", "1234.5"},
        {"1,234,567", "1234567", "1234567"},
        {"3/8", "38", "3/8"},
    };
    Form form;
    form.Open();
    form.second.SetKeys(kTouchesFraction);
    for (const Copied &copied : kCopied) {
        QApplication::clipboard()->setText(QString::fromUtf8(copied.text));
        for (NumericField *field : {&form.first, &form.second}) {
            SelectField(*field);
            QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
        }
        EXPECT_EQ(S(form.first.text()), copied.in_mm) << copied.text;
        EXPECT_EQ(S(form.second.text()), copied.in_inches) << copied.text;
    }
}

TEST(NumericField, PastesAFractionBehindTheWholeThatIsThere) {
    Form form;
    form.Open();
    form.first.SetKeys(kTouchesFraction);
    form.first.setText("8");
    form.first.setFocus();
    form.first.end(false);
    QApplication::clipboard()->setText(" 1/2");
    QTest::keyClick(&form.first, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.first.text(), "8.1/2");
}

TEST(NumericField, TheMenuAndADropBringNumbersInTheSameWay) {
    Form form;
    form.Open();
    form.first.setFocus();
    QApplication::clipboard()->setText("8,25 mm");
    QTimer::singleShot(0, &form, [] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction *entry : menu->actions()) {
            if (entry->text().startsWith("&Paste")) {
                entry->trigger();
            }
        }
        menu->close();
    });
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, {5, 5},
                            form.first.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&form.first, &asked);
    EXPECT_EQ(form.first.text(), "8.25");

    QMimeData data;
    data.setText("9,75\n");
    form.second.clear();
    QDragEnterEvent enter({3, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&form.second, &enter); // without one no drop is passed on
    QDropEvent drop(QPointF(3, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&form.second, &drop);
    EXPECT_EQ(form.second.text(), "9.75");
}

TEST(NumericField, AFieldThatOnlyShowsTakesNoPaste) {
    Form form;
    form.Open();
    form.first.setReadOnly(true);
    form.first.setFocus();
    QApplication::clipboard()->setText("7");
    QTest::keyClick(&form.first, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&form.first, Qt::Key_Comma);
    EXPECT_EQ(form.first.text(), "12.5");
}

TEST(NumericField, ItsTipTellsTheNotationOnceWhileItTakesFractions) {
    NumericField field(kTouchesFraction, nullptr);
    field.SetNotation("as 8.1/2");
    EXPECT_EQ(field.toolTip(), "as 8.1/2");
    SetTip(field, " Width ");
    SetTip(field, " Width");
    EXPECT_EQ(field.toolTip(), "Width\nas 8.1/2");
    EXPECT_EQ(field.accessibleDescription(), "Width\nas 8.1/2");
    field.SetKeys(kTouchesPositif);
    EXPECT_EQ(field.toolTip(), "Width");
    field.SetKeys(kTouchesFractionPourcent);
    EXPECT_EQ(field.toolTip(), "Width\nas 8.1/2");
    field.SetNotation({});
    EXPECT_EQ(field.toolTip(), "Width");
}

TEST(NumericField, FiltersWhatAnInputMethodBrings) {
    Form form;
    form.Open();
    form.first.setFocus();
    QInputMethodEvent event;
    event.setCommitString("7x5");
    QApplication::sendEvent(&form.first, &event);
    EXPECT_EQ(form.first.text(), "75");
    form.first.SetKeys(kTouchesFraction);
    form.first.clear();
    for (const char *brought : {"8", " ", "1/2"}) {
        event.setCommitString(brought);
        QApplication::sendEvent(&form.first, &event);
    }
    EXPECT_EQ(form.first.text(), "8.1/2");
    form.first.selectAll();
    event.setCommitString("9,5");
    QApplication::sendEvent(&form.first, &event);
    EXPECT_EQ(form.first.text(), "9.5");
}

TEST(NumericField, TakesAnyTextFromTheProgram) {
    NumericField field(kTouchesEntier, nullptr);
    field.setText(" 1 234.50");
    EXPECT_EQ(field.text(), " 1 234.50");
}

TEST(NumericField, SelectsAllWhenTheTabKeyComesToIt) {
    Form form;
    form.Open();
    form.first.setFocus();
    QTest::keyClick(&form.first, Qt::Key_Tab);
    EXPECT_EQ(form.second.selectedText(), "200");
    QTest::keyClick(&form.second, Qt::Key_7);
    EXPECT_EQ(form.second.text(), "7");
}

TEST(NumericField, SelectsAllWhenAClickComesToIt) {
    Form form;
    form.Open();
    QTest::mouseClick(&form.second, Qt::LeftButton, {}, QPoint(3, 5));
    EXPECT_TRUE(form.second.hasFocus());
    EXPECT_EQ(form.second.selectedText(), "200");
}

TEST(NumericField, ASecondClickPlacesTheCursor) {
    Form form;
    form.Open();
    QTest::mouseClick(&form.second, Qt::LeftButton, {}, QPoint(3, 5));
    QTest::mouseClick(&form.second, Qt::LeftButton, {}, QPoint(3, 5));
    EXPECT_FALSE(form.second.hasSelectedText());
    EXPECT_EQ(form.second.cursorPosition(), 0);
}

TEST(SelectField, GivesFocusAndSelectsAll) {
    Form form;
    form.Open();
    SelectField(form.second);
    EXPECT_TRUE(form.second.hasFocus());
    EXPECT_EQ(form.second.selectedText(), "200");
    // Also where the focus is already, as after a box about this very field.
    form.second.deselect();
    SelectField(form.second);
    EXPECT_EQ(form.second.selectedText(), "200");
}

TEST(ButtonWord, ComesFromTheLanguage) {
    const TempFolder folder;
    folder.File("Test.lng", "[TextButton]\r\n1=Bien\r\n2=Annuler\r\n3=Aide\r\n4=Appliquer\r\n"
                            "5=Fermer\r\n");
    LngIni language;
    language.Charge(folder.Path(), "Test");
    EXPECT_EQ(ButtonWord(language, SharedWord::ok), "Bien");
    EXPECT_EQ(ButtonWord(language, SharedWord::cancel), "Annuler");
    EXPECT_EQ(ButtonWord(language, SharedWord::help), "Aide");
    EXPECT_EQ(ButtonWord(language, SharedWord::apply), "Appliquer");
    EXPECT_EQ(ButtonWord(language, SharedWord::close), "Fermer");
    QPushButton button;
    SetButtonWord(button, language, SharedWord::close);
    EXPECT_EQ(button.text(), "Fermer");
}

TEST(SetTip, ShowsMarkupAsItStands) {
    QPushButton button;
    SetTip(button, " Change the chord ");
    EXPECT_EQ(button.toolTip(), "Change the chord");
    SetTip(button, "a <b>rib</b>");
    EXPECT_EQ(button.toolTip(), "<qt>a &lt;b&gt;rib&lt;/b&gt;</qt>");
    EXPECT_EQ(button.accessibleDescription(), "a <b>rib</b>");
}

TEST(ConnectHelp, ButtonAndF1OpenTheContext) {
    Form form;
    ScriptedPlatform platform;
    ConnectHelp(form, form.cmdaide, platform, 42);
    form.Open();
    QTest::mouseClick(&form.cmdaide, Qt::LeftButton);
    EXPECT_EQ(platform.help_contexts, std::vector<int>({42}));
    form.first.setFocus();
    QTest::keyClick(&form.first, Qt::Key_F1);
    EXPECT_EQ(platform.help_contexts, std::vector<int>({42, 42}));
    EXPECT_TRUE(form.isVisible());
}

TEST(NameControls, CountsFromZeroInBrackets) {
    std::array<QLineEdit, 2> Text1;
    NameControls(Text1, "Text1");
    EXPECT_EQ(Text1[0].objectName(), "Text1(0)");
    EXPECT_EQ(Text1[1].objectName(), "Text1(1)");
    QLineEdit one;
    std::array<QLineEdit *, 1> pointers = {&one};
    NameControls(pointers, "txt");
    EXPECT_EQ(one.objectName(), "txt(0)");
    NameControl(one, "infotxt");
    EXPECT_EQ(one.objectName(), "infotxt");
}

TEST(ShowModal, StandsInTheMiddleOfItsWindow) {
    QWidget window;
    window.setGeometry(100, 80, 500, 400);
    window.show();
    QDialog dialog(&window);
    dialog.setMinimumSize(200, 100);
    QPoint middle;
    InNextDialog([&middle](Seen &shown) {
        auto &itself = shown.As<QDialog>();
        EXPECT_TRUE(itself.isModal());
        EXPECT_FALSE(itself.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
        middle = itself.geometry().center();
        itself.accept();
    });
    EXPECT_EQ(ShowModal(dialog), QDialog::Accepted);
    EXPECT_NEAR(middle.x(), window.frameGeometry().center().x(), 1);
    EXPECT_NEAR(middle.y(), window.frameGeometry().center().y(), 1);
}

TEST(MakeNameDisplay, ANameTooLongForTheFieldShowsItsBeginning) {
    QLineEdit field;
    MakeNameDisplay(field, 10);
    field.setText("a name of quite some letters");
    EXPECT_EQ(field.cursorPosition(), 0);
    EXPECT_EQ(S(field.toolTip()), "a name of quite some letters");
    EXPECT_TRUE(field.isReadOnly());
    EXPECT_EQ(field.focusPolicy(), Qt::NoFocus);
}

TEST(ShowModal, StaysOnTheScreen) {
    QWidget window;
    const QRect space = window.screen()->availableGeometry();
    window.setGeometry(QRect(space.bottomRight() - QPoint(60, 60), QSize(300, 300)));
    window.show();
    QDialog dialog(&window);
    dialog.setMinimumSize(200, 100);
    InNextDialog([&space](Seen &shown) { EXPECT_TRUE(space.contains(shown.Window().geometry())); });
    EXPECT_EQ(ShowModal(dialog), QDialog::Rejected);
}

TEST(ShowModal, KeepsASizeThatWasChosen) {
    QWidget window;
    window.show();
    QDialog dialog(&window);
    dialog.resize(432, 321);
    InNextDialog([](Seen &shown) { EXPECT_EQ(shown.Window().size(), QSize(432, 321)); });
    ShowModal(dialog);
}

} // namespace loftwing
