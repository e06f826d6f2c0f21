// The window that makes the ribs of a wing panel.

#include "mainwindow/frmpanneau.h"

#include "programme/panel_ends.h"
#include "support/ordinary_user.h"
#include "windows/frmpanneau_fixture.h"

#include <QImage>

#include <chrono>
#include <filesystem>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace fs = std::filesystem;

TEST_F(PanelWindow, TwoFilesMakeAllRibsAndTheRibOfTheWindowStays) {
    const std::string mine = OpenBytes("mine.lfw", ComponentsText{}.Current());
    Use([this](Seen &dialog) {
        EXPECT_EQ(dialog.Name(), "frmpanneau");
        EXPECT_EQ(dialog.Title(), "Wing panel");
        TakeBoth(dialog);
        EXPECT_EQ(LastQuestion().title, "Tip rib");
        EXPECT_EQ(LastQuestion().folder, world.folder.Path("ribs"));
        EXPECT_EQ(dialog.Text({"txtbout", 0}), "root.lfw");
        EXPECT_EQ(dialog.Text({"txtbout", 1}), "tip.lfw");
        TypeCount(dialog, 3);
        EXPECT_THAT(Column(Ribs(dialog), 0), ElementsAre("1", "2", "3", "4", "5"));
        EXPECT_THAT(Column(Ribs(dialog), 1),
                    ElementsAre("240", "210.00", "180.00", "150.00", "120"));
        EXPECT_THAT(Column(Ribs(dialog), 3), ElementsAre("", "", "", "", ""));
        EXPECT_TRUE(Ribs(dialog).isColumnHidden(2)); // no washout
        EXPECT_FALSE(dialog.Shown("lblavis"));
        dialog.Click("cmdaide");
        EXPECT_EQ(world.platform.help_contexts, std::vector<int>{65});
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
    EXPECT_EQ(Rib().CheminRib, mine);
    EXPECT_EQ(Rib().corde, 200);
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(PanelWindow, WhatIsMissingIsToldAsItIsTyped) {
    Use([this](Seen &dialog) {
        EXPECT_EQ(dialog.Label("lblavis"), "Choose a root rib and a tip rib.");
        TakeBoth(dialog);
        EXPECT_EQ(dialog.Label("lblavis"), "Please enter the number of intermediate ribs");
        TypeCount(dialog, 1);
        EXPECT_FALSE(dialog.Shown("lblavis"));
        dialog.Keys({"txt", 0}, "2");
        EXPECT_TRUE(Eventually([&] { return Ribs(dialog).rowCount() == 14; }));
        dialog.Type({"txt", 0}, "91");
        ExpectSaid(dialog, "Too many intermediate ribs, at most 90 Ribs !");
        EXPECT_EQ(Ribs(dialog).rowCount(), 0);
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
}

TEST_F(PanelWindow, ThePlanHasRibsAndSparsInTheirPlaces) {
    root.edge = "8";
    root.trailing = "20";
    tip.edge = "4";
    tip.trailing = "10";
    Use([this](Seen &dialog) {
        EXPECT_EQ(Plan(dialog).longueur, 0);
        TakeBoth(dialog);
        TypeCount(dialog, 3);
        EXPECT_EQ(Plan(dialog).longueur, 360); // one and a half root chords
        dialog.Type({"txt", 3}, "600");
        EXPECT_TRUE(Eventually([&] { return Plan(dialog).longueur == 600; }));
        const PlanPanneau plan = Plan(dialog);
        ASSERT_EQ(plan.nervures.size(), 5U);
        EXPECT_EQ(plan.nervures[1].x, 150);
        EXPECT_EQ(plan.nervures[1].corde, 210);
        EXPECT_EQ(plan.nervures[4].x, 600);
        EXPECT_EQ(plan.nervures[4].corde, 120);
        ASSERT_EQ(plan.longerons.size(), 1U);
        EXPECT_THAT(plan.longerons[0],
                    ElementsAre(PointMm{0, 72}, PointMm{150, 63}, PointMm{300, 54},
                                PointMm{450, 45}, PointMm{600, 36}));
        ASSERT_EQ(plan.baguettes.size(), 2U);
        EXPECT_EQ(plan.baguettes[0][1], (PointMm{150, 7}));     // 8 - 4 / 4
        EXPECT_EQ(plan.baguettes[1][1], (PointMm{150, 192.5})); // 210 - (20 - 10 / 4)
    });
}

TEST_F(PanelWindow, TheSpacingIsWhatTheRibsLeaveOfTheLength) {
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 3);
        dialog.Type({"txt", 1}, "2");
        dialog.Type({"txt", 3}, "600");
        // (600 - 5 * 2) / 4
        EXPECT_TRUE(
            Eventually([&] { return dialog.Label("lblecart") == "Rib spacing: 147.5 mm"; }));
        dialog.Type({"txt", 1}, "121");
        ExpectSaid(dialog, "The ribs together are thicker than the panel is long.");
    });
}

TEST_F(PanelWindow, EndsThatDisagreeAreRefused) {
    tip.spars[0][5] = "2"; // another kind
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        dialog.Type({"txt", 0}, "3");
        const std::string why = "spar 1, kind: 1 at the root, 2 at the tip";
        ExpectSaid(dialog, why);
        world.platform.Expect(BoxAnswer::ok, {.text = why + "\n", .title = "Wing panel"});
        dialog.Click("cmdnervures");
        EXPECT_THAT(world.platform.folder_questions, IsEmpty());
        EXPECT_TRUE(dialog.IsOpen());
    });
}

