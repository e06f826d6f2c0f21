#include "sample_wing.h"

#include "platform/qt_text.h"
#include "programme/panel_ends.h"
#include "programme/panel_words.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include <array>

namespace loftwing {

namespace {

constexpr std::array kFiles = {"/root.lfw", "/tip.lfw"};
constexpr const char *kRibsBetween = "6";
constexpr ElementPanneau kHole{GenreElement::trou, 2};
constexpr int kEndOfHole = 6;

} // namespace

Panneau SampleWing(Programme &programme, const std::string &folder) {
    Panneau wing;
    for (std::size_t end = 0; end < kFiles.size(); ++end) {
        wing.bouts[end] = LitBout(programme, folder + kFiles[end]).value();
    }
    wing.jeu.nombre = kRibsBetween;
    wing.portees[kHole] = {1, kEndOfHole};
    return wing;
}

std::unique_ptr<frmplanches> SheetsOf(Programme &programme, Panneau &panel, const char *sizes,
                                      QWidget *parent) {
    const std::string &unit = programme.settings.Unite;
    panel.jeu.cordes = CordesDesBouts(panel, unit);
    SaisiePlanches choice = PlanchesUsuelles(unit);
    choice.deux_ailes = choice.demi_tour = true;
    choice.formats = sizes;
    auto sheets = std::make_unique<frmplanches>(programme, panel, 1, choice, "wing", parent);
    const auto *save = sheets->findChild<QPushButton *>("cmdenregistrer");
    while (!save->isEnabled()) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return sheets;
}

void OpenSampleWing(QDialog &panel, Programme &programme, const std::string &folder) {
    const PartieGardee<PartiesRib> kept(programme.rib);
    for (std::size_t end = 0; end < kFiles.size(); ++end) {
        programme.rib.Partie<PartiesRib>() = LitBout(programme, folder + kFiles[end]).value();
        panel.findChild<QPushButton *>(QString("cmdfenetre(%1)").arg(end))->click();
    }
    panel.findChild<QLineEdit *>("txt(0)")->setText(kRibsBetween);
    panel.findChild<QLineEdit *>("txt(1)")->setText("2");   // their thickness
    panel.findChild<QLineEdit *>("txt(3)")->setText("500"); // length
}

void EndHoleOfSampleWing(QDialog &panel, const Programme &programme) {
    const QString hole = Q(MotElement(programme.messages, {}, kHole));
    for (const QTableWidget *table : panel.findChildren<QTableWidget *>()) {
        for (int row = 0; row < table->rowCount(); ++row) {
            const QTableWidgetItem *name = table->item(row, 0);
            if (name != nullptr && name->text() == hole) {
                table->item(row, 2)->setText(QString::number(kEndOfHole));
            }
        }
    }
}

} // namespace loftwing
