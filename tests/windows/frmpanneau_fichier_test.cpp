// Panel files in the panel's window.

#include "support/ordinary_user.h"
#include "windows/frmpanneau_fixture.h"

#include <QTimer>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class PanelFileWindow : public PanelWindow {
  protected:
    std::string File(const std::string &more = "") {
        Written(root, "root.lfw");
        Written(tip, "tip.lfw");
        return world.folder.File("ribs/wing.lfp",
                                 "[Panel]\nRoot=root.lfw\nTip=tip.lfw\nUnit=mm\nCount=3\n"
                                 "Length=600\nThickness=2\nFirst=4\nTaper=12\n" +
                                     more);
    }
    void Open(const Seen &dialog, const std::string &path) {
        world.platform.files_expected.push_back(path);
        dialog.Click("cmdouvrir");
    }
    void Save(const Seen &dialog, const std::string &path) {
        world.platform.files_expected.push_back(path);
        dialog.Click("cmdenregistrer");
    }
    std::string Text() const { return world.folder.Bytes("ribs/wing.lfp"); }
    std::string Recent(int number) const {
        return S(world.Action("mnuRibMRU(" + std::to_string(number) + ")")->data().toString());
    }
    /// The panel's window comes up in another way than by its command.
    void AwaitWindow(const User &user) {
        InNextDialog([this, user](Seen &dialog) {
            EXPECT_EQ(dialog.Name(), "frmpanneau");
            user(dialog);
            Leave(dialog);
        });
    }
    void ExpectWing(const Seen &dialog) {
        EXPECT_EQ(dialog.Text("txtfichier"), "wing.lfp");
        EXPECT_EQ(dialog.Text({"txtbout", 0}), "root.lfw");
        EXPECT_THAT(Column(Ribs(dialog), 0), ElementsAre("4", "5", "6", "7", "8"));
        EXPECT_EQ(Plan(dialog).longueur, 600);
        EXPECT_EQ(dialog.Text({"txt", 1}), "2");
    }
};

TEST_F(PanelFileWindow, OpensAPanelWithAllItHas) {
    root.spars = {SparAt("72"), SparAt("150"), ComponentsText::BlankSpar()};
    const std::string path = File("[Ranges]\nspar2=1-3\n[Sheets]\nSizes=90x500\nMarks=0\n");
    Use(
        [&](Seen &dialog) {
            Open(dialog, path);
            EXPECT_EQ(LastQuestion().title, "Open a wing panel");
            EXPECT_EQ(LastQuestion().filter_text, "Wing panel (*.lfp)");
            ExpectWing(dialog);
            EXPECT_EQ(Cell(Ranges(dialog), 1, 1), "4");
            EXPECT_EQ(Cell(Ranges(dialog), 1, 2), "6");
            EXPECT_EQ(Plan(dialog).longerons.at(1).size(), 3U);
            EXPECT_FALSE(dialog.As<frmpanneau>().Modifie());
            dialog.Click("cmdplanches");
        },
        {[](Seen &sheets) {
            EXPECT_EQ(sheets.Text("txtformats"), "90x500");
            EXPECT_FALSE(sheets.Chosen({"chk", 2}));
            EXPECT_FALSE(sheets.Chosen({"chk", 0}));
        }});
    EXPECT_THAT(world.platform.boxes, IsEmpty());
    EXPECT_EQ(Recent(1), path);
}

