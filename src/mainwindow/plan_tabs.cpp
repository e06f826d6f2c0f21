#include "mainwindow/plan_tabs.h"

#include "platform/qt_focus_mark.h"
#include "platform/qt_form.h"
#include "programme/plan_aile.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kDessus = 0;
constexpr int kFace = 1;
constexpr int kListe = 2; ///< behind the views in what is up to date
constexpr int kLettres = 40;
constexpr int kLignes = 4;

QString Mot(const Programme &programme, LngKey key) {
    return Q(programme.Text(key));
}

} // namespace

PlanTabs::PlanTabs(Programme &programme)
    : programme_(programme), Vue{PlanView(nullptr), PlanView(nullptr)} {
    NameAll();
    PoseTextes();
    LayOut();
    Connect();
}

void PlanTabs::NameAll() {
    NameControls({{this, "Onglets"},
                  {&chkdeux, "chkdeux"},
                  {&cmdplan, "cmdplan"},
                  {&cmdimprimerplan, "cmdimprimerplan"},
                  {&Liste, "Liste"},
                  {&cmdliste, "cmdliste"},
                  {&cmdimprimerliste, "cmdimprimerliste"}});
    NameControls(Vue, "Vue");
    NameControls(cmdvue[kDessus], "cmddessus");
    NameControls(cmdvue[kFace], "cmdface");
}

void PlanTabs::PoseTextes() {
    setAccessibleName(Mot(programme_, {"Plan", "101"}) + ", " + Mot(programme_, {"Plan", "109"}));
    Vue[kDessus].setAccessibleName(Mot(programme_, {"Plan", "101"}));
    Vue[kFace].setAccessibleName(Mot(programme_, {"Plan", "102"}));
    for (auto &buttons : cmdvue) {
        buttons[0].setText("+");
        buttons[1].setText(QString(QChar(0x2212)));
        buttons[2].setText(Mot(programme_, {"Plan", "107"}));
        buttons[0].setAccessibleName(Mot(programme_, {"Plan", "105"}));
        buttons[1].setAccessibleName(Mot(programme_, {"Plan", "106"}));
        SetTip(buttons[0], programme_.Text({"Plan", "105"}));
        SetTip(buttons[1], programme_.Text({"Plan", "106"}));
        SetTip(buttons[2], programme_.Text({"Plan", "108"}));
    }
    chkdeux.setText(Mot(programme_, {"Panel", "161"}));
    SetTip(chkdeux, programme_.Text({"Plan", "111"}));
    cmdplan.setText(Mot(programme_, {"Plan", "112"}));
    SetTip(cmdplan, programme_.Text({"Plan", "113"}));
    cmdimprimerplan.setText(Mot(programme_, {"Plan", "114"}));
    SetTip(cmdimprimerplan, programme_.Text({"Plan", "115"}));
    Liste.setAccessibleName(Mot(programme_, {"Plan", "109"}));
    cmdliste.setText(Mot(programme_, {"Plan", "116"}));
    SetTip(cmdliste, programme_.Text({"Plan", "117"}));
    cmdimprimerliste.setText(Mot(programme_, {"Plan", "118"}));
    SetTip(cmdimprimerliste, programme_.Text({"Plan", "119"}));
}

QHBoxLayout *PlanTabs::RangeeDeVue(int vue) {
    auto *row = new QHBoxLayout;
    for (QToolButton &button : At(cmdvue, vue)) {
        row->addWidget(&button);
    }
    row->addStretch();
    return row;
}

