/// The drawing as it goes into files.
#pragma once

#include "output/hors_feuille.h"
#include "output/print_run.h"
#include "output/recording.h"
#include "programme/programme.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace loftwing {

/// Records the current view, the rib or what stands in its place, as the screen shows it at 100 %,
/// unscrolled. `plot` is worked on; what leaves the program starts from EtatAmorce. Nothing when
/// the rib doesn't fit or the plot fails; a box told why, and after a failure `failed` is set: the
/// window then clears the rib.
std::unique_ptr<Recording> DessineVue(Programme &programme, PlotState &plot, bool &failed,
                                      Recording::Measure measure = MeasuredAdvance);

/// Today as 2031-05-24, as sheets have it.
std::string DateDuJour();

/// A print run of the current view. It works on the plot state given, at the scale of paper.
Impression ImpressionDeVue(Programme &programme, PlotState &plot);

/// Whom a print run turns to about its page.
struct ReglagePage {
    std::function<bool()> regle; ///< lets the user set up the page; false when that is given up
    NomsReglages noms;           ///< what the page's settings are called there
    bool demande = true;         ///< somebody is there to be asked
};

/// That of the window, whose page dialog `regle` shows.
ReglagePage ReglageDeFenetre(const Messages &messages, std::function<bool()> regle);

/// Everything that is decided before a printer is opened: sheets, rows, and what to do about a
/// drawing that leaves them: that asks whether to lay it on rows, then whether to go on, or, with
/// nobody to ask, says so and goes on. `propre` is the paper that the entry for the printer's own
/// one stands for. How the run ends here; nothing where it goes on.
std::optional<FinImpression> PrepareImpression(Programme &programme, const Impression &run,
                                               const ReglagePage &page, const Papier &propre);

/// The whole of a print command: sheets, warning, the choice of a printer, the run, and where it
/// went if that is a file. Failures of a printer that doesn't open.
FinImpression ImprimeSurDemande(Programme &programme, const ReglagePage &page);

/// Imprime, after which the screen's zoom is in force again: it is what the list of zooms shows.
FinImpression ImprimeVue(const Impression &run, Printer &printer);

} // namespace loftwing
