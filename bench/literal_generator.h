#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/modCellora.h"
#include "core/modCreateSudoku.h"

namespace cellora {

/// The generator in its plainest form, the yardstick for the program's own: it keeps the digits
/// only, builds every candidate list as text, one digit after the other, and remembers nothing from
/// step to step. Its random numbers are those of the game it is given.
class LiteralGenerator final {
public:
    explicit LiteralGenerator(Game& game) : game_(game) {}

    int operator[](int j) const { return intSolution_[static_cast<std::size_t>(j)]; }

    std::string GetCandidates(int j) const {
        std::array<bool, 10> aUsed{};
        const int intRow = j / 9;
        const int intColumn = j - 9 * intRow;
        for (int d = 1; d <= 9; ++d) {
            bool& blnUsed = aUsed[static_cast<std::size_t>(d)];
            blnUsed = false;
            for (int k = 9 * intRow; k <= 9 * intRow + 8; ++k)
                blnUsed = blnUsed || (*this)[k] == d;
            for (int k = intColumn; k <= intColumn + 72; k += 9)
                blnUsed = blnUsed || (*this)[k] == d;
        }
        const int intStart = 27 * (j / 27) + 3 * (intColumn / 3);
        for (int r = 0; r <= 2; ++r) {
            for (int c = 0; c <= 2; ++c) {
                for (int d = 1; d <= 9; ++d) {
                    if ((*this)[intStart + 9 * r + c] == d)
                        aUsed[static_cast<std::size_t>(d)] = true;
                }
            }
        }
        std::string strCandidates;
        for (int d = 1; d <= 9; ++d) {
            if (!aUsed[static_cast<std::size_t>(d)])
                strCandidates += static_cast<char>('0' + d);
        }
        return strCandidates;
    }

    /// One attempt from an empty grid; false when it has run into a dead end.
    bool TryFillGrid() {
        intSolution_.fill(0);
        for (int intStep = 1; intStep <= intCellCount; ++intStep) {
            if (!PlaceOneDigit())
                break;
        }
        return std::ranges::count_if(intSolution_, [](int d) { return d > 0; }) == intCellCount;
    }

    void CreateSolution() {
        while (!TryFillGrid()) {
        }
        for (int j = 0; j <= 80; ++j)
            game_.cells[j + 1].strSolution = std::to_string((*this)[j]);
    }

private:
    bool PlaceOneDigit() {
        std::size_t intBestLength = 10;
        std::string strBest;
        std::size_t intBestCell = 0;
        for (int j = 0; j <= 80; ++j) {
            if ((*this)[j] != 0)
                continue;
            const std::string s = GetCandidates(j);
            if (s.empty())
                return false;
            if (s.size() < intBestLength) {
                intBestLength = s.size();
                strBest = s;
                intBestCell = static_cast<std::size_t>(j);
            }
        }
        int p = 1;
        if (intBestLength != 1)
            p = RandomNumber(game_, 1, static_cast<int>(intBestLength));
        const char digit = strBest[static_cast<std::size_t>(p - 1)];
        intSolution_[intBestCell] = static_cast<std::int16_t>(digit - '0');
        return true;
    }

    Game& game_;
    std::array<std::int16_t, intCellCount> intSolution_{};
};

} // namespace cellora
