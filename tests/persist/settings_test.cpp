#include "persist/settings.h"

#include "lang/ini_file.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using Entries = std::vector<std::string>; ///< "key=value" as they stand

class Settings : public testing::Test {
  protected:
    Settings() {
        fs::create_directory(programme);
        world.platform.store = {};
    }

    Reglages With() { return {world.settings, world.rib, world.messages, fichier}; }
    MiseEnPage &Page() { return world.settings.page; }
    Repertoires &Folders() { return world.settings.repertoires; }

    /// The file as it stands: sections with their lines.
    std::map<std::string, Entries> Sections() const {
        std::map<std::string, Entries> sections;
        std::ifstream file(fichier, std::ios::binary);
        std::string section;
        for (std::string line; std::getline(file, line);) {
            EXPECT_TRUE(line.ends_with('\r')) << line;
            line.pop_back();
            if (line.starts_with('[')) {
                section = line;
                EXPECT_FALSE(sections.contains(section)) << section;
                sections[section] = {};
            } else {
                sections[section].push_back(line);
            }
        }
        return sections;
    }
    void File(const std::string &text) { folder.File("Loftwing.ini", text); }
    /// What a first start does.
    void FirstRun() {
        ValeursDefaut(With(), programme);
        ReadInstallFolders(With(), programme);
        EcritTout(With());
    }

    RibWorld world;
    TempFolder folder;
    std::string programme = folder.Path("programme");
    std::string fichier = folder.Path("Loftwing.ini");
};

TEST_F(Settings, FirstRunWritesEverySectionWithItsDefaults) {
    FirstRun();
    const std::map<std::string, Entries> wanted = {
        {"[Couleurs]",
         {"coulprofil=0", "coulcoffrage=9", "coulaxe=12", "coulong=13", "coulba=9", "coulbf=9",
          "coultrou=5", "coulrep=12", "coulbloc=1", "coulprofil1=5", "coulprofil2=9"}},
        {"[StyleLignes]",
         {"lineprofil=0", "linecoffrage=0", "lineaxe=3", "linelong=0", "lineba=0", "linebf=0",
          "linetrou=0", "linerep=0", "linebloc=0", "lineprofil1=0", "lineprofil2=0"}},
        {"[Eprlines]",
         {"profil=1", "eplinecoffrage=1", "eplinelong=1", "eplineba=1", "eplinebf=1",
          "eplinetrou=1", "eplinerep=1", "eplinebloc=1"}},
        {"[InsText]", {"TailleFont=9"}},
        {"[Defaut]",
         {"unit= mm", "cordeAfich=200", "EpCoffrageAfich=1.5", "EpBAAfich=0",
          "HTblocAfich=", "BAblocAfich=0", "BFblocAfich=0"}},
        {"[Repertoires]",
         {"RepProfil=" + programme, "RepProfilevol=" + programme, "LastOpenProfil=" + programme}},
        {"[Marges]",
         {"MargeHaut=10", "MargeBas=15", "recouvrement=20", "NumIndex=0", "Ydprint=50"}}};
    EXPECT_EQ(Sections(), wanted);
}

TEST_F(Settings, DefaultsOverwriteWhatWasThereAndTouchNoFile) {
    world.rib.corde = 7;
    world.rib.cordeAfich = "7";
    world.rib.EpBF = 3;
    world.rib.NbRep = 9;
    world.rib.TypeBA = 0;
    world.rib.vrillage = 2;
    world.rib.texte.TailleFont = 20;
    world.rib.bloc.HTblocAfich = "5";
    Page().Ydprint = 1;
    world.settings.traits.fill({7, 4, 3});
    ValeursDefaut(With(), programme);
    EXPECT_EQ(world.rib.corde, 200.0F);
    EXPECT_EQ(world.rib.cordeAfich, "200");
    EXPECT_EQ(world.rib.EpCoffrage, 1.5F);
    EXPECT_EQ(world.rib.EpBF, 0.0F);
    EXPECT_EQ(world.rib.NbRep, 0);
    EXPECT_EQ(world.rib.TypeBA, 1);
    EXPECT_EQ(world.rib.vrillage, 0.0F);
    EXPECT_EQ(world.rib.texte.TailleFont, 9.0F);
    EXPECT_EQ(world.rib.bloc.HTblocAfich, "");
    EXPECT_EQ(Page().Ydprint, 50.0F);
    EXPECT_EQ(world.settings.TraitDe(Element::axe), (Trait{12, 3, 1}));
    EXPECT_EQ(world.settings.TraitDe(Element::profil2), (Trait{9, 0, 1}));
    EXPECT_EQ(Folders().RepProfilevol, programme);
    EXPECT_FALSE(fs::exists(fichier));
}

