#include "app/verbs.h"

#include "app/angle_command.h"
#include "app/convert_command.h"
#include "app/cut_command.h"
#include "app/dihedral_command.h"
#include "app/draw_command.h"
#include "app/info_command.h"
#include "app/modify_command.h"
#include "app/panel_command.h"
#include "app/plan_command.h"
#include "app/ribs_command.h"
#include "app/table_command.h"
#include "app/view_commands.h"

#include <algorithm>
#include <array>

namespace loftwing {

namespace {

constexpr std::array kVerbs = {
    Verb{"draw", "draw FILE... -o OUT", "a rib drawing (or several: --to EXT -o DIR/)", DrawOptions,
         RunDraw, Takes::airfoils, "draw RIB.lfw --on FILE... -o OUT",
         "the rib's features on other airfoils"},
    Verb{"cut", "cut FILE... -o OUT", "the pieces themselves: closed outlines for a cutter",
         CutOptions, RunCut, Takes::airfoils},
    Verb{"info", "info FILE... [--json]", "what the program knows of an airfoil", InfoOptions,
         RunInfo, Takes::airfoils},
    Verb{"ribs", "ribs ROOT TIP ... -o DIR", "a full set of ribs between two airfoils", RibsOptions,
         RunRibs, Takes::airfoils},
    Verb{"panel", "panel ROOT.lfw TIP.lfw ... -o DIR", "all ribs of a wing panel, ready to be cut",
         PanelOptions, RunPanel, Takes::any_files},
    Verb{"plan", "plan PANEL.lfp... -o OUT", "the building plan of a wing of several panels",
         PlanVerbOptions, RunPlan, Takes::any_files, "plan WING.lfa -o OUT",
         "the same of the panels that a wing file names"},
    Verb{"plot", "plot FILE -o OUT", "the simple plot of the raw points", PlotOptions, RunPlot,
         Takes::airfoils},
    Verb{"compare", "compare FILE1 FILE2 -o OUT", "two airfoils over each other", CompareOptions,
         RunCompare, Takes::airfoils},
    Verb{"modify", "modify FILE ... -o OUT.dat", "other thickness and camber", ModifyOptions,
         RunModify, Takes::airfoils},
    Verb{"table", "table --chords A B --count N", "chords and spar places of a tapered panel",
         TableOptions, RunTable, Takes::nothing},
    Verb{"dihedral", "dihedral ...", "angle, length, height: two of them give the third",
         DihedralOptions, RunDihedral, Takes::nothing},
    Verb{"oblique", "oblique FILE ... -o OUT.dat", "a rib that crosses the panel at an angle",
         ObliqueOptions, RunOblique, Takes::airfoils},
    Verb{"incline", "incline FILE ... -o OUT.dat", "a rib inclined by the dihedral", InclineOptions,
         RunIncline, Takes::airfoils},
    Verb{"convert", "convert FILE... -o OUT.dat", "any table of coordinates as an airfoil file",
         ConvertOptions, RunConvert, Takes::any_files},
};

} // namespace

std::span<const Verb> Verbs() {
    return kVerbs;
}

const Verb *FindVerb(const std::string &name) {
    const auto verb = std::find_if(kVerbs.begin(), kVerbs.end(),
                                   [&](const Verb &each) { return name == each.name; });
    return verb == kVerbs.end() ? nullptr : &*verb;
}

} // namespace loftwing
