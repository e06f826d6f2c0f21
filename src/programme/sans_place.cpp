#include "programme/sans_place.h"

#include "base/number_text.h"
#include "features/longeron.h"
#include "features/trou.h"
#include "programme/rib_trial.h"

namespace loftwing {

namespace {

/// One that is wider than the chord by itself doesn't stand in the way of the other.
void ChercheStocks(const RibModel &rib, SansPlace &found) {
    const double corde = Wide(rib.corde);
    const double ba = Wide(rib.EpBA);
    const double bf = Wide(rib.EpBF);
    found.EpBA = ba > corde && ba > 0;
    found.EpBF = bf > corde && bf > 0;
    if (!found.EpBA && !found.EpBF && ba + bf > corde) {
        found.EpBA = ba > 0;
        found.EpBF = bf > 0;
    }
}

/// Whether the rib can't be drawn with nothing but what `pose` puts on it.
template <class Pose>
bool Refuse(Programme &programme, Pose pose) {
    RibModel &rib = programme.rib;
    const PartieGardee<Ajouts> all(rib);
    rib.Partie<Ajouts>() = {};
    pose(rib);
    return EchecDuTrace(programme).has_value();
}

/// Whether a spar stands at place 0, behind which none is drawn.
bool FinDesLongerons(const Programme &programme, const Longeron &spar) {
    try {
        return PlaceDepuis(spar.PosLongAfich, spar.RefLong, programme.rib.corde,
                           programme.SaisieEnCours()) == 0.0F;
    } catch (const Failure &) {
        return false; // "1/0" inches is no place at all
    }
}

void ChercheLongerons(Programme &programme, SansPlace &found) {
    const RibModel &rib = programme.rib;
    for (int slot = 0; slot <= rib.NbLongeron; ++slot) {
        const Longeron spar = At(rib.longeron, slot);
        if (FinDesLongerons(programme, spar)) {
            return;
        }
        if (Refuse(programme, [&spar](RibModel &bare) { bare.longeron[0] = spar; })) {
            found.longerons.push_back(slot);
        }
    }
}

void ChercheTrous(Programme &programme, SansPlace &found) {
    for (int slot = 0; slot <= programme.rib.NbTrou; ++slot) {
        const Trou hole = At(programme.rib.trou, slot);
        if (Refuse(programme, [&hole](RibModel &bare) { bare.trou[0] = hole; })) {
            found.trous.push_back(slot);
        }
    }
}

void ChercheGabarit(Programme &programme, SansPlace &found) {
    const Ajouts all = programme.rib.Partie<Ajouts>();
    found.gabarit = all.TypeGabarit != kSansGabarit && Refuse(programme, [&all](RibModel &bare) {
                        bare.TypeGabarit = all.TypeGabarit;
                        bare.talon = all.talon;
                        bare.bloc = all.bloc;
                    });
}

/// The work slot stays the work slot when it is emptied.
void RetireLongerons(RibModel &rib, const std::vector<int> &slots) {
    for (auto slot = slots.rbegin(); slot != slots.rend(); ++slot) {
        if (*slot == rib.NbLongeron) {
            EffaceLongeron(At(rib.longeron, *slot));
            EffaceOptions(At(rib.longeron, *slot));
        } else {
            RetireLongeron(rib, *slot);
        }
    }
}

void RetireTrous(RibModel &rib, const std::vector<int> &slots) {
    for (auto slot = slots.rbegin(); slot != slots.rend(); ++slot) {
        if (*slot == rib.NbTrou) {
            EffaceTrou(At(rib.trou, *slot));
            EffaceOptions(At(rib.trou, *slot));
        } else {
            RetireTrou(rib, *slot);
        }
    }
}

/// "Spars 1, 3" as the windows number them; nothing where there are none.
std::string Numeros(const std::string &word, const std::vector<int> &slots) {
    std::string text;
    for (const int slot : slots) {
        text += (text.empty() ? word + " " : ", ") + std::to_string(slot + 1);
    }
    return text.empty() ? text : text + "\n";
}

std::string Entete(const Programme &programme) {
    const RibModel &rib = programme.rib;
    return programme.Text({"MainTolbar", "11"}) + " : " + rib.NomProfil + "   " +
           programme.Text({"MainTolbar", "13"}) + " : " + std::string(Trim(rib.cordeAfich)) +
           programme.settings.Unite;
}

} // namespace

SansPlace ChercheSansPlace(Programme &programme) {
    RibModel &rib = programme.rib;
    const PartieGardee<Dimensions> dimensions(rib);
    const PartieGardee<Ajouts> ajouts(rib);
    SansPlace found;
    ChercheStocks(rib, found);
    RetireSansPlace(rib, found);
    if (!EchecDuTrace(programme)) {
        return found;
    }
    ChercheLongerons(programme, found);
    ChercheTrous(programme, found);
    ChercheGabarit(programme, found);
    RetireSansPlace(rib, found);
    found.echec = EchecDuTrace(programme);
    return found;
}

void RetireSansPlace(RibModel &rib, const SansPlace &found) {
    if (found.EpBA) {
        rib.EpBA = 0;
        rib.EpBAAfich = "0";
    }
    if (found.EpBF) {
        rib.EpBF = 0;
        rib.EpBFAfich = "0";
    }
    RetireLongerons(rib, found.longerons);
    RetireTrous(rib, found.trous);
    if (found.gabarit) {
        rib.TypeGabarit = kSansGabarit;
    }
}

std::string QuestionSansPlace(const Programme &programme, const SansPlace &found) {
    const RibModel &rib = programme.rib;
    const std::string &Unite = programme.settings.Unite;
    std::string text =
        Entete(programme) + "\n\n" + programme.Text({"FrmMainMessage", "100"}) + "\n";
    text += Numeros(programme.Text({"FrmLines", "8"}), found.longerons);
    text += Numeros(programme.Text({"FrmLines", "11"}), found.trous);
    if (found.gabarit) {
        const bool heel = rib.TypeGabarit == kGabaritTalon;
        text += programme.Text(heel ? LngKey{"FrmLines", "24"} : LngKey{"FrmBloc", "1"}) + "\n";
    }
    if (found.EpBA) {
        text += programme.Text({"FrmLines", "9"}) + " " + rib.EpBAAfich + Unite + "\n";
    }
    if (found.EpBF) {
        text += programme.Text({"FrmLines", "10"}) + " " + rib.EpBFAfich + Unite + "\n";
    }
    return text + "\n" + programme.Text({"FrmMainMessage", "101"});
}

bool AccepteProfil(Programme &programme) {
    const std::string titre = programme.Text({"frmopen", "1"});
    const SansPlace found = ChercheSansPlace(programme);
    if (found.echec) {
        programme.messages.Inform(Entete(programme) + "\n\n" +
                                      programme.Text({"FrmMainMessage", "18"}) + "\n" +
                                      programme.messages.Description(*found.echec),
                                  titre);
        return false;
    }
    if (found.Rien()) {
        return true;
    }
    if (!programme.messages.Confirm(QuestionSansPlace(programme, found), titre)) {
        return false;
    }
    RetireSansPlace(programme.rib, found);
    return true;
}

} // namespace loftwing
