// Snapshots of a rib: nothing is lost, and nothing wrong is taken for one.

#include "persist/rib_snapshot.h"

#include "core/units.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>

namespace loftwing {
namespace {

/// Fills fields one after the other, each with a value of its own that no default has. A part is
/// taken apart by a binding of all its fields, which doesn't compile with one field too few.
class Filler {
  public:
    static constexpr int kAll = -1;

    /// Only the field of that number, counted from 0, or all.
    explicit Filler(int only = kAll) : only_(only) {}

    int Count() const { return count_; }

    void Rib(PartiesRib &rib) {
        Identity(rib);
        Files(rib);
        Known(rib);
        Points(rib);
        Section(rib);
        Lengths(rib);
        Added(rib);
        View(rib);
    }

  private:
    int only_;
    int count_ = 0;

    template <class... Fields>
    void Fill(Fields &...fields) {
        (Next(fields), ...);
    }
    template <class Field>
    void Next(Field &field) {
        if (only_ == kAll || only_ == count_) {
            Set(field, count_ + 1);
        }
        ++count_;
    }
    static void Set(std::string &text, int n) {
        text = "text\n" + std::string(1, '\0') + "\xFF " + std::to_string(n);
    }
    static void Set(bool &flag, int) { flag = !flag; }
    static void Set(std::uint8_t &number, int n) { number = static_cast<std::uint8_t>(n % 9 + 2); }
    static void Set(std::int16_t &number, int n) { number = static_cast<std::int16_t>(n - 500); }
    static void Set(float &number, int n) {
        number = std::nextafter(static_cast<float>(n) / 3, 1000.0F);
    }
    static void Set(double &number, int n) { number = -n / 7.0; }
    static void Set(PointList &list, int n) {
        for (int i = 0; i < 11; ++i) {
            list.Append(n + i / 3.0);
        }
    }
    static void Set(TableStation &table, int n) {
        double value = n;
        for (double &each : table) {
            each = value += 0.1;
        }
    }

