/// The correction of a printer that is a little off.
#pragma once

#include "core/app_settings.h"
#include "core/units.h"

#include <array>
#include <optional>
#include <string>

namespace loftwing {

/// What is typed: the length of either arm of a check line on paper.
inline constexpr int kChampLong = 0;    ///< along the rib
inline constexpr int kChampTravers = 1; ///< across it
inline constexpr int kChampsMesure = 2;
using TextesMesure = std::array<std::string, kChampsMesure>;

/// A check line of the right length, as typed.
std::string MesureJuste(const std::string &Unite);

/// What came of typed measures.
struct FinMesure {
    CorrectionImprimante correction;
    std::optional<int> refuse; ///< the field of a refused measure
};

/// The correction after one of `avant`, with which the lines were printed: that times what the
/// measures say. One that can't be a printer's is refused by a box.
FinMesure CorrigeParMesure(const CorrectionImprimante &avant, const TextesMesure &typed,
                           const Saisie &saisie, const std::string &titre);

/// "In force : 101.01 % along the rib, 100 % across it".
std::string TexteCorrection(const CorrectionImprimante &correction, const LngIni &language);

} // namespace loftwing
