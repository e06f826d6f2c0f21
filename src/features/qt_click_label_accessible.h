/// What screen readers are told of the numbers that can be clicked.
#pragma once

namespace loftwing {

/// Makes them buttons to a screen reader, which can press them and say which one is chosen. Asking
/// once is enough, and more does no harm.
void TellScreenReaders();

} // namespace loftwing
