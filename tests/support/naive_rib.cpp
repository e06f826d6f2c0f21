#include "support/naive_rib.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

namespace loftwing::naive {

namespace {

const unsigned kColours[16] = {0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                               0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                               0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

struct Broken {
    int number;
};

double W(float value) {
    return static_cast<double>(value);
}

float F(double value) {
    const float narrow = static_cast<float>(value);
    if (std::isnan(narrow) || std::isinf(narrow)) {
        throw Broken{6};
    }
    return narrow;
}

double Over(double a, double b) {
    if (b == 0) {
        throw Broken{11};
    }
    return a / b;
}

/// To the nearest whole number, halves to the even one.
long Nearest(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    long whole = static_cast<long>(below);
    if (rest > 0.5 || (rest == 0.5 && whole % 2 != 0)) {
        whole += 1;
    }
    return whole;
}

/// 15 digits of a positive value and the place of the point behind the first `point` of them.
std::string FifteenDigits(double value, int &point) {
    char buffer[40];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, 14).ptr;
    const std::string text(buffer, end);
    point = std::atoi(text.c_str() + 17) + 1;
    return text.substr(0, 1) + text.substr(2, 14);
}

/// Whole part and decimals of a value, as digits; neither is short.
void Split(double value, std::string &whole, std::string &decimals) {
    int point = 0;
    std::string digits = FifteenDigits(std::abs(value), point);
    if (value == 0) {
        digits = "0";
        point = 1;
    }
    while (point <= 0) {
        digits = "0" + digits;
        ++point;
    }
    digits += std::string(40, '0');
    whole = digits.substr(0, static_cast<std::size_t>(point));
    decimals = digits.substr(static_cast<std::size_t>(point), 30);
}

/// The shortest text of up to 15 digits. `zero`: a 0 before a leading point.
std::string General(double value, bool zero) {
    std::string whole;
    std::string decimals;
    Split(value, whole, decimals);
    decimals.resize(15);
    while (!decimals.empty() && decimals.back() == '0') {
        decimals.pop_back();
    }
    if (whole == "0" && !zero && !decimals.empty()) {
        whole.clear();
    }
    return (value < 0 ? "-" : "") + whole + (decimals.empty() ? "" : "." + decimals);
}

/// "# ###." and `places` decimals, rounded half up.
std::string Thousands(double value, unsigned places) {
    std::string whole;
    std::string decimals;
    Split(value, whole, decimals);
    long long units = std::atoll((whole + decimals.substr(0, places)).c_str());
    if (decimals[places] >= '5') {
        units += 1;
    }
    std::string digits = std::to_string(units);
    while (digits.size() <= places) {
        digits = "0" + digits;
    }
    whole = digits.substr(0, digits.size() - places);
    decimals = digits.substr(digits.size() - places);
    if (whole == "0") {
        whole.clear();
    }
    const std::size_t head = whole.size() > 3 ? whole.size() - 3 : 0;
    return (value < 0 ? "-" : "") + whole.substr(0, head) + " " + whole.substr(head) + "." +
           decimals;
}

std::string W2(const char *section, const char *key) {
    return std::string("<") + section + " " + key + ">";
}

/// One run.
struct Run {
    const RibModel &rib;
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
    void Print(const std::string &words) {
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

    void All();
    void ThicknessText();
    void Edges();
    void Offsets(long k);
    void Sheeting();
    void Stations();
};

void Run::ThicknessText() {
    m.PosEpDev = (400 - rib.PosEpMaxi) / 400 * corde();
    if (!rib.AffEpr) {
        return;
    }
    CurrentX = corde() / 3 * W(EchelleValue) + OX();
    CurrentY = OY() - CE() * rib.ExtradosMaxi - 453.6;
    const double e = corde() * rib.EpMaxi;
    const std::string p = General(m.PosEpDev * 100 / corde(), true);
    if (settings.Unite == " mm") {
        Print(W2("FrmMainMessage", "15") + " : " + TwoDecimals(e) + " mm " +
              W2("FrmMainMessage", "16") + " " + TwoDecimals(m.PosEpDev) + " mm (" + p + " %) " +
              W2("FrmMainMessage", "17"));
    } else {
        Print("Chord thickness :" + InInches(e) + " in at " + InInches(m.PosEpDev) + " in (" + p +
              " %) from L.E. ");
    }
}

void Run::Edges() {
    m.StationBA = 400;
    if (rib.TypeBA == 1) {
        Style(Element::ba);
        m.StationBA = F(std::abs(400 - Over(400 * W(rib.EpBA), corde())));
        const double k = W(m.StationBA);
        Line(X(k), Y(U(k)), X(k), Y(L(k)), Colour(Element::ba));
        Plain();
        if (rib.EpBA != 0 && rib.AffHautBA) {
            CurrentX = OX();
            CurrentY = OY() - CE() * rib.ExtradosMaxi - 283.5;
            Print(W2("MainTolbar", "15") + " = " + Length(corde() * U(k) - corde() * L(k)));
        }
    }
    Style(Element::bf);
    m.StationBF = F(std::abs(W(rib.EpBF) / corde() * 400));
    const double k = W(m.StationBF);
    const double x = (1 - W(rib.EpBF) / corde()) * CE() + OX();
    Line(x, Y(U(k)), x, Y(L(k)), Colour(Element::bf));
    Plain();
    if (rib.EpBF != 0 && rib.AffHautBF) {
        CurrentX = OX() + CE() - 850.5;
        CurrentY = OY() - CE() * rib.ExtradosMaxi - 283.5;
        Print(W2("MainTolbar", "21") + " = " + Length(corde() * U(k) - corde() * L(k)));
    }
}

void Run::Offsets(long k) {
    if (k < 1 || k > 400) {
        throw Broken{9};
    }
    const double pi = 4 * std::atan(1.0);
    const auto i = static_cast<std::size_t>(k);
    const double te = rib.TabExtrados[i];
    const double te1 = rib.TabExtrados[i - 1];
    m.AngleExtra[i] = std::atan((te1 - te) / 1.0) * 180 / pi;
    m.DecalXExtra[i] = std::sin(m.AngleExtra[i]) * W(m.EpRel);
    if (te - te1 > 0) {
        m.DecalXExtra[i] = -m.DecalXExtra[i];
    }
    m.DecalYExtra[i] = std::cos(m.AngleExtra[i]) * W(m.EpRel);
    const double ti = rib.TabIntrados[i];
    const double ti1 = rib.TabIntrados[i - 1];
    m.AngleIntra[i] = std::atan((ti1 - ti) / 1.0) * 180 / pi;
    m.DecalXIntra[i] = std::sin(m.AngleIntra[i]) * W(m.EpRel);
    if (ti - ti1 > 0) {
        m.DecalXIntra[i] = -m.DecalXIntra[i];
    }
    m.DecalYIntra[i] = std::cos(m.AngleIntra[i]) * W(m.EpRel);
}

void Run::Sheeting() {
    const auto at = [](long k) { return static_cast<std::size_t>(k); };
    const auto dk = [](long k) { return static_cast<double>(k); };
    const TableStation &TE = rib.TabExtrados;
    const TableStation &TI = rib.TabIntrados;
    Style(Element::coffrage);
    const unsigned colour = Colour(Element::coffrage);
    if (rib.EpBF > 0) {
        for (long k = Nearest(W(m.StationBF) + 1); k <= Nearest(W(m.StationBA)); ++k) {
            Offsets(k);
            const std::size_t a = at(k - 1);
            const std::size_t b = at(k);
            Line(X(dk(k - 1)) + CE() * m.DecalXExtra[a], Y(TE[a] - m.DecalYExtra[a]),
                 X(dk(k)) + CE() * m.DecalXExtra[b], Y(TE[b] - m.DecalYExtra[b]), colour);
            Line(X(dk(k - 1)) + CE() * m.DecalXIntra[a], Y(TI[a] + m.DecalYExtra[a]),
                 X(dk(k)) + CE() * m.DecalXIntra[b], Y(TI[b] + m.DecalYExtra[b]), colour);
        }
        return;
    }
    const float stock = F(W(rib.EpBA) / corde());
    for (long k = 0; stock < F((400 - dk(k)) / 400); ++k) {
        Offsets(k + 1);
        const std::size_t a = at(k);
        const std::size_t b = at(k + 1);
        const double up = TE[a] - m.DecalYExtra[a];
        const double lo = m.DecalYIntra[a] + TI[a];
        if (lo < up) {
            Line(X(dk(k)) + CE() * m.DecalXExtra[a], Y(TE[a] - m.DecalYExtra[a]),
                 X(dk(k + 1)) + CE() * m.DecalXExtra[b], Y(TE[b] - m.DecalYExtra[b]), colour);
        } else {
            m.IdxFinCoffr += 1;
        }
        if (up > lo) {
            Line(X(dk(k)) + CE() * m.DecalXIntra[a], Y(TI[a] + m.DecalYIntra[a]),
                 X(dk(k + 1)) + CE() * m.DecalXIntra[b], Y(TI[b] + m.DecalYIntra[b]), colour);
        }
    }
    Line(X(m.IdxFinCoffr), Y(TE[at(m.IdxFinCoffr)] - W(m.EpRel)), OX() + CE(),
         OY() - W(CordeEchelleY) * m.DemiBF, colour);
}

void Run::Stations() {
    const float part = F(corde() / (rib.NbRep + 1));
    for (int i = 0; i <= rib.NbRep + 1; ++i) {
        const float x = F(W(part) * i);
        const double k = W(F(std::abs(400 - 400 * W(x) / corde())));
        const double up = U(k);
        const double lo = L(k) - 0.015;
        Style(Element::rep);
        const double xs = X(k);
        if (rib.AffHaut) {
            Line(xs, CE() * up + OY(), xs, (lo - 0.01) * CE() + OY(), Colour(Element::rep));
        } else {
            Line(xs, OY() - CE() * up, xs, OY() - CE() * lo, Colour(Element::rep));
        }
        ForeColor = Colour(Element::rep);
        FontSize = W(rib.Zoom) * 7.2;
        Print(std::to_string(i));
    }
    Plain();
    ForeColor = 0;
}

void Run::All() {
    EchelleValue = F(W(rib.Zoom) * 56.7);
    m.EpRel = F(Over(W(rib.EpCoffrage), corde()));
    m.IdxFinCoffr = 0;
    CordeEchelleY = rib.AffHaut ? -m.CordeEchelle : m.CordeEchelle;
    FontSize = W(rib.Zoom) * W(rib.texte.TailleFont);

    const double y1 = rib.ContourY(1);
    const double yn = rib.ContourY(rib.NbContour);
    if (y1 > 0 && yn < 0) {
        m.DemiBF = (y1 - std::abs(yn)) / 2;
    } else if (y1 > 0 && yn > 0) {
        m.DemiBF = (y1 + yn) / 2;
    } else if (y1 < 0 && yn < 0) {
        m.DemiBF = (y1 + yn) / 2;
    }

    ThicknessText();
    Edges();
    if (rib.AffTrac) {
        Style(Element::profil);
        for (long i = 2; i <= rib.NbContour; ++i) {
            Line(CE() * rib.ContourX(i - 1) + OX(), Y(rib.ContourY(i - 1)),
                 CE() * rib.ContourX(i) + OX(), Y(rib.ContourY(i)), Colour(Element::profil));
        }
        Plain();
    }
    if (rib.EpCoffrage != 0) {
        Sheeting();
        Plain();
    }
    Plain();
    if (rib.NbRep != 0) {
        Stations();
    }
    if (rib.AffLignRef) {
        DrawStyle = Of(Element::axe).style;
        Line(OX() - 1, OY(), OX() + CE() + 1, OY(), Colour(Element::axe));
    }
    Plain();
}

} // namespace

std::string TwoDecimals(double value) {
    return Thousands(value, 2);
}

std::string InInches(double mm) {
    const auto number = [](const std::string &digits) {
        double value = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), value);
        return value;
    };
    std::string text = General(mm, true);
    if (text == "0") {
        return "0";
    }
    text = General(number(text) / 25.4, false);
    const std::size_t point = text.find('.');
    std::string shown;
    if (point != std::string::npos) {
        const double f = number("0" + text.substr(point));
        for (int denominator = 2; denominator <= 64 && shown.empty(); denominator *= 2) {
            const double w = f * denominator;
            if (w == std::floor(w)) {
                shown = (point == 0 ? "" : text.substr(0, point + 1)) + General(w, true) + "/" +
                        std::to_string(denominator);
            }
        }
    }
    if (shown.empty()) {
        shown = Thousands(number(text), 3);
        while (shown.back() == '0') {
            shown.pop_back();
        }
        shown.erase(0, shown.find_first_not_of(' '));
    }
    if (shown[0] == '.') {
        shown = "0" + shown;
    }
    if (shown.find('.') == shown.size() - 1) {
        shown.pop_back();
    }
    return shown;
}

Drawing PlotRib(const RibModel &rib, const AppSettings &settings, Memory &memory) {
    Run run{rib, settings, memory, {}};
    Drawing drawing;
    try {
        run.All();
    } catch (const Broken &broken) {
        drawing.failure = broken.number;
    } catch (const Failure &failure) {
        drawing.failure = failure.number;
    }
    drawing.drawn = run.drawn;
    return drawing;
}

void PlaceOnScreen(const RibModel &rib, Memory &memory) {
    const double corde = W(rib.corde);
    const double zoom = W(rib.Zoom);
    memory.CordeEchelle = F(corde * 56.7 * zoom);
    memory.OrigineX = F(283.5 + rib.DecalX * corde * zoom / 2);
    memory.OrigineY =
        F(-rib.DecalY * corde * zoom / 2 + corde * rib.ExtradosMaxi * 56.7 * zoom + 850.5);
}

} // namespace loftwing::naive
