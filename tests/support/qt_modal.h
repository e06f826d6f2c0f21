/// Users of modal dialogs: functions that act while such a dialog is open.
#pragma once

#include "support/qt_seen.h"

#include <QDialog>

#include <functional>
#include <vector>

namespace loftwing {

/// How a dialog was left.
enum class Left { accepted, rejected, open };

using User = std::function<void(Seen &)>;

/// Shows the dialog as a command does, lets `user` act in it, and tells how it was left. A dialog
/// that its user left open is closed behind its back.
Left UseModal(QDialog &dialog, const User &user);

/// Lets `user` act in the modal dialog that comes up next, which is cancelled if it is still open
/// then. A failure when none comes. Dialogs whose users are still at work are not meant.
void InNextDialog(const User &user);

/// The same for dialogs that come up one after the other, or one out of the other.
void InNextDialogs(const std::vector<User> &users);

/// Runs a command and lets `user` act in the modal dialog that it may bring up; says whether one
/// came.
bool BringsDialog(const std::function<void()> &command, const User &user);

/// Lets the program go on until that is so; says whether it came to be in good time.
[[nodiscard]] bool Eventually(const std::function<bool()> &so);

} // namespace loftwing
