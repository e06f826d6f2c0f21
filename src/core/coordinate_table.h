/// The numbers of a text file, whatever its encoding, line ends and separators.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace loftwing {

/// One line of numbers.
struct TableRow {
    std::vector<double> values;     ///< two at least
    std::vector<std::string> texts; ///< the same as the file writes them, with a point
    int line = 0;                   ///< of the file, counted from 1
};

/// More rows than this are no airfoil; the table ends one behind them.
inline constexpr std::size_t kMostRows = 100'000;

/// What a coordinate file holds.
struct CoordinateTable {
    std::string title; ///< the first words in front of the numbers; empty without any
    std::vector<TableRow> rows;
};

/// Reads bytes in UTF-8, UTF-16 (with its byte order mark) or Windows-1252 with lines that end in
/// CR, LF or both. A row is a line that begins with two numbers at least; blanks, tabs, commas and
/// semicolons stand between them. A comma is a decimal point where blanks or semicolons separate
/// and no number has a point. Everything else is title, comment or nothing. Never fails.
CoordinateTable ReadCoordinateTable(std::string_view bytes);

} // namespace loftwing
