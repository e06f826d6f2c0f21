#include "mainwindow/frmplanches.h"

#include "base/file_name.h"
#include "base/text_encoding.h"
#include "lang/aide.h"
#include "programme/panel_words.h"
#include "programme/qt_cut_command.h"
#include "programme/sheet_words.h"

namespace loftwing {

namespace {

/// In the order of the fields.
constexpr std::array<std::string SaisiePlanches::*, 4> kTextes = {
    &SaisiePlanches::ecart, &SaisiePlanches::marge, &SaisiePlanches::saignee,
    &SaisiePlanches::copies};
constexpr int kCopies = 3;
/// In the order of the boxes.
constexpr std::array<bool SaisiePlanches::*, 4> kCoches = {
    &SaisiePlanches::deux_ailes, &SaisiePlanches::demi_tour, &SaisiePlanches::marques,
    &SaisiePlanches::polylignes};

} // namespace

frmplanches::frmplanches(Programme &programme, const Panneau &panneau, int premier,
                         const SaisiePlanches &choix, std::string nom, QWidget *parent)
    : Dialogue(programme, "frmplanches", kAidePanneau, parent), panneau_(panneau),
      premier_(premier), nom_(std::move(nom)), choix_(choix), panneau_en_cours_(programme),
      Picture1(this) {
    NameAll();
    PoseTextes();
    PoseBulles();
    MontreChoix();
    LayOut();
    Connect();
    Refait();
}

void frmplanches::PoseTextes() {
    setWindowTitle(Mot({"Panel", "155"}));
    Picture1.setAccessibleName(Mot({"Piece", "125"}));
    Planches.setAccessibleName(Mot({"Panel", "167"}));
    Label1.setText(Mot({"Panel", "156"}));
    Label2[0].setText(Mot({"Panel", "158"}));
    Label2[1].setText(Mot({"Panel", "159"}));
    Label2[2].setText(Mot({"Piece", "104"}));
    Label2[kCopies].setText(Mot({"Panel", "160"}));
    for (int i = 0; i < kCopies; ++i) {
        At(Label3, i).setText(Q(programme_.settings.Unite).trimmed());
        AdmetLongueur(At(txt, i));
    }
    txt[kCopies].SetKeys(kTouchesEntier);
    chk[0].setText(Mot({"Panel", "161"}));
    chk[1].setText(Mot({"Panel", "163"}));
    chk[2].setText(Mot({"Panel", "165"}));
    chk[3].setText(Mot({"Piece", "114"}));
    Avancement.setAccessibleName(Mot({"Panel", "174"}));
    cmdenregistrer.setText(Mot({"Panel", "175"}));
}

void frmplanches::PoseBulles() {
    SetTip(txtformats, programme_.Text({"Panel", "157"}));
    SetTip(txt[2], programme_.Text({"Piece", "105"}));
    SetTip(txt[kCopies], programme_.Text({"Panel", "191"}));
    SetTip(chk[0], programme_.Text({"Panel", "162"}));
    SetTip(chk[1], programme_.Text({"Panel", "164"}));
    SetTip(chk[2], programme_.Text({"Panel", "166"}));
    SetTip(chk[3], programme_.Text({"Piece", "115"}));
    SetTip(cmdenregistrer, programme_.Text({"Panel", "176"}));
}

void frmplanches::MontreChoix() {
    txtformats.setText(Q(choix_.formats));
    for (int i = 0; i < kChamps; ++i) {
        At(txt, i).setText(Q(choix_.*At(kTextes, i)));
        At(chk, i).setChecked(choix_.*At(kCoches, i));
    }
}

SaisiePlanches frmplanches::Choix() const {
    SaisiePlanches choix = choix_;
    choix.formats = S(txtformats.text());
    for (int i = 0; i < kChamps; ++i) {
        choix.*At(kTextes, i) = S(At(txt, i).text());
        choix.*At(kCoches, i) = At(chk, i).isChecked();
    }
    return choix;
}

/// What is shown, or under way, isn't what is typed any more.
void frmplanches::Change() {
    panneau_en_cours_.Abandonne();
    imbrication_.Arrete();
    cmdenregistrer.setEnabled(false);
    lblenregistre.hide();
    attente_.start();
}

/// Makes pieces and sheets as the fields have it.
void frmplanches::Refait() {
    attente_.stop();
    panneau_en_cours_.Abandonne();
    imbrication_.Abandonne();
    planches_.clear();
    cmdenregistrer.setEnabled(false);
    MontreAvis("");
    const auto read = VoeuDe(Choix(), programme_.messages, programme_.settings.Unite);
    if (const auto *why = std::get_if<RefusSaisie>(&read)) {
        const std::array<const QLabel *, 5> captions = {&Label1, Label2.data(), &Label2[1],
                                                        &Label2[kCopies], &Label2[2]};
        Refuse(S(At(captions, static_cast<long>(why->champ))->text()) + ": " + why->texte);
        return;
    }
    voeu_ = std::get<VoeuPlanches>(read);
    MontreTravail(true);
    const bool same = fait_pour_ && fait_pour_->DemandeDe(premier_) == voeu_->DemandeDe(premier_);
    if (same) {
        Impose();
    } else {
        fait_pour_.reset();
        panneau_en_cours_.Commence(panneau_, voeu_->DemandeDe(premier_));
    }
}

/// Shows no sheets, and why.
void frmplanches::Refuse(const std::string &why) {
    MontreTravail(false);
    MontrePlanches();
    MontreAvis(why);
}

void frmplanches::PrendPanneau(const PanneauFait &fait) {
    fait_ = fait;
    fait_pour_ = voeu_;
    if (!fait_.refus.empty()) {
        Refuse(LigneEnMots(programme_.messages, panneau_, fait_.refus.front()));
        return;
    }
    Impose();
}

void frmplanches::Impose() {
    const auto pieces = PiecesALaPlanche(fait_, voeu_->copies, voeu_->opposees);
    if (const auto *why = std::get_if<RefusPlanche>(&pieces)) {
        Refuse(TexteRefusPlanche(programme_.messages, *why, programme_.settings.Unite));
        return;
    }
    imbrication_.Commence(std::get<std::vector<PieceNommee>>(pieces), voeu_->reglage);
}

void frmplanches::PrendPlanches(const ImbricationEnCours::Resultat &resultat) {
    const Messages &messages = programme_.messages;
    if (const auto *why = std::get_if<RefusPlanche>(&resultat)) {
        Refuse((why->nom.empty() ? "" : why->nom + ": ") +
               TexteRefusPlanche(messages, *why, programme_.settings.Unite));
    } else if (const auto *failure = std::get_if<Failure>(&resultat)) {
        Refuse(messages.Description(*failure));
    } else {
        planches_ = std::get<Imbrication>(resultat);
        MontreTravail(false);
        MontrePlanches();
        MontreAvis(ResumePlanches(messages, planches_));
        cmdenregistrer.setEnabled(true);
    }
}

void frmplanches::MontrePlanches() {
    const int before = std::max(Planches.currentRow(), 0);
    Planches.clear();
    for (std::size_t i = 0; i < planches_.size(); ++i) {
        Planches.addItem(
            Q(LignePlanche(programme_.messages, planches_[i], i + 1, programme_.settings.Unite)));
    }
    Planches.setCurrentRow(std::min(before, Planches.count() - 1));
    MontrePlanche(Planches.currentRow());
}

void frmplanches::MontrePlanche(int row) {
    if (row < 0 || row >= static_cast<int>(planches_.size())) {
        Picture1.Montre({}, {});
        return;
    }
    const Planche &planche = At(planches_, row);
    std::vector<Piece> pieces;
    for (const PiecePlacee &placee : planche.pieces) {
        pieces.push_back(placee.piece);
    }
    Picture1.Montre(std::move(pieces), CouleursDe(programme_.settings),
                    PointMm{planche.format.Longueur(), planche.format.Travers()});
}

/// The progress, or what begins the work again after it was stopped.
void frmplanches::MontreTravail(bool working) {
    Avancement.setValue(0);
    Avancement.setVisible(working);
    cmdarreter.setText(working ? Mot({"Panel", "171"}) : Mot({"Panel", "172"}));
    cmdarreter.setVisible(working);
}

void frmplanches::MontreAvis(const std::string &text) {
    lblavis.setText(Q(text));
}

void frmplanches::cmdarreter_Click() {
    if (panneau_en_cours_.EnCours() || imbrication_.EnCours()) {
        panneau_en_cours_.Abandonne();
        imbrication_.Abandonne();
        Refuse(programme_.Text({"Panel", "173"}));
        cmdarreter.show();
    } else {
        Refait();
    }
}

void frmplanches::cmdenregistrer_Click() {
    if (confirme_ && !confirme_(fait_)) {
        return;
    }
    FileQuestion question;
    question.title = Titre();
    question.name = nom_;
    choix_ = Choix();
    const std::vector<std::string> paths =
        EnregistrePlanches(programme_, planches_, question, choix_, ecrits_);
    if (!paths.empty()) {
        const std::string last = NameIn(paths.back());
        lblenregistre.setText(Mot({"Panel", "177"}) + " " + Q(ToUtf8(paths.front())) +
                              (paths.size() > 1 ? " ... " + Q(ToUtf8(last)) : QString()));
        lblenregistre.show();
    }
}

} // namespace loftwing
