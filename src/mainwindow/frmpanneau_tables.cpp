// What the panel's window shows of the panel: plan, tables, piece, what there is to say.

#include "mainwindow/frmpanneau.h"

#include "programme/panel_words.h"
#include "utilities/tool_files.h"

#include <QSignalBlocker>
#include <QTextDocument>

#include <algorithm>

namespace loftwing {

namespace {

enum ColonneNervure { kNumero, kCorde, kVrillage, kAvis };

void PoseCase(QTableWidget &table, int row, int column, const QString &text, bool editable) {
    QTableWidgetItem *item = table.item(row, column);
    if (item == nullptr) {
        item = new QTableWidgetItem; // the table's from here on
        table.setItem(row, column, item);
    }
    item->setText(text);
    item->setFlags(editable ? item->flags() | Qt::ItemIsEditable
                            : item->flags() & ~Qt::ItemIsEditable);
}

} // namespace

/// The table stays as it is, perhaps being edited, while the ends have the same elements.
void frmpanneau::MontreElements() {
    const std::vector<ElementPanneau> found = Elements(panneau_, programme_.SaisieEnCours());
    if (found == elements_) {
        return;
    }
    elements_ = found;
    const QSignalBlocker quiet(Portees);
    Portees.setRowCount(static_cast<int>(elements_.size()));
    for (int row = 0; row < Portees.rowCount(); ++row) {
        const ElementPanneau &element = At(elements_, row);
        PoseCase(Portees, row, 0, Q(MotElement(programme_.messages, panneau_, element)), false);
        const PorteeTapee &typed = portees_[element];
        PoseCase(Portees, row, 1, Q(typed[0]), true);
        PoseCase(Portees, row, 2, Q(typed[1]), true);
    }
}

void frmpanneau::Portees_Change(const QTableWidgetItem &item) {
    if (item.column() > 0 && item.row() < static_cast<int>(elements_.size())) {
        At(portees_[At(elements_, item.row())], item.column() - 1) = S(item.text().trimmed());
        attente_.start();
    }
}

/// What is said of one rib, in one line.
std::string frmpanneau::AvisDe(int numero) const {
    std::string text;
    for (const std::vector<AvisPanneau> *all : {&refus_, &avis_}) {
        for (const AvisPanneau &each : *all) {
            if (each.nervure == numero) {
                text += (text.empty() ? "" : " ") + each.texte;
            }
        }
    }
    return text;
}

void frmpanneau::MontreRang(int row, const NervureFaite &nervure) {
    const int numero = demande_.premier + row;
    const std::string chord =
        nervure.composants.empty() ? At(fait_.jeu.nervures, row).corde : nervure.rib.cordeAfich;
    PoseCase(Nervures, row, kNumero, QString::number(numero), false);
    PoseCase(Nervures, row, kCorde, Q(std::string(Trim(chord))), false);
    PoseCase(Nervures, row, kVrillage, Q(NumberText(nervure.rib.vrillage) + kDegre), false);
    const QString said = Q(AvisDe(numero));
    PoseCase(Nervures, row, kAvis, said, false);
    // The column may be too narrow for it.
    Nervures.item(row, kAvis)
        ->setToolTip(said.isEmpty() ? QString() : Qt::convertFromPlainText(said));
}

void frmpanneau::MontreNervures() {
    {
        const QSignalBlocker quiet(Nervures);
        Nervures.setRowCount(static_cast<int>(fait_.nervures.size()));
        for (int row = 0; row < Nervures.rowCount(); ++row) {
            MontreRang(row, At(fait_.nervures, row));
        }
        const bool twisted =
            std::any_of(fait_.nervures.begin(), fait_.nervures.end(),
                        [](const NervureFaite &each) { return each.rib.vrillage != 0.0F; });
        Nervures.setColumnHidden(kVrillage, !twisted);
        // While something is wrong there are no rows; the rib comes back with them.
        Nervures.setCurrentCell(std::min(rang_, Nervures.rowCount() - 1), kNumero,
                                QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    MontrePiece();
}

void frmpanneau::MontrePiece() {
    const int row = Nervures.currentRow();
    const bool there = row >= 0 && row < static_cast<int>(fait_.nervures.size());
    Picture1.Montre(there ? EnDessous(At(fait_.nervures, row).pieces) : std::vector<Piece>(),
                    CouleursDe(programme_.settings));
}

void frmpanneau::MontrePlan() {
    Plan.Montre(choisis_[0] && choisis_[1] ? FaitPlan(panneau_, fait_, longueur_, demande_.premier,
                                                      programme_.SaisieEnCours())
                                           : PlanPanneau());
}

/// The clear width between two ribs in equal steps, as the table of a set computes it; how long the
/// panel is otherwise.
void frmpanneau::MontreEcart() {
    const std::string &Unite = programme_.settings.Unite;
    QString text;
    if (longueur_ > 0 && inter_ > 0 && fautif_ == nullptr) {
        const std::string thick = S(txt[kEpaisseur].text());
        const double mm = thick.empty() ? 0 : NombreMm(thick, programme_.SaisieEnCours());
        text = Variable() ? Mot({"FrmNervure", "6"}) + ": " + Q(LongueurDePanneau(longueur_, Unite))
                          : Mot({"FrmNervure", "3"}) + ": " +
                                Q(LongueurDePanneau(EcartRegulier(longueur_, inter_, mm), Unite));
    }
    lblecart.setText(text);
}

void frmpanneau::MontreAvis() {
    std::vector<std::string> lines = EnLignes(refus_);
    const std::vector<std::string> warnings = EnLignes(avis_);
    lines.insert(lines.end(), warnings.begin(), warnings.end());
    if (SansPoids()) { // which is nothing to ask about before ribs are written
        lines.push_back(programme_.Text({"Plan", "33"}));
    }
    MontreLignes(lblavis, lines);
}

} // namespace loftwing
