#include "core/modCreateSudoku.h"

#include <bit>

#include "core/desktop.h"
#include "core/modCellora.h"

namespace cellora {

namespace {

constexpr unsigned lngAllDigits = 0b11'1111'1110U;

/// A row or column of the working grid; the region of a 0-based cell is that of cell j + 1.
constexpr std::size_t RowOf(int j) {
    return static_cast<std::size_t>(GetRow(j + 1));
}
constexpr std::size_t ColumnOf(int j) {
    return static_cast<std::size_t>(GetColumn(j + 1));
}
constexpr std::size_t RegionOf(int j) {
    return static_cast<std::size_t>(GetRegion(j + 1));
}

/// The digit at a position, 1 for the smallest.
int GetDigitAt(unsigned lngCandidates, int intPosition) {
    for (; intPosition > 1; --intPosition)
        lngCandidates &= lngCandidates - 1;
    return std::countr_zero(lngCandidates);
}

/// A uniform value 0 <= r < 1 of single precision.
float DrawUniform(Game& game) {
    // The increment is odd whatever the time, so the period stays 2^64 within any second.
    const auto lngTime = static_cast<std::uint64_t>(game.desktop.GetTimeOfDay());
    game.lngRandomState += 0x9E3779B97F4A7C15U + 2 * lngTime;
    std::uint64_t z = game.lngRandomState;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    z ^= z >> 31U;
    return static_cast<float>(z >> 40U) * 0x1p-24F;
}

struct Choice {
    int intCell = -1;
    int intCount = 10;
    unsigned lngCandidates = 0;
};

/// The empty cell with the fewest candidates; a count of 0 means a dead end.
Choice FindMostConstrained(const SolutionGrid& grid) {
    Choice best;
    for (int j = 0; j < intCellCount; ++j) {
        if (grid[j] != 0)
            continue;
        const unsigned lngCandidates = grid.GetCandidates(j);
        const int intCount = std::popcount(lngCandidates);
        if (intCount < best.intCount)
            best = {j, intCount, lngCandidates};
        if (intCount == 0)
            break;
    }
    return best;
}

} // namespace

std::int32_t RandomNumber(Game& game, std::int32_t lo, std::int32_t hi) {
    const double dblSpan = static_cast<double>(hi) - lo + 1;
    return static_cast<std::int32_t>(static_cast<std::int64_t>(DrawUniform(game) * dblSpan) + lo);
}

unsigned SolutionGrid::GetCandidates(int j) const {
    return lngAllDigits & ~(lngRow_[RowOf(j)] | lngColumn_[ColumnOf(j)] | lngRegion_[RegionOf(j)]);
}

void SolutionGrid::Place(int j, int intDigit) {
    const unsigned lngBit = 1U << static_cast<unsigned>(intDigit);
    intSolution_[static_cast<std::size_t>(j)] = static_cast<std::int16_t>(intDigit);
    lngRow_[RowOf(j)] |= lngBit;
    lngColumn_[ColumnOf(j)] |= lngBit;
    lngRegion_[RegionOf(j)] |= lngBit;
}

bool TryFillGrid(Game& game, SolutionGrid& grid) {
    for (int intStep = 0; intStep < intCellCount; ++intStep) {
        const Choice best = FindMostConstrained(grid);
        if (best.intCount == 0)
            return false;
        const int intPosition = best.intCount == 1 ? 1 : RandomNumber(game, 1, best.intCount);
        grid.Place(best.intCell, GetDigitAt(best.lngCandidates, intPosition));
    }
    return true;
}

void CreateSolution(Game& game) {
    SolutionGrid grid;
    while (!TryFillGrid(game, grid))
        grid = {};
    for (int j = 0; j < intCellCount; ++j)
        game.cells[j + 1].strSolution.assign(1, static_cast<char>('0' + grid[j]));
}

} // namespace cellora
