#include "persist/frmdefaut.h"

#include "base/number_text.h"
#include "lang/ini_file.h"
#include "programme/rib_trial.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace loftwing {

namespace {

constexpr int kAide = 70;
constexpr int kEcart = 8;                               // pixels that set the units off
constexpr const char *kLongueurUsuelle = "-12.31/64--"; // a field has room for this
constexpr int kUsualLetters = 45;                       // room for the path of a folder

} // namespace

frmdefaut::frmdefaut(Programme &programme, MainView &view, QWidget *parent)
    : QDialog(parent), programme_(programme), view_(view), unite_avant_(programme.settings.Unite),
      page_avant_(programme.settings.page) {
    NameAll();
    LayOut();
    Form_Load();
    ConnectAll();
}

void frmdefaut::Form_Load() {
    programme_.rib.Annule = false;
    PoseTextes();
    MontreUnite();
    MontreFichier();
    txtdefprof.setText(Q(programme_.settings.repertoires.RepProfil));
    txtdefprofevol.setText(Q(programme_.settings.repertoires.RepProfilevol));
    SelectField(txtdef[kDefautCorde]);
}

void frmdefaut::PoseTextes() {
    const LngIni &language = programme_.language;
    setWindowTitle(Q(programme_.Text({"FrmDefaut", "1"})));
    Label2[kDefautCorde].setText(Q(programme_.Text({"FrmDefaut", "2"})));
    Label2[kDefautCoffrage].setText(Q(programme_.Text({"FrmDefaut", "3"})));
    Label2[kDefautBA].setText(Q(programme_.Text({"FrmDefaut", "4"})));
    Label2[kDefautHTbloc].setText(Q(programme_.Text({"FrmDefaut", "5"})));
    Label2[kDefautBAbloc].setText(Q(programme_.Text({"FrmDefaut", "6"})));
    Label2[kDefautBFbloc].setText(Q(programme_.Text({"FrmDefaut", "7"})));
    Frame5.setTitle(Q(programme_.Text({"FrmDefaut", "8"})));
    inches.setText(Q(programme_.Text({"FrmDefaut", "9"})));
    mm.setText(Q(programme_.Text({"FrmDefaut", "10"})));
    Frame3.setTitle(Q(programme_.Text({"FrmDefaut", "11"})));
    Frame4.setTitle(Q(programme_.Text({"FrmDefaut", "12"})));
    cmdok.setText(Q(programme_.Text({"FrmDefaut", "13"})));
    for (QPushButton *browse : {&cmdrecherche, &cmdrechercheevol}) {
        browse->setText(Q(programme_.Text({"FrmDefaut", "14"})));
    }
    SetButtonWord(cmdannuler, language, SharedWord::cancel);
    SetButtonWord(cmdaide, language, SharedWord::help);
    txtdefprof.setAccessibleName(Frame3.title());
    txtdefprofevol.setAccessibleName(Frame4.title());
    cmdrecherche.setAccessibleDescription(Frame3.title());
    cmdrechercheevol.setAccessibleDescription(Frame4.title());
}

void frmdefaut::MontreLongueurs(const TextesDefaut &texts) {
    for (int i = 0; i < kChampsDefaut; ++i) {
        At(txtdef, i).setText(Q(At(texts, i)));
    }
}

/// The lengths on file, not those of the rib, which has its own by now.
void frmdefaut::MontreFichier() {
    programme_.messages.Garde(
        " GetINIFile", [this] { MontreLongueurs(LitTextesDefaut(programme_.paths.fichier)); });
}

/// Marks the unit in force, here only.
void frmdefaut::MontreUnite() {
    const std::string &Unite = programme_.settings.Unite;
    const QSignalBlocker english(inches);
    const QSignalBlocker metric(mm);
    QRadioButton &chosen = Unite == kUniteIn ? inches : mm;
    chosen.setChecked(true);
    // Tab leads to the unit in force, not past it to one that a key press would choose.
    inches.setFocusPolicy(Qt::ClickFocus);
    mm.setFocusPolicy(Qt::ClickFocus);
    chosen.setFocusPolicy(Qt::StrongFocus);
    for (QLabel &label : Label1) {
        label.setText(Q(Unite));
    }
    for (NumericField &field : txtdef) {
        field.SetKeys(TouchesSelonUnite(Unite, kTouchesPositif, kTouchesFraction));
    }
}

