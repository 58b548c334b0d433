#include <cstring>

#include <QApplication>
#include <QScreen>
#include <QWidget>

/// The least that a Qt program can show: a window of the splash's size in the middle of the screen,
/// or, with the argument "maximized", one as large as the main window starts.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    if (argc == 2 && std::strcmp(argv[1], "maximized") == 0) {
        window.showMaximized();
    } else {
        window.setFixedSize(377, 198);
        window.move(window.screen()->geometry().center() - window.rect().center());
        window.show();
    }
    return QApplication::exec();
}
