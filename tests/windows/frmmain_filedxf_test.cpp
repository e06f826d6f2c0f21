// Exporting DXF from the main window.

#include "base/number_text.h"
#include "features/talon.h"
#include "support/ordinary_user.h"
#include "windows/frmmain_files_fixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

namespace loftwing {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace fs = std::filesystem;

constexpr int kInterchange = 0;
constexpr int kPlain = 1;

class ExportingDxf : public RibFiles {
  protected:
    void Export(int form, const std::string &path) {
        world.platform.form_chosen = form;
        if (MargesEnAttente(Rib(), world.programme.SaisieEnCours())) {
            world.platform.Expect(BoxAnswer::no, {.title = "Rib levelling heel"}); // as it is shown
        }
        Choose("mnu_filedxf", path);
    }
    std::string Out(const char *name = "rib.dxf") const { return world.folder.Path(name); }
    void ZoomAndScroll() {
        Q_EMIT world.Find<QComboBox>("Combo1")->activated(0);
        EXPECT_EQ(Rib().Zoom, 3.0F);
        Rib().DecalX = 40;
        world.window->affiche();
    }

    using Lines = std::vector<std::string>;
    /// The lines of a file's entities.
    Lines Entities(const char *name) const {
        std::istringstream text(world.folder.Bytes(name));
        Lines lines;
        std::string line;
        while (std::getline(text, line) && line != "ENTITIES\r") {
        }
        while (std::getline(text, line)) {
            lines.push_back(line);
        }
        return lines;
    }
    /// The pairs of lines that differ, and what one of them has more.
    static std::vector<std::pair<std::string, std::string>> Differences(const Lines &a,
                                                                        const Lines &b) {
        std::vector<std::pair<std::string, std::string>> pairs;
        for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
            const std::string first = i < a.size() ? a[i] : "nothing";
            const std::string second = i < b.size() ? b[i] : "nothing";
            if (first != second) {
                pairs.emplace_back(first, second);
            }
        }
        return pairs;
    }
};

TEST_F(ExportingDxf, WritesTheFormThatIsChosen) {
    OpenBytes("laden.lfw", LadenRib("1", false).Current());
    Export(kInterchange, Out("interchange.dxf"));
    Export(kPlain, Out("plain.dxf"));
    const std::string interchange = world.folder.Bytes("interchange.dxf");
    const std::string plain = world.folder.Bytes("plain.dxf");
    EXPECT_THAT(interchange, HasSubstr("9\r\n$ACADVER\r\n1\r\nAC1004\r\n"));
    EXPECT_THAT(interchange, HasSubstr("0\r\nPOLYLINE\r\n"));
    EXPECT_THAT(plain, HasSubstr("9\r\n$ACADVER\r\n1\r\nAC1009\r\n"));
    EXPECT_THAT(plain, HasSubstr("0\r\nLINE\r\n"));
    EXPECT_THAT(plain, Not(HasSubstr("POLYLINE")));
    for (const std::string &text : {interchange, plain}) {
        EXPECT_TRUE(text.ends_with("0\r\nENDSEC\r\n0\r\nEOF\r\n"));
    }
    EXPECT_TRUE(world.platform.boxes.empty()); // no word at the end
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
    EXPECT_EQ(Rib().corde, 170.0F);
}

TEST_F(ExportingDxf, TheChooserOffersBothFormsAndANameFromTheFile) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    Export(kInterchange, "");
    EXPECT_EQ(LastQuestion().title, "Export as DXF");
    EXPECT_EQ(LastQuestion().filter_text, "DXF Files (*.dxf)");
    EXPECT_EQ(world.platform.filters_offered, std::vector<std::string>{"DXF for cutters (*.dxf)"});
    EXPECT_EQ(LastQuestion().default_extension, "dxf");
    EXPECT_EQ(LastQuestion().name, "naca2412 200 mm.dxf");
    EXPECT_EQ(LastQuestion().folder, world.folder.Path("sets")); // none was exported yet
    EXPECT_EQ(Setting("RepDxf"), "");
    Rib().Modifie = false;
    OpenBytes("root v1.2.lfw", ComponentsText{}.Current());
    Export(kInterchange, world.folder.Path("ribs/out.dxf"));
    EXPECT_EQ(LastQuestion().name, "root v1.2.dxf");
    EXPECT_EQ(Setting("RepDxf"), world.folder.Path("ribs"));
    Export(kPlain, "");
    EXPECT_EQ(LastQuestion().folder, world.folder.Path("ribs"));
}

