#include <QApplication>
#include <QScreen>
#include <QWidget>

/// The least that a Qt program can show: a window of the splash's size in the middle of the screen.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.setFixedSize(377, 198);
    window.move(window.screen()->geometry().center() - window.rect().center());
    window.show();
    return QApplication::exec();
}
