#include "programme/rib_history.h"

#include "base/failure.h"
#include "output/view_plots.h"

namespace loftwing {

namespace {

/// The part as it is now: the same object as before where it didn't change.
template <class Part>
std::shared_ptr<const Part> Partage(const Part &now, const std::shared_ptr<const Part> &before) {
    return before && *before == now ? before : std::make_shared<const Part>(now);
}

FichierDuRib FichierDe(const RibModel &rib) {
    return {rib.Partie<FichierRib>(), rib.Partie<FichierConnu>()};
}

EtatRib EtatDe(const RibModel &rib, const Comparaison &compare, const std::string &Unite,
               const EtatRib &before) {
    EtatRib now;
    now.identite = Partage(rib.Partie<IdentiteProfil>(), before.identite);
    now.fichier = Partage(FichierDe(rib), before.fichier);
    now.points = Partage(rib.Partie<PointsLus>(), before.points);
    now.contour = Partage(rib.Partie<ContourPrepare>(), before.contour);
    now.section = Partage(rib.Partie<NouvelleSection>(), before.section);
    now.dimensions = Partage(rib.Partie<Dimensions>(), before.dimensions);
    now.ajouts = Partage(rib.Partie<Ajouts>(), before.ajouts);
    now.compare = Partage(compare, before.compare);
    now.vue = VueDe(rib, compare);
    now.AffHaut = rib.AffHaut;
    now.coches = rib.Partie<Vue>();
    now.Unite = Unite;
    return now;
}

/// Whether the user sees no difference. Parts that didn't change are the same objects.
bool MemePas(const EtatRib &a, const EtatRib &b) {
    return a.vue == b.vue && a.identite == b.identite && a.points == b.points &&
           a.dimensions == b.dimensions && a.ajouts == b.ajouts && a.AffHaut == b.AffHaut &&
           a.Unite == b.Unite && (a.vue != VueMontree::compare || a.compare == b.compare);
}

/// The same file, saved or not.
bool MemeFichier(FichierDuRib a, const FichierDuRib &b) {
    a.Modifie = b.Modifie;
    return a == b;
}

} // namespace

VueMontree VueDe(const RibModel &rib, const Comparaison &compare) {
    if (CompareEnVue(rib, compare)) {
        return VueMontree::compare;
    }
    if (!rib.ProfilCharge) {
        return VueMontree::vide;
    }
    if (rib.ModeCouple) {
        return VueMontree::couple;
    }
    return rib.ModeEpCourb ? VueMontree::epcourb : VueMontree::rib;
}

void PoseCoches(const EtatRib &etat, RibModel &rib) {
    rib.AffTrac = etat.coches.AffTrac;
    rib.AffLignRef = etat.coches.AffLignRef;
    rib.AffEpr = etat.coches.AffEpr;
    rib.AffHautBA = etat.coches.AffHautBA;
    rib.AffHautBF = etat.coches.AffHautBF;
}

void Pose(const EtatRib &etat, RibModel &rib, Comparaison &compare) {
    rib.Partie<IdentiteProfil>() = *etat.identite;
    rib.Partie<FichierRib>() = *etat.fichier;
    rib.Partie<FichierConnu>() = *etat.fichier;
    rib.Partie<PointsLus>() = *etat.points;
    rib.Partie<ContourPrepare>() = *etat.contour;
    rib.Partie<NouvelleSection>() = *etat.section;
    rib.Partie<Dimensions>() = *etat.dimensions;
    rib.Partie<Ajouts>() = *etat.ajouts;
    compare = *etat.compare;
    rib.ModeCompare = etat.vue == VueMontree::compare;
    rib.ModeEpCourb = etat.vue == VueMontree::epcourb;
    rib.ModeCouple = etat.vue == VueMontree::couple;
    rib.AffHaut = etat.AffHaut;
}

void RibHistory::Note(const RibModel &rib, const Comparaison &compare, const std::string &Unite) {
    if (gele_) {
        return;
    }
    if (etats_.empty()) {
        etats_.push_back(EtatDe(rib, compare, Unite, {}));
        return;
    }
    EtatRib now = EtatDe(rib, compare, Unite, Present());
    if (MemePas(now, Present())) {
        etats_[present_] = std::move(now);
        return;
    }
    etats_.resize(present_ + 1);
    etats_.push_back(std::move(now));
    if (etats_.size() > kPas + 1) {
        etats_.pop_front();
    }
    present_ = etats_.size() - 1;
}

void RibHistory::Enregistre(const RibModel &rib) {
    if (etats_.empty()) {
        return;
    }
    const FichierDuRib before = *Present().fichier;
    const auto saved = std::make_shared<const FichierDuRib>(FichierDe(rib));
    FichierDuRib other = *saved;
    other.Modifie = true;
    const auto changed = std::make_shared<const FichierDuRib>(other);
    for (EtatRib &each : etats_) {
        if (MemeFichier(*each.fichier, before)) {
            each.fichier = changed;
        } else if (each.fichier->CheminRib == saved->CheminRib) {
            // Another rib that was read from the file which this one has now replaced.
            FichierDuRib gone = *each.fichier;
            gone.Modifie = true;
            each.fichier = std::make_shared<const FichierDuRib>(gone);
        }
    }
    etats_[present_].fichier = saved;
}

const EtatRib &RibHistory::Etat(std::size_t index) const {
    if (index >= etats_.size()) {
        throw MakeFailure(kSubscriptOutOfRange);
    }
    return etats_[index];
}

const EtatRib &RibHistory::Precedent() const {
    return Etat(present_ - 1); // below 0 is beyond the end
}

const EtatRib &RibHistory::Present() const {
    return Etat(present_);
}

const EtatRib &RibHistory::Suivant() const {
    return Etat(present_ + 1);
}

const EtatRib &RibHistory::Recule() {
    const EtatRib &to = Precedent();
    --present_;
    return to;
}

const EtatRib &RibHistory::Avance() {
    const EtatRib &to = Suivant();
    ++present_;
    return to;
}

void RibHistory::Degele(const RibModel &rib, const Comparaison &compare, const std::string &Unite) {
    gele_ = false;
    if (!etats_.empty() && VueDe(rib, compare) == Present().vue) {
        etats_[present_] = EtatDe(rib, compare, Unite, Present());
    } else {
        Note(rib, compare, Unite);
    }
}

} // namespace loftwing
