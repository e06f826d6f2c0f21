#include "mainwindow/frmSplash.h"

#include "base/version.h"
#include "platform/qt_text.h"

#include <QScreen>
#include <QShowEvent>

namespace loftwing {

namespace {

constexpr int kShownFor = 3000; // ms

} // namespace

frmSplash::frmSplash(Programme &programme, QWidget *parent)
    : QDialog(parent, Qt::SplashScreen | Qt::FramelessWindowHint), programme_(programme),
      image(this) {
    NameAll();
    Timer1.setParent(this);
    // Keys that are typed meanwhile are meant for the main window.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    LayOut();
    Form_Load();
    connect(&Timer1, &QTimer::timeout, this, &frmSplash::Ferme);
    connect(&image, &RibPicture::Clique, this, &frmSplash::Ferme);
}

void frmSplash::Form_Load() {
    setWindowTitle(QString::fromUtf8(kTitre));
    lbltitre.setText(QString::fromUtf8(kTitre));
    lblversion.setText(Q(programme_.Text({"FrmAbout", "3"}) + "  " + kVersion));
    lblpresentation.setText(Q(programme_.Text({"FrmAbout", "2"})));
    image.setAccessibleName(Q(programme_.Text({"MainTolbar", "25"})));
    Timer1.setSingleShot(true);
    Timer1.setInterval(kShownFor);
}

void frmSplash::showEvent(QShowEvent *event) {
    QDialog::showEvent(event);
    adjustSize();
    const QScreen *where = parentWidget() != nullptr ? parentWidget()->screen() : screen();
    move(where->availableGeometry().center() - rect().center());
    Timer1.start();
}

void frmSplash::Ferme() {
    Timer1.stop();
    close();
    programme_.platform.SetPointer(Pointer::normal);
}

} // namespace loftwing
