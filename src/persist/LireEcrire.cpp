#include "persist/LireEcrire.h"

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "persist/lignes_composants.h"

#include <algorithm>

namespace loftwing {

namespace {

constexpr std::string_view kDebutMagie = "LFW V3.0";
constexpr std::string_view kMagie = "LFW V3.0 -02 Caution don't delete this file !!";
constexpr std::string_view kPied = "End of File V 3.0.02 modif 02/10/2002";

/// The spar's lines, as reader and writer walk them.
template <class Record, class Passe>
void LignesLongeron(Record &spar, Passe &passe) {
    passe.Place(spar.PosLongAfich);
    passe.Affichage(spar.LargLongAfich, spar.LargLong);
    passe.Affichage(spar.HautLongAfich, spar.HautLong);
    passe.Octet(spar.OptLongExt);
    passe.Octet(spar.OptLongInt);
    passe.Octet(spar.TypeLong);
    passe.Affichage(spar.DistLongAfich, spar.DistLong);
    passe.Octet(spar.RefLong);
    passe.Reserve(spar.ResLong);
}

template <class Record, class Passe>
void LignesTrou(Record &hole, Passe &passe) {
    passe.Place(hole.PosTrouAfich);
    passe.Affichage(hole.DiaTrouAfich, hole.DiaTrou);
    passe.Reel(hole.ChkCentre);
    passe.Affichage(hole.DecalTrouAfich, hole.DecalTrou);
    passe.Affichage(hole.HautTrouAfich, hole.HautTrou);
    passe.Octet(hole.RefTrou);
    passe.Octet(hole.TypeTrou);
    passe.Reserve(hole.ResTrou);
}

template <class Rib, class Passe>
void LignesDebut(Rib &rib, Passe &passe) {
    passe.Nom(rib.NomProfil, rib.ExtProfil);
    passe.Texte(rib.NomProfil);
    passe.Texte(rib.texte.InsTexte);
    passe.Affichage(rib.texte.InsTextXAfich, rib.texte.InsTextX);
    passe.Affichage(rib.texte.InsTextYAfich, rib.texte.InsTextY);
    passe.EnVigueur(rib.cordeAfich, rib.corde);
    passe.Affichage(rib.EpCoffrageAfich, rib.EpCoffrage);
    passe.EnVigueur(rib.EpBAAfich, rib.EpBA);
    passe.EnVigueur(rib.carre.CarreBAAfich, rib.carre.CarreBA);
    passe.EnVigueur(rib.carre.CarreBAXAfich, rib.carre.CarreBAX);
    passe.EnVigueur(rib.carre.CarreBAYAfich, rib.carre.CarreBAY);
    passe.Affichage(rib.bloc.CoupeBFAfich, rib.bloc.CoupeBF);
    passe.Imprime(rib.TypeBA);
    passe.Inverse(rib.AffHaut);
    passe.Texte(rib.LigneReserve);
}

template <class Rib, class Passe>
void LignesFin(Rib &rib, Passe &passe) {
    passe.Marge(rib.talon.TalonBAAfich, rib.talon.TalonBA);
    passe.Marge(rib.talon.TalonBFAfich, rib.talon.TalonBF);
    passe.EnVigueur(rib.EpBFAfich, rib.EpBF);
    passe.Octet(rib.NbRep);
    passe.Reel(rib.vrillage);
    passe.Affichage(rib.bloc.HTbasblocAfich, rib.bloc.HTbasbloc);
    passe.Affichage(rib.bloc.HTblocAfich, rib.bloc.HTbloc);
    passe.Affichage(rib.bloc.BAblocAfich, rib.bloc.BAbloc);
    passe.Affichage(rib.bloc.BFblocAfich, rib.bloc.BFbloc);
    passe.Octet(rib.TypeGabarit);
    passe.Octet(rib.bloc.Optquebf);
    passe.Affichage(rib.talon.TalonIntraAfich, rib.talon.TalonIntra);
    passe.TalonExtra(rib.talon);
}

/// All lines of one rib in the current format, the first and the last included. The counts are
/// those of the slot being edited, whose record stands in the file too.
template <class Rib, class Passe>
void Lignes(Rib &rib, Passe &passe) {
    passe.Fixe(kMagie);
    LignesDebut(rib, passe);
    passe.Fixe("Spars");
    passe.Imprime(rib.NbLongeron);
    for (int slot = 0; slot <= rib.NbLongeron; ++slot) {
        LignesLongeron(At(rib.longeron, slot), passe);
    }
    passe.Fixe("Holes");
    passe.Imprime(rib.NbTrou);
    for (int slot = 0; slot <= rib.NbTrou; ++slot) {
        LignesTrou(At(rib.trou, slot), passe);
    }
    LignesFin(rib, passe);
    passe.Fixe(kPied);
}

/// Text, position along and across the chord in one line; three characters are none of them.
void LigneTexteAncien(Lecteur &lecteur, TexteInsere &texte) {
    const std::string line = lecteur.Suivante();
    constexpr std::size_t kRien = 3;
    if (CharacterCount(line) == kRien) {
        return;
    }
    const std::string kX = "§X";
    const std::string kY = "§Y";
    const std::size_t x = line.find(kX);
    const std::size_t y = line.find(kY);
    if (x == std::string::npos || y == std::string::npos || y < x + kX.size()) {
        throw MakeFailure(kInvalidProcedureCall, line);
    }
    texte.InsTexte = line.substr(0, x);
    lecteur.Prend(line.substr(x + kX.size(), y - x - kX.size()), texte.InsTextXAfich,
                  texte.InsTextX);
    lecteur.Prend(line.substr(y + kY.size()), texte.InsTextYAfich, texte.InsTextY);
}

void LigneBordAncien(Lecteur &lecteur, std::uint8_t &TypeBA) {
    const std::string line = lecteur.Suivante();
    if (line == "True") {
        TypeBA = 1;
    } else if (line == "False") {
        TypeBA = 0;
    }
}

void LongeronAncien(Lecteur &lecteur, Longeron &spar) {
    lecteur.Place(spar.PosLongAfich);
    lecteur.Affichage(spar.LargLongAfich, spar.LargLong);
    lecteur.Affichage(spar.HautLongAfich, spar.HautLong);
    lecteur.Octet(spar.OptLongExt);
    lecteur.Octet(spar.OptLongInt);
    lecteur.Octet(spar.TypeLong);
}

void TrouAncien(Lecteur &lecteur, Trou &hole) {
    lecteur.Place(hole.PosTrouAfich);
    lecteur.Affichage(hole.DiaTrouAfich, hole.DiaTrou);
    lecteur.Reel(hole.ChkCentre);
    lecteur.Affichage(hole.DecalTrouAfich, hole.DecalTrou);
}

void HauteursAnciennes(Lecteur &lecteur, Bloc &bloc) {
    const auto [low, total] = lecteur.Diese();
    lecteur.Prend(low, bloc.HTbasblocAfich, bloc.HTbasbloc);
    if (total) {
        lecteur.Prend(*total, bloc.HTblocAfich, bloc.HTbloc);
    }
}

void GabaritAncien(Lecteur &lecteur, RibModel &rib) {
    const auto [kind, tail] = lecteur.Diese();
    rib.TypeGabarit = ToByte(LeadingNumber(kind));
    if (tail) {
        rib.bloc.Optquebf = ToByte(LeadingNumber(*tail));
    }
}

/// All lines of one rib in the older format.
void LignesAnciennes(RibModel &rib, Lecteur &lecteur) {
    lecteur.Suivante();
    lecteur.Nom(rib.NomProfil, rib.ExtProfil);
    lecteur.Texte(rib.NomProfil);
    LigneTexteAncien(lecteur, rib.texte);
    lecteur.Affichage(rib.cordeAfich, rib.corde);
    lecteur.Affichage(rib.EpCoffrageAfich, rib.EpCoffrage);
    lecteur.Affichage(rib.EpBAAfich, rib.EpBA);
    lecteur.Affichage(rib.carre.CarreBAAfich, rib.carre.CarreBA);
    lecteur.Affichage(rib.carre.CarreBAXAfich, rib.carre.CarreBAX);
    lecteur.Affichage(rib.carre.CarreBAYAfich, rib.carre.CarreBAY);
    std::string CoupeBF; // only its number is taken
    lecteur.Affichage(CoupeBF, rib.bloc.CoupeBF);
    LigneBordAncien(lecteur, rib.TypeBA);
    lecteur.Octet(rib.NbLongeron);
    for (int slot = 0; slot <= rib.NbLongeron; ++slot) {
        LongeronAncien(lecteur, At(rib.longeron, slot));
    }
    lecteur.Octet(rib.NbTrou);
    for (int slot = 0; slot <= rib.NbTrou; ++slot) {
        TrouAncien(lecteur, At(rib.trou, slot));
    }
    lecteur.Affichage(rib.EpBFAfich, rib.EpBF);
    lecteur.Octet(rib.NbRep);
    lecteur.Reel(rib.vrillage);
    HauteursAnciennes(lecteur, rib.bloc);
    lecteur.Affichage(rib.bloc.BAblocAfich, rib.bloc.BAbloc);
    lecteur.Affichage(rib.bloc.BFblocAfich, rib.bloc.BFbloc);
    GabaritAncien(lecteur, rib);
}

/// The lines of a file. A stray carriage return counts as the blank that it is written as, so that
/// a number is the same before and after.
std::vector<std::string> LignesDe(const std::string &bytes) {
    std::vector<std::string> lines = SplitLines(AnyToUtf8(bytes));
    for (std::string &line : lines) {
        std::replace(line.begin(), line.end(), '\r', ' ');
    }
    return lines;
}

/// Whether lengths that were read in `Unite` look like those of the other one: a chord of more than
/// a metre in inches, in mm one of a few centimetres or fractions.
bool SembleAutreUnite(const RibModel &rib, bool fractions, const std::string &Unite) {
    constexpr double kCordeDouteuse = 40; // in either unit
    constexpr double kMmParPouce = 25.4;
    const double corde = Wide(rib.corde);
    return Unite == kUniteMm ? corde < kCordeDouteuse || fractions
                             : corde > kCordeDouteuse * kMmParPouce;
}

void LitAncien(const std::vector<std::string> &lines, RibModel &rib, const Saisie &saisie) {
    Lecteur lecteur(lines, saisie);
    while (!lecteur.Fini()) {
        LignesAnciennes(rib, lecteur);
    }
    rib.UniteDouteuse = SembleAutreUnite(rib, lecteur.Fractions(), saisie.Unite);
}

} // namespace

std::string EcritComposants(const RibModel &rib, const std::string &Unite) {
    Redacteur redacteur(Unite);
    Lignes(rib, redacteur);
    return redacteur.Octets();
}

FormatComposants LitComposants(const std::string &bytes, RibModel &rib, const Saisie &saisie,
                               std::string &nom_cherche) {
    const std::vector<std::string> lines = LignesDe(bytes);
    Lecteur lecteur(lines, saisie);
    while (!lecteur.Fini()) {
        if (!lecteur.Devant().starts_with(kDebutMagie)) {
            LitAncien(lines, rib, saisie);
            nom_cherche = rib.NomProfil + "." + rib.ExtProfil;
            return FormatComposants::ancien;
        }
        Lignes(rib, lecteur);
        nom_cherche = lecteur.NomComplet();
    }
    rib.UniteDouteuse = SembleAutreUnite(rib, lecteur.Fractions(), saisie.Unite);
    return FormatComposants::courant;
}

} // namespace loftwing
