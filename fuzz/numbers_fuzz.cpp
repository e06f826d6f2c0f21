// Numbers to texts and back, lengths as they are typed, and pictures. What is written reads back
// within its digits; a text in millimetres and one in inches end as a number or as a failure.
// Lines of the input: a text, a picture, and eight bytes of a number behind the last NUL.

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "core/units.h"
#include "fuzz_world.h"
#include "programme/longueur_lue.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace loftwing {
namespace {

/// Whether two numbers agree in so many digits.
bool Agree(double one, double other, double part) {
    return std::abs(one - other) <= std::max(std::abs(one), std::abs(other)) * part;
}

template <class Action>
void Try(const Action &action) {
    try {
        action();
    } catch (const Failure &failure) {
        Require(failure.number == kOverflow || failure.number == kDivisionByZero,
                "number or one of two failures");
    }
}

void CheckNumber(double value, std::string_view picture) {
    Try([&] {
        const std::string text = NumberText(value);
        Require(std::isfinite(value), "text of a number only");
        Require(Agree(LeadingNumber(text), value, 1e-14), "15 digits");
        Require(Agree(LeadingNumber(NumberText(value, ZeroBeforePoint::no)), value, 1e-14),
                "15 digits without a zero in front");
        Require(text.find(',') == std::string::npos, "point whatever the locale");
    });
    Try([&] {
        const std::string text = Format(value, picture);
        Require(text.size() <= picture.size() + 400, "as long as number and picture");
    });
    const auto single = static_cast<float>(std::clamp(value, -1e38, 1e38));
    Try([&] {
        const std::string text = ShortestText(single);
        Require(static_cast<float>(LeadingNumber(text)) == single, "same 32 bits");
        Require(Agree(LeadingNumber(NumberText(single)), static_cast<double>(single), 1e-6),
                "7 digits");
        Format(single, picture);
    });
    for (const std::string_view unit : {kUniteMm, kUniteIn}) {
        const std::string Unite(unit);
        Try([&] { DepuisMm(value, Unite); });
        Try([&] { DepuisMm(single, Unite); });
        Try([&] { LongueurCalculee(value, Unite); });
    }
}

void CheckTyped(const std::string &text, std::string_view picture) {
    FuzzWorld worlds[] = {FuzzWorld(false), FuzzWorld(true)};
    for (FuzzWorld &world : worlds) {
        const Saisie saisie = world.programme.SaisieEnCours();
        Try([&] {
            const std::string mm = VersMm(text, saisie);
            Require(!EstRefusee(text, saisie.Unite) || mm.empty(), "refused text is none");
            Require(std::isfinite(NombreMm(text, saisie)), "length of a number");
        });
        Try([&] { FormatAffiche(DepuisMm(text, saisie.Unite), picture); });
        Try([&] {
            std::string afich = "before";
            float number = 0;
            StockeLongueur(text, saisie, afich, number);
            Require(afich == text, "text as typed");
            Require(std::isfinite(number), "32 bits of a number");
            TexteEnVigueur(afich, number, saisie.Unite);
        });
        if (const auto length = LongueurLue(text, saisie)) {
            Require(std::isfinite(*length), "length that was read");
        }
    }
    for (const std::string &word : ListeLue(text)) {
        Require(!word.empty() && word.find_first_of(" \t\r\n;") == std::string::npos, "word");
    }
    if (const auto number = NombreLu(text, 9999)) {
        Require(*number >= 1 && *number <= 9999, "whole number in its range");
    }
}

void CheckText(const std::string &text) {
    Try([&] { Require(std::isfinite(LeadingNumber(text)), "number at the start"); });
    const std::string words = AnyToUtf8(text);
    Require(IsUtf8(words) && IsUtf8(ToUtf8(text)), "valid characters");
    const std::size_t count = CharacterCount(words);
    Require(CodePoints(words).size() == count, "characters counted alike");
    Require(CharacterCount(FirstCharacters(words, 3)) == std::min<std::size_t>(3, count),
            "first characters");
    Require(CharacterCount(LastCharacters(words, 3)) == std::min<std::size_t>(3, count),
            "last characters");
}

void Convert(std::string_view bytes) {
    auto [file, choices] = Divide(bytes);
    const std::size_t end = std::min(file.find('\n'), file.size());
    const std::string text(file.substr(0, end));
    const std::string_view picture = file.substr(std::min(end + 1, file.size()));
    CheckNumber(choices.Number(), picture);
    Try([&] { CheckNumber(LeadingNumber(text), picture); });
    CheckTyped(text, picture);
    CheckText(std::string(file));
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::Convert(loftwing::BytesOf(data, size));
    return 0;
}
