#include "programme/startup.h"

#include "base/version.h"
#include "programme/load.h"

namespace loftwing {

namespace {

constexpr char kPoint = '.';

/// Where the settings file notes that the warning of the separator isn't wanted again.
constexpr const char *kSection = "Separateur";
constexpr const char *kCle = "Dit";

std::string LangueNotee(Programme &programme) {
    try {
        return GetINIFile("Language", "Langue", programme.paths.fichier);
    } catch (const Failure &) {
        programme.settings.fichier.perdu = true; // told when there is a language for it
        return {};
    }
}

bool SeparateurNote(const Programme &programme) {
    try {
        return !GetINIFile(kSection, kCle, programme.paths.fichier).empty();
    } catch (const Failure &) {
        return false; // a settings file that can't be read is told where settings are read
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
        language.FichierLng = LngIni::Fichier(programme.paths.langues, name);
        programme.messages.Report(failure, " GetINIFile");
    }
}

/// Whether the user still has to hear of a separator that is no point. Once is enough: numbers are
/// typed with either sign, and nothing that is written depends on it.
bool SeparateurADire(const Programme &programme) {
    return programme.platform.DecimalSeparator() != kPoint && !programme.SeparateurDit &&
           !SeparateurNote(programme);
}

/// Shows the warning of the separator. What its tick says is kept whatever the answer is.
BoxAnswer DitSeparateur(Programme &programme, const MessageBox &box) {
    const TickedAnswer told =
        programme.platform.ShowWithTick(box, programme.Text({"Message", "141"}));
    programme.SeparateurDit = true;
    if (told.ticked) {
        // Where settings can't be kept, the next start tells it again.
        WriteINIFile(kSection, kCle, "1", programme.paths.fichier);
    }
    return told.answer;
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
    programme.messages.PoseMotsDesBoutons();
    DitReglagesPerdus(programme);
}

bool ControleSeparateur(Programme &programme) {
    if (!SeparateurADire(programme)) {
        return true;
    }
    const Messages &messages = programme.messages;
    const std::string title = messages.Text({"Message", "16"});
    const std::string text =
        messages.Text({"Message", "10"}) + "\n" + messages.Text({"Message", "11"}) + "\n" +
        messages.Text({"Message", "12"}) + "\n" + messages.Text({"Message", "13"}) + "\n" +
        messages.Text({"Message", "14"}) + "\n" + messages.Text({"Message", "25"}) + "\n" +
        messages.Text({"Message", "15"});
    const BoxAnswer quit = DitSeparateur(
        programme, {text, title, BoxIcon::warning, BoxButtons::yes_no, BoxAnswer::no});
    if (quit == BoxAnswer::yes) {
        return false;
    }
    messages.Inform(messages.Text({"Message", "11"}) + "\n" + messages.Text({"Message", "26"}),
                    title);
    return true;
}

bool ControleSeparateurCommande(Programme &programme, LngKey tip) {
    if (!SeparateurADire(programme)) {
        return true;
    }
    const Messages &messages = programme.messages;
    const std::string text =
        messages.Text({"Message", "11"}) + "\n" + messages.Text({"Message", "14"}) + "\n" +
        messages.Text({"Message", "25"}) + "\n" + messages.Text({"Message", "27"}) + " : " +
        messages.Text(tip) + "\n" + messages.Text({"Message", "26"});
    const BoxAnswer answer =
        DitSeparateur(programme, {text, messages.Text({"Message", "16"}), BoxIcon::warning,
                                  BoxButtons::ok_cancel, BoxAnswer::ok});
    return answer != BoxAnswer::cancel;
}

} // namespace loftwing
