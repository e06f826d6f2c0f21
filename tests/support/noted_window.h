/// A main window that only notes what commands ask of it.
#pragma once

#include "programme/command_view.h"
#include "programme/import_steps.h"
#include "support/noted_view.h"

#include <string>
#include <vector>

namespace loftwing {

class NotedWindow : public Noted<CommandView> {
  public:
    std::vector<ChoixProfil> choices; ///< that the airfoil picker was opened with
    /// What the user does in the picker and at a value, true for OK. Without one it is cancelled.
    std::function<bool(const ChoixProfil &)> on_pick;
    std::function<bool()> on_value;
    std::optional<std::string> section; ///< the file of an airfoil with another thickness
    std::function<void()> on_section;
    std::function<void()> on_ask_clear;
    std::function<void()> on_open;
    std::function<void()> on_checks;

    void Titre(const std::string &caption) override { Note("Titre", caption); }
    void Panneau(int number, const std::string &text) override {
        Note("Panneau " + std::to_string(number), text);
    }
    void AfficheFichiersRecents() override { Note("AfficheFichiersRecents"); }
    void ActiveCommandes() override { Note("ActiveCommandes"); }
    void DesactiveCommandes() override { Note("DesactiveCommandes"); }
    void ActiveCommandesVue() override { Note("ActiveCommandesVue"); }
    void ActiveCommandesCouple() override { Note("ActiveCommandesCouple"); }
    void ActiveCommandesVides() override { Note("ActiveCommandesVides"); }
    void MontreCoches() override {
        Note("MontreCoches");
        Run(on_checks);
    }
    void MontreAvis() override { Note("MontreAvis"); }
    void ViewReset() override { Note("ViewReset"); }
    void VideImage() override { Note("VideImage"); }
    void RemetZoom() override { Note("RemetZoom"); }
    void afficheCompare() override { Note("afficheCompare"); }
    void afficheCouple() override { Note("afficheCouple"); }
    bool Saisit(const std::string &ModeSaisie) override {
        Note("Saisit", ModeSaisie);
        return on_value && on_value();
    }
    bool ChoisitFichier(const ChoixProfil &choix) override {
        Note("ChoisitFichier", choix.titre);
        choices.push_back(choix);
        return on_pick && on_pick(choix);
    }
    std::optional<std::string> SaisitEpCourb() override {
        Note("SaisitEpCourb");
        Run(on_section);
        return section;
    }
    /// What the user does in the import window; without it, it is cancelled.
    std::function<std::optional<ImportVoulu>(const std::string &, const ImportedAirfoil &)>
        on_import;
    std::optional<ImportVoulu> MontreImport(const std::string &path,
                                            const ImportedAirfoil &airfoil) override {
        Note("MontreImport", path);
        return on_import ? on_import(path, airfoil) : std::nullopt;
    }
    void mnuFileMRU_Click(const std::string &path) override {
        Note("mnuFileMRU_Click", path);
        Run(on_open);
    }
    void mnu_affclear_Click() override {
        Noted<CommandView>::mnu_affclear_Click();
        Run(on_ask_clear);
    }

  private:
    void Note(const std::string &routine, const std::string &argument = {}) {
        asked.push_back(argument.empty() ? routine : routine + " " + argument);
    }
    static void Run(const std::function<void()> &act) {
        if (act) {
            act();
        }
    }
};

} // namespace loftwing
