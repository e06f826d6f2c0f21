#include "features/trou.h"

#include "core/stations.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace loftwing {

namespace {

/// Where a hole stands on the rib, mm.
struct PlaceDuTrou {
    double x, y; ///< centre, from the leading edge and above the reference line
    double half; ///< half the width
};

PlaceDuTrou PlaceDe(const Trou &slot, const RibModel &rib) {
    const double centre = StationDepuisBA(Wide(slot.PosTrou), rib.corde);
    const double middle =
        (Hauteur(rib.TabExtrados, centre) + Hauteur(rib.TabIntrados, centre)) / 2.0;
    const double base = slot.ChkCentre == 1.0F ? middle * Wide(rib.corde) : 0.0;
    return {Wide(slot.PosTrou), base + Wide(slot.DecalTrou), Wide(slot.DiaTrou) / 2.0};
}

/// How far a hole reaches up and down at `x`.
double Portee(const Trou &slot, const PlaceDuTrou &place, double x) {
    if (slot.TypeTrou == kTrouRectangle) {
        return Wide(slot.HautTrou) / 2.0;
    }
    const double from_centre = x - place.x;
    return std::sqrt(std::max(0.0, place.half * place.half - from_centre * from_centre));
}

LngKey MotDeRegle(Regle regle) {
    switch (regle) {
    case Regle::derriere_bf:
    case Regle::depasse_bf:
        return {"FrmTrou", "160"};
    case Regle::devant_ba:
    case Regle::depasse_ba:
        return {"FrmTrou", "161"};
    case Regle::sans_largeur:
        return {"FrmTrou", "162"};
    case Regle::sans_hauteur:
        return {"FrmTrou", "163"};
    case Regle::illisible:
        break;
    }
    return {"FrmTrou", "164"};
}

} // namespace

bool StockeTrou(Trou &slot, const ChampsTrou &champs, float corde, const Saisie &saisie,
                const Refus &MessageValeur) {
    slot.PosTrouAfich = champs.Text1[0];
    slot.RefTrou = champs.OptDistance;
    slot.TypeTrou = champs.OptTrouRec;
    slot.PosTrou = PlaceDepuis(slot.PosTrouAfich, slot.RefTrou, corde, saisie);
    const auto broken = PlaceRefusee(slot.PosTrouAfich, slot.RefTrou, slot.PosTrou, corde);
    if (broken) {
        MessageValeur(*broken, slot.PosTrou);
    }
    StockeLongueur(champs.Text1[1], saisie, slot.DiaTrouAfich, slot.DiaTrou);
    StockeLongueur(champs.Text1[2], saisie, slot.HautTrouAfich, slot.HautTrou);
    StockeLongueur(champs.Text2, saisie, slot.DecalTrouAfich, slot.DecalTrou);
    slot.ChkCentre = champs.Chkcentr ? 1.0F : 0.0F;
    return !broken;
}

bool ControleTrou(const Trou &slot, const CasTrou &cas, const Refus &MessageValeur) {
    if (cas.liste_vide_choisie) {
        return true;
    }
    if (slot.DiaTrou == 0.0F) {
        MessageValeur(Regle::sans_largeur, slot.DiaTrou);
        return false;
    }
    if (slot.HautTrou == 0.0F && cas.hauteur_demandee) {
        MessageValeur(Regle::sans_hauteur, slot.HautTrou);
        return false;
    }
    return true;
}

bool TrouFini(const Trou &slot, float corde) {
    return slot.PosTrou >= 0.0F && slot.PosTrou <= corde &&
           ControleTrou(slot, {false, slot.TypeTrou == kTrouRectangle}, [](Regle, float) {});
}

bool TrouSort(const Trou &slot, const RibModel &rib) {
    const double corde = Wide(rib.corde);
    const PlaceDuTrou place = PlaceDe(slot, rib);
    const double front = place.x - place.half;
    const double rear = place.x + place.half;
    if (front < -kContact || rear > corde + kContact) {
        return true;
    }
    const auto leaves = [&](double station, double x) {
        const double reach = Portee(slot, place, x) - kContact;
        return place.y + reach > Hauteur(rib.TabExtrados, station) * corde ||
               place.y - reach < Hauteur(rib.TabIntrados, station) * corde;
    };
    const double last = std::min(Wide(StationDepuisBA(front, rib.corde)), double{kLastStation});
    const double first = std::min(Wide(StationDepuisBA(rear, rib.corde)), last);
    if (leaves(first, rear) || leaves(last, front)) {
        return true;
    }
    for (double station = std::ceil(first); station <= last; ++station) {
        if (leaves(station, corde * (kLastStation - station) / kLastStation)) {
            return true;
        }
    }
    return false;
}

std::string RemarquesTrou(const RibModel &rib, int slot, const Messages &messages) {
    std::vector<std::string> remarks;
    if (rib.ProfilCharge && TrouSort(At(rib.trou, slot), rib)) {
        remarks.push_back(messages.Text({"FrmTrou", "166"}));
    }
    return TexteRemarques(messages.Text({"FrmTrou", "15"}), slot, messages.Text({"FrmTrou", "165"}),
                          remarks);
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

std::string TexteValeurTrou(Regle regle, const std::string &valeur, const Messages &messages) {
    return messages.Text(MotDeRegle(regle)) + " " +
           TexteValeur(messages.Text({"FrmTrou", "22"}), messages.Text({"FrmTrou", "4"}), valeur);
}

} // namespace loftwing
