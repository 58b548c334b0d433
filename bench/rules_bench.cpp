#include <benchmark/benchmark.h>

#include "bench/literal_generator.h"
#include "core/levels.h"
#include "core/modCellora.h"
#include "core/modCreateSudoku.h"
#include "rules/check.h"
#include "store/system_files.h"
#include "tests/support/idle_desktop.h"

namespace cellora {
namespace {

void BM_CreateSolution(benchmark::State& state) {
    IdleDesktop desktop;
    SystemFiles files;
    Game game(desktop, files);
    for ([[maybe_unused]] auto _ : state) {
        CreateSolution(game);
        benchmark::DoNotOptimize(game);
    }
}
BENCHMARK(BM_CreateSolution);

void BM_CreateSolutionLiteral(benchmark::State& state) {
    IdleDesktop desktop;
    SystemFiles files;
    Game game(desktop, files);
    LiteralGenerator literal(game);
    for ([[maybe_unused]] auto _ : state) {
        literal.CreateSolution();
        benchmark::DoNotOptimize(game);
    }
}
BENCHMARK(BM_CreateSolutionLiteral);

/// About half the cells are clues or filled, some of them wrong, and errors are shown.
void BM_PerformCellCheck(benchmark::State& state) {
    IdleDesktop desktop;
    SystemFiles files;
    Game game(desktop, files);
    CreateSolution(game);
    ShowPartial(game, GetLevelName(20));
    for (int i = 1; i <= intCellCount; i += 5) {
        if (!game.cells[i].blnGiven)
            game.cells[i].strEntry = i % 7 == 0 ? "1" : game.cells[i].strSolution;
    }
    for ([[maybe_unused]] auto _ : state) {
        PerformCellCheck(game);
        benchmark::DoNotOptimize(game);
    }
}
BENCHMARK(BM_PerformCellCheck);

} // namespace
} // namespace cellora
