/// Numbers to text and back a second time, by texts alone and as the rules read, to compare
/// base/number_text with.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace loftwing::naive {

/// `value`, which is finite, with up to `significant` digits.
std::string NumberText(double value, int significant, bool zero_before_point);

/// `value`, which is finite, under a picture.
std::string Formatted(double value, int significant, std::string_view picture);

/// `value`, which is finite, with up to `decimals` digits behind the point.
std::string Fixed(double value, int decimals);

/// The number that `text` begins with; nothing where 64 bits don't hold it.
std::optional<double> LeadingNumber(std::string_view text);

} // namespace loftwing::naive
