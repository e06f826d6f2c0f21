/// Dialogs in a scripted world, with a user who is a function.
#pragma once

#include "lang/ini_file.h"
#include "platform/qt_form.h"
#include "programme/programme.h"
#include "support/noted_view.h"
#include "support/qt_modal.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace loftwing {

class DialogTest : public testing::Test {
  protected:
    DialogTest() { Language("English"); }

    void Language(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }
    void Inches() { programme.settings.Unite = kUniteIn; }
    void Chord(const std::string &text, float mm) {
        programme.rib.cordeAfich = text;
        programme.rib.corde = mm;
    }
    /// How often a dialog has asked that of the main window.
    int Asked(const char *routine) const {
        return static_cast<int>(std::count(view.asked.begin(), view.asked.end(), routine));
    }
    /// What the settings file holds.
    std::string Stored(const char *section, const char *key) const {
        return IniFile::Read(programme.paths.fichier).Value(section, key);
    }

    TempFolder folder;
    ScriptedPlatform platform;
    NotedView view;
    Programme programme{Paths{{}, {}, folder.Path("Loftwing.ini"), {}}, platform};
};

} // namespace loftwing
