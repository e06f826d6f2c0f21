/// What the core asks of the world outside. Pure interfaces: the toolkit's side, the command line
/// and the tests each have their own.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

class Printer;

enum class BoxIcon { none, information, question, warning, stop };
enum class BoxButtons {
    ok,
    ok_cancel,
    yes_no,
    retry_cancel,
    locate_cancel,
    save_yes_no,
    save_discard_cancel
};
enum class BoxAnswer { ok, cancel, yes, no, retry, locate, save, discard };

/// A message box. `text` is plain text, its lines end with a line feed; a carriage return is
/// not shown.
struct MessageBox {
    std::string text;
    std::string title;
    BoxIcon icon = BoxIcon::information;
    BoxButtons buttons = BoxButtons::ok;
    BoxAnswer fallback = BoxAnswer::ok; ///< the default button
};

/// What was answered to a box with a tick of its own.
struct TickedAnswer {
    BoxAnswer answer = BoxAnswer::ok;
    bool ticked = false;
};

/// What a file chooser offers.
struct FileQuestion {
    std::string title;
    std::string folder;            ///< where it opens; empty: the current folder
    std::string name;              ///< proposed name, may be empty
    std::string filter_text;       ///< "PDF (*.pdf)"
    std::string default_extension; ///< without its point; added to a name that has none
    std::vector<std::string> more_filters = {}; ///< of a file to open, beside the first one
    int form = 0; ///< which filter a chooser of several forms starts with, as FormAnswer counts
};

/// The file that a chooser of several forms was left with.
struct FormAnswer {
    std::string path; ///< empty: cancelled
    int form = 0;     ///< 0 the question's own filter, then the further ones
};

/// What a printer's sheets are stretched by, from their upper left corner.
struct SheetStretch {
    double x = 1;
    double y = 1;
};

/// What a print run wants to know of the sheet before it opens the printer.
struct PrintQuestion {
    std::string document;       ///< name of the job in the queue
    bool landscape = true;      ///< portrait otherwise
    double long_side_mm = 0;    ///< 0: the paper that is set in the printer
    double short_side_mm = 0;   ///< likewise
    std::string proposed_pdf;   ///< file name to offer for a PDF
    std::string pdf_title = {}; ///< of the box that asks for it where no printer is installed
    SheetStretch stretch = {};  ///< on a printer's sheets, whose drive may be off; never in a PDF
};

enum class Pointer { normal, busy };

/// Words for the buttons of boxes; an empty one leaves those that the desktop has.
struct ButtonWords {
    std::string ok, cancel, yes, no, retry;
    std::string locate = {};
    std::string save = {};
    std::string discard = {};
};

/// A file that is there for as long as this process holds it, and says so to other processes. One
/// that was left behind by a process which ended without letting go holds nothing any more.
class FileLock {
  public:
    FileLock() = default;
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;
    /// Lets go and takes the file away.
    virtual ~FileLock() = default;
};

/// The seam to the world. Texts are UTF-8; an empty answer of a chooser is the cancel.
class Platform {
  public:
    Platform() = default;
    Platform(const Platform &) = delete;
    Platform &operator=(const Platform &) = delete;
    virtual ~Platform() = default;

    /// Shows a box and waits for its answer. Closing the box is the answer "cancel" or "no".
    virtual BoxAnswer Show(const MessageBox &box) = 0;
    /// The same with a box to tick below the text. It is ticked at first.
    virtual TickedAnswer ShowWithTick(const MessageBox &box, const std::string &tick) = 0;
    /// From now on the buttons of boxes carry these words.
    virtual void SetButtonWords(const ButtonWords &words) = 0;
    /// Asks for one line of text; nothing when it is cancelled.
    virtual std::optional<std::string> Ask(const std::string &text, const std::string &title,
                                           const std::string &proposed) = 0;
    virtual std::string ChooseOpenFile(const FileQuestion &question) = 0;
    /// Asks before a file that exists is replaced.
    virtual std::string ChooseSaveFile(const FileQuestion &question) = 0;
    /// The same where a file may have one of several forms: further filters beside the question's.
    virtual FormAnswer ChooseSaveForm(const FileQuestion &question,
                                      const std::vector<std::string> &more_filters) = 0;
    virtual std::string ChooseFolder(const std::string &title, const std::string &folder) = 0;

    virtual void SetPointer(Pointer pointer) = 0;
    /// Lets pending window events through, for work that takes longer than a moment. Keys and
    /// clicks wait until it is done.
    virtual void ProcessEvents() = 0;

    /// First character of the locale's decimal separator.
    virtual char DecimalSeparator() = 0;
    /// The language that the user has chosen for the desktop, as two small letters ("fr").
    virtual std::string SystemLanguage() = 0;
    /// The per-user store: the value, or the empty text.
    virtual std::string StoredValue(const std::string &section, const std::string &key) = 0;
    virtual void StoreValue(const std::string &section, const std::string &key,
                            const std::string &value) = 0;

    /// Makes a file that this process holds; null where somebody holds it already or it can't be
    /// made. Its folder must be there.
    virtual std::unique_ptr<FileLock> LockFile(const std::string &path) = 0;

    /// Opens a page or file with the program that the desktop has for it.
    virtual void OpenPage(const std::string &url) = 0;
    /// Starts a program; false when there is none of that name.
    virtual bool StartProgram(const std::string &program) = 0;
    /// Opens the help at a context number.
    virtual void ShowHelp(int context) = 0;
    virtual void CloseHelp() = 0;
    /// The desktop's printer settings, or the toolkit's page set-up.
    virtual void ShowPrinterSettings() = 0;

    /// Device name of the printer in use; empty when none is installed.
    virtual std::string PrinterName() = 0;
    /// Lets the user choose where to print; nothing when that is cancelled. Failure 57 when the
    /// device doesn't open.
    virtual std::unique_ptr<Printer> OpenPrinter(const PrintQuestion &question) = 0;
};

} // namespace loftwing
