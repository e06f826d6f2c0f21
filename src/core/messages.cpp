#include "core/messages.h"

#include "base/version.h"

namespace loftwing {

namespace {

std::string FailureText(const std::string &opening, const std::string &middle, int number,
                        const std::string &description) {
    return opening + " # " + std::to_string(number) + " " + middle + " " + kTitre + "\n" +
           description;
}

} // namespace

void Messages::PoseMotsDesBoutons() const {
    platform.SetButtonWords({Text({"TextButton", "1"}), Text({"TextButton", "2"}),
                             Text({"TextButton", "30"}), Text({"TextButton", "31"}),
                             Text({"TextButton", "32"}), Text({"TextButton", "180"}),
                             Text({"Undo", "30"}), Text({"Undo", "31"})});
}

void Messages::Inform(const std::string &text, const std::string &title) const {
    Tell(text, title, BoxIcon::information);
}

void Messages::Tell(const std::string &text, const std::string &title, BoxIcon icon) const {
    platform.Show(MessageBox{text, title, icon, BoxButtons::ok, BoxAnswer::ok});
}

bool Messages::Confirm(const std::string &text, const std::string &title) const {
    return platform.Show(MessageBox{text, title, BoxIcon::question, BoxButtons::yes_no,
                                    BoxAnswer::no}) == BoxAnswer::yes;
}

bool Messages::ConfirmLoss(const std::string &text, const std::string &title,
                           const std::function<bool()> &save) const {
    const BoxAnswer answer = platform.Show(
        MessageBox{text, title, BoxIcon::question, BoxButtons::save_yes_no, BoxAnswer::no});
    return answer == BoxAnswer::yes || (answer == BoxAnswer::save && save());
}

std::string Messages::TexteEchec(const Failure &failure) const {
    return FailureText(Text({"Erreur", "1"}), Text({"Erreur", "2"}), failure.number,
                       Description(failure));
}

void Messages::Report(const Failure &failure, const std::string &label) const {
    Inform(TexteEchec(failure), label);
}

void Messages::ReportPlot(const Failure &failure, const std::string &label,
                          const std::string &window) const {
    Inform(FailureText(Text({"Erreur", "3"}), Text({"Erreur", "2"}), failure.number,
                       Description(failure)),
           window + Text({"Erreur", "1"}) + label);
}

} // namespace loftwing
