/// The two hands that walk the lines of a rib components file: one writes, one reads. Both know the
/// same kinds of line, so that one description of a file serves them.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace loftwing {

/// A text as a line of the file can hold it: blanks for its line ends, which would shift all that
/// follows, and UTF-8, without which the whole file would be read as Windows-1252.
std::string TexteDeLigne(std::string_view text);

/// Writes the lines.
class Redacteur {
  public:
    explicit Redacteur(const std::string &Unite) : Unite_(Unite) {}

    const std::string &Octets() const { return bytes_; }

    void Fixe(std::string_view line) { Ligne(line); }
    void Texte(const std::string &line) { Ligne(line); }
    void Place(const std::string &line) { Ligne(line); }
    void Reserve(const std::string &line) { Ligne(line); }
    /// A length: its text as typed.
    template <class Number>
    void Affichage(const std::string &afich, Number /*mm*/) {
        Ligne(afich);
    }
    /// A length whose text may have been refused: what is in force.
    void EnVigueur(const std::string &afich, float mm) { Ligne(TexteEnVigueur(afich, mm, Unite_)); }
    void Marge(const std::string &afich, double /*mm*/) { Ligne(afich); }
    void Nom(const std::string &NomProfil, const std::string &ExtProfil);
    void Octet(std::uint8_t value);
    /// A byte between blanks, as a print statement of the trade's old tools sets it.
    void Imprime(std::uint8_t value);
    void Inverse(bool inverted) { Imprime(inverted ? 1 : 0); }
    void Reel(float value);
    void TalonExtra(const Talon &talon);

  private:
    const std::string &Unite_;
    std::string bytes_;

    void Ligne(std::string_view line);
};

/// Reads the lines. Each routine takes the next one; failure 62 when there is none.
class Lecteur {
  public:
    Lecteur(const std::vector<std::string> &lines, const Saisie &saisie)
        : lines_(lines), saisie_(saisie) {}

    bool Fini() const { return next_ >= lines_.size(); }
    /// The next line, not yet taken.
    const std::string &Devant() const;
    const std::string &Suivante();
    /// The airfoil file's name as the file has it.
    const std::string &NomComplet() const { return nom_; }
    /// Whether a length so far was written as a fraction.
    bool Fractions() const { return fractions_; }

    /// A heading, which is not looked at.
    void Fixe(std::string_view /*line*/) { Suivante(); }
    void Texte(std::string &line) { line = Suivante(); }
    /// A place along the chord keeps its text alone.
    void Place(std::string &line) { line = Longueur(Suivante()); }
    /// Of a spare line only the number at its start survives.
    void Reserve(std::string &line);
    template <class Number>
    void Affichage(std::string &afich, Number &mm) {
        Prend(Suivante(), afich, mm);
    }
    void EnVigueur(std::string &afich, float &mm) { Affichage(afich, mm); }
    /// A heel margin keeps its text and no number: that is derived where the heel is set.
    void Marge(std::string &afich, double &mm);
    void Nom(const std::string &NomProfil, std::string &ExtProfil);
    void Octet(std::uint8_t &value);
    void Imprime(std::uint8_t &value) { Octet(value); }
    void Inverse(bool &inverted);
    void Reel(float &value);
    void TalonExtra(Talon &talon);

    /// Takes a length's text and derives its number.
    void Prend(std::string text, std::string &afich, float &mm);
    void Prend(std::string text, std::string &afich, double &mm);
    /// The next line in front of and behind its "#"; no second part without one.
    std::pair<std::string, std::optional<std::string>> Diese();

  private:
    const std::vector<std::string> &lines_;
    const Saisie &saisie_;
    std::size_t next_ = 0;
    std::string nom_;
    bool fractions_ = false;
    bool refus_dit_ = false; ///< a box told of a length that is none

    const std::string &Longueur(const std::string &text);
    double Mm(const std::string &text);
};

} // namespace loftwing
