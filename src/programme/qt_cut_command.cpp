#include "programme/qt_cut_command.h"

#include "base/whole_file.h"
#include "platform/busy_pointer.h"
#include "programme/nom_propose.h"
#include "programme/qt_cut_forms.h"

namespace loftwing {

namespace {

std::string FiltreDe(const FormeDecoupe &form) {
    return form.mots + " (*." + form.extension + ")";
}

/// The place in the table of the form that was used last, of the first where none was.
int PlaceDe(const std::string &forme) {
    const FormeDecoupe *form = TrouveFormeDecoupe(forme);
    return form == nullptr ? 0 : static_cast<int>(form - FormesDecoupe().data());
}

/// `question` has what the box is called, where it opens and what it proposes.
FormAnswer DemandeFichier(const Programme &programme, FileQuestion question,
                          const std::string &forme) {
    const std::vector<FormeDecoupe> &forms = FormesDecoupe();
    question.filter_text = FiltreDe(forms.front());
    question.form = PlaceDe(forme);
    question.default_extension = At(forms, question.form).extension;
    question.name += "." + question.default_extension;
    std::vector<std::string> more;
    for (std::size_t i = 1; i < forms.size(); ++i) {
        more.push_back(FiltreDe(forms[i]));
    }
    return programme.platform.ChooseSaveForm(question, more);
}

} // namespace

std::string EnregistreDecoupe(const Programme &programme, const std::vector<Piece> &pieces,
                              ChoixDecoupe &choix) {
    FileQuestion question;
    question.title = programme.Text({"Piece", "103"});
    question.name = NomPropose(programme);
    const FormAnswer answer = DemandeFichier(programme, question, choix.forme);
    if (answer.path.empty()) {
        return {};
    }
    const Sablier sablier(programme.platform);
    const FormeDecoupe &form = At(FormesDecoupe(), answer.form);
    WriteWholeFile(answer.path,
                   EcritDecoupe(programme, form, pieces,
                                choix.polylignes ? AnneauxDxf::polylignes : AnneauxDxf::lignes),
                   Flush::yes);
    choix.forme = form.extension;
    RetientChoixDecoupe(programme, choix);
    return answer.path;
}

std::vector<std::string> EnregistrePlanches(const Programme &programme, const Imbrication &planches,
                                            FileQuestion question, SaisiePlanches &choix,
                                            FichiersEcritsIci &ecrits) {
    const FormAnswer answer = DemandeFichier(programme, std::move(question), choix.forme);
    if (answer.path.empty()) {
        return {};
    }
    const FormeDecoupe &form = At(FormesDecoupe(), answer.form);
    const std::vector<FileToWrite> files =
        EcritPlanches(programme, form, planches,
                      choix.polylignes ? AnneauxDxf::polylignes : AnneauxDxf::lignes, answer.path);
    std::vector<std::string> paths = PathsOf(files);
    FichiersEcritsIci asked = ecrits;
    asked.Note({answer.path}); // by the box of the name
    const FichiersEcrits there = FichiersDejaLa(paths, asked);
    if (!there.empty() && !programme.messages.Confirm(TexteRemplacement(there, programme.messages),
                                                      programme.Text({"Panel", "155"}))) {
        return {};
    }
    const Sablier sablier(programme.platform);
    WriteWholeFiles(files, Flush::yes);
    ecrits.Note(paths);
    choix.forme = form.extension;
    RetientPlanches(programme, choix);
    return paths;
}

} // namespace loftwing
