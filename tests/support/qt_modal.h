/// Acting inside modal dialogs.
#pragma once

#include <QDialog>

#include <functional>

namespace loftwing {

/// Runs `act` on the modal dialog that the next event loop brings up.
void InNextDialog(const std::function<void(QDialog &)> &act);

} // namespace loftwing
