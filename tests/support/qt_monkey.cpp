#include "support/qt_monkey.h"

#include "platform/qt_text.h"
#include "support/one_locale.h"
#include "support/ordinary_user.h"
#include "support/qt_monkey_hand.h"
#include "support/qt_monkey_world.h"
#include "support/rib_invariants.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QBasicTimer>
#include <QComboBox>
#include <QEventLoop>
#include <QMenu>
#include <QPushButton>
#include <QTimerEvent>

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

constexpr int kLife = 1200;     // events between two starts of the program at most
constexpr int kUntilRest = 300; // events after which all windows but the main one are closed
constexpr int kDeepest = 10;    // modal windows out of one another
constexpr auto kPatience = std::chrono::seconds(kSanitized ? 240 : 60);

/// The process's folder, which a relative path may end in.
class WorkingFolder {
  public:
    explicit WorkingFolder(const std::string &path) : before_(fs::current_path()) {
        fs::current_path(path);
    }
    WorkingFolder(const WorkingFolder &) = delete;
    WorkingFolder &operator=(const WorkingFolder &) = delete;
    ~WorkingFolder() { fs::current_path(before_); }

  private:
    fs::path before_;
};

/// The program goes on when its last window is closed: the monkey starts it again.
class StaysOn {
  public:
    StaysOn() { QApplication::setQuitOnLastWindowClosed(false); }
    StaysOn(const StaysOn &) = delete;
    StaysOn &operator=(const StaysOn &) = delete;
    ~StaysOn() { QApplication::setQuitOnLastWindowClosed(true); }
};

/// Whether the user reaches a window past the modal one.
bool Reached(const QWidget &window, const QWidget *modal) {
    for (const QWidget *each = &window; each != nullptr; each = each->parentWidget()) {
        if (modal == nullptr || each->window() == modal) {
            return true;
        }
    }
    return false;
}

std::vector<QWidget *> OpenWindows() {
    std::vector<QWidget *> open;
    const QWidget *modal = QApplication::activeModalWidget();
    for (QWidget *window : QApplication::topLevelWidgets()) {
        const auto type = window->windowType();
        if (window->isVisible() && window->windowHandle() != nullptr && type != Qt::Popup &&
            type != Qt::ToolTip && Reached(*window, modal)) {
            open.push_back(window);
        }
    }
    // The toolkit's order is one of addresses, which differ from run to run.
    std::sort(open.begin(), open.end(),
              [](const QWidget *a, const QWidget *b) { return NameOf(*a) < NameOf(*b); });
    return open;
}

/// One start of the program. Works from a timer, so that it goes on in the event loops of modal
/// windows.
class Monkey : public QObject {
  public:
    Monkey(Dice &dice, MonkeyFiles &files, MonkeyLog &log, MonkeyWatch &watch, MonkeyTrip &trip,
           std::map<std::string, int> &commands)
        : dice_(dice), files_(files), log_(log), watch_(watch), trip_(trip), commands_(commands),
          hand_(dice, log), world_(dice, files, log) {
        world_.platform.went_on = [this] { GoOn(); };
    }

    /// Does at most so many things and ends the program. False where something is broken.
    bool Live(int events) {
        left_ = events;
        rest_ = kUntilRest;
        timer_.start(0, this);
        loop_.exec();
        timer_.stop();
        return !broken_;
    }

  protected:
    void timerEvent(QTimerEvent *event) override {
        if (event->timerId() != timer_.timerId()) {
            return;
        }
        timer_.stop();
        if (world_.platform.AtWork()) {
            return; // goes on when that is done
        }
        // Another one, since this one doesn't fire again before this event is over.
        timer_.start(0, this);
        watch_.Beat();
        ++depth_;
        Step();
        --depth_;
        watch_.Beat();
        Check();
    }

  private:
    enum class Wants { to_start, to_play, to_rest, to_end };

    Dice &dice_;
    MonkeyFiles &files_;
    MonkeyLog &log_;
    MonkeyWatch &watch_;
    MonkeyTrip &trip_;
    std::map<std::string, int> &commands_; ///< how often each was tried
    MonkeyHand hand_;
    MonkeyWorld world_;
    QEventLoop loop_;
    QBasicTimer timer_;
    Wants wants_ = Wants::to_start;
    int left_ = 0;
    int rest_ = 0;
    int depth_ = 0; ///< steps that wait in a modal window, one in the other
    int tries_ = 0; ///< to close what is open
    bool broken_ = false;
    qsizetype widgets_ = 0; ///< at the first rest

    void GoOn() {
        if (!world_.platform.AtWork()) {
            timer_.start(0, this);
        }
    }

    void Step() {
        switch (wants_) {
        case Wants::to_start:
            Start();
            break;
        case Wants::to_play:
            Play();
            break;
        case Wants::to_rest:
            if (CloseOne()) {
                Rest();
            }
            break;
        case Wants::to_end:
            if (CloseOne()) {
                End();
            }
            break;
        }
    }

