/// One run of the naive plot, shared by the files that make it up.
#pragma once

#include "support/naive_rib.h"

#include <cmath>
#include <string>
#include <vector>

namespace loftwing::naive {

inline constexpr unsigned kColours[16] = {
    0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
    0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

struct Broken {
    int number;
};

inline double W(float value) {
    return static_cast<double>(value);
}

inline float F(double value) {
    const float narrow = static_cast<float>(value);
    if (std::isnan(narrow) || std::isinf(narrow)) {
        throw Broken{6};
    }
    return narrow;
}

inline double Over(double a, double b) {
    if (b == 0) {
        throw Broken{11};
    }
    return a / b;
}

/// To the nearest whole number, halves to the even one.
long Nearest(double value);

/// The shortest text of up to 15 digits. `zero`: a 0 before a leading point.
std::string General(double value, bool zero);

/// One run.
struct Run {
    RibModel &rib;
    const AppSettings &settings;
    Memory &m;
    std::vector<Drawn> drawn;

    // The device.
    double CurrentX = 0, CurrentY = 0, FontSize = 0;
    unsigned ForeColor = 0;
    int DrawWidth = 1, DrawStyle = 0;

    float EchelleValue = 0, CordeEchelleY = 0;

    double corde() const { return W(rib.corde); }
    double CE() const { return W(m.CordeEchelle); }
    double OX() const { return W(m.OrigineX); }
    double OY() const { return W(m.OrigineY); }
    double X(double k) const { return (400 - k) / 400 * CE() + OX(); }
    double Y(double h) const { return OY() - W(CordeEchelleY) * h; }
    static double Table(const TableStation &table, double k) {
        const long index = Nearest(k);
        if (index < 0 || index > 400) {
            throw Broken{9};
        }
        return table[static_cast<std::size_t>(index)];
    }
    double U(double k) const { return Table(rib.TabExtrados, k); }
    double L(double k) const { return Table(rib.TabIntrados, k); }

    const Trait &Of(Element element) const {
        return settings.traits[static_cast<std::size_t>(element)];
    }
    unsigned Colour(Element element) const {
        const int number = Of(element).couleur;
        if (number < 0 || number > 15) {
            throw Broken{5};
        }
        return kColours[number];
    }
    void Style(Element element) {
        DrawStyle = Of(element).style;
        DrawWidth = Of(element).epaisseur;
    }
    void Plain() {
        DrawStyle = 0;
        DrawWidth = 1;
    }
    void Line(double x1, double y1, double x2, double y2, unsigned colour) {
        Drawn line;
        line.x1 = x1;
        line.y1 = y1;
        line.x2 = x2;
        line.y2 = y2;
        line.colour = colour;
        line.width = DrawWidth;
        line.style = DrawWidth == 1 ? DrawStyle : 0;
        drawn.push_back(line);
        CurrentX = x2;
        CurrentY = y2;
    }
    void Step(double dx, double dy, unsigned colour) {
        Line(CurrentX, CurrentY, CurrentX + dx, CurrentY + dy, colour);
    }
    void Circle(double x, double y, double radius, unsigned colour) {
        Drawn circle;
        circle.circle = true;
        circle.x1 = x;
        circle.y1 = y;
        circle.size = radius;
        circle.colour = colour;
        circle.width = DrawWidth;
        circle.style = DrawWidth == 1 ? DrawStyle : 0;
        drawn.push_back(circle);
    }
    void Print(const std::string &words) {
        if (words.empty()) {
            return;
        }
        Drawn text;
        text.text = true;
        text.x1 = CurrentX;
        text.y1 = CurrentY;
        text.words = words;
        text.size = FontSize;
        text.colour = ForeColor;
        drawn.push_back(text);
    }
    std::string Length(double mm) const {
        return settings.Unite == " in" ? InInches(mm) : TwoDecimals(mm);
    }

    double E() const { return W(EchelleValue); }
    double EY() const { return rib.AffHaut ? -E() : E(); }
    double CEY() const { return W(CordeEchelleY); }

    void All();
    void ThicknessText();
    void Edges();
    void Offsets(long k);
    void Sheeting();
    void Stations();

    // naive_features.cpp
    void Template();
    void Heel();
    void Notch();
    void Text(double ramp);
    float Place(const std::string &text, bool from_trailing_edge) const;
    void Spars();
    bool Spar(int i);
    void Upper(const Longeron &spar, const Spot &at);
    void Lower(const Longeron &spar, const Spot &at);
    void Holes();
    void Hole(int i);
};

} // namespace loftwing::naive
