// Whole wing panels against a second computation: every line of every file, every number.

#include "base/text_encoding.h"
#include "programme/panel_chance_fixture.h"
#include "support/one_locale.h"
#include "utilities/ribevol.h"
#include "utilities/ribevol2.h"

#include <map>

namespace loftwing {
namespace {

constexpr unsigned kPanels = 40;      // their numbers are the seeds; odd ones are in inches
constexpr double kClosePanel = 0.001; // mm

class PanelNaive : public PanelOfChance {
  protected:
    std::vector<naive::PanelRib> wanted;

    /// What the tools for sets write of the same airfoils.
    JeuDeNervures SetOfTool() {
        const Saisie typing = programme.SaisieEnCours();
        const std::array<std::string, 2> names = {"a", "b"};
        const std::array<std::string, 2> &chords = panel.jeu.cordes;
        const std::string tools = folder.Path("tools/");
        if (asked.gaps.empty()) {
            Ribevol set;
            EXPECT_FALSE(VerifieRibevol({names, chords, asked.count}, typing, set));
            return ComposeRibevol(set, ProfilsDesBouts(panel), tools, typing);
        }
        JeuNervures gaps;
        gaps.NbNervInter = static_cast<std::int16_t>(asked.gaps.size() - 1);
        Ribevol2 set;
        const SaisieRibevol2 ends{
            names, chords, {asked.thicknesses.front(), asked.thicknesses.back()}};
        EXPECT_FALSE(ValideRibevol2(ends, typing, gaps, set));
        for (std::size_t gap = 0; gap < asked.gaps.size(); ++gap) {
            set.NervCourante = static_cast<std::int16_t>(gap + 1);
            AppliqueEcart(asked.thicknesses[gap], asked.gaps[gap], typing, gaps, set);
        }
        EXPECT_FALSE(VerifieEcarts(gaps, programme.messages));
        CalculeRibevol2(gaps, set);
        return ComposeRibevol2(gaps, set, ProfilsDesBouts(panel), tools, typing);
    }

    void CompareWithTool() {
        const std::vector<std::string> files = SaveProfil(SetOfTool(), programme.messages);
        ASSERT_EQ(files.size(), made.nervures.size());
        for (std::size_t i = 0; i < files.size(); ++i) {
            EXPECT_EQ(files[i], folder.Path("tools/" + made.nervures[i].profil));
            EXPECT_EQ(ReadWholeFile(files[i]), made.nervures[i].octets_profil);
        }
    }

    void Compare(unsigned seed) {
        ASSERT_NO_FATAL_FAILURE(Make(seed));
        wanted = naive::MakePanel(asked);
        ASSERT_EQ(made.nervures.size(), wanted.size());
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            SCOPED_TRACE("rib " + std::to_string(i + 1));
            const NervureFaite &rib = made.nervures[i];
            EXPECT_NEAR(made.jeu.nervures[i].rapport, wanted[i].ratio,
                        i == 0 || i + 1 == wanted.size() ? 1 : 0); // an end's isn't read
            EXPECT_EQ(rib.profil, wanted[i].name + ".dat");
            EXPECT_EQ(rib.composants, wanted[i].name + ".lfw");
            CompareLines(rib.octets_profil, wanted[i].airfoil);
            CompareLines(rib.octets_composants, wanted[i].file.Current());
            CompareNumbers(rib.rib, wanted[i]);
        }
    }

    static void CompareLines(const std::string &got, const std::string &bytes) {
        const std::vector<std::string> lines = SplitLines(got);
        const std::vector<std::string> expected = SplitLines(bytes);
        ASSERT_EQ(lines.size(), expected.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
            EXPECT_EQ(lines[i], expected[i]) << "line " << i + 1;
        }
        EXPECT_EQ(got, bytes); // line ends too
    }

    /// The numbers that the window has of the rib's file, against what was to be written.
    static void CompareNumbers(const PartiesRib &rib, const naive::PanelRib &one) {
        EXPECT_NEAR(Wide(rib.corde), one.chord, kClosePanel);
        const std::map<std::string, float> numbers = {
            {"text x", rib.texte.InsTextX},  {"text y", rib.texte.InsTextY},
            {"sheeting", rib.EpCoffrage},    {"edge", rib.EpBA},
            {"notch", rib.carre.CarreBA},    {"notch x", rib.carre.CarreBAX},
            {"notch y", rib.carre.CarreBAY}, {"cut", rib.bloc.CoupeBF},
            {"trailing", rib.EpBF},          {"below", rib.bloc.HTbasbloc},
            {"total", rib.bloc.HTbloc},      {"ramp", rib.bloc.BAbloc},
            {"tail ramp", rib.bloc.BFbloc}};
        for (const auto &[key, number] : numbers) {
            EXPECT_NEAR(Wide(number), one.mm.at(key), kClosePanel) << key;
        }
        EXPECT_NEAR(rib.talon.TalonIntra, one.mm.at("intra"), kClosePanel);
        for (std::size_t slot = 0; slot < one.spars.size(); ++slot) {
            const std::string key = "spar" + std::to_string(slot + 1) + " ";
            EXPECT_NEAR(Wide(rib.longeron[slot].LargLong), one.mm.at(key + "width"), kClosePanel);
            EXPECT_NEAR(Wide(rib.longeron[slot].HautLong), one.mm.at(key + "depth"), kClosePanel);
            EXPECT_NEAR(Wide(rib.longeron[slot].DistLong), one.mm.at(key + "distance"),
                        kClosePanel);
        }
        for (std::size_t slot = 0; slot < one.holes.size(); ++slot) {
            const std::string key = "hole" + std::to_string(slot + 1) + " ";
            EXPECT_NEAR(Wide(rib.trou[slot].DiaTrou), one.mm.at(key + "width"), kClosePanel);
            EXPECT_NEAR(Wide(rib.trou[slot].HautTrou), one.mm.at(key + "height"), kClosePanel);
            EXPECT_NEAR(Wide(rib.trou[slot].DecalTrou), one.mm.at(key + "height over line"),
                        kClosePanel);
        }
    }
};

TEST_F(PanelNaive, EveryLineIsThatOfTheSecondComputationAndAirfoilsThoseOfTheTools) {
    std::filesystem::create_directories(folder.Path("tools"));
    for (unsigned seed = 0; seed < ManyInOneLocale(kPanels); ++seed) {
        SCOPED_TRACE("panel by seed " + std::to_string(seed));
        Compare(seed);
        CompareWithTool();
    }
}

} // namespace
} // namespace loftwing
