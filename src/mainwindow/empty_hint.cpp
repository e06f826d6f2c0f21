#include "mainwindow/empty_hint.h"

#include "base/file_name.h"
#include "platform/qt_focus_mark.h"
#include "platform/qt_form.h"
#include "platform/qt_text.h"

#include <QVBoxLayout>

#include <algorithm>

namespace loftwing {

namespace {

constexpr double kTitleSize = 1.3;

/// A button that is as calm as the words around it, underlined as what can be clicked is.
void MakeQuiet(QPushButton &button) {
    QFont font = button.font();
    font.setUnderline(true);
    button.setFont(font);
    button.setFlat(true);
    button.setAutoDefault(false);
    button.setFocusPolicy(Qt::TabFocus);
    button.setCursor(Qt::PointingHandCursor);
    FocusMark::On(button); // the style shows none on a flat button
}

} // namespace

EmptyHint::EmptyHint(QWidget *parent) : QWidget(parent) {
    NameAll();
    // It takes the room that the picture has and never asks for more.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    LayOut();
    connect(&ouvre_, &QPushButton::clicked, this, &EmptyHint::Ouvre);
    for (std::size_t i = 0; i < fichiers_.size(); ++i) {
        connect(&fichiers_[i], &QPushButton::clicked, this,
                [this, i] { Q_EMIT OuvreRecent(chemins_[i]); });
    }
    MontreRecents({}, {});
}

void EmptyHint::NameAll() {
    NameControls({{this, "EmptyHint"},
                  {&titre_, "EmptyHint_title"},
                  {&ouvre_, "EmptyHint_open"},
                  {&depose_, "EmptyHint_drop"},
                  {&recents_, "EmptyHint_recent"},
                  {&avant_, "EmptyHint_before"}});
    NameControls(fichiers_, "EmptyHint_file");
}

void EmptyHint::LayOut() {
    QFont large = titre_.font();
    large.setPointSizeF(large.pointSizeF() * kTitleSize);
    titre_.setFont(large);
    for (QLabel *words : {&titre_, &depose_, &avant_}) {
        PlainText({words});
        words->setForegroundRole(QPalette::Text);
        words->setAlignment(Qt::AlignHCenter);
    }
    MakeQuiet(ouvre_);
    LayOutRecents();
    auto *rows = new QVBoxLayout(this);
    rows->addStretch(1);
    rows->addWidget(&titre_, 0, Qt::AlignHCenter);
    rows->addWidget(&ouvre_, 0, Qt::AlignHCenter);
    rows->addWidget(&depose_, 0, Qt::AlignHCenter);
    rows->addWidget(&recents_, 0, Qt::AlignHCenter);
    rows->addStretch(2); // a little above the middle, where the eye looks for it
}

void EmptyHint::LayOutRecents() {
    auto *rows = new QVBoxLayout(&recents_);
    rows->setSpacing(0);
    rows->addWidget(&avant_, 0, Qt::AlignHCenter);
    for (QPushButton &file : fichiers_) {
        MakeQuiet(file);
        rows->addWidget(&file, 0, Qt::AlignHCenter);
    }
}

void EmptyHint::PoseTextes(const LngIni &language) {
    titre_.setText(Q(language.LngText({"FrmMainMessage", "210"})));
    ouvre_.setText(Q(language.LngText({"FrmMainMessage", "211"})));
    depose_.setText(Q(language.LngText({"FrmMainMessage", "212"})));
    avant_.setText(Q(language.LngText({"FrmMainMessage", "213"})));
    MontreCeQuiTient();
}

void EmptyHint::MontreRecents(const FichiersRecents &ribs, const FichiersRecents &profils) {
    std::copy(profils.begin(), profils.end(),
              std::copy(ribs.begin(), ribs.end(), chemins_.begin()));
    for (std::size_t i = 0; i < kFichiers; ++i) {
        QString name = Q(NameIn(chemins_[i]));
        fichiers_[i].setText(name.replace('&', "&&"));
        SetTip(fichiers_[i], chemins_[i]);
        fichiers_[i].setVisible(!chemins_[i].empty());
    }
    MontreCeQuiTient();
}

void EmptyHint::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    MontreCeQuiTient();
}

/// A low window has no room for the files; they stand in the menu too.
void EmptyHint::MontreCeQuiTient() {
    const bool any = std::any_of(chemins_.begin(), chemins_.end(),
                                 [](const std::string &path) { return !path.empty(); });
    const int others = titre_.sizeHint().height() + ouvre_.sizeHint().height() +
                       depose_.sizeHint().height() + 5 * layout()->spacing();
    recents_.layout()->activate();
    recents_.setVisible(any && height() >= others + recents_.sizeHint().height());
}

} // namespace loftwing
