#include "programme/sheet_words.h"

#include "core/units.h"

namespace loftwing {

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
