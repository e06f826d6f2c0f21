#include "windows/frmopen_fixture.h"

#include <unistd.h>

namespace loftwing {
namespace {

TEST_F(FrmOpenTest, OpensOnTheLastFolderWithNothingChosen) {
    File("b.dat");
    File("A.DAT");
    File("c.cor");
    fs::create_directory(folder.Path("lib/more"));
    Open();
    EXPECT_EQ(Listed("File1"), (Names{"A.DAT", "b.dat"}));
    EXPECT_EQ(Listed("Dir1"), (Names{"..", "more"}));
    EXPECT_EQ(Text("txtchemin"), folder.Path("lib"));
    EXPECT_EQ(Label("Lbchemin"), CheminAbrege(folder.Path("lib")));
    EXPECT_EQ(Label("Label1"), "");
    EXPECT_EQ(Label("Label2"), "");
    EXPECT_EQ(Label("nomfile1"), "");
    EXPECT_EQ(Preview(), nullptr);
    EXPECT_EQ(programme.rib.CheminProfil, "");
    EXPECT_FALSE(programme.rib.ProfilCharge);
    EXPECT_TRUE(List("File1").selectedItems().isEmpty());
}

TEST_F(FrmOpenTest, OpensOnTheCurrentFolderWhenTheLastOneIsGone) {
    programme.settings.repertoires.LastOpenProfil = folder.Path("gone");
    Open();
    EXPECT_EQ(Text("txtchemin"), fs::current_path().string());
}

TEST_F(FrmOpenTest, ShowsItsWordsAndTips) {
    Open();
    EXPECT_EQ(Title(), "Open airfoil file");
    EXPECT_EQ(Label("LbMem"), "Keep this airfoil in memory");
    EXPECT_EQ(Label("lbldossiers"), "Folders");
    EXPECT_EQ(Label("lblfichiers"), "Airfoil files");
    EXPECT_EQ(Label("lbltype"), "Type of file");
    EXPECT_EQ(Label("lblfichier"), "File :");
    EXPECT_EQ(Label("lbldossier"), "Folder :");
    EXPECT_EQ(Word("cmdouvrir"), "Open");
    EXPECT_EQ(Word("cmdannuler"), "Cancel");
    EXPECT_EQ(Word("cmdaide"), "Help");
    EXPECT_EQ(Tip("Label2"), "Number of points in the file");
    EXPECT_EQ(Tip("Lbchemin"), "Folder whose files are shown");
    EXPECT_EQ(Tip("Dir1"), "Double-click a folder to open it");
    EXPECT_EQ(Tip("File1"), "Click a file to see its airfoil");
    auto &types = Find<QComboBox>("Combo1");
    ASSERT_EQ(types.count(), 2);
    EXPECT_EQ(S(types.itemText(0)), "Selig Files (*.dat)");
    EXPECT_EQ(S(types.itemText(1)), "Coordinates Files (*.cor)");
    EXPECT_EQ(types.currentIndex(), 0);
}

TEST_F(FrmOpenTest, SpeaksFrench) {
    Language("French");
    File("a.dat");
    Open();
    EXPECT_EQ(Title(), "Ouvrir un fichier de profil");
    EXPECT_EQ(Word("cmdouvrir"), "Ouvrir");
    EXPECT_EQ(Word("cmdannuler"), "Annuler");
    EXPECT_EQ(Label("lbldossiers"), "Dossiers");
}

TEST_F(FrmOpenTest, ClickReadsTheFileAndShowsIt) {
    File("small.dat");
    Open();
    ClickFile("small.dat");
    EXPECT_EQ(Label("Label1"), "SMALL 5");
    EXPECT_EQ(Label("Label2"), "5 points");
    EXPECT_EQ(Label("nomfile1"), "small");
    ASSERT_NE(Preview(), nullptr);
    EXPECT_EQ(Preview()->Operations().size(), 5U); // the chord line and four segments
    const RibModel &rib = programme.rib;
    EXPECT_EQ(rib.CheminProfil, folder.Path("lib/small.dat"));
    EXPECT_EQ(rib.NomProfil, "small");
    EXPECT_EQ(rib.ExtProfil, "dat");
    EXPECT_EQ(rib.NbPoints, 5);
    EXPECT_FALSE(rib.ProfilCharge);
    EXPECT_EQ(platform.pointer, Pointer::normal);
    EXPECT_TRUE(IsOpen());
}

TEST_F(FrmOpenTest, APointBeyondAllNumbersHasNoPreview) {
    File("a.dat");
    File("far.dat", "FAR\n1 0\n0.5 1e308\n0 0\n0.5 -0.0625\n1 0\n");
    Open();
    ClickFile("a.dat");
    ASSERT_NE(Preview(), nullptr);
    ClickFile("far.dat");
    EXPECT_EQ(Preview(), nullptr);
    EXPECT_EQ(Label("Label1"), "FAR");
    EXPECT_TRUE(IsOpen());
}

TEST_F(FrmOpenTest, FileWithoutTitleShowsItsName) {
    File("plain.dat", "1.0000 0.0000\n0 0\n1 0\n");
    Open();
    ClickFile("plain.dat");
    EXPECT_EQ(programme.rib.EnteteProfil, "1.0000 0.0000");
    EXPECT_EQ(Label("Label1"), "plain");
    EXPECT_EQ(Label("Label2"), "3 points");
}

TEST_F(FrmOpenTest, ArrowKeysReadTheFilesOneByOne) {
    File("a.dat", "FIRST\n1 0\n0 0\n1 0\n");
    File("b.dat", "SECOND\n1 0\n0 0\n1 0\n");
    Open();
    EXPECT_TRUE(List("File1").hasFocus());
    Key("File1", Qt::Key_Down);
    Rest("a.dat");
    EXPECT_EQ(Label("Label1"), "FIRST");
    Key("File1", Qt::Key_Down);
    Rest("b.dat");
    EXPECT_EQ(Label("Label1"), "SECOND");
}

TEST_F(FrmOpenTest, GoingThroughTheFieldsByTabReadsNothing) {
    File("a.dat", "\n");
    Open();
    for (int i = 0; i < 12; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QApplication::processEvents();
    }
    EXPECT_EQ(programme.rib.CheminProfil, "");
}

TEST_F(FrmOpenTest, TypedLettersFindTheFile) {
    File("clarky.dat", "CLARK\n1 0\n0 0\n1 0\n");
    File("e205.dat", "EPPLER\n1 0\n0 0\n1 0\n");
    Open();
    Keys("File1", "e2");
    Rest("e205.dat");
    EXPECT_EQ(Label("Label1"), "EPPLER");
}

TEST_F(FrmOpenTest, ClickBesideTheFilesReadsNothingAgain) {
    File("bad.dat", "\n");
    Open();
    platform.Expect(BoxAnswer::ok);
    ClickFile("bad.dat");
    const QPoint beside = List("File1").viewport()->rect().bottomRight() - QPoint(5, 5);
    QTest::mouseClick(List("File1").viewport(), Qt::LeftButton, {}, beside);
    QApplication::processEvents();
    EXPECT_EQ(platform.boxes.size(), 1U);
}

TEST_F(FrmOpenTest, ClickOnTheSameFileReadsItAgain) {
    File("a.dat", "\n");
    Open();
    platform.Expect(BoxAnswer::ok);
    ClickFile("a.dat");
    File("a.dat");
    ClickFile("a.dat");
    EXPECT_EQ(Label("Label1"), "SMALL 5");
}

struct Refusal {
    const char *name;
    const char *bytes;
    std::string english_label;
    std::string english_box;
    std::string french_label;
    std::string french_box;
    BoxIcon icon;
};

const Refusal kRefusals[] = {
    {"EmptyFirstLine", "\n1 0\n0 0\n1 0\n", "The first line of the file is empty." + kClosing,
     "The first line of the file is empty." + kClosing,
     "La première ligne du fichier est vide." + kCloture,
     "La première ligne du fichier est vide." + kCloture, BoxIcon::information},
    {"FirstPointBehindOne", "1.0001 0\n0 0\n1 0\n",
     "The first point is not at x = 1.\nPoint 1, x = 1.0001" + kClosing,
     "This file cannot be read as an airfoil.\nThe first point must be at x = 1, at the trailing "
     "edge.\nPoint 1, x = 1.0001" +
         kClosing,
     "Le premier point n’est pas en x = 1.\nPoint 1, x = 1.0001" + kCloture,
     "Ce fichier ne peut pas être lu comme un profil.\nLe premier point doit être en x = 1, au "
     "bord de fuite.\nPoint 1, x = 1.0001" +
         kCloture,
     BoxIcon::information},
    {"FirstPointAtTheNose", "0.0 0.0\n0.5 0.1\n1 0\n",
     "The first point is not at x = 1.\nPoint 1, x = 0" + kClosing,
     "This file cannot be read as an airfoil.\nThe first point must be at x = 1, at the trailing "
     "edge.\nPoint 1, x = 0" +
         kClosing,
     "Le premier point n’est pas en x = 1.\nPoint 1, x = 0" + kCloture,
     "Ce fichier ne peut pas être lu comme un profil.\nLe premier point doit être en x = 1, au "
     "bord de fuite.\nPoint 1, x = 0" +
         kCloture,
     BoxIcon::information},
    {"TwoEqualPoints", "TITLE\n1 0\n0.25 0.1\n0.25 0.1\n0 0\n1 0\n",
     "Two equal points in a row : x = 0.25 and x = 0.25\nPoints 2 and 3, x = 0.25, y = 0.1" +
         kClosing,
     "Two equal points in a row : x = 0.25 and x = 0.25\nPoints 2 and 3, x = 0.25, y = 0.1" +
         kClosing,
     "Deux points identiques de suite\u00a0: x = 0.25 et x = 0.25\nPoints 2 et 3, x = 0.25, y = "
     "0.1" +
         kCloture,
     "Deux points identiques de suite\u00a0: x = 0.25 et x = 0.25\nPoints 2 et 3, x = 0.25, y = "
     "0.1" +
         kCloture,
     BoxIcon::none},
    {"LastPointShortOfOne", "TITLE\n1 0\n0 0\n0.99 0\n",
     "The last point is not at x = 1.\nPoint 3, x = 0.99" + kClosing,
     "The list of points does not end at the trailing edge.\nThe last point is not at x = "
     "1.\nPoint 3, x = 0.99" +
         kClosing,
     "Le dernier point n’est pas en x = 1.\nPoint 3, x = 0.99" + kCloture,
     "La liste des points ne se termine pas au bord de fuite.\nLe dernier point n’est pas en x = "
     "1.\nPoint 3, x = 0.99" +
         kCloture,
     BoxIcon::information},
    {"PointBeyondOneInTheMiddle", "TITLE\n1 0\n0 0\n1.01 0\n1 0\n",
     "The last point is not at x = 1.\nPoint 3, x = 1.01" + kClosing,
     "The list of points does not end at the trailing edge.\nThe last point is not at x = "
     "1.\nPoint 3, x = 1.01" +
         kClosing,
     "Le dernier point n’est pas en x = 1.\nPoint 3, x = 1.01" + kCloture,
     "La liste des points ne se termine pas au bord de fuite.\nLe dernier point n’est pas en x = "
     "1.\nPoint 3, x = 1.01" +
         kCloture,
     BoxIcon::information},
};

class FrmOpenRefusalTest : public FrmOpenTest, public testing::WithParamInterface<Refusal> {
  protected:
    void ExpectRefusal(const std::string &label, const std::string &box, const std::string &title) {
        File("a.dat");
        File("bad.dat", GetParam().bytes);
        Open();
        ClickFile("a.dat");
        ASSERT_NE(Preview(), nullptr);
        platform.Expect(BoxAnswer::ok, {.meanwhile = [this] {
                            EXPECT_EQ(Preview(), nullptr);
                            EXPECT_EQ(Label("Label2"), "");
                        }});
        ClickFile("bad.dat");
        EXPECT_EQ(Label("Label1"), label);
        EXPECT_EQ(Label("Label2"), "");
        EXPECT_EQ(Label("nomfile1"), "bad");
        EXPECT_EQ(Preview(), nullptr);
        ASSERT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(platform.boxes[0].text, box);
        EXPECT_EQ(platform.boxes[0].title, title);
        EXPECT_EQ(platform.boxes[0].icon, GetParam().icon);
        EXPECT_EQ(programme.rib.NbPoints, 0);
        EXPECT_EQ(platform.pointer, Pointer::normal);
        EXPECT_TRUE(IsOpen());
        EXPECT_TRUE(view.asked.empty());
    }
};

TEST_P(FrmOpenRefusalTest, IsToldInEnglish) {
    ExpectRefusal(GetParam().english_label, GetParam().english_box, "Open airfoil file");
}

TEST_P(FrmOpenRefusalTest, IsToldInFrench) {
    Language("French");
    ExpectRefusal(GetParam().french_label, GetParam().french_box, "Ouvrir un fichier de profil");
}

INSTANTIATE_TEST_SUITE_P(Refusals, FrmOpenRefusalTest, testing::ValuesIn(kRefusals),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(FrmOpenTest, BoxesCarryTheCaptionThatTheCommandGave) {
    File("bad.dat", "\n");
    File("four.dat", "FOUR\n1 0\n0.5 0.1\n0 0\n1 0\n");
    Open().setWindowTitle("Airfoil #2");
    platform.Expect(BoxAnswer::ok);
    ClickFile("bad.dat");
    ClickFile("four.dat");
    EXPECT_EQ(platform.boxes.at(0).title, "Airfoil #2");
    platform.Expect(BoxAnswer::ok);
    Click("cmdouvrir");
    EXPECT_EQ(platform.boxes.at(1).title, "Airfoil #2");
}

TEST_F(FrmOpenTest, FailureOfTheReadingClearsTheRib) {
    File("a.dat");
    File("bad.dat", "TITLE\n1 0\n0.5\n1 0\n"); // a line without a blank
    Open();
    ClickFile("a.dat");
    platform.Expect(BoxAnswer::ok);
    ClickFile("bad.dat");
    EXPECT_EQ(view.asked, Names{"affclear"});
    EXPECT_EQ(platform.boxes.at(0).title, " Open/FichierLecture");
    EXPECT_NE(platform.boxes.at(0).text.find("# 5 "), std::string::npos);
    EXPECT_EQ(programme.rib.NbPoints, 0);
    EXPECT_EQ(Preview(), nullptr);
    EXPECT_EQ(Label("Label1"), "");
    EXPECT_EQ(Label("Label2"), "");
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(FrmOpenTest, FileThatHasGoneIsAFailure) {
    File("a.dat");
    Open();
    fs::remove(folder.Path("lib/a.dat"));
    platform.Expect(BoxAnswer::ok);
    ClickFile("a.dat");
    EXPECT_EQ(view.asked, Names{"affclear"});
    EXPECT_NE(platform.boxes.at(0).text.find("# 53 "), std::string::npos);
}

TEST_F(FrmOpenTest, FileThatMayNotBeReadIsAFailure) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "nothing is forbidden to the superuser";
    }
    File("a.dat");
    fs::permissions(folder.Path("lib/a.dat"), fs::perms::none);
    Open();
    platform.Expect(BoxAnswer::ok);
    ClickFile("a.dat");
    EXPECT_NE(platform.boxes.at(0).text.find("# 70 "), std::string::npos);
}

TEST_F(FrmOpenTest, OpenTakesTheFileAndNotesItsFolder) {
    File("small.dat");
    Open();
    ClickFile("small.dat");
    Click("cmdouvrir");
    ExpectOpened(folder.Path("lib/small.dat"));
    EXPECT_EQ(programme.settings.repertoires.LastOpenProfil, folder.Path("lib"));
    EXPECT_EQ(GetINIFile("Repertoires", "LastOpenProfil", programme.paths.fichier),
              folder.Path("lib"));
}

TEST_F(FrmOpenTest, DoubleClickOpens) {
    File("small.dat");
    Open();
    DoubleClick("File1", "small.dat");
    ExpectOpened(folder.Path("lib/small.dat"));
}

TEST_F(FrmOpenTest, ReturnOnAFileOpens) {
    File("small.dat");
    Open();
    Key("File1", Qt::Key_Down);
    Key("File1", Qt::Key_Return); // before the preview had its turn
    ExpectOpened(folder.Path("lib/small.dat"));
    EXPECT_EQ(programme.rib.NbPoints, 5);
}

TEST_F(FrmOpenTest, OpenWithoutAFileIsRefusedAndCancels) {
    File("small.dat");
    Open();
    platform.Expect(BoxAnswer::ok);
    Click("cmdouvrir");
    EXPECT_EQ(platform.boxes.at(0).text, "No airfoil file has been chosen.");
    EXPECT_EQ(platform.boxes.at(0).title, "Open airfoil file");
    ExpectBefore();
}

TEST_F(FrmOpenTest, OpenWithFourPointsIsRefusedAndCancels) {
    File("four.dat", "FOUR\n1 0\n0.5 0.1\n0 0\n1 0\n");
    Open();
    ClickFile("four.dat");
    EXPECT_EQ(Label("Label2"), "4 points");
    platform.Expect(BoxAnswer::ok);
    Click("cmdouvrir");
    EXPECT_EQ(platform.boxes.at(0).text, "An airfoil needs 5 points or more." + kClosing);
    ExpectBefore();
    EXPECT_EQ(GetINIFile("Repertoires", "LastOpenProfil", programme.paths.fichier), "");
}

TEST_F(FrmOpenTest, OpenWithFourPointsIsRefusedInFrenchToo) {
    Language("French");
    File("four.dat", "FOUR\n1 0\n0.5 0.1\n0 0\n1 0\n");
    Open();
    ClickFile("four.dat");
    platform.Expect(BoxAnswer::ok);
    Click("cmdouvrir");
    EXPECT_EQ(platform.boxes.at(0).text, "Un profil doit avoir au moins 5 points." + kCloture);
    ExpectBefore();
}

TEST_F(FrmOpenTest, CancelGivesTheAirfoilBeforeBack) {
    File("small.dat");
    Open();
    ClickFile("small.dat");
    Click("cmdannuler");
    ExpectBefore();
}

TEST_F(FrmOpenTest, EscapeIsCancel) {
    File("small.dat");
    Open();
    ClickFile("small.dat");
    Key("File1", Qt::Key_Escape);
    ExpectBefore();
}

TEST_F(FrmOpenTest, ClosingTheWindowIsCancel) {
    File("small.dat");
    Open();
    ClickFile("small.dat");
    Close();
    ExpectBefore();
}

TEST_F(FrmOpenTest, CancelWithNoAirfoilBeforeLeavesNone) {
    programme.rib.CheminProfil.clear();
    programme.rib.NomProfil.clear();
    programme.rib.ProfilCharge = false;
    File("small.dat");
    Open();
    ClickFile("small.dat");
    Click("cmdannuler");
    EXPECT_EQ(programme.rib.CheminProfil, "");
    EXPECT_EQ(programme.rib.NomProfil, "");
    EXPECT_FALSE(programme.rib.ProfilCharge);
    EXPECT_TRUE(programme.rib.Annule);
}

TEST_F(FrmOpenTest, TypeOfFileChangesTheListAndClearsTheTitle) {
    File("a.dat");
    File("b.cor", "CORD\n1 0\n0 0\n1 0\n");
    File("C.COR");
    Open();
    ClickFile("a.dat");
    auto &types = Find<QComboBox>("Combo1");
    types.setFocus();
    Key("Combo1", Qt::Key_Down);
    EXPECT_EQ(Label("Label1"), "");
    EXPECT_EQ(Listed("File1"), (Names{"b.cor", "C.COR"}));
    ClickFile("b.cor");
    EXPECT_EQ(Label("Label1"), "CORD");
    EXPECT_EQ(programme.rib.ExtProfil, "cor");
    Key("Combo1", Qt::Key_Up);
    EXPECT_EQ(Listed("File1"), Names{"a.dat"});
}

TEST_F(FrmOpenTest, DoubleClickOnAFolderEntersIt) {
    File("a.dat");
    fs::create_directory(folder.Path("lib/inner"));
    folder.File("lib/inner/deep.dat", kFivePoints);
    Open();
    ClickFile("a.dat");
    DoubleClick("Dir1", "inner");
    EXPECT_EQ(Listed("File1"), Names{"deep.dat"});
    EXPECT_EQ(Label("Lbchemin"), CheminAbrege(folder.Path("lib/inner")));
    EXPECT_EQ(Label("Label1"), "");
    EXPECT_EQ(Label("Label2"), "");
    EXPECT_EQ(Label("nomfile1"), "");
    DoubleClick("Dir1", "..");
    EXPECT_EQ(Listed("File1"), Names{"a.dat"});
    EXPECT_EQ(S(List("Dir1").currentItem()->text()), "inner");
}

TEST_F(FrmOpenTest, KeysWalkThroughFolders) {
    fs::create_directory(folder.Path("lib/inner"));
    folder.File("lib/inner/deep.dat", kFivePoints);
    Open();
    List("Dir1").setFocus();
    Key("Dir1", Qt::Key_Down);
    Key("Dir1", Qt::Key_Return);
    EXPECT_EQ(Listed("File1"), Names{"deep.dat"});
    EXPECT_TRUE(IsOpen());
    Key("Dir1", Qt::Key_Backspace);
    EXPECT_EQ(Text("txtchemin"), folder.Path("lib"));
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Text("txtchemin"), folder.Path());
    EXPECT_EQ(S(List("Dir1").currentItem()->text()), "lib");
}

TEST_F(FrmOpenTest, TopFolderHasNoWayUp) {
    programme.settings.repertoires.LastOpenProfil = "/";
    Open();
    EXPECT_TRUE(List("Dir1").findItems("..", Qt::MatchExactly).isEmpty());
    Key("Dir1", Qt::Key_Backspace);
    EXPECT_EQ(Label("Lbchemin"), "/");
}

TEST_F(FrmOpenTest, FolderThatHasGoneIsReportedAndThePresentOneStays) {
    File("a.dat");
    fs::create_directory(folder.Path("lib/gone"));
    Open();
    fs::remove(folder.Path("lib/gone"));
    platform.Expect(BoxAnswer::ok);
    DoubleClick("Dir1", "gone");
    EXPECT_NE(platform.boxes.at(0).text.find("# 76 "), std::string::npos);
    EXPECT_EQ(Listed("File1"), Names{"a.dat"});
    EXPECT_EQ(Text("txtchemin"), folder.Path("lib"));
    EXPECT_TRUE(view.asked.empty());
}

TEST_F(FrmOpenTest, FolderThatMayNotBeReadIsReported) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "nothing is forbidden to the superuser";
    }
    fs::create_directory(folder.Path("lib/closed"));
    fs::permissions(folder.Path("lib/closed"), fs::perms::none);
    Open();
    platform.Expect(BoxAnswer::ok);
    DoubleClick("Dir1", "closed");
    EXPECT_NE(platform.boxes.at(0).text.find("# 70 "), std::string::npos);
    fs::permissions(folder.Path("lib/closed"), fs::perms::owner_all);
}

