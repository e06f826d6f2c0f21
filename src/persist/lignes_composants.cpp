#include "persist/lignes_composants.h"

#include "base/number_text.h"
#include "base/text_encoding.h"

#include <algorithm>

namespace loftwing {

namespace {

/// The text that the number at the start of a line comes to.
std::string TexteDuNombre(const std::string &line) {
    return NumberText(LeadingNumber(line), ZeroBeforePoint::no);
}

} // namespace

std::string TexteDeLigne(std::string_view text) {
    std::string line = IsUtf8(text) ? std::string(text) : ToUtf8(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return line;
}

void Redacteur::Ligne(std::string_view line) {
    bytes_ += TexteDeLigne(line);
    bytes_ += "\r\n";
}

void Redacteur::Nom(const std::string &NomProfil, const std::string &ExtProfil) {
    Ligne(NomProfil + "." + ExtProfil);
}

void Redacteur::Octet(std::uint8_t value) {
    Ligne(std::to_string(value));
}

void Redacteur::Imprime(std::uint8_t value) {
    Ligne(" " + std::to_string(value) + " ");
}

void Redacteur::Reel(float value) {
    Ligne(ShortestText(value));
}

void Redacteur::TalonExtra(const Talon &talon) {
    Ligne(std::to_string(talon.OptTalon) + "#" + talon.TalonExtraAfich);
}

const std::string &Lecteur::Devant() const {
    if (Fini()) {
        throw MakeFailure(kInputPastEnd);
    }
    return lines_[next_];
}

const std::string &Lecteur::Suivante() {
    const std::string &line = Devant();
    ++next_;
    return line;
}

void Lecteur::Reserve(std::string &line) {
    line = TexteDuNombre(Suivante());
}

void Lecteur::Marge(std::string &afich, double &mm) {
    afich = Longueur(Suivante());
    if (afich.empty()) {
        afich = "0";
        mm = 0;
    }
}

void Lecteur::Nom(const std::string & /*NomProfil*/, std::string &ExtProfil) {
    nom_ = Suivante();
    constexpr std::size_t kExtension = 3;
    ExtProfil = LastCharacters(nom_, kExtension);
}

void Lecteur::Octet(std::uint8_t &value) {
    value = ToByte(LeadingNumber(Suivante()));
}

void Lecteur::Inverse(bool &inverted) {
    std::uint8_t value = 0;
    Octet(value);
    inverted = value == 1;
}

void Lecteur::Reel(float &value) {
    value = ToSingle(LeadingNumber(Suivante()));
}

void Lecteur::TalonExtra(Talon &talon) {
    const auto [kind, height] = Diese();
    if (!height) {
        return;
    }
    Longueur(*height); // before it is cut to its leading number
    talon.OptTalon = ToInt16(LeadingNumber(kind));
    Prend(TexteDuNombre(*height), talon.TalonExtraAfich, talon.TalonExtra);
}

/// A length's text, looked at as it passes.
const std::string &Lecteur::Longueur(const std::string &text) {
    fractions_ = fractions_ || text.find('/') != std::string::npos;
    return text;
}

double Lecteur::Mm(const std::string &text) {
    if (EstRefusee(text, saisie_.Unite)) {
        // A damaged file may be full of them, and each would want its box closed.
        if (refus_dit_) {
            return 0;
        }
        refus_dit_ = true;
    }
    return NombreMm(text, saisie_);
}

void Lecteur::Prend(std::string text, std::string &afich, float &mm) {
    mm = ToSingle(Mm(Longueur(text)));
    afich = std::move(text);
}

void Lecteur::Prend(std::string text, std::string &afich, double &mm) {
    mm = Mm(Longueur(text));
    afich = std::move(text);
}

std::pair<std::string, std::optional<std::string>> Lecteur::Diese() {
    const std::string line = Suivante();
    const std::size_t mark = line.find('#');
    if (mark == std::string::npos) {
        return {line, std::nullopt};
    }
    return {line.substr(0, mark), line.substr(mark + 1)};
}

} // namespace loftwing
