#include "output/qt_export.h"

#include "base/failure.h"
#include "platform/qt_plot_device.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kMarginMm = 5.0;
constexpr double kMostPixels = 30'000;
/// 56.7 units are a millimetre and 15 a pixel, so the picture also prints at true size.
constexpr int kPixelsPerMetre = 3780;

int PixelsTo(double end) {
    const double units = std::max(0.0, end) + kMarginMm * kUnitsPerMm;
    const double pixels = std::ceil(units / kUnitsPerPixel);
    if (!(pixels <= kMostPixels)) {
        throw MakeFailure(kOutOfMemory);
    }
    return static_cast<int>(pixels);
}

} // namespace

std::string PngOf(const Recording &drawing) {
    const Extent extent = drawing.Bounds();
    QImage image(PixelsTo(extent.right), PixelsTo(extent.bottom), QImage::Format_RGB32);
    if (image.isNull()) {
        throw MakeFailure(kOutOfMemory);
    }
    image.setDotsPerMeterX(kPixelsPerMetre);
    image.setDotsPerMeterY(kPixelsPerMetre);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        Replay(drawing, painter, ScreenSurface());
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) {
        throw MakeFailure(kDeviceError);
    }
    return bytes.toStdString();
}

} // namespace loftwing
