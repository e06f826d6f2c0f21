// Names, places and words of the controls for a set with variable spacing.

#include "features/qt_slots_dialog.h"
#include "utilities/frmribevol2.h"

#include <QHBoxLayout>

namespace loftwing {

namespace {

constexpr int kMarge = 4; // pixels around the number of a gap

} // namespace

void frmribevol2::NameAll() {
    NameControl(*this, "frmribevol2");
    const std::pair<QObject *, const char *> names[] = {
        {&LblEprNervureCMax, "LblEprNervureCMax"},
        {&LblEprNervureCmin, "LblEprNervureCmin"},
        {&FrameNervInterm, "FrameNervInterm"},
        {&Label5, "Label5"},
        {&FrameDimensions, "FrameDimensions"},
        {&LblEprNervure, "LblEprNervure"},
        {&TextEprNevure, "TextEprNevure"},
        {&lblstep, "lblstep"},
        {&TextEcartNevure, "TextEcartNevure"},
        {&CmdApply, "CmdApply"},
        {&LblLongTot, "LblLongTot"},
        {&LblLongTotAffich, "LblLongTotAffich"},
    };
    for (const auto &[control, name] : names) {
        NameControl(*control, name);
    }
    NameControl(txtEpR0, "txtEpR", 0);
    NameControl(txtEpR13, "txtEpR", kNervureMin);
    NameControls(Label3, "Label3");
    for (int k = 1; k <= kNervureMin; ++k) {
        NameControl(At(LblNoNervInterm, k - 1), "LblNoNervInterm", k);
    }
}

void frmribevol2::LayOut() {
    auto *rows = new QVBoxLayout(this);
    LayOutEnds(*rows);
    LayOutGaps();
    LayOutDimensions();
    rows->addWidget(&FrameNervInterm);
    rows->addWidget(&FrameDimensions);
    auto *total = new QHBoxLayout;
    total->addWidget(&LblLongTot);
    total->addWidget(&LblLongTotAffich, 1);
    rows->addLayout(total);
    PoseBas(*rows);
    for (QLabel *label : {&Label5, &Label3[0], &Label3[1], &LblLongTot, &LblLongTotAffich}) {
        label->setTextFormat(Qt::PlainText);
    }
}

void frmribevol2::LayOutEnds(QVBoxLayout &rows) {
    auto *ends = new QHBoxLayout;
    Rangee(Grille(0), 2, LblEprNervureCMax, txtEpR0, nullptr);
    Rangee(Grille(1), 2, LblEprNervureCmin, txtEpR13, nullptr);
    ends->addWidget(&Frame1[0], 1);
    ends->addWidget(&Frame1[1], 1);
    rows.addLayout(ends);
}

void frmribevol2::LayOutGaps() {
    auto *rows = new QVBoxLayout(&FrameNervInterm);
    auto *numbers = new QHBoxLayout;
    for (ClickLabel &label : LblNoNervInterm) {
        label.setAlignment(Qt::AlignCenter);
        label.setMargin(kMarge);
        label.setMinimumWidth(fontMetrics().horizontalAdvance("00") + 4 * kMarge);
        numbers->addWidget(&label);
    }
    numbers->addStretch();
    rows->addWidget(&Label5);
    rows->addLayout(numbers);
}

/// As on the bench: the rib before the gap, the gap, the rib behind it.
void frmribevol2::LayOutDimensions() {
    auto *grid = new QGridLayout(&FrameDimensions);
    grid->addWidget(&Label3[0], 0, 0);
    grid->addWidget(&LblEprNervure, 0, 1);
    grid->addWidget(&TextEprNevure, 0, 2);
    grid->addWidget(&lblstep, 1, 1);
    grid->addWidget(&TextEcartNevure, 1, 2);
    grid->addWidget(&Label3[1], 2, 0);
    grid->addWidget(&CmdApply, 2, 2);
    grid->setColumnStretch(0, 1);
    Elargit(TextEprNevure);
    Elargit(TextEcartNevure);
    LblEprNervure.setTextFormat(Qt::PlainText);
    lblstep.setTextFormat(Qt::PlainText);
    LblEprNervure.setBuddy(&TextEprNevure);
    lblstep.setBuddy(&TextEcartNevure);
    GardePlace(FrameDimensions);
}

void frmribevol2::PoseTextes() {
    const auto word = [this](LngKey key) { return Q(programme_.Text(key)); };
    const QString unit = " (" + Q(programme_.settings.Unite) + " )";
    setWindowTitle(word({"FrmRibevol2", "1"}));
    Frame1[0].setTitle(word({"FrmRibevol2", "2"}) + unit);
    Frame1[1].setTitle(word({"FrmRibevol2", "3"}) + unit);
    for (int i = 0; i < 2; ++i) {
        At(Label1, i).setText(word({"FrmRibevol2", "4"}));
        At(Label2, i).setText(word({"FrmRibevol2", "5"}));
        At(Label3, i).setText(word({"FrmRibevol2", "9"}));
    }
    FrameNervInterm.setTitle(word({"FrmRibevol2", "7"}));
    Label5.setText(word({"FrmRibevol2", "7T"}));
    FrameDimensions.setTitle(word({"FrmRibevol2", "8"}) + unit);
    LblLongTot.setText(word({"FrmRibevol2", "11"}));
    for (QLabel *label : {&LblEprNervureCMax, &LblEprNervureCmin, &LblEprNervure}) {
        label->setText(word({"FrmRibevol2", "12"}));
    }
    lblstep.setText(word({"FrmRibevol2", "13"}));
    SetButtonWord(CmdApply, programme_.language, SharedWord::apply);
    for (NumericField *field : {&txtEpR0, &txtEpR13, &TextEprNevure, &TextEcartNevure}) {
        field->SetKeys(
            TouchesSelonUnite(programme_.settings.Unite, kTouchesPositif, kTouchesFraction));
    }
    for (int k = 1; k <= DernierEcart(); ++k) {
        ClickLabel &label = At(LblNoNervInterm, k - 1);
        label.setText(QString::number(k));
        label.setFocusPolicy(Qt::TabFocus);
        label.setCursor(Qt::PointingHandCursor);
        SetTip(label, programme_.Text({"FrmRibevol2", "7T"}));
    }
}

} // namespace loftwing
