/// A wing built by hand and the words of its list of parts.
#pragma once

#include "lang/LngIni.h"
#include "programme/liste_pieces.h"
#include "support/words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace loftwing {

/// Words that tell which key they stand for where a test can't see it otherwise.
inline constexpr const char *kMotsListe = R"([FrmNervure]
9=No.
[FrmRibevol]
5=Chord
6=Ribs
[FrmRibevol2]
13=Distance
[FrmLines]
6=Sheeting
[Panel]
9=spar
11=upper surface
12=lower surface
113=Element
114=From rib
115=To rib
116=leading edge stock
117=trailing edge stock
118=V-notch
161=Both wings
168=Sheet
[Plan]
13=Panel
202=Sticks
203=Sheets of stock
204=Totals
205=Thickness
206=Weight
207=Sum
208=True length
209=Section
210=Count
211=Surface
212=Developed area
213=Rectangle
214=Greatest arc
215=Size
216=Pieces
217=Used
218=One wing
219=wings
220=Unit
221=Number of ribs
222=Ribs: area
223=Ribs: weight
224=Area of wood
)";

class ListePiecesTest : public testing::Test {
  protected:
    Words words{kMotsListe};
    std::string Unite{kUniteMm};
    Aile aile;
    FeuillesPieces feuilles;

    /// A panel of two ribs that begins at `x`.
    static PanneauAile DeuxNervures(double x) {
        PanneauAile panel;
        panel.nom = "root";
        panel.x = x;
        panel.longueur = 103;
        panel.nervures = {{7, x + 1.5, 3, 0, 200, 20, -5, 1234.5}, //
                          {8, x + 101.5, 3, 2, 180.126, 18, -4, 1004}};
        return panel;
    }
    /// A stick along x that is 4 wide and 2 high at both ends.
    static BatonAile Baton(GenreBaton genre, double longueur) {
        BatonAile stick;
        stick.genre = genre;
        stick.de = 7;
        stick.a = 8;
        stick.bouts[1].x = longueur;
        stick.coupes = {{{4, 2}, {4, 2}}};
        return stick;
    }

    std::vector<TableauPieces> Tables() {
        return ListeDesPieces(aile, feuilles, words.messages, Unite);
    }
    TableauPieces Table(const std::string &titre) {
        for (const TableauPieces &table : Tables()) {
            if (table.titre == titre) {
                return table;
            }
        }
        ADD_FAILURE() << "no table " << titre;
        return {};
    }
    std::vector<std::string> Titres() {
        std::vector<std::string> titles;
        for (const TableauPieces &table : Tables()) {
            titles.push_back(table.titre);
        }
        return titles;
    }
};

} // namespace loftwing
