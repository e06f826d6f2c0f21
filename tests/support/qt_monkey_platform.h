/// A world whose user answers by chance. Nothing of the real one is reached: files are those of a
/// scratch folder, printers keep their sheets, and no other program is started.
#pragma once

#include "platform/qt_platform.h"
#include "support/monkey_dice.h"
#include "support/monkey_files.h"
#include "support/monkey_log.h"

#include <functional>
#include <map>
#include <string>
#include <utility>

namespace loftwing {

class ChancePlatform : public QtPlatform {
  public:
    ChancePlatform(Dice &dice, MonkeyFiles &files, MonkeyLog &log);

    /// From now on no box comes up as a window any more; they are answered at once.
    bool hurries = false;
    /// Is told when work that lets events through has let them through.
    std::function<void()> went_on;
    /// Whether the program is in such work, when a user's keys and clicks wait.
    bool AtWork() const { return at_work_ > 0; }

    BoxAnswer Show(const MessageBox &box) override;
    TickedAnswer ShowWithTick(const MessageBox &box, const std::string &tick) override;
    std::optional<std::string> Ask(const std::string &text, const std::string &title,
                                   const std::string &proposed) override;
    std::string ChooseOpenFile(const FileQuestion &question) override;
    std::string ChooseSaveFile(const FileQuestion &question) override;
    FormAnswer ChooseSaveForm(const FileQuestion &question,
                              const std::vector<std::string> &more_filters) override;
    std::string ChooseFolder(const std::string &title, const std::string &folder) override;
    void ProcessEvents() override;
    char DecimalSeparator() override;
    std::string StoredValue(const std::string &section, const std::string &key) override;
    void StoreValue(const std::string &section, const std::string &key,
                    const std::string &value) override;
    void OpenPage(const std::string &url) override;
    bool StartProgram(const std::string &program) override;
    void ShowPrinterSettings() override;
    std::string PrinterName() override;
    std::unique_ptr<Printer> OpenPrinter(const PrintQuestion &question) override;

  private:
    Dice &dice_;
    MonkeyFiles &files_;
    MonkeyLog &log_;
    int at_work_ = 0;
    std::map<std::pair<std::string, std::string>, std::string> store_;

    bool AnswersAtOnce();
    BoxAnswer Answer(const MessageBox &box);
    std::string Chosen(const std::string &what, const std::string &path);
};

} // namespace loftwing
