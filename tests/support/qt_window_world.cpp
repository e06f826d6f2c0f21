#include "support/qt_window_world.h"

#include "mainwindow/pic_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include <filesystem>

namespace loftwing {

namespace {

Paths TestPaths(const TempFolder &folder) {
    const std::string resources = LOFTWING_SOURCE_DIR "/resources";
    return {resources, resources + "/lng", folder.Path("Loftwing.ini"), resources + "/help",
            folder.Path("recovery")};
}

std::string SettingsText(const TempFolder &folder, const std::string &language,
                         const std::string &unit) {
    return "[Language]\r\nLangue=" + language + "\r\n[Defaut]\r\nunit= " + unit +
           "\r\ncordeAfich=" + (unit == "in" ? "8" : "200") +
           "\r\nEpCoffrageAfich=" + (unit == "in" ? "1/16" : "1.5") +
           "\r\nEpBAAfich=0\r\nBAblocAfich=0\r\nBFblocAfich=0\r\n"
           "[Couleurs]\r\ncoulcoffrage=9\r\ncoulaxe=12\r\ncoulba=9\r\ncoulbf=9\r\ncoulrep=12\r\n"
           "[Eprlines]\r\nprofil=1\r\neplinecoffrage=1\r\neplineba=1\r\neplinebf=1\r\n"
           "eplinerep=1\r\n[InsText]\r\nTailleFont=9\r\n[Repertoires]\r\nInstall=1\r\n"
           "RepProfil=" +
           folder.Path("airfoils") + "\r\nRepProfilevol=" + folder.Path("sets") +
           "\r\nLastOpenProfil=" + folder.Path("airfoils") +
           "\r\n[Marges]\r\nMargeHaut=10\r\n"
           "MargeBas=15\r\nrecouvrement=20\r\nNumIndex=0\r\nYdprint=50\r\n";
}

} // namespace

WindowWorld::WindowWorld(const std::string &language, const std::string &unit)
    : programme(TestPaths(folder), platform) {
    std::filesystem::create_directories(folder.Path("airfoils"));
    std::filesystem::create_directories(folder.Path("sets"));
    folder.File("Loftwing.ini", SettingsText(folder, language, unit));
    programme.language.Charge(programme.paths.langues, language);
}

frmmain &WindowWorld::Open() {
    window = std::make_unique<frmmain>(programme);
    window->resize(900, 500);
    window->show();
    QApplication::processEvents();
    return *window;
}

std::string WindowWorld::Sample(const std::string &name) {
    return std::string(LOFTWING_SOURCE_DIR "/resources/airfoils/") + name;
}

void WindowWorld::Run(const char *command, const std::vector<User> &users) const {
    InNextDialogs(users);
    Action(command)->trigger();
}

QAction *WindowWorld::Action(const std::string &name) const {
    auto *action = window->findChild<QAction *>(QString::fromStdString(name));
    if (action == nullptr) {
        ADD_FAILURE() << "no action " << name;
    }
    return action;
}

std::string WindowWorld::Panel(int number) const {
    return Main().Label({"StatusBar", number});
}

void WindowWorld::Drop(const std::string &path, const std::function<bool()> &opened) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
    const QPoint place(50, 50);
    // The toolkit passes a drop on only where the file was dragged in before.
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(place), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_TRUE(Eventually(opened)) << path; // after the drop is over
}

void WindowWorld::Resize(QSize size) const {
    auto *picture = Find<PicView>("Pic");
    // The window waits by a timer until its picture's size has settled. One that is started after
    // it at each step of the size goes off after it, whether the window draws then or not.
    bool rested = false;
    QTimer rest;
    rest.setSingleShot(true);
    QObject::connect(picture, &PicView::Redimensionne, &rest, qOverload<>(&QTimer::start));
    QObject::connect(&rest, &QTimer::timeout, [&rested] { rested = true; });
    window->resize(size);
    EXPECT_TRUE(Eventually([&rested] { return rested; }));
}

} // namespace loftwing
