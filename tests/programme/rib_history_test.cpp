#include "programme/rib_history.h"

#include "core/units.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

namespace loftwing {
namespace {

/// All that a state holds, copied whole: what the history must give back.
struct Naif {
    PartiesRib rib;
    Comparaison compare;
    std::string Unite;
};

bool SameParts(const PartiesRib &a, const PartiesRib &b) {
    const auto same = [&]<class Part>(const Part &part) {
        return part == static_cast<const Part &>(b);
    };
    return same(static_cast<const IdentiteProfil &>(a)) &&
           same(static_cast<const FichierRib &>(a)) && same(static_cast<const FichierConnu &>(a)) &&
           same(static_cast<const PointsLus &>(a)) &&
           same(static_cast<const ContourPrepare &>(a)) &&
           same(static_cast<const NouvelleSection &>(a)) &&
           same(static_cast<const Dimensions &>(a)) && same(static_cast<const Ajouts &>(a)) &&
           a.AffHaut == b.AffHaut && a.ModeCouple == b.ModeCouple && a.ModeCompare == b.ModeCompare;
}

struct HistoryWorld {
    RibModel rib;
    Comparaison compare;
    std::string Unite{kUniteMm};
    RibHistory history;

    HistoryWorld() { Note(); }
    void Note() { history.Note(rib, compare, Unite); }
    Naif Now() const { return {rib.Partie<PartiesRib>(), compare, Unite}; }
    void Undo() {
        const EtatRib &to = history.Recule();
        Pose(to, rib, compare);
        Unite = to.Unite;
    }
    void Redo() {
        const EtatRib &to = history.Avance();
        Pose(to, rib, compare);
        Unite = to.Unite;
    }
    void Load(const std::string &name, int points) {
        rib.NomProfil = name;
        rib.CheminProfil = "/airfoils/" + name + ".dat";
        rib.ProfilCharge = true;
        static_cast<PointsLus &>(rib) = {};
        for (int i = 0; i < points; ++i) {
            rib.ProfilX.Append(i);
            rib.ProfilY.Append(-i);
        }
        rib.NbPoints = static_cast<std::int16_t>(points);
    }
};

TEST(RibHistory, HasNoStepBeforeAnythingChanged) {
    HistoryWorld world;
    world.Note();
    EXPECT_FALSE(world.history.PeutAnnuler());
    EXPECT_FALSE(world.history.PeutRetablir());
    EXPECT_THROW(world.history.Recule(), Failure);
    EXPECT_THROW(world.history.Avance(), Failure);
}

TEST(RibHistory, AZoomAndATriedSectionAreNoSteps) {
    HistoryWorld world;
    world.rib.Zoom = 3;
    world.rib.DecalX = 40;
    world.rib.NouvEpaisseur = 0.1;
    world.Note();
    EXPECT_FALSE(world.history.PeutAnnuler());
}

TEST(RibHistory, AValueGoesBackAndForth) {
    HistoryWorld world;
    world.rib.corde = 300;
    world.rib.cordeAfich = "300";
    world.Note();
    world.Undo();
    EXPECT_EQ(world.rib.cordeAfich, "200");
    world.Redo();
    EXPECT_EQ(world.rib.cordeAfich, "300");
}

TEST(RibHistory, AChangeAfterAnUndoEndsWhatCouldBeRedone) {
    HistoryWorld world;
    world.rib.NbRep = 3;
    world.Note();
    world.Undo();
    world.rib.NbRep = 4;
    world.Note();
    EXPECT_FALSE(world.history.PeutRetablir());
    world.Undo();
    EXPECT_EQ(world.rib.NbRep, 0);
}

TEST(RibHistory, KeepsTwoHundredSteps) {
    HistoryWorld world;
    for (int i = 1; i <= 250; ++i) {
        world.rib.cordeAfich = std::to_string(i);
        world.Note();
    }
    int steps = 0;
    while (world.history.PeutAnnuler()) {
        world.Undo();
        ++steps;
    }
    EXPECT_EQ(steps, 200);
    EXPECT_EQ(world.rib.cordeAfich, "50");
}

TEST(RibHistory, SharesWhatDidNotChange) {
    HistoryWorld world;
    world.Load("thick", 5000);
    world.Note();
    world.rib.longeron[2].LargLong = 3;
    world.Note();
    const EtatRib &before = world.history.Precedent();
    const EtatRib &now = world.history.Present();
    EXPECT_EQ(before.points, now.points);
    EXPECT_EQ(before.contour, now.contour);
    EXPECT_EQ(before.identite, now.identite);
    EXPECT_NE(before.ajouts, now.ajouts);
}

TEST(RibHistory, ARibThatIsSavedCountsAsChangedWhereverElseItGoes) {
    HistoryWorld world;
    world.Load("wing", 20);
    world.rib.Modifie = true;
    world.Note();
    world.rib.NbRep = 5;
    world.Note();
    world.rib.NomFichierRib = "wing.lfw";
    world.rib.CheminRib = "/ribs/wing.lfw";
    world.rib.Modifie = false;
    world.history.Enregistre(world.rib);
    world.rib.NbRep = 6;
    world.rib.Modifie = true;
    world.Note();
    world.Undo();
    EXPECT_FALSE(world.rib.Modifie);
    world.Undo();
    EXPECT_TRUE(world.rib.Modifie);
    EXPECT_EQ(world.rib.CheminRib, "/ribs/wing.lfw"); // it is that file, as it was earlier
    world.Redo();
    EXPECT_FALSE(world.rib.Modifie);
    world.Redo();
    EXPECT_TRUE(world.rib.Modifie);
}

TEST(RibHistory, ASaveOverTheFileOfAnotherRibMakesThatOneUnsaved) {
    HistoryWorld world;
    world.Load("first", 20);
    world.rib.CheminRib = "/ribs/a.lfw";
    world.Note();
    world.Load("second", 20);
    world.rib.CheminRib.clear();
    world.rib.NomFichierRib = "second";
    world.rib.Modifie = true;
    world.Note();
    world.rib.CheminRib = "/ribs/a.lfw";
    world.rib.Modifie = false;
    world.history.Enregistre(world.rib);
    world.Undo();
    EXPECT_EQ(world.rib.NomProfil, "first");
    EXPECT_TRUE(world.rib.Modifie);
}

TEST(RibHistory, AStateThatIsPutBackIsNoStep) {
    HistoryWorld world;
    world.Load("wing", 20);
    world.Note();
    world.rib.NbRep = 5;
    world.Note();
    world.history.Gele();
    world.Undo();
    world.rib.texte.InsTextX = 7; // as drawing may leave it
    world.Note();
    world.history.Degele(world.rib, world.compare, world.Unite);
    EXPECT_TRUE(world.history.PeutRetablir());
    world.Redo();
    EXPECT_EQ(world.rib.NbRep, 5);
    world.Undo();
    EXPECT_EQ(world.rib.texte.InsTextX, 7);
}

TEST(RibHistory, AClearInsteadOfTheStateThatWasWantedIsAStep) {
    HistoryWorld world;
    world.Load("wing", 20);
    world.Note();
    world.rib.NbRep = 5;
    world.Note();
    world.history.Gele();
    world.Undo();
    world.rib.ProfilCharge = false; // the drawing failed
    world.history.Degele(world.rib, world.compare, world.Unite);
    world.Undo();
    EXPECT_TRUE(world.rib.ProfilCharge);
    EXPECT_EQ(world.rib.NbRep, 0);
}

/// Commands as a user gives them, in no sensible order.
class Commands {
  public:
    Commands(HistoryWorld &world, unsigned seed) : world_(world), random_(seed) {}

