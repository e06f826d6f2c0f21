#include "mainwindow/frmopen.h"

#include "base/text_encoding.h"
#include "lang/aide.h"
#include "output/airfoil_preview.h"
#include "platform/qt_contrast.h"

#include <QKeyEvent>
#include <QShortcut>

namespace loftwing {

namespace {

constexpr int kTitleLines = 3;
constexpr int kRepos = 150; // milliseconds after which a selection rests

} // namespace

frmopen::frmopen(Programme &programme, MainView &view, QWidget *parent)
    : Dialogue(programme, "frmopen", kAideOuvrir, parent), view_(view), rib_(programme.rib),
      precedent_(programme.rib), txtchemin(this), lbldossiers(this), Dir1(this), lblfichiers(this),
      txtcherche(this), File1(this), lbltype(this), Combo1(this), lblfichier(this),
      nomfile1(1, this), lbldossier(this), Lbchemin(1, this), Surface(this),
      Label1(kTitleLines, this), Label2(1, this), Label3(1, this), cmdimporter(this), memP1(this),
      LbMem(this), cmdouvrir(this) {
    NameAll();
    PoseTextes();
    PoseBulles();
    AssureInvite();
    LayOut();
    ConnectAll();
    Form_Load();
}

frmopen::~frmopen() {
    // A list that goes loses its focus, and by then half of it is gone.
    for (QObject *watched : Surveilles()) {
        watched->removeEventFilter(this);
    }
}

void frmopen::PoseTextes() {
    setWindowTitle(Mot({"frmopen", "1"}));
    LbMem.setText(Mot({"frmopen", "2"}));
    lbldossiers.setText(Mot({"frmopen", "3"}));
    lblfichiers.setText(Mot({"frmopen", "4"}));
    lbltype.setText(Mot({"frmopen", "5"}));
    lblfichier.setText(Mot({"frmopen", "6"}));
    lbldossier.setText(Mot({"frmopen", "8"}));
    cmdouvrir.setText(Mot({"frmopen", "7"}));
    cmdimporter.setText(Mot({"Import", "43"}));
    txtcherche.setPlaceholderText(Mot({"Import", "51"}));
    Combo1.addItem("Selig Files (*.dat)");
    Combo1.addItem("Coordinates Files (*.cor)");
}

/// The desktop's own colour for a hint in an empty field is often too faint to be read.
void frmopen::AssureInvite() {
    const QColor ground = txtcherche.palette().color(QPalette::Base);
    const QColor faint = Melange(txtcherche.palette().color(QPalette::Text), ground, 0.5);
    QPalette colours; // says nothing but this one
    colours.setColor(QPalette::PlaceholderText, Lisible(faint, ground, kContrasteTexte));
    txtcherche.setPalette(colours);
}

void frmopen::PoseBulles() {
    SetTip(memP1, programme_.Text({"frmopen", "2t"}));
    SetTip(LbMem, programme_.Text({"frmopen", "2t"}));
    SetTip(Dir1, programme_.Text({"frmopen", "3t"}));
    SetTip(File1, programme_.Text({"frmopen", "4t"}));
    SetTip(Combo1, programme_.Text({"frmopen", "5t"}));
    SetTip(cmdouvrir, programme_.Text({"frmopen", "7t"}));
    SetTip(cmdimporter, programme_.Text({"Import", "50"}));
    SetTip(txtcherche, programme_.Text({"Import", "52"}));
    SetTip(Lbchemin, programme_.Text({"frmopen", "8T"}));
    SetTip(txtchemin, programme_.Text({"frmopen", "8T"}));
    SetTip(Label2, programme_.Text({"frmopen", "24t"}));
    Surface.setAccessibleName(Mot({"frmopen", "240"}));
    Dir1.setAccessibleName(lbldossiers.text());
    File1.setAccessibleName(lblfichiers.text());
    Combo1.setAccessibleName(lbltype.text());
    memP1.setAccessibleName(LbMem.text());
    txtchemin.setAccessibleName(lbldossier.text());
    txtcherche.setAccessibleName(txtcherche.placeholderText());
}

std::array<QObject *, 6> frmopen::Surveilles() {
    return {&txtchemin, &txtcherche, &Dir1, &File1, &LbMem, File1.viewport()};
}

void frmopen::ConnectAll() {
    for (QObject *watched : Surveilles()) {
        watched->installEventFilter(this);
    }
    selection_.setSingleShot(true);
    connect(&selection_, &QTimer::timeout, this,
            [this] { Garde(" Open/File1", [this] { File1_Click(); }); });
    connect(&txtchemin, &QLineEdit::textChanged, this, &frmopen::MontreOuvrir);
    connect(&txtcherche, &QLineEdit::textChanged, this, &frmopen::txtcherche_Change);
    connect(&Combo1, &QComboBox::activated, this, &frmopen::Combo1_Change);
    connect(&Dir1, &QListWidget::itemDoubleClicked, this, &frmopen::Dir1_DblClick);
    connect(&File1, &QListWidget::itemSelectionChanged, this, [this] {
        if (!pressed_) {
            Attend(true);
        }
    });
    // After the mouse is done with the list, since the window may close.
    connect(&File1, &QListWidget::itemDoubleClicked, this, [this] {
        QTimer::singleShot(0, this, [this] { Garde(" Open/File1", [this] { File1_DblClick(); }); });
    });
    connect(&memP1, &QCheckBox::toggled, this, &frmopen::memP1_Click);
    connect(&cmdouvrir, &QPushButton::clicked, this,
            [this] { Garde(" Open/cmdouvrir", [this] { cmdouvrir_Click(); }); });
    connect(&cmdimporter, &QPushButton::clicked, this,
            [this] { Garde(" Open/cmdimporter", [this] { cmdimporter_Click(); }); });
    connect(new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Up), this), &QShortcut::activated, this,
            &frmopen::Monte);
    connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, this,
            &frmopen::Relit);
}

