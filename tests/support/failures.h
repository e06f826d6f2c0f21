/// Asking for a run-time failure in a test.
#pragma once

#include "base/failure.h"

#include <gtest/gtest.h>

namespace loftwing {

/// Number of the failure that `action` ends in; 0 when it ends well.
template <class Action>
int FailureOf(Action action) {
    try {
        action();
    } catch (const Failure &failure) {
        EXPECT_NE(failure.number, 0);
        return failure.number;
    }
    return 0;
}

} // namespace loftwing
