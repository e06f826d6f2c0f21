#include "features/frmlongeron.h"

namespace loftwing {

namespace {

constexpr int kAide = 42;

} // namespace

frmlongeron::frmlongeron(Programme &programme, MainView &view, QWidget *parent)
    : SlotsDialog(programme, view, parent,
                  {"frmlongeron",
                   "LblNblongeron",
                   " Longeron",
                   kAide,
                   {{"Frmlongeron", "4"},
                    {"Frmlongeron", "2"},
                    {"Frmlongeron", "3"},
                    {"Frmlongeron", "2T"},
                    {"Frmlongeron", "5"},
                    {"Frmlongeron", "9"},
                    {"Frmlongeron", "21"},
                    {"Frmlongeron", "21T"},
                    {"Frmlongeron", "22"},
                    {"Frmlongeron", "23"},
                    {"Frmlongeron", "24"},
                    {"Frmlongeron", "28"},
                    {"Frmlongeron", "25"},
                    {"Frmlongeron", "26"}},
                   programme.rib.NbLongeron}) {
    NameAll();
    SuitChamps({&Text1[0], &Text1[1], &Text1[2], &Text1[3]});
    LayOut();
    PoseTextes();
    for (int i = 0; i < static_cast<int>(OptLong.size()); ++i) {
        connect(&At(OptLong, i), &QRadioButton::clicked, this, [this, i] { OptLong_Click(i); });
    }
    Form_Load();
}

void frmlongeron::PoseTextes() {
    setWindowTitle(Q(TitreLongeron(programme_.rib, SaisieEnCours())));
    Label4.setText(Q(programme_.Text({"Frmlongeron", "20"})).trimmed());
    Frame3.setTitle(Q(programme_.Text({"Frmlongeron", "10"})));
    Frame4.setTitle(Q(programme_.Text({"Frmlongeron", "15"})));
    Frame5.setTitle(Q(programme_.Text({"Frmlongeron", "16"})));
    OptLong[kLongeronSurface].setText(Q(programme_.Text({"Frmlongeron", "11"})));
    OptLong[kLongeronDroit].setText(Q(programme_.Text({"Frmlongeron", "12"})));
    OptLong[kLongeronRond].setText(Q(programme_.Text({"Frmlongeron", "13"})));
    OptLong[kLongeronDistance].setText(Q(programme_.Text({"Frmlongeron", "14"})));
    for (auto *surface : {&Opte, &Opti}) {
        (*surface)[0].setText(Q(programme_.Text({"Frmlongeron", "17"})));
        (*surface)[1].setText(Q(programme_.Text({"Frmlongeron", "18"})));
        (*surface)[2].setText(Q(programme_.Text({"Frmlongeron", "19"})));
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
    Label2.setText(
        Q(round ? programme_.Text({"Frmlongeron", "8"}) : programme_.Text({"Frmlongeron", "6"})));
    Label3.setText(round ? QString() : Q(programme_.Text({"Frmlongeron", "7"})));
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
    for (std::size_t i = 0; i < Text1.size(); ++i) {
        champs.Text1[i] = S(Text1[i].text());
    }
    champs.Opte = Choisi(Opte);
    champs.Opti = Choisi(Opti);
    champs.OptLong = Choisi(OptLong);
    champs.OptDistance = Choisi(OptDistance);
    return champs;
}

bool frmlongeron::StockeLongeron(int slot) {
    RibModel &rib = programme_.rib;
    return loftwing::StockeLongeron(At(rib.longeron, slot), Champs(), rib.corde, SaisieEnCours(),
                                    MessageValeur());
}

bool frmlongeron::ControleLongeron(int slot) {
    const RibModel &rib = programme_.rib;
    const CasLongeron cas{rib.corde, ListeVideChoisie(), !Text1[2].isHidden()};
    return loftwing::ControleLongeron(At(rib.longeron, slot), cas, MessageValeur());
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

void frmlongeron::Retire(int slot) {
    RetireLongeron(programme_.rib, slot);
}

std::string frmlongeron::TexteRefus(const std::string &valeur) const {
    return TexteValeurLongeron(valeur, programme_.messages);
}

std::function<void()> frmlongeron::Retour(int slot) {
    Longeron &record = At(programme_.rib.longeron, slot);
    return [&record, before = record] { record = before; };
}

} // namespace loftwing
