#include "programme/panel_steps.h"

#include "base/file_name.h"
#include "core/airfoil_reader.h"
#include "core/contour.h"
#include "core/stations.h"
#include "features/inserted_text.h"
#include "features/slot_rules.h"
#include "persist/LireEcrire.h"
#include "programme/piece_words.h"
#include "programme/rib_trial.h"
#include "utilities/tool_files.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace loftwing {

namespace {

constexpr std::string_view kAileGauche = " L";
constexpr std::string_view kAileDroite = " R";

/// The label of the left wing's piece becomes that of the right one's.
Piece DeDroite(Piece piece) {
    for (TexteMarque &text : piece.textes) {
        // At the end, or in front of the name of a template.
        const std::size_t at = text.texte.ends_with(kAileGauche)
                                   ? text.texte.size() - kAileGauche.size()
                                   : text.texte.rfind(std::string(kAileGauche) + ",");
        if (text.genre == GenreMarque::etiquette && at != std::string::npos) {
            text.texte.replace(at, kAileGauche.size(), kAileDroite);
        }
    }
    return piece;
}

double AireDesPieces(const std::vector<Piece> &pieces) {
    return std::accumulate(pieces.begin(), pieces.end(), 0.0,
                           [](double sum, const Piece &piece) { return sum + AirePiece(piece); });
}

} // namespace

class OuvragePanneau::Travail {
  public:
    Travail(Programme &programme, Panneau panneau, DemandePanneau demande)
        : programme_(programme), messages_(programme.messages), panneau_(std::move(panneau)),
          demande_(std::move(demande)), saisie_(programme.SaisieEnCours()), rib_(programme.rib) {}

    void Commence();
    int Nombre() const { return composee_ ? static_cast<int>(fait_.jeu.nervures.size()) : 0; }
    int Faites() const { return static_cast<int>(fait_.nervures.size()); }
    void Avance();
    PanneauFait Rend() { return std::move(fait_); }

  private:
    Programme &programme_;
    const Messages &messages_;
    const Panneau panneau_;
    const DemandePanneau demande_;
    Saisie saisie_;
    RibModel &rib_;
    PanneauFait fait_;
    bool composee_ = false;
    std::vector<ElementPanneau> elements_;
    std::vector<std::string> profils_; ///< the bytes of the airfoils

    int Numero(int numero) const { return demande_.premier + numero - 1; }
    bool Compose();
    void Ouvre(int numero, NervureFaite &nervure);
    void Regarde(int numero, NervureFaite &nervure);
    double AireSansSaignee() const;
    void MesureFleches();
    std::optional<Fleche> FlecheDe(const ElementPanneau &spar, bool upper) const;
    std::optional<double> HauteurDuLongeron(const ElementPanneau &spar, bool upper,
                                            int numero) const;
};

bool OuvragePanneau::Travail::Compose() {
    JeuNervures set;
    auto made = ComposeJeu(panneau_.jeu, ProfilsDesBouts(panneau_), saisie_, set);
    if (const auto *refus = std::get_if<RefusJeu>(&made)) {
        fait_.refus.push_back({refus->text});
        return false;
    }
    fait_.jeu = std::move(std::get<JeuDeNervures>(made));
    fait_.refus = Desaccords(panneau_, static_cast<int>(fait_.jeu.nervures.size()), saisie_);
    fait_.avis = AvisDesBouts(panneau_, messages_);
    elements_ = Elements(panneau_, saisie_);
    profils_ = TextesNervures(fait_.jeu, messages_);
    return fait_.refus.empty();
}

/// Writes the rib's files in memory and opens them, so that what is looked at is what they hold.
void OuvragePanneau::Travail::Ouvre(int numero, NervureFaite &nervure) {
    rib_.Partie<PartiesRib>() = NervureDuPanneau(panneau_, fait_.jeu, numero, saisie_);
    if (!rib_.texte.InsTexte.empty()) {
        RegenereTexte(rib_, messages_);
    }
    nervure.profil = rib_.CheminProfil;
    nervure.composants = rib_.NomProfil + ".lfw";
    nervure.octets_profil = At(profils_, numero - 1);
    nervure.octets_composants = EcritComposants(rib_, saisie_.Unite);
    const bool users = rib_.texte.TexteUtilisateur;
    rib_.Partie<PartiesRib>() = {};
    ValeursDefautRib(rib_);
    std::string name;
    LitComposants(nervure.octets_composants, rib_, saisie_, name);
    rib_.CheminProfil = fait_.jeu.dossier + nervure.profil;
    const ResultatLecture read = EssaieLecture(rib_, nervure.octets_profil, messages_);
    if (read.issue != Lecture::lu || rib_.NbPoints < kPointsMini) {
        throw Failure{0, read.boite};
    }
    rib_.ProfilCharge = true;
    rib_.texte.TexteUtilisateur = users;
    FaitContour(rib_);
}

