/// Panels by chance in a world of their own, made by the program and by the naive computation.
#pragma once

#include "programme/panel_ends.h"
#include "programme/panel_file.h"
#include "programme/panel_steps.h"
#include "support/naive_panel_text.h"
#include "support/panel_by_chance.h"
#include "support/rib_world.h"
#include "support/steps_world.h"

namespace loftwing {

class PanelOfChance : public StepsWorld {
  protected:
    PanelOfChance() {
        for (const char *name : {"naca2412.dat", "naca4409.dat", "naca1408.dat"}) {
            folder.File(std::string("airfoils/") + name, ReadWholeFile(Sample(name)));
        }
        Airfoil("coarse.dat", Naca(2410, 21));
        Airfoil("open.dat", Naca(1412, 40, true));
    }

    naive::PanelAsked asked;
    Panneau panel;
    PanneauFait made;

    /// Takes a panel up to its two ends.
    void Take(const naive::PanelAsked &wanted) {
        asked = wanted;
        asked.words = {programme.Text({"MainTolbar", "25"}), programme.Text({"MainTolbar", "13"}),
                       programme.Text({"FrmInsText", "6"}), programme.Text({"FrmInsText", "7"})};
        programme.settings.Unite = asked.inches ? kUniteIn : kUniteMm;
        panel = {};
        for (const std::size_t end : {0U, 1U}) {
            ComponentsText &file = asked.ends[end];
            if (file.text == "?") {
                file.text = naive::PanelLabel(asked, end);
            }
            const auto bout =
                LitBout(programme, folder.File(end == 0 ? "root.lfw" : "tip.lfw", file.Current()));
            ASSERT_TRUE(bout.has_value());
            panel.bouts[end] = *bout;
            asked.airfoils[end].name = bout->NomProfil;
            asked.airfoils[end].x = bout->ProfilX.Values();
            asked.airfoils[end].y = bout->ProfilY.Values();
        }
        panel.jeu.cordes = CordesDesBouts(panel, programme.settings.Unite);
        panel.jeu.nombre = asked.count;
        panel.jeu.ecarts = asked.gaps;
        panel.jeu.epaisseurs = asked.thicknesses;
        panel.jeu.dossier = folder.Path("sets") + "/";
        for (const auto &[name, range] : asked.ranges) {
            const auto element = ElementNomme(name);
            ASSERT_TRUE(element.has_value()) << name;
            panel.portees[*element] = {range.first, range.second};
        }
    }
    /// Makes all of panel `seed`, against which nothing may stand.
    void Make(unsigned seed) {
        Take(PanelByChance(seed));
        made = FaitPanneau(programme, panel, {});
        EXPECT_THAT(made.refus, testing::IsEmpty());
    }

  private:
    void Airfoil(const std::string &name, const Points &points) const {
        std::string text = name + "\r\n";
        for (const auto &[x, y] : points) {
            text += naive::Decimals(x, 15, 6) + " " + naive::Decimals(y, 15, 6) + "\r\n";
        }
        folder.File("airfoils/" + name, text);
    }
};

} // namespace loftwing
