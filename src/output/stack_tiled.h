/// A rib of a stack that is larger than a sheet.
#pragma once

#include "output/drawing_stack.h"

namespace loftwing {

/// A print run of its own, on the paper of the stack.
class NervureTuilee {
  public:
    /// `pile`: settings with the stack's page; the run works on a copy.
    NervureTuilee(const DemandePile &demande, const AppSettings &pile, RibModel &rib)
        : demande_(demande), rib_(rib), settings_(pile) {}

    /// Decides about the sheets, and tells of a drawing that leaves them. How the job ends here;
    /// nothing where it goes on.
    std::optional<FinImpression> Prepare();
    FinImpression Imprime(Printer &printer);

  private:
    const DemandePile &demande_;
    RibModel &rib_;
    AppSettings settings_;
    PlotState plot_;

    Impression Run();
    void PrendRecouvrement();
    bool Regle();
    std::optional<FinImpression> Avertit();
};

} // namespace loftwing