TEST_F(FrmOpenTest, LongFolderIsShortened) {
    const std::string deep = folder.Path("lib/a folder with quite a long name");
    fs::create_directory(deep);
    programme.settings.repertoires.LastOpenProfil = deep;
    Open();
    EXPECT_EQ(Label("Lbchemin"), deep.substr(0, 12) + "... long name");
    EXPECT_EQ(Text("txtchemin"), deep);
}

TEST_F(FrmOpenTest, TypedFolderIsShown) {
    fs::create_directory(folder.Path("other"));
    folder.File("other/x.dat", kFivePoints);
    Open();
    TypePath(folder.Path("other/"));
    Key("txtchemin", Qt::Key_Return);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Listed("File1"), Names{"x.dat"});
    TypePath("../lib");
    Key("txtchemin", Qt::Key_Return);
    EXPECT_EQ(Text("txtchemin"), folder.Path("lib"));
}

TEST_F(FrmOpenTest, TypedFileIsSelectedAndOpenTakesIt) {
    fs::create_directory(folder.Path("other"));
    folder.File("other/x.dat", kFivePoints);
    Open();
    TypePath(folder.Path("other/x.dat"));
    Key("txtchemin", Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(Label("Label1"), "SMALL 5");
    EXPECT_TRUE(IsOpen());
    Click("cmdouvrir");
    ExpectOpened(folder.Path("other/x.dat"));
}

TEST_F(FrmOpenTest, OpenTakesATypedFileAtOnceAndOnlyShowsATypedFolder) {
    File("a.dat");
    fs::create_directory(folder.Path("other"));
    Open();
    TypePath(folder.Path("other"));
    Click("cmdouvrir");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Listed("File1"), Names{});
    TypePath(folder.Path("lib/a.dat"));
    Click("cmdouvrir");
    ExpectOpened(folder.Path("lib/a.dat"));
}

