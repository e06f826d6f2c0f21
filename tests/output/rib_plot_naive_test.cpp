// Whole drawings against a second computation.

#include "output/screen_plot.h"
#include "support/drawing_text.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

namespace loftwing {
namespace {

/// Everything that the user may set on a rib, chosen by chance; the seed makes it the same in every
/// run and on every platform.
class Chance {
  public:
    explicit Chance(unsigned seed) : engine_(seed) {}

    unsigned Below(unsigned count) { return static_cast<unsigned>(engine_() % count); }
    bool Coin() { return Below(2) == 0; }
    template <class Value>
    Value OneOf(std::initializer_list<Value> values) {
        return *(values.begin() + Below(static_cast<unsigned>(values.size())));
    }

    void Dress(RibWorld &world) {
        RibModel &rib = world.rib;
        rib.corde = OneOf({200.0F, 100.0F, 203.2F, 187.3F, 33.3F, 1500.0F});
        rib.EpCoffrage = OneOf({0.0F, 1.5F, 0.79375F, 6.0F, -1.0F});
        rib.EpBF = OneOf({0.0F, 0.0F, 0.1F, 2.5F, 20.0F, 33.3F});
        rib.EpBA = OneOf({0.0F, 0.0F, 0.1F, 5.0F, 12.7F, 30.0F});
        if (Below(8) == 0) {
            rib.EpBA = rib.corde;
        }
        if (Below(8) == 0) {
            rib.EpBF = rib.corde - rib.EpBA;
        }
        const double both = static_cast<double>(rib.EpBA) + static_cast<double>(rib.EpBF);
        if (both > static_cast<double>(rib.corde)) {
            rib.EpBF = 0; // else the screen refuses it
        }
        rib.NbRep = OneOf<std::uint8_t>({0, 0, 1, 3, 10, 255});
        rib.AffHaut = Coin();
        rib.AffTrac = Below(4) != 0;
        rib.AffLignRef = Below(4) != 0;
        rib.AffEpr = Coin();
        rib.AffHautBA = Coin();
        rib.AffHautBF = Coin();
        rib.Zoom = OneOf({3.0F, 2.0F, 1.5F, 1.0F, 0.75F, 0.5F, 0.25F});
        rib.DecalX = OneOf<std::int16_t>({0, 0, -1, -37, 5});
        rib.DecalY = OneOf<std::int16_t>({0, 0, 1, 12, -4});
        rib.texte.TailleFont = OneOf({9.0F, 5.0F, 10.5F});
        world.settings.Unite = Coin() ? " mm" : " in";
        for (Trait &trait : world.settings.traits) {
            trait.couleur = static_cast<std::int16_t>(Below(16));
            trait.style = static_cast<std::int16_t>(Below(5));
            trait.epaisseur = static_cast<std::int16_t>(1 + Below(3));
        }
        DressSlots(rib);
        DressAddOns(rib);
    }

    /// Spars and holes; some poke out, some have kinds that no dialog gives.
    void DressSlots(RibModel &rib) {
        rib.NbLongeron = static_cast<std::uint8_t>(Below(13));
        for (Longeron &spar : rib.longeron) {
            spar.PosLongAfich = Place();
            spar.RefLong = static_cast<std::uint8_t>(Below(2));
            spar.LargLong = OneOf({0.5F, 5.0F, 3.2F, 9.525F});
            spar.HautLong = OneOf({0.0F, 3.0F, 6.35F});
            spar.DistLong = OneOf({0.0F, 0.0F, 2.5F});
            spar.TypeLong = OneOf<std::uint8_t>({0, 0, 1, 2, 3, 9});
            spar.OptLongExt = OneOf<std::uint8_t>({0, 1, 2, 2, 7});
            spar.OptLongInt = OneOf<std::uint8_t>({0, 1, 2, 1, 3});
        }
        rib.NbTrou = static_cast<std::uint8_t>(Below(13));
        for (Trou &hole : rib.trou) {
            hole.PosTrouAfich = Place();
            hole.RefTrou = static_cast<std::uint8_t>(Below(2));
            hole.DiaTrou = OneOf({0.0F, 5.0F, 12.7F, 40.0F});
            hole.HautTrou = OneOf({0.0F, 3.0F, 6.35F});
            hole.DecalTrou = OneOf({0.0F, -2.5F, 1.1F});
            hole.ChkCentre = OneOf({0.0F, 1.0F, 0.5F});
            hole.TypeTrou = OneOf<std::uint8_t>({0, 1, 0, 1, 5});
        }
    }