TEST_F(PanelWindow, AnElementOfOneEndStandsInTheRibsOfItsRange) {
    root.spars = {SparAt("72"), SparAt("150"), ComponentsText::BlankSpar()};
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        EXPECT_THAT(Column(Ranges(dialog), 0), ElementsAre("spar 1", "spar 2"));
        dialog.Type({"txt", 0}, "3");
        ExpectSaid(dialog, "spar 2: it stands at one end only and needs the range of its ribs.");
        Ranges(dialog).item(1, 2)->setText("2");
        EXPECT_TRUE(Eventually([&] { return Plan(dialog).longerons.size() == 2; }));
        EXPECT_THAT(Plan(dialog).longerons[1], ElementsAre(PointMm{0, 150}, PointMm{90, 150}));
        Ranges(dialog).item(1, 2)->setText("9");
        ExpectSaid(dialog, "spar 2: its ribs must go from a lower to a higher number among 1 - 5.");
        Ranges(dialog).item(1, 1)->setText("x");
        Ranges(dialog).item(1, 2)->setText("3");
        ExpectSaid(dialog, "spar 2: its ribs must go from a lower to a higher number among 1 - 5.");
        EXPECT_EQ(Cell(Ranges(dialog), 1, 1), "x");
        EXPECT_FALSE(Ranges(dialog).item(0, 0)->flags() & Qt::ItemIsEditable);
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
}

TEST_F(PanelWindow, RangesCountAsTheRibsAreNumbered) {
    root.spars = {SparAt("72"), SparAt("150"), ComponentsText::BlankSpar()};
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        dialog.Type({"txt", 2}, "7");
        Ranges(dialog).item(1, 1)->setText("8");
        Ranges(dialog).item(1, 2)->setText("9");
        TypeCount(dialog, 3);
        EXPECT_THAT(Column(Ribs(dialog), 0), ElementsAre("7", "8", "9", "10", "11"));
        EXPECT_EQ(Plan(dialog).nervures[4].numero, 11);
        ASSERT_EQ(Plan(dialog).longerons.size(), 2U);
        EXPECT_THAT(Plan(dialog).longerons[1], ElementsAre(PointMm{90, 150}, PointMm{180, 150}));
    });
}

TEST_F(PanelWindow, ARangeComesBackWithTheEndThatHasItsElement) {
    const std::string plain = Written(root, "plain.lfw");
    root.spars = {SparAt("72"), SparAt("150"), ComponentsText::BlankSpar()};
    Use([&](Seen &dialog) {
        TakeBoth(dialog);
        Ranges(dialog).item(1, 2)->setText("2");
        TypeCount(dialog, 3);
        Take(dialog, 0, plain);
        EXPECT_EQ(Ranges(dialog).rowCount(), 1);
        EXPECT_FALSE(dialog.Shown("lblavis"));
        Take(dialog, 0, world.folder.Path("ribs/root.lfw"));
        EXPECT_EQ(Cell(Ranges(dialog), 1, 2), "2");
        EXPECT_EQ(Plan(dialog).longerons.size(), 2U);
    });
}

TEST_F(PanelWindow, AnEndIsTakenFromTheWindow) {
    Use([](Seen &dialog) { EXPECT_FALSE(dialog.Enabled({"cmdfenetre", 0})); });
    OpenBytes("mine.lfw", root.Current());
    Use([this](Seen &dialog) {
        dialog.Click({"cmdfenetre", 0});
        EXPECT_EQ(dialog.Text({"txtbout", 0}), "mine.lfw");
        Take(dialog, 1, Written(tip, "tip.lfw"));
        TypeCount(dialog, 1);
        EXPECT_THAT(Column(Ribs(dialog), 1), ElementsAre("240", "180.00", "120"));
    });
    EXPECT_EQ(Rib().corde, 240);
    EXPECT_FALSE(Rib().Modifie);
}