TEST_F(FrmOpenTest, TypedNonsenseIsReported) {
    Open();
    TypePath("/no/such/place");
    platform.Expect(BoxAnswer::ok);
    Key("txtchemin", Qt::Key_Return);
    EXPECT_NE(platform.boxes.at(0).text.find("# 76 "), std::string::npos);
    EXPECT_EQ(Text("txtchemin"), folder.Path("lib"));
}

TEST_F(FrmOpenTest, RibAndTextFilesAreWarnedOfAfterTheReading) {
    File("rib.lfw", kFivePoints);
    File("bad.txt", "\n");
    Open();
    TypePath(folder.Path("lib/rib.lfw"));
    Key("txtchemin", Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(Label("Label1"), "This file is NOT an Airfoil file....");
    EXPECT_EQ(Preview(), nullptr);
    EXPECT_TRUE(platform.boxes.empty());
    TypePath(folder.Path("lib/bad.txt"));
    platform.Expect(BoxAnswer::ok);
    Key("txtchemin", Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(Label("Label1"), "This file is NOT an Airfoil file....");
}

TEST_F(FrmOpenTest, RemainsOfAnInstallerAreWarnedOf) {
    File("Uninstal.dat");
    Open();
    ClickFile("Uninstal.dat");
    EXPECT_EQ(Label("Label1"), "Caution Uninstall file....");
    EXPECT_EQ(Preview(), nullptr);
}

TEST_F(FrmOpenTest, OddFileNamesAreShownAndOpened) {
    const Names names = {"a & b.dat", "fifty %1 <b>.dat", "profil été.dat", "two  blanks.dat",
                         "\xe9.dat"}; // the last one in an old encoding
    for (const std::string &name : names) {
        File(name);
    }
    for (const std::string &name : names) {
        Open();
        const std::string shown = name == names.back() ? "é.dat" : name;
        ClickFile(shown);
        EXPECT_EQ(Label("nomfile1"), shown.substr(0, shown.size() - 4));
        EXPECT_EQ(Label("Label1"), "SMALL 5") << shown;
        Click("cmdouvrir");
        ExpectOpened(CheminDans(folder.Path("lib"), name));
    }
}

TEST_F(FrmOpenTest, FolderNamedLikeAFileIsAFolder) {
    fs::create_directory(folder.Path("lib/box.dat"));
    Open();
    EXPECT_EQ(Listed("File1"), Names{});
    EXPECT_EQ(Listed("Dir1"), (Names{"..", "box.dat"}));
}

TEST_F(FrmOpenTest, ThreeThousandFilesAreListedAndFound) {
    constexpr int kFiles = 3000;
    for (int i = 0; i < kFiles; ++i) {
        File("naca" + std::to_string(10000 + i) + ".dat");
    }
    Open();
    EXPECT_EQ(List("File1").count(), kFiles);
    EXPECT_EQ(Listed("File1").front(), "naca10000.dat");
    EXPECT_EQ(Listed("File1").back(), "naca12999.dat");
    Keys("File1", "naca12999");
    Rest("naca12999.dat");
    EXPECT_EQ(Label("nomfile1"), "naca12999");
}

TEST_F(FrmOpenTest, LongTitlesAndNamesDoNotStretchTheWindow) {
    const std::string name(200, 'w');
    File("a.dat");
    File(name + ".dat", std::string(5000, 'W') + "\n1 0\n0 0\n1 0\n");
    Open();
    const QSize before = window->sizeHint();
    const QSize smallest = window->minimumSizeHint();
    ClickFile(name + ".dat");
    EXPECT_EQ(Label("Label1").size(), 5000U);
    EXPECT_EQ(window->sizeHint(), before);
    EXPECT_EQ(window->minimumSizeHint(), smallest);
}

TEST_F(FrmOpenTest, MemoryIsHiddenUntilACommandShowsIt) {
    Open();
    EXPECT_FALSE(Shown("memP1"));
    EXPECT_FALSE(Shown("LbMem"));
    EXPECT_FALSE(Shown("Label3"));
    window->MontreMemoire(true, {});
    EXPECT_TRUE(Shown("memP1"));
    EXPECT_TRUE(Shown("LbMem"));
    EXPECT_FALSE(Shown("Label3"));
    window->MontreMemoire(false, "Airfoil #1 = e205");
    EXPECT_FALSE(Shown("memP1"));
    EXPECT_TRUE(Shown("Label3"));
    EXPECT_EQ(Label("Label3"), "Airfoil #1 = e205");
}

TEST_F(FrmOpenTest, MemoryCheckIsKeptByOpenAndClearedByCancel) {
    File("small.dat");
    Open();
    window->MontreMemoire(true, {});
    Key("memP1", Qt::Key_Space);
    EXPECT_TRUE(programme.rib.MemProfil);
    Click("LbMem");
    EXPECT_FALSE(programme.rib.MemProfil);
    Click("LbMem");
    EXPECT_TRUE(programme.rib.MemProfil);
    Click("cmdannuler");
    ExpectBefore();
    Open();
    window->MontreMemoire(true, {});
    Key("memP1", Qt::Key_Space);
    programme.rib.Annule = false;
    ClickFile("small.dat");
    Click("cmdouvrir");
    EXPECT_TRUE(programme.rib.MemProfil);
}

TEST_F(FrmOpenTest, HelpOpensItsPage) {
    Open();
    Click("cmdaide");
    Key(Qt::Key_F1);
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{41, 41}));
}

TEST_F(FrmOpenTest, PreviewShowsTheWholeSurface) {
    // A point at the very top and one at the very bottom of the surface.
    File("tall.dat", "TALL\n1 0\n0.5 0.999\n0 0\n0.5 -0.999\n1 0\n");
    Open();
    ClickFile("tall.dat");
    for (const QSize size : {QSize(400, 300), QSize(300, 900), QSize(200, 200)}) {
        auto &surface = Find<Apercu>("Surface");
        surface.setFixedSize(size);
        QApplication::processEvents();
        const QImage image = surface.grab().toImage();
        int top = image.height();
        int bottom = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                if (colour.red() > 200 && colour.green() < 120) {
                    top = std::min(top, y);
                    bottom = std::max(bottom, y);
                }
            }
        }
        // 1.998 chords of 5000 on a surface of 6200 by 10000.
        const double scale = std::min(size.width() / 6200.0, size.height() / 10000.0);
        EXPECT_NEAR(bottom - top, 1.998 * 5000 * scale, 4) << size.width();
    }
}

} // namespace
} // namespace loftwing