TEST_F(Settings, WhatIsWrittenIsReadBack) {
    FirstRun();
    std::int16_t number = 0;
    for (Trait &trait : world.settings.traits) {
        trait = {static_cast<std::int16_t>(number % 15), static_cast<std::int16_t>(number % 5), 1};
        ++number;
    }
    world.settings.TraitDe(Element::trou).epaisseur = 3;
    world.settings.Unite = " in";
    world.rib.cordeAfich = "8.1/2";
    world.rib.EpCoffrageAfich = "1/16";
    world.rib.EpBAAfich = ".5";
    world.rib.bloc.HTblocAfich = "2";
    world.rib.bloc.BAblocAfich = "1.1/4";
    world.rib.bloc.BFblocAfich = "1";
    world.rib.texte.TailleFont = 10.5F;
    Folders() = {"/a", "/b", "/c d"};
    Page().MargeHautAfich = "1/2";
    Page().MargeBasAfich = "3/4";
    Page().recouvrementAfich = "1";
    Page().YdprintAfich = "2";
    Page().NumIndex = 7;
    EcritTout(With());

    RibWorld other;
    ValeursDefaut({other.settings, other.rib, other.messages, fichier}, programme);
    EXPECT_TRUE(LitTout({other.settings, other.rib, other.messages, fichier}));
    EXPECT_EQ(other.settings.traits, world.settings.traits);
    EXPECT_EQ(other.settings.Unite, " in");
    EXPECT_EQ(other.rib.cordeAfich, "8.1/2");
    EXPECT_EQ(other.rib.corde, 215.9F);
    EXPECT_EQ(other.rib.EpCoffrage, 1.5875F);
    EXPECT_EQ(other.rib.EpBA, 12.7F);
    EXPECT_EQ(other.rib.bloc.HTbloc, 50.8F);
    EXPECT_EQ(other.rib.bloc.BAbloc, 31.75F);
    EXPECT_EQ(other.rib.bloc.BFbloc, 25.4F);
    EXPECT_EQ(other.rib.texte.TailleFont, 10.5F);
    EXPECT_EQ(other.settings.repertoires.RepProfil, "/a");
    EXPECT_EQ(other.settings.repertoires.RepProfilevol, "/b");
    EXPECT_EQ(other.settings.repertoires.LastOpenProfil, "/c d");
    EXPECT_EQ(other.settings.page.MargeHaut, 12.7F);
    EXPECT_EQ(other.settings.page.MargeBas, 19.05F);
    EXPECT_EQ(other.settings.page.recouvrement, 25.4F);
    EXPECT_EQ(other.settings.page.Ydprint, 50.8F);
    EXPECT_EQ(other.settings.page.NumIndex, 7);
}

TEST_F(Settings, EachWriterSavesItsOwnPartOnly) {
    const std::vector<std::pair<void (*)(const Reglages &), std::vector<std::string>>> writers = {
        {EcritCouleurs, {"[Couleurs]"}},
        {EcritStyles, {"[StyleLignes]"}},
        {EcritEpaisseurs, {"[Eprlines]", "[InsText]"}},
        {EcritDefauts, {"[Defaut]"}},
        {EcritRepertoires, {"[Repertoires]"}},
        {EcritMarges, {"[Marges]"}}};
    for (const auto &[write, wanted] : writers) {
        fs::remove(fichier);
        write(With());
        std::vector<std::string> sections;
        for (const auto &[section, entries] : Sections()) {
            sections.push_back(section);
        }
        EXPECT_EQ(sections, wanted);
    }
}

