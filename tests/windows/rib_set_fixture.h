/// The windows of rib sets with two small airfoils and a folder of their own.
#pragma once

#include "lang/ini_file.h"
#include "support/qt_window_world.h"
#include "support/temp_folder.h"
#include "windows/addon_fixture.h"

#include <filesystem>

namespace loftwing {

/// A diamond of that height; its second point lies at `x`.
inline ProfilChoisi Diamond(const std::string &name, double height, double x = 0.5) {
    ProfilChoisi chosen;
    chosen.NomProfil = name;
    for (const auto &[px, py] : {std::pair(1.0, 0.0), std::pair(x, height), std::pair(0.0, 0.0),
                                 std::pair(x, -height), std::pair(1.0, 0.0)}) {
        chosen.ProfilX.Append(px);
        chosen.ProfilY.Append(py);
        ++chosen.NbPoints;
    }
    return chosen;
}

template <class Dialog>
class RibSetTest : public AddonTest<Dialog> {
  protected:
    RibSetTest() {
        std::filesystem::create_directories(folder.Path("sets"));
        this->programme.paths.fichier = folder.Path("Loftwing.ini");
        this->programme.settings.repertoires.RepProfilevol = folder.Path("sets");
    }

    void Pick(Dialog &window, int end, const ProfilChoisi &chosen) {
        this->view.picked = chosen;
        this->Click(window, end == 0 ? "cmdouvrir(0)" : "cmdouvrir(1)");
    }
    void PickBoth(Dialog &window) {
        Pick(window, 0, Diamond("root", 0.1));
        Pick(window, 1, Diamond("tip", 0.05));
    }
    /// The button refuses with this box and leads to that field.
    void Refused(Dialog &window, const std::string &text, BoxIcon icon, const char *field) {
        const std::string title = S(window.windowTitle());
        this->platform.boxes_expected.push_back({BoxAnswer::ok, [=](const MessageBox &box) {
                                                     EXPECT_EQ(box.text, text);
                                                     EXPECT_EQ(box.title, title);
                                                     EXPECT_EQ(box.icon, icon);
                                                 }});
        this->Click(window, "cmdcalcul");
        if (*field != '\0') {
            EXPECT_TRUE(this->FocusedAndSelected(this->Box(window, field))) << text;
        }
    }
    void ExpectReport(const std::string &start) {
        this->platform.boxes_expected.push_back(
            {BoxAnswer::ok, [=](const MessageBox &box) {
                 EXPECT_EQ(box.text.substr(0, start.size()), start);
                 EXPECT_EQ(box.title, "Error RibEvol/SaveProfil");
             }});
    }
    int Asked(const char *name) const {
        const auto &asked = this->view.asked;
        return static_cast<int>(std::count(asked.begin(), asked.end(), name));
    }
    /// Names of the files of a folder, sorted.
    std::vector<std::string> Files(const std::string &name = "sets") const {
        std::vector<std::string> names;
        for (const auto &entry : std::filesystem::directory_iterator(folder.Path(name))) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    TempFolder folder;
};

} // namespace loftwing
