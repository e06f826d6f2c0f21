#include "output/qt_export.h"
#include "platform/qt_plot_device.h"
#include "support/failures.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <cmath>
#include <numbers>

namespace loftwing {

namespace {

constexpr double kPixel = kUnitsPerPixel;

QImage Paper(int width = 100, int height = 60, double device_pixel_ratio = 1) {
    QImage image(static_cast<int>(width * device_pixel_ratio),
                 static_cast<int>(height * device_pixel_ratio), QImage::Format_RGB32);
    image.setDevicePixelRatio(device_pixel_ratio);
    image.fill(Qt::white);
    return image;
}

template <class Draw>
QImage Drawn(Draw draw, QImage image = Paper()) {
    QPainter painter(&image);
    QtPlotDevice device(painter, ScreenSurface());
    draw(device);
    return image;
}

bool IsWhite(const QImage &image, int x, int y) {
    return image.pixel(x, y) == qRgb(255, 255, 255);
}

/// Ink of all pixels, 1 for a black one.
double Ink(const QImage &image) {
    double ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ink += 1 - qGray(image.pixel(x, y)) / 255.0;
        }
    }
    return ink;
}

/// The pixels that are not white.
QRect Inked(const QImage &image) {
    QRect all;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!IsWhite(image, x, y)) {
                all |= QRect(x, y, 1, 1);
            }
        }
    }
    return all;
}

} // namespace

TEST(PlotPainter, FifteenUnitsAreAPixel) {
    const QImage image = Drawn([](PlotDevice &device) {
        device.Line(10.5 * kPixel, 5 * kPixel, 10.5 * kPixel, 20 * kPixel, 0xFF0000);
    });
    EXPECT_EQ(Inked(image), QRect(10, 5, 1, 15));
    EXPECT_EQ(image.pixel(10, 5), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(10, 19), qRgb(255, 0, 0));
}

TEST(PlotPainter, PensAreOneTwoAndThreePixelsWide) {
    for (int width = 1; width <= 3; ++width) {
        const QImage image = Drawn([width](PlotDevice &device) {
            device.DrawWidth = width;
            const double y = (30 + width / 2.0) * kPixel;
            device.Line(10 * kPixel, y, 50 * kPixel, y, 0);
        });
        EXPECT_EQ(Inked(image), QRect(10, 30, 40, width));
    }
}

TEST(PlotPainter, AHighDpiScreenHasMoreDotsToALogicalPixel) {
    const QImage image = Drawn(
        [](PlotDevice &device) {
            device.Line(10.5 * kPixel, 5 * kPixel, 10.5 * kPixel, 20 * kPixel, 0);
        },
        Paper(100, 60, 2));
    EXPECT_EQ(Inked(image), QRect(20, 10, 2, 30));
}

TEST(PlotPainter, ALineWithoutLengthIsADotAsWideAsItsPen) {
    const QImage image = Drawn([](PlotDevice &device) {
        device.DrawWidth = 3;
        device.Line(20 * kPixel, 20 * kPixel, 20 * kPixel, 20 * kPixel, 0);
    });
    // Edge pixels are shaded in steps.
    EXPECT_NEAR(Ink(image), std::numbers::pi * 1.5 * 1.5, 1);
    EXPECT_EQ(Inked(image).center(), QPoint(19, 19));
}

TEST(PlotPainter, ALineWithoutLengthOnALineAddsNothing) {
    const auto line = [](PlotDevice &device) {
        device.Line(10 * kPixel, 20.5 * kPixel, 40 * kPixel, 20.5 * kPixel, 0);
    };
    const QImage alone = Drawn(line);
    const QImage image = Drawn([&line](PlotDevice &device) {
        line(device);
        device.LineStep(0, 0, 0);
    });
    EXPECT_EQ(image, alone);
}

