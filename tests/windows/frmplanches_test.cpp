// Sheets and drawings of a panel.

#include "mainwindow/frmplanches.h"

#include "programme/panel_ends.h"
#include "programme/qt_cut_forms.h"
#include "programme/sheet_words.h"
#include "support/qt_pdf.h"
#include "support/test_printer.h"
#include "windows/frmpanneau_fixture.h"

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

/// What it was asked for outlives it.
class TellingPrinter : public TestPrinter {
  public:
    explicit TellingPrinter(std::vector<std::string> &told) : told_(told) {}
    ~TellingPrinter() override { told_ = calls; }

  private:
    std::vector<std::string> &told_;
};

class PanelSheetsWindow : public PanelWindow {
  protected:
    /// A panel of five ribs, whose sheets are looked at.
    void UseSheets(const User &user, const User &after = {}) {
        Use(
            [this, after](Seen &dialog) {
                TakeBoth(dialog);
                TypeCount(dialog, 3);
                dialog.Click("cmdplanches");
                if (after) {
                    after(dialog);
                }
            },
            {[user](Seen &sheets) {
                EXPECT_EQ(sheets.Name(), "frmplanches");
                Laid(sheets);
                user(sheets);
            }});
    }
    static void Laid(const Seen &sheets) {
        EXPECT_TRUE(Eventually([&] { return sheets.Enabled("cmdenregistrer"); }))
            << sheets.Label("lblavis");
    }
    static void ExpectRefused(const Seen &sheets, const std::string &why) {
        EXPECT_TRUE(Eventually([&] { return sheets.Label("lblavis") == why; }))
            << sheets.Label("lblavis");
        EXPECT_FALSE(sheets.Enabled("cmdenregistrer"));
        EXPECT_THAT(Lines(sheets), IsEmpty());
    }
    static std::vector<std::string> Lines(const Seen &sheets) {
        const auto &list = sheets.Find<QListWidget>("Planches");
        std::vector<std::string> lines;
        for (int row = 0; row < list.count(); ++row) {
            lines.push_back(S(list.item(row)->text()));
        }
        return lines;
    }
    void Save(const Seen &sheets, const std::string &path, int form) {
        world.platform.files_expected.push_back(path);
        world.platform.form_chosen = form;
        sheets.Click("cmdenregistrer");
    }
    /// The same sheets without the window.
    Imbrication Expected(const VoeuPlanches &wish) {
        Panneau panel;
        panel.bouts = {LitBout(world.programme, Written(root, "root.lfw")).value(),
                       LitBout(world.programme, Written(tip, "tip.lfw")).value()};
        panel.jeu.nombre = "3";
        panel.jeu.cordes = {"240", "120"};
        const PanneauFait made = FaitPanneau(world.programme, panel, wish.DemandeDe(1));
        return std::get<Imbrication>(
            Imbrique(PiecesDuPanneau(made, wish.copies, wish.opposees), wish.reglage));
    }
};

