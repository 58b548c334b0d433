#include <string_view>

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTimer>

/// The least that a Qt program can show: a window of the splash's size in the middle of the screen,
/// with the argument "maximized" one as large as the main window starts, and with "clock" the same
/// with nothing in it but a label that counts the seconds.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const std::string_view strKind = argc == 2 ? argv[1] : "";
    QWidget window;
    QTimer timer;
    if (strKind.empty()) {
        window.setFixedSize(377, 198);
        window.move(window.screen()->geometry().center() - window.rect().center());
        window.show();
        return QApplication::exec();
    }
    if (strKind == "clock") {
        auto* const label = new QLabel(&window);
        QObject::connect(&timer, &QTimer::timeout, label, [label, nSeconds = 0]() mutable {
            label->setText(QString::number(++nSeconds));
            label->adjustSize();
        });
        timer.start(1000);
    }
    window.showMaximized();
    return QApplication::exec();
}