void frmopen::Form_Load() {
    rib_.CheminProfil.clear();
    rib_.ProfilCharge = false;
    Label1.clear();
    MontreMemoire(false, {});
    OuvreDernier();
}

void frmopen::MontreMemoire(bool check, const std::string &note) {
    memP1.setVisible(check);
    LbMem.setVisible(check);
    Label3.setText(Q(note));
    Label3.setVisible(!note.empty());
}

void frmopen::Attend(bool discret) {
    discret_ = discret;
    Refuse(false);
    selection_.start(discret ? kRepos : 0);
}

void frmopen::Refuse(bool refuse) {
    refuse_ = refuse;
    cmdimporter.hide();
    MontreOuvrir();
}

void frmopen::MontreOuvrir() {
    cmdouvrir.setEnabled(!refuse_ || ChercheAilleurs());
}

void frmopen::OublieFichier() {
    selection_.stop();
    rib_.CheminProfil.clear();
    Surface.Efface();
    Label1.clear();
    nomfile1.clear();
    Label2.clear();
    Refuse(false);
}

void frmopen::LitSelection() {
    if (selection_.isActive()) {
        selection_.stop();
        discret_ = false; // who opens a file wants to know what is wrong with it
        File1_Click();
    }
}

void frmopen::File1_Click() {
    const std::string path = Choisi();
    if (path.empty()) {
        return;
    }
    programme_.platform.SetPointer(Pointer::busy);
    NommeProfil(rib_, path);
    nomfile1.setText(Q(ToUtf8(rib_.NomProfil)));
    // A box of the reader must not stand over the preview of another file.
    Surface.Efface();
    Label1.clear();
    Label2.clear();
    const ResultatLecture read = EssaieLecture(rib_, programme_.messages);
    if (!discret_) {
        AnnonceLecture(read, programme_.messages, Titre());
    }
    MontreLecture(read);
    // Only now, so that a refusal's box may have come before.
    const std::string warning = NomEcarte(rib_);
    if (!warning.empty()) {
        Surface.Efface();
        Label1.setText(Q(warning));
    }
    programme_.platform.SetPointer(Pointer::normal);
}

