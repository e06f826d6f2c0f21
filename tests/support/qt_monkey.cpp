#include "support/qt_monkey.h"

#include "platform/qt_text.h"
#include "support/one_locale.h"
#include "support/ordinary_user.h"
#include "support/qt_monkey_hand.h"
#include "support/qt_monkey_world.h"
#include "support/rib_invariants.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QBasicTimer>
#include <QComboBox>
#include <QEventLoop>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QThread>
#include <QTimerEvent>

#include <algorithm>
#include <array>
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
           std::map<std::string, int> &tried)
        : dice_(dice), files_(files), log_(log), watch_(watch), trip_(trip), tried_(tried),
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
        Step();
        watch_.Beat();
        Check();
    }

  private:
    static constexpr int kSeldom = 30;
    static constexpr int kUntilMended = 20; // tries to close a window as it stands

    enum class Wants { to_start, to_play, to_rest, to_end };

    Dice &dice_;
    MonkeyFiles &files_;
    MonkeyLog &log_;
    MonkeyWatch &watch_;
    MonkeyTrip &trip_;
    std::map<std::string, int> &tried_; ///< commands and buttons, how often
    MonkeyHand hand_;
    MonkeyWorld world_;
    QEventLoop loop_;
    QBasicTimer timer_;
    Wants wants_ = Wants::to_start;
    int left_ = 0;
    int rest_ = 0;
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

    /// Modal windows and menus that wait one in the other; 1 with none. A command that has let its
    /// window be closed may still be at work above that.
    static int Depth() { return QThread::currentThread()->loopLevel(); }
    bool MainIsOpen() const { return world_.window && world_.window->isVisible(); }

    // Playing.

    void Play() {
        if (--left_ < 0 || (world_.window && Depth() == 1 && !MainIsOpen())) {
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
        if (modal != nullptr && Depth() > kDeepest) {
            modal->close();
        } else if (modal == nullptr && MainIsOpen() && dice_.OneIn(kSeldom)) {
            static const std::array<const char *, 4> kKinds = {"lfw", "lfp", "lfa", "dat"};
            Open(dice_.Of(kKinds));
        } else if (modal == nullptr && MainIsOpen() && dice_.OneIn(3)) {
            Command();
        } else {
            In(*dice_.Of(open));
        }
    }

    std::string Prefix(const QWidget &window) {
        const std::string name = NameOf(window);
        ++trip_.windows[name];
        return std::to_string(trip_.events) + " /" + std::to_string(Depth()) + " " + name + ": ";
    }

    void InPopup(QWidget &popup) {
        hand_.Begins(Prefix(popup));
        dice_.OneIn(3) ? hand_.Key(popup) : hand_.Click(popup);
    }

    /// The one of three that was tried least, so that all come to their turn.
    template <class Control>
    Control *LeastTried(const std::string &where, const std::vector<Control *> &all) {
        const auto tries = [&](const Control *each) -> int & {
            return tried_[where + "/" + S(each->objectName())];
        };
        Control *chosen = dice_.Of(all);
        for (int i = 0; i < 2; ++i) {
            Control *other = dice_.Of(all);
            if (tries(other) < tries(chosen)) {
                chosen = other;
            }
        }
        ++tries(chosen);
        return chosen;
    }

    void Button(QWidget &window) {
        std::vector<QAbstractButton *> buttons;
        for (QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
            if (button->isVisible() && button->isEnabled() && button->window() == &window) {
                buttons.push_back(button);
            }
        }
        if (!buttons.empty()) {
            hand_.ClickOn(window, *LeastTried(NameOf(window), buttons));
        }
    }

    void Open(const std::string &kind) {
        const std::string path = files_.ToOpen(kind);
        log_.Line(Prefix(*world_.window) + "opens " + path);
        world_.window->OuvreFichier(path);
    }

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
        QAction *chosen = LeastTried("commands", actions);
        log_.Line(Prefix(*world_.window) + "command " + S(chosen->objectName()));
        chosen->trigger();
    }

    void In(QWidget &window) {
        const std::string prefix = Prefix(window);
        hand_.Begins(prefix);
        const int what = dice_.Below(100);
        if (what < 8) {
            Button(window);
        } else if (what < 40) {
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
        constexpr int kEnds = 4; // one of so many, the program too
        if (!world_.IsSplash(window) && (&window != world_.window.get() || dice_.OneIn(kEnds))) {
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
        if (Depth() > 1) {
            return false; // what was called from there is about to end
        }
        for (QWidget *window : OpenWindows()) {
            // The box at the start has no frame to be closed by.
            if (window != world_.window.get() && !world_.IsSplash(*window)) {
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
            modal.findChild<QPushButton *>("ok")->click();
        } else {
            if (tries_ % kUntilMended == 0) {
                Mend(modal);
            }
            if (tries_ > kUntilMended && dice_.OneIn(2)) {
                hand_.Begins("  ");
                hand_.Click(modal); // another entry than the one that is refused, perhaps
            } else {
                modal.close();
            }
        }
    }

    /// Some windows check what was typed at Cancel too.
    static void Mend(QWidget &window) {
        for (QLineEdit *field : window.findChildren<QLineEdit *>()) {
            if (field->isVisible() && field->isEnabled() && !field->isReadOnly()) {
                field->setText("1");
            }
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
        const bool at_rest = Depth() == 1 && QApplication::activeModalWidget() == nullptr &&
                             QApplication::activePopupWidget() == nullptr && MainIsOpen();
        if (!at_rest) {
            return;
        }
        Take(BrokenAtRest(world_.programme));
        if (QApplication::overrideCursor() != nullptr && !world_.Starting()) {
            Break("the busy pointer stays");
        }
        if (world_.programme.Text({"Undo", "2"}).empty()) {
            return; // the settings name a language that there isn't, and no command has words
        }
        for (const auto &[name, can] :
             {std::pair{"mnu_editannule", world_.programme.histoire.PeutAnnuler()},
              std::pair{"mnu_editretablit", world_.programme.histoire.PeutRetablir()}}) {
            if (world_.window->findChild<QAction *>(name)->isEnabled() != can) {
                Break(std::string(name) + (can ? " doesn't offer the step there is"
                                               : " offers a step that there isn't"));
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

/// How many widgets of a name there are. The toolkit keeps its tool tip and the desktop for itself.
std::map<std::string, int> WidgetsAlive() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    std::map<std::string, int> alive;
    for (const QWidget *widget : QApplication::allWidgets()) {
        if (widget->windowType() != Qt::ToolTip && widget->windowType() != Qt::Desktop) {
            ++alive[NameOf(*widget)];
        }
    }
    return alive;
}

/// The widgets that there weren't before.
std::string Outliving(const std::map<std::string, int> &before) {
    std::string names;
    for (const auto &[name, count] : WidgetsAlive()) {
        const auto known = before.find(name);
        if (known == before.end() || known->second < count) {
            names += " " + name;
        }
    }
    return names;
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
        std::map<std::string, int> tried;
        while (held && trip.events < run.events) {
            ++trip.starts;
            const auto before = WidgetsAlive();
            {
                Monkey monkey(dice, files, log, watch, trip, tried);
                held = monkey.Live(std::min(dice.Between(1, kLife), run.events - trip.events));
            }
            if (const std::string left = Outliving(before); !left.empty()) {
                ADD_FAILURE() << "widgets outlive the program:" << left << "\n" << log.Tail();
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
