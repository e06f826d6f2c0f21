#include "support/qt_modal.h"

#include "platform/qt_form.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace loftwing {

namespace {

/// Longer than anything takes that a test waits for, even under a sanitizer on a busy machine.
constexpr int kGoodTime = 20'000;

QDialog *OpenDialog() {
    return qobject_cast<QDialog *>(QApplication::activeModalWidget());
}

/// The dialogs whose users are at work, one out of the other.
std::vector<const QDialog *> &AtWork() {
    static std::vector<const QDialog *> dialogs;
    return dialogs;
}

bool HasUserAtWork(const QDialog &dialog) {
    return std::find(AtWork().begin(), AtWork().end(), &dialog) != AtWork().end();
}

void Activate(QDialog &dialog) {
    dialog.activateWindow();
    EXPECT_TRUE(Eventually([&] { return dialog.isActiveWindow(); })) << S(dialog.objectName());
}

void Act(QDialog &dialog, const User &user) {
    AtWork().push_back(&dialog);
    Activate(dialog);
    Seen seen(dialog);
    // An exception must not pass through the toolkit's event loop.
    try {
        user(seen);
    } catch (const std::exception &exception) {
        ADD_FAILURE() << exception.what();
    } catch (...) {
        ADD_FAILURE() << "the user of " << seen.Name() << " threw something";
    }
    AtWork().pop_back();
}

void CancelIfOpen(QDialog &dialog) {
    if (dialog.isVisible()) {
        dialog.reject();
    }
}

/// Waits for a dialog and lets the first of the users act in it; then for one for each of the
/// others.
void Await(std::vector<User> users, int delay) {
    QTimer::singleShot(delay, [users = std::move(users)]() mutable {
        QDialog *dialog = OpenDialog();
        if (dialog == nullptr) {
            ADD_FAILURE() << "no dialog came up";
            return;
        }
        if (HasUserAtWork(*dialog)) { // who waits for something
            Await(std::move(users), 1);
            return;
        }
        const User user = users.front();
        users.erase(users.begin());
        if (!users.empty()) {
            Await(std::move(users), 0);
        }
        Act(*dialog, user);
        CancelIfOpen(*dialog);
    });
}

} // namespace

Left UseModal(QDialog &dialog, const User &user) {
    Left left = Left::open;
    const QObject watch; // ends with this use, which the dialog may outlive
    QObject::connect(&dialog, &QDialog::accepted, &watch, [&] { left = Left::accepted; });
    QObject::connect(&dialog, &QDialog::rejected, &watch, [&] { left = Left::rejected; });
    QTimer::singleShot(0, &watch, [&] {
        Act(dialog, user);
        const bool still_open = dialog.isVisible();
        EXPECT_EQ(still_open, left == Left::open);
        if (still_open) {
            dialog.done(2);
            left = Left::open;
        }
    });
    ShowModal(dialog);
    return left;
}

void InNextDialog(const User &user) {
    InNextDialogs({user});
}

void InNextDialogs(const std::vector<User> &users) {
    Await(users, 0);
}

bool BringsDialog(const std::function<void()> &command, const User &user) {
    bool came = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (QDialog *dialog = OpenDialog(); dialog != nullptr && !HasUserAtWork(*dialog)) {
            look.stop();
            came = true;
            Act(*dialog, user);
            CancelIfOpen(*dialog);
        }
    });
    look.start(0);
    command();
    return came;
}

bool Eventually(const std::function<bool()> &so) {
    return QTest::qWaitFor(so, kGoodTime);
}

} // namespace loftwing
