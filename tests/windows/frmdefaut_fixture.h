/// The dialog of the defaults in a scripted world, with a user who is a function.
#pragma once

#include "lang/ini_file.h"
#include "persist/frmdefaut.h"
#include "support/noted_view.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace loftwing {

class FrmdefautTest : public testing::Test {
  protected:
    /// How the dialog was left.
    enum class Left { accepted, rejected, open };
    using Texts = std::vector<std::string>;

    inline static const Texts kOnFile = {"180", "2", "3", "", "10", "12"};
    inline static const Texts kInches = {"8", "1/16", "0", "0", "0", "0"};
    inline static const Texts kMillimetres = {"200", "1.5", "0", "0", "0", "0"};

    FrmdefautTest() {
        Language("English");
        folder.File("Loftwing.ini",
                    "[Defaut]\r\nunit= mm\r\ncordeAfich=180\r\nEpCoffrageAfich=2\r\n"
                    "EpBAAfich=3\r\nHTblocAfich=\r\nBAblocAfich=10\r\nBFblocAfich=12\r\n");
        programme.settings.repertoires = {"/home/me/airfoils", "/home/me/sets", "/home/me/other"};
    }

    void Language(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }

    /// Shows the dialog as a command does, lets `act` be the user, and tells how it was left. A
    /// dialog that the user left open is closed behind its back.
    Left Use(const std::function<void(frmdefaut &)> &act) {
        frmdefaut dialog(programme, view, nullptr);
        Left left = Left::open;
        QObject::connect(&dialog, &QDialog::accepted, [&] { left = Left::accepted; });
        QObject::connect(&dialog, &QDialog::rejected, [&] { left = Left::rejected; });
        QTimer::singleShot(0, &dialog, [&] {
            dialog.activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
            act(dialog);
            if (dialog.isVisible()) {
                dialog.done(2);
                left = Left::open;
            }
        });
        ShowModal(dialog);
        return left;
    }

    template <class Widget>
    static Widget &Find(frmdefaut &dialog, const char *name) {
        return *dialog.findChild<Widget *>(name);
    }
    static QLineEdit &Box(frmdefaut &dialog, int index) {
        return *dialog.findChild<QLineEdit *>(QString("txtdef(%1)").arg(index));
    }
    static Texts Shown(frmdefaut &dialog) {
        Texts texts;
        for (int i = 0; i < kChampsDefaut; ++i) {
            texts.push_back(S(Box(dialog, i).text()));
        }
        return texts;
    }
    static void ExpectUnit(frmdefaut &dialog, const std::string &unit) {
        for (int i = 0; i < kChampsDefaut; ++i) {
            EXPECT_EQ(S(dialog.findChild<QLabel *>(QString("Label1(%1)").arg(i))->text()), unit);
        }
        EXPECT_EQ(Find<QRadioButton>(dialog, "inches").isChecked(), unit == " in");
        EXPECT_EQ(Find<QRadioButton>(dialog, "mm").isChecked(), unit == " mm");
    }
    static void Click(frmdefaut &dialog, const char *name) {
        auto &button = Find<QAbstractButton>(dialog, name);
        // On a radio button only the mark and its words take clicks.
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
    }
    static void Type(frmdefaut &dialog, int index, const char *text) {
        Box(dialog, index).setFocus();
        Box(dialog, index).selectAll();
        if (*text == '\0') {
            QTest::keyClick(&Box(dialog, index), Qt::Key_Backspace);
        }
        QTest::keyClicks(&Box(dialog, index), text);
    }
    std::string Stored(const char *section, const char *key) const {
        return IniFile::Read(programme.paths.fichier).Value(section, key);
    }
    const RibModel &Rib() const { return programme.rib; }
    const MiseEnPage &Page() const { return programme.settings.page; }

    TempFolder folder;
    ScriptedPlatform platform;
    NotedView view;
    Programme programme{Paths{{}, {}, folder.Path("Loftwing.ini"), {}}, platform};
};

} // namespace loftwing
