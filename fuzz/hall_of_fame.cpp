#include "rules/hall_of_fame.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "core/levels.h"
#include "core/modCellora.h"
#include "fuzz/fuzzing.h"
#include "store/modCommon_File.h"
#include "store/system_files.h"
#include "tests/support/idle_desktop.h"
#include "tests/support/temporary_folder.h"

/// What the file of best times gives outlives an insert that writes it anew, entries in parts of a
/// damaged file excepted. A
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

/// Without a level nothing is inserted, but the file is read and written.
void TryRewrite(Game& game, const TemporaryFolder& folder, std::string_view bytes) {
    game.statistics.lblLevel.clear();
    Require(!SaveHallOfFameEntry(game, "nobody"), "any file can be rewritten");
    const std::string strWritten = folder.ReadBytes(strFileName);
    const auto HasSameCount = [&](char character) {
        return std::ranges::count(bytes, character) == std::ranges::count(strWritten, character);
    };
    if (FileExists(game.files, folder.Path(strDamagedName)))
        Require(folder.ReadBytes(strDamagedName) == bytes, "a damaged file is kept as it was");
    else
        Require(HasSameCount('\n') && HasSameCount('"'), "a file that is not kept was in form");
}

} // namespace

void TryInput(std::string_view bytes) {
    static const TemporaryFolder folder;
    folder.WriteBytes(strFileName, bytes);
    // The levels and the time come from the input as well, without a place in the file for them.
    const std::size_t lngChoice = std::hash<std::string_view>{}(bytes);
    const int intWatched = static_cast<int>(lngChoice % intLevelCount) + 1;
    const int intLevel = static_cast<int>((lngChoice >> (lngChoice >> 63U)) % intLevelCount) + 1;
    IdleDesktop desktop;
    SystemFiles files;
    files.Remove(folder.Path(strDamagedName));
    Game game(desktop, files);
    game.strProgramFolder = folder.Path();
    game.lngSeconds = static_cast<std::int32_t>(lngChoice >> 16U);
    HallOfFameEntry moved{"A player", 0, 0, game.lngSeconds};

    const LevelEntries before = ReadLevel(game, intWatched);
    TryRewrite(game, folder, bytes);
    LevelEntries entries = ReadLevel(game, intWatched);
    // Of a damaged file only whole entries are left.
    Require(entries == before || FileExists(files, folder.Path(strDamagedName)),
            "what is in form stays");
    game.statistics.lblLevel = GetLevelName(intLevel);
    if (intWatched == intLevel)
        for (int i = GetRank(game); i <= LevelEntries::size(); ++i)
            std::swap(entries[i], moved);
    const std::ptrdiff_t intFiles = folder.Count();
    Require(!SaveHallOfFameEntry(game, "A player"), "an entry can be inserted");
    Require(folder.Count() == intFiles, "what the program writes is in form");
    Require(ReadLevel(game, intWatched) == entries,
            "the entry stands at its rank and every other reads back the same");
}

} // namespace cellora
