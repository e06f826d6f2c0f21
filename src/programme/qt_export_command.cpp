#include "programme/qt_export_command.h"

#include "base/whole_file.h"
#include "lang/ini_file.h"
#include "platform/busy_pointer.h"
#include "programme/dossiers.h"
#include "programme/nom_propose.h"
#include "programme/reglage_retenu.h"
#include "programme/startup.h"

#include <algorithm>

namespace loftwing {

namespace {

constexpr const char *kSection = "Export";

std::string VarianteRetenue(const Programme &programme, const EntreeExport &entree) {
    return ReglageRetenu(programme, kSection, entree.forme);
}

void RetientVariante(const Programme &programme, const EntreeExport &entree,
                     const std::string &variante) {
    if (entree.forme != nullptr && VarianteRetenue(programme, entree) != variante) {
        WriteINIFile(kSection, entree.forme, variante, programme.paths.fichier);
    }
}

/// The place in `forms` of the form that was used last, at first and where the settings file names
/// none of them the usual one.
int FormeRetenue(const Programme &programme, const EntreeExport &entree,
                 const std::vector<const ExportForm *> &forms) {
    if (entree.forme == nullptr) {
        return 0;
    }
    const std::string variant = VarianteRetenue(programme, entree);
    const auto form = std::find_if(forms.begin(), forms.end(), [&](const ExportForm *each) {
        return each->variant == variant;
    });
    return form == forms.end() ? 0 : static_cast<int>(form - forms.begin());
}

struct Choix {
    std::string path; ///< empty: called off
    const ExportForm *form = nullptr;
};

Choix DemandeFichier(const Programme &programme, const EntreeExport &entree,
                     const std::vector<const ExportForm *> &forms) {
    const Messages &messages = programme.messages;
    const ExportForm &first = *forms.front();
    FileQuestion question;
    question.filter_text = FiltreDe(first, messages);
    question.title = entree.titre ? messages.Text(*entree.titre) : question.filter_text;
    question.name = NomPropose(programme) + "." + first.extension;
    question.default_extension = first.extension;
    if (entree.dossier != nullptr) {
        question.folder =
            DossierRetenu(programme, entree.dossier, programme.settings.repertoires.RepProfilevol);
    }
    if (forms.size() == 1) {
        return {programme.platform.ChooseSaveFile(question), &first};
    }
    question.form = FormeRetenue(programme, entree, forms);
    std::vector<std::string> more;
    for (std::size_t i = 1; i < forms.size(); ++i) {
        more.push_back(FiltreDe(*forms[i], messages));
    }
    const FormAnswer answer = programme.platform.ChooseSaveForm(question, more);
    return {answer.path, At(forms, static_cast<long>(answer.form))};
}

Exported Fait(Programme &programme, const ExportForm &form, const ReglagePage &page) {
    const Sablier sablier(programme.platform);
    return form.Export(programme, page);
}

void Ecrit(const Programme &programme, const EntreeExport &entree, const Choix &choix,
           const Exported &exported) {
    if (entree.dossier != nullptr) {
        RetientDossier(programme, entree.dossier, choix.path);
    }
    if (exported.bytes) {
        RetientVariante(programme, entree, choix.form->variant);
        WriteWholeFile(choix.path, *exported.bytes, Flush::yes);
    }
    if (exported.rupture) {
        throw *exported.rupture;
    }
}

} // namespace

bool ExporteVue(Programme &programme, const EntreeExport &entree, const ReglagePage &page) {
    if (entree.separateur) {
        // A warning only: the export writes points whatever the system has.
        ControleSeparateurCommande(programme, *entree.separateur);
    }
    const std::vector<const ExportForm *> forms = FormesDe(entree);
    Choix choix;
    Exported exported;
    if (forms.size() == 1) {
        exported = Fait(programme, *forms.front(), page);
        if (exported.bytes) {
            choix = DemandeFichier(programme, entree, forms);
        }
    } else {
        choix = DemandeFichier(programme, entree, forms);
        if (!choix.path.empty()) {
            exported = Fait(programme, *choix.form, page);
        }
    }
    if (!choix.path.empty()) {
        Ecrit(programme, entree, choix, exported);
    }
    return !exported.failed;
}

} // namespace loftwing
