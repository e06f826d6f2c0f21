/// Refusals of the file system, which the superuser doesn't meet.
#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

namespace loftwing {

/// As long as it lives the process is a user without privileges.
class OrdinaryUser {
  public:
    OrdinaryUser() : before_(geteuid()) {
        constexpr uid_t kNobody = 65534;
        if (before_ == 0) {
            EXPECT_EQ(seteuid(kNobody), 0);
        }
    }
    ~OrdinaryUser() { EXPECT_EQ(seteuid(before_), 0); }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

  private:
    uid_t before_;
};

} // namespace loftwing
