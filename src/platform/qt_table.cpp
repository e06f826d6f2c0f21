#include "platform/qt_table.h"

#include "platform/qt_focus_mark.h"

#include <QHeaderView>
#include <QTableWidget>

namespace loftwing {

void PrepareTable(QTableWidget &table, const TableShape &shape) {
    const QFontMetrics font = table.fontMetrics();
    table.setColumnCount(shape.columns);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(font.lineSpacing() * 3 / 2);
    table.setCornerButtonEnabled(false);
    table.setTabKeyNavigation(false);
    table.setWordWrap(false);
    QHeaderView &header = *table.horizontalHeader();
    header.setSectionsClickable(false);
    header.setHighlightSections(false);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(shape.stretched, QHeaderView::Stretch);
    table.setMinimumSize(font.averageCharWidth() * shape.letters, font.lineSpacing() * shape.lines);
    FocusMark::On(table); // an empty one has no line that could show it
}

void PrepareChoice(QTableWidget &table, const TableShape &shape) {
    PrepareTable(table, shape);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
}

} // namespace loftwing
