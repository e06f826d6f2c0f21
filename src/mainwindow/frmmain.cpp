#include "mainwindow/frmmain.h"

#include "base/version.h"
#include "mainwindow/beside.h"
#include "mainwindow/window_place.h"
#include "platform/qt_path.h"
#include "programme/load.h"
#include "programme/reglage_retenu.h"
#include "programme/rib_steps.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace loftwing {

namespace {

/// The one file that is dragged or dropped, nothing for anything else.
std::optional<std::string> FileOf(const QMimeData &data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) {
        return std::nullopt;
    }
    const QString name = urls.front().toLocalFile();
    // A name's bytes may be anything; as a text the toolkit has a mark for those that are no UTF-8.
    return name.contains(QChar::ReplacementCharacter)
               ? QByteArray::fromPercentEncoding(urls.front().path(QUrl::FullyEncoded).toLatin1())
                     .toStdString()
               : Path(name);
}

} // namespace

frmmain::frmmain(Programme &programme)
    : MainFrame(programme, {[this](const char *name, CommandHandler handler) {
                                Garde(std::string(" Main/") + name,
                                      [this, handler] { (this->*handler)(); });
                            },
                            [this](const EntreeExport &entree) { Exporte(entree); },
                            [this](const std::string &path) { mnuFileMRU_Click(path); },
                            [this](const std::string &path) { mnuRibMRU_Click(path); },
                            [this](int row) { Combo1_Click(row); }}),
      touche_(programme, picture_->Image(), DemandesDuDoigt()),
      mesure_(programme, picture_->Image(), [this] { FinMesure(); }) {
    setObjectName("frmmain");
    setAcceptDrops(true);
    ConnectPicture();
    LitPlace(*this);
    Form_Load();
    picture_->setFocus(); // arrow keys scroll from the start
}

void frmmain::Form_Load() {
    programme_.platform.SetPointer(Pointer::normal);
    ChargeReglages(programme_);
    Panneau(1, std::string(" V. ") + kVersion);
    Panneau(2, "");
    AfficheUnite();
    Titre(kTitre);
    MontreCoches();
    commands_.Entree("mnu_affessai")
        .setChecked(ReglageRetenu(programme_, "Apercu", "Saisie") != "0");
    AppliqueLangue();
    AfficheFichiersRecents();
    commands_.Met(EtatCommandes::depart);
    NotePas();
}

void frmmain::ActiveCommandes() {
    FermeDialogues();
    commands_.Met(EtatCommandes::rib);
}

void frmmain::DesactiveCommandes() {
    commands_.Met(EtatCommandes::sans);
}

void frmmain::ActiveCommandesVue() {
    commands_.Met(EtatCommandes::vue);
}

void frmmain::ActiveCommandesCouple() {
    commands_.Met(EtatCommandes::couple);
}

void frmmain::ActiveCommandesVides() {
    // What clears before there was any airfoil, as the choice of the first language does, leaves
    // the program as every other start has it.
    commands_.Met(dessine_ ? EtatCommandes::vide : EtatCommandes::depart);
}

void frmmain::closeEvent(QCloseEvent *event) {
    // The program's own question first: a No to it leaves everything open.
    if (!ConfirmeFin(programme_, *this) || !FermeCoordonnees(*this)) {
        event->ignore();
        return;
    }
    EcritPlace(*this);
    programme_.platform.CloseHelp();
    FermeDialogues();
    secours_.Finit();
    event->accept();
}

void frmmain::dragEnterEvent(QDragEnterEvent *event) {
    if (FileOf(*event->mimeData())) {
        event->acceptProposedAction();
    }
}

void frmmain::dropEvent(QDropEvent *event) {
    if (const auto path = FileOf(*event->mimeData())) {
        event->acceptProposedAction();
        // After the drop is over: a box must not hold up the program that the file comes from.
        QTimer::singleShot(0, this, [this, path] { OuvreFichier(*path); });
    }
}

} // namespace loftwing
