// Plays whole games through the main window: test_soak [GAMES [SEED]]. The seed repeats the
// player's choices; the puzzles depend on the time of day as well.

#include <charconv>
#include <chrono>
#include <fstream>
#include <iostream>
#include <random>

#include <QApplication>
#include <QPixmapCache>

#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include "tests/soak/random_player.h"
#include "tests/support/running_program.h"
#include "ui/look.h"

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

struct SoakOptions {
    int intGames = 2;
    std::uint64_t lngSeed = std::random_device()();
};

SoakOptions options;

/// In MiB.
double GetResidentMemory() {
    std::ifstream file("/proc/self/statm");
    long lngPages = 0;
    long lngResident = 0;
    file >> lngPages >> lngResident;
    return static_cast<double>(lngResident * sysconf(_SC_PAGESIZE)) / (1 << 20);
}

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
    std::cout << options.intGames << " games with seed " << options.lngSeed << std::endl;
    RunningProgram run;
    run.Start();
    run.game().lngRandomState = options.lngSeed;
    RandomPlayer player(run, options.lngSeed);
    const int intFirstGames = std::max(1, options.intGames / 10);
    double dblFirst = 0;
    double dblFirstInUse = 0;
    const auto start = std::chrono::steady_clock::now();
    for (int intGame = 1; intGame <= options.intGames && !HasFailure(); ++intGame) {
        SCOPED_TRACE("game " + std::to_string(intGame));
        player.PlayGame();
        if (intGame == intFirstGames) {
            dblFirst = GetResidentMemory();
            dblFirstInUse = GetMemoryInUse();
        }
    }
    const double dblGrowth = GetMemoryInUse() - dblFirstInUse;
    const std::chrono::duration<double> duration = std::chrono::steady_clock::now() - start;
    std::cout << options.intGames << " games, " << player.GetMoveCount() << " moves, "
              << player.GetCheckCount() << " checks in " << duration.count() << " s\n"
              << "resident memory: " << dblFirst << " MiB after the first " << intFirstGames << ", "
              << GetResidentMemory() << " MiB at the end\ngrowth in use: " << dblGrowth << " MiB"
              << std::endl;
    EXPECT_TRUE(HasFailure() || dblGrowth < dblMostGrowth) << "the program grew";
}

/// The offscreen platform complains of what it leaves out; any other warning is a fault.
void HearToolkit(QtMsgType type, const QMessageLogContext&, const QString& strMessage) {
    if (type != QtDebugMsg && !strMessage.startsWith(QLatin1String("This plugin does not support")))
        ADD_FAILURE() << "the toolkit warns: " << strMessage.toStdString();
}

template <typename Number>
bool ReadNumber(const std::string_view strText, Number& number) {
    const auto [end, error] =
        std::from_chars(strText.data(), strText.data() + strText.size(), number);
    return error == std::errc() && end == strText.data() + strText.size();
}

} // namespace

} // namespace cellora

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    auto& options = cellora::options;
    if (argc > 3 ||
        (argc > 1 && (!cellora::ReadNumber(argv[1], options.intGames) || options.intGames < 1)) ||
        (argc > 2 && !cellora::ReadNumber(argv[2], options.lngSeed))) {
        std::cerr << "usage: test_soak [GAMES [SEED]]\n";
        return 2;
    }
    QApplication application(argc, argv);
    cellora::ApplyLook();
    // The toolkit fills its cache of pictures in the course of some hundred games.
    QPixmapCache::setCacheLimit(1024);
    qInstallMessageHandler(cellora::HearToolkit);
    return RUN_ALL_TESTS();
}
