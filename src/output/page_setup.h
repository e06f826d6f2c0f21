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
    std::string nom;       ///< as the list shows it
    std::string nom_court; ///< as scripts name it
    int code;              ///< the trade's paper-size number
    double tailleFeuille;  ///< long side, mm
    double largeur;        ///< short side, mm
};

inline constexpr int kPapiers = 9;
/// The entry for whatever paper is set in the printer: its size isn't known, so nothing is tiled.
inline constexpr int kPapierImprimante = 8;
/// Behind the table: a page as large as the drawing, then the user's own papers.
inline constexpr int kPapierEntier = 9;
inline constexpr int kPapierPropre = 10;
inline constexpr int kPapiersPropres = 20; ///< most of them
/// Short and long side of a paper of one's own, mm. The most is what programs show of a PDF.
inline constexpr double kPapierMini = 50;
inline constexpr double kPapierMaxi = 5080;

/// The paper table. The last entry has no name of its own: NomFeuille gives it.
const std::array<Papier, kPapiers> &Papiers();
/// How many papers there are to choose from, the user's own among them.
int NombrePapiers(const MiseEnPage &page);

/// Name of paper `index` in the list. Failure 9 outside 0 to NombrePapiers - 1.
std::string NomFeuille(const MiseEnPage &page, int index, const LngIni &language);
/// The paper of the settings. That of the drawing's own size is as PageEntiere says. Failure 9 for
/// an index that no paper has.
Papier PapierDe(const MiseEnPage &page);
/// A paper of one's own may have: both sides between kPapierMini and kPapierMaxi.
bool PapierAdmis(const PapierPropre &papier);
/// The user's own papers as the settings file has them, "2000 x 610 Roll | 1189 x 841 Plotter";
/// what is no paper in it is left out, and so is what goes beyond kPapiersPropres.
std::string TextePapiersPropres(const std::vector<PapierPropre> &papiers);
std::vector<PapierPropre> LitPapiersPropres(const std::string &text);

/// Printers are off by less than this much; more is a wrong measure.
inline constexpr double kCorrectionMaxi = 0.05;
/// Whether a printer's sheets may be stretched by this factor.
bool CorrectionAdmise(double facteur);

/// Whether sheets may stand under each other on the paper of the settings.
bool PrendRangees(const MiseEnPage &page);

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

/// How far a drawing reaches from the leading edge end of the reference line, mm; all but what lies
/// on the other side of it is positive.
struct Portee {
    double avant = 0;
    double apres = 0;
    double dessus = 0;
    double dessous = 0;
};

/// Decides how many sheets stand under each other. Where the drawing is on the sheet as the page
/// has it, that is one row, and nothing moves; otherwise the reference line is lowered as far as
/// the drawing and the margin above it want. False when margins and overlap leave no room. Failure
/// 6 for more than 255 sheets in all.
bool CalculRangees(MiseEnPage &page, const Portee &portee);

/// Makes a page of the drawing's own size, whole millimetres with the page's margins around it and
/// `dessous` mm more room below. False when that is larger than kPapierMaxi either way.
bool CalculPageEntiere(MiseEnPage &page, const Portee &portee, double dessous);

/// The reference line from the top of the uppermost sheets, mm.
double LigneReference(const MiseEnPage &page);

/// How many sheets there are in all.
int NombreFeuilles(const MiseEnPage &page);

/// Sets the overlap to 0, which one sheet has; that of rows is kept.
void SansRecouvrement(MiseEnPage &page);

/// Whether the rib and both margins fit on one sheet.
bool TientSurUneFeuille(const MiseEnPage &page, const LongueurRib &longueur);

} // namespace loftwing