    /// Heel or template, V-notch, text.
    void DressAddOns(RibModel &rib) {
        const double chord = static_cast<double>(rib.corde);
        rib.TypeGabarit = OneOf<std::uint8_t>({0, 1, 11, 3});
        rib.vrillage = OneOf({0.0F, 2.5F, -3.0F, 20.0F, -20.0F});
        rib.talon.OptTalon = OneOf<std::int16_t>({0, 1});
        rib.talon.TalonIntra = OneOf({0.0, 12.5, -3.0});
        rib.talon.TalonExtra = OneOf({0.0, -12.5, 3.0});
        rib.talon.TalonBF = OneOf({0.0, 0.25, 0.1}) * chord;
        rib.talon.TalonLong = rib.talon.TalonBF + OneOf({0.0, 0.5, 0.333}) * chord;
        rib.bloc.HTbasbloc = OneOf({0.0F, 15.0F, 30.5F});
        rib.bloc.HTbloc = OneOf({0.0F, 50.0F, 20.0F});
        rib.bloc.BAbloc = OneOf({0.0F, 15.0F, 30.5F});
        rib.bloc.BFbloc = OneOf({0.0F, 15.0F, 30.5F});
        rib.bloc.CoupeBF = OneOf({0.0F, 1.0F, 4.0F});
        rib.bloc.Optquebf = OneOf<std::uint8_t>({0, 1, 2});
        rib.TypeBA = OneOf<std::uint8_t>({0, 1, 1, 2});
        rib.carre.CarreBA = OneOf({0.0F, 5.0F, 12.7F});
        rib.carre.CarreBAX = OneOf({0.0F, 3.0F});
        rib.carre.CarreBAY = OneOf({0.0F, -1.5F, 2.0F});
        rib.texte.InsTexte = Coin() ? "rib : 1" : "";
        rib.texte.InsTextX = OneOf({0.0F, 12.0F});
        rib.texte.InsTextY = OneOf({0.0F, -2.0F, 3.5F});
    }

    /// Seldom 0, which ends the spars, and seldom outside, which ends the plot.
    std::string Place() {
        return OneOf<const char *>({"10",    "33%",   "50%",   "12.5%", "90 %", "16.2%", "3/4",
                                    "1.1/2", "66.6%", "75%",   "21%",   "8",    "33%",   "50%",
                                    "12.5%", "95%",   "16.2%", "1",     "0",    "-4"});
    }

