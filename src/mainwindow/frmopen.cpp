#include "mainwindow/frmopen.h"

#include "base/text_encoding.h"
#include "output/airfoil_preview.h"
#include "platform/qt_form.h"

#include <QKeyEvent>

#include <cstdlib>
#include <filesystem>

namespace loftwing {

namespace {

const char *const kAuDessus = "..";

/// File names are bytes. What can't be shown as they stand must still open.
void Ajoute(QListWidget &list, const std::string &name) {
    auto *item = new QListWidgetItem(Q(ToUtf8(name)), &list);
    item->setData(Qt::UserRole, QByteArray::fromStdString(name));
}

std::string NomDe(const QListWidgetItem &item) {
    return item.data(Qt::UserRole).toByteArray().toStdString();
}

bool Selectionne(QListWidget &list, const std::string &name) {
    for (int row = 0; row < list.count(); ++row) {
        if (NomDe(*list.item(row)) == name) {
            list.setCurrentRow(row);
            list.scrollToItem(list.item(row));
            return true;
        }
    }
    return false;
}

/// A path as typed: "~" is the home folder, and it may start from the folder that is shown.
std::filesystem::path CheminTape(const std::string &typed, const std::string &folder) {
    const char *home = std::getenv("HOME");
    const bool at_home = typed == "~" || typed.starts_with("~/");
    const std::string text = at_home && home != nullptr ? home + typed.substr(1) : typed;
    const std::filesystem::path path = (std::filesystem::path(folder) / text).lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

} // namespace

void frmopen::Form_Load() {
    rib_.CheminProfil.clear();
    rib_.ProfilCharge = false;
    Label1.clear();
    MontreMemoire(false, {});
    Ouvre(DossierDepart(programme_.settings.repertoires.LastOpenProfil));
}

void frmopen::MontreMemoire(bool check, const std::string &note) {
    memP1.setVisible(check);
    LbMem.setVisible(check);
    Label3.setText(Q(note));
    Label3.setVisible(!note.empty());
}

std::string frmopen::Motif() const {
    return MotifDeLigne(S(Combo1.currentText()));
}

bool frmopen::Ouvre(const std::string &folder, const std::string &came_from) {
    try {
        const ContenuDossier contenu = LitDossier(folder, Motif());
        dossier_ = folder;
        Dir1.clear();
        if (!DossierParent(folder).empty()) {
            Ajoute(Dir1, kAuDessus);
        }
        for (const std::string &name : contenu.dossiers) {
            Ajoute(Dir1, name);
        }
        RemplitFile1(contenu.fichiers);
        Dir1_Change(came_from);
        return true;
    } catch (const Failure &failure) {
        programme_.messages.Report(failure, " Open/Dir1");
        txtchemin.setText(Q(ToUtf8(dossier_)));
        return false;
    }
}

void frmopen::RemplitFile1(const std::vector<std::string> &names) {
    const QSignalBlocker no_selection(File1);
    selection_.stop();
    File1.clear();
    for (const std::string &name : names) {
        Ajoute(File1, name);
    }
}

void frmopen::Dir1_Change(const std::string &came_from) {
    Label1.clear();
    nomfile1.clear();
    Label2.clear();
    const std::string shown = ToUtf8(dossier_);
    Lbchemin.setText(Q(CheminAbrege(shown)));
    txtchemin.setText(Q(shown));
    if (!Selectionne(Dir1, came_from)) {
        Dir1.setCurrentRow(0, QItemSelectionModel::NoUpdate);
    }
}

void frmopen::Monte() {
    const std::string above = DossierParent(dossier_);
    if (!above.empty()) {
        Ouvre(above, std::filesystem::path(dossier_).filename().string());
    }
}

void frmopen::Dir1_DblClick() {
    const QListWidgetItem *item = Dir1.currentItem();
    if (item == nullptr) {
        return;
    }
    const std::string name = NomDe(*item);
    if (name == kAuDessus) {
        Monte();
    } else {
        Ouvre(CheminDans(dossier_, name));
    }
}

bool frmopen::txtchemin_Return() {
    const std::filesystem::path path = CheminTape(S(txtchemin.text().trimmed()), dossier_);
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        Ouvre(path.string());
        return false;
    }
    if (!Ouvre(path.parent_path().string())) {
        return false;
    }
    // Who names a file means it, whatever files the list shows.
    const std::string name = path.filename().string();
    if (!Selectionne(File1, name)) {
        Ajoute(File1, name);
        Selectionne(File1, name);
    }
    File1.setFocus();
    return true;
}

void frmopen::Combo1_Change() {
    Label1.clear();
    try {
        RemplitFile1(LitDossier(dossier_, Motif()).fichiers);
    } catch (const Failure &failure) {
        programme_.messages.Report(failure, " Open/Combo1");
    }
}

std::string frmopen::Choisi() const {
    const QList<QListWidgetItem *> chosen = File1.selectedItems();
    return chosen.isEmpty() ? std::string() : CheminDans(dossier_, NomDe(*chosen.front()));
}

void frmopen::LitSelection() {
    if (selection_.isActive()) {
        selection_.stop();
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
    MontreLecture(FichierLecture(rib_, programme_.messages, S(windowTitle())));
    // Only now, so that a refusal's box may have come before.
    const std::string warning = NomEcarte(rib_);
    if (!warning.empty()) {
        Surface.Efface();
        Label1.setText(Q(warning));
    }
    programme_.platform.SetPointer(Pointer::normal);
}

void frmopen::MontreLecture(const ResultatLecture &lecture) {
    if (lecture.issue == Lecture::echec) {
        rib_.NbPoints = 0;
        if (efface_) {
            view_.affclear();
            // There is no airfoil any more that a cancel could give back.
            precedent_ = ProfilPrecedent(rib_);
        }
        return;
    }
    if (lecture.issue == Lecture::refuse) {
        Label1.setText(Q(lecture.etiquette));
        return;
    }
    if (rib_.SansApercu) {
        return;
    }
    auto drawing = std::make_unique<Recording>();
    DessineApercu(rib_, *drawing);
    Surface.Montre(std::move(drawing));
    Label1.setText(Q(TitreApercu(rib_)));
    Label2.setText(Q(NombreApercu(rib_, programme_.messages)));
}

void frmopen::File1_DblClick() {
    cmdouvrir_Click();
}

void frmopen::memP1_Click() {
    rib_.MemProfil = memP1.isChecked();
}

void frmopen::cmdouvrir_Click() {
    const bool typed = S(txtchemin.text()) != ToUtf8(dossier_);
    if (typed && !txtchemin_Return()) {
        return;
    }
    LitSelection();
    const std::string title = S(windowTitle());
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
    rib_.ProfilCharge = true;
    programme_.settings.repertoires.LastOpenProfil = dossier_;
    WriteINIFile("Repertoires", "LastOpenProfil", dossier_, programme_.paths.fichier);
    accept();
}

void frmopen::cmdannuler_Click() {
    selection_.stop();
    rib_.Annule = true;
    precedent_.Rend(rib_);
    MontreMemoire(false, {});
    rib_.MemProfil = false;
    QDialog::reject();
}

void frmopen::reject() {
    cmdannuler_Click();
}

bool frmopen::ListKey(QListWidget &list, int key) {
    if (key == Qt::Key_Backspace) {
        Monte();
        return true;
    }
    if (IsReturn(key) && &list == &Dir1) {
        Dir1_DblClick();
        return true;
    }
    // The list takes its first file for the current one although nobody chose it.
    if (key == Qt::Key_Down && &list == &File1 && Choisi().empty()) {
        File1.setCurrentRow(0);
        return true;
    }
    return false; // Return on a file is left to the default button
}

void frmopen::File1_Mouse(const QEvent &event) {
    if (event.type() == QEvent::MouseButtonPress) {
        pressed_ = true;
    }
    if (event.type() != QEvent::MouseButtonRelease || !pressed_) {
        return;
    }
    // Not before the button is up: a box in between would keep the list dragging.
    pressed_ = false;
    const QPoint at = static_cast<const QMouseEvent &>(event).position().toPoint();
    if (File1.itemAt(at) != nullptr || Choisi() != rib_.CheminProfil) {
        selection_.start();
    }
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
        return QDialog::eventFilter(watched, event);
    }
    const auto *pressed = static_cast<const QKeyEvent *>(event);
    const int key = pressed->key();
    if (watched == &txtchemin && IsReturn(key)) {
        txtchemin_Return();
        return true;
    }
    const Qt::KeyboardModifiers modifiers = pressed->modifiers() & ~Qt::KeypadModifier;
    const bool plain = modifiers == Qt::NoModifier;
    if (plain && watched == &Dir1) {
        return ListKey(Dir1, key);
    }
    return plain && watched == &File1 && ListKey(File1, key);
}

} // namespace loftwing