void OuvragePanneau::Travail::Regarde(int numero, NervureFaite &nervure) {
    if (const auto failure = EchecDuTrace(programme_)) {
        throw *failure;
    }
    DemandePiece demande = AvecNoms(messages_, demande_.piece);
    demande.texte = EtiquetteNumerotee(rib_, Numero(numero), saisie_.Unite);
    demande.texte_court = std::to_string(Numero(numero));
    if (demande_.deux_ailes) {
        demande.texte += kAileGauche;
        demande.texte_court += kAileGauche;
    }
    auto made = FaitPieces(rib_, demande, saisie_);
    if (const auto *refusal = std::get_if<RefusPiece>(&made)) {
        fait_.refus.push_back({TexteRefus(messages_, *refusal), Numero(numero)});
        return;
    }
    nervure.pieces = std::move(std::get<std::vector<Piece>>(made));
    nervure.aire = demande.saignee == 0 ? AireDesPieces(nervure.pieces) : AireSansSaignee();
    for (const Piece &piece : nervure.pieces) {
        for (const std::string &warning : TextesAvis(messages_, piece)) {
            fait_.avis.push_back({warning, Numero(numero)});
        }
    }
}

/// A kerf makes outlines larger than what is left of the wood.
double OuvragePanneau::Travail::AireSansSaignee() const {
    DemandePiece bare;
    bare.reference = bare.stations = bare.axes = bare.etiquette = bare.talon = false;
    const auto made = FaitPieces(rib_, bare, saisie_);
    const auto *pieces = std::get_if<std::vector<Piece>>(&made);
    return pieces == nullptr ? 0 : AireDesPieces(*pieces);
}

/// Height of the surface in which the spar is notched, mm over the rib's reference line.
std::optional<double> OuvragePanneau::Travail::HauteurDuLongeron(const ElementPanneau &spar,
                                                                 bool upper, int numero) const {
    const auto slot = SlotDe(panneau_, elements_, spar, numero);
    if (!slot) {
        return std::nullopt;
    }
    const PartiesRib &rib = At(fait_.nervures, numero - 1).rib;
    const Longeron &record = At(rib.longeron, *slot);
    if ((upper ? record.OptLongExt : record.OptLongInt) == 0) {
        return std::nullopt;
    }
    const double x = Wide(PlaceDepuis(record.PosLongAfich, record.RefLong, rib.corde, saisie_));
    const double corde = Wide(rib.corde);
    return HauteurEntre(upper ? rib.TabExtrados : rib.TabIntrados,
                        kLastStation * (1 - Quotient(x, corde))) *
           corde;
}

std::optional<Fleche> OuvragePanneau::Travail::FlecheDe(const ElementPanneau &spar,
                                                        bool upper) const {
    struct Lieu {
        int numero;
        double rapport, hauteur;
    };
    std::vector<Lieu> places;
    for (int numero = 1; numero <= Nombre(); ++numero) {
        if (const auto height = HauteurDuLongeron(spar, upper, numero)) {
            places.push_back({numero, At(fait_.jeu.nervures, numero - 1).rapport, *height});
        }
    }
    if (places.empty()) {
        return std::nullopt;
    }
    const Lieu &first = places.front();
    const Lieu &last = places.back();
    Fleche greatest{spar, upper, 0, Numero(first.numero)};
    for (const Lieu &place : places) {
        const double run = last.rapport - first.rapport;
        const double part = run == 0 ? 0 : (place.rapport - first.rapport) / run;
        const double line = first.hauteur + (last.hauteur - first.hauteur) * part;
        if (std::abs(place.hauteur - line) > greatest.mm) {
            greatest.mm = std::abs(place.hauteur - line);
            greatest.nervure = Numero(place.numero);
        }
    }
    return greatest;
}

void OuvragePanneau::Travail::MesureFleches() {
    for (const ElementPanneau &element : elements_) {
        if (element.genre != GenreElement::longeron) {
            continue;
        }
        for (const bool upper : {true, false}) {
            const auto bow = FlecheDe(element, upper);
            if (!bow) {
                continue;
            }
            fait_.fleches.push_back(*bow);
            if (bow->mm > kFlecheMaxi) {
                fait_.avis.push_back({TexteFleche(messages_, *bow, saisie_.Unite)});
            }
        }
    }
}

void OuvragePanneau::Travail::Commence() {
    try {
        composee_ = Compose();
    } catch (const Failure &failure) {
        fait_.refus.push_back({messages_.Description(failure)});
    }
}

