// Building plan, front view and list of parts in the panel's window.

#include "mainwindow/plan_tabs.h"

#include "base/whole_file.h"
#include "support/ordinary_user.h"
#include "support/test_printer.h"
#include "windows/frmpanneau_fixture.h"

#include <QPlainTextEdit>

#include <algorithm>
#include <filesystem>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

constexpr int kSweepField = 4;
constexpr int kDihedralField = 5;
constexpr int kDensityField = 6;

/// What is printed outlives the printer.
class CountingPrinter : public TestPrinter {
  public:
    CountingPrinter(std::vector<std::string> &told, std::size_t &pages)
        : told_(told), pages_(pages) {}
    ~CountingPrinter() override {
        told_ = calls;
        pages_ = sheets.size();
    }

  private:
    std::vector<std::string> &told_;
    std::size_t &pages_;
};

class PanelPlanWindow : public PanelWindow {
  protected:
    /// A panel of five ribs, 600 mm long.
    void Make600(const Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 3);
        Enter(dialog, 3, "600");
        EXPECT_TRUE(Eventually([&] { return PanelWindow::Plan(dialog).longueur == 600; }));
    }
    static void Enter(const Seen &dialog, int field, const char *text) {
        dialog.Type({"txt", field}, text);
    }
    static PlanTabs &Tabs(const Seen &dialog) { return dialog.Find<PlanTabs>("Onglets"); }
    static const PlanView &View(const Seen &dialog, int index) {
        return dialog.Find<PlanView>({"Vue", index});
    }
    static std::string List(const Seen &dialog) {
        return S(dialog.Find<QPlainTextEdit>("Liste").toPlainText());
    }
    static bool HasSheets(const Seen &dialog) {
        return List(dialog).find("100 x 1000") != std::string::npos;
    }
    /// Lines of a layer of the plan from above.
    static std::vector<TraitPlan> Lines(const Seen &dialog, CouchePlan layer) {
        std::vector<TraitPlan> lines;
        for (const TraitPlan &line : View(dialog, 0).Dessin().traits) {
            if (line.couche == layer) {
                lines.push_back(line);
            }
        }
        return lines;
    }
    static bool HasPoint(const std::vector<TraitPlan> &lines, double x, double y) {
        return std::any_of(lines.begin(), lines.end(), [&](const TraitPlan &line) {
            return std::any_of(line.points.begin(), line.points.end(), [&](const PointMm &point) {
                return std::abs(point.x - x) < 1e-6 && std::abs(point.y - y) < 1e-6;
            });
        });
    }
    std::string Path(const char *name) const { return world.folder.Path(name); }
    void Save(const Seen &dialog, const char *button, const std::string &path, int form) {
        world.platform.files_expected.push_back(path);
        world.platform.form_chosen = form;
        dialog.Click(button);
    }
};

