#include "output/drawing_stack.h"

#include "base/number_text.h"
#include "output/kept_sheets.h"
#include "output/page_entry.h"
#include "output/piece.h"
#include "output/print_file.h"
#include "output/stack_sheets.h"
#include "output/stack_tiled.h"
#include "platform/busy_pointer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace loftwing {

namespace {

constexpr double kSansFin = 1E9; // mm
constexpr double kBruit = 1E-6;

TailleDessin TailleDe(const Etendue &place) {
    return {place.droite - place.gauche, place.bas - place.haut};
}

SheetSize TailleDuPapier(const Papier &papier) {
    return {papier.tailleFeuille, papier.largeur};
}

/// Takes paper of these measures, whatever is in the list.
void PrendPapier(MiseEnPage &page, double longueur, double largeur) {
    page.papiers.push_back({{}, longueur, largeur});
    page.NumIndex = ToByte(NombrePapiers(page) - 1);
}

} // namespace

Pile::Pile(DemandePile demande) : demande_(std::move(demande)), settings_(demande_.settings) {
    settings_.page.temoin = true;
    if (settings_.page.NumIndex == kPapierImprimante) {
        settings_.page.NumIndex = 0;
    }
}

Pile::~Pile() = default;

std::string Pile::Etiquette(const NervureEmpilee &nervure) const {
    return nervure.etiquette.empty() ? EtiquetteDuRib(nervure.rib, settings_.Unite)
                                     : nervure.etiquette;
}

std::vector<TailleDessin> Pile::Tailles() const {
    std::vector<TailleDessin> sizes;
    sizes.reserve(dessins_.size());
    for (const auto &dessin : dessins_) {
        sizes.push_back(dessin->Taille());
    }
    return sizes;
}

/// The number of a sheet isn't in it, so that its place can be sought before there is one.
NoteTemoin Pile::Note() const {
    return {demande_.messages.Text({"FrmPrint", "270"}), demande_.nom, demande_.date,
            settings_.Unite};
}

void Pile::Enregistre() {
    const Sablier sablier(demande_.messages.platform);
    dessins_.clear();
    dessins_.reserve(demande_.nervures.size());
    for (const NervureEmpilee &nervure : demande_.nervures) {
        ReprendLongueur(nervure.rib); // of a template, which a rib from a file has none of yet
        dessins_.push_back(
            EnregistreDessin(nervure.rib, settings_, demande_.messages, Etiquette(nervure)));
    }
}

std::vector<Etendue> Pile::Encres(const FeuilleEmpilee &feuille, const MiseEnPage &page) const {
    const Etendue room = PlaceDesDessins(page);
    std::vector<Etendue> inks;
    for (const PlaceDessin &place : feuille) {
        const DessinEmpile &dessin = *dessins_[place.dessin];
        const double dx = room.gauche + place.x - dessin.boite.gauche;
        const double dy = room.haut + place.y - dessin.boite.haut;
        for (const Etendue &ink : dessin.encres) {
            inks.push_back({ink.gauche + dx, ink.haut + dy, ink.droite + dx, ink.bas + dy});
        }
    }
    return inks;
}

/// A sheet isn't so full that its check line has no room, but where no sheet has.
Empilage Pile::EmpileSur(const MiseEnPage &page) const {
    const FeuilleTemoin sheet = FeuilleDePile(page, TailleDuPapier(PapierDe(page)));
    const NoteTemoin note = Note();
    const bool possible = PlaceLibre(sheet, note, {}).has_value();
    return Empile(Tailles(), TailleDe(PlaceDesDessins(page)), [&](const FeuilleEmpilee &each) {
        return !possible || PlaceLibre(sheet, note, Encres(each, page)).has_value();
    });
}

bool Pile::ChoisitPageEntiere() {
    MiseEnPage &page = settings_.page;
    const double before = Wide(page.MargeHaut);
    const double behind = Wide(page.MargeBas);
    const double across = std::min(before, behind);
    const std::vector<TailleDessin> sizes = Tailles();
    double longest = LongueurPourTemoin(before, behind, settings_.Unite) - before - behind;
    for (const TailleDessin &size : sizes) {
        longest = std::max(longest, size.longueur);
    }
    empilage_ = Empile(sizes, {longest, kSansFin}, [](const FeuilleEmpilee &) { return true; });
    double height = HauteurPourTemoin(across, settings_.Unite) + 2 * across;
    for (const FeuilleEmpilee &feuille : empilage_.feuilles) {
        height += HauteurPrise(feuille, sizes);
    }
    page.entiere.longueur = std::ceil(longest + before + behind - kBruit);
    page.entiere.largeur = std::ceil(height - kBruit);
    if (std::max(page.entiere.longueur, page.entiere.largeur) > kPapierMaxi) {
        RefusePageTropGrande(page.entiere, demande_.messages);
        return false;
    }
    PrendPapier(page, page.entiere.longueur, page.entiere.largeur);
    return true;
}