    void Identity(IdentiteProfil &part) {
        auto &[a, b, c, d, e] = part;
        Fill(a, b, c, d, e);
    }
    void Files(FichierRib &part) {
        auto &[a, b, c, d] = part;
        Fill(a, b, c, d);
    }
    void Known(FichierConnu &part) {
        auto &[a, b, c] = part;
        Fill(a, b, c);
    }
    void Points(PointsLus &part) {
        auto &[x, y, count] = part;
        Fill(x, y);
        if (only_ == kAll) {
            count = 11; // as many as there are
        }
    }
    void Section(NouvelleSection &part) {
        auto &[a, b, c, d] = part;
        Fill(a, b, c, d);
    }
    void Lengths(Dimensions &part) {
        auto &[a, b, c, d, e, f, g, h, i, j, k] = part;
        Fill(a, b, c, d, e, f, g, h, i, j, k);
    }
    void Added(Ajouts &part) {
        auto &[spars, spar_count, holes, hole_count, notch, kind, heel, block, text] = part;
        for (auto &[a, b, c, d, e, f, g, h, i, j, k, l, m] : spars) {
            Fill(a, b, c, d, e, f, g, h, i, j, k, l, m);
        }
        for (auto &[a, b, c, d, e, f, g, h, i, j, k, l] : holes) {
            Fill(a, b, c, d, e, f, g, h, i, j, k, l);
        }
        Fill(spar_count, hole_count, kind);
        Notch(notch);
        Heel(heel);
        Block(block);
        Text(text);
    }
    void Notch(CarreBord &part) {
        auto &[a, b, c, d, e, f] = part;
        Fill(a, b, c, d, e, f);
    }
    void Heel(Talon &part) {
        auto &[a, b, c, d, e] = static_cast<HauteursTalon &>(part);
        Fill(a, b, c, d, e);
        Fill(part.TalonBAAfich, part.TalonBA, part.TalonBFAfich, part.TalonBF, part.TalonLong);
    }
    void Block(Bloc &part) {
        auto &[a, b, c, d, e, f, g, h, i, j, k, l] = part;
        Fill(a, b, c, d, e, f, g, h, i, j, k, l);
    }
    void Text(TexteInsere &part) {
        auto &[a, b, c, d, e, f, g] = part;
        Fill(a, b, c, d, e, f, g);
    }
    void View(Vue &part) {
        auto &[a, b, c, d, e, f, g, h, i, j, k, l] = part;
        Fill(a, b, c, d, e, f, g, h, i, j, k, l);
    }
};

template <class... Parts>
bool SameParts(const PartiesRib &a, const PartiesRib &b) {
    return ((static_cast<const Parts &>(a) == static_cast<const Parts &>(b)) && ...);
}

/// All but the contour.
bool SameRib(const PartiesRib &a, const PartiesRib &b) {
    return SameParts<IdentiteProfil, FichierRib, FichierConnu, PointsLus, NouvelleSection,
                     Dimensions, Ajouts, Vue>(a, b);
}

PartiesRib FullRib() {
    PartiesRib rib;
    Filler().Rib(rib);
    return rib;
}

TEST(RibSnapshot, EveryFieldComesBackToTheBit) {
    const PartiesRib rib = FullRib();
    for (const std::string_view unit : {kUniteMm, kUniteIn}) {
        const auto read = LitInstantane(EcritInstantane(rib, std::string(unit)));
        ASSERT_TRUE(read);
        EXPECT_EQ(read->Unite, unit);
        EXPECT_TRUE(SameRib(read->parties, rib));
    }
}

TEST(RibSnapshot, ANewRibComesBack) {
    const auto read = LitInstantane(EcritInstantane({}, std::string(kUniteMm)));
    ASSERT_TRUE(read);
    EXPECT_TRUE(SameRib(read->parties, {}));
}

TEST(RibSnapshot, EachFieldByItselfIsInIt) {
    const PartiesRib plain;
    const std::string bytes = EcritInstantane(plain, std::string(kUniteMm));
    PartiesRib full;
    Filler counted;
    counted.Rib(full);
    ASSERT_GT(counted.Count(), 13 * (13 + 12) + 50);
    for (int field = 0; field < counted.Count(); ++field) {
        SCOPED_TRACE("field " + std::to_string(field));
        PartiesRib rib;
        Filler(field).Rib(rib);
        ASSERT_FALSE(SameRib(rib, plain));
        const std::string other = EcritInstantane(rib, std::string(kUniteMm));
        EXPECT_NE(other, bytes);
        const auto read = LitInstantane(other);
        ASSERT_TRUE(read);
        EXPECT_TRUE(SameRib(read->parties, rib));
    }
}

TEST(RibSnapshot, NumbersThatNoTextHoldsComeBack) {
    PartiesRib rib;
    rib.corde = std::numeric_limits<float>::denorm_min();
    rib.EpBA = -0.0F;
    rib.NouvEpaisseur = std::numeric_limits<double>::max();
    rib.NouvCambrure = 0.1 + 0.2;
    const auto read = LitInstantane(EcritInstantane(rib, std::string(kUniteMm)));
    ASSERT_TRUE(read);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(read->parties.corde), 1U);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(read->parties.EpBA), 0x80000000U);
    EXPECT_EQ(read->parties.NouvEpaisseur, std::numeric_limits<double>::max());
    EXPECT_EQ(read->parties.NouvCambrure, 0.1 + 0.2);
}

TEST(RibSnapshot, DamageAtAnyByteIsNoticed) {
    const std::string bytes = EcritInstantane(FullRib(), std::string(kUniteMm));
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::string damaged = bytes;
        damaged[i] = static_cast<char>(damaged[i] ^ (1 << (i % 8)));
        ASSERT_FALSE(LitInstantane(damaged)) << i;
    }
}

TEST(RibSnapshot, OneThatEndsTooEarlyOrTooLateIsNone) {
    const std::string bytes = EcritInstantane(FullRib(), std::string(kUniteMm));
    for (std::size_t length = 0; length < bytes.size(); length += length < 100 ? 1 : 37) {
        ASSERT_FALSE(LitInstantane(bytes.substr(0, length))) << length;
    }
    EXPECT_FALSE(LitInstantane(bytes + '\0'));
    EXPECT_FALSE(LitInstantane(bytes + bytes));
}

