/// Wings by chance in a world of their own, put together by the program and by the naive
/// computation.
#pragma once

#include "programme/aile.h"
#include "programme/panel_chance_fixture.h"
#include "support/wing_by_chance.h"

#include <cmath>
#include <numbers>

namespace loftwing {

class WingOfChanceTest : public PanelOfChance {
  protected:
    Aile wing;
    WingOfChance chance;
    std::vector<naive::WingPanel> wanted;
    std::vector<std::vector<double>> areas; ///< of every panel's ribs, by their outlines

    void MakeWing(unsigned seed) {
        chance = WingByChance(seed);
        wing = {};
        areas.clear();
        int number = chance.first;
        for (naive::WingPanelAsked &each : chance.panels) {
            ASSERT_NO_FATAL_FAILURE(Mount(each, number));
            number += static_cast<int>(made.nervures.size());
            EXPECT_EQ(NumeroSuivant(wing), number);
        }
        wanted = naive::MakeWing(chance.panels, chance.first);
        ASSERT_EQ(wing.panneaux.size(), wanted.size());
    }
    /// Is told of each panel while its ribs are at hand.
    virtual void Mounted() {}

  private:
    void Mount(naive::WingPanelAsked &each, int number) {
        Take(each.panel);
        each.panel = asked;
        if (asked.gaps.empty() && !each.thickness.empty()) {
            panel.jeu.epaisseurs = {each.thickness};
        }
        made = FaitPanneau(programme, panel, {});
        ASSERT_THAT(made.refus, testing::IsEmpty());
        ReglageAile reglage;
        reglage.longueur = each.length;
        reglage.recul = each.sweep;
        reglage.diedre = each.dihedral;
        reglage.densite = each.density;
        ASSERT_FALSE(
            AjoutePanneau(wing, {"", panel, made, number, reglage}, programme.SaisieEnCours())
                .has_value());
        areas.emplace_back();
        for (const NervureFaite &rib : made.nervures) {
            areas.back().push_back(0);
            for (const Piece &piece : rib.pieces) {
                areas.back().back() += Enclosed(piece);
            }
        }
        ASSERT_EQ(wing.panneaux.back().nervures.size(), made.nervures.size());
        Mounted();
    }

    static double Enclosed(const Piece &piece) {
        double area = 0;
        for (const PartiePiece &part : piece.parties) {
            area += Shoelace(part.dehors);
            for (const Anneau &hole : part.dedans) {
                area -= Shoelace(hole);
            }
            for (const CerclePiece &circle : part.cercles) {
                area -= std::numbers::pi * circle.rayon * circle.rayon;
            }
        }
        return area;
    }
    static double Shoelace(const Anneau &ring) {
        double twice = 0;
        for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++) {
            twice += (ring[j].x + ring[i].x) * (ring[i].y - ring[j].y);
        }
        return std::abs(twice) / 2;
    }
};

} // namespace loftwing
