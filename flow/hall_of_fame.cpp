#include "flow/hall_of_fame.h"

#include <utility>
#include <vector>

#include "core/levels.h"
#include "core/text.h"
#include "flow/clock.h"
#include "store/modCommon_File.h"
#include "store/replace_file.h"

namespace cellora {

namespace {

constexpr std::size_t intMaxFileSize = std::size_t{1} << 20U;
constexpr std::size_t intLinesPerEntry = 4;
constexpr std::size_t intLinesPerLevel = 1 + LevelEntries::size() * intLinesPerEntry;
constexpr int intLockMilliseconds = 2000;

using Lines = std::vector<std::string_view>;
using HallOfFame = Numbered<LevelEntries, intLevelCount>;

std::string GetFilePath(const Game& game) {
    return JoinPath(game.strProgramFolder, std::string(strHallOfFameFileName));
}

Lines SplitLines(std::string_view strBytes) {
    Lines lines;
    while (!strBytes.empty())
        lines.push_back(TakeLine(strBytes));
    return lines;
}

bool ReadNumber(std::string_view strLine, std::int32_t& lngNumber) {
    const auto lngRead = ParseWhole<std::int32_t>(Trim(strLine));
    lngNumber = lngRead.value_or(lngNumber);
    return lngRead.has_value();
}

/// The name without any quotes, which could not be written back; true when it stood between the two
/// of a name in form.
bool ReadName(std::string_view strLine, std::string& strName) {
    const bool blnQuoted = strLine.starts_with('"') && strLine.ends_with('"');
    strName = strLine;
    return std::erase(strName, '"') == 2 && blnQuoted;
}

/// Takes what the lines of one level give; true when all of it was in form.
bool ReadLevel(const Lines& lines, int intLevel, LevelEntries& entries) {
    auto intLine = static_cast<std::size_t>(intLevel - 1) * intLinesPerLevel;
    std::int32_t lngLevel = 0;
    bool blnInForm =
        intLine < lines.size() && ReadNumber(lines[intLine], lngLevel) && lngLevel == intLevel;
    ++intLine;
    for (HallOfFameEntry& entry : entries) {
        if (intLine < lines.size())
            blnInForm &= ReadName(lines[intLine], entry.strName);
        ++intLine;
        for (std::int32_t* const pNumber :
             {&entry.lngHours, &entry.lngMinutes, &entry.lngSeconds}) {
            blnInForm &= intLine < lines.size() && ReadNumber(lines[intLine], *pNumber);
            ++intLine;
        }
    }
    return blnInForm;
}

bool ReadLevels(std::string_view strBytes, HallOfFame& hallOfFame) {
    const Lines lines = SplitLines(strBytes);
    bool blnInForm = strBytes.ends_with('\n') && lines.size() == intLevelCount * intLinesPerLevel;
    for (int intLevel = 1; intLevel <= intLevelCount; ++intLevel)
        blnInForm &= ReadLevel(lines, intLevel, hallOfFame[intLevel]);
    return blnInForm;
}

std::string FormatHallOfFame(const HallOfFame& hallOfFame) {
    std::string strBytes;
    const auto AddLine = [&strBytes](const std::string& strLine) {
        strBytes.append(strLine).append(strLineBreak);
    };
    for (int intLevel = 1; intLevel <= intLevelCount; ++intLevel) {
        AddLine(std::to_string(intLevel));
        for (const HallOfFameEntry& entry : hallOfFame[intLevel]) {
            AddLine('"' + entry.strName + '"');
            for (const std::int32_t lngNumber :
                 {entry.lngHours, entry.lngMinutes, entry.lngSeconds})
                AddLine(std::to_string(lngNumber));
        }
    }
    return strBytes;
}

std::int16_t FindRank(const Game& game, const LevelEntries& entries) {
    const std::int64_t lngCurrent =
        GetTimeInSeconds(game.lngHours, game.lngMinutes, game.lngSeconds);
    std::int16_t intRank = intNoRank;
    for (std::int16_t i = 10; i >= 1; --i) {
        const HallOfFameEntry& entry = entries[i];
        if (lngCurrent <= GetTimeInSeconds(entry.lngHours, entry.lngMinutes, entry.lngSeconds))
            intRank = i;
    }
    return intRank;
}

/// The entries from that rank on move down; the tenth drops out.
void InsertEntry(LevelEntries& entries, int intRank, HallOfFameEntry entry) {
    for (int i = intRank; i <= LevelEntries::size(); ++i)
        std::swap(entries[i], entry);
}

HallOfFame MakeEmptyHallOfFame() {
    HallOfFame hallOfFame;
    for (LevelEntries& entries : hallOfFame)
        entries.fill({std::string(strNoName), 99, 99, 99});
    return hallOfFame;
}

/// Copies a file that is not in form beside it; an earlier copy stays.
std::optional<std::string> KeepDamagedFile(const std::string& strFile, std::string_view bytes) {
    std::string strCopy = strFile + ".damaged";
    for (int intCopy = 2; PathExists(strCopy); ++intCopy)
        strCopy = strFile + ".damaged-" + std::to_string(intCopy);
    return ReplaceFile(strCopy, bytes);
}

/// Reads the file for rewriting. A missing one counts as empty; a damaged one is kept first.
std::optional<std::string> ReadForRewriting(const std::string& strFile, HallOfFame& hallOfFame) {
    if (!PathExists(strFile)) {
        hallOfFame = MakeEmptyHallOfFame();
        return std::nullopt;
    }
    const auto bytes = ReadWholeFile(strFile, intMaxFileSize);
    if (!bytes)
        return "The file \"hof.clh\" cannot be read.";
    return ReadLevels(*bytes, hallOfFame) ? std::nullopt : KeepDamagedFile(strFile, *bytes);
}

/// Replaces the file by what `fnEdit` makes of it, all inside the lock.
template <typename Edit>
std::optional<std::string> RewriteHallOfFame(const Game& game, Edit fnEdit) {
    const std::string strFile = GetFilePath(game);
    FileLock lock(strFile);
    if (!lock.TryLock(intLockMilliseconds))
        return lock.IsHeldElsewhere()
                   ? "Another copy of the program is using the file \"hof.clh\"."
                   : "The folder of the file \"hof.clh\" cannot be written, or its disk is full.";
    HallOfFame hallOfFame;
    if (auto reason = ReadForRewriting(strFile, hallOfFame))
        return reason;
    fnEdit(hallOfFame);
    return ReplaceFile(strFile, FormatHallOfFame(hallOfFame));
}

/// The same, with the hourglass meanwhile: another copy may hold the lock for a moment.
template <typename Edit>
std::optional<std::string> RewriteUnderHourglass(const Game& game, Edit fnEdit) {
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    auto reason = RewriteHallOfFame(game, fnEdit);
    game.desktop.SetMousePointer(MousePointer::Default);
    return reason;
}

} // namespace

void ReadHallOfFame(const Game& game, int intLevel, LevelEntries& entries) {
    if (intLevel < 1 || intLevel > intLevelCount)
        return;
    if (const auto bytes = ReadWholeFile(GetFilePath(game), intMaxFileSize))
        ReadLevel(SplitLines(*bytes), intLevel, entries);
}

std::int16_t GetCurrentLevel(const Game& game) {
    return GetLevelNumber(game.lblLevel);
}

std::int16_t GetRank(const Game& game) {
    LevelEntries entries;
    ReadHallOfFame(game, GetCurrentLevel(game), entries);
    return FindRank(game, entries);
}

std::optional<std::string> SaveHallOfFameEntry(const Game& game, const std::string& strName) {
    return RewriteUnderHourglass(game, [&](HallOfFame& hallOfFame) {
        const int intLevel = GetCurrentLevel(game);
        if (intLevel < 1 || intLevel > intLevelCount)
            return;
        LevelEntries& entries = hallOfFame[intLevel];
        InsertEntry(entries, FindRank(game, entries),
                    {strName, game.lngHours, game.lngMinutes, game.lngSeconds});
    });
}

std::optional<std::string> ResetHallOfFame(const Game& game) {
    return RewriteUnderHourglass(
        game, [](HallOfFame& hallOfFame) { hallOfFame = MakeEmptyHallOfFame(); });
}

std::int16_t GetHighestRecordedLevel(const Game& game) {
    HallOfFame hallOfFame;
    if (const auto bytes = ReadWholeFile(GetFilePath(game), intMaxFileSize))
        ReadLevels(*bytes, hallOfFame);
    for (std::int16_t intLevel = intLevelCount; intLevel >= 1; --intLevel) {
        if (Trim(hallOfFame[intLevel][1].strName) != strNoName)
            return intLevel;
    }
    return 0;
}

std::string FormatEntryTime(const HallOfFameEntry& entry) {
    const auto LastTwo = [](std::int32_t lngNumber) {
        const std::string strNumber = "00" + std::to_string(lngNumber);
        return strNumber.substr(strNumber.size() - 2);
    };
    return LastTwo(entry.lngHours) + ':' + LastTwo(entry.lngMinutes) + ':' +
           LastTwo(entry.lngSeconds);
}

std::string FormatEmptyHallOfFame() {
    return FormatHallOfFame(MakeEmptyHallOfFame());
}

void ShowHallOfFameError(Game& game, const std::string& strReason) {
    game.desktop.Beep();
    game.desktop.ShowMessageBox({.strTitle = "Hall of Fame",
                                 .strText = strReason,
                                 .icon = MessageIcon::Exclamation,
                                 .buttons = MessageButtons::Ok});
}

} // namespace cellora
