#include "programme/longueur_lue.h"

#include "base/failure.h"

#include <algorithm>
#include <charconv>

namespace loftwing {

std::optional<double> LongueurLue(const std::string &text, const Saisie &saisie) {
    const auto keys = TouchesSelonUnite(saisie.Unite, kTouchesPositif, kTouchesFraction);
    if (text.empty() || text.find_first_not_of(keys) != std::string::npos ||
        text.find_first_of(kTouchesEntier) == std::string::npos || EstRefusee(text, saisie.Unite)) {
        return std::nullopt;
    }
    try {
        return NombreMm(text, saisie);
    } catch (const Failure &) {
        return std::nullopt; // a denominator of 0, or more than a number holds
    }
}

std::vector<std::string> ListeLue(const std::string &line) {
    constexpr const char *kEntre = " \t\r\n;";
    std::vector<std::string> words;
    std::size_t at = 0;
    while ((at = line.find_first_not_of(kEntre, at)) != std::string::npos) {
        const std::size_t end = std::min(line.find_first_of(kEntre, at), line.size());
        std::string word = line.substr(at, end - at);
        at = end;
        if (word.ends_with(',')) {
            word.pop_back();
        }
        std::replace(word.begin(), word.end(), ',', '.');
        if (!word.empty()) {
            words.push_back(std::move(word));
        }
    }
    return words;
}

std::optional<int> NombreLu(const std::string &text, int most) {
    int number = 0;
    const char *const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    return read.ec == std::errc() && read.ptr == end && number >= 1 && number <= most
               ? std::optional(number)
               : std::nullopt;
}

} // namespace loftwing
