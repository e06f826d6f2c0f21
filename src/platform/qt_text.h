/// The toolkit's texts and the core's.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace loftwing {

/// A UTF-8 text as the toolkit's.
inline QString Q(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A text of the toolkit as UTF-8.
inline std::string S(const QString &text) {
    return text.toStdString();
}

} // namespace loftwing
