// What is saved and printed of a building plan and a list of parts.

#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "mainwindow/plan_tabs.h"
#include "platform/busy_pointer.h"
#include "platform/qt_text.h"
#include "programme/dossiers.h"
#include "programme/plan_aile.h"
#include "programme/qt_plan_forms.h"

namespace loftwing {

namespace {

constexpr const char *kDossier = "LastSavePlan";

/// A form as a save box shows it.
struct Filtre {
    std::string mots;
    std::string extension;
};

FormAnswer DemandeForme(const Programme &programme, const std::string &titre,
                        const std::string &nom, const std::vector<Filtre> &filtres) {
    const auto shown = [](const Filtre &filtre) {
        return filtre.mots + " (*." + filtre.extension + ")";
    };
    FileQuestion question;
    question.title = titre;
    question.default_extension = filtres.front().extension;
    question.name = nom + "." + question.default_extension;
    question.folder = DossierRetenu(programme, kDossier, programme.settings.repertoires.RepProfil);
    question.filter_text = shown(filtres.front());
    std::vector<std::string> more;
    for (std::size_t i = 1; i < filtres.size(); ++i) {
        more.push_back(shown(filtres[i]));
    }
    return programme.platform.ChooseSaveForm(question, more);
}

} // namespace

std::vector<DessinPlan> PlanTabs::Dessins() const {
    return DessinsDeLAile(*aile_, chkdeux.isChecked(), programme_.messages,
                          programme_.settings.Unite);
}

std::vector<TableauPieces> PlanTabs::Tables() const {
    return ListeDesPieces(*aile_, feuilles_, programme_.messages, programme_.settings.Unite);
}

/// What a list's file is proposed to be called, beside that of the plan.
std::string PlanTabs::NomDeListe() const {
    return nom_() + " - " + programme_.Text({"Plan", "103"});
}

void PlanTabs::ConnectSorties() {
    const auto click = [this](QPushButton &button, void (PlanTabs::*sortie)()) {
        connect(&button, &QPushButton::clicked, this, [this, sortie] { Sort(sortie); });
    };
    click(cmdplan, &PlanTabs::EnregistrePlan);
    click(cmdimprimerplan, &PlanTabs::ImprimePlan);
    click(cmdliste, &PlanTabs::EnregistreListe);
    click(cmdimprimerliste, &PlanTabs::ImprimeListe);
}

/// Saves or prints the wing, if there is one; why not is told.
void PlanTabs::Sort(void (PlanTabs::*sortie)()) {
    programme_.messages.Garde(" PlanTabs/Sort", [this, sortie] {
        if (!pret_()) {
            return;
        }
        if (aile_) {
            (this->*sortie)();
        } else {
            programme_.messages.Inform(manque_, S(window()->windowTitle()));
        }
    });
}

void PlanTabs::Dit(LngKey mots, const std::string &path) {
    Q_EMIT Enregistre(Q(programme_.Text(mots) + " " + ToUtf8(path)));
    RetientDossier(programme_, kDossier, path);
}

void PlanTabs::EnregistrePlan() {
    const std::string title = programme_.Text({"Plan", "101"});
    const FormAnswer answer = DemandeForme(programme_, title, nom_(),
                                           {{programme_.Text({"Plan", "120"}), "pdf"},
                                            {programme_.Text({"Plan", "121"}), "pdf"},
                                            {"SVG", "svg"},
                                            {"DXF", "dxf"}});
    if (answer.path.empty()) {
        return;
    }
    std::variant<std::string, RefusFormePlan> bytes;
    {
        const Sablier sablier(programme_.platform);
        bytes = OctetsDuPlan(static_cast<FormePlan>(answer.form), Dessins(), programme_);
        if (const auto *written = std::get_if<std::string>(&bytes)) {
            WriteWholeFile(answer.path, *written, Flush::yes);
        }
    }
    if (const auto *refused = std::get_if<RefusFormePlan>(&bytes)) {
        programme_.messages.Inform(refused->texte, title);
    } else {
        Dit({"Plan", "124"}, answer.path);
    }
}

void PlanTabs::EnregistreListe() {
    const FormAnswer answer =
        DemandeForme(programme_, programme_.Text({"Plan", "109"}), NomDeListe(),
                     {{programme_.Text({"Plan", "122"}), "txt"},
                      {programme_.Text({"Plan", "123"}), "csv"},
                      {"PDF", "pdf"}});
    if (answer.path.empty()) {
        return;
    }
    {
        const Sablier sablier(programme_.platform);
        WriteWholeFile(answer.path,
                       OctetsDeLaListe(static_cast<FormeListe>(answer.form),
                                       TitreDeListe(*aile_, programme_.messages), Tables(),
                                       programme_.settings.page),
                       Flush::yes);
    }
    Dit({"Plan", "125"}, answer.path);
}

void PlanTabs::ImprimePlan() {
    ImprimePlanSurDemande(Dessins(), programme_);
}

void PlanTabs::ImprimeListe() {
    ImprimeListeSurDemande(TitreDeListe(*aile_, programme_.messages), NomDeListe(), Tables(),
                           programme_);
}

} // namespace loftwing
