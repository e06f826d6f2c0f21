/// A world for tests: answers come from lists, everything that appears is recorded, and what was
/// not foreseen fails the test.
#pragma once

#include "output/printer.h"
#include "platform/platform.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace loftwing {

class ScriptedPlatform : public Platform {
  public:
    /// One expected box: what the user answers, and optionally something to do while it is open.
    struct Scripted {
        BoxAnswer answer = BoxAnswer::ok;
        std::function<void(const MessageBox &)> look;
    };

    /// Fails the test when an expected answer was never asked for.
    ~ScriptedPlatform() override;

    void Expect(BoxAnswer answer) { boxes_expected.push_back({answer, {}}); }

    std::deque<Scripted> boxes_expected;
    std::vector<MessageBox> boxes; ///< every box that appeared, in order
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
    bool programs_start = true;
    std::string printer_name = "Test printer";
    /// Makes the printer of a job; by default the user cancels.
    std::function<std::unique_ptr<Printer>(const PrintQuestion &)> make_printer;
    std::vector<PrintQuestion> print_questions;

    BoxAnswer Show(const MessageBox &box) override;
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
    std::string StoredValue(const std::string &section, const std::string &key) override;
    void StoreValue(const std::string &section, const std::string &key,
                    const std::string &value) override;
    void OpenPage(const std::string &url) override { pages_opened.push_back(url); }
    bool StartProgram(const std::string &program) override;
    void ShowHelp(int context) override { help_contexts.push_back(context); }
    void CloseHelp() override { ++help_closed; }
    void ShowPrinterSettings() override { ++printer_settings_shown; }
    std::string PrinterName() override { return printer_name; }
    std::unique_ptr<Printer> OpenPrinter(const PrintQuestion &question) override;

  private:
    std::string NextFile(const FileQuestion &question);
};

} // namespace loftwing
