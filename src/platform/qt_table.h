/// What the tables of the windows have in common.
#pragma once

class QTableWidget;

namespace loftwing {

/// How wide and high a table is at least, and which column takes the width that is left, from 0.
struct TableShape {
    int columns;
    int stretched;
    int letters; ///< in width
    int lines;   ///< in height, those of a text
};

/// Gives a table its columns, each as wide as what it holds. Rows have one line. Names of columns
/// stand at their left, so that where one has little room it is cut off at its end. Tab leaves the
/// table.
void PrepareTable(QTableWidget &table, const TableShape &shape);

/// The same for one that is only to be chosen from, a row at a time.
void PrepareChoice(QTableWidget &table, const TableShape &shape);

} // namespace loftwing
