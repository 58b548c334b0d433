#include "store/saved_game.h"

#include <cassert>
#include <utility>

#include "core/modCellora.h"
#include "core/text.h"

namespace cellora {

namespace {

constexpr std::string_view strTrue = "#TRUE#";
constexpr std::string_view strFalse = "#FALSE#";
constexpr std::size_t lngUsualBytes = 4096;

/// In the order of their lines.
constexpr std::int32_t SavedGame::*aCounters[] = {&SavedGame::lngHours, &SavedGame::lngMinutes,
                                                  &SavedGame::lngSeconds};
constexpr std::string Statistics::*aCaptions[] = {
    &Statistics::lblLevel,        &Statistics::lblVisibleCells,   &Statistics::lblSolvedByYou,
    &Statistics::lblCellsToSolve, &Statistics::lblIncorrectCells,
};
constexpr std::string SavedCell::*aCellTexts[] = {&SavedCell::strSolution, &SavedCell::strEntry,
                                                  &SavedCell::strNotes};

class Writer final {
public:
    Writer() { bytes_.reserve(lngUsualBytes); }

    void Number(std::int32_t lngNumber) { Line(std::to_string(lngNumber)); }

    void Text(const std::string& strText) {
        assert(strText.find('\n') == std::string::npos);
        Line('"' + strText + '"');
    }

    void Truth(bool blnValue) { Line(blnValue ? strTrue : strFalse); }

    std::string Take() { return std::move(bytes_); }

private:
    void Line(std::string_view strLine) { bytes_.append(strLine).append(strLineBreak); }

    std::string bytes_;
};

std::optional<std::string_view> DropQuotes(std::string_view strLine) {
    if (strLine.size() < 2 || !strLine.starts_with('"') || !strLine.ends_with('"'))
        return std::nullopt;
    return strLine.substr(1, strLine.size() - 2);
}

/// Takes one value per line. Each routine is false when the next line does not hold such a value.
class Reader final {
public:
    explicit Reader(std::string_view bytes) : rest_(bytes) {}

    bool Number(std::int32_t& lngNumber) {
        const auto lngRead = ParseWhole<std::int32_t>(NextLine());
        lngNumber = lngRead.value_or(0);
        return lngRead.has_value();
    }

    bool CellNumber() {
        const std::string_view strLine = NextLine();
        return ParseWhole<std::int16_t>(DropQuotes(strLine).value_or(strLine)).has_value();
    }

    bool Text(std::string& strText) {
        const auto strQuoted = DropQuotes(NextLine());
        strText = strQuoted.value_or(std::string_view{});
        return strQuoted.has_value();
    }

    bool Truth(bool& blnValue) {
        const std::string_view strLine = NextLine();
        blnValue = strLine == strTrue;
        return blnValue || strLine == strFalse;
    }

private:
    /// Empty at the end of the file, which is no value either.
    std::string_view NextLine() { return TakeLine(rest_); }

    std::string_view rest_;
};

bool ReadCell(Reader& reader, SavedCell& cell) {
    if (!reader.CellNumber() || !reader.Truth(cell.blnGiven))
        return false;
    for (const auto text : aCellTexts) {
        if (!reader.Text(cell.*text))
            return false;
    }
    return true;
}

bool ReadStatistics(Reader& reader, SavedGame& savedGame) {
    for (const auto counter : aCounters) {
        if (!reader.Number(savedGame.*counter))
            return false;
    }
    for (const auto caption : aCaptions) {
        if (!reader.Text(savedGame.statistics.*caption))
            return false;
    }
    return true;
}

} // namespace

std::string FormatSavedGame(const SavedGame& savedGame) {
    Writer writer;
    for (const auto counter : aCounters)
        writer.Number(savedGame.*counter);
    for (const auto caption : aCaptions)
        writer.Text(savedGame.statistics.*caption);
    for (int i = 1; i <= intCellCount; ++i) {
        const SavedCell& cell = savedGame.cells[i];
        writer.Text(std::to_string(i));
        writer.Truth(cell.blnGiven);
        for (const auto text : aCellTexts)
            writer.Text(cell.*text);
    }
    return writer.Take();
}

std::optional<SavedGame> ParseSavedGame(std::string_view bytes) {
    Reader reader(bytes);
    SavedGame savedGame;
    if (!ReadStatistics(reader, savedGame))
        return std::nullopt;
    for (SavedCell& cell : savedGame.cells) {
        if (!ReadCell(reader, cell))
            return std::nullopt;
    }
    return savedGame;
}

SavedGame TakeGame(const Game& game) {
    SavedGame savedGame{game.lngHours, game.lngMinutes, game.lngSeconds, game.statistics, {}};
    for (int i = 1; i <= intCellCount; ++i) {
        const Cell& cell = game.cells[i];
        savedGame.cells[i] = {cell.blnGiven, cell.strSolution, cell.strEntry, cell.strNotes};
    }
    return savedGame;
}

void PutGame(Game& game, const SavedGame& savedGame) {
    ResetGrid(game);
    ResetCandidate(game);
    game.lngHours = savedGame.lngHours;
    game.lngMinutes = savedGame.lngMinutes;
    game.lngSeconds = savedGame.lngSeconds;
    game.statistics = savedGame.statistics;
    for (int i = 1; i <= intCellCount; ++i) {
        const SavedCell& saved = savedGame.cells[i];
        Cell& cell = game.cells[i];
        cell.blnGiven = saved.blnGiven;
        cell.strSolution = saved.strSolution;
        cell.strEntry = saved.strEntry;
        cell.strNotes = saved.strNotes;
    }
}

} // namespace cellora
