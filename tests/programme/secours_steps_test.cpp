// Unsaved work kept and had back, without a window.

#include "programme/secours_steps.h"

#include "programme/file_steps.h"
#include "programme/rib_steps.h"
#include "programme/undo_steps.h"
#include "support/steps_world.h"

#include <algorithm>
#include <optional>

namespace loftwing {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

class SecoursSteps : public StepsWorld {
  protected:
    SecoursSteps() {
        view.on_clear = [this] { VideTout(programme, view); };
        NoteEtat(programme);
    }

    /// A rib that isn't saved, with something in every part.
    void OpenRib() {
        OuvreFichier(programme, view, Sample("naca2412.dat"));
        RibModel &rib = Rib();
        rib.cordeAfich = "187.5";
        rib.corde = 187.5F;
        rib.EpBFAfich = "12";
        rib.EpBF = 12;
        rib.longeron[0].PosLongAfich = "30%";
        rib.longeron[0].LargLongAfich = "5";
        rib.longeron[0].LargLong = 5;
        rib.longeron[0].HautLongAfich = "3";
        rib.longeron[0].HautLong = 3;
        rib.longeron[0].OptLongExt = rib.longeron[0].OptLongInt = 1;
        rib.NbLongeron = 1;
        rib.texte.InsTexte = "Root, left";
        rib.texte.TexteUtilisateur = true;
        rib.AffHaut = rib.AffEpr = true;
        rib.CheminRib = "/ribs/root.lfw";
        rib.NomFichierRib = "root.lfw";
        rib.FichierRibOuvert = true;
        rib.LigneReserve = "of another program";
        NoteEtat(programme);
    }
    /// The rib is kept and the window is no more; gives what was kept.
    Orphelin Crashed() {
        GardeTravail(programme);
        const std::string bytes = ReadWholeFile(KeptFile());
        programme.secours.Retire();
        VideTout(programme, view);
        NoteEtat(programme);
        folder.File("recovery/crashed.rib", bytes);
        std::vector<Orphelin> ribs = ChercheSecours(programme);
        EXPECT_EQ(ribs.size(), 1U);
        return std::move(ribs.front());
    }
    std::string KeptFile() const {
        for (const auto &entry : std::filesystem::directory_iterator(folder.Path("recovery"))) {
            if (entry.path().extension() == ".rib") {
                return entry.path().string();
            }
        }
        ADD_FAILURE() << "nothing was kept";
        return {};
    }
    std::ptrdiff_t Kept() const {
        const std::filesystem::path place = folder.Path("recovery");
        if (!std::filesystem::exists(place)) {
            return 0;
        }
        std::ptrdiff_t count = 0;
        for (const auto &entry : std::filesystem::directory_iterator(place)) {
            count += entry.path().extension() == ".rib" ? 1 : 0;
        }
        return count;
    }
};

TEST_F(SecoursSteps, OnlyARibWithChangesIsKept) {
    GardeTravail(programme);
    EXPECT_EQ(Kept(), 0);
    OpenRib(); // an airfoil that no rib components file holds yet
    EXPECT_TRUE(AGarder(programme));
    GardeTravail(programme);
    EXPECT_EQ(Kept(), 1);
    Rib().Modifie = false; // saved
    NoteEtat(programme);
    EXPECT_FALSE(AGarder(programme));
    GardeTravail(programme);
    EXPECT_EQ(Kept(), 0);
}

TEST_F(SecoursSteps, AClearedRibIsKeptNoMore) {
    OpenRib();
    GardeTravail(programme);
    platform.Expect(BoxAnswer::yes);
    DemandeVide(programme, view);
    NoteEtat(programme);
    GardeTravail(programme);
    EXPECT_EQ(Kept(), 0);
}

TEST_F(SecoursSteps, AComparisonOrBarePointsAreNotWorkToKeep) {
    OpenRib();
    Comparing();
    NoteEtat(programme);
    EXPECT_FALSE(AGarder(programme));
    programme.compare = {};
    Rib().ModeCompare = false;
    Rib().ModeCouple = true;
    NoteEtat(programme);
    EXPECT_FALSE(AGarder(programme));
}

TEST_F(SecoursSteps, WhileAFileIsBeingPickedTheRibOnTheScreenIsKept) {
    OpenRib();
    Rib().ProfilX(1) = 17; // the reading of another file has begun
    Rib().NomProfil = "half";
    Rib().Modifie = false;
    GardeTravail(programme);
    const auto kept = LitInstantane(ReadWholeFile(KeptFile()));
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->parties.NomProfil, "naca2412");
    EXPECT_EQ(kept->parties.ProfilX(1), 1);
}

template <class... Parts>
void ExpectSameParts(const PartiesRib &a, const PartiesRib &b) {
    const std::initializer_list<bool> same = {
        (static_cast<const Parts &>(a) == static_cast<const Parts &>(b))...};
    EXPECT_EQ(std::count(same.begin(), same.end(), false), 0);
}

TEST_F(SecoursSteps, ARestoredRibIsWhatItWasInEveryPart) {
    OpenRib();
    const PartiesRib before = Rib();
    Orphelin orphan = Crashed();
    ASSERT_FALSE(Rib().ProfilCharge);
    view.asked.clear();
    EXPECT_TRUE(RestaureRib(programme, view, std::move(orphan)));
    ExpectSameParts<IdentiteProfil, FichierRib, FichierConnu, PointsLus, ContourPrepare,
                    NouvelleSection, Dimensions, Ajouts, Vue>(Rib(), before);
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_THAT(view.asked, Contains("Titre Loftwing Rib : root.lfw Airfoil : naca2412"));
    EXPECT_THAT(view.asked, Contains("MontreCoches"));
    EXPECT_THAT(view.asked, Contains("ActiveCommandes"));
    EXPECT_EQ(view.asked.back(), "affiche");
}

