#include "features/carre_bord.h"

namespace loftwing {

namespace {

/// Largest side of a square in a unit of display.
struct CoteMaxi {
    float mm;
    const char *saisie;  ///< what the text box shows of it
    const char *annonce; ///< the same behind the words of a box
};

constexpr CoteMaxi kMaxiMm{50.0F, "50", " 50 mm"};
constexpr CoteMaxi kMaxiPouces{50.8F, "2", " 2 inches"};

void LimiteCote(CarreBord &carre, TextesCarre &typed, const Saisie &saisie,
                const std::string &titre) {
    const CoteMaxi &maxi = saisie.Unite == kUniteIn ? kMaxiPouces : kMaxiMm;
    if (carre.CarreBA <= maxi.mm) {
        return;
    }
    saisie.messages.Inform(saisie.messages.Text({"FrmBacarre", "5"}) + maxi.annonce, titre);
    carre.CarreBA = maxi.mm;
    typed[kCarreCote] = maxi.saisie;
}

void LimiteX(CarreBord &carre, float corde, const Saisie &saisie, const std::string &titre) {
    if (carre.CarreBAX > corde) {
        saisie.messages.Inform(saisie.messages.Text({"FrmBacarre", "6"}), titre);
        carre.CarreBAX = 0;
    }
}

} // namespace

TextesCarre TextesDuCarre(const RibModel &rib) {
    return {rib.carre.CarreBAAfich, rib.carre.CarreBAXAfich, rib.carre.CarreBAYAfich};
}

std::string TitreCarre(const Saisie &saisie) {
    return saisie.messages.Text({"FrmBacarre", "1"}) + saisie.Unite;
}

void ValideCarre(RibModel &rib, TextesCarre &typed, const Saisie &saisie,
                 const std::string &titre) {
    CarreBord carre;
    StockeLongueur(typed[kCarreCote], saisie, carre.CarreBAAfich, carre.CarreBA);
    LimiteCote(carre, typed, saisie, titre);
    StockeLongueur(typed[kCarreX], saisie, carre.CarreBAXAfich, carre.CarreBAX);
    LimiteX(carre, rib.corde, saisie, titre);
    StockeLongueur(typed[kCarreY], saisie, carre.CarreBAYAfich, carre.CarreBAY);
    const float EpBA = ToSingle(NombreMm(rib.EpBAAfich, saisie));
    rib.carre = carre;
    rib.Modifie = true;
    rib.TypeBA = 0;
    rib.EpBA = EpBA;
}

void RetireBaguette(RibModel &rib) {
    rib.EpBAAfich = "0";
    rib.EpBA = 0;
}

} // namespace loftwing