TEST(RibSnapshot, WhatIsNoneIsNone) {
    EXPECT_FALSE(LitInstantane(""));
    EXPECT_FALSE(LitInstantane("LFW V3.0 -02 Caution don't delete this file !!\r\n"));
    EXPECT_FALSE(LitInstantane("Loftwing recovery 1\n"));
    EXPECT_FALSE(LitInstantane(std::string(1000, '\0')));
}

TEST(RibSnapshot, OneOfALaterVersionIsKnownForOne) {
    std::string bytes = EcritInstantane(FullRib(), std::string(kUniteMm));
    EXPECT_FALSE(InstantanePlusRecent(bytes));
    bytes[bytes.find('1')] = '2';
    EXPECT_FALSE(LitInstantane(bytes));
    EXPECT_TRUE(InstantanePlusRecent(bytes));
    EXPECT_FALSE(InstantanePlusRecent("Loftwing recovery 2"));
    EXPECT_FALSE(InstantanePlusRecent("LFW V3.0"));
}

constexpr std::size_t kSumAt = 20; // behind "Loftwing recovery 1\n"
constexpr std::size_t kContentAt = kSumAt + 8;

/// The bytes with a sum that fits: what somebody could make on purpose.
std::string Mended(std::string bytes) {
    std::uint64_t sum = 14695981039346656037ULL; // FNV-1a
    for (std::size_t i = kContentAt; i < bytes.size(); ++i) {
        sum = (sum ^ static_cast<unsigned char>(bytes[i])) * 1099511628211ULL;
    }
    for (std::size_t i = 0; i < 8; ++i) {
        bytes[kSumAt + i] = static_cast<char>(sum >> (8 * i));
    }
    return bytes;
}

TEST(RibSnapshot, MadeOnPurposeItCanNeitherCrashNorFillTheMemory) {
    const std::string bytes = EcritInstantane(FullRib(), std::string(kUniteMm));
    ASSERT_EQ(Mended(bytes), bytes);
    for (std::size_t i = kContentAt; i < bytes.size(); i += i < 1000 ? 1 : 7) {
        for (const char value : {'\x7F', '\xFF'}) {
            std::string hostile = bytes;
            hostile[i] = value;
            const auto read = LitInstantane(Mended(hostile));
            if (read) { // another text or number
                ASSERT_GE(read->parties.ProfilX.Count(), read->parties.NbPoints);
                ASSERT_LT(read->parties.NbLongeron, kSlots);
                ASSERT_LT(read->parties.NbTrou, kSlots);
            }
        }
    }
    std::string endless = bytes;
    endless.replace(kContentAt, 8, 8, '\xFF'); // the length of the first text
    EXPECT_FALSE(LitInstantane(Mended(endless)));
}

TEST(RibSnapshot, CountsBeyondWhatIsThereAreRefused) {
    const std::string mm(kUniteMm);
    PartiesRib rib;
    rib.NbPoints = 1;
    EXPECT_FALSE(LitInstantane(EcritInstantane(rib, mm)));
    rib.ProfilX.Append(1);
    EXPECT_FALSE(LitInstantane(EcritInstantane(rib, mm)));
    rib.ProfilY.Append(0);
    EXPECT_TRUE(LitInstantane(EcritInstantane(rib, mm)));
    rib.NbLongeron = kSlots;
    EXPECT_FALSE(LitInstantane(EcritInstantane(rib, mm)));
    rib.NbLongeron = 0;
    rib.NbTrou = kSlots;
    EXPECT_FALSE(LitInstantane(EcritInstantane(rib, mm)));
    rib.NbTrou = 0;
    EXPECT_FALSE(LitInstantane(EcritInstantane(rib, " cm")));
    rib.corde = std::numeric_limits<float>::quiet_NaN();
    EXPECT_FALSE(LitInstantane(EcritInstantane(rib, mm)));
}

} // namespace
} // namespace loftwing