void frmdefaut::PrendUnite(std::string_view Unite) {
    unite_acceptee_ = false;
    MontreLongueurs(ChoisitUnite(programme_.settings, Unite, programme_.messages));
    MontreUnite();
}

void frmdefaut::mm_Click() {
    programme_.messages.Garde(" Defaut/mm", [this] { PrendUnite(kUniteMm); });
}

void frmdefaut::inches_Click() {
    programme_.messages.Garde(" Defaut/inches", [this] { PrendUnite(kUniteIn); });
}

/// After a No: unit, page and fields as the dialog found them.
void frmdefaut::RemetUnite() {
    programme_.settings.Unite = unite_avant_;
    programme_.settings.page = page_avant_;
    MontreUnite();
    MontreFichier();
    view_.AfficheUnite();
}

/// Whether the unit that is chosen may stay. A Yes holds for as long as that choice stands, so that
/// a chord that has to be typed again doesn't bring the question back.
bool frmdefaut::AccepteUnite() {
    const bool changed = programme_.settings.Unite != unite_avant_;
    if (changed && !unite_acceptee_ && !ConfirmeUnite(programme_.messages)) {
        return false;
    }
    unite_acceptee_ = changed;
    return true;
}

TextesDefaut frmdefaut::TextesTapes() const {
    TextesDefaut typed;
    std::transform(txtdef.begin(), txtdef.end(), typed.begin(),
                   [](const NumericField &field) { return S(field.text()); });
    return typed;
}

/// Whether the settings file has the unit that was chosen: clearing the rib reads it from there.
bool frmdefaut::UniteGardee() const {
    const std::string kept = GetINIFile("Defaut", "unit", programme_.paths.fichier);
    return Trim(kept) == Trim(programme_.settings.Unite);
}

void frmdefaut::Enregistre() {
    if (!AccepteUnite()) {
        RemetUnite();
        return;
    }
    const auto back = RetourDuRib(programme_.rib);
    const FinDefauts fin = PrendDefauts(programme_.rib, TextesTapes(), programme_.SaisieEnCours());
    if (fin == FinDefauts::sans_corde) {
        SelectField(txtdef[kDefautCorde]);
        return;
    }
    EcritDefauts(programme_.ReglagesEnCours());
    EcritMarges(programme_.ReglagesEnCours());
    if (unite_acceptee_ && !UniteGardee()) {
        back();
        RemetUnite();
        throw MakeFailure(kPathFileAccess, programme_.paths.fichier);
    }
    RangeDossiers(programme_.settings.repertoires, S(txtdefprof.text()), S(txtdefprofevol.text()),
                  programme_.paths.fichier, programme_.platform);
    if (unite_acceptee_) {
        view_.affclear();
    } else if (!RibTracable(programme_, S(windowTitle()))) {
        back(); // the defaults are for the next rib; this one can't do with them
    }
    view_.AfficheUnite();
    view_.AfficheCorde();
    accept();
}

void frmdefaut::cmdok_Click() {
    programme_.messages.Garde(" Defaut/OK", [this] { Enregistre(); });
}

/// Leaves the page that a click on a unit has set: it holds until settings are read again.
void frmdefaut::cmdannuler_Click() {
    programme_.rib.Annule = true;
    programme_.settings.Unite = unite_avant_;
    view_.AfficheUnite();
    QDialog::reject();
}

void frmdefaut::reject() {
    cmdannuler_Click();
}

/// Lets the user choose a folder; it counts at once, a cancelled choice changes nothing.
void frmdefaut::ChoisitDossier(NumericField &field, std::string &folder) {
    programme_.messages.Garde(" Defaut/Folder", [this, &field, &folder] {
        const std::string chosen = loftwing::ChoisitDossier(S(field.text()), programme_.messages);
        if (!chosen.empty()) {
            field.setText(Q(chosen));
            folder = chosen;
        }
    });
}