    void Start() {
        wants_ = Wants::to_play;
        log_.Line("start");
        if (!world_.Start(files_.ToOpen("dat"))) {
            log_.Line("ends at the start");
            Want(Wants::to_end);
        }
    }

    void Want(Wants wanted) {
        if (wants_ != Wants::to_end) {
            wants_ = wanted;
        }
        tries_ = 0;
        world_.platform.hurries = wants_ != Wants::to_play;
    }

    bool MainIsOpen() const { return world_.window && world_.window->isVisible(); }

    // Playing.

    void Play() {
        if (--left_ < 0 || (world_.window && depth_ == 1 && !MainIsOpen())) {
            Want(Wants::to_end);
            return;
        }
        if (--rest_ < 0) {
            Want(Wants::to_rest);
            return;
        }
        ++trip_.events;
        if (QWidget *popup = QApplication::activePopupWidget()) {
            InPopup(*popup);
            return;
        }
        const std::vector<QWidget *> open = OpenWindows();
        if (open.empty()) {
            return; // one has just been closed, and its command goes on
        }
        QWidget *modal = QApplication::activeModalWidget();
        if (modal != nullptr && depth_ > kDeepest) {
            modal->close();
        } else if (modal == nullptr && MainIsOpen() && dice_.OneIn(3)) {
            Command();
        } else {
            In(*dice_.Of(open));
        }
    }

    std::string Prefix(const QWidget &window) {
        const std::string name = NameOf(window);
        ++trip_.windows[name];
        return std::to_string(trip_.events) + " /" + std::to_string(depth_) + " " + name + ": ";
    }

    void InPopup(QWidget &popup) {
        hand_.Begins(Prefix(popup));
        dice_.OneIn(3) ? hand_.Key(popup) : hand_.Click(popup);
    }

    /// The one of three commands that was tried least, so that all come to their turn.
    void Command() {
        std::vector<QAction *> actions;
        for (QAction *action : world_.window->findChildren<QAction *>()) {
            if (action->isEnabled() && !action->isSeparator() && action->menu() == nullptr &&
                !action->objectName().isEmpty()) {
                actions.push_back(action);
            }
        }
        if (actions.empty()) {
            return;
        }
        QAction *chosen = dice_.Of(actions);
        for (int i = 0; i < 2; ++i) {
            QAction *other = dice_.Of(actions);
            if (commands_[S(other->objectName())] < commands_[S(chosen->objectName())]) {
                chosen = other;
            }
        }
        const std::string name = S(chosen->objectName());
        ++commands_[name];
        log_.Line(Prefix(*world_.window) + "command " + name);
        chosen->trigger();
    }

    void In(QWidget &window) {
        const std::string prefix = Prefix(window);
        hand_.Begins(prefix);
        const int what = dice_.Below(100);
        if (what < 40) {
            hand_.Click(window);
        } else if (what < 62) {
            hand_.Type(window);
        } else if (what < 74) {
            hand_.Key(window);
        } else if (what < 78) {
            hand_.Paste(window);
        } else if (what < 83) {
            hand_.Drag(window);
        } else if (what < 87) {
            hand_.DoubleClick(window);
        } else if (what < 90) {
            hand_.Wheel(window);
        } else if (what < 92) {
            hand_.ContextMenu(window);
        } else if (what < 94) {
            hand_.Drop(window, files_.ToOpen(dice_.OneIn(2) ? "dat" : "lfw"));
        } else if (what < 96) {
            hand_.Resize(window);
        } else if (what < 97) {
            log_.Line(prefix + files_.Meddle());
        } else if (what < 98) {
            Wait(prefix);
        } else {
            Close(window, prefix);
        }
    }

    void Wait(const std::string &prefix) {
        const int pause = dice_.Between(20, 400);
        log_.Line(prefix + "wait " + std::to_string(pause));
        timer_.start(pause, this);
    }

    void Close(QWidget &window, const std::string &prefix) {
        constexpr int kSeldom = 4; // to end the program
        if (&window != world_.window.get() || dice_.OneIn(kSeldom)) {
            log_.Line(prefix + "close");
            window.close();
        }
    }

    // Coming to rest.

    /// Closes one of the windows that are open, but the main one; true where there is none and no
    /// command is at work.
    bool CloseOne() {
        QWidget *popup = QApplication::activePopupWidget();
        QWidget *modal = QApplication::activeModalWidget();
        if (popup != nullptr || modal != nullptr) {
            constexpr int kEnough = 400;
            if (++tries_ == kEnough) {
                Break("a window that can't be left: " + NameOf(popup ? *popup : *modal));
            }
            popup != nullptr ? (void)popup->close() : Leave(*modal);
            return false;
        }
        if (depth_ > 1) {
            return false; // what was called from there is about to end
        }
        for (QWidget *window : OpenWindows()) {
            if (window != world_.window.get()) {
                log_.Line("  leaves " + NameOf(*window));
                window->close();
                return ++tries_ > 400;
            }
        }
        return true;
    }

