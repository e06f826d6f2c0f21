#include "core/rib_model.h"

#include "base/file_name.h"
#include "base/text_encoding.h"

namespace loftwing {

namespace {

constexpr std::size_t kExtensionLength = 4; // the point and three letters

} // namespace

void ValeursDefautRib(RibModel &rib) {
    rib.Partie<Dimensions>() = {};
    rib.Partie<Vue>() = {};
    rib.bloc = {};
    rib.texte.TailleFont = TexteInsere{}.TailleFont;
}

void RazRib(RibModel &rib, float epba_mm) {
    Dimensions cleared;
    cleared.corde = rib.corde;
    cleared.cordeAfich = rib.cordeAfich;
    cleared.EpCoffrage = rib.EpCoffrage;
    cleared.EpCoffrageAfich = rib.EpCoffrageAfich;
    cleared.EpBA = epba_mm;
    cleared.EpBAAfich = rib.EpBAAfich;
    rib.Partie<Dimensions>() = cleared;
    Ajouts bare;
    // Height and ramps are the user's defaults, which are read anew.
    bare.bloc = rib.bloc;
    bare.bloc.HTbasbloc = 0;
    bare.bloc.HTbasblocAfich = "0";
    bare.bloc.CoupeBF = 0;
    bare.bloc.CoupeBFAfich = "0";
    bare.bloc.Optquebf = 0;
    bare.texte.TexteUtilisateur = rib.texte.TexteUtilisateur;
    rib.Partie<Ajouts>() = bare;
    rib.jeu = {};
    rib.LigneReserve.clear();
}

void ReprendProfil(RibModel &rib) {
    static_cast<HauteursTalon &>(rib.talon) = {};
    rib.vrillage = 0;
    rib.Modifie = true;
    rib.NomFichierRib = rib.NomProfil;
    rib.FichierRibOuvert = false;
    rib.Partie<FichierConnu>() = {};
}

void NommeProfil(RibModel &rib, const std::string &path) {
    const std::string name = NameIn(path);
    const std::size_t length = CharacterCount(name);
    rib.CheminProfil = path;
    rib.NomProfil =
        FirstCharacters(name, length > kExtensionLength ? length - kExtensionLength : 0);
    rib.ExtProfil = LastCharacters(name, kExtensionLength - 1);
}

void RemetVue(RibModel &rib) {
    rib.DecalX = 0;
    rib.DecalY = 0;
    rib.ModeEpCourb = false;
    rib.ModeCompare = false;
}

float LongueurBloc(const Bloc &bloc, float corde) {
    return ToSingle(Wide(corde) + Wide(bloc.BAbloc) + Wide(bloc.BFbloc));
}

float LongueurBloc(const RibModel &rib, float corde) {
    return LongueurBloc(rib.bloc, corde);
}

} // namespace loftwing
