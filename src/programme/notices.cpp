#include "programme/notices.h"

#include "core/contour_fault.h"
#include "features/talon.h"
#include "output/screen_plot.h"
#include "programme/dossiers.h"
#include "programme/file_steps.h"
#include "programme/heel_steps.h"

#include <array>

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

std::vector<NoticeButton> NoButtons(const Programme & /*programme*/) {
    return {};
}

const std::array<Row, 4> kRows = {{
    {NoticeSubject::contour, "contour",
     [](const Programme &programme) { return programme.rib.faute.cause != CauseContour::aucune; },
     ContourText, NoButtons},
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
    }
}

} // namespace loftwing