void frmopen::MontreLecture(const ResultatLecture &lecture) {
    Refuse(lecture.issue != Lecture::lu);
    if (lecture.issue == Lecture::lu) {
        MontreProfil();
    } else if (discret_) {
        Surface.Dit(Q(lecture.boite));
    } else {
        MontreEchec(lecture);
    }
    ProposeImport(lecture);
}

void frmopen::MontreEchec(const ResultatLecture &lecture) {
    if (lecture.issue == Lecture::refuse) {
        Label1.setText(Q(lecture.etiquette));
    } else if (efface_) {
        view_.affclear();
        // There is no airfoil any more that a cancel could give back.
        precedent_ = ProfilPrecedent(rib_);
    }
}

void frmopen::MontreProfil() {
    if (rib_.SansApercu) {
        return;
    }
    try {
        auto drawing = std::make_unique<Recording>();
        DessineApercu(rib_, *drawing);
        Surface.Montre(std::move(drawing));
    } catch (const Failure &) {
        Surface.Efface(); // a point lies beyond all numbers; whoever opens the file is told
    }
    Label1.setText(Q(TitreApercu(rib_)));
    Label2.setText(Q(NombreApercu(rib_, programme_.messages)));
}

void frmopen::File1_DblClick() {
    LitSelection();
    if (!refuse_) {
        cmdouvrir_Click();
    }
}

void frmopen::memP1_Click() {
    rib_.MemProfil = memP1.isChecked();
}

void frmopen::cmdouvrir_Click() {
    if (ChercheAilleurs() && !txtchemin_Return()) {
        return;
    }
    LitSelection();
    if (refuse_) {
        return; // a box has just told why
    }
    const std::string title = Titre();
    if (rib_.CheminProfil.empty()) {
        programme_.messages.Inform(programme_.Text({"frmopen", "22"}), title);
        cmdannuler_Click();
        return;
    }
    if (rib_.NbPoints < kPointsMini) {
        programme_.messages.Inform(RefusTropCourt(programme_.messages), title);
        cmdannuler_Click();
        return;
    }
    Accepte();
}

void frmopen::Accepte() {
    rib_.ProfilCharge = true;
    programme_.settings.repertoires.LastOpenProfil = dossier_;
    programme_.DernierProfil = rib_.CheminProfil;
    WriteINIFile("Repertoires", "LastOpenProfil", dossier_, programme_.paths.fichier);
    accept();
}

void frmopen::cmdannuler_Click() {
    selection_.stop();
    rib_.Annule = true;
    precedent_.Rend(rib_);
    MontreMemoire(false, {});
    rib_.MemProfil = false;
    Renonce();
}

bool frmopen::eventFilter(QObject *watched, QEvent *event) {
    if (watched == File1.viewport()) {
        File1_Mouse(*event);
        return false;
    }
    if (watched == &LbMem && event->type() == QEvent::MouseButtonRelease) {
        memP1.toggle();
        return true;
    }
    if (event->type() != QEvent::KeyPress) {
        return Dialogue::eventFilter(watched, event);
    }
    const auto *pressed = static_cast<const QKeyEvent *>(event);
    const int key = pressed->key();
    if (watched == &txtchemin && IsReturn(key)) {
        txtchemin_Return();
        return true;
    }
    const Qt::KeyboardModifiers modifiers = pressed->modifiers() & ~Qt::KeypadModifier;
    const bool plain = modifiers == Qt::NoModifier;
    if (watched == &txtcherche) {
        return plain && txtcherche_Key(key);
    }
    if (plain && watched == &Dir1) {
        return ListKey(Dir1, key);
    }
    return plain && watched == &File1 && ListKey(File1, key);
}

} // namespace loftwing
