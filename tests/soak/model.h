#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

/// The rules of the game a second time, as short as they can be told, to play beside the program:
/// what the program shows and writes must be what this tells. It shares no routine with the game.
/// Cells, levels and ranks count from 1.
namespace cellora::model {

using Lines = std::vector<std::string>;

struct Cell {
    int intSolution = 0;
    bool blnGiven = false;
    int intEntry = 0; ///< 0 for none, as everywhere here
    bool blnEntryShown = true;
    std::string strNotes;
    bool blnMarked = false;
    int intWidth = 1;
    bool blnCursorColor = false;

    bool IsWrong() const { return intEntry != 0 && intEntry != intSolution; }
    int GetShown() const { return blnGiven ? intSolution : intEntry; }
};

using Cells = std::array<Cell, 82>;

/// What a saved game keeps.
struct Position {
    Cells cells;
    int intSeconds = 0; ///< on the clock
    int intLevel = 0;
    int intPreSolved = 0;
    int intSolvedByYou = 0;
    int intRemaining = 0;
    std::string strIncorrect = "(hidden)";

    /// The lines of its file.
    Lines Write() const;
};

/// What the View menu switches on and off.
struct Switches {
    bool blnToolbar = true;
    bool blnStatusBar = true;
    bool blnNumbers = true;
    bool blnStatistics = true;
    bool blnErrors = true;
};

struct Score {
    std::string strName = "(none)";
    int intHours = 99;
    int intMinutes = 99;
    int intSeconds = 99;

    int GetTime() const { return intHours * 3600 + intMinutes * 60 + intSeconds; }
};

/// The Top Ten of the 30 levels.
struct Scores {
    std::array<std::array<Score, 11>, 31> levels;

    /// 1 to 10, or 99 for no place.
    int GetRank(int intLevel, int intSeconds) const;
    void Insert(int intLevel, int intSeconds, const std::string& strName);
    Lines Write() const;
    /// The rows that the Top Ten shows of a level.
    Lines List(int intLevel) const;
    /// The level that the Top Ten opens with.
    int GetFirstLevel() const;
};

/// What the window at the end of a game says.
struct Ending {
    std::string strTitle;
    std::string strText;
};

/// The program. The routines are what the player can do; each expects that the program allows it.
struct Model {
    Position game;
    Scores scores;
    Switches view;
    Switches stored; ///< as the settings file holds them
    bool blnFitted = false;
    bool blnActive = false;
    bool blnPaused = false;
    bool blnFinished = false;
    bool blnComputer = false;
    bool blnClockOn = false;
    bool blnChanged = false;
    std::string strFile;
    std::optional<Ending> ending; ///< of the game that has just been finished by play
    bool blnFinishButton = false;
    bool blnMistakesNext = true; ///< what the finish button names
    int intCursor = 41;
    int intPrevious = 41;
    int intTop = 0;
    int intSelected = 1;
    int intLast = 0;
    int intPointer = 0;
    int intHighlight = 0;
    std::array<bool, 11> blnFramed{};
    std::array<bool, 10> blnShaded{};

    bool IsInPlay() const { return blnActive && !blnFinished; }
    std::vector<int> GetEmptyCells() const;

    /// Another run of the program, which knows the files alone.
    void Restart();
    /// The cells tell solutions and clues.
    void Start(int intLevel, const Cells& cells);
    void Open(const Position& saved);

    void Arrow(int intDown, int intRight);
    void Type(int intDigit);
    void Clear();
    void PressOtherKey();
    /// Left or middle button.
    void Click(int intCell);
    void MoveTo(int intCell);
    void SelectNumber(int intNumber);
    void ToggleHighlight();
    void ToggleNumbers();
    void ToggleErrors();
    void Note(int intDigit);
    void RemoveNotes();
    void SolveCell(int intCell);
    void SolveAll();
    void Pause();
    void Resume();
    void TickClock();
    void ThinCursor();
    void ToggleFinished();

    std::string GetTime() const;
    std::string GetPopup() const;
    /// All that is seen, in the lines of tests/support/view_text.h; but for outlines and colours
    /// while the game is paused.
    Lines Describe() const;

private:
    void DrawCursor();
    void Select(int intNumber);
    void Check();
    void Mark(bool blnShow);
    void Shade();
    void Count();
    void End(int intMistakes);
    Cell& GetCursorCell() { return game.cells[static_cast<std::size_t>(intCursor)]; }

    bool blnLoading_ = false;
};

} // namespace cellora::model
