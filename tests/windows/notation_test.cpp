// Every field for a length in inches tells how one is typed.

#include "features/frmInstxt.h"
#include "features/frmTalon.h"
#include "features/frmbacarre.h"
#include "features/frmbloc.h"
#include "features/frmlongeron.h"
#include "features/frmtrou.h"
#include "mainwindow/frmInput.h"
#include "output/frmPrint.h"
#include "persist/frmdefaut.h"
#include "utilities/frmangle.h"
#include "utilities/frmdiedre.h"
#include "utilities/frmnervure.h"
#include "utilities/frmribevol.h"
#include "utilities/frmribevol2.h"
#include "windows/dialog_fixture.h"

#include <memory>

namespace loftwing {
namespace {

using Windows = std::vector<std::unique_ptr<QDialog>>;

class Notation : public DialogTest {
  protected:
    Windows All() {
        programme.rib.jeu.NbNervInter = 1;
        Windows all;
        all.push_back(std::make_unique<frmInput>(programme, "corde", nullptr));
        all.push_back(std::make_unique<frmPrint>(programme, nullptr));
        all.push_back(std::make_unique<frmdiedre>(programme, nullptr));
        all.push_back(std::make_unique<frmnervure>(programme, nullptr));
        const auto add = [&]<class Dialog>() {
            all.push_back(std::make_unique<Dialog>(programme, view, nullptr));
        };
        add.operator()<frmInstxt>();
        add.operator()<frmTalon>();
        add.operator()<frmbacarre>();
        add.operator()<frmbloc>();
        add.operator()<frmlongeron>();
        add.operator()<frmtrou>();
        add.operator()<frmdefaut>();
        add.operator()<frmangle>();
        add.operator()<frmribevol>();
        add.operator()<frmribevol2>();
        return all;
    }
    /// Fields that tell the notation, of those that take fractions.
    std::pair<int, int> Told(const QDialog &window) const {
        const QString notation = Q(programme.Text({"Message", "140"}));
        std::pair<int, int> told{};
        for (const NumericField *field : window.findChildren<NumericField *>()) {
            const auto times = field->toolTip().count(notation);
            EXPECT_LE(times, field->TakesFractions() ? 1 : 0) << S(field->objectName());
            told.first += static_cast<int>(times);
            told.second += field->TakesFractions() ? 1 : 0;
        }
        return told;
    }
};

TEST_F(Notation, StandsOnceInTheTipOfEachLengthInInches) {
    Inches();
    for (const char *language : {"English", "French"}) {
        Language(language);
        ASSERT_NE(programme.Text({"Message", "140"}), "");
        for (const auto &window : All()) {
            const std::string name = S(window->objectName());
            // An angle and a count are typed with the keys of lengths and are none.
            const bool other = name == "frmdiedre" || name == "frmnervure" || name == "frmangle";
            const auto [told, fields] = Told(*window);
            EXPECT_GT(fields, 0) << name;
            EXPECT_EQ(told, fields - (other ? 1 : 0)) << name;
        }
    }
}

TEST_F(Notation, IsNotToldInMillimetres) {
    for (const auto &window : All()) {
        EXPECT_EQ(Told(*window), std::pair(0, 0)) << S(window->objectName());
    }
}

TEST_F(Notation, IsNotToldOfACountOfStationLines) {
    Inches();
    const frmInput window(programme, "rep", nullptr);
    EXPECT_EQ(Told(window).first, 0);
}

TEST_F(Notation, FollowsTheLanguageOfAWindowThatStaysOpen) {
    Inches();
    frmdiedre dihedral(programme, nullptr);
    frmnervure table(programme, nullptr);
    Language("French");
    dihedral.PoseTextes();
    table.PoseTextes();
    EXPECT_EQ(Told(dihedral), std::pair(2, 3));
    EXPECT_EQ(Told(table), std::pair(6, 7));
}

} // namespace
} // namespace loftwing
