// Pieces for a cutter as SVG.

#include "output/cut_forms.h"

#include "output/piece_place.h"
#include "output/rib_measures.h"
#include "output/svg_text.h"
#include "output/written_ring.h"

#include <string_view>

namespace loftwing {

namespace {

constexpr int kDecimales = 6; // what a piece counts to, so that nothing is rounded

std::string Nombre(double mm) {
    return SvgNumber(mm, kDecimales);
}

PointEcrit Ecrit(const PointMm &point) {
    return {Nombre(point.x), Nombre(-point.y)};
}

std::string Place(const PointEcrit &point) {
    return point.x + " " + point.y;
}

void AjoutePlace(std::string &donnees, const PointEcrit &point) {
    donnees += point.x;
    donnees += ' ';
    donnees += point.y;
}

std::string Trait(Colour couleur) {
    return SvgAttribute("fill", "none") + SvgAttribute("stroke", SvgColour(couleur)) +
           SvgAttribute("stroke-width", Nombre(kTraitDeCoupe));
}

/// The data of one path, subpath by subpath.
class Chemin {
  public:
    void Prend(const Anneau &anneau) {
        const std::vector<PointEcrit> points = AnneauEcrit(anneau, Ecrit);
        for (std::size_t i = 0; i < points.size(); ++i) {
            Commande(i == 0 ? "M " : "L ");
            AjoutePlace(donnees_, points[i]);
        }
        if (!points.empty()) {
            Commande("Z");
        }
    }
    void Prend(const CerclePiece &cercle) {
        const std::string rayon = Nombre(cercle.rayon);
        if (rayon == "0") {
            return;
        }
        const PointMm &centre = cercle.centre;
        const std::string gauche = Place(Ecrit({centre.x - cercle.rayon, centre.y}));
        const std::string droite = Place(Ecrit({centre.x + cercle.rayon, centre.y}));
        const std::string demi = rayon + " " + rayon + " 0 1 0 ";
        Commande("M ");
        donnees_ += gauche;
        Commande("A ");
        donnees_ += demi + droite;
        Commande("A ");
        donnees_ += demi + gauche;
        Commande("Z");
    }
    const std::string &Donnees() const { return donnees_; }

  private:
    std::string donnees_;

    void Commande(std::string_view commande) {
        if (!donnees_.empty()) {
            donnees_ += ' ';
        }
        donnees_ += commande;
    }
};

std::string CheminDe(const Piece &piece) {
    Chemin chemin;
    for (const PartiePiece &partie : piece.parties) {
        for (const CerclePiece &cercle : partie.cercles) {
            chemin.Prend(cercle);
        }
        for (const Anneau &anneau : partie.dedans) {
            chemin.Prend(anneau);
        }
    }
    for (const PartiePiece &partie : piece.parties) {
        chemin.Prend(partie.dehors);
    }
    return chemin.Donnees();
}

std::string Coupe(const DessinDecoupe &decoupe, Colour couleur) {
    std::string groupe;
    for (const Piece &piece : decoupe.pieces) {
        groupe += "<path" + SvgAttribute("fill-rule", "evenodd") +
                  SvgAttribute("d", CheminDe(piece)) + Trait(couleur) + "/>\n";
    }
    return groupe;
}

std::string Marque(const TraitMarque &trait, Colour couleur) {
    std::string donnees;
    for (const PointMm &point : trait.points) {
        donnees += donnees.empty() ? "M " : " L ";
        AjoutePlace(donnees, Ecrit(point));
    }
    return "<path" + SvgAttribute("d", donnees) + Trait(couleur) + "/>\n";
}

std::string Marque(const TexteMarque &texte, Colour couleur) {
    const PointEcrit place = Ecrit(texte.place);
    return SvgTexte({place.x, place.y, Nombre(texte.hauteur / kCapitales), couleur, texte.texte});
}

std::string Marques(const DessinDecoupe &decoupe, const CouleursDecoupe &couleurs) {
    std::string groupe;
    for (const Piece &piece : decoupe.pieces) {
        for (const TraitMarque &trait : piece.traits) {
            groupe += Marque(trait, couleurs.De(trait.genre));
        }
        for (const TexteMarque &texte : piece.textes) {
            groupe += Marque(texte, couleurs.De(texte.genre));
        }
    }
    return groupe;
}

/// A sheet's y counts down from its upper edge, so that its page begins at 0,0.
DessinDecoupe SurSaPlanche(DessinDecoupe decoupe) {
    for (Piece &piece : decoupe.pieces) {
        piece = Deplacee(std::move(piece), {0, -decoupe.planche->y});
    }
    return decoupe;
}

/// What the page shows, whose lines are already where they are to be written.
std::string Groupes(const DessinDecoupe &decoupe, const CouleursDecoupe &couleurs) {
    return SvgGroupe("marks", Marques(decoupe, couleurs)) +
           SvgGroupe("cut", Coupe(decoupe, couleurs.coupe));
}

} // namespace

std::string EcritDecoupeSvg(const DessinDecoupe &decoupe, const CouleursDecoupe &couleurs) {
    const BoitePiece page = PageDe(decoupe);
    const std::string largeur = Nombre(page.haut_droite.x - page.bas_gauche.x);
    const std::string hauteur = Nombre(page.haut_droite.y - page.bas_gauche.y);
    const PointEcrit coin =
        decoupe.planche ? PointEcrit{"0", "0"} : Ecrit({page.bas_gauche.x, page.haut_droite.y});
    const std::string groupes =
        decoupe.planche ? Groupes(SurSaPlanche(decoupe), couleurs) : Groupes(decoupe, couleurs);
    return SvgFichier({Place(coin), largeur, hauteur, decoupe.titre}, groupes);
}

} // namespace loftwing
