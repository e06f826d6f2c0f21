/// Header variables of the interchange DXF form. All are fixed: they don't depend on the rib.
#pragma once

#include <string_view>
#include <utility>
#include <vector>

namespace loftwing {

struct DxfVariable {
    std::string_view nom;
    std::vector<std::pair<int, std::string_view>> valeurs; ///< group codes and what stands there
};

const std::vector<DxfVariable> &DxfVariables();

} // namespace loftwing
