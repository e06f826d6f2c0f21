#include "programme/notices.h"

#include "support/special_files.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

class NoticesTest : public StepsWorld {
  protected:
    NoticesTest() { Rib().ProfilCharge = true; }

    /// The heel of a rib that was just opened.
    void HaveHeel() {
        Rib().TypeGabarit = kGabaritTalon;
        Rib().talon.TalonBAAfich = "20";
        Rib().talon.TalonBFAfich = "30";
        Rib().talon.TalonBA = Rib().talon.TalonBF = Rib().talon.TalonLong = 0;
    }
    std::vector<Notice> Standing() { return notices.Standing(programme); }
    std::vector<NoticeSubject> Subjects() {
        std::vector<NoticeSubject> subjects;
        for (const Notice &notice : Standing()) {
            subjects.push_back(notice.subject);
        }
        return subjects;
    }

    Notices notices;
};

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(NoticesTest, APlainRibHasNone) {
    EXPECT_THAT(Subjects(), IsEmpty());
}

TEST_F(NoticesTest, AContourThatEndsTooEarlySaysWhereAndWhy) {
    Rib().CheminProfil = "/airfoils/e205.dat";
    Rib().NbPoints = 61;
    for (int point = 1; point <= 61; ++point) {
        Rib().ProfilX.Append(0.5);
        Rib().ProfilY.Append(0.02);
    }
    Rib().faute = {CauseContour::meme_hauteur, 30, 31, 28};
    ASSERT_THAT(Subjects(), ElementsAre(NoticeSubject::contour));
    EXPECT_EQ(
        Standing().front().text,
        "Only a part of this airfoil can be drawn, up to its point 28 of 61. e205.dat, points "
        "30 and 31 at the same height, y = 0.02.");
    EXPECT_THAT(Standing().front().buttons, IsEmpty());
    Rib().faute = {};
    EXPECT_THAT(Subjects(), IsEmpty());
}

TEST_F(NoticesTest, AContourThatStraysIsToldInPercentAndAsALengthOfThisRib) {
    Rib().corde = 200;
    Rib().EcartContour = 0.0005; // the most that import allows
    EXPECT_THAT(Subjects(), IsEmpty());
    Rib().EcartContour = 0.03125;
    ASSERT_THAT(Subjects(), ElementsAre(NoticeSubject::import_offered));
    EXPECT_EQ(Standing().front().text,
              "The contour leaves the smooth curve through the airfoil's points by 3.1 % of the "
              "chord. An import lays the points anew. On this rib that is up to 6.25 mm.");
    EXPECT_THAT(Standing().front().buttons,
                ElementsAre(NoticeButton{NoticeAct::import_airfoil, "Import..."}));
    programme.settings.Unite = kUniteIn;
    Rib().corde = 203.2F; // 8 in, of which a 32nd is a quarter
    EXPECT_THAT(Standing().front().text, testing::EndsWith("On this rib that is up to 1/4 in."));
}

TEST_F(NoticesTest, TheButtonOfAContourThatStraysImportsItsFile) {
    ASSERT_TRUE(Read(Sample("naca2412.dat")));
    DoNotice(programme, view, NoticeAct::import_airfoil);
    EXPECT_THAT(view.asked, ElementsAre("MontreImport " + Sample("naca2412.dat")));
}

TEST_F(NoticesTest, MarginsThatAreNotInForceAreOfferedToBeConfirmed) {
    HaveHeel();
    ASSERT_THAT(Subjects(), ElementsAre(NoticeSubject::heel_margins));
    const Notice notice = Standing().front();
    EXPECT_EQ(notice.text, "The heel's margins from the rib file are not in force : 20 mm, 30 mm. "
                           "The heel is drawn as if they were 0.");
    ASSERT_EQ(notice.buttons.size(), 1U);
    EXPECT_EQ(notice.buttons[0].text, "Put in force");
    DoNotice(programme, view, notice.buttons[0].act);
    EXPECT_EQ(Rib().talon.TalonBA, 20);
    EXPECT_EQ(Rib().talon.TalonBF, 30);
    EXPECT_THAT(view.asked, ElementsAre("affiche"));
    EXPECT_THAT(Subjects(), IsEmpty());
}

