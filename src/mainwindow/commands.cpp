#include "mainwindow/commands.h"

#include "mainwindow/frmmain.h"
#include "programme/qt_export_forms.h"

namespace loftwing {

namespace {

constexpr unsigned kFile = kWithRib | kDiesOnClear;
constexpr unsigned kPaper = kFile | kAliveInView;
constexpr unsigned kOneRib = kFile | kNotInView;
constexpr unsigned kRib = kWithRib | kNotInView | kAliveAfterClear;

Command Menu(const char *name, LngKey text, unsigned groups = kAlways) {
    return {name, nullptr, text, nullptr, groups, false, true, false, nullptr};
}

Command SubMenu(const char *name, const char *menu, LngKey text, unsigned groups) {
    return {name, menu, text, nullptr, groups, false, true, false, nullptr};
}

Command Entry(const char *name, const char *menu, LngKey text, unsigned groups,
              CommandHandler handler, const char *keys = nullptr) {
    return {name, menu, text, keys, groups, false, false, false, handler};
}

Command Check(const char *name, const char *menu, LngKey text, unsigned groups,
              CommandHandler handler) {
    return {name, menu, text, nullptr, groups, true, false, false, handler};
}

Command Keyed(Command command, const char *keys) {
    command.keys = keys;
    return command;
}

/// An entry whose thing is found elsewhere.
Command Ailleurs(const char *name, const char *menu, LngKey text, LngKey ailleurs) {
    Command command = Entry(name, menu, text, kAlways, nullptr);
    command.ailleurs = ailleurs;
    return command;
}

Command Conseille(Command command, LngKey conseil) {
    command.conseil = conseil;
    return command;
}

Command Below(Command command) {
    command.separator = true;
    return command;
}

void Ajoute(std::vector<Command> &commands, const std::vector<Command> &more) {
    commands.insert(commands.end(), more.begin(), more.end());
}

/// What is written from a view stays alive in it.
unsigned GroupesExport(const EntreeExport &entree) {
    const unsigned views = VuesDe(entree);
    return ((views & kVueCompare) != 0 ? kPaper : kFile) |
           ((views & kVueCouple) != 0 ? kAliveInSimplePlot : kAlways);
}

std::vector<Command> ExportEntries(const char *menu) {
    std::vector<Command> entries;
    for (const EntreeExport *entree : EntreesExport()) {
        Command command =
            Entry(entree->controle, menu, entree->texte, GroupesExport(*entree), nullptr);
        command.exporte = entree;
        command.separator = entries.empty();
        entries.push_back(command);
    }
    return entries;
}

std::vector<Command> FileMenu() {
    const char *menu = "mnu_file";
    std::vector<Command> commands = {
        Menu(menu, {"MenuFile", "1"}),
        Entry("mnu_fileopen", menu, {"MenuFile", "2"}, kAlways, &frmmain::mnu_fileopen_Click,
              "Ctrl+Shift+O"),
        Entry("mnu_fileprofilopen", menu, {"MenuFile", "3"}, kAlways,
              &frmmain::mnu_fileprofilopen_Click, "Ctrl+O"),
        Entry("mnu_filesuivant", menu, {"MenuFile", "211"}, kAlways,
              &frmmain::mnu_filesuivant_Click, "Alt+Right"),
        Entry("mnu_fileprecedent", menu, {"MenuFile", "212"}, kAlways,
              &frmmain::mnu_fileprecedent_Click, "Alt+Left"),
        Entry("mnu_fileimport", menu, {"Import", "42"}, kAlways, &frmmain::mnu_fileimport_Click),
        Entry("mnu_filesaveas", menu, {"MenuFile", "4"}, kFile, &frmmain::mnu_filesaveas_Click,
              "Ctrl+Shift+S; Ctrl+S"),
        SubMenu("mnu_fileribs", menu, {"MenuFile", "210"}, kAlways),
    };
    Ajoute(commands, ExportEntries(menu));
    Ajoute(commands,
           {
               Entry("mnu_filedecoupe", menu, {"Piece", "100"}, kOneRib,
                     &frmmain::mnu_filedecoupe_Click),
               Below(Entry("mnu_filepage", menu, {"MenuFile", "6"}, kPaper,
                           &frmmain::mnu_filepage_Click)),
               Entry("mnu_fileprinterconfig", menu, {"MenuFile", "7"}, kPaper,
                     &frmmain::mnu_fileprinterconfig_Click),
               Ailleurs("mnu_fileprintpreview", menu, {"MenuFile", "8"}, {"MenuFile", "230"}),
               Entry("mnu_fileprint", menu, {"MenuFile", "9"}, kPaper,
                     &frmmain::mnu_fileprint_Click, "Ctrl+P"),
               Below(Entry("mnu_fileexit", menu, {"MenuFile", "10"}, kAlways,
                           &frmmain::mnu_fileexit_Click, "Ctrl+Q")),
           });
    return commands;
}

/// Alive as long as there is a step to take; see CommandBars::MontrePas.
std::vector<Command> EditMenu() {
    const char *menu = "mnu_edition";
    return {
        Menu(menu, {"Undo", "1"}),
        Entry("mnu_editannule", menu, {"Undo", "2"}, kAlways, &frmmain::mnu_editannule_Click,
              "Ctrl+Z"),
        Entry("mnu_editretablit", menu, {"Undo", "7"}, kAlways, &frmmain::mnu_editretablit_Click,
              "Ctrl+Shift+Z; Ctrl+Y"),
    };
}

std::vector<Command> ViewMenu() {
    const char *menu = "mnu_aff";
    const char *zoom = "mnu_affzoom";
    return {
        Menu(menu, {"MenuAffich", "1"}),
        Check("mnu_affinver", menu, {"MenuAffich", "2"}, kRib | kAliveInSimplePlot,
              &frmmain::mnu_affinver_Click),
        Entry("mnu_affdefaut", menu, {"MenuAffich", "3"}, kRib, &frmmain::mnu_affdefaut_Click),
        Entry("mnu_affcouleur", menu, {"MenuAffich", "4"}, kAlways, &frmmain::mnu_affcouleur_Click),
        Below(
            Check("mnu_affhautba", menu, {"MenuAffich", "5"}, kRib, &frmmain::mnu_affhautba_Click)),
        Check("mnu_affhautbf", menu, {"MenuAffich", "6"}, kRib, &frmmain::mnu_affhautbf_Click),
        Check("mnu_affepr", menu, {"MenuAffich", "7"}, kRib, &frmmain::mnu_affepr_Click),
        Entry("mnu_affInstxt", menu, {"MenuAffich", "8"}, kFile | kAliveInSimplePlot,
              &frmmain::mnu_affInstxt_Click),
        Check("mnu_affTrac", menu, {"MenuAffich", "9"}, kRib, &frmmain::mnu_affTrac_Click),
        Check("mnu_afflignRef", menu, {"MenuAffich", "12"}, kRib, &frmmain::mnu_afflignRef_Click),
        Conseille(Check("mnu_afffeuilles", menu, {"MenuAffich", "215"}, kPaper,
                        &frmmain::mnu_afffeuilles_Click),
                  {"MenuAffich", "230"}),
        Conseille(
            Check("mnu_affpiece", menu, {"Piece", "101"}, kOneRib, &frmmain::mnu_affpiece_Click),
            {"Piece", "102"}),
        Conseille(
            Check("mnu_affessai", menu, {"Undo", "21"}, kAlways, &frmmain::mnu_affessai_Click),
            {"Undo", "22"}),
        Conseille(Keyed(Check("mnu_affmesure", menu, {"Undo", "43"}, kAlways,
                              &frmmain::mnu_affmesure_Click),
                        "M"),
                  {"Undo", "44"}),
        Below(SubMenu(zoom, menu, {"MenuAffich", "210"}, kAlways)),
        Entry("mnu_affzoomplus", zoom, {"MenuAffich", "211"}, kAlways,
              &frmmain::mnu_affzoomplus_Click, "Ctrl++; Ctrl+="),
        Entry("mnu_affzoommoins", zoom, {"MenuAffich", "212"}, kAlways,
              &frmmain::mnu_affzoommoins_Click, "Ctrl+-"),
        Entry("mnu_affzoom100", zoom, {"MenuAffich", "213"}, kAlways,
              &frmmain::mnu_affzoom100_Click, "Ctrl+0"),
        Entry("mnu_affajuste", zoom, {"MenuAffich", "214"}, kAlways, &frmmain::mnu_affajuste_Click,
              "F"),
        Below(Entry("mnu_affclear", menu, {"MenuAffich", "10"}, kAlways,
                    &frmmain::mnu_affclear_Click)),
        Below(
            Entry("mnu_affLang", menu, {"MenuAffich", "11"}, kAlways, &frmmain::mnu_affLang_Click)),
    };
}

std::vector<Command> RibMenu() {
    const char *menu = "mnuprofil";
    const char *edge = "mnu_profilba";
    return {
        Menu(menu, {"MenuProfil", "1"}),
        Entry("mnu_profilcorde", menu, {"MenuProfil", "2"}, kAlways,
              &frmmain::mnu_profilcorde_Click),
        Entry("mnu_profilepcoffrage", menu, {"MenuProfil", "3"}, kRib,
              &frmmain::mnu_profilepcoffrage_Click),
        SubMenu(edge, menu, {"MenuProfil", "4"}, kRib),
        Entry("mnu_profilbaD", edge, {"MenuProfil", "5"}, kAlways, &frmmain::mnu_profilbaD_Click),
        Entry("mnu_profilbaC", edge, {"MenuProfil", "6"}, kAlways, &frmmain::mnu_profilbaC_Click),
        Entry("mnu_profillongeron", menu, {"MenuProfil", "7"}, kRib,
              &frmmain::mnu_profillongeron_Click),
        Entry("mnu_profiltrou", menu, {"MenuProfil", "8"}, kRib, &frmmain::mnu_profiltrou_Click),
        Entry("mnu_profilbf", menu, {"MenuProfil", "9"}, kRib, &frmmain::mnu_profilbf_Click),
        Entry("mnu_profilTalon", menu, {"MenuProfil", "10"}, kFile,
              &frmmain::mnu_profilTalon_Click),
    };
}

std::vector<Command> LayoutMenu() {
    const char *menu = "mnu_param";
    return {
        Menu(menu, {"MenuLayout", "1"}, kWithRib | kDiesOnClear | kNotInView),
        Entry("mnu_paramrep", menu, {"MenuLayout", "2"}, kAlways, &frmmain::mnu_paramrep_Click),
        Entry("mnu_parambloc", menu, {"MenuLayout", "3"}, kAlways, &frmmain::mnu_parambloc_Click),
        Ailleurs("mnu_paramvril", menu, {"MenuLayout", "4"}, {"MenuLayout", "230"}),
    };
}

std::vector<Command> ToolsMenu() {
    const char *menu = "mnu_outil";
    return {
        Menu(menu, {"MenuOutils", "1"}),
        Entry("mnu_OutilCompare", menu, {"MenuOutils", "2"}, kAlways,
              &frmmain::mnu_OutilCompare_Click),
        Entry("mnu_outilnervinter", menu, {"MenuOutils", "3"}, kAlways,
              &frmmain::mnu_outilnervinter_Click),
        Entry("mnu_outilevolut", menu, {"MenuOutils", "4"}, kAlways,
              &frmmain::mnu_outilevolut_Click),
        Entry("mnu_outilevolut2", menu, {"MenuOutils", "4a"}, kAlways,
              &frmmain::mnu_outilevolut2_Click),
        Entry("mnu_outilpanneau", menu, {"Panel", "100"}, kAlways,
              &frmmain::mnu_outilpanneau_Click),
        Entry("mnu_outilaile", menu, {"Plan", "140"}, kAlways, &frmmain::mnu_outilaile_Click),
        Entry("mnu_outilEpCourb", menu, {"MenuOutils", "5"}, kAlways,
              &frmmain::mnu_outilEpCourb_Click),
        Entry("mnu_outilAngle", menu, {"MenuOutils", "6"}, kAlways, &frmmain::mnu_outilAngle_Click),
        Entry("mnu_outilInclinaison", menu, {"MenuOutils", "7"}, kAlways,
              &frmmain::mnu_outilInclinaison_Click),
        Entry("mnu_OutlilDiedre", menu, {"MenuOutils", "10"}, kAlways,
              &frmmain::mnu_OutlilDiedre_Click),
        Entry("mnu_Outilcoord", menu, {"MenuOutils", "11"}, kWithRib,
              &frmmain::mnu_Outilcoord_Click),
        Entry("mnu_Outilcoupl", menu, {"MenuOutils", "12"}, kAlways,
              &frmmain::mnu_Outilcoupl_Click),
        Below(Entry("mnu_calc", menu, {"MenuOutils", "13"}, kAlways, &frmmain::mnu_calc_Click)),
    };
}

std::vector<Command> HelpMenu() {
    const char *menu = "mnu_help";
    return {
        Menu(menu, {"MenuHelp", "1"}),
        Entry("mnu_helpsearch", menu, {"MenuHelp", "2"}, kAlways, &frmmain::mnu_helpsearch_Click,
              "F1"),
        // Its caption is a fixed word and the word for version; see AppliqueLangue.
        Entry("mnu_helpVersion", menu, {"FrmAbout", "3"}, kAlways, &frmmain::mnu_helpVersion_Click),
        Entry("mnu_helpConfig", menu, {"MenuHelp", "4"}, kAlways, &frmmain::mnu_helpConfig_Click),
        Below(Entry("mnu_helpAbout", menu, {"MenuHelp", "3"}, kAlways,
                    &frmmain::mnu_helpAbout_Click)),
    };
}

std::vector<Command> AllMenus() {
    std::vector<Command> all;
    for (const auto &menu :
         {FileMenu(), EditMenu(), ViewMenu(), RibMenu(), LayoutMenu(), ToolsMenu(), HelpMenu()}) {
        Ajoute(all, menu);
    }
    return all;
}

} // namespace

const std::vector<Command> &MenuCommands() {
    static const std::vector<Command> commands = AllMenus();
    return commands;
}

const std::vector<PushButton> &PushButtons() {
    static const std::vector<PushButton> buttons = {
        {"cmdprofil",
         {"MainTolbar", "11"},
         {"MainTolbar", "12"},
         kAlways,
         &frmmain::mnu_fileprofilopen_Click},
        {"cmdcorde",
         {"MainTolbar", "13"},
         {"MainTolbar", "14"},
         kAlways,
         &frmmain::mnu_profilcorde_Click},
        {"cmdba", {"MainTolbar", "15"}, {"MainTolbar", "16"}, kRib, &frmmain::cmdba_Click},
        {"cmdlongeron",
         {"MainTolbar", "17"},
         {"MainTolbar", "18"},
         kRib,
         &frmmain::mnu_profillongeron_Click},
        {"cmdtrou",
         {"MainTolbar", "19"},
         {"MainTolbar", "20"},
         kRib,
         &frmmain::mnu_profiltrou_Click},
        {"cmdbf", {"MainTolbar", "21"}, {"MainTolbar", "22"}, kRib, &frmmain::mnu_profilbf_Click},
    };
    return buttons;
}

const std::vector<ToolButton> &ToolButtons() {
    static const std::vector<ToolButton> buttons = {
        {1, {"MainTolbar", "1"}, kAlways, nullptr},
        {2, {"MainTolbar", "2"}, kAlways, &frmmain::mnu_fileopen_Click},
        {3, {"MainTolbar", "3"}, kFile, &frmmain::mnu_filesaveas_Click},
        {4, {"MainTolbar", "4"}, kAlways, nullptr},
        {9, {"Undo", "8"}, kAlways, &frmmain::mnu_editannule_Click},
        {10, {"Undo", "9"}, kAlways, &frmmain::mnu_editretablit_Click},
        {11, {"MainTolbar", "4"}, kAlways, nullptr},
        // Stays alive when the rib is cleared: only its menu entry dies then.
        {5, {"MainTolbar", "5"}, kWithRib | kAliveInView, &frmmain::mnu_filepage_Click},
        {6, {"MainTolbar", "6"}, kAlways, nullptr},
        {7, {"MainTolbar", "7"}, kFile, &frmmain::mnu_fileprint_Click},
        {8, {"MainTolbar", "8"}, kAlways, nullptr},
    };
    return buttons;
}

} // namespace loftwing
