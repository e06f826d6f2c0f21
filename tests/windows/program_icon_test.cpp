#include "mainwindow/program_icon.h"

#include <QImage>
#include <QPixmap>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace loftwing {
namespace {

/// The greatest difference of a colour or of the opacity between two pictures of one size.
int GreatestDifference(const QImage &one, const QImage &other) {
    int greatest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            for (const int shift : {0, 8, 16, 24}) {
                const int difference =
                    static_cast<int>((a >> shift) & 0xFFU) - static_cast<int>((b >> shift) & 0xFFU);
                greatest = std::max(greatest, std::abs(difference));
            }
        }
    }
    return greatest;
}

QImage Premultiplied(const QImage &image) {
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

TEST(ProgramIcon, TheDrawingForDesktopsIsThePictureOfTheWindows) {
    QImage drawn;
    ASSERT_TRUE(drawn.loadFromData(QByteArray::fromStdString(ProgramSvg()), "SVG"))
        << "the toolkit's reader of SVG is missing";
    ASSERT_EQ(drawn.size(), QSize(48, 48));
    // Points are rounded to a thousandth: what that does to an edge is next to nothing.
    EXPECT_LE(GreatestDifference(Premultiplied(drawn), Premultiplied(ProgramImage(48))), 3);
}

TEST(ProgramIcon, HasEverySizeOfItsOwn) {
    const QIcon icon = ProgramIcon();
    for (const int size : kIconSizes) {
        EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
        EXPECT_EQ(Premultiplied(icon.pixmap(size, size).toImage()), ProgramImage(size)) << size;
    }
}

TEST(ProgramIcon, ShowsItsNotchesInSixteenPixels) {
    const QImage image = ProgramImage(16);
    const auto wood = [&](int x, int y) {
        const QColor colour = image.pixelColor(x, y);
        return colour.alpha() > 200 && colour.red() > 180 && colour.red() > colour.blue();
    };
    const auto ink = [&](int x, int y) {
        const QColor colour = image.pixelColor(x, y);
        return colour.blue() > colour.red();
    };
    EXPECT_TRUE(wood(3, 8)); // in front of the spar
    EXPECT_TRUE(wood(5, 8)); // what is left between its notches
    EXPECT_TRUE(ink(5, 6));  // the bottom of the upper one
    EXPECT_TRUE(ink(5, 9));  // and the top of the lower one
    EXPECT_EQ(image.pixelColor(1, 1).alpha(), 0);
    EXPECT_EQ(image.pixelColor(14, 14).alpha(), 0);
}

} // namespace
} // namespace loftwing
