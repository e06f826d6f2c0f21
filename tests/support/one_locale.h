/// How many of what a test makes by chance it takes: many in one run of a test program, a few in
/// the others, where only what a locale could change counts.
#pragma once

#include <locale>

namespace loftwing {

#ifdef __SANITIZE_ADDRESS__
inline constexpr bool kSanitized = true; ///< everything takes several times as long
#else
inline constexpr bool kSanitized = false;
#endif

/// `many` under the locale with a decimal comma in which the large collection is read too, but a
/// few under the sanitizers, which look for other faults.
inline unsigned ManyInOneLocale(unsigned many) {
    constexpr unsigned kShare = 8;
    return !kSanitized && std::locale().name().starts_with("fr_FR") ? many
                                                                    : (many + kShare - 1) / kShare;
}

} // namespace loftwing
