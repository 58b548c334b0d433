#pragma once

#include "tests/soak/position.h"

/// The rules of the game a second time, as short as they can be told, to play beside the program:
/// what the program shows and writes must be what this tells. It shares no routine with the game.
/// Cells, levels and ranks count from 1.
namespace cellora::model {

enum class Phase { None, Playing, Paused, Finished };

/// The program. The routines are what the player can do; each expects that the program allows it.
struct Model {
    Position game;
    Scores scores;
    Switches view;
    Switches stored; ///< as the settings file holds them
    Phase phase = Phase::None;
    bool blnFitted = false;
    bool blnComputer = false;
    bool blnChanged = false;
    bool blnClock = false;    ///< these three are timers
    bool blnIdle = false;     ///< the wait before the cursor thins out
    bool blnThinning = false; ///< the thinning
    std::string strFile;
    std::string strEnding;       ///< title and text of the window after a game was finished
    std::string strFinishButton; ///< its caption; empty while it is hidden
    int intCursor = 41;
    int intOutlined = 0; ///< the cell whose outline is not a plain line, 0 for none
    int intWidth = 1;    ///< of that outline
    bool blnCursorColor = false;
    int intSelected = 1;
    int intLast = 0;
    int intPointer = 0;
    int intHighlight = 0;
    std::set<int> framed;
    std::set<int> shaded;

    bool IsInPlay() const { return phase == Phase::Playing || phase == Phase::Paused; }
    bool IsDigitSelected() const { return intSelected >= 1 && intSelected <= 9; }
    bool IsMarked(const Cell& cell) const {
        return cell.IsWrong() &&
               (strFinishButton.empty() ? view.blnErrors : strFinishButton == "View Solution");
    }

    /// Another run of the program, which knows the files alone.
    void Restart() {
        Model next;
        next.scores = scores;
        next.view = next.stored = stored;
        *this = next;
    }
    /// The cells tell solutions and clues.
    void Start(int intLevel, const Cells& cells) {
        game = {.cells = cells, .intLevel = intLevel, .intPreSolved = 50 - intLevel};
        Begin();
        MoveTo(41);
        blnIdle = true;
        Check();
        strFile.clear();
        blnChanged = blnClock = true;
    }

    void Open(const Position& saved) {
        game = saved;
        for (auto& [i, cell] : game.cells)
            cell.blnEntryShown = true;
        Begin();
        blnChanged = false;
        Check();
        if (!strEnding.empty())
            Lock();
        if (!strFinishButton.empty())
            ShowMistakes(true);
        blnClock = true;
    }

    /// After the ending was told.
    void Lock() { phase = Phase::Finished; }

    void MoveTo(int intCell) {
        intCursor = intCell;
        DrawCursor();
    }
    void Arrow(int intDown, int intRight) {
        const int intRow = ((intCursor - 1) / 9 + intDown + 9) % 9;
        const int intColumn = ((intCursor - 1) % 9 + intRight + 9) % 9;
        intCursor = intRow * 9 + intColumn + 1;
        PressOtherKey();
    }

    void Type(int intDigit) {
        if (Cell& cell = GetCursorCell(); !cell.blnGiven) {
            blnChanged = true;
            cell.strNotes.clear();
            cell.intEntry = intDigit;
            if (view.blnNumbers)
                SelectNumber(intDigit);
        }
        PressOtherKey();
    }

    void Clear() {
        GetCursorCell().intEntry = 0;
        GetCursorCell().strNotes.clear();
        SelectNumber(10);
        PressOtherKey();
    }

    void PressOtherKey() {
        DrawCursor();
        blnIdle = true;
        Check();
    }
    /// Left or middle button.
    void Click(int intCell) {
        MoveTo(intCell);
        blnIdle = true;
        Cell& cell = GetCursorCell();
        if (!view.blnNumbers || cell.blnGiven)
            return;
        cell.strNotes.clear();
        cell.intEntry = intSelected == 10 ? 0 : intSelected;
        blnChanged = true;
        Check();
    }

    void ClickRight(int intCell) {
        MoveTo(intCell);
        blnIdle &= GetCursorCell().blnGiven;
    }
    void SelectNumber(int intNumber) {
        framed = {intNumber};
        Select(intNumber);
        blnIdle = true;
    }
    void ToggleHighlight() {
        if (IsDigitSelected())
            intHighlight = intHighlight == intSelected ? 0 : intSelected;
    }
    void ToggleNumbers() {
        view.blnNumbers = !view.blnNumbers;
        Select(!view.blnNumbers ? 0 : intLast == 0 ? 1 : intLast);
    }
    void ToggleErrors() {
        view.blnErrors = !view.blnErrors;
        Mark();
    }
    /// What the popup of the cursor cell offers.
    std::string GetPopup() const {
        const Cell cell = phase == Phase::None ? Cell() : game.cells.at(intCursor);
        const auto GetEntry = [&cell](int intDigit) {
            const std::string strDigit = std::to_string(intDigit);
            return cell.HasNote(intDigit) ? strDigit + " - Remove|"
                   : cell.IsFull()        ? ""
                                          : strDigit + '|';
        };
        std::string strPopup = IsDigitSelected() ? GetEntry(intSelected) + "--|" : "";
        for (int n = 1; n <= 9; ++n)
            strPopup += GetEntry(n);
        return strPopup + (cell.strNotes.empty() ? "(Remove All)" : "Remove All");
    }

