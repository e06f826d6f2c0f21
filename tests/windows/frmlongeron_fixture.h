/// The spar window and a rib that has spars.
#pragma once

#include "features/frmlongeron.h"
#include "windows/slots_fixture.h"

namespace loftwing {

inline constexpr const char *kBehind = "The spar lies behind the trailing edge.";
inline constexpr const char *kInFront = "The spar lies in front of the leading edge.";
inline constexpr const char *kOverTrailing =
    "The width of the spar reaches beyond the trailing edge.";
inline constexpr const char *kOverLeading =
    "The width of the spar reaches beyond the leading edge.";
inline constexpr const char *kNoWidth = "The spar has no width.";
inline constexpr const char *kNoDepth = "The spar has no depth.";
inline constexpr const char *kUnusable = "A value of the spar cannot be used.";

class FrmLongeronTest : public SlotsTest<frmlongeron> {
  protected:
    const char *NumbersName() const override { return "LblNblongeron"; }

    static Longeron Spar(const std::string &place, float mm) {
        Longeron spar;
        spar.PosLongAfich = place;
        spar.PosLong = mm;
        spar.LargLongAfich = "10";
        spar.LargLong = 10;
        spar.HautLongAfich = "5";
        spar.HautLong = 5;
        spar.OptLongExt = 1;
        return spar;
    }
    /// Finished spars at 20, 30, 40 mm and so on, and the next one in the work slot.
    void Spars(int finished) {
        for (int i = 0; i <= finished; ++i) {
            const int place = 20 + 10 * i;
            At(programme.rib.longeron, i) = Spar(std::to_string(place), static_cast<float>(place));
        }
        programme.rib.NbLongeron = static_cast<std::uint8_t>(finished);
    }
    static void TypeSpar(SeenSlots &window, const char *place, const char *width,
                         const char *depth) {
        window.Type(0, place);
        window.Type(1, width);
        window.Type(2, depth);
    }
    const Longeron &Slot(int index) { return At(programme.rib.longeron, index); }
    int Count() const { return programme.rib.NbLongeron; }
    /// The locations of the first slots as typed.
    std::string Places(int slots) {
        std::string all;
        for (int i = 0; i < slots; ++i) {
            all += (i == 0 ? "" : " ") + Slot(i).PosLongAfich;
        }
        return all;
    }
};

} // namespace loftwing
