// What leaves the program is the same whatever was on the screen before.

#include "windows/frmmain_files_fixture.h"

namespace loftwing {
namespace {

constexpr int kInterchangeForm = 0;
constexpr int kPlainForm = 1;

class PrimedExports : public RibFiles {
  protected:
    PrimedExports() {
        file.trailing = "25";
        OpenBytes("rib.lfw", file.Current());
    }

    /// Shows the rib as a window does that has shown it without trailing edge stock before.
    void ShowWithoutStock() {
        Rib().EpBF = 0;
        world.window->affiche();
        Rib().EpBF = 25;
        world.window->affiche();
    }
    std::string Export(const char *name, const std::string &file_name, int form = 0) {
        world.platform.form_chosen = form;
        Choose(name, world.folder.Path(file_name));
        return world.folder.Bytes(file_name);
    }

    ComponentsText file;
};

TEST_F(PrimedExports, SvgAndTheFormForCuttersDontDependOnEarlierPlots) {
    const std::string svg = Export("mnu_filesvg", "fresh.svg");
    const std::string plain = Export("mnu_filedxf", "fresh.dxf", kPlainForm);
    ShowWithoutStock();
    EXPECT_EQ(Export("mnu_filesvg", "shown.svg"), svg);
    EXPECT_EQ(Export("mnu_filedxf", "shown.dxf", kPlainForm), plain);
}

TEST_F(PrimedExports, TheInterchangeFormShowsWhatTheScreenLeft) {
    const std::string fresh = Export("mnu_filedxf", "fresh.dxf", kInterchangeForm);
    Export("mnu_filedxf", "plain.dxf", kPlainForm);
    Export("mnu_filesvg", "rib.svg");
    EXPECT_EQ(Export("mnu_filedxf", "again.dxf", kInterchangeForm), fresh); // they leave it alone
    ShowWithoutStock();
    EXPECT_NE(Export("mnu_filedxf", "shown.dxf", kInterchangeForm), fresh);
}

TEST_F(PrimedExports, AStockThatDoesntFitIsRefusedInEveryForm) {
    Rib().EpBF = 400;
    for (const int form : {kInterchangeForm, kPlainForm}) {
        world.platform.Expect(BoxAnswer::ok);
        world.platform.form_chosen = form;
        Choose("mnu_filedxf", world.folder.Path("rib.dxf"));
        EXPECT_FALSE(Exists("rib.dxf"));
    }
    EXPECT_TRUE(Rib().ProfilCharge);
}

} // namespace
} // namespace loftwing
