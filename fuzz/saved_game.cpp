#include "fuzz/chance_player.h"

/// A saved game that is read is written and read again the same: as a record, and as the game that
/// Open Game puts on the board and Save writes. A file that is refused changes nothing. Then it is
/// played.
namespace cellora {
void TryInput(std::string_view bytes) {
    const auto savedGame = ParseSavedGame(bytes);
    ChancePlayer player(bytes);
    player.Start();
    Game& game = *player.game;
    player.strPickedFile = player.folder.WriteBytes("game.clp", bytes);
    if (savedGame) {
        Require(ParseSavedGame(FormatSavedGame(*savedGame)) == savedGame,
                "a record reads back as it was written");
        PutGame(game, *savedGame);
        Require(TakeGame(game) == *savedGame, "the board takes the whole record");
    }
    const SavedGame before = TakeGame(game);
    OpenGame(game);
    Require(game.strGameFile.empty() != savedGame.has_value(), "what is in form is opened");
    Require(player.folder.ReadBytes("game.clp") == bytes, "opening leaves the file alone");
    if (!savedGame)
        Require(TakeGame(game) == before && !game.blnGameActive(),
                "a refused file changes nothing");
    player.strPickedFile = game.strGameFile = player.folder.Path("gone/game.clp");
    OpenGame(game); // which is not there,
    player.Save();  // and cannot be written there
    player.Play(savedGame ? 20 : 2);
}

} // namespace cellora
