#include "programme/qt_plan_forms.h"

#include "base/file_name.h"
#include "base/text_encoding.h"
#include "output/plan_feuilles.h"
#include "output/plan_formes.h"
#include "output/print_file.h"
#include "platform/busy_pointer.h"
#include "platform/qt_printer.h"
#include "programme/plan_papier.h"

#include <algorithm>

namespace loftwing {

namespace {

std::string Extension(const std::string &path) {
    const std::string extension = ExtensionOf(path);
    return LowerAscii(extension.substr(std::min<std::size_t>(extension.size(), 1)));
}

std::string TitreDe(const std::vector<DessinPlan> &dessins) {
    return dessins.empty() ? std::string() : dessins.front().titre;
}

MotsFeuillesPlan Mots(const std::vector<DessinPlan> &dessins, const Programme &programme) {
    return {TitreDe(dessins), programme.Text({"FrmPrint", "270"}), programme.settings.Unite};
}

/// Draws a job and ends it; whatever goes wrong drops it.
template <class Draw>
void Conduit(Printer &printer, const Draw &draw) {
    try {
        draw();
        printer.EndDoc();
    } catch (...) {
        printer.Abort();
        throw;
    }
}

template <class Draw>
std::string EnPdf(const std::string &titre, const Draw &draw) {
    std::string bytes;
    const auto printer = MakePdfPrinter(bytes, titre);
    Conduit(*printer, [&] { draw(*printer); });
    return bytes;
}

/// Prints on what the user chooses.
template <class Draw>
FinImpression SurDemande(const PrintQuestion &question, const Programme &programme,
                         const Draw &draw) {
    const Messages &messages = programme.messages;
    const auto printer = messages.platform.OpenPrinter(question);
    if (!printer) {
        return FinImpression::annule;
    }
    try {
        const Sablier sablier(messages.platform);
        Conduit(*printer, [&] { draw(*printer); });
    } catch (const Failure &failure) {
        messages.ReportPlot(failure, "");
        return FinImpression::echec;
    }
    DitFichierImprime(*printer, messages);
    return FinImpression::imprime;
}

} // namespace

std::string_view ExtensionPlan(FormePlan forme) {
    switch (forme) {
    case FormePlan::svg:
        return "svg";
    case FormePlan::dxf:
        return "dxf";
    case FormePlan::pdf:
    case FormePlan::feuilles:
        break;
    }
    return "pdf";
}

std::optional<FormePlan> FormeDuPlan(const std::string &path) {
    const std::string extension = Extension(path);
    for (const FormePlan forme : {FormePlan::pdf, FormePlan::svg, FormePlan::dxf}) {
        if (extension == ExtensionPlan(forme)) {
            return forme;
        }
    }
    return std::nullopt;
}

std::variant<std::string, RefusFormePlan>
OctetsDuPlan(FormePlan forme, const std::vector<DessinPlan> &dessins, const Programme &programme) {
    const CouleursPlan colours = CouleursDuPlan(programme.settings);
    switch (forme) {
    case FormePlan::svg:
        return EcritPlanSvg(EnDessousPlan(dessins), colours);
    case FormePlan::dxf:
        return EcritPlanDxf(EnDessousPlan(dessins), programme.settings.Unite);
    case FormePlan::pdf:
        if (!std::all_of(dessins.begin(), dessins.end(), TientSurUnePage)) {
            return RefusFormePlan{programme.Text({"Plan", "30"})};
        }
        return EnPdf(TitreDe(dessins),
                     [&](Printer &printer) { ImprimePlanEntier(printer, dessins, colours); });
    case FormePlan::feuilles:
        break;
    }
    const auto sheets = ReglageFeuillesDe(programme.settings.page, dessins);
    if (!sheets) {
        return RefusFormePlan{programme.Text({"Plan", "31"})};
    }
    return EnPdf(TitreDe(dessins), [&](Printer &printer) {
        ImprimePlanEnFeuilles(printer, dessins, colours, *sheets, Mots(dessins, programme));
    });
}

FinImpression ImprimePlanSurDemande(const std::vector<DessinPlan> &dessins,
                                    const Programme &programme) {
    const auto sheets = ReglageFeuillesDe(programme.settings.page, dessins);
    if (!sheets) {
        programme.messages.Inform(programme.Text({"Plan", "31"}), TitreDe(dessins));
        return FinImpression::annule;
    }
    PrintQuestion question;
    question.document = TitreDe(dessins);
    question.landscape = sheets->largeur > sheets->hauteur;
    question.long_side_mm = std::max(sheets->largeur, sheets->hauteur);
    question.short_side_mm = std::min(sheets->largeur, sheets->hauteur);
    question.proposed_pdf = question.document + ".pdf";
    question.pdf_title = TitreFichierImprime(programme.messages);
    question.stretch = {programme.settings.correction.x, programme.settings.correction.y};
    return SurDemande(question, programme, [&](Printer &printer) {
        ImprimePlanEnFeuilles(printer, dessins, CouleursDuPlan(programme.settings), *sheets,
                              Mots(dessins, programme));
    });
}

bool EstListe(const std::string &path) {
    const std::string extension = Extension(path);
    return extension.empty() || std::find(kExtensionsListe.begin(), kExtensionsListe.end(),
                                          extension) != kExtensionsListe.end();
}

FormeListe FormeDeLaListe(const std::string &path) {
    const std::string extension = Extension(path);
    return extension == "csv" ? FormeListe::csv
                              : (extension == "pdf" ? FormeListe::pdf : FormeListe::texte);
}

std::string OctetsDeLaListe(FormeListe forme, const std::string &titre,
                            const std::vector<TableauPieces> &tables, const MiseEnPage &page) {
    switch (forme) {
    case FormeListe::csv:
        return ListeEnCsv(tables);
    case FormeListe::pdf:
        return EnPdf(titre, [&](Printer &printer) {
            const Papier paper = PapierDuPlan(page);
            printer.SetOrientation(Orientation::portrait);
            printer.SetPaperSize(paper.largeur, paper.tailleFeuille);
            ImprimeListe(printer, titre, tables);
        });
    case FormeListe::texte:
        break;
    }
    return ListeEnTexte(titre, tables);
}

FinImpression ImprimeListeSurDemande(const std::string &titre, const std::string &nom,
                                     const std::vector<TableauPieces> &tables,
                                     const Programme &programme) {
    PrintQuestion question;
    question.document = titre;
    question.landscape = false;
    question.proposed_pdf = nom + ".pdf";
    question.pdf_title = TitreFichierImprime(programme.messages);
    return SurDemande(question, programme,
                      [&](Printer &printer) { ImprimeListe(printer, titre, tables); });
}

} // namespace loftwing
