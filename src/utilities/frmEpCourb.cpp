#include "utilities/frmEpCourb.h"

#include "lang/aide.h"
#include "platform/busy_pointer.h"
#include "platform/qt_title.h"
#include "utilities/tool_files.h"

#include <optional>

namespace loftwing {

frmEpCourb::frmEpCourb(Programme &programme, MainView &view, QWidget *parent)
    : Dialogue(programme, "frmEpCourb", kAideCalculs, parent), view_(view) {
    NameAll();
    LayOut();
    PoseTextes();
    Form_Load();
    connect(&cmdsave, &QPushButton::clicked, this, &frmEpCourb::cmdsave_Click);
    connect(&cmdprintEC, &QPushButton::clicked, this, &frmEpCourb::cmdprintEC_Click);
}

void frmEpCourb::Form_Load() {
    RibModel &rib = programme_.rib;
    setWindowTitle(TitreDeFenetre(TitreEpCourb(rib, programme_.messages)));
    Garde(" EpCourb/Load", [this, &rib] {
        const TextesEpCourb shown = OuvreEpCourb(rib, programme_.settings.Unite);
        txtEpROr.setText(Q(shown.txtEpROr));
        txtCourbureOr.setText(Q(shown.txtCourbureOr));
        Label4.setText(Q(shown.Label4));
        Label5.setText(Q(shown.Label5));
        txtEpR.setText(Q(shown.champs.txtEpR));
        txtCourbure.setText(Q(shown.champs.txtCourbure));
    });
    SelectField(txtEpR);
}

void frmEpCourb::PoseTextes() {
    Label3[0].setText(Mot({"FrmEpCourb", "2"}));
    Label1.setText(Mot({"FrmEpCourb", "3"}));
    Label2.setText(Mot({"FrmEpCourb", "4"}));
    Label3[1].setText(Mot({"FrmEpCourb", "5"}));
    const auto name = [](QLineEdit &field, const QLabel &airfoil, const QLabel &measure) {
        field.setAccessibleName(airfoil.text() + ", " + measure.text());
    };
    name(txtEpROr, Label3[0], Label1);
    name(txtCourbureOr, Label3[0], Label2);
    name(txtEpR, Label3[1], Label1);
    name(txtCourbure, Label3[1], Label2);
    cmdsave.setText(Mot({"TextButton", "10"}));
    SetTip(cmdsave, programme_.Text({"FrmEpCourb", "6"}));
    cmdprintEC.setText(Mot({"TextButton", "14"}));
    // Percentages: no fraction even in inches.
    txtEpR.SetKeys(kTouchesPositif);
    txtCourbure.SetKeys(kTouchesPositif);
}

ChampsEpCourb frmEpCourb::Champs() const {
    return {S(txtEpR.text()), S(txtCourbure.text())};
}

EssaiDuRib frmEpCourb::Essai() {
    return [this](RibModel &rib, const Saisie &saisie) {
        ChampsEpCourb champs = Champs();
        return AppliqueEpCourb(rib, champs, saisie.messages, Titre());
    };
}

void frmEpCourb::Avertit(const std::string &text) const {
    programme_.messages.Tell(text, Titre(), BoxIcon::warning);
}

void frmEpCourb::Applique() {
    RibModel &rib = programme_.rib;
    ChampsEpCourb champs = Champs();
    const bool applied = AppliqueEpCourb(rib, champs, programme_.messages, Titre());
    txtEpR.setText(Q(champs.txtEpR));
    txtCourbure.setText(Q(champs.txtCourbure));
    if (!applied) {
        return;
    }
    appliques_ = champs;
    Label5.setText(Q(TexteEpaisseurMaxi(rib, rib.NouvEpaisseur, programme_.settings.Unite)));
    view_.afficheEpcourb();
    if (!rib.ProfilCharge) {
        // A drawing that failed has cleared the rib, and nothing is left to be changed.
        Renonce();
    }
}

/// Takes what was typed since Apply, for the name and the title of the file are made of the fields
/// and its points of what was applied. Applying the same again would round it twice.
bool frmEpCourb::AppliqueSaisie() {
    if (Champs() != appliques_) {
        Applique();
    }
    return isVisible() && programme_.rib.ModeEpCourb;
}

void frmEpCourb::Sauve() {
    if (!programme_.rib.ModeEpCourb) {
        Avertit(programme_.Text({"FrmEpCourb", "15"}));
        return;
    }
    if (!AppliqueSaisie()) {
        return;
    }
    std::string &folder = programme_.settings.repertoires.RepProfilevol;
    TermineDossier(folder);
    FileQuestion question;
    question.title = programme_.Text({"FrmEpCourb", "16"});
    question.folder = folder;
    question.name = NomEpCourb(programme_.rib, Champs());
    question.filter_text = programme_.Text({"filedxf", "3"}) + " (*.dat)";
    question.default_extension = "dat";
    const std::string path = programme_.platform.ChooseSaveFile(question);
    if (!path.empty()) {
        FichierEpCourb = path;
        EpCourbSauve = true;
        Ecrit(path);
    }
}

void frmEpCourb::Ecrit(const std::string &path) {
    std::optional<Failure> failed;
    {
        // Gone before the box of a failure: that one waits for the user.
        const Sablier sablier(programme_.platform);
        try {
            EcritFichier(path, TexteEpCourb(programme_.rib, Champs(), programme_.messages),
                         Flush::yes);
        } catch (const Failure &failure) {
            failed = failure;
        }
    }
    if (failed) {
        EpCourbSauve = false; // there is no file that OK could open
        RapporteEcriture(programme_.messages, *failed, " EpCourb/Save");
    }
}

void frmEpCourb::CmdApply_Click() {
    Seul(" EpCourb/Apply", [this] { Applique(); });
}

void frmEpCourb::cmdsave_Click() {
    Seul(" EpCourb/Save", [this] { Sauve(); });
}

void frmEpCourb::cmdprintEC_Click() {
    Seul(" EpCourb/Print", [this] {
        if (!programme_.rib.ModeEpCourb) {
            Avertit(programme_.Text({"FrmEpCourb", "15"}));
            return;
        }
        const Sablier sablier(programme_.platform);
        view_.mnu_fileprint_Click();
    });
}

void frmEpCourb::cmdok_Click() {
    Seul(" EpCourb/OK", [this] {
        Applique();
        if (!isVisible()) {
            return;
        }
        if (!EpCourbSauve) {
            Sauve();
        }
        if (!EpCourbSauve) {
            Avertit(programme_.Text({"FrmEpCourb", "14"}));
            return;
        }
        accept();
    });
}

void frmEpCourb::cmdannuler_Click() {
    Seul(" EpCourb/Cancel", [this] {
        RibModel &rib = programme_.rib;
        rib.ModeEpCourb = false;
        rib.NouvEpaisseur = 0;
        rib.NouvCambrure = 0;
        view_.affclear();
        Renonce();
    });
}

} // namespace loftwing
