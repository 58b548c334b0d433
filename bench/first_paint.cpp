#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <spawn.h>
#include <sys/wait.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>

/// Starts the program given as the first argument, prints the milliseconds from there until the
/// pixel in the middle of the screen changes, and ends the program. A second argument waits for
/// that many changes instead of one. Nothing else may draw there.
namespace {

constexpr int intPatience = 20000;
constexpr std::timespec intervalOfPolls{.tv_sec = 0, .tv_nsec = 200'000};

constexpr int intWidth = 200;

/// A line of pixels, which is crossed by the edges of whatever is drawn there.
QImage GetMiddleOfScreen() {
    QScreen& screen = *QGuiApplication::primaryScreen();
    const QPoint middle = screen.geometry().center();
    return screen.grabWindow(0, middle.x() - intWidth / 2, middle.y(), intWidth, 1).toImage();
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc < 2)
        return 2;
    const int intChanges = argc > 2 ? std::atoi(argv[2]) : 1;
    QImage before = GetMiddleOfScreen();
    QElapsedTimer watch;
    watch.start();
    pid_t child = 0;
    char* arguments[] = {argv[1], nullptr};
    if (posix_spawn(&child, argv[1], nullptr, nullptr, arguments, environ) != 0)
        return 2;
    for (int i = 0; i < intChanges && !watch.hasExpired(intPatience); ++i) {
        QImage now = before;
        while ((now = GetMiddleOfScreen()) == before && !watch.hasExpired(intPatience))
            nanosleep(&intervalOfPolls, nullptr);
        before = now;
    }
    const double dblMilliseconds = static_cast<double>(watch.nsecsElapsed()) / 1e6;
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    std::printf("%.1f\n", dblMilliseconds);
    return dblMilliseconds < intPatience ? 0 : 1;
}
