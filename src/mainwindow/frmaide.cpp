#include "mainwindow/frmaide.h"

#include "base/number_text.h"
#include "lang/aide.h"
#include "mainwindow/window_place.h"
#include "programme/reglage_retenu.h"

#include <QApplication>
#include <QEvent>
#include <QFileInfo>
#include <QSignalBlocker>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace loftwing {

namespace {

constexpr const char *kSection = "Aide";
constexpr const char *kCleTaille = "Taille";
constexpr int kPlusPetite = -3; // points
constexpr int kPlusGrande = 12; // likewise
constexpr int kRoleContexte = Qt::UserRole;

} // namespace

frmaide::frmaide(Programme &programme)
    : Dialogue(programme, "frmaide", kSansAide, nullptr), cmdprecedent(this), cmdsuivant(this),
      cmddebut(this), cmdpluspetit(this), cmdplusgrand(this), lblcherche(this), txtcherche(this),
      Liste(this), Page(this) {
    setWindowFlags(Qt::Window);
    NameAll();
    LayOut();
    PoseTouches();
    Form_Load();
}

void frmaide::Form_Load() {
    SuitLangue();
    ChangeTaille(0);
    Garde(" frmaide/Form_Load", [this] {
        const std::string kept = ReglageRetenu(programme_, kSection, kCleTaille);
        ChangeTaille(ToInt16(LeadingNumber(kept)));
    });
    connect(&cmdprecedent, &QToolButton::clicked, &Page, &HelpBrowser::backward);
    connect(&cmdsuivant, &QToolButton::clicked, &Page, &HelpBrowser::forward);
    connect(&cmddebut, &QToolButton::clicked, this, [this] { OuvrePage(kAideVisite); });
    connect(&cmdpluspetit, &QToolButton::clicked, this, [this] { ChangeTaille(taille_ - 1); });
    connect(&cmdplusgrand, &QToolButton::clicked, this, [this] { ChangeTaille(taille_ + 1); });
    connect(&Page, &HelpBrowser::backwardAvailable, &cmdprecedent, &QWidget::setEnabled);
    connect(&Page, &HelpBrowser::forwardAvailable, &cmdsuivant, &QWidget::setEnabled);
    connect(&Page, &HelpBrowser::sourceChanged, this, &frmaide::SuitPage);
    connect(&txtcherche, &QLineEdit::textChanged, this, &frmaide::txtcherche_Change);
    connect(&txtcherche, &QLineEdit::returnPressed, this, &frmaide::MontreTrouve);
    connect(&Trouves, &QListWidget::currentRowChanged, this, &frmaide::MontreTrouve);
    connect(&Sommaire, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        if (item != nullptr && item->data(0, kRoleContexte).isValid()) {
            OuvrePage(item->data(0, kRoleContexte).toInt());
        }
    });
}

void frmaide::SuitLangue() {
    const std::string &langue = programme_.language.LangueCourante;
    if (langue == langue_) {
        return;
    }
    langue_ = langue;
    setWindowTitle(Mot({"FrmAide", "1"}));
    lblcherche.setText(Mot({"FrmAide", "2"}));
    SetTip(txtcherche, programme_.Text({"FrmAide", "2T"}));
    const std::pair<QToolButton *, LngKey> words[] = {{&cmdprecedent, {"FrmAide", "3"}},
                                                      {&cmdsuivant, {"FrmAide", "4"}},
                                                      {&cmddebut, {"FrmAide", "5"}},
                                                      {&cmdpluspetit, {"FrmAide", "6"}},
                                                      {&cmdplusgrand, {"FrmAide", "7"}}};
    for (const auto &[button, key] : words) {
        button->setAccessibleName(Mot(key));
        SetTip(*button, programme_.Text(key));
    }
    Sommaire.setAccessibleName(Mot({"FrmAide", "10"}));
    Trouves.setAccessibleName(Mot({"FrmAide", "11"}));
    Page.setAccessibleName(windowTitle());
    PoseMotsPartages();
    pages_ = LitPagesAide(programme_.paths.aide, langue_);
    RemplitSommaire();
    const int shown = Contexte();
    if (shown != kSansAide) {
        OuvrePage(shown);
    }
    txtcherche_Change();
}

void frmaide::RemplitSommaire() {
    const QSignalBlocker quiet(Sommaire);
    Sommaire.clear();
    QFont bold = Sommaire.font();
    bold.setBold(true);
    auto page = pages_.begin(); // they stand in the order of the contents
    for (const ChapitreAide &chapitre : ChapitresAide()) {
        auto *heading = new QTreeWidgetItem(&Sommaire, {Mot(chapitre.titre)});
        heading->setFlags(Qt::ItemIsEnabled);
        heading->setFont(0, bold);
        for (const int contexte : chapitre.pages) {
            auto *item = new QTreeWidgetItem(heading, {page->titre});
            item->setData(0, kRoleContexte, contexte);
            item->setToolTip(0, page->titre.toHtmlEscaped());
            ++page;
        }
    }
    Sommaire.expandAll();
}

