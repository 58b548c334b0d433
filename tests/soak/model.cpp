#include "tests/soak/model.h"

#include <algorithm>
#include <set>

#include "tests/support/golden.h"

namespace cellora::model {

namespace {

constexpr int intEraser = 10;
constexpr int lngWhite = 16777215;
constexpr int lngDesk = 14674156;
constexpr int lngLine = 6509899;
constexpr int lngUser = 10702622;
constexpr int lngComputer = 3154975;
constexpr int lngCursor = 7239183;
constexpr int lngX = 14545143;

std::string TwoDigits(int intNumber) {
    return (intNumber < 10 ? "0" : "") + std::to_string(intNumber);
}

std::string FormatTime(int intSeconds) {
    return TwoDigits(intSeconds / 3600) + ':' + TwoDigits(intSeconds / 60 % 60) + ':' +
           TwoDigits(intSeconds % 60);
}

std::string Digit(int intDigit) {
    return intDigit == 0 ? "" : std::to_string(intDigit);
}

std::string Quote(const std::string& strText) {
    return '"' + strText + '"';
}

std::string GetLevelName(int intLevel) {
    return intLevel == 0 ? "" : "Level " + std::to_string(intLevel);
}

bool HasNote(const Cell& cell, int intDigit) {
    return cell.strNotes.find(Digit(intDigit)) != std::string::npos;
}

} // namespace

Lines Position::Write() const {
    Lines lines = {std::to_string(intSeconds / 3600),   std::to_string(intSeconds / 60 % 60),
                   std::to_string(intSeconds % 60),     Quote(GetLevelName(intLevel)),
                   Quote(std::to_string(intPreSolved)), Quote(std::to_string(intSolvedByYou)),
                   Quote(std::to_string(intRemaining)), Quote(strIncorrect)};
    for (std::size_t i = 1; i <= 81; ++i)
        for (const Cell& cell = cells[i];
             const std::string& strLine :
             {Quote(std::to_string(i)), std::string(cell.blnGiven ? "#TRUE#" : "#FALSE#"),
              Quote(Digit(cell.intSolution)), Quote(Digit(cell.intEntry)), Quote(cell.strNotes)})
            lines.push_back(strLine);
    return lines;
}

int Scores::GetRank(int intLevel, int intSeconds) const {
    for (std::size_t p = 1; p <= 10; ++p)
        if (intSeconds <= levels[static_cast<std::size_t>(intLevel)][p].GetTime())
            return static_cast<int>(p);
    return 99;
}

void Scores::Insert(int intLevel, int intSeconds, const std::string& strName) {
    auto& level = levels[static_cast<std::size_t>(intLevel)];
    const int intRank = GetRank(intLevel, intSeconds);
    if (intRank > 10)
        return;
    std::copy_backward(level.begin() + intRank, level.end() - 1, level.end());
    level[static_cast<std::size_t>(intRank)] = {strName, intSeconds / 3600, intSeconds / 60 % 60,
                                                intSeconds % 60};
}

Lines Scores::Write() const {
    Lines lines;
    for (std::size_t l = 1; l <= 30; ++l) {
        lines.push_back(std::to_string(l));
        for (std::size_t p = 1; p <= 10; ++p) {
            const Score& score = levels[l][p];
            lines.push_back(Quote(score.strName));
            for (const int intNumber : {score.intHours, score.intMinutes, score.intSeconds})
                lines.push_back(std::to_string(intNumber));
        }
    }
    return lines;
}

Lines Scores::List(int intLevel) const {
    Lines lines;
    for (std::size_t p = 1; p <= 10; ++p) {
        const Score& score = levels[static_cast<std::size_t>(intLevel)][p];
        if (score.strName == "(none)")
            break;
        lines.push_back(Text(p, ' ', score.strName, ' ', FormatTime(score.GetTime())));
    }
    return lines;
}

int Scores::GetFirstLevel() const {
    for (int l = 30; l > 1; --l)
        if (levels[static_cast<std::size_t>(l)][1].strName != "(none)")
            return l;
    return 1;
}

std::vector<int> Model::GetEmptyCells() const {
    std::vector<int> cells;
    for (int i = 1; i <= 81; ++i)
        if (game.cells[static_cast<std::size_t>(i)].GetShown() == 0)
            cells.push_back(i);
    return cells;
}

void Model::Restart() {
    Model next;
    next.scores = scores;
    next.view = next.stored = stored;
    *this = next;
}

void Model::Start(int intLevel, const Cells& cells) {
    game = {};
    for (std::size_t i = 1; i <= 81; ++i) {
        game.cells[i].intSolution = cells[i].intSolution;
        game.cells[i].blnGiven = cells[i].blnGiven;
    }
    game.intLevel = intLevel;
    game.intPreSolved = 50 - intLevel;
    blnActive = true;
    blnFinished = blnComputer = blnFinishButton = false;
    blnMistakesNext = true;
    intHighlight = 0;
    intCursor = intPrevious = 41;
    DrawCursor();
    if (view.blnNumbers)
        SelectNumber(1);
    Check();
    strFile.clear();
    blnChanged = blnClockOn = true;
}

void Model::Open(const Position& saved) {
    game = saved;
    for (Cell& cell : game.cells) {
        cell.blnEntryShown = true;
        cell.blnCursorColor = false;
        cell.intWidth = 1;
    }
    intTop = intHighlight = 0;
    blnActive = true;
    blnFinished = blnComputer = blnFinishButton = false;
    blnMistakesNext = true;
    if (view.blnNumbers)
        SelectNumber(1);
    blnChanged = false;
    blnLoading_ = true;
    Check();
    blnLoading_ = false;
    if (blnFinishButton) {
        ToggleFinished();
        ToggleFinished();
    }
    blnClockOn = true;
}

void Model::DrawCursor() {
    if (blnFinished)
        return;
    Cell& previous = game.cells[static_cast<std::size_t>(intPrevious)];
    previous.intWidth = 1;
    previous.blnCursorColor = false;
    GetCursorCell().intWidth = 4;
    GetCursorCell().blnCursorColor = true;
    intTop = intCursor;
}

void Model::MoveTo(int intCell) {
    intPrevious = intCursor;
    intCursor = intCell;
    DrawCursor();
}

void Model::Arrow(int intDown, int intRight) {
    const int intRow = ((intCursor - 1) / 9 + intDown + 9) % 9;
    const int intColumn = ((intCursor - 1) % 9 + intRight + 9) % 9;
    MoveTo(intRow * 9 + intColumn + 1);
    PressOtherKey();
}

void Model::PressOtherKey() {
    DrawCursor();
    Check();
}

void Model::Type(int intDigit) {
    if (Cell& cell = GetCursorCell(); !cell.blnGiven) {
        blnChanged = true;
        cell.strNotes.clear();
        cell.intEntry = intDigit;
        if (view.blnNumbers)
            SelectNumber(intDigit);
    }
    PressOtherKey();
}

void Model::Clear() {
    GetCursorCell().intEntry = 0;
    RemoveNotes();
    SelectNumber(intEraser);
    PressOtherKey();
}

void Model::Click(int intCell) {
    MoveTo(intCell);
    Cell& cell = GetCursorCell();
    if (!view.blnNumbers || cell.blnGiven)
        return;
    cell.strNotes.clear();
    cell.intEntry = intSelected == intEraser ? 0 : intSelected;
    blnChanged = true;
    Check();
}

void Model::Select(int intNumber) {
    intLast = intSelected;
    intSelected = intPointer = intNumber;
    if (intNumber >= 1 && intNumber <= 9)
        blnFramed[static_cast<std::size_t>(intNumber)] = true;
}

void Model::SelectNumber(int intNumber) {
    blnFramed.fill(false);
    blnFramed[static_cast<std::size_t>(intNumber)] = true;
    Select(intNumber);
}

void Model::ToggleHighlight() {
    if (intSelected >= 1 && intSelected <= 9)
        intHighlight = intHighlight == intSelected ? 0 : intSelected;
}

void Model::ToggleNumbers() {
    view.blnNumbers = !view.blnNumbers;
    Select(!view.blnNumbers ? 0 : intLast == 0 ? 1 : intLast);
}

void Model::ToggleErrors() {
    view.blnErrors = !view.blnErrors;
    Mark(view.blnErrors);
}

void Model::Note(int intDigit) {
    std::string& strNotes = GetCursorCell().strNotes;
    if (HasNote(GetCursorCell(), intDigit))
        strNotes.erase(strNotes.find(Digit(intDigit)), 2);
    else if (strNotes.size() < 10)
        strNotes += Digit(intDigit) + ' ';
}

void Model::RemoveNotes() {
    GetCursorCell().strNotes.clear();
}

void Model::SolveCell(int intCell) {
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

void Model::SolveAll() {
    for (Cell& cell : game.cells)
        if (cell.intEntry == 0)
            cell.blnGiven = true;
    blnComputer = true;
    Count();
}

void Model::Pause() {
    blnPaused = true;
    blnClockOn = false;
}

void Model::Resume() {
    blnPaused = false;
    blnClockOn = true;
    for (Cell& cell : game.cells)
        cell.blnCursorColor = false;
}

void Model::TickClock() {
    if (!blnFinished)
        ++game.intSeconds;
}

void Model::ThinCursor() {
    Cell& cell = GetCursorCell();
    if (blnPaused || cell.intWidth == 1)
        return;
    --cell.intWidth;
    cell.blnCursorColor = true;
    intTop = intCursor;
}

void Model::ToggleFinished() {
    const bool blnMistakes = blnMistakesNext;
    blnMistakesNext = !blnMistakesNext;
    for (Cell& cell : game.cells) {
        const bool blnShowEntry = blnMistakes && cell.IsWrong();
        cell.blnGiven = !blnShowEntry;
        if (cell.intEntry != 0)
            cell.blnEntryShown = blnShowEntry;
        cell.blnMarked = blnShowEntry;
    }
}

void Model::Check() {
    Mark(view.blnErrors);
    Shade();
    Count();
}

void Model::Mark(bool blnShow) {
    for (Cell& cell : game.cells)
        cell.blnMarked = blnShow && cell.IsWrong();
    const auto intMarked = std::ranges::count(game.cells, true, &Cell::blnMarked);
    game.strIncorrect = blnShow ? std::to_string(intMarked) : "(hidden)";
}

void Model::Shade() {
    const auto IsInRegion = [this](std::size_t intFirst, int intDigit) {
        for (const std::size_t intStep : {0, 1, 2, 9, 10, 11, 18, 19, 20})
            if (game.cells[intFirst + intStep].GetShown() == intDigit)
                return true;
        return false;
    };
    for (int n = 1; n <= 9; ++n) {
        bool& blnSeen = blnShaded[static_cast<std::size_t>(n)];
        blnSeen = true;
        for (const std::size_t intFirst : {1, 4, 7, 28, 31, 34, 55, 58, 61})
            blnSeen = blnSeen && IsInRegion(intFirst, n);
    }
}

void Model::Count() {
    game.intSolvedByYou = game.intRemaining = 0;
    for (std::size_t i = 1; i <= 81; ++i)
        if (const Cell& cell = game.cells[i]; !cell.blnGiven)
            ++(cell.intEntry == 0 ? game.intRemaining : game.intSolvedByYou);
    if (game.intRemaining > 0)
        return;
    blnClockOn = false;
    ending.reset();
    if (!blnComputer)
        End(static_cast<int>(std::ranges::count_if(game.cells, &Cell::IsWrong)));
    blnFinished = true;
}

void Model::End(int intMistakes) {
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
    const std::string strLevel = GetLevelName(game.intLevel);
    if (intMistakes > 0) {
        Mark(true);
        blnFinishButton = true;
        blnMistakesNext = false;
    }
    if (blnLoading_)
        return;
    if (intMistakes > 0)
        ending = {aTitles[std::min(intMistakes, 10) - 1],
                  Text("You have completed the 'Cellora' but you have made ", intMistakes,
                       intMistakes > 1 ? " mistakes" : " mistake", ".\n\nYour time was ", GetTime(),
                       '.')};
    else if (scores.GetRank(game.intLevel, game.intSeconds) > 10)
        ending = {"Congratulations!",
                  Text("You have correctly completed ", strLevel,
                       " of the 'Cellora'. Unfortunately, your time wasn't good enough to make it "
                       "into the 'Top Ten' best times for the level.\n\nYour time for ",
                       strLevel, " was ", GetTime(), ". Better luck next time!")};
    else
        ending = {"Congratulations!",
                  Text("You have successfully completed a ", strLevel,
                       " game of the 'Cellora'.\nYour time was ", GetTime(), '.')};
}

std::string Model::GetTime() const {
    return FormatTime(game.intSeconds);
}

std::string Model::GetPopup() const {
    const Cell& cell = game.cells[static_cast<std::size_t>(intCursor)];
    const auto GetEntry = [&](int intDigit) {
        return HasNote(cell, intDigit)     ? Digit(intDigit) + " - Remove|"
               : cell.strNotes.size() < 10 ? Digit(intDigit) + '|'
                                           : "";
    };
    const bool blnQuick = intSelected >= 1 && intSelected <= 9;
    std::string strPopup = blnQuick ? GetEntry(intSelected) + "--|" : "";
    for (int n = 1; n <= 9; ++n)
        strPopup += GetEntry(n);
    return strPopup + (cell.strNotes.empty() ? "(Remove All)" : "Remove All");
}

Lines Model::Describe() const {
    const auto If = [](bool blnHolds, const char* strNames) { return blnHolds ? strNames : ""; };
    const bool blnDigit = intSelected >= 1 && intSelected <= 9;
    Lines lines = {
        Text("shown:", If(blnActive, " picGrid"),
             If(view.blnNumbers && blnActive && !blnPaused, " picButtons"),
             If(view.blnStatistics && blnActive, " picStatistics"), If(view.blnToolbar, " toolbar"),
             If(view.blnStatusBar, " statusbar"), If(blnFinishButton, " cmdFinished"),
             If(blnPaused, " paused")),
        Text("disabled:", If(blnFinished, " picGrid picButtons"), If(blnPaused, " toolbar"),
             If(!blnActive, " mnuPrint mnuSave mnuSaveAs mnuNormal mnuFitWindow mnuStatistics"),
             If(!IsInPlay(), " mnuSolveCell mnuCellErrors"), If(!blnActive, " mnuNumberSelector"),
             If(!IsInPlay(), " mnuSolve mnuPause"), If(!blnDigit, " mnuHighlight")),
        Text("ticked:", blnFitted ? " mnuFitWindow" : " mnuNormal",
             If(view.blnToolbar, " mnuToolbar"), If(view.blnStatusBar, " mnuStatusBar"),
             If(view.blnStatistics, " mnuStatistics"), If(view.blnErrors, " mnuCellErrors"),
             If(view.blnNumbers, " mnuNumberSelector"),
             If(blnDigit && intHighlight == intSelected, " mnuHighlight")),
        blnMistakesNext ? "cmdFinished: View Mistakes" : "cmdFinished: View Solution",
        Text("statistics: ", GetTime(), " | ", GetLevelName(game.intLevel), " | ",
             game.intPreSolved, " given | ", game.intSolvedByYou, " by you | ", game.intRemaining,
             " to solve | ", game.strIncorrect, " wrong")};
    std::string strOutlines;
    for (std::size_t i = 1; i <= 81; ++i) {
        const Cell& cell = game.cells[i];
        const std::string strEntry = Digit(cell.intEntry);
        const bool blnLit = intHighlight != 0 && cell.GetShown() == intHighlight;
        if (i % 9 == 1)
            lines.push_back(Text("row ", i / 9 + 1, ':'));
        lines.back() +=
            Text(' ', Digit(cell.intSolution), cell.blnGiven ? '!' : ':',
                 cell.blnEntryShown ? strEntry : '(' + strEntry + ')',
                 cell.strNotes.empty() ? "" : '{' + cell.strNotes + '}',
                 If(cell.blnMarked && !blnPaused, "x12568313/0"), If(blnLit && !blnPaused, "*"));
        if (cell.intWidth != 1 || cell.blnCursorColor)
            strOutlines +=
                Text(' ', i, '/', cell.intWidth, '/', cell.blnCursorColor ? lngCursor : lngLine);
    }
    if (!blnPaused) {
        lines.push_back(Text("outlines:", strOutlines, ", top ", intTop, ", cursor ", intCursor,
                             ", pointer ", intPointer));
        lines.push_back(Text("colours: ", lngWhite, ' ', lngDesk, ' ', lngWhite, ' ', lngDesk, ' ',
                             lngX, ' ', lngLine, " 0 0 0; ", lngComputer, " given, ", lngUser,
                             " entered, ", lngUser, " noted"));
    }
    const bool blnTakesClicks = IsInPlay() && !blnPaused && view.blnNumbers;
    lines.push_back(Text(
        "cells that take a click: ",
        blnTakesClicks
            ? std::ranges::count(game.cells.begin() + 1, game.cells.end(), false, &Cell::blnGiven)
            : 0));
    lines.emplace_back("buttons:");
    for (int n = 1; n <= intEraser; ++n)
        lines.back() +=
            Text(' ', n, If(blnFramed[static_cast<std::size_t>(n)], "[]"),
                 If(n < intEraser && blnShaded[static_cast<std::size_t>(n % intEraser)], "#"),
                 If(n == intSelected, "<"));
    lines.push_back("popup: " + GetPopup());
    return lines;
}

} // namespace cellora::model
