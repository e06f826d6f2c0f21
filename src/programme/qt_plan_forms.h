/// A wing's plan and its list of parts as files, and on a printer.
#pragma once

#include "output/plan_dessin.h"
#include "output/print_run.h"
#include "programme/liste_pieces.h"
#include "programme/programme.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace loftwing {

/// What a plan can be saved as, in the order in which it is offered.
enum class FormePlan { pdf, feuilles, svg, dxf };
/// The extension of such a file; PDF of one large page and of sheets have the same.
std::string_view ExtensionPlan(FormePlan forme);
/// The form of a file's name; nothing for another one. A PDF is one large page.
std::optional<FormePlan> FormeDuPlan(const std::string &path);

/// Why a plan can't have a form, in the user's words.
struct RefusFormePlan {
    std::string texte;
};

/// The bytes of a plan's file. Both wings are a page each, or sheets each; in SVG and DXF the one
/// lies below the other. Sheets are those of the page's settings. Failures as the forms'.
std::variant<std::string, RefusFormePlan>
OctetsDuPlan(FormePlan forme, const std::vector<DessinPlan> &dessins, const Programme &programme);

/// Prints a plan on sheets of the page's settings. What can't be is told.
FinImpression ImprimePlanSurDemande(const std::vector<DessinPlan> &dessins,
                                    const Programme &programme);

/// What a list of parts can be saved as.
enum class FormeListe { texte, csv, pdf };
inline constexpr std::array<std::string_view, 3> kExtensionsListe = {"txt", "csv", "pdf"};
/// Whether a list may have that name: its extension is one of these, or there is none.
bool EstListe(const std::string &path);
/// The form of a file's name: CSV and PDF by their extension, anything else is text.
FormeListe FormeDeLaListe(const std::string &path);
/// The bytes of such a file; a PDF is on the paper of the page's settings, upright.
std::string OctetsDeLaListe(FormeListe forme, const std::string &titre,
                            const std::vector<TableauPieces> &tables, const MiseEnPage &page);
/// Prints a list on the printer's own paper; `nom` is what a PDF is proposed to be called.
FinImpression ImprimeListeSurDemande(const std::string &titre, const std::string &nom,
                                     const std::vector<TableauPieces> &tables,
                                     const Programme &programme);

} // namespace loftwing
