#include "output/frmpapier.h"

#include "lang/aide.h"
#include "output/page_entry.h"

namespace loftwing {

namespace {

constexpr int kNomMaxi = 30;

} // namespace

frmpapier::frmpapier(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmpapier", kAideFeuilles, parent) {
    NameAll();
    LayOut();
    Form_Load();
}

void frmpapier::Form_Load() {
    setWindowTitle(Mot({"FrmPrint", "260"}));
    Label1.setText(Mot({"FrmPrint", "261"}));
    Label2.setText(Mot({"FrmPrint", "262"}));
    Label3.setText(Mot({"FrmPrint", "263"}));
    for (QLabel *unit : {&Label4, &Label5}) {
        unit->setText(Q(programme_.settings.Unite));
    }
    txtnom.setMaxLength(kNomMaxi);
    AdmetLongueurs(Text1);
}

void frmpapier::cmdok_Click() {
    Garde(" Print/Paper", [this] {
        const auto paper =
            PapierSaisi(S(txtnom.text()), FieldTexts(Text1), programme_.SaisieEnCours(), Titre());
        if (paper) {
            papier_ = *paper;
            accept();
        } else {
            SelectField(Text1[0]);
        }
    });
}

} // namespace loftwing
