#include "flow/hall_of_fame.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "core/levels.h"
#include "fuzz/fuzzing.h"
#include "store/modCommon_File.h"
#include "tests/support/idle_desktop.h"
#include "tests/support/temporary_folder.h"

/// What the file of best times gives, in form or not, outlives an insert that writes it anew. A
/// file that was not in form is kept beside the new one, byte for byte; the new one is in form.
namespace cellora {
namespace {

constexpr const char* strFileName = "hof.clh";
constexpr const char* strDamagedName = "hof.clh.damaged";

LevelEntries ReadLevel(const Game& game, int intLevel) {
    LevelEntries entries;
    ReadHallOfFame(game, intLevel, entries);
    return entries;
}

void InsertEntry(LevelEntries& entries, int intRank, HallOfFameEntry entry) {
    for (int i = intRank; i <= LevelEntries::size(); ++i)
        std::swap(entries[i], entry);
}

/// Without a level nothing is inserted, but the file is read and written.
void TryRewrite(Game& game, const TemporaryFolder& folder, std::string_view bytes) {
    game.lblLevel.clear();
    Require(!SaveHallOfFameEntry(game, "nobody"), "any file can be rewritten");
    const std::string strWritten = folder.ReadBytes(strFileName);
    const auto HasSameCount = [&](char character) {
        return std::ranges::count(bytes, character) == std::ranges::count(strWritten, character);
    };
    if (FileExists(folder.Path(strDamagedName)))
        Require(folder.ReadBytes(strDamagedName) == bytes, "a damaged file is kept as it was");
    else
        Require(HasSameCount('\n') && HasSameCount('"'), "a file that is not kept was in form");
}

void TryInsert(Game& game, const TemporaryFolder& folder, const HallOfFameEntry& entry) {
    const std::ptrdiff_t intFiles = folder.Count();
    Require(!SaveHallOfFameEntry(game, entry.strName), "an entry can be inserted");
    Require(folder.Count() == intFiles, "what the program writes is in form");
}

} // namespace

void TryInput(std::string_view bytes) {
    static const TemporaryFolder folder;
    folder.WriteBytes(strFileName, bytes);
    RemoveFile(folder.Path(strDamagedName));
    // The levels and the time come from the input as well, without a place in the file for them.
    const std::size_t lngChoice = std::hash<std::string_view>{}(bytes);
    const int intLevel = static_cast<int>(lngChoice % intLevelCount) + 1;
    const int intOther = static_cast<int>((lngChoice >> 8U) % intLevelCount) + 1;
    const int intWatched = lngChoice >> 63U ? intOther : intLevel;
    IdleDesktop desktop;
    Game game(desktop);
    game.strProgramFolder = folder.Path();
    game.lngSeconds = static_cast<std::int32_t>(lngChoice >> 16U);
    const HallOfFameEntry entry{"A player", 0, 0, game.lngSeconds};

    LevelEntries entries = ReadLevel(game, intWatched);
    TryRewrite(game, folder, bytes);
    game.lblLevel = GetLevelName(intLevel);
    if (intWatched == intLevel)
        InsertEntry(entries, GetRank(game), entry);
    TryInsert(game, folder, entry);
    Require(ReadLevel(game, intWatched) == entries,
            "the entry stands at its rank and every other reads back the same");
}

} // namespace cellora