TEST_F(PanelWindow, AFileThatIsRefusedLeavesTheEnd) {
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        const std::string bad = world.folder.File("ribs/bad.lfw", "nothing\r\n");
        world.platform.ExpectBoxes(1);
        Take(dialog, 0, bad);
        EXPECT_EQ(dialog.Text({"txtbout", 0}), "root.lfw");
        Take(dialog, 0, ""); // the chooser is cancelled
        TypeCount(dialog, 1);
        EXPECT_EQ(Cell(Ribs(dialog), 0, 1), "240");
    });
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(PanelWindow, TheChosenRibIsShownAsItsPiece) {
    Use([this](Seen &dialog) {
        auto &picture = dialog.Find<PiecePicture>("Picture1");
        const QImage empty = picture.grab().toImage();
        TakeBoth(dialog);
        TypeCount(dialog, 3);
        const QImage first = picture.grab().toImage();
        EXPECT_NE(first, empty);
        EXPECT_EQ(Ribs(dialog).currentRow(), 0);
        Ribs(dialog).setCurrentCell(4, 0);
        EXPECT_NE(picture.grab().toImage(), first);
        dialog.Type({"txt", 0}, "0");
        EXPECT_TRUE(Eventually([&] { return Ribs(dialog).rowCount() == 0; }));
        TypeCount(dialog, 5);
        EXPECT_EQ(Ribs(dialog).currentRow(), 4); // it comes back
    });
}

TEST_F(PanelWindow, WritesTheFilesOfThePanel) {
    Panneau panel;
    panel.bouts = {LitBout(world.programme, Written(root, "root.lfw")).value(),
                   LitBout(world.programme, Written(tip, "tip.lfw")).value()};
    panel.jeu.nombre = "3";
    panel.jeu.dossier = Out() + "/";
    panel.jeu.cordes = {"240", "120"};
    const PanneauFait made = FaitPanneau(world.programme, panel, {});
    ASSERT_EQ(made.nervures.size(), 5U);
    Use([&](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 3);
        Make(dialog);
        EXPECT_EQ(world.platform.folder_questions.at(0).folder,
                  world.programme.settings.repertoires.RepProfilevol);
        EXPECT_EQ(dialog.Label("lblenregistre"), "The rib files are in : " + Out());
        EXPECT_TRUE(dialog.Shown("lblenregistre"));
        Make(dialog); // the same files again ask nothing
        dialog.Type({"txt", 0}, "4");
        EXPECT_TRUE(Eventually([&] { return !dialog.Shown("lblenregistre"); }));
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
    Use([&](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 3);
        world.platform.Expect(BoxAnswer::yes); // of an earlier window
        Make(dialog);
        // What somebody else has written since is that one's.
        const std::string changed = Out() + "/" + made.nervures[1].composants;
        std::filesystem::last_write_time(changed, std::filesystem::file_time_type::min() +
                                                      std::chrono::hours(1));
        world.platform.Expect(BoxAnswer::yes,
                              {.text = testing::HasSubstr(made.nervures[1].composants)});
        Make(dialog);
    });
    for (const NervureFaite &rib : made.nervures) {
        EXPECT_EQ(world.folder.Bytes("out/" + rib.profil), rib.octets_profil);
        EXPECT_EQ(world.folder.Bytes("out/" + rib.composants), rib.octets_composants);
    }
    EXPECT_TRUE(Exists("out/" + NomResume(made.jeu)));
    EXPECT_EQ(std::distance(fs::directory_iterator(Out()), {}), 11);
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(PanelWindow, FilesOfAnotherSetAreAskedAbout) {
    world.folder.File("out/naca2412&naca2412R02.lfw", "another");
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 1);
        world.platform.Expect(BoxAnswer::no, {.text = HasSubstr("\nnaca2412&naca2412R02.lfw\n"),
                                              .title = "Wing panel"});
        Make(dialog);
        EXPECT_FALSE(dialog.Shown("lblenregistre"));
        EXPECT_EQ(world.folder.Bytes("out/naca2412&naca2412R02.lfw"), "another");
        EXPECT_EQ(std::distance(fs::directory_iterator(Out()), {}), 1);
        world.platform.Expect(BoxAnswer::yes);
        Make(dialog);
        EXPECT_TRUE(dialog.Shown("lblenregistre"));
    });
    EXPECT_THAT(world.folder.Bytes("out/naca2412&naca2412R02.lfw"), StartsWith("LFW"));
}

