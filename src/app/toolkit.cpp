#include "app/toolkit.h"

#include "platform/system.h"

#include <QGuiApplication>
#include <QString>

#include <iostream>

namespace loftwing {

namespace {

/// A drawing needs no runtime folder, so its absence, as in a cron job, is no word on standard
/// error, and neither is what the toolkit has to say of screens.
bool OfDrawings(QtMsgType type, const QMessageLogContext &context, const QString &message) {
    const bool of_screens = QByteArrayView(context.category).startsWith("qt.qpa.");
    return !message.startsWith("QStandardPaths:") && (type == QtFatalMsg || !of_screens);
}

void PassMessage(QtMsgType type, const QMessageLogContext &context, const QString &message) {
    if (OfDrawings(type, context, message)) {
        std::cerr << qFormatLogMessage(type, context, message).toStdString() << '\n';
    }
}

} // namespace

Toolkit::Toolkit(bool needed) {
    if (!needed) {
        return;
    }
    // Files come out the same on a machine with a display and on one without.
    qputenv("QT_QPA_PLATFORM", WindowlessPlatform());
    qInstallMessageHandler(PassMessage);
    static int count = 1;
    static char name[] = "loftwing";
    static char *words[] = {name, nullptr};
    application_ = std::make_unique<QGuiApplication>(count, words);
}

Toolkit::~Toolkit() {
    if (application_) {
        qInstallMessageHandler(nullptr);
    }
}

} // namespace loftwing
