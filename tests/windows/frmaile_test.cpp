// The window that puts panels together to a wing.

#include "mainwindow/frmaile.h"

#include "base/whole_file.h"
#include "support/ordinary_user.h"
#include "windows/frmmain_files_fixture.h"

#include <gmock/gmock.h>

#include <QPlainTextEdit>
#include <QTimer>

#include <algorithm>
#include <filesystem>
#include <map>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// Panels between ribs of 240, 180 and 100 mm.
class WingWindow : public RibFiles {
  protected:
    WingWindow() {
        for (const char *chord : {"240", "180", "100"}) {
            ComponentsText rib;
            rib.chord = chord;
            world.folder.File(std::string("ribs/") + chord + ".lfw", rib.Current());
        }
        inner = Panel("inner.lfp", "240", "180", "Count=3\nLength=500\nSweep=20\nFirst=9\n");
        outer = Panel("outer.lfp", "180", "100", "Count=2\nLength=300\nDihedral=5\n");
    }

    std::string inner, outer;

    std::string Panel(const char *name, const char *root, const char *tip, const char *more) {
        return world.folder.File(std::string("ribs/") + name,
                                 std::string("[Panel]\nUnit=mm\nRoot=") + root +
                                     ".lfw\nTip=" + tip + ".lfw\n" + more);
    }
    std::string Wing(const char *text = "[Wing]\nFirst=4\nPanel1=inner.lfp\nPanel2=outer.lfp\n") {
        return world.folder.File("ribs/wing.lfa", text);
    }
    /// Who goes loses what no wing file has.
    void Leave(Seen &dialog) {
        if (dialog.As<frmaile>().Modifie()) {
            world.platform.Expect(BoxAnswer::yes,
                                  {.text = testing::StartsWith("The wing has changes that no")});
        }
        dialog.As<QDialog>().reject();
        EXPECT_FALSE(dialog.IsOpen());
    }
    void Use(const User &user) {
        world.Run("mnu_outilaile", {[this, user](Seen &dialog) {
                      EXPECT_EQ(dialog.Name(), "frmaile");
                      user(dialog);
                      if (dialog.IsOpen()) {
                          Leave(dialog);
                      }
                  }});
    }
    void Add(const Seen &dialog, const std::string &path) {
        world.platform.files_expected.push_back(path);
        dialog.Click({"cmdliste", 0});
    }
    void AddBoth(const Seen &dialog) {
        Add(dialog, inner);
        Add(dialog, outer);
    }
    static QTableWidget &List(const Seen &dialog) { return dialog.Find<QTableWidget>("Panneaux"); }
    static std::vector<std::string> Row(const Seen &dialog, int row) {
        std::vector<std::string> texts;
        for (int column = 0; column < List(dialog).columnCount(); ++column) {
            texts.push_back(S(List(dialog).item(row, column)->text()));
        }
        return texts;
    }
    static std::vector<std::string> Files(const Seen &dialog) {
        std::vector<std::string> names;
        for (int row = 0; row < List(dialog).rowCount(); ++row) {
            names.push_back(Row(dialog, row).front());
        }
        return names;
    }
    /// The plan from above, which is looked at.
    static const PlanView &View(const Seen &dialog) { return dialog.Find<PlanView>({"Vue", 0}); }
    static std::string Missing(const Seen &dialog) { return S(View(dialog).Mots()); }
    /// The numbers of ribs in the plan, from left to right.
    static std::vector<std::string> Numbers(const Seen &dialog) {
        std::multimap<double, std::string> found;
        for (const TextePlan &text : View(dialog).Dessin().textes) {
            if (text.couche == CouchePlan::nervure) {
                found.emplace(text.place.x, text.texte);
            }
        }
        std::vector<std::string> numbers;
        for (const auto &[x, text] : found) {
            numbers.push_back(text);
        }
        return numbers;
    }
    static bool HasCorner(const Seen &dialog, double x, double y) {
        const auto &lines = View(dialog).Dessin().traits;
        return std::any_of(lines.begin(), lines.end(), [&](const TraitPlan &line) {
            return line.couche == CouchePlan::contour &&
                   std::any_of(line.points.begin(), line.points.end(), [&](const PointMm &point) {
                       return std::abs(point.x - x) < 1e-6 && std::abs(point.y - y) < 1e-6;
                   });
        });
    }
};

