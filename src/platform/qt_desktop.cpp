#include "platform/qt_desktop.h"

#include "platform/qt_text.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

namespace loftwing {

namespace {

#ifdef Q_OS_WIN
constexpr DesktopProgram kCalculators[] = {{"calc"}};
constexpr DesktopProgram kPrinterSettings[] = {{"control", "printers"}};
#else
constexpr DesktopProgram kCalculators[] = {
    {"gnome-calculator"},  {"kcalc"},         {"mate-calc"},   {"galculator"},
    {"qalculate-qt"},      {"qalculate-gtk"}, {"speedcrunch"}, {"io.elementary.calculator"},
    {"deepin-calculator"}, {"xcalc"}};

constexpr DesktopProgram kPrinterSettings[] = {{"system-config-printer"},
                                               {"gnome-control-center", "printers"},
                                               {"kcmshell6", "kcm_printer_manager"},
                                               {"kcmshell5", "kcm_printer_manager"},
                                               {"cinnamon-settings", "printers"}};
#endif

bool Start(const QString &path, const QStringList &arguments) {
    return QProcess::startDetached(path, arguments, QDir::homePath());
}

} // namespace

bool StartFirst(std::span<const DesktopProgram> programs) {
    for (const DesktopProgram &program : programs) {
        const QString path = QStandardPaths::findExecutable(QString::fromLatin1(program.name));
        QStringList arguments;
        if (program.argument != nullptr) {
            arguments.append(QString::fromLatin1(program.argument));
        }
        if (!path.isEmpty() && Start(path, arguments)) {
            return true;
        }
    }
    return false;
}

bool StartByName(const std::string &program) {
    if (program == "calc") {
        return StartFirst(kCalculators);
    }
    const QString path = QStandardPaths::findExecutable(Q(program));
    return !path.isEmpty() && Start(path, {});
}

bool StartPrinterSettings() {
    return StartFirst(kPrinterSettings);
}

} // namespace loftwing