TEST_F(PanelSheetsWindow, ShowsAllPiecesOnSheetsAndWritesThem) {
    VoeuPlanches wish;
    wish.reglage.formats = {{100, 400}, {60, 300}};
    wish.reglage.ecart = 4;
    wish.copies = 2;
    wish.opposees = true;
    wish.piece.saignee = 0.2;
    const Imbrication expected = Expected(wish);
    ASSERT_GT(expected.size(), 1U);
    UseSheets([&](Seen &sheets) {
        EXPECT_THAT(Lines(sheets), ElementsAre(StartsWith("Sheet 1 : 100 x 1000 mm, 5 pieces, ")));
        sheets.Type("txtformats", "100x400 60 x 300");
        sheets.Type({"txt", 0}, "4");
        sheets.Type({"txt", 2}, "0.2");
        sheets.Click({"chk", 0});
        EXPECT_FALSE(sheets.Enabled("cmdenregistrer")); // these aren't what is typed
        Laid(sheets);
        std::vector<std::string> lines;
        for (std::size_t i = 0; i < expected.size(); ++i) {
            lines.push_back(
                LignePlanche(world.programme.messages, expected[i], i + 1, std::string(kUniteMm)));
        }
        EXPECT_EQ(Lines(sheets), lines);
        EXPECT_THAT(sheets.Label("lblavis"),
                    StartsWith("Sheets : " + std::to_string(lines.size()) + ", 10 pieces, "));
        auto &picture = sheets.Find<PiecePicture>("Picture1");
        const QImage first = picture.grab().toImage();
        sheets.Find<QListWidget>("Planches").setCurrentRow(1);
        EXPECT_NE(picture.grab().toImage(), first);
        Save(sheets, Out() + "/wing.svg", 0);
        EXPECT_EQ(LastQuestion().title, "Sheets of the wing panel");
        EXPECT_EQ(LastQuestion().name, "naca2412.svg");
        EXPECT_EQ(sheets.Label("lblenregistre"), "The sheets are in : " + Out() +
                                                     "/wing-1.svg ... wing-" +
                                                     std::to_string(expected.size()) + ".svg");
        Save(sheets, Out() + "/wing.pdf", 2);
        EXPECT_EQ(LastQuestion().name, "naca2412.svg");
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
    const auto files = EcritPlanches(world.programme, *TrouveFormeDecoupe("svg"), expected,
                                     AnneauxDxf::lignes, Out() + "/wing.svg");
    for (std::size_t i = 0; i < files.size(); ++i) {
        EXPECT_EQ(ReadWholeFile(files[i].path), files[i].bytes);
    }
    EXPECT_THAT(ReadWholeFile(files[0].path), HasSubstr(" L<"));
    EXPECT_THAT(ReadPdf(Q(Out() + "/wing.pdf")).PageSizes(), SizeIs(expected.size()));
}

TEST_F(PanelSheetsWindow, WhatCannotBeIsToldBesideItsFieldWithoutABox) {
    UseSheets([](Seen &sheets) {
        for (const char *sizes : {"", "100", "100x", "0x100", "100x1000 axb", "100x6000"}) {
            sheets.Fill("txtformats", sizes);
            ExpectRefused(sheets, "Sizes of stock: sizes are written as 100x1000, several with "
                                  "blanks between, no side above 5000 mm.");
        }
        sheets.Fill("txtformats", "100x150");
        EXPECT_TRUE(Eventually([&] {
            return sheets.Label("lblavis").find("The piece fits on no sheet") != std::string::npos;
        }));
        sheets.Fill("txtformats", "100x1000");
        sheets.Fill({"txt", 0}, "501");
        ExpectRefused(sheets, "Between pieces: this must be a length of at most 500 mm.");
        sheets.Fill({"txt", 0}, "");
        sheets.Fill({"txt", 1}, "..");
        ExpectRefused(sheets, "To the edges: this must be a length of at most 500 mm.");
        sheets.Fill({"txt", 1}, "3");
        sheets.Fill({"txt", 2}, "6");
        ExpectRefused(sheets, "Kerf: this must be a length of at most 5 mm.");
        sheets.Fill({"txt", 2}, "0");
        sheets.Fill({"txt", 3}, "0");
        ExpectRefused(sheets, "Copies: this must be a number from 1 to 1000.");
        sheets.Fill({"txt", 3}, "501");
        sheets.Click({"chk", 0});
        ExpectRefused(sheets, "Copies: this must be a number from 1 to 500.");
        sheets.Fill({"txt", 3}, "2");
        Laid(sheets);
        EXPECT_THAT(sheets.Label("lblavis"), HasSubstr(", 20 pieces, "));
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
}

TEST_F(PanelSheetsWindow, WhatWasChosenIsKeptWithThePanelAndWithWrittenSheets) {
    UseSheets([](Seen &sheets) { sheets.Fill("txtformats", "90x900"); },
              [](Seen &dialog) {
                  InNextDialog([](Seen &again) { EXPECT_EQ(again.Text("txtformats"), "90x900"); });
                  dialog.Click("cmdplanches");
              });
    UseSheets([this](Seen &sheets) {
        EXPECT_EQ(sheets.Text("txtformats"), "100x1000"); // nothing was written
        sheets.Fill("txtformats", "90x900");
        sheets.Click({"chk", 1});
        Laid(sheets);
        Save(sheets, Out() + "/wing.dxf", 1);
    });
    UseSheets([](Seen &sheets) {
        EXPECT_EQ(sheets.Text("txtformats"), "90x900");
        EXPECT_TRUE(sheets.Chosen({"chk", 1}));
    });
    EXPECT_TRUE(Exists("out/wing-1.dxf"));
}

TEST_F(PanelSheetsWindow, FilesUnderTheNamesOfSheetsAreAskedAbout) {
    world.folder.File("out/wing-1.svg", "another");
    UseSheets([this](Seen &sheets) {
        world.platform.Expect(BoxAnswer::no, {.text = HasSubstr("wing-1.svg")});
        Save(sheets, Out() + "/wing.svg", 0);
        EXPECT_EQ(world.folder.Bytes("out/wing-1.svg"), "another");
        EXPECT_FALSE(sheets.Shown("lblenregistre"));
        world.platform.Expect(BoxAnswer::yes);
        Save(sheets, Out() + "/wing.svg", 0);
        EXPECT_TRUE(sheets.Shown("lblenregistre"));
        Save(sheets, Out() + "/wing.svg", 0); // one's own are not asked about
        Save(sheets, "", 0);                  // cancelled
    });
    EXPECT_THAT(world.folder.Bytes("out/wing-1.svg"), HasSubstr("<svg"));
}

TEST_F(PanelSheetsWindow, WorkThatIsStoppedLeavesNoSheetsAndBeginsAgain) {
    UseSheets([](Seen &sheets) {
        sheets.Fill({"txt", 3}, "60"); // 300 pieces
        EXPECT_TRUE(Eventually([&] { return sheets.Shown("cmdarreter"); }));
        EXPECT_EQ(sheets.Word("cmdarreter"), "Stop");
        sheets.Click("cmdarreter");
        ExpectRefused(sheets, "The work was stopped. There are no sheets yet.");
        EXPECT_FALSE(sheets.Shown("Avancement"));
        EXPECT_EQ(sheets.Word("cmdarreter"), "Start again");
        sheets.Fill({"txt", 3}, "1");
        Laid(sheets);
        EXPECT_FALSE(sheets.Shown("cmdarreter"));
    });
}

TEST_F(PanelSheetsWindow, WarningsAreAskedAboutBeforeSheetsAreWritten) {
    tip.sheeting = "2";
    UseSheets([this](Seen &sheets) {
        world.platform.Expect(BoxAnswer::no, {.text = HasSubstr("sheeting 1.5 at the root")});
        sheets.Click("cmdenregistrer");
        EXPECT_EQ(world.platform.file_questions.size(), 2U); // of the two ribs
        world.platform.Expect(BoxAnswer::yes);
        Save(sheets, Out() + "/wing.svg", 0);
    });
    EXPECT_TRUE(Exists("out/wing-1.svg"));
}

TEST_F(PanelSheetsWindow, APanelThatCannotBeMadeHasNoSheets) {
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        for (const char *button : {"cmdplanches", "cmddessins", "cmdimprimer"}) {
            world.platform.Expect(BoxAnswer::ok,
                                  {.text = HasSubstr("number of intermediate ribs")});
            dialog.Click(button);
        }
    });
}

TEST_F(PanelSheetsWindow, DrawingsOfAllRibsAreOnePdf) {
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 3);
        world.platform.files_expected.push_back(Out() + "/wing.pdf");
        dialog.Click("cmddessins");
        EXPECT_EQ(LastQuestion().name, "naca2412.pdf");
        EXPECT_EQ(dialog.Label("lblenregistre"), "The drawings are in : " + Out() + "/wing.pdf");
        world.platform.files_expected.emplace_back();
        dialog.Click("cmddessins");
    });
    const ReadPdf pdf(Q(Out() + "/wing.pdf"));
    EXPECT_EQ(S(pdf.Information("Title")), "wing");
    // The reference line of each rib at its true length.
    for (const double chord : {240.0, 210.0, 180.0, 150.0, 120.0}) {
        int found = 0;
        for (int page = 1; page <= static_cast<int>(pdf.PageSizes().size()); ++page) {
            for (const QPolygonF &line : pdf.Lines(page)) {
                const QPointF way = line.back() - line.front();
                found += line.size() == 2 && std::abs(way.y()) < 0.05 &&
                         std::abs(std::abs(way.x()) - chord) < 0.1;
            }
        }
        EXPECT_GE(found, 1) << chord;
    }
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(PanelSheetsWindow, DrawingsArePrintedToo) {
    std::vector<std::string> calls_seen;
    world.platform.make_printer = [&](const PrintQuestion &) {
        return std::make_unique<TellingPrinter>(calls_seen);
    };
    Use([this](Seen &dialog) {
        TakeBoth(dialog);
        TypeCount(dialog, 3);
        dialog.Click("cmdimprimer");
    });
    ASSERT_THAT(world.platform.print_questions, SizeIs(1));
    EXPECT_EQ(world.platform.print_questions[0].document, "naca2412");
    EXPECT_THAT(calls_seen, testing::Contains("draw"));
}

