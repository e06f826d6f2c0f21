#include "platform/qt_contrast.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

double Linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor &colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

} // namespace

double Contraste(const QColor &one, const QColor &other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor Lisible(const QColor &colour, const QColor &ground, double least) {
    const QColor black(0, 0, 0);
    const QColor white(255, 255, 255);
    const QColor &far = Contraste(black, ground) > Contraste(white, ground) ? black : white;
    constexpr int kSteps = 20;
    for (int step = 0; step < kSteps; ++step) {
        const QColor shade = Melange(colour, far, static_cast<double>(step) / kSteps);
        if (Contraste(shade, ground) >= least) {
            return shade;
        }
    }
    return far;
}

QColor Melange(const QColor &from, const QColor &to, double part) {
    const auto mix = [part](int a, int b) {
        return static_cast<int>(std::lround(a + (b - a) * part));
    };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

} // namespace loftwing
