#include "programme/piece_words.h"

namespace loftwing {

namespace {

/// The number of a thing between what is said of it.
std::string Entre(const std::string &avant, int numero, const std::string &apres) {
    return avant + " " + std::to_string(numero) + " " + apres;
}

} // namespace

std::string TexteAvis(const Messages &messages, const Avis &avis) {
    switch (avis.genre) {
    case AvisPiece::en_morceaux:
        return Entre(messages.Text({"Piece", "1"}), avis.numero, messages.Text({"Piece", "2"}));
    case AvisPiece::trou_ouvert:
        return Entre(messages.Text({"Piece", "3"}), avis.numero, messages.Text({"Piece", "4"}));
    case AvisPiece::encoches:
        return Entre(messages.Text({"Piece", "5"}), avis.numero, messages.Text({"Piece", "6"}));
    case AvisPiece::bois_mince:
        return messages.Text({"Piece", "7"});
    case AvisPiece::talon_vide:
        return messages.Text({"Piece", "8"});
    }
    return {};
}

std::vector<std::string> TextesAvis(const Messages &messages, const Piece &piece) {
    const std::string nom = NomDePiece(messages, piece.genre);
    std::vector<std::string> textes;
    for (const Avis &avis : piece.avis) {
        textes.push_back((nom.empty() ? "" : nom + ": ") + TexteAvis(messages, avis));
    }
    return textes;
}

std::string TexteRefus(const Messages &messages, const RefusPiece &refus) {
    switch (refus.cause) {
    case RefusDePiece::longeron_sans_surface:
        return Entre(messages.Text({"Piece", "10"}), refus.numero, messages.Text({"Piece", "11"}));
    case RefusDePiece::talon_dans_profil:
        return messages.Text({"Piece", "12"});
    case RefusDePiece::sans_bois:
        return messages.Text({"Piece", "13"});
    case RefusDePiece::hors_bloc:
        return messages.Text({"Piece", "14"});
    }
    return {};
}

DemandePiece AvecNoms(const Messages &messages, DemandePiece demande) {
    demande.nom_extrados = NomDePiece(messages, GenrePiece::gabarit_extrados);
    demande.nom_intrados = NomDePiece(messages, GenrePiece::gabarit_intrados);
    return demande;
}

std::string NomDePiece(const Messages &messages, GenrePiece genre) {
    switch (genre) {
    case GenrePiece::nervure:
        return {};
    case GenrePiece::gabarit_extrados:
        return messages.Text({"Piece", "15"});
    case GenrePiece::gabarit_intrados:
        return messages.Text({"Piece", "16"});
    }
    return {};
}

} // namespace loftwing
