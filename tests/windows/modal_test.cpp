// The users of modal dialogs: a mistake in a test must show.

#include "support/qt_modal.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

namespace loftwing {
namespace {

/// A dialog of one field and one button.
struct Small : QDialog {
    Small() {
        auto *rows = new QVBoxLayout(this);
        rows->addWidget(&field);
        rows->addWidget(&button);
        setObjectName("small");
        field.setObjectName("field");
        button.setObjectName("button(1)");
        connect(&button, &QPushButton::clicked, this, &QDialog::accept);
    }
    QLineEdit field;
    QPushButton button;
};

TEST(UserOfADialog, TellsHowItWasLeft) {
    Small small;
    EXPECT_EQ(UseModal(small, [](Seen &seen) { seen.Click({"button", 1}); }), Left::accepted);
    EXPECT_EQ(UseModal(small, [](Seen &seen) { seen.Key(Qt::Key_Escape); }), Left::rejected);
    EXPECT_EQ(UseModal(small, [](Seen &) {}), Left::open);
    EXPECT_FALSE(small.isVisible());
}

TEST(UserOfADialog, TypesOverWhatAFieldHolds) {
    Small small;
    UseModal(small, [](Seen &seen) {
        seen.Fill("field", "before");
        seen.Type("field", "12");
        EXPECT_EQ(seen.Text("field"), "12");
        seen.Keys("field", "3");
        EXPECT_EQ(seen.Text("field"), "123");
        seen.Type("field", "");
        EXPECT_EQ(seen.Text("field"), "");
        EXPECT_EQ(seen.Focus(), "field");
    });
}

TEST(UserOfADialog, WhoMissesAControlFailsTheTestAndTheDialogCloses) {
    Small small;
    EXPECT_NONFATAL_FAILURE(UseModal(small, [](Seen &seen) { seen.Click("cmdok"); }),
                            "small has no such control: cmdok");
    EXPECT_NONFATAL_FAILURE(UseModal(small, [](Seen &seen) { seen.Box("button(1)"); }),
                            "small has no such control: button(1)");
    EXPECT_FALSE(small.isVisible());
}

TEST(UserOfADialog, FailsTheTestWhenNoDialogComes) {
    const auto wait = [] {
        InNextDialog([](Seen &) {});
        QApplication::processEvents();
    };
    EXPECT_NONFATAL_FAILURE(wait(), "no dialog came up");
}

TEST(UserOfADialog, MayWaitWhileTheNextOnesUserIsReady) {
    Small first;
    Small second;
    std::string order;
    bool ready = false;
    const QMetaObject::Connection later = QObject::connect(
        &first.field, &QLineEdit::textChanged, &first, [&ready] { ready = true; },
        Qt::QueuedConnection);
    InNextDialogs({[&](Seen &seen) {
                       seen.Fill("field", "1");
                       EXPECT_TRUE(Eventually([&] { return ready; }));
                       EXPECT_EQ(&seen.Window(), &first);
                       order += "1";
                   },
                   [&](Seen &seen) {
                       EXPECT_EQ(&seen.Window(), &second);
                       order += "2";
                   }});
    first.exec();
    second.exec();
    EXPECT_EQ(order, "12");
    QObject::disconnect(later);
}

TEST(UserOfADialog, WhoseCommandBringsNoneIsNotAsked) {
    Small small;
    bool asked = false;
    const User user = [&asked](Seen &) { asked = true; };
    EXPECT_FALSE(BringsDialog([] { QApplication::processEvents(); }, user));
    QApplication::processEvents();
    EXPECT_FALSE(asked);
    EXPECT_TRUE(BringsDialog([&small] { small.exec(); }, user));
    EXPECT_TRUE(asked);
}

} // namespace
} // namespace loftwing
