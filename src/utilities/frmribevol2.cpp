#include "utilities/frmribevol2.h"

#include "lang/aide.h"

#include <QEvent>

namespace loftwing {

namespace {

/// Blue that can be read on the window's ground.
QColor Bleu(const QPalette &palette) {
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    return dark ? QColor(120, 170, 255) : QColor(0, 0, 255);
}

constexpr const char *kBleu = "bleu";

} // namespace

frmribevol2::frmribevol2(Programme &programme, MainView &view, QWidget *parent)
    : RibSetDialog(programme, view, "frmribevol2", kAideJeuVariable, parent),
      jeu_(programme.rib.jeu) {
    NameAll();
    LayOut();
    PoseTextes();
    Form_Load();
    ConnectAll();
}

void frmribevol2::PoseTextes() {
    const QString unit = " (" + Q(programme_.settings.Unite) + " )";
    setWindowTitle(Mot({"FrmRibevol2", "1"}));
    Frame1[0].setTitle(Mot({"FrmRibevol2", "2"}) + unit);
    Frame1[1].setTitle(Mot({"FrmRibevol2", "3"}) + unit);
    for (int i = 0; i < 2; ++i) {
        At(Label1, i).setText(Mot({"FrmRibevol2", "4"}));
        At(Label2, i).setText(Mot({"FrmRibevol2", "5"}));
        At(Label3, i).setText(Mot({"FrmRibevol2", "9"}));
    }
    FrameNervInterm.setTitle(Mot({"FrmRibevol2", "7"}));
    Label5.setText(Mot({"FrmRibevol2", "7T"}));
    FrameDimensions.setTitle(Mot({"FrmRibevol2", "8"}) + unit);
    LblLongTot.setText(Mot({"FrmRibevol2", "11"}));
    for (QLabel *label : {&LblEprNervureCMax, &LblEprNervureCmin, &LblEprNervure}) {
        label->setText(Mot({"FrmRibevol2", "12"}));
    }
    lblstep.setText(Mot({"FrmRibevol2", "13"}));
    for (NumericField *field : {&txtEpR0, &txtEpR13, &TextEprNevure, &TextEcartNevure}) {
        AdmetLongueur(*field);
    }
    for (int k = 1; k <= DernierEcart(); ++k) {
        ClickLabel &label = At(LblNoNervInterm, k - 1);
        label.setText(QString::number(k));
        label.setAccessibleName(FrameNervInterm.title() + " " + label.text());
        label.setFocusPolicy(Qt::TabFocus);
        label.setCursor(Qt::PointingHandCursor);
        QFont font = label.font();
        font.setUnderline(true); // as what can be clicked is
        label.setFont(font);
        SetTip(label, programme_.Text({"FrmRibevol2", "7T"}));
    }
}

void frmribevol2::Form_Load() {
    // Texts of an earlier set are shown again, but each gap wants its Apply, which sums the panel.
    jeu_.EcartNerv = {};
    FrameDimensions.hide();
    cmdouvrir[0].setFocus();
}

void frmribevol2::ConnectAll() {
    for (int k = 1; k <= DernierEcart(); ++k) {
        connect(&At(LblNoNervInterm, k - 1), &ClickLabel::Clicked, this,
                [this, k] { Essaie([this, k] { LblNoNervInterm_Click(k); }); });
    }
    TextEprNevure.installEventFilter(this);
    TextEcartNevure.installEventFilter(this);
}

QLineEdit *frmribevol2::Champ(ChampJeu champ) {
    switch (champ) {
    case ChampJeu::corde_max:
        return &txtcorde[0];
    case ChampJeu::corde_min:
        return &txtcorde[1];
    case ChampJeu::epaisseur_max:
        return &txtEpR0;
    case ChampJeu::epaisseur_min:
        return &txtEpR13;
    default:
        return nullptr;
    }
}

bool frmribevol2::Valide() {
    const SaisieRibevol2 typed{{Profil(0), Profil(1)},
                               {S(txtcorde[0].text()), S(txtcorde[1].text())},
                               {S(txtEpR0.text()), S(txtEpR13.text())}};
    return !Refuse(ValideRibevol2(typed, programme_.SaisieEnCours(), jeu_, set_));
}

/// Blue says that a gap has been shown.
void frmribevol2::Bleuit(QLabel &label) {
    QPalette colours = label.palette();
    colours.setColor(QPalette::WindowText, Bleu(palette()));
    label.setPalette(colours);
    label.setProperty(kBleu, true);
}

void frmribevol2::changeEvent(QEvent *event) {
    RibSetDialog::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) {
        return;
    }
    for (ClickLabel &label : LblNoNervInterm) {
        if (label.property(kBleu).toBool()) {
            Bleuit(label);
        }
    }
}

/// In the fields of a gap Return is Apply: Compute would take what was applied before.
bool frmribevol2::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::FocusIn) {
        Bouton(SharedWord::apply).setDefault(true);
    } else if (event->type() == QEvent::FocusOut) {
        cmdcalcul.setDefault(true);
    }
    return RibSetDialog::eventFilter(watched, event);
}

/// The number of the gap that is shown stands out from those that are finished.
void frmribevol2::MarqueEcart() {
    for (int k = 1; k <= DernierEcart(); ++k) {
        ClickLabel &label = At(LblNoNervInterm, k - 1);
        QFont font = label.font();
        font.setBold(k == set_.NervCourante && FrameDimensions.isVisibleTo(this));
        label.setFont(font);
    }
}

void frmribevol2::LblNoNervInterm_Click(int k) {
    set_.NervCourante = ToInt16(k);
    const bool valid = Valide();
    // While refused it would show another gap, which Apply must not take for this one.
    FrameDimensions.setVisible(valid);
    MarqueEcart();
    if (valid) {
        Bleuit(At(LblNoNervInterm, k - 1));
        MontreEcart();
    }
}

void frmribevol2::MontreEcart() {
    const int k = set_.NervCourante;
    const auto rib = [this](int number) {
        return Q(programme_.Text({"FrmRibevol2", "9"}) + " " + std::to_string(number));
    };
    // The first rib is the root's, whose thickness stands in its own frame.
    const bool root = k == 1;
    Label3[0].setText(root ? Frame1[0].title() : rib(k - 1));
    Label3[1].setText(k == DernierEcart() ? Frame1[1].title() : rib(k));
    LblEprNervure.setEnabled(!root);
    TextEprNevure.setEnabled(!root);
    TextEprNevure.setText(Q(At(jeu_.EprNervAfich, k - 1)));
    TextEcartNevure.setText(Q(At(jeu_.EcartNervAfich, k)));
    SelectField(root ? TextEcartNevure : TextEprNevure);
}

void frmribevol2::Applique() {
    AppliqueEcart(S(TextEprNevure.text()), S(TextEcartNevure.text()), programme_.SaisieEnCours(),
                  jeu_, set_);
    ClickLabel &label = At(LblNoNervInterm, set_.NervCourante - 1);
    Bleuit(label);
    label.setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    LblLongTotAffich.setText(Q(set_.LongTotaleAfich));
}

void frmribevol2::CmdApply_Click() {
    Essaie([this] { Applique(); });
}

void frmribevol2::Calcule() {
    if (!Valide() || Refuse(VerifieEcarts(jeu_, programme_.messages))) {
        return;
    }
    CalculeRibevol2(jeu_, set_);
    const JeuDeNervures files =
        ComposeRibevol2(jeu_, set_, Profils(), Dossier(), programme_.SaisieEnCours());
    Ecrit(files, ResultatRibevol2(files, programme_.messages));
}

} // namespace loftwing
