#include "persist/default_entry.h"

#include "lang/ini_file.h"
#include "support/failures.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class DefaultEntryTest : public testing::Test {
  protected:
    DefaultEntryTest() {
        language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", "English");
        rib.NomProfil = "e205";
    }

    FinDefauts Take(const TextesDefaut &typed) { return PrendDefauts(rib, typed, saisie); }

    TempFolder folder;
    ScriptedPlatform platform;
    LngIni language;
    Messages messages{platform, language};
    AppSettings settings;
    Saisie saisie{settings.Unite, messages};
    RibModel rib;
    const std::string fichier = folder.Path("Loftwing.ini");
};

TEST_F(DefaultEntryTest, ReadsTheTextsOnFileAsTheyStand) {
    folder.File("Loftwing.ini", "[Defaut]\r\nunit= in\r\ncordeAfich=8.1/2\r\nEpCoffrageAfich=1/16"
                                "\r\nEpBAAfich=3/8\r\nHTblocAfich=\r\nBAblocAfich=1\r\n");
    EXPECT_EQ(LitTextesDefaut(fichier), (TextesDefaut{"8.1/2", "1/16", "3/8", "", "1", ""}));
}

TEST_F(DefaultEntryTest, TextsOnFileAreNotShownInAnotherUnit) {
    folder.File("Loftwing.ini", "[Defaut]\r\nunit= in\r\ncordeAfich=8.1/2\r\n");
    EXPECT_EQ(TextesDefautEn(kUniteIn, fichier)[kDefautCorde], "8.1/2");
    EXPECT_EQ(TextesDefautEn(kUniteMm, fichier), (TextesDefaut{"200", "1.5", "0", "0", "0", "0"}));
    folder.File("Loftwing.ini", "[Defaut]\r\ncordeAfich=180\r\n"); // names none
    EXPECT_EQ(TextesDefautEn(kUniteMm, fichier)[kDefautCorde], "180");
}

TEST_F(DefaultEntryTest, AMissingFileGivesEmptyTexts) {
    EXPECT_EQ(LitTextesDefaut(fichier), TextesDefaut{});
}

TEST_F(DefaultEntryTest, InchesBringTheirFixedSetAndConvertNothing) {
    const TextesDefaut texts = ChoisitUnite(settings, kUniteIn, messages);
    EXPECT_EQ(texts, (TextesDefaut{"8", "1/16", "0", "0", "0", "0"}));
    EXPECT_EQ(settings.Unite, " in");
    const MiseEnPage &page = settings.page;
    EXPECT_EQ(page.MargeHautAfich, "1/2");
    EXPECT_EQ(page.MargeHaut, 12.7F);
    EXPECT_EQ(page.MargeBasAfich, "1/2");
    EXPECT_EQ(page.MargeBas, 12.7F);
    EXPECT_EQ(page.recouvrementAfich, "1");
    EXPECT_EQ(page.recouvrement, 25.4F);
    EXPECT_EQ(page.NumIndex, 1);
    EXPECT_EQ(page.YdprintAfich, "2");
    EXPECT_EQ(page.Ydprint, 50.8F);
}

TEST_F(DefaultEntryTest, MillimetresBringTheirs) {
    ChoisitUnite(settings, kUniteIn, messages);
    const TextesDefaut texts = ChoisitUnite(settings, kUniteMm, messages);
    EXPECT_EQ(texts, (TextesDefaut{"200", "1.5", "0", "0", "0", "0"}));
    EXPECT_EQ(settings.Unite, " mm");
    const MiseEnPage &page = settings.page;
    EXPECT_EQ(page.MargeHautAfich, "10");
    EXPECT_EQ(page.MargeHaut, 10.0F);
    EXPECT_EQ(page.MargeBasAfich, "15");
    EXPECT_EQ(page.MargeBas, 15.0F);
    EXPECT_EQ(page.recouvrementAfich, "20");
    EXPECT_EQ(page.recouvrement, 20.0F);
    EXPECT_EQ(page.NumIndex, 0);
    EXPECT_EQ(page.YdprintAfich, "50");
    EXPECT_EQ(page.Ydprint, 50.0F);
}

