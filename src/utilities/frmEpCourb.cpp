#include "utilities/frmEpCourb.h"

#include "platform/busy_pointer.h"
#include "utilities/tool_files.h"

#include <QGridLayout>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <optional>

namespace loftwing {

namespace {

constexpr int kAide = 60;
constexpr const char *kValeurUsuelle = "100.00--";

} // namespace

frmEpCourb::frmEpCourb(Programme &programme, MainView &view, QWidget *parent)
    : QDialog(parent), programme_(programme), view_(view) {
    NameAll();
    LayOut();
    PoseTextes();
    Form_Load();
    ConnectAll();
}

void frmEpCourb::Form_Load() {
    RibModel &rib = programme_.rib;
    rib.Annule = false;
    setWindowTitle(Q(TitreEpCourb(rib, programme_.messages)));
    programme_.messages.Garde(" EpCourb/Load", [this, &rib] {
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
    const auto word = [this](LngKey key) { return Q(programme_.Text(key)); };
    Label3[0].setText(word({"FrmEpCourb", "2"}));
    Label1.setText(word({"FrmEpCourb", "3"}));
    Label2.setText(word({"FrmEpCourb", "4"}));
    Label3[1].setText(word({"FrmEpCourb", "5"}));
    cmdsave.setText(word({"TextButton", "10"}));
    SetTip(cmdsave, programme_.Text({"FrmEpCourb", "6"}));
    cmdprintEC.setText(word({"TextButton", "14"}));
    SetButtonWord(CmdApply, programme_.language, SharedWord::apply);
    SetButtonWord(cmdok, programme_.language, SharedWord::ok);
    SetButtonWord(cmdannuler, programme_.language, SharedWord::cancel);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
    // Percentages: no fraction even in inches.
    txtEpR.SetKeys(kTouchesPositif);
    txtCourbure.SetKeys(kTouchesPositif);
}

/// Runs `action` unless another one is at work. A failure is told once; the window goes on.
template <class Action>
void frmEpCourb::Seul(const char *label, Action action) {
    if (EnCours) {
        return;
    }
    const QScopedValueRollback<bool> busy(EnCours, true);
    programme_.messages.Garde(label, action);
}

ChampsEpCourb frmEpCourb::Champs() const {
    return {S(txtEpR.text()), S(txtCourbure.text())};
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
    Label5.setText(Q(TexteEpaisseurMaxi(rib, rib.NouvEpaisseur, programme_.settings.Unite)));
    view_.afficheEpcourb();
    if (!rib.ProfilCharge) {
        // A drawing that failed has cleared the rib, and nothing is left to be changed.
        QDialog::reject();
    }
}

void frmEpCourb::Sauve() {
    if (!programme_.rib.ModeEpCourb) {
        Avertit(programme_.Text({"FrmEpCourb", "15"}));
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
            EcritFichier(path, TexteEpCourb(programme_.rib, Champs(), programme_.messages));
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
        QDialog::reject();
    });
}

void frmEpCourb::reject() {
    cmdannuler_Click();
}

void frmEpCourb::NameAll() {
    NameControl(*this, "frmEpCourb");
    const std::pair<QObject *, const char *> names[] = {
        {&Label1, "Label1"},     {&Label2, "Label2"},
        {&Label4, "Label4"},     {&Label5, "Label5"},
        {&txtEpROr, "txtEpROr"}, {&txtCourbureOr, "txtCourbureOr"},
        {&txtEpR, "txtEpR"},     {&txtCourbure, "txtCourbure"},
        {&CmdApply, "CmdApply"}, {&cmdsave, "cmdsave"},
        {&cmdok, "cmdok"},       {&cmdprintEC, "cmdprintEC"},
        {&cmdaide, "cmdaide"},   {&cmdannuler, "cmdannuler"},
    };
    for (const auto &[control, name] : names) {
        NameControl(*control, name);
    }
    NameControls(Label3, "Label3");
}

void frmEpCourb::LayOut() {
    auto *grid = new QGridLayout;
    grid->addWidget(&Label3[0], 0, 1);
    grid->addWidget(&Label3[1], 0, 2);
    grid->addWidget(&Label1, 1, 0);
    grid->addWidget(&txtEpROr, 1, 1);
    grid->addWidget(&txtEpR, 1, 2);
    grid->addWidget(&Label4, 2, 1);
    grid->addWidget(&Label5, 2, 2);
    grid->addWidget(&Label2, 3, 0);
    grid->addWidget(&txtCourbureOr, 3, 1);
    grid->addWidget(&txtCourbure, 3, 2);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    grid->setHorizontalSpacing(grid->horizontalSpacing() * 2);
    for (QLineEdit *field :
         std::initializer_list<QLineEdit *>{&txtEpROr, &txtCourbureOr, &txtEpR, &txtCourbure}) {
        field->setMinimumWidth(fontMetrics().horizontalAdvance(kValeurUsuelle));
        field->setAlignment(Qt::AlignRight);
    }
    for (QLineEdit *shown : {&txtEpROr, &txtCourbureOr}) {
        shown->setReadOnly(true);
        shown->setFocusPolicy(Qt::NoFocus);
        shown->setFrame(false);
        QPalette on_window;
        on_window.setColor(QPalette::Base, Qt::transparent);
        shown->setPalette(on_window);
    }
    for (QLabel *label : {&Label3[0], &Label3[1], &Label4, &Label5}) {
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    for (QLabel *label : {&Label1, &Label2, &Label3[0], &Label3[1], &Label4, &Label5}) {
        label->setTextFormat(Qt::PlainText);
    }
    Label1.setBuddy(&txtEpR);
    Label2.setBuddy(&txtCourbure);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(grid);
    rows->addStretch();
    rows->addLayout(ButtonRow({&CmdApply, &cmdsave, &cmdprintEC, &cmdok, &cmdannuler, &cmdaide}));
    cmdok.setDefault(true);
}

void frmEpCourb::ConnectAll() {
    connect(&CmdApply, &QPushButton::clicked, this, &frmEpCourb::CmdApply_Click);
    connect(&cmdsave, &QPushButton::clicked, this, &frmEpCourb::cmdsave_Click);
    connect(&cmdprintEC, &QPushButton::clicked, this, &frmEpCourb::cmdprintEC_Click);
    connect(&cmdok, &QPushButton::clicked, this, &frmEpCourb::cmdok_Click);
    connect(&cmdannuler, &QPushButton::clicked, this, &frmEpCourb::cmdannuler_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, kAide);
}

} // namespace loftwing
