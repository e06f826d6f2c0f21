/// What the steps of the rib plot share.
#pragma once

#include "core/app_settings.h"
#include "core/messages.h"
#include "core/rib_model.h"
#include "output/plot_device.h"
#include "output/plot_state.h"
#include "output/styles.h"

#include <string>

namespace loftwing {

/// One run of the plot routine: where it draws, what it reads and what it leaves.
struct Trace {
    PlotDevice &device;
    RibModel &rib;
    const AppSettings &settings;
    PlotState &plot;
    const Messages &messages;

    /// Device position of a station, which may lie between two, and of a height in fractions of the
    /// chord, with the y direction of the view.
    double X(double station) const;
    double Y(double height) const;
    /// Surface heights at a station rounded to the nearest. Failure 9 outside the tables.
    double U(double station) const;
    double L(double station) const;

    /// Stations of a spar or hole around `centre` mm from the leading edge, and the heights at its
    /// centre. Failure 9 when that is not on the chord; its edges may be off it.
    PlaceTracee PlaceAutour(float centre, float width) const;

    Saisie SaisieEnCours() const { return {settings.Unite, messages}; }
    Colour Couleur(Element element) const { return CouleurDe(settings, element); }
    void EnStyleDe(Element element) const { PrendStyle(device, settings, element); }
    void FinDeStyle() const { RendStyle(device); }
    /// Runs a step. A failure passes on with the element's name behind its detail, and the
    /// slot's number (from 1) where one is given, so that the user knows what to correct.
    template <class Step>
    void Nomme(LngKey name, const Step &step, int slot = 0) const {
        try {
            step();
        } catch (Failure &failure) {
            failure.Precise(messages.Text(name) + (slot == 0 ? "" : " " + std::to_string(slot)));
            throw;
        }
    }
    /// Runs a step that draws a part of the rib.
    template <class Step>
    void Pour(SujetTrace sujet, const Step &step) const {
        struct Rendu {
            SujetTrace &present;
            const SujetTrace before = present;
            ~Rendu() { present = before; }
        };
        const Rendu back{device.sujet};
        device.sujet = sujet;
        step();
    }
    /// Prints a text with its top left corner at a place.
    void Ecrit(double x, double y, const std::string &text) const;
};

} // namespace loftwing