bool Pile::ChoisitPage() {
    if (settings_.page.NumIndex == kPapierEntier) {
        return ChoisitPageEntiere();
    }
    empilage_ = EmpileSur(settings_.page);
    const Papier paper = PapierDe(settings_.page);
    MiseEnPage turned = settings_.page;
    PrendPapier(turned, paper.largeur, paper.tailleFeuille);
    const Empilage other = EmpileSur(turned);
    const bool saves = other.feuilles.size() < empilage_.feuilles.size();
    if (other.hors.empty() && (saves || !empilage_.hors.empty())) {
        settings_.page = turned;
        empilage_ = other;
    }
    return true;
}

std::optional<FinImpression> Pile::PrepareTuilees() {
    tuilees_.clear();
    for (const std::size_t i : empilage_.hors) {
        tuilees_.push_back(
            std::make_unique<NervureTuilee>(demande_, settings_, demande_.nervures[i].rib));
        if (const auto end = tuilees_.back()->Prepare()) {
            return end;
        }
    }
    return std::nullopt;
}

std::optional<FinImpression> Pile::Prepare() {
    try {
        Enregistre();
    } catch (const Failure &failure) {
        demande_.messages.ReportPlot(failure, " Main/PrintSubroutine");
        return FinImpression::trace_echec;
    }
    try {
        return ChoisitPage() ? PrepareTuilees() : std::optional(FinImpression::annule);
    } catch (const Failure &failure) {
        demande_.messages.ReportPlot(failure, "");
        return FinImpression::annule;
    }
}

PrintQuestion Pile::Question() const {
    const Papier paper = PapierDe(settings_.page);
    PrintQuestion question;
    question.landscape = paper.tailleFeuille >= paper.largeur;
    question.document = demande_.nom;
    question.long_side_mm = std::max(paper.tailleFeuille, paper.largeur);
    question.short_side_mm = std::min(paper.tailleFeuille, paper.largeur);
    question.proposed_pdf = demande_.nom + ".pdf";
    question.pdf_title = TitreFichierImprime(demande_.messages);
    question.stretch = {settings_.correction.x, settings_.correction.y};
    return question;
}

bool Pile::TraceEmpiles(KeptSheets &sheets, const FeuilleTemoin &sheet) const {
    const Etendue room = PlaceDesDessins(settings_.page);
    bool all_marked = true;
    for (const FeuilleEmpilee &feuille : empilage_.feuilles) {
        sheets.NewPage();
        for (const PlaceDessin &place : feuille) {
            const DessinEmpile &dessin = *dessins_[place.dessin];
            Redraw(dessin.trace, sheets,
                   (room.gauche + place.x - dessin.boite.gauche) * kUnitsPerMm,
                   (room.haut + place.y - dessin.boite.haut) * kUnitsPerMm);
        }
        if (const auto mark = PlaceLibre(sheet, Note(), Encres(feuille, settings_.page))) {
            TraceTemoin(sheets, *mark, settings_.Unite);
        } else {
            all_marked = false;
        }
    }
    return all_marked;
}

std::optional<FinImpression> Pile::Trace(Printer &printer) {
    const Papier paper = PapierDe(settings_.page);
    printer.SetOrientation(Question().landscape ? Orientation::landscape : Orientation::portrait);
    printer.SetPaperSize(paper.largeur, paper.tailleFeuille);
    const SheetSize size = printer.SizeOfSheets();
    KeptSheets sheets(size.width > 0 ? size : TailleDuPapier(paper));
    const FeuilleTemoin sheet = FeuilleDePile(settings_.page, sheets.SizeOfSheets());
    const bool all_marked = TraceEmpiles(sheets, sheet);
    for (const auto &tuilee : tuilees_) {
        sheets.NewPage();
        const FinImpression end = tuilee->Imprime(sheets);
        if (end != FinImpression::imprime) {
            return end;
        }
    }
    const auto alone = PlaceLibre(sheet, Note(), {});
    if (!all_marked && alone) {
        sheets.NewPage();
        TraceTemoin(sheets, *alone, settings_.Unite);
    }
    EcritNumeros(sheets, sheet);
    feuilles_ = static_cast<int>(sheets.sheets.size());
    sheets.SendTo(printer);
    return std::nullopt;
}

FinImpression Pile::Imprime(Printer &printer) {
    try {
        // Gone before the box of a failure: that one waits for the user.
        const Sablier sablier(demande_.messages.platform);
        if (const auto end = Trace(printer)) {
            printer.Abort();
            return *end;
        }
        printer.EndDoc();
        return FinImpression::imprime;
    } catch (const Failure &failure) {
        printer.Abort();
        demande_.messages.ReportPlot(failure, "");
        return FinImpression::echec;
    }
}

std::string Pile::Resume() const {
    const LngIni &language = demande_.messages.language;
    return language.LngText({"FrmPrint", "10"}) + " : " + std::to_string(feuilles_) + "\n" +
           std::string(Trim(NomFeuille(settings_.page, settings_.page.NumIndex, language)));
}

FinImpression ImprimePileSurDemande(Pile &pile, const Messages &messages) {
    if (const auto end = pile.Prepare()) {
        return *end;
    }
    const auto printer = messages.platform.OpenPrinter(pile.Question());
    if (!printer) {
        return FinImpression::annule;
    }
    const FinImpression end = pile.Imprime(*printer);
    if (end == FinImpression::imprime) {
        DitFichierImprime(*printer, messages, pile.Resume());
    }
    return end;
}

} // namespace loftwing
