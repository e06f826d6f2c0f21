// The icon for Windows, taken apart by a reader of its own.

#include "base/whole_file.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace loftwing {
namespace {

const std::string kMade = LOFTWING_BINARY_DIR "/packaging/made/";

class IconFileTest : public testing::Test {
  protected:
    const std::string bytes_ = ReadWholeFile(kMade + "loftwing.ico");

    /// A whole number of some bytes, the lowest first.
    std::size_t Number(std::size_t at, std::size_t size) const {
        std::size_t number = 0;
        for (std::size_t i = size; i > 0; --i) {
            number = number * 256 + static_cast<unsigned char>(bytes_.at(at + i - 1));
        }
        return number;
    }
    std::size_t Count() const { return Number(4, 2); }
    std::size_t Side(std::size_t picture) const {
        const std::size_t side = Number(6 + 16 * picture, 1);
        EXPECT_EQ(Number(7 + 16 * picture, 1), Number(6 + 16 * picture, 1)) << "is a square";
        return side == 0 ? 256 : side;
    }
    std::size_t Size(std::size_t picture) const { return Number(6 + 16 * picture + 8, 4); }
    std::size_t Place(std::size_t picture) const { return Number(6 + 16 * picture + 12, 4); }
};

TEST_F(IconFileTest, HoldsThePictureInTheSizesOfDesktops) {
    EXPECT_EQ(Number(0, 2), 0U);
    EXPECT_EQ(Number(2, 2), 1U) << "an icon";
    std::vector<std::size_t> sides;
    for (std::size_t picture = 0; picture < Count(); ++picture) {
        sides.push_back(Side(picture));
    }
    EXPECT_EQ(sides, (std::vector<std::size_t>{16, 22, 24, 32, 48, 64, 128, 256}));
}

TEST_F(IconFileTest, PicturesLieOneBehindTheOtherToTheEnd) {
    std::size_t next = 6 + 16 * Count();
    for (std::size_t picture = 0; picture < Count(); ++picture) {
        EXPECT_EQ(Place(picture), next) << picture;
        next += Size(picture);
    }
    EXPECT_EQ(next, bytes_.size());
}

TEST_F(IconFileTest, SmallPicturesAreBitmapsWithSeeThroughCorners) {
    for (std::size_t picture = 0; picture + 1 < Count(); ++picture) {
        const std::size_t at = Place(picture);
        const std::size_t side = Side(picture);
        const std::size_t mask_row = (side + 31) / 32 * 4;
        EXPECT_EQ(Size(picture), 40 + side * side * 4 + mask_row * side);
        EXPECT_EQ(Number(at, 4), 40U);
        EXPECT_EQ(Number(at + 4, 4), side);
        EXPECT_EQ(Number(at + 8, 4), 2 * side) << "picture and mask";
        EXPECT_EQ(Number(at + 14, 2), 32U) << "bits of a pixel";
        std::size_t solid = 0;
        for (std::size_t pixel = 0; pixel < side * side; ++pixel) {
            solid += Number(at + 40 + pixel * 4 + 3, 1) == 255 ? 1 : 0;
        }
        EXPECT_EQ(Number(at + 40 + 3, 1), 0U) << "the lower left corner";
        EXPECT_GT(solid, side * side / 10) << "the rib";
    }
}

TEST_F(IconFileTest, TheLargestPictureIsTheDesktopsOwn) {
    const std::size_t last = Count() - 1;
    EXPECT_EQ(bytes_.substr(Place(last), Size(last)),
              ReadWholeFile(kMade + "icons/hicolor/256x256/apps/loftwing.png"));
}

} // namespace
} // namespace loftwing
