/// The world as the command line sees it: nobody to ask, boxes become lines.
#pragma once

#include "platform/platform.h"

#include <ostream>

namespace loftwing {

/// What a platform has told so far.
struct ConsoleWords {
    std::string lines; ///< on its stream
    std::string last;  ///< text of the last box
};

/// Every box is one line "TITLE: TEXT" on the stream, line ends shown as blanks. A question takes
/// its default button, or Yes where the user said so beforehand. Choosers are cancelled.
class ConsolePlatform : public Platform {
  public:
    ConsolePlatform(std::ostream &lines, bool says_yes) : lines_(lines), says_yes_(says_yes) {}

    /// Text of the last box, on one line; empty when there was none.
    const std::string &LastText() const { return last_text_; }
    /// Tells what another one has told in its place.
    void TellAgain(const ConsoleWords &words);

    BoxAnswer Show(const MessageBox &box) override;
    /// Nobody can take the tick out; nor does a run of the command line remember anything.
    TickedAnswer ShowWithTick(const MessageBox &box, const std::string &) override {
        return {Show(box), false};
    }
    void SetButtonWords(const ButtonWords &) override {}
    std::optional<std::string> Ask(const std::string &text, const std::string &title,
                                   const std::string &proposed) override;
    std::string ChooseOpenFile(const FileQuestion &question) override;
    std::string ChooseSaveFile(const FileQuestion &question) override;
    FormAnswer ChooseSaveForm(const FileQuestion &question,
                              const std::vector<std::string> &more_filters) override;
    std::string ChooseFolder(const std::string &title, const std::string &folder) override;
    void SetPointer(Pointer) override {}
    void ProcessEvents() override {}
    char DecimalSeparator() override { return '.'; }
    std::string SystemLanguage() override { return {}; }
    std::string StoredValue(const std::string &section, const std::string &key) override;
    void StoreValue(const std::string &, const std::string &, const std::string &) override {}
    /// A run of the command line has nothing to hold.
    std::unique_ptr<FileLock> LockFile(const std::string &) override { return nullptr; }
    void OpenPage(const std::string &) override {}
    bool StartProgram(const std::string &) override { return false; }
    void ShowHelp(int) override {}
    void CloseHelp() override {}
    void ShowPrinterSettings() override {}
    std::string PrinterName() override { return {}; }
    std::unique_ptr<Printer> OpenPrinter(const PrintQuestion &question) override;

  private:
    std::ostream &lines_;
    bool says_yes_;
    std::string last_text_;
};

} // namespace loftwing
