/// The items of a DXF file: a group code and its value, a line each.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace loftwing {

/// Appends items to a text. Lines end in CR LF; reals have a point whatever the locale.
class DxfText {
  public:
    explicit DxfText(std::string &out) : out_(out) {}

    void Texte(int code, std::string_view text);
    void Entier(int code, int value);
    /// At least one digit on either side of the point, at most six behind it.
    void Reel(int code, double value);
    /// The description and the dashes of a line type; gaps are negative. Lengths are divided by
    /// `diviseur`.
    void Trait(std::string_view description, const std::vector<double> &dashes, double diviseur);
    /// Two coordinates: groups `code` and `code` + 10.
    void Point(int code, double x, double y);

  private:
    std::string &out_;
};

} // namespace loftwing
