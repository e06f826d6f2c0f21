#include "mainwindow/frmsecours.h"

#include "base/text_encoding.h"
#include "lang/aide.h"
#include "mainwindow/toolkit_words.h"
#include "programme/panel_ends.h"
#include "programme/secours_steps.h"

#include <QDateTime>
#include <QFileInfo>

#include <iterator>
#include <utility>

namespace loftwing {

namespace {

/// When the snapshot was written, in the user's own way.
QString Moment(const Orphelin &orphelin, const std::string &language) {
    const QDateTime when = QFileInfo(Q(orphelin.chemin)).lastModified();
    const QLocale locale = LocaleOf(language);
    return locale.toString(when.date(), QLocale::LongFormat) + "  " +
           locale.toString(when.time(), QLocale::ShortFormat);
}

} // namespace

frmsecours::frmsecours(Programme &programme, QWidget *parent, std::vector<Orphelin> ribs)
    : Dialogue(programme, "frmsecours", kAideSecours, parent), ribs_(std::move(ribs)),
      lblrecit(this), Ribs(this), Picture1(this), cmdsupprimer(this), cmdrestaurer(this),
      cmdplustard(this) {
    NameAll();
    PrepareRibs();
    PoseTextes();
    MontreRibs();
    LayOut();
    connect(&Ribs, &QTableWidget::currentCellChanged, this, &frmsecours::MontreChoisi);
    connect(&Ribs, &QTableWidget::cellDoubleClicked, this, &frmsecours::accept);
    connect(&cmdrestaurer, &QPushButton::clicked, this, &frmsecours::accept);
    connect(&cmdplustard, &QPushButton::clicked, this, &frmsecours::reject);
    connect(&cmdsupprimer, &QPushButton::clicked, this,
            [this] { Garde(" frmsecours/cmdsupprimer", [this] { cmdsupprimer_Click(); }); });
}

void frmsecours::PoseTextes() {
    setWindowTitle(Mot({"Recovery", "1"}));
    lblrecit.setText(Mot({"Recovery", "2"}));
    Ribs.setAccessibleName(Mot({"Recovery", "1"}));
    Ribs.setHorizontalHeaderLabels(
        {Mot({"MainTolbar", "25"}), Mot({"FrmPrint", "26"}), Mot({"Recovery", "3"})});
    Picture1.setAccessibleName(Mot({"Recovery", "4"}));
    cmdrestaurer.setText(Mot({"Recovery", "5"}));
    cmdsupprimer.setText(Mot({"Recovery", "6"}));
    cmdplustard.setText(Mot({"Recovery", "7"}));
    SetTip(cmdrestaurer, programme_.Text({"Recovery", "8"}));
    SetTip(cmdsupprimer, programme_.Text({"Recovery", "9"}));
    SetTip(cmdplustard, programme_.Text({"Recovery", "10"}));
}

void frmsecours::MontreRibs() {
    const QSignalBlocker quiet(Ribs);
    Ribs.setRowCount(static_cast<int>(ribs_.size()));
    for (int row = 0; row < Ribs.rowCount(); ++row) {
        const Orphelin &rib = At(ribs_, row);
        const PartiesRib &parties = rib.contenu.parties;
        const QString cells[] = {Q(ToUtf8(NomDuBout(parties))),
                                 Q(ToUtf8(parties.cordeAfich) + rib.contenu.Unite),
                                 Moment(rib, programme_.language.LangueCourante)};
        for (int column = 0; column < Ribs.columnCount(); ++column) {
            auto *cell = new QTableWidgetItem(cells[column]); // the table's from here on
            cell->setToolTip(Q(ToUtf8(CheminConnu(parties))).toHtmlEscaped());
            Ribs.setItem(row, column, cell);
        }
    }
    Ribs.setCurrentCell(0, 0);
    MontreChoisi();
}

void frmsecours::MontreChoisi() {
    const int row = Ribs.currentRow();
    Picture1.Montre(row < 0 ? std::vector<Piece>() : PiecesDe(programme_, At(ribs_, row).contenu),
                    CouleursDe(programme_.settings));
}

void frmsecours::cmdsupprimer_Click() {
    const int row = Ribs.currentRow();
    const std::string name = NomDuBout(At(ribs_, row).contenu.parties);
    if (!programme_.messages.Confirm(programme_.Text({"Recovery", "11"}) + "\n" + name, Titre())) {
        return;
    }
    Supprime(std::move(At(ribs_, row)));
    ribs_.erase(std::next(ribs_.begin(), row));
    if (ribs_.empty()) {
        reject();
        return;
    }
    MontreRibs();
}

Orphelin frmsecours::Voulu() {
    return std::move(At(ribs_, Ribs.currentRow()));
}

} // namespace loftwing
