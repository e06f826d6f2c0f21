// The printed sheet of a tapered panel.

#include "base/number_text.h"
#include "output/print_file.h"
#include "output/printer.h"
#include "output/text_lines.h"
#include "platform/busy_pointer.h"
#include "utilities/nervure.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kTailleTexte = 10.0;
constexpr int kHautListe = 110;        // mm
constexpr double kHautEntete = 5670.0; // headings of the list
constexpr double kHautSuite = 20.0;    // mm; the same on further sheets
constexpr double kSousEntete = 10.0;   // mm from the headings to the list
constexpr double kBasFeuille = 270.0;  // mm; fits the shortest paper of the trade, its rim left out
constexpr double kGaucheTexte = 283.5;
constexpr double kMilieuTexte = 2835.0; // under the sketch

/// The sheet while it is drawn.
class Feuille {
  public:
    Feuille(Printer &printer, const Nervures &panneau, const Saisie &saisie)
        : printer_(printer), panneau_(panneau), saisie_(saisie) {}

    void Mesures(const std::string &nom) const;
    void Contour() const;
    void Listes() const;

  private:
    Printer &printer_;
    const Nervures &panneau_;
    const Saisie &saisie_;

    std::string Mot(LngKey key) const { return saisie_.messages.Text(key); }
    void Place(double x, double y) const {
        printer_.CurrentX = x;
        printer_.CurrentY = y;
    }
    void Egalite(const std::string &word, const std::string &value) const {
        PrintLine(printer_, word + " = " + value);
    }
    void Entetes(double y) const;
};

/// The panel, its major chord on the left.
void Feuille::Contour() const {
    printer_.Line(2835.0, 1417.5, 7371.0, 1530.9, PaletteColour(0));
    printer_.LineStep(0, 1134.0, PaletteColour(0));
    printer_.LineStep(-4536.0, 453.6, PaletteColour(0));
    printer_.LineStep(0, -1701.0, PaletteColour(0));
}

void Feuille::Mesures(const std::string &nom) const {
    Place(kGaucheTexte, 1134.0);
    PrintLine(printer_, UpToNextZone(Mot({"FrmNervure", "19"}) + " : ") + nom);
    Contour();
    Place(kGaucheTexte, 2268.0);
    Egalite(Mot({"FrmNervure", "4"}), panneau_.CordeMajAfich);
    // The spacing and the minor chord stand each a line lower than what was printed before.
    printer_.CurrentX = 3402.0;
    if (panneau_.Ecart != 0.0) {
        Egalite(Mot({"FrmNervure", "3"}), DepuisMm(panneau_.Ecart, saisie_.Unite));
    }
    printer_.CurrentX = 7654.5;
    Egalite(Mot({"FrmNervure", "5"}), panneau_.CordeMinAfich);
    Place(kMilieuTexte, 3402.0);
    if (panneau_.LongPanneau != 0.0F) {
        Egalite(Mot({"FrmNervure", "6"}), panneau_.LongPanneauAfich);
    }
    Place(kMilieuTexte, 3969.0);
    printer_.Print(Mot({"FrmNervure", "7"}) + " = " +
                   Format(static_cast<double>(panneau_.NbInter), "# ###0"));
    Place(kMilieuTexte, 4536.0);
    if (panneau_.EprNervure != 0.0F) {
        Egalite(Mot({"FrmNervure", "8"}), panneau_.EprNervureAfich);
    }
    Place(kGaucheTexte, 5103.0);
    printer_.Print(Mot({"FrmNervure", "1"}));
}

void Feuille::Entetes(double y) const {
    Place(kColonneNumero, y);
    printer_.Print("N° ");
    Place(kColonneCorde, y);
    printer_.Print(Mot({"FrmNervure", "10"}));
    if (!SansLongeron(panneau_)) {
        Place(2268.0, y);
        printer_.Print(Mot({"FrmNervure", "11"}));
    }
}

void Feuille::Listes() const {
    const int count = NombreNervures(panneau_);
    double headings = kHautEntete;
    double top = kHautListe * kUnitsPerMm;
    for (int next = 1; next <= count;) {
        const double room = kBasFeuille * kUnitsPerMm - top;
        const int lines = static_cast<int>(std::floor(room / LineHeight(printer_.Font)));
        const int last = std::min(count, next + lines - 1);
        Entetes(headings);
        TraceRangs(printer_, panneau_, saisie_.Unite, {next, last, top});
        next = last + 1;
        if (next <= count) {
            printer_.NewPage();
            headings = kHautSuite * kUnitsPerMm;
            top = headings + kSousEntete * kUnitsPerMm;
        }
    }
}

} // namespace

void TraceFeuille(Printer &printer, const Nervures &panneau, const std::string &nom,
                  const Saisie &saisie) {
    printer.SetOrientation(Orientation::portrait);
    printer.Font.size = kTailleTexte;
    const Feuille sheet(printer, panneau, saisie);
    sheet.Mesures(nom);
    sheet.Listes();
}

void ImprimeNervures(const Nervures &panneau, const Saisie &saisie, const std::string &titre) {
    const Messages &messages = saisie.messages;
    std::unique_ptr<Printer> printer;
    try {
        const auto nom =
            messages.platform.Ask(messages.Text({"FrmNervure", "18"}), titre, "NoName");
        if (!nom || nom->empty()) {
            return;
        }
        PrintQuestion question;
        question.document = *nom;
        question.landscape = false;
        question.proposed_pdf = *nom + ".pdf";
        question.pdf_title = TitreFichierImprime(messages);
        printer = messages.platform.OpenPrinter(question);
        if (!printer) {
            return;
        }
        {
            const Sablier sablier(messages.platform);
            TraceFeuille(*printer, panneau, *nom, saisie);
            printer->EndDoc();
        }
        DitFichierImprime(*printer, messages);
    } catch (const Failure &failure) {
        if (printer) {
            printer->Abort();
        }
        messages.ReportPlot(failure, " cmdprintnerv", titre + " - ");
    }
}

} // namespace loftwing
