/// A folder of airfoil files and the picker that opens on it.
#pragma once

#include "mainwindow/frmopen.h"
#include "windows/dialog_fixture.h"

#include <QTest>

#include <gtest/gtest.h>

namespace loftwing {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

inline const char *const kFivePoints = "SMALL 5\n1 0\n0.5 0.125\n0 0\n0.5 -0.0625\n1 0\n";

/// A test that sees the picker that it has opened.
class FrmOpenTest : public DialogTest, protected Seen {
  protected:
    FrmOpenTest() {
        fs::create_directory(folder.Path("lib"));
        programme.settings.repertoires.LastOpenProfil = folder.Path("lib");
        programme.rib.CheminProfil = "/before/old.cor";
        programme.rib.NomProfil = "old";
        programme.rib.ExtProfil = "cor";
        programme.rib.EnteteProfil = "OLD ONE";
        programme.rib.ProfilCharge = true;
        programme.rib.NbPoints = 61;
    }

    void File(const std::string &name, const std::string &bytes = kFivePoints) const {
        folder.File("lib/" + name, bytes);
    }

    frmopen &Open() {
        window = std::make_unique<frmopen>(programme, view, nullptr);
        Look(*window);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        return *window;
    }

    /// Waits until the selection of the keys has rested and its file is read.
    void Rest(const std::string &name) const {
        const std::string path = CheminDans(folder.Path("lib"), name);
        EXPECT_TRUE(QTest::qWaitFor([&] { return programme.rib.CheminProfil == path; })) << name;
    }
    std::string Words() const { return S(Find<Apercu>("Surface").Mots()); }
    bool MayOpen() const { return Find<QPushButton>("cmdouvrir").isEnabled(); }
    Names Selected() const {
        Names names;
        for (const QListWidgetItem *item : List("File1").selectedItems()) {
            names.push_back(S(item->text()));
        }
        return names;
    }

    const Recording *Preview() const { return Find<Apercu>("Surface").Dessin(); }
    QListWidget &List(const char *name) const { return Find<QListWidget>(name); }
    Names Listed(const char *list) const {
        Names names;
        for (int row = 0; row < List(list).count(); ++row) {
            names.push_back(S(List(list).item(row)->text()));
        }
        return names;
    }

    QPoint Place(const char *list, const std::string &name) const {
        const QList<QListWidgetItem *> items = List(list).findItems(Q(name), Qt::MatchExactly);
        if (items.isEmpty()) {
            ADD_FAILURE() << name << " is not in " << list;
            return {};
        }
        List(list).scrollToItem(items.front());
        return List(list).visualItemRect(items.front()).center();
    }

    void ClickFile(const std::string &name) const {
        QTest::mouseClick(List("File1").viewport(), Qt::LeftButton, {}, Place("File1", name));
        QApplication::processEvents();
    }

    /// As a hand does it: a click first, the double click in the same place.
    void DoubleClick(const char *list, const std::string &name) const {
        const QPoint at = Place(list, name);
        QWidget *viewport = List(list).viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, {}, at);
        QApplication::processEvents();
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, at);
        QApplication::processEvents();
    }

    void TypePath(const std::string &path) const { Type("txtchemin", path); }

    void ExpectBefore() const {
        const RibModel &rib = programme.rib;
        EXPECT_EQ(rib.CheminProfil, "/before/old.cor");
        EXPECT_EQ(rib.NomProfil, "old");
        EXPECT_EQ(rib.ExtProfil, "cor");
        EXPECT_EQ(rib.EnteteProfil, "OLD ONE");
        EXPECT_TRUE(rib.ProfilCharge);
        EXPECT_TRUE(rib.Annule);
        EXPECT_FALSE(rib.MemProfil);
        EXPECT_FALSE(IsOpen());
    }

    void ExpectOpened(const std::string &path) const {
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(window->result(), QDialog::Accepted);
        EXPECT_EQ(programme.rib.CheminProfil, path);
        EXPECT_TRUE(programme.rib.ProfilCharge);
        EXPECT_FALSE(programme.rib.Annule);
    }

    std::unique_ptr<frmopen> window;
};

/// Words that close every refusal.
inline const std::string kClosing = "\nHelp/Open airfoil file";
inline const std::string kCloture = "\nAide/Ouvrir un fichier de profil";

} // namespace loftwing
