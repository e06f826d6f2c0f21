#include "mainwindow/frmimport.h"

#include "base/file_name.h"
#include "base/text_encoding.h"
#include "lang/aide.h"
#include "platform/qt_title.h"
#include "programme/import_words.h"

namespace loftwing {

frmimport::frmimport(Programme &programme, QWidget *parent, std::string path,
                     ImportedAirfoil airfoil)
    : Dialogue(programme, "frmimport", kAideImport, parent), path_(std::move(path)),
      airfoil_(std::move(airfoil)), Picture1(this), lblrecit(this), lblenregistre(this),
      cmdenregistrer(this), cmdouvrir(this) {
    NameAll();
    PoseTextes();
    Picture1.Montre(airfoil_.file, ContourImporte(airfoil_));
    LayOut();
    connect(&cmdenregistrer, &QPushButton::clicked, this,
            [this] { Garde(" frmimport/cmdenregistrer", [this] { cmdenregistrer_Click(); }); });
    connect(&cmdouvrir, &QPushButton::clicked, this, &frmimport::accept);
}

void frmimport::PoseTextes() {
    const std::string name = NameIn(path_);
    setWindowTitle(TitreDeFenetre(programme_.Text({"Import", "41"}) + " : " + name));
    Picture1.Nomme(Mot({"Import", "44"}), Mot({"Import", "45"}));
    lblrecit.setText(Q(ImportStory(programme_.messages, airfoil_)));
    cmdenregistrer.setText(Mot({"Import", "46"}));
    cmdouvrir.setText(Mot({"Import", "47"}));
    SetTip(cmdenregistrer, programme_.Text({"Import", "53"}));
    SetTip(cmdouvrir, programme_.Text({"Import", "54"}));
}

void frmimport::cmdenregistrer_Click() {
    const std::string saved = EnregistreImport(programme_, path_, airfoil_);
    if (saved.empty()) {
        return;
    }
    path_ = saved;
    lblenregistre.setText(Q(programme_.Text({"Import", "48"}) + " " + ToUtf8(saved)));
    lblenregistre.show();
}

std::optional<ImportVoulu> MontreImport(Programme &programme, QWidget *parent,
                                        const std::string &path, const ImportedAirfoil &airfoil) {
    frmimport dialog(programme, parent, path, airfoil);
    if (ShowModal(dialog) != QDialog::Accepted) {
        return std::nullopt;
    }
    return dialog.Voulu();
}

} // namespace loftwing
