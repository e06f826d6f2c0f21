// Scale, origin, texts and reference line of the rib plot.

#include "base/number_text.h"
#include "core/stations.h"
#include "output/plot_steps.h"
#include "output/rib_measures.h"
#include "output/sheeting.h"

#include <cmath>

namespace loftwing {

namespace {

constexpr double kTexteEpaisseurAuDessus = 453.6; // 8 mm at any zoom

/// "12.30 mm" or "1.1/2 in".
std::string AvecUnite(double mm, const std::string &Unite) {
    return LongueurCalculee(mm, Unite) + Unite;
}

std::string TexteEpaisseur(const Trace &trace) {
    const std::string &Unite = trace.settings.Unite;
    const double corde = Wide(trace.rib.corde);
    const double place = trace.plot.PosEpDev;
    const std::string thickness = AvecUnite(corde * trace.rib.EpMaxi, Unite);
    const std::string percent = NumberText(Quotient(place * 100.0, corde)) + " %";
    if (Unite == kUniteIn) {
        return "Chord thickness :" + thickness + " at " + AvecUnite(place, Unite) + " (" + percent +
               ") from L.E. ";
    }
    const Messages &messages = trace.messages;
    return messages.Text({"FrmMainMessage", "15"}) + " : " + thickness + " " +
           messages.Text({"FrmMainMessage", "16"}) + " " + AvecUnite(place, Unite) + " (" +
           percent + ") " + messages.Text({"FrmMainMessage", "17"});
}

} // namespace

void PrepareTrace(const Trace &trace) {
    PlotState &plot = trace.plot;
    const RibModel &rib = trace.rib;
    plot.Echelle = ToSingle(Wide(rib.Zoom) * kUnitsPerMm);
    plot.EpRel = EpaisseurRelative(rib);
    plot.IdxFinCoffr = 0;
    plot.EchelleY = rib.AffHaut ? -plot.Echelle : plot.Echelle;
    plot.CordeEchelleY = rib.AffHaut ? -plot.CordeEchelle : plot.CordeEchelle;
    trace.device.Font.name = "Arial";
    trace.device.Font.size = Wide(rib.Zoom) * Wide(rib.texte.TailleFont);
    trace.device.ForeColor = PaletteColour(0);
    trace.device.DrawWidth = 1;
}

void TraceDemiBF(const Trace &trace) {
    const double y1 = trace.rib.ContourY(1);
    const double yn = trace.rib.ContourY(trace.rib.NbContour);
    if (y1 > 0 && yn < 0) {
        trace.plot.DemiBF = (y1 - std::abs(yn)) / 2.0;
    } else if ((y1 > 0 && yn > 0) || (y1 < 0 && yn < 0)) {
        trace.plot.DemiBF = (y1 + yn) / 2.0;
    }
}

void PlaceOrigine(const Trace &trace) {
    PlotState &plot = trace.plot;
    plot.OrigineX = ToSingle(plot.BlocBA * Wide(plot.Echelle) + Wide(plot.OrigineX));
}

void TraceTexteEpaisseur(const Trace &trace) {
    const RibModel &rib = trace.rib;
    PlotState &plot = trace.plot;
    const double corde = Wide(rib.corde);
    plot.PosEpDev = (kLastStation - rib.PosEpMaxi) / kLastStation * corde;
    if (!rib.AffEpr) {
        return;
    }
    trace.Ecrit(corde / 3.0 * Wide(plot.Echelle) + Wide(plot.OrigineX),
                Wide(plot.OrigineY) - Wide(plot.CordeEchelle) * rib.ExtradosMaxi -
                    kTexteEpaisseurAuDessus,
                TexteEpaisseur(trace));
}

void TraceTexteInsere(const Trace &trace, double rampe) {
    const TexteInsere &texte = trace.rib.texte;
    if (texte.InsTextX == 0.0F && texte.InsTextY == 0.0F) {
        return;
    }
    const PlotState &plot = trace.plot;
    const double echelle = Wide(plot.Echelle);
    trace.Pour({GenreSujet::texte, 0}, [&] {
        trace.Ecrit(rampe * echelle + Wide(plot.OrigineX) + Wide(texte.InsTextX) * echelle,
                    Wide(plot.OrigineY) - Wide(texte.InsTextY) * echelle - kTexteAuDessus * echelle,
                    texte.InsTexte);
    });
}

void TraceContour(const Trace &trace) {
    const RibModel &rib = trace.rib;
    const double corde = Wide(trace.plot.CordeEchelle);
    const double origine = Wide(trace.plot.OrigineX);
    trace.EnStyleDe(Element::profil);
    const Colour colour = trace.Couleur(Element::profil);
    for (long i = 2; i <= rib.NbContour; ++i) {
        trace.device.Line(corde * rib.ContourX(i - 1) + origine, trace.Y(rib.ContourY(i - 1)),
                          corde * rib.ContourX(i) + origine, trace.Y(rib.ContourY(i)), colour);
    }
    trace.FinDeStyle();
}

void TraceLigneReference(const Trace &trace) {
    const PlotState &plot = trace.plot;
    const double x = Wide(plot.OrigineX);
    const double y = Wide(plot.OrigineY);
    PrendStyleSeul(trace.device, trace.settings, Element::axe);
    trace.device.Line(x - 1, y, x + Wide(plot.CordeEchelle) + 1, y, trace.Couleur(Element::axe));
}

} // namespace loftwing
