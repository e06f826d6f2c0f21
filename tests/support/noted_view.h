/// A main window that only notes what dialogs ask of it.
#pragma once

#include "programme/main_view.h"

#include <functional>
#include <string>
#include <vector>

namespace loftwing {

/// The same for an interface that asks for more.
template <class View>
class Noted : public View {
  public:
    std::vector<std::string> asked;     ///< names of the routines, in order
    std::optional<ProfilChoisi> picked; ///< what the picker gives
    std::function<void()> on_draw;
    std::function<void()> on_clear;

    void affiche() override {
        asked.emplace_back("affiche");
        if (on_draw) {
            on_draw();
        }
    }
    void RetraceVues() override { asked.emplace_back("RetraceVues"); }
    void afficheEpcourb() override { asked.emplace_back("afficheEpcourb"); }
    void mnu_fileprint_Click() override { asked.emplace_back("mnu_fileprint_Click"); }
    std::function<void()> on_save;
    void mnu_filesaveas_Click() override {
        asked.emplace_back("mnu_filesaveas_Click");
        if (on_save) {
            on_save();
        }
    }
    void affclear() override {
        asked.emplace_back("affclear");
        if (on_clear) {
            on_clear();
        }
    }
    void mnu_affclear_Click() override { asked.emplace_back("mnu_affclear_Click"); }
    std::optional<ProfilChoisi> ChoisitProfil(const std::string &titre) override {
        asked.emplace_back("ChoisitProfil " + titre);
        return picked;
    }
    void FermeDialogues() override { asked.emplace_back("FermeDialogues"); }
    void AppliqueLangue() override { asked.emplace_back("AppliqueLangue"); }
    void AfficheUnite() override { asked.emplace_back("AfficheUnite"); }
    void AfficheCorde() override { asked.emplace_back("AfficheCorde"); }
};

using NotedView = Noted<MainView>;

} // namespace loftwing