TEST_F(DefaultEntryTest, TheQuestionStandsOnTwoLinesAndDefaultsToNo) {
    for (const BoxAnswer answer : {BoxAnswer::yes, BoxAnswer::no}) {
        platform.Expect(answer);
        EXPECT_EQ(ConfirmeUnite(messages), answer == BoxAnswer::yes);
    }
    const MessageBox &box = platform.boxes.at(0);
    EXPECT_EQ(box.text, "A change of units clears the rib and all that was added to it.\n"
                        "Do you want to change the units?");
    EXPECT_EQ(box.title, "Template defaults");
    EXPECT_EQ(box.icon, BoxIcon::question);
    EXPECT_EQ(box.buttons, BoxButtons::yes_no);
    EXPECT_EQ(box.fallback, BoxAnswer::no);
}

TEST_F(DefaultEntryTest, TheDefaultsGoIntoTheRibAtOnce) {
    EXPECT_EQ(Take({"180", "2", "6.5", "40", "10", "12"}), FinDefauts::prise);
    EXPECT_EQ(rib.cordeAfich, "180");
    EXPECT_EQ(rib.corde, 180.0F);
    EXPECT_EQ(rib.EpCoffrageAfich, "2");
    EXPECT_EQ(rib.EpCoffrage, 2.0F);
    EXPECT_EQ(rib.EpBAAfich, "6.5");
    EXPECT_EQ(rib.EpBA, 6.5F);
    EXPECT_EQ(rib.bloc.HTblocAfich, "40");
    EXPECT_EQ(rib.bloc.HTbloc, 40.0F);
    EXPECT_EQ(rib.bloc.BAblocAfich, "10");
    EXPECT_EQ(rib.bloc.BAbloc, 10.0F);
    EXPECT_EQ(rib.bloc.BFblocAfich, "12");
    EXPECT_EQ(rib.bloc.BFbloc, 12.0F);
}

TEST_F(DefaultEntryTest, NumbersAreThoseOfTheUnitInForce) {
    settings.Unite = kUniteIn;
    EXPECT_EQ(Take({"8", "1/16", "0", "", "1.1/2", "0"}), FinDefauts::prise);
    EXPECT_EQ(rib.corde, 203.2F);
    EXPECT_EQ(rib.EpCoffrageAfich, "1/16");
    EXPECT_EQ(rib.EpCoffrage, 1.5875F);
    EXPECT_EQ(rib.bloc.HTblocAfich, "");
    EXPECT_EQ(rib.bloc.HTbloc, 0.0F);
    EXPECT_EQ(rib.bloc.BAbloc, 38.1F);
}

TEST_F(DefaultEntryTest, AChordOfZeroIsRefusedAndLeavesTheRibAsItWas) {
    for (const char *chord : {"0", "", ".", "0.0"}) {
        platform.Expect(BoxAnswer::ok);
        EXPECT_EQ(Take({chord, "2", "1", "1", "1", "1"}), FinDefauts::sans_corde) << chord;
        EXPECT_EQ(rib.cordeAfich, "200");
        EXPECT_EQ(rib.EpCoffrageAfich, "1.5");
    }
    EXPECT_EQ(platform.boxes[0].text, "Chord length : Please enter a chord");
    EXPECT_EQ(platform.boxes[0].title, "Template defaults");
    EXPECT_EQ(platform.boxes[0].icon, BoxIcon::information);
}

TEST_F(DefaultEntryTest, AChordThatIsNoLengthIsRefusedBeforeTheOthersAreRead) {
    settings.Unite = kUniteIn;
    platform.Expect(BoxAnswer::ok); // no length
    platform.Expect(BoxAnswer::ok); // no chord
    EXPECT_EQ(Take({"/8", "/16", "/2", "0", "0", "0"}), FinDefauts::sans_corde);
}

TEST_F(DefaultEntryTest, AFractionOfZerothsLeavesTheRibAsItWas) {
    settings.Unite = kUniteIn;
    EXPECT_EQ(FailureOf([&] { Take({"9", "1", "1", "1", "1", "1/0"}); }), 11);
    EXPECT_EQ(rib.cordeAfich, "200");
    EXPECT_EQ(rib.EpCoffrageAfich, "1.5");
    EXPECT_EQ(rib.bloc.BAblocAfich, "0");
}

TEST_F(DefaultEntryTest, TheTemplatesLengthFollowsWhereThereIsATemplate) {
    rib.TypeGabarit = kGabaritMousse;
    Take({"180", "2", "0", "40", "10", "12.5"});
    EXPECT_EQ(rib.bloc.LongBloc, 202.5F);
    rib.TypeGabarit = kSansGabarit;
    Take({"190", "2", "0", "40", "10", "12.5"});
    EXPECT_EQ(rib.bloc.LongBloc, 202.5F);
}

