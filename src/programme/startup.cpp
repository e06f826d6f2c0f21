#include "programme/startup.h"

#include "base/version.h"

#include <filesystem>

namespace loftwing {

namespace {

constexpr char kPoint = '.';

std::string LangueNotee(const Programme &programme) {
    try {
        return GetINIFile("Language", "Langue", programme.paths.fichier);
    } catch (const Failure &failure) {
        programme.messages.Report(failure, " GetINIFile");
        return {};
    }
}

/// The language by name, empty when the user chose none.
std::string LangueChoisie(Programme &programme, const std::function<void()> &choose) {
    std::string name = LangueNotee(programme);
    if (!name.empty()) {
        return name;
    }
    programme.language.LangueAbsente = true;
    programme.language.LangueCourante.clear();
    choose();
    name = LangueNotee(programme);
    // Where settings can't be kept, the choice still holds for this run.
    return name.empty() ? programme.language.LangueCourante : name;
}

void Charge(Programme &programme, const std::string &name) {
    LngIni &language = programme.language;
    try {
        language.Charge(programme.paths.langues, name);
    } catch (const Failure &failure) {
        language.LangueCourante = name;
        language.FichierLng =
            (std::filesystem::path(programme.paths.langues) / (name + ".lng")).string();
        programme.messages.Report(failure, " GetINIFile");
    }
}

} // namespace

void ChargeLangue(Programme &programme, const std::function<void()> &choose) {
    std::string name = LangueChoisie(programme, choose);
    while (name.empty()) {
        programme.messages.Tell("Please select a language", kTitre, BoxIcon::stop);
        name = LangueChoisie(programme, choose);
    }
    Charge(programme, name);
    programme.language.LangueAbsente = false;
}

bool ControleSeparateur(Programme &programme) {
    if (programme.platform.DecimalSeparator() == kPoint) {
        return true;
    }
    const Messages &messages = programme.messages;
    const std::string title = messages.Text({"Message", "16"});
    const std::string text =
        messages.Text({"Message", "10"}) + "\n" + messages.Text({"Message", "11"}) + "\n" +
        messages.Text({"Message", "12"}) + "\n" + messages.Text({"Message", "13"}) + "\n" +
        messages.Text({"Message", "14"}) + "\n" + messages.Text({"Message", "25"}) + "\n" +
        messages.Text({"Message", "15"});
    const BoxAnswer quit = programme.platform.Show(
        MessageBox{text, title, BoxIcon::warning, BoxButtons::yes_no, BoxAnswer::no});
    if (quit == BoxAnswer::yes) {
        return false;
    }
    messages.Inform(messages.Text({"Message", "11"}) + "\n" + messages.Text({"Message", "26"}),
                    title);
    return true;
}

bool ControleSeparateurCommande(Programme &programme, LngKey tip) {
    if (programme.platform.DecimalSeparator() == kPoint) {
        return true;
    }
    const Messages &messages = programme.messages;
    const std::string text =
        messages.Text({"Message", "11"}) + "\n" + messages.Text({"Message", "14"}) + "\n" +
        messages.Text({"Message", "25"}) + "\n" + messages.Text({"Message", "27"}) + " : " +
        messages.Text(tip) + "\n" + messages.Text({"Message", "26"});
    const BoxAnswer answer =
        programme.platform.Show(MessageBox{text, messages.Text({"Message", "16"}), BoxIcon::warning,
                                           BoxButtons::ok_cancel, BoxAnswer::ok});
    return answer != BoxAnswer::cancel;
}

} // namespace loftwing