TEST_F(PanelWindow, AFolderThatCannotBeWrittenIsToldAndTheWindowStays) {
    fs::permissions(Out(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                               fs::perms::others_exec);
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 1);
        const OrdinaryUser user;
        world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr(" # 70 ")});
        Make(dialog);
        EXPECT_FALSE(dialog.Shown("lblenregistre"));
        EXPECT_TRUE(dialog.IsOpen());
    });
    EXPECT_TRUE(NothingWritten());
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(PanelWindow, WarningsAreAskedAboutFirst) {
    tip.sheeting = "2";
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 1);
        EXPECT_THAT(dialog.Label("lblavis"), StartsWith("sheeting 1.5 at the root, 2 at the tip:"));
        world.platform.Expect(
            BoxAnswer::no,
            {.text = HasSubstr("There is something to know of this panel:\n\nsheeting 1.5 at"),
             .title = "Wing panel",
             .buttons = BoxButtons::yes_no});
        dialog.Click("cmdnervures");
        EXPECT_THAT(world.platform.folder_questions, IsEmpty());
        world.platform.Expect(BoxAnswer::yes);
        Make(dialog);
        EXPECT_TRUE(dialog.Shown("lblenregistre"));
    });
}

TEST_F(PanelWindow, AWarningStandsBesideItsRib) {
    for (ComponentsText *end : {&root, &tip}) {
        // In the middle of the thickness, which is below 12 % of the chord and carries sheeting.
        end->holes = {{"50%", "14", "1", "0", "0", "0", "0", "0"}, ComponentsText::BlankHole()};
    }
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 1);
        EXPECT_EQ(Cell(Ribs(dialog), 0, 3), "");
        // Wider than the wood it also cuts it in two.
        EXPECT_EQ(Cell(Ribs(dialog), 2, 3), "The piece falls apart into 2 parts. "
                                            "Hole 1 leaves the wood and opens its outline.");
        EXPECT_THAT(dialog.Label("lblavis"),
                    HasSubstr("Rib 3: Hole 1 leaves the wood and opens its outline."));
    });
}

TEST_F(PanelWindow, OfManyWarningsTheFirstAreShownAndTheToolTipHasAll) {
    for (ComponentsText *end : {&root, &tip}) {
        end->holes = {{"50%", "40", "1", "0", "0", "0", "0", "0"}, ComponentsText::BlankHole()};
    }
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 3); // two warnings for each of five ribs
        EXPECT_THAT(dialog.Label("lblavis"),
                    EndsWith("Rib 2: Hole 1 leaves the wood and opens its outline. ... (10)"));
        EXPECT_THAT(dialog.Tip("lblavis"),
                    HasSubstr("Rib 5: Hole 1 leaves the wood and opens its outline."));
    });
}

TEST_F(PanelWindow, CancelWritesNothing) {
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 1);
        world.platform.folders_expected.push_back("");
        dialog.Click("cmdnervures");
        EXPECT_FALSE(dialog.Shown("lblenregistre"));
        dialog.Key({"txt", 0}, Qt::Key_Return); // nobody writes by Return in a field
        EXPECT_EQ(world.platform.folder_questions.size(), 1U);
        const BoxLook asks{.text =
                               "The panel has changes that no panel file has. Go on all the same ?",
                           .title = "Wing panel",
                           .buttons = BoxButtons::save_yes_no};
        world.platform.Expect(BoxAnswer::no, asks);
        dialog.Key(Qt::Key_Escape);
        EXPECT_TRUE(dialog.IsOpen());
        world.platform.Expect(BoxAnswer::yes, asks);
        dialog.Key(Qt::Key_Escape);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_TRUE(NothingWritten());
    EXPECT_FALSE(Rib().ProfilCharge);
}

TEST_F(PanelWindow, WhatIsNoNumberIsToldWithoutABox) {
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 1);
        dialog.Type({"txt", 2}, "0");
        ExpectSaid(dialog, "Number of the first rib: this must be a number from 1 to 9999.");
        EXPECT_EQ(world.platform.boxes.size(), 0U);
        world.platform.Expect(BoxAnswer::ok);
        dialog.Click("cmdnervures");
        EXPECT_TRUE(dialog.FocusedAndSelected({"txt", 2}));
        dialog.Type({"txt", 2}, "9");
        EXPECT_TRUE(Eventually([&] { return Ribs(dialog).rowCount() == 3; }));
        dialog.Keys({"txt", 0}, "-"); // no key of this field
        EXPECT_EQ(dialog.Text({"txt", 0}), "1");
    });
}

