#include "support/naive_run.h"

namespace loftwing::naive {

namespace {

std::string W2(const char *section, const char *key) {
    return std::string("<") + section + " " + key + ">";
}

} // namespace

long Nearest(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    long whole = static_cast<long>(below);
    if (rest > 0.5 || (rest == 0.5 && whole % 2 != 0)) {
        whole += 1;
    }
    return whole;
}

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
    } else {
        Notch();
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
            Line(X(dk(k - 1)) + CE() * m.DecalXIntra[a],
                 Y(TI[a] + m.DecalYExtra[a] - W(m.CoupeRel)), X(dk(k)) + CE() * m.DecalXIntra[b],
                 Y(TI[b] + m.DecalYExtra[b] - W(m.CoupeRel)), colour);
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
        if (lo - W(m.CoupeRel) < up) {
            Line(X(dk(k)) + CE() * m.DecalXExtra[a], Y(TE[a] - m.DecalYExtra[a]),
                 X(dk(k + 1)) + CE() * m.DecalXExtra[b], Y(TE[b] - m.DecalYExtra[b]), colour);
        } else {
            m.IdxFinCoffr += 1;
        }
        if (up + W(m.CoupeRel) > lo) {
            Line(X(dk(k)) + CE() * m.DecalXIntra[a], Y(TI[a] + m.DecalYIntra[a] - W(m.CoupeRel)),
                 X(dk(k + 1)) + CE() * m.DecalXIntra[b],
                 Y(TI[b] + m.DecalYIntra[b] - W(m.CoupeRel)), colour);
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
        const unsigned colour = Colour(Element::rep);
        if (!rib.AffHaut && m.BlocEp == 0) {
            Line(xs, OY() - CE() * up, xs, OY() - CE() * lo, colour);
        } else if (!rib.AffHaut) {
            Line(xs, OY() - CE() * up, xs, m.BlocEp * E() + OY(), colour);
            CurrentY = (W(rib.bloc.HTbasbloc) - 3.5) * E() + OY();
            CurrentX = CurrentX + 20;
        } else if (m.BlocEp == 0) {
            Line(xs, CE() * up + OY(), xs, (lo - 0.01) * CE() + OY(), colour);
        } else {
            Line(xs, CE() * up + OY(), xs, OY() - m.BlocEp * E(), colour);
            CurrentY = OY() - (W(rib.bloc.HTbasbloc) - 1) * E();
            CurrentX = CurrentX + 20;
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

    if (rib.TypeGabarit == 1) {
        Template();
    } else {
        m.BlocEp = 0;
        m.BlocBA = 0;
        m.CoupeRel = 0;
    }
    m.OrigineX = F(m.BlocBA * E() + OX());
    if (rib.TypeGabarit == 11) {
        Heel();
    }
    ThicknessText();
    Edges();
    if (rib.TypeGabarit == 0) {
        Text(0);
    }
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
    Spars();
    Holes();
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

Drawing PlotRib(RibModel &rib, const AppSettings &settings, Memory &memory) {
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
    if (rib.TypeGabarit == 1) {
        memory.OrigineY = F(W(memory.OrigineY) + std::abs(W(rib.bloc.HTbloc)) / 2 * 56.7 * zoom);
    }
}

} // namespace loftwing::naive
