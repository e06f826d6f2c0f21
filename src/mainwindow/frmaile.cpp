#include "mainwindow/frmaile.h"

#include "base/file_name.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "lang/aide.h"
#include "platform/busy_pointer.h"
#include "programme/longueur_lue.h"
#include "programme/panel_ends.h"
#include "programme/panel_typed.h"
#include "programme/panel_words.h"
#include "utilities/tool_files.h"

#include <QScreen>
#include <QSignalBlocker>

#include <algorithm>

namespace loftwing {

namespace {

constexpr double kShareOfScreen = 0.9;

/// What a panel measures along itself; nothing where that wasn't said.
std::string Longueur(double mm, const std::string &Unite) {
    return mm > 0 ? TexteFondu(mm, Unite) : "";
}

/// The name of a file without folder and extension.
std::string Tige(const std::string &path) {
    return ToUtf8(StemOf(path));
}

} // namespace

frmaile::frmaile(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmaile", kAidePlan, parent), Onglets(programme) {
    NameAll();
    PoseTextes();
    LayOut();
    Refait();
    resize(sizeHint().boundedTo(screen()->availableSize() * kShareOfScreen));
    Connect();
    etat_ = Etat();
}

void frmaile::cmdannuler_Click() {
    if (ConfirmePerte()) {
        Renonce();
    }
}

std::string frmaile::PanneauPose::Nom() const {
    return ToUtf8(NameIn(lu.chemin));
}

/// A panel with its ribs, or with why there are none. `dit`: that was told already.
frmaile::PanneauPose frmaile::LitTel(const std::string &path, bool &dit) {
    AileFaite made;
    {
        const Sablier sablier(programme_.platform);
        made = FaitAile(programme_, {path}, std::nullopt, [this](const std::string &rib) {
            programme_.platform.SetPointer(Pointer::normal); // a box may come
            return LitBout(programme_, rib);
        });
    }
    PanneauPose panel{
        std::move(made.panneaux.front()), {}, std::move(made.refus), std::move(made.avis)};
    dit = made.dit;
    const auto place = ReglageDe(panel.lu.fichier, programme_.SaisieEnCours());
    if (const auto *read = std::get_if<ReglageAile>(&place)) {
        panel.reglage = *read;
    }
    if (!made.aile.panneaux.empty()) {
        panel.reglage.longueur = made.aile.panneaux.front().longueur;
    }
    return panel;
}

/// The same for a panel that the user adds: nothing where it couldn't be read, which is told.
std::optional<frmaile::PanneauPose> frmaile::Lit(const std::string &path) {
    bool dit = false;
    PanneauPose panel = LitTel(path, dit);
    if (panel.lu.fait.nervures.empty() && panel.lu.fait.refus.empty()) {
        if (!dit) {
            programme_.messages.Inform(LignesDeBoite(panel.refus), Titre());
        }
        return std::nullopt;
    }
    return panel;
}

void frmaile::CommencePar(const std::string &path) {
    if (auto panel = Lit(path)) {
        panneaux_ = {std::move(*panel)};
        Refait();
        etat_ = Etat();
    }
}

void frmaile::cmdajouter_Click() {
    if (panneaux_.size() >= kPanneauxMaxi) {
        programme_.messages.Inform(programme_.Text({"Plan", "163"}), Titre());
        return;
    }
    const std::string path = programme_.platform.ChooseOpenFile(QuestionPanneau());
    if (path.empty()) {
        return;
    }
    if (auto panel = Lit(path)) {
        const int row = Panneaux.currentRow() + 1; // 0 in an empty list
        panneaux_.insert(panneaux_.begin() + row, std::move(*panel));
        MontreListe(row);
        Refait();
    }
}

void frmaile::cmdretirer_Click() {
    const int row = Choisi();
    if (row >= 0) {
        panneaux_.erase(panneaux_.begin() + row);
        MontreListe(std::min(row, static_cast<int>(panneaux_.size()) - 1));
        Refait();
    }
}

void frmaile::Deplace(int pas) {
    const int row = Choisi();
    const int other = row + pas;
    if (row >= 0 && other >= 0 && other < static_cast<int>(panneaux_.size())) {
        std::swap(At(panneaux_, row), At(panneaux_, other));
        MontreListe(other);
        Refait();
    }
}

/// Makes the wing as list and field have it, and shows it.
void frmaile::Refait() {
    attente_.stop();
    lblenregistre.hide(); // that was another wing
    MontreListe(Panneaux.currentRow());
    Compose();
    MontreAvis();
}

void frmaile::PrendPremier() {
    const std::string typed = S(txtpremier.text());
    const auto number = typed.empty() ? 1 : NombreLu(typed, kPremierMaxi);
    premier_ = number.value_or(1);
    if (!number) {
        refus_ = S(Label2.text()) + ": " + programme_.Text({"Panel", "125"});
    }
}

/// Adds a panel to the wing, or says why there is none.
void frmaile::Pose(Aile &wing, const PanneauPose &panel, int first) {
    if (!panel.refus.empty()) {
        refus_ = panel.refus.front();
        return;
    }
    const auto why = AjoutePanneau(
        wing, {Tige(panel.lu.chemin), panel.lu.panneau, panel.lu.fait, first, panel.reglage},
        programme_.SaisieEnCours());
    if (why) {
        refus_ = panel.Nom() + ": " + TexteRefusAile(programme_.messages, *why);
        return;
    }
    if (const auto joint = AvisDuJoint(wing, programme_.messages, programme_.settings.Unite)) {
        avis_.push_back(panel.Nom() + ": " + *joint);
    }
}

void frmaile::Compose() {
    refus_ = panneaux_.empty() ? programme_.Text({"Plan", "156"}) : "";
    avis_.clear();
    PrendPremier();
    Aile wing;
    wing.nom = NomDesSorties();
    for (const PanneauPose &panel : panneaux_) {
        avis_.insert(avis_.end(), panel.avis.begin(), panel.avis.end());
        if (refus_.empty()) {
            Pose(wing, panel, wing.panneaux.empty() ? premier_ : NumeroSuivant(wing));
        }
    }
    if (refus_.empty()) {
        Onglets.Montre(std::move(wing));
    } else {
        Onglets.MontreManque(refus_);
    }
}

void frmaile::MontreListe(int row) {
    const std::string &Unite = programme_.settings.Unite;
    {
        const QSignalBlocker quiet(Panneaux);
        Panneaux.setRowCount(static_cast<int>(panneaux_.size()));
        for (int i = 0; i < Panneaux.rowCount(); ++i) {
            const PanneauPose &panel = At(panneaux_, i);
            const ReglageAile &place = panel.reglage;
            const std::string texts[] = {
                panel.Nom(), Longueur(place.longueur, Unite), NumberText(place.diedre) + kDegre,
                TexteFondu(place.recul, Unite), std::to_string(panel.lu.fait.nervures.size())};
            int column = 0;
            for (const std::string &text : texts) {
                auto *item = new QTableWidgetItem(Q(text)); // the table's from here on
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
                if (column > 0) {
                    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
                }
                Panneaux.setItem(i, column++, item);
            }
            Panneaux.item(i, 0)->setToolTip(Qt::convertFromPlainText(Q(ToUtf8(panel.lu.chemin))));
        }
        Panneaux.setCurrentCell(std::min(std::max(row, 0), Panneaux.rowCount() - 1), 0,
                                QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    MontreBoutons();
}

/// The row that is seen to be chosen; -1 for none. A click beside the rows takes the choice away.
int frmaile::Choisi() const {
    return Panneaux.selectionModel()->hasSelection() ? Panneaux.currentRow() : -1;
}

void frmaile::MontreBoutons() {
    const int row = Choisi();
    cmdliste[kRetire].setEnabled(row >= 0);
    cmdliste[kMonte].setEnabled(row > 0);
    cmdliste[kDescend].setEnabled(row >= 0 && row + 1 < Panneaux.rowCount());
}

void frmaile::MontreAvis() {
    std::vector<std::string> lines = avis_;
    if (!refus_.empty() && !panneaux_.empty()) { // the empty window needs no warning
        lines.insert(lines.begin(), refus_);
    }
    MontreLignes(lblavis, lines);
}

/// Whether there is a wing of which something can be written; why not is told.
bool frmaile::Pret() {
    if (attente_.isActive()) {
        Refait(); // what was typed last hasn't rested yet
    }
    if (!refus_.empty()) {
        programme_.messages.Inform(refus_, Titre());
        return false;
    }
    return avis_.empty() || programme_.messages.Confirm(programme_.Text({"Plan", "167"}) + "\n\n" +
                                                            LignesDeBoite(avis_) + "\n" +
                                                            programme_.Text({"Panel", "128"}),
                                                        Titre());
}

} // namespace loftwing
