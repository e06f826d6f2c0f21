#include "mainwindow/frmAbout.h"

#include "base/version.h"

#include <algorithm>

namespace loftwing {

namespace {

const char *const kSystems = "Linux";
constexpr int kLongestField = 70; // letters
constexpr int kFieldMargins = 3;  // likewise

} // namespace

frmAbout::frmAbout(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmAbout", kSansAide, parent), image(this) {
    NameAll();
    LayOut();
    Form_Load();
}

void frmAbout::Form_Load() {
    setWindowTitle(Q(programme_.Text({"FrmAbout", "1"}) + " " + kTitre));
    lblpresentation.setText(Mot({"FrmAbout", "2"}));
    lblversion.setText(Q(programme_.Text({"FrmAbout", "3"}) + " " + kVersion));
    Label1[0].setText(Mot({"FrmAbout", "4"}));
    Label1[1].setText(Mot({"FrmAbout", "5"}));
    image.setAccessibleName(Mot({"MainTolbar", "25"}));
    ShowFolder(txtdossier[0], "RepAirfoil");
    ShowFolder(txtdossier[1], "RepEvol");
    lblsystemes.setText(kSystems);
    lblnote.setText(Mot({"FrmAbout", "6"}));
}

void frmAbout::ShowFolder(QLineEdit &field, const std::string &key) {
    const std::string stored = programme_.platform.StoredValue("Install", key);
    const QString folder = Q(stored.empty() ? programme_.paths.programme : stored);
    field.setText(folder);
    field.setCursorPosition(0);
    field.setToolTip(folder.toHtmlEscaped());
    const QFontMetrics metrics = field.fontMetrics();
    const int letter = metrics.averageCharWidth();
    field.setMinimumWidth(std::min(metrics.horizontalAdvance(folder) + kFieldMargins * letter,
                                   kLongestField * letter));
}

} // namespace loftwing
