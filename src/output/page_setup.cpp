#include "output/page_setup.h"

#include "base/number_text.h"

#include <algorithm>
#include <cmath>
#include <sstream>

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
    SansRecouvrement(page);
    page.recouvrementAfich = "0";
    page.NbPages = 1;
    return result;
}

/// The trade's number for a paper whose measures are given.
constexpr int kCodePropre = 256;

/// So that a length which is meant to be whole isn't rounded up to the next one.
constexpr double kBruit = 1E-6;
/// A line on the very edge is not lost.
constexpr double kAuBord = 0.1; // mm

constexpr const char *kEntrePapiers = " | ";

std::string MesuresDe(const PapierPropre &papier) {
    return NumberText(papier.longueur) + " x " + NumberText(papier.largeur);
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

int NombrePapiers(const MiseEnPage &page) {
    return kPapierPropre + static_cast<int>(page.papiers.size());
}

std::string NomFeuille(const MiseEnPage &page, int index, const LngIni &language) {
    if (index == kPapierImprimante) {
        return language.LngText({"FrmPrint", "tailleFeuille(8) "});
    }
    if (index == kPapierEntier) {
        return " " + language.LngText({"FrmPrint", "250"});
    }
    if (index < kPapiers) {
        return At(Papiers(), index).nom;
    }
    const PapierPropre &own = At(page.papiers, index - kPapierPropre);
    return " " + own.nom + (own.nom.empty() ? "" : " ") + MesuresDe(own) + " mm";
}

Papier PapierDe(const MiseEnPage &page) {
    const int index = page.NumIndex;
    if (index < kPapiers) {
        return At(Papiers(), index);
    }
    if (index == kPapierEntier) {
        return {"", "", kCodePropre, page.entiere.longueur, page.entiere.largeur};
    }
    const PapierPropre &own = At(page.papiers, index - kPapierPropre);
    return {own.nom, own.nom, kCodePropre, own.longueur, own.largeur};
}

bool PapierAdmis(const PapierPropre &papier) {
    const auto side = [](double mm) { return mm >= kPapierMini && mm <= kPapierMaxi; };
    return side(papier.longueur) && side(papier.largeur);
}

std::string TextePapiersPropres(const std::vector<PapierPropre> &papiers) {
    std::string text;
    for (const PapierPropre &paper : papiers) {
        text += (text.empty() ? "" : kEntrePapiers) + MesuresDe(paper) + " " + paper.nom;
    }
    return text;
}

std::vector<PapierPropre> LitPapiersPropres(const std::string &text) {
    std::vector<PapierPropre> papers;
    std::istringstream words(text);
    for (std::string each;
         std::ssize(papers) < kPapiersPropres && std::getline(words, each, '|');) {
        std::istringstream word(each);
        word.imbue(std::locale::classic());
        PapierPropre paper;
        char times = 0;
        word >> paper.longueur >> times >> paper.largeur >> std::ws;
        std::getline(word, paper.nom);
        paper.nom = Trim(paper.nom);
        if (times == 'x' && PapierAdmis(paper)) {
            papers.push_back(paper);
        }
    }
    return papers;
}

bool CorrectionAdmise(double facteur) {
    return std::abs(facteur - 1) <= kCorrectionMaxi;
}

bool PrendRangees(const MiseEnPage &page) {
    return page.NumIndex != kPapierImprimante && page.NumIndex != kPapierEntier;
}

void ValeursDefautPage(MiseEnPage &page) {
    page = MiseEnPage{};
    page.temoin = true;
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
    return page.NumIndex == kPapierEntier ||
           Wide(longueur.EnJeu()) + Wide(page.MargeHaut) + Wide(page.MargeBas) <=
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

void SansRecouvrement(MiseEnPage &page) {
    if (page.recouvrement > 0.0F) {
        page.recouvrementRangees = page.recouvrement;
    }
    page.recouvrement = 0;
}

bool CalculRangees(MiseEnPage &page, const Portee &portee) {
    page.rangees = {};
    if (!page.en_rangees || !PrendRangees(page)) {
        return true;
    }
    const double height = PapierDe(page).largeur;
    const double line = Wide(page.Ydprint);
    if (portee.dessus <= line + kAuBord && line + portee.dessous <= height + kAuBord) {
        return true;
    }
    RangeesFeuilles rows;
    rows.recouvrement =
        Wide(page.recouvrement > 0.0F ? page.recouvrement : page.recouvrementRangees);
    rows.pas = height - Wide(page.MargeHaut) - Wide(page.MargeBas) - rows.recouvrement;
    rows.Yd = std::max(line, std::ceil(portee.dessus + Wide(page.MargeHaut) - kBruit));
    const double beyond = rows.Yd + portee.dessous - (height - Wide(page.MargeBas));
    if (beyond > 0) {
        if (rows.pas <= 0) {
            return false;
        }
        rows.nombre = ToByte(1 + std::ceil(beyond / rows.pas - kBruit));
    }
    page.rangees = rows;
    ToByte(NombreFeuilles(page));
    return true;
}

bool CalculPageEntiere(MiseEnPage &page, const Portee &portee, double dessous) {
    PageEntiere &whole = page.entiere;
    const double rim = Wide(page.MargeHaut);
    whole.avant = std::max(rim, portee.avant + rim);
    whole.Yd = portee.dessus + rim;
    whole.longueur = std::ceil(whole.avant + portee.apres + Wide(page.MargeBas) - kBruit);
    whole.largeur = std::ceil(whole.Yd + portee.dessous + dessous + rim - kBruit);
    return std::max(whole.longueur, whole.largeur) <= kPapierMaxi;
}

double LigneReference(const MiseEnPage &page) {
    if (page.NumIndex == kPapierEntier) {
        return page.entiere.Yd;
    }
    return page.rangees.Yd > 0 ? page.rangees.Yd : Wide(page.Ydprint);
}

int NombreFeuilles(const MiseEnPage &page) {
    return page.NbPages * page.rangees.nombre;
}

} // namespace loftwing
