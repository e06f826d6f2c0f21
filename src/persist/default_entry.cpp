#include "persist/default_entry.h"

#include "base/file_name.h"
#include "base/number_text.h"
#include "features/inserted_text.h"
#include "lang/ini_file.h"

namespace loftwing {

namespace {

/// All that goes with a unit.
struct JeuUnite {
    TextesDefaut lengths;
    std::string MargeHaut;
    std::string MargeBas;
    std::string recouvrement;
    std::uint8_t NumIndex;
    std::string Ydprint;
};

JeuUnite JeuDe(std::string_view Unite) {
    if (Unite == kUniteIn) {
        return {{"8", "1/16", "0", "0", "0", "0"}, "1/2", "1/2", "1", 1, "2"};
    }
    return {{"200", "1.5", "0", "0", "0", "0"}, "10", "15", "20", 0, "50"};
}

constexpr std::array<const char *, kChampsDefaut> kCles = {
    "cordeAfich", "EpCoffrageAfich", "EpBAAfich", "HTblocAfich", "BAblocAfich", "BFblocAfich"};

/// The pair of text and number behind a field.
struct ChampDefaut {
    std::string &afich;
    float &mm;
};

std::array<ChampDefaut, kChampsDefaut> ChampsDe(RibModel &rib) {
    Bloc &bloc = rib.bloc;
    return {{{rib.cordeAfich, rib.corde},
             {rib.EpCoffrageAfich, rib.EpCoffrage},
             {rib.EpBAAfich, rib.EpBA},
             {bloc.HTblocAfich, bloc.HTbloc},
             {bloc.BAblocAfich, bloc.BAbloc},
             {bloc.BFblocAfich, bloc.BFbloc}}};
}

using Longueurs = std::array<float, kChampsDefaut>;

/// The lengths in mm; no more than the chord is read where that is 0.
Longueurs LitLongueurs(const TextesDefaut &typed, const Saisie &saisie) {
    Longueurs mm{};
    for (int i = 0; i < kChampsDefaut; ++i) {
        At(mm, i) = ToSingle(NombreMm(At(typed, i), saisie));
        if (mm[kDefautCorde] == 0.0F) {
            break;
        }
    }
    return mm;
}

float LongueurBlocPour(const RibModel &rib, const Longueurs &mm) {
    if (rib.TypeGabarit != kGabaritMousse) {
        return rib.bloc.LongBloc;
    }
    return ToSingle(Wide(mm[kDefautCorde]) + Wide(mm[kDefautBAbloc]) + Wide(mm[kDefautBFbloc]));
}

/// Whether the rib has other lengths. The number counts too: that of a stock which was too wide is
/// 0 under its text.
bool Differe(RibModel &rib, const TextesDefaut &typed, const Longueurs &mm) {
    auto fields = ChampsDe(rib);
    bool differs = false;
    for (int i = 0; i < kChampsDefaut; ++i) {
        const ChampDefaut &field = At(fields, i);
        differs = differs || field.afich != At(typed, i) || field.mm != At(mm, i);
    }
    return differs;
}

void Stocke(RibModel &rib, const TextesDefaut &typed, const Longueurs &mm) {
    auto fields = ChampsDe(rib);
    for (int i = 0; i < kChampsDefaut; ++i) {
        const ChampDefaut &field = At(fields, i);
        field.afich = At(typed, i);
        field.mm = At(mm, i);
    }
}

/// Gives a label the chord in force, even one that counts as the user's since the text dialog.
void ReprendEtiquette(RibModel &rib, const Messages &messages) {
    if (rib.texte.TexteUtilisateur) {
        ActualiseTexte(rib, messages);
    } else {
        RegenereTexte(rib, messages);
    }
}

/// The folders hold for this run and stand in the settings file; where the user's store can't be
/// written, the dialog that asked for them must still do its work and close.
void RetientSiPossible(Platform &platform, const char *key, const std::string &folder) {
    try {
        platform.StoreValue("Install", key, folder);
    } catch (const Failure &) {
        return;
    }
}

} // namespace

TextesDefaut LitTextesDefaut(const std::string &fichier) {
    const IniFile file = IniFile::Read(fichier);
    TextesDefaut texts;
    for (int i = 0; i < kChampsDefaut; ++i) {
        At(texts, i) = file.Value("Defaut", At(kCles, i));
    }
    return texts;
}

TextesDefaut TextesDefautEn(std::string_view Unite, const std::string &fichier) {
    const std::string kept = GetINIFile("Defaut", "unit", fichier);
    const bool of_other = Trim(kept) == Trim(AutreUnite(Unite));
    return of_other ? JeuDe(Unite).lengths : LitTextesDefaut(fichier);
}

TextesDefaut TextesDefautConnus(const AppSettings &settings, const std::string &fichier) {
    return settings.fichier.perdu ? JeuDe(settings.Unite).lengths
                                  : TextesDefautEn(settings.Unite, fichier);
}

TextesDefaut ChoisitUnite(AppSettings &settings, std::string_view Unite, const Messages &messages) {
    settings.Unite = Unite;
    const Saisie saisie{settings.Unite, messages};
    const JeuUnite set = JeuDe(Unite);
    MiseEnPage &page = settings.page;
    StockeLongueur(set.MargeHaut, saisie, page.MargeHautAfich, page.MargeHaut);
    StockeLongueur(set.MargeBas, saisie, page.MargeBasAfich, page.MargeBas);
    StockeLongueur(set.recouvrement, saisie, page.recouvrementAfich, page.recouvrement);
    StockeLongueur(set.Ydprint, saisie, page.YdprintAfich, page.Ydprint);
    page.NumIndex = set.NumIndex;
    return set.lengths;
}

std::string QuestionUnite(const Messages &messages) {
    return messages.Text({"FrmDefaut", "17"}) + "\n" + messages.Text({"FrmDefaut", "18"});
}

bool ConfirmeUnite(const Messages &messages) {
    return messages.Confirm(QuestionUnite(messages), messages.Text({"FrmDefaut", "1"}));
}

std::string UniteSurFichier(const std::string &fichier) {
    try {
        return std::string(Trim(GetINIFile("Defaut", "unit", fichier)));
    } catch (const Failure &) {
        return {}; // what can't be read has none
    }
}

FinDefauts PrendDefauts(RibModel &rib, const TextesDefaut &typed, const Saisie &saisie) {
    const Messages &messages = saisie.messages;
    const Longueurs mm = LitLongueurs(typed, saisie);
    if (mm[kDefautCorde] == 0.0F) {
        messages.Inform(messages.Text({"FrmPrint", "26"}) + " : " +
                            messages.Text({"FrmAngle", "10"}),
                        messages.Text({"FrmDefaut", "1"}));
        return FinDefauts::sans_corde;
    }
    const float LongBloc = LongueurBlocPour(rib, mm);
    if (!Differe(rib, typed, mm)) {
        return FinDefauts::inchangee;
    }
    rib.bloc.LongBloc = LongBloc;
    Stocke(rib, typed, mm);
    if (rib.ProfilCharge) {
        ReprendEtiquette(rib, messages);
        rib.Modifie = true;
    }
    return FinDefauts::prise;
}

void RangeDossiers(Repertoires &folders, const std::string &profils, const std::string &jeux,
                   const std::string &fichier, Platform &platform) {
    folders = {profils, jeux, profils};
    WriteINIFile("Repertoires", "RepProfil", profils, fichier);
    RetientSiPossible(platform, "RepAirfoil", profils);
    RangeDossierJeux(folders, jeux, fichier, platform);
}

void RangeDossierJeux(Repertoires &folders, const std::string &jeux, const std::string &fichier,
                      Platform &platform) {
    folders.RepProfilevol = jeux;
    WriteINIFile("Repertoires", "RepProfilevol", jeux, fichier);
    RetientSiPossible(platform, "RepEvol", jeux);
}

std::string ChoisitDossier(std::string shown, const Messages &messages) {
    if (!IsFolder(shown)) {
        shown.clear();
    }
    return messages.platform.ChooseFolder(messages.Text({"FrmDefaut", "16"}) + " :", shown);
}

} // namespace loftwing
