#include "programme/special_views.h"

#include "output/screen_plot.h"

#include <algorithm>

namespace loftwing {

namespace {

Preparation PrepareContourDe(Programme &programme) {
    // The template is the rib's, and its length would count on paper.
    programme.rib.TypeGabarit = kSansGabarit;
    return PrepareContourSeul(programme.rib, programme.messages);
}

} // namespace

Preparation PrendProfil1(Programme &programme) {
    const Preparation prepared = PrepareContourDe(programme);
    if (prepared == Preparation::impossible) {
        return prepared;
    }
    const RibModel &rib = programme.rib;
    Comparaison fresh;
    fresh.CompareX1 = rib.ContourX;
    fresh.CompareY1 = rib.ContourY;
    fresh.CompareNb1 = rib.NbContour;
    fresh.CompareNom1 = rib.NomProfil;
    programme.compare = fresh;
    return prepared;
}

Preparation PrendProfil2(Programme &programme, std::optional<double> haut1) {
    const Preparation prepared = PrepareContourDe(programme);
    if (prepared == Preparation::impossible) {
        return prepared;
    }
    RibModel &rib = programme.rib;
    rib.ExtradosMaxi = std::max(rib.ExtradosMaxi, haut1.value_or(rib.ExtradosMaxi));
    Comparaison &compare = programme.compare;
    compare.CompareX2 = rib.ContourX;
    compare.CompareY2 = rib.ContourY;
    compare.CompareNb2 = rib.NbContour;
    compare.CompareNom2 = rib.NomProfil;
    return prepared;
}

void MesureTraceSimple(RibModel &rib) {
    CalculExtradosMaxi(rib);
    CalculIntradosMini(rib);
}

void PrepareTraceSimple(Programme &programme) {
    CordeDuTitre(programme.rib, programme.SaisieEnCours());
    MesureTraceSimple(programme.rib);
}

} // namespace loftwing