void OuvragePanneau::Travail::Avance() {
    const PartieGardee<PartiesRib> kept(rib_);
    const int numero = Faites() + 1;
    NervureFaite nervure;
    try {
        Ouvre(numero, nervure);
        Regarde(numero, nervure);
    } catch (const Failure &failure) {
        fait_.refus.push_back({messages_.Description(failure), Numero(numero)});
    }
    nervure.rib = rib_.Partie<PartiesRib>();
    fait_.nervures.push_back(std::move(nervure));
    if (Faites() < Nombre() || !fait_.refus.empty()) {
        return;
    }
    try {
        MesureFleches();
    } catch (const Failure &failure) {
        fait_.refus.push_back({messages_.Description(failure)});
    }
}

OuvragePanneau::OuvragePanneau(Programme &programme, Panneau panneau, const DemandePanneau &demande)
    : travail_(std::make_unique<Travail>(programme, std::move(panneau), demande)) {
    travail_->Commence();
}

OuvragePanneau::~OuvragePanneau() = default;

int OuvragePanneau::Nombre() const {
    return travail_->Nombre();
}

int OuvragePanneau::Faites() const {
    return travail_->Faites();
}

void OuvragePanneau::Avance() {
    travail_->Avance();
}

PanneauFait OuvragePanneau::Rend() {
    return travail_->Rend();
}

PanneauFait FaitPanneau(Programme &programme, const Panneau &panneau, const DemandePanneau &demande,
                        const AvancePanneau &avance) {
    OuvragePanneau work(programme, panneau, demande);
    while (!work.Fini()) {
        work.Avance();
        if (avance && !avance(work.Faites(), work.Nombre())) {
            break;
        }
    }
    return work.Rend();
}

std::string LigneAvis(const Messages &messages, const AvisPanneau &avis) {
    return (avis.nervure == 0 ? "" : DeLaNervure(messages, avis.nervure)) +
           (avis.element ? NomElement(*avis.element) + ": " : "") + avis.texte;
}

std::string DeLaNervure(const Messages &messages, int numero) {
    return MotNervure(messages) + " " + std::to_string(numero) + ": ";
}

std::string EtiquetteNumerotee(const RibModel &rib, int numero, const std::string &Unite) {
    return EtiquetteDuRib(rib, Unite) + "  " + std::to_string(numero);
}

std::string TexteFleche(const Messages &messages, const Fleche &fleche, const std::string &Unite) {
    constexpr double kParts = 100;
    const bool mm = Unite == kUniteMm;
    const std::string length =
        mm ? NumberText(std::round(fleche.mm * kParts) / kParts) : DepuisMm(fleche.mm, Unite);
    return messages.Text({"Panel", "9"}) + " " + std::to_string(fleche.longeron.numero) + " " +
           messages.Text({"Panel", "30"}) + " " + length + Unite + ", " +
           (fleche.dessus ? messages.Text({"Panel", "31"}) : messages.Text({"Panel", "32"})) + " " +
           std::to_string(fleche.nervure) + ".";
}

std::vector<FileToWrite> FichiersAEcrire(const PanneauFait &fait) {
    const std::string &folder = fait.jeu.dossier;
    std::vector<FileToWrite> files;
    for (const NervureFaite &nervure : fait.nervures) {
        files.push_back({folder + nervure.profil, nervure.octets_profil});
        files.push_back({folder + nervure.composants, nervure.octets_composants});
    }
    files.push_back({folder + NomResume(fait.jeu), TexteDeLignes(fait.jeu.resume)});
    return files;
}

std::vector<std::string> FichiersDuPanneau(const PanneauFait &fait) {
    std::vector<std::string> paths;
    for (const FileToWrite &file : FichiersAEcrire(fait)) {
        paths.push_back(file.path);
    }
    return paths;
}

std::vector<std::string> EcritPanneau(const PanneauFait &fait) {
    WriteWholeFiles(FichiersAEcrire(fait));
    return FichiersDuPanneau(fait);
}

FichiersEcrits FichiersDejaLa(const std::vector<std::string> &paths,
                              const FichiersEcritsIci &ecrits) {
    FichiersEcrits there;
    for (const std::string &path : paths) {
        if (!ecrits.Intact(path) && IsThere(path)) {
            there.insert(path);
        }
    }
    return there;
}

std::vector<PieceNommee> PiecesDuPanneau(const PanneauFait &fait, int copies, bool opposees) {
    std::vector<PieceNommee> one;
    for (const NervureFaite &nervure : fait.nervures) {
        for (const Piece &piece : nervure.pieces) {
            one.push_back({nervure.composants, piece});
        }
    }
    std::vector<PieceNommee> all = EnCopies(one, copies, opposees);
    for (std::size_t i = 0; opposees && i < all.size(); ++i) {
        if (i / one.size() % 2 == 1) {
            all[i].piece = DeDroite(std::move(all[i].piece));
        }
    }
    return all;
}

} // namespace loftwing
