/// The items of a DXF file: a group code and its value, a line each.
#pragma once

#include <initializer_list>
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
    /// Items as they stand in a file, in parts.
    void Items(std::initializer_list<std::string_view> parts);
    /// The description and the dashes of a line type; gaps are negative. Lengths are divided by
    /// `diviseur`.
    void Trait(std::string_view description, const std::vector<double> &dashes, double diviseur);
    /// Two coordinates: groups `code` and `code` + 10.
    void Point(int code, double x, double y);
    /// Two coordinates and a height of 0: groups 10, 20 and 30. For those that come a thousand
    /// times.
    void Sommet(double x, double y);

  private:
    std::string &out_;

    void Code(int code);
};

/// A real as DxfText writes it.
std::string ReelDxf(double value);

/// What `ecrit` writes into a DxfText: for items that come a thousand times.
template <class Ecrit>
std::string ItemsDxf(Ecrit ecrit) {
    std::string items;
    DxfText dxf(items);
    ecrit(dxf);
    return items;
}

} // namespace loftwing
