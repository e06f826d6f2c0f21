#include "utilities/nervure.h"

#include "base/number_text.h"
#include "output/text_lines.h"
#include "utilities/tool_texts.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace loftwing {

namespace {

constexpr std::string_view kPictureListe = "# ####.##";

/// Refuses an entry; gives the text box that it stands in.
int Refuse(const std::string &text, int champ, const Saisie &saisie, const std::string &titre) {
    saisie.messages.Tell(text, titre, BoxIcon::warning);
    return champ;
}

/// The step from one rib to the next between two values.
double Pas(float major, float minor, const Nervures &panneau) {
    return Quotient(Wide(major) - Wide(minor), panneau.NbInter + 1.0);
}

void CalculeEcart(Nervures &panneau) {
    // Both end ribs count like those between them.
    panneau.Ecart =
        Quotient(Wide(panneau.LongPanneau) - (panneau.NbInter + 2.0) * Wide(panneau.EprNervure),
                 panneau.NbInter + 1.0);
    if (panneau.EprNervure != 0.0F && panneau.LongPanneau == 0.0F) {
        panneau.Ecart = 0;
    }
}

/// What the list shows of a rib in one column.
std::string Texte(const Nervures &panneau, int numero, const std::string &first, double from,
                  double step, const std::string &last, const std::string &Unite) {
    if (numero == 1) {
        return first + " ";
    }
    if (numero == NombreNervures(panneau)) {
        return last + " ";
    }
    return LongueurSousImage(from - step * (numero - 1), Unite, kPictureListe);
}

std::string TexteLongeron(const Nervures &panneau, int numero, const std::string &Unite) {
    return Texte(panneau, numero, panneau.LongeronMajAfich, Wide(panneau.LongeronMaj),
                 panneau.PasLongeron, panneau.LongeronMinAfich, Unite);
}

void PrintAt(PlotDevice &device, double x, double y, const std::string &text) {
    device.CurrentX = x;
    device.CurrentY = y;
    device.Print(text);
}

} // namespace

std::optional<int> CalculeNervures(Nervures &panneau, const TextesNervure &typed,
                                   const Saisie &saisie, const std::string &titre) {
    const Messages &messages = saisie.messages;
    StockeLongueur(typed[kNervCordeMaj], saisie, panneau.CordeMajAfich, panneau.CordeMaj);
    if (panneau.CordeMaj == 0.0F) {
        return Refuse(messages.Text({"FrmNervure", "14"}) + " 0", kNervCordeMaj, saisie, titre);
    }
    StockeLongueur(typed[kNervCordeMin], saisie, panneau.CordeMinAfich, panneau.CordeMin);
    if (panneau.CordeMin == 0.0F) {
        return Refuse(messages.Text({"FrmNervure", "15"}) + " 0", kNervCordeMin, saisie, titre);
    }
    if (panneau.CordeMaj < panneau.CordeMin) {
        return Refuse(messages.Text({"FrmNervure", "16"}), kNervCordeMaj, saisie, titre);
    }
    if (typed[kNervNbInter].empty()) {
        return Refuse(messages.Text({"FrmNervure", "17"}), kNervNbInter, saisie, titre);
    }
    panneau.NbInter = ToInt16(std::trunc(LeadingNumber(typed[kNervNbInter])));
    StockeLongueur(typed[kNervLongPanneau], saisie, panneau.LongPanneauAfich, panneau.LongPanneau);
    StockeLongueur(typed[kNervLongeronMaj], saisie, panneau.LongeronMajAfich, panneau.LongeronMaj);
    StockeLongueur(typed[kNervLongeronMin], saisie, panneau.LongeronMinAfich, panneau.LongeronMin);
    StockeLongueur(typed[kNervEpr], saisie, panneau.EprNervureAfich, panneau.EprNervure);
    CalculeEcart(panneau);
    panneau.PasCorde = Pas(panneau.CordeMaj, panneau.CordeMin, panneau);
    panneau.PasLongeron = Pas(panneau.LongeronMaj, panneau.LongeronMin, panneau);
    return std::nullopt;
}

bool SansLongeron(const Nervures &panneau) {
    const bool no_text = panneau.LongeronMajAfich.empty() && panneau.LongeronMinAfich.empty();
    return no_text || (panneau.LongeronMaj == 0.0F && panneau.LongeronMin == 0.0F);
}

std::string TexteEcart(const Nervures &panneau, const std::string &Unite) {
    return LongueurSousImage(panneau.Ecart, Unite, kPictureThreeDecimals);
}

int NombreNervures(const Nervures &panneau) {
    return panneau.NbInter + 2;
}

RangNervure RangDe(const Nervures &panneau, int numero, const std::string &Unite) {
    RangNervure rang;
    rang.numero = " " + std::to_string(numero);
    rang.corde = Texte(panneau, numero, panneau.CordeMajAfich, Wide(panneau.CordeMaj),
                       panneau.PasCorde, panneau.CordeMinAfich, Unite);
    if (!SansLongeron(panneau)) {
        rang.longeron = TexteLongeron(panneau, numero, Unite);
    }
    return rang;
}

void TraceRangs(PlotDevice &device, const Nervures &panneau, const std::string &Unite,
                const TrancheNervures &tranche) {
    const double line = LineHeight(device.Font);
    std::vector<RangNervure> rangs;
    for (int numero = tranche.premiere; numero <= tranche.derniere; ++numero) {
        rangs.push_back(RangDe(panneau, numero, Unite));
    }
    double y = tranche.haut;
    for (const RangNervure &rang : rangs) {
        PrintAt(device, kColonneNumero, y, rang.numero);
        PrintAt(device, kColonneCorde, y, rang.corde);
        y += line;
    }
    y = tranche.haut;
    for (const RangNervure &rang : rangs) {
        PrintAt(device, kColonneLongeron, y, rang.longeron);
        y += line;
    }
}

void TraceListe(PlotDevice &device, const Nervures &panneau, const std::string &Unite,
                const PlaceListe &place) {
    const double line = LineHeight(device.Font);
    const double y =
        place.HautListe * kUnitsPerMm + place.DecalListe * kUnitsPerMm * panneau.NbInter / 5.0;
    const double lines_above = std::max(0.0, std::floor(-y / line));
    const double lines_seen = std::max(0.0, std::ceil((place.bas - y) / line));
    const double count = NombreNervures(panneau);
    const int premiere = static_cast<int>(std::min(lines_above, count)) + 1;
    const int derniere = static_cast<int>(std::min(lines_seen, count));
    TraceRangs(device, panneau, Unite, {premiere, derniere, y + (premiere - 1) * line});
}

} // namespace loftwing
