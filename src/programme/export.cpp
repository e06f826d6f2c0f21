#include "programme/export.h"

#include "base/version.h"
#include "output/dxf.h"
#include "output/svg_writer.h"
#include "output/view_screen.h"

namespace loftwing {

namespace {

/// Puts the view back as it was when the drawing for a file is done.
class VueGardee {
  public:
    explicit VueGardee(RibModel &rib)
        : rib_(rib), zoom_(rib.Zoom), x_(rib.DecalX), y_(rib.DecalY) {}
    VueGardee(const VueGardee &) = delete;
    VueGardee &operator=(const VueGardee &) = delete;
    ~VueGardee() {
        rib_.Zoom = zoom_;
        rib_.DecalX = x_;
        rib_.DecalY = y_;
    }

  private:
    RibModel &rib_;
    float zoom_;
    std::int16_t x_;
    std::int16_t y_;
};

} // namespace

std::unique_ptr<Recording> DessineVue(Programme &programme, bool &failed,
                                      Recording::Measure measure) {
    RibModel &rib = programme.rib;
    const VueGardee view(rib);
    rib.Zoom = 1;
    rib.DecalX = 0;
    rib.DecalY = 0;
    auto recording = std::make_unique<Recording>(std::move(measure));
    PlotState fresh;
    const Affichage result = afficheVue(
        {*recording, rib, programme.settings, fresh, programme.messages}, programme.compare);
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
    const VueGardee view(run.rib);
    return Imprime(run, printer);
}

bool ExporteDxf(Programme &programme, std::string &out) {
    if (programme.rib.AffHaut) {
        programme.messages.Inform(programme.Text({"filedxf", "1"}), kTitre);
        return false;
    }
    EcritDxf({programme.rib, programme.plot, programme.settings.Unite}, out);
    return true;
}

std::string ExporteDxfSimple(Programme &programme) {
    return EcritDxfSimple({programme.rib, programme.plot, programme.settings.Unite});
}

std::string ExporteSvg(Programme &programme, bool &failed) {
    const auto recording = DessineVue(programme, failed);
    return recording ? WriteSvg(*recording, NomDuDessin(programme.rib, programme.compare))
                     : std::string();
}

} // namespace loftwing
