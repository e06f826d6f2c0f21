#include "programme/export.h"

#include "output/print_file.h"
#include "output/sheeting.h"
#include "output/view_screen.h"
#include "programme/nom_propose.h"

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
            NomDuDessin(rib, compare)};
}

ReglagePage ReglageDeFenetre(const Messages &messages, std::function<bool()> regle) {
    return {std::move(regle),
            {messages.Text({"FrmPrint", "7"}), messages.Text({"FrmPrint", "19"}),
             messages.Text({"FrmPrint", "20"}), messages.Text({"FrmPrint", "3"})}};
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

std::optional<FinImpression> AvertitHorsFeuille(Programme &programme, const ReglagePage &page,
                                                const Papier &propre) {
    const Messages &messages = programme.messages;
    const std::optional<HorsFeuille> found = MesureVue(programme, propre);
    if (!found) {
        return FinImpression::trace_echec;
    }
    if (found->tout.Aucun()) {
        return std::nullopt;
    }
    const std::string titre = messages.Text({"FrmPrint", "1"});
    const std::string text = TexteHorsFeuille(*found, page.noms, programme.SaisieEnCours());
    if (!page.demande) {
        messages.Tell(text, titre, BoxIcon::warning);
        return std::nullopt;
    }
    const bool goes_on = messages.Confirm(text + "\n" + messages.Text({"FrmPrint", "240"}), titre);
    return goes_on ? std::nullopt : std::optional(FinImpression::annule);
}

FinImpression ImprimeVue(const Impression &run, Printer &printer) {
    const PartieGardee<Vue> view(run.rib);
    return Imprime(run, printer);
}

FinImpression ImprimeSurDemande(Programme &programme, const ReglagePage &page) {
    PlotState plot = EtatAmorce(programme.rib);
    const Impression run = ImpressionDeVue(programme, plot);
    if (!PrepareFeuilles(run, page.regle)) {
        return FinImpression::annule;
    }
    if (const auto end = AvertitHorsFeuille(programme, page, PapierDe(programme.settings.page))) {
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
