#include "lang/frmlang.h"

#include "programme/load.h"

#include <QPushButton>

namespace loftwing {

lang::lang(Programme &programme, MainView &view, QWidget *parent)
    : Dialogue(programme, "lang", kSansAide, parent), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    connect(&Combo1, &QComboBox::activated, this, &lang::Combo1_Click);
}

void lang::Form_Load() {
    view_.FermeDialogues();
    view_.affclear();
    for (const std::string &name : LngIni::Languages(programme_.paths.langues)) {
        Combo1.addItem(Q(name));
    }
    const bool none = programme_.language.LangueCourante.empty();
    setWindowTitle(none ? "Language" : Mot({"LANGUAGE", "2"}));
    if (none) {
        Bouton(SharedWord::ok).setText("OK");
    }
    Combo1.setAccessibleName(windowTitle());
    Combo1.setPlaceholderText(windowTitle());
    if (none) {
        // The desktop's language is chosen already, so that OK is enough.
        const std::string &folder = programme_.paths.langues;
        const std::string wanted = programme_.platform.SystemLanguage();
        Combo1.setCurrentText(Q(LngIni::LanguageOf(folder, wanted)));
        change_ = Combo1.count() > 0;
    } else {
        Combo1.setCurrentText(Q(programme_.language.LangueCourante));
    }
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
    programme_.messages.PoseMotsDesBoutons();
    const std::string &fichier = programme_.paths.fichier;
    try {
        StoreINIFile("Language", "Langue", name, fichier);
    } catch (const Failure &failure) {
        if (programme_.settings.fichier.perdu) {
            DitReglagesPerdus(programme_);
            return true;
        }
        programme_.messages.Report(failure, " WriteINIFile");
    }
    return true;
}

void lang::cmdok_Click() {
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
