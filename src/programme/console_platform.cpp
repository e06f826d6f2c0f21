#include "programme/console_platform.h"

#include "base/text_encoding.h"
#include "output/printer.h"

namespace loftwing {

BoxAnswer ConsolePlatform::Show(const MessageBox &box) {
    last_text_ = OnOneLine(box.text);
    lines_ << OnOneLine(box.title) << ": " << last_text_ << '\n';
    const bool has_yes =
        box.buttons == BoxButtons::yes_no || box.buttons == BoxButtons::save_yes_no;
    return has_yes && says_yes_ ? BoxAnswer::yes : box.fallback;
}

void ConsolePlatform::TellAgain(const ConsoleWords &words) {
    lines_ << words.lines;
    last_text_ = words.last;
}

std::optional<std::string> ConsolePlatform::Ask(const std::string &, const std::string &,
                                                const std::string &) {
    return std::nullopt;
}

std::string ConsolePlatform::ChooseOpenFile(const FileQuestion &) {
    return {};
}

std::string ConsolePlatform::ChooseSaveFile(const FileQuestion &) {
    return {};
}

FormAnswer ConsolePlatform::ChooseSaveForm(const FileQuestion &, const std::vector<std::string> &) {
    return {};
}

std::string ConsolePlatform::ChooseFolder(const std::string &, const std::string &) {
    return {};
}

std::string ConsolePlatform::StoredValue(const std::string &, const std::string &) {
    return {};
}

std::unique_ptr<Printer> ConsolePlatform::OpenPrinter(const PrintQuestion &) {
    return nullptr;
}

} // namespace loftwing
