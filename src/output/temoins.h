/// The check lines of a print run.
#pragma once

#include "output/print_run.h"
#include "output/sheet_marks.h"

#include <string>
#include <vector>

namespace loftwing {

/// Gives every sheet of a run its check line, where the page's settings want that and the sheets'
/// size is known. What is drawn is measured once, before the first sheet; each sheet then looks for
/// a corner of its own. Nothing of the drawing is touched.
class Temoins {
  public:
    /// For a printer that is set up; `feuilles` is how many sheets the rib takes.
    Temoins(const Impression &run, Printer &printer, int feuilles);

    /// False when the plot failed, which it has reported.
    bool Mesure();
    /// The last that is drawn on sheet `numero`, counted from 1, where the drawing was placed at
    /// `origine`.
    void Trace(int numero, const Origine &origine);
    /// The end of the run: one sheet more where one was without room.
    void Finit();

  private:
    const Impression &run_;
    Printer &printer_;
    const int feuilles_;
    bool voulu_ = false;
    bool manque_ = false; ///< a sheet had no room
    FeuilleTemoin feuille_;
    Metre dessin_;
    Origine mesure_; ///< where the drawing stood when it was measured

    NoteTemoin Note(const std::string &feuille) const;
    std::vector<Etendue> Encres(const Origine &origine) const;
};

} // namespace loftwing