TEST(PlotPainter, DashesGoOnFromOneStepOfARunToTheNext) {
    // 12 pixels of mark, 6 of gap; single steps of 3 pixels would show no gap at all.
    const QImage image = Drawn([](PlotDevice &device) {
        device.DrawStyle = 1;
        device.CurrentX = 10 * kPixel;
        device.CurrentY = 20.5 * kPixel;
        for (int i = 0; i < 12; ++i) {
            device.LineStep(3 * kPixel, 0, 0);
        }
    });
    for (int x = 10; x < 46; ++x) {
        const bool marked = (x - 10) % 18 < 12;
        EXPECT_EQ(IsWhite(image, x, 20), !marked) << x;
    }
}

TEST(PlotPainter, EveryStyleLeavesGapsButTheSolidOne) {
    double last = 0;
    for (int style = 0; style <= 4; ++style) {
        const QImage image = Drawn([style](PlotDevice &device) {
            device.DrawStyle = style;
            device.Line(5 * kPixel, 20.5 * kPixel, 95 * kPixel, 20.5 * kPixel, 0);
        });
        const double ink = Ink(image);
        EXPECT_EQ(style == 0, std::abs(ink - 90) < 0.01) << style;
        EXPECT_GT(ink, 20) << style;
        EXPECT_NE(ink, last) << style;
        last = ink;
    }
}

TEST(PlotPainter, WhatComesLastIsOnTop) {
    const QImage image = Drawn([](PlotDevice &device) {
        device.DrawWidth = 3;
        device.Line(10 * kPixel, 20.5 * kPixel, 40 * kPixel, 20.5 * kPixel, 0x0000FF);
        device.Line(25.5 * kPixel, 10 * kPixel, 25.5 * kPixel, 30 * kPixel, 0xFF0000);
    });
    EXPECT_EQ(image.pixel(25, 20), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(15, 20), qRgb(0, 0, 255));
}

TEST(PlotPainter, ACircleHasItsRadiusAroundItsCentre) {
    const QImage image = Drawn(
        [](PlotDevice &device) { device.Circle(40 * kPixel, 30 * kPixel, 20.5 * kPixel, 0); });
    EXPECT_EQ(Inked(image), QRect(19, 9, 42, 42));
    EXPECT_TRUE(IsWhite(image, 40, 30));
}

TEST(PlotPainter, ATextHangsBelowTheCurrentPoint) {
    const QImage image = Drawn([](PlotDevice &device) {
        device.Font.size = 15; // 20 pixels
        device.ForeColor = 0;
        device.CurrentX = 10 * kPixel;
        device.CurrentY = 20 * kPixel;
        device.Print("HHH");
        EXPECT_NEAR(device.CurrentX, 10 * kPixel + ScreenAdvance("HHH", device.Font), 0.01);
        EXPECT_EQ(device.CurrentY, 20 * kPixel);
    });
    const QRect ink = Inked(image);
    EXPECT_GE(ink.left(), 10);
    EXPECT_LE(ink.left(), 13);
    EXPECT_GE(ink.top(), 20);
    EXPECT_LE(ink.top(), 27);
    // A capital is some seven tenths of the face's height.
    EXPECT_NEAR(ink.height(), 14, 2);
}

TEST(PlotPainter, SizesOfTextsAreThoseOfTheDrawingNotOfTheImage) {
    const auto draw = [](PlotDevice &device) {
        device.CurrentX = 5 * kPixel;
        device.CurrentY = 5 * kPixel;
        device.Print("Clark Y");
    };
    QImage fine = Paper();
    fine.setDotsPerMeterX(12000);
    fine.setDotsPerMeterY(12000);
    QImage coarse = Paper();
    coarse.setDotsPerMeterX(2000);
    coarse.setDotsPerMeterY(2000);
    const QImage one = Drawn(draw, fine).convertToFormat(QImage::Format_Grayscale8);
    const QImage other = Drawn(draw, coarse).convertToFormat(QImage::Format_Grayscale8);
    EXPECT_GT(Ink(one), 10);
    EXPECT_EQ(Inked(one), Inked(other));
}

