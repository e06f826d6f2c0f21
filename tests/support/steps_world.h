/// A program with settings, folders and words of its own, and a main window that only notes.
#pragma once

#include "base/whole_file.h"
#include "core/airfoil_reader.h"
#include "programme/load.h"
#include "support/noted_window.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <source_location>
#include <string>

namespace loftwing {

class StepsWorld : public testing::Test {
  protected:
    StepsWorld() {
        for (const char *name : {"airfoils", "sets"}) {
            std::filesystem::create_directories(folder.Path(name));
        }
        platform.store[{"Install", "RepAirfoil"}] = folder.Path("airfoils");
        platform.store[{"Install", "RepEvol"}] = folder.Path("sets");
        programme.language.Charge(programme.paths.langues, "English");
        ChargeReglages(programme);
    }

    static std::string Sample(const std::string &name) {
        return LOFTWING_SOURCE_DIR "/resources/airfoils/" + name;
    }
    /// A sample airfoil under another name and title.
    std::string Named(const std::string &name, const std::string &title) const {
        std::string bytes = ReadWholeFile(Sample("naca2412.dat"));
        bytes.replace(0, bytes.find_first_of("\r\n"), title);
        return folder.File(name, bytes);
    }
    /// An airfoil that is read but too short for a contour.
    std::string Short() const {
        return folder.File("five.dat", "Five\n1 0\n0.5 0.1\n0 0\n0.5 -0.04\n1 0\n");
    }
    /// Reads a file into the rib, as the picker does.
    bool Read(const std::string &path) {
        NommeProfil(Rib(), path);
        Rib().ProfilCharge = true;
        return FichierLecture(Rib(), programme.messages, "test").issue == Lecture::lu;
    }
    /// The user picks these files one after the other.
    void WillPick(std::vector<std::string> paths) {
        std::reverse(paths.begin(), paths.end());
        view.on_pick = [this, paths](const ChoixProfil &) mutable {
            if (paths.empty() || paths.back().empty()) {
                return false;
            }
            const std::string path = paths.back();
            paths.pop_back();
            return Read(path);
        };
    }
    void ExpectBox(BoxAnswer answer, const std::string &text, const std::string &title,
                   const std::source_location &where = std::source_location::current()) {
        platform.Expect(answer, {.text = text, .title = title}, where);
    }
    void ExpectReport(const std::string &title,
                      const std::source_location &where = std::source_location::current()) {
        platform.Expect(BoxAnswer::ok, {.title = title}, where);
    }
    /// A separator other than the point, at whose warning the user cancels the command.
    void ForeignSeparator() {
        platform.decimal_separator = ',';
        platform.Expect(BoxAnswer::cancel);
    }
    std::string Setting(const char *section, const char *key) const {
        return GetINIFile(section, key, programme.paths.fichier);
    }
    /// Two airfoils are compared.
    void Comparing() {
        Rib().ModeCompare = true;
        programme.compare.CompareNb1 = programme.compare.CompareNb2 = 3;
    }

    RibModel &Rib() { return programme.rib; }

    TempFolder folder;
    ScriptedPlatform platform;
    Programme programme{Paths{LOFTWING_SOURCE_DIR "/resources",
                              LOFTWING_SOURCE_DIR "/resources/lng",
                              folder.Path("Loftwing.ini"),
                              {},
                              folder.Path("recovery")},
                        platform};
    NotedWindow view;
};

} // namespace loftwing
