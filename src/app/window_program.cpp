#include "app/window_program.h"

#include "app/arguments.h"
#include "app/command_line.h"
#include "app/error_line.h"
#include "app/resource_paths.h"
#include "base/file_name.h"
#include "base/version.h"
#include "lang/frmlang.h"
#include "mainwindow/frmSplash.h"
#include "mainwindow/frmaide.h"
#include "mainwindow/frmmain.h"
#include "mainwindow/program_icon.h"
#include "platform/qt_form.h"
#include "platform/qt_platform.h"
#include "platform/system.h"
#include "programme/library_setup.h"
#include "programme/load.h"
#include "programme/startup.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <iostream>
#include <iterator>
#include <memory>
#include <string_view>
#include <utility>

namespace loftwing {

namespace {

/// Words as the toolkit wants them, which takes its own ones out and looks at the rest later on.
class StartWords {
  public:
    explicit StartWords(std::vector<std::string> words)
        : words_(std::move(words)), count(static_cast<int>(words_.size())) {
        std::transform(words_.begin(), words_.end(), std::back_inserter(pointers_),
                       [](std::string &word) { return word.data(); });
        pointers_.push_back(nullptr);
    }
    char **Pointers() { return pointers_.data(); }
    /// Without the program's name and what the toolkit has taken.
    std::vector<std::string> Left() const {
        return {pointers_.begin() + 1, pointers_.begin() + count};
    }

  private:
    std::vector<std::string> words_;
    std::vector<char *> pointers_;

  public:
    int count; ///< changed by the toolkit
};

/// Does once what can wait until the window stands before the user, or at the latest after a
/// moment: a window that starts as an icon is not painted.
class AfterFirstPaint : public QObject {
  public:
    AfterFirstPaint(QWidget &window, std::function<void()> rest)
        : QObject(&window), rest_(std::move(rest)) {
        window.installEventFilter(this);
        late_.setSingleShot(true);
        connect(&late_, &QTimer::timeout, this, &AfterFirstPaint::Go);
        late_.start(kAtTheLatest);
    }
    bool eventFilter(QObject *window, QEvent *event) override {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            late_.start(0); // when the painting is over
        }
        return false;
    }

  private:
    static constexpr int kAtTheLatest = 500; // ms
    std::function<void()> rest_;
    QTimer late_;

    void Go() {
        // What is done may open boxes, so that it lasts longer than this.
        const std::function<void()> rest = std::exchange(rest_, nullptr);
        deleteLater();
        if (rest) {
            rest();
        }
    }
};

int Show(Programme &programme, const std::vector<std::string> &files) {
    // The language comes first, for the window's load may have something to say; only a first
    // start, which has to ask for it, makes the window before.
    std::unique_ptr<frmmain> window;
    std::unique_ptr<frmSplash> splash;
    const auto main_window = [&]() -> frmmain & {
        if (!window) {
            window = std::make_unique<frmmain>(programme);
        }
        return *window;
    };
    ChargeLangue(programme, [&] {
        lang dialog(programme, main_window(), nullptr);
        ShowModal(dialog);
    });
    if (!ControleSeparateur(programme)) {
        return kDone;
    }
    programme.platform.SetPointer(Pointer::busy);
    if (window) {
        window->AppliqueLangue(); // it was made without one
    }
    main_window().show();
    // Among the recent files it must be found from everywhere.
    std::error_code error;
    const std::string path =
        files.empty()
            ? ""
            : TextOf(SeenFrom(std::filesystem::current_path(error), PathOf(files.front())));
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    new AfterFirstPaint(*window, [&, path] {
        QGuiApplication::setWindowIcon(ProgramIcon());
        splash = std::make_unique<frmSplash>(programme, window.get());
        splash->show();
        if (programme.PremierDemarrage) {
            if (SansProfil(programme.settings.repertoires.RepProfil)) {
                installationProfils(programme);
            }
            FinPremierDemarrage(programme);
        }
        // A rib that the user wanted back isn't lost to a file that was asked for before.
        if (!window->OffreSecours() && !path.empty()) {
            window->OuvreFichier(path);
        }
    });
    const int status = QApplication::exec();
    splash.reset();
    return status;
}

/// Whether the toolkit has anywhere to show a window; without, it would end the process.
bool CanShow(const std::vector<std::string> &words) {
    const auto chooses = [](std::string_view word) {
        return word.ends_with("-platform") || word.ends_with("-display");
    };
    return std::any_of(words.begin(), words.end(), chooses) || HasDisplay();
}

} // namespace

int RunWindow(const std::vector<std::string> &all) {
    if (!CanShow(all)) {
        std::cerr << "loftwing: no display for the window (see loftwing --help for what goes "
                     "without)\n";
        return kRefused;
    }
    StartWords words(all);
    const QApplication application(words.count, words.Pointers());
    QCoreApplication::setApplicationName("loftwing");
    QCoreApplication::setApplicationVersion(kVersion);
    QGuiApplication::setDesktopFileName("loftwing");
    try {
        const Arguments arguments(words.Left(), {{"--settings", "FILE", "settings file"}});
        if (arguments.Files().size() > 1) {
            throw UsageError("the window opens one FILE");
        }
        const Paths paths = WindowPaths(arguments.Value("--settings"));
        QtPlatform platform(paths.programme);
        Programme programme(paths, platform);
        std::unique_ptr<frmaide> help;
        platform.SetHelp(
            [&](int context) {
                if (!help) {
                    help = std::make_unique<frmaide>(programme);
                }
                help->Montre(context);
            },
            [&] { help.reset(); });
        return Show(programme, arguments.Files());
    } catch (const UsageError &error) {
        TellOnError(std::string(error.what()) + " (see loftwing --help)");
        return kWrongUsage;
    }
}

} // namespace loftwing