void PlanTabs::LayOut() {
    const auto page = [this](QWidget &content, QHBoxLayout *row, LngKey title) {
        auto *sheet = new QWidget;
        auto *rows = new QVBoxLayout(sheet);
        const int around = fontMetrics().averageCharWidth() / 2;
        rows->setContentsMargins(around, around, around, around); // the room is the plan's
        rows->addWidget(&content, 1);
        rows->addLayout(row);
        addTab(sheet, Mot(programme_, title));
    };
    QHBoxLayout *plan = RangeeDeVue(kDessus);
    for (QWidget *control :
         std::initializer_list<QWidget *>{&chkdeux, &cmdplan, &cmdimprimerplan}) {
        plan->addWidget(control);
    }
    page(Vue[kDessus], plan, {"Plan", "101"});
    page(Vue[kFace], RangeeDeVue(kFace), {"Plan", "102"});
    Liste.setReadOnly(true);
    Liste.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Liste.setLineWrapMode(QPlainTextEdit::NoWrap);
    // Without keys for the cursor a reader could neither scroll nor copy.
    Liste.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Liste.setTabChangesFocus(true);
    Liste.setMinimumSize(Liste.fontMetrics().averageCharWidth() * kLettres,
                         Liste.fontMetrics().lineSpacing() * kLignes);
    FocusMark::On(Liste);
    auto *list = new QHBoxLayout;
    list->addStretch();
    list->addWidget(&cmdliste);
    list->addWidget(&cmdimprimerliste);
    page(Liste, list, {"Plan", "103"});
    for (QPushButton *button : {&cmdplan, &cmdimprimerplan, &cmdliste, &cmdimprimerliste}) {
        button->setAutoDefault(false); // Return in a field must not write files
    }
}

void PlanTabs::Connect() {
    for (int i = 0; i < kVues; ++i) {
        PlanView &view = At(Vue, i);
        auto &buttons = At(cmdvue, i);
        connect(&buttons[0], &QToolButton::clicked, &view, &PlanView::Agrandit);
        connect(&buttons[1], &QToolButton::clicked, &view, &PlanView::Reduit);
        connect(&buttons[2], &QToolButton::clicked, &view, &PlanView::Ajuste);
    }
    connect(this, &QTabWidget::currentChanged, this, &PlanTabs::MontreCourant);
    connect(&chkdeux, &QCheckBox::toggled, this, &PlanTabs::Perime);
    ConnectSorties();
}

void PlanTabs::PoseApercu(QWidget &apercu) {
    insertTab(0, &apercu, Mot(programme_, {"Plan", "100"}));
    setCurrentIndex(0);
}

void PlanTabs::DemandeAvant(std::function<bool()> pret, std::function<std::string()> nom) {
    pret_ = std::move(pret);
    nom_ = std::move(nom);
}

void PlanTabs::Montre(Aile aile, FeuillesPieces feuilles) {
    aile_ = std::move(aile);
    feuilles_ = std::move(feuilles);
    manque_.clear();
    Perime();
}

void PlanTabs::MontreManque(std::string mots) {
    aile_.reset();
    manque_ = std::move(mots);
    Perime();
}

void PlanTabs::Perime() {
    a_jour_ = {};
    MontreCourant();
}

void PlanTabs::MontreCourant() {
    programme_.messages.Garde(" PlanTabs/Montre", [this] {
        for (int i = 0; i < kVues; ++i) {
            if (currentWidget() == At(Vue, i).parentWidget() && !At(a_jour_, i)) {
                MontreVue(i);
                At(a_jour_, i) = true;
            }
        }
        if (currentWidget() == Liste.parentWidget() && !a_jour_[kListe]) {
            MontreListe();
            a_jour_[kListe] = true;
        }
    });
}

void PlanTabs::MontreVue(int vue) {
    PlanView &view = At(Vue, vue);
    if (!aile_) {
        view.MontreMots(Q(manque_));
        return;
    }
    view.Montre(vue == kFace ? DessineFace(*aile_, CoteAile::droite, programme_.messages,
                                           programme_.settings.Unite)
                             : EnDessousPlan(Dessins()));
}

/// Who reads on stays where he is while the wing changes.
void PlanTabs::MontreListe() {
    const int down = Liste.verticalScrollBar()->value();
    const int across = Liste.horizontalScrollBar()->value();
    Liste.setPlainText(
        Q(aile_ ? ListeEnTexte(TitreDeListe(*aile_, programme_.messages), Tables()) : manque_));
    Liste.verticalScrollBar()->setValue(down);
    Liste.horizontalScrollBar()->setValue(across);
}

} // namespace loftwing
