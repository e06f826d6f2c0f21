/// Paper, margins and the number of sheets.
#pragma once

#include "core/app_settings.h"
#include "core/rib_model.h"
#include "lang/LngIni.h"

#include <array>
#include <string>

namespace loftwing {

/// A paper of the table. Ribs run along the long side, since all printing is landscape.
struct Papier {
    const char *nom;       ///< as the list shows it
    const char *nom_court; ///< as scripts name it
    int code;              ///< the trade's paper-size number
    double tailleFeuille;  ///< long side, mm
    double largeur;        ///< short side, mm
};

inline constexpr int kPapiers = 9;
/// The entry for whatever paper is set in the printer: its size isn't known, so nothing is tiled.
inline constexpr int kPapierImprimante = 8;

/// The paper table. The last entry has no name of its own: NomFeuille gives it.
const std::array<Papier, kPapiers> &Papiers();

/// Name of paper `index` in the list. Failure 9 outside 0 to 8.
std::string NomFeuille(int index, const LngIni &language);
/// The paper of the settings. Failure 9 for an index outside the table.
const Papier &PapierDe(const MiseEnPage &page);

/// Page values of a new program, in mm.
void ValeursDefautPage(MiseEnPage &page);
/// The page values that a choice of inches brings: margins 1/2, overlap 1, line at 2, paper 1.
void ValeursPouces(MiseEnPage &page);
/// What every start sets: the reference line at 50 mm or 2 in, whatever was stored.
void ReplaceYdprint(MiseEnPage &page, const std::string &Unite);

/// The lengths that decide about sheets, mm.
struct LongueurRib {
    float corde;
    float LongBloc;
    bool gabarit; ///< a foam template: LongBloc counts, otherwise the chord

    float EnJeu() const { return gabarit ? LongBloc : corde; }
};
LongueurRib LongueurDe(const RibModel &rib);
/// The same, with the template's length made anew from the chord and the ramps first.
LongueurRib ReprendLongueur(RibModel &rib);

/// What one computation of the sheets came to.
enum class Feuilles {
    une,       ///< the rib fits on one sheet
    plusieurs, ///< tiled
    sans_pas,  ///< margins and overlap leave no room; nothing was changed
    imprimante ///< the printer's own paper, one sheet whatever the length
};

/// The count that the dialog shows while the user types: sets PasPage and NbPages, and the overlap
/// to 0 where one sheet does. Failure 6 for more than 255 sheets.
Feuilles CalculPages(MiseEnPage &page, const LongueurRib &longueur);

/// The sheets of a rib that doesn't fit on one: PasPage is half a millimetre longer when it equals
/// the rib's length, which would take a second sheet for nothing. Otherwise as CalculPages.
Feuilles CalculPasPage(MiseEnPage &page, const LongueurRib &longueur);

/// Whether the rib and both margins fit on one sheet.
bool TientSurUneFeuille(const MiseEnPage &page, const LongueurRib &longueur);

} // namespace loftwing