TEST_F(SecoursSteps, ARestoredAirfoilIsCaptionedByItsName) {
    OuvreFichier(programme, view, Sample("naca2412.dat"));
    NoteEtat(programme);
    Orphelin orphan = Crashed();
    EXPECT_TRUE(RestaureRib(programme, view, std::move(orphan)));
    EXPECT_THAT(view.asked, Contains("Titre Loftwing Airfoil : naca2412"));
}

TEST_F(SecoursSteps, ItsUnitHoldsForThisRibOnly) {
    OpenRib();
    Rib().cordeAfich = "7.3/8";
    programme.settings.Unite = kUniteIn;
    NoteEtat(programme);
    Orphelin orphan = Crashed(); // which brings the user's unit back
    ASSERT_EQ(programme.settings.Unite, kUniteMm);
    const double Yd = programme.settings.page.Ydprint;
    view.asked.clear();
    EXPECT_TRUE(RestaureRib(programme, view, std::move(orphan)));
    EXPECT_EQ(programme.settings.Unite, kUniteIn);
    EXPECT_EQ(Rib().cordeAfich, "7.3/8");
    EXPECT_THAT(view.asked, Contains("AfficheUnite"));
    VideTout(programme, view);
    EXPECT_EQ(programme.settings.Unite, kUniteMm);
    EXPECT_EQ(programme.settings.page.Ydprint, Yd);
}

TEST_F(SecoursSteps, ARibInAViewOfItsOwnComesBackAsARib) {
    OpenRib();
    Rib().ModeEpCourb = true;
    Rib().Zoom = 3;
    Rib().DecalX = 40;
    NoteEtat(programme);
    Orphelin orphan = Crashed();
    EXPECT_TRUE(RestaureRib(programme, view, std::move(orphan)));
    EXPECT_FALSE(Rib().ModeEpCourb);
    EXPECT_EQ(Rib().Zoom, 1);
    EXPECT_EQ(Rib().DecalX, 0);
}

TEST_F(SecoursSteps, NoStepLeadsBackBeforeARestoredRib) {
    OpenRib();
    Orphelin orphan = Crashed();
    EXPECT_TRUE(RestaureRib(programme, view, std::move(orphan)));
    NoteEtat(programme);
    EXPECT_EQ(PasAnnulable(programme), "");
    EXPECT_TRUE(AGarder(programme));
}

TEST_F(SecoursSteps, ARestoredRibStaysOnDiskUntilItIsSaved) {
    OpenRib();
    Orphelin orphan = Crashed();
    EXPECT_TRUE(RestaureRib(programme, view, std::move(orphan)));
    NoteEtat(programme);
    EXPECT_EQ(Kept(), 1);
    GardeTravail(programme);
    EXPECT_EQ(Kept(), 1);
    platform.files_expected = {folder.Path("root.lfw")};
    EnregistreRib(programme, view);
    NoteEtat(programme);
    GardeTravail(programme);
    EXPECT_EQ(Kept(), 0);
}

TEST_F(SecoursSteps, ARibWithoutAContourIsToldAndPutAside) {
    OpenRib();
    Orphelin orphan = Crashed();
    const std::string file = orphan.chemin;
    static_cast<PointsLus &>(orphan.contenu.parties) = {};
    platform.ExpectBoxes(2); // of the contour
    platform.Expect(BoxAnswer::ok,
                    {.text = HasSubstr(file + ".damaged"), .icon = BoxIcon::warning});
    EXPECT_FALSE(RestaureRib(programme, view, std::move(orphan)));
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_EQ(Kept(), 0);
    EXPECT_TRUE(std::filesystem::exists(file + ".damaged"));
}

TEST_F(SecoursSteps, DamagedOnesAreToldByNameOnce) {
    std::filesystem::create_directories(folder.Path("recovery"));
    const std::string file = folder.File("recovery/1.rib", "Loftwing recovery 1\n");
    ExpectBox(BoxAnswer::ok,
              "What was kept of unsaved work cannot be read or drawn. It was put aside as:\n" +
                  file + ".damaged",
              "Loftwing");
    EXPECT_TRUE(ChercheSecours(programme).empty());
    EXPECT_TRUE(ChercheSecours(programme).empty());
}

TEST_F(SecoursSteps, ThePictureIsThatOfThePiece) {
    OpenRib();
    const Orphelin orphan = Crashed();
    const std::vector<Piece> pieces = PiecesDe(programme, orphan.contenu);
    ASSERT_EQ(pieces.size(), 1U);
    const BoitePiece box = BoiteDe(pieces.front());
    EXPECT_NEAR(box.haut_droite.x - box.bas_gauche.x, 187.5 - 12, 2); // sheeting is no wood
    Instantane none = orphan.contenu;
    none.parties.EpCoffrage = 100; // nothing is left of the wood
    const std::vector<Piece> bare = PiecesDe(programme, none);
    ASSERT_EQ(bare.size(), 1U);
    const BoitePiece whole = BoiteDe(bare.front());
    EXPECT_NEAR(whole.haut_droite.x - whole.bas_gauche.x, 187.5, 0.1);
    EXPECT_TRUE(PiecesDe(programme, {}).empty());
    EXPECT_FALSE(Rib().ProfilCharge);
}

TEST_F(SecoursSteps, AFolderThatCannotBeWrittenIsNoticedAndWorkGoesOn) {
    folder.File("recovery", "in the way");
    OpenRib();
    GardeTravail(programme);
    EXPECT_TRUE(programme.secours.Echoue());
    EXPECT_EQ(Rib().corde, 187.5F);
}

} // namespace
} // namespace loftwing
