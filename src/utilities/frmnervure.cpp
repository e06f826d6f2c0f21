#include "utilities/frmnervure.h"

namespace loftwing {

namespace {

constexpr int kAide = 60;
constexpr int kHautEcran = 2; // mm over the list

} // namespace

frmnervure::frmnervure(Programme &programme, QWidget *parent)
    : QDialog(parent), programme_(programme) {
    NameAll();
    LayOut();
    Form_Load();
    ConnectAll();
}

void frmnervure::Form_Load() {
    PoseTextes();
    for (NumericField &field : txtnerv) {
        field.SetKeys(
            TouchesSelonUnite(programme_.settings.Unite, kTouchesPositif, kTouchesFraction));
    }
    cmdprintnerv.setEnabled(false);
    SelectField(txtnerv[kNervCordeMaj]);
}

void frmnervure::PoseTextes() {
    const auto word = [this](LngKey key) { return Q(programme_.Text(key)); };
    setWindowTitle(Q(programme_.Text({"FrmNervure", "1"}) + " " + programme_.settings.Unite));
    Label1.setText(word({"FrmNervure", "7"}));
    Label2.setText(word({"FrmNervure", "4"}));
    Label3.setText(word({"FrmNervure", "5"}));
    Label4[0].setText(word({"FrmNervure", "2"}));
    Label4[1].setText(word({"FrmNervure", "2"}));
    Label5.setText(word({"FrmNervure", "3"}));
    Label6.setText(word({"FrmNervure", "6"}));
    Label7.setText(word({"FrmNervure", "8"}));
    Label10.setText(word({"FrmNervure", "9"}));
    Label11.setText(word({"FrmNervure", "10"}));
    Label12.setText(word({"FrmNervure", "11"}));
    Liste.setAccessibleName(word({"FrmNervure", "1"}));
    cmdcalcul.setText(word({"TextButton", "6"}));
    cmdprintnerv.setText(word({"TextButton", "14"}));
    SetButtonWord(cmdfermer, programme_.language, SharedWord::close);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
}

TextesNervure frmnervure::TextesTapes() const {
    TextesNervure typed;
    for (int i = 0; i < kChampsNervure; ++i) {
        At(typed, i) = S(At(txtnerv, i).text());
    }
    return typed;
}

void frmnervure::Calcule() {
    cmdprintnerv.setEnabled(false);
    calcule_ = false;
    Liste.Montre(nullptr);
    Lblecart.clear();
    Label12.show();
    const auto refused =
        CalculeNervures(panneau_, TextesTapes(), programme_.SaisieEnCours(), Titre());
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
    programme_.messages.Garde(" cmdcalcul", [this] { Calcule(); });
}

void frmnervure::cmdprintnerv_Click() {
    // On paper the list has a place of its own; the one on the screen stays where it is.
    programme_.messages.Garde(" cmdprintnerv", [this] {
        ImprimeNervures(panneau_, programme_.SaisieEnCours(), Titre());
    });
}

void frmnervure::cmdfermer_Click() {
    reject();
}

void frmnervure::Vbar_Change(int value) {
    place_.DecalListe = -value;
    programme_.messages.Garde(" Vbar", [this] { Trace(); });
}

void frmnervure::ConnectAll() {
    connect(&cmdcalcul, &QPushButton::clicked, this, &frmnervure::cmdcalcul_Click);
    connect(&cmdprintnerv, &QPushButton::clicked, this, &frmnervure::cmdprintnerv_Click);
    connect(&cmdfermer, &QPushButton::clicked, this, &frmnervure::cmdfermer_Click);
    connect(&Vbar, &QScrollBar::valueChanged, this, &frmnervure::Vbar_Change);
    connect(&Liste, &PicNervures::Redimensionne, this,
            [this] { programme_.messages.Garde(" PicNervures", [this] { Trace(); }); });
    connect(&Liste, &PicNervures::Roule, this,
            [this](int notches) { Vbar.setValue(Vbar.value() - notches); });
    ConnectHelp(*this, cmdaide, programme_.platform, kAide);
}

} // namespace loftwing
