#include <algorithm>
#include <memory>
#include <vector>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>

#include "core/levels.h"
#include "core/modCellora.h"
#include "rules/new_game.h"
#include "ui/board/board_view.h"
#include "ui/desktop/look.h"
#include "ui/desktop/text.h"
#include "ui/dialogs/frmSplash.h"
#include "ui/main/frmMain.h"
#include "ui/main/start.h"

namespace cellora {
namespace {

/// Sees the frames of a widget.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        blnPainted_ = blnPainted_ || event->type() == QEvent::Paint;
        return false;
    }

    /// Handles events until the widget has been painted. The frame itself is drawn inside
    /// `processEvents`, so it is complete when this returns.
    void WaitForFrame() {
        blnPainted_ = false;
        while (!blnPainted_)
            QCoreApplication::processEvents();
    }

private:
    bool blnPainted_ = false;
};

/// Prepares the folder of a program: the Instructions would wait for a player at the start.
std::string MakeFolder(const QTemporaryDir& folder) {
    QFile file(folder.filePath(QStringLiteral("cl.ini")));
    if (file.open(QIODevice::WriteOnly))
        file.write("[general]\r\nstartup=0\r\n");
    return ToStdString(folder.path());
}

void FireSplashTimers(Program& program) {
    for (QTimer* const timer : {&program.splash()->tmrSplash(), &program.splash()->tmrSplash2()})
        QMetaObject::invokeMethod(timer, "timeout");
}

/// The program after its start, in a folder of its own, with a game on the board.
class WindowBench {
public:
    WindowBench() {
        program_.Main();
        FireSplashTimers(program_);
        StartGame(15);
        QCoreApplication::processEvents();
    }

    Game& game() { return program_.game(); }
    BoardView& grid() { return *program_.mainWindow()->findChild<BoardView*>(); }

    void StartGame(int intLevel) {
        StartNewGame(game(), GetLevelName(intLevel));
        program_.mainWindow()->Update();
    }

    void Press(Qt::Key key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&grid(), &press);
    }

    /// Moves the cursor to an empty cell.
    void FindEmptyCell() {
        while (game().cells[game().intCursorCell].blnGiven)
            Press(Qt::Key_Right);
    }

private:
    QTemporaryDir folder_;
    Program program_{[this] { return MakeFolder(folder_); }, 20240229};
};

constexpr int intPresses = 1000;

/// From the key press to the painted frame; every press changes what is seen. Reports median and
/// worst press in microseconds.
void PressInTurn(benchmark::State& state, Qt::Key keyFirst, Qt::Key keySecond) {
    WindowBench window;
    window.FindEmptyCell();
    PaintWatch watch(*window.grid().viewport());
    std::vector<double> times;
    bool blnFirst = false;
    for ([[maybe_unused]] auto _ : state) {
        blnFirst = !blnFirst;
        QElapsedTimer timer;
        timer.start();
        window.Press(blnFirst ? keyFirst : keySecond);
        watch.WaitForFrame();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e3);
    }
    std::ranges::sort(times);
    state.counters["median"] = times[times.size() / 2];
    state.counters["worst"] = times.back();
}

/// The floor of a key press: the whole board painted once.
void BM_RepaintBoard(benchmark::State& state) {
    WindowBench window;
    PaintWatch watch(*window.grid().viewport());
    for ([[maybe_unused]] auto _ : state) {
        window.grid().viewport()->update();
        watch.WaitForFrame();
    }
}
BENCHMARK(BM_RepaintBoard)->Unit(benchmark::kMicrosecond);

void BM_PressDigit(benchmark::State& state) {
    PressInTurn(state, Qt::Key_1, Qt::Key_2);
}
BENCHMARK(BM_PressDigit)->Iterations(intPresses)->Unit(benchmark::kMicrosecond);

void BM_PressArrow(benchmark::State& state) {
    PressInTurn(state, Qt::Key_Right, Qt::Key_Left);
}
BENCHMARK(BM_PressArrow)->Iterations(intPresses)->Unit(benchmark::kMicrosecond);

/// From the OK of the New Game dialog to the painted board, at a level.
void BM_NewGame(benchmark::State& state) {
    WindowBench window;
    PaintWatch watch(*window.grid().viewport());
    for ([[maybe_unused]] auto _ : state) {
        window.StartGame(static_cast<int>(state.range(0)));
        watch.WaitForFrame();
    }
}
BENCHMARK(BM_NewGame)->Arg(1)->Arg(30)->Unit(benchmark::kMicrosecond);

/// What the splash covers: from its first timer until the main window is drawn and enabled. Showing
/// the splash is not counted.
void BM_LoadMainWindow(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        auto folder = std::make_unique<QTemporaryDir>();
        auto program = std::make_unique<Program>([&] { return MakeFolder(*folder); }, 1);
        program->Main();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        FireSplashTimers(*program);
        PaintWatch(*program->mainWindow()).WaitForFrame();
        state.PauseTiming();
        program.reset();
        folder.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_LoadMainWindow)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace cellora

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    cellora::ApplyLook();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
