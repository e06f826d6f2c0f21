#include "utilities/qt_rib_set_dialog.h"

#include "core/units.h"
#include "persist/default_entry.h"
#include "platform/busy_pointer.h"
#include "utilities/tool_files.h"

#include <QHBoxLayout>
#include <QProgressDialog>

namespace loftwing {

namespace {

constexpr const char *kEtiquette = " RibEvol/SaveProfil";
constexpr const char *kLongueurUsuelle = "1234.31/64--"; // a field has room for this
constexpr int kLettresDossier = 45;
constexpr int kDelai = 500; // milliseconds before the progress is shown

} // namespace

RibSetDialog::RibSetDialog(Programme &programme, MainView &view, int aide, QWidget *parent)
    : QDialog(parent), programme_(programme), view_(view) {
    NommeCommuns();
    PoseMotsCommuns();
    for (int i = 0; i < 2; ++i) {
        connect(&At(cmdouvrir, i), &QPushButton::clicked, this, [this, i] { cmdouvrir_Click(i); });
    }
    connect(&cmdrechercheevol, &QPushButton::clicked, this, &RibSetDialog::cmdrechercheevol_Click);
    connect(&cmdcalcul, &QPushButton::clicked, this, &RibSetDialog::cmdcalcul_Click);
    connect(&cmdfermer, &QPushButton::clicked, this, &RibSetDialog::cmdfermer_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, aide);
}

void RibSetDialog::NommeCommuns() {
    NameControls(Frame1, "Frame1");
    NameControls(Label1, "Label1");
    NameControls(txtprofil, "txtprofil");
    NameControls(cmdouvrir, "cmdouvrir");
    NameControls(Label2, "Label2");
    NameControls(txtcorde, "txtcorde");
    const std::pair<QObject *, const char *> names[] = {
        {&Lblsav, "Lblsav"},       {&txtdefprofevol, "txtdefprofevol"},
        {&cmdcalcul, "cmdcalcul"}, {&cmdrechercheevol, "cmdrechercheevol"},
        {&cmdfermer, "cmdfermer"}, {&cmdaide, "cmdaide"},
    };
    for (const auto &[control, name] : names) {
        NameControl(*control, name);
    }
}

void RibSetDialog::PoseMotsCommuns() {
    const auto word = [this](LngKey key) { return Q(programme_.Text(key)); };
    for (QPushButton *browse : {&cmdouvrir[0], &cmdouvrir[1], &cmdrechercheevol}) {
        browse->setText(word({"FrmDefaut", "14"}));
        SetTip(*browse, programme_.Text({"TextButton", "7"}));
    }
    Lblsav.setText(word({"FrmDefaut", "15"}));
    cmdcalcul.setText(word({"TextButton", "6"}));
    SetTip(cmdcalcul, programme_.Text({"TextButton", "6T"}));
    SetButtonWord(cmdfermer, programme_.language, SharedWord::close);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
    for (NumericField &field : txtcorde) {
        field.SetKeys(
            TouchesSelonUnite(programme_.settings.Unite, kTouchesPositif, kTouchesFraction));
    }
    txtdefprofevol.setText(Q(programme_.settings.repertoires.RepProfilevol));
}

void RibSetDialog::Elargit(QLineEdit &field) {
    field.setMinimumWidth(field.fontMetrics().horizontalAdvance(kLongueurUsuelle));
}

void RibSetDialog::Rangee(QGridLayout &grid, int row, QLabel &caption, QLineEdit &field,
                          QWidget *behind) {
    caption.setTextFormat(Qt::PlainText);
    caption.setBuddy(&field);
    Elargit(field);
    grid.addWidget(&caption, row, 0);
    grid.addWidget(&field, row, 1);
    if (behind != nullptr) {
        grid.addWidget(behind, row, 2);
    }
}

QGridLayout &RibSetDialog::Grille(std::size_t end) {
    const auto index = static_cast<long>(end);
    auto *grid = new QGridLayout(&At(Frame1, index));
    QLineEdit &name = At(txtprofil, index);
    Rangee(*grid, 0, At(Label1, index), name, &At(cmdouvrir, index));
    Rangee(*grid, 1, At(Label2, index), At(txtcorde, index), nullptr);
    MakeNameDisplay(name, kNameLetters);
    return *grid;
}

void RibSetDialog::PoseBas(QVBoxLayout &rows) {
    auto *folder = new QHBoxLayout;
    folder->addWidget(&Lblsav);
    folder->addWidget(&txtdefprofevol, 1);
    folder->addWidget(&cmdrechercheevol);
    Lblsav.setTextFormat(Qt::PlainText);
    Lblsav.setBuddy(&txtdefprofevol);
    MakeNameDisplay(txtdefprofevol, kLettresDossier);
    rows.addLayout(folder);
    rows.addStretch();
    rows.addLayout(ButtonRow({&cmdcalcul, &cmdfermer, &cmdaide}));
    cmdcalcul.setDefault(true);
}

void RibSetDialog::cmdouvrir_Click(int index) {
    Essaie([this, index] {
        const LngKey titre = index == 0 ? LngKey{"FrmRibevol", "10"} : LngKey{"FrmRibevol", "11"};
        const auto chosen = view_.ChoisitProfil(programme_.Text(titre));
        if (!chosen) {
            return;
        }
        At(profils_, index) = index == 0 ? ProfilMajeur(*chosen) : ProfilMineur(*chosen);
        At(txtprofil, index).setText(Q(chosen->NomProfil));
    });
}

void RibSetDialog::cmdrechercheevol_Click() {
    Essaie([this] {
        const std::string chosen = ChoisitDossier(S(txtdefprofevol.text()), programme_.messages);
        if (!chosen.empty()) {
            txtdefprofevol.setText(Q(chosen));
            RangeDossierJeux(programme_.settings.repertoires, chosen, programme_.paths.fichier,
                             programme_.platform);
        }
    });
}

bool RibSetDialog::Refuse(const std::optional<RefusJeu> &refus) {
    if (!refus) {
        return false;
    }
    programme_.messages.Tell(refus->text, Titre(), refus->icon);
    if (QLineEdit *field = Champ(refus->champ)) {
        SelectField(*field);
    }
    return true;
}

bool RibSetDialog::Essaie(const std::function<void()> &action) {
    try {
        action();
        return true;
    } catch (const Failure &failure) {
        programme_.platform.SetPointer(Pointer::normal);
        RapporteEcriture(programme_.messages, failure, kEtiquette);
        return false;
    }
}

void RibSetDialog::cmdcalcul_Click() {
    Essaie([this] { Calcule(); });
}

const std::string &RibSetDialog::Dossier() {
    std::string &folder = programme_.settings.repertoires.RepProfilevol;
    TermineDossier(folder);
    return folder;
}

/// The rib files, with a progress where they take long.
void RibSetDialog::EcritFichiers(const JeuDeNervures &jeu) {
    const Sablier sablier(programme_.platform);
    QProgressDialog progress(this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setWindowTitle(windowTitle());
    progress.setLabelText(Q(programme_.Text({"FrmRibevol", "21"})) + " " +
                          Q(programme_.Text({"FrmRibevol", "22"})));
    progress.setCancelButton(nullptr);
    progress.setMinimumDuration(kDelai);
    progress.setMaximum(static_cast<int>(jeu.nervures.size()));
    progress.setValue(0);
    SaveProfil(jeu, programme_.messages, [&progress](int done, int) { progress.setValue(done); });
}

/// What writes; a failure there costs the window and the rib. True when it went well.
bool RibSetDialog::EssaieEcrire(const std::function<void()> &action) {
    if (Essaie(action)) {
        return true;
    }
    QDialog::reject();
    view_.affclear();
    return false;
}

void RibSetDialog::Ecrit(const JeuDeNervures &jeu, const std::string &resultat) {
    if (EssaieEcrire([&] { EcritFichiers(jeu); })) {
        programme_.messages.Inform(resultat, Titre());
        EssaieEcrire([&] { EcritResume(jeu); });
    }
}

void RibSetDialog::cmdfermer_Click() {
    programme_.messages.Garde(" RibEvol/Close", [this] { view_.mnu_affclear_Click(); });
    QDialog::reject();
}

void RibSetDialog::reject() {
    cmdfermer_Click();
}

} // namespace loftwing
