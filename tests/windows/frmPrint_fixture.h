/// The page dialog in a scripted world, with a user who is a function.
#pragma once

#include "lang/ini_file.h"
#include "output/frmPrint.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace loftwing {

/// How the dialog was left.
enum class Left { accepted, rejected, open };

inline constexpr const char *kNoRoom = "The margins and the overlap leave no room on the sheet.";

class FrmPrintTest : public testing::Test {
  protected:
    FrmPrintTest() { Language("English"); }

    void Language(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }
    void Chord(const std::string &text, float mm) {
        programme.rib.cordeAfich = text;
        programme.rib.corde = mm;
    }
    void Chord(int mm) { Chord(std::to_string(mm), static_cast<float>(mm)); }
    void Inches() {
        programme.settings.Unite = " in";
        ValeursPouces(programme.settings.page);
    }
    void Template(float ramp) {
        programme.rib.TypeGabarit = 1;
        programme.rib.bloc.BAbloc = ramp;
    }
    void NoOverlap() {
        programme.settings.page.recouvrement = 0;
        programme.settings.page.recouvrementAfich = "0";
    }

    /// Shows the dialog as a command does, lets `act` be the user, and tells how it was left. A
    /// dialog that the user left open is closed behind its back.
    Left Use(const std::function<void(frmPrint &)> &act) {
        frmPrint dialog(programme, nullptr);
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
    static Widget &Find(frmPrint &dialog, const char *name) {
        return *dialog.findChild<Widget *>(name);
    }
    static QLineEdit &Box(frmPrint &dialog, int index) {
        return *dialog.findChild<QLineEdit *>(QString("Text1(%1)").arg(index));
    }
    static std::string Label(frmPrint &dialog, const char *name) {
        return Find<QLabel>(dialog, name).text().toStdString();
    }
    static bool Enabled(frmPrint &dialog, const char *name) {
        return Find<QWidget>(dialog, name).isEnabled();
    }
    static bool Chosen(frmPrint &dialog, const char *name) {
        return Find<QRadioButton>(dialog, name).isChecked();
    }
    static bool Bold(frmPrint &dialog, const char *name) {
        return Find<QWidget>(dialog, name).font().bold();
    }
    static bool FocusedAndSelected(QLineEdit &box) {
        return box.hasFocus() && box.selectedText() == box.text();
    }
    static void Click(frmPrint &dialog, const char *name) {
        QTest::mouseClick(&Find<QPushButton>(dialog, name), Qt::LeftButton);
    }
    /// Goes to a box and types over what it holds, key by key.
    static void Type(frmPrint &dialog, int index, const char *text) {
        Box(dialog, index).setFocus();
        Box(dialog, index).selectAll();
        QTest::keyClicks(&Box(dialog, index), text);
    }
    static void Paper(frmPrint &dialog, int index) {
        Find<QComboBox>(dialog, "Combo1").setCurrentIndex(index);
    }
    /// Expects a box; at its time nothing else may be asked.
    void ExpectBoxes(int count) {
        for (int i = 0; i < count; ++i) {
            platform.Expect(BoxAnswer::ok);
        }
    }
    std::string Stored(const char *key) const {
        return IniFile::Read(programme.paths.fichier).Value("Marges", key);
    }
    const MiseEnPage &Page() const { return programme.settings.page; }

    TempFolder folder;
    ScriptedPlatform platform;
    Programme programme{Paths{{}, {}, folder.Path("Loftwing.ini"), {}}, platform};
};

} // namespace loftwing
