#include "features/frmtrou.h"

#include "lang/aide.h"

namespace loftwing {

frmtrou::frmtrou(Programme &programme, MainView &view, QWidget *parent)
    : SlotsDialog(programme, view, parent,
                  {.fenetre = "frmtrou",
                   .etiquettes = "LblNbtrou",
                   .label = " Trou",
                   .aide = kAideTrous,
                   .mots = {.cadre = {"FrmTrou", "4"},
                            .place_mm = {"FrmTrou", "2"},
                            .place_in = {"FrmTrou", "3"},
                            .place_tip = {"FrmTrou", "2T"},
                            .depuis_ba = {"FrmTrou", "5"},
                            .depuis_bf = {"FrmTrou", "6"},
                            .liste = {"FrmTrou", "14"},
                            .liste_tip = {"FrmTrou", "14T"},
                            .entree = {"FrmTrou", "15"},
                            .ajout = {"FrmTrou", "16"},
                            .modif = {"FrmTrou", "17"},
                            .effac = {"FrmTrou", "18"},
                            .plein = {"FrmTrou", "20"},
                            .sans_choix = {"FrmTrou", "21"}},
                   .count = programme.rib.NbTrou}) {
    NameAll();
    SuitChamps({&Text1[0], &Text1[1], &Text1[2], &Text2});
    AdmetLongueurSignee(Text2);
    LayOut();
    PoseTextes();
    connect(&Chkcentr, &QCheckBox::clicked, this, &frmtrou::Chkcentr_Click);
    connect(&Label4, &ClickLabel::Clicked, &Chkcentr, &QCheckBox::click);
    ConnectEach(OptTrouRec, &QRadioButton::clicked, this, &frmtrou::OptTrouRec_Click);
    Form_Load();
}

void frmtrou::PoseTextes() {
    setWindowTitle(Q(TitreTrou(programme_.rib, SaisieEnCours())));
    Label4.setText(Mot({"FrmTrou", "13"}));
    Chkcentr.setAccessibleName(Label4.text());
    Label5.setText(Mot({"FrmTrou", "19"}));
    Frame3.setTitle(Mot({"FrmTrou", "7"}));
    for (std::size_t kind = 0; kind < OptTrouRec.size(); ++kind) {
        OptTrouRec[kind].setText(Mot(kGenresTrou[kind].nom));
    }
}

/// In the middle of the thickness a hole has no distance of its own.
void frmtrou::Chkcentr_Click() {
    const bool centred = Chkcentr.isChecked();
    Text2.setEnabled(!centred);
    if (centred) {
        Text2.setText("0");
    }
}

void frmtrou::OptTrouRec_Click(int index) {
    PoseGenre(static_cast<std::uint8_t>(index));
    SelectionneTexte();
}

/// A circle has no height; what an earlier rectangle had stays in its field.
void frmtrou::PoseGenre(std::uint8_t kind) {
    const GenreTrou &genre = At(kGenresTrou, kind);
    Label2.setText(Mot(genre.largeur));
    Label3.setText(Mot({"FrmTrou", "9"}));
    Label3.setVisible(genre.avec_hauteur);
    Text1[2].setVisible(genre.avec_hauteur);
    Label6[1].setVisible(genre.avec_hauteur);
}

ChampsTrou frmtrou::Champs() const {
    ChampsTrou champs;
    champs.Text1 = FieldTexts(Text1);
    champs.Text2 = S(Text2.text());
    champs.Chkcentr = Chkcentr.isChecked();
    champs.OptDistance = Choisi(OptDistance);
    champs.OptTrouRec = Choisi(OptTrouRec);
    return champs;
}

bool frmtrou::Stocke(int slot, const Cible &cible) {
    RibModel &rib = cible.rib;
    return StockeTrou(At(rib.trou, slot), Champs(), rib.corde, cible.saisie, cible.refus);
}

bool frmtrou::Controle(int slot, const Cible &cible) {
    const CasTrou cas{ListeVideChoisie(), !Text1[2].isHidden()};
    return ControleTrou(At(cible.rib.trou, slot), cas, cible.refus);
}

void frmtrou::AfficheTrou(int slot) {
    const Trou &shown = At(programme_.rib.trou, slot);
    Text1[0].setText(Q(shown.PosTrouAfich));
    Text1[1].setText(Q(shown.DiaTrouAfich));
    Text1[2].setText(Q(shown.HautTrouAfich));
    Text2.setText(Q(shown.DecalTrouAfich));
}

void frmtrou::AfficheOptions(int slot) {
    const Trou &shown = At(programme_.rib.trou, slot);
    Chkcentr.setChecked(shown.ChkCentre == 1.0F);
    Choisit(OptDistance, shown.RefTrou);
    Choisit(OptTrouRec, shown.TypeTrou);
    Chkcentr_Click();
    PoseGenre(Choisi(OptTrouRec));
}

bool frmtrou::EstFini(int slot) const {
    const RibModel &rib = programme_.rib;
    return TrouFini(At(rib.trou, slot), rib.corde);
}

void frmtrou::Retire(int slot) {
    RetireTrou(programme_.rib, slot);
}

std::string frmtrou::TexteRefus(Regle regle, const std::string &valeur) const {
    return TexteValeurTrou(regle, valeur, programme_.messages);
}

std::string frmtrou::Remarques(int slot) const {
    return RemarquesTrou(programme_.rib, slot, programme_.messages);
}

std::function<void()> frmtrou::Retour(int slot) {
    Trou &record = At(programme_.rib.trou, slot);
    return [&record, before = record] { record = before; };
}

} // namespace loftwing
