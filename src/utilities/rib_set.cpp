#include "utilities/rib_set.h"

#include "base/file_name.h"
#include "base/text_encoding.h"
#include "utilities/tool_files.h"

#include <cmath>

namespace loftwing {

namespace {

/// Closer than this a station takes a point's own height.
constexpr double kMemeX = 1e-6;

ProfilJeu Prend(const ProfilChoisi &chosen) {
    ProfilJeu profil{chosen.NomProfil, {}, {}, chosen.NbPoints, 1};
    double XMinBA = 1.0;
    for (long i = 1; i <= chosen.NbPoints; ++i) {
        const double x = chosen.ProfilX(i);
        profil.ProfilX.Append(x);
        profil.ProfilY.Append(chosen.ProfilY(i));
        if (XMinBA > x) {
            ++profil.IdxBA;
            XMinBA = x;
        }
    }
    return profil;
}

/// Height at x between the points a and b. The second isn't looked at when the first is close.
double Entre(const PointList &xs, const PointList &ys, long a, long b, double x) {
    const double xa = xs(a);
    if (std::abs(x - xa) < kMemeX) {
        return ys(a);
    }
    const double xb = xs(b);
    if (std::abs(x - xb) < kMemeX) {
        return ys(b);
    }
    return Quotient(ys(b) - ys(a), std::abs(xb - xa)) * std::abs(x - xa) + ys(a);
}

/// The heights of `other` at the stations of `fine`.
PointList Hauteurs(const ProfilJeu &fine, const ProfilJeu &other, long bound) {
    PointList heights;
    double x = 0;
    try {
        for (long i = 1; i <= fine.IdxBA; ++i) {
            x = fine.ProfilX(i);
            heights.Append(InterpExtra(bound, other.ProfilX, other.ProfilY, x));
        }
        for (long i = fine.IdxBA + 1; i <= fine.NbPoint; ++i) {
            x = fine.ProfilX(i);
            heights.Append(
                InterpIntra(other.IdxBA, other.NbPoint, other.ProfilX, other.ProfilY, x));
        }
    } catch (Failure &failure) {
        failure.Precise("x = " + NumberText(x));
        throw;
    }
    return heights;
}

CourbesJeu SurStationsCommunes(const ProfilJeu &major, const ProfilJeu &minor) {
    if (major.NbPoint >= minor.NbPoint) {
        return {major.NbPoint, major.ProfilX, major.ProfilY, major.ProfilX,
                Hauteurs(major, minor, minor.IdxBA)};
    }
    return {minor.NbPoint, minor.ProfilX, Hauteurs(minor, major, minor.IdxBA), minor.ProfilX,
            minor.ProfilY};
}

constexpr std::string_view kPicturePoint = "0.0000000";

/// A station and its height, as a line of a rib file.
std::string LignePoint(const std::string &x, const char *gap, double y) {
    return x + gap + Format(y, kPicturePoint);
}

bool EnPouces(const JeuDeNervures &jeu) {
    return jeu.Unite == kUniteIn;
}

int Nombre(const JeuDeNervures &jeu) {
    return static_cast<int>(jeu.nervures.size());
}

const NervureJeu &Nervure(const JeuDeNervures &jeu, int number) {
    return At(jeu.nervures, number - 1);
}

std::string Titre(const JeuDeNervures &jeu, int number, const Messages &messages) {
    return MotNervure(messages) + " " + std::to_string(number) + " " + MotCorde(messages) + " : " +
           Nervure(jeu, number).corde + (EnPouces(jeu) ? " in" : "");
}

/// The y of a rib at station k: of the root, of the tip, or blended between them.
double Ordonnee(const JeuDeNervures &jeu, int number, long k) {
    const CourbesJeu &courbes = jeu.courbes;
    if (number == 1) {
        return courbes.MajeurY(k);
    }
    if (number == Nombre(jeu)) {
        return courbes.MineurY(k);
    }
    const double major = courbes.MajeurY(k);
    return major - (major - courbes.MineurY(k)) * Nervure(jeu, number).rapport;
}

std::string TexteNervure(const JeuDeNervures &jeu, int number, const std::vector<std::string> &xs,
                         const Messages &messages) {
    const bool between = number > 1 && number < Nombre(jeu);
    const char *gap = between ? "   " : "  ";
    std::vector<std::string> lignes = {Titre(jeu, number, messages)};
    for (long k = 1; k <= jeu.courbes.n; ++k) {
        lignes.push_back(LignePoint(At(xs, k - 1), gap, Ordonnee(jeu, number, k)));
    }
    return TexteDeLignes(lignes);
}

/// The words of a rib's number in the summary: two digits at least.
std::string Numero(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string Noms(const JeuDeNervures &jeu) {
    return jeu.NomProfil1 + "&" + jeu.NomProfil2;
}

} // namespace

ProfilJeu ProfilMajeur(const ProfilChoisi &chosen) {
    ProfilJeu profil = Prend(chosen);
    profil.ProfilX.Append(0);
    profil.ProfilY.Append(0);
    return profil;
}

ProfilJeu ProfilMineur(const ProfilChoisi &chosen) {
    return Prend(chosen);
}

double InterpExtra(long bound, const PointList &xs, const PointList &ys, double x) {
    long a = 0;
    long b = 0;
    for (long j = 1; j <= bound; ++j) {
        if (x == 1.0 && j == 1) {
            return ys(1);
        }
        if (xs(j) <= x) {
            break;
        }
        a = j;
        b = j + 1;
    }
    return Entre(xs, ys, a, b, x);
}

double InterpIntra(long IdxBA, long Nb, const PointList &xs, const PointList &ys, double x) {
    long a = 0;
    long b = 0;
    for (long j = IdxBA + 1; j <= Nb; ++j) {
        if (j == Nb && x == 1.0) {
            return ys(Nb);
        }
        if (xs(j) >= x) {
            a = j - 1;
            b = j;
            break;
        }
        a = j;
        b = j + 1;
    }
    return Entre(xs, ys, a, b, x);
}

CourbesJeu CalculProfils(const ProfilJeu &major, const ProfilJeu &minor) {
    try {
        return SurStationsCommunes(major, minor);
    } catch (Failure &failure) {
        failure.detail += ", " + major.NomProfil + ", " + minor.NomProfil;
        throw;
    }
}

std::string NomNervure(const JeuDeNervures &jeu, int number, const Messages &messages) {
    return AsFileName(Noms(jeu) + FirstCharacters(MotNervure(messages), 1) + Numero(number) +
                      (EnPouces(jeu) ? "in.dat" : ".dat"));
}

std::string NomResume(const JeuDeNervures &jeu) {
    return AsFileName(Noms(jeu) + "_" + NumberText(jeu.CordeMax) + "_" + NumberText(jeu.CordeMin) +
                      "_" + std::to_string(Nombre(jeu)) + ".txt");
}

std::vector<std::string> TextesNervures(const JeuDeNervures &jeu, const Messages &messages) {
    std::vector<std::string> xs;
    for (long k = 1; k <= jeu.courbes.n; ++k) {
        xs.push_back(Format(jeu.courbes.MajeurX(k), kPicturePoint));
    }
    std::vector<std::string> texts;
    for (int number = 1; number <= Nombre(jeu); ++number) {
        texts.push_back(TexteNervure(jeu, number, xs, messages));
    }
    return texts;
}

std::vector<std::string> SaveProfil(const JeuDeNervures &jeu, const Messages &messages,
                                    const Avance &avance) {
    const std::vector<std::string> texts = TextesNervures(jeu, messages);
    std::vector<std::string> paths;
    for (int number = 1; number <= Nombre(jeu); ++number) {
        const std::string path = jeu.dossier + NomNervure(jeu, number, messages);
        EcritFichier(path, At(texts, number - 1));
        paths.push_back(path);
        if (avance) {
            avance(number, Nombre(jeu));
        }
    }
    return paths;
}

std::string EcritResume(const JeuDeNervures &jeu) {
    std::string path = jeu.dossier + NomResume(jeu);
    EcritFichier(path, TexteDeLignes(jeu.resume));
    return path;
}

JeuDeNervures JeuVide(const std::array<std::string, 2> &afich, const std::array<float, 2> &cordes,
                      const std::array<ProfilJeu, 2> &profils, const std::string &dossier,
                      const std::string &Unite) {
    JeuDeNervures jeu;
    jeu.dossier = dossier;
    jeu.Unite = Unite;
    jeu.NomProfil1 = profils[0].NomProfil;
    jeu.NomProfil2 = profils[1].NomProfil;
    jeu.CordeMax = cordes[0];
    jeu.CordeMin = cordes[1];
    jeu.courbes = CalculProfils(profils[0], profils[1]);
    for (const std::size_t end : {0U, 1U}) {
        // In inches the user finds the fraction that was typed.
        const bool inches = Unite == kUniteIn;
        jeu.nervures.push_back(
            {inches ? afich[end] : CordeNervure(cordes[end], Unite), static_cast<double>(end)});
    }
    return jeu;
}

std::string TitreResume(const std::string &Unite, const std::string &mot, int count,
                        const Messages &messages) {
    return messages.Text({"FrmRibevol", "21"}) + " " + messages.Text({"FrmRibevol", "22"}) + " : " +
           Unite + " - " + mot + " : " + std::to_string(count);
}

std::string LigneResume(const JeuDeNervures &jeu, int number, const Messages &messages) {
    const bool end = number == 1 || number == Nombre(jeu);
    return MotNervure(messages) + " #" + Numero(number) + " " + MotCorde(messages) +
           (EnPouces(jeu) && end ? " :  " : " : ") + Nervure(jeu, number).corde;
}

std::string ResultatComplet(const JeuDeNervures &jeu, const std::string &avant_resume,
                            const Messages &messages) {
    std::string text = messages.Text({"FrmRibevol", "21"}) + " " +
                       messages.Text({"FrmRibevol", "22"}) + "\n\r" +
                       messages.Text({"FrmConfig", "3"}) + " : " + jeu.dossier + "\n\r\r";
    for (int number = 1; number <= Nombre(jeu); ++number) {
        text += NomNervure(jeu, number, messages) + " " + MotNervure(messages) + " " +
                std::to_string(number) + " " + MotCorde(messages) + " : " +
                Nervure(jeu, number).corde + "\n\r";
    }
    return text + "\n\n" + messages.Text({"FrmRibevol", "23"}) + avant_resume + NomResume(jeu);
}

std::string ResultatCourt(const JeuDeNervures &jeu, const Messages &messages) {
    return messages.Text({"FrmRibevol", "21"}) + " " + std::to_string(Nombre(jeu)) + " " +
           messages.Text({"FrmRibevol", "22"}) + "\n\n" + messages.Text({"FrmRibevol", "23"}) +
           " " + Noms(jeu) + ".txt";
}

bool SansValeur(const std::string &typed) {
    return typed.empty() || typed == "0";
}

std::optional<RefusJeu> PrendCorde(const std::string &typed, const Saisie &saisie,
                                   const RegleCorde &regle, std::string &afich, float &corde) {
    const Messages &messages = saisie.messages;
    if (SansValeur(typed)) {
        return RefusJeu{messages.Text(regle.manque), BoxIcon::information, regle.champ};
    }
    StockeLongueur(typed, saisie, afich, corde);
    if (corde <= regle.limite) {
        return std::nullopt;
    }
    const bool inches = saisie.Unite == kUniteIn;
    return RefusJeu{messages.Text(regle.trop) + (inches ? " 78 1/3 inches !" : " 1999 mm !"),
                    BoxIcon::warning, regle.champ};
}

} // namespace loftwing
