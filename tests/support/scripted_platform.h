/// A world for tests: answers come from lists, everything that appears is recorded, and what was
/// not foreseen fails the test.
#pragma once

#include "output/printer.h"
#include "platform/platform.h"

#include <gmock/gmock.h>

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <source_location>
#include <string>
#include <vector>

namespace loftwing {

/// What an expected box must show; what is left out may be anything.
struct BoxLook {
    testing::Matcher<const std::string &> text = testing::_;
    testing::Matcher<const std::string &> title = testing::_;
    std::optional<BoxIcon> icon = {};
    std::optional<BoxButtons> buttons = {};
    std::function<void()> meanwhile = {}; ///< happens while the box is open
};

class ScriptedPlatform : public Platform {
  public:
    /// Fails the test when an expected answer was never asked for.
    ~ScriptedPlatform() override;

    /// A box will come, after those already expected, and the user answers it so.
    void Expect(BoxAnswer answer, const BoxLook &look = {},
                const std::source_location &where = std::source_location::current());
    /// So many boxes will come, whatever they say, which the user answers by OK.
    void ExpectBoxes(int count,
                     const std::source_location &where = std::source_location::current());
    /// No box is expected any more; gives how many of them had not come.
    std::size_t ForgetExpected();

    std::vector<MessageBox> boxes; ///< every box that appeared, in order
    std::string LastBox() const { return boxes.empty() ? "" : boxes.back().text; }
    std::deque<std::string> files_expected;
    std::vector<FileQuestion> file_questions;
    int form_chosen = 0;                      ///< in a chooser of several forms
    std::vector<std::string> filters_offered; ///< by the last such chooser
    std::deque<std::string> folders_expected;
    /// What a folder chooser was asked with.
    struct FolderQuestion {
        std::string title;
        std::string folder;
    };
    std::vector<FolderQuestion> folder_questions;
    std::deque<std::optional<std::string>> texts_expected;
    std::map<std::pair<std::string, std::string>, std::string> store;
    std::vector<std::string> pages_opened;
    std::vector<std::string> programs_started;
    std::vector<int> help_contexts;
    int help_closed = 0;
    int printer_settings_shown = 0;
    ButtonWords button_words;
    Pointer pointer = Pointer::normal;
    char decimal_separator = '.';
    std::string system_language;
    bool leaves_ticks = true;               ///< as boxes have them at first
    std::vector<std::string> ticks_offered; ///< by boxes with one
    std::set<std::string> locked; ///< files that are held, by the program or by somebody else
    bool programs_start = true;
    std::string printer_name = "Test printer";
    /// Makes the printer of a job; by default the user cancels.
    std::function<std::unique_ptr<Printer>(const PrintQuestion &)> make_printer;
    std::vector<PrintQuestion> print_questions;

    BoxAnswer Show(const MessageBox &box) override;
    TickedAnswer ShowWithTick(const MessageBox &box, const std::string &tick) override;
    void SetButtonWords(const ButtonWords &words) override { button_words = words; }
    std::optional<std::string> Ask(const std::string &text, const std::string &title,
                                   const std::string &proposed) override;
    std::string ChooseOpenFile(const FileQuestion &question) override;
    std::string ChooseSaveFile(const FileQuestion &question) override;
    FormAnswer ChooseSaveForm(const FileQuestion &question,
                              const std::vector<std::string> &more_filters) override;
    std::string ChooseFolder(const std::string &title, const std::string &folder) override;
    void SetPointer(Pointer shape) override { pointer = shape; }
    void ProcessEvents() override {}
    char DecimalSeparator() override { return decimal_separator; }
    std::string SystemLanguage() override { return system_language; }
    std::string StoredValue(const std::string &section, const std::string &key) override;
    void StoreValue(const std::string &section, const std::string &key,
                    const std::string &value) override;
    std::unique_ptr<FileLock> LockFile(const std::string &path) override;
    void OpenPage(const std::string &url) override { pages_opened.push_back(url); }
    bool StartProgram(const std::string &program) override;
    void ShowHelp(int context) override { help_contexts.push_back(context); }
    void CloseHelp() override { ++help_closed; }
    void ShowPrinterSettings() override { ++printer_settings_shown; }
    std::string PrinterName() override { return printer_name; }
    std::unique_ptr<Printer> OpenPrinter(const PrintQuestion &question) override;

  private:
    struct ExpectedBox {
        BoxAnswer answer;
        BoxLook look;
        std::source_location where; ///< what expects it
    };
    std::deque<ExpectedBox> boxes_expected_;

    std::string NextFile(const FileQuestion &question);
};

} // namespace loftwing