TEST_F(Settings, APageOfAnotherUnitThanTheOneOnFileIsNotKept) {
    ValeursDefaut(With(), programme);
    EcritTout(With()); // in mm
    world.settings.Unite = kUniteIn;
    Page().MargeBasAfich = "1/2";
    EcritMarges(With());
    EXPECT_EQ(GetINIFile("Marges", "MargeBas", fichier), "15");
    world.settings.Unite = kUniteMm;
    Page().MargeBasAfich = "18";
    EcritMarges(With());
    EXPECT_EQ(GetINIFile("Marges", "MargeBas", fichier), "18");
}

TEST_F(Settings, WritersLeaveWhatOthersWrote) {
    File("; mine\r\n[Repertoires]\r\nInstall=1\r\nRepDxf=/dxf\r\n[Language]\r\nLangue=French\r\n");
    FirstRun();
    EXPECT_EQ(GetINIFile("Repertoires", "Install", fichier), "1");
    EXPECT_EQ(GetINIFile("Repertoires", "RepDxf", fichier), "/dxf");
    EXPECT_EQ(GetINIFile("Language", "Langue", fichier), "French");
    std::ifstream file(fichier, std::ios::binary);
    std::string first;
    std::getline(file, first);
    EXPECT_EQ(first, "; mine\r");
}

TEST_F(Settings, MissingKeysReadAsNothing) {
    FirstRun();
    File("[Other]\r\nkey=1\r\n");
    EXPECT_TRUE(LitTout(With()));
    EXPECT_EQ(world.settings.Unite, " mm"); // the one in force
    EXPECT_EQ(world.rib.corde, 0.0F);
    EXPECT_EQ(world.rib.cordeAfich, "");
    EXPECT_EQ(world.settings.TraitDe(Element::coffrage), (Trait{0, 0, 0}));
    EXPECT_EQ(world.settings.TraitDe(Element::axe).epaisseur, 1); // no key of its own
    EXPECT_EQ(world.rib.texte.TailleFont, 0.0F);
    EXPECT_EQ(Folders().RepProfil, "");
    EXPECT_EQ(Page().MargeHaut, 0.0F);
    EXPECT_EQ(Page().NumIndex, 0);
}

TEST_F(Settings, UnitReadsTheSameWithAndWithoutItsBlank) {
    for (const char *line : {"unit= in", "unit=in", "unit =   in  ", "UNIT=in", "unit=\" in\""}) {
        File("[Defaut]\r\n" + std::string(line) + "\r\n");
        world.settings.Unite = " mm";
        EXPECT_TRUE(LitDefauts(With()));
        EXPECT_EQ(world.settings.Unite, " in") << line;
    }
}

TEST_F(Settings, UnitThatIsNoneLeavesTheOneInForce) {
    for (const char *line : {"unit=inch", "unit=[Language]", "unit=", ""}) {
        File("[Defaut]\r\n" + std::string(line) + "\r\ncordeAfich=8\r\n");
        world.settings.Unite = " in";
        EXPECT_TRUE(LitDefauts(With()));
        EXPECT_EQ(world.settings.Unite, " in") << line;
        EXPECT_EQ(world.rib.corde, 203.2F) << line; // 8 in
    }
}

TEST_F(Settings, LengthsAreReadInTheUnitOfTheFile) {
    File("[Marges]\r\nMargeHaut=1\r\n[Defaut]\r\ncordeAfich=8\r\nunit= in\r\n");
    world.settings.Unite = " mm";
    EXPECT_TRUE(LitTout(With()));
    EXPECT_EQ(world.rib.corde, 203.2F);
    EXPECT_EQ(Page().MargeHaut, 25.4F);
}

TEST_F(Settings, ColoursAreNotChecked) {
    File("[Couleurs]\r\ncoulprofil=99\r\n");
    EXPECT_TRUE(LitCouleurs(With()));
    EXPECT_EQ(world.settings.TraitDe(Element::profil).couleur, 99);
}

