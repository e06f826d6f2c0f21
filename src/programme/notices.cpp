#include "programme/notices.h"

#include "base/number_text.h"
#include "core/airfoil_import.h"
#include "core/contour_fault.h"
#include "features/talon.h"
#include "output/screen_plot.h"
#include "programme/dossiers.h"
#include "programme/file_steps.h"
#include "programme/heel_steps.h"
#include "programme/import_steps.h"
#include "programme/import_words.h"

#include <array>
#include <cmath>

namespace loftwing {

namespace {

/// When a notice stands, and what it says. The cause is asked for at every redraw, so it must be
/// cheap and show no box.
struct Row {
    NoticeSubject subject;
    const char *name;
    bool (*stands)(const Programme &programme);
    std::string (*text)(const Programme &programme);
    std::vector<NoticeButton> (*buttons)(const Programme &programme);
};

/// How far the drawing comes, and which points end it there.
std::string ContourText(const Programme &programme) {
    const RibModel &rib = programme.rib;
    return programme.Text({"FrmMainMessage", "190"}) + " " + std::to_string(rib.faute.jusque) +
           " " + programme.Text({"FrmMainMessage", "191"}) + " " + std::to_string(rib.NbPoints) +
           ". " + TexteFaute(rib, programme.messages) + ".";
}

bool InMm(const Programme &programme) {
    return programme.settings.Unite == kUniteMm;
}

/// A computed length to two decimals of a millimetre, or in inches.
std::string Length(double mm, const std::string &Unite) {
    constexpr double kParts = 100;
    return (Unite == kUniteMm ? NumberText(std::round(mm * kParts) / kParts)
                              : DepuisMm(ToSingle(mm), Unite)) +
           Unite;
}

/// How far the contour strays, in parts of the chord and as a length on this rib.
std::string ImportText(const Programme &programme) {
    const RibModel &rib = programme.rib;
    return DeviationWarning(programme.messages, rib.EcartContour) + " " +
           programme.Text({"Import", "40"}) + " " +
           Length(rib.EcartContour * rib.corde, programme.settings.Unite) + ".";
}

std::vector<NoticeButton> ImportButtons(const Programme &programme) {
    return {{NoticeAct::import_airfoil, programme.Text({"Import", "43"})}};
}

std::string UnitText(const Programme &programme) {
    return InMm(programme) ? programme.Text({"fileopen", "185"})
                           : programme.Text({"fileopen", "186"});
}

std::vector<NoticeButton> UnitButtons(const Programme &programme) {
    return {{NoticeAct::open_in_other_unit, InMm(programme) ? programme.Text({"fileopen", "187"})
                                                            : programme.Text({"fileopen", "188"})}};
}

std::vector<NoticeButton> HeelButtons(const Programme &programme) {
    return {{NoticeAct::take_heel_margins, programme.Text({"FrmTalon", "182"})}};
}

/// Where the airfoil of a saved rib will be looked for, in the order of the search.
std::string ElsewhereText(const Programme &programme) {
    const RibModel &rib = programme.rib;
    const Repertoires &folders = programme.settings.repertoires;
    return rib.NomProfil + "." + rib.ExtProfil + " " + programme.Text({"fileopen", "183"}) + " " +
           folders.RepProfil + " " + programme.Text({"fileopen", "5"}) + " " +
           folders.RepProfilevol + programme.Text({"fileopen", "184"}) + " " +
           DossierDe(rib.CheminRib) + ".";
}

std::string PieceText(const Programme &programme) {
    return programme.Text({"Piece", "124"}) + " " + programme.AvisDePiece;
}

/// Work goes on, but without a net.
std::string RecoveryText(const Programme &programme) {
    return programme.Text({"Recovery", "13"}) + " " + programme.paths.secours;
}

std::vector<NoticeButton> NoButtons(const Programme & /*programme*/) {
    return {};
}

const std::array<Row, 7> kRows = {{
    {NoticeSubject::contour, "contour",
     [](const Programme &programme) { return programme.rib.faute.cause != CauseContour::aucune; },
     ContourText, NoButtons},
    {NoticeSubject::import_offered, "import",
     [](const Programme &programme) { return programme.rib.EcartContour > kImportTolerance; },
     ImportText, ImportButtons},
    {NoticeSubject::unit, "unit",
     [](const Programme &programme) { return programme.rib.UniteDouteuse; }, UnitText, UnitButtons},
    {NoticeSubject::heel_margins, "heel_margins",
     [](const Programme &programme) {
         return MargesEnAttente(programme.rib, programme.SaisieEnCours());
     },
     [](const Programme &programme) {
         return TexteMargesEnAttente(programme.rib, programme.SaisieEnCours());
     },
     HeelButtons},
    {NoticeSubject::airfoil_elsewhere, "airfoil_elsewhere",
     [](const Programme &programme) { return programme.rib.ProfilAilleurs; }, ElsewhereText,
     NoButtons},
    {NoticeSubject::recovery, "recovery",
     [](const Programme &programme) { return programme.secours.Echoue(); }, RecoveryText,
     NoButtons},
    {NoticeSubject::piece, "piece",
     [](const Programme &programme) { return !programme.AvisDePiece.empty(); }, PieceText,
     NoButtons},
}};

} // namespace

const char *NoticeName(NoticeSubject subject) {
    for (const Row &row : kRows) {
        if (row.subject == subject) {
            return row.name;
        }
    }
    return "";
}

std::vector<Notice> Notices::Standing(const Programme &programme) {
    if (programme.AvisDePiece != piece_) {
        piece_ = programme.AvisDePiece;
        closed_.erase(NoticeSubject::piece);
    }
    std::vector<Notice> standing;
    for (const Row &row : kRows) {
        if (!programme.rib.ProfilCharge || !row.stands(programme)) {
            closed_.erase(row.subject);
        } else if (RibVisible(programme.rib) && !closed_.contains(row.subject)) {
            standing.push_back({row.subject, row.text(programme), row.buttons(programme)});
        }
    }
    return standing;
}

void DoNotice(Programme &programme, CommandView &view, NoticeAct act) {
    switch (act) {
    case NoticeAct::take_heel_margins:
        programme.messages.Garde(" Talon/OK", [&] { ConfirmeMarges(programme, view); });
        break;
    case NoticeAct::open_in_other_unit:
        programme.messages.Garde(" LireEcrire/newLfw", [&] { OuvreAutreUnite(programme, view); });
        break;
    case NoticeAct::import_airfoil:
        programme.messages.Garde(" Import/notice", [&] {
            const std::string path = programme.rib.CheminProfil; // goes with the rib
            ImporteFichier(programme, view, path);
        });
        break;
    }
}

} // namespace loftwing
