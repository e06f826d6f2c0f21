#include "features/longeron.h"

namespace loftwing {

bool StockeLongeron(Longeron &slot, const ChampsLongeron &champs, float corde, const Saisie &saisie,
                    const Refus &MessageValeur) {
    slot.RefLong = champs.OptDistance;
    slot.PosLongAfich = champs.Text1[0];
    slot.PosLong = PlaceDepuis(slot.PosLongAfich, slot.RefLong, corde, saisie);
    const bool passes = PlaceAdmise(slot.PosLongAfich, slot.RefLong, slot.PosLong, corde);
    if (!passes) {
        MessageValeur(slot.PosLong);
    }
    // The rest is stored all the same: the window shows what was refused, to be corrected, and
    // takes it back before a redraw.
    StockeLongueur(champs.Text1[1], saisie, slot.LargLongAfich, slot.LargLong);
    StockeLongueur(champs.Text1[2], saisie, slot.HautLongAfich, slot.HautLong);
    StockeLongueur(champs.Text1[3], saisie, slot.DistLongAfich, slot.DistLong);
    slot.OptLongExt = champs.Opte;
    slot.OptLongInt = champs.Opti;
    slot.TypeLong = champs.OptLong;
    return passes;
}

bool ControleLongeron(const Longeron &slot, const CasLongeron &cas, const Refus &MessageValeur) {
    bool passes = true;
    const auto refuse = [&](float mm) {
        passes = false;
        MessageValeur(mm);
    };
    const double centre = Wide(slot.PosLong);
    const double half = Wide(slot.LargLong) / 2.0;
    if (centre + half > Wide(cas.corde)) {
        refuse(slot.PosLong);
    }
    if (centre - half < 0.0) {
        refuse(slot.PosLong);
    }
    // An untouched slot may be left. One that would be cut along the surface without any width may
    // not: its plot would divide by 0.
    const bool cut = slot.OptLongExt != 0 || slot.OptLongInt != 0;
    const bool undrawable = slot.TypeLong == kLongeronSurface && cut && slot.PosLong != 0.0F;
    if (cas.liste_vide_choisie && !(undrawable && slot.LargLong == 0.0F)) {
        return passes;
    }
    if (slot.LargLong == 0.0F) {
        refuse(slot.LargLong);
        return passes;
    }
    if (slot.HautLong == 0.0F && cas.hauteur_demandee) {
        refuse(slot.HautLong);
    }
    return passes;
}

bool LongeronFini(const Longeron &slot, float corde) {
    // At 0 stands nothing: the plot takes it for the end of the list.
    return slot.PosLong != 0.0F &&
           ControleLongeron(slot, {corde, false, slot.TypeLong != kLongeronRond}, [](float) {});
}

void EffaceLongeron(Longeron &slot) {
    slot.PosLongAfich = "0";
    slot.LargLongAfich = "0";
    slot.LargLong = 0;
    slot.HautLongAfich = "0";
    slot.HautLong = 0;
    slot.DistLongAfich = "0";
    slot.DistLong = 0;
}

void EffaceOptions(Longeron &slot) {
    slot.OptLongExt = 0;
    slot.OptLongInt = 0;
    slot.TypeLong = 0;
    slot.RefLong = 0;
}

void RetireLongeron(RibModel &rib, int slot) {
    // The place in mm follows its text at the next plot. The spare text belongs to the line of the
    // rib components file, which stays where it is.
    const auto copie = [](const Longeron &from, Longeron &into) {
        Longeron moved = from;
        moved.PosLong = into.PosLong;
        moved.ResLong = into.ResLong;
        into = std::move(moved);
    };
    const auto efface = [](Longeron &last) {
        EffaceLongeron(last);
        EffaceOptions(last);
    };
    RetireEmplacement(rib.longeron, rib.NbLongeron, slot, copie, efface);
}

std::string TitreLongeron(const RibModel &rib, const Saisie &saisie) {
    return TitreAvecCorde(saisie.messages.Text({"Frmlongeron", "1"}), rib, saisie.Unite);
}

std::string TexteValeurLongeron(const std::string &valeur, const Messages &messages) {
    return TexteValeur(messages.Text({"Frmlongeron", "27"}), messages.Text({"Frmlongeron", "4"}),
                       valeur);
}

} // namespace loftwing