TEST_F(Settings, NumbersAreReadByTheirBeginning) {
    File("[Couleurs]\r\ncoulprofil= 1 2 red\r\ncoulba=blue\r\ncoulbf=2.5\r\ncoulrep=3.5\r\n");
    EXPECT_TRUE(LitCouleurs(With()));
    EXPECT_EQ(world.settings.TraitDe(Element::profil).couleur, 12);
    EXPECT_EQ(world.settings.TraitDe(Element::ba).couleur, 0);
    EXPECT_EQ(world.settings.TraitDe(Element::bf).couleur, 2); // halves to even
    EXPECT_EQ(world.settings.TraitDe(Element::rep).couleur, 4);
}

TEST_F(Settings, ValueThatDoesNotFitIsToldAndTheOthersAreRead) {
    FirstRun();
    File("[Marges]\r\nMargeHaut=3\r\nNumIndex=300\r\nMargeBas=4\r\n"
         "[Defaut]\r\nunit= in\r\ncordeAfich=8.1/0\r\nEpBAAfich=1\r\n");
    world.platform.Expect(BoxAnswer::ok);
    world.platform.Expect(BoxAnswer::ok);
    EXPECT_FALSE(LitTout(With()));
    ASSERT_EQ(world.platform.boxes.size(), 2U);
    EXPECT_EQ(world.platform.boxes[0].title, " GetINIFile");
    EXPECT_EQ(world.platform.boxes[0].text,
              "<Erreur 1> # 11 <Erreur 2> Loftwing\nDivision by zero");
    EXPECT_EQ(world.platform.boxes[1].text, "<Erreur 1> # 6 <Erreur 2> Loftwing\nOverflow");
    EXPECT_EQ(world.rib.corde, 200.0F); // the pair stays together
    EXPECT_EQ(world.rib.cordeAfich, "200");
    EXPECT_EQ(world.rib.EpBA, 25.4F);
    EXPECT_EQ(Page().NumIndex, 0);
    EXPECT_EQ(Page().MargeBas, 101.6F);
}

TEST_F(Settings, UnreadableFileIsToldOnceAndDefaultsStay) {
    ValeursDefaut(With(), programme);
    fs::create_directory(fichier); // a folder holds no text
    world.platform.Expect(BoxAnswer::ok);
    EXPECT_FALSE(LitTout(With()));
    EXPECT_EQ(world.platform.boxes[0].title, " GetINIFile");
    EXPECT_EQ(world.rib.corde, 200.0F);
    EcritMarges(With()); // a second box would fail the test
    EXPECT_FALSE(LitMarges(With()));
}

TEST_F(Settings, UnwritableFileIsNotReported) {
    fichier = folder.Path("no such folder/Loftwing.ini");
    EcritTout(With()); // an unexpected box would fail the test
    NoteFichierRecent("/a.dat", fichier);
    EXPECT_FALSE(fs::exists(fichier));
    EXPECT_TRUE(LitTout(With())); // a missing file is an empty one
}

TEST_F(Settings, AFileThatHasGoneNeverMakesAChordOfNothing) {
    FirstRun();
    fs::remove(fichier);
    world.rib.corde = 140;
    world.rib.cordeAfich = "140";
    EXPECT_FALSE(LitDefauts(With()));
    EXPECT_EQ(world.rib.corde, 200.0F);
    EXPECT_EQ(world.rib.cordeAfich, "200");
    // In inches there is no built-in chord of that unit: the rib keeps its own.
    world.settings.Unite = kUniteIn;
    world.rib.corde = 203.2F;
    world.rib.cordeAfich = "8";
    EXPECT_FALSE(LitDefauts(With()));
    EXPECT_EQ(world.rib.corde, 203.2F);
    EXPECT_EQ(world.rib.cordeAfich, "8");
}

