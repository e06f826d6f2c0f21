// Panels of values that nobody would type: each is refused in words or made, in bounded time.

#include "programme/load.h"
#include "programme/panel_ends.h"
#include "programme/panel_file.h"
#include "programme/panel_plan.h"
#include "programme/panel_steps.h"
#include "programme/panel_words.h"
#include "support/one_locale.h"
#include "support/panel_by_chance.h"
#include "support/rib_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

namespace loftwing {
namespace {

constexpr unsigned kMadPanels = 150; // their numbers are the seeds
/// One panel takes a fraction of it without optimisation; it is there so that no loop is endless.
constexpr std::chrono::seconds kPatience{120};

/// Spoils some of a sane panel's texts.
class Spoiler {
  public:
    Spoiler(unsigned seed, naive::PanelAsked &asked) : dice_(seed), asked_(asked) {}

    void Spoil() {
        const int times = dice_.From(1, 6);
        for (int i = 0; i < times; ++i) {
            One();
        }
    }

  private:
    Dice dice_;
    naive::PanelAsked &asked_;

    std::string Mad() {
        return dice_.OneOf<std::string>({"",
                                         "0",
                                         "1",
                                         "-5",
                                         "5000",
                                         "1e40",
                                         "-1e40",
                                         "1e-40",
                                         "1e300",
                                         "1e999",
                                         "NaN",
                                         "nan",
                                         "inf",
                                         "-inf",
                                         "12,5",
                                         "%",
                                         "%%",
                                         "120%",
                                         "-10%",
                                         "1e40%",
                                         "NaN%",
                                         "33 %",
                                         "1/0",
                                         "/8",
                                         "2./8",
                                         "3/",
                                         "....",
                                         "1.2.3",
                                         " 7 ",
                                         "0x10",
                                         "99999999999999999999",
                                         "0.0000001",
                                         std::string(1000, '9'),
                                         std::string(1000, 'x'),
                                         "\xC3\xA9\xE2\x82\xAC",
                                         "#",
                                         "1#2"});
    }
    std::string MadChord() {
        return dice_.OneOf<std::string>({"1", "0.01", "5000", "1999", "999", "0", "", "-200",
                                         "1e40", "NaN", "200,5", "1999.0001", "/8", "1/0"});
    }
    std::string MadCount() {
        return dice_.OneOf<std::string>({"0", "90", "91", "-1", "1e40", "", "x", "2,5", "2.5",
                                         "65537", "NaN", std::string(1000, '1')});
    }
    /// One line of a slot of one end.
    void Slot(std::vector<ComponentsText::Lines> &slots) {
        auto &slot = slots[static_cast<std::size_t>(dice_.Below(static_cast<int>(slots.size())))];
        slot[static_cast<std::size_t>(dice_.Below(static_cast<int>(slot.size())))] = Mad();
    }
    void Field(ComponentsText &file) {
        file.*dice_.OneOf({&ComponentsText::text,      &ComponentsText::text_x,
                           &ComponentsText::text_y,    &ComponentsText::sheeting,
                           &ComponentsText::edge,      &ComponentsText::notch,
                           &ComponentsText::notch_x,   &ComponentsText::notch_y,
                           &ComponentsText::cut,       &ComponentsText::stock,
                           &ComponentsText::inverted,  &ComponentsText::heel_front,
                           &ComponentsText::heel_back, &ComponentsText::trailing,
                           &ComponentsText::stations,  &ComponentsText::washout,
                           &ComponentsText::below,     &ComponentsText::total,
                           &ComponentsText::ramp,      &ComponentsText::tail_ramp,
                           &ComponentsText::kind,      &ComponentsText::tail,
                           &ComponentsText::intra,     &ComponentsText::extra}) = Mad();
    }
    /// As many slots as a list can have, and more than fit on the rib.
    void Fill(ComponentsText &file) {
        file.spars.assign(12, {"50%", "1e3", "500", "2", "2", "1", "0", "0", "0"});
        file.holes.assign(12, {"-300%", "9999", "1", "0", "1", "0", "1", "0"});
    }
    void One() {
        ComponentsText &file = asked_.ends[static_cast<std::size_t>(dice_.Below(2))];
        switch (dice_.Below(8)) {
        case 0:
            file.chord = MadChord();
            return;
        case 1:
            asked_.gaps.clear();
            asked_.count = MadCount();
            return;
        case 2: {
            const int gaps = dice_.OneOf({1, 2, 13, 14, 40});
            asked_.gaps.assign(static_cast<std::size_t>(gaps), "30");
            asked_.thicknesses.assign(static_cast<std::size_t>(gaps) + 1, "2");
            asked_.gaps.back() = Mad();
            asked_.thicknesses.front() = dice_.OneIn(2) ? Mad() : "2";
            return;
        }
        case 3:
            asked_.ranges[dice_.OneOf<std::string>(
                {"spar1", "spar12", "hole13", "le", "te", "notch", "heel"})] =
                dice_.OneOf<std::pair<int, int>>(
                    {{0, 5}, {5, 1}, {-3, -1}, {1, 99999}, {2, 2}, {1, 1}});
            return;
        case 4:
            Slot(file.spars);
            return;
        case 5:
            Slot(file.holes);
            return;
        case 6:
            Field(file);
            return;
        default:
            dice_.OneIn(4) ? Fill(file) : Field(file);
        }
    }
};

class PanelMad : public testing::Test {
  protected:
    PanelMad() {
        platform.lenient = true;
        for (const char *name : {"airfoils", "sets"}) {
            std::filesystem::create_directories(folder.Path(name));
        }
        for (const char *name : {"naca2412.dat", "naca4409.dat", "naca1408.dat"}) {
            const std::string sample =
                std::string(LOFTWING_SOURCE_DIR "/resources/airfoils/") + name;
            folder.File(std::string("airfoils/") + name, ReadWholeFile(sample));
        }
        platform.store[{"Install", "RepAirfoil"}] = folder.Path("airfoils");
        platform.store[{"Install", "RepEvol"}] = folder.Path("sets");
        programme.language.Charge(programme.paths.langues, "English");
        ChargeReglages(programme);
    }

