/// What a window of the toolkit costs without a program behind it: the measure for the start of
/// ours. With a word as argument it shows some text, as every program's does, and so needs a font.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1000, 700);
    if (argc > 1) {
        window.menuBar()->addMenu("File")->addAction("Open");
        window.setCentralWidget(new QLabel("Text", &window));
        window.statusBar()->showMessage("Text");
    }
    window.show();
    return QApplication::exec();
}
