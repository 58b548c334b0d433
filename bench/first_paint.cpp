#include <csignal>
#include <cstdio>
#include <ctime>

#include <spawn.h>
#include <sys/wait.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>

/// Starts the program given as the argument, prints the milliseconds from there until the pixel in
/// the middle of the screen changes, and ends the program. Nothing else may draw there.
namespace {

constexpr int intPatience = 20000;
constexpr std::timespec intervalOfPolls{.tv_sec = 0, .tv_nsec = 200'000};

QRgb GetMiddlePixel() {
    QScreen& screen = *QGuiApplication::primaryScreen();
    const QPoint middle = screen.geometry().center();
    return screen.grabWindow(0, middle.x(), middle.y(), 1, 1).toImage().pixel(0, 0);
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc != 2)
        return 2;
    const QRgb lngBefore = GetMiddlePixel();
    QElapsedTimer watch;
    watch.start();
    pid_t child = 0;
    char* arguments[] = {argv[1], nullptr};
    if (posix_spawn(&child, argv[1], nullptr, nullptr, arguments, environ) != 0)
        return 2;
    while (GetMiddlePixel() == lngBefore && !watch.hasExpired(intPatience))
        nanosleep(&intervalOfPolls, nullptr);
    const double dblMilliseconds = static_cast<double>(watch.nsecsElapsed()) / 1e6;
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    std::printf("%.1f\n", dblMilliseconds);
    return dblMilliseconds < intPatience ? 0 : 1;
}
