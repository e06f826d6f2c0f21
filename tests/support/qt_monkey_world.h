/// One run of the program as its users have it, from the first box to the end, without a process of
/// its own.
#pragma once

#include "mainwindow/frmSplash.h"
#include "mainwindow/frmaide.h"
#include "mainwindow/frmmain.h"
#include "support/qt_monkey_platform.h"

#include <memory>
#include <string>

namespace loftwing {

class MonkeyWorld {
  public:
    MonkeyWorld(Dice &dice, MonkeyFiles &files, MonkeyLog &log);
    ~MonkeyWorld();
    MonkeyWorld(const MonkeyWorld &) = delete;
    MonkeyWorld &operator=(const MonkeyWorld &) = delete;

    ChancePlatform platform;
    Programme programme;
    std::unique_ptr<frmmain> window;

    /// All that the program does until its user is alone with it: language, separator, window,
    /// unsaved work, a file. False where it ends at once. Modal windows may come up meanwhile.
    bool Start(const std::string &file);
    /// Whether a box in the middle of the screen covers the start still.
    bool Starting() const { return splash_ && splash_->isVisible(); }
    bool IsSplash(const QWidget &widget) const { return &widget == splash_.get(); }
    /// The program dies with unsaved work.
    void Crash();

  private:
    std::unique_ptr<frmSplash> splash_;
    std::unique_ptr<frmaide> help_;
};

} // namespace loftwing
