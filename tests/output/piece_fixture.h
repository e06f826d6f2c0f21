/// Ribs whose pieces can be computed on paper.
#pragma once

#include "output/piece.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace loftwing {

class PieceTest : public testing::Test {
  protected:
    PieceTest() {
        rib.corde = 100;
        rib.cordeAfich = "100";
        rib.EpCoffrage = 0;
        demande.etiquette = false;
        Contour({{1, 0.1}, {0, 0.1}, {0, -0.1}, {1, -0.1}}); // a plank of 100 by 20 mm
    }

    RibWorld world;
    RibModel &rib = world.rib;
    DemandePiece demande;

    void Contour(const Points &points) {
        rib.ContourX.Clear();
        rib.ContourY.Clear();
        for (const auto &[x, y] : points) {
            rib.ContourX.Append(x);
            rib.ContourY.Append(y);
        }
        rib.NbContour = static_cast<std::int16_t>(points.size());
    }
    /// A wedge of 100 mm from a height of 40 mm at the front to nothing: 2000 mm2. Its surfaces
    /// fall by 1 in 5.
    void Coin() { Contour({{1, 0}, {0, 0.2}, {0, -0.2}}); }

    /// Adds a spar and gives it for its options.
    Longeron &Spar(const std::string &place, float width, float depth, int kind) {
        Longeron &spar = rib.longeron[rib.NbLongeron++];
        spar.PosLongAfich = place;
        spar.LargLong = width;
        spar.HautLong = depth;
        spar.TypeLong = static_cast<std::uint8_t>(kind);
        return spar;
    }
    Trou &Hole(const std::string &place, float width, float height = 0) {
        Trou &hole = rib.trou[rib.NbTrou++];
        hole.PosTrouAfich = place;
        hole.DiaTrou = width;
        hole.HautTrou = height;
        hole.TypeTrou = height > 0 ? 1 : 0;
        return hole;
    }
    /// A heel under the lower surface with its foot `height` under the reference line.
    void Heel(double height, const std::string &front, const std::string &rear) {
        rib.TypeGabarit = kGabaritTalon;
        rib.talon.OptTalon = 0;
        rib.talon.TalonIntra = height;
        rib.talon.TalonBAAfich = front;
        rib.talon.TalonBFAfich = rear;
    }

    std::variant<std::vector<Piece>, RefusPiece> Fait() {
        return FaitPieces(rib, demande, {world.settings.Unite, world.messages});
    }
    /// The one piece of the rib.
    Piece Nervure() {
        const auto made = Fait();
        const auto *pieces = std::get_if<std::vector<Piece>>(&made);
        EXPECT_NE(pieces, nullptr);
        if (pieces == nullptr || pieces->size() != 1) {
            ADD_FAILURE() << "no piece, or several";
            return {};
        }
        return pieces->front();
    }
    double Mm2() { return AirePiece(Nervure()); }
    RefusPiece Refusee() {
        const auto made = Fait();
        const auto *refusal = std::get_if<RefusPiece>(&made);
        EXPECT_NE(refusal, nullptr);
        return refusal == nullptr ? RefusPiece{RefusDePiece::sans_bois, -1} : *refusal;
    }
    static BoitePiece Autour(const Anneau &ring) {
        Piece piece;
        piece.parties.push_back({ring, {}, {}});
        return BoiteDe(piece);
    }
    static std::vector<TraitMarque> Traits(const Piece &piece, GenreMarque genre) {
        std::vector<TraitMarque> marks;
        for (const TraitMarque &mark : piece.traits) {
            if (mark.genre == genre) {
                marks.push_back(mark);
            }
        }
        return marks;
    }
    static std::vector<int> Numeros(const Piece &piece, AvisPiece genre) {
        std::vector<int> numbers;
        for (const Avis &avis : piece.avis) {
            if (avis.genre == genre) {
                numbers.push_back(avis.numero);
            }
        }
        return numbers;
    }
};

} // namespace loftwing
