#include "app/window_program.h"

#include "app/arguments.h"
#include "app/command_line.h"
#include "app/resource_paths.h"
#include "base/version.h"
#include "lang/frmlang.h"
#include "mainwindow/frmSplash.h"
#include "mainwindow/frmmain.h"
#include "mainwindow/tool_icons.h"
#include "platform/qt_form.h"
#include "platform/qt_platform.h"
#include "programme/load.h"
#include "programme/startup.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <filesystem>
#include <iostream>
#include <memory>

namespace loftwing {

namespace {

std::vector<std::string> WordsLeft() {
    std::vector<std::string> words;
    const QStringList arguments = QCoreApplication::arguments();
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        words.push_back(S(arguments[i]));
    }
    return words;
}

/// The toolkit's own words (file choosers, print dialog) in the user's language.
void TranslateToolkit(QTranslator &translator) {
    if (translator.load(QLocale(), "qtbase", "_",
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&translator);
    }
}

int Show(Programme &programme, const std::vector<std::string> &files) {
    // The language comes first, for the window's load may have something to say; only a first
    // start, which has to ask for it, makes the window before.
    std::unique_ptr<frmmain> window;
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
    main_window().AppliqueLangue();
    main_window().show();
    frmSplash splash(programme, window.get());
    splash.show();
    if (programme.PremierDemarrage) {
        FinPremierDemarrage(programme);
    }
    if (!files.empty()) {
        // Among the recent files it must be found from everywhere.
        std::error_code error;
        const std::string path = std::filesystem::absolute(files.front(), error).string();
        QTimer::singleShot(0, window.get(), [&window, path] { window->OuvreFichier(path); });
    }
    return QApplication::exec();
}

} // namespace

int RunWindow(int argc, char **argv) {
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName("loftwing");
    QCoreApplication::setApplicationVersion(kVersion);
    QGuiApplication::setDesktopFileName("loftwing");
    QGuiApplication::setWindowIcon(ProgramIcon());
    QTranslator translator;
    TranslateToolkit(translator);
    try {
        const Arguments arguments(WordsLeft(), {{"--settings", "FILE", "settings file"}});
        if (arguments.Files().size() > 1) {
            throw UsageError("the window opens one FILE");
        }
        const Paths paths = WindowPaths(arguments.Value("--settings"));
        QtPlatform platform(paths.programme);
        Programme programme(paths, platform);
        return Show(programme, arguments.Files());
    } catch (const UsageError &error) {
        std::cerr << "loftwing: " << error.what() << " (see loftwing --help)\n";
        return kWrongUsage;
    }
}

} // namespace loftwing