TEST_F(WingWindow, PanelsInARowMakeOneWing) {
    Use([this](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Wing of several panels");
        EXPECT_EQ(dialog.Focus(), "cmdliste(0)");
        EXPECT_EQ(Missing(dialog), "Add the panel files of the wing, from the root to the tip.");
        EXPECT_FALSE(dialog.Shown("lblavis"));
        EXPECT_FALSE(dialog.As<frmaile>().Modifie());
        AddBoth(dialog);
        EXPECT_EQ(LastQuestion().title, "Open a wing panel");
        EXPECT_THAT(Row(dialog, 0), ElementsAre("inner.lfp", "500", "0°", "20", "5"));
        EXPECT_THAT(Row(dialog, 1), ElementsAre("outer.lfp", "300", "5°", "0", "4"));
        EXPECT_TRUE(HasCorner(dialog, 500, -20));
        EXPECT_TRUE(HasCorner(dialog, 800, -20)); // the outer one has no sweep of its own
        EXPECT_TRUE(HasCorner(dialog, 800, -120));
        dialog.Find<PlanTabs>("Onglets").setCurrentIndex(2);
        EXPECT_THAT(S(dialog.Find<QPlainTextEdit>("Liste").toPlainText()), HasSubstr("outer"));
        dialog.Click("cmdaide");
        EXPECT_EQ(world.platform.help_contexts, std::vector<int>{66});
    });
}

TEST_F(WingWindow, RibsAreCountedOnFromTheTypedNumber) {
    Use([this](Seen &dialog) {
        AddBoth(dialog);
        EXPECT_THAT(Numbers(dialog), ElementsAre("1", "2", "3", "4", "5", "6", "7", "8", "9"));
        dialog.Type("txtpremier", "31");
        EXPECT_TRUE(Eventually([&] { return Numbers(dialog).front() == "31"; }));
        EXPECT_EQ(Numbers(dialog).back(), "39");
        dialog.Type("txtpremier", "0");
        const std::string why = "Number of the first rib: this must be a number from 1 to 9999.";
        EXPECT_TRUE(Eventually([&] { return Missing(dialog) == why; }));
        EXPECT_EQ(dialog.Label("lblavis"), why);
        for (const char *button : {"cmdplan", "cmdenregistrer"}) {
            world.platform.Expect(BoxAnswer::ok, {.text = why, .title = "Wing of several panels"});
            dialog.Click(button);
        }
    });
}

TEST_F(WingWindow, PanelsAreMovedAndTakenOut) {
    const std::string tip = Panel("tip.lfp", "100", "100", "Count=1\nLength=80\n");
    Use([&](Seen &dialog) {
        for (const int button : {1, 2, 3}) {
            EXPECT_FALSE(dialog.Enabled({"cmdliste", button}));
        }
        AddBoth(dialog);
        EXPECT_FALSE(dialog.Enabled({"cmdliste", 3})); // the last one is chosen
        dialog.Click({"cmdliste", 2});
        EXPECT_THAT(Files(dialog), ElementsAre("outer.lfp", "inner.lfp"));
        EXPECT_EQ(List(dialog).currentRow(), 0);
        EXPECT_FALSE(dialog.Enabled({"cmdliste", 2}));
        EXPECT_TRUE(HasCorner(dialog, 300, 0));
        Add(dialog, tip); // below the chosen one
        EXPECT_THAT(Files(dialog), ElementsAre("outer.lfp", "tip.lfp", "inner.lfp"));
        dialog.Click({"cmdliste", 3});
        EXPECT_THAT(Files(dialog), ElementsAre("outer.lfp", "inner.lfp", "tip.lfp"));
        List(dialog).setCurrentCell(0, 0);
        dialog.Click({"cmdliste", 1});
        EXPECT_THAT(Files(dialog), ElementsAre("inner.lfp", "tip.lfp"));
        EXPECT_EQ(List(dialog).currentRow(), 0);
        dialog.Click({"cmdliste", 1});
        dialog.Click({"cmdliste", 1});
        EXPECT_EQ(Missing(dialog), "Add the panel files of the wing, from the root to the tip.");
        EXPECT_FALSE(dialog.As<frmaile>().Modifie());
    });
    EXPECT_TRUE(Exists("ribs/tip.lfp")); // their files stay
}

