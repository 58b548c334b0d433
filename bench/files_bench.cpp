#include <benchmark/benchmark.h>

#include "core/levels.h"
#include "core/modCellora.h"
#include "rules/check.h"
#include "rules/game_file.h"
#include "rules/hall_of_fame.h"
#include "rules/new_game.h"
#include "store/system_files.h"
#include "tests/support/idle_desktop.h"
#include "tests/support/temporary_folder.h"

/// The commands that read and write files, without the windows that ask for the file and the name.
/// Writing includes flushing to the disk of the folder for temporary files.
namespace cellora {
namespace {

/// A game in play in a folder of its own, with every other free cell filled.
struct FilesBench {
    FilesBench() {
        game.strProgramFolder = folder.Path();
        StartNewGame(game, GetLevelName(15));
        game.strGameFile = folder.Path("game.clp");
        desktop.strPickedFile = game.strGameFile;
        for (int i = 1; i <= intCellCount; i += 2)
            game.cells[i].strEntry = game.cells[i].blnGiven ? "" : game.cells[i].strSolution;
    }

    /// Fills the ten places of the level with a time that the game beats.
    void FillHallOfFame() {
        ResetHallOfFame(game);
        game.lngMinutes = 59;
        for (int i = 0; i < LevelEntries::size(); ++i)
            SaveHallOfFameEntry(game, "Player");
        game.lngMinutes = 1;
    }

    TemporaryFolder folder;
    IdleDesktop desktop;
    SystemFiles files;
    Game game{desktop, files};
};

void BM_SaveGame(benchmark::State& state) {
    FilesBench bench;
    for ([[maybe_unused]] auto _ : state)
        SaveGame(bench.game);
}
BENCHMARK(BM_SaveGame)->Unit(benchmark::kMicrosecond);

void BM_OpenGame(benchmark::State& state) {
    FilesBench bench;
    SaveGame(bench.game);
    for ([[maybe_unused]] auto _ : state)
        OpenGame(bench.game);
}
BENCHMARK(BM_OpenGame)->Unit(benchmark::kMicrosecond);

/// From the last right digit until the player is asked for a name.
void BM_CompleteGame(benchmark::State& state) {
    FilesBench bench;
    bench.FillHallOfFame();
    for (Cell& cell : bench.game.cells)
        cell.strEntry = cell.blnGiven ? "" : cell.strSolution;
    for ([[maybe_unused]] auto _ : state)
        PerformCellCheck(bench.game);
}
BENCHMARK(BM_CompleteGame)->Unit(benchmark::kMicrosecond);

void BM_SaveHallOfFameEntry(benchmark::State& state) {
    FilesBench bench;
    bench.FillHallOfFame();
    for ([[maybe_unused]] auto _ : state)
        SaveHallOfFameEntry(bench.game, "Player");
}
BENCHMARK(BM_SaveHallOfFameEntry)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace cellora