TEST_F(Settings, FoldersComeFromTheUsersStore) {
    world.platform.store[{"Install", "RepAirfoil"}] = "/home/me/airfoils";
    ReadInstallFolders(With(), programme);
    EXPECT_EQ(Folders().RepProfil, "/home/me/airfoils");
    EXPECT_EQ(Folders().RepProfilevol, programme); // none is stored
    EXPECT_EQ(Folders().LastOpenProfil, "/home/me/airfoils");
    const std::map<std::string, Entries> wanted = {
        {"[Repertoires]", {"RepProfil=/home/me/airfoils", "RepProfilevol=" + programme}}};
    EXPECT_EQ(Sections(), wanted);
}

class ControlOfFolders : public Settings {
  protected:
    ControlOfFolders() {
        Folders().RepProfil = folder.Path("airfoils");
        Folders().RepProfilevol = folder.Path("sets");
        fs::create_directory(Folders().RepProfil);
        fs::create_directory(Folders().RepProfilevol);
    }
    /// The folder that the one box names, "" for no box.
    std::string Told() {
        world.platform.boxes.clear();
        world.platform.lenient = true;
        ControlRep(With(), programme);
        if (world.platform.boxes.empty()) {
            return "";
        }
        EXPECT_EQ(world.platform.boxes.size(), 1U);
        const MessageBox &box = world.platform.boxes[0];
        EXPECT_EQ(box.title, "Alert");
        EXPECT_EQ(box.icon, BoxIcon::stop);
        const std::string before = " <FrmMainMessage 2>";
        const std::string behind = "<FrmMainMessage 3>";
        EXPECT_TRUE(box.text.starts_with(before) && box.text.ends_with(behind)) << box.text;
        return box.text.substr(before.size(), box.text.size() - before.size() - behind.size());
    }
};

TEST_F(ControlOfFolders, FoldersThatAreThereRaiseNoAlert) {
    EXPECT_EQ(Told(), "");
}

TEST_F(ControlOfFolders, MissingFoldersAreToldOneAtATime) {
    Folders().RepProfil = folder.Path("gone");
    Folders().RepProfilevol = folder.Path("gone too");
    EXPECT_EQ(Told(), folder.Path("gone"));
    fs::create_directory(folder.Path("gone"));
    EXPECT_EQ(Told(), folder.Path("gone too"));
    Folders().RepProfil = "";
    EXPECT_EQ(Told(), "");
    EXPECT_EQ(world.platform.boxes.size(), 1U); // the empty path is no folder either
}

TEST_F(ControlOfFolders, ProgramsOwnFolderShouldBeASubfolder) {
    Folders().RepProfil = programme;
    EXPECT_EQ(Told(), "\\airfoils  \\...  ");
    Folders().RepProfilevol = programme + "/";
    EXPECT_EQ(Told(), "\\airfoils  \\...  "); // one box for both
    Folders().RepProfil = folder.Path("airfoils");
    EXPECT_EQ(Told(), "\\airfoils  \\...  ");
}

class Recents : public Settings {
  protected:
    void Keep(const FichiersRecents &entries) {
        std::string text = "[LastFiles]\r\n";
        for (std::size_t i = 0; i < entries.size(); ++i) {
            text += "RecentFile" + std::to_string(i + 1) + "=" + entries[i] + "\r\n";
        }
        File(text);
    }
    FichiersRecents After(const FichiersRecents &entries, const std::string &path) {
        Keep(entries);
        NoteFichierRecent(path, fichier);
        return LitFichiersRecents(fichier);
    }
    /// The rule, step by step.
    static FichiersRecents Naive(FichiersRecents file, const std::string &path) {
        FichiersRecents list;
        bool found = false;
        for (std::size_t i = 0; i < 4; ++i) {
            list[i] = file[i];
            if (i == 0 && list[i] == path) {
                return file;
            }
            if (list[i] == path) {
                for (std::size_t j = 0; j < i; ++j) {
                    file[j + 1] = list[j];
                }
                found = true;
            }
        }
        for (int i = 2; i >= 0 && !found; --i) {
            const auto k = static_cast<std::size_t>(i);
            if (!file[k].empty()) {
                file[k + 1] = file[k];
            }
        }
        file[0] = path;
        return file;
    }
};

