// Names and places of the coordinate editor's controls.

#include "utilities/frmCoord.h"

#include "platform/qt_focus_mark.h"

#include <QFontDatabase>
#include <QHBoxLayout>

namespace loftwing {

namespace {

/// A face whose characters are equally wide keeps the columns in line.
QFont ColumnFont(const QFont &usual) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(usual.pointSizeF());
    return font;
}

} // namespace

void frmCoord::NameAll() {
    NameControls({{&Label2, "Label2"},
                  {&txtinX, "txtinX"},
                  {&txtinY, "txtinY"},
                  {&Liste_Valeurs, "Liste_Valeurs"},
                  {&cmdentre, "cmdentre"},
                  {&cmdajouter, "cmdajouter"},
                  {&cmdeffaceligne, "cmdeffaceligne"},
                  {&cmdeffacetout, "cmdeffacetout"},
                  {&cmdouvrir, "cmdouvrir"},
                  {&cmdsave, "cmdsave"}});
    NameControls(Label1, "Label1");
    NameControls(txt, "txt");
}

void frmCoord::LayOut() {
    Liste_Valeurs.setSelectionMode(QAbstractItemView::ExtendedSelection);
    Liste_Valeurs.setUniformItemSizes(true);
    FocusMark::On(Liste_Valeurs); // an empty one has no line that could show it
    Liste_Valeurs.setFont(ColumnFont(font()));
    const QFontMetrics metrics(Liste_Valeurs.font());
    constexpr int kCharacters = 30;
    constexpr int kLines = 12;
    Liste_Valeurs.setMinimumSize(metrics.horizontalAdvance('0') * kCharacters,
                                 metrics.lineSpacing() * kLines);
    auto *list = new QHBoxLayout;
    list->addWidget(&Liste_Valeurs, 1);
    list->addLayout(LayOutCommands());
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(LayOutEntries());
    rows->addLayout(list, 1);
    PoseBoutons(*rows, {SharedWord::close, SharedWord::help});
    // Return in the name or the title must not enter the last point a second time.
    for (QPushButton *button : findChildren<QPushButton *>()) {
        button->setAutoDefault(false);
    }
}

QGridLayout *frmCoord::LayOutEntries() {
    auto *grid = new QGridLayout;
    for (int i = 0; i < 3; ++i) {
        grid->addWidget(&At(Label1, i), i, 0);
        grid->addWidget(&At(txt, i), i, 1, 1, 3);
        SetCaption(At(Label1, i), At(txt, i));
    }
    SetCaption(Label2, txtinX);
    grid->addWidget(&Label2, 3, 0);
    grid->addWidget(&txtinX, 3, 1);
    grid->addWidget(&txtinY, 3, 2);
    grid->addWidget(&cmdentre, 3, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    return grid;
}

QVBoxLayout *frmCoord::LayOutCommands() {
    auto *column = new QVBoxLayout;
    column->addWidget(&cmdajouter);
    column->addWidget(&cmdeffaceligne);
    column->addWidget(&cmdeffacetout);
    column->addStretch();
    column->addWidget(&cmdouvrir);
    column->addWidget(&cmdsave);
    return column;
}

} // namespace loftwing