    void Leave(QWidget &modal) {
        log_.Line("  leaves " + NameOf(modal));
        auto *dialog = qobject_cast<QDialog *>(&modal);
        if (dialog != nullptr && broken_) {
            dialog->done(QDialog::Rejected);
        } else if (auto *choice = modal.findChild<QComboBox *>("Combo1");
                   choice != nullptr && modal.objectName() == "lang") {
            // The first start doesn't go on without a language.
            choice->setCurrentIndex(dice_.Below(choice->count()));
            modal.findChild<QPushButton *>("cmdok")->click();
        } else {
            modal.close();
        }
    }

    void Rest() {
        rest_ = kUntilRest;
        CheckLeftOver();
        Want(Wants::to_play);
        world_.platform.hurries = false;
    }

    void End() {
        if (MainIsOpen()) {
            if (dice_.OneIn(3)) {
                log_.Line("crash");
                world_.Crash();
            } else if (!world_.window->close()) {
                constexpr int kEnough = 100;
                if (++tries_ > kEnough) {
                    Break("the main window can't be closed");
                } else {
                    return; // a question was answered otherwise
                }
            }
        }
        loop_.quit();
    }

    // Looking.

    void Break(const std::string &what) {
        if (!broken_) {
            ADD_FAILURE() << what << "\nafter this:\n" << log_.Tail();
        }
        log_.Line("BROKEN " + what);
        broken_ = true;
        Want(Wants::to_end);
    }

    void Take(const std::vector<std::string> &broken) {
        for (const std::string &rule : broken) {
            Break("doesn't hold any more: " + rule);
        }
    }

    void Check() {
        Take(BrokenAtAnyTime(world_.programme));
        const bool at_rest = depth_ == 0 && QApplication::activeModalWidget() == nullptr &&
                             QApplication::activePopupWidget() == nullptr && MainIsOpen();
        if (!at_rest) {
            return;
        }
        Take(BrokenAtRest(world_.programme));
        if (QApplication::overrideCursor() != nullptr && !world_.Starting()) {
            Break("the busy pointer stays");
        }
        for (const auto &[name, can] :
             {std::pair{"mnu_editannule", world_.programme.histoire.PeutAnnuler()},
              std::pair{"mnu_editretablit", world_.programme.histoire.PeutRetablir()}}) {
            if (world_.window->findChild<QAction *>(name)->isEnabled() != can) {
                Break(std::string(name) + " doesn't show whether there is a step");
            }
        }
    }

    void CheckLeftOver() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (const QDialog *dialog : world_.window->findChildren<QDialog *>()) {
            if (!world_.IsSplash(*dialog)) {
                Break("a window is left over: " + NameOf(*dialog));
            }
        }
        const qsizetype now = QApplication::allWidgets().size();
        if (widgets_ == 0) {
            widgets_ = now;
        }
        log_.Line("rest with " + std::to_string(now) + " widgets");
        // Lists, notices and menus come and go with what was done.
        constexpr qsizetype kMore = 200;
        if (now > widgets_ + kMore) {
            Break("more and more widgets");
        }
        for (const std::string &path : files_.Unfinished()) {
            Break("half a file is left over: " + path);
        }
    }
};

/// What another program or a fault may have done to the settings before a start.
void Resettle(Dice &dice, MonkeyFiles &files, const MonkeyRun &run, MonkeyLog &log) {
    const int how = dice.Below(6);
    log.Line("settings " + std::to_string(how));
    if (how == 0) {
        files.Unsettle();
    } else if (how == 1) {
        files.SettleBadly(run.language, run.unit);
    } else if (how <= 3) {
        files.Settle(run.language, run.unit);
    } // else they are as the program left them
}

qsizetype WidgetsAlive() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return QApplication::allWidgets().size();
}

} // namespace

MonkeyTrip LetMonkeyLoose(const MonkeyRun &run) {
    const std::string path =
        LOFTWING_BINARY_DIR "/monkey-" + std::to_string(run.seed) + "-" + run.language + ".log";
    std::cout << "monkey of seed " << run.seed << ", " << run.events << " events, " << run.language
              << ", " << run.unit << "; it logs to " << path << std::endl;
    MonkeyTrip trip;
    bool held = true;
    {
        MonkeyLog log(path);
        const OrdinaryUser user;
        const StaysOn stays;
        Dice dice(run.seed);
        MonkeyFiles files(dice);
        const WorkingFolder there(files.Folder().Path("cwd"));
        files.Settle(run.language, run.unit);
        MonkeyWatch watch(path, kPatience);
        std::map<std::string, int> commands;
        while (held && trip.events < run.events) {
            ++trip.starts;
            const qsizetype before = WidgetsAlive();
            {
                Monkey monkey(dice, files, log, watch, trip, commands);
                held = monkey.Live(std::min(dice.Between(1, kLife), run.events - trip.events));
            }
            const qsizetype after = WidgetsAlive();
            if (after > before) {
                ADD_FAILURE() << after - before << " widgets outlive the program\n" << log.Tail();
                held = false;
            }
            Resettle(dice, files, run, log);
        }
        trip.longest = watch.Longest();
    }
    if (held) {
        fs::remove(path);
    }
    return trip;
}

} // namespace loftwing
