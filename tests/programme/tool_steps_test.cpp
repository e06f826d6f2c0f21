#include "programme/tool_steps.h"

#include "support/steps_world.h"

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A world that notes the texts and titles of its questions.
class AskingPlatform : public ScriptedPlatform {
  public:
    std::vector<std::string> questions;

    std::optional<std::string> Ask(const std::string &text, const std::string &title,
                                   const std::string &proposed) override {
        questions.push_back(title + ": " + text);
        EXPECT_EQ(proposed, "");
        return ScriptedPlatform::Ask(text, title, proposed);
    }
};

class ToolSteps : public StepsWorld {
  protected:
    int Number(std::deque<std::optional<std::string>> answers) {
        asking.texts_expected = std::move(answers);
        Programme world(programme.paths, asking);
        world.language.Charge(programme.paths.langues, "English");
        return DemandeNombre(world, "Wing");
    }

    AskingPlatform asking;
};

TEST_F(ToolSteps, ASetOfRibsFindsRoomWhereThereIsNoRib) {
    Rib().Modifie = true;
    EXPECT_TRUE(ConfirmeJeu(programme, view));
    FaitPlaceAuJeu(programme, view);
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(ToolSteps, ASetOfRibsClearsTheRibUnlessTheUserKeepsIt) {
    Rib().ProfilCharge = true;
    Rib().Modifie = true;
    const std::string question = "The rib has changes that are not saved. Generate a set of ribs "
                                 "all the same?";
    ExpectBox(BoxAnswer::no, question, "Full set of ribs");
    EXPECT_FALSE(ConfirmeJeu(programme, view));
    EXPECT_THAT(view.asked, IsEmpty());
    ExpectBox(BoxAnswer::yes, question, "Full set of ribs");
    EXPECT_TRUE(ConfirmeJeu(programme, view));
    FaitPlaceAuJeu(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("affclear"));
}

TEST_F(ToolSteps, TheNumberOfRibsIsAskedForUntilItCanBeHad) {
    EXPECT_EQ(Number({"13", "-1", "12"}), 12);
    EXPECT_THAT(asking.questions,
                ElementsAre("Wing: Number of intermediate ribs",
                            "Wing: Number of intermediate ribs !\n  --->    at most 12",
                            "Wing: Number of intermediate ribs !"));
}

TEST_F(ToolSteps, ACancelledNumberGivesUp) {
    EXPECT_EQ(Number({std::nullopt}), 0);
    EXPECT_EQ(Number({"none"}), 0);
}

TEST_F(ToolSteps, AnAirfoilForAToolLeavesTheRib) {
    ASSERT_TRUE(Read(Sample("naca0012.dat")));
    Rib().MemProfil = true;
    const std::int16_t points = Rib().NbPoints;
    WillPick({Sample("naca2412.dat")});
    const auto chosen = ChoisitPourOutil(programme, view, "Root");
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->NomProfil, "naca2412");
    EXPECT_GT(chosen->NbPoints, kPointsMini);
    EXPECT_EQ(Rib().NomProfil, "naca0012");
    EXPECT_EQ(Rib().NbPoints, points);
    EXPECT_FALSE(Rib().MemProfil);
    EXPECT_TRUE(view.choices[0].laisse_rib);
    EXPECT_THAT(view.asked, ElementsAre("ChoisitFichier Root"));
}

TEST_F(ToolSteps, ACancelledPickerGivesAToolNothing) {
    ASSERT_TRUE(Read(Sample("naca0012.dat")));
    view.on_pick = [this](const ChoixProfil &) {
        Read(Sample("naca2412.dat")); // looked at
        return false;
    };
    EXPECT_FALSE(ChoisitPourOutil(programme, view, "Root"));
    EXPECT_EQ(Rib().NomProfil, "naca0012");
}

TEST_F(ToolSteps, TheVersionCheckOpensThePageOfTheSite) {
    for (const char *site : {"https://example.org", "https://example.org/"}) {
        WriteINIFile("Version", "Site", site, programme.paths.fichier);
        VerifieVersion(programme);
        EXPECT_EQ(platform.pages_opened.back(), "https://example.org/loftwing/fr/maj.html");
    }
}

TEST_F(ToolSteps, TheVersionCheckSaysThatNoAddressIsSet) {
    ExpectBox(BoxAnswer::ok,
              "No address is set for the version check. It stands in the settings file, on these "
              "lines :\n" +
                  programme.paths.fichier + "\n[Version]\nSite=",
              "Loftwing");
    VerifieVersion(programme);
    EXPECT_THAT(platform.pages_opened, IsEmpty());
}

TEST_F(ToolSteps, TheCalculatorStarts) {
    OuvreCalculette(programme);
    EXPECT_THAT(platform.programs_started, ElementsAre("calc"));
}

TEST_F(ToolSteps, AMissingCalculatorIsSaid) {
    platform.programs_start = false;
    ExpectBox(BoxAnswer::ok, "No calculator program was found on this system.", "Loftwing No-Calc");
    OuvreCalculette(programme);
    EXPECT_EQ(platform.boxes[0].icon, BoxIcon::warning);
}

TEST_F(ToolSteps, AMissingCalculatorIsSaidInALanguageWithoutWordsToo) {
    platform.programs_start = false;
    programme.language.Charge(folder.Path(), "None");
    ExpectBox(BoxAnswer::ok, "The windows Calculator does not exist", "Loftwing No-Calc");
    OuvreCalculette(programme);
}

} // namespace
} // namespace loftwing
