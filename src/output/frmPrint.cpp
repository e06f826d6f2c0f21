#include "output/frmPrint.h"

#include "lang/aide.h"
#include "output/frmcorrection.h"
#include "output/frmpapier.h"

#include <QSignalBlocker>

namespace loftwing {

namespace {

void SetBold(QWidget &widget, bool bold) {
    QFont font; // says nothing but the weight, so that the size goes on following the dialog's
    font.setBold(bold);
    widget.setFont(font);
}

} // namespace

frmPrint::frmPrint(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmPrint", kAidePage, parent), page_(programme.settings.page) {
    NameAll();
    LayOut();
    Form_Load();
    // Not before: what Form_Load shows is no entry of the user's.
    connect(&Combo1, &QComboBox::currentIndexChanged, this, &frmPrint::Combo1_click);
    ConnectEach(Text1, &QLineEdit::textChanged, this, &frmPrint::Text1_Change);
    connect(&cmdconfigImprim, &QPushButton::clicked, this, &frmPrint::cmdconfigImprim_Click);
    connect(&cmdpapier, &QPushButton::clicked, this, &frmPrint::cmdpapier_Click);
    connect(&cmdretire, &QPushButton::clicked, this, &frmPrint::cmdretire_Click);
    connect(&chkrangees, &QCheckBox::toggled, [this](bool on) {
        page_.en_rangees = on;
        MontreCompte(compte_);
    });
    connect(&chktemoin, &QCheckBox::toggled, [this](bool on) {
        page_.temoin = on;
        MontreCompte(compte_);
    });
    connect(&cmdcorrection, &QPushButton::clicked, this, &frmPrint::cmdcorrection_Click);
}

void frmPrint::SuitPage(std::function<void(const MiseEnPage *page)> suit) {
    suit_ = std::move(suit);
    MontreCompte(compte_);
}

void frmPrint::MontreCompte(bool compte) {
    compte_ = compte;
    suit_(compte ? &page_ : nullptr);
}

void frmPrint::Form_Load() {
    programme_.rib.Annule = false;
    if (page_.NumIndex >= NombrePapiers(page_)) {
        page_.NumIndex = 0; // a paper that there isn't; here it can be put right
    }
    page_.rangees = {}; // those of the last print
    PoseTextes();
    RemplitCombo();
    chkrangees.setChecked(page_.en_rangees);
    chktemoin.setChecked(page_.temoin);
    ShowTexts(Text1, TextesDe(page_));
    CalculAuChargement();
}

void frmPrint::PoseTextes() {
    setWindowTitle(Q(TitrePage(programme_.language, programme_.platform.PrinterName())));
    Frame6.setTitle(Mot({"FrmPrint", "3"}));
    Frame5.setTitle(Mot({"FrmPrint", "7"}));
    Frame4.setTitle(Mot({"FrmPrint", "13"}));
    Frame2.setTitle(Mot({"FrmPrint", "18"}));
    Option1.setText(Mot({"FrmPrint", "14"}));
    Option2.setText(Mot({"FrmPrint", "15"}));
    Label4.setText(Mot({"FrmPrint", "16"}));
    Label1.setText(Mot({"FrmPrint", "19"}));
    Label2.setText(Mot({"FrmPrint", "20"}));
    cmdconfigImprim.setText(Mot({"TextButton", "15"}));
    cmdpapier.setText(Mot({"FrmPrint", "258"}));
    cmdretire.setText(Mot({"FrmPrint", "259"}));
    chkrangees.setText(Mot({"FrmPrint", "256"}));
    chktemoin.setText(Mot({"FrmPrint", "257"}));
    SetTip(chkrangees, programme_.Text({"FrmPrint", "256T"}));
    SetTip(chktemoin, programme_.Text({"FrmPrint", "257T"}));
    SetTip(cmdpapier, programme_.Text({"FrmPrint", "258T"}));
    cmdcorrection.setText(Mot({"FrmPrint", "275"}));
    Combo1.setAccessibleName(Frame6.title());
    Text1[kChampYdprint].setAccessibleName(Frame5.title());
    for (QLabel *unit : {&Label5, &Label6, &Label7, &Label8}) {
        unit->setText(Q(programme_.settings.Unite));
    }
    AdmetLongueurs(Text1);
}

void frmPrint::RemplitCombo() {
    for (int i = 0; i < NombrePapiers(page_); ++i) {
        Combo1.addItem(Q(NomFeuille(page_, i, programme_.language)));
    }
    Combo1.setCurrentIndex(page_.NumIndex);
}

/// Runs what counts the sheets. After a failure there is no count to show.
template <class Action>
void frmPrint::Compte(const char *label, Action action) {
    Seul(label, [this, &action] {
        try {
            action();
        } catch (const Failure &) {
            Label10.setText(Q(TexteSansPages(programme_.language)));
            MontreCompte(false);
            throw;
        }
    });
}

/// The first count. Only a missing overlap is worth a box before the user has done anything;
/// whatever else is wrong shows as a missing count, and is told at the first change or at OK.
void frmPrint::CalculAuChargement() {
    try {
        longueur_ = ReprendLongueur(programme_.rib);
        Label9.setText(Q(TexteLongueur(programme_.rib, programme_.SaisieEnCours())));
        ReprendTextes(page_, programme_.SaisieEnCours());
        const Feuilles feuilles = CalculeEtMontre();
        Avertit(feuilles);
        ChoisitRecouvrement(feuilles);
    } catch (const Failure &) {
        Label10.setText(Q(TexteSansPages(programme_.language)));
    }
}

void frmPrint::Combo1_click() {
    Compte(" Print/Combo1", [this] {
        page_.NumIndex = ToByte(Combo1.currentIndex());
        if (NommePapierImprimante(S(Combo1.currentText()), programme_.language)) {
            AnnoncePapierImprimante(programme_.rib, programme_.SaisieEnCours());
        }
        const Feuilles feuilles = CalculeEtMontre();
        if (feuilles == Feuilles::sans_pas) {
            RefuseSansPas(programme_.messages);
        }
        Avertit(feuilles);
        ChoisitRecouvrement(feuilles);
    });
}

void frmPrint::Text1_Change(int index) {
    Compte(" Print/Text1", [this, index] {
        // The other texts were read when they changed; reading them again would repeat their boxes.
        PrendTexte(page_, index, S(At(Text1, index).text()), programme_.SaisieEnCours());
        const Feuilles feuilles = CalculeEtMontre();
        if (feuilles == Feuilles::sans_pas) {
            RefuseSansPas(programme_.messages);
            ChoisitRecouvrement(feuilles);
        } else if (Avertit(feuilles)) {
            ChoisitRecouvrement(feuilles);
        } else if (feuilles == Feuilles::plusieurs && index != kChampRecouvrement) {
            // Ready to be typed over; selected under the user's hands it would lose every digit.
            Text1[kChampRecouvrement].selectAll();
        }
    });
}

Feuilles frmPrint::CalculeEtMontre() {
    Label3.setText(Q(TexteFeuille(page_, programme_.language)));
    try {
        const Feuilles feuilles = CalculPages(page_, longueur_);
        Montre(feuilles);
        MontreCompte(true);
        return feuilles;
    } catch (const Failure &) {
        Montre(Feuilles::sans_pas); // the overlap must be there to be put right
        throw;
    }
}

/// Where several sheets are wanted the overlap is what the user has to think of.
void frmPrint::ChoisitRecouvrement(Feuilles feuilles) {
    if (feuilles == Feuilles::plusieurs || feuilles == Feuilles::sans_pas) {
        SelectField(Text1[kChampRecouvrement]);
    }
}

void frmPrint::Montre(Feuilles feuilles) {
    const bool tiled = feuilles == Feuilles::plusieurs || feuilles == Feuilles::sans_pas;
    const bool printers_paper = feuilles == Feuilles::imprimante;
    NumericField &overlap = Text1[kChampRecouvrement];
    overlap.setEnabled(tiled);
    if (!tiled) {
        overlap.setText(Q(page_.recouvrementAfich));
    }
    Label4.setEnabled(!printers_paper);
    Label5.setEnabled(!printers_paper);
    SetBold(Label4, feuilles == Feuilles::plusieurs && !longueur_.gabarit);
    cmdconfigImprim.setEnabled(printers_paper);
    chkrangees.setEnabled(PrendRangees(page_));
    cmdpapier.setEnabled(std::ssize(page_.papiers) < kPapiersPropres);
    cmdretire.setEnabled(page_.NumIndex >= kPapierPropre);
    MontreOptions(printers_paper);
    const LngIni &language = programme_.language;
    Label10.setText(
        Q(feuilles == Feuilles::sans_pas ? TexteSansPages(language) : TextePages(page_, language)));
}

void frmPrint::MontreOptions(bool une_page) {
    SetBold(Option1, false);
    QRadioButton &chosen = une_page ? Option1 : Option2;
    QRadioButton &other = une_page ? Option2 : Option1;
    chosen.setEnabled(true);
    chosen.setChecked(true);
    other.setEnabled(false);
}

/// Tells of sheets of a template that don't overlap; true when there was something to tell. A rib
/// without a template is told at OK only.
bool frmPrint::Avertit(Feuilles feuilles) {
    if (feuilles != Feuilles::plusieurs || !longueur_.gabarit || !ManqueRecouvrement(page_)) {
        return false;
    }
    SetBold(Option1, true);
    AlerteRecouvrement(page_, programme_.messages);
    return true;
}

void frmPrint::cmdok_Click() {
    Compte(" Print/OK", [this] {
        programme_.rib.Annule = false;
        PrendTextes(page_, FieldTexts(Text1), programme_.SaisieEnCours());
        // Kept even when it is refused below: the user gave his OK to these values.
        MiseEnPage &kept = programme_.settings.page;
        kept = page_;
        EcritMarges(programme_.ReglagesEnCours());
        EcritFeuilles(programme_.ReglagesEnCours());
        switch (ValidePage(kept, longueur_)) {
        case FinPage::prise:
            accept();
            return;
        case FinPage::sans_pas:
            RefuseSansPas(programme_.messages);
            break;
        case FinPage::sans_recouvrement:
            SetBold(Option1, true);
            AlerteRecouvrement(kept, programme_.messages);
            break;
        }
        SelectField(Text1[kChampRecouvrement]);
    });
}

void frmPrint::cmdannuler_Click() {
    programme_.rib.Annule = true;
    Renonce();
}

/// Fills the list of papers anew and chooses one, as a click on it does.
void frmPrint::ChangePapiers(int chosen) {
    {
        const QSignalBlocker quiet(Combo1);
        Combo1.clear();
        RemplitCombo();
        Combo1.setCurrentIndex(chosen);
    }
    Combo1_click();
}

void frmPrint::cmdpapier_Click() {
    frmpapier paper(programme_, this);
    if (ShowModal(paper) == QDialog::Accepted) {
        page_.papiers.push_back(paper.Papier());
        ChangePapiers(NombrePapiers(page_) - 1);
    }
}

void frmPrint::cmdretire_Click() {
    page_.papiers.erase(page_.papiers.begin() + (page_.NumIndex - kPapierPropre));
    ChangePapiers(0);
}

void frmPrint::cmdconfigImprim_Click() {
    programme_.platform.ShowPrinterSettings();
    setWindowTitle(Q(TitrePage(programme_.language, programme_.platform.PrinterName())));
}

void frmPrint::cmdcorrection_Click() {
    Garde(" Print/Correction", [this] {
        frmcorrection dialog(programme_, this);
        ShowModal(dialog);
    });
}

} // namespace loftwing