    /// 0 removes all.
    void Note(int intDigit) {
        std::string& strNotes = GetCursorCell().strNotes;
        const std::string strNote = std::to_string(intDigit) + ' ';
        if (GetCursorCell().IsFull() && intDigit != 0 && !GetCursorCell().HasNote(intDigit))
            return;
        if (intDigit == 0)
            strNotes.clear();
        else if (GetCursorCell().HasNote(intDigit))
            strNotes.erase(strNotes.find(strNote), 2);
        else
            strNotes += strNote;
        blnIdle = true;
    }

    void SolveCell(int intCell) {
        MoveTo(intCell);
        Cell& cell = GetCursorCell();
        cell.blnGiven = true;
        cell.strNotes.clear();
        ++game.intPreSolved;
        SelectNumber(cell.intSolution);
        game.intSeconds += 30;
        Shade();
        Count();
    }

    void SolveAll() {
        for (auto& [i, cell] : game.cells)
            cell.blnGiven |= cell.intEntry == 0;
        blnComputer = true;
        Count();
    }
    void Pause() {
        phase = Phase::Paused;
        blnClock = false;
    }
    void Resume() {
        phase = Phase::Playing;
        blnClock = true;
        blnCursorColor = false;
    }
    void TickClock() {
        if (phase != Phase::Finished)
            ++game.intSeconds;
    }
    void TickIdle() {
        blnIdle = !view.blnCursorDisappears;
        blnThinning = view.blnCursorDisappears;
    }
    void TickThinning() {
        if (phase == Phase::Paused)
            return;
        blnThinning = intOutlined == intCursor && intWidth > 1;
        if (!blnThinning)
            return;
        --intWidth;
        blnCursorColor = true;
    }

    void ShowMistakes(bool blnMistakes) {
        strFinishButton = blnMistakes ? "View Solution" : "View Mistakes";
        for (auto& [i, cell] : game.cells) {
            const bool blnShowEntry = blnMistakes && cell.IsWrong();
            cell.blnGiven = !blnShowEntry;
            if (cell.intEntry != 0)
                cell.blnEntryShown = blnShowEntry;
        }
    }

private:
    Cell& GetCursorCell() { return game.cells[intCursor]; }
    void Begin() {
        phase = Phase::Playing;
        blnComputer = false;
        strFinishButton.clear();
        strEnding.clear();
        intHighlight = intOutlined = 0;
        if (view.blnNumbers)
            SelectNumber(1);
    }

    void DrawCursor() {
        if (phase == Phase::Finished)
            return;
        intOutlined = intCursor;
        intWidth = 4;
        blnCursorColor = true;
    }
    void Select(int intNumber) {
        intLast = intSelected;
        intSelected = intPointer = intNumber;
        if (IsDigitSelected())
            framed.insert(intNumber);
    }
    void Check() {
        Mark();
        Shade();
        Count();
    }
    void Mark() {
        const bool blnShown = view.blnErrors || !strFinishButton.empty();
        game.strIncorrect = blnShown ? std::to_string(game.CountWrong()) : "(hidden)";
    }
    void Shade() {
        const auto IsInRegion = [this](int intFirst, int intDigit) {
            return std::ranges::any_of(
                std::array{0, 1, 2, 9, 10, 11, 18, 19, 20},
                [&](int intStep) { return game.cells[intFirst + intStep].GetShown() == intDigit; });
        };
        shaded.clear();
        for (int n = 1; n <= 9; ++n)
            if (std::ranges::all_of(std::array{1, 4, 7, 28, 31, 34, 55, 58, 61},
                                    [&](int intFirst) { return IsInRegion(intFirst, n); }))
                shaded.insert(n);
    }

    void Count() {
        game.intSolvedByYou = game.intRemaining = 0;
        for (const auto& [i, cell] : game.cells)
            if (!cell.blnGiven)
                ++(cell.intEntry == 0 ? game.intRemaining : game.intSolvedByYou);
        if (game.intRemaining > 0)
            return;
        blnClock = false;
        if (blnComputer)
            Lock();
        else
            End(game.CountWrong());
    }

    void End(int intMistakes) {
        constexpr const char* aTitles[] = {"Good Effort!",
                                           "Nice try!",
                                           "Better Luck Next Time!",
                                           "Better Try Again!",
                                           "Could Do Better!",
                                           "Not Even Close!",
                                           "You Need More Practice",
                                           "That Was Awful!",
                                           "My Cat Could Do Better!",
                                           "The Worst Sudoku Player Ever!"};
        const std::string strLevel = game.GetLevelName();
        if (intMistakes > 0) {
            strFinishButton = "View Solution";
            Mark();
            strEnding = Text(aTitles[std::min(intMistakes, 10) - 1],
                             "\nYou have completed the 'Cellora' but you have made ", intMistakes,
                             intMistakes > 1 ? " mistakes" : " mistake", ".\n\nYour time was ",
                             game.GetTime(), '.');
        } else if (scores.GetRank(game) > 10) {
            strEnding =
                Text("Congratulations!\nYou have correctly completed ", strLevel,
                     " of the 'Cellora'. Unfortunately, your time wasn't good enough to make it "
                     "into the 'Top Ten' best times for the level.\n\nYour time for ",
                     strLevel, " was ", game.GetTime(), ". Better luck next time!");
        } else {
            strEnding = Text("Congratulations!\nYou have successfully completed a ", strLevel,
                             " game of the 'Cellora'.\nYour time was ", game.GetTime(), '.');
        }
    }
};

} // namespace cellora::model
