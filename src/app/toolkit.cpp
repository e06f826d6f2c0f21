#include "app/toolkit.h"

#include <QGuiApplication>

namespace loftwing {

Toolkit::Toolkit(bool needed) {
    if (!needed) {
        return;
    }
    // Files come out the same on a machine with a display and on one without.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "loftwing";
    static char *words[] = {name, nullptr};
    application_ = std::make_unique<QGuiApplication>(count, words);
}

Toolkit::~Toolkit() = default;

} // namespace loftwing
