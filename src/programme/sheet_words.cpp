#include "programme/sheet_words.h"

#include "base/number_text.h"
#include "core/units.h"

namespace loftwing {

namespace {

constexpr const char *kTaux = "##0.0";

std::string Pieces(const Messages &messages, std::size_t count, double use) {
    return std::to_string(count) + " " +
           (count == 1 ? messages.Text({"Panel", "190"}) : messages.Text({"Panel", "169"})) + ", " +
           Format(use, kTaux) + " %";
}

} // namespace

std::string LignePlanche(const Messages &messages, const Planche &planche, std::size_t numero,
                         const std::string &Unite) {
    return messages.Text({"Panel", "168"}) + " " + std::to_string(numero) + " : " +
           DepuisMm(planche.format.largeur, Unite) + " x " +
           DepuisMm(planche.format.hauteur, Unite) + Unite + ", " +
           Pieces(messages, planche.pieces.size(), planche.Taux());
}

std::string ResumePlanches(const Messages &messages, const Imbrication &planches) {
    constexpr double kPercent = 100;
    std::size_t count = 0;
    double wood = 0;
    double stock = 0;
    for (const Planche &planche : planches) {
        count += planche.pieces.size();
        wood += planche.aire;
        stock += planche.longueur * planche.format.Travers();
    }
    return messages.Text({"Panel", "170"}) + " " + std::to_string(planches.size()) + ", " +
           Pieces(messages, count, stock > 0 ? kPercent * wood / stock : 0);
}

std::string TexteRefusPlanche(const Messages &messages, const RefusPlanche &refus,
                              const std::string &Unite) {
    switch (refus.cause) {
    case RefusDePlanche::trop_grande:
        return messages.Text({"Sheet", "1"}) + " " +
               FormatAffiche(DepuisMm(refus.longueur, Unite), "##0.0") + " x " +
               FormatAffiche(DepuisMm(refus.hauteur, Unite), "##0.0") + Unite;
    case RefusDePlanche::trop_de_pieces:
        return messages.Text({"Sheet", "2"}) + " " + std::to_string(kPiecesMaxi);
    case RefusDePlanche::sans_format:
        return messages.Text({"Sheet", "3"}) + " " + DepuisMm(kPlancheMaxi, Unite) + Unite;
    case RefusDePlanche::abandonnee:
        return {};
    }
    return {};
}

} // namespace loftwing
