#include "utilities/frmCoord.h"

#include "lang/aide.h"

#include <QKeyEvent>

#include <algorithm>
#include <functional>

namespace loftwing {

frmCoord::frmCoord(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmCoord", kAideCoord, parent) {
    NameAll();
    LayOut();
    ConnectAll();
    Form_Load();
}

void frmCoord::Form_Load() {
    PoseTextes();
    txtinX.SetKeys(kTouchesPositif);
    txtinY.SetKeys(kTouchesSigne);
    txt[kDiviseur].SetKeys(kTouchesEntier);
    txt[kDiviseur].setText("1");
    SelectField(txt[kNom]);
}

void frmCoord::PoseTextes() {
    setWindowTitle(Mot({"Frmcoord", "1"}));
    Label1[kNom].setText(Mot({"Frmcoord", "2"}));
    Label1[kTitreFichier].setText(Mot({"Frmcoord", "3"}));
    Label1[kDiviseur].setText(Mot({"Frmcoord", "4"}));
    SetTip(txt[kTitreFichier], programme_.Text({"Frmcoord", "3T"}));
    SetTip(txt[kDiviseur], programme_.Text({"Frmcoord", "4T"}));
    Label2.setText(Mot({"Frmcoord", "5"}));
    txtinX.setAccessibleName("X");
    txtinY.setAccessibleName("Y");
    Liste_Valeurs.setAccessibleName(Mot({"Frmcoord", "240"}));
    cmdentre.setText(Mot({"TextButton", "18"}));
    SetTip(cmdentre, programme_.Text({"TextButton", "18T"}));
    cmdajouter.setText(Mot({"TextButton", "19"}));
    SetTip(cmdajouter, programme_.Text({"TextButton", "19T"}));
    cmdeffaceligne.setText(Mot({"TextButton", "20"}));
    SetTip(cmdeffaceligne, programme_.Text({"TextButton", "20T"}));
    cmdeffacetout.setText(Mot({"TextButton", "21"}));
    SetTip(cmdeffacetout, programme_.Text({"TextButton", "21T"}));
    cmdsave.setText(Mot({"Frmcoord", "20"}));
    SetTip(cmdsave, programme_.Text({"Frmcoord", "20T"}));
    cmdouvrir.setText(Mot({"Frmcoord", "21"}));
    SetTip(cmdouvrir, programme_.Text({"Frmcoord", "21T"}));
    PoseMotsPartages();
}

void frmCoord::txt_Change() {
    QLineEdit &divisor = txt[kDiviseur];
    Seul(" Coord/Txt", [&] { divisor.setText(Q(TexteDiviseur(S(divisor.text())))); });
    divisor.end(false);
}

void frmCoord::Entre() {
    if (txtinX.text().isEmpty() || txtinY.text().isEmpty()) {
        return;
    }
    if (EstNul(Texte(kDiviseur))) {
        txt[kDiviseur].setText("1");
    }
    const std::string line = LigneDePoint(S(txtinX.text()), S(txtinY.text()), Texte(kDiviseur));
    NbLignes = CompteLignes(static_cast<std::size_t>(Liste_Valeurs.count()) + 1);
    Liste_Valeurs.addItem(Q(line));
    Liste_Valeurs.scrollToBottom();
    SelectField(txtinX);
    Sauve = false;
}

void frmCoord::cmdentre_Click() {
    Garde(" Coord/Enter", [this] { Entre(); });
}

/// The selected lines, from the last one back.
std::vector<int> frmCoord::LignesChoisies() const {
    std::vector<int> rows;
    for (const QModelIndex &index : Liste_Valeurs.selectionModel()->selectedRows()) {
        rows.push_back(index.row());
    }
    std::sort(rows.begin(), rows.end(), std::greater<>());
    return rows;
}

/// The selected line; of several the one that was chosen last, empty without any.
std::string frmCoord::LigneChoisie() const {
    const QListWidgetItem *line = Liste_Valeurs.currentItem();
    if (line != nullptr && line->isSelected()) {
        return S(line->text());
    }
    const std::vector<int> rows = LignesChoisies();
    return rows.empty() ? std::string() : S(Liste_Valeurs.item(rows.back())->text());
}

void frmCoord::Ajoute() {
    const auto LigneSaisie =
        programme_.platform.Ask(QuestionInsertion(programme_.messages), Titre(), LigneChoisie());
    if (!LigneSaisie || LigneSaisie->empty()) {
        return;
    }
    for (const int row : LignesChoisies()) {
        Liste_Valeurs.insertItem(row, Q(*LigneSaisie));
    }
    Sauve = false;
}

void frmCoord::cmdajouter_Click() {
    Garde(" Coord/Insert", [this] { Ajoute(); });
}

void frmCoord::Modifie() {
    const std::string line = LigneChoisie();
    const auto LigneSaisie =
        programme_.platform.Ask(QuestionLigne(programme_.messages, line), Titre(), line);
    QListWidgetItem *item = Liste_Valeurs.currentItem();
    if (!LigneSaisie || LigneSaisie->empty() || item == nullptr || !item->isSelected()) {
        return;
    }
    item->setText(Q(*LigneSaisie));
    Sauve = false;
}

void frmCoord::Liste_Valeurs_DblClick() {
    Garde(" Coord/Edit", [this] { Modifie(); });
}

void frmCoord::cmdeffaceligne_Click() {
    for (const int row : LignesChoisies()) {
        const std::unique_ptr<QListWidgetItem> gone(Liste_Valeurs.takeItem(row));
    }
    Sauve = false;
}

void frmCoord::VideSaisie() {
    Liste_Valeurs.clear();
    txtinX.clear();
    txtinY.clear();
    txt[kNom].clear();
    txt[kTitreFichier].clear();
}

/// Whether to go on where lines would be lost.
bool frmCoord::ConfirmePerte(const std::string &question) {
    return programme_.messages.ConfirmLoss(question, Titre(), [this] {
        cmdsave_Click();
        return Sauve;
    });
}

void frmCoord::cmdeffacetout_Click() {
    const std::string question = programme_.Text({"Frmcoord", "16"});
    if (APerdre() ? !ConfirmePerte(question) : !programme_.messages.Confirm(question, Titre())) {
        return;
    }
    VideSaisie();
    txt[kDiviseur].setText("1");
    NbLignes = 0;
    Sauve = false;
}

void frmCoord::Enregistre() {
    const Messages &messages = programme_.messages;
    if (Texte(kNom).empty()) {
        messages.Inform(messages.Text({"Frmcoord", "10"}), Titre());
        return;
    }
    if (Texte(kTitreFichier).empty()) {
        messages.Inform(messages.Text({"Frmcoord", "11"}), Titre());
        return;
    }
    FileQuestion question;
    question.title = messages.Text({"Frmcoord", "20T"});
    question.folder = programme_.settings.repertoires.RepProfil;
    question.name = NomPropose(Texte(kNom));
    question.filter_text = messages.Text({"MainTolbar", "26"}) + " (*.dat)";
    question.default_extension = "dat";
    const std::string path = programme_.platform.ChooseSaveFile(question);
    if (path.empty()) {
        return;
    }
    FichierCoord file{Texte(kTitreFichier), {}};
    for (int row = 0; row < Liste_Valeurs.count(); ++row) {
        file.lignes.push_back(S(Liste_Valeurs.item(row)->text()));
    }
    EcritCoord(path, file);
    txt[kNom].setText(Q(NomDuFichier(path)));
    Sauve = true;
}

void frmCoord::cmdsave_Click() {
    Garde(" Coord/Save", [this] { Enregistre(); });
}

void frmCoord::Ouvre() {
    const Messages &messages = programme_.messages;
    if (APerdre() && !ConfirmePerte(messages.Text({"Frmcoord", "13"}))) {
        return;
    }
    FileQuestion question;
    question.title = messages.Text({"Frmcoord", "21T"});
    question.folder = programme_.settings.repertoires.RepProfil;
    question.filter_text = messages.Text({"MainTolbar", "26"}) + " (*.dat)";
    question.more_filters = {"Files (*.cor)"};
    const std::string path = programme_.platform.ChooseOpenFile(question);
    if (path.empty()) {
        return;
    }
    // Read whole before anything is given up for it.
    const FichierCoord file = LitCoord(path);
    VideSaisie();
    txt[kDiviseur].clear();
    QStringList lines;
    for (const std::string &line : file.lignes) {
        lines += Q(line);
    }
    Liste_Valeurs.addItems(lines);
    txt[kTitreFichier].setText(Q(file.titre));
    NbLignes = CompteLignes(file.lignes.size());
    txt[kNom].setText(Q(NomDuFichier(path)));
    Sauve = true;
}

void frmCoord::cmdouvrir_Click() {
    Garde(" Coord/Open", [this] { Ouvre(); });
}

/// Whether the window may close.
bool frmCoord::Form_Unload() {
    return !APerdre() || ConfirmePerte(programme_.Text({"Frmcoord", "17"}));
}

void frmCoord::cmdannuler_Click() {
    if (Form_Unload()) {
        Renonce();
    }
}

bool frmCoord::eventFilter(QObject *watched, QEvent *event) {
    // The kind first: a list on its way out still sends events, but has no viewport any more.
    if (event->type() == QEvent::MouseButtonDblClick && watched == Liste_Valeurs.viewport()) {
        Liste_Valeurs_DblClick();
        return true;
    }
    if (event->type() == QEvent::KeyPress && watched == &Liste_Valeurs) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (IsReturn(key) || key == Qt::Key_F2) {
            Liste_Valeurs_DblClick();
            return true;
        }
        if (key == Qt::Key_Delete) {
            cmdeffaceligne_Click();
            return true;
        }
    }
    return Dialogue::eventFilter(watched, event);
}

void frmCoord::ConnectAll() {
    for (NumericField &field : txt) {
        connect(&field, &QLineEdit::textChanged, this, &frmCoord::txt_Change);
    }
    // Return leads from x to y, and from there into the list.
    connect(&txtinX, &QLineEdit::returnPressed, this, [this] { SelectField(txtinY); });
    connect(&txtinY, &QLineEdit::returnPressed, this, &frmCoord::cmdentre_Click);
    connect(&cmdentre, &QPushButton::clicked, this, &frmCoord::cmdentre_Click);
    connect(&cmdajouter, &QPushButton::clicked, this, &frmCoord::cmdajouter_Click);
    connect(&cmdeffaceligne, &QPushButton::clicked, this, &frmCoord::cmdeffaceligne_Click);
    connect(&cmdeffacetout, &QPushButton::clicked, this, &frmCoord::cmdeffacetout_Click);
    connect(&cmdouvrir, &QPushButton::clicked, this, &frmCoord::cmdouvrir_Click);
    connect(&cmdsave, &QPushButton::clicked, this, &frmCoord::cmdsave_Click);
    Liste_Valeurs.installEventFilter(this);
    Liste_Valeurs.viewport()->installEventFilter(this);
}

} // namespace loftwing
