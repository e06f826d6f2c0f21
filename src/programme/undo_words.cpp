#include "programme/undo_words.h"

#include <optional>

namespace loftwing {

namespace {

/// The text as typed and its number; one may change without the other.
template <class Part, class Number>
bool Differe(const Part &a, const Part &b, Number Part::*number, std::string Part::*text) {
    return a.*number != b.*number || a.*text != b.*text;
}

std::optional<LngKey> DimensionChangee(const Dimensions &a, const Dimensions &b) {
    if (Differe(a, b, &Dimensions::corde, &Dimensions::cordeAfich)) {
        return LngKey{"Undo", "10"};
    }
    if (Differe(a, b, &Dimensions::EpCoffrage, &Dimensions::EpCoffrageAfich)) {
        return LngKey{"Panel", "19"};
    }
    if (a.TypeBA != b.TypeBA) {
        return LngKey{"Undo", "12"};
    }
    if (Differe(a, b, &Dimensions::EpBA, &Dimensions::EpBAAfich)) {
        return LngKey{"Panel", "116"};
    }
    if (Differe(a, b, &Dimensions::EpBF, &Dimensions::EpBFAfich)) {
        return LngKey{"Panel", "117"};
    }
    if (a.NbRep != b.NbRep) {
        return LngKey{"Panel", "7"};
    }
    if (a.vrillage != b.vrillage) {
        return LngKey{"Undo", "16"};
    }
    return std::nullopt;
}

/// The first slot, from 1, that isn't what it was; 0 where all are.
template <class Records>
std::size_t PremierChange(const Records &a, const Records &b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i]) {
            return i + 1;
        }
    }
    return 0;
}

std::string AjoutChange(const Ajouts &a, const Ajouts &b, const Messages &messages) {
    if (const std::size_t spar = PremierChange(a.longeron, b.longeron); spar != 0) {
        return messages.Text({"Panel", "9"}) + " " + std::to_string(spar);
    }
    if (const std::size_t hole = PremierChange(a.trou, b.trou); hole != 0) {
        return messages.Text({"Panel", "14"}) + " " + std::to_string(hole);
    }
    if (a.carre != b.carre) {
        return messages.Text({"Panel", "118"});
    }
    const bool heel = a.TypeGabarit == kGabaritTalon || b.TypeGabarit == kGabaritTalon;
    if (a.talon != b.talon || (a.TypeGabarit != b.TypeGabarit && heel)) {
        return messages.Text({"Panel", "119"});
    }
    if (a.bloc != b.bloc || a.TypeGabarit != b.TypeGabarit) {
        return messages.Text({"Panel", "120"});
    }
    return messages.Text({"Undo", "17"});
}

} // namespace

std::string NomDuPas(const EtatRib &before, const EtatRib &after, const Messages &messages) {
    if (after.vue != before.vue) {
        switch (after.vue) {
        case VueMontree::vide: // which another unit asks for
            return after.Unite != before.Unite ? messages.Text({"Undo", "19"})
                                               : messages.Text({"Undo", "3"});
        case VueMontree::compare:
            return messages.Text({"Undo", "4"});
        case VueMontree::epcourb:
            return messages.Text({"Undo", "5"});
        case VueMontree::couple:
            return messages.Text({"Undo", "6"}) + " " + after.identite->NomProfil;
        case VueMontree::rib:
            break;
        }
    }
    if (after.identite != before.identite || after.points != before.points) {
        const FichierDuRib &file = *after.fichier;
        return messages.Text({"Undo", "6"}) + " " +
               (file.CheminRib.empty() ? after.identite->NomProfil : file.NomFichierRib);
    }
    if (const auto dimension = DimensionChangee(*before.dimensions, *after.dimensions)) {
        return messages.Text(*dimension);
    }
    if (after.ajouts != before.ajouts) {
        return AjoutChange(*before.ajouts, *after.ajouts, messages);
    }
    return after.AffHaut != before.AffHaut ? messages.Text({"Panel", "8"})
           : after.vue != before.vue       ? messages.Text({"Undo", "6"})
                                           : messages.Text({"Undo", "19"});
}

} // namespace loftwing
