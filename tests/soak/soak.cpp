// Plays whole games through the main window: test_soak [GAMES [SEED]]. The seed repeats the
// player's choices; the puzzles depend on the time of day as well.

#include <iostream>

#include <malloc.h>

#include "tests/soak/random_player.h"
#include "ui/desktop/look.h"

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

/// In KiB, after the first tenth of the games and ten at least; a leak of 1 KiB a game is more in
/// two hundred games.
constexpr double dblMostGrowth = 128;

int intGames = 2;
std::uint64_t lngSeed = std::random_device()();

/// The memory that must not grow, in KiB: what is allocated while no program runs. The resident
/// memory depends on how well the allocator fills its pages, and under the sanitizers on records of
/// their own.
double GetMemoryInUse() {
    QCoreApplication::processEvents();
#ifdef __SANITIZE_ADDRESS__
    const std::size_t lngBytes = __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 info = mallinfo2();
    const std::size_t lngBytes = info.uordblks + info.hblkhd;
#endif
    return static_cast<double>(lngBytes) / 1024;
}

TEST(Soak, TheWindowShowsWhatTheGameSays) {
    std::cout << intGames << " games with seed " << lngSeed << std::endl;
    RunningProgram run;
    RandomPlayer player(run, lngSeed);
    const int intFirst = std::min(intGames, std::max(10, intGames / 10)); // until all is warm
    double dblFirst = 0;
    int intMoves = 0;
    for (int intGame = 1; intGame <= intGames && !HasFailure(); ++intGame) {
        intMoves = player.PlayGame(intGame == intFirst || intGame == intGames);
        EXPECT_FALSE(HasFailure()) << "in game " << intGame;
        if (intGame == intFirst)
            dblFirst = GetMemoryInUse();
    }
    const double dblGrowth = GetMemoryInUse() - dblFirst;
    std::cout << intMoves << " moves, growth in use: " << dblGrowth << " KiB" << std::endl;
    EXPECT_TRUE(HasFailure() || dblGrowth < dblMostGrowth) << "the program grew";
}

/// The offscreen platform complains of what it leaves out; any other warning is a fault.
void HearToolkit(QtMsgType type, const QMessageLogContext&, const QString& strMessage) {
    if (type != QtDebugMsg && !strMessage.startsWith(QLatin1String("This plugin does not support")))
        ADD_FAILURE() << "the toolkit warns: " << strMessage.toStdString();
}

} // namespace

} // namespace cellora

/// The program may be left; the test goes on.
void QCoreApplication::exit(int) {}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (argc > 1)
        cellora::intGames = std::stoi(argv[1]);
    if (argc > 2)
        cellora::lngSeed = std::stoull(argv[2]);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    cellora::ApplyLook();
    // The toolkit's cache of pictures keeps their names for good, 2 to 3 KiB with each file dialog.
    QPixmapCache::setCacheLimit(0);
    qInstallMessageHandler(cellora::HearToolkit);
    return RUN_ALL_TESTS();
}
