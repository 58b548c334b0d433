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
constexpr const char* strBoxTitle = "Hall of Fame";

std::string GetFilePath(const Game& game) {
    return JoinPath(game.strProgramFolder, std::string(strHallOfFameFileName));
}

/// The entries from that rank on move down; the tenth drops out.
void InsertEntry(LevelEntries& entries, int intRank, HallOfFameEntry entry) {
    for (int i = intRank; i <= LevelEntries::size(); ++i)
        std::swap(entries[i], entry);
}

/// What a rewriting of the file has come to.
struct Rewriting {
    std::optional<std::string> strReason; ///< of a failure
    std::string strKept = {};             ///< the copy of a damaged file
};

/// Copies a file that is not in form beside it, unless it is kept there already.
Rewriting KeepDamagedFile(FilePort& files, const std::string& strFile, std::string_view bytes) {
    const auto place = FindPlaceAside(files, strFile, bytes);
    if (!place)
        return {"No more damaged files \"hof.clh\" can be kept."};
    return {place->blnKept ? std::nullopt : ReplaceFile(files, place->strPath, bytes),
            place->strPath};
}

/// Reads the file for rewriting. A missing one counts as empty; a damaged one is kept first.
Rewriting ReadForRewriting(FilePort& files, const std::string& strFile, HallOfFame& hallOfFame) {
    const ReadResult file = ReadWholeFile(files, strFile, lngMaxHallOfFameBytes);
    if (file.outcome == ReadOutcome::Failed)
        return {file.strReason};
    hallOfFame = MakeEmptyHallOfFame();
    if (file.outcome == ReadOutcome::Missing || ReadHallOfFameBytes(file.bytes, hallOfFame))
        return {};
    hallOfFame = RepairHallOfFame(file.bytes);
    return KeepDamagedFile(files, strFile, file.bytes);
}

/// Replaces the file by what `fnEdit` makes of it.
template <typename Edit>
Rewriting EditHallOfFame(const Game& game, const std::string& strFile, Edit fnEdit) {
    HallOfFame hallOfFame;
    Rewriting rewriting = ReadForRewriting(game.files, strFile, hallOfFame);
    if (rewriting.strReason)
        return rewriting;
    fnEdit(hallOfFame);
    rewriting.strReason = ReplaceFile(game.files, strFile, FormatHallOfFame(hallOfFame));
    return rewriting;
}

/// Runs `fnRewrite` with the file's path inside the lock.
template <typename Rewrite>
Rewriting RewriteLocked(const Game& game, Rewrite fnRewrite) {
    const std::string strFile = GetFilePath(game);
    FileLock lock(game.files, strFile);
    const LockOutcome outcome = lock.TryLock(msLockTimeout);
    if (outcome == LockOutcome::HeldElsewhere)
        return {"Another copy of the program is using the file \"hof.clh\"."};
    // On a disk that knows no locks an entry is worth more than the rare moment of two writers.
    if (outcome == LockOutcome::Failed)
        return {"The folder of the file \"hof.clh\" cannot be written, or its disk is full."};
    return fnRewrite(strFile);
}

/// The same, with the hourglass meanwhile: another copy may hold the lock for a moment.
template <typename Rewrite>
std::optional<std::string> RewriteUnderHourglass(const Game& game, Rewrite fnRewrite) {
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    const Rewriting rewriting = RewriteLocked(game, fnRewrite);
    game.desktop.SetMousePointer(MousePointer::Default);
    if (!rewriting.strKept.empty() && !rewriting.strReason)
        game.desktop.Announce(strBoxTitle,
                              "The file \"hof.clh\" was damaged. What it still held was kept; "
                              "the damaged file itself is now \"" +
                                  rewriting.strKept + "\".",
                              MessageIcon::Information);
    return rewriting.strReason;
}

void TellPlaceWasTaken(const Game& game) {
    game.desktop.Announce(strBoxTitle,
                          "Better times were entered into the 'Top Ten' meanwhile by another copy "
                          "of the program. Your time no longer has a place in it.",
                          MessageIcon::Information);
}

} // namespace

std::optional<std::string> ReadHallOfFame(const Game& game, int intLevel, LevelEntries& entries) {
    if (intLevel < 1 || intLevel > intLevelCount)
        return std::nullopt;
    const ReadResult file = ReadWholeFile(game.files, GetFilePath(game), lngMaxHallOfFameBytes);
    if (file)
        ReadLevelBytes(file.bytes, intLevel, entries);
    return file.outcome == ReadOutcome::Failed ? std::optional(file.strReason) : std::nullopt;
}

std::int16_t GetCurrentLevel(const Game& game) {
    return game.statistics.GetLevel();
}

std::int16_t GetRank(const Game& game) {
    LevelEntries entries;
    ReadHallOfFame(game, GetCurrentLevel(game), entries);
    return GetRank(game, entries);
}

std::int16_t GetRank(const Game& game, const LevelEntries& entries) {
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

std::optional<std::string> SaveHallOfFameEntry(const Game& game, const std::string& strName) {
    bool blnPlaceTaken = false;
    const auto InsertGame = [&](HallOfFame& hallOfFame) {
        const int intLevel = GetCurrentLevel(game);
        if (intLevel < 1 || intLevel > intLevelCount)
            return;
        LevelEntries& entries = hallOfFame[intLevel];
        const std::int16_t intRank = GetRank(game, entries);
        blnPlaceTaken = intRank == intNoRank;
        InsertEntry(entries, intRank, {strName, game.lngHours, game.lngMinutes, game.lngSeconds});
    };
    auto strReason = RewriteUnderHourglass(game, [&](const std::string& strFile) {
        return EditHallOfFame(game, strFile, InsertGame);
    });
    if (blnPlaceTaken && !strReason)
        TellPlaceWasTaken(game);
    return strReason;
}

std::optional<std::string> ResetHallOfFame(const Game& game) {
    return RewriteUnderHourglass(game, [&](const std::string& strFile) {
        return Rewriting{ReplaceFile(game.files, strFile, FormatHallOfFame(MakeEmptyHallOfFame()))};
    });
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
    game.desktop.Announce(strBoxTitle, strReason, MessageIcon::Exclamation);
}

} // namespace cellora