TEST_F(WingWindow, WhatStandsAgainstAPanelIsToldWithItsFile) {
    const std::string endless = Panel("endless.lfp", "180", "100", "Count=2\n");
    Use([&](Seen &dialog) {
        Add(dialog, inner);
        Add(dialog, endless);
        EXPECT_THAT(Row(dialog, 1), ElementsAre("endless.lfp", "", "0°", "0", "4"));
        const std::string why = "endless.lfp: The plan wants the length of the panel.";
        EXPECT_EQ(Missing(dialog), why);
        EXPECT_EQ(dialog.Label("lblavis"), why);
        world.platform.Expect(BoxAnswer::ok, {.text = why, .title = "Wing of several panels"});
        dialog.Click("cmdplan");
        EXPECT_THAT(world.platform.file_questions, SizeIs(2)); // of the two panels
    });
}

TEST_F(WingWindow, WarningsOfAPanelAreAskedAboutBeforeAPlanIsSaved) {
    ComponentsText rib;
    rib.chord = "100";
    rib.sheeting = "2";
    world.folder.File("ribs/thick.lfw", rib.Current());
    const std::string warned = Panel("warned.lfp", "180", "thick", "Count=2\nLength=300\n");
    Use([&](Seen &dialog) {
        Add(dialog, warned);
        EXPECT_THAT(dialog.Label("lblavis"),
                    HasSubstr("warned.lfp: sheeting 1.5 at the root, 2 at the tip:"));
        world.platform.Expect(
            BoxAnswer::no,
            {.text =
                 HasSubstr("There is something to know of this wing:\n\nwarned.lfp: sheeting")});
        dialog.Click("cmdplan");
        world.platform.Expect(BoxAnswer::yes);
        world.platform.files_expected.push_back(world.folder.Path("wing.svg"));
        world.platform.form_chosen = 2;
        dialog.Click("cmdplan");
        EXPECT_EQ(dialog.Label("lblenregistre"),
                  "The plan is in : " + world.folder.Path("wing.svg"));
    });
    EXPECT_THAT(world.folder.Bytes("wing.svg"), HasSubstr("<svg"));
}

TEST_F(WingWindow, PanelsThatCannotBeReadAreToldAndNotTaken) {
    const std::string inches = Panel("inches.lfp", "180", "100", "Count=2\nUnit=in\n");
    world.folder.File("ribs/inches.lfp", "[Panel]\nUnit=in\nRoot=180.lfw\nTip=100.lfw\nCount=2\n");
    const std::string steep = Panel("steep.lfp", "180", "100", "Count=2\nLength=9\nDihedral=80\n");
    const std::string lost = Panel("lost.lfp", "180", "none", "Count=2\nLength=300\n");
    const std::string none = world.folder.Path("ribs/none.lfp");
    const std::pair<std::string, std::string> cases[] = {
        {inches, "inches.lfp: The lengths of this panel are in another unit."},
        {steep, "steep.lfp: this is no angle between -60 and 60 degrees."},
        {lost, "none.lfw"},
        {none, "none.lfp: File not found: " + none}};
    Use([&](Seen &dialog) {
        Add(dialog, inner);
        for (const auto &[path, words] : cases) {
            world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr(words)});
            Add(dialog, path);
            EXPECT_THAT(Files(dialog), ElementsAre("inner.lfp"));
        }
        Add(dialog, ""); // the chooser is cancelled
        EXPECT_THAT(Files(dialog), ElementsAre("inner.lfp"));
    });
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(WingWindow, AWingHasAtMostTwentyPanels) {
    const std::string tiny = Panel("tiny.lfp", "100", "100", "Count=1\nLength=80\n");
    std::string text = "[Wing]\n";
    for (int number = 1; number <= 19; ++number) {
        text += "Panel" + std::to_string(number) + "=tiny.lfp\n";
    }
    const std::string path = Wing(text.c_str());
    Use([&](Seen &dialog) {
        world.platform.files_expected.push_back(path);
        dialog.Click("cmdouvrir");
        Add(dialog, tiny);
        EXPECT_EQ(List(dialog).rowCount(), 20);
        world.platform.Expect(BoxAnswer::ok, {.text = "A wing has at most 20 panels."});
        dialog.Click({"cmdliste", 0});
        EXPECT_EQ(List(dialog).rowCount(), 20);
    });
}

