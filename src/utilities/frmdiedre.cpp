#include "utilities/frmdiedre.h"

#include <QKeyEvent>

namespace loftwing {

namespace {

constexpr int kAide = 60;

/// What asks for a field's value: a double click or, without a mouse, Return in it.
bool DemandeValeur(const QEvent &event) {
    return event.type() == QEvent::MouseButtonDblClick ||
           (event.type() == QEvent::KeyPress &&
            IsReturn(static_cast<const QKeyEvent &>(event).key()));
}

} // namespace

frmdiedre::frmdiedre(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmdiedre", kAide, parent) {
    NameAll();
    LayOut();
    Form_Load();
    for (NumericField &field : txt) {
        field.installEventFilter(this);
    }
}

void frmdiedre::Form_Load() {
    PoseTextes();
    AdmetLongueurs(txt);
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
    PoseMotsPartages();
}

bool frmdiedre::eventFilter(QObject *watched, QEvent *event) {
    if (DemandeValeur(*event)) {
        for (int index = 0; index < kChampsDiedre; ++index) {
            if (watched == &At(txt, index)) {
                txt_dblClick(index);
                return true; // it would select a word, or close the window
            }
        }
    }
    return Dialogue::eventFilter(watched, event);
}

void frmdiedre::txt_dblClick(int index) {
    TextesDiedre texts = FieldTexts(txt);
    Garde(" Diedre/txt", [&] { CalculeDiedre(texts, index, programme_.SaisieEnCours(), Titre()); });
    ShowTexts(txt, texts);
    At(txt, index).selectAll();
}

} // namespace loftwing