  private:
    std::mt19937 engine_;
};

template <class Got, class Wanted>
void ExpectSameTable(const Got &got, const Wanted &wanted) {
    for (std::size_t k = 0; k <= 400; ++k) {
        ASSERT_DOUBLE_EQ(got[k], wanted[k]) << "station " << k;
    }
}

void ExpectSamePlaces(const std::array<PlaceTracee, kSlots> &got, const naive::Spot *wanted) {
    for (std::size_t i = 0; i < got.size(); ++i) {
        const PlaceTracee &place = got[i];
        const naive::Spot &spot = wanted[i];
        EXPECT_EQ(std::tie(place.kf, place.kr, place.kc), std::tie(spot.kf, spot.kr, spot.kc)) << i;
        EXPECT_EQ(std::tie(place.Uf, place.Ur, place.Uc, place.Lf, place.Lr, place.Lc),
                  std::tie(spot.Uf, spot.Ur, spot.Uc, spot.Lf, spot.Lr, spot.Lc))
            << i;
    }
}

/// What the program's plot leaves behind must be what the naive one leaves.
void ExpectSameRest(const PlotState &got, const naive::Memory &wanted) {
    EXPECT_EQ(got.OrigineX, wanted.OrigineX);
    EXPECT_EQ(got.OrigineY, wanted.OrigineY);
    EXPECT_EQ(got.CordeEchelle, wanted.CordeEchelle);
    EXPECT_EQ(got.EpRel, wanted.EpRel);
    EXPECT_EQ(got.StationBA, wanted.StationBA);
    EXPECT_EQ(got.StationBF, wanted.StationBF);
    EXPECT_EQ(got.DemiBF, wanted.DemiBF);
    EXPECT_DOUBLE_EQ(got.PosEpDev, wanted.PosEpDev);
    EXPECT_EQ(got.IdxFinCoffr, wanted.IdxFinCoffr);
    EXPECT_EQ(got.CoupeRel, wanted.CoupeRel);
    EXPECT_EQ(got.CoupeDev, wanted.CoupeDev);
    EXPECT_EQ(got.BlocYBF, wanted.BlocYBF);
    ExpectSamePlaces(got.longerons, wanted.spars);
    ExpectSamePlaces(got.trous, wanted.holes);
    ExpectSameTable(got.extra.Angle, wanted.AngleExtra);
    ExpectSameTable(got.extra.DecalX, wanted.DecalXExtra);
    ExpectSameTable(got.extra.DecalY, wanted.DecalYExtra);
    ExpectSameTable(got.intra.Angle, wanted.AngleIntra);
    ExpectSameTable(got.intra.DecalX, wanted.DecalXIntra);
    ExpectSameTable(got.intra.DecalY, wanted.DecalYIntra);
}

/// Draws the rib by `affiche` both ways and compares all that comes of it. Tells whether the plot
/// ran to its end.
bool CompareOnScreen(RibWorld &world, naive::Memory &memory, const std::string &name) {
    SCOPED_TRACE(name);
    Recording device;
    naive::PlaceOnScreen(world.rib, memory);
    const naive::Drawing wanted = naive::PlotRib(world.rib, world.settings, memory);
    world.platform.boxes.clear();
    world.platform.lenient = true;
    const Affichage end = afficheRib(world.On(device));
    EXPECT_EQ(end == Affichage::dessine, wanted.failure == 0) << wanted.failure;
    if (wanted.failure != 0) {
        EXPECT_EQ(world.platform.boxes.size(), 1U);
        EXPECT_NE(world.platform.boxes.at(0).text.find("# " + std::to_string(wanted.failure) + " "),
                  std::string::npos)
            << world.platform.boxes.at(0).text;
    }
    EXPECT_TRUE(SameDrawing(name, device, wanted.drawn));
    ExpectSameRest(world.plot, memory);
    return wanted.failure == 0;
}

/// The ends of the contour decide how the sheeting closes: this moves them.
Points WithTrailingEdge(Points points, double upper, double lower) {
    points.front().second = upper;
    points.back().second = lower;
    return points;
}

std::vector<Points> Airfoils() {
    return {Naca(12, 30),
            Naca(2412, 40, true),
            Naca(4415, 15),
            Naca(6409, 60, true),
            Naca(6, 25),
            WithTrailingEdge(Naca(2412, 30), 0.004, 0.001),
            WithTrailingEdge(Naca(2412, 30), -0.001, -0.004),
            WithTrailingEdge(Naca(2412, 30), -0.001, 0.002),
            WithTrailingEdge(Naca(4412, 30), 0.0, 0.0),
            Naca(9518, 100, true)};
}

TEST(RibPlotAgainstNaive, AllOptionsOfOneRib) {
    RibWorld world;
    naive::Memory memory;
    TakeAirfoil(world, Naca(2412, 30, true));
    Chance chance(1);
    int number = 0;
    for (const float sheeting : {0.0F, 1.5F, 6.0F}) {
        for (const float trailing : {0.0F, 0.3F, 20.0F}) {
            for (const float leading : {0.0F, 0.2F, 12.0F, 150.0F, 200.0F}) {
                for (const int stations : {0, 1, 3, 255}) {
                    for (const bool inverted : {false, true}) {
                        chance.Dress(world);
                        world.rib.corde = 200;
                        world.rib.EpCoffrage = sheeting;
                        world.rib.EpBF = leading + trailing > 200 ? 200 - leading : trailing;
                        world.rib.EpBA = leading;
                        world.rib.NbRep = static_cast<std::uint8_t>(stations);
                        world.rib.AffHaut = inverted;
                        CompareOnScreen(world, memory, "options-" + std::to_string(++number));
                    }
                }
            }
        }
        if (HasFailure()) {
            return; // one set of differing files is enough
        }
    }
}

TEST(RibPlotAgainstNaive, AirfoilsOneAfterTheOther) {
    // One state throughout: each plot finds what the one before has left.
    RibWorld world;
    naive::Memory memory;
    Chance chance(2);
    const std::vector<Points> airfoils = Airfoils();
    int whole = 0;
    for (int round = 0; round < 20 && !HasFailure(); ++round) {
        for (std::size_t i = 0; i < airfoils.size(); ++i) {
            TakeAirfoil(world, airfoils[i]);
            chance.Dress(world);
            const bool drawn = CompareOnScreen(
                world, memory, "airfoil-" + std::to_string(i) + "-" + std::to_string(round));
            whole += drawn ? 1 : 0;
        }
    }
    EXPECT_GT(whole, 40); // the rest shows that both break off at the same place
}

TEST(RibPlotAgainstNaive, EveryAirfoilFileAtHand) {
    RibWorld world;
    naive::Memory memory;
    Chance chance(3);
    const std::vector<std::string> files = AirfoilFiles();
    if (files.empty()) {
        GTEST_SKIP() << "no airfoil files";
    }
    int taken = 0;
    for (const std::string &path : files) {
        if (!TakeAirfoilFile(world, path)) {
            continue;
        }
        ++taken;
        for (int round = 0; round < 4; ++round) {
            chance.Dress(world);
            CompareOnScreen(world, memory, world.rib.NomProfil + "-" + std::to_string(round));
            if (testing::Test::HasFailure()) {
                return;
            }
        }
    }
    EXPECT_GT(taken, 0);
}

TEST(RibPlotAgainstNaive, StocksBeyondTheChordBreakOffAtTheSamePlace) {
    RibWorld world;
    world.platform.lenient = true;
    TakeAirfoil(world, Naca(2412, 30));
    for (const auto &[leading, trailing] : std::vector<std::pair<float, float>>{{-1.0F, 0.0F},
                                                                                {-0.2F, 0.0F},
                                                                                {-0.2F, 5.0F},
                                                                                {0.0F, 250.0F},
                                                                                {401.0F, 0.0F},
                                                                                {450.0F, 0.0F},
                                                                                {250.0F, 10.0F},
                                                                                {0.0F, -10.0F}}) {
        naive::Memory memory;
        world.rib.EpBA = leading;
        world.rib.EpBF = trailing;
        world.plot = PlotState{};
        world.Place();
        memory.CordeEchelle = world.plot.CordeEchelle;
        memory.OrigineX = world.plot.OrigineX;
        memory.OrigineY = world.plot.OrigineY;
        const naive::Drawing wanted = naive::PlotRib(world.rib, world.settings, memory);
        Recording device;
        SCOPED_TRACE(testing::Message() << leading << " " << trailing);
        EXPECT_EQ(PrintSubroutine(world.On(device), 1.0), wanted.failure == 0);
        EXPECT_TRUE(SameDrawing("beyond", device, wanted.drawn));
        ExpectSameRest(world.plot, memory);
    }
}

TEST(RibPlotAgainstNaive, FreshPlotDiffersFromALaterOneOnlyInItsFirstSheeting) {
    RibWorld world;
    TakeAirfoil(world, Naca(2412, 30));
    world.rib.EpBF = 20;
    Recording fresh;
    Recording later;
    ASSERT_EQ(afficheRib(world.On(fresh)), Affichage::dessine);
    world.rib.EpBF = 0; // computes the offsets of all stations
    Recording between;
    ASSERT_EQ(afficheRib(world.On(between)), Affichage::dessine);
    world.rib.EpBF = 20;
    ASSERT_EQ(afficheRib(world.On(later)), Affichage::dessine);
    ASSERT_EQ(fresh.Operations().size(), later.Operations().size());
    int differing = 0;
    for (std::size_t i = 0; i < fresh.Operations().size(); ++i) {
        differing += fresh.Operations()[i] == later.Operations()[i] ? 0 : 1;
    }
    EXPECT_EQ(differing, 2); // the first upper and the first lower segment
}

} // namespace
} // namespace loftwing
