// The two DXF forms as files.

#include "output/dxf.h"

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "output/dxf_header.h"
#include "output/rib_plot_fixture.h"
#include "support/failures.h"

#include <algorithm>
#include <map>

namespace loftwing {
namespace {

/// Group code and value.
using Item = std::pair<int, std::string>;
using Items = std::vector<Item>;

/// Takes a file apart; every line must end in CR LF.
Items ItemsOf(const std::string &bytes) {
    Items items;
    std::string line;
    std::string code;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = bytes.find('\n', at);
        EXPECT_NE(end, std::string::npos);
        EXPECT_EQ(bytes[end - 1], '\r');
        line = bytes.substr(at, end - 1 - at);
        at = end + 1;
        if (code.empty()) {
            code = line;
            EXPECT_EQ(code, std::to_string(std::stoi(code))); // no padding
        } else {
            items.emplace_back(std::stoi(code), line);
            code.clear();
        }
    }
    EXPECT_TRUE(code.empty());
    return items;
}

/// The items between "SECTION" `name` and its "ENDSEC".
Items Section(const Items &items, const std::string &name) {
    const auto begin = std::find(items.begin(), items.end(), Item{2, name});
    const auto end = std::find(begin, items.end(), Item{0, "ENDSEC"});
    EXPECT_NE(end, items.end()) << name;
    return {begin + 1, end};
}

Items Table(const Items &items, const std::string &name) {
    const Items head = {{0, "TABLE"}, {2, name}};
    const auto begin = std::search(items.begin(), items.end(), head.begin(), head.end());
    const auto end = std::find(begin, items.end(), Item{0, "ENDTAB"});
    EXPECT_NE(end, items.end()) << name;
    return {begin, end};
}

std::string Text(const Items &items) {
    std::string text;
    for (const auto &[code, value] : items) {
        text += std::to_string(code) + " " + value + "\n";
    }
    return text;
}

class Dxf : public RibPlot {
  protected:
    void PlotAnew() {
        world.Place();
        device.Clear();
        EXPECT_TRUE(Plot());
    }
    DxfSource Source() { return {world.rib, world.plot, world.settings.Unite}; }
    Items Written() {
        PlotAnew();
        std::string bytes;
        EcritDxf(Source(), bytes);
        return ItemsOf(bytes);
    }
    Items Simple() {
        PlotAnew();
        return ItemsOf(EcritDxfSimple(Source()));
    }
    static std::map<std::string, int> Kinds(const Items &entities) {
        std::map<std::string, int> kinds;
        for (const auto &[code, value] : entities) {
            if (code == 0) {
                ++kinds[value];
            }
        }
        return kinds;
    }
};

TEST_F(Dxf, HasThreeSectionsAndNoBlocks) {
    const Items items = Written();
    Items sections;
    std::copy_if(items.begin(), items.end(), std::back_inserter(sections), [&](const Item &item) {
        return item.first == 2 && (item.second == "HEADER" || item.second == "TABLES" ||
                                   item.second == "BLOCKS" || item.second == "ENTITIES");
    });
    EXPECT_EQ(sections, (Items{{2, "HEADER"}, {2, "TABLES"}, {2, "ENTITIES"}}));
    EXPECT_EQ(items.front(), (Item{0, "SECTION"}));
    EXPECT_EQ(items.back(), (Item{0, "EOF"}));
}

TEST_F(Dxf, HeaderNamesItsVersionAndDoesNotDependOnTheRib) {
    const Items header = Section(Written(), "HEADER");
    EXPECT_EQ(header[0], (Item{9, "$ACADVER"}));
    EXPECT_EQ(header[1], (Item{1, "AC1004"}));
    EXPECT_EQ(
        std::count_if(header.begin(), header.end(), [](const Item &i) { return i.first == 9; }),
        102);
    world.settings.Unite = " in";
    EXPECT_EQ(Section(Written(), "HEADER"), header);
}

TEST_F(Dxf, ValuesWithAPointInTheHeaderAreWrittenAsReals) {
    for (const DxfVariable &variable : DxfVariables()) {
        for (const auto &[code, value] : variable.valeurs) {
            if (value.find('.') != std::string_view::npos) {
                EXPECT_EQ(Format(LeadingNumber(value), "##0.0#####"), value) << variable.nom;
            }
        }
    }
}

TEST_F(Dxf, LineTypesAreMeasuredInTheFilesUnit) {
    EXPECT_EQ(Text(Table(Written(), "LTYPE")),
              "0 TABLE\n2 LTYPE\n5 50\n100 AcDbSymbolTable\n70 10\n"
              "0 LTYPE\n5 100\n100 AcDbSymbolTableRecord\n100 AcDbLinetypeTableRecord\n2 CONT\n"
              "70 0\n3 Solid Line __________\n72 65\n73 0\n40 0.0\n"
              "0 LTYPE\n5 101\n100 AcDbSymbolTableRecord\n100 AcDbLinetypeTableRecord\n2 HIDDEN\n"
              "70 0\n3 Cache __ __ __ __ __ __ __\n72 65\n73 2\n40 9.525\n49 6.35\n49 -3.175\n"
              "0 LTYPE\n5 102\n100 AcDbSymbolTableRecord\n100 AcDbLinetypeTableRecord\n2 AXIS\n"
              "70 0\n3 Centre ____ _ ____ _ ____\n72 65\n73 4\n40 50.8\n49 31.75\n49 -6.35\n"
              "49 6.35\n49 -6.35\n");
    world.settings.Unite = " in";
    const std::string inches = Text(Table(Written(), "LTYPE"));
    EXPECT_NE(inches.find("40 0.375\n49 0.25\n49 -0.125\n"), std::string::npos);
    EXPECT_NE(inches.find("40 2.0\n49 1.25\n49 -0.25\n49 0.25\n49 -0.25\n"), std::string::npos);
}

TEST_F(Dxf, LayersHaveTheirColoursAndLineTypes) {
    const std::string layers = Text(Table(Written(), "LAYER"));
    EXPECT_TRUE(layers.starts_with("0 TABLE\n2 LAYER\n5 25\n100 AcDbSymbolTable\n70 10\n"
                                   "0 LAYER\n5 30\n100 AcDbSymbolTableRecord\n"
                                   "100 AcDbLayerTableRecord\n2 Layer01\n70 0\n62 7\n6 CONT\n"));
    for (const char *layer :
         {"5 31\n100 AcDbSymbolTableRecord\n100 AcDbLayerTableRecord\n2 TALON\n70 0\n62 10\n6 CONT",
          "5 32\n100 AcDbSymbolTableRecord\n100 AcDbLayerTableRecord\n2 AXIS\n70 0\n62 10\n6 AXIS",
          "5 33\n100 AcDbSymbolTableRecord\n100 AcDbLayerTableRecord\n2 COFFR\n70 0\n62 180\n6 "
          "CONT",
          "5 34\n100 AcDbSymbolTableRecord\n100 AcDbLayerTableRecord\n2 LONG\n70 0\n62 210\n6 CONT",
          "5 35\n100 AcDbSymbolTableRecord\n100 AcDbLayerTableRecord\n2 TROU\n70 0\n62 195\n6 "
          "CONT"}) {
        EXPECT_NE(layers.find(layer), std::string::npos) << layer;
    }
}

TEST_F(Dxf, ViewportIsOneFixedRecord) {
    const Items viewport = Table(Written(), "VPORT");
    EXPECT_TRUE(Text(viewport).starts_with(
        "0 TABLE\n2 VPORT\n5 10\n100 AcDbSymbolTable\n70 10\n0 VPORT\n5 11\n"
        "100 AcDbSymbolTableRecord\n100 AcDbViewportTableRecord\n2 *ACTIVE\n70 0\n10 0.0\n20 0.0\n"
        "11 2.0\n21 2.0\n12 0.0\n"));
    EXPECT_EQ(viewport.size(), 5U + 6U + 4U + 21U + 8U);
    EXPECT_EQ(viewport.back(), (Item{78, "0"}));
}

TEST_F(Dxf, PolylineAndCircleAreSpelledOut) {
    world.rib.trou[0].TypeTrou = 0;
    world.rib.trou[0].PosTrouAfich = "30";
    world.rib.trou[0].DiaTrou = 8;
    const std::string entities = Text(Section(Written(), "ENTITIES"));
    EXPECT_TRUE(entities.starts_with(
        "0 POLYLINE\n5 503\n100 AcDbEntity\n8 COFFR\n66 1\n100 AcDb2dPolyline\n70 0\n"
        "0 VERTEX\n100 AcDbVertex\n100 AcDb2dVertex\n8 COFFR\n10 0.0\n20 5.0\n30 0.0\n"
        "0 VERTEX\n100 AcDbVertex\n100 AcDb2dVertex\n8 COFFR\n10 0.0\n20 -5.0\n30 0.0\n"
        "0 SEQEND\n"))
        << entities.substr(0, 400);
    EXPECT_NE(entities.find("0 CIRCLE\n5 504\n100 AcDbEntity\n8 TROU\n100 AcDbCircle\n39 0\n"
                            "10 30.0\n20 0.0\n30 0.0\n40 4.0\n"),
              std::string::npos);
}

TEST_F(Dxf, ClosedPathHasTheFlagAndARunWithoutPointsIsStillWritten) {
    world.rib.TypeBA = 0;
    world.rib.EpCoffrage = 2;
    world.rib.EpBA = 100; // the sheeting has no station left
    const std::string entities = Text(Section(Written(), "ENTITIES"));
    EXPECT_TRUE(entities.starts_with("0 POLYLINE\n5 503\n100 AcDbEntity\n8 COFFR\n66 1\n"
                                     "100 AcDb2dPolyline\n70 1\n"));
    EXPECT_NE(entities.find("70 0\n0 SEQEND\n0 POLYLINE\n"), std::string::npos);
}

TEST_F(Dxf, FailureLeavesTheFileAsFarAsItWasWritten) {
    PlotAnew();
    world.rib.trou[0].TypeTrou = 0;
    world.rib.trou[0].PosTrou = -1;
    std::string bytes;
    EXPECT_EQ(FailureOf([&] { EcritDxf(Source(), bytes); }), kSubscriptOutOfRange);
    const Items items = ItemsOf(bytes);
    EXPECT_EQ(items.back(), (Item{0, "SEQEND"}));
}

using Strings = std::vector<std::string>;

class SimpleDxf : public Dxf {
  protected:
    /// The lines of a layer: both ends of each.
    static Strings LinesOn(const Items &entities, const std::string &layer) {
        const Items head = {{0, "LINE"}, {8, layer}};
        Strings lines;
        for (auto at = entities.begin();;) {
            at = std::search(at, entities.end(), head.begin(), head.end());
            if (at == entities.end()) {
                return lines;
            }
            // A point is x, y, z.
            lines.push_back(at[2].second + " " + at[3].second + " " + at[5].second + " " +
                            at[6].second);
            ++at;
        }
    }
};

TEST_F(SimpleDxf, IsAnR12FileWithItsUnitAndAllSections) {
    const Items items = Simple();
    const std::string header = Text(Section(items, "HEADER"));
    EXPECT_TRUE(header.starts_with("9 $ACADVER\n1 AC1009\n"));
    EXPECT_NE(header.find("9 $INSUNITS\n70 4\n9 $MEASUREMENT\n70 1\n"), std::string::npos);
    EXPECT_TRUE(Section(items, "BLOCKS").empty());
    for (const auto &[code, value] : items) {
        EXPECT_NE(code, 5);
        EXPECT_NE(code, 100);
    }
    EXPECT_EQ(items.back(), (Item{0, "EOF"}));
    world.settings.Unite = " in";
    EXPECT_NE(Text(Section(Simple(), "HEADER")).find("9 $INSUNITS\n70 1\n9 $MEASUREMENT\n70 0\n"),
              std::string::npos);
}

TEST_F(SimpleDxf, LayersAreThoseOfTheOtherFormAndTwoMore) {
    const std::string tables = Text(Section(Simple(), "TABLES"));
    for (const char *layer :
         {"2 Layer01\n70 0\n62 7\n6 CONTINUOUS", "2 TALON\n70 0\n62 10\n6 CONTINUOUS",
          "2 AXIS\n70 0\n62 10\n6 CENTER", "2 COFFR\n70 0\n62 180\n6 CONTINUOUS",
          "2 LONG\n70 0\n62 210\n6 CONTINUOUS", "2 TROU\n70 0\n62 195\n6 CONTINUOUS",
          "2 STATIONS\n", "2 TEXT\n"}) {
        EXPECT_NE(tables.find(layer), std::string::npos) << layer;
    }
}

TEST_F(SimpleDxf, HasLinesAndCirclesAndNothingWithoutExtent) {
    world.rib.AffTrac = true;
    world.rib.NbTrou = 1;
    world.rib.trou[0].TypeTrou = 0;
    world.rib.trou[0].PosTrouAfich = "30";
    world.rib.trou[0].DiaTrou = 8;
    const Items entities = Section(Simple(), "ENTITIES");
    // Contour 4, leading edge 1, axes 2; the trailing edge and the empty slot have no extent.
    EXPECT_EQ(Kinds(entities), (std::map<std::string, int>{{"LINE", 7}, {"CIRCLE", 1}}));
    EXPECT_TRUE(Text(entities).starts_with(
        "0 LINE\n8 Layer01\n10 100.0\n20 1.0\n30 0.0\n11 50.0\n21 5.0\n31 0.0\n"));
    EXPECT_NE(Text(entities).find("0 CIRCLE\n8 TROU\n10 30.0\n20 0.0\n30 0.0\n40 4.0\n"),
              std::string::npos);
}

TEST_F(SimpleDxf, ExtentIsThatOfTheDrawing) {
    world.rib.AffTrac = true;
    const std::string header = Text(Section(Simple(), "HEADER"));
    EXPECT_NE(header.find("9 $EXTMIN\n10 0.0\n20 -5.0\n30 0.0\n9 $EXTMAX\n10 100.0\n20 5.0\n"),
              std::string::npos)
        << header;
}

TEST_F(SimpleDxf, ClosedPathIsClosedByALine) {
    world.rib.TypeBA = 0;
    world.rib.carre.CarreBA = 14.14F;
    world.rib.carre.CarreBAX = 6;
    world.rib.carre.CarreBAY = 2;
    EXPECT_EQ(Kinds(Section(Simple(), "ENTITIES"))["LINE"], 4);
}

/// A notch from 45 to 55 mm, 3 mm deep from the upper surface at 5 mm and as deep from the lower.
Longeron NotchBothSides(int kind) {
    Longeron spar;
    spar.PosLongAfich = "50";
    spar.LargLong = 10;
    spar.HautLong = 3;
    spar.TypeLong = static_cast<std::uint8_t>(kind);
    spar.OptLongExt = 2;
    spar.OptLongInt = 2;
    return spar;
}

TEST_F(SimpleDxf, EveryNotchIsAWholeOutline) {
    for (const int kind : {0, 1, 3}) { // along the surface, square, at a distance
        world.rib.longeron[0] = NotchBothSides(kind);
        const Items entities = Section(Simple(), "ENTITIES");
        EXPECT_EQ(LinesOn(entities, "LONG"),
                  (Strings{"45.0 5.0 55.0 5.0", "55.0 5.0 55.0 2.0", "55.0 2.0 45.0 2.0",
                           "45.0 2.0 45.0 5.0", "45.0 -5.0 55.0 -5.0", "55.0 -5.0 55.0 -2.0",
                           "55.0 -2.0 45.0 -2.0", "45.0 -2.0 45.0 -5.0"}))
            << kind;
    }
}

TEST_F(SimpleDxf, ARectangularHoleIsAWholeOutline) {
    world.rib.trou[0].TypeTrou = 1;
    world.rib.trou[0].PosTrouAfich = "30";
    world.rib.trou[0].DiaTrou = 8;
    world.rib.trou[0].HautTrou = 6;
    EXPECT_EQ(LinesOn(Section(Simple(), "ENTITIES"), "TROU"),
              (Strings{"26.0 0.0 26.0 3.0", "26.0 3.0 34.0 3.0", "34.0 3.0 34.0 -3.0",
                       "34.0 -3.0 26.0 -3.0", "26.0 -3.0 26.0 0.0"}));
}

TEST_F(Dxf, NotchesAndRectangularHolesStayOpenInTheInterchangeForm) {
    world.rib.longeron[0] = NotchBothSides(1);
    world.rib.trou[0].TypeTrou = 1;
    world.rib.trou[0].PosTrouAfich = "30";
    world.rib.trou[0].DiaTrou = 8;
    world.rib.trou[0].HautTrou = 6;
    const std::string entities = Text(Section(Written(), "ENTITIES"));
    EXPECT_NE(entities.find("8 LONG\n66 1\n100 AcDb2dPolyline\n70 0\n"), std::string::npos);
    EXPECT_NE(entities.find("8 TROU\n66 1\n100 AcDb2dPolyline\n70 0\n"), std::string::npos);
    EXPECT_NE(entities.find("10 45.0\n20 2.0\n30 0.0\n0 SEQEND\n"), std::string::npos);
    EXPECT_NE(entities.find("10 26.0\n20 -3.0\n30 0.0\n0 SEQEND\n"), std::string::npos);
    EXPECT_EQ(entities.find("70 1\n"), std::string::npos);
}

TEST_F(SimpleDxf, UpsideDownIsMirroredAboutTheReferenceLine) {
    world.rib.AffTrac = true;
    world.rib.AffHaut = true;
    EXPECT_TRUE(
        Text(Section(Simple(), "ENTITIES"))
            .starts_with("0 LINE\n8 Layer01\n10 100.0\n20 -1.0\n30 0.0\n11 50.0\n21 -5.0\n"));
}

TEST_F(SimpleDxf, StationLinesStandWhereThePlotHasThem) {
    world.rib.NbRep = 1;
    std::string entities = Text(Section(Simple(), "ENTITIES"));
    // They overshoot the lower surface by 0.015 of the chord, upside down by 0.01 more.
    EXPECT_NE(entities.find("0 LINE\n8 STATIONS\n10 50.0\n20 5.0\n30 0.0\n11 50.0\n21 -6.5\n"),
              std::string::npos);
    world.rib.AffHaut = true;
    entities = Text(Section(Simple(), "ENTITIES"));
    EXPECT_NE(entities.find("0 LINE\n8 STATIONS\n10 50.0\n20 -5.0\n30 0.0\n11 50.0\n21 7.5\n"),
              std::string::npos);
    world.rib.AffHaut = false;
    world.rib.TypeGabarit = kGabaritMousse;
    world.rib.bloc.BAbloc = 20;
    world.rib.bloc.HTbasbloc = 15;
    entities = Text(Section(Simple(), "ENTITIES"));
    EXPECT_NE(entities.find("0 LINE\n8 STATIONS\n10 70.0\n20 5.0\n30 0.0\n11 70.0\n21 -15.0\n"),
              std::string::npos);
}

TEST_F(SimpleDxf, InsertedTextStandsUprightOnItsLayer) {
    world.rib.texte.InsTexte = "Vrillage 2° – é";
    world.rib.texte.InsTextX = 10;
    world.rib.texte.InsTextY = 5;
    for (const bool inverted : {false, true}) {
        world.rib.AffHaut = inverted;
        const Items entities = Section(Simple(), "ENTITIES");
        EXPECT_EQ(Kinds(entities)["TEXT"], 1);
        // 9 points are 180 units, 3.174603 mm: the top at 8 mm, the base line 0.905 of it below.
        EXPECT_TRUE(Text(entities).ends_with("0 TEXT\n8 TEXT\n10 10.0\n20 5.126984\n30 0.0\n"
                                             "40 2.273016\n1 Vrillage 2%%d \\U+2013 \xE9\n"))
            << Text(entities).substr(Text(entities).size() - 120);
    }
}

TEST_F(SimpleDxf, TextWithoutPlaceOrWordsIsNotThere) {
    world.rib.texte.InsTexte = "rib";
    EXPECT_EQ(Kinds(Section(Simple(), "ENTITIES"))["TEXT"], 0);
    world.rib.texte.InsTexte = "";
    world.rib.texte.InsTextX = 10;
    EXPECT_EQ(Kinds(Section(Simple(), "ENTITIES"))["TEXT"], 0);
}

TEST_F(SimpleDxf, SimplePlotViewHasTheRawPointsOnly) {
    world.rib.ModeCouple = true;
    world.rib.NbRep = 3;
    world.rib.NbPoints = 3;
    for (const auto &[x, y] : Points{{1, 0}, {0, 0.01}, {1, -0.02}}) {
        world.rib.ProfilX.Append(x);
        world.rib.ProfilY.Append(y);
    }
    EXPECT_EQ(Kinds(Section(ItemsOf(EcritDxfSimple(Source())), "ENTITIES")),
              (std::map<std::string, int>{{"LINE", 3}}));
}

TEST_F(SimpleDxf, PointsThatAgreeInAllThatIsWrittenHaveNoLineBetweenThem) {
    world.rib.ModeCouple = true;
    world.rib.NbPoints = 4;
    for (const auto &[x, y] : Points{{1, 0}, {0, 0}, {0, 1e-12F}, {1, -0.02}}) {
        world.rib.ProfilX.Append(x);
        world.rib.ProfilY.Append(y);
    }
    const Items entities = Section(ItemsOf(EcritDxfSimple(Source())), "ENTITIES");
    EXPECT_EQ(Kinds(entities), (std::map<std::string, int>{{"LINE", 3}})) << Text(entities);
}

} // namespace
} // namespace loftwing
