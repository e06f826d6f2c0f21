/// Small airfoils and words for tests of rib sets.
#pragma once

#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "support/words.h"
#include "utilities/ribevol.h"
#include "utilities/ribevol2.h"
#include "utilities/tool_files.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace loftwing {

inline constexpr std::string_view kMotsJeu = R"([MainTolbar]
13=Chord
25=Rib
[FrmConfig]
3=Folder
[FrmRibevol]
7=between
12=too many
13=too long
14=smaller
15=no airfoil
16=no count
17=no major
18=no minor
21=Set of
22=ribs
23=Summary
140=there
141=replace?
[FrmRibevol2]
2=major
3=minor
7=variable
10=zero
12=thick
13=gap
14=smaller
15=none of
16=how many
17=no major
18=no minor
19=at most twelve
20=no thickness major
21=no thickness minor
)";

inline ProfilChoisi Chosen(const std::string &name,
                           const std::vector<std::pair<double, double>> &points) {
    ProfilChoisi chosen;
    chosen.NomProfil = name;
    for (const auto &[x, y] : points) {
        chosen.ProfilX.Append(x);
        chosen.ProfilY.Append(y);
    }
    chosen.NbPoints = static_cast<std::int16_t>(points.size());
    return chosen;
}

/// A diamond of five points: its surfaces are straight, so that every height is known.
inline ProfilChoisi Diamond(const std::string &name, double half) {
    return Chosen(name, {{1, 0}, {0.5, half}, {0, 0}, {0.5, -half}, {1, 0}});
}

/// The same section with two more points.
inline ProfilChoisi FineDiamond(const std::string &name, double half) {
    return Chosen(
        name,
        {{1, 0}, {0.75, half / 2}, {0.5, half}, {0, 0}, {0.5, -half}, {0.75, -half / 2}, {1, 0}});
}

struct JeuFixture {
    Words words{kMotsJeu};
    const Messages &messages = words.messages;
    std::string Unite{kUniteMm};
    Saisie saisie{Unite, messages};
    TempFolder folder;
    std::array<ProfilJeu, 2> profils{ProfilMajeur(Diamond("root", 0.1)),
                                     ProfilMineur(Diamond("tip", 0.05))};

    std::string Dossier() const { return folder.Path() + "/"; }
    std::vector<std::string> Lines(const std::string &name) const {
        return SplitLines(folder.Bytes(name));
    }
    /// A set in equal steps; its values must be good ones.
    JeuDeNervures Even(const std::string &major, const std::string &minor,
                       const std::string &count) {
        Ribevol set;
        const auto refus = VerifieRibevol({{"root", "tip"}, {major, minor}, count}, saisie, set);
        EXPECT_FALSE(refus) << refus->text;
        return ComposeRibevol(set, profils, Dossier(), saisie);
    }
};

} // namespace loftwing
