// What the main window says before a drawing goes to paper.

#include "output/page_setup.h"
#include "support/qt_window_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

/// A rib of 200 mm whose reference line was put 5 mm below the top of the sheet. The file's
/// highest point is at 0.07918 of the chord: 15.84 mm above the line, 10.84 beyond the sheet.
class TooHigh : public testing::Test {
  protected:
    TooHigh() {
        world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
        world.programme.settings.page.Ydprint = 5;
    }
    /// What is asked of a drawing that sheets downwards would hold: first whether to make them.
    void Asked(BoxAnswer answer) {
        Offered(BoxAnswer::no);
        world.platform.Expect(answer,
                              {.text = StartsWith("The drawing leaves the sheet. What lies beyond "
                                                  "its edge is lost :\nUpper edge : 10.9 mm\n\n"
                                                  "What helps :\nPrint Position : 16 mm to "),
                               .title = "Page setup",
                               .icon = BoxIcon::question,
                               .buttons = BoxButtons::yes_no});
    }

    void Offered(BoxAnswer answer) {
        world.platform.Expect(
            answer,
            {.text = "The drawing is taller than the sheet, or too high or too low on it. Lay "
                     "it on sheets downwards too?",
             .title = "Page setup",
             .icon = BoxIcon::question,
             .buttons = BoxButtons::yes_no});
    }

    WindowWorld world;
};

TEST_F(TooHigh, CanBeLaidOnSheetsDownwards) {
    world.platform.Expect(BoxAnswer::yes, {.text = "Print naca2412"});
    Offered(BoxAnswer::yes);
    world.Action("mnu_fileprint")->trigger();
    EXPECT_EQ(world.platform.print_questions.size(), 1U);
    // 15.84 mm above the line and the margin of 10, to a whole millimetre.
    EXPECT_EQ(LigneReference(world.programme.settings.page), 26);
    // Once taken they are not offered again.
    world.platform.Expect(BoxAnswer::yes, {.text = "Print naca2412"});
    world.Action("mnu_fileprint")->trigger();
    EXPECT_EQ(world.platform.print_questions.size(), 2U);
}

TEST_F(TooHigh, IsToldBeforeItIsPrinted) {
    world.platform.Expect(BoxAnswer::yes, {.text = "Print naca2412"});
    Asked(BoxAnswer::no);
    world.Action("mnu_fileprint")->trigger();
    EXPECT_TRUE(world.platform.print_questions.empty());
    EXPECT_TRUE(world.programme.rib.ProfilCharge);

    world.platform.Expect(BoxAnswer::yes, {.text = "Print naca2412"});
    Asked(BoxAnswer::yes);
    world.Action("mnu_fileprint")->trigger();
    EXPECT_EQ(world.platform.print_questions.size(), 1U);
}

TEST_F(TooHigh, IsToldBeforeItBecomesAPdf) {
    const std::string path = world.folder.Path("rib.pdf");
    Asked(BoxAnswer::no);
    world.Action("mnu_filepdf")->trigger();
    EXPECT_TRUE(world.platform.file_questions.empty());
    EXPECT_TRUE(world.programme.rib.ProfilCharge);

    world.platform.files_expected = {path};
    Asked(BoxAnswer::yes);
    world.Action("mnu_filepdf")->trigger();
    EXPECT_TRUE(std::filesystem::exists(path));
}

TEST_F(TooHigh, IsNotToldOfFilesWithoutSheets) {
    world.platform.files_expected = {world.folder.Path("rib.svg")};
    world.Action("mnu_filesvg")->trigger();
    EXPECT_TRUE(world.platform.boxes.empty());
}

TEST_F(TooHigh, TheZoomOfTheScreenStays) {
    Q_EMIT world.Find<QComboBox>("Combo1")->activated(0);
    world.platform.Expect(BoxAnswer::yes, {.text = "Print naca2412"});
    Asked(BoxAnswer::no);
    world.Action("mnu_fileprint")->trigger();
    EXPECT_EQ(world.programme.rib.Zoom, 3.0F);
}

TEST_F(TooHigh, WhatHelpsHelps) {
    world.programme.settings.page.Ydprint = 16;
    world.platform.Expect(BoxAnswer::yes, {.text = "Print naca2412"});
    world.Action("mnu_fileprint")->trigger();
    EXPECT_EQ(world.platform.print_questions.size(), 1U);
}

TEST(SheetsOfTheWindow, APlotThatFailsIsToldOnceAndClearsTheRib) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.programme.rib.longeron[0].PosLongAfich = "300";
    world.platform.ExpectBoxes(1);
    world.Action("mnu_filepdf")->trigger();
    EXPECT_THAT(world.platform.LastBox(), HasSubstr("Subscript out of range: Spars 1"));
    EXPECT_FALSE(world.programme.rib.ProfilCharge);
}

TEST(SheetsOfTheWindow, SpeakFrenchAndInches) {
    WindowWorld world("French", "in");
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    ValeursPouces(world.programme.settings.page);
    world.programme.settings.page.Ydprint = 0;
    world.platform.Expect(
        BoxAnswer::no,
        {.text = StartsWith("Le dessin est plus haut que la feuille"), .title = "Mise en page"});
    // 8 in of chord: the file's highest point is 0.6334 in above the line, between 10 and 11
    // sixteenths.
    world.platform.Expect(
        BoxAnswer::no,
        {.text = AllOf(StartsWith("Le dessin dépasse de la feuille. Ce qui est au-delà du bord est "
                                  "perdu :\nBord supérieur : 0.63"),
                       HasSubstr(" in\n\nPour y remédier :\nPosition d’impression : 11/16 in à "),
                       EndsWith("Continuer quand même ?")),
         .title = "Mise en page"});
    world.Action("mnu_filepdf")->trigger();
}

} // namespace
} // namespace loftwing