TEST(PlotPainter, AdvancesKeepFractionsOfSizes) {
    const double ten = PaperAdvance("Airfoil : 200 mm", {"Arial", 10});
    // Sixteen characters of about half their size.
    EXPECT_NEAR(ten, 16 * 0.5 * 10 * kUnitsPerPoint, 0.25 * ten);
    EXPECT_NEAR(PaperAdvance("Airfoil : 200 mm", {"Arial", 7.2}), 0.72 * ten, 0.005 * ten);
    EXPECT_NEAR(PaperAdvance("Airfoil : 200 mm", {"Arial", 7.6}), 0.76 * ten, 0.005 * ten);
    // The screen may round each character to whole pixels.
    EXPECT_NEAR(ScreenAdvance("Airfoil : 200 mm", {"Arial", 10}), ten, 16 * kPixel / 2);
    EXPECT_NEAR(ScreenAdvance("Airfoil : 200 mm", {"Arial", 7.2}), 0.72 * ten, 16 * kPixel / 2);
    EXPECT_EQ(ScreenAdvance("x", {"Arial", 0}), 0);
}

TEST(PlotPainter, AReplayIsTheDrawing) {
    const auto draw = [](PlotDevice &device) {
        device.DrawStyle = 3;
        device.Line(10, 20, 700, 400, 0x800000);
        device.LineStep(100, -300, 0x800000);
        device.Circle(600, 300, 150, 0x008000);
        device.ForeColor = 0x000080;
        device.CurrentX = 100;
        device.CurrentY = 500;
        device.Print("1");
        device.DrawWidth = 3;
        device.LineStep(300, 0, 0);
    };
    Recording recording(ScreenAdvance);
    draw(recording);
    QImage image = Paper();
    {
        QPainter painter(&image);
        Replay(recording, painter, ScreenSurface());
        EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing)) << "the painter's own state";
    }
    EXPECT_EQ(image, Drawn(draw));
}

TEST(PaperSurface, AMillimetreIsExact) {
    const PlotSurface surface = PaperSurface(1200);
    EXPECT_DOUBLE_EQ(surface.scale * 56.7 * 25.4, 1200);
    EXPECT_DOUBLE_EQ(surface.pen_widths[0], 0.18 * 1200 / 25.4);
    EXPECT_DOUBLE_EQ(surface.pen_widths[1], 0.35 * 1200 / 25.4);
    EXPECT_DOUBLE_EQ(surface.pen_widths[2], 0.5 * 1200 / 25.4);
}

namespace {

QImage PngImage(const Recording &recording) {
    return QImage::fromData(QByteArray::fromStdString(PngOf(recording)), "PNG");
}

} // namespace

TEST(Png, ReachesFiveMillimetresBeyondTheDrawing) {
    Recording recording;
    recording.Line(10.5 * kPixel, 20 * kPixel, 10.5 * kPixel, 300 * kPixel, 0);
    const QImage image = PngImage(recording);
    // 5 mm are 283.5 units, 18.9 pixels: 29.4 and 318.9, of which each begun pixel counts.
    EXPECT_EQ(image.size(), QSize(30, 319));
    EXPECT_EQ(Inked(image), QRect(10, 20, 1, 280));
    EXPECT_EQ(image.dotsPerMeterX(), 3780);
}

TEST(Png, AnEmptyDrawingIsItsMargin) {
    EXPECT_EQ(PngImage(Recording()).size(), QSize(19, 19));
}

TEST(Png, LinesLeftOfTheOriginAreCutOff) {
    Recording recording;
    recording.Line(-50 * kPixel, 5.5 * kPixel, 20 * kPixel, 5.5 * kPixel, 0);
    EXPECT_EQ(Inked(PngImage(recording)), QRect(0, 5, 20, 1));
}

TEST(Png, RefusesMoreThanThirtyThousandPixels) {
    Recording recording;
    recording.Line(0, 0, 30'000 * kPixel, 0, 0);
    EXPECT_EQ(FailureOf([&] { PngOf(recording); }), kOutOfMemory);
    Recording tall;
    tall.Line(0, 0, 0, 1e12, 0);
    EXPECT_EQ(FailureOf([&] { PngOf(tall); }), kOutOfMemory);
}

} // namespace loftwing
