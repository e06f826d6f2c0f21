#include "utilities/panneau.h"

#include "base/number_text.h"
#include "core/airfoil_picker.h"
#include "core/stations.h"

#include <algorithm>
#include <charconv>

namespace loftwing {

namespace {

struct NomGenre {
    GenreElement genre;
    std::string_view nom;
    bool numerote;
};

constexpr std::array<NomGenre, 6> kNoms = {{{GenreElement::longeron, "spar", true},
                                            {GenreElement::trou, "hole", true},
                                            {GenreElement::gabarit, "heel", false},
                                            {GenreElement::ba, "le", false},
                                            {GenreElement::bf, "te", false},
                                            {GenreElement::carre, "notch", false}}};

bool Place(const std::string &afich, const PartiesRib &bout, const Saisie &saisie) {
    return ValeurPourcent(afich.empty() ? "0" : afich, bout.corde, saisie) != 0;
}

ProfilChoisi ProfilDuBout(const PartiesRib &bout) {
    ProfilChoisi chosen;
    static_cast<PointsLus &>(chosen) = bout;
    chosen.NomProfil = bout.NomProfil;
    return chosen;
}

/// Values of both ends that must agree.
class Accords {
  public:
    Accords(const Panneau &panneau, const Saisie &saisie)
        : root_(panneau.bouts[0]), tip_(panneau.bouts[1]), messages_(saisie.messages) {}

    std::vector<AvisPanneau> refus;

    template <class Value>
    void Doit(const std::string &nom, const Value &root, const Value &tip) {
        if (root != tip) {
            refus.push_back({nom + ": " + NumberText(static_cast<double>(root)) + " " +
                             messages_.Text({"Panel", "1"}) + " " +
                             NumberText(static_cast<double>(tip)) + " " +
                             messages_.Text({"Panel", "2"})});
        }
    }

    void Ensemble() {
        Doit(messages_.Text({"Panel", "3"}), root_.TypeBA, tip_.TypeBA);
        Doit(messages_.Text({"Panel", "4"}), root_.TypeGabarit, tip_.TypeGabarit);
        Doit(messages_.Text({"Panel", "5"}), root_.talon.OptTalon, tip_.talon.OptTalon);
        Doit(messages_.Text({"Panel", "6"}), root_.bloc.Optquebf, tip_.bloc.Optquebf);
        Doit(messages_.Text({"Panel", "7"}), root_.NbRep, tip_.NbRep);
        Doit(messages_.Text({"Panel", "8"}), root_.AffHaut, tip_.AffHaut);
    }

    void Longerons(int slot) {
        const Longeron &a = At(root_.longeron, slot);
        const Longeron &b = At(tip_.longeron, slot);
        const std::string nom =
            messages_.Text({"Panel", "9"}) + " " + std::to_string(slot + 1) + ", ";
        Doit(nom + messages_.Text({"Panel", "10"}), a.TypeLong, b.TypeLong);
        Doit(nom + messages_.Text({"Panel", "11"}), a.OptLongExt, b.OptLongExt);
        Doit(nom + messages_.Text({"Panel", "12"}), a.OptLongInt, b.OptLongInt);
        Doit(nom + messages_.Text({"Panel", "13"}), a.RefLong, b.RefLong);
    }

    void Trous(int slot) {
        const Trou &a = At(root_.trou, slot);
        const Trou &b = At(tip_.trou, slot);
        const std::string nom =
            messages_.Text({"Panel", "14"}) + " " + std::to_string(slot + 1) + ", ";
        Doit(nom + messages_.Text({"Panel", "10"}), a.TypeTrou, b.TypeTrou);
        Doit(nom + messages_.Text({"Panel", "15"}), a.ChkCentre, b.ChkCentre);
        Doit(nom + messages_.Text({"Panel", "13"}), a.RefTrou, b.RefTrou);
    }

