#include "output/screen_plot.h"

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/version.h"
#include "core/contour_fault.h"
#include "output/rib_plot.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace loftwing {

namespace {

/// Scale first: it changes even when the stocks then don't fit.
void MetAEchelle(const RibModel &rib, PlotState &plot) {
    plot.CordeEchelle = ToSingle(Wide(rib.corde) * kUnitsPerMm * Wide(rib.Zoom));
}

/// A foam template reaches beyond the rib.
void BaissePourGabarit(const RibModel &rib, PlotState &plot) {
    if (rib.TypeGabarit == kGabaritMousse) {
        const double half = std::abs(Wide(rib.bloc.HTbloc)) / 2.0;
        plot.OrigineY = ToSingle(Wide(plot.OrigineY) + half * kUnitsPerMm * Wide(rib.Zoom));
    }
}

} // namespace

void PlaceSurEcran(const RibModel &rib, PlotState &plot) {
    const double corde = Wide(rib.corde);
    const double zoom = Wide(rib.Zoom);
    MetAEchelle(rib, plot);
    plot.OrigineX = ToSingle(kMargeGauche + rib.DecalX * corde * zoom / 2.0);
    plot.OrigineY = ToSingle(-rib.DecalY * corde * zoom / 2.0 +
                             corde * rib.ExtradosMaxi * kUnitsPerMm * zoom + kMargeHaute);
}

void PlaceRib(const RibModel &rib, PlotState &plot) {
    PlaceSurEcran(rib, plot);
    BaissePourGabarit(rib, plot);
}

float FacteurZoom(const std::string &row) {
    const std::string number = FirstCharacters(LastCharacters(row, 5), 3);
    return ToSingle(LeadingNumber(number) / 100.0);
}

bool StocksTiennent(const RibModel &rib, const Messages &messages) {
    if (Wide(rib.EpBF) + Wide(rib.EpBA) <= Wide(rib.corde)) {
        return true;
    }
    messages.Tell(messages.Text({"FrmMainMessage", "13"}), messages.Text({"FrmMainMessage", "14"}),
                  BoxIcon::warning);
    return false;
}

bool RibVisible(const RibModel &rib) {
    return rib.ProfilCharge && !rib.ModeCompare && !rib.ModeEpCourb && !rib.ModeCouple;
}

bool ContourTracable(const RibModel &rib) {
    // Twice as much as the places themselves take: some are a height away from another.
    const double room = Wide(std::numeric_limits<float>::max()) / 2;
    const double scale = Wide(rib.corde) * kUnitsPerMm * Wide(FacteurZoom(kZoomRows.front()));
    for (long i = 1; i <= rib.NbContour; ++i) {
        const double farthest = std::max(std::abs(rib.ContourX(i)), std::abs(rib.ContourY(i)));
        if (farthest > kTropGrand && farthest * scale > room) {
            return false;
        }
    }
    return true;
}

Affichage afficheRib(const Trace &trace) {
    if (!RibVisible(trace.rib)) {
        return Affichage::rien;
    }
    try {
        MetAEchelle(trace.rib, trace.plot);
        if (!StocksTiennent(trace.rib, trace.messages)) {
            return Affichage::refuse;
        }
        PlaceRib(trace.rib, trace.plot);
    } catch (const Failure &failure) {
        trace.messages.ReportPlot(failure, " Main/PrintSubroutine");
        return Affichage::echec;
    }
    return PrintSubroutine(trace, 1.0) ? Affichage::dessine : Affichage::echec;
}

std::string TexteEtat(const RibModel &rib, const AppSettings &settings, const Messages &messages) {
    std::string text = messages.Text({"MainTolbar", "11"}) + " : " + rib.NomProfil + "  " +
                       messages.Text({"MainTolbar", "13"}) + " : " + rib.cordeAfich +
                       settings.Unite;
    if (!rib.EnteteProfil.starts_with('1')) {
        text += " <> Information : " + rib.EnteteProfil;
    }
    return text;
}

std::string TitreFenetre(const RibModel &rib, const Messages &messages) {
    return std::string(kTitre) + " " + messages.Text({"MainTolbar", "11"}) + " : " + rib.NomProfil;
}

void CordeDuTitre(RibModel &rib, const Saisie &saisie) {
    const std::size_t colon = rib.EnteteProfil.find(':');
    if (colon == std::string::npos) {
        return;
    }
    std::string text = rib.EnteteProfil.substr(colon + 1);
    if (saisie.Unite == kUniteIn) {
        // Titles of files made in inches end in the unit, whose two letters are cut off.
        const std::size_t length = CharacterCount(text);
        text = FirstCharacters(text, length - std::min<std::size_t>(length, 2));
    }
    const float corde = ToSingle(NombreMm(text, saisie));
    if (corde == 0.0F) {
        return;
    }
    rib.corde = corde;
    rib.cordeAfich = saisie.Unite == kUniteIn ? DepuisMm(corde, saisie.Unite)
                                              : " " + NumberText(corde, ZeroBeforePoint::no);
}

} // namespace loftwing
