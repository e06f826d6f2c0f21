#include "features/frmlongeron.h"

#include "lang/aide.h"

namespace loftwing {

frmlongeron::frmlongeron(Programme &programme, MainView &view, QWidget *parent)
    : SlotsDialog(programme, view, parent,
                  {.fenetre = "frmlongeron",
                   .etiquettes = "LblNblongeron",
                   .label = " Longeron",
                   .aide = kAideLongerons,
                   .mots = {.cadre = {"Frmlongeron", "4"},
                            .place_mm = {"Frmlongeron", "2"},
                            .place_in = {"Frmlongeron", "3"},
                            .place_tip = {"Frmlongeron", "2T"},
                            .depuis_ba = {"Frmlongeron", "5"},
                            .depuis_bf = {"Frmlongeron", "9"},
                            .liste = {"Frmlongeron", "21"},
                            .liste_tip = {"Frmlongeron", "21T"},
                            .entree = {"Frmlongeron", "22"},
                            .ajout = {"Frmlongeron", "23"},
                            .modif = {"Frmlongeron", "24"},
                            .effac = {"Frmlongeron", "28"},
                            .plein = {"Frmlongeron", "25"},
                            .sans_choix = {"Frmlongeron", "26"}},
                   .count = programme.rib.NbLongeron}) {
    NameAll();
    SuitChamps({&Text1[0], &Text1[1], &Text1[2], &Text1[3]});
    LayOut();
    PoseTextes();
    ConnectEach(OptLong, &QRadioButton::clicked, this, &frmlongeron::OptLong_Click);
    Form_Load();
}

void frmlongeron::PoseTextes() {
    setWindowTitle(Q(TitreLongeron(programme_.rib, SaisieEnCours())));
    Label4.setText(Mot({"Frmlongeron", "20"}).trimmed());
    Frame3.setTitle(Mot({"Frmlongeron", "10"}));
    Frame4.setTitle(Mot({"Frmlongeron", "15"}));
    Frame5.setTitle(Mot({"Frmlongeron", "16"}));
    OptLong[kLongeronSurface].setText(Mot({"Frmlongeron", "11"}));
    OptLong[kLongeronDroit].setText(Mot({"Frmlongeron", "12"}));
    OptLong[kLongeronRond].setText(Mot({"Frmlongeron", "13"}));
    OptLong[kLongeronDistance].setText(Mot({"Frmlongeron", "14"}));
    for (auto *surface : {&Opte, &Opti}) {
        (*surface)[0].setText(Mot({"Frmlongeron", "17"}));
        (*surface)[1].setText(Mot({"Frmlongeron", "18"}));
        (*surface)[2].setText(Mot({"Frmlongeron", "19"}));
    }
}

void frmlongeron::OptLong_Click(int index) {
    PoseGenre(static_cast<std::uint8_t>(index));
    if (index == kLongeronRond) {
        Selectionne(Text1[1]);
    } else if (index == kLongeronDistance) {
        Selectionne(Text1[3]);
    }
}

/// What each kind asks for. A spar at the surface has no distance, a round one has no depth.
void frmlongeron::PoseGenre(std::uint8_t kind) {
    const bool round = kind == kLongeronRond;
    const bool at_distance = round || kind == kLongeronDistance;
    Label2.setText(round ? Mot({"Frmlongeron", "8"}) : Mot({"Frmlongeron", "6"}));
    Label3.setText(round ? QString() : Mot({"Frmlongeron", "7"}));
    for (QLabel &unit : Label6) {
        unit.setText(Q(programme_.settings.Unite));
    }
    if (round) {
        Label6[1].clear();
        Text1[2].setText("0");
    }
    Text1[2].setVisible(!round);
    Text1[3].setEnabled(at_distance);
    Label4.setEnabled(at_distance);
    if (!at_distance) {
        Text1[3].clear();
    }
}

ChampsLongeron frmlongeron::Champs() const {
    ChampsLongeron champs;
    champs.Text1 = FieldTexts(Text1);
    champs.Opte = Choisi(Opte);
    champs.Opti = Choisi(Opti);
    champs.OptLong = Choisi(OptLong);
    champs.OptDistance = Choisi(OptDistance);
    return champs;
}

bool frmlongeron::Stocke(int slot, const Cible &cible) {
    RibModel &rib = cible.rib;
    return StockeLongeron(At(rib.longeron, slot), Champs(), rib.corde, cible.saisie, cible.refus);
}

bool frmlongeron::Controle(int slot, const Cible &cible) {
    const RibModel &rib = cible.rib;
    const CasLongeron cas{rib.corde, ListeVideChoisie(), !Text1[2].isHidden()};
    return ControleLongeron(At(rib.longeron, slot), cas, cible.refus);
}

void frmlongeron::AfficheLongeron(int slot) {
    const Longeron &shown = At(programme_.rib.longeron, slot);
    Text1[0].setText(Q(shown.PosLongAfich));
    Text1[1].setText(Q(shown.LargLongAfich));
    Text1[2].setText(Q(shown.HautLongAfich));
    Text1[3].setText(Q(shown.DistLongAfich));
}

void frmlongeron::AfficheOptions(int slot) {
    const Longeron &shown = At(programme_.rib.longeron, slot);
    Choisit(Opte, shown.OptLongExt);
    Choisit(Opti, shown.OptLongInt);
    Choisit(OptLong, shown.TypeLong);
    Choisit(OptDistance, shown.RefLong);
    PoseGenre(Choisi(OptLong));
}

bool frmlongeron::EstFini(int slot) const {
    const RibModel &rib = programme_.rib;
    return LongeronFini(At(rib.longeron, slot), rib.corde);
}

void frmlongeron::Retire(int slot) {
    RetireLongeron(programme_.rib, slot);
}

std::string frmlongeron::TexteRefus(Regle regle, const std::string &valeur) const {
    return TexteValeurLongeron(regle, valeur, programme_.messages);
}

std::string frmlongeron::Remarques(int slot) const {
    return RemarquesLongeron(programme_.rib, slot, SaisieEnCours());
}

std::function<void()> frmlongeron::Retour(int slot) {
    Longeron &record = At(programme_.rib.longeron, slot);
    return [&record, before = record] { record = before; };
}

} // namespace loftwing
