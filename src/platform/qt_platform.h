/// The world outside as the toolkit shows it.
#pragma once

#include "platform/platform.h"
#include "platform/qt_user_store.h"

#include <QPageSize>

#include <functional>

class QCheckBox;
class QWidget;

namespace loftwing {

class QtPlatform : public Platform {
  public:
    /// `program_folder` is where the program's resources are; the airfoil library is part of them.
    explicit QtPlatform(const std::string &program_folder);

    /// What opens the help at a context number, and what closes it. Until then there is no help.
    void SetHelp(std::function<void(int)> show, std::function<void()> close);

    BoxAnswer Show(const MessageBox &box) override;
    TickedAnswer ShowWithTick(const MessageBox &box, const std::string &tick) override;
    void SetButtonWords(const ButtonWords &words) override { words_ = words; }
    std::optional<std::string> Ask(const std::string &text, const std::string &title,
                                   const std::string &proposed) override;
    std::string ChooseOpenFile(const FileQuestion &question) override;
    std::string ChooseSaveFile(const FileQuestion &question) override;
    FormAnswer ChooseSaveForm(const FileQuestion &question,
                              const std::vector<std::string> &more_filters) override;
    std::string ChooseFolder(const std::string &title, const std::string &folder) override;
    void SetPointer(Pointer pointer) override;
    void ProcessEvents() override;
    char DecimalSeparator() override;
    std::string SystemLanguage() override;
    std::string StoredValue(const std::string &section, const std::string &key) override;
    void StoreValue(const std::string &section, const std::string &key,
                    const std::string &value) override;
    std::unique_ptr<FileLock> LockFile(const std::string &path) override;
    void OpenPage(const std::string &url) override;
    bool StartProgram(const std::string &program) override;
    void ShowHelp(int context) override;
    void CloseHelp() override;
    void ShowPrinterSettings() override;
    std::string PrinterName() override;
    std::unique_ptr<Printer> OpenPrinter(const PrintQuestion &question) override;

  private:
    UserStore store_;
    ButtonWords words_;
    std::function<void(int)> show_help_;
    std::function<void()> close_help_;
    std::optional<QPageSize> paper_; ///< chosen in the toolkit's page set-up

    BoxAnswer Run(const MessageBox &box, QCheckBox *tick);
    bool MayReplace(const std::string &path, const std::string &title);
    std::unique_ptr<Printer> OpenPdf(const PrintQuestion &question);
};

} // namespace loftwing
