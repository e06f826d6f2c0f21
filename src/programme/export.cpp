#include "programme/export.h"

#include "output/print_file.h"
#include "output/sheeting.h"
#include "output/view_screen.h"
#include "platform/system.h"
#include "programme/nom_propose.h"

#include <array>
#include <ctime>

namespace loftwing {

std::unique_ptr<Recording> DessineVue(Programme &programme, PlotState &plot, bool &failed,
                                      Recording::Measure measure) {
    RibModel &rib = programme.rib;
    const PartieGardee<Vue> view(rib);
    rib.Zoom = 1;
    rib.DecalX = 0;
    rib.DecalY = 0;
    auto recording = std::make_unique<Recording>(std::move(measure));
    const Affichage result = afficheVue(
        {*recording, rib, programme.settings, plot, programme.messages}, programme.compare);
    failed = result == Affichage::echec;
    return result == Affichage::dessine ? std::move(recording) : nullptr;
}

std::string DateDuJour() {
    const std::tm now = LocalTime(std::time(nullptr));
    std::array<char, 16> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d", &now);
    return {text.data(), length};
}

Impression ImpressionDeVue(Programme &programme, PlotState &plot) {
    RibModel &rib = programme.rib;
    const AppSettings &settings = programme.settings;
    const Messages &messages = programme.messages;
    const Comparaison &compare = programme.compare;
    // A rib from a file has none yet; its sheets would be counted as if it were nothing long.
    ReprendLongueur(rib);
    return {rib,
            programme.settings,
            plot,
            messages,
            [&rib, &settings, &messages, &plot, &compare](PlotDevice &device) {
                return TraceVue({device, rib, settings, plot, messages}, compare);
            },
            NomDuDessin(rib, compare),
            DateDuJour()};
}

ReglagePage ReglageDeFenetre(const Messages &messages, std::function<bool()> regle) {
    return {std::move(regle),
            {messages.Text({"FrmPrint", "7"}), messages.Text({"FrmPrint", "19"}),
             messages.Text({"FrmPrint", "20"}), messages.Text({"FrmPrint", "3"}),
             messages.Text({"FrmPrint", "254"})}};
}

namespace {

/// Measures the view's drawing, which leaves no trace on the one that is printed. A failure is the
/// print run's to tell; here there is then nothing to say.
std::optional<HorsFeuille> MesureVue(Programme &programme, const Papier &propre) {
    const PartieGardee<Vue> view(programme.rib);
    try {
        PlotState apart = EtatAmorce(programme.rib);
        return MesureHorsFeuille(ImpressionDeVue(programme, apart), propre);
    } catch (const Failure &) {
        return HorsFeuille{};
    }
}

} // namespace

namespace {

/// Whether sheets under each other would hold what is now lost at the upper or the lower edge.
bool RangeesAident(const MiseEnPage &page, const HorsFeuille &found) {
    return !page.en_rangees && PrendRangees(page) &&
           (found.sans_texte.haut > 0 || found.sans_texte.bas > 0);
}

/// Offers rows of sheets to somebody who is there. True when they were taken.
bool ProposeRangees(const Programme &programme, MiseEnPage &page) {
    const Messages &messages = programme.messages;
    page.en_rangees =
        messages.Confirm(messages.Text({"FrmPrint", "255"}), messages.Text({"FrmPrint", "1"}));
    return page.en_rangees;
}

/// Tells of a drawing that leaves its sheets. How the run ends here; nothing where it goes on.
std::optional<FinImpression> AvertitHorsFeuille(const Programme &programme, const ReglagePage &page,
                                                const HorsFeuille &found) {
    const Messages &messages = programme.messages;
    const std::string titre = messages.Text({"FrmPrint", "1"});
    std::string text = TexteHorsFeuille(found, page.noms, programme.SaisieEnCours());
    if (RangeesAident(programme.settings.page, found)) {
        text += page.noms.rangees + "\n";
    }
    if (!page.demande) {
        messages.Tell(text, titre, BoxIcon::warning);
        return std::nullopt;
    }
    const bool goes_on = messages.Confirm(text + "\n" + messages.Text({"FrmPrint", "240"}), titre);
    return goes_on ? std::nullopt : std::optional(FinImpression::annule);
}

std::optional<FinImpression> ControleBords(Programme &programme, const Impression &run,
                                           const ReglagePage &page, const Papier &propre) {
    std::optional<HorsFeuille> found = MesureVue(programme, propre);
    if (found && page.demande && RangeesAident(programme.settings.page, *found) &&
        ProposeRangees(programme, programme.settings.page)) {
        if (const auto end = PrepareDessin(run)) {
            return end;
        }
        found = MesureVue(programme, propre);
    }
    if (!found) {
        return FinImpression::trace_echec;
    }
    return found->tout.Aucun() ? std::nullopt : AvertitHorsFeuille(programme, page, *found);
}

} // namespace

std::optional<FinImpression> PrepareImpression(Programme &programme, const Impression &run,
                                               const ReglagePage &page, const Papier &propre) {
    if (!PrepareFeuilles(run, page.regle)) {
        return FinImpression::annule;
    }
    if (const auto end = PrepareDessin(run)) {
        return end;
    }
    return ControleBords(programme, run, page, propre);
}

FinImpression ImprimeVue(const Impression &run, Printer &printer) {
    const PartieGardee<Vue> view(run.rib);
    return Imprime(run, printer);
}

FinImpression ImprimeSurDemande(Programme &programme, const ReglagePage &page) {
    PlotState plot = EtatAmorce(programme.rib);
    const Impression run = ImpressionDeVue(programme, plot);
    if (const auto end = PrepareImpression(programme, run, page, Papiers()[kPapierImprimante])) {
        return *end;
    }
    PrintQuestion question = DemandeImprimante(run);
    question.proposed_pdf = NomPropose(programme) + ".pdf";
    const auto printer = programme.platform.OpenPrinter(question);
    if (!printer) {
        return FinImpression::annule;
    }
    const FinImpression end = ImprimeVue(run, *printer);
    if (end == FinImpression::imprime) {
        DitFichierImprime(*printer, programme.messages, ResumeFeuilles(run));
    }
    return end;
}

} // namespace loftwing