TEST_F(WingWindow, AWingIsSavedAndOpened) {
    const std::string path = world.folder.Path("ribs/new.lfa");
    Use([&](Seen &dialog) {
        world.platform.Expect(BoxAnswer::ok,
                              {.text = HasSubstr("Add the panel files of the wing")});
        dialog.Click("cmdenregistrer");
        AddBoth(dialog);
        dialog.Type("txtpremier", "12");
        EXPECT_TRUE(dialog.As<frmaile>().Modifie());
        world.platform.files_expected.push_back(""); // cancelled
        dialog.Click("cmdenregistrer");
        EXPECT_EQ(LastQuestion().title, "Save the wing");
        EXPECT_EQ(LastQuestion().name, "inner.lfa");
        EXPECT_TRUE(dialog.As<frmaile>().Modifie());
        world.platform.files_expected.push_back(path);
        dialog.Click("cmdenregistrer");
        EXPECT_FALSE(dialog.As<frmaile>().Modifie());
        EXPECT_EQ(dialog.Text("txtfichier"), "new.lfa");
        EXPECT_EQ(dialog.Label("lblenregistre"), "The wing is saved in : " + path);
        Leave(dialog);
    });
    EXPECT_EQ(ReadWholeFile(path),
              "[Wing]\r\nFirst=12\r\nPanel1=inner.lfp\r\nPanel2=outer.lfp\r\n");
    Use([&](Seen &dialog) {
        world.platform.files_expected.push_back(path);
        dialog.Click("cmdouvrir");
        EXPECT_EQ(LastQuestion().title, "Open a wing");
        EXPECT_EQ(LastQuestion().folder, world.folder.Path("ribs"));
        EXPECT_THAT(Files(dialog), ElementsAre("inner.lfp", "outer.lfp"));
        EXPECT_EQ(Numbers(dialog).front(), "12");
        EXPECT_EQ(View(dialog).Dessin().titre.substr(0, 3), "new");
        EXPECT_FALSE(dialog.As<frmaile>().Modifie());
    });
    EXPECT_THAT(world.platform.boxes, SizeIs(1));
}

TEST_F(WingWindow, ASaveThatIsRefusedIsToldAndTheChangesStay) {
    const std::string path = Wing();
    const std::string before = ReadWholeFile(path);
    Use([&](Seen &dialog) {
        world.platform.files_expected.push_back(path);
        dialog.Click("cmdouvrir");
        dialog.Click({"cmdliste", 1});
        std::filesystem::permissions(
            world.folder.Path("ribs"),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec |
                std::filesystem::perms::others_read | std::filesystem::perms::others_exec);
        const OrdinaryUser user;
        world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("ribs/wing.lfa")});
        world.platform.files_expected.push_back(path);
        dialog.Click("cmdenregistrer");
        EXPECT_TRUE(dialog.As<frmaile>().Modifie());
        EXPECT_FALSE(dialog.Shown("lblenregistre"));
    });
    EXPECT_EQ(ReadWholeFile(path), before);
}