TEST_F(ExportingDxf, TheChooserStartsWithTheFormThatWasUsedLast) {
    const auto expect_start = [this](int form) {
        Export(kPlain, ""); // cancelled with another form chosen: not used
        EXPECT_EQ(LastQuestion().form, form);
    };
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    expect_start(kInterchange);
    Export(kPlain, Out());
    expect_start(kPlain);
    world.Open(); // the next run
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    expect_start(kPlain);
    Export(kInterchange, Out());
    expect_start(kInterchange);
    // A form that this program doesn't know.
    WriteINIFile("Export", "FormeDxf", "spline", world.programme.paths.fichier);
    expect_start(kInterchange);
}

TEST_F(ExportingDxf, AFormThatWasRefusedWasNotUsed) {
    ComponentsText file = LadenRib("0", false);
    file.inverted = "1";
    OpenBytes("inverted.lfw", file.Current());
    Export(kPlain, Out());
    world.platform.Expect(BoxAnswer::ok);
    Export(kInterchange, Out("interchange.dxf"));
    Export(kPlain, "");
    EXPECT_EQ(LastQuestion().form, kPlain);
}

TEST_F(ExportingDxf, ACancelledChooserWritesNothing) {
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    for (const int form : {kInterchange, kPlain}) {
        Export(form, "");
    }
    EXPECT_TRUE(world.platform.boxes.empty());
    EXPECT_EQ(std::distance(fs::directory_iterator(world.folder.Path("ribs")), {}), 1);
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(ExportingDxf, AnInvertedRibGoesToTheFormForCuttersOnly) {
    ComponentsText file = LadenRib("1", false);
    file.inverted = "1";
    OpenBytes("inverted.lfw", file.Current());
    world.platform.Expect(
        BoxAnswer::ok,
        {.text = "An inverted rib cannot be exported as DXF. Turn it back with View / Invert "
                 "Airfoil, or choose DXF for cutters.",
         .title = "Loftwing"});
    Export(kInterchange, Out("interchange.dxf"));
    EXPECT_FALSE(Exists("interchange.dxf"));
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
    Export(kPlain, Out("plain.dxf"));
    EXPECT_THAT(world.folder.Bytes("plain.dxf"), HasSubstr("0\r\nLINE\r\n"));
}

TEST_F(ExportingDxf, ARefusedExportLeavesTheFileThatWasThere) {
    ComponentsText file;
    file.inverted = "1";
    OpenBytes("inverted.lfw", file.Current());
    world.folder.File("kept.dxf", "of old");
    world.platform.Expect(BoxAnswer::ok);
    Export(kInterchange, Out("kept.dxf"));
    EXPECT_EQ(world.folder.Bytes("kept.dxf"), "of old");
}

TEST_F(ExportingDxf, TurnedRoundTheFormForCuttersIsMirrored) {
    ComponentsText file;
    OpenBytes("rib.lfw", file.Current());
    Export(kPlain, Out("upright.dxf"));
    world.Action("mnu_affinver")->trigger();
    Export(kPlain, Out("inverted.dxf"));
    const auto extent = [this](const char *name, const std::string &variable) {
        const std::string text = world.folder.Bytes(name);
        const std::string mark = variable + "\r\n10\r\n";
        const std::size_t y = text.find("20\r\n", text.find(mark) + mark.size());
        return LeadingNumber(text.substr(y + 4, text.find('\r', y + 4) - y - 4));
    };
    EXPECT_NEAR(extent("inverted.dxf", "$EXTMIN"), -extent("upright.dxf", "$EXTMAX"), 1e-6);
    EXPECT_NEAR(extent("inverted.dxf", "$EXTMAX"), -extent("upright.dxf", "$EXTMIN"), 1e-6);
    EXPECT_GT(extent("upright.dxf", "$EXTMAX"), 10.0); // the upper surface of this airfoil
}

TEST_F(ExportingDxf, TheZoomAndTheScrollOfTheScreenDoNotCount) {
    for (const char *kind : {"1", "11"}) { // a template, a heel
        OpenBytes("laden.lfw", LadenRib(kind, false).Current());
        Export(kInterchange, Out("1.dxf"));
        Export(kPlain, Out("1p.dxf"));
        ZoomAndScroll();
        Export(kPlain, Out("2p.dxf"));
        EXPECT_EQ(world.folder.Bytes("2p.dxf"), world.folder.Bytes("1p.dxf"));
        Export(kInterchange, Out("2.dxf"));
        EXPECT_GT(Entities("1.dxf").size(), 1000U);
        EXPECT_THAT(Differences(Entities("1.dxf"), Entities("2.dxf")), IsEmpty());
        EXPECT_EQ(world.folder.Bytes("2.dxf"), world.folder.Bytes("1.dxf"));
    }
}

TEST_F(ExportingDxf, OfTheInterchangeFormTheCuttingAllowanceAloneFollowsTheZoom) {
    ComponentsText file = LadenRib("1", false);
    file.cut = "3"; // 1.5 mm more than the sheeting
    OpenBytes("laden.lfw", file.Current());
    Export(kInterchange, Out("1.dxf"));
    ZoomAndScroll();
    Export(kInterchange, Out("2.dxf"));
    const auto differences = Differences(Entities("1.dxf"), Entities("2.dxf"));
    ASSERT_EQ(differences.size(), 1U);
    const auto &[before, after] = differences.front();
    // It stands in the file in device units, 56.7 of which are a mm.
    EXPECT_NEAR(LeadingNumber(before) - LeadingNumber(after), 1.5 * 56.7 * (3 - 1), 1e-3);
}

TEST_F(ExportingDxf, TheExportLeavesThePictureAsItIs) {
    OpenBytes("laden.lfw", LadenRib("11", false).Current());
    world.window->affiche();
    const std::vector<Operation> before = Drawing()->Operations();
    Export(kInterchange, Out());
    Export(kPlain, Out());
    world.window->affiche();
    EXPECT_TRUE(Drawing()->Operations() == before);
}

TEST_F(ExportingDxf, AnotherDecimalSeparatorIsWarnedOfAndTheExportGoesOnWithPoints) {
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    world.platform.decimal_separator = ',';
    world.platform.leaves_ticks = false;
    const auto &programme = world.programme;
    for (const int form : {kInterchange, kPlain}) {
        for (const BoxAnswer answer : {BoxAnswer::ok, BoxAnswer::cancel}) {
            world.programme.SeparateurDit = false;
            world.platform.Expect(
                answer, {.text = AllOf(StartsWith(programme.Text({"Message", "11"}) + "\n"),
                                       HasSubstr(" : Export as DXF file\n")),
                         .title = "Decimal separator"});
            fs::remove(Out());
            Export(form, Out());
            ASSERT_TRUE(Exists("rib.dxf"));
            EXPECT_THAT(world.folder.Bytes("rib.dxf"), HasSubstr("10\r\n200.0\r\n"));
            EXPECT_THAT(world.folder.Bytes("rib.dxf"), Not(HasSubstr(",0")));
        }
    }
}

TEST_F(ExportingDxf, ARefusedWriteIsReported) {
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    for (const int form : {kInterchange, kPlain}) {
        world.platform.Expect(BoxAnswer::ok, {.text = "Error # 76 in Loftwing\nPath not found: " +
                                                      Out("none/rib.dxf"),
                                              .title = " Main/Mnu_DXF"});
        Export(form, Out("none/rib.dxf"));
    }
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_NE(Drawing(), nullptr);
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(ExportingDxf, FilesAreInTheUnitOfTheDisplay) {
    WindowWorld inches("English", "in");
    inches.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    for (const int form : {kInterchange, kPlain}) {
        inches.platform.form_chosen = form;
        inches.platform.files_expected = {inches.folder.Path("rib.dxf")};
        inches.Action("mnu_filedxf")->trigger();
        EXPECT_THAT(inches.folder.Bytes("rib.dxf"), HasSubstr("\r\n8.0\r\n")); // the chord
        EXPECT_THAT(inches.folder.Bytes("rib.dxf"), Not(HasSubstr("\r\n203.2\r\n")));
    }
}

} // namespace
} // namespace loftwing
