// What runs from rib to rib of a panel is straight, seen from above and, for heels, from the board.

#include "output/recording.h"
#include "output/rib_plot.h"
#include "output/styles.h"
#include "programme/panel_chance_fixture.h"
#include "support/one_locale.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <optional>

namespace loftwing {
namespace {

constexpr unsigned kStraightPanels = 40; // their numbers are the seeds
constexpr double kStraight = 0.01;       // mm

/// How far points lie from the straight line that fits them best.
class Track {
  public:
    void Add(double at, double value) {
        at_.push_back(at);
        values_.push_back(value);
    }
    std::size_t Count() const { return at_.size(); }
    double Bow() const {
        const auto count = static_cast<double>(at_.size());
        double sx = 0, sy = 0, sxx = 0, sxy = 0;
        for (std::size_t i = 0; i < at_.size(); ++i) {
            sx += at_[i];
            sy += values_[i];
            sxx += at_[i] * at_[i];
            sxy += at_[i] * values_[i];
        }
        const double spread = count * sxx - sx * sx;
        const double slope = spread > 0 ? (count * sxy - sx * sy) / spread : 0;
        const double start = (sy - slope * sx) / count;
        double bow = 0;
        for (std::size_t i = 0; i < at_.size(); ++i) {
            bow = std::max(bow, std::abs(values_[i] - start - slope * at_[i]));
        }
        return bow;
    }

  private:
    std::vector<double> at_, values_;
};

/// One drawing, in mm from the leading edge on its reference line.
class Sight {
  public:
    Sight(const Recording &drawing, const AppSettings &settings)
        : operations_(drawing.Operations()), settings_(settings) {
        const DrawnSegment line = std::get<DrawnSegment>(Of(Element::axe).back());
        left_ = line.x1 + 1; // it overhangs by one unit at either end
        height_ = line.y1;
        chord_ = (line.x2 - line.x1 - 2) / kUnitsPerMm;
    }

    double Chord() const { return chord_; }
    double X(double x) const { return (x - left_) / kUnitsPerMm; }
    double Middle(const DrawnSegment &line) const { return X((line.x1 + line.x2) / 2); }

    std::vector<Operation> Of(Element element) const {
        const Colour wanted = CouleurDe(settings_, element);
        std::vector<Operation> found;
        for (const Operation &each : operations_) {
            const auto *line = std::get_if<DrawnSegment>(&each);
            const auto *circle = std::get_if<DrawnCircle>(&each);
            if ((line != nullptr && line->pen.colour == wanted) ||
                (circle != nullptr && circle->pen.colour == wanted)) {
                found.push_back(each);
            }
        }
        return found;
    }
    /// From the leading edge's place on the reference line to a line, at right angles.
    double DistanceTo(const DrawnSegment &line) const {
        const double dx = line.x2 - line.x1;
        const double dy = line.y2 - line.y1;
        return std::abs((line.x1 - left_) * dy - (line.y1 - height_) * dx) / std::hypot(dx, dy) /
               kUnitsPerMm;
    }

  private:
    const std::vector<Operation> &operations_;
    const AppSettings &settings_;
    double left_ = 0, height_ = 0, chord_ = 0;
};

class PanelStraight : public PanelOfChance {
  protected:
    PanelStraight() {
        for (std::size_t i = 0; i < kElements; ++i) {
            programme.settings.traits[i].couleur = static_cast<std::int16_t>(i + 1);
        }
    }

    std::map<std::string, Track> tracks;
    int square = 0; ///< square notches of all ribs
    int found = 0;  ///< those of them whose sides stand alone in the piece's outline

    void Look(unsigned seed) {
        ASSERT_NO_FATAL_FAILURE(Make(seed));
        const auto wanted = naive::MakePanel(asked);
        ASSERT_EQ(made.nervures.size(), wanted.size());
        tracks.clear();
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            Rib().Partie<PartiesRib>() = made.nervures[i].rib;
            Recording drawing;
            PlotState plot;
            plot.CordeEchelle = ToSingle(Wide(Rib().corde) * kUnitsPerMm);
            DrawRib({drawing, Rib(), programme.settings, plot, programme.messages});
            const Sight sight(drawing, programme.settings);
            EXPECT_NEAR(sight.Chord(), wanted[i].chord, 0.001);
            Spars(sight, wanted[i], made.nervures[i].pieces);
            Holes(sight, wanted[i]);
            Edges(sight, wanted[i]);
            Heel(sight, wanted[i], made.nervures[i].pieces);
        }
        for (const auto &[name, track] : tracks) {
            EXPECT_LE(track.Bow(), kStraight) << name << " of " << track.Count() << " ribs";
        }
    }

    /// Chords have three decimals of an inch, so there a place from the trailing edge is seen from
    /// there.
    double Own(double x, const Sight &sight, const std::string &from) const {
        return from == "1" && asked.inches ? sight.Chord() - x : x;
    }

