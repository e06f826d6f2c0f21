#include "programme/modele.h"

#include "features/inserted_text.h"
#include "output/screen_plot.h"
#include "programme/rib_file.h"
#include "programme/sans_place.h"

#include <algorithm>

namespace loftwing {

namespace {

/// A rib may have been saved in another language than the one in force. Its label would otherwise
/// pass for words of the user and name the model's airfoil on every rib.
bool EstEtiqueteParNous(const Programme &programme) {
    const std::vector<std::string> names = LngIni::Languages(programme.paths.langues);
    return std::any_of(names.begin(), names.end(), [&programme](const std::string &name) {
        LngIni language;
        language.Charge(programme.paths.langues, name);
        return EtiquetteDuProfil(programme.rib, Messages{programme.platform, language});
    });
}

} // namespace

std::optional<Modele> LitModele(Programme &programme, const std::string &path) {
    if (!OuvreSansProfil(programme, path)) {
        return std::nullopt;
    }
    return Modele{programme.rib.Partie<PartiesRib>(), EstEtiqueteParNous(programme)};
}

void PrendModele(RibModel &rib, const Modele &modele) {
    rib.Partie<PartiesRib>() = modele.parties;
}

void MetSurProfil(RibModel &rib, const Saisie &saisie) {
    rib.ProfilCharge = true;
    CordeDuTitre(rib, saisie);
}

Preparation FinitSurProfil(Programme &programme, const Modele &modele) {
    RibModel &rib = programme.rib;
    rib.bloc.LongBloc = LongueurBloc(rib, rib.corde);
    const Preparation made = PrepareContour(rib, programme.messages);
    if (made == Preparation::impossible || !AccepteProfil(programme)) {
        return Preparation::impossible;
    }
    RepriseTexte(rib, modele.etiquette, programme.messages);
    return made;
}

} // namespace loftwing
