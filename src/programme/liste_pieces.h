/// The list of parts of a wing: what is cut and what is bought, as text, CSV and printed pages.
#pragma once

#include "core/messages.h"
#include "output/nesting.h"
#include "output/printer.h"
#include "programme/aile.h"

#include <string>
#include <vector>

namespace loftwing {

/// A table of the list.
struct TableauPieces {
    std::string titre;
    std::vector<std::string> colonnes;             ///< headings, with their unit
    std::vector<std::vector<std::string>> rangees; ///< as many cells as headings
    std::vector<bool> nombre;                      ///< of each column: numbers, set to the right
    std::size_t sommes = 0;                        ///< how many of the last rows add up those above
};

/// What is said of the nesting of a panel's pieces.
struct FeuillesPieces {
    Imbrication planches; ///< none where nothing was nested
    int ailes = 1;        ///< that they hold
};

/// The list as tables, in the user's words and unit: for every panel its ribs (number, distance of
/// the middle from the panel's root, chord, thickness, area of wood, weight where there is a
/// density), its sticks (true length, section, count), its sheeting (developed area per surface,
/// the rectangle to buy), then the sheets of stock, then the totals of one wing and of both. Areas
/// are in cm2 or in2, weights in g or oz. What a panel doesn't have has no table.
///
/// Numbers of a column have the same decimals, and inches are decimal there. What is bought by its
/// size (sections, sheets) is written as the user types it, in inches with fractions. Sums are made
/// before anything is rounded. A weight that is known of some ribs only isn't added up.
std::vector<TableauPieces> ListeDesPieces(const Aile &aile, const FeuillesPieces &feuilles,
                                          const Messages &messages, const std::string &Unite);

/// What a wing's list is headed by.
std::string TitreDeListe(const Aile &aile, const Messages &messages);

/// The tables as lines of text, columns set under each other by blanks, lines ended by LF.
std::string ListeEnTexte(const std::string &titre, const std::vector<TableauPieces> &tables);

/// As CSV (RFC 4180, lines end in CR LF, UTF-8): the table's title stands in the first column of
/// every line, and every table begins with its headings. All lines have as many fields as the
/// longest. A field that a spreadsheet would take for a formula gets an apostrophe in front;
/// numbers stay as they are.
std::string ListeEnCsv(const std::vector<TableauPieces> &tables);

/// Draws them on as many sheets of the printer's paper as they need, headings again on every sheet.
/// Where the paper isn't known the sheets are upright, and only what A4 and Letter share is used.
/// The job isn't ended.
void ImprimeListe(Printer &printer, const std::string &titre,
                  const std::vector<TableauPieces> &tables);

} // namespace loftwing