TEST_F(PanelPlanWindow, TheTabsSayWhatIsMissingAndThenShowThePlan) {
    Use([this](Seen &dialog) {
        PlanTabs &tabs = Tabs(dialog);
        EXPECT_EQ(S(tabs.tabText(0)), "Overview");
        EXPECT_EQ(S(tabs.tabText(1)), "Building plan");
        EXPECT_EQ(S(tabs.tabText(2)), "Front view");
        EXPECT_EQ(S(tabs.tabText(3)), "Parts");
        EXPECT_EQ(tabs.currentIndex(), 0);
        tabs.setCurrentIndex(1);
        EXPECT_EQ(S(View(dialog, 0).Mots()), "Choose a root rib and a tip rib.");
        TakeBoth(dialog);
        EXPECT_EQ(S(View(dialog, 0).Mots()), "Please enter the number of intermediate ribs");
        TypeCount(dialog, 3);
        EXPECT_EQ(S(View(dialog, 0).Mots()), "The plan wants the length of the panel.");
        for (const int tab : {2, 3, 1}) {
            tabs.setCurrentIndex(tab);
        }
        EXPECT_EQ(S(View(dialog, 1).Mots()), "The plan wants the length of the panel.");
        EXPECT_EQ(List(dialog), "The plan wants the length of the panel.");
        EXPECT_FALSE(dialog.Shown("lblavis")); // ribs want no length
        Enter(dialog, 3, "600");
        EXPECT_TRUE(Eventually([&] { return View(dialog, 0).Mots().isEmpty(); }));
        const auto outline = Lines(dialog, CouchePlan::contour);
        EXPECT_TRUE(HasPoint(outline, 0, 0));
        EXPECT_TRUE(HasPoint(outline, 600, 0));
        EXPECT_TRUE(HasPoint(outline, 0, -240));
        EXPECT_TRUE(HasPoint(outline, 600, -120));
        EXPECT_THAT(Lines(dialog, CouchePlan::nervure), SizeIs(5)); // without a thickness
        tabs.setCurrentIndex(3);
        EXPECT_THAT(List(dialog), StartsWith("List of parts: naca2412\n"));
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
}

TEST_F(PanelPlanWindow, SweepAndDihedralAreSeen) {
    Use([this](Seen &dialog) {
        Make600(dialog);
        Tabs(dialog).setCurrentIndex(1);
        Enter(dialog, kSweepField, "40.5");
        EXPECT_TRUE(
            Eventually([&] { return HasPoint(Lines(dialog, CouchePlan::contour), 600, -40.5); }));
        Enter(dialog, kSweepField, "-12");
        EXPECT_TRUE(
            Eventually([&] { return HasPoint(Lines(dialog, CouchePlan::contour), 600, 12); }));
        Enter(dialog, kDihedralField, "30");
        EXPECT_TRUE(Eventually([&] {
            Tabs(dialog).setCurrentIndex(2);
            const BoitePiece box = EtenduePlan(View(dialog, 1).Dessin());
            return box.haut_droite.y >= 300; // 600 times the sine of 30 degrees
        }));
    });
}

TEST_F(PanelPlanWindow, TheListHasTheSheetsThatWereLaidUntilThePanelChanges) {
    Use(
        [this](Seen &dialog) {
            Make600(dialog);
            Tabs(dialog).setCurrentIndex(3);
            EXPECT_FALSE(HasSheets(dialog));
            dialog.Click("cmdplanches");
            EXPECT_TRUE(HasSheets(dialog)) << List(dialog);
            Enter(dialog, 3, "610");
            EXPECT_TRUE(Eventually([&] { return !HasSheets(dialog); })) << List(dialog);
        },
        {[](Seen &sheets) {
            EXPECT_TRUE(Eventually([&] { return sheets.Enabled("cmdenregistrer"); }));
        }});
}

TEST_F(PanelPlanWindow, ThicknessAndDensityGiveTheRibsTheirWeight) {
    Use([this](Seen &dialog) {
        Make600(dialog);
        Tabs(dialog).setCurrentIndex(3);
        Enter(dialog, kDensityField, "100");
        ExpectSaid(dialog, "There are no weights: a density wants the thickness of all ribs.");
        EXPECT_THAT(List(dialog), Not(HasSubstr("Weight")));
        Enter(dialog, 1, "2.5");
        EXPECT_TRUE(Eventually([&] { return !dialog.Shown("lblavis"); }));
        EXPECT_THAT(List(dialog), HasSubstr("Weight"));
        EXPECT_THAT(List(dialog), HasSubstr("2.50"));
        Tabs(dialog).setCurrentIndex(1);
        const auto ribs = Lines(dialog, CouchePlan::nervure);
        ASSERT_THAT(ribs, SizeIs(5));
        EXPECT_TRUE(HasPoint({ribs[0]}, 2.5, 0)); // the root rib begins at the panel's face
        EXPECT_TRUE(HasPoint({ribs[4]}, 597.5, 0));
    });
}

TEST_F(PanelPlanWindow, ASavedPanelGivesItsNameToTheList) {
    Use([this](Seen &dialog) {
        Make600(dialog);
        Tabs(dialog).setCurrentIndex(3);
        world.platform.files_expected.push_back(world.folder.Path("ribs/swift.lfp"));
        dialog.Click("cmdenregistrer");
        EXPECT_THAT(List(dialog), StartsWith("List of parts: swift\n"));
    });
}

TEST_F(PanelPlanWindow, AWrongEntryIsToldAndRefused) {
    const std::pair<int, std::pair<const char *, const char *>> cases[] = {
        {kSweepField, {"5001", "Sweep: this is no length between -5000 and 5000 mm."}},
        {kDihedralField, {"61", "Dihedral: this is no angle between -60 and 60 degrees."}},
        {kDihedralField, {"1-", "Dihedral: this is no angle between -60 and 60 degrees."}},
        {kDensityField, {"2001", "Density of the wood: this is no density."}},
        {kDensityField, {"1.2.3", "Density of the wood: this is no density."}}};
    Use([&](Seen &dialog) {
        Make600(dialog);
        Tabs(dialog).setCurrentIndex(1);
        for (const auto &[field, typed] : cases) {
            dialog.Type({"txt", field}, typed.first);
            ExpectSaid(dialog, typed.second);
            EXPECT_EQ(S(View(dialog, 0).Mots()), typed.second);
            world.platform.Expect(
                BoxAnswer::ok, {.text = std::string(typed.second) + "\n", .title = "Wing panel"});
            dialog.Click("cmdplan");
            EXPECT_TRUE(dialog.FocusedAndSelected({"txt", field}));
            dialog.Type({"txt", field}, "0");
            EXPECT_TRUE(Eventually([&] { return !dialog.Shown("lblavis"); }));
        }
    });
    EXPECT_THAT(world.platform.file_questions, SizeIs(2)); // of the two ribs
}

TEST_F(PanelPlanWindow, ThePlanIsSavedInEachForm) {
    Use([this](Seen &dialog) {
        Make600(dialog);
        Tabs(dialog).setCurrentIndex(1);
        Save(dialog, "cmdplan", "", 0); // the chooser is cancelled
        EXPECT_FALSE(dialog.Shown("lblenregistre"));
        EXPECT_EQ(LastQuestion().title, "Building plan");
        EXPECT_EQ(LastQuestion().name, "naca2412.pdf");
        EXPECT_EQ(LastQuestion().filter_text, "PDF, one page (*.pdf)");
        EXPECT_THAT(
            world.platform.filters_offered,
            ElementsAre("PDF, sheets to lay together (*.pdf)", "SVG (*.svg)", "DXF (*.dxf)"));
        Save(dialog, "cmdplan", Path("page.pdf"), 0);
        EXPECT_EQ(dialog.Label("lblenregistre"), "The plan is in : " + Path("page.pdf"));
        Save(dialog, "cmdplan", Path("sheets.pdf"), 1);
        Save(dialog, "cmdplan", Path("plan.svg"), 2);
        Save(dialog, "cmdplan", Path("plan.dxf"), 3);
        EXPECT_EQ(dialog.Label("lblenregistre"), "The plan is in : " + Path("plan.dxf"));
    });
    EXPECT_THAT(world.folder.Bytes("page.pdf"), StartsWith("%PDF"));
    EXPECT_THAT(world.folder.Bytes("sheets.pdf"), StartsWith("%PDF"));
    EXPECT_NE(world.folder.Bytes("sheets.pdf"), world.folder.Bytes("page.pdf"));
    EXPECT_THAT(world.folder.Bytes("plan.svg"), HasSubstr("id=\"RIBS\""));
    EXPECT_THAT(world.folder.Bytes("plan.dxf"), HasSubstr("RIBS"));
    EXPECT_THAT(world.platform.boxes, IsEmpty());
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(PanelPlanWindow, BothWingsAreSeenAndSaved) {
    Use([this](Seen &dialog) {
        Make600(dialog);
        Tabs(dialog).setCurrentIndex(1);
        const std::size_t one = Lines(dialog, CouchePlan::nervure).size();
        Save(dialog, "cmdplan", Path("one.svg"), 2);
        dialog.Click("chkdeux");
        EXPECT_EQ(Lines(dialog, CouchePlan::nervure).size(), 2 * one);
        Save(dialog, "cmdplan", Path("both.svg"), 2);
    });
    EXPECT_GT(world.folder.Bytes("both.svg").size(), world.folder.Bytes("one.svg").size() * 3 / 2);
}

TEST_F(PanelPlanWindow, AFolderThatRefusesThePlanIsTold) {
    std::filesystem::permissions(
        Out(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec |
                   std::filesystem::perms::others_read | std::filesystem::perms::others_exec);
    Use([this](Seen &dialog) {
        Make600(dialog);
        Tabs(dialog).setCurrentIndex(3);
        const OrdinaryUser user;
        world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("70")});
        Save(dialog, "cmdliste", Path("out/parts.txt"), 0);
        EXPECT_FALSE(dialog.Shown("lblenregistre"));
        Tabs(dialog).setCurrentIndex(1);
        world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("70")});
        Save(dialog, "cmdplan", Path("out/plan.svg"), 2);
        EXPECT_FALSE(dialog.Shown("lblenregistre"));
    });
    EXPECT_TRUE(NothingWritten());
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(PanelPlanWindow, WhatThereIsToKnowIsAskedBeforeAPlanIsSaved) {
    tip.sheeting = "2";
    Use([this](Seen &dialog) {
        Make600(dialog);
        EXPECT_TRUE(Eventually([&] { return dialog.Shown("lblavis"); }));
        Tabs(dialog).setCurrentIndex(1);
        const std::size_t asked = world.platform.file_questions.size();
        world.platform.Expect(BoxAnswer::no,
                              {.text = HasSubstr("There is something to know of this panel:")});
        dialog.Click("cmdplan");
        EXPECT_THAT(world.platform.file_questions, SizeIs(asked));
        world.platform.Expect(BoxAnswer::yes);
        Save(dialog, "cmdplan", Path("plan.svg"), 2);
        EXPECT_TRUE(dialog.Shown("lblenregistre"));
    });
}

TEST_F(PanelPlanWindow, TheListIsSavedAsItIsShownAndAsATable) {
    Use([this](Seen &dialog) {
        Make600(dialog);
        Tabs(dialog).setCurrentIndex(3);
        const std::string shown = List(dialog);
        Save(dialog, "cmdliste", Path("parts.txt"), 0);
        EXPECT_EQ(LastQuestion().name, "naca2412 - Parts.txt");
        EXPECT_EQ(dialog.Label("lblenregistre"), "The list of parts is in : " + Path("parts.txt"));
        EXPECT_EQ(world.folder.Bytes("parts.txt"), shown);
        Save(dialog, "cmdliste", Path("parts.csv"), 1);
        Save(dialog, "cmdliste", Path("parts.pdf"), 2);
    });
    EXPECT_THAT(world.folder.Bytes("parts.csv"), HasSubstr("\r\n"));
    EXPECT_THAT(world.folder.Bytes("parts.pdf"), StartsWith("%PDF"));
}

TEST_F(PanelPlanWindow, PlanAndListArePrinted) {
    std::vector<std::string> told;
    std::size_t pages = 0;
    Use([&](Seen &dialog) {
        Make600(dialog);
        Tabs(dialog).setCurrentIndex(1);
        dialog.Click("cmdimprimerplan"); // cancelled in the printer's box
        EXPECT_THAT(told, IsEmpty());
        world.platform.make_printer = [&](const PrintQuestion &) {
            return std::make_unique<CountingPrinter>(told, pages);
        };
        dialog.Click("cmdimprimerplan");
        EXPECT_EQ(told.back(), "end");
        const std::size_t one = pages;
        EXPECT_GE(one, 3U); // 600 mm on sheets of 297 mm at most
        dialog.Click("chkdeux");
        dialog.Click("cmdimprimerplan");
        EXPECT_GE(pages, 2 * one);
        Tabs(dialog).setCurrentIndex(3);
        dialog.Click("cmdimprimerliste");
        EXPECT_EQ(told.back(), "end");
        EXPECT_EQ(pages, 1U);
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
}

TEST_F(PanelPlanWindow, AFailingPrinterIsTold) {
    std::vector<std::string> told;
    std::size_t pages = 0;
    world.platform.make_printer = [&](const PrintQuestion &) {
        auto printer = std::make_unique<CountingPrinter>(told, pages);
        printer->fails_at_end = true;
        return printer;
    };
    Use([&](Seen &dialog) {
        Make600(dialog);
        Tabs(dialog).setCurrentIndex(1);
        world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("61")});
        dialog.Click("cmdimprimerplan");
        EXPECT_EQ(told.back(), "abort");
    });
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(PanelPlanWindow, SweepDihedralAndDensityAreOfThePanelFile) {
    const std::string path = world.folder.Path("ribs/wing.lfp");
    Use([&](Seen &dialog) {
        Make600(dialog);
        for (const int field : {kSweepField, kDihedralField, kDensityField}) {
            world.platform.files_expected.push_back(path);
            dialog.Click("cmdenregistrer");
            EXPECT_FALSE(dialog.As<frmpanneau>().Modifie());
            Enter(dialog, field, "12.5");
            EXPECT_TRUE(dialog.As<frmpanneau>().Modifie());
        }
        world.platform.files_expected.push_back(path);
        dialog.Click("cmdenregistrer");
    });
    const std::string text = ReadWholeFile(path);
    for (const char *line : {"Sweep=12.5\r\n", "Dihedral=12.5\r\n", "Density=12.5\r\n"}) {
        EXPECT_THAT(text, HasSubstr(line));
    }
    Use([&](Seen &dialog) {
        world.platform.files_expected.push_back(path);
        dialog.Click("cmdouvrir");
        for (const int field : {kSweepField, kDihedralField, kDensityField}) {
            EXPECT_EQ(dialog.Text({"txt", field}), "12.5");
        }
        EXPECT_FALSE(dialog.As<frmpanneau>().Modifie());
    });
}

TEST_F(PanelPlanWindow, ReturnInAFieldWritesNothing) {
    Use([this](Seen &dialog) {
        Make600(dialog);
        const std::size_t asked = world.platform.file_questions.size();
        for (const int tab : {1, 2, 3}) {
            Tabs(dialog).setCurrentIndex(tab);
            dialog.GoTo({"txt", kSweepField});
            dialog.Key({"txt", kSweepField}, Qt::Key_Return);
        }
        EXPECT_THAT(world.platform.file_questions, SizeIs(asked));
        EXPECT_TRUE(dialog.IsOpen());
    });
}

TEST_F(PanelPlanWindow, ThePieceLeavesItsRoomToThePlan) {
    Use([this](Seen &dialog) {
        Make600(dialog);
        EXPECT_TRUE(dialog.Shown("Picture1"));
        for (const int tab : {1, 2, 3}) {
            Tabs(dialog).setCurrentIndex(tab);
            EXPECT_FALSE(dialog.Shown("Picture1"));
        }
        Tabs(dialog).setCurrentIndex(0);
        EXPECT_TRUE(dialog.Shown("Picture1"));
    });
}

TEST_F(PanelPlanWindow, TheButtonsZoomTheirPlan) {
    Use([this](Seen &dialog) {
        Make600(dialog);
        for (const int view : {0, 1}) {
            Tabs(dialog).setCurrentIndex(1 + view);
            const char *buttons = view == 0 ? "cmddessus" : "cmdface";
            dialog.Click({buttons, 0});
            EXPECT_FALSE(View(dialog, view).EstAjuste());
            dialog.Click({buttons, 1});
            EXPECT_TRUE(View(dialog, view).EstAjuste());
            dialog.Click({buttons, 0});
            dialog.Click({buttons, 2});
            EXPECT_TRUE(View(dialog, view).EstAjuste());
        }
    });
}

} // namespace
} // namespace loftwing
