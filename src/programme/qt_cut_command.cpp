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

FormAnswer DemandeFichier(const Programme &programme, const ChoixDecoupe &choix) {
    const std::vector<FormeDecoupe> &forms = FormesDecoupe();
    FileQuestion question;
    question.title = programme.Text({"Piece", "103"});
    question.filter_text = FiltreDe(forms.front());
    question.form = PlaceDe(choix.forme);
    question.default_extension = At(forms, question.form).extension;
    question.name = NomPropose(programme) + "." + question.default_extension;
    std::vector<std::string> more;
    for (std::size_t i = 1; i < forms.size(); ++i) {
        more.push_back(FiltreDe(forms[i]));
    }
    return programme.platform.ChooseSaveForm(question, more);
}

} // namespace

std::string EnregistreDecoupe(const Programme &programme, const std::vector<Piece> &pieces,
                              ChoixDecoupe &choix) {
    const FormAnswer answer = DemandeFichier(programme, choix);
    if (answer.path.empty()) {
        return {};
    }
    const Sablier sablier(programme.platform);
    const FormeDecoupe &form = At(FormesDecoupe(), answer.form);
    WriteWholeFile(answer.path,
                   EcritDecoupe(programme, form, pieces,
                                choix.polylignes ? AnneauxDxf::polylignes : AnneauxDxf::lignes));
    choix.forme = form.extension;
    RetientChoixDecoupe(programme, choix);
    return answer.path;
}

} // namespace loftwing
