#include "support/contour_check.h"

#include "support/words.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

namespace loftwing {

namespace {

bool SameBits(double one, double other) {
    return std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other);
}

/// `naive` counts from 1.
void CompareList(const char *name, const PointList &got, const std::vector<double> &naive) {
    ASSERT_EQ(got.Count(), static_cast<long>(naive.size()) - 1) << name;
    for (long i = 1; i <= got.Count(); ++i) {
        ASSERT_TRUE(SameBits(got(i), naive[static_cast<std::size_t>(i)]))
            << name << '(' << i << "): " << got(i) << ", not "
            << naive[static_cast<std::size_t>(i)];
    }
}

void CompareTable(const char *name, const TableStation &got, const std::vector<double> &naive) {
    for (std::size_t i = 0; i < got.size(); ++i) {
        ASSERT_TRUE(SameBits(got[i], naive[i]))
            << name << '(' << i << "): " << got[i] << ", not " << naive[i];
    }
}

void CompareNumber(const char *name, double got, double naive) {
    EXPECT_TRUE(SameBits(got, naive)) << name << ": " << got << ", not " << naive;
}

void CompareAll(const RibModel &rib, const NaiveContour &naive) {
    CompareList("IntradosX", rib.IntradosX, naive.intrados.x);
    CompareList("IntradosY", rib.IntradosY, naive.intrados.y);
    EXPECT_EQ(rib.NbIntrados, naive.intrados.Count());
    CompareTable("TabExtrados", rib.TabExtrados, naive.TabExtrados);
    CompareTable("TabIntrados", rib.TabIntrados, naive.TabIntrados);
    CompareNumber("EpMaxi", rib.EpMaxi, naive.EpMaxi);
    EXPECT_EQ(rib.PosEpMaxi, static_cast<double>(naive.PosEpMaxi));
    CompareNumber("CambrureMaxi", rib.CambrureMaxi, naive.CambrureMaxi);
    EXPECT_EQ(rib.PosCambrure, naive.PosCambrure);
    EXPECT_EQ(rib.NbExtrados, naive.NbExtrados);
    CompareNumber("MiniX", rib.MiniX, naive.MiniX);
    CompareNumber("ExtradosMaxi", rib.ExtradosMaxi, naive.ExtradosMaxi);
    CompareNumber("IntradosMini", rib.IntradosMini, naive.IntradosMini);
}

Preparation Expected(const NaiveContour &naive) {
    if (naive.minix_failed) {
        return Preparation::impossible;
    }
    return naive.alocate_failed ? Preparation::incomplete : Preparation::complete;
}

} // namespace

void SetPoints(RibModel &rib, const NaiveAirfoil &airfoil) {
    rib.ProfilX.Clear();
    rib.ProfilY.Clear();
    for (std::size_t i = 1; i < airfoil.x.size(); ++i) {
        rib.ProfilX.Append(airfoil.x[i]);
        rib.ProfilY.Append(airfoil.y[i]);
    }
    rib.NbPoints = ToInt16(static_cast<double>(airfoil.Count()));
}

NaiveAirfoil PointsOf(const RibModel &rib) {
    NaiveAirfoil airfoil;
    for (long i = 1; i <= rib.ProfilX.Count(); ++i) {
        airfoil.Add(rib.ProfilX(i), rib.ProfilY(i));
    }
    return airfoil;
}

NaiveContour PrepareAndCompare(RibModel &rib) {
    const NaiveContour naive = ComputeNaively(PointsOf(rib));
    Words words("[Erreur]\n1=Error\n2=in\n");
    if (naive.alocate_failed) {
        words.platform.Expect(BoxAnswer::ok);
    }
    if (naive.minix_failed) {
        words.platform.Expect(BoxAnswer::ok);
    }
    EXPECT_EQ(PrepareContour(rib, words.messages), Expected(naive));
    if (naive.alocate_failed && !words.platform.boxes.empty()) {
        EXPECT_EQ(words.platform.boxes.front().title, " Calcul/Alocate");
    }
    if (naive.minix_failed && !words.platform.boxes.empty()) {
        EXPECT_EQ(words.platform.boxes.back().title, " Calcul/MiniX");
    }
    CompareList("ContourX", rib.ContourX, naive.contour.x);
    CompareList("ContourY", rib.ContourY, naive.contour.y);
    EXPECT_EQ(rib.NbContour, naive.contour.Count());
    if (!naive.minix_failed) {
        CompareAll(rib, naive);
    }
    return naive;
}

} // namespace loftwing
