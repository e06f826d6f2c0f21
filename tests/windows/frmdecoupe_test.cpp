// The window that makes files for a cutter.

#include "mainwindow/frmdecoupe.h"

#include "base/whole_file.h"
#include "features/talon.h"
#include "output/cut_forms.h"
#include "support/components_text.h"
#include "support/ordinary_user.h"
#include "support/qt_nothing_cut.h"
#include "windows/frmmain_files_fixture.h"

#include <gmock/gmock.h>

#include <QImage>

namespace loftwing {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace fs = std::filesystem;

constexpr int kSvg = 0;
constexpr int kDxf = 1;
constexpr int kPdf = 2;

/// A rib of 200 mm that is 24 mm thick, with nothing on it.
class Decoupage : public RibFiles {
  protected:
    Decoupage() {
        world.window->OuvreFichier(WindowWorld::Sample("naca0012.dat"));
        Rib().Modifie = false;
        Rib().EpCoffrage = Rib().EpBA = Rib().EpBF = 0;
        world.window->affiche();
    }

    void Use(const User &user) { world.Run("mnu_filedecoupe", {user}); }
    std::string Out(const char *name) const { return world.folder.Path(name); }
    /// The box will be left with this name and form.
    void WillSave(const std::string &path, int form = kSvg) {
        world.platform.form_chosen = form;
        world.platform.files_expected.push_back(path);
    }
    void Save(const Seen &dialog, const std::string &path, int form = kSvg) {
        WillSave(path, form);
        dialog.Click("cmdenregistrer");
    }
    std::string SettingsFile() const { return ReadWholeFileIfThere(world.programme.paths.fichier); }
    std::string Remembered(const char *key) const {
        return GetINIFile("Decoupe", key, world.programme.paths.fichier);
    }
    /// The file that the pieces made so have as SVG.
    std::string SvgOf(const DemandePiece &demande) {
        auto made = FaitPieces(Rib(), demande, world.programme.SaisieEnCours());
        return EcritDecoupeSvg(
            {EnDessous(std::get<std::vector<Piece>>(std::move(made))), "naca0012"},
            CouleursDe(world.programme.settings));
    }
    void HaveHole(float place, float diameter) {
        Rib().trou[0].PosTrouAfich = std::to_string(place / 2) + "%"; // of 200 mm
        Rib().trou[0].PosTrou = place;
        Rib().trou[0].DiaTrou = diameter;
        Rib().trou[0].ChkCentre = 1;
        Rib().NbTrou = 0;
    }
};

TEST_F(Decoupage, TellsTheMeasuresOfThePiece) {
    Use([this](Seen &dialog) {
        EXPECT_EQ(dialog.Name(), "frmdecoupe");
        EXPECT_EQ(dialog.Title(), "Export for cutting : naca0012");
        EXPECT_EQ(dialog.Word("cmdenregistrer"), "Save as...");
        EXPECT_EQ(dialog.Word("cmdfermer"), "Close");
        EXPECT_EQ(dialog.Text("txtsaignee"), "0");
        EXPECT_THAT(dialog.Label("lblmesures"), EndsWith("size 200 \xC3\x97 24 mm"));
        EXPECT_FALSE(dialog.Shown("lblavis"));
        dialog.Click("cmdaide");
        EXPECT_EQ(world.platform.help_contexts, std::vector<int>{34});
    });
}

TEST_F(Decoupage, TheMeasuresFollowTheKerf) {
    Use([](Seen &dialog) {
        dialog.Type("txtsaignee", "1"); // half of it to either side
        EXPECT_THAT(dialog.Label("lblmesures"), EndsWith(" \xC3\x97 25 mm"));
        dialog.Type("txtsaignee", "");
        EXPECT_THAT(dialog.Label("lblmesures"), EndsWith(" \xC3\x97 24 mm"));
    });
}

TEST_F(Decoupage, TheAreaIsThatOfThePolygon) {
    // A section of this family that is closed at its trailing edge has twice the integral of
    // 0.6 (0.2969 sqrt(x) - 0.126 x - 0.3516 x^2 + 0.2843 x^3 - 0.1036 x^4) from 0 to 1, which is
    // 0.0817 of the square of its chord: 32.7 cm2.
    Use([](Seen &dialog) {
        EXPECT_THAT(dialog.Label("lblmesures"), testing::StartsWith("Area 32.7 cm\xC2\xB2, "));
    });
}

TEST_F(Decoupage, InInchesItSpeaksInchesAndTakesFractions) {
    world.programme.settings.Unite = kUniteIn;
    Rib().corde = 203.2F; // 8 in, 0.96 thick
    Rib().cordeAfich = "8";
    world.window->affiche();
    Use([](Seen &dialog) {
        EXPECT_THAT(dialog.Label("lblmesures"), HasSubstr(" in\xC2\xB2, length of cut "));
        EXPECT_THAT(dialog.Label("lblmesures"), EndsWith("size 8 \xC3\x97 0.96 in"));
        dialog.Type("txtsaignee", "1/25"); // 0.04
        EXPECT_THAT(dialog.Label("lblmesures"), EndsWith(" \xC3\x97 1 in"));
        dialog.Fill("txtsaignee", "1/");
        EXPECT_THAT(dialog.Label("lblmesures"), Not(HasSubstr("0.96")));
    });
}

TEST_F(Decoupage, ShowsWarningsAsTheyCome) {
    HaveHole(100, 30);
    Use([](Seen &dialog) {
        EXPECT_THAT(dialog.Label("lblavis"),
                    AllOf(HasSubstr("Hole 1 leaves the wood and opens its outline."),
                          HasSubstr("The piece falls apart into 2 parts.")));
        EXPECT_TRUE(dialog.Shown("lblavis"));
    });
}

TEST_F(Decoupage, AWrongKerfIsToldAndNothingIsSaved) {
    Use([this](Seen &dialog) {
        dialog.Type("txtsaignee", "5.1");
        EXPECT_EQ(dialog.Label("lblavis"), "The kerf must not be wider than 5 mm.");
        EXPECT_EQ(dialog.Label("lblmesures"), "");
        world.platform.Expect(BoxAnswer::ok, {.text = "The kerf must not be wider than 5 mm.",
                                              .title = "Export for cutting : naca0012"});
        dialog.Click("cmdenregistrer");
        EXPECT_THAT(world.platform.file_questions, IsEmpty());
        EXPECT_TRUE(dialog.FocusedAndSelected("txtsaignee"));
        dialog.Type("txtsaignee", "5");
        EXPECT_FALSE(dialog.Shown("lblavis"));
        dialog.Keys("txtsaignee", "-"); // no key of this field
        EXPECT_EQ(dialog.Text("txtsaignee"), "5");
    });
}

TEST_F(Decoupage, AKerfThatIsNoLengthInInchesIsToldWithoutABoxWhileItIsTyped) {
    world.programme.settings.Unite = kUniteIn;
    Use([this](Seen &dialog) {
        for (const char *text : {"2./8", "/8", "1/0"}) {
            dialog.Fill("txtsaignee", text);
            EXPECT_EQ(dialog.Label("lblavis"), "The kerf is no length.") << text;
        }
        dialog.Fill("txtsaignee", "1/4");
        EXPECT_EQ(dialog.Label("lblavis"), "The kerf must not be wider than 0.197 in.");
        EXPECT_THAT(world.platform.boxes, IsEmpty());
    });
}

TEST_F(Decoupage, SavesWhatTheCommandLineWrites) {
    HaveHole(60, 10);
    world.window->affiche();
    Use([this](Seen &dialog) {
        Save(dialog, Out("rib.svg"));
        EXPECT_EQ(dialog.Label("lblenregistre"), "Saved : " + Out("rib.svg"));
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(world.folder.Bytes("rib.svg"), SvgOf({}));
        dialog.Type("txtsaignee", "0.3");
        EXPECT_FALSE(dialog.Shown("lblenregistre")); // that was another one
        Save(dialog, Out("kerf.svg"));
        DemandePiece demande;
        demande.saignee = 0.3;
        EXPECT_EQ(world.folder.Bytes("kerf.svg"), SvgOf(demande));
    });
    EXPECT_THAT(world.platform.boxes, IsEmpty());
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
    EXPECT_FALSE(Rib().Modifie);
}

TEST_F(Decoupage, EveryKindOfMarksCanBeLeftOut) {
    Rib().NbRep = 3;
    world.window->affiche();
    constexpr std::array<bool DemandePiece::*, 5> kinds = {
        &DemandePiece::reference, &DemandePiece::stations, &DemandePiece::axes,
        &DemandePiece::talon, &DemandePiece::etiquette};
    Use([&](Seen &dialog) {
        for (int i = 0; i < 5; ++i) {
            dialog.Click({"chkmarque", i});
            Save(dialog, Out("rib.svg"));
            DemandePiece demande;
            demande.*kinds.at(static_cast<std::size_t>(i)) = false;
            EXPECT_EQ(world.folder.Bytes("rib.svg"), SvgOf(demande)) << i;
            EXPECT_EQ(dialog.Enabled("txtetiquette"), i != 4);
            dialog.Click({"chkmarque", i});
        }
    });
    DemandePiece bare;
    bare.reference = bare.stations = bare.etiquette = false;
    EXPECT_NE(SvgOf(bare), SvgOf({})); // there were marks to leave out
}

TEST_F(Decoupage, TheLabelIsTheRibsOwnUntilAnotherIsTyped) {
    Use([this](Seen &dialog) {
        EXPECT_EQ(S(dialog.Box("txtetiquette").placeholderText()), "naca0012 200 mm");
        dialog.Type("txtetiquette", "R 7 left");
        Save(dialog, Out("rib.svg"));
        EXPECT_THAT(world.folder.Bytes("rib.svg"), HasSubstr(">R 7 left<"));
        dialog.Type("txtetiquette", "");
        Save(dialog, Out("rib.svg"));
        EXPECT_THAT(world.folder.Bytes("rib.svg"), HasSubstr(">naca0012 200 mm<"));
    });
}

TEST_F(Decoupage, TheBoxOffersThreeFormsAndANameLikeOtherExports) {
    Use([this](Seen &dialog) {
        Save(dialog, "");
        EXPECT_EQ(LastQuestion().title, "Export for cutting");
        EXPECT_EQ(LastQuestion().filter_text, "SVG (*.svg)");
        EXPECT_EQ(world.platform.filters_offered,
                  (std::vector<std::string>{"DXF (*.dxf)", "PDF (*.pdf)"}));
        EXPECT_EQ(LastQuestion().name, "naca0012 200 mm.svg");
        EXPECT_FALSE(dialog.Shown("lblenregistre"));
        Save(dialog, Out("rib.pdf"), kPdf);
        EXPECT_THAT(world.folder.Bytes("rib.pdf"), testing::StartsWith("%PDF-"));
        Save(dialog, "", kPdf);
        EXPECT_EQ(LastQuestion().form, kPdf);
        EXPECT_EQ(LastQuestion().name, "naca0012 200 mm.pdf");
        EXPECT_EQ(LastQuestion().default_extension, "pdf");
    });
}

TEST_F(Decoupage, DxfHasLinesOrClosedPolylines) {
    Use([this](Seen &dialog) {
        Save(dialog, Out("lines.dxf"), kDxf);
        dialog.Click("chkpolylignes");
        Save(dialog, Out("polylines.dxf"), kDxf);
    });
    EXPECT_THAT(world.folder.Bytes("lines.dxf"), Not(HasSubstr("POLYLINE")));
    EXPECT_THAT(world.folder.Bytes("polylines.dxf"), HasSubstr("POLYLINE"));
}

TEST_F(Decoupage, AFileThatIsThereIsReplacedWhole) {
    world.folder.File("rib.svg", std::string(1000000, 'x'));
    Use([this](Seen &dialog) { Save(dialog, Out("rib.svg")); });
    EXPECT_EQ(world.folder.Bytes("rib.svg"), SvgOf({}));
}

TEST_F(Decoupage, ASavedChoiceIsRemembered) {
    Use([this](Seen &dialog) {
        dialog.Type("txtsaignee", "0.15");
        dialog.Click({"chkmarque", 1});
        dialog.Click("chkpolylignes");
        dialog.Type("txtetiquette", "once");
        Save(dialog, Out("rib.dxf"), kDxf);
    });
    EXPECT_EQ(Remembered("Saignee"), "0.15");
    EXPECT_EQ(Remembered("Forme"), "dxf");
    Use([this](Seen &dialog) {
        EXPECT_EQ(dialog.Text("txtsaignee"), "0.15");
        for (int i = 0; i < 5; ++i) {
            EXPECT_EQ(dialog.Chosen({"chkmarque", i}), i != 1) << i;
        }
        EXPECT_TRUE(dialog.Chosen("chkpolylignes"));
        EXPECT_EQ(dialog.Text("txtetiquette"), "");                              // of that rib
        EXPECT_THAT(dialog.Label("lblmesures"), HasSubstr(" \xC3\x97 24.2 mm")); // 24.15
        Save(dialog, "");
        EXPECT_EQ(LastQuestion().form, kDxf);
    });
    world.programme.settings.Unite = kUniteIn;
    Use([](Seen &dialog) { EXPECT_EQ(dialog.Text("txtsaignee"), "0.006"); });
}

TEST_F(Decoupage, OnlyATemplateAsksWhatTheWireMelts) {
    Use([](Seen &dialog) { EXPECT_FALSE(dialog.Shown("txtfil")); });
    Rib().TypeGabarit = kGabaritMousse;
    Rib().bloc.HTbasbloc = 30;
    Use([this](Seen &dialog) {
        EXPECT_EQ(dialog.Text("txtfil"), "0");
        // From the foot at -30 to the top of the airfoil at 12 mm.
        EXPECT_THAT(dialog.Label("lblmesures"), StartsWith("Upper template. "));
        EXPECT_THAT(dialog.Label("lblmesures"),
                    HasSubstr("size 200 \xC3\x97 42 mm\nLower template"));
        dialog.Type("txtfil", "1");
        EXPECT_THAT(dialog.Label("lblmesures"), HasSubstr("size 200 \xC3\x97 41.5 mm\n"));
        Save(dialog, Out("foam.svg"));
        DemandePiece demande;
        demande.fil = 1;
        demande.nom_extrados = "Upper template";
        demande.nom_intrados = "Lower template";
        EXPECT_EQ(world.folder.Bytes("foam.svg"), SvgOf(demande));
    });
    EXPECT_EQ(Remembered("Fil"), "1");
    Use([this](Seen &dialog) {
        EXPECT_EQ(dialog.Text("txtfil"), "1");
        dialog.Type("txtfil", "6");
        EXPECT_EQ(dialog.Label("lblavis"), "What the wire melts must not be wider than 5 mm.");
        world.platform.Expect(BoxAnswer::ok,
                              {.text = "What the wire melts must not be wider than 5 mm.",
                               .title = "Export for cutting : naca0012"});
        dialog.Click("cmdenregistrer");
        EXPECT_TRUE(dialog.FocusedAndSelected("txtfil"));
    });
}

TEST_F(Decoupage, CancelChangesNothing) {
    const std::string settings = SettingsFile();
    Use([this](Seen &dialog) {
        dialog.Type("txtsaignee", "0.15");
        dialog.Click({"chkmarque", 1});
        Save(dialog, ""); // the box is cancelled
        dialog.Key(Qt::Key_Escape);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(SettingsFile(), settings);
    EXPECT_FALSE(Rib().Modifie);
    Use([](Seen &dialog) { EXPECT_EQ(dialog.Text("txtsaignee"), "0"); });
}

TEST_F(Decoupage, ARememberedKerfThatCannotBeIsNone) {
    for (const char *text : {"-1", "6", "1e999", "wide"}) {
        WriteINIFile("Decoupe", "Saignee", text, world.programme.paths.fichier);
        Use([&](Seen &dialog) { EXPECT_EQ(dialog.Text("txtsaignee"), "0") << text; });
    }
}

TEST_F(Decoupage, APlaceThatCannotBeWrittenIsToldAndNothingIsLeft) {
    fs::create_directory(Out("closed"));
    fs::permissions(Out("closed"), fs::perms::owner_read | fs::perms::owner_exec |
                                       fs::perms::others_read | fs::perms::others_exec);
    const std::string settings = SettingsFile();
    Use([this](Seen &dialog) {
        const OrdinaryUser user;
        dialog.Type("txtsaignee", "0.15");
        world.platform.Expect(BoxAnswer::ok,
                              {.text = HasSubstr(" # 70 "), .title = " frmdecoupe/cmdenregistrer"});
        Save(dialog, Out("closed/rib.svg"));
        EXPECT_FALSE(dialog.Shown("lblenregistre"));
        EXPECT_TRUE(dialog.IsOpen());
    });
    EXPECT_TRUE(fs::is_empty(Out("closed")));
    EXPECT_EQ(SettingsFile(), settings);
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

// The way to it.

TEST_F(Decoupage, ARibWithoutAPieceIsRefusedByABox) {
    Rib().EpCoffrage = 15; // of 12 to either side
    world.window->affiche();
    world.platform.Expect(BoxAnswer::ok, {.text = "No piece can be made: no wood is left.",
                                          .title = "Export for cutting"});
    EXPECT_FALSE(
        BringsDialog([this] { world.Action("mnu_filedecoupe")->trigger(); }, [](Seen &) {}));
}

TEST_F(Decoupage, StocksThatDoNotFitAreRefusedAsADrawingIs) {
    Rib().EpBA = 400; // wider than the chord
    world.platform.Expect(BoxAnswer::ok);
    world.window->affiche();
    const std::string refusal = world.platform.LastBox();
    world.platform.Expect(BoxAnswer::ok, {.text = refusal});
    EXPECT_FALSE(
        BringsDialog([this] { world.Action("mnu_filedecoupe")->trigger(); }, [](Seen &) {}));
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(Decoupage, MarginsOfAnOpenedHeelAreAskedAboutFirst) {
    OpenBytes("heel.lfw", LadenRib("11", false).Current());
    ASSERT_TRUE(MargesEnAttente(Rib(), world.programme.SaisieEnCours()));
    world.platform.Expect(BoxAnswer::yes, {.title = "Rib levelling heel"});
    Use([this](Seen &) { EXPECT_FALSE(MargesEnAttente(Rib(), world.programme.SaisieEnCours())); });
    EXPECT_EQ(world.platform.boxes.size(), 1U);
    Use([](Seen &) {});
    EXPECT_EQ(world.platform.boxes.size(), 1U); // they are in force now
}

// How it looks.

/// How many pixels of a picture have that colour.
int Pixels(const QImage &image, const QColor &colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

TEST_F(Decoupage, ThePreviewIsWoodOnWhitePaperAsLargeAsItsPlace) {
    auto made = FaitPieces(Rib(), {}, world.programme.SaisieEnCours());
    PiecePicture picture(nullptr);
    picture.Montre(std::get<std::vector<Piece>>(std::move(made)),
                   CouleursDe(world.programme.settings));
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Window, Qt::black);
    picture.setPalette(dark);
    const QColor wood(0xF7, 0xE6, 0xBE);
    for (const double scale : {1.0, 2.0}) {
        // The chord is as wide as the place between margins of 12 pixels.
        picture.resize(static_cast<int>(24 + 500 * scale), static_cast<int>(24 + 200 * scale));
        const QImage shown = picture.grab().toImage();
        EXPECT_EQ(shown.pixelColor(5, 5), QColor(Qt::white));
        // 0.0817 of the square of a chord of 500 pixels, less lines and letters.
        const double area = 0.0817 * 500 * 500 * scale * scale;
        EXPECT_LT(Pixels(shown, wood), area);
        EXPECT_GT(Pixels(shown, wood), 0.8 * area);
    }
    picture.Montre({}, {});
    EXPECT_EQ(Pixels(picture.grab().toImage(), wood), 0);
}

TEST_F(Decoupage, NothingIsCutInAnyLanguageUnitOrSize) {
    HaveHole(100, 30); // two warnings
    for (const char *language : {"English", "French", "German", "Spanish"}) {
        for (const double scale : {1.0, 2.0}) {
            for (const std::string_view unit : {kUniteMm, kUniteIn}) {
                SCOPED_TRACE(std::string(language) + std::to_string(scale) + std::string(unit));
                const FontScale larger(scale);
                world.programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", language);
                world.programme.settings.Unite = unit;
                frmdecoupe window(world.programme, nullptr);
                window.show();
                QApplication::processEvents();
                ExpectNothingCut(window);
            }
        }
    }
}

} // namespace
} // namespace loftwing
