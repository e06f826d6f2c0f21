/// The toolkit's paths, which have "/" on every system, and the core's, which the user sees and
/// which are written as the system writes them.
#pragma once

#include "platform/qt_text.h"

#include <QDir>

namespace loftwing {

/// A path of the toolkit as UTF-8, with the system's separators.
inline std::string Path(const QString &path) {
    return S(QDir::toNativeSeparators(path));
}

} // namespace loftwing
