/// A tapered panel in a scripted world.
#pragma once

#include "support/words.h"
#include "utilities/nervure.h"

#include <gtest/gtest.h>

namespace loftwing {

class PanelTest : public testing::Test {
  protected:
    Words words{
        "[FrmNervure]\r\n1=Ribs\r\n3=Spacing\r\n4=Major\r\n5=Minor\r\n6=Length\r\n7=Count\r\n"
        "8=Thickness\r\n10=Chord\r\n11=Spar\r\n14=Major is\r\n15=Minor is\r\n"
        "16=Major below minor\r\n17=No count\r\n18=Which name\r\n19=Name\r\n"
        "[Erreur]\r\n1=Error\r\n2=in\r\n3=Run-time\r\n[Message]\r\n20=Wrong : \r\n"
        "[FrmPrint]\r\n242=pdf file\r\n"};
    std::string Unite{kUniteMm};
    Saisie saisie{Unite, words.messages};
    Nervures panneau;
    /// Major and minor chord, count, length, spar on both chords, thickness.
    TextesNervure typed = {"200", "150", "3", "", "", "", ""};

    std::optional<int> Calcule() { return CalculeNervures(panneau, typed, saisie, "Panel"); }
    void ExpectRefused(int champ, const std::string &text) {
        words.platform.Expect(BoxAnswer::ok);
        EXPECT_EQ(Calcule(), champ);
        EXPECT_EQ(words.LastBox().text, text);
        EXPECT_EQ(words.LastBox().title, "Panel");
        EXPECT_EQ(words.LastBox().icon, BoxIcon::warning);
    }
    std::vector<std::string> Chords() const {
        std::vector<std::string> chords;
        for (int numero = 1; numero <= NombreNervures(panneau); ++numero) {
            chords.push_back(RangDe(panneau, numero, Unite).corde);
        }
        return chords;
    }
    std::vector<std::string> Spars() const {
        std::vector<std::string> spars;
        for (int numero = 1; numero <= NombreNervures(panneau); ++numero) {
            spars.push_back(RangDe(panneau, numero, Unite).longeron);
        }
        return spars;
    }
};

} // namespace loftwing
