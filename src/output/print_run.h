/// The print run: one rib over as many sheets as it takes.
#pragma once

#include "core/comparaison.h"
#include "output/page_setup.h"
#include "output/printer.h"
#include "output/trace.h"

#include <functional>
#include <optional>
#include <string>

namespace loftwing {

/// What a print run works on. The plot routine is that of the current view.
struct Impression {
    RibModel &rib;
    AppSettings &settings;
    PlotState &plot;
    const Messages &messages;
    /// Draws the current view on the printer at the scale and origin set; false after a failure
    /// that it has reported.
    std::function<bool(PlotDevice &)> plot_routine;
    std::string nom;       ///< of the drawing
    std::string date = {}; ///< of the print, as the note of a check line has it
};

/// How a print run ended.
enum class FinImpression {
    imprime,
    annule,     ///< by the user; nothing was printed
    echec,      ///< a printer's failure, reported
    trace_echec ///< the plot failed and reported it; the caller clears the rib
};

/// The question before a print run. A comparison names both airfoils.
std::string QuestionImpression(const RibModel &rib, const Comparaison &compare,
                               const Messages &messages);

/// Decides about the sheets before the printer is opened: one that fits sets the overlap to 0;
/// tiling without overlap or page count lets the user set up the page (`set_up_page`, false when
/// that is cancelled), and the count is then computed anew from the length in force.
/// False when nothing is to be printed; more than 255 sheets, and settings with a paper that the
/// table hasn't, are reported before.
bool PrepareFeuilles(const Impression &run, const std::function<bool()> &set_up_page);

/// One sheet of a run, both counted from 0: along the rib, and downwards.
struct Feuille {
    int colonne = 0;
    int rangee = 0;
};

/// Where the leading edge end of the reference line lies on a sheet, in device units from its upper
/// left corner.
struct OrigineFeuille {
    float x = 0;
    float y = 0;
};
OrigineFeuille OrigineSur(const MiseEnPage &page, const Feuille &feuille);

/// What the size of the drawing decides, after PrepareFeuilles: how many rows of sheets there are,
/// or how large the page for the whole of it is. How the run ends here; nothing where it goes on.
/// A page that is too large and rows without room are reported before.
std::optional<FinImpression> PrepareDessin(const Impression &run);

/// Sets scale and origin as a sheet of the run has them.
void PlaceFeuille(const Impression &run, const Feuille &feuille);

/// Where the leading edge end of the reference line stands on a sheet, mm.
struct Origine {
    double x = 0;
    double y = 0;
};
Origine OrigineDe(const PlotState &plot);

/// Draws on a surface that measures, as on the first sheet, and says where the drawing stands
/// there. Nothing when its plot failed, which that has reported. The plot state is afterwards what
/// it was: a drawing may depend on what was drawn before.
std::optional<Origine> MesureDessin(const Impression &run, PlotDevice &metre);

/// What the platform is asked for the run's paper.
PrintQuestion DemandeImprimante(const Impression &run);

/// How many sheets of which paper the run takes, a line each.
std::string ResumeFeuilles(const Impression &run);

// Where the page's settings say so, every sheet gets a check line, after all else that is on it. A
// run with a sheet that has no room for one ends with a sheet of its own for it.

/// One sheet on the printer's own paper; what lies beyond it is lost.
FinImpression imprime1page(const Impression &run, Printer &printer);
/// The sheets of the chosen paper, row by row, with alignment crosses where there are several.
FinImpression imprimeXpage(const Impression &run, Printer &printer);
/// The one or the other, by the paper chosen.
FinImpression Imprime(const Impression &run, Printer &printer);

/// The crosses that let the user lay one sheet on the next, and where there are rows the one below
/// on the one above. Nothing for a single sheet.
void tracerepere(const Impression &run, PlotDevice &device);

} // namespace loftwing
