#include "core/airfoil_picker.h"

#include "support/special_files.h"
#include "support/words.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

TEST(AirfoilPicker, FolderOfThirtyCharactersIsShownWhole) {
    const std::string thirty = "/home/someone/airfoils/selig/a";
    ASSERT_EQ(thirty.size(), 30U);
    EXPECT_EQ(CheminAbrege(thirty), thirty);
    EXPECT_EQ(CheminAbrege("/"), "/");
    EXPECT_EQ(CheminAbrege(""), "");
}

TEST(AirfoilPicker, LongerFolderIsShownByBothEnds) {
    // 31 characters: first 12 and last 10.
    EXPECT_EQ(CheminAbrege("/home/someone/airfoils/selig/ab"), "/home/someon...s/selig/ab");
}

TEST(AirfoilPicker, FolderIsMeasuredInCharactersNotBytes) {
    EXPECT_EQ(CheminAbrege("/home/élise/modèles/été/année/a"), "/home/élise/...té/année/a");
    EXPECT_EQ(CheminAbrege("/home/élise/modèles/été/année/"), "/home/élise/modèles/été/année/");
}

TEST(AirfoilPicker, RowsOfFileTypesEndInTheirPattern) {
    EXPECT_EQ(MotifDeLigne("Selig Files (*.dat)"), "*.dat");
    EXPECT_EQ(MotifDeLigne("Coordinates Files (*.cor)"), "*.cor");
}

TEST(AirfoilPicker, PatternsIgnoreCapitals) {
    EXPECT_TRUE(SuitMotif("e205.dat", "*.dat"));
    EXPECT_TRUE(SuitMotif("E205.DAT", "*.dat"));
    EXPECT_TRUE(SuitMotif("E205.Dat", "*.dat"));
    EXPECT_TRUE(SuitMotif("a.b.cor", "*.cor"));
    EXPECT_FALSE(SuitMotif("e205.cor", "*.dat"));
    EXPECT_FALSE(SuitMotif("e205.data", "*.dat"));
    EXPECT_FALSE(SuitMotif("e205dat", "*.dat"));
    EXPECT_FALSE(SuitMotif("dat", "*.dat"));
}

TEST(AirfoilPicker, PathOfAnEntryHasOneSeparator) {
    EXPECT_EQ(CheminDans("/home/me", "e205.dat"), "/home/me/e205.dat");
    EXPECT_EQ(CheminDans("/", "e205.dat"), "/e205.dat");
}

TEST(AirfoilPicker, TopFolderHasNoneAbove) {
    EXPECT_EQ(DossierParent("/home/me"), "/home");
    EXPECT_EQ(DossierParent("/home"), "/");
    EXPECT_EQ(DossierParent("/"), "");
}

TEST(AirfoilPicker, ListsFoldersAndFilesOfThePatternSorted) {
    const TempFolder folder;
    for (const char *name : {"b.dat", "A.DAT", "c.Dat", "a.cor", "note.txt", ".hidden.dat"}) {
        folder.File(name, "");
    }
    fs::create_directory(folder.Path("zeta"));
    fs::create_directory(folder.Path("Alpha"));
    fs::create_directory(folder.Path("folder.dat"));
    fs::create_directory(folder.Path(".config"));
    const ContenuDossier contenu = LitDossier(folder.Path(), "*.dat");
    EXPECT_EQ(contenu.dossiers, (Names{"Alpha", "folder.dat", "zeta"}));
    EXPECT_EQ(contenu.fichiers, (Names{"A.DAT", "b.dat", "c.Dat"}));
    EXPECT_EQ(LitDossier(folder.Path(), "*.cor").fichiers, Names{"a.cor"});
}

TEST(AirfoilPicker, LinksCountAsWhatTheyLeadTo) {
    const TempFolder folder;
    fs::create_directory(folder.Path("real"));
    if (!MakeLink(folder.File("a.dat", ""), folder.Path("link.dat"))) {
        GTEST_SKIP() << "this system has no links for everybody";
    }
    ASSERT_TRUE(MakeLink(folder.Path("real"), folder.Path("link")));
    ASSERT_TRUE(MakeLink(folder.Path("gone"), folder.Path("broken.dat")));
    const ContenuDossier contenu = LitDossier(folder.Path(), "*.dat");
    EXPECT_EQ(contenu.dossiers, (Names{"link", "real"}));
    EXPECT_EQ(contenu.fichiers, (Names{"a.dat", "link.dat"}));
}

