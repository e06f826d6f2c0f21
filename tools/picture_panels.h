/// Pictures of the windows that make wing panels, their plans and wings.
#pragma once

#include "programme/programme.h"

#include <QWidget>

#include <functional>
#include <string>

namespace loftwing {

/// Takes the picture of a window under a name.
using TakePicture = std::function<void(QWidget &window, const std::string &name)>;

/// A panel from the rib of `main` to a shorter one with another airfoil, then the sample wing,
/// whose files are in `sample`.
void TakePanels(Programme &programme, QWidget &main, const std::string &sample,
                const TakePicture &take);

} // namespace loftwing