int frmaide::Contexte() const {
    return QFileInfo(Page.source().path()).completeBaseName().toInt();
}

void frmaide::OuvrePage(int contexte) {
    const QString path = Q(FichierAide(programme_.paths.aide, langue_, contexte));
    if (QFileInfo::exists(path)) {
        if (Page.source() != QUrl::fromLocalFile(path)) {
            Page.setSource(QUrl::fromLocalFile(path));
        }
        return;
    }
    Page.setHtml("<p>" + Mot({"FrmAide", "9"}).toHtmlEscaped() + "</p><p>" + path.toHtmlEscaped() +
                 "</p>");
}

/// Makes the contents show where the page stands in them.
void frmaide::SuitPage() {
    const QSignalBlocker quiet(Sommaire);
    const int shown = Contexte();
    for (QTreeWidgetItemIterator each(&Sommaire); *each != nullptr; ++each) {
        const QVariant contexte = (*each)->data(0, kRoleContexte);
        if (contexte.isValid() && contexte.toInt() == shown) {
            Sommaire.setCurrentItem(*each);
        }
    }
}

void frmaide::txtcherche_Change() {
    const QSignalBlocker quiet(Trouves);
    Trouves.clear();
    const bool searching = !txtcherche.text().trimmed().isEmpty();
    Liste.setCurrentWidget(searching ? static_cast<QWidget *>(&Trouves) : &Sommaire);
    if (!searching) {
        Page.Souligne({});
        return;
    }
    for (const PageAide &page : ChercheAide(pages_, txtcherche.text())) {
        auto *item = new QListWidgetItem(page.titre, &Trouves);
        item->setData(kRoleContexte, page.contexte);
        item->setToolTip(page.titre.toHtmlEscaped());
    }
    if (Trouves.count() == 0) {
        auto *nothing = new QListWidgetItem(Mot({"FrmAide", "8"}), &Trouves);
        nothing->setFlags(Qt::NoItemFlags);
    }
}

/// Opens what is chosen of that which was found, the first where nothing is chosen yet.
void frmaide::MontreTrouve() {
    const QListWidgetItem *item =
        Trouves.currentItem() != nullptr ? Trouves.currentItem() : Trouves.item(0);
    if (item == nullptr || !item->data(kRoleContexte).isValid()) {
        return;
    }
    OuvrePage(item->data(kRoleContexte).toInt());
    Page.Souligne(txtcherche.text().split(' ', Qt::SkipEmptyParts));
}

void frmaide::ChangeTaille(int points) {
    taille_ = std::clamp(points, kPlusPetite, kPlusGrande);
    Page.Taille(taille_);
    cmdpluspetit.setEnabled(taille_ > kPlusPetite);
    cmdplusgrand.setEnabled(taille_ < kPlusGrande);
}

void frmaide::Montre(int contexte) {
    SuitLangue();
    OuvrePage(contexte);
    if (QWidget *modal = QApplication::activeModalWidget()) {
        PlaceDevant(*modal);
    }
    show();
    raise();
    activateWindow();
}

/// A modal window blocks every other one but those that stand before it.
void frmaide::PlaceDevant(QWidget &modal) {
    winId(); // makes the window of the desktop, which may not be there yet
    if (windowHandle()->transientParent() == modal.windowHandle()) {
        return;
    }
    hide(); // whether a window is blocked is settled when it is shown
    windowHandle()->setTransientParent(modal.windowHandle());
}

void frmaide::SuitDialogue() {
    auto *dialog = qobject_cast<Dialogue *>(QApplication::activeModalWidget());
    if (dialog == nullptr || !isVisible()) {
        return;
    }
    setAttribute(Qt::WA_ShowWithoutActivating);
    PlaceDevant(*dialog);
    show();
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    dialog->activateWindow(); // it is what the user is about to use
}

bool frmaide::event(QEvent *event) {
    if (event->type() == QEvent::WindowBlocked) {
        QTimer::singleShot(0, this, &frmaide::SuitDialogue);
    }
    if (event->type() == QEvent::WindowActivate) {
        Garde(" frmaide", [this] { SuitLangue(); });
    }
    return Dialogue::event(event);
}

void frmaide::hideEvent(QHideEvent *event) {
    EcritPlace(*this, kPlaceAide);
    Dialogue::hideEvent(event);
}

void frmaide::cmdannuler_Click() {
    // Where settings can't be kept, the next run has the usual size again.
    WriteINIFile(kSection, kCleTaille, NumberText(static_cast<double>(taille_)),
                 programme_.paths.fichier);
    Renonce();
}

} // namespace loftwing
