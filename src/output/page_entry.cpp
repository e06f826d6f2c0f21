#include "output/page_entry.h"

#include "base/number_text.h"
#include "base/version.h"

#include <algorithm>

namespace loftwing {

namespace {

/// The pair of text and number behind a text box.
struct ChampPage {
    std::string MiseEnPage::*afich;
    float MiseEnPage::*number;
};

constexpr std::array<ChampPage, kChampsPage> kChamps = {{
    {&MiseEnPage::YdprintAfich, &MiseEnPage::Ydprint},
    {&MiseEnPage::MargeHautAfich, &MiseEnPage::MargeHaut},
    {&MiseEnPage::MargeBasAfich, &MiseEnPage::MargeBas},
    {&MiseEnPage::recouvrementAfich, &MiseEnPage::recouvrement},
}};

constexpr const char *kDeuxPoints = " : ";

} // namespace

TextesPage TextesDe(const MiseEnPage &page) {
    TextesPage texts;
    for (int i = 0; i < kChampsPage; ++i) {
        At(texts, i) = page.*At(kChamps, i).afich;
    }
    return texts;
}

void PrendTexte(MiseEnPage &page, int champ, const std::string &typed, const Saisie &saisie) {
    const ChampPage &field = At(kChamps, champ);
    StockeLongueur(typed, saisie, page.*field.afich, page.*field.number);
}

void PrendTextes(MiseEnPage &page, const TextesPage &typed, const Saisie &saisie) {
    MiseEnPage taken = page;
    for (int i = 0; i < kChampsPage; ++i) {
        PrendTexte(taken, i, At(typed, i), saisie);
    }
    page = taken;
}

void ReprendTextes(MiseEnPage &page, const Saisie &saisie) {
    const TextesPage shown = TextesDe(page);
    for (int i = 0; i < kChampsPage; ++i) {
        const std::string &text = At(shown, i);
        if (!EstRefusee(text, saisie.Unite)) {
            PrendTexte(page, i, text, saisie);
        }
    }
}

bool ManqueRecouvrement(const MiseEnPage &page) {
    return page.NbPages >= 2 && page.recouvrement == 0.0F;
}

FinPage ValidePage(MiseEnPage &page, const LongueurRib &longueur) {
    if (page.NumIndex == kPapierImprimante) {
        return FinPage::prise;
    }
    if (CalculPasPage(page, longueur) == Feuilles::sans_pas) {
        return FinPage::sans_pas;
    }
    return ManqueRecouvrement(page) ? FinPage::sans_recouvrement : FinPage::prise;
}

std::string TitrePage(const LngIni &language, const std::string &imprimante) {
    const std::string printer = imprimante.empty() ? "" : kDeuxPoints + imprimante;
    return language.LngText({"FrmPrint", "1"}) + printer + " - " +
           language.LngText({"FrmPrint", "2"});
}

std::string TexteFeuille(const MiseEnPage &page, const LngIni &language) {
    if (page.NumIndex == kPapierImprimante) {
        return language.LngText({"FrmPrint", "4"});
    }
    if (page.NumIndex == kPapierEntier) {
        return language.LngText({"FrmPrint", "251"});
    }
    return language.LngText({"FrmPrint", "5"}) + kDeuxPoints +
           NumberText(PapierDe(page).tailleFeuille) + " mm";
}

std::string LongueurAffichee(const RibModel &rib, const std::string &Unite) {
    return rib.TypeGabarit == kGabaritMousse ? DepuisMm(rib.bloc.LongBloc, Unite) : rib.cordeAfich;
}

std::string TexteLongueur(const RibModel &rib, const Saisie &saisie) {
    const LngKey words =
        rib.TypeGabarit == kGabaritMousse ? LngKey{"FrmPrint", "8"} : LngKey{"FrmPrint", "9"};
    return saisie.messages.Text(words) + saisie.Unite + kDeuxPoints +
           LongueurAffichee(rib, saisie.Unite);
}

std::string TextePages(const MiseEnPage &page, const LngIni &language) {
    const std::string count =
        language.LngText({"FrmPrint", "10"}) + kDeuxPoints + std::to_string(NombreFeuilles(page));
    return page.rangees.nombre == 1 ? count
                                    : count + " (" + std::to_string(page.rangees.nombre) + " x " +
                                          std::to_string(page.NbPages) + ")";
}

std::string TexteSansPages(const LngIni &language) {
    return language.LngText({"FrmPrint", "10"}) + kDeuxPoints + "-";
}

std::optional<PapierPropre> PapierSaisi(const std::string &nom,
                                        const std::array<std::string, 2> &mesures,
                                        const Saisie &saisie, const std::string &titre) {
    PapierPropre paper{std::string(Trim(nom)), NombreMm(mesures[0], saisie),
                       NombreMm(mesures[1], saisie)};
    // It parts one paper from the next in the settings file.
    std::replace(paper.nom.begin(), paper.nom.end(), '|', '/');
    if (PapierAdmis(paper)) {
        return paper;
    }
    const Messages &messages = saisie.messages;
    messages.Tell(messages.Text({"FrmPrint", "264"}) + " " + DepuisMm(kPapierMini, saisie.Unite) +
                      " " + messages.Text({"FrmPrint", "237"}) + " " +
                      DepuisMm(kPapierMaxi, saisie.Unite) + saisie.Unite,
                  titre, BoxIcon::stop);
    return std::nullopt;
}

bool NommePapierImprimante(const std::string &nom, const LngIni &language) {
    return nom == language.LngText({"FrmPrint", "tailleFeuille(8)"});
}

void AnnoncePapierImprimante(const RibModel &rib, const Saisie &saisie) {
    const LngKey words =
        rib.TypeGabarit == kGabaritMousse ? LngKey{"FrmPrint", "25"} : LngKey{"FrmPrint", "26"};
    saisie.messages.Inform(saisie.messages.Text(words) + kDeuxPoints +
                               LongueurAffichee(rib, saisie.Unite) + saisie.Unite + "\n" +
                               saisie.messages.Text({"FrmPrint", "27"}),
                           kTitre);
}

void RefuseSansPas(const Messages &messages) {
    messages.Tell(messages.Text({"FrmPrint", "22"}), messages.Text({"Erreur", "1"}), BoxIcon::stop);
}

void RefusePageTropGrande(const PageEntiere &page, const Messages &messages) {
    const std::string wanted = NumberText(page.longueur) + " x " + NumberText(page.largeur) + " mm";
    messages.Tell(messages.Text({"FrmPrint", "252"}) + kDeuxPoints + wanted + "\n" +
                      messages.Text({"FrmPrint", "253"}) + " " + NumberText(kPapierMaxi) + " mm.",
                  messages.Text({"Erreur", "1"}), BoxIcon::stop);
}

void AlerteRecouvrement(const MiseEnPage &page, const Messages &messages) {
    const std::string words = messages.Text({"FrmPrint", "24"});
    messages.Inform(std::to_string(page.NbPages) + words, words);
}

} // namespace loftwing