TEST_F(PanelWindow, WhoHasChosenNothingIsAskedNothing) {
    Use([](Seen &dialog) {
        dialog.Type({"txt", 0}, "3");
        dialog.Key(Qt::Key_Escape);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
}

TEST_F(PanelWindow, ManyRibsAreMadeWhileTheWindowGoesOn) {
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 3);
        dialog.Type({"txt", 0}, "40");
        EXPECT_TRUE(Eventually([&] { return dialog.Shown("Avancement"); }));
        EXPECT_EQ(Ribs(dialog).rowCount(), 5); // what was there stays until the new one is whole
        dialog.Type({"txt", 0}, "30");         // in the middle of it
        EXPECT_TRUE(Eventually([&] { return Ribs(dialog).rowCount() != 5; }));
        EXPECT_EQ(Ribs(dialog).rowCount(), 32);
        EXPECT_FALSE(dialog.Shown("Avancement"));
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
}

TEST_F(PanelWindow, AButtonFinishesWhatIsUnderWay) {
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        dialog.Type({"txt", 0}, "25");
        Make(dialog);
        EXPECT_TRUE(dialog.Shown("lblenregistre"));
    });
    EXPECT_EQ(std::distance(fs::directory_iterator(Out()), {}), 27 * 2 + 1);
}

TEST_F(PanelWindow, VariableSpacingIsTypedAsTwoLists) {
    root.spars = {SparAt("80"), ComponentsText::BlankSpar()};
    tip.spars = {SparAt("40"), ComponentsText::BlankSpar()};
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        dialog.Click({"optecart", 1});
        EXPECT_TRUE(dialog.Shown({"txtliste", 0}));
        EXPECT_FALSE(dialog.Shown({"txt", 0}));
        ExpectSaid(dialog, "Gaps between the ribs: two gaps at least, with blanks between.");
        dialog.Fill({"txtliste", 0}, "98\t48\n48");
        ExpectSaid(dialog, "Thickness of the ribs: one thickness for all ribs, or as many as there "
                           "are ribs: 4");
        dialog.Type({"txtliste", 1}, "2");
        EXPECT_TRUE(Eventually([&] { return Ribs(dialog).rowCount() == 4; }));
        // Centre lines at 0, 100, 150, 200; the length has both end ribs.
        EXPECT_THAT(Column(Ribs(dialog), 1), ElementsAre("240", "180.00", "150.00", "120"));
        EXPECT_EQ(dialog.Label("lblecart"), "Panel length: 202 mm");
        EXPECT_EQ(Plan(dialog).longueur, 202);
        EXPECT_EQ(Plan(dialog).nervures[1].x, 101);
        EXPECT_THAT(Plan(dialog).longerons[0][1], (PointMm{101, 60}));
        dialog.Type({"txtliste", 1}, "4 2 2 4");
        // Now at 0, 98 + 3 = 101, 151, 202, of 194 + 12 in all.
        EXPECT_TRUE(Eventually([&] { return Plan(dialog).longueur == 206; }));
        EXPECT_THAT(Column(Ribs(dialog), 1), ElementsAre("240", "180.00", "150.30", "120"));
        dialog.Type({"txtliste", 0}, "98 48 x");
        ExpectSaid(dialog, "Gaps between the ribs: this is no length above 0: x");
        world.platform.Expect(BoxAnswer::ok);
        dialog.Click("cmdnervures");
        EXPECT_TRUE(dialog.FocusedAndSelected({"txtliste", 0}));
        dialog.Click({"optecart", 0});
        TypeCount(dialog, 1);
        EXPECT_THAT(Column(Ribs(dialog), 1), ElementsAre("240", "180.00", "120"));
    });
}

TEST_F(PanelWindow, ALengthThatIsNoneInInchesIsToldWithoutABox) {
    world.programme.settings.Unite = kUniteIn;
    Use([this](Seen &dialog) {
        for (const char *text : {"2./8", "/8", "1/0"}) {
            dialog.Fill({"txt", 1}, text);
            ExpectSaid(dialog, "Choose a root rib and a tip rib.\n"
                               "Rib thickness: this is no length.");
            dialog.Fill({"txt", 1}, "1/8");
            ExpectSaid(dialog, "Choose a root rib and a tip rib.");
        }
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
}

} // namespace
} // namespace loftwing