TEST_F(WingWindow, ChangesAreAskedAboutBeforeTheyAreLost) {
    const std::string path = Wing();
    Use([&](Seen &dialog) {
        AddBoth(dialog);
        world.platform.Expect(BoxAnswer::no, {.text = HasSubstr("that no wing file has")});
        dialog.Click("cmdouvrir");
        EXPECT_THAT(Files(dialog), ElementsAre("inner.lfp", "outer.lfp"));
        world.platform.Expect(BoxAnswer::no, {.text = HasSubstr("that no wing file has")});
        dialog.As<QDialog>().reject();
        EXPECT_TRUE(dialog.IsOpen());
        world.platform.Expect(BoxAnswer::save, {.text = HasSubstr("that no wing file has")});
        world.platform.files_expected.push_back(path);
        dialog.As<QDialog>().reject();
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_THAT(ReadWholeFile(path), HasSubstr("First=1\r\nPanel1=inner.lfp"));
}

TEST_F(WingWindow, BadWingFilesGetTheirMessageAndLoseNothing) {
    const std::string bad = world.folder.File("ribs/bad.lfa", "[Wing]\nPanel2=outer.lfp\n");
    const std::string good = Wing();
    Use([&](Seen &dialog) {
        world.platform.files_expected.push_back(good);
        dialog.Click("cmdouvrir");
        const std::pair<std::string, std::string> cases[] = {
            {bad, "This is no wing file, or a value of it can't be :\n" + bad + ", Panel1"},
            {world.folder.Path("none.lfa"), world.folder.Path("none.lfa")}};
        for (const auto &[path, words] : cases) {
            world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr(words)});
            world.platform.files_expected.push_back(path);
            dialog.Click("cmdouvrir");
            EXPECT_THAT(Files(dialog), ElementsAre("inner.lfp", "outer.lfp"));
            EXPECT_EQ(dialog.Text("txtfichier"), "wing.lfa");
            EXPECT_FALSE(dialog.As<frmaile>().Modifie());
        }
    });
}

TEST_F(WingWindow, APanelOfAWingThatIsGoneCanBeTakenOut) {
    const std::string lost =
        world.folder.File("ribs/lost.lfa", "[Wing]\nPanel1=inner.lfp\nPanel2=none.lfp\n");
    Use([&](Seen &dialog) {
        world.platform.files_expected.push_back(lost);
        dialog.Click("cmdouvrir");
        EXPECT_THAT(Files(dialog), ElementsAre("inner.lfp", "none.lfp"));
        EXPECT_THAT(dialog.Label("lblavis"), HasSubstr("none.lfp: File not found"));
        EXPECT_FALSE(dialog.As<frmaile>().Modifie());
        dialog.Find<QTableWidget>("Panneaux").clearSelection(); // as a click beside the rows does
        EXPECT_FALSE(dialog.Enabled({"cmdliste", 1}));
        dialog.Find<QTableWidget>("Panneaux").selectRow(1);
        dialog.Click({"cmdliste", 1});
        EXPECT_THAT(Files(dialog), ElementsAre("inner.lfp"));
        EXPECT_FALSE(dialog.Shown("lblavis"));
        EXPECT_TRUE(dialog.As<frmaile>().Modifie());
    });
}

TEST_F(WingWindow, AWingComesAmongTheRecentFilesAndOpensFromThereByADropAndAsAnArgument) {
    const std::string path = Wing();
    int seen = 0;
    const auto await = [&] {
        InNextDialog([&](Seen &dialog) {
            EXPECT_EQ(dialog.Name(), "frmaile");
            EXPECT_THAT(Files(dialog), ElementsAre("inner.lfp", "outer.lfp"));
            EXPECT_EQ(dialog.Text("txtpremier"), "4");
            Leave(dialog);
            ++seen;
        });
    };
    // A drop is over before its file is opened.
    QTimer::singleShot(0, await);
    world.Drop(path, [&] { return seen == 1; });
    EXPECT_EQ(S(world.Action("mnuRibMRU(1)")->data().toString()), path);
    await();
    world.Action("mnuRibMRU(1)")->trigger();
    await();
    world.window->OuvreFichier(path); // as an argument does
    EXPECT_EQ(seen, 3);
}

TEST_F(WingWindow, ThePanelsWindowOpensItWithItsPanel) {
    world.Run("mnu_outilpanneau", {[&](Seen &panel) {
                                       panel.Click("cmdaile"); // without a file
                                       world.platform.files_expected.push_back(inner);
                                       panel.Click("cmdouvrir");
                                       panel.Click("cmdaile");
                                   },
                                   [](Seen &wing) {
                                       EXPECT_EQ(wing.Name(), "frmaile");
                                       EXPECT_THAT(Files(wing), IsEmpty());
                                   },
                                   [](Seen &wing) {
                                       EXPECT_THAT(Files(wing), ElementsAre("inner.lfp"));
                                       EXPECT_FALSE(wing.As<frmaile>().Modifie());
                                   }});
    EXPECT_THAT(world.platform.boxes, IsEmpty());
}

} // namespace
} // namespace loftwing
