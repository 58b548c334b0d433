#include "fuzz/chance_player.h"

/// The file of best times outlives a writing, entries in parts of a damaged one excepted, which is
/// kept beside the new one, byte for byte and once. What is written is in form. Games are then
/// played for places in it.
namespace cellora {
namespace {

/// What is no file is left alone, and so are the times when no lock can be made.
void TryObstacles(ChancePlayer& player) {
    for (const char* const strName : {player.strTimes, "hof.clh.lock"}) {
        player.files.Remove(player.folder.Path(strName));
        player.folder.MakeFolder(strName);
        const auto strReason = SaveHallOfFameEntry(*player.game, "A player");
        Require(strReason && ResetHallOfFame(*player.game), "nothing is written past an obstacle");
        ShowHallOfFameError(*player.game, *strReason);
    }
}

} // namespace

void TryInput(std::string_view bytes) {
    ChancePlayer player(bytes);
    HallOfFame found;
    HallOfFame written;
    const bool blnInForm = ReadHallOfFameBytes(bytes, found);
    player.folder.WriteBytes("hof.clh.damaged", "another");
    player.Start();
    for (int n = 0; n < 2; ++n) {
        player.folder.WriteBytes(player.strTimes, bytes);
        // Without a level nothing is inserted, but the file is read and written.
        Require(!SaveHallOfFameEntry(*player.game, "nobody"), "any file can be rewritten");
    }
    const std::string strKept = player.folder.ReadBytes("hof.clh.damaged-2");
    Require(ReadHallOfFameBytes(player.folder.ReadBytes(player.strTimes), written),
            "what is written is in form");
    Require(blnInForm ? std::ranges::equal(found, written) : strKept == bytes,
            "what is in form stays, and what is not is kept");
    Require(IsMissing(player.files, player.folder.Path("hof.clh.damaged-3")), "and kept once");
    const int intHighest = GetHighestRecordedLevel(*player.game);
    LevelEntries entries;
    ReadHallOfFame(*player.game, intHighest, entries);
    Require(intHighest == 0 || entries[1].strName != strNoName, "the highest level has an entry");
    Require(FormatEntryTime(entries[1]).size() == 8, "a time has six digits");

    for (int n = player.Draw(3); n >= 0; --n) {
        StartNewGame(*player.game, GetLevelName(intHighest == 0 ? 1 : intHighest));
        player.game->lngSeconds = player.Draw(60);
        player.FillBoard();
    }
    player.game->lngHours = 1'000'000;
    player.game->statistics.lblLevel = "Level 2";
    Require(!SaveHallOfFameEntry(*player.game, "A player"), "a time may come too late");
    player.Play(5);
    TryObstacles(player);
}

} // namespace cellora
