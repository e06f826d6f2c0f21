/// One JSON object on one line.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace loftwing {

class JsonLine {
  public:
    void Add(std::string_view name, std::string_view text);
    void Add(std::string_view name, const std::string &text) { Add(name, std::string_view(text)); }
    void Add(std::string_view name, long number);
    /// Reals have 17 significant digits, so that they read back to the bit.
    void Add(std::string_view name, double number);
    void Add(std::string_view name, std::span<const double> numbers);
    void Add(std::string_view name, std::span<const std::string> texts);

    std::string Text() const { return "{" + body_ + "}"; }

  private:
    std::string body_;

    void Name(std::string_view name);
};

} // namespace loftwing
