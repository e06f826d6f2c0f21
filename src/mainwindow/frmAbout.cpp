#include "mainwindow/frmAbout.h"

#include "base/version.h"
#include "platform/qt_form.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace loftwing {

namespace {

const char *const kSystems = "Linux";
constexpr int kLongestField = 70; // letters
constexpr int kFieldMargins = 3;  // likewise

} // namespace

frmAbout::frmAbout(Programme &programme, QWidget *parent)
    : QDialog(parent), programme_(programme), image(this), lblpresentation(this), lblversion(this),
      lblsystemes(this), lblnote(this), cmdok(this) {
    NameAll();
    LayOut();
    Form_Load();
    connect(&cmdok, &QPushButton::clicked, this, &QDialog::accept);
}

void frmAbout::NameAll() {
    NameControl(*this, "frmAbout");
    NameControl(image, "image");
    NameControl(lblpresentation, "lblpresentation");
    NameControl(lblversion, "lblversion");
    NameControls(Label1, "Label1");
    NameControls(txtdossier, "txtdossier");
    NameControl(lblsystemes, "lblsystemes");
    NameControl(lblnote, "lblnote");
    NameControl(cmdok, "cmdok");
}

void frmAbout::LayOut() {
    auto *folders = new QFormLayout;
    for (std::size_t i = 0; i < txtdossier.size(); ++i) {
        folders->addRow(&Label1[i], &txtdossier[i]);
        Label1[i].setTextFormat(Qt::PlainText);
        txtdossier[i].setReadOnly(true);
        txtdossier[i].setFrame(false);
        QPalette plain = txtdossier[i].palette();
        plain.setColor(QPalette::Base, Qt::transparent);
        txtdossier[i].setPalette(plain);
    }
    auto *button = new QHBoxLayout;
    button->addStretch();
    button->addWidget(&cmdok);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&image);
    for (QLabel *label : {&lblpresentation, &lblversion}) {
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignHCenter);
        rows->addWidget(label);
    }
    rows->addLayout(folders);
    for (QLabel *label : {&lblsystemes, &lblnote}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        rows->addWidget(label);
    }
    rows->addStretch();
    rows->addLayout(button);
    cmdok.setDefault(true);
    cmdok.setFocus();
}

void frmAbout::Form_Load() {
    setWindowTitle(Q(programme_.Text({"FrmAbout", "1"}) + " " + kTitre));
    lblpresentation.setText(Q(programme_.Text({"FrmAbout", "2"})));
    lblversion.setText(Q(programme_.Text({"FrmAbout", "3"}) + " " + kVersion));
    Label1[0].setText(Q(programme_.Text({"FrmAbout", "4"})));
    Label1[1].setText(Q(programme_.Text({"FrmAbout", "5"})));
    ShowFolder(txtdossier[0], "RepAirfoil");
    ShowFolder(txtdossier[1], "RepEvol");
    lblsystemes.setText(kSystems);
    lblnote.setText(Q(programme_.Text({"FrmAbout", "6"})));
    SetButtonWord(cmdok, programme_.language, SharedWord::ok);
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
