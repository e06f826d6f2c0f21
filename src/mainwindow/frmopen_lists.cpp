// The lists of folders and files of the airfoil picker, and the way from one folder to another.

#include "base/file_name.h"
#include "base/text_encoding.h"
#include "mainwindow/frmopen.h"
#include "platform/system.h"
#include "programme/dossiers.h"
#include "programme/load.h"

#include <QKeyEvent>
#include <QMouseEvent>

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

/// The file of that folder that was opened last, in this run or before it; empty without one.
std::string DernierOuvert(Programme &programme, const std::string &folder) {
    std::vector<std::string> paths = {programme.DernierProfil};
    if (programme.DernierProfil.empty()) {
        const FichiersRecents recent = FichiersRecentsConnus(programme);
        paths.assign(recent.begin(), recent.end());
    }
    for (const std::string &path : paths) {
        if (!path.empty() && DossierDe(path) == folder) {
            return NameIn(path);
        }
    }
    return {};
}

/// A path as typed: "~" is the home folder, and it may start from the folder that is shown.
std::filesystem::path CheminTape(const std::string &typed, const std::string &folder) {
    const std::string home = TextOf(HomeFolder());
    const bool at_home =
        !home.empty() && typed.starts_with('~') && (typed.size() == 1 || Separates(typed[1]));
    const std::string text = at_home ? home + typed.substr(1) : typed;
    const std::filesystem::path path = Plain(SeenFrom(PathOf(folder), PathOf(text)));
    return path.has_filename() ? path : path.parent_path();
}

} // namespace

std::string frmopen::Motif() const {
    return MotifDeLigne(S(Combo1.currentText()));
}

bool frmopen::Ouvre(const std::string &folder, const std::string &came_from) {
    try {
        const ContenuDossier contenu = LitDossier(folder, Motif());
        if (folder != dossier_) {
            const QSignalBlocker no_search(txtcherche); // the list comes anew anyway
            txtcherche.clear();
        }
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

void frmopen::Relit() {
    const QList<QListWidgetItem *> chosen = File1.selectedItems();
    const std::string name = chosen.isEmpty() ? std::string() : NomDe(*chosen.front());
    if (Ouvre(dossier_)) {
        Selectionne(File1, name);
    }
}

void frmopen::OuvreDernier() {
    const std::string folder = DossierDepart(programme_.settings.repertoires.LastOpenProfil);
    const std::string name = DernierOuvert(programme_, folder);
    for (int row = 0; row < Combo1.count(); ++row) {
        if (SuitMotif(name, MotifDeLigne(S(Combo1.itemText(row))))) {
            Combo1.setCurrentIndex(row);
        }
    }
    Ouvre(folder);
    Selectionne(File1, name);
}

void frmopen::RemplitFile1(std::vector<std::string> names) {
    const QSignalBlocker no_selection(File1);
    OublieFichier();
    fichiers_ = std::move(names);
    MontreFichiers();
}

void frmopen::MontreFichiers() {
    File1.clear();
    for (const std::string &name : fichiers_) {
        if (Q(ToUtf8(name)).contains(txtcherche.text(), Qt::CaseInsensitive)) {
            Ajoute(File1, name);
        }
    }
}

void frmopen::txtcherche_Change() {
    const QSignalBlocker no_selection(File1);
    const QList<QListWidgetItem *> chosen = File1.selectedItems();
    const std::string name = chosen.isEmpty() ? std::string() : NomDe(*chosen.front());
    MontreFichiers();
    if (!name.empty() && !Selectionne(File1, name)) {
        OublieFichier();
    }
}

bool frmopen::txtcherche_Key(int key) {
    if (key == Qt::Key_Escape && !txtcherche.text().isEmpty()) {
        txtcherche.clear();
        return true;
    }
    // Return opens a file that is chosen; before that it leads to the files, as Down does.
    if (key != Qt::Key_Down && !(IsReturn(key) && Choisi().empty())) {
        return false;
    }
    File1.setFocus();
    if (Choisi().empty() && File1.count() > 0) {
        File1.setCurrentRow(0);
    }
    return true;
}

void frmopen::Dir1_Change(const std::string &came_from) {
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
        Ouvre(above, NameIn(dossier_));
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

bool frmopen::ChercheAilleurs() const {
    return S(txtchemin.text()) != ToUtf8(dossier_);
}

bool frmopen::txtchemin_Return() {
    const std::filesystem::path path = CheminTape(S(txtchemin.text().trimmed()), dossier_);
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        Ouvre(TextOf(path));
        return false;
    }
    if (!Ouvre(TextOf(path.parent_path()))) {
        return false;
    }
    // Who names a file means it, whatever files the list shows.
    const std::string name = TextOf(path.filename());
    if (!Selectionne(File1, name)) {
        Ajoute(File1, name);
        Selectionne(File1, name);
    }
    File1.setFocus();
    Attend(false);
    return true;
}

void frmopen::Combo1_Change() {
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
        Attend(false);
    }
}

} // namespace loftwing
