#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Makes complete solutions at random, and the program's random numbers.
namespace cellora {

struct Game;

/// A whole number from lo to hi, every value equally likely; lo <= hi. Each call mixes the time of
/// day into the generator's state (SplitMix64, Steele, Lea and Flood 2014) and goes on from there,
/// so that calls within one second keep varying.
std::int32_t RandomNumber(Game& game, std::int32_t lo, std::int32_t hi);

/// A grid being filled. Cells are counted 0 to 80 here, row by row; 0 is an empty cell.
class SolutionGrid final {
public:
    /// The digits that may still go into empty cell j: bit d stands for digit d, 1 to 9.
    unsigned GetCandidates(int j) const;

    /// Puts a digit 1 to 9 into empty cell j.
    void Place(int j, int intDigit);

    int operator[](int j) const { return intSolution_[static_cast<std::size_t>(j)]; }

private:
    std::array<std::int16_t, 81> intSolution_{};
    std::array<unsigned, 9> lngRow_{}; ///< the digits used in a row, as bits
    std::array<unsigned, 9> lngColumn_{};
    std::array<unsigned, 9> lngRegion_{};
};

/// One attempt: fills the most constrained empty cell, lowest index first among equals, with a
/// random candidate, until the grid is full. False when a cell is left without candidates; the grid
/// is then of no use. A random number is drawn only where there is a choice. Expects an empty grid.
bool TryFillGrid(Game& game, SolutionGrid& grid);

/// Writes a new solution into all 81 cells. Attempts that fail leave no trace.
void CreateSolution(Game& game);

} // namespace cellora
