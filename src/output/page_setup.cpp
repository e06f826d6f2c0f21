#include "output/page_setup.h"

#include <cmath>

namespace loftwing {

namespace {

float PasDe(const MiseEnPage &page) {
    return ToSingle(PapierDe(page).tailleFeuille - Wide(page.MargeHaut) - Wide(page.MargeBas) -
                    Wide(page.recouvrement));
}

Feuilles Recoupe(MiseEnPage &page, float step, float length) {
    if (step <= 0.0F) {
        return Feuilles::sans_pas;
    }
    const double whole = std::trunc(Quotient(Wide(length), Wide(step)));
    page.NbPages = ToByte(whole + 1.0);
    page.PasPage = step;
    return Feuilles::plusieurs;
}

Feuilles UneFeuille(MiseEnPage &page, Feuilles result) {
    page.recouvrement = 0;
    page.recouvrementAfich = "0";
    page.NbPages = 1;
    return result;
}

} // namespace

const std::array<Papier, kPapiers> &Papiers() {
    static const std::array<Papier, kPapiers> papers = {{
        {" A4 210 x 297 mm", "A4", 9, 297, 210},
        {" Letter 8 1/2 x 11 p", "Letter", 1, 279.4, 215.9},
        {" Fanfold 8 1/2 x 12 p", "Fanfold", 40, 304.8, 215.9},
        {" Legal 8 1/2 x 14 p", "Legal", 5, 355.6, 215.9},
        {" Executive 7 1/4 x 10 1/2 p", "Executive", 7, 266.7, 184.15},
        {" B4 257 x 364 mm", "B4", 12, 364, 257},
        {" US B 11 x 17 p", "US B", 17, 431.8, 279.4},
        {" A3 297 x 420 mm", "A3", 8, 420, 297},
        {"", "", 256, 0, 0},
    }};
    return papers;
}

std::string NomFeuille(int index, const LngIni &language) {
    return index == kPapierImprimante ? language.LngText({"FrmPrint", "tailleFeuille(8) "})
                                      : At(Papiers(), index).nom;
}

const Papier &PapierDe(const MiseEnPage &page) {
    return At(Papiers(), page.NumIndex);
}

void ValeursDefautPage(MiseEnPage &page) {
    page = MiseEnPage{};
}

void ValeursPouces(MiseEnPage &page) {
    page.MargeHaut = page.MargeBas = 12.7F;
    page.MargeHautAfich = page.MargeBasAfich = "1/2";
    page.recouvrement = 25.4F;
    page.recouvrementAfich = "1";
    page.NumIndex = 1;
    ReplaceYdprint(page, std::string(kUniteIn));
}

void ReplaceYdprint(MiseEnPage &page, const std::string &Unite) {
    page.Ydprint = Unite == kUniteIn ? 50.8F : 50.0F;
    page.YdprintAfich = Unite == kUniteIn ? "2" : "50";
}

LongueurRib LongueurDe(const RibModel &rib) {
    return {rib.corde, rib.bloc.LongBloc, rib.TypeGabarit == kGabaritMousse};
}

LongueurRib ReprendLongueur(RibModel &rib) {
    if (rib.TypeGabarit == kGabaritMousse) {
        rib.bloc.LongBloc = LongueurBloc(rib, rib.corde);
    }
    return LongueurDe(rib);
}

bool TientSurUneFeuille(const MiseEnPage &page, const LongueurRib &longueur) {
    return Wide(longueur.EnJeu()) + Wide(page.MargeHaut) + Wide(page.MargeBas) <=
           PapierDe(page).tailleFeuille;
}

Feuilles CalculPages(MiseEnPage &page, const LongueurRib &longueur) {
    if (TientSurUneFeuille(page, longueur)) {
        return UneFeuille(page, Feuilles::une);
    }
    if (page.NumIndex == kPapierImprimante) {
        return UneFeuille(page, Feuilles::imprimante);
    }
    return Recoupe(page, PasDe(page), longueur.EnJeu());
}

Feuilles CalculPasPage(MiseEnPage &page, const LongueurRib &longueur) {
    float step = PasDe(page);
    // A rib without a template has a LongBloc of 0, which no step must be taken for.
    if (step > 0.0F && (step == longueur.corde || step == longueur.LongBloc)) {
        step = ToSingle(Wide(step) + 0.5);
    }
    return Recoupe(page, step, longueur.EnJeu());
}

} // namespace loftwing
