#include "programme/export.h"

#include "base/version.h"
#include "output/dxf.h"
#include "output/rib_plot.h"
#include "output/screen_plot.h"
#include "output/svg_writer.h"

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

std::unique_ptr<Recording> DessineRib(Programme &programme, bool &failed,
                                      Recording::Measure measure) {
    RibModel &rib = programme.rib;
    const VueGardee view(rib);
    rib.Zoom = 1;
    rib.DecalX = 0;
    rib.DecalY = 0;
    auto recording = std::make_unique<Recording>(std::move(measure));
    PlotState fresh;
    const Affichage result =
        afficheRib({*recording, rib, programme.settings, fresh, programme.messages});
    failed = result == Affichage::echec;
    return result == Affichage::dessine ? std::move(recording) : nullptr;
}

Impression ImpressionDuRib(Programme &programme, PlotState &plot) {
    RibModel &rib = programme.rib;
    const AppSettings &settings = programme.settings;
    const Messages &messages = programme.messages;
    return {rib, programme.settings, plot, messages,
            [&rib, &settings, &messages, &plot](PlotDevice &device) {
                return PrintSubroutine({device, rib, settings, plot, messages}, 1.0);
            }};
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
    const auto recording = DessineRib(programme, failed);
    return recording ? WriteSvg(*recording, programme.rib.NomProfil) : std::string();
}

} // namespace loftwing
