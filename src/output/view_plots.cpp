#include "output/view_plots.h"

#include "base/number_text.h"
#include "output/plot_steps.h"
#include "output/rib_plot.h"

namespace loftwing {

namespace {

constexpr double kTailleNoms = 7.2; // points, at 100 %
// Place of the names, mm from the leading edge and over the reference line.
constexpr double kNomsCompare = 5.0;
constexpr double kNomsEpCourb = 10.0;
constexpr double kNomsAuDessus = 4.0;
constexpr const char *kEntreLesNoms = "     ";

/// Runs a routine; a failure is told under its label.
template <class Routine>
bool Conduit(const Trace &trace, const char *label, Routine routine) {
    try {
        routine();
    } catch (const Failure &failure) {
        trace.messages.ReportPlot(failure, label);
        return false;
    }
    return true;
}

/// Both names on one line, each in the colour of its airfoil.
void TraceNoms(const Trace &trace, double mm, const std::string &first, const std::string &second) {
    PlotDevice &device = trace.device;
    const double zoom = Wide(trace.rib.Zoom);
    device.CurrentX = zoom * kUnitsPerMm * mm + Wide(trace.plot.OrigineX);
    device.CurrentY = Wide(trace.plot.OrigineY) - zoom * kUnitsPerMm * kNomsAuDessus;
    device.ForeColor = trace.Couleur(Element::profil1);
    device.Font.size = zoom * kTailleNoms;
    device.Print(first + kEntreLesNoms);
    device.ForeColor = trace.Couleur(Element::profil2);
    device.Print(second);
}

void TraceReference(const Trace &trace) {
    if (trace.rib.AffLignRef) {
        TraceLigneReference(trace);
        trace.FinDeStyle();
    }
}

/// A run of points in fractions of the chord, y up.
void TraceCourbe(const Trace &trace, const PointList &xs, const PointList &ys, long count,
                 Colour colour) {
    const double corde = Wide(trace.plot.CordeEchelle);
    const double left = Wide(trace.plot.OrigineX);
    const double line = Wide(trace.plot.OrigineY);
    for (long i = 2; i <= count; ++i) {
        trace.device.Line(corde * xs(i - 1) + left, line - corde * ys(i - 1), corde * xs(i) + left,
                          line - corde * ys(i), colour);
    }
}

/// A surface from its table of heights, from the trailing to the leading edge.
void TraceSurface(const Trace &trace, const TableStation &table, Colour colour) {
    const double corde = Wide(trace.plot.CordeEchelle);
    const double line = Wide(trace.plot.OrigineY);
    for (int k = 1; k <= kLastStation; ++k) {
        trace.device.Line(trace.X(k - 1), line - corde * At(table, k - 1), trace.X(k),
                          line - corde * At(table, k), colour);
    }
}

void TraceCompare(const Trace &trace, const Comparaison &compare) {
    const std::string word = trace.messages.Text({"MainTolbar", "11"});
    TraceNoms(trace, kNomsCompare, word + " #1 : " + compare.CompareNom1,
              word + " #2 : " + compare.CompareNom2);
    TraceReference(trace);
    PrendStyleSeul(trace.device, trace.settings, Element::profil1);
    TraceCourbe(trace, compare.CompareX1, compare.CompareY1, compare.CompareNb1,
                trace.Couleur(Element::profil1));
    PrendStyleSeul(trace.device, trace.settings, Element::profil2);
    TraceCourbe(trace, compare.CompareX2, compare.CompareY2, compare.CompareNb2,
                trace.Couleur(Element::profil2));
    trace.FinDeStyle();
}

void TraceEpCourb(const Trace &trace) {
    const RibModel &rib = trace.rib;
    TraceNoms(trace, kNomsEpCourb,
              trace.messages.Text({"MainTolbar", "11"}) + " : " + rib.NomProfil,
              NomNouveau(rib, trace.messages));
    TraceReference(trace);
    // Both sections in the sheeting's style: the colours tell them apart.
    PrendStyleSeul(trace.device, trace.settings, Element::coffrage);
    const Colour colour = trace.Couleur(Element::profil2);
    TraceSurface(trace, rib.NouvExtrados, colour);
    TraceSurface(trace, rib.NouvIntrados, colour);
    TraceCourbe(trace, rib.ContourX, rib.ContourY, rib.NbContour, trace.Couleur(Element::profil1));
    trace.FinDeStyle();
}

void TraceCouple(const Trace &trace) {
    const RibModel &rib = trace.rib;
    PrepareTrace(trace);
    TraceReference(trace);
    PrendStyleSeul(trace.device, trace.settings, Element::profil);
    const double corde = Wide(trace.plot.CordeEchelle);
    const double left = Wide(trace.plot.OrigineX);
    const Colour colour = trace.Couleur(Element::profil);
    for (long i = 2; i <= rib.NbPoints; ++i) {
        trace.device.Line(left + corde * rib.ProfilX(i - 1), trace.Y(rib.ProfilY(i - 1)),
                          left + corde * rib.ProfilX(i), trace.Y(rib.ProfilY(i)), colour);
    }
    trace.FinDeStyle();
    TraceTexteInsere(trace);
}

} // namespace

bool PrintRoutine2(const Trace &trace, const Comparaison &compare, [[maybe_unused]] double factor) {
    return Conduit(trace, " Main/PrintRoutine2", [&] { TraceCompare(trace, compare); });
}

bool PrintRoutineEpcourb(const Trace &trace, [[maybe_unused]] double factor) {
    return Conduit(trace, " Main/PrintRoutineEpcourb", [&] { TraceEpCourb(trace); });
}

bool PrintRoutineCouple(const Trace &trace, [[maybe_unused]] double factor) {
    return Conduit(trace, " Main/PrintRoutineCouple", [&] { TraceCouple(trace); });
}

bool CompareEnVue(const RibModel &rib, const Comparaison &compare) {
    return rib.ModeCompare && compare.Complete();
}

bool TraceVue(const Trace &trace, const Comparaison &compare) {
    const RibModel &rib = trace.rib;
    if (CompareEnVue(rib, compare)) {
        return PrintRoutine2(trace, compare, 1.0);
    }
    if (rib.ModeEpCourb) {
        return PrintRoutineEpcourb(trace, 1.0);
    }
    return rib.ModeCouple ? PrintRoutineCouple(trace, 1.0) : PrintSubroutine(trace, 1.0);
}

std::string NomNouveau(const RibModel &rib, const Messages &messages) {
    return rib.NomProfil + messages.Text({"FrmEpCourb", "17"}) + " : " +
           NumberText(rib.NouvEpaisseur * 100.0) + "% " + messages.Text({"FrmEpCourb", "18"}) +
           " : " + NumberText(rib.NouvCambrure * 100.0) + "% ";
}

} // namespace loftwing
