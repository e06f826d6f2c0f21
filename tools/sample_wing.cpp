#include "sample_wing.h"

#include "platform/qt_text.h"
#include "programme/panel_ends.h"
#include "programme/panel_words.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

namespace loftwing {

void OpenSampleWing(QDialog &panel, Programme &programme, const std::string &folder) {
    const PartieGardee<PartiesRib> kept(programme.rib);
    const char *const files[] = {"/root.lfw", "/tip.lfw"};
    for (int end = 0; end < 2; ++end) {
        programme.rib.Partie<PartiesRib>() = LitBout(programme, folder + files[end]).value();
        panel.findChild<QPushButton *>(QString("cmdfenetre(%1)").arg(end))->click();
    }
    panel.findChild<QLineEdit *>("txt(0)")->setText("6");   // intermediate ribs
    panel.findChild<QLineEdit *>("txt(1)")->setText("2");   // their thickness
    panel.findChild<QLineEdit *>("txt(3)")->setText("500"); // length
}

void EndHoleOfSampleWing(QDialog &panel, const Programme &programme) {
    const QString hole = Q(MotElement(programme.messages, {}, {GenreElement::trou, 2}));
    for (const QTableWidget *table : panel.findChildren<QTableWidget *>()) {
        for (int row = 0; row < table->rowCount(); ++row) {
            const QTableWidgetItem *name = table->item(row, 0);
            if (name != nullptr && name->text() == hole) {
                table->item(row, 2)->setText("6");
            }
        }
    }
}

} // namespace loftwing