    int Below(int count) { return std::uniform_int_distribution<>(0, count - 1)(random_); }

    void Do() {
        RibModel &rib = world_.rib;
        const std::string text = std::to_string(Below(400));
        const auto number = static_cast<float>(Below(400));
        const auto slot = static_cast<std::size_t>(Below(kSlots));
        const std::vector<std::function<void()>> all = {
            [&] { rib.cordeAfich = text, rib.corde = number; },
            [&] { rib.EpCoffrageAfich = text; },
            [&] { rib.EpBA = number; },
            [&] { rib.EpBFAfich = text; },
            [&] { rib.vrillage = number; },
            [&] { rib.NbRep = static_cast<std::uint8_t>(Below(20)); },
            [&] { rib.TypeBA = static_cast<std::uint8_t>(Below(2)); },
            [&] { rib.longeron[slot].PosLongAfich = text; },
            [&] { rib.longeron[slot].TypeLong = static_cast<std::uint8_t>(Below(4)); },
            [&] { rib.NbLongeron = static_cast<std::uint8_t>(slot); },
            [&] { rib.trou[slot].DiaTrou = number; },
            [&] { rib.trou[slot] = {}; },
            [&] { rib.carre.CarreBAAfich = text; },
            [&] { rib.talon.TalonIntra = Wide(number); },
            [&] { rib.TypeGabarit = static_cast<std::uint8_t>(Below(3)); },
            [&] { rib.bloc.CoupeBF = number; },
            [&] { rib.texte.InsTexte = text; },
            [&] { rib.texte.TexteUtilisateur = !rib.texte.TexteUtilisateur; },
            [&] { rib.AffHaut = !rib.AffHaut; },
            [&] { rib.NouvEpaisseur = Wide(number); },
            [&] { rib.LigneReserve = text; },
            [&] { rib.Modifie = !rib.Modifie; },
            [&] { world_.Load("airfoil" + text, Below(300)); },
            [&] { rib.ContourX.Append(Wide(number)); },
            [&] { rib.ProfilCharge = false; },
            [&] { world_.Unite = Below(2) == 0 ? kUniteMm : kUniteIn; },
            [&] { world_.compare.CompareX2.Append(Wide(number)); },
            [&] {
                rib.ModeCouple = rib.ProfilCharge && Below(2) == 0;
                rib.ModeCompare = false;
            },
            [&] {
                world_.compare.CompareNb1 = world_.compare.CompareNb2 = 3;
                rib.ModeCompare = true;
                rib.ModeCouple = false;
            },
            [] {}, // a dialog that is closed again
        };
        for (int changes = 1 + Below(3); changes > 0; --changes) {
            all[static_cast<std::size_t>(Below(static_cast<int>(all.size())))]();
        }
        rib.ModeCouple = rib.ModeCouple && rib.ProfilCharge;
    }