int ListingFailure(const std::string &folder) {
    try {
        LitDossier(folder, "*.dat");
    } catch (const Failure &failure) {
        EXPECT_NE(failure.detail.find(folder), std::string::npos);
        return failure.number;
    }
    return 0;
}

TEST(AirfoilPicker, WhatIsNoFolderCannotBeListed) {
    const TempFolder folder;
    EXPECT_EQ(ListingFailure(folder.Path("gone")), 76);
    EXPECT_EQ(ListingFailure(folder.File("a.dat", "")), 76);
}

TEST(AirfoilPicker, FolderWithoutPermissionCannotBeListed) {
    if (!FoldersCanBeClosed()) {
        GTEST_SKIP() << "no folder can be closed to this user";
    }
    const TempFolder folder;
    fs::create_directory(folder.Path("closed"));
    fs::permissions(folder.Path("closed"), fs::perms::none);
    EXPECT_EQ(ListingFailure(folder.Path("closed")), 70);
    EXPECT_EQ(DossierDepart(folder.Path("closed")), fs::current_path().string());
    fs::permissions(folder.Path("closed"), fs::perms::owner_all);
}

TEST(AirfoilPicker, OpensOnTheLastFolderElseOnTheCurrentOne) {
    const TempFolder folder;
    EXPECT_EQ(DossierDepart(folder.Path()), folder.Path());
    EXPECT_EQ(DossierDepart(folder.Path() + "/"), folder.Path());
    EXPECT_EQ(DossierDepart(folder.Path("x/..")), folder.Path());
    EXPECT_EQ(DossierDepart("/"), FromRoot(""));
    const std::string current = fs::current_path().string();
    EXPECT_EQ(DossierDepart(folder.Path("gone")), current);
    EXPECT_EQ(DossierDepart(""), current);
    EXPECT_EQ(DossierDepart(folder.File("a.dat", "")), current);
}

TEST(AirfoilPicker, ShowsTheTitleUnlessItIsTheFirstPoint) {
    RibModel rib;
    rib.NomProfil = "e205";
    rib.EnteteProfil = "EPPLER 205";
    EXPECT_EQ(TitreApercu(rib), "EPPLER 205");
    rib.EnteteProfil = "1.0000 0.0000";
    EXPECT_EQ(TitreApercu(rib), "e205");
    rib.EnteteProfil = "16-009 at 1";
    EXPECT_EQ(TitreApercu(rib), "e205");
}

TEST(AirfoilPicker, CountsThePointsInTheUsersLanguage) {
    const Words words("[frmopen]\n24=dots\n");
    RibModel rib;
    rib.NbPoints = 61;
    EXPECT_EQ(NombreApercu(rib, words.messages), "61 dots");
}

TEST(AirfoilPicker, WarnsOfFilesThatAreNoAirfoilByTheirName) {
    RibModel rib;
    for (const char *name : {"/a/rib.LFW", "/a/rib.lfw", "/a/rib.TXT", "/a/rib.txt"}) {
        NommeProfil(rib, name);
        EXPECT_EQ(NomEcarte(rib), "This file is NOT an Airfoil file....") << name;
    }
    for (const char *name : {"/a/Uninstal.dat", "/a/UNINSTAL.dat", "/a/Uninstal.txt"}) {
        NommeProfil(rib, name);
        EXPECT_EQ(NomEcarte(rib), "Caution Uninstall file....") << name;
    }
    for (const char *name : {"/a/e205.dat", "/a/e205.cor", "/a/rib.Txt", "/a/uninstal.dat"}) {
        NommeProfil(rib, name);
        EXPECT_EQ(NomEcarte(rib), "") << name;
    }
}

TEST(AirfoilPicker, GivesBackTheAirfoilBefore) {
    RibModel rib;
    NommeProfil(rib, "/lib/e205.dat");
    rib.EnteteProfil = "EPPLER 205";
    rib.ProfilCharge = true;
    const ProfilPrecedent before(rib);
    NommeProfil(rib, "/other/clarky.cor");
    rib.EnteteProfil = "CLARK Y";
    rib.ProfilCharge = false;
    before.Rend(rib);
    EXPECT_EQ(rib.CheminProfil, "/lib/e205.dat");
    EXPECT_EQ(rib.NomProfil, "e205");
    EXPECT_EQ(rib.ExtProfil, "dat");
    EXPECT_EQ(rib.EnteteProfil, "EPPLER 205");
    EXPECT_TRUE(rib.ProfilCharge);
}

} // namespace
} // namespace loftwing
