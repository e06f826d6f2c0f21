#include "programme/cut_steps.h"

#include "base/number_text.h"
#include "programme/piece_words.h"
#include "programme/reglage_retenu.h"

#include <array>
#include <cmath>
#include <utility>

namespace loftwing {

namespace {

constexpr const char *kSection = "Decoupe";

constexpr std::array<std::pair<const char *, bool ChoixDecoupe::*>, 6> kCases = {
    {{"Reference", &ChoixDecoupe::reference},
     {"Stations", &ChoixDecoupe::stations},
     {"Axes", &ChoixDecoupe::axes},
     {"Etiquette", &ChoixDecoupe::etiquette},
     {"Talon", &ChoixDecoupe::talon},
     {"Polylignes", &ChoixDecoupe::polylignes}}};

constexpr std::array<std::pair<const char *, double ChoixDecoupe::*>, 2> kLargeurs = {
    {{"Saignee", &ChoixDecoupe::saignee}, {"Fil", &ChoixDecoupe::fil}}};

bool LargeurPossible(double mm) {
    return mm >= 0 && mm <= kSaigneeMaxi;
}

double NombreRetenu(const std::string &text) {
    try {
        const double mm = LeadingNumber(text);
        return LargeurPossible(mm) ? mm : 0;
    } catch (const Failure &) {
        return 0;
    }
}

/// A computed length to a tenth of a millimetre, or in inches.
std::string Longueur(double mm, const std::string &Unite) {
    constexpr double kParts = 10;
    return Unite == kUniteMm ? NumberText(std::round(mm * kParts) / kParts)
                             : DepuisMm(ToSingle(mm), Unite);
}

std::string TexteAire(double mm2, const std::string &Unite) {
    constexpr double kMm2ParCm2 = 100;
    constexpr double kMm2ParIn2 = 25.4 * 25.4;
    const bool mm = Unite == kUniteMm;
    const double parts = mm ? 10 : 100;
    return NumberText(std::round(mm2 / (mm ? kMm2ParCm2 : kMm2ParIn2) * parts) / parts) +
           (mm ? " cm\xC2\xB2" : " in\xC2\xB2");
}

std::string Mesures(const Messages &messages, const Piece &piece, const std::string &Unite) {
    const std::string nom = NomDePiece(messages, piece.genre);
    const BoitePiece box = BoiteDe(piece);
    return (nom.empty() ? "" : nom + ". ") + messages.Text({"Piece", "119"}) + " " +
           TexteAire(AirePiece(piece), Unite) + ", " + messages.Text({"Piece", "120"}) + " " +
           Longueur(LongueurCoupe(piece), Unite) + Unite + ", " + messages.Text({"Piece", "121"}) +
           " " + Longueur(box.haut_droite.x - box.bas_gauche.x, Unite) + " \xC3\x97 " +
           Longueur(box.haut_droite.y - box.bas_gauche.y, Unite) + Unite;
}

} // namespace

ChoixDecoupe LitChoixDecoupe(const Programme &programme) {
    const IniFile file = ReglagesRetenus(programme);
    ChoixDecoupe choix;
    for (const auto &[key, width] : kLargeurs) {
        choix.*width = NombreRetenu(file.Value(kSection, key));
    }
    for (const auto &[key, ticked] : kCases) {
        const std::string value = file.Value(kSection, key);
        choix.*ticked = value.empty() ? choix.*ticked : value == "1";
    }
    choix.forme = file.Value(kSection, "Forme");
    return choix;
}

void RetientChoixDecoupe(const Programme &programme, const ChoixDecoupe &choix) {
    RetientReglages(programme, [&choix](IniFile &file) {
        for (const auto &[key, width] : kLargeurs) {
            file.SetValue(kSection, key, NumberText(choix.*width));
        }
        for (const auto &[key, ticked] : kCases) {
            file.SetValue(kSection, key, choix.*ticked ? "1" : "0");
        }
        file.SetValue(kSection, "Forme", choix.forme);
    });
}

DemandePiece DemandeDe(const ChoixDecoupe &choix, const std::string &texte) {
    DemandePiece demande = choix;
    demande.texte = texte;
    return demande;
}

LargeurLue LitLargeur(Largeur largeur, const std::string &text, const Programme &programme) {
    const bool kerf = largeur == Largeur::saignee;
    const std::string &Unite = programme.settings.Unite;
    const std::string no_length =
        programme.Text(kerf ? LngKey{"Piece", "122"} : LngKey{"Piece", "128"});
    const std::string too_wide =
        programme.Text(kerf ? LngKey{"Piece", "123"} : LngKey{"Piece", "129"});
    if (EstRefusee(text, Unite)) {
        return {0, no_length};
    }
    try {
        const double mm = NombreMm(text, programme.SaisieEnCours());
        if (!LargeurPossible(mm)) {
            return {0, too_wide + " " + DepuisMm(kSaigneeMaxi, Unite) + Unite + "."};
        }
        return {mm, {}};
    } catch (const Failure &) {
        return {0, no_length};
    }
}

PiecesFaites FaitPiecesDuRib(const Programme &programme, const DemandePiece &demande) {
    try {
        auto made = FaitPieces(programme.rib, AvecNoms(programme.messages, demande),
                               programme.SaisieEnCours());
        if (const auto *refusal = std::get_if<RefusPiece>(&made)) {
            return {{}, TexteRefus(programme.messages, *refusal)};
        }
        return {std::move(std::get<std::vector<Piece>>(made)), {}};
    } catch (const Failure &failure) {
        return {{}, programme.messages.Description(failure)};
    }
}

std::string TexteDesAvis(const Messages &messages, const PiecesFaites &faites) {
    std::string text = faites.refus;
    for (const Piece &piece : faites.pieces) {
        for (const std::string &warning : TextesAvis(messages, piece)) {
            text += (text.empty() ? "" : " ") + warning;
        }
    }
    return text;
}

std::string TexteMesures(const Messages &messages, const std::vector<Piece> &pieces,
                         const std::string &Unite) {
    std::string text;
    for (const Piece &piece : pieces) {
        text += (text.empty() ? "" : "\n") + Mesures(messages, piece, Unite);
    }
    return text;
}

} // namespace loftwing