    TempFolder folder;
    WorldPlatform platform;
    Programme programme{Paths{LOFTWING_SOURCE_DIR "/resources",
                              LOFTWING_SOURCE_DIR "/resources/lng",
                              folder.Path("Loftwing.ini"),
                              {}},
                        platform};
    int read = 0, refused = 0, whole = 0;

    void Try(unsigned seed) {
        naive::PanelAsked asked = PanelByChance(seed);
        for (ComponentsText &end : asked.ends) {
            end.text = end.text == "?" ? std::string(1000, 'W') : end.text;
            if (end.airfoil == "open.dat" || end.airfoil == "coarse.dat") {
                end.airfoil = "naca2412.dat";
            }
        }
        Spoiler(seed, asked).Spoil();
        programme.settings.Unite = asked.inches ? kUniteIn : kUniteMm;
        Panneau panel;
        for (const std::size_t end : {0U, 1U}) {
            const auto bout = LitBout(programme, folder.File(end == 0 ? "root.lfw" : "tip.lfw",
                                                             asked.ends[end].Current()));
            if (!bout) {
                return; // a box told why
            }
            panel.bouts[end] = *bout;
        }
        read += 1;
        Spacing(asked, panel);
        Made(panel);
    }

  private:
    void Spacing(const naive::PanelAsked &asked, Panneau &panel) const {
        panel.jeu.cordes = CordesDesBouts(panel, programme.settings.Unite);
        panel.jeu.nombre = asked.count;
        panel.jeu.ecarts = asked.gaps;
        panel.jeu.epaisseurs = asked.thicknesses;
        panel.jeu.dossier = folder.Path("sets") + "/";
        for (const auto &[name, range] : asked.ranges) {
            panel.portees[ElementNomme(name).value()] = {range.first, range.second};
        }
    }

    void Made(const Panneau &panel) {
        const PanneauFait made = FaitPanneau(programme, panel, {});
        for (const AvisPanneau &refusal : made.refus) {
            EXPECT_FALSE(refusal.texte.empty());
        }
        const Saisie typing = programme.SaisieEnCours();
        for (std::size_t i = 0; i < made.nervures.size(); ++i) {
            EXPECT_FALSE(
                LigneNervure(programme.messages, made.nervures[i], 1, programme.settings.Unite)
                    .empty());
        }
        try {
            FaitPlan(panel, made, 500, 1, typing);
        } catch (const Failure &) {
            EXPECT_FALSE(made.refus.empty());
        }
        if (!made.refus.empty()) {
            refused += 1;
            return;
        }
        whole += 1;
        ASSERT_EQ(made.nervures.size(), made.jeu.nervures.size());
        ASSERT_GE(made.nervures.size(), 2U);
        for (const NervureFaite &rib : made.nervures) {
            EXPECT_FALSE(rib.pieces.empty());
        }
        EcritPanneau(made);
        EXPECT_TRUE(LitBout(programme, panel.jeu.dossier + made.nervures[1].composants));
    }
};

TEST_F(PanelMad, IsRefusedInWordsOrMade) {
    const unsigned panels = ManyInOneLocale(kMadPanels);
    for (unsigned seed = 0; seed < panels; ++seed) {
        SCOPED_TRACE("panel by seed " + std::to_string(seed));
        const auto start = std::chrono::steady_clock::now();
        Try(seed);
        EXPECT_LT(std::chrono::steady_clock::now() - start, kPatience);
    }
    EXPECT_GT(read, panels / 2);
    EXPECT_GT(refused, panels / 4);
    EXPECT_GT(whole, panels / 15);
}

} // namespace
} // namespace loftwing
