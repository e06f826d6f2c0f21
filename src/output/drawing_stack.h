/// The drawings of several ribs on as few sheets as they need, as one job.
#pragma once

#include "output/hors_feuille.h"
#include "output/print_run.h"
#include "output/sheet_marks.h"
#include "output/stack_drawing.h"
#include "output/stack_layout.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// A rib of a stack.
struct NervureEmpilee {
    RibModel &rib;              ///< its contour prepared; it lives as long as the stack
    std::string etiquette = {}; ///< where its inserted text isn't drawn; empty: EtiquetteDuRib
};

/// What is stacked, and on what.
struct DemandePile {
    std::vector<NervureEmpilee> nervures;
    AppSettings &settings; ///< paper, margins and overlap, unit, looks of lines
    const Messages &messages;
    std::string nom;       ///< of the job
    std::string date = {}; ///< as the note of a check line has it
    /// A rib goes over several sheets and they have no overlap: lets the user set one up in
    /// `settings`; false when that is given up.
    std::function<bool()> regle;
    NomsReglages noms; ///< what the page's settings are called where that is done
};

class KeptSheets;
class NervureTuilee;

/// One sheet after the other: as many drawings as have room, each at true scale with its label;
/// then, as a print run of its own would have them, the sheets of each rib that is larger than
/// one. The check line is on every sheet whatever the page's settings say, and so is its number.
///
/// The paper is turned where only so every rib has room, or where that saves sheets. The printer's
/// own paper, whose size isn't known, counts as the first of the list. A page as large as the
/// drawing is one as large as the stack.
class Pile {
  public:
    explicit Pile(DemandePile demande);
    Pile(const Pile &) = delete;
    Pile &operator=(const Pile &) = delete;
    ~Pile();

    /// Draws the ribs and decides about all sheets, before a printer is opened. How the job ends
    /// here; nothing where it goes on. A plot that fails, an overlap that is missing and a page
    /// that is too large are reported before; a rib that leaves its sheets is told.
    std::optional<FinImpression> Prepare();

    /// What the platform is asked for the job's paper.
    PrintQuestion Question() const;
    /// All sheets, after Prepare.
    FinImpression Imprime(Printer &printer);
    /// How many sheets of which paper the last job took, a line each.
    std::string Resume() const;

    /// Where the drawings lie, after Prepare.
    const Empilage &Feuilles() const { return empilage_; }

  private:
    DemandePile demande_;
    AppSettings settings_; ///< with the stack's own page
    std::vector<std::unique_ptr<DessinEmpile>> dessins_;
    Empilage empilage_;
    std::vector<std::unique_ptr<NervureTuilee>> tuilees_;
    int feuilles_ = 0;

    std::string Etiquette(const NervureEmpilee &nervure) const;
    std::vector<TailleDessin> Tailles() const;
    NoteTemoin Note() const;
    void Enregistre();
    bool ChoisitPage();
    bool ChoisitPageEntiere();
    Empilage EmpileSur(const MiseEnPage &page) const;
    std::vector<Etendue> Encres(const FeuilleEmpilee &feuille, const MiseEnPage &page) const;
    std::optional<FinImpression> PrepareTuilees();
    /// The sheets of the stack; false when one had no room for its check line.
    bool TraceEmpiles(KeptSheets &sheets, const FeuilleTemoin &sheet) const;
    std::optional<FinImpression> Trace(Printer &printer);
};

/// The whole of a print command for a stack: Prepare, the choice of a printer, the job, and where
/// it went if that is a file. Failures of a printer that doesn't open.
FinImpression ImprimePileSurDemande(Pile &pile, const Messages &messages);

} // namespace loftwing
