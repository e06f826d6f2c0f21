#include "support/qt_monkey_platform.h"

#include "support/test_printer.h"

#include <array>

namespace loftwing {

namespace {

std::vector<BoxAnswer> AnswersTo(BoxButtons buttons) {
    switch (buttons) {
    case BoxButtons::ok_cancel:
        return {BoxAnswer::ok, BoxAnswer::cancel};
    case BoxButtons::yes_no:
        return {BoxAnswer::yes, BoxAnswer::no};
    case BoxButtons::retry_cancel:
        return {BoxAnswer::retry, BoxAnswer::cancel};
    case BoxButtons::locate_cancel:
        return {BoxAnswer::locate, BoxAnswer::cancel};
    case BoxButtons::save_yes_no:
        return {BoxAnswer::save, BoxAnswer::yes, BoxAnswer::no};
    case BoxButtons::save_discard_cancel:
        return {BoxAnswer::save, BoxAnswer::discard, BoxAnswer::cancel};
    case BoxButtons::ok:
        break;
    }
    return {BoxAnswer::ok};
}

/// "PDF (*.pdf)" is for "pdf".
std::string ExtensionIn(const std::string &filter) {
    const std::size_t star = filter.find("*.");
    if (star == std::string::npos) {
        return {};
    }
    const std::size_t begin = star + 2;
    return filter.substr(begin, filter.find_first_of(") ;", begin) - begin);
}

} // namespace

ChancePlatform::ChancePlatform(Dice &dice, MonkeyFiles &files, MonkeyLog &log)
    : QtPlatform(files.Folder().Path()), dice_(dice), files_(files), log_(log) {}

bool ChancePlatform::AnswersAtOnce() {
    constexpr int kAsWindow = 4; // one box of so many comes up as the window that it is
    return hurries || !dice_.OneIn(kAsWindow);
}

BoxAnswer ChancePlatform::Answer(const MessageBox &box) {
    const std::vector<BoxAnswer> answers = AnswersTo(box.buttons);
    const int chosen = dice_.Below(static_cast<int>(answers.size()));
    log_.Line("  box \"" + box.title + "\": " + box.text.substr(0, 150) + " -> " +
              std::to_string(chosen));
    return answers[static_cast<std::size_t>(chosen)];
}

BoxAnswer ChancePlatform::Show(const MessageBox &box) {
    return AnswersAtOnce() ? Answer(box) : QtPlatform::Show(box);
}

TickedAnswer ChancePlatform::ShowWithTick(const MessageBox &box, const std::string &tick) {
    if (!AnswersAtOnce()) {
        return QtPlatform::ShowWithTick(box, tick);
    }
    const BoxAnswer answer = Answer(box);
    return {answer, dice_.OneIn(2)};
}

std::optional<std::string> ChancePlatform::Ask(const std::string &text, const std::string &title,
                                               const std::string &proposed) {
    if (!AnswersAtOnce()) {
        return QtPlatform::Ask(text, title, proposed);
    }
    static const std::array<const char *, 9> kTexts = {"1",  "3", "5", "12",   "13",
                                                       "-1", "",  "x", "1e308"};
    const char *answer = dice_.Of(kTexts);
    log_.Line(std::string("  asked, says ") + answer);
    return dice_.OneIn(6) ? std::nullopt : std::optional<std::string>(answer);
}

std::string ChancePlatform::Chosen(const std::string &what, const std::string &path) {
    const bool cancelled = dice_.OneIn(6);
    log_.Line("  " + what + ": " + (cancelled ? "cancelled" : path));
    return cancelled ? std::string() : path;
}

std::string ChancePlatform::ChooseOpenFile(const FileQuestion &question) {
    return Chosen("opens", files_.ToOpen(ExtensionIn(question.filter_text)));
}

std::string ChancePlatform::ChooseSaveFile(const FileQuestion &question) {
    return Chosen("saves", files_.ToSave(question.default_extension));
}

FormAnswer ChancePlatform::ChooseSaveForm(const FileQuestion &question,
                                          const std::vector<std::string> &more_filters) {
    std::vector<std::string> filters = more_filters;
    filters.insert(filters.begin(), question.filter_text);
    const int form = dice_.Below(static_cast<int>(filters.size()));
    const std::string &filter = filters[static_cast<std::size_t>(form)];
    return {Chosen("saves", files_.ToSave(ExtensionIn(filter))), form};
}

std::string ChancePlatform::ChooseFolder(const std::string & /*title*/,
                                         const std::string & /*folder*/) {
    return Chosen("folder", files_.AnyFolder());
}

void ChancePlatform::ProcessEvents() {
    ++at_work_;
    QtPlatform::ProcessEvents();
    --at_work_;
    if (went_on) {
        went_on();
    }
}

char ChancePlatform::DecimalSeparator() {
    return dice_.OneIn(2) ? '.' : ',';
}

std::string ChancePlatform::StoredValue(const std::string &section, const std::string &key) {
    return store_[{section, key}];
}

void ChancePlatform::StoreValue(const std::string &section, const std::string &key,
                                const std::string &value) {
    store_[{section, key}] = value;
}

void ChancePlatform::OpenPage(const std::string &url) {
    log_.Line("  page " + url);
}

bool ChancePlatform::StartProgram(const std::string &program) {
    log_.Line("  program " + program);
    return dice_.OneIn(2);
}

void ChancePlatform::ShowPrinterSettings() {
    log_.Line("  printer settings");
}

std::string ChancePlatform::PrinterName() {
    return dice_.OneIn(3) ? "" : "Printer of chance";
}

std::unique_ptr<Printer> ChancePlatform::OpenPrinter(const PrintQuestion &question) {
    const int what = dice_.Below(6);
    log_.Line("  printer " + std::to_string(what));
    if (what == 0) {
        return nullptr;
    }
    if (what == 1) {
        throw MakeFailure(kDeviceError, "Printer of chance");
    }
    if (what == 2) {
        return QtPlatform::OpenPrinter(question); // a PDF file, as no printer is installed
    }
    auto printer = std::make_unique<TestPrinter>();
    printer->fails_at_sheet = what == 3 ? 1 : -1;
    printer->fails_at_end = what == 4;
    printer->own_paper = {297, 210};
    return printer;
}

} // namespace loftwing
