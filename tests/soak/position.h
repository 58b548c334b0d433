#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/support/golden.h"

/// What the files of the game hold, told a second time; see model.h.
namespace cellora::model {

using Lines = std::vector<std::string>;

inline std::string TwoDigits(int intNumber) {
    return Text(intNumber < 10 ? "0" : "", intNumber);
}

/// Hours, minutes and seconds.
inline std::array<int, 3> Split(int intSeconds) {
    return {intSeconds / 3600, intSeconds / 60 % 60, intSeconds % 60};
}

inline std::string FormatTime(int intSeconds) {
    const auto [intHours, intMinutes, intRest] = Split(intSeconds);
    return TwoDigits(intHours) + ':' + TwoDigits(intMinutes) + ':' + TwoDigits(intRest);
}

template <typename Value>
std::string Quote(const Value& value) {
    return Text('"', value, '"');
}

struct Cell {
    int intSolution = 0;
    bool blnGiven = false;
    int intEntry = 0; ///< 0 for none, as everywhere here
    bool blnEntryShown = true;
    std::string strNotes;

    bool IsWrong() const { return intEntry != 0 && intEntry != intSolution; }
    bool HasEntry() const { return intEntry != 0; }
    bool IsEmpty() const { return GetShown() == 0; }
    int GetShown() const { return blnGiven ? intSolution : intEntry; }
    bool HasNote(int intDigit) const { return strNotes.find(std::to_string(intDigit)) < 10; }
    bool IsFull() const { return strNotes.size() >= 10; }
};

using Cells = std::map<int, Cell>;

/// What a saved game keeps.
struct Position {
    Cells cells;
    int intSeconds = 0; ///< on the clock
    int intLevel = 0;
    int intPreSolved = 0;
    int intSolvedByYou = 0;
    int intRemaining = 0;
    std::string strIncorrect = "(hidden)";

    std::string GetTime() const { return FormatTime(intSeconds); }

    std::string GetLevelName() const {
        return intLevel == 0 ? "" : "Level " + std::to_string(intLevel);
    }

    int CountWrong() const {
        return static_cast<int>(
            std::ranges::count_if(cells, [](const auto& pair) { return pair.second.IsWrong(); }));
    }

    /// The lines of its file.
    Lines Write() const {
        const auto QuoteDigit = [](int intDigit) {
            return intDigit == 0 ? "\"\"" : Quote(intDigit);
        };
        Lines lines;
        for (const int intPart : Split(intSeconds))
            lines.push_back(std::to_string(intPart));
        lines.push_back(Quote(GetLevelName()));
        for (const int intCount : {intPreSolved, intSolvedByYou, intRemaining})
            lines.push_back(Quote(intCount));
        lines.push_back(Quote(strIncorrect));
        for (const auto& [i, cell] : cells)
            lines.insert(lines.end(), {Quote(i), cell.blnGiven ? "#TRUE#" : "#FALSE#",
                                       QuoteDigit(cell.intSolution), QuoteDigit(cell.intEntry),
                                       Quote(cell.strNotes)});
        return lines;
    }
};

/// The player's choices that the settings file keeps.
struct Switches {
    bool blnToolbar = true;
    bool blnNumbers = true;
    bool blnStatistics = true;
    bool blnErrors = true;
    bool blnCursorDisappears = true;
};

struct Score {
    std::string strName = "(none)";
    int intTime = 99 * 3600 + 99 * 60 + 99;
};

/// The Top Ten of the 30 levels.
struct Scores {
    std::map<int, std::array<Score, 10>> levels;

    Scores() {
        for (int intLevel = 1; intLevel <= 30; ++intLevel)
            levels[intLevel] = {};
    }

    /// 1 to 10, above that for no place.
    int GetRank(const Position& game) const {
        const auto& level = levels.at(game.intLevel);
        const auto* const place = std::ranges::find_if(
            level, [&](const Score& score) { return game.intSeconds <= score.intTime; });
        return static_cast<int>(place - level.begin()) + 1;
    }

    void Insert(const Position& game, const std::string& strName) {
        auto& level = levels.at(game.intLevel);
        if (auto* const place = level.begin() + GetRank(game) - 1; place != level.end()) {
            std::shift_right(place, level.end(), 1);
            *place = {strName, game.intSeconds};
        }
    }

    Lines Write() const {
        Lines lines;
        for (const auto& [intLevel, level] : levels) {
            lines.push_back(std::to_string(intLevel));
            for (const auto& [strName, intTime] : level) {
                lines.push_back(Quote(strName));
                for (const int intPart : Split(intTime))
                    lines.push_back(std::to_string(intTime == Score().intTime ? 99 : intPart));
            }
        }
        return lines;
    }

    /// The rows that the Top Ten shows of a level.
    Lines List(int intLevel) const {
        Lines lines;
        for (const auto& [strName, intTime] : levels.at(intLevel)) {
            if (strName == "(none)")
                break;
            lines.push_back(
                Text(lines.size() + 1, ' ', strName, ' ', FormatTime(intTime % 360000)));
        }
        return lines;
    }

    /// The level that the Top Ten opens with.
    int GetFirstLevel() const {
        int intFirst = 1;
        for (const auto& [intLevel, level] : levels) {
            std::string strName = level.front().strName;
            std::erase(strName, ' ');
            if (strName != "(none)")
                intFirst = intLevel;
        }
        return intFirst;
    }
};

} // namespace cellora::model
