#include "lang/aide.h"

namespace loftwing {

namespace {

constexpr std::array kDebut = {kAideVisite, kAideAile, kAideFenetre, kAideEdition};
constexpr std::array kProfils = {kAideOuvrir, kAideImport, kAideComposants, kAideSecours};
constexpr std::array kRib = {kAideValeurs, kAideLongerons, kAideTrous, kAideGabarit, kAideDessin};
constexpr std::array kSorties = {kAidePage, kAideFeuilles, kAideExport, kAideDecoupe};
constexpr std::array kOutils = {kAideCalculs,     kAideJeu,  kAideJeuVariable,
                                kAidePanneau,     kAidePlan, kAideOblique,
                                kAideInclinaison, kAideVues, kAideCoord};
constexpr std::array kDivers = {kAideBibliotheque, kAideCommandes, kAideProgramme};

constexpr std::array kChapitres = {
    ChapitreAide{{"FrmAide", "20"}, kDebut},  ChapitreAide{{"FrmAide", "21"}, kProfils},
    ChapitreAide{{"FrmAide", "22"}, kRib},    ChapitreAide{{"FrmAide", "23"}, kSorties},
    ChapitreAide{{"FrmAide", "24"}, kOutils}, ChapitreAide{{"FrmAide", "25"}, kDivers}};

} // namespace

std::span<const ChapitreAide> ChapitresAide() {
    return kChapitres;
}

} // namespace loftwing
