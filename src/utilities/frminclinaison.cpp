#include "utilities/frminclinaison.h"

#include "core/units.h"
#include "lang/aide.h"
#include "utilities/tool_files.h"

namespace loftwing {

frminclinaison::frminclinaison(Programme &programme, MainView &view, QWidget *parent)
    : Dialogue(programme, "frminclinaison", kAideInclinaison, parent), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    connect(&cmdouvrir, &QPushButton::clicked, this, &frminclinaison::cmdouvrir_Click);
}

void frminclinaison::Form_Load() {
    setWindowTitle(Mot({"FrmInclinaisonNervure", "1"}));
    Label1.setText(Mot({"FrmInclinaisonNervure", "2"}));
    Label2.setText(Mot({"FrmInclinaisonNervure", "3"}));
    Label3.setText(Mot({"FrmInclinaisonNervure", "4"}));
    Label4.setText(Mot({"FrmInclinaisonNervure", "5"}));
    NommeEsquisse(Picture1);
    txtprofil.setAccessibleName(Label1.text());
    cmdouvrir.setText(Mot({"FrmDefaut", "14"}));
    SetTip(cmdouvrir, programme_.Text({"FrmInclinaisonNervure", "5T"}));
    Bouton(SharedWord::ok).setText(Mot({"TextButton", "6"}));
    SetTip(Bouton(SharedWord::ok), programme_.Text({"TextButton", "6T"}));
    Text1.SetKeys(kTouchesPositif);
    SelectField(Text1);
}

void frminclinaison::cmdouvrir_Click() {
    Garde(" Angle/Open", [this] {
        if (const auto chosen =
                view_.ChoisitProfil(programme_.Text({"FrmInclinaisonNervure", "1"}))) {
            profil_ = *chosen;
            txtprofil.setText(Q(profil_.NomProfil));
        }
    });
}

/// The typed angle, nothing when it was refused.
std::optional<float> frminclinaison::Angle() {
    std::optional<float> angle;
    try {
        angle = PrendAngleDiedre(S(Text1.text()), programme_.messages, Titre());
    } catch (const Failure &failure) {
        RapporteAngle(programme_.messages, failure);
    }
    if (!angle) {
        SelectField(Text1);
    }
    return angle;
}

void frminclinaison::Enregistre(float AngleDiedre) {
    const FileQuestion question = QuestionProfil(programme_.Text({"FrmInclinaisonNervure", "14"}),
                                                 programme_.Text({"FrmInclinaisonNervure", "15"}),
                                                 programme_.settings.repertoires.RepProfilevol,
                                                 NomIncline(profil_.NomProfil, AngleDiedre));
    if (!EnregistreProfil(programme_.messages, question,
                          [&] { return TexteIncline(AngleDiedre, profil_); })) {
        view_.affclear();
    }
}

void frminclinaison::cmdok_Click() {
    const std::optional<float> angle = Angle();
    if (!angle) {
        return;
    }
    if (txtprofil.text().isEmpty()) {
        programme_.messages.Inform(programme_.Text({"FrmInclinaisonNervure", "8"}), Titre());
        return;
    }
    Garde(" Angle/OK", [this, &angle] { Enregistre(*angle); });
}

} // namespace loftwing
