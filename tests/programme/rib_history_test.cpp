#include "programme/rib_history.h"

#include "core/units.h"
#include "support/one_locale.h"

#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <random>
#include <utility>

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
        for (int changes = 1 + Below(3); changes > 0; --changes) {
            (this->*kAll[static_cast<std::size_t>(Below(static_cast<int>(kAll.size())))])();
        }
        RibModel &rib = world_.rib;
        rib.ModeCouple = rib.ModeCouple && rib.ProfilCharge;
    }

  private:
    HistoryWorld &world_;
    std::mt19937 random_;

    int Number() { return Below(400); }
    std::string Text() { return std::to_string(Number()); }
    std::size_t Slot() { return static_cast<std::size_t>(Below(kSlots)); }
    std::uint8_t Kind(int count) { return static_cast<std::uint8_t>(Below(count)); }

    void Chord() {
        world_.rib.cordeAfich = Text();
        world_.rib.corde = static_cast<float>(Number());
    }
    void Sheeting() { world_.rib.EpCoffrageAfich = Text(); }
    void Leading() { world_.rib.EpBA = static_cast<float>(Number()); }
    void Trailing() { world_.rib.EpBFAfich = Text(); }
    void Washout() { world_.rib.vrillage = static_cast<float>(Number()); }
    void Stations() { world_.rib.NbRep = Kind(20); }
    void Edge() { world_.rib.TypeBA = Kind(2); }
    void SparPlace() { world_.rib.longeron[Slot()].PosLongAfich = Text(); }
    void SparKind() { world_.rib.longeron[Slot()].TypeLong = Kind(4); }
    void Spars() { world_.rib.NbLongeron = Kind(kSlots); }
    void Hole() { world_.rib.trou[Slot()].DiaTrou = static_cast<float>(Number()); }
    void NoHole() { world_.rib.trou[Slot()] = {}; }
    void Notch() { world_.rib.carre.CarreBAAfich = Text(); }
    void Heel() { world_.rib.talon.TalonIntra = Number(); }
    void Template() { world_.rib.TypeGabarit = Kind(3); }
    void Tail() { world_.rib.bloc.CoupeBF = static_cast<float>(Number()); }
    void Words() { world_.rib.texte.InsTexte = Text(); }
    void Own() { world_.rib.texte.TexteUtilisateur = Below(2) == 0; }
    void Turned() { world_.rib.AffHaut = !world_.rib.AffHaut; }
    void Section() { world_.rib.NouvEpaisseur = Number(); }
    void Spare() { world_.rib.LigneReserve = Text(); }
    void Changed() { world_.rib.Modifie = !world_.rib.Modifie; }
    void Open() { world_.Load("airfoil" + Text(), Below(300)); }
    void Contour() { world_.rib.ContourX.Append(Number()); }
    void Clear() { world_.rib.ProfilCharge = false; }
    void Unit() { world_.Unite = Below(2) == 0 ? kUniteMm : kUniteIn; }
    void Other() { world_.compare.CompareX2.Append(Number()); }
    void BarePoints() {
        world_.rib.ModeCouple = world_.rib.ProfilCharge && Below(2) == 0;
        world_.rib.ModeCompare = false;
    }
    void Compare() {
        world_.compare.CompareNb1 = world_.compare.CompareNb2 = 3;
        world_.rib.ModeCompare = true;
        world_.rib.ModeCouple = false;
    }
    void Nothing() {} // a dialog that is closed again

    static constexpr std::array kAll = {
        &Commands::Chord,    &Commands::Sheeting, &Commands::Leading,  &Commands::Trailing,
        &Commands::Washout,  &Commands::Stations, &Commands::Edge,     &Commands::SparPlace,
        &Commands::SparKind, &Commands::Spars,    &Commands::Hole,     &Commands::NoHole,
        &Commands::Notch,    &Commands::Heel,     &Commands::Template, &Commands::Tail,
        &Commands::Words,    &Commands::Own,      &Commands::Turned,   &Commands::Section,
        &Commands::Spare,    &Commands::Changed,  &Commands::Open,     &Commands::Contour,
        &Commands::Clear,    &Commands::Unit,     &Commands::Other,    &Commands::BarePoints,
        &Commands::Compare,  &Commands::Nothing};
};

/// Whether the user sees a difference between two states.
bool Seen(const Naif &a, const Naif &b) {
    const auto view = [](const Naif &each) {
        return each.rib.ModeCompare     ? 3
               : !each.rib.ProfilCharge ? 0
                                        : 1 + static_cast<int>(each.rib.ModeCouple);
    };
    const auto same = [&]<class Part>(const Part &part) {
        return part == static_cast<const Part &>(b.rib);
    };
    return view(a) != view(b) || a.Unite != b.Unite || a.rib.AffHaut != b.rib.AffHaut ||
           !same(static_cast<const IdentiteProfil &>(a.rib)) ||
           !same(static_cast<const PointsLus &>(a.rib)) ||
           !same(static_cast<const Dimensions &>(a.rib)) ||
           !same(static_cast<const Ajouts &>(a.rib)) ||
           (a.rib.ModeCompare && a.compare != b.compare);
}

TEST(RibHistory, GivesEveryRibBackFieldByFieldThroughAHundredThousandCommands) {
    constexpr unsigned kSeed = 20260117;
    const unsigned kCommands = ManyInOneLocale(100000);
    SCOPED_TRACE(kSeed);
    HistoryWorld world;
    Commands commands(world, kSeed);
    std::deque<Naif> naive = {world.Now()};
    std::size_t present = 0;
    for (unsigned i = 0; i < kCommands; ++i) {
        const int what = commands.Below(10);
        if (what < 6) {
            commands.Do();
            world.Note();
            Naif now = world.Now();
            if (!Seen(naive[present], now)) {
                naive[present] = std::move(now);
                continue;
            }
            naive.resize(present + 1);
            naive.push_back(std::move(now));
            if (naive.size() > 201) {
                naive.pop_front();
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