TEST_F(PanelFileWindow, WhatIsSavedComesBackAndUnknownKeysAreKept) {
    root.spars = {SparAt("72"), SparAt("150"), ComponentsText::BlankSpar()};
    const std::string path = File();
    Use([&](Seen &dialog) {
        TakeBoth(dialog);
        dialog.Type({"txt", 2}, "7");
        dialog.Click({"optecart", 1});
        dialog.Type({"txtliste", 0}, "60 60,5  60");
        dialog.Type({"txtliste", 1}, "2");
        Ranges(dialog).item(1, 1)->setText("8");
        Ranges(dialog).item(1, 2)->setText("9");
        Save(dialog, path); // what was typed last hasn't rested yet
        EXPECT_EQ(LastQuestion().title, "Save the wing panel");
        EXPECT_EQ(LastQuestion().name, "naca2412.lfp");
        EXPECT_EQ(dialog.Label("lblenregistre"), "The panel is saved in : " + path);
        EXPECT_FALSE(dialog.As<frmpanneau>().Modifie());
        dialog.Type({"txt", 2}, "8");
        EXPECT_TRUE(dialog.As<frmpanneau>().Modifie());
        dialog.Type({"txt", 2}, "7");
        EXPECT_FALSE(dialog.As<frmpanneau>().Modifie());
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
    EXPECT_THAT(Text(), HasSubstr("Taper=12"));
    EXPECT_THAT(Text(), HasSubstr("Gaps=60 60.5 60\r\n"));
    EXPECT_THAT(Text(), HasSubstr("Thickness=2 2 2 2\r\n"));
    EXPECT_THAT(Text(), HasSubstr("spar2=2-3"));
    EXPECT_THAT(Text(), HasSubstr("Root=root.lfw"));
    Use([&](Seen &dialog) {
        Open(dialog, path);
        EXPECT_TRUE(dialog.Chosen({"optecart", 1}));
        EXPECT_EQ(dialog.Text({"txtliste", 0}), "60 60.5 60");
        EXPECT_EQ(Cell(Ranges(dialog), 1, 1), "8");
        EXPECT_EQ(Ribs(dialog).rowCount(), 4);
    });
}

TEST_F(PanelFileWindow, ChangesAreAskedAboutBeforeAnotherIsOpened) {
    const std::string path = File();
    Use([&](Seen &dialog) {
        Open(dialog, path);
        dialog.Type({"txt", 0}, "5");
        world.platform.Expect(BoxAnswer::no, {.text = HasSubstr("no panel file has")});
        dialog.Click("cmdouvrir");
        EXPECT_EQ(dialog.Text({"txt", 0}), "5");
        EXPECT_EQ(world.platform.file_questions.size(), 1U);
        world.platform.Expect(BoxAnswer::yes);
        Open(dialog, path);
        EXPECT_EQ(dialog.Text({"txt", 0}), "3");
    });
}

TEST_F(PanelFileWindow, ChangesCanBeSavedBeforeTheWindowCloses) {
    const std::string path = File();
    Use([&](Seen &dialog) {
        Open(dialog, path);
        dialog.Type({"txt", 0}, "5");
        world.platform.Expect(BoxAnswer::save, {.text = HasSubstr("no panel file has")});
        world.platform.files_expected.emplace_back(); // cancelled
        dialog.Key(Qt::Key_Escape);
        EXPECT_TRUE(dialog.IsOpen());
        world.platform.Expect(BoxAnswer::save, {.text = HasSubstr("no panel file has")});
        world.platform.files_expected.push_back(path);
        dialog.Key(Qt::Key_Escape);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_THAT(ReadWholeFile(path), HasSubstr("Count=5"));
}

TEST_F(PanelFileWindow, ComesAmongTheRecentFilesAndOpensFromThereByADropAndAsAnArgument) {
    const std::string path = File();
    int seen = 0;
    const auto looks = [&](Seen &dialog) {
        ExpectWing(dialog);
        ++seen;
    };
    // A drop is over before its file is opened.
    QTimer::singleShot(0, [&] { AwaitWindow(looks); });
    world.Drop(path, [&] { return seen == 1; });
    EXPECT_EQ(Recent(1), path);
    AwaitWindow(looks);
    world.Action("mnuRibMRU(1)")->trigger();
    AwaitWindow(looks);
    world.window->OuvreFichier(path); // as an argument does
    EXPECT_EQ(seen, 3);
    EXPECT_FALSE(Rib().ProfilCharge);
    std::filesystem::remove(path);
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr(path)});
    world.Action("mnuRibMRU(1)")->trigger();
}

TEST_F(PanelFileWindow, BadFilesGetTheirMessageAndLoseNothing) {
    const std::string good = File();
    const std::string bad = world.folder.File("ribs/bad.lfp", "[Panel]\nRoot=root.lfw\n");
    const std::string inches = world.folder.File(
        "ribs/inches.lfp", "[Panel]\nRoot=root.lfw\nTip=tip.lfw\nUnit=in\nCount=3\n");
    const std::string lost = world.folder.File(
        "ribs/lost.lfp", "[Panel]\nRoot=root.lfw\nTip=none.lfw\nUnit=mm\nCount=2\n");
    Use([&](Seen &dialog) {
        Open(dialog, good);
        world.platform.Expect(
            BoxAnswer::ok,
            {.text = "This is no panel file, or a value of it can't be :\n" + bad + ", Tip",
             .title = "Wing panel"});
        Open(dialog, bad);
        ExpectWing(dialog);
        world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("are in another unit.")});
        Open(dialog, inches);
        ExpectWing(dialog);
        world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("none.lfw")});
        Open(dialog, lost);
        ExpectWing(dialog);
        EXPECT_FALSE(dialog.As<frmpanneau>().Modifie());
    });
    EXPECT_EQ(Recent(1), good);
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("bad.lfp")});
    world.window->OuvreFichier(bad); // and no window comes
}

TEST_F(PanelFileWindow, WhatNoFileHasCannotBeSaved) {
    OpenBytes("mine.lfw", root.Current());
    Rib().Modifie = true;
    Use([&](Seen &dialog) {
        world.platform.Expect(BoxAnswer::ok, {.text = "Choose a root rib and a tip rib."});
        dialog.Click("cmdenregistrer");
        dialog.Click({"cmdfenetre", 0});
        Take(dialog, 1, Written(tip, "tip.lfw"));
        TypeCount(dialog, 1);
        world.platform.Expect(BoxAnswer::ok,
                              {.text = HasSubstr("Root rib: this rib isn't in a file as it is")});
        dialog.Click("cmdenregistrer");
        Take(dialog, 0, world.folder.Path("ribs/mine.lfw"));
        dialog.Type({"txt", 2}, "0");
        world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("Number of the first rib: this")});
        dialog.Click("cmdenregistrer");
        dialog.Type({"txt", 2}, "1");
        const std::size_t asked = world.platform.file_questions.size();
        Save(dialog, ""); // cancelled
        EXPECT_EQ(world.platform.file_questions.size(), asked + 1);
        EXPECT_TRUE(dialog.As<frmpanneau>().Modifie());
    });
    EXPECT_FALSE(Exists("ribs/wing.lfp"));
}

TEST_F(PanelFileWindow, AFileThatCannotBeWrittenIsTold) {
    const std::string path = File();
    const std::string before = Text();
    std::filesystem::permissions(
        world.folder.Path("ribs"),
        std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec |
            std::filesystem::perms::others_read | std::filesystem::perms::others_exec);
    Use([&](Seen &dialog) {
        Open(dialog, path);
        dialog.Type({"txt", 0}, "5");
        const OrdinaryUser user;
        world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("ribs/wing.lfp")});
        Save(dialog, path);
        EXPECT_TRUE(dialog.As<frmpanneau>().Modifie());
    });
    EXPECT_EQ(Text(), before);
}

} // namespace
} // namespace loftwing
