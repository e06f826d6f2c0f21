#include "output/temoins.h"

#include "core/units.h"

namespace loftwing {

namespace {

Etendue Decale(const Etendue &box, double x, double y) {
    return {box.gauche + x, box.haut + y, box.droite + x, box.bas + y};
}

} // namespace

Temoins::Temoins(const Impression &run, Printer &printer, int feuilles)
    : run_(run), printer_(printer), feuilles_(feuilles) {}

bool Temoins::Mesure() {
    const MiseEnPage &page = run_.settings.page;
    const SheetSize size = printer_.SizeOfSheets();
    voulu_ = page.temoin && size.width > 0 && size.height > 0;
    if (!voulu_) {
        return true;
    }
    feuille_ =
        FeuilleAvecMarges(size.width, size.height, Wide(page.MargeHaut), Wide(page.MargeBas));
    const std::optional<Origine> origin = MesureDessin(run_, dessin_);
    mesure_ = origin.value_or(Origine{});
    return origin.has_value();
}

NoteTemoin Temoins::Note(const std::string &feuille) const {
    const Messages &messages = run_.messages;
    const std::string &Unite = run_.settings.Unite;
    const std::string chord =
        messages.Text({"FrmPrint", "271"}) + " " + DepuisMm(run_.rib.corde, Unite) + Unite;
    const std::string date = run_.date.empty() ? "" : ", " + run_.date;
    return {messages.Text({"FrmPrint", "270"}), run_.nom, chord + ", " + feuille + date, Unite};
}

/// What is on the sheet: its part of the drawing and the crosses.
std::vector<Etendue> Temoins::Encres(const Origine &origine) const {
    std::vector<Etendue> inks;
    inks.reserve(dessin_.encres.size());
    for (const Etendue &box : dessin_.encres) {
        inks.push_back(Decale(box, origine.x - mesure_.x, origine.y - mesure_.y));
    }
    Metre crosses;
    if (run_.settings.page.NumIndex != kPapierImprimante) {
        tracerepere(run_, crosses);
    }
    inks.insert(inks.end(), crosses.encres.begin(), crosses.encres.end());
    return inks;
}

void Temoins::Trace(int numero, const Origine &origine) {
    if (!voulu_) {
        return;
    }
    const Messages &messages = run_.messages;
    const std::string which = messages.Text({"FrmPrint", "272"}) + " " + std::to_string(numero) +
                              " " + messages.Text({"FrmPrint", "273"}) + " " +
                              std::to_string(feuilles_);
    if (const auto place = PlaceLibre(feuille_, Note(which), Encres(origine))) {
        TraceTemoin(printer_, *place, run_.settings.Unite);
    } else {
        manque_ = true;
    }
}

void Temoins::Finit() {
    if (!manque_) {
        return;
    }
    const std::string all =
        run_.messages.Text({"FrmPrint", "274"}) + " : " + std::to_string(feuilles_);
    if (const auto place = PlaceLibre(feuille_, Note(all), {})) {
        printer_.NewPage();
        TraceTemoin(printer_, *place, run_.settings.Unite);
    }
}

} // namespace loftwing
