#include "core/rib_model.h"

#include "base/text_encoding.h"

#include <algorithm>

namespace loftwing {

namespace {

constexpr std::size_t kExtensionLength = 4; // the point and three letters

template <class Slots, class Record>
void ClearSlots(Slots &slots, std::uint8_t &count, Record blank) {
    const int last = std::min<int>(count, kSlots - 1);
    for (int slot = 0; slot <= last; ++slot) {
        slots[static_cast<std::size_t>(slot)] = blank;
    }
    count = 0;
}

} // namespace

void ValeursDefautRib(RibModel &rib) {
    rib.corde = 200;
    rib.cordeAfich = "200";
    rib.EpCoffrage = 1.5F;
    rib.EpCoffrageAfich = "1.5";
    rib.EpBA = 0;
    rib.EpBAAfich = "0";
    rib.EpBF = 0;
    rib.EpBFAfich = "0";
    rib.vrillage = 0;
    rib.NbRep = 0;
    rib.TypeBA = 1;
    rib.bloc = Bloc{};
    rib.texte.TailleFont = 9;
    rib.Zoom = 1;
    rib.AffTrac = true;
    rib.AffLignRef = true;
    rib.AffHaut = false;
    rib.ModeCouple = false;
    RemetVue(rib);
}

void RazRib(RibModel &rib, float epba_mm) {
    ClearSlots(rib.longeron, rib.NbLongeron, Longeron{});
    ClearSlots(rib.trou, rib.NbTrou, Trou{});
    rib.EpBF = 0;
    rib.EpBFAfich = "0";
    rib.EpBA = epba_mm;
    rib.carre = CarreBord{};
    rib.TypeBA = 1;
    rib.NbRep = 0;
    rib.vrillage = 0;
    rib.TypeGabarit = kSansGabarit;
    rib.talon = Talon{};
    // Height and ramps are the user's defaults, which are read anew.
    rib.bloc.HTbasbloc = 0;
    rib.bloc.HTbasblocAfich = "0";
    rib.bloc.CoupeBF = 0;
    rib.bloc.CoupeBFAfich = "0";
    rib.bloc.Optquebf = 0;
    const bool own_words = rib.texte.TexteUtilisateur;
    rib.texte = TexteInsere{};
    rib.texte.TexteUtilisateur = own_words;
    rib.jeu = JeuNervures{};
    rib.LigneReserve.clear();
}

void ReprendProfil(RibModel &rib) {
    rib.talon.TalonIntra = 0;
    rib.talon.TalonIntraAfich = "0";
    rib.talon.TalonExtra = 0;
    rib.talon.TalonExtraAfich = "0";
    rib.talon.OptTalon = 0;
    rib.vrillage = 0;
    rib.Modifie = true;
    rib.NomFichierRib = rib.NomProfil;
    rib.FichierRibOuvert = false;
}

void NommeProfil(RibModel &rib, const std::string &path) {
    const std::size_t slash = path.rfind('/');
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
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
    return ToSingle(static_cast<double>(corde) + static_cast<double>(bloc.BAbloc) +
                    static_cast<double>(bloc.BFbloc));
}

float LongueurBloc(const RibModel &rib, float corde) {
    return LongueurBloc(rib.bloc, corde);
}

} // namespace loftwing
