#include "rules/hall_of_fame.h"

#include <utility>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "core/text.h"
#include "rules/clock.h"
#include "store/modCommon_File.h"
#include "store/replace_file.h"

namespace cellora {

namespace {

constexpr int msLockTimeout = 2000;

std::string GetFilePath(const Game& game) {
    return JoinPath(game.strProgramFolder, std::string(strHallOfFameFileName));
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

/// Copies a file that is not in form beside it; an earlier copy stays.
std::optional<std::string> KeepDamagedFile(FilePort& files, const std::string& strFile,
                                           std::string_view bytes) {
    std::string strCopy = strFile + ".damaged";
    for (int intCopy = 2; PathExists(files, strCopy); ++intCopy)
        strCopy = strFile + ".damaged-" + std::to_string(intCopy);
    return ReplaceFile(files, strCopy, bytes);
}

/// Reads the file for rewriting. A missing one counts as empty; a damaged one is kept first.
std::optional<std::string> ReadForRewriting(FilePort& files, const std::string& strFile,
                                            HallOfFame& hallOfFame) {
    const ReadResult file = ReadWholeFile(files, strFile, lngMaxHallOfFameBytes);
    if (file.outcome == ReadOutcome::Missing) {
        hallOfFame = MakeEmptyHallOfFame();
        return std::nullopt;
    }
    if (!file)
        return "The file \"hof.clh\" cannot be read.";
    return ReadHallOfFameBytes(file.bytes, hallOfFame)
               ? std::nullopt
               : KeepDamagedFile(files, strFile, file.bytes);
}

/// Replaces the file by what `fnEdit` makes of it, all inside the lock.
template <typename Edit>
std::optional<std::string> RewriteHallOfFame(const Game& game, Edit fnEdit) {
    const std::string strFile = GetFilePath(game);
    FileLock lock(game.files, strFile);
    const LockOutcome outcome = lock.TryLock(msLockTimeout);
    if (outcome == LockOutcome::HeldElsewhere)
        return "Another copy of the program is using the file \"hof.clh\".";
    // Where the disk knows no locks, an entry for sure is worth more than one less in a hundred
    // thousand.
    if (outcome == LockOutcome::Failed)
        return "The folder of the file \"hof.clh\" cannot be written, or its disk is full.";
    HallOfFame hallOfFame;
    if (auto reason = ReadForRewriting(game.files, strFile, hallOfFame))
        return reason;
    fnEdit(hallOfFame);
    return ReplaceFile(game.files, strFile, FormatHallOfFame(hallOfFame));
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
    if (const auto file = ReadWholeFile(game.files, GetFilePath(game), lngMaxHallOfFameBytes))
        ReadLevelBytes(file.bytes, intLevel, entries);
}

std::int16_t GetCurrentLevel(const Game& game) {
    return game.statistics.GetLevel();
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
    if (const auto file = ReadWholeFile(game.files, GetFilePath(game), lngMaxHallOfFameBytes))
        ReadHallOfFameBytes(file.bytes, hallOfFame);
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

void ShowHallOfFameError(Game& game, const std::string& strReason) {
    game.desktop.Announce("Hall of Fame", strReason, MessageIcon::Exclamation);
}

} // namespace cellora