TEST_F(DefaultEntryTest, TheLabelOfALoadedRibShowsTheNewChord) {
    rib.ProfilCharge = true;
    rib.texte.InsTexte = "e205 Chord : 200";
    rib.texte.TexteUtilisateur = true; // it went through the text dialog once
    Take({"180", "1.5", "0", "", "0", "0"});
    EXPECT_EQ(rib.texte.InsTexte, "e205 Chord : 180");
    EXPECT_FALSE(rib.texte.TexteUtilisateur);
    Take({"175", "1.5", "0", "", "0", "0"});
    EXPECT_EQ(rib.texte.InsTexte, "e205 Chord : 175");
    rib.texte.InsTexte = "left wing";
    rib.texte.TexteUtilisateur = true;
    Take({"170", "1.5", "0", "", "0", "0"});
    EXPECT_EQ(rib.texte.InsTexte, "left wing");
}

TEST_F(DefaultEntryTest, WithoutARibThereIsNoLabel) {
    Take({"180", "1.5", "0", "", "0", "0"});
    EXPECT_EQ(rib.texte.InsTexte, "");
    EXPECT_FALSE(rib.Modifie);
}

TEST_F(DefaultEntryTest, ALoadedRibIsChangedOnlyByOtherLengths) {
    rib.ProfilCharge = true;
    EXPECT_EQ(Take({"200", "1.5", "0", "", "0", "0"}), FinDefauts::inchangee);
    EXPECT_FALSE(rib.Modifie);
    Take({"200", "1.5", "0", "", "0", "1"});
    EXPECT_TRUE(rib.Modifie);
    Take({"200", "1.5", "0", "", "0", "1"});
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(DefaultEntryTest, AStockThatWasTooWideComesIntoForceUnderItsText) {
    rib.ProfilCharge = true;
    rib.EpBAAfich = "150"; // refused at an earlier chord: its number is 0
    EXPECT_EQ(Take({"200", "1.5", "150", "", "0", "0"}), FinDefauts::prise);
    EXPECT_EQ(rib.EpBA, 150.0F);
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(DefaultEntryTest, FoldersAreKeptInTheFileAndInTheUsersStore) {
    Repertoires folders{"a", "b", "c"};
    RangeDossiers(folders, "/home/me/airfoils", "/home/me/sets", fichier, platform);
    EXPECT_EQ(folders.RepProfil, "/home/me/airfoils");
    EXPECT_EQ(folders.LastOpenProfil, "/home/me/airfoils");
    EXPECT_EQ(folders.RepProfilevol, "/home/me/sets");
    EXPECT_EQ(folder.Bytes("Loftwing.ini"), "[Repertoires]\r\nRepProfil=/home/me/airfoils\r\n"
                                            "RepProfilevol=/home/me/sets\r\n");
    EXPECT_EQ(platform.StoredValue("Install", "RepAirfoil"), "/home/me/airfoils");
    EXPECT_EQ(platform.StoredValue("Install", "RepEvol"), "/home/me/sets");
}

class PlatformWithoutStore : public ScriptedPlatform {
  public:
    void StoreValue(const std::string &, const std::string &, const std::string &) override {
        throw MakeFailure(kPathFileAccess, "store");
    }
};

TEST_F(DefaultEntryTest, AStoreThatCannotBeWrittenStopsNothing) {
    PlatformWithoutStore closed;
    Repertoires folders{"a", "b", "c"};
    RangeDossiers(folders, "/home/me/airfoils", "/home/me/sets", fichier, closed);
    EXPECT_EQ(folders.RepProfil, "/home/me/airfoils");
    EXPECT_EQ(folders.RepProfilevol, "/home/me/sets");
    EXPECT_EQ(folder.Bytes("Loftwing.ini"), "[Repertoires]\r\nRepProfil=/home/me/airfoils\r\n"
                                            "RepProfilevol=/home/me/sets\r\n");
}

TEST_F(DefaultEntryTest, ASettingsFileThatCannotBeReadHasNoUnit) {
    std::filesystem::create_directory(fichier);
    EXPECT_EQ(UniteSurFichier(fichier), "");
}

} // namespace
} // namespace loftwing
