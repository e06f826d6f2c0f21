#include "programme/essai_rib.h"

#include "features/rib_entry.h"
#include "programme/file_steps.h"
#include "programme/undo_steps.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

class EssaiRib : public StepsWorld {
  protected:
    EssaiRib() {
        NoteEtat(programme);
        OuvreFichier(programme, view, Sample("naca2412.dat"));
        NoteEtat(programme);
    }

    static double NoAdvance(const std::string &, const TextFont &) { return 0; }
    /// Whether the chord that is typed gives a drawing; its width then.
    double WidthAt(const std::string &chord) {
        Recording drawing(NoAdvance);
        const bool drawn = DessineEssai(
            programme,
            [&chord](RibModel &rib, const Saisie &saisie) {
                return ValideSaisie(ModeDe("corde"), rib, chord, saisie) == FinSaisie::prise;
            },
            drawing);
        return drawn ? drawing.Bounds().right - drawing.Bounds().left : 0;
    }
};

TEST_F(EssaiRib, DrawsTheRibWithWhatIsTyped) {
    // Stock and sheeting are lines of the rib: nothing of the drawing is wider than its chord.
    EXPECT_NEAR(WidthAt("300") - WidthAt("250"), 50 * kUnitsPerMm, 2);
}

TEST_F(EssaiRib, LeavesTheRibAndTheLastPlotAsTheyAre) {
    const RibHistory before = programme.histoire;
    const double scale = Wide(programme.plot.CordeEchelle);
    EXPECT_GT(WidthAt("300"), 0);
    NoteEtat(programme);
    EXPECT_EQ(PasAnnulable(programme), "open naca2412");
    EXPECT_EQ(programme.histoire.Present().dimensions, before.Present().dimensions);
    EXPECT_EQ(Wide(programme.plot.CordeEchelle), scale);
}

TEST_F(EssaiRib, ShowsNothingOfWhatIsRefusedAndNobodySeesABox) {
    EXPECT_EQ(WidthAt("0"), 0);
    programme.settings.Unite = kUniteIn;
    EXPECT_EQ(WidthAt("1/0"), 0);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(EssaiRib, ShowsNothingWithoutAnAirfoil) {
    Rib().ProfilCharge = false;
    NoteEtat(programme);
    EXPECT_EQ(WidthAt("300"), 0);
}

} // namespace
} // namespace loftwing
