/// A wing panel between two ribs in a scripted world.
#pragma once

#include "programme/panel_steps.h"
#include "support/steps_world.h"

#include <algorithm>
#include <string>
#include <vector>

namespace loftwing {

/// A panel from a root of 240 to a tip of 120 mm with three ribs between them: ratios of a quarter.
class PanelSteps : public StepsWorld {
  protected:
    PanelSteps() {
        for (const std::size_t end : {0U, 1U}) {
            EXPECT_TRUE(Read(Sample(end == 0 ? "naca2412.dat" : "naca0012.dat")));
            PartiesRib &bout = panel.bouts[end];
            bout = Rib().Partie<PartiesRib>();
            bout.texte = {};
            bout.EpCoffrage = 1.5F;
            bout.EpCoffrageAfich = "1.5";
        }
        Chord(0, "240");
        Chord(1, "120");
        panel.jeu.nombre = "3";
        panel.jeu.dossier = folder.Path("sets") + "/";
    }

    Panneau panel;
    DemandePanneau demand;

    Saisie Typing() { return programme.SaisieEnCours(); }
    void Set(const std::string &text, std::string &afich, float &mm) {
        StockeLongueur(text, Typing(), afich, mm);
    }
    void Chord(std::size_t end, const std::string &text) {
        Set(text, panel.bouts[end].cordeAfich, panel.bouts[end].corde);
    }
    /// Places a spar in a slot of an end, with its width and depth.
    Longeron &Spar(std::size_t end, int slot, const std::string &place, const std::string &width,
                   const std::string &depth = "3") {
        PartiesRib &bout = panel.bouts[end];
        bout.NbLongeron = std::max<std::uint8_t>(bout.NbLongeron, static_cast<std::uint8_t>(slot));
        Longeron &spar = At(bout.longeron, slot);
        spar.PosLongAfich = place;
        Set(width, spar.LargLongAfich, spar.LargLong);
        Set(depth, spar.HautLongAfich, spar.HautLong);
        spar.OptLongExt = 1;
        spar.TypeLong = 1;
        return spar;
    }
    Trou &Hole(std::size_t end, int slot, const std::string &place, const std::string &size) {
        PartiesRib &bout = panel.bouts[end];
        bout.NbTrou = std::max<std::uint8_t>(bout.NbTrou, static_cast<std::uint8_t>(slot));
        Trou &hole = At(bout.trou, slot);
        hole.PosTrouAfich = place;
        Set(size, hole.DiaTrouAfich, hole.DiaTrou);
        hole.ChkCentre = 1;
        return hole;
    }
    PanneauFait Made() {
        panel.jeu.cordes = CordesDesBouts(panel, programme.settings.Unite);
        return FaitPanneau(programme, panel, demand);
    }
    std::vector<std::string> Lines(const std::vector<AvisPanneau> &all) const {
        std::vector<std::string> lines;
        for (const AvisPanneau &each : all) {
            lines.push_back(LigneAvis(programme.messages, each));
        }
        return lines;
    }
    std::vector<std::string> Refused() { return Lines(Made().refus); }
    /// The ribs of a panel that nothing stands against.
    std::vector<PartiesRib> Ribs() {
        const PanneauFait made = Made();
        EXPECT_THAT(made.refus, testing::IsEmpty());
        std::vector<PartiesRib> ribs;
        for (const NervureFaite &nervure : made.nervures) {
            ribs.push_back(nervure.rib);
        }
        EXPECT_EQ(ribs.size(), 5U);
        ribs.resize(5);
        return ribs;
    }
};

} // namespace loftwing
