/// The drawings of all ribs of a panel, stacked on as few pages as they need.
#pragma once

#include "output/drawing_stack.h"
#include "programme/export.h"
#include "programme/panel_steps.h"

#include <memory>
#include <string>
#include <vector>

namespace loftwing {

/// A stack with ribs of its own.
class DessinsPanneau {
  public:
    /// `premier` is the number of the first rib, `nom` what the job is called.
    DessinsPanneau(Programme &programme, const PanneauFait &fait, int premier,
                   const ReglagePage &page, const std::string &nom);

    Pile &EnPile() { return pile_; }

  private:
    std::vector<std::unique_ptr<RibModel>> ribs_;
    Pile pile_;

    DemandePile Demande(Programme &programme, const PanneauFait &fait, int premier,
                        const ReglagePage &page, const std::string &nom);
};

} // namespace loftwing