  private:
    HistoryWorld &world_;
    std::mt19937 random_;
};

/// Whether the user sees a difference between two states.
bool Seen(const Naif &a, const Naif &b) {
    const auto view = [](const Naif &each) {
        return each.rib.ModeCompare     ? 3
               : !each.rib.ProfilCharge ? 0
                                        : 1 + static_cast<int>(each.rib.ModeCouple);
    };
    PartiesRib unseen = b.rib;
    static_cast<FichierRib &>(unseen) = a.rib;
    static_cast<FichierConnu &>(unseen) = a.rib;
    static_cast<ContourPrepare &>(unseen) = a.rib;
    static_cast<NouvelleSection &>(unseen) = a.rib;
    unseen.ModeCompare = a.rib.ModeCompare;
    unseen.ModeCouple = a.rib.ModeCouple;
    return view(a) != view(b) || !SameParts(a.rib, unseen) || a.Unite != b.Unite ||
           (a.rib.ModeCompare && !(a.compare == b.compare));
}

TEST(RibHistory, GivesEveryRibBackFieldByFieldThroughAHundredThousandCommands) {
    constexpr unsigned kSeed = 20260117;
    constexpr int kCommands = 100000;
    SCOPED_TRACE(kSeed);
    HistoryWorld world;
    Commands commands(world, kSeed);
    std::vector<Naif> naive = {world.Now()};
    std::size_t present = 0;
    for (int i = 0; i < kCommands; ++i) {
        const int what = commands.Below(10);
        if (what < 6) {
            commands.Do();
            world.Note();
            if (!Seen(naive[present], world.Now())) {
                naive[present] = world.Now();
                continue;
            }
            naive.resize(present + 1);
            naive.push_back(world.Now());
            if (naive.size() > 201) {
                naive.erase(naive.begin());
            }
            present = naive.size() - 1;
        } else if (what < 8) {
            ASSERT_EQ(world.history.PeutAnnuler(), present > 0);
            if (present > 0) {
                world.Undo();
                --present;
            }
        } else {
            ASSERT_EQ(world.history.PeutRetablir(), present + 1 < naive.size());
            if (present + 1 < naive.size()) {
                world.Redo();
                ++present;
            }
        }
        const Naif &wanted = naive[present];
        ASSERT_TRUE(SameParts(world.rib, wanted.rib)) << "command " << i;
        ASSERT_EQ(world.compare, wanted.compare) << "command " << i;
        ASSERT_EQ(world.Unite, wanted.Unite) << "command " << i;
    }
}

} // namespace
} // namespace loftwing
