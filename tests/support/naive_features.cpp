// What is added to a rib, in the naive plot.

#include "support/naive_run.h"

#include <charconv>

namespace loftwing::naive {

namespace {

double Number(const std::string &text) {
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

/// A length in mm, typed in the unit of display.
double Typed(const std::string &text, bool inches) {
    if (!inches) {
        return Number(text);
    }
    const std::size_t slash = text.find('/');
    if (slash == std::string::npos) {
        return Number(text) * 25.4;
    }
    const std::size_t point = text.find('.');
    const bool whole = point != std::string::npos && point < slash;
    const std::string above = whole ? text.substr(point + 1) : text;
    const double inch = whole ? Number(text.substr(0, point)) : 0;
    return (inch + Over(Number(above), Number(text.substr(slash + 1)))) * 25.4;
}

} // namespace

void Run::Text(double ramp) {
    if (rib.texte.InsTextX == 0 && rib.texte.InsTextY == 0) {
        return;
    }
    CurrentX = ramp * E() + OX() + W(rib.texte.InsTextX) * E();
    CurrentY = OY() - W(rib.texte.InsTextY) * E() - 3 * E();
    Print(rib.texte.InsTexte);
}

void Run::Template() {
    const Bloc &bloc = rib.bloc;
    const double pi = 4 * std::atan(1.0);
    m.CoupeDev = 0;
    m.CoupeRel = F(Over(W(bloc.CoupeBF), corde()));
    if (m.EpRel < m.CoupeRel) {
        m.CoupeDev = F((W(m.CoupeRel) - W(m.EpRel)) * CE());
    }
    m.BlocEp = W(bloc.HTbasbloc);
    const double Eh = W(bloc.HTbloc) - W(bloc.HTbasbloc);
    m.BlocBA = W(bloc.BAbloc);
    const double length = W(bloc.BAbloc) + corde() + W(bloc.BFbloc);
    const double washout = W(rib.vrillage) * pi / 180;
    const double k = W(F(std::abs(400 * W(bloc.BFbloc) / corde())));
    if (bloc.Optquebf == 0) {
        m.BlocYBF = U(k);
    }
    if (bloc.Optquebf == 1) {
        m.BlocYBF = L(k);
    }
    if (rib.vrillage != 0) {
        const double t = OX() - m.BlocEp * std::sin(washout) * E();
        if (t >= OX()) {
            m.OrigineX = F(t);
        }
    }
    Style(Element::bloc);
    const unsigned colour = Colour(Element::bloc);
    const double s = std::sin(washout);
    const double c = std::cos(washout);
    const double Px = OX(), Py = OY();
    const double Ax = Px + m.BlocEp * s * E(), Ay = Py + m.BlocEp * c * EY();
    const double Bx = Px - Eh * s * E(), By = Py - Eh * c * EY();
    const double Dx = length * c * c * E(), Dy = -length * c * s * EY();
    const double Ex = length * E() + OX(), Ey = CE() * m.BlocYBF + OY();
    Line(Px, Py, m.BlocBA * E() + OX(), OY(), colour);
    Line(Px, Py, Ax, Ay, colour);
    Line(Px, Py, Bx, By, colour);
    Line(Bx, By, Bx + Dx, By + Dy, colour);
    Line(Bx + Dx, By + Dy, Ex, Ey, colour);
    Text(m.BlocBA);
    Line(Ax, Ay, Ax + Dx, Ay + Dy, colour);
    Line(Ax + Dx, Ay + Dy, Ex, Ey, colour);
    Line(Ex, CEY() * m.BlocYBF + OY(), (length - W(bloc.BFbloc)) * E() + OX(),
         OY() - CEY() * m.DemiBF + W(m.CoupeDev), colour);
    Plain();
}

void Run::Heel() {
    const Talon &heel = rib.talon;
    const double washout = W(rib.vrillage) * (4 * std::atan(1.0)) / 180;
    const double nb = W(F(std::abs(400 * heel.TalonBF / corde())));
    const double nl = W(F(std::abs(400 * heel.TalonLong / corde())));
    const double s = std::sin(washout);
    const double c = std::cos(washout);
    const double tn = std::tan(washout);
    const double H = heel.OptTalon != 0 ? heel.TalonExtra : heel.TalonIntra;
    const double hb = heel.OptTalon != 0 ? U(nb) - W(m.EpRel) : L(nb) + W(m.EpRel);
    const double hl = heel.OptTalon != 0 ? U(nl) - W(m.EpRel) : L(nl) + W(m.EpRel);
    Style(Element::bloc);
    const double Qx = s * H * E() + OX();
    const double Qy = c * H * EY() + OY();
    Line(Qx, Qy, Qx + corde() * c * c * E(), Qy - corde() * c * s * EY(), Colour(Element::axe));
    const double b = corde() - heel.TalonBF;
    Line(Qx + b * c * c * E(), Qy - b * c * s * EY(), b * E() + OX(), Y(hb), Colour(Element::bloc));
    const double l = corde() - heel.TalonLong;
    const double x = corde() - (hl * 3 / W(rib.Zoom) * E() * tn + heel.TalonLong);
    Line(Qx + l * c * c * E(), Qy - l * c * s * EY(), x * E() + OX(), Y(hl), Colour(Element::bloc));
    Text(0);
    Plain();
}

void Run::Notch() {
    Style(Element::ba);
    const unsigned colour = Colour(Element::ba);
    const double d = W(rib.carre.CarreBA) / 1.414;
    const double x = W(rib.carre.CarreBAX);
    const double y = W(rib.carre.CarreBAY);
    Line(x * E() + OX(), OY() - (d + y) * EY(), (d + x) * E() + OX(), OY() - y * EY(), colour);
    Step(-d * E(), d * EY(), colour);
    Step(-d * E(), -d * EY(), colour);
    Step(d * E(), -d * E(), colour);
    Plain();
}

float Run::Place(const std::string &text, bool from_trailing_edge) const {
    double place = 0;
    if (!text.empty() && text.back() == '%') {
        place = Number(text.substr(0, text.size() - 1)) * corde() / 100;
    } else {
        place = Typed(text, settings.Unite == " in");
    }
    return F(from_trailing_edge ? corde() - place : place);
}

void Run::Upper(const Longeron &spar, const Spot &at) {
    if (spar.OptLongExt == 0 || spar.OptLongExt > 2) {
        return;
    }
    const double shift = spar.OptLongExt == 2 ? 0 : W(m.EpRel);
    const double w = W(spar.LargLong), h = W(spar.HautLong), d = W(spar.DistLong);
    const auto sY = [&](double v) { return OY() - (v - shift) * CEY(); };
    const double xf = X(W(at.kf)), xr = X(W(at.kr));
    const unsigned colour = Colour(Element::longeron);
    Style(Element::longeron);
    if (spar.TypeLong == 2) {
        const double y = sY(at.Uc) + (d + h) * EY();
        Line(xf, y, xr, y, Colour(Element::axe));
        Circle(xf + w / 2 * E(), y, w / 2 * E(), colour);
    }
    if (spar.TypeLong == 1 || spar.TypeLong == 3) {
        const double y = sY(at.Uc) + d * EY();
        Line(xf, y, xr, y, colour);
        Step(0, h * EY(), colour);
        Step(-w * E(), 0, colour);
        Step(0, -h * EY(), colour);
    }
    if (spar.TypeLong == 0) {
        Line(xf, sY(at.Uf), xr, sY(at.Ur), colour);
        const double t = Over(at.Ur - at.Uf, w) * h;
        Step(t * CE(), h * EY(), colour);
        Step(-w * E(), -(at.Uf - at.Ur) * CEY(), colour);
        Step(-t * CE(), -h * EY(), colour);
    }
    Plain();
}

void Run::Lower(const Longeron &spar, const Spot &at) {
    if (spar.OptLongInt == 0 || spar.OptLongInt > 2) {
        return;
    }
    const double shift = spar.OptLongInt == 2 ? 0 : W(m.EpRel);
    const double w = W(spar.LargLong), h = W(spar.HautLong), d = W(spar.DistLong);
    const auto sY = [&](double v) { return OY() - (shift + v) * CEY(); };
    const double xf = X(W(at.kf)), xr = X(W(at.kr));
    const unsigned colour = Colour(Element::longeron);
    Style(Element::longeron);
    if (spar.TypeLong == 2) {
        Line(xf, sY(at.Lc) - d * EY() + h * E(), xr, sY(at.Lc) - d * EY() + h * EY(),
             Colour(Element::axe));
        Circle(xf + w / 2 * E(), sY(at.Lc) - (d + h) * EY(), w / 2 * E(), colour);
    }
    if (spar.TypeLong == 1 || spar.TypeLong == 3) {
        const double y = sY(at.Lc) - d * EY();
        Line(xf, y, xr, y, colour);
        Step(0, -h * EY(), colour);
        Step(-w * E(), 0, colour);
        Step(0, h * EY(), colour);
    }
    if (spar.TypeLong == 0) {
        Line(xf, sY(at.Lf), xr, sY(at.Lr), colour);
        const double t = Over(at.Lf - at.Lr, w) * h;
        Step(t * CE(), -h * EY(), colour);
        Step(-w * E(), -(at.Lf - at.Lr) * CEY(), colour);
        Step(-t * CE(), h * EY(), colour);
    }
    Plain();
}

bool Run::Spar(int i) {
    Longeron &spar = rib.longeron[static_cast<std::size_t>(i)];
    spar.PosLong = Place(spar.PosLongAfich, spar.RefLong != 0);
    if (spar.PosLong == 0) {
        return false;
    }
    if (W(spar.PosLong) > corde()) {
        throw Broken{9};
    }
    const auto station = [&](double x) { return F(std::abs(400 - Over(400 * x, corde()))); };
    Spot at;
    at.kr = station(W(spar.PosLong) + W(spar.LargLong) / 2);
    at.kf = station(W(spar.PosLong) - W(spar.LargLong) / 2);
    at.kc = station(W(spar.PosLong));
    at.Uf = U(W(at.kf));
    at.Ur = U(W(at.kr));
    at.Uc = U(W(at.kc));
    at.Lf = L(W(at.kf));
    at.Lr = L(W(at.kr));
    at.Lc = L(W(at.kc));
    m.spars[i] = at;
    DrawStyle = Of(Element::axe).style;
    const double x = X(W(at.kf)) + W(spar.LargLong) * E() / 2;
    Line(x, Y(at.Uc), x, Y(at.Lc), Colour(Element::axe));
    Upper(spar, at);
    Lower(spar, at);
    return true;
}

void Run::Spars() {
    for (int i = 0; i <= rib.NbLongeron; ++i) {
        if (i > 12) {
            throw Broken{9};
        }
        if (!Spar(i)) {
            return;
        }
    }
}

void Run::Hole(int i) {
    Trou &hole = rib.trou[static_cast<std::size_t>(i)];
    hole.PosTrou = Place(hole.PosTrouAfich, hole.RefTrou != 0);
    if (W(hole.PosTrou) > corde()) {
        throw Broken{9};
    }
    const auto station = [&](double x) { return F(std::abs(400 - Over(400 * x, corde()))); };
    Spot at;
    at.kr = station(W(hole.PosTrou) + W(hole.DiaTrou) / 2);
    at.kf = station(W(hole.PosTrou) - W(hole.DiaTrou) / 2);
    at.kc = station(W(hole.PosTrou));
    at.Uc = U(W(at.kc));
    at.Lc = L(W(at.kc));
    m.holes[i] = at;
    const double b = hole.ChkCentre == 1.0F ? (at.Uc - at.Lc) / 2 : at.Uc;
    const double Y0 = OY() - (at.Uc - b) * CEY() - W(hole.DecalTrou) * EY();
    const double w = W(hole.DiaTrou), hh = W(hole.HautTrou);
    const double xf = X(W(at.kf)), xr = X(W(at.kr)), xc = xf + w / 2 * E();
    const unsigned colour = Colour(Element::trou);
    const unsigned axis = Colour(Element::axe);
    Style(Element::trou);
    if (hole.TypeTrou == 1) {
        Line(xf, Y0, xf, Y0 - hh / 2 * EY(), colour);
        Step(w * E(), 0, colour);
        Step(0, hh * EY(), colour);
        Step(-w * E(), 0, colour);
        Step(0, -hh / 2 * EY(), colour);
        Plain();
        DrawStyle = Of(Element::axe).style;
        Line(xf, Y0, xr, Y0, axis);
        Line(xc, Y0 - hh / 1.5 * E(), xc, Y0 + hh / 1.5 * E(), axis);
    }
    if (hole.TypeTrou == 0) {
        Circle(xc, Y0, w / 2 * E(), colour);
        Plain();
        DrawStyle = Of(Element::axe).style;
        Line(xf, Y0, xr, Y0, axis);
        Line(xc, Y0 - w / 2 * E(), xc, Y0 + w / 2 * E(), axis);
    }
}

void Run::Holes() {
    for (int i = 0; i <= rib.NbTrou; ++i) {
        if (i > 12) {
            throw Broken{9};
        }
        Hole(i);
    }
}

} // namespace loftwing::naive
