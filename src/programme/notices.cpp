#include "programme/notices.h"

#include "features/talon.h"
#include "output/screen_plot.h"
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

std::vector<NoticeButton> HeelButtons(const Programme &programme) {
    return {{NoticeAct::take_heel_margins, programme.Text({"FrmTalon", "182"})}};
}

const std::array<Row, 1> kRows = {{
    {NoticeSubject::heel_margins, "heel_margins",
     [](const Programme &programme) {
         return MargesEnAttente(programme.rib, programme.SaisieEnCours());
     },
     [](const Programme &programme) {
         return TexteMargesEnAttente(programme.rib, programme.SaisieEnCours());
     },
     HeelButtons},
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
    }
}

} // namespace loftwing
