#include "programme/heel_steps.h"

#include "support/steps_world.h"

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HeelSteps : public StepsWorld {
  protected:
    /// A rib whose heel was read from a file, on a chord of 200 mm.
    void HaveHeel(const std::string &front, const std::string &rear) {
        Rib().ProfilCharge = true;
        Rib().TypeGabarit = kGabaritTalon;
        Rib().talon.TalonBAAfich = front;
        Rib().talon.TalonBFAfich = rear;
    }
    void ExpectQuestion(BoxAnswer answer) {
        platform.Expect(
            answer,
            {.text = "The heel's margins from the rib file are not in force : 20 mm, 30 mm. The "
                     "heel is drawn as if they were 0.\nPut the margins in force first? With No "
                     "the heel stays as it is shown.",
             .title = "Rib levelling heel",
             .buttons = BoxButtons::yes_no});
    }
};

TEST_F(HeelSteps, YesPutsTheMarginsInForceAndDrawsThem) {
    HaveHeel("20", "30");
    ExpectQuestion(BoxAnswer::yes);
    EXPECT_TRUE(DemandeMarges(programme, view));
    EXPECT_EQ(Rib().talon.TalonLong, 50);
    EXPECT_THAT(view.asked, ElementsAre("affiche"));
    // And then there is nothing left to ask.
    EXPECT_TRUE(DemandeMarges(programme, view));
    EXPECT_EQ(platform.boxes.size(), 1U);
}

TEST_F(HeelSteps, NoGoesOnWithTheRibAsItIs) {
    HaveHeel("20", "30");
    ExpectQuestion(BoxAnswer::no);
    EXPECT_TRUE(DemandeMarges(programme, view));
    EXPECT_EQ(Rib().talon.TalonLong, 0);
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(HeelSteps, NothingIsAskedWhereNoMarginWaits) {
    HaveHeel("0", "0");
    EXPECT_TRUE(DemandeMarges(programme, view));
    HaveHeel("20", "30");
    Rib().TypeGabarit = kSansGabarit;
    EXPECT_TRUE(DemandeMarges(programme, view));
    HaveHeel("20", "30");
    Rib().ModeCouple = true; // the view in its place has no heel
    EXPECT_TRUE(DemandeMarges(programme, view));
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(HeelSteps, MarginsThatWereWantedAndAreTooLongStopWhatWasAsked) {
    HaveHeel("150", "51");
    platform.Expect(BoxAnswer::yes);
    platform.Expect(BoxAnswer::ok,
                    {.text = "The margins together are longer than the chord : 201 mm > 200 mm"});
    EXPECT_FALSE(DemandeMarges(programme, view));
    EXPECT_EQ(Rib().talon.TalonLong, 0);
}

TEST_F(HeelSteps, ARibThatCannotBeDrawnWithThemStopsItToo) {
    HaveHeel("20", "30");
    ExpectQuestion(BoxAnswer::yes);
    view.on_draw = [this] { Rib().ProfilCharge = false; };
    EXPECT_FALSE(DemandeMarges(programme, view));
}

} // namespace
} // namespace loftwing