/// What a builder does from two rib files to sheets for both wings: each click, each word typed and
/// each box answered counts.
TEST_F(PanelSheetsWindow, FromTwoRibFilesToSheetsOfBothWingsInAtMostFifteenActions) {
    Written(root, "root.lfw");
    Written(tip, "tip.lfw");
    int actions = 0;
    const auto act = [&actions](const auto &action) {
        ++actions;
        action();
    };
    const auto answered = [&](const std::string &path) { // a file chosen in the desktop's box
        act([&] { world.platform.files_expected.push_back(path); });
    };
    act([] {}); // the menu Tools is opened
    act([] {}); // its entry is chosen
    Use(
        [&](Seen &dialog) {
            answered(world.folder.Path("ribs/root.lfw"));
            act([&] { dialog.Click({"cmdchoisir", 0}); });
            answered(world.folder.Path("ribs/tip.lfw"));
            act([&] { dialog.Click({"cmdchoisir", 1}); });
            act([&] { dialog.Type({"txt", 0}, "6"); });
            act([&] { dialog.Click("cmdplanches"); });
        },
        {[&](Seen &sheets) {
            act([&] { sheets.Type("txtformats", "100x800"); });
            act([&] { sheets.Click({"chk", 0}); });
            Laid(sheets);
            act([] {}); // the name is typed
            answered(Out() + "/wing.svg");
            act([&] { sheets.Click("cmdenregistrer"); });
        }});
    EXPECT_LE(actions, 15);
    EXPECT_THAT(world.platform.boxes, IsEmpty());
    EXPECT_TRUE(Exists("out/wing-1.svg"));
    const std::string sheet = world.folder.Bytes("out/wing-1.svg");
    EXPECT_NE(sheet.find(" L<"), std::string::npos); // both wings are told apart
}

} // namespace
} // namespace loftwing
