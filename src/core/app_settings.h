/// What the settings file holds beside the rib's own defaults.
#pragma once

#include "core/units.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace loftwing {

/// The elements of a drawing that have a colour and a line style of their own.
enum class Element { profil, coffrage, axe, longeron, ba, bf, trou, rep, bloc, profil1, profil2 };
inline constexpr std::size_t kElements = 11;

/// Colour number (0 to 14), line style (0 to 4) and width (1 to 3) of one element.
struct Trait {
    std::int16_t couleur = 0;
    std::int16_t style = 0;
    std::int16_t epaisseur = 1;

    bool operator==(const Trait &) const = default;
};

/// A paper of the user's own beside those of the table: a roll, a plotter's sheet. In mm.
struct PapierPropre {
    std::string nom;
    double longueur = 0; ///< along the rib
    double largeur = 0;

    bool operator==(const PapierPropre &) const = default;
};

/// Sheets under each other, for a drawing that is taller than one. Lengths in mm.
struct RangeesFeuilles {
    int nombre = 1;
    double pas = 0;          ///< height of drawing from one sheet to the one below
    double recouvrement = 0; ///< of two sheets above each other
    double Yd = 0;           ///< reference line from the top of the uppermost sheet
};

/// A page of the drawing's own size. Lengths in mm.
struct PageEntiere {
    double longueur = 0;
    double largeur = 0;
    double avant = 0; ///< from the left edge to the leading edge
    double Yd = 0;    ///< reference line from the top
};

/// The page on which a rib is printed, always in landscape. Lengths in mm and as typed.
struct MiseEnPage {
    float MargeHaut = 10; ///< before the leading edge, along the long side
    std::string MargeHautAfich = "10";
    float MargeBas = 15; ///< behind the trailing edge
    std::string MargeBasAfich = "15";
    float recouvrement = 20; ///< overlap of two sheets
    std::string recouvrementAfich = "20";
    float Ydprint = 50; ///< reference line from the top of the sheet
    std::string YdprintAfich = "50";
    std::uint8_t NumIndex = 0; ///< entry of the paper table, or behind it

    bool temoin = false;               ///< a check line and a note on every sheet
    bool en_rangees = false;           ///< sheets downwards too, where the drawing wants them
    std::vector<PapierPropre> papiers; ///< of the user's own

    // Derived, not stored: 0 until a page has been set up.
    float PasPage = 0;        ///< length of rib from one sheet to the next
    std::uint8_t NbPages = 0; ///< number of sheets
    /// The last overlap above 0: that of rows, since a rib that fits lengthwise sets it to 0.
    float recouvrementRangees = 20;
    RangeesFeuilles rangees;
    PageEntiere entiere;
};

/// What a printer's sheets are stretched by to come out at true scale, along the rib and across it.
struct CorrectionImprimante {
    double x = 1;
    double y = 1;

    bool operator==(const CorrectionImprimante &) const = default;
};

/// The folders that the program remembers.
struct Repertoires {
    std::string RepProfil;      ///< airfoils
    std::string RepProfilevol;  ///< rib sets
    std::string LastOpenProfil; ///< last folder of the airfoil picker
};

/// What came of the settings file itself.
struct FichierReglages {
    bool perdu = false; ///< it can be neither read nor made: what is set holds for this run
    bool dit = false;   ///< the user has been told, which is enough once
};

struct AppSettings {
    std::string Unite{kUniteMm}; ///< " mm" or " in"
    std::array<Trait, kElements> traits;
    MiseEnPage page;
    CorrectionImprimante correction;
    Repertoires repertoires;
    FichierReglages fichier;

    Trait &TraitDe(Element element) { return traits[static_cast<std::size_t>(element)]; }
    const Trait &TraitDe(Element element) const {
        return traits[static_cast<std::size_t>(element)];
    }
};

} // namespace loftwing