  private:
    const PartiesRib &root_;
    const PartiesRib &tip_;
    const Messages &messages_;
};

/// An element that stands at one end only, or whose range can't be.
std::string FautePortee(const Panneau &panneau, const ElementPanneau &element, int nombre,
                        bool des_deux, const Messages &messages) {
    const auto range = panneau.portees.find(element);
    if (range == panneau.portees.end()) {
        return des_deux ? "" : messages.Text({"Panel", "16"});
    }
    return range->second.Dans(nombre)
               ? ""
               : messages.Text({"Panel", "17"}) + " " + std::to_string(nombre) + ".";
}

} // namespace

std::string NomElement(const ElementPanneau &element) {
    const auto *name = std::find_if(kNoms.begin(), kNoms.end(), [&](const NomGenre &each) {
        return each.genre == element.genre;
    });
    return std::string(name->nom) + (name->numerote ? std::to_string(element.numero) : "");
}

std::optional<ElementPanneau> ElementNomme(const std::string &nom) {
    for (const NomGenre &each : kNoms) {
        if (!nom.starts_with(each.nom)) {
            continue;
        }
        const std::string rest = nom.substr(each.nom.size());
        if (!each.numerote) {
            return rest.empty() ? std::optional<ElementPanneau>({each.genre, 0}) : std::nullopt;
        }
        int number = 0;
        const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
        if (error == std::errc() && end == rest.data() + rest.size() && number >= 1 &&
            number <= kSlots) {
            return ElementPanneau{each.genre, number};
        }
    }
    return std::nullopt;
}

bool Present(const PartiesRib &bout, const ElementPanneau &element, const Saisie &saisie) {
    const int slot = element.numero - 1;
    switch (element.genre) {
    case GenreElement::longeron: {
        const Longeron &spar = At(bout.longeron, slot);
        return slot <= bout.NbLongeron && spar.LargLong > 0.0F &&
               Place(spar.PosLongAfich, bout, saisie);
    }
    case GenreElement::trou: {
        const Trou &hole = At(bout.trou, slot);
        return slot <= bout.NbTrou && hole.DiaTrou > 0.0F && Place(hole.PosTrouAfich, bout, saisie);
    }
    case GenreElement::gabarit:
        return bout.TypeGabarit != kSansGabarit;
    case GenreElement::ba:
        return bout.TypeBA == 1 && bout.EpBA > 0.0F;
    case GenreElement::bf:
        return bout.EpBF > 0.0F;
    case GenreElement::carre:
        return bout.TypeBA != 1 && bout.carre.CarreBA > 0.0F;
    }
    return false;
}

std::vector<ElementPanneau> Elements(const Panneau &panneau, const Saisie &saisie) {
    std::vector<ElementPanneau> found;
    const auto take = [&](const ElementPanneau &element) {
        if (Present(panneau.bouts[0], element, saisie) ||
            Present(panneau.bouts[1], element, saisie)) {
            found.push_back(element);
        }
    };
    for (const NomGenre &each : kNoms) {
        for (int number = 1; number <= (each.numerote ? kSlots : 1); ++number) {
            take({each.genre, each.numerote ? number : 0});
        }
    }
    return found;
}

bool DansSaPortee(const Panneau &panneau, const ElementPanneau &element, int numero) {
    const auto range = panneau.portees.find(element);
    return range == panneau.portees.end() || range->second.Contient(numero);
}

std::optional<int> SlotDe(const Panneau &panneau, const std::vector<ElementPanneau> &elements,
                          const ElementPanneau &element, int numero) {
    int slot = 0;
    for (const ElementPanneau &each : elements) {
        if (each.genre != element.genre || !DansSaPortee(panneau, each, numero)) {
            continue;
        }
        if (each == element) {
            return slot;
        }
        ++slot;
    }
    return std::nullopt;
}

std::vector<AvisPanneau> Desaccords(const Panneau &panneau, int nombre, const Saisie &saisie) {
    Accords accords(panneau, saisie);
    accords.Ensemble();
    const std::vector<ElementPanneau> elements = Elements(panneau, saisie);
    for (const ElementPanneau &element : elements) {
        const bool numbered = element.numero > 0;
        const bool both = Present(panneau.bouts[0], element, saisie) &&
                          Present(panneau.bouts[1], element, saisie);
        if (both && element.genre == GenreElement::longeron) {
            accords.Longerons(element.numero - 1);
        } else if (both && element.genre == GenreElement::trou) {
            accords.Trous(element.numero - 1);
        }
        // A stock that ends in nothing tapers to it.
        const std::string fault =
            FautePortee(panneau, element, nombre, both || !numbered, saisie.messages);
        if (!fault.empty()) {
            accords.refus.push_back({fault, 0, element});
        }
    }
    for (const auto &[element, range] : panneau.portees) {
        if (std::find(elements.begin(), elements.end(), element) == elements.end()) {
            accords.refus.push_back({saisie.messages.Text({"Panel", "18"}), 0, element});
        }
    }
    return accords.refus;
}

std::vector<AvisPanneau> AvisDesBouts(const Panneau &panneau, const Messages &messages) {
    const PartiesRib &root = panneau.bouts[0];
    const PartiesRib &tip = panneau.bouts[1];
    if (root.EpCoffrage == tip.EpCoffrage) {
        return {};
    }
    return {{messages.Text({"Panel", "19"}) + " " + root.EpCoffrageAfich + " " +
             messages.Text({"Panel", "1"}) + " " + tip.EpCoffrageAfich + " " +
             messages.Text({"Panel", "2"}) + ": " + messages.Text({"Panel", "20"})}};
}

double EcartRegulier(double longueur, int inter, double epaisseur) {
    return (longueur - (inter + 2) * epaisseur) / (inter + 1);
}

std::array<ProfilJeu, 2> ProfilsDesBouts(const Panneau &panneau) {
    return {ProfilMajeur(ProfilDuBout(panneau.bouts[0])),
            ProfilMineur(ProfilDuBout(panneau.bouts[1]))};
}

std::array<std::string, 2> CordesDesBouts(const Panneau &panneau, const std::string &Unite) {
    std::array<std::string, 2> chords;
    for (const std::size_t end : {0U, 1U}) {
        const PartiesRib &bout = panneau.bouts[end];
        chords[end] = Trim(TexteEnVigueur(bout.cordeAfich, bout.corde, Unite));
    }
    return chords;
}

} // namespace loftwing
