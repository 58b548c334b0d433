// Plays whole games through the main window: test_soak [GAMES [SEED]]. The seed repeats the
// player's choices; the puzzles depend on the time of day as well.

#include <iostream>
#include <random>

#include <malloc.h>

#include "tests/soak/random_player.h"
#include "tests/support/running_program.h"
#include "ui/desktop/look.h"
#include "ui/dialogs/frmSplash.h"

#ifdef __SANITIZE_ADDRESS__
/// The sanitizer's own; the compiler brings no header for it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

/// Freed memory is kept aside only shortly, or it would look like growth.
extern "C" const char* __asan_default_options() {
    return "quarantine_size_mb=8:thread_local_quarantine_size_kb=64";
}
#endif

namespace cellora {

namespace {

constexpr double dblMostGrowth = 4; // MiB, after the first tenth of the games

int intGames = 2;
std::uint64_t lngSeed = std::random_device()();

/// The memory that must not grow, in MiB: what is allocated. The resident memory depends on how
/// well the allocator fills its pages, and under the sanitizers on records of their own.
double GetMemoryInUse() {
#ifdef __SANITIZE_ADDRESS__
    const std::size_t lngBytes = __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 info = mallinfo2();
    const std::size_t lngBytes = info.uordblks + info.hblkhd;
#endif
    return static_cast<double>(lngBytes) / (1 << 20);
}

TEST(Soak, TheWindowShowsWhatTheGameSays) {
    std::cout << intGames << " games with seed " << lngSeed << std::endl;
    RunningProgram run;
    run.WriteSettings();
    run.Launch();
    frmSplash& splash = *run.program->splash();
    for (QTimer* const timer : {&splash.tmrSplash(), &splash.tmrSplash2()})
        QMetaObject::invokeMethod(timer, "timeout");
    run.Activate();
    run.game().lngRandomState = lngSeed;
    const auto fnPlayGame = MakeRandomPlayer(run, lngSeed);
    double dblFirst = 0;
    int intMoves = 0;
    for (int intGame = 1; intGame <= intGames && !HasFailure(); ++intGame) {
        intMoves = fnPlayGame();
        if (intGame == std::max(1, intGames / 10))
            dblFirst = GetMemoryInUse();
    }
    const double dblGrowth = GetMemoryInUse() - dblFirst;
    std::cout << intMoves << " moves, growth in use: " << dblGrowth << " MiB" << std::endl;
    EXPECT_TRUE(HasFailure() || dblGrowth < dblMostGrowth) << "the program grew";
}

/// The offscreen platform complains of what it leaves out; any other warning is a fault.
void HearToolkit(QtMsgType type, const QMessageLogContext&, const QString& strMessage) {
    if (type != QtDebugMsg && !strMessage.startsWith(QLatin1String("This plugin does not support")))
        ADD_FAILURE() << "the toolkit warns: " << strMessage.toStdString();
}

} // namespace

} // namespace cellora

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (argc > 1)
        cellora::intGames = std::stoi(argv[1]);
    if (argc > 2)
        cellora::lngSeed = std::stoull(argv[2]);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    cellora::ApplyLook();
    // The toolkit fills its cache of pictures in the course of some hundred games.
    QPixmapCache::setCacheLimit(1024);
    qInstallMessageHandler(cellora::HearToolkit);
    return RUN_ALL_TESTS();
}
