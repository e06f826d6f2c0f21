// What the main window's caption names: whatever is on the screen.

#include "base/whole_file.h"
#include "support/components_text.h"
#include "windows/views_fixture.h"

#include <filesystem>
#include <utility>

namespace loftwing {
namespace {

class MainCaption : public Views {
  protected:
    std::string AfterResizing() const {
        world.Resize(world.window->size() + QSize(120, 80));
        return Caption();
    }
};

TEST_F(MainCaption, NamesTheAirfoilInAWindowOfAnySize) {
    EXPECT_EQ(AfterResizing(), "Loftwing");
    OpenRib();
    EXPECT_EQ(AfterResizing(), "Loftwing Airfoil : naca2412");
}

TEST_F(MainCaption, NamesTheRibFileInAWindowOfAnySize) {
    std::filesystem::copy_file(WindowWorld::Sample("naca2412.dat"),
                               world.folder.Path("airfoils/naca2412.dat"));
    world.window->OuvreFichier(world.folder.File("root.lfw", ComponentsText{}.Current()));
    EXPECT_EQ(AfterResizing(), "Loftwing Rib : root.lfw Airfoil : naca2412");
    world.platform.files_expected = {world.folder.Path("tip.lfw")};
    world.Action("mnu_filesaveas")->trigger();
    EXPECT_EQ(AfterResizing(), "Loftwing Rib : tip.lfw  Airfoil : naca2412");
}

TEST_F(MainCaption, ShowsANameOfEveryKindOnOneLine) {
    const std::string bytes = ReadWholeFile(WindowWorld::Sample("naca2412.dat"));
    for (const auto &[name, shown] :
         {std::pair("a[*]b", "a[*]b"), std::pair("line\nend", "line end"),
          std::pair("<b>&amp; %1", "<b>&amp; %1"), std::pair("b\xFC", "b\xC3\xBC")}) {
        world.window->OuvreFichier(world.folder.File(std::string(name) + ".dat", bytes));
        // The toolkit shows "[*]" for a doubled one, and nothing for a single one.
        EXPECT_EQ(S(Q(AfterResizing()).replace("[*][*]", "[*]")),
                  std::string("Loftwing Airfoil : ") + shown);
        EXPECT_FALSE(Q(Caption()).replace("[*][*]", "").contains("[*]"));
    }
}

TEST_F(MainCaption, NamesTheViewInAWindowOfAnySize) {
    Compare();
    EXPECT_EQ(AfterResizing(), "Loftwing : comparison of naca0012 with naca2412");
    world.Action("mnu_affclear")->trigger();
    EXPECT_EQ(AfterResizing(), "Loftwing");
    Run("mnu_Outilcoupl", {PickSample("naca0012.dat")});
    EXPECT_EQ(AfterResizing(), "Loftwing : naca0012");
}

TEST_F(MainCaption, StaysThroughTheCommandsOfTheViewMenu) {
    OpenRib();
    for (const char *command : {"mnu_affinver", "mnu_affepr", "mnu_affTrac", "mnu_afflignRef"}) {
        world.Action(command)->trigger();
        EXPECT_EQ(AfterResizing(), "Loftwing Airfoil : naca2412") << command;
    }
    Run("mnu_affcouleur", {Cancel});
    EXPECT_EQ(AfterResizing(), "Loftwing Airfoil : naca2412");
}

} // namespace
} // namespace loftwing