TEST_F(Recents, NewFileComesFirstAndTheOldestDropsOut) {
    EXPECT_EQ(After({"a", "b", "c", "d"}, "e"), (FichiersRecents{"e", "a", "b", "c"}));
}

TEST_F(Recents, FirstFileStaysFirst) {
    EXPECT_EQ(After({"a", "b", "c", "d"}, "a"), (FichiersRecents{"a", "b", "c", "d"}));
}

TEST_F(Recents, FileOpenedTwiceStaysOnceAtTheTop) {
    EXPECT_EQ(After({"a", "b", "c", "d"}, "c"), (FichiersRecents{"c", "a", "b", "d"}));
    EXPECT_EQ(After({"a", "b", "c", "d"}, "d"), (FichiersRecents{"d", "a", "b", "c"}));
}

TEST_F(Recents, ListFillsFromAnEmptyFile) {
    for (const char *path : {"/1.dat", "/2.dat", "/2.dat", "/3.dat"}) {
        NoteFichierRecent(path, fichier);
    }
    EXPECT_EQ(LitFichiersRecents(fichier), (FichiersRecents{"/3.dat", "/2.dat", "/1.dat", ""}));
    EXPECT_EQ(Sections()["[LastFiles]"].size(), 3U);
}

TEST_F(Recents, EmptyEntryAboveTheFoundOneMovesDownWithTheOthers) {
    EXPECT_EQ(After({"", "b", "c", ""}, "c"), (FichiersRecents{"c", "", "b", ""}));
}

TEST_F(Recents, EmptyEntryOverwritesNothingWhenAllMoveDown) {
    EXPECT_EQ(After({"a", "", "c", ""}, "e"), (FichiersRecents{"e", "a", "c", "c"}));
}

TEST_F(Recents, RibsHaveAListOfTheirOwn) {
    Keep({"/a.dat", "/b.dat", "", ""});
    for (const char *path : {"/1.lfw", "/2.lfw", "/1.lfw"}) {
        NoteRibRecent(path, fichier);
    }
    EXPECT_EQ(LitRibsRecents(fichier), (FichiersRecents{"/1.lfw", "/2.lfw", "", ""}));
    EXPECT_EQ(GetINIFile("LastRibs", "RecentRib2", fichier), "/2.lfw");
    EXPECT_EQ(LitFichiersRecents(fichier), (FichiersRecents{"/a.dat", "/b.dat", "", ""}));
    NoteFichierRecent("/c.dat", fichier);
    EXPECT_EQ(LitRibsRecents(fichier), (FichiersRecents{"/1.lfw", "/2.lfw", "", ""}));
}

TEST_F(Recents, APathThatTheFileCannotHoldIsNotNoted) {
    const FichiersRecents before = {"a", "b", "c", "d"};
    for (const std::string &path : {"/" + std::string(199, 'x'), std::string("/line\nend.dat"),
                                    std::string("/\xFF.dat"), std::string("/a ")}) {
        EXPECT_EQ(After(before, path), before) << path;
    }
    const std::string long_one = "/" + std::string(198, 'x');
    EXPECT_EQ(After(before, long_one).front(), long_one);
}

TEST_F(Recents, NoPathIsAlreadyFirstInAnEmptyList) {
    NoteFichierRecent("", fichier);
    EXPECT_FALSE(fs::exists(fichier));
}

TEST_F(Recents, EveryListOfFourFollowsTheRule) {
    const std::array<std::string, 4> names = {"", "a", "b", "c"};
    for (unsigned code = 0; code < 256; ++code) {
        const FichiersRecents list = {names.at(code & 3U), names.at(code >> 2U & 3U),
                                      names.at(code >> 4U & 3U), names.at(code >> 6U)};
        for (const std::string path : {"a", "b", "x"}) {
            EXPECT_EQ(After(list, path), Naive(list, path)) << code << " " << path;
        }
    }
}

} // namespace
} // namespace loftwing
