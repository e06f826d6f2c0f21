#include "app/error_line.h"

#include "base/text_encoding.h"

#include <iostream>

namespace loftwing {

void TellOnError(std::ostream &err, const std::string &text) {
    err << "loftwing: " + OnOneLine(text) + '\n';
}

void TellOnError(const std::string &text) {
    TellOnError(std::cerr, text);
}

} // namespace loftwing
