#include "fuzz/chance_player.h"

/// A recovery copy that is read is written and read again the same; the start offers it, opens it
/// when the player wants that, and throws away none but on a No. One that is damaged is put aside
/// as it was.
namespace cellora {
namespace {

const std::string strName = ".recovery/copy-1";

void TryCopy(ChancePlayer& player, std::string_view bytes, Answer answer) {
    player.folder.WriteBytes(strName, bytes);
    player.Start(answer);
    Require(player.intOffers == 1, "a game that was left is offered");
    Require(player.game->blnGameActive() == (answer == Answer::Yes), "a game is opened on Yes");
    Require(answer == Answer::Yes ||
                (answer == Answer::No ? "" : bytes) == player.folder.ReadBytes(strName),
            "a game stays until it is given up");
}

/// A score is not thrown away while the others cannot be read.
void TryScore(ChancePlayer& player, std::string_view bytes) {
    const std::string strTimes = player.folder.Path(player.strTimes);
    player.files.Remove(strTimes);
    player.folder.MakeFolder(player.strTimes);
    player.folder.WriteBytes(strName, bytes);
    player.Start();
    Require(player.intComplaints == 1 && player.folder.ReadBytes(strName) == bytes,
            "a score that waits stays until the others can be read");
    player.files.Remove(strTimes);
    player.Start();
    Require(player.intOffers == 0, "a score that waits is no question");
}

/// A game that the player wanted saved, in vain, stays beside the next one.
void TryOwed(ChancePlayer player) {
    player.Start();
    for (const char* const strLevel : {"Level 3", "Level 4"}) {
        StartNewGame(*player.game, strLevel);
        player.game->blnSaveOwed = true;
        player.Observe();
    }
    player.Start();
    Require(player.game->statistics.lblLevel == "Level 3", "the older game is offered first");
}

/// What is no copy is put aside, beside others; a saved game belongs to the player.
void TryNoCopy(ChancePlayer& player, std::string_view bytes) {
    const bool blnDamaged = !ParseSavedGame(bytes);
    player.folder.WriteBytes(strName, bytes);
    player.folder.WriteBytes(strName + ".damaged", std::string(bytes) + "in another way");
    player.Start();
    Require(player.intComplaints == (blnDamaged ? 1 : 0), "the player is told of damage");
    Require(player.folder.ReadBytes(strName + (blnDamaged ? ".damaged-2" : "")) == bytes,
            "what is no copy stays as it was");
}

/// What a version before this one left behind is offered as well, unless that version runs.
void TryOldCopy(ChancePlayer& player, std::string_view bytes, bool blnRuns) {
    FileLock lock(player.files, player.folder.WriteBytes("recovery.clp", bytes));
    player.folder.WriteBytes("recovery.clp.lock", "");
    if (blnRuns)
        lock.TryLock(0);
    player.Start(Answer::No);
    Require((player.intOffers == 1) == (!blnRuns && ParseSavedGame(bytes)),
            "an old copy is offered");
    Require(player.folder.ReadBytes("recovery.clp") == bytes, "an old copy stays");
}

} // namespace

void TryInput(std::string_view bytes) {
    TryOwed(ChancePlayer(bytes));
    ChancePlayer player(bytes);
    for (const bool blnRuns : {true, false})
        TryOldCopy(player, bytes, blnRuns);
    player.folder.MakeFolder(strName + ".lock"); // so that it cannot be locked
    player.folder.WriteBytes(strName, bytes);
    player.Start();
    Require(player.intComplaints == 1 && player.folder.ReadBytes(strName) == bytes,
            "what cannot be locked stays");
    player.files.Remove(player.folder.Path(strName + ".lock"));
    const auto copy = ParseRecoveryCopy(bytes);
    Require(!copy || ParseRecoveryCopy(FormatRecoveryCopy(*copy)) == copy,
            "a copy reads back as it was written");
    if (!copy)
        TryNoCopy(player, bytes);
    else if (copy->score.blnWaits)
        TryScore(player, bytes);
    else
        for (const Answer answer : {Answer::Cancel, Answer::No, Answer::Yes})
            TryCopy(player, bytes, answer);
    player.folder.MakeFolder(".recovery/copy-2"); // which cannot be read
    player.Play(copy ? 20 : 2);
}

} // namespace cellora
