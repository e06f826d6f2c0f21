/// The hole window and a rib that has holes.
#pragma once

#include "features/frmtrou.h"
#include "windows/slots_fixture.h"

namespace loftwing {

inline constexpr const char *kHoleBehind = "The hole lies behind the trailing edge.";
inline constexpr const char *kHoleInFront = "The hole lies in front of the leading edge.";
inline constexpr const char *kHoleNoSize = "The hole has no diameter or no width.";
inline constexpr const char *kHoleNoHeight = "The hole has no height.";

class FrmTrouTest : public SlotsTest<frmtrou> {
  protected:
    const char *NumbersName() const override { return "LblNbtrou"; }

    /// Finished holes at 20, 30, 40 mm and so on, and the next one in the work slot.
    void Holes(int finished) {
        for (int i = 0; i <= finished; ++i) {
            Trou &hole = At(programme.rib.trou, i);
            hole.PosTrouAfich = std::to_string(20 + 10 * i);
            hole.DiaTrouAfich = "10";
            hole.DiaTrou = 10;
        }
        programme.rib.NbTrou = static_cast<std::uint8_t>(finished);
    }
    static void TypeHole(SeenSlots &window, const char *place, const char *diameter) {
        window.Type(0, place);
        window.Type(1, diameter);
    }
    const Trou &Slot(int index) { return At(programme.rib.trou, index); }
    int Count() const { return programme.rib.NbTrou; }
    std::string Places(int slots) {
        std::string all;
        for (int i = 0; i < slots; ++i) {
            all += (i == 0 ? "" : " ") + Slot(i).PosTrouAfich;
        }
        return all;
    }
};

} // namespace loftwing
