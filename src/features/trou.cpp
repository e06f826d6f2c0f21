#include "features/trou.h"

namespace loftwing {

bool StockeTrou(Trou &slot, const ChampsTrou &champs, float corde, const Saisie &saisie,
                const Refus &MessageValeur) {
    slot.PosTrouAfich = champs.Text1[0];
    slot.RefTrou = champs.OptDistance;
    slot.TypeTrou = champs.OptTrouRec;
    slot.PosTrou = PlaceDepuis(slot.PosTrouAfich, slot.RefTrou, corde, saisie);
    const bool passes = PlaceAdmise(slot.PosTrouAfich, slot.RefTrou, slot.PosTrou, corde);
    if (!passes) {
        MessageValeur(slot.PosTrou);
    }
    StockeLongueur(champs.Text1[1], saisie, slot.DiaTrouAfich, slot.DiaTrou);
    StockeLongueur(champs.Text1[2], saisie, slot.HautTrouAfich, slot.HautTrou);
    StockeLongueur(champs.Text2, saisie, slot.DecalTrouAfich, slot.DecalTrou);
    slot.ChkCentre = champs.Chkcentr ? 1.0F : 0.0F;
    return passes;
}

bool ControleTrou(const Trou &slot, const CasTrou &cas, const Refus &MessageValeur) {
    if (cas.liste_vide_choisie) {
        return true;
    }
    if (slot.DiaTrou == 0.0F) {
        MessageValeur(slot.DiaTrou);
        return false;
    }
    if (slot.HautTrou == 0.0F && cas.hauteur_demandee) {
        MessageValeur(slot.HautTrou);
        return false;
    }
    return true;
}

bool TrouFini(const Trou &slot, float corde) {
    return slot.PosTrou >= 0.0F && slot.PosTrou <= corde &&
           ControleTrou(slot, {false, slot.TypeTrou == kTrouRectangle}, [](float) {});
}

void EffaceTrou(Trou &slot) {
    slot.PosTrouAfich = "0";
    slot.PosTrou = 0;
    slot.DiaTrouAfich = "0";
    slot.DiaTrou = 0;
    slot.HautTrouAfich = "0";
    slot.HautTrou = 0;
    slot.DecalTrouAfich = "0";
    slot.DecalTrou = 0;
    slot.ChkCentre = 0;
}

void EffaceOptions(Trou &slot) {
    slot.RefTrou = 0;
    slot.TypeTrou = 0;
}

void RetireTrou(RibModel &rib, int slot) {
    // The place in mm and the spare text stay for the same reasons as those of a spar.
    const auto copie = [](const Trou &from, Trou &into) {
        Trou moved = from;
        moved.PosTrou = into.PosTrou;
        moved.ResTrou = into.ResTrou;
        into = std::move(moved);
    };
    const auto efface = [](Trou &last) {
        EffaceTrou(last);
        EffaceOptions(last);
    };
    RetireEmplacement(rib.trou, rib.NbTrou, slot, copie, efface);
}

std::string TitreTrou(const RibModel &rib, const Saisie &saisie) {
    return TitreAvecCorde(saisie.messages.Text({"FrmTrou", "1"}), rib, saisie.Unite);
}

std::string TexteValeurTrou(const std::string &valeur, const Messages &messages) {
    return TexteValeur(messages.Text({"FrmTrou", "22"}), messages.Text({"FrmTrou", "4"}), valeur);
}

} // namespace loftwing