    void Spars(const Sight &sight, const naive::PanelRib &rib, const std::vector<Piece> &pieces) {
        const std::vector<Operation> drawn = sight.Of(Element::longeron);
        std::size_t next = 0;
        for (std::size_t i = 0; i < rib.spars.size(); ++i) {
            const auto &spar = rib.file.spars[i];
            for (const std::size_t surface : {3U, 4U}) {
                if (spar[surface] == "0") {
                    continue;
                }
                double middle = 0;
                if (spar[5] == "2") {
                    ASSERT_LT(next, drawn.size());
                    middle = sight.X(std::get<DrawnCircle>(drawn[next]).x);
                    next += 1;
                } else {
                    ASSERT_LE(next + 4, drawn.size());
                    middle = sight.Middle(std::get<DrawnSegment>(drawn[next]));
                    next += 4;
                }
                const std::string name =
                    "spar " + std::to_string(rib.spars[i]) + (surface == 3 ? " above" : " below");
                tracks[name].Add(rib.distance, Own(middle, sight, spar[7]));
                const bool level = spar[5] == "1" || spar[5] == "3";
                if (level && pieces[0].genre == GenrePiece::nervure) {
                    const double half = rib.mm.at("spar" + std::to_string(i + 1) + " width") / 2;
                    square += 1;
                    if (const auto cut = Between(pieces[0], middle - half, middle + half)) {
                        found += 1;
                        tracks[name + " in wood"].Add(rib.distance, Own(*cut, sight, spar[7]));
                    }
                }
            }
        }
        EXPECT_EQ(next, drawn.size());
    }

    /// Takes a place that lies within a twentieth of a mm of what is looked for, and nearer than
    /// the one that was taken.
    static void Nearest(double x, double wanted, std::optional<double> &taken) {
        constexpr double kNearby = 0.05;
        if (std::abs(x - wanted) < (taken ? std::abs(*taken - wanted) : kNearby)) {
            taken = x;
        }
    }
    /// The middle between the two upright edges of a piece that lie nearest to these places, where
    /// there are such.
    static std::optional<double> Between(const Piece &piece, double front, double rear) {
        constexpr double kUpright = 0.3; // mm, its least height
        std::optional<double> a;
        std::optional<double> b;
        const auto edges = [&](const Anneau &ring) {
            for (std::size_t i = 0; i < ring.size(); ++i) {
                const PointMm &one = ring[i];
                const PointMm &two = ring[(i + 1) % ring.size()];
                if (std::abs(one.x - two.x) > 1e-4 || std::abs(one.y - two.y) < kUpright) {
                    continue;
                }
                Nearest(one.x, front, a);
                Nearest(one.x, rear, b);
            }
        };
        for (const PartiePiece &part : piece.parties) {
            edges(part.dehors);
            std::for_each(part.dedans.begin(), part.dedans.end(), edges);
        }
        return a && b ? std::optional<double>((*a + *b) / 2) : std::nullopt;
    }

    void Holes(const Sight &sight, const naive::PanelRib &rib) {
        const std::vector<Operation> drawn = sight.Of(Element::trou);
        std::size_t next = 0;
        for (std::size_t i = 0; i < rib.holes.size(); ++i) {
            const auto &hole = rib.file.holes[i];
            double middle = 0;
            if (hole[6] == "0") {
                ASSERT_LT(next, drawn.size());
                middle = sight.X(std::get<DrawnCircle>(drawn[next]).x);
                next += 1;
            } else {
                ASSERT_LE(next + 5, drawn.size());
                middle = sight.Middle(std::get<DrawnSegment>(drawn[next + 1])); // its level side
                next += 5;
            }
            tracks["hole " + std::to_string(rib.holes[i])].Add(rib.distance,
                                                               Own(middle, sight, hole[5]));
        }
    }

    void Edges(const Sight &sight, const naive::PanelRib &rib) {
        if (rib.mm.at("edge") > 0 || rib.mm.at("notch") > 0) {
            double middle = 0; // of a stock's edge or of the four sides of the square
            const std::vector<Operation> front = sight.Of(Element::ba);
            for (const Operation &line : front) {
                middle +=
                    sight.Middle(std::get<DrawnSegment>(line)) / static_cast<double>(front.size());
            }
            tracks["leading edge"].Add(rib.distance, middle);
        }
        const std::vector<Operation> rear = sight.Of(Element::bf);
        ASSERT_EQ(rear.size(), 1U);
        if (rib.mm.at("trailing") > 0) {
            tracks["trailing edge"].Add(
                rib.distance, sight.Chord() - sight.Middle(std::get<DrawnSegment>(rear[0])));
        }
    }

    /// The foot is drawn as an axis before all others. In the wood nothing lies lower when the rib
    /// stands on it.
    void Heel(const Sight &sight, const naive::PanelRib &rib, const std::vector<Piece> &pieces) {
        if (rib.file.kind != "11") {
            return;
        }
        const double foot =
            sight.DistanceTo(std::get<DrawnSegment>(sight.Of(Element::axe).front()));
        tracks["foot"].Add(rib.distance, foot);
        const bool below = rib.file.extra.starts_with("0#");
        const double turn = naive::PanelNumber(rib.file.washout) * std::numbers::pi / 180;
        double lowest = 0;
        for (const PartiePiece &part : pieces[0].parties) {
            for (const PointMm &point : part.dehors) {
                const double y = rib.file.inverted == "1" ? -point.y : point.y;
                const double height = y * std::cos(turn) - point.x * std::sin(turn);
                lowest = std::max(lowest, below ? -height : height);
            }
        }
        tracks["foot in wood"].Add(rib.distance, lowest);
        EXPECT_NEAR(lowest, foot, 0.001);
    }
};

TEST_F(PanelStraight, NotchesHolesStocksAndFeetLieOnStraightLines) {
    const unsigned panels = ManyInOneLocale(kStraightPanels);
    for (unsigned seed = 0; seed < panels; ++seed) {
        SCOPED_TRACE("panel by seed " + std::to_string(seed));
        Look(seed);
    }
    EXPECT_GT(square, panels * 2);
    EXPECT_GT(found, square * 3 / 4); // others open into a neighbour or leave the wood
}

} // namespace
} // namespace loftwing
