#include "platform/qt_title.h"

#include "base/text_encoding.h"
#include "platform/qt_text.h"

namespace loftwing {

QString TitreDeFenetre(std::string_view text) {
    return Q(OnOneLine(ToUtf8(text))).replace("[*]", "[*][*]");
}

} // namespace loftwing
