#include "features/longeron.h"

#include <cmath>
#include <vector>

namespace loftwing {

namespace {

bool Entaille(std::uint8_t option) {
    return option == kEncocheCoffrage || option == kEncocheContour;
}

LngKey MotDeRegle(Regle regle) {
    switch (regle) {
    case Regle::derriere_bf:
        return {"Frmlongeron", "160"};
    case Regle::devant_ba:
        return {"Frmlongeron", "161"};
    case Regle::depasse_bf:
        return {"Frmlongeron", "162"};
    case Regle::depasse_ba:
        return {"Frmlongeron", "163"};
    case Regle::sans_largeur:
        return {"Frmlongeron", "164"};
    case Regle::sans_hauteur:
        return {"Frmlongeron", "165"};
    case Regle::illisible:
        break;
    }
    return {"Frmlongeron", "166"};
}

} // namespace

bool StockeLongeron(Longeron &slot, const ChampsLongeron &champs, float corde, const Saisie &saisie,
                    const Refus &MessageValeur) {
    slot.RefLong = champs.OptDistance;
    slot.PosLongAfich = champs.Text1[0];
    slot.PosLong = PlaceDepuis(slot.PosLongAfich, slot.RefLong, corde, saisie);
    const auto broken = PlaceRefusee(slot.PosLongAfich, slot.RefLong, slot.PosLong, corde);
    if (broken) {
        MessageValeur(*broken, slot.PosLong);
    }
    // The rest is stored all the same: the window shows what was refused, to be corrected, and
    // takes it back before a redraw.
    StockeLongueur(champs.Text1[1], saisie, slot.LargLongAfich, slot.LargLong);
    StockeLongueur(champs.Text1[2], saisie, slot.HautLongAfich, slot.HautLong);
    StockeLongueur(champs.Text1[3], saisie, slot.DistLongAfich, slot.DistLong);
    slot.OptLongExt = champs.Opte;
    slot.OptLongInt = champs.Opti;
    slot.TypeLong = champs.OptLong;
    return !broken;
}

bool ControleLongeron(const Longeron &slot, const CasLongeron &cas, const Refus &MessageValeur) {
    bool passes = true;
    const auto refuse = [&](Regle regle, float mm) {
        passes = false;
        MessageValeur(regle, mm);
    };
    const double centre = Wide(slot.PosLong);
    const double half = Wide(slot.LargLong) / 2.0;
    if (centre + half > Wide(cas.corde)) {
        refuse(Regle::depasse_bf, slot.PosLong);
    }
    if (centre - half < 0.0) {
        refuse(Regle::depasse_ba, slot.PosLong);
    }
    // An untouched slot may be left. One that would be cut along the surface without any width may
    // not: its plot would divide by 0.
    const bool cut = slot.OptLongExt != 0 || slot.OptLongInt != 0;
    const bool undrawable = slot.TypeLong == kLongeronSurface && cut && slot.PosLong != 0.0F;
    if (cas.liste_vide_choisie && !(undrawable && slot.LargLong == 0.0F)) {
        return passes;
    }
    if (slot.LargLong == 0.0F) {
        refuse(Regle::sans_largeur, slot.LargLong);
        return passes;
    }
    if (slot.HautLong == 0.0F && cas.hauteur_demandee) {
        refuse(Regle::sans_hauteur, slot.HautLong);
    }
    return passes;
}

bool LongeronFini(const Longeron &slot, float corde) {
    // At 0 stands nothing: the plot takes it for the end of the list.
    return slot.PosLong != 0.0F &&
           ControleLongeron(slot, {corde, false, slot.TypeLong != kLongeronRond},
                            [](Regle, float) {});
}

bool SansEncoche(const Longeron &slot) {
    return !Entaille(slot.OptLongExt) && !Entaille(slot.OptLongInt);
}

bool SeCroisent(const Longeron &a, const Longeron &b) {
    const double reach = (Wide(a.LargLong) + Wide(b.LargLong)) / 2.0;
    return std::abs(Wide(a.PosLong) - Wide(b.PosLong)) < reach - kContact;
}

std::string RemarquesLongeron(const RibModel &rib, int slot, const Saisie &saisie) {
    const Messages &messages = saisie.messages;
    const Longeron &added = At(rib.longeron, slot);
    std::vector<std::string> remarks;
    if (SansEncoche(added)) {
        remarks.push_back(messages.Text({"Frmlongeron", "168"}));
    }
    for (int i = 0; i < slot; ++i) {
        Longeron other = At(rib.longeron, i);
        // A place in mm is that of the last plot; the text is what counts.
        other.PosLong = PlaceDepuis(other.PosLongAfich, other.RefLong, rib.corde, saisie);
        if (!SeCroisent(added, other)) {
            continue;
        }
        const std::string number = " " + std::to_string(i + 1);
        if (Entaille(added.OptLongExt) && Entaille(other.OptLongExt)) {
            remarks.push_back(messages.Text({"Frmlongeron", "169"}) + number);
        }
        if (Entaille(added.OptLongInt) && Entaille(other.OptLongInt)) {
            remarks.push_back(messages.Text({"Frmlongeron", "170"}) + number);
        }
    }
    return TexteRemarques(messages.Text({"Frmlongeron", "22"}), slot,
                          messages.Text({"Frmlongeron", "167"}), remarks);
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

std::string TexteValeurLongeron(Regle regle, const std::string &valeur, const Messages &messages) {
    return messages.Text(MotDeRegle(regle)) + " " +
           TexteValeur(messages.Text({"Frmlongeron", "27"}), messages.Text({"Frmlongeron", "4"}),
                       valeur);
}

} // namespace loftwing
