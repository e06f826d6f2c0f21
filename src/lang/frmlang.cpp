#include "lang/frmlang.h"

#include "platform/qt_form.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kUsualLetters = 30; // room for a caption and for names of languages

} // namespace

lang::lang(Programme &programme, MainView &view, QWidget *parent)
    : QDialog(parent), programme_(programme), view_(view), Combo1(this), ok(this) {
    NameControl(*this, "lang");
    NameControl(Combo1, "Combo1");
    NameControl(ok, "ok");
    LayOut();
    Form_Load();
    connect(&Combo1, &QComboBox::activated, this, &lang::Combo1_Click);
    connect(&ok, &QPushButton::clicked, this, &lang::ok_Click);
}

void lang::LayOut() {
    auto *button = new QHBoxLayout;
    button->addStretch();
    button->addWidget(&ok);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&Combo1);
    rows->addStretch();
    rows->addLayout(button);
    Combo1.setMinimumWidth(fontMetrics().averageCharWidth() * kUsualLetters);
    ok.setDefault(true);
}

void lang::Form_Load() {
    view_.FermeDialogues();
    view_.affclear();
    for (const std::string &name : LngIni::Languages(programme_.paths.langues)) {
        Combo1.addItem(Q(name));
    }
    const bool none = programme_.language.LangueCourante.empty();
    setWindowTitle(none ? "Language" : Q(programme_.Text({"LANGUAGE", "2"})));
    ok.setText(none ? "OK" : Q(ButtonWord(programme_.language, SharedWord::ok)));
    Combo1.setAccessibleName(windowTitle());
    Combo1.setPlaceholderText(windowTitle());
    Combo1.setCurrentIndex(none ? -1 : Combo1.findText(Q(programme_.language.LangueCourante)));
}

void lang::Combo1_Click() {
    change_ = true;
}

bool lang::Prend(const std::string &name) {
    try {
        programme_.language.Charge(programme_.paths.langues, name);
    } catch (const Failure &failure) {
        programme_.messages.Report(failure, " GetINIFile");
        return false;
    }
    const std::string &fichier = programme_.paths.fichier;
    if (!WriteINIFile("Language", "Langue", name, fichier)) {
        programme_.messages.Report(MakeFailure(kPathFileAccess, fichier), " WriteINIFile");
    }
    return true;
}

void lang::ok_Click() {
    if (change_) {
        if (!Prend(S(Combo1.currentText()))) {
            return;
        }
        view_.AppliqueLangue();
        view_.RetraceVues();
        view_.affiche();
    }
    accept();
}

} // namespace loftwing