void frmdefaut::cmdrecherche_Click() {
    ChoisitDossier(txtdefprof, programme_.settings.repertoires.RepProfil);
}

void frmdefaut::cmdrechercheevol_Click() {
    ChoisitDossier(txtdefprofevol, programme_.settings.repertoires.RepProfilevol);
}

void frmdefaut::NameAll() {
    NameControl(*this, "frmdefaut");
    const std::pair<QObject *, const char *> names[] = {
        {&Frame5, "Frame5"},
        {&Frame3, "Frame3"},
        {&Frame4, "Frame4"},
        {&inches, "inches"},
        {&mm, "mm"},
        {&txtdefprof, "txtdefprof"},
        {&cmdrecherche, "cmdrecherche"},
        {&txtdefprofevol, "txtdefprofevol"},
        {&cmdrechercheevol, "cmdrechercheevol"},
        {&cmdok, "cmdok"},
        {&cmdannuler, "cmdannuler"},
        {&cmdaide, "cmdaide"},
    };
    for (const auto &[control, name] : names) {
        NameControl(*control, name);
    }
    NameControls(Label2, "Label2");
    NameControls(txtdef, "txtdef");
    NameControls(Label1, "Label1");
}

void frmdefaut::ConnectAll() {
    // A unit that is chosen already is no choice: what was typed stays.
    connect(&mm, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) {
            mm_Click();
        }
    });
    connect(&inches, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) {
            inches_Click();
        }
    });
    connect(&cmdrecherche, &QPushButton::clicked, this, &frmdefaut::cmdrecherche_Click);
    connect(&cmdrechercheevol, &QPushButton::clicked, this, &frmdefaut::cmdrechercheevol_Click);
    connect(&cmdok, &QPushButton::clicked, this, &frmdefaut::cmdok_Click);
    connect(&cmdannuler, &QPushButton::clicked, this, &frmdefaut::cmdannuler_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, kAide);
}

void frmdefaut::LayOut() {
    auto *rows = new QVBoxLayout(this);
    auto *lengths = new QGridLayout;
    for (int i = 0; i < kChampsDefaut; ++i) {
        lengths->addWidget(&At(Label2, i), i, 0);
        lengths->addWidget(&At(txtdef, i), i, 1);
        lengths->addWidget(&At(Label1, i), i, 2);
        At(txtdef, i).setMinimumWidth(fontMetrics().horizontalAdvance(kLongueurUsuelle));
        At(Label2, i).setBuddy(&At(txtdef, i));
        At(Label2, i).setTextFormat(Qt::PlainText);
        At(Label1, i).setTextFormat(Qt::PlainText);
    }
    auto *units = new QVBoxLayout(&Frame5);
    units->addWidget(&inches);
    units->addWidget(&mm);
    auto *right = new QVBoxLayout;
    right->addWidget(&Frame5);
    right->addStretch();
    auto *above = new QHBoxLayout;
    above->addLayout(lengths, 1);
    above->addSpacing(kEcart);
    above->addLayout(right);
    rows->addLayout(above);
    LayOutFolder(Frame3, txtdefprof, cmdrecherche);
    LayOutFolder(Frame4, txtdefprofevol, cmdrechercheevol);
    rows->addWidget(&Frame3);
    rows->addWidget(&Frame4);
    rows->addStretch();
    rows->addLayout(ButtonRow({&cmdok, &cmdannuler, &cmdaide}));
    cmdok.setDefault(true);
}

void frmdefaut::LayOutFolder(QGroupBox &frame, NumericField &field, QPushButton &browse) {
    auto *row = new QHBoxLayout(&frame);
    row->addWidget(&field, 1);
    row->addWidget(&browse);
    // A path takes every character.
    field.setInputMethodHints(Qt::ImhNoPredictiveText);
    field.setMinimumWidth(fontMetrics().averageCharWidth() * kUsualLetters);
}

} // namespace loftwing
