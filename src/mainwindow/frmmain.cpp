#include "mainwindow/frmmain.h"

#include "base/version.h"
#include "core/airfoil_reader.h"
#include "features/rib_entry.h"
#include "mainwindow/frmInput.h"
#include "mainwindow/tool_icons.h"
#include "output/screen_plot.h"
#include "output/view_plots.h"
#include "platform/busy_pointer.h"
#include "platform/qt_form.h"
#include "programme/export.h"
#include "programme/load.h"
#include "programme/rib_file.h"
#include "utilities/frmCoord.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <string_view>

namespace loftwing {

namespace {

/// What closes with the rib.
struct DialogueFerme {
    std::string_view nom;
    /// Works on the rib that is shown. The calculators work on none, but their lengths are in the
    /// unit that was in force when they were opened, and a clear may bring another.
    bool sur_nervure;
};
constexpr std::array<DialogueFerme, 9> kDialogues = {{{"frmInput", true},
                                                      {"frmlongeron", true},
                                                      {"frmtrou", true},
                                                      {"frmTalon", true},
                                                      {"frmbacarre", true},
                                                      {"frmbloc", true},
                                                      {"frmInstxt", true},
                                                      {"frmnervure", false},
                                                      {"frmdiedre", false}}};

const DialogueFerme *EntreeDe(const QDialog &dialog) {
    const auto *entry =
        std::find_if(kDialogues.begin(), kDialogues.end(),
                     [&](const DialogueFerme &each) { return each.nom == S(dialog.objectName()); });
    return entry == kDialogues.end() ? nullptr : entry;
}

} // namespace

frmmain::frmmain(Programme &programme) : programme_(programme) {
    setObjectName("frmmain");
    setAcceptDrops(true);
    BuildMenus();
    BuildToolbar();
    BuildPicture();
    BuildStatusBar();
    LitPlace();
    Form_Load();
}

void frmmain::Form_Load() {
    programme_.platform.SetPointer(Pointer::normal);
    ChargeReglages(programme_);
    Panel(1, std::string(" V. ") + kVersion);
    Panel(2, "");
    AfficheUnite();
    setWindowTitle(QString::fromUtf8(kTitre));
    SetChecked("mnu_affTrac", true);
    SetChecked("mnu_afflignRef", true);
    AppliqueLangue();
    AfficheFichiersRecents();
    // The window's own data: what a rib brings to life is dead until there is one.
    EnableGroup(kWithRib, false);
    DesactiveCommandes();
}

void frmmain::Execute(const char *name, void (frmmain::*handler)()) {
    if (handler != nullptr) {
        Garde(std::string(" Main/") + name, [this, handler] { (this->*handler)(); });
    }
}

void frmmain::Garde(const std::string &label, const std::function<void()> &action) {
    try {
        action();
    } catch (const Failure &failure) {
        programme_.platform.SetPointer(Pointer::normal);
        programme_.messages.Report(failure, label);
    }
}

void frmmain::Panel(int number, const std::string &text) {
    QLabel *panel = At(panels_, number - 1);
    panel->setText(Q(text));
    panel->setToolTip(number == 2 ? Q(text).toHtmlEscaped() : QString());
}

void frmmain::AfficheUnite() {
    Panel(3, "unit :" + programme_.settings.Unite);
}

void frmmain::AfficheCorde() {
    Panel(2, programme_.Text({"FrmPrint", "26"}) + " : " + programme_.rib.cordeAfich);
}

bool frmmain::Checked(const char *name) const {
    return actions_.at(name)->isChecked();
}

void frmmain::SetChecked(const char *name, bool checked) {
    actions_.at(name)->setChecked(checked);
}

void frmmain::EnableGroup(unsigned group, bool enabled) {
    for (const Command &command : MenuCommands()) {
        if ((command.groups & group) != 0) {
            actions_.at(command.name)->setEnabled(enabled);
        }
    }
    for (const PushButton &button : PushButtons()) {
        if ((button.groups & group) != 0) {
            buttons_.at(button.name)->setEnabled(enabled);
        }
    }
    for (const ToolButton &button : ToolButtons()) {
        if ((button.groups & group) != 0) {
            tools_.at(button.index)->setEnabled(enabled);
        }
    }
}

void frmmain::ActiveCommandes() {
    FermeDialogues();
    EnableGroup(kWithRib, true);
}

void frmmain::DesactiveCommandes() {
    EnableGroup(kDiesOnClear, false);
}

void frmmain::ActiveCommandesVue() {
    EnableGroup(kNotInView, false);
    EnableGroup(kAliveInView, true);
}

bool frmmain::DialogueNervureOuvert() const {
    const QList<QDialog *> dialogs = findChildren<QDialog *>();
    return std::any_of(dialogs.begin(), dialogs.end(), [](const QDialog *dialog) {
        const DialogueFerme *entry = EntreeDe(*dialog);
        return entry != nullptr && entry->sur_nervure && dialog->isVisible();
    });
}

void frmmain::FermeDialogues() {
    for (QDialog *dialog : findChildren<QDialog *>()) {
        if (EntreeDe(*dialog) != nullptr) {
            // done() and not close(): nothing of the rib may be asked for or put back any more.
            dialog->done(QDialog::Rejected);
        }
    }
}

bool frmmain::FermeCoordonnees() {
    const QList<frmCoord *> editors = findChildren<frmCoord *>();
    return std::all_of(editors.begin(), editors.end(),
                       [](frmCoord *editor) { return !editor->isVisible() || editor->close(); });
}

void frmmain::ViewReset() {
    RemetVue(programme_.rib);
    programme_.plot.BlocBA = 0;
    programme_.plot.BlocEp = 0;
    picture_->RemetDefilement();
}

bool frmmain::ConfirmePerte(LngKey text, LngKey title) {
    if (!programme_.rib.Modifie || CompareEnVue(programme_.rib, programme_.compare)) {
        return true;
    }
    return programme_.messages.Confirm(programme_.Text(text), programme_.Text(title));
}

void frmmain::affclear() {
    const Sablier sablier(programme_.platform);
    programme_.messages.Garde(" Main/AffichClear", [this] { ClearRib(); });
}

void frmmain::ClearRib() {
    FermeDialogues();
    VideRib(programme_);
    ViewReset();
    DesactiveCommandes();
    EnableGroup(kAliveAfterClear, true);
    for (const char *name : {"mnu_affinver", "mnu_affhautba", "mnu_affhautbf", "mnu_affepr"}) {
        SetChecked(name, false);
    }
    for (const char *name : {"mnu_affTrac", "mnu_afflignRef"}) {
        SetChecked(name, true);
    }
    ControlRep(programme_.ReglagesEnCours(), programme_.paths.programme);
    Panel(2, "");
    setWindowTitle(QString::fromUtf8(kTitre));
    picture_->Montre(nullptr);
    Combo1->setCurrentIndex(kZoomRow100);
    programme_.rib.Zoom = FacteurZoom(kZoomRows[kZoomRow100]);
    picture_->RegleDefilement();
    LitDefauts(programme_.ReglagesEnCours());
}

void frmmain::RepriseProfil() {
    setWindowTitle(Q(TitreFenetre(programme_.rib, programme_.messages)));
    const Sablier sablier(programme_.platform);
    EntreProfil(programme_);
    AfficheFichiersRecents();
    CordeDuTitre(programme_.rib, programme_.SaisieEnCours());
    RecalculProfil();
}

void frmmain::RecalculProfil() {
    if (PrepareContour(programme_.rib, programme_.messages) == Preparation::impossible) {
        affclear();
        return;
    }
    ViewReset();
    ActiveCommandes();
    affiche();
}

void frmmain::OuvreFichier(const std::string &path) {
    if (EstComposants(path)) {
        Garde(" LireEcrire/newLfw", [this, &path] {
            if (ConfirmePerte({"fileopen", "1"}, {"fileopen", "2"})) {
                newLfw(path);
            }
        });
        return;
    }
    Garde(" Main/FileMru", [this, &path] { LitEtReprend(path); });
}

void frmmain::LitEtReprend(const std::string &path) {
    RibModel &rib = programme_.rib;
    const ProfilPrecedent before(rib);
    const bool was_simple = rib.ModeCouple;
    rib.ModeCouple = false;
    rib.SansApercu = true;
    rib.CheminProfil = path;
    const ResultatLecture read =
        FichierLecture(rib, programme_.messages, programme_.Text({"frmopen", "1"}));
    rib.SansApercu = false;
    if (read.issue == Lecture::echec) {
        affclear();
        return;
    }
    if (read.issue == Lecture::refuse) {
        // The rib on the screen is still the one that was there.
        before.Rend(rib);
        rib.ModeCouple = was_simple;
        return;
    }
    NommeProfil(rib, path);
    rib.ProfilCharge = true;
    RepriseProfil();
}

void frmmain::AfficheFichiersRecents() {
    const FichiersRecents recent = FichiersRecentsConnus(programme_);
    bool any = false;
    for (std::size_t i = 0; i < recent.size(); ++i) {
        const QString path = Q(recent[i]);
        QString shown = path;
        shown.replace('&', "&&");
        mnuFileMRU_[i]->setText(QStringLiteral("&%1 %2").arg(i + 1).arg(shown));
        mnuFileMRU_[i]->setData(path);
        mnuFileMRU_[i]->setVisible(!path.isEmpty());
        any = any || !path.isEmpty();
    }
    mnuFileMRUTrait_->setVisible(any);
}

bool frmmain::Saisit(const std::string &ModeSaisie) {
    frmInput dialog(programme_, ModeSaisie, this);
    ShowModal(dialog);
    return !programme_.rib.Annule;
}

void frmmain::AppliqueLangue() {
    const auto caption = [this](LngKey key) { return Q(programme_.Text(key)); };
    for (const Command &command : MenuCommands()) {
        actions_.at(command.name)->setText(caption(command.text));
    }
    actions_.at("mnu_helpVersion")->setText("Check " + caption({"FrmAbout", "3"}));
    for (const PushButton &button : PushButtons()) {
        buttons_.at(button.name)->setText(caption(button.text));
        buttons_.at(button.name)->setToolTip(caption(button.tip));
    }
    for (const ToolButton &button : ToolButtons()) {
        tools_.at(button.index)->setToolTip(caption(button.tip));
        tools_.at(button.index)->setText(caption(button.tip));
        tools_.at(button.index)->setIcon(ToolIcon(button.index, palette()));
    }
    programme_.platform.SetButtonWords(
        {programme_.Text({"TextButton", "1"}), programme_.Text({"TextButton", "2"}),
         programme_.Text({"TextButton", "30"}), programme_.Text({"TextButton", "31"}),
         programme_.Text({"TextButton", "32"})});
    Combo1->setToolTip(tools_.at(8)->toolTip());
    Combo1->setAccessibleName(tools_.at(8)->toolTip());
    toolkit_words_.Follow(programme_.language.LangueCourante);
    AppliqueLangueOutils();
}

bool frmmain::QuestionFin() {
    const Messages &messages = programme_.messages;
    std::string text = messages.Text({"TextButton", "17"}) + " " + kTitre + " ? ";
    if (programme_.rib.Modifie && !CompareEnVue(programme_.rib, programme_.compare)) {
        text = messages.Text({"FrmMainMessage", "4"});
    }
    return messages.Confirm(text, kTitre);
}

void frmmain::closeEvent(QCloseEvent *event) {
    // The program's own question first: a No to it leaves everything open.
    if (!QuestionFin() || !FermeCoordonnees()) {
        event->ignore();
        return;
    }
    EcritPlace();
    programme_.platform.CloseHelp();
    FermeDialogues();
    event->accept();
}

void frmmain::dragEnterEvent(QDragEnterEvent *event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.front().isLocalFile()) {
        event->acceptProposedAction();
    }
}

void frmmain::dropEvent(QDropEvent *event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) {
        return;
    }
    event->acceptProposedAction();
    const std::string path = S(urls.front().toLocalFile());
    // After the drop is over: a box must not hold up the program that the file comes from.
    QTimer::singleShot(0, this, [this, path] { OuvreFichier(path); });
}

} // namespace loftwing
