#include "output/frmcorrection.h"

#include "lang/aide.h"
#include "persist/settings.h"

namespace loftwing {

frmcorrection::frmcorrection(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmcorrection", kAideFeuilles, parent),
      avant_(programme.settings.correction) {
    NameAll();
    LayOut();
    PoseTextes();
    Montre();
    connect(&cmdaucune, &QPushButton::clicked, this, &frmcorrection::cmdaucune_Click);
}

void frmcorrection::PoseTextes() {
    setWindowTitle(Mot({"FrmPrint", "276"}));
    Label1.setText(Mot({"FrmPrint", "277"}) + " " + Mot({"FrmPrint", "286"}));
    Frame1.setTitle(Mot({"FrmPrint", "285"}));
    Label2[kChampLong].setText(Mot({"FrmPrint", "278"}));
    Label2[kChampTravers].setText(Mot({"FrmPrint", "279"}));
    for (QLabel &unit : Label3) {
        unit.setText(Q(programme_.settings.Unite));
    }
    cmdaucune.setText(Mot({"FrmPrint", "283"}));
    AdmetLongueurs(Text1);
}

/// A line of the right length stands in the fields, to be typed over.
void frmcorrection::Montre() {
    Label4.setText(Q(TexteCorrection(avant_, programme_.language)));
    cmdaucune.setEnabled(!(avant_ == CorrectionImprimante{}));
    for (NumericField &field : Text1) {
        field.setText(Q(MesureJuste(programme_.settings.Unite)));
    }
    SelectField(Text1[kChampLong]);
}

void frmcorrection::cmdok_Click() {
    Seul(" Correction/OK", [this] {
        const FinMesure end =
            CorrigeParMesure(avant_, FieldTexts(Text1), programme_.SaisieEnCours(), Titre());
        if (end.refuse) {
            SelectField(At(Text1, *end.refuse));
            return;
        }
        programme_.settings.correction = end.correction;
        EcritFeuilles(programme_.ReglagesEnCours());
        accept();
    });
}

void frmcorrection::cmdaucune_Click() {
    avant_ = {};
    Montre();
}

} // namespace loftwing
