#include "utilities/frmnervure.h"

#include "lang/aide.h"

namespace loftwing {

namespace {

constexpr int kHautEcran = 2; // mm over the list

} // namespace

frmnervure::frmnervure(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmnervure", kAideCalculs, parent) {
    NameAll();
    LayOut();
    Form_Load();
    ConnectAll();
}

void frmnervure::Form_Load() {
    PoseTextes();
    cmdprintnerv.setEnabled(false);
    SelectField(txtnerv[kNervCordeMaj]);
}

void frmnervure::PoseTextes() {
    AdmetLongueurs(txtnerv);
    txtnerv[kNervNbInter].SetNotation({}); // a count
    setWindowTitle(Q(programme_.Text({"FrmNervure", "1"}) + " " + programme_.settings.Unite));
    Label1.setText(Mot({"FrmNervure", "7"}));
    Label2.setText(Mot({"FrmNervure", "4"}));
    Label3.setText(Mot({"FrmNervure", "5"}));
    Label4[0].setText(Mot({"FrmNervure", "2"}));
    Label4[1].setText(Mot({"FrmNervure", "2"}));
    Label5.setText(Mot({"FrmNervure", "3"}));
    Label6.setText(Mot({"FrmNervure", "6"}));
    Label7.setText(Mot({"FrmNervure", "8"}));
    Label10.setText(Mot({"FrmNervure", "9"}));
    Label11.setText(Mot({"FrmNervure", "10"}));
    Label12.setText(Mot({"FrmNervure", "11"}));
    NommePourLecteurs();
    cmdcalcul.setText(Mot({"TextButton", "6"}));
    cmdprintnerv.setText(Mot({"TextButton", "14"}));
    PoseMotsPartages();
}

/// Names for screen readers. The two spar places have the same caption; the sketch tells them
/// apart.
void frmnervure::NommePourLecteurs() {
    NommeEsquisse(Image1);
    Liste.setAccessibleName(Mot({"FrmNervure", "1"}));
    Vbar.setAccessibleName(Mot({"MainTolbar", "243"}));
    txtnerv[kNervLongeronMaj].setAccessibleName(Label4[0].text() + ", " + Label2.text());
    txtnerv[kNervLongeronMin].setAccessibleName(Label4[1].text() + ", " + Label3.text());
}

void frmnervure::Calcule() {
    cmdprintnerv.setEnabled(false);
    calcule_ = false;
    Liste.Montre(nullptr);
    Lblecart.clear();
    Label12.show();
    const auto refused =
        CalculeNervures(panneau_, FieldTexts(txtnerv), programme_.SaisieEnCours(), Titre());
    if (refused) {
        SelectField(At(txtnerv, *refused));
        return;
    }
    Lblecart.setText(Q(TexteEcart(panneau_, programme_.settings.Unite)));
    txtnerv[kNervNbInter].setText(QString::number(panneau_.NbInter));
    cmdprintnerv.setEnabled(true);
    Label12.setVisible(!SansLongeron(panneau_));
    calcule_ = true;
    Vbar.setValue(0); // the list before may have been longer
    Trace();
}

/// Draws what is seen of the list: it may have thousands of ribs.
void frmnervure::Trace() {
    if (!calcule_) {
        return;
    }
    place_.HautListe = kHautEcran;
    place_.bas = Liste.Bas();
    auto drawing = std::make_unique<Recording>();
    TraceListe(*drawing, panneau_, programme_.settings.Unite, place_);
    Liste.Montre(std::move(drawing));
}

void frmnervure::cmdcalcul_Click() {
    Garde(" cmdcalcul", [this] { Calcule(); });
}

void frmnervure::cmdprintnerv_Click() {
    // On paper the list has a place of its own; the one on the screen stays where it is.
    Garde(" cmdprintnerv",
          [this] { ImprimeNervures(panneau_, programme_.SaisieEnCours(), Titre()); });
}

void frmnervure::Vbar_Change(int value) {
    place_.DecalListe = -value;
    Garde(" Vbar", [this] { Trace(); });
}

void frmnervure::ConnectAll() {
    connect(&cmdcalcul, &QPushButton::clicked, this, &frmnervure::cmdcalcul_Click);
    connect(&cmdprintnerv, &QPushButton::clicked, this, &frmnervure::cmdprintnerv_Click);
    connect(&Vbar, &QScrollBar::valueChanged, this, &frmnervure::Vbar_Change);
    connect(&Liste, &PicNervures::Redimensionne, this,
            [this] { Garde(" PicNervures", [this] { Trace(); }); });
    connect(&Liste, &PicNervures::Roule, this,
            [this](int notches) { Vbar.setValue(Vbar.value() - notches); });
}

} // namespace loftwing
