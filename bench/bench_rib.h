/// A rib for the benchmarks.
#pragma once

#include "core/contour.h"
#include "output/recording.h"
#include "output/screen_plot.h"
#include "output/styles.h"
#include "programme/console_platform.h"
#include "support/synthetic_airfoil.h"

#include <iostream>
#include <string>

namespace loftwing {

/// A rib of 200 mm with stocks, sheeting, stations and texts, prepared and drawn.
struct DrawnRib {
    /// Of so many points, all of them different.
    explicit DrawnRib(int points = 200) {
        ValeursDefautTraits(settings);
        SyntheticAirfoil wanted;
        wanted.camber = 0.02;
        wanted.upper = points / 2;
        wanted.lower = points - 1 - points / 2;
        const NaiveAirfoil airfoil = MakeAirfoil(wanted);
        for (std::size_t i = 1; i < airfoil.x.size(); ++i) { // they count from 1
            rib.ProfilX.Append(airfoil.x[i]);
            rib.ProfilY.Append(airfoil.y[i]);
        }
        rib.NbPoints = static_cast<std::int16_t>(rib.ProfilX.Count());
        rib.NomProfil = rib.EnteteProfil = "bench";
        rib.ExtProfil = "dat";
        rib.ProfilCharge = true;
        rib.EpCoffrage = 1.5F;
        rib.EpBA = 8;
        rib.EpBF = 20;
        rib.NbRep = 9;
        rib.AffEpr = rib.AffHautBA = rib.AffHautBF = true;
        drawn = Prepare() && Plot();
    }

    bool Prepare() { return PrepareContour(rib, messages) == Preparation::complete; }
    bool Plot() {
        device.Clear();
        return afficheRib({device, rib, settings, plot, messages}) == Affichage::dessine;
    }

    ConsolePlatform platform{std::cerr, false};
    LngIni language;
    Messages messages{platform, language};
    RibModel rib;
    AppSettings settings;
    PlotState plot;
    Recording device;
    std::string unite{kUniteMm};
    bool drawn = false;
};

} // namespace loftwing
