#include "mainwindow/frmpanneau.h"

#include "base/text_encoding.h"
#include "lang/aide.h"
#include "persist/default_entry.h"
#include "platform/busy_pointer.h"
#include "programme/panel_ends.h"
#include "utilities/tool_files.h"

#include <QScreen>

namespace loftwing {

namespace {

constexpr const char *kEtiquette = " frmpanneau/cmdnervures";
constexpr double kShareOfScreen = 0.9;
/// More lines would fill the screen.
constexpr std::size_t kLignesBoite = 12;

std::string EnLignes(const std::vector<std::string> &lines) {
    std::string text;
    for (std::size_t i = 0; i < lines.size() && i < kLignesBoite; ++i) {
        text += lines[i] + "\n";
    }
    if (lines.size() > kLignesBoite) {
        text += "... (" + std::to_string(lines.size()) + ")\n";
    }
    return text;
}

} // namespace

frmpanneau::frmpanneau(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmpanneau", kAidePanneau, parent),
      dossier_(programme.settings.repertoires.RepProfilevol), Plan(this), Picture1(this) {
    NameAll();
    PrepareTables(); // whose headers are words
    PoseTextes();
    PoseBulles();
    LayOut();
    Refait();
    resize(sizeHint().boundedTo(screen()->availableSize() * kShareOfScreen));
    Connect();
}

void frmpanneau::PoseTextes() {
    setWindowTitle(Mot({"Panel", "40"}));
    Label1[0].setText(Mot({"Panel", "101"}));
    Label1[1].setText(Mot({"Panel", "102"}));
    for (int i = 0; i < kBouts; ++i) {
        At(cmdchoisir, i).setText(Mot({"Panel", "103"}));
        At(cmdfenetre, i).setText(Mot({"Panel", "104"}));
        for (QPushButton *button : {&At(cmdchoisir, i), &At(cmdfenetre, i)}) {
            button->setAccessibleName(At(Label1, i).text() + ", " + button->text());
        }
        At(cmdfenetre, i).setEnabled(RibDeFenetre(programme_.rib));
    }
    Label2[kNombre].setText(Mot({"FrmNervure", "7"}));
    Label2[kEpaisseur].setText(Mot({"FrmNervure", "8"}));
    Label2[kPremier].setText(Mot({"Panel", "107"}));
    Label2[kLongueur].setText(Mot({"FrmNervure", "6"}));
    txt[kNombre].SetKeys(kTouchesEntier);
    txt[kPremier].SetKeys(kTouchesEntier);
    AdmetLongueur(txt[kEpaisseur]);
    AdmetLongueur(txt[kLongueur]);
    txt[kPremier].setText("1");
    for (QLabel &unit : Label3) {
        unit.setText(Q(programme_.settings.Unite).trimmed());
    }
    Plan.setAccessibleName(Mot({"Panel", "109"}));
    Nervures.setAccessibleName(Mot({"FrmRibevol", "6"}));
    Nervures.setHorizontalHeaderLabels({Mot({"FrmNervure", "9"}),
                                        Mot({"FrmNervure", "10"}) + Q(programme_.settings.Unite),
                                        Mot({"FrmInsText", "7"}), Mot({"Panel", "112"})});
    Portees.setAccessibleName(Mot({"Panel", "110"}));
    Portees.setHorizontalHeaderLabels(
        {Mot({"Panel", "113"}), Mot({"Panel", "114"}), Mot({"Panel", "115"})});
    Picture1.setAccessibleName(Mot({"Piece", "125"}));
    cmdnervures.setText(Mot({"Panel", "121"}));
}

void frmpanneau::PoseBulles() {
    for (int i = 0; i < kBouts; ++i) {
        SetTip(At(cmdchoisir, i), programme_.Text({"Panel", "105"}));
        SetTip(At(cmdfenetre, i), programme_.Text({"Panel", "106"}));
    }
    SetTip(txt[kPremier], programme_.Text({"Panel", "108"}));
    SetTip(txt[kLongueur], programme_.Text({"Panel", "131"}));
    SetTip(Portees, programme_.Text({"Panel", "132"}));
    SetTip(cmdnervures, programme_.Text({"Panel", "122"}));
}

void frmpanneau::cmdchoisir_Click(int index) {
    Garde(" frmpanneau/cmdchoisir", [this, index] {
        const std::string path = ChoisitBout(programme_, S(At(Label1, index).text()));
        if (path.empty()) {
            return;
        }
        if (const auto bout = LitBout(programme_, path)) {
            PrendBout(index, *bout);
        }
    });
}

void frmpanneau::cmdfenetre_Click(int index) {
    Garde(" frmpanneau/cmdfenetre",
          [this, index] { PrendBout(index, programme_.rib.Partie<PartiesRib>()); });
}

void frmpanneau::PrendBout(int index, const PartiesRib &bout) {
    At(panneau_.bouts, index) = bout;
    At(choisis_, index) = true;
    At(txtbout, index).setText(Q(NomDuBout(bout)));
    Refait();
}

/// Makes the panel as the fields have it, and shows it.
void frmpanneau::Refait() {
    attente_.stop();
    Compose();
    MontreEcart();
    MontrePlan();
    MontreNervures();
    MontreAvis();
    lblenregistre.hide(); // that was another panel
}

bool frmpanneau::ConfirmeAvis() const {
    return avis_.empty() || programme_.messages.Confirm(programme_.Text({"Panel", "127"}) + "\n\n" +
                                                            EnLignes(avis_) + "\n" +
                                                            programme_.Text({"Panel", "128"}),
                                                        Titre());
}

bool frmpanneau::ConfirmeRemplacement() const {
    const FichiersEcrits there = FichiersDejaLa(FichiersDuPanneau(fait_), ecrits_);
    return there.empty() ||
           programme_.messages.Confirm(TexteRemplacement(there, programme_.messages), Titre());
}

void frmpanneau::EcritFichiers() {
    try {
        const Sablier sablier(programme_.platform);
        for (const std::string &path : EcritPanneau(fait_)) {
            ecrits_.insert(path);
        }
    } catch (const Failure &failure) {
        programme_.platform.SetPointer(Pointer::normal);
        RapporteEcriture(programme_.messages, failure, kEtiquette);
        return;
    }
    lblenregistre.setText(Mot({"Panel", "129"}) + " " + Q(ToUtf8(dossier_)));
    lblenregistre.show();
}

void frmpanneau::cmdnervures_Click() {
    Refait(); // what was typed last may not have rested yet
    if (!refus_.empty()) {
        programme_.messages.Inform(EnLignes(refus_), Titre());
        if (fautif_ != nullptr) {
            SelectField(*fautif_);
        }
        return;
    }
    if (!ConfirmeAvis()) {
        return;
    }
    const std::string chosen = ChoisitDossier(dossier_, programme_.messages);
    if (chosen.empty()) {
        return;
    }
    dossier_ = chosen;
    Refait();
    if (ConfirmeRemplacement()) {
        EcritFichiers();
    }
}

} // namespace loftwing