TEST_F(NoticesTest, ARibThatWasSavedApartFromItsAirfoilSaysWhereThatWillBeSearched) {
    Rib().NomProfil = "mine";
    Rib().ExtProfil = "dat";
    Rib().CheminRib = FromRoot("ribs/root.lfw");
    Rib().ProfilAilleurs = true;
    ASSERT_THAT(Subjects(), ElementsAre(NoticeSubject::airfoil_elsewhere));
    EXPECT_EQ(Standing().front().text,
              "mine.dat lies in neither airfoil folder. When this rib is opened, it is looked for "
              "below " +
                  folder.Path("airfoils") + " and " + folder.Path("sets") + ", then in " +
                  FromRoot("ribs") + ".");
    EXPECT_THAT(Standing().front().buttons, IsEmpty());
    HaveHeel(); // and several stand side by side
    EXPECT_THAT(Subjects(),
                ElementsAre(NoticeSubject::heel_margins, NoticeSubject::airfoil_elsewhere));
}

TEST_F(NoticesTest, ADoubtfulUnitIsNamedAndTheOtherOneOffered) {
    Rib().UniteDouteuse = true;
    ASSERT_THAT(Subjects(), ElementsAre(NoticeSubject::unit));
    const Notice in_mm = Standing().front();
    EXPECT_EQ(in_mm.text, "A rib file names no unit. Read in millimetres, the lengths of this one "
                          "look like inches.");
    EXPECT_THAT(in_mm.buttons,
                ElementsAre(NoticeButton{NoticeAct::open_in_other_unit, "Open it in inches"}));
    programme.settings.Unite = kUniteIn;
    const Notice in_inches = Standing().front();
    EXPECT_EQ(in_inches.text, "A rib file names no unit. Read in inches, the lengths of this one "
                              "look like millimetres.");
    EXPECT_EQ(in_inches.buttons.at(0).text, "Open it in millimetres");
}

TEST_F(NoticesTest, AClosedNoticeComesBackWithItsNextCauseOnly) {
    HaveHeel();
    EXPECT_EQ(Standing().size(), 1U);
    notices.Close(NoticeSubject::heel_margins);
    EXPECT_THAT(Subjects(), IsEmpty());
    EXPECT_THAT(Subjects(), IsEmpty());
    Rib().TypeGabarit = kSansGabarit; // another rib
    EXPECT_THAT(Subjects(), IsEmpty());
    HaveHeel();
    EXPECT_THAT(Subjects(), ElementsAre(NoticeSubject::heel_margins));
}

TEST_F(NoticesTest, AViewInTheRibsPlaceHasNoneAndTheClosedOnesStayClosed) {
    HaveHeel();
    Rib().ModeEpCourb = true;
    EXPECT_THAT(Subjects(), IsEmpty());
    Rib().ModeEpCourb = false;
    EXPECT_EQ(Standing().size(), 1U);
    notices.Close(NoticeSubject::heel_margins);
    Rib().ModeEpCourb = true;
    EXPECT_THAT(Subjects(), IsEmpty());
    Rib().ModeEpCourb = false;
    EXPECT_THAT(Subjects(), IsEmpty());
}

TEST_F(NoticesTest, WhatIsSaidOfThePieceStandsUntilItIsClosedOrOtherwise) {
    programme.AvisDePiece = "It falls apart.";
    ASSERT_THAT(Subjects(), ElementsAre(NoticeSubject::piece));
    EXPECT_EQ(Standing().front().text, "Piece : It falls apart.");
    EXPECT_THAT(Standing().front().buttons, IsEmpty());
    notices.Close(NoticeSubject::piece);
    EXPECT_THAT(Subjects(), IsEmpty());
    programme.AvisDePiece = "It is thin."; // another fault
    EXPECT_THAT(Subjects(), ElementsAre(NoticeSubject::piece));
    programme.AvisDePiece = "";
    EXPECT_THAT(Subjects(), IsEmpty());
}

TEST_F(NoticesTest, AClearedRibHasNone) {
    HaveHeel();
    Rib().ProfilCharge = false;
    EXPECT_THAT(Subjects(), IsEmpty());
}

TEST_F(NoticesTest, AFailureOfWhatAButtonDoesIsTold) {
    programme.settings.Unite = kUniteIn;
    HaveHeel();
    Rib().talon.TalonBAAfich = "1/0";
    platform.Expect(BoxAnswer::ok, {.title = " Talon/OK"});
    DoNotice(programme, view, NoticeAct::take_heel_margins);
    EXPECT_EQ(Rib().talon.TalonLong, 0);
}

} // namespace
} // namespace loftwing
