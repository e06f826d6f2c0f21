#include "output/stack_tiled.h"

#include "output/piece.h"
#include "output/rib_plot.h"
#include "output/sheeting.h"

namespace loftwing {

std::optional<FinImpression> NervureTuilee::Prepare() {
    const PartieGardee<Vue> view(rib_);
    const Impression run = Run();
    if (!PrepareFeuilles(run, [this] { return Regle(); })) {
        return FinImpression::annule;
    }
    if (const auto end = PrepareDessin(run)) {
        return end;
    }
    return Avertit();
}

FinImpression NervureTuilee::Imprime(Printer &printer) {
    const PartieGardee<Vue> view(rib_);
    return imprimeXpage(Run(), printer);
}

Impression NervureTuilee::Run() {
    plot_ = EtatAmorce(rib_);
    return {rib_,
            settings_,
            plot_,
            demande_.messages,
            [this](PlotDevice &device) {
                return PrintSubroutine({device, rib_, settings_, plot_, demande_.messages}, 1.0);
            },
            rib_.NomProfil,
            demande_.date};
}

void NervureTuilee::PrendRecouvrement() {
    settings_.page.recouvrement = demande_.settings.page.recouvrement;
    settings_.page.recouvrementAfich = demande_.settings.page.recouvrementAfich;
}

/// The overlap that was set up for one rib counts for the next ones too.
bool NervureTuilee::Regle() {
    PrendRecouvrement();
    if (settings_.page.recouvrement == 0.0F) {
        if (!demande_.regle || !demande_.regle()) {
            return false;
        }
        PrendRecouvrement();
    }
    return true;
}

std::optional<FinImpression> NervureTuilee::Avertit() {
    const auto found = MesureHorsFeuille(Run(), PapierDe(settings_.page));
    if (!found) {
        return FinImpression::trace_echec;
    }
    if (!found->tout.Aucun()) {
        const Messages &messages = demande_.messages;
        std::string words = EtiquetteDuRib(rib_, settings_.Unite) + "\n" +
                            TexteHorsFeuille(*found, demande_.noms, {settings_.Unite, messages});
        const bool higher = found->sans_texte.haut > 0 || found->sans_texte.bas > 0;
        if (higher && !settings_.page.en_rangees) {
            words += demande_.noms.rangees + "\n";
        }
        messages.Tell(words, messages.Text({"FrmPrint", "1"}), BoxIcon::warning);
    }
    return std::nullopt;
}

} // namespace loftwing
