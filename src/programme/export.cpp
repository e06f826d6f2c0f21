#include "programme/export.h"

#include "output/view_screen.h"

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
    return {rib,
            programme.settings,
            plot,
            messages,
            [&rib, &settings, &messages, &plot, &compare](PlotDevice &device) {
                return TraceVue({device, rib, settings, plot, messages}, compare);
            },
            NomDuDessin(rib, compare)};
}

FinImpression ImprimeVue(const Impression &run, Printer &printer) {
    const PartieGardee<Vue> view(run.rib);
    return Imprime(run, printer);
}

} // namespace loftwing
