/// The windows of rib sets with two small airfoils and a folder of their own.
#pragma once

#include "lang/ini_file.h"
#include "support/qt_window_world.h"
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
        std::filesystem::create_directories(this->folder.Path("sets"));
        this->programme.settings.repertoires.RepProfilevol = this->folder.Path("sets");
    }

    void Pick(Seen &window, int end, const ProfilChoisi &chosen) {
        this->view.picked = chosen;
        window.Click({"cmdouvrir", end});
    }
    void PickBoth(Seen &window) {
        Pick(window, 0, Diamond("root", 0.1));
        Pick(window, 1, Diamond("tip", 0.05));
    }
    /// The button refuses with this box and leads to that field.
    void Refused(Seen &window, const std::string &text, BoxIcon icon, const char *field) {
        this->platform.Expect(BoxAnswer::ok, {.text = text, .title = window.Title(), .icon = icon});
        window.Click("cmdcalcul");
        if (*field != '\0') {
            EXPECT_TRUE(window.FocusedAndSelected(field)) << text;
        }
    }
    void ExpectReport(const std::string &start) {
        this->platform.Expect(BoxAnswer::ok, {.text = testing::StartsWith(start),
                                              .title = "Error RibEvol/SaveProfil"});
    }
    /// Names of the files of a folder, sorted.
    std::vector<std::string> Files(const std::string &name = "sets") const {
        std::vector<std::string> names;
        for (const auto &entry : std::filesystem::directory_iterator(this->folder.Path(name))) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

} // namespace loftwing
