#include "programme/secours_steps.h"

#include "base/text_encoding.h"
#include "base/version.h"
#include "core/contour.h"
#include "output/cut_forms.h"
#include "programme/rib_file.h"
#include "programme/rib_steps.h"
#include "programme/undo_steps.h"

#include <utility>
#include <variant>

namespace loftwing {

namespace {

void DitAbimes(const Programme &programme, const std::vector<std::string> &abimes) {
    if (abimes.empty()) {
        return;
    }
    std::string text = programme.Text({"Recovery", "12"});
    for (const std::string &path : abimes) {
        text += "\n" + ToUtf8(path);
    }
    programme.messages.Tell(text, kTitre, BoxIcon::warning);
}

/// All that was kept; zoom and scroll are those of the window, and special views are left.
void Reprend(RibModel &rib, const PartiesRib &parties) {
    const Vue plain = rib.Partie<Vue>();
    rib.Partie<PartiesRib>() = parties;
    rib.Modifie = true;
    rib.Zoom = plain.Zoom;
    rib.DecalX = plain.DecalX;
    rib.DecalY = plain.DecalY;
    rib.ModeCompare = rib.ModeEpCourb = rib.ModeCouple = false;
}

/// The contour at the rib's chord, as wood.
Piece Silhouette(const RibModel &rib) {
    PartiePiece part;
    for (int i = 1; i <= rib.NbContour; ++i) {
        part.dehors.push_back({rib.ContourX(i) * rib.corde, rib.ContourY(i) * rib.corde});
    }
    Piece piece;
    piece.parties.push_back(std::move(part));
    return piece;
}

std::vector<Piece> PiecesOuSilhouette(const RibModel &rib, const Saisie &saisie) {
    try {
        auto made = FaitPieces(rib, {}, saisie);
        if (auto *pieces = std::get_if<std::vector<Piece>>(&made)) {
            return std::move(*pieces);
        }
    } catch (const Failure &) { // what can't be computed can't be cut either
    }
    return {Silhouette(rib)};
}

} // namespace

bool AGarder(const Programme &programme) {
    const EtatRib &now = programme.histoire.Present();
    return now.fichier->Modifie && (now.vue == VueMontree::rib || now.vue == VueMontree::epcourb);
}

void GardeTravail(Programme &programme) {
    if (!AGarder(programme)) {
        programme.secours.Retire();
        return;
    }
    // Not the rib itself: while a file is being picked it may be half another one.
    const EtatRib &now = programme.histoire.Present();
    RibModel rib;
    Comparaison compare;
    rib.Partie<Vue>() = programme.rib.Partie<Vue>();
    Pose(now, rib, compare);
    programme.secours.Ecrit(rib, now.Unite);
}

std::vector<Orphelin> ChercheSecours(Programme &programme) {
    SecoursTrouves found = programme.secours.Cherche();
    DitAbimes(programme, found.abimes);
    return std::move(found.ribs);
}

bool RestaureRib(Programme &programme, CommandView &view, Orphelin orphelin) {
    view.affclear();
    PrendUnite(programme, view, orphelin.contenu.Unite);
    RibModel &rib = programme.rib;
    Reprend(rib, orphelin.contenu.parties);
    programme.voisin = {};
    view.MontreCoches();
    view.Titre(TitreDuRib(programme));
    RecalculProfil(programme, view);
    if (!rib.ProfilCharge) {
        DitAbimes(programme, {MetDeCote(std::move(orphelin))});
        return false;
    }
    programme.secours.Adopte(std::move(orphelin));
    programme.histoire = RibHistory();
    return true;
}

const std::string &CheminConnu(const PartiesRib &parties) {
    return parties.CheminRib.empty() ? parties.CheminProfil : parties.CheminRib;
}

std::vector<Piece> PiecesDe(const Programme &programme, const Instantane &contenu) {
    try {
        RibModel rib;
        rib.Partie<PartiesRib>() = contenu.parties;
        FaitContour(rib);
        return EnDessous(PiecesOuSilhouette(rib, {contenu.Unite, programme.messages}));
    } catch (const Failure &) {
        return {};
    }
}

} // namespace loftwing
