#include "utilities/frmdiedre.h"

#include "lang/aide.h"

#include <QKeyEvent>

namespace loftwing {

namespace {

bool EstReturn(const QEvent &event) {
    return event.type() == QEvent::KeyPress &&
           IsReturn(static_cast<const QKeyEvent &>(event).key());
}

} // namespace

frmdiedre::frmdiedre(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmdiedre", kAideCalculs, parent) {
    NameAll();
    LayOut();
    Form_Load();
    for (NumericField &field : txt) {
        field.installEventFilter(this);
    }
    ConnectEach(txt, &QLineEdit::textEdited, this, &frmdiedre::NoteSaisie);
    connect(&cmdcalcul, &QPushButton::clicked, this, &frmdiedre::cmdcalcul_Click);
}

void frmdiedre::Form_Load() {
    PoseTextes();
    SelectField(txt[kDiedreAngle]);
}

void frmdiedre::PoseTextes() {
    setWindowTitle(Q(programme_.Text({"FrmDiedre", "1"}) + " " + programme_.settings.Unite));
    Label1.setText(Mot({"FrmDiedre", "2"}));
    Label2.setText(Mot({"FrmDiedre", "4"}));
    Label3.setText(Mot({"FrmDiedre", "5"}));
    for (NumericField &field : txt) {
        SetTip(field, programme_.Text({"FrmDiedre", "2T"}));
    }
    NommeEsquisse(Image1);
    AdmetLongueurs(txt);
    txt[kDiedreAngle].SetNotation({}); // degrees
    cmdcalcul.setText(Mot({"TextButton", "6"}));
    SetTip(cmdcalcul, programme_.Text({"FrmDiedre", "140"}));
    PoseMotsPartages();
}

bool frmdiedre::eventFilter(QObject *watched, QEvent *event) {
    const bool clicked = event->type() == QEvent::MouseButtonDblClick;
    for (int index = 0; index < kChampsDiedre && (clicked || EstReturn(*event)); ++index) {
        if (watched == &At(txt, index)) {
            clicked ? txt_dblClick(index) : txt_Return(index);
            return true; // it would select a word, or close the window
        }
    }
    return Dialogue::eventFilter(watched, event);
}

void frmdiedre::NoteSaisie(int index) {
    At(saisies_, index) = ++saisie_;
}

/// The field to compute where none is named: the empty one, else the one that was typed longest
/// ago. A computed one counts as never typed.
int frmdiedre::ChampACalculer() const {
    const auto rang = [this](int index) {
        return At(txt, index).text().isEmpty() ? -1 : At(saisies_, index);
    };
    int oldest = 0;
    for (int index = 1; index < kChampsDiedre; ++index) {
        oldest = rang(index) < rang(oldest) ? index : oldest;
    }
    return oldest;
}

void frmdiedre::Calcule(int index) {
    const TextesDiedre typed = FieldTexts(txt);
    TextesDiedre texts = typed;
    Garde(" Diedre/txt", [&] { CalculeDiedre(texts, index, programme_.SaisieEnCours(), Titre()); });
    ShowTexts(txt, texts);
    if (At(texts, index) != At(typed, index)) {
        At(saisies_, index) = 0;
    }
}

void frmdiedre::txt_dblClick(int index) {
    Calcule(index);
    At(txt, index).selectAll();
}

/// Return in a field computes it, but neither what was just typed nor, while another field is still
/// empty, what that one can be computed from.
void frmdiedre::txt_Return(int index) {
    const bool empty = At(txt, index).text().isEmpty();
    const bool just_typed = saisie_ > 0 && At(saisies_, index) == saisie_;
    const int next = ChampACalculer();
    Calcule(!empty && (just_typed || At(txt, next).text().isEmpty()) ? next : index);
    At(txt, index).selectAll();
}

void frmdiedre::cmdcalcul_Click() {
    Calcule(ChampACalculer());
}

} // namespace loftwing
